#include <algorithm>
#include <cstdint>
#include <vector>

#include "area.h"
#include "shapes.h"

namespace raster {
namespace {

// The first column at or right of the edge in row `y`, which lies between its ends.
int crossing(Point upper, Point lower, int y) {
    const std::int64_t across = std::int64_t{lower.x} - upper.x;
    const auto down = static_cast<std::uint64_t>(std::int64_t{y} - upper.y);
    const auto height = static_cast<std::uint64_t>(std::int64_t{lower.y} - upper.y);
    if (across < 0) return static_cast<int>(upper.x - static_cast<std::int64_t>(down * -across / height));
    return static_cast<int>(upper.x + static_cast<std::int64_t>((down * across + height - 1) / height));
}

// Where a row crosses the outline; as many as the polygon has edges at the most.
class Crossings {
  public:
    explicit Crossings(int edges) {
        if (edges > few) many.resize(static_cast<std::size_t>(edges));
        columns = edges > few ? many.data() : buffer;
    }
    // Gathers those of a row, an edge being crossed from its upper end to just above its lower one.
    void find(const Point* points, int edges, int y) {
        found = 0;
        Point last = points[edges - 1];
        for (int i = 0; i < edges; last = points[i++]) {
            const bool falling = last.y < points[i].y;
            const Point upper = falling ? last : points[i];
            const Point lower = falling ? points[i] : last;
            if (y >= upper.y && y < lower.y) columns[found++] = crossing(upper, lower, y);
        }
        std::sort(columns, columns + found);
    }
    const int* begin() const { return columns; }
    const int* end() const { return columns + found; }

  private:
    static constexpr int few = 32; // so many need no allocation
    int buffer[few];
    std::vector<int> many;
    int* columns;
    int found = 0;
};

void fill_inside(const Canvas& canvas, const Rect& area, const Point* points, int count,
                 std::uint32_t color) {
    const auto ends = std::minmax_element(points, points + count, [](Point a, Point b) { return a.y < b.y; });
    const int bottom = std::min(area.bottom, ends.second->y);
    Crossings crossings(count);
    for (int y = std::max(area.top, ends.first->y); y < bottom; ++y) {
        crossings.find(points, count, y);
        for (const int* pair = crossings.begin(); pair != crossings.end(); pair += 2)
            fill_area(canvas, intersect(area, {pair[0], y, pair[1], y + 1}), color);
    }
}

} // namespace

void fill_polygon(const Canvas& canvas, const Rect& clip, const Point* points, int count,
                  std::uint32_t color) {
    const Rect area = paintable(canvas, clip);
    if (count < 2 || is_empty(area)) return;
    fill_inside(canvas, area, points, count, color);
    polyline(canvas, area, points, count, color);
    line(canvas, area, points[count - 1], points[0], color);
}

} // namespace raster
