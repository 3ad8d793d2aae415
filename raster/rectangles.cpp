#include <cstdint>

#include "area.h"
#include "shapes.h"

namespace raster {

void fill_rectangle(const Canvas& canvas, const Rect& clip, const Rect& rect, std::uint32_t color) {
    fill_area(canvas, intersect(paintable(canvas, clip), rect), color);
}

void frame_rectangle(const Canvas& canvas, const Rect& clip, const Rect& rect, std::uint32_t color) {
    if (is_empty(rect)) return;
    const Rect area = paintable(canvas, clip);
    const Rect sides[] = {{rect.left, rect.top, rect.right, rect.top + 1},
                          {rect.left, rect.bottom - 1, rect.right, rect.bottom},
                          {rect.left, rect.top, rect.left + 1, rect.bottom},
                          {rect.right - 1, rect.top, rect.right, rect.bottom}};
    for (const Rect& side : sides)
        fill_area(canvas, intersect(area, side), color);
}

} // namespace raster
