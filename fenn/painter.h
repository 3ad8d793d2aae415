#ifndef FENN_PAINTER_H
#define FENN_PAINTER_H

#include <cstdint>

#include "raster/canvas.h"
#include <brask/platform.h>

// The open bracket, as the parts of the drawing layer share it.
namespace fenn {

struct Bracket {
    HWND wnd;
    raster::Canvas canvas;
    raster::Rect clip; // canvas coordinates (Y downward), cut to the canvas; may be empty
    HDC dc;            // = Zeb_DC. On Windows a memory context on the canvas, Y upward, clipped like `clip`;
                       // what is drawn on it needs no flush and no changed()
};

// Null outside a bracket, and inside one that has nothing to paint on.
const Bracket* bracket();

// Tells that a rectangle of the canvas changed; cut to the clip here. Zeb_release shows the union.
void changed(const raster::Rect& rect);

// From the contract's rows, Y upward, to the canvas' and back.
int flip(const raster::Canvas& canvas, int y);

// From a drawing word, 0xAABBGGRR, to a pixel, 0x00RRGGBB.
constexpr std::uint32_t pixel_of(std::uint32_t word) {
    return (word & 0xFF) << 16 | (word & 0xFF00) | (word >> 16 & 0xFF);
}

// Coordinates beyond this show nothing; cut to it, their sums and differences stay within an int.
constexpr int farthest = 1 << 29;
constexpr int limit(std::int64_t value) {
    return static_cast<int>(value < -farthest ? -farthest : value > farthest ? farthest : value);
}

// Where lines start, in contract coordinates; the context's position follows it.
const POINT& pen();
void set_pen(int x, int y);

} // namespace fenn

#endif
