#include <climits>

#include "icon_fixture.h"

// Pictures and borders on the screen.

namespace {

struct Icon_Draw : Icons {
    void SetUp() override {
        Icons::SetUp();
        rgb(L"a.rgb", 16, 12);
        named(L"a.rgb");
        Zeb_setup(box.Wnd, "caller");
        recorder::clear();
    }
    void TearDown() override {
        Zeb_release();
        Icons::TearDown();
    }
    std::string image(int x, int y) {
        return painted([&] { Icon_Draw_Image(&box, x, y, nullptr, L"a.rgb"); });
    }
    std::string border(int x, int y) {
        return painted([&] { Icon_Draw_Border(&box, x, y, nullptr, L"a.rgb"); });
    }
};

TEST_F(Icon_Draw, APictureIsBlendedWithTheFace) {
    EXPECT_EQ(image(30, 40), "draw_image(DATA, 30, 40, 0, 0, 16, 12, 16, 12, 0x30201)\n");
    box.Color = Colors(300, -5, 128, 7);
    EXPECT_EQ(image(30, 40), "draw_image(DATA, 30, 40, 0, 0, 16, 12, 16, 12, 0x78000FF)\n");
}

TEST_F(Icon_Draw, TheProgramDoesNotMatter) {
    EXPECT_EQ(painted([&] { Icon_Draw_Image(&box, 30, 40, L"program", L"a.rgb"); }), image(30, 40));
}

TEST_F(Icon_Draw, ABorderIsDarkBelowAndWhiteAbove) {
    EXPECT_EQ(border(30, 40),
              "Zeb_color(0x1)\nmove2s(30, 39)\ndraw2s(46, 39, 0)\nmove2s(46, 39)\ndraw2s(46, 52, 0)\n"
              "Zeb_color(0xFFFFFF)\nmove2s(29, 52)\ndraw2s(46, 52, 0)\nmove2s(29, 40)\n"
              "draw2s(29, 52, 0)\n");
}

// The box is 10 to 110 and 20 to 70, and the edges count.
TEST_F(Icon_Draw, NothingIsDrawnOutsideOfTheBox) {
    for (const int x : {-6, 10, 110})
        for (const int y : {8, 20, 70}) {
            EXPECT_NE(image(x, y), "") << x << ", " << y;
            EXPECT_NE(border(x, y), "") << x << ", " << y;
        }
    for (const int x : {-7, 111, -1000, INT_MAX, INT_MIN}) {
        EXPECT_EQ(image(x, 40), "") << x;
        EXPECT_EQ(border(x, 40), "") << x;
    }
    for (const int y : {7, 71, 1000, INT_MAX, INT_MIN}) {
        EXPECT_EQ(image(30, y), "") << y;
        EXPECT_EQ(border(30, y), "") << y;
    }
}

TEST_F(Icon_Draw, AnyBoxIsHarmless) {
    for (const int end : {INT_MAX, INT_MIN}) {
        box.Pos_X = box.Pos_Y = box.Dim_X = box.Dim_Y = end;
        for (const int at : {INT_MAX, INT_MIN, 0}) {
            image(at, at);
            EXPECT_EQ(border(at, at).empty(), image(at, at).empty());
        }
    }
}

TEST_F(Icon_Draw, APictureOutsideIsReadAllTheSame) {
    rgb(L"far.rgb", 16, 12);
    Zeb_set_clip(10, 20, 100, 50);
    EXPECT_EQ(recorded(recorder::kService, [&] { Icon_Draw_Image(&box, 1000, 1000, nullptr, L"far.rgb"); }),
              "IGB_Read_Image(\"" + told(L"far.rgb") + "\")\nIGB_Free()\n");
    EXPECT_EQ(recorded(recorder::kService, [&] { read(L"far.rgb"); }), "");
    Zeb_reset_clip();
}

TEST_F(Icon_Draw, AMissingPictureLeavesItsPlaceEmpty) {
    read(L"missing.rgb");
    Zeb_reset_clip();
    EXPECT_EQ(painted([&] {
                  Icon_Draw_Image(&box, 30, 40, nullptr, L"missing.rgb");
                  Icon_Draw_Border(&box, 30, 40, nullptr, L"missing.rgb");
              }),
              "");
}

TEST_F(Icon_Draw, NothingOfNothing) {
    EXPECT_EQ(everything([&] {
                  Icon_Draw_Image(nullptr, 30, 40, nullptr, L"a.rgb");
                  Icon_Draw_Border(nullptr, 30, 40, nullptr, L"a.rgb");
                  Icon_Draw_Image(&box, 30, 40, nullptr, nullptr);
                  Icon_Draw_Border(&box, 30, 40, nullptr, nullptr);
              }),
              "");
}

TEST_F(Icon_Draw, ASurfaceIsOfItsSizeAndNoLarger) { // the recorder reads what the call may copy
    for (const int side : {1, 2, 17}) {
        const std::wstring name = L"s" + std::to_wstring(side) + L".rgb";
        rgb(name, side, side);
        read(name);
        Zeb_reset_clip();
        EXPECT_NE(painted([&] { Icon_Draw_Image(&box, 30, 40, nullptr, name.c_str()); }), "");
    }
}

} // namespace
