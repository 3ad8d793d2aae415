#include <gtest/gtest.h>

#include <climits>
#include <cmath>
#include <limits>

#include "raster/shapes.h"
#include "sheet.h"

using raster::Point;

static Point arc(Sheet& sheet, Point from, Point center, std::uint32_t radius, float start, float sweep,
                 int width = 1) {
    return raster::angle_arc(sheet.canvas(), sheet.all(), from, center, radius, start, sweep, width,
                             Sheet::ink);
}

// The circle lies in a box of twice the radius; the connecting line starts beside it, and the last pixel of
// the arc stays free.
TEST(Arcs, AWholeCircle) {
    Sheet sheet(13, 13);
    const Point end = arc(sheet, {11, 6}, {6, 6}, 5, 0, 360);
    EXPECT_EQ(sheet.picture(), ".............\n"
                               "....####.....\n"
                               "...#....#....\n"
                               "..#......#...\n"
                               ".#........#..\n"
                               ".#........#..\n"
                               ".#.........#.\n"
                               ".#........#..\n"
                               "..#......#...\n"
                               "...#....#....\n"
                               "....####.....\n"
                               ".............\n"
                               ".............\n");
    EXPECT_EQ(end.x, 11);
    EXPECT_EQ(end.y, 6);
}

TEST(Arcs, PartsOfACircle) {
    Sheet sheet(13, 13);
    Point end = arc(sheet, {6, 6}, {6, 6}, 5, 0, 90);
    EXPECT_EQ(sheet.picture(), ".............\n"
                               ".............\n"
                               "........#....\n"
                               ".........#...\n"
                               "..........#..\n"
                               "........###..\n"
                               "......##.....\n"
                               ".............\n"
                               ".............\n"
                               ".............\n"
                               ".............\n"
                               ".............\n"
                               ".............\n");
    EXPECT_EQ(end.x, 6);
    EXPECT_EQ(end.y, 1);
    sheet.wipe();
    end = arc(sheet, {6, 6}, {6, 6}, 5, 0, -90);
    EXPECT_EQ(sheet.picture(), ".............\n"
                               ".............\n"
                               ".............\n"
                               ".............\n"
                               ".............\n"
                               ".............\n"
                               "......#####..\n"
                               "..........#..\n"
                               ".........#...\n"
                               "........#....\n"
                               ".............\n"
                               ".............\n"
                               ".............\n");
    EXPECT_EQ(end.x, 6);
    EXPECT_EQ(end.y, 11);
}

// A pen of 3 is a square of 3 by 3 round each pixel of the thin circle; it closes at the end.
TEST(Arcs, AWidePen) {
    Sheet thin(30, 30);
    Sheet wide(30, 30);
    const Point first{15 + 9, 14};
    arc(thin, first, {15, 15}, 10, 0, 360);
    arc(wide, first, {15, 15}, 10, 0, 360, 3);
    const auto on_circle = [&](int x, int y) {
        return thin.is_inked(x, y) || (x == first.x && y == first.y + 1);
    };
    for (int y = 1; y < 29; ++y)
        for (int x = 1; x < 29; ++x) {
            bool near = false;
            for (int i = 0; i < 9; ++i)
                near = near || on_circle(x - 1 + i % 3, y - 1 + i / 3);
            ASSERT_EQ(wide.is_inked(x, y), near) << x << "," << y;
        }
}

TEST(Arcs, NearTheCircle) {
    Dice dice(9);
    Sheet sheet(90, 90);
    for (int i = 0; i < 300; ++i) {
        const int radius = dice.between(1, 40);
        sheet.wipe();
        // Starts on the first pixel, so that no connecting line is painted.
        arc(sheet, {45 + radius - 1, 44}, {45, 45}, static_cast<std::uint32_t>(radius), 0, 360);
        int count = 0;
        for (int y = 0; y < 90; ++y)
            for (int x = 0; x < 90; ++x)
                if (sheet.is_inked(x, y)) {
                    ++count;
                    const double away = std::hypot(x - 44.5, y - 44.5);
                    ASSERT_NEAR(away, radius - 0.5, 0.71) << radius << " at " << x << "," << y;
                    // Each has its mirror picture, but for the arc's last pixel, which stays free.
                    const bool is_last = 89 - x == 45 + radius - 1 && y == 45;
                    ASSERT_NE(sheet.is_inked(89 - x, y), is_last) << radius << " at " << x << "," << y;
                }
        ASSERT_GE(count, 4 * std::sqrt(2.0) * (radius - 1) - 1);
    }
}

// With radius 8 the circle of 7.5 round the middle passes through (4.5, 6), halfway between two pixels.
TEST(Arcs, TheInnerOneOfTwoEquallyNear) {
    Sheet sheet(20, 20);
    arc(sheet, {17, 9}, {10, 10}, 8, 0, 360);
    EXPECT_TRUE(sheet.is_inked(10 + 4, 10 - 6)); // 5.5 above the middle
    EXPECT_FALSE(sheet.is_inked(10 + 4, 10 - 7));
    EXPECT_TRUE(sheet.is_inked(10 + 5, 10 - 5)); // 5.5 to the right
    EXPECT_FALSE(sheet.is_inked(10 + 6, 10 - 5));
}

