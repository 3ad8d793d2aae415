#ifndef RASTER_CANVAS_H
#define RASTER_CANVAS_H

#include <cstdint>

// Pixels and where they lie. Canvas coordinates run downward from the upper left corner.
namespace raster {

struct Point {
    int x, y;
};

// Columns left to right - 1, rows top to bottom - 1.
struct Rect {
    int left, top, right, bottom;
};

// A view of somebody's pixels: words 0x00RRGGBB, `pitch` words from one row to the next.
struct Canvas {
    std::uint32_t* pixels;
    int width, height, pitch;
};

} // namespace raster

#endif
