#ifndef RASTER_IMAGES_H
#define RASTER_IMAGES_H

#include "canvas.h"

// Copying and blending of pixel blocks, cut to the clip rectangle and to both canvases.
namespace raster {

// Copies `size` pixels of `source` from `from` to `to`.
void copy(const Canvas& canvas, const Rect& clip, Point to, const Canvas& source, Point from, int width, int height);
// The same through the source's top byte: 255 opaque, 0 gives `background`.
void blend(const Canvas& canvas, const Rect& clip, Point to, const Canvas& source, Point from, int width, int height,
           std::uint32_t background);
// Lets `color` through a block of coverage bytes, 0 to 255, `pitch` bytes a row.
void mask(const Canvas& canvas, const Rect& clip, Point to, const std::uint8_t* coverage, int width, int height,
          int pitch, std::uint32_t color);

} // namespace raster

#endif
