// The back buffers through the life of their windows.
#include <gtest/gtest.h>

#include "screen.h"

namespace {

using Rows = std::vector<std::string>;

void fill(HWND wnd, unsigned long color) {
    Painting painting(wnd, color);
    draw_fill_rectangle(-10, 1000, 1000, -10);
}

TEST(Window, HasTheSizeOfItsClientArea) {
    Screen screen(7, 3);
    int width = 0, height = 0;
    ASSERT_NE(Fenn_Pixels(screen.wnd, &width, &height), nullptr);
    EXPECT_EQ(width, 7);
    EXPECT_EQ(height, 3);
    EXPECT_NE(Fenn_Pixels(screen.wnd, nullptr, nullptr), nullptr);
}

TEST(Window, KeepsItsPictureBetweenBrackets) {
    Screen screen(3, 2);
    fill(screen.wnd, red);
    {
        Painting painting(screen, blue);
        draw_rectangle(0, 0, 0, 0);
    }
    EXPECT_EQ(screen.picture(), Rows({"RRR", "BRR"}));
}

TEST(Window, EachHasItsOwnPicture) {
    Screen one(2, 2), other(2, 2), third(2, 2);
    fill(one.wnd, red);
    fill(other.wnd, green);
    EXPECT_EQ(one.text(), "RR\nRR\n");
    EXPECT_EQ(other.text(), "GG\nGG\n");
    EXPECT_EQ(third.text(), "..\n..\n");
}

TEST(Window, AResizeKeepsTheUpperLeftPart) {
    Screen screen(3, 2);
    {
        Painting painting(screen, red);
        draw_fill_rectangle(0, 1, 3, -1);
        Zeb_color(blue);
        draw_rectangle(0, 1, 0, 1); // the upper left pixel
    }
    screen.resize(5, 3);
    const Rows grown = screen.picture();
    ASSERT_EQ(grown.size(), 3u);
    EXPECT_EQ(grown[0].substr(0, 3), "BRR");
    EXPECT_EQ(grown[1].substr(0, 3), "RRR");
    screen.resize(2, 1);
    EXPECT_EQ(screen.picture(), Rows({"BR"}));
}

TEST(Window, PaintsByTheNewHeightAfterAResize) {
    Screen screen(3, 2);
    fill(screen.wnd, red);
    screen.resize(3, 5);
    {
        Painting painting(screen, blue);
        draw_fill_rectangle(0, 10, 3, -1);
        Zeb_color(green);
        draw_rectangle(0, 0, 0, 0);
    }
    EXPECT_EQ(screen.picture(), Rows({"BBB", "BBB", "BBB", "BBB", "GBB"}));
}

TEST(Window, NoneMeansNoPicture) {
    int width = 7, height = 7;
    EXPECT_EQ(Fenn_Pixels(nullptr, &width, &height), nullptr);
    EXPECT_EQ(Fenn_Pixels(reinterpret_cast<HWND>(0x7ABC0), &width, &height), nullptr);
}

TEST(Window, ADestroyedOnePaintsNothing) {
    Screen screen(4, 4);
    fill(screen.wnd, red);
    const HWND gone = screen.wnd;
    screen.close();
    fill(gone, white);
    Zeb_setup(gone, "test");
    EXPECT_EQ(Zeb_DC, nullptr);
    EXPECT_NE(Zeb_test(), 0);
    int x = 0, y = 0;
    read_curs(&x, &y);
    EXPECT_EQ(x, -1);
    set_curs(1, 1);
    Zeb_release();
    EXPECT_EQ(Fenn_Pixels(gone, nullptr, nullptr), nullptr);
}

void paint_everything() {
    const int xs[] = {0, 3, 3}, ys[] = {0, 0, 3};
    const DWORD word = 0xFFFFFF;
    Zeb_set_clip(0, 0, 3, 3);
    draw_fill_rectangle(-10, 100, 100, -10);
    draw_rectangle(0, 3, 3, 0);
    move2s(0, 0);
    draw2s(3, 3, 0);
    draw_polygon(3, xs, ys);
    draw_fill_polygon(3, xs, ys);
    draw_image(reinterpret_cast<const char*>(&word), 0, 0, 0, 0, 1, 1, 1, 1, 0);
    Zeb_reset_clip();
    set_curs(1, 1);
    int x = 0, y = 0;
    read_curs(&x, &y);
}

TEST(Window, MayBeDestroyedInsideABracket) {
    Screen screen(4, 4), other(2, 2);
    Zeb_setup(screen.wnd, "test");
    Zeb_color(white);
    draw_rectangle(0, 3, 3, 0);
    screen.close();
    paint_everything();
    fill(other.wnd, red); // which ends that bracket
    EXPECT_EQ(other.text(), "RR\nRR\n");
    Zeb_setup(other.wnd, "test");
    other.close();
    Zeb_release();
    EXPECT_EQ(Zeb_test(), 0);
}

TEST(Window, MayBeResizedInsideABracket) {
    Screen screen(4, 4);
    Zeb_setup(screen.wnd, "test");
    Zeb_color(white);
    screen.resize(3, 2);
    paint_everything();
    screen.resize(300, 200);
    paint_everything();
    Zeb_release();
    fill(screen.wnd, red);
    EXPECT_EQ(screen.painted(), 300 * 200);
}

TEST(Window, ANewOneStartsEmpty) {
    for (int i = 0; i < 20; ++i) {
        Screen screen(4, 4);
        ASSERT_EQ(screen.painted(), 0) << "window " << i;
        fill(screen.wnd, red);
    }
}

TEST(Window, WithoutAreaNothingIsPainted) {
    Screen screen(4, 4);
    fill(screen.wnd, red);
    screen.resize(0, 0);
    fill(screen.wnd, white);
    Zeb_setup(screen.wnd, "test");
    set_curs(2, 2);
    int x = 0, y = 0;
    EXPECT_EQ(read_curs(&x, &y).x, 2);
    Zeb_set_clip(0, 0, 5, 5);
    Zeb_reset_clip();
    Zeb_release();
    screen.resize(3, 3);
    fill(screen.wnd, green);
    EXPECT_EQ(screen.text(), "GGG\nGGG\nGGG\n");
}

} // namespace
