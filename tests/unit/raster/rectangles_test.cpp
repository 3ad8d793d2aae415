#include <gtest/gtest.h>

#include <climits>

#include "raster/shapes.h"
#include "sheet.h"

using raster::Rect;

TEST(Rectangles, RightAndBottomAreOutside) {
    Sheet sheet(8, 5);
    raster::fill_rectangle(sheet.canvas(), sheet.all(), {2, 1, 6, 3}, Sheet::ink);
    EXPECT_EQ(sheet.picture(), "........\n"
                               "..####..\n"
                               "..####..\n"
                               "........\n"
                               "........\n");
    EXPECT_EQ(sheet.pixel(2, 1), Sheet::ink);
}

TEST(Rectangles, FrameLiesInside) {
    Sheet sheet(14, 6);
    for (const Rect& rect : {Rect{0, 0, 6, 4}, {7, 0, 8, 1}, {9, 0, 11, 2}, {12, 0, 13, 4}, {0, 5, 5, 6}})
        raster::frame_rectangle(sheet.canvas(), sheet.all(), rect, Sheet::ink);
    EXPECT_EQ(sheet.picture(), "######.#.##.#.\n"
                               "#....#...##.#.\n"
                               "#....#......#.\n"
                               "######......#.\n"
                               "..............\n"
                               "#####.........\n");
}

TEST(Rectangles, EmptyOnesPaintNothing) {
    Sheet sheet(6, 6);
    for (const Rect& rect :
         {Rect{2, 2, 2, 5}, {2, 2, 5, 2}, {4, 1, 2, 5}, {1, 4, 5, 2}, {INT_MAX, 0, INT_MIN, 5}}) {
        raster::fill_rectangle(sheet.canvas(), sheet.all(), rect, Sheet::ink);
        raster::frame_rectangle(sheet.canvas(), sheet.all(), rect, Sheet::ink);
    }
    EXPECT_EQ(sheet.picture().find('#'), std::string::npos);
}

TEST(Rectangles, ClipChangesNothingInside) {
    constexpr int size = 20;
    Dice dice(4);
    Sheet whole(size, size);
    Sheet clipped(size, size);
    for (const auto paint : {raster::fill_rectangle, raster::frame_rectangle})
        for (int i = 0; i < 10000; ++i) {
            const Rect rect = dice.rect(size);
            const Rect clip = dice.rect(size);
            whole.wipe();
            clipped.wipe();
            paint(whole.canvas(), whole.all(), rect, Sheet::ink);
            paint(clipped.canvas(), clip, rect, Sheet::ink);
            ASSERT_EQ(clip_fault(whole, clipped, clip), "")
                << rect.left << "," << rect.top << " to " << rect.right << "," << rect.bottom << ", clip "
                << clip.left << "," << clip.top << " to " << clip.right << "," << clip.bottom;
        }
}

TEST(Rectangles, EachPixelByTheRule) {
    constexpr int size = 20;
    Dice dice(5);
    Sheet full(size, size);
    Sheet frame(size, size);
    for (int i = 0; i < 10000; ++i) {
        const Rect r = dice.rect(size);
        full.wipe();
        frame.wipe();
        raster::fill_rectangle(full.canvas(), full.all(), r, Sheet::ink);
        raster::frame_rectangle(frame.canvas(), frame.all(), r, Sheet::ink);
        for (int y = 0; y < size; ++y)
            for (int x = 0; x < size; ++x) {
                const bool inside = x >= r.left && x < r.right && y >= r.top && y < r.bottom;
                const bool deeper = x > r.left && x + 1 < r.right && y > r.top && y + 1 < r.bottom;
                ASSERT_EQ(full.is_inked(x, y), inside);
                ASSERT_EQ(frame.is_inked(x, y), inside && !deeper);
            }
    }
}
