#ifndef RASTER_SHAPES_H
#define RASTER_SHAPES_H

#include "canvas.h"

// Lines, rectangles, polygons and arcs with exactly the pixels that GDI gives them. `clip` is in canvas
// coordinates and is cut to the canvas first; any coordinates are harmless.
namespace raster {

// From the first point up to the second, which is not painted.
void line(const Canvas& canvas, const Rect& clip, Point from, Point to, std::uint32_t color);
// Through all points; the last one is not painted.
void polyline(const Canvas& canvas, const Rect& clip, const Point* points, int count, std::uint32_t color);
// A one-pixel frame just inside the rectangle.
void frame_rectangle(const Canvas& canvas, const Rect& clip, const Rect& rect, std::uint32_t color);
void fill_rectangle(const Canvas& canvas, const Rect& clip, const Rect& rect, std::uint32_t color);
// The inside by the even-odd rule, and the outline, both in one colour. Fewer than two points paint nothing.
void fill_polygon(const Canvas& canvas, const Rect& clip, const Point* points, int count,
                  std::uint32_t color);
// The arc of a circle, counterclockwise from `start` through `sweep` degrees, as AngleArc draws it after its
// connecting line, which starts at `from`; a negative sweep goes clockwise. Gives the point where the pen
// ends.
//
// The circle lies in a box of twice the radius that begins at centre - radius, so its right and lower sides
// are one pixel nearer. The last pixel of the arc is not painted by a pen of width 1 (or less); a wider one
// is round and paints to the end. A full turn and more is a whole circle. Nothing is painted for a radius
// above 32,768 or for angles that are no numbers: the pen then stays at `from`.
//
// Where a context's Y runs upward, GDI mirrors the two ends but keeps the direction on the screen: such an
// arc starts at -start and, unless it is a full turn, sweeps through what is missing to one: 360 - sweep, or
// -360 - sweep.
Point angle_arc(const Canvas& canvas, const Rect& clip, Point from, Point center, std::uint32_t radius,
                float start, float sweep, int pen_width, std::uint32_t color);

} // namespace raster

#endif
