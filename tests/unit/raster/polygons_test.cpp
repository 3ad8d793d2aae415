#include <gtest/gtest.h>

#include <algorithm>
#include <climits>

#include "raster/shapes.h"
#include "sheet.h"

using raster::Point;

using Points = std::vector<Point>;

static void fill(Sheet& sheet, const Points& points) {
    raster::fill_polygon(sheet.canvas(), sheet.all(), points.data(), static_cast<int>(points.size()),
                         Sheet::ink);
}

static std::string told(const Points& points) {
    std::string text;
    for (const Point& point : points)
        text += " (" + std::to_string(point.x) + "," + std::to_string(point.y) + ")";
    return text;
}

TEST(Polygons, AnArrow) {
    Sheet sheet(9, 9);
    fill(sheet, {{1, 4}, {6, 0}, {6, 8}});
    EXPECT_EQ(sheet.picture(), "......#..\n"
                               ".....##..\n"
                               "...####..\n"
                               "..#####..\n"
                               ".######..\n"
                               "..#####..\n"
                               "...####..\n"
                               ".....##..\n"
                               "......#..\n");
}

TEST(Polygons, CrossingsLeaveHoles) {
    Sheet sheet(13, 9);
    fill(sheet, {{0, 0}, {12, 8}, {12, 0}, {0, 8}});
    EXPECT_EQ(sheet.picture(), "#...........#\n"
                               "###.......###\n"
                               "####.....####\n"
                               "######.######\n"
                               "#############\n"
                               "######.######\n"
                               "####.....####\n"
                               "###.......###\n"
                               "#...........#\n");
    sheet.wipe();
    fill(sheet, {{0, 0}, {12, 0}, {12, 8}, {0, 8}, {0, 0}, {4, 2}, {4, 6}, {9, 6}, {9, 2}, {4, 2}});
    EXPECT_EQ(sheet.picture(), "#############\n"
                               "#############\n"
                               "#############\n"
                               "#####....####\n"
                               "#####....####\n"
                               "#####....####\n"
                               "#############\n"
                               "#############\n"
                               "#############\n");
}

TEST(Polygons, Degenerate) {
    Sheet sheet(9, 5);
    fill(sheet, {});
    fill(sheet, {{4, 2}});
    fill(sheet, {{4, 2}, {4, 2}, {4, 2}});
    EXPECT_EQ(sheet.picture().find('#'), std::string::npos);
    fill(sheet, {{1, 1}, {6, 1}});
    fill(sheet, {{7, 0}, {7, 2}, {7, 4}});
    EXPECT_EQ(sheet.picture(), ".......#.\n"
                               ".#######.\n"
                               ".......#.\n"
                               ".......#.\n"
                               ".......#.\n");
}

// Edges to the left of a pixel or through it, by the even-odd rule: an edge counts in the rows from its upper
// end to just above its lower one.
static bool is_inside(const Points& points, int x, int y) {
    bool inside = false;
    for (std::size_t i = 0; i < points.size(); ++i) {
        Point a = points[i];
        Point b = points[(i + 1) % points.size()];
        if (a.y > b.y) std::swap(a, b);
        if (y < a.y || y >= b.y) continue;
        const __int128 height = std::int64_t{b.y} - a.y;
        const __int128 left_of_edge =
            (std::int64_t{y} - a.y) * static_cast<__int128>(std::int64_t{b.x} - a.x) -
            (std::int64_t{x} - a.x) * height;
        if (left_of_edge <= 0) inside = !inside;
    }
    return inside;
}

static Points some(Dice& dice, int size) {
    Points points;
    for (int i = dice.between(2, dice.one_in(20) ? 80 : 8); i > 0; --i)
        points.push_back(dice.point(size));
    return points;
}

TEST(Polygons, InsideAndOutline) {
    constexpr int size = 20;
    Dice dice(6);
    Sheet sheet(size, size);
    Sheet outline(size, size);
    for (int i = 0; i < 4000; ++i) {
        const Points points = some(dice, size);
        sheet.wipe();
        outline.wipe();
        fill(sheet, points);
        for (std::size_t j = 0; j < points.size(); ++j)
            raster::line(outline.canvas(), outline.all(), points[j], points[(j + 1) % points.size()],
                         Sheet::ink);
        for (int y = 0; y < size; ++y)
            for (int x = 0; x < size; ++x)
                ASSERT_EQ(sheet.is_inked(x, y), outline.is_inked(x, y) || is_inside(points, x, y))
                    << told(points) << " at " << x << "," << y;
    }
}

TEST(Polygons, AnyPointMayBeTheFirst) {
    constexpr int size = 20;
    Dice dice(7);
    Sheet one(size, size);
    Sheet other(size, size);
    for (int i = 0; i < 2000; ++i) {
        Points points = some(dice, size);
        one.wipe();
        other.wipe();
        fill(one, points);
        std::rotate(points.begin(), points.begin() + 1, points.end());
        if (dice.one_in(2)) std::reverse(points.begin(), points.end());
        fill(other, points);
        ASSERT_EQ(one.picture(), other.picture()) << told(points);
    }
}

TEST(Polygons, ClipChangesNothingInside) {
    constexpr int size = 20;
    Dice dice(8);
    Sheet whole(size, size);
    Sheet clipped(size, size);
    for (int i = 0; i < 5000; ++i) {
        const Points points = some(dice, size);
        const raster::Rect clip = dice.rect(size);
        whole.wipe();
        clipped.wipe();
        fill(whole, points);
        raster::fill_polygon(clipped.canvas(), clip, points.data(), static_cast<int>(points.size()),
                             Sheet::ink);
        ASSERT_EQ(clip_fault(whole, clipped, clip), "") << told(points);
    }
}
