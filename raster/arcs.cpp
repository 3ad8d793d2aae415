#include "shapes.h"

namespace raster {

Point angle_arc(const Canvas& canvas, const Rect& clip, Point from, Point center, std::uint32_t, float, float,
                int, std::uint32_t color) {
    line(canvas, clip, from, center, color);
    return center;
}

} // namespace raster
