#ifndef RASTER_IMAGES_H
#define RASTER_IMAGES_H

#include "canvas.h"

// Copying and blending of pixel blocks, cut to the clip rectangle and to both canvases; any coordinates and
// sizes are harmless.
//
// Where colours mix, each channel becomes (over * cover + under * (255 - cover)) / 255, rounded to the
// nearest integer; a half cannot occur. Cover 255 gives exactly the upper colour, 0 exactly the lower one.
namespace raster {

// Copies a block of `source` that begins at `from`, so that it begins at `to`. Both may be the same canvas,
// and the blocks may overlap.
void copy(const Canvas& canvas, const Rect& clip, Point to, const Image& source, Point from, int width,
          int height);
// The same, mixed with `background` by the source's top byte: 255 is opaque, 0 gives the background.
void blend(const Canvas& canvas, const Rect& clip, Point to, const Image& source, Point from, int width,
           int height, std::uint32_t background);
// Mixes `color` into the canvas by a block of coverage bytes, `pitch` bytes a row.
void mask(const Canvas& canvas, const Rect& clip, Point to, const std::uint8_t* coverage, int width,
          int height, int pitch, std::uint32_t color);

} // namespace raster

#endif