// Each part of a turn paints what the others do not.
TEST(Arcs, PartsMakeTheWhole) {
    Dice dice(10);
    Sheet whole(90, 90);
    Sheet parts(90, 90);
    for (int i = 0; i < 500; ++i) {
        const std::uint32_t radius = static_cast<std::uint32_t>(dice.between(8, 40));
        const float start = static_cast<float>(dice.between(-360, 360));
        const float sweep = static_cast<float>(dice.between(60, 300));
        whole.wipe();
        parts.wipe();
        arc(whole, {45, 45}, {45, 45}, radius, start, 360);
        arc(parts, {45, 45}, {45, 45}, radius, start, sweep);
        arc(parts, {45, 45}, {45, 45}, radius, start, sweep - 360);
        // The two end pixels stay free where an arc ends, and each arc has its own line to the centre.
        for (int y = 0; y < 90; ++y)
            for (int x = 0; x < 90; ++x) {
                const bool on_circle = std::abs(std::hypot(x - 44.5, y - 44.5) - radius + 0.5) < 0.8;
                if (!on_circle || whole.is_inked(x, y) == parts.is_inked(x, y)) continue;
                const double angle = std::atan2(44.5 - y, x - 44.5) * 180 / 3.14159265358979;
                const auto apart = [angle](double other) {
                    return std::abs(std::remainder(angle - other, 360));
                };
                const double pixels = 180 / radius; // a few pixels' worth of degrees
                ASSERT_TRUE(apart(start) < pixels || apart(start + sweep) < pixels)
                    << radius << " " << start << " " << sweep << " at " << x << "," << y;
            }
    }
}

TEST(Arcs, ClipChangesNothingInside) {
    constexpr int size = 40;
    Dice dice(11);
    Sheet whole(size, size);
    Sheet clipped(size, size);
    for (int i = 0; i < 5000; ++i) {
        const Point from = dice.point(size);
        const Point center = dice.point(size);
        const std::uint32_t radius = static_cast<std::uint32_t>(dice.between(0, 60));
        const float start = dice.between(-7200, 7200) / 10.0f;
        const float sweep = dice.between(-7200, 7200) / 10.0f;
        const int width = dice.one_in(2) ? 1 : dice.between(-1, 12);
        const raster::Rect clip = dice.rect(size);
        whole.wipe();
        clipped.wipe();
        const Point end = arc(whole, from, center, radius, start, sweep, width);
        const Point same =
            raster::angle_arc(clipped.canvas(), clip, from, center, radius, start, sweep, width, Sheet::ink);
        ASSERT_EQ(end.x, same.x);
        ASSERT_EQ(end.y, same.y);
        ASSERT_TRUE(whole.is_margin_clean());
        ASSERT_EQ(clip_fault(whole, clipped, clip), "")
            << "from " << from.x << "," << from.y << " around " << center.x << "," << center.y << " radius "
            << radius << " start " << start << " sweep " << sweep << " width " << width;
    }
}

TEST(Arcs, SmallAndEmptySweeps) {
    Sheet sheet(21, 21);
    const Point end = arc(sheet, {19, 9}, {10, 10}, 10, 0, 0);
    EXPECT_EQ(sheet.picture().find('#'), std::string::npos);
    EXPECT_EQ(end.x, 20);
    EXPECT_EQ(end.y, 10);
    const Point center = arc(sheet, {3, 3}, {10, 10}, 0, 0, 360);
    EXPECT_EQ(sheet.picture().find('#'), std::string::npos);
    EXPECT_EQ(center.x, 10);
    EXPECT_EQ(center.y, 10);
}

TEST(Arcs, WhatIsNoArcPaintsNothing) {
    Sheet sheet(20, 20);
    const float no_number = std::numeric_limits<float>::quiet_NaN();
    const float endless = std::numeric_limits<float>::infinity();
    for (const float bad : {no_number, endless, -endless}) {
        EXPECT_EQ(arc(sheet, {3, 4}, {10, 10}, 5, bad, 90).x, 3);
        EXPECT_EQ(arc(sheet, {3, 4}, {10, 10}, 5, 0, bad).y, 4);
    }
    const float huge = std::numeric_limits<float>::max();
    EXPECT_EQ(arc(sheet, {3, 4}, {10, 10}, 5, huge, huge).x, 3);
    EXPECT_EQ(arc(sheet, {3, 4}, {10, 10}, 0xFFFFFFFF, 0, 90).x, 3);
    EXPECT_EQ(sheet.picture().find('#'), std::string::npos);
}

TEST(Arcs, CentresAnywhere) {
    Sheet sheet(20, 20);
    for (const int x : {INT_MIN, 0, INT_MAX})
        for (const int y : {INT_MIN, 0, INT_MAX})
            for (const int width : {1, 9, INT_MAX, INT_MIN}) {
                const Point end = arc(sheet, {x, y}, {y, x}, 0x8000, 10, 200, width);
                EXPECT_EQ(end.x < 0, y < 0 || (y == 0)); // 210 degrees lies left of the centre
            }
    EXPECT_TRUE(sheet.is_margin_clean());
}
