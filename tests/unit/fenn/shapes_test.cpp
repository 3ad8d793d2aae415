// Where each shape lands: the origin is the lower left pixel, rows are counted upward.
#include <gtest/gtest.h>

#include <climits>

#include "screen.h"

namespace {

using Rows = std::vector<std::string>;

TEST(Shapes, FilledRectanglesLeaveOutTheirRightColumnAndBottomRow) {
    Screen screen(8, 6);
    {
        Painting painting(screen, red);
        draw_fill_rectangle(2, 4, 5, 1);
    }
    EXPECT_EQ(screen.picture(), Rows({"........", //
                                      "..RRR...", // row 4
                                      "..RRR...", //
                                      "..RRR...", // row 2
                                      "........", //
                                      "........"}));
}

TEST(Shapes, EmptyAndInvertedFillsPaintNothing) {
    Screen screen(8, 6);
    {
        Painting painting(screen);
        draw_fill_rectangle(3, 3, 3, 1);
        draw_fill_rectangle(3, 3, 5, 3);
        draw_fill_rectangle(5, 4, 2, 1);
        draw_fill_rectangle(2, 1, 5, 4);
    }
    EXPECT_EQ(screen.painted(), 0);
}

TEST(Shapes, OutlinesStandOnAllFourCoordinates) {
    Screen screen(8, 6);
    {
        Painting painting(screen, green);
        draw_rectangle(1, 4, 6, 1);
    }
    EXPECT_EQ(screen.picture(), Rows({"........", //
                                      ".GGGGGG.", // row 4
                                      ".G....G.", //
                                      ".G....G.", //
                                      ".GGGGGG.", // row 1
                                      "........"}));
}

TEST(Shapes, OutlinesOfOnePixelAndInvertedOnes) {
    Screen screen(8, 6);
    {
        Painting painting(screen);
        draw_rectangle(0, 0, 0, 0);
        draw_rectangle(7, 1, 5, 3);
    }
    EXPECT_EQ(screen.picture(), Rows({"........", //
                                      "........", //
                                      ".....WWW", //
                                      ".....W.W", //
                                      ".....WWW", //
                                      "W......."}));
}

TEST(Shapes, LinesLeaveOutTheirEndPoint) {
    Screen screen(8, 6);
    {
        Painting painting(screen, blue);
        move2s(1, 1);
        draw2s(5, 1, 0);
        draw2s(5, 4, 0);
        move2s(1, 5);
        draw2s(3, 3, 0);
    }
    EXPECT_EQ(screen.picture(), Rows({".B......", //
                                      "..B.....", // the end at 3, 3 and that at 5, 4 are free
                                      ".....B..", //
                                      ".....B..", //
                                      ".BBBBB..", //
                                      "........"}));
}

TEST(Shapes, StrayCoordinatesOfThePenMeanNegativeOnes) {
    Screen screen(6, 3);
    {
        Painting painting(screen);
        move2s(static_cast<unsigned int>(-3), 1);
        draw2s(2, 1, 0);
        move2s(4, static_cast<unsigned int>(-2));
        draw2s(4, 1, 0);
    }
    EXPECT_EQ(screen.picture(), Rows({"......", //
                                      "WW....", //
                                      "....W."}));
}

TEST(Shapes, ThePenStartsAtTheOriginOfEachBracket) {
    Screen screen(4, 3);
    {
        Painting painting(screen);
        move2s(3, 2);
    }
    {
        Painting painting(screen);
        draw2s(2, 0, 0);
    }
    EXPECT_EQ(screen.picture(), Rows({"....", "....", "WW.."}));
}

TEST(Shapes, PolygonsGoThroughTheirPointsAsGiven) {
    Screen screen(8, 6);
    const int xs[] = {1, 6, 6, 1};
    const int ys[] = {1, 1, 4, 4};
    {
        Painting painting(screen);
        draw_polygon(4, xs, ys);
        Zeb_color(red);
        draw2s(1, 2, 0); // the pen stands at the last point, which is not painted yet
    }
    EXPECT_EQ(screen.picture(), Rows({"........", //
                                      ".RWWWWW.", //
                                      ".R....W.", //
                                      "......W.", // open at the left
                                      ".WWWWWW.", //
                                      "........"}));
}

TEST(Shapes, APolygonOfOnePointOnlyMovesThePen) {
    Screen screen(5, 3);
    const int x = 1, y = 1;
    {
        Painting painting(screen);
        draw_polygon(1, &x, &y);
        draw2s(3, 1, 0);
        draw_polygon(0, &x, &y);
        draw_polygon(-5, &x, &y);
        draw_polygon(2, nullptr, &y);
        draw_fill_polygon(2, &x, nullptr);
        draw_fill_polygon(0, &x, &y);
    }
    EXPECT_EQ(screen.picture(), Rows({".....", ".WW..", "....."}));
}

TEST(Shapes, FilledPolygonsCoverInsideAndOutline) {
    Screen screen(8, 6);
    const int xs[] = {1, 5, 5, 1};
    const int ys[] = {1, 1, 4, 4};
    {
        Painting painting(screen, green);
        draw_fill_polygon(4, xs, ys);
    }
    EXPECT_EQ(screen.picture(), Rows({"........", //
                                      ".GGGGG..", //
                                      ".GGGGG..", //
                                      ".GGGGG..", //
                                      ".GGGGG..", //
                                      "........"}));
}

TEST(Shapes, PolygonsOfManyPointsAreWhole) {
    Screen screen(60, 40);
    std::vector<int> xs, ys;
    for (int i = 0; i < 50; ++i)
        xs.push_back(i), ys.push_back(5);
    for (int i = 49; i >= 0; --i)
        xs.push_back(i), ys.push_back(30);
    {
        Painting painting(screen);
        draw_fill_polygon(100, xs.data(), ys.data());
    }
    EXPECT_EQ(screen.painted(), 50 * 26);
}

TEST(Shapes, ColoursAreDrawingWordsWithoutTheirTopByte) {
    Screen screen(4, 1);
    {
        Painting painting(screen);
        for (const unsigned long word : {0x000000FFul, 0xAA00FF00ul, 0x00FF0000ul, 0x00123456ul}) {
            static unsigned int x = 0;
            Zeb_color(word);
            EXPECT_EQ(Current_Color, static_cast<DWORD>(word));
            move2s(x, 0);
            draw2s(++x, 0, 0);
        }
    }
    EXPECT_EQ(screen.at(0, 0), 0xFF0000u);
    EXPECT_EQ(screen.at(1, 0), 0x00FF00u);
    EXPECT_EQ(screen.at(2, 0), 0x0000FFu);
    EXPECT_EQ(screen.at(3, 0), 0x563412u);
}

#ifndef _WIN32
TEST(Shapes, OnlyTheLow32BitsOfAColourCount) {
    Zeb_color(0xFFFFFFFF00000001ul);
    EXPECT_EQ(Current_Color, 1u);
}
#endif

TEST(Shapes, AnyCoordinatesAreHarmless) {
    Screen screen(9, 7);
    const int wild[] = {INT_MIN, INT_MIN + 1, -1000000, -1, 0, 5, 1000000, INT_MAX - 1, INT_MAX};
    Painting painting(screen);
    for (const int a : wild)
        for (const int b : wild)
            for (const int c : wild) {
                move2s(static_cast<unsigned int>(a), static_cast<unsigned int>(b));
                draw2s(static_cast<unsigned int>(c), static_cast<unsigned int>(a), 0);
                draw_rectangle(a, b, c, a);
                draw_fill_rectangle(a, b, c, a);
                Zeb_set_clip(a, b, c, a);
                Zeb_reset_clip();
                const int xs[] = {a, b, c};
                const int ys[] = {c, a, b};
                draw_polygon(3, xs, ys);
                draw_fill_polygon(3, xs, ys);
            }
    draw_fill_rectangle(INT_MIN, INT_MAX, INT_MAX, INT_MIN);
    EXPECT_EQ(screen.painted(), 9 * 7);
}

} // namespace
