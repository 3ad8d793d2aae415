#ifndef RASTER_CANVAS_H
#define RASTER_CANVAS_H

#include <algorithm>
#include <cstdint>

// Pixels and where they lie. Coordinates run downward from the upper left corner.
namespace raster {

struct Point {
    int x, y;
};

// Columns left to right - 1, rows top to bottom - 1; empty unless left < right and top < bottom.
struct Rect {
    int left, top, right, bottom;
};

// Somebody's pixels to read: words 0x00RRGGBB, `pitch` words from one row to the next. The top byte carries
// no colour; blend() alone looks at it.
struct Image {
    const std::uint32_t* pixels;
    int width, height, pitch;
};

// Somebody's pixels to paint on. Nothing is painted without pixels or with a size below 1. What stands in the
// top byte of a painted word means nothing.
struct Canvas {
    std::uint32_t* pixels;
    int width, height, pitch;

    operator Image() const { return {pixels, width, height, pitch}; }
};

constexpr bool is_empty(const Rect& rect) { return rect.left >= rect.right || rect.top >= rect.bottom; }

constexpr Rect intersect(const Rect& a, const Rect& b) {
    return {std::max(a.left, b.left), std::max(a.top, b.top), std::min(a.right, b.right),
            std::min(a.bottom, b.bottom)};
}

} // namespace raster

#endif
