#ifndef RASTER_WALK_H
#define RASTER_WALK_H

#include <algorithm>
#include <cstdint>

#include "canvas.h"

// The way of a line. It takes one pixel for each step along its longer axis; on the other axis the nearest
// one, and of two equally near ones the upper or left one, whichever way it runs. So a clip shows exactly the
// pixels that the whole line has there, and backwards it covers the same ones apart from its ends.
namespace raster {

// One coordinate of a line.
struct Axis {
    std::int64_t from;
    int way;                // 1 or -1
    std::int64_t length;    // of the whole line along this axis
    std::int64_t near, far; // distances from the start that are seen: near to far - 1
};

inline Axis axis(int from, int to, int low, int high) {
    const std::int64_t start = from;
    if (from <= to) return {start, 1, to - start, low - start, high - start};
    return {start, -1, start - to, start - high + 1, start - low + 1};
}

// How far a line moves aside: by (step * rise + bias) / run after `step` steps. Both lengths are below 2^32,
// so this fits in 64 bits without a sign.
struct Slope {
    std::uint64_t rise, run, bias;

    // The bias is a half; just under it where larger coordinates lie ahead, so that ties stay behind.
    Slope(const Axis& along, const Axis& aside)
        : rise(static_cast<std::uint64_t>(aside.length)), run(static_cast<std::uint64_t>(along.length)),
          bias((run - (aside.way > 0 ? 1 : 0)) / 2) {}

    std::uint64_t moved(std::uint64_t step) const { return step * rise + bias; }
    // The first step that has moved aside by `distance`.
    std::int64_t first_at(std::int64_t distance) const {
        if (distance <= 0) return 0;
        const auto wanted = static_cast<std::uint64_t>(distance);
        return static_cast<std::int64_t>(wanted > rise ? run : (wanted * run - bias + rise - 1) / rise);
    }
};

// Calls paint(column, row) for each pixel of the line that lies in `area`, without the last one; a single
// point has none.
template <class Paint>
void walk_line(const Rect& area, Point from, Point to, Paint paint) {
    const Axis x = axis(from.x, to.x, area.left, area.right);
    const Axis y = axis(from.y, to.y, area.top, area.bottom);
    const bool flat = x.length >= y.length;
    const Axis& along = flat ? x : y;
    const Axis& aside = flat ? y : x;
    const Slope slope(along, aside);
    const std::int64_t first = std::max({std::int64_t{0}, along.near, slope.first_at(aside.near)});
    const std::int64_t end = std::min({along.length, along.far, slope.first_at(aside.far)});
    if (first >= end) return;

    const std::uint64_t moved = slope.moved(static_cast<std::uint64_t>(first));
    std::uint64_t rest = moved % slope.run;
    int ahead = static_cast<int>(along.from + along.way * first);
    int beside = static_cast<int>(aside.from + aside.way * static_cast<std::int64_t>(moved / slope.run));
    for (std::int64_t step = first; step < end; ++step) {
        paint(flat ? ahead : beside, flat ? beside : ahead);
        ahead += along.way;
        rest += slope.rise;
        if (rest >= slope.run) {
            rest -= slope.run;
            beside += aside.way;
        }
    }
}

} // namespace raster

#endif
