#include <climits>
#include <cstdint>

#include "area.h"
#include "shapes.h"
#include "walk.h"

namespace raster {
namespace {

// The pixels of a line along one axis: begin to end - 1. The last one that an int can name is beyond every
// canvas.
struct Range {
    int begin, end;
};

Range straight(int from, int to) {
    if (from <= to) return {from, to};
    return {to + 1, from == INT_MAX ? from : from + 1};
}

void level_line(const Canvas& canvas, const Rect& area, Point from, int to, std::uint32_t color) {
    if (from.y < area.top || from.y >= area.bottom) return;
    const Range columns = straight(from.x, to);
    fill_area(canvas, intersect(area, {columns.begin, from.y, columns.end, from.y + 1}), color);
}

void upright_line(const Canvas& canvas, const Rect& area, Point from, int to, std::uint32_t color) {
    if (from.x < area.left || from.x >= area.right) return;
    const Range rows = straight(from.y, to);
    fill_area(canvas, intersect(area, {from.x, rows.begin, from.x + 1, rows.end}), color);
}

// Apart from the straight ones, which are nearly all: what it keeps in registers would cost them too.
[[gnu::noinline]] void slanted_line(const Canvas& canvas, const Rect& area, Point from, Point to,
                                    std::uint32_t color) {
    walk_line(area, from, to, [&](int x, int y) { *row_at(canvas, x, y) = color; });
}

} // namespace

void line(const Canvas& canvas, const Rect& clip, Point from, Point to, std::uint32_t color) {
    const Rect area = paintable(canvas, clip);
    if (is_empty(area)) return;
    if (from.y == to.y) return level_line(canvas, area, from, to.x, color);
    if (from.x == to.x) return upright_line(canvas, area, from, to.y, color);
    slanted_line(canvas, area, from, to, color);
}

void polyline(const Canvas& canvas, const Rect& clip, const Point* points, int count, std::uint32_t color) {
    for (int i = 1; i < count; ++i)
        line(canvas, clip, points[i - 1], points[i], color);
}

} // namespace raster
