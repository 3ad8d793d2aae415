// The bracket and the clip.
#include <gtest/gtest.h>

#include <climits>

#include "fenn/painter.h"
#include "screen.h"

namespace {

using Rows = std::vector<std::string>;

void fill_all() { draw_fill_rectangle(-100, 100, 100, -100); }

TEST(Bracket, ZebTestTellsWhetherOneIsOpen) {
    Screen screen(4, 4);
    EXPECT_EQ(Zeb_test(), 0);
    Zeb_setup(screen.wnd, "test");
    EXPECT_NE(Zeb_test(), 0);
    Zeb_release();
    EXPECT_EQ(Zeb_test(), 0);
    Zeb_setup(nullptr, nullptr);
    EXPECT_NE(Zeb_test(), 0);
    Zeb_release();
    EXPECT_EQ(Zeb_test(), 0);
}

TEST(Bracket, TheContextStandsInsideOnly) {
    Screen screen(4, 4);
    EXPECT_EQ(Zeb_DC, nullptr);
    Zeb_setup(screen.wnd, "test");
    EXPECT_NE(Zeb_DC, nullptr);
    Zeb_release();
    EXPECT_EQ(Zeb_DC, nullptr);
    Zeb_setup(nullptr, "test");
    EXPECT_EQ(Zeb_DC, nullptr);
    Zeb_release();
}

TEST(Bracket, NothingIsPaintedOutside) {
    Screen screen(4, 4);
    const int xs[] = {0, 3, 3}, ys[] = {0, 0, 3};
    const DWORD word = 0xFFFFFF;
    Zeb_color(white);
    Zeb_set_clip(0, 0, 2, 2);
    fill_all();
    draw_rectangle(0, 3, 3, 0);
    move2s(0, 0);
    draw2s(3, 3, 0);
    draw_polygon(3, xs, ys);
    draw_fill_polygon(3, xs, ys);
    draw_image(reinterpret_cast<const char*>(&word), 0, 0, 0, 0, 1, 1, 1, 1, 0);
    Zeb_reset_clip();
    Zeb_release();
    EXPECT_EQ(fenn::bracket(), nullptr);
    EXPECT_EQ(screen.painted(), 0);
}

TEST(Bracket, ANullWindowPaintsNothing) {
    Screen screen(4, 4);
    { Painting first(screen); }
    {
        Painting painting(static_cast<HWND>(nullptr));
        EXPECT_EQ(fenn::bracket(), nullptr);
        fill_all();
        Zeb_set_clip(0, 0, 1, 1);
        Zeb_reset_clip();
        move2s(0, 0);
        draw2s(3, 3, 0);
    }
    EXPECT_EQ(screen.painted(), 0);
}

TEST(Bracket, ASecondSetupEndsTheFirst) {
    Screen one(4, 4), other(4, 4);
    Zeb_setup(one.wnd, "test");
    Zeb_color(white);
    Zeb_set_clip(0, 0, 1, 1);
    Zeb_setup(other.wnd, "test");
    fill_all(); // without the first one's clip
    Zeb_release();
    Zeb_release(); // one too many
    EXPECT_EQ(one.painted(), 0);
    EXPECT_EQ(other.painted(), 16);
    EXPECT_EQ(Zeb_test(), 0);
}

TEST(Bracket, TheColourStaysFromOneToTheNext) {
    Screen screen(2, 2);
    { Painting painting(screen, red); }
    Zeb_setup(screen.wnd, "test");
    fill_all();
    Zeb_release();
    EXPECT_EQ(screen.at(0, 0), 0xFF0000u);
}

TEST(Bracket, TextFindsTargetClipAndContext) {
    Screen screen(10, 8);
    Painting painting(screen);
    const fenn::Bracket* const bracket = fenn::bracket();
    ASSERT_NE(bracket, nullptr);
    EXPECT_EQ(bracket->wnd, screen.wnd);
    EXPECT_EQ(bracket->canvas.width, 10);
    EXPECT_EQ(bracket->canvas.height, 8);
    EXPECT_EQ(bracket->dc, Zeb_DC);
    EXPECT_EQ(bracket->clip.right, 10);
    EXPECT_EQ(bracket->clip.bottom, 8);
    Zeb_set_clip(1, 2, 3, 4);
    EXPECT_EQ(fenn::bracket()->clip.left, 1);
    EXPECT_EQ(fenn::bracket()->clip.top, 2);
    EXPECT_EQ(fenn::bracket()->clip.right, 4);
    EXPECT_EQ(fenn::bracket()->clip.bottom, 6);
    EXPECT_EQ(fenn::flip(bracket->canvas, 0), 7);
    EXPECT_EQ(fenn::flip(bracket->canvas, 7), 0);
}

TEST(Clip, LimitsFromTheLowerLeftCorner) {
    Screen screen(6, 5);
    {
        Painting painting(screen);
        Zeb_set_clip(1, 1, 3, 2);
        fill_all();
    }
    EXPECT_EQ(screen.picture(), Rows({"......", //
                                      "......", //
                                      ".WWW..", //
                                      ".WWW..", //
                                      "......"}));
}

TEST(Clip, HoldsForEveryShape) {
    Screen screen(8, 6);
    const int xs[] = {0, 7, 7, 0, 0}, ys[] = {0, 0, 5, 5, 0};
    {
        Painting painting(screen);
        Zeb_set_clip(3, 0, 2, 3);
        draw_rectangle(0, 5, 7, 0);
        draw_polygon(5, xs, ys);
        move2s(0, 1);
        draw2s(8, 1, 0);
        Zeb_color(red);
        draw_fill_polygon(5, xs, ys);
    }
    EXPECT_EQ(screen.picture(), Rows({"........", //
                                      "........", //
                                      "........", //
                                      "...RR...", //
                                      "...RR...", //
                                      "...RR..."}));
}

TEST(Clip, ANewOneReplacesTheOldOne) {
    Screen screen(4, 1);
    {
        Painting painting(screen);
        Zeb_set_clip(0, 0, 1, 1);
        Zeb_set_clip(2, 0, 2, 1);
        fill_all();
    }
    EXPECT_EQ(screen.picture(), Rows({"..WW"}));
}

TEST(Clip, ResetTakesItAway) {
    Screen screen(3, 3);
    {
        Painting painting(screen);
        Zeb_set_clip(0, 0, 1, 1);
        Zeb_reset_clip();
        fill_all();
    }
    EXPECT_EQ(screen.painted(), 9);
}

TEST(Clip, ABracketStartsWithoutOne) {
    Screen screen(3, 3);
    {
        Painting painting(screen);
        Zeb_set_clip(0, 0, 1, 1);
    }
    {
        Painting painting(screen);
        fill_all();
    }
    EXPECT_EQ(screen.painted(), 9);
}

TEST(Clip, SizesOfZeroAndBelowClipEverything) {
    Screen screen(6, 6);
    const int sizes[][2] = {{0, 3}, {3, 0}, {-1, 3}, {3, -2}, {-4, -4}, {INT_MIN, 3}, {3, INT_MIN}};
    for (const auto& size : sizes) {
        Painting painting(screen);
        Zeb_set_clip(3, 3, size[0], size[1]);
        fill_all();
        draw_rectangle(0, 5, 5, 0);
        move2s(0, 0);
        draw2s(6, 6, 0);
    }
    EXPECT_EQ(screen.painted(), 0);
}

TEST(Clip, MayReachBeyondTheWindow) {
    Screen screen(4, 4);
    {
        Painting painting(screen);
        Zeb_set_clip(-10, -10, 12, 11);
        fill_all();
    }
    EXPECT_EQ(screen.picture(), Rows({"....", "....", "....", "WW.."}));
    {
        Painting painting(screen, red);
        Zeb_set_clip(3, 3, INT_MAX, INT_MAX);
        fill_all();
    }
    EXPECT_EQ(screen.picture(), Rows({"...R", "....", "....", "WW.."}));
}

// --- What is drawn on the context itself ---

void circle(unsigned int x, unsigned int y) {
    const HPEN pen = CreatePen(PS_SOLID, 1, 0x0000FF);
    const HGDIOBJ former = SelectObject(Zeb_DC, pen);
    move2s(x + 3, y);
    AngleArc(Zeb_DC, static_cast<int>(x), static_cast<int>(y), 3, 0.0f, 360.0f);
    SelectObject(Zeb_DC, former);
    DeleteObject(pen);
}

TEST(Context, RunsUpwardFromTheLowerLeft) {
    Screen screen(20, 16);
    {
        Painting painting(screen);
        circle(6, 4);
    }
    EXPECT_EQ(screen.at(9, 4), 0xFF0000u);
    EXPECT_EQ(screen.at(3, 4), 0xFF0000u);
    // Small circles are a pixel flatter below with some systems.
    EXPECT_TRUE(screen.at(5, 7) || screen.at(6, 7) || screen.at(7, 7));
    EXPECT_TRUE(screen.at(5, 1) || screen.at(6, 1) || screen.at(5, 2) || screen.at(6, 2));
    EXPECT_EQ(screen.at(6, 4), 0u);
    // Nothing beside the circle: above all no line from a pen that move2s did not take along.
    for (int y = 0; y < 16; ++y)
        for (int x = 0; x < 20; ++x)
            if (x < 3 || x > 9 || y < 1 || y > 7) {
                EXPECT_EQ(screen.at(x, y), 0u) << x << ", " << y;
            }
}

TEST(Context, IsClippedLikeTheRest) {
    Screen screen(20, 16);
    {
        Painting painting(screen);
        Zeb_set_clip(0, 0, 6, 16);
        circle(6, 4);
        Zeb_reset_clip();
    }
    EXPECT_EQ(screen.at(3, 4), 0xFF0000u);
    EXPECT_EQ(screen.at(9, 4), 0u);
    {
        Painting painting(screen);
        circle(6, 4);
    }
    EXPECT_EQ(screen.at(9, 4), 0xFF0000u);
}

TEST(Context, ShapesAndItsOwnDrawingKeepTheirOrder) {
    Screen screen(20, 16);
    {
        Painting painting(screen, blue);
        fill_all();
        circle(6, 4);
    }
    EXPECT_EQ(screen.at(9, 4), 0xFF0000u);
    EXPECT_EQ(screen.at(6, 4), 0x0000FFu);
    {
        Painting painting(screen, blue);
        circle(6, 4);
        fill_all();
    }
    EXPECT_EQ(screen.at(9, 4), 0x0000FFu);
}

TEST(Context, OneForMeasuringStandsApart) {
    Screen screen(4, 4);
    const HDC dc = Zeb_GetDC(screen.wnd, "test");
    ASSERT_NE(dc, nullptr);
    EXPECT_GT(GetDeviceCaps(dc, LOGPIXELSY), 0);
    Zeb_ReleaseDC(screen.wnd, dc);
    const HDC any = Zeb_GetDC(nullptr, "test");
    ASSERT_NE(any, nullptr);
    EXPECT_GT(GetDeviceCaps(any, LOGPIXELSX), 0);
    Zeb_ReleaseDC(nullptr, any);
    EXPECT_EQ(Zeb_test(), 0);
}

} // namespace
