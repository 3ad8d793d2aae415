#include <algorithm>
#include <climits>

#include <brask/icons.h>

#include "support/recorded.h"

// The symbols of any size.

namespace {

struct Symbols : Recorded {
    Boxs box;
    void SetUp() override {
        Recorded::SetUp();
        box.Wnd = recorder::window();
        box.Pos_X = 10, box.Pos_Y = 20, box.Dim_X = 100, box.Dim_Y = 50;
        // The box's own clip rectangle does not count.
        box.Clip_X = 1, box.Clip_Y = 2, box.Clip_Dim_X = 3, box.Clip_Dim_Y = 4;
    }
};

std::string bracket(const std::string& name, const std::string& inside) {
    return "Zeb_setup(WND, \"" + name + "\")\nZeb_set_clip(10, 20, 100, 50)\n" + inside +
           "Zeb_reset_clip()\nZeb_release()\n";
}
std::string line(int x1, int y1, int x2, int y2) {
    return "move2s(" + std::to_string(x1) + ", " + std::to_string(y1) + ")\ndraw2s(" + std::to_string(x2) +
           ", " + std::to_string(y2) + ", 0)\n";
}

TEST_F(Symbols, ExpandIsABoxWithAMinus) {
    EXPECT_EQ(everything([&] { Icon_Expand(&box, 9, 30, 40); }),
              bracket("Icon_Expand",
                      "Zeb_color(0xFFFFFF)\ndraw_rectangle(30, 49, 39, 40)\n" + line(32, 44, 38, 44)));
}

TEST_F(Symbols, CollapseIsABoxWithAPlus) {
    EXPECT_EQ(everything([&] { Icon_Collapse(&box, 11, 30, 40); }),
              bracket("Icon_Collapse", "Zeb_color(0xFFFFFF)\ndraw_rectangle(30, 51, 41, 40)\n" +
                                           line(32, 45, 40, 45) + line(35, 42, 35, 50)));
}

std::string cross(int size, int x, int y, int thickness) {
    std::string lines = "Zeb_color(0xFF)\n";
    for (int i = 0; i < size; i++)
        lines += line(x + i, y + 1 + i, x + i + thickness, y + 1 + i) +
                 line(x + i, y + size - i, x + i + thickness, y + size - i);
    return lines;
}

TEST_F(Symbols, CloseIsACrossAtLeastThreeThick) {
    EXPECT_EQ(everything([&] { Icon_Close(&box, 8, 30, 40); }), bracket("Icon_Close", cross(8, 30, 40, 3)));
    EXPECT_EQ(everything([&] { Icon_Close(&box, 15, 30, 40); }), bracket("Icon_Close", cross(15, 30, 40, 3)));
    EXPECT_EQ(everything([&] { Icon_Close(&box, 16, 30, 40); }), bracket("Icon_Close", cross(16, 30, 40, 4)));
    EXPECT_EQ(everything([&] { Icon_Close(&box, 40, 30, 40); }),
              bracket("Icon_Close", cross(40, 30, 40, 10)));
}

TEST_F(Symbols, NoAccessIsACircleWithASlash) { // half of 17 is 8: the circle has a radius of 7
    EXPECT_EQ(recorded(recorder::kEverything, [&] { Icon_No_Access(&box, 17, 30, 40); }),
              bracket("Icon_No_Access", "Zeb_color(0xFF)\nmove2s(45, 48)\nCreatePen(0, 1, 255)\n"
                                        "SelectObject(DC, pen)\nAngleArc(DC, 38, 48, 7, 0, 360)\n"
                                        "SelectObject(DC, standard pen)\nDeleteObject(pen)\n" +
                                            line(31, 41, 47, 57)));
}

TEST_F(Symbols, NoAccessHasNoCircleWithoutRoom) {
    for (const int size : {3, 2, 1, 0, -1, -5})
        EXPECT_EQ(recorded(recorder::kEverything, [&] { Icon_No_Access(&box, size, 30, 40); }),
                  bracket("Icon_No_Access", "Zeb_color(0xFF)\n" + line(31, 41, 30 + size, 40 + size)));
    EXPECT_NE(recorded(recorder::kEverything, [&] { Icon_No_Access(&box, 4, 30, 40); })
                  .find("AngleArc(DC, 32, 42, 1, 0, 360)"),
              std::string::npos);
}

TEST_F(Symbols, OfNoSizeHaveNoCross) {
    for (const int size : {0, -1, -100, INT_MIN})
        EXPECT_EQ(painted([&] { Icon_Close(&box, size, 30, 40); }),
                  bracket("Icon_Close", "Zeb_color(0xFF)\n"));
}

TEST_F(Symbols, AnySizeAndPlaceIsHarmless) {
    for (const int size : {INT_MAX, INT_MIN, -1})
        for (const int at : {INT_MAX, INT_MIN}) {
            const std::string log = painted([&] {
                Icon_Expand(&box, size, at, at);
                Icon_Collapse(&box, size, at, at);
                Icon_Close(&box, size, at, at);
                Icon_No_Access(&box, size, at, at);
            });
            // A cross larger than any window ends somewhere.
            EXPECT_LT(std::count(log.begin(), log.end(), '\n'), 5 * 32768);
        }
}

TEST_F(Symbols, OfABoxThatIsNotThereAreNone) {
    EXPECT_EQ(recorded(recorder::kEverything,
                       [] {
                           Icon_Expand(nullptr, 9, 0, 0);
                           Icon_Collapse(nullptr, 9, 0, 0);
                           Icon_Close(nullptr, 9, 0, 0);
                           Icon_No_Access(nullptr, 9, 0, 0);
                       }),
              "");
}

} // namespace
