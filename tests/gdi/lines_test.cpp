#include <gtest/gtest.h>

#include "boards.h"
#include "raster/shapes.h"

using namespace boards;

static std::string draw_line(Pair& pair, raster::Point from, raster::Point to, std::uint32_t color) {
    const Selected pen(pair.gdi.dc, CreatePen(PS_SOLID, 1, reference(color)));
    MoveToEx(pair.gdi.dc, from.x, from.y, nullptr);
    LineTo(pair.gdi.dc, to.x, to.y);
    raster::line(pair.canvas, pair.clip, from, to, color);
    return "line" + text({from, to});
}

TEST(GdiLines, AnyDirection) {
    EXPECT_EQ(compare(1, 8000,
                      [](Pair& pair, Random& random) {
                          const raster::Point from = random.point();
                          return draw_line(pair, from, random.point(), random.color());
                      }),
              "");
}

// Lengths whose ratio puts many steps exactly between two pixels, in all eight octants.
TEST(GdiLines, Ties) {
    EXPECT_EQ(compare(2, 4000,
                      [](Pair& pair, Random& random) {
                          const int parts = random.between(1, 6);
                          const int longer = 2 * parts * random.between(1, 20);
                          const int shorter = longer / (2 * parts) * random.between(0, 2 * parts);
                          const bool flat = random.one_in(2);
                          const int dx = (flat ? longer : shorter) * (random.one_in(2) ? 1 : -1);
                          const int dy = (flat ? shorter : longer) * (random.one_in(2) ? 1 : -1);
                          const raster::Point from{random.between(0, WIDTH), random.between(0, HEIGHT)};
                          return draw_line(pair, from, {from.x + dx, from.y + dy}, random.color());
                      }),
              "");
}

TEST(GdiLines, Polylines) {
    EXPECT_EQ(compare(3, 2000,
                      [](Pair& pair, Random& random) {
                          std::vector<raster::Point> points;
                          std::vector<POINT> same;
                          for (int i = random.between(2, 9); i > 0; --i) {
                              points.push_back(random.one_in(6) && !points.empty() ? points.back()
                                                                                   : random.point());
                              same.push_back({points.back().x, points.back().y});
                          }
                          const std::uint32_t color = random.color();
                          const Selected pen(pair.gdi.dc, CreatePen(PS_SOLID, 1, reference(color)));
                          const int count = static_cast<int>(points.size());
                          Polyline(pair.gdi.dc, same.data(), count);
                          raster::polyline(pair.canvas, pair.clip, points.data(), count, color);
                          return "polyline" + text(points);
                      }),
              "");
}
