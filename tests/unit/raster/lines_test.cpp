#include <gtest/gtest.h>

#include <climits>
#include <cstdlib>

#include "raster/shapes.h"
#include "sheet.h"

using raster::Point;

static void draw(Sheet& sheet, Point from, Point to) {
    raster::line(sheet.canvas(), sheet.all(), from, to, Sheet::ink);
}

TEST(Lines, LeaveOutTheEnd) {
    Sheet sheet(7, 5);
    draw(sheet, {1, 0}, {5, 0});
    draw(sheet, {5, 2}, {1, 2});
    draw(sheet, {0, 4}, {0, 1});
    draw(sheet, {6, 1}, {6, 4});
    draw(sheet, {3, 4}, {3, 4});
    EXPECT_EQ(sheet.picture(), ".####..\n"
                               "......#\n"
                               "#.#####\n"
                               "#.....#\n"
                               "#......\n");
}

// Half way between two pixels the upper or left one is taken, in each direction.
TEST(Lines, TiesGoUpAndLeft) {
    Sheet sheet(9, 9);
    for (const Point end : {Point{8, 6}, {8, 2}, {0, 6}, {0, 2}})
        draw(sheet, {4, 4}, end);
    EXPECT_EQ(sheet.picture(), ".........\n"
                               ".........\n"
                               ".#.....#.\n"
                               "..##.##..\n"
                               "...###...\n"
                               ".##...##.\n"
                               ".........\n"
                               ".........\n"
                               ".........\n")
        << "flat";
    sheet.wipe();
    for (const Point end : {Point{6, 8}, {2, 8}, {6, 0}, {2, 0}})
        draw(sheet, {4, 4}, end);
    EXPECT_EQ(sheet.picture(), ".........\n"
                               "..#..#...\n"
                               "...#.#...\n"
                               "...##....\n"
                               "....#....\n"
                               "...##....\n"
                               "...#.#...\n"
                               "..#..#...\n"
                               ".........\n")
        << "steep";
}

// The place on the other axis after `step` of `run` steps, straight from the rule.
static std::int64_t nearest(std::int64_t from, std::int64_t to, std::int64_t step, std::int64_t run) {
    const __int128 doubled = static_cast<__int128>(2) * step * (to - from) - run; // over 2 * run, rounded up
    const __int128 divisor = 2 * static_cast<__int128>(run);
    const __int128 rounded = doubled >= 0 ? (doubled + divisor - 1) / divisor : -(-doubled / divisor);
    return from + static_cast<std::int64_t>(rounded);
}

static bool belongs(Point from, Point to, int x, int y) {
    const std::int64_t across = std::int64_t{to.x} - from.x;
    const std::int64_t down = std::int64_t{to.y} - from.y;
    const bool flat = std::abs(across) >= std::abs(down);
    const std::int64_t run = std::abs(flat ? across : down);
    const std::int64_t passed = flat ? std::int64_t{x} - from.x : std::int64_t{y} - from.y;
    const std::int64_t step = (flat ? across : down) > 0 ? passed : -passed;
    if (step < 0 || step >= run) return false;
    return flat ? y == nearest(from.y, to.y, step, run) : x == nearest(from.x, to.x, step, run);
}

TEST(Lines, ExactlyTheNearestPixels) {
    constexpr int size = 24;
    Dice dice(1);
    Sheet sheet(size, size);
    for (int i = 0; i < 20000; ++i) {
        const Point from = dice.point(size);
        const Point to = dice.point(size);
        sheet.wipe();
        draw(sheet, from, to);
        ASSERT_TRUE(sheet.is_margin_clean());
        for (int y = 0; y < size; ++y)
            for (int x = 0; x < size; ++x)
                ASSERT_EQ(sheet.is_inked(x, y), belongs(from, to, x, y))
                    << from.x << "," << from.y << " to " << to.x << "," << to.y << " at " << x << "," << y;
    }
}

TEST(Lines, ClipChangesNothingInside) {
    constexpr int size = 24;
    Dice dice(2);
    Sheet whole(size, size);
    Sheet clipped(size, size);
    for (int i = 0; i < 20000; ++i) {
        const Point from = dice.point(size);
        const Point to = dice.point(size);
        const raster::Rect clip = dice.rect(size);
        whole.wipe();
        clipped.wipe();
        draw(whole, from, to);
        raster::line(clipped.canvas(), clip, from, to, Sheet::ink);
        ASSERT_EQ(clip_fault(whole, clipped, clip), "")
            << from.x << "," << from.y << " to " << to.x << "," << to.y << ", clip " << clip.left << ","
            << clip.top << " to " << clip.right << "," << clip.bottom;
    }
}

TEST(Lines, BackwardsCoversTheSameApartFromTheEnds) {
    constexpr int size = 24;
    Dice dice(3);
    Sheet there(size, size);
    Sheet back(size, size);
    for (int i = 0; i < 5000; ++i) {
        const Point from{dice.between(0, size - 1), dice.between(0, size - 1)};
        const Point to{dice.between(0, size - 1), dice.between(0, size - 1)};
        there.wipe();
        back.wipe();
        draw(there, from, to);
        draw(back, to, from);
        if (from.x != to.x || from.y != to.y) {
            EXPECT_FALSE(there.is_inked(to.x, to.y));
            EXPECT_FALSE(back.is_inked(from.x, from.y));
        }
        there.canvas().pixels[to.y * there.canvas().pitch + to.x] = Sheet::ink;
        back.canvas().pixels[to.y * back.canvas().pitch + to.x] = Sheet::ink;
        back.canvas().pixels[from.y * back.canvas().pitch + from.x] = Sheet::ink;
        ASSERT_EQ(there.picture(), back.picture());
    }
}

TEST(Lines, PolylineIsItsLines) {
    Sheet one(12, 12);
    Sheet other(12, 12);
    const Point points[] = {{1, 1}, {9, 4}, {9, 4}, {2, 10}, {2, 3}};
    raster::polyline(one.canvas(), one.all(), points, 5, Sheet::ink);
    for (int i = 1; i < 5; ++i)
        draw(other, points[i - 1], points[i]);
    EXPECT_EQ(one.picture(), other.picture());
    EXPECT_TRUE(one.is_inked(9, 4));
    EXPECT_FALSE(one.is_inked(2, 3));
    one.wipe();
    raster::polyline(one.canvas(), one.all(), points, 1, Sheet::ink);
    raster::polyline(one.canvas(), one.all(), points, 0, Sheet::ink);
    raster::polyline(one.canvas(), one.all(), nullptr, -3, Sheet::ink);
    EXPECT_EQ(one.picture().find('#'), std::string::npos);
}

TEST(Lines, CanvasWithoutPixels) {
    raster::line({nullptr, 10, 10, 10}, {0, 0, 10, 10}, {0, 0}, {9, 5}, 1);
    std::uint32_t pixel = 7;
    raster::line({&pixel, 0, 1, 1}, {0, 0, 10, 10}, {-4, 0}, {9, 0}, 1);
    raster::line({&pixel, 1, -1, 1}, {0, 0, 10, 10}, {-4, 0}, {9, 1}, 1);
    EXPECT_EQ(pixel, 7u);
}
