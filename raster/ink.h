#ifndef RASTER_INK_H
#define RASTER_INK_H

#include <cstdint>
#include <vector>

#include "canvas.h"

// Coverage that is painted again and again, as a text is: most of its block is ground, and only the rest is
// kept.
namespace raster {

// Eight coverage bytes side by side, and where the first of them lies in the block.
struct Eight {
    int x, y;
    std::uint8_t coverage[8];
};

// Eights that hold any coverage; together they need `width` by `height`, which may be a little wider than the
// block they were made of.
struct Ink {
    int width = 0, height = 0;
    std::vector<Eight> eights;
};

// From a block of coverage bytes, `pitch` bytes a row. Its size is at least 0.
Ink make_ink(const std::uint8_t* coverage, int width, int height, int pitch);
// Mixes `color` into the canvas as mask() does with the block.
void paint_ink(const Canvas& canvas, const Rect& clip, Point to, const Ink& ink, std::uint32_t color);

} // namespace raster

#endif
