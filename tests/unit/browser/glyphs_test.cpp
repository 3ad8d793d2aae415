#include <cstdio>
#include <cstring>
#include <functional>

#include <brask/icons.h>

#include "support/recorded.h"

// Folders and connectors, stroke by stroke.

namespace {

struct Glyphs : Recorded {
    Boxs box;
    void SetUp() override {
        Recorded::SetUp();
        Zeb_setup(recorder::window(), "test");
    }
    void TearDown() override {
        Zeb_release();
        Recorded::TearDown();
    }
};

// One colour with its lines, from the lower left corner 100, 200 on: "1,0-15,0 14,0-14,10".
std::string layer(const char* color, const char* lines, const char* block = "") {
    std::string log = std::string("Zeb_color(") + color + ")\n" + block;
    int x1, y1, x2, y2, used;
    for (; std::sscanf(lines, " %d,%d-%d,%d%n", &x1, &y1, &x2, &y2, &used) == 4; lines += used) {
        char text[100];
        std::snprintf(text, sizeof text, "move2s(%d, %d)\ndraw2s(%d, %d, 0)\n", 100 + x1, 200 + y1, 100 + x2,
                      200 + y2);
        log += text;
    }
    return log;
}
const char* const kFace = "draw_fill_rectangle(101, 209, 113, 201)\n";
const char* const kFrame = "draw_rectangle(103, 208, 111, 200)\n";

const char* const kClosedFace = "1,10-8,10 2,11-7,11";
const std::string kClosedRest =
    layer("0x1", "1,0-15,0 14,0-14,10") +
    layer("0x505050", "0,1-0,11 0,1-14,1 13,1-13,11 8,10-14,10 1,11-2,11 7,11-8,11 2,12-7,12") +
    layer("0xFFFFFF", "1,2-1,10 1,9-13,9");
const char* const kOpenFace = "1,10-8,10 2,11-7,11 0,5-1,5";
const std::string kOpenRest =
    layer("0x1", "1,0-15,0 14,0-14,10 13,1-13,3 12,3-12,5 11,5-11,7") +
    layer("0x505050",
          "13,3-13,11 8,10-14,10 7,11-8,11 2,12-7,12 1,11-2,11 0,8-0,11 0,1-13,1 12,1-12,3 11,3-11,5 "
          "10,5-10,7 -2,7-11,7 -2,5--2,7 -1,3--1,5 0,1-0,3") +
    layer("0xFFFFFF", "1,2-1,3 0,3-0,5 -1,5--1,7 -1,6-10,6 1,8-1,11 2,11-7,11 7,10-8,10 8,9-13,9");

TEST_F(Glyphs, AClosedFolderIsYellow) {
    EXPECT_EQ(painted([&] { Icon_Dir_Close(&box, 100, 200, 0); }),
              layer("0x388E8E", kClosedFace, kFace) + kClosedRest);
}

TEST_F(Glyphs, ASelectedClosedFolderIsRed) {
    for (const char select : {1, 2, -1, 127})
        EXPECT_EQ(painted([&] { Icon_Dir_Close(&box, 100, 200, select); }),
                  layer("0x4040FF", kClosedFace, kFace) + kClosedRest);
}

TEST_F(Glyphs, AnOpenFolderHasAFlap) {
    EXPECT_EQ(painted([&] { Icon_Dir_Open(&box, 100, 200, 0); }),
              layer("0x388E8E", kOpenFace, kFace) + kOpenRest);
}

TEST_F(Glyphs, ASelectedOpenFolderIsRed) {
    for (const char select : {1, -128})
        EXPECT_EQ(painted([&] { Icon_Dir_Open(&box, 100, 200, select); }),
                  layer("0x4040FF", kOpenFace, kFace) + kOpenRest);
}

// The cell is 20 wide and the row 25 high, so that no edge can be taken for another: X is 20, Y is 25.
TEST_F(Glyphs, AClosedBranchHasAPlus) {
    for (const char c : {0, 1})
        EXPECT_EQ(painted([&] { Icon_Lead_Collapse(&box, c, 100, 120, 200, 225); }),
                  layer("0x1", "5,4-10,4 7,2-7,7", kFrame) + layer("0xFF0000", "7,9-7,27 12,4-21,4"));
}

TEST_F(Glyphs, AnOpenBranchHasAMinus) {
    for (const char c : {0, 1})
        EXPECT_EQ(painted([&] { Icon_Lead_Expand(&box, c, 100, 120, 200, 225); }),
                  layer("0x1", "5,4-10,4", kFrame) + layer("0xFF0000", "7,9-7,27 12,4-21,4"));
}

TEST_F(Glyphs, ALeafIsALineThatMayGoOn) {
    EXPECT_EQ(painted([&] { Icon_Lead_Leaf(&box, 0, 100, 120, 200, 225); }),
              layer("0xFF0000", "7,4-7,25 7,4-21,4"));
    for (const char c : {1, -1})
        EXPECT_EQ(painted([&] { Icon_Lead_Leaf(&box, c, 100, 120, 200, 225); }),
                  layer("0xFF0000", "7,0-7,5 7,4-7,25 7,4-21,4"));
}

TEST_F(Glyphs, AForbiddenBranchHasAShorterLine) {
    for (const char c : {0, 1})
        EXPECT_EQ(painted([&] { Icon_Lead_No_Access(&box, c, 100, 120, 200, 225); }),
                  layer("0xFF",
                        "5,0-10,0 4,1-6,1 9,1-11,1 3,2-7,2 10,2-12,2 3,3-3,6 11,3-11,6 5,3-8,3 6,4-9,4 "
                        "7,5-10,5 3,6-5,6 8,6-12,6 4,7-6,7 9,7-11,7 5,8-10,8") +
                      layer("0xFF0000", "7,9-7,27 12,4-20,4"));
}

TEST_F(Glyphs, NothingIsPaintedOfABoxThatIsNotThere) {
    EXPECT_EQ(everything([] {
                  Icon_Dir_Close(nullptr, 0, 0, 0);
                  Icon_Dir_Open(nullptr, 0, 0, 0);
                  Icon_Lead_Collapse(nullptr, 0, 0, 0, 0, 0);
                  Icon_Lead_Expand(nullptr, 0, 0, 0, 0, 0);
                  Icon_Lead_Leaf(nullptr, 0, 0, 0, 0, 0);
                  Icon_Lead_No_Access(nullptr, 0, 0, 0, 0, 0);
              }),
              "");
}

TEST_F(Glyphs, AnyPlaceIsHarmless) {
    for (const int end : {2147483647, -2147483647 - 1}) {
        const std::string log = painted([&] {
            Icon_Dir_Close(&box, end, end, 1);
            Icon_Dir_Open(&box, end, end, 1);
            Icon_Lead_Collapse(&box, 1, end, end, end, end);
            Icon_Lead_Expand(&box, 1, end, end, end, end);
            Icon_Lead_Leaf(&box, 1, end, end, end, end);
            Icon_Lead_No_Access(&box, 1, end, end, end, end);
        });
        EXPECT_NE(log.find("draw2s"), std::string::npos);
    }
}

} // namespace
