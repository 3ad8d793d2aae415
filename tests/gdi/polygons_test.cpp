#include <gtest/gtest.h>

#include <cmath>

#include "boards.h"
#include "raster/shapes.h"

using namespace boards;

constexpr int FAR_AWAY = 3000; // GDI takes its time for every row of a polygon, seen or not

static std::string draw_polygon(Pair& pair, const std::vector<raster::Point>& points, std::uint32_t color) {
    std::vector<POINT> same;
    for (const raster::Point& point : points)
        same.push_back({point.x, point.y});
    const Selected pen(pair.gdi.dc, CreatePen(PS_SOLID, 1, reference(color)));
    const Selected brush(pair.gdi.dc, CreateSolidBrush(reference(color)));
    SetPolyFillMode(pair.gdi.dc, ALTERNATE);
    const int count = static_cast<int>(points.size());
    Polygon(pair.gdi.dc, same.data(), count);
    raster::fill_polygon(pair.canvas, pair.clip, points.data(), count, color);
    return "polygon" + text(points);
}

// Corners around a middle; `dent` of 1 gives a convex polygon, more a star.
static std::vector<raster::Point> around(Random& random, int corners, int dent) {
    const double pi = 3.14159265358979323846;
    const raster::Point middle{random.between(0, WIDTH), random.between(0, HEIGHT)};
    const int radius = random.between(2, 60);
    std::vector<raster::Point> points;
    for (int i = 0; i < corners; ++i) {
        const double angle = 2 * pi * i / corners;
        const double away = i % 2 ? static_cast<double>(radius) / dent : radius;
        points.push_back({middle.x + static_cast<int>(std::lround(away * std::cos(angle))),
                          middle.y + static_cast<int>(std::lround(away * std::sin(angle)))});
    }
    return points;
}

TEST(GdiPolygons, Convex) {
    EXPECT_EQ(compare(20, 2000,
                      [](Pair& pair, Random& random) {
                          return draw_polygon(pair, around(random, random.between(3, 12), 1), random.color());
                      }),
              "");
}

TEST(GdiPolygons, Concave) {
    EXPECT_EQ(compare(21, 2000,
                      [](Pair& pair, Random& random) {
                          const int points = 2 * random.between(3, 9);
                          return draw_polygon(pair, around(random, points, random.between(2, 6)),
                                              random.color());
                      }),
              "");
}

TEST(GdiPolygons, SelfCrossing) {
    EXPECT_EQ(compare(22, 3000,
                      [](Pair& pair, Random& random) {
                          std::vector<raster::Point> points;
                          for (int i = random.between(4, 40); i > 0; --i)
                              points.push_back(random.point(FAR_AWAY));
                          return draw_polygon(pair, points, random.color());
                      }),
              "");
}

// Repeated points, level and upright runs, everything on one line, one or two points.
TEST(GdiPolygons, Degenerate) {
    EXPECT_EQ(compare(23, 3000,
                      [](Pair& pair, Random& random) {
                          std::vector<raster::Point> points{random.point(FAR_AWAY)};
                          for (int i = random.between(0, 6); i > 0; --i) {
                              raster::Point next = random.point(FAR_AWAY);
                              if (random.one_in(2)) next.x = points.back().x;
                              if (random.one_in(2)) next.y = points.back().y;
                              points.push_back(next);
                          }
                          return draw_polygon(pair, points, random.color());
                      }),
              "");
}
