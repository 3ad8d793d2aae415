#include "valuator_fixture.h"

// The thumb of a value bar: its pixels, and where it stands.

namespace {

TEST_F(Valuator, HorizontalThumbToThePixel) {
    bar.Cur_Value = 50; // 154 pixels of play
    expect_drawn_last("Zeb_setup(WND, \"Valuators::Cursor\")\n"
                      "Zeb_color(0x6E6E6E)\n"
                      "draw_fill_rectangle(91, 46, 129, 23)\n"
                      "Zeb_color(0xD8D8D8)\n"
                      "move2s(110, 24)\n"
                      "draw2s(110, 47, 0)\n"
                      "Zeb_color(0x1)\n"
                      "move2s(109, 24)\n"
                      "draw2s(109, 47, 0)\n"
                      "Zeb_color(0x1)\n"
                      "move2s(92, 24)\n"
                      "draw2s(128, 24, 0)\n"
                      "draw2s(128, 46, 0)\n"
                      "Zeb_color(0xD8D8D8)\n"
                      "move2s(90, 24)\n"
                      "draw2s(90, 47, 0)\n"
                      "draw2s(129, 47, 0)\n"
                      "Zeb_color(0x1)\n"
                      "move2s(91, 23)\n"
                      "draw2s(129, 23, 0)\n"
                      "draw2s(129, 47, 0)\n"
                      "Zeb_release()\n");
}

TEST_F(Valuator, VerticalThumbToThePixel) {
    lay(OUTIL_VERTICAL);
    bar.Cur_Value = 50;
    expect_drawn_last("Zeb_setup(WND, \"Valuators::Cursor\")\n"
                      "Zeb_color(0x6E6E6E)\n"
                      "draw_fill_rectangle(14, 139, 37, 100)\n"
                      "Zeb_color(0xD8D8D8)\n"
                      "move2s(14, 119)\n"
                      "draw2s(36, 119, 0)\n"
                      "Zeb_color(0x1)\n"
                      "move2s(14, 120)\n"
                      "draw2s(37, 120, 0)\n"
                      "Zeb_color(0x1)\n"
                      "move2s(15, 101)\n"
                      "draw2s(36, 101, 0)\n"
                      "draw2s(36, 138, 0)\n"
                      "Zeb_color(0xD8D8D8)\n"
                      "move2s(13, 100)\n"
                      "draw2s(13, 139, 0)\n"
                      "draw2s(36, 139, 0)\n"
                      "Zeb_color(0x1)\n"
                      "move2s(14, 100)\n"
                      "draw2s(37, 100, 0)\n"
                      "draw2s(37, 139, 0)\n"
                      "Zeb_release()\n");
}

TEST_F(Valuator, LockedThumbsToThePixel) {
    recorder::name(brask::padlock_glyph(16), "padlock");
    lay(VALUATOR_FREZE);
    expect_drawn_last("Zeb_setup(WND, \"Valuators::Cursor\")\n"
                      "Zeb_color(0xD8D8D8)\n"
                      "draw_fill_rectangle(14, 46, 52, 23)\n"
                      "draw_image(padlock, 25, 27, 0, 0, 16, 16, 16, 16, 0x0)\n"
                      "Zeb_color(0xE64040)\n"
                      "draw_rectangle(14, 46, 51, 24)\n"
                      "Zeb_color(0xD8D8D8)\n"
                      "move2s(13, 24)\n"
                      "draw2s(13, 47, 0)\n"
                      "draw2s(52, 47, 0)\n"
                      "Zeb_color(0x1)\n"
                      "move2s(14, 23)\n"
                      "draw2s(52, 23, 0)\n"
                      "draw2s(52, 47, 0)\n"
                      "Zeb_release()\n");
    lay(OUTIL_VERTICAL | VALUATOR_FREZE); // the padlock stands off the middle of 13 to 37: 25 to 41
    expect_drawn_last("Zeb_setup(WND, \"Valuators::Cursor\")\n"
                      "Zeb_color(0xD8D8D8)\n"
                      "draw_fill_rectangle(14, 61, 37, 23)\n"
                      "draw_image(padlock, 25, 34, 0, 0, 16, 16, 16, 16, 0x0)\n"
                      "Zeb_color(0xE64040)\n"
                      "draw_rectangle(14, 61, 36, 24)\n"
                      "Zeb_color(0xD8D8D8)\n"
                      "move2s(13, 23)\n"
                      "draw2s(13, 62, 0)\n"
                      "draw2s(36, 62, 0)\n"
                      "Zeb_color(0x1)\n"
                      "move2s(14, 23)\n"
                      "draw2s(37, 23, 0)\n"
                      "draw2s(37, 62, 0)\n"
                      "Zeb_release()\n");
}

// Below the origin the middle is cut toward zero.
TEST_F(Valuator, APadlockBelowTheOrigin) {
    recorder::name(brask::padlock_glyph(16), "padlock");
    lay(VALUATOR_FREZE);
    bar.Pos_Y = -100; // B -97, T -73; -85 and at an odd sum:
    EXPECT_NE(painted([&] { bar.Draw(); }).find("draw_image(padlock, 25, -93,"), std::string::npos);
    bar.Dim_Y = 31; // T -72: -169 / 2 is -84
    EXPECT_NE(painted([&] { bar.Draw(); }).find("draw_image(padlock, 25, -92,"), std::string::npos);
}

TEST_F(Valuator, ThumbStandsWhereItsValueIs) {
    struct {
        DWORD flag;
        float first, last, value;
        int offset;
    } const rows[] = {
        {0, 0, 100, 0, 0},
        {0, 0, 100, 100, 154},
        {0, 0, 100, 50, 77},
        {0, 0, 308, 1, 1},     // half a pixel goes up
        {0, 0, 308, 0.99f, 0}, // less does not
        {0, -100, 100, 0, 77},
        {OUTIL_REVERSE, 100, 0, 25, 116},  // 115.5
        {VALUATOR_LOG10, 1, 1000, 10, 51}, // a third of 154
        {VALUATOR_LOG10, 1, 1000, 100, 103},
        {VALUATOR_LOG10 | VALUATOR_LN, 1, 1000, 10, 51},
        {VALUATOR_LN, 1, 1000, 31.622776f, 77},
        {VALUATOR_LOG10 | OUTIL_REVERSE, 1000, 1, 100, 51},
        {0, 7, 7, 7, 0}, // ratios without value are 0
        {0, -kInf, kInf, 5, 0},
        {0, 0, kInf, 5, 0},
        {0, kNan, 100, 5, 0},
        {VALUATOR_LOG10, 0, 1000, 10, 0},
        {VALUATOR_LN, -5, 1000, 10, 0},
    };
    for (const DWORD axis : kAxes)
        for (const auto& row : rows) {
            lay(axis | row.flag);
            bar.Val_Min = row.first, bar.Val_Max = row.last, bar.Cur_Value = row.value;
            EXPECT_EQ(painted([&] { bar.Draw(); }), painted([&] {
                          ground();
                          frame(3);
                          thumb(row.offset);
                      }))
                << row.value << " in " << row.first << ".." << row.last;
        }
}

// A thumb longer than its track has negative play: the offset goes below 0, and is cut toward zero.
TEST_F(Valuator, ThumbLongerThanItsTrack) {
    bar.Larg = 107; // play -20
    bar.Init(nullptr);
    struct {
        float value;
        int offset;
    } const rows[] = {{0, 0}, {50, -9}, {100, -19}};
    for (const auto& row : rows) {
        bar.Cur_Value = row.value;
        EXPECT_EQ(painted([&] { bar.Draw(); }), painted([&] {
                      ground();
                      frame(3);
                      thumb(row.offset);
                  }));
    }
}

} // namespace
