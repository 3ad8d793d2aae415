#include <algorithm>
#include <climits>
#include <cstdint>

#include "area.h"
#include "shapes.h"

// One pixel for each step along the longer axis; on the other axis the nearest one, and of two equally near
// ones the upper or left one, whichever way the line runs. So a line backwards covers the same pixels apart
// from its ends, and a clip shows exactly the pixels that the whole line has there.
namespace raster {
namespace {

// Distances from the start of a line, `begin` to `end` - 1.
struct Reach {
    std::int64_t begin, end;
};

// One coordinate of a line, as it runs.
struct Axis {
    std::int64_t from;
    int way;               // 1 or -1
    std::uint64_t length;  // without its sign
    Reach shown;           // distances that lie in the painted area
    std::ptrdiff_t stride; // words to the next pixel along the way
};

Axis axis(int from, int to, int low, int high, std::ptrdiff_t pitch) {
    const std::int64_t start = from;
    if (from <= to)
        return {start, 1, static_cast<std::uint64_t>(to - start), {low - start, high - start}, pitch};
    return {start, -1, static_cast<std::uint64_t>(start - to), {start - high + 1, start - low + 1}, -pitch};
}

// The slope as a fraction: after `step` steps the line has moved aside by (step * rise + bias) / run, which
// fits in 64 bits since both lengths are below 2^32.
struct Slope {
    std::uint64_t rise, run, bias;

    std::uint64_t moved(std::uint64_t step) const { return step * rise + bias; }
    // The first step that has moved aside by `distance`.
    std::uint64_t first_at(std::int64_t distance) const {
        if (distance <= 0) return 0;
        const auto wanted = static_cast<std::uint64_t>(distance);
        return wanted > rise ? run : (wanted * run - bias + rise - 1) / rise;
    }
};

void slanted_line(std::uint32_t* pixels, const Axis& along, const Axis& aside, std::uint32_t color) {
    // The bias is just under a half where the line moves toward larger coordinates, so that ties stay behind.
    const Slope slope{aside.length, along.length, (along.length - (aside.way > 0 ? 1 : 0)) / 2};
    const std::uint64_t first = std::max<std::uint64_t>(std::max<std::int64_t>(along.shown.begin, 0),
                                                        slope.first_at(aside.shown.begin));
    const std::uint64_t last = std::min<std::uint64_t>(
        {slope.run, static_cast<std::uint64_t>(std::max<std::int64_t>(along.shown.end, 0)),
         slope.first_at(aside.shown.end)});
    if (first >= last) return;

    const auto stepped = static_cast<std::int64_t>(first);
    const auto moved = static_cast<std::int64_t>(slope.moved(first) / slope.run);
    std::uint64_t rest = slope.moved(first) % slope.run;
    std::ptrdiff_t at =
        (along.from * along.way + stepped) * along.stride + (aside.from * aside.way + moved) * aside.stride;
    for (std::uint64_t step = first; step < last; ++step) {
        pixels[at] = color;
        at += along.stride;
        rest += slope.rise;
        if (rest >= slope.run) {
            rest -= slope.run;
            at += aside.stride;
        }
    }
}

// The pixels of a line along one axis as a range; column INT_MAX is beyond every canvas.
struct Range {
    int begin, end;
};

Range straight(int from, int to) {
    if (from <= to) return {from, to};
    return {to + 1, from == INT_MAX ? from : from + 1};
}

} // namespace

void line(const Canvas& canvas, const Rect& clip, Point from, Point to, std::uint32_t color) {
    const Rect area = paintable(canvas, clip);
    if (is_empty(area)) return;
    if (from.y == to.y) {
        if (from.y < area.top || from.y >= area.bottom) return;
        const Range columns = straight(from.x, to.x);
        return fill_area(canvas, intersect(area, {columns.begin, from.y, columns.end, from.y + 1}), color);
    }
    if (from.x == to.x) {
        if (from.x < area.left || from.x >= area.right) return;
        const Range rows = straight(from.y, to.y);
        return fill_area(canvas, intersect(area, {from.x, rows.begin, from.x + 1, rows.end}), color);
    }
    const Axis x = axis(from.x, to.x, area.left, area.right, 1);
    const Axis y = axis(from.y, to.y, area.top, area.bottom, canvas.pitch);
    if (x.length >= y.length)
        slanted_line(canvas.pixels, x, y, color);
    else
        slanted_line(canvas.pixels, y, x, color);
}

void polyline(const Canvas& canvas, const Rect& clip, const Point* points, int count, std::uint32_t color) {
    for (int i = 1; i < count; ++i)
        line(canvas, clip, points[i - 1], points[i], color);
}

} // namespace raster
