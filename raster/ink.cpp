#include "ink.h"

#include <algorithm>
#include <cstdint>

#include "area.h"
#include "mix.h"

namespace raster {
namespace {

constexpr int EIGHT = 8;

bool holds(const Rect& area, std::int64_t x, std::int64_t y, int width, int height) {
    return x >= area.left && y >= area.top && x + width <= area.right && y + height <= area.bottom;
}

// An eight that the edge of the clip may cross.
void paint_cut(const Canvas& canvas, const Rect& area, std::int64_t x, std::int64_t y, const Eight& eight,
               std::uint32_t color) {
    if (y < area.top || y >= area.bottom) return;
    const std::int64_t begin = std::max<std::int64_t>(x, area.left);
    const std::int64_t end = std::min<std::int64_t>(x + EIGHT, area.right);
    if (begin < end)
        mix_row(row_at(canvas, static_cast<int>(begin), static_cast<int>(y)), eight.coverage + (begin - x),
                static_cast<int>(end - begin), color);
}

} // namespace

Ink make_ink(const std::uint8_t* coverage, int width, int height, int pitch) {
    Ink ink{width, height, {}};
    if (width < 1) return ink; // then there may be no coverage to step through either
    const std::uint8_t* row = coverage;
    for (int y = 0; y < height; ++y, row += pitch) {
        int x = 0;
        while ((x = static_cast<int>(std::find_if(row + x, row + width, [](int byte) { return byte != 0; }) -
                                     row)) < width) {
            Eight eight{x, y, {}};
            std::copy(row + x, row + std::min(x + EIGHT, width), eight.coverage);
            ink.eights.push_back(eight);
            x = std::min(x + EIGHT, width);
            ink.width = std::max(ink.width, eight.x + EIGHT);
        }
    }
    ink.eights.shrink_to_fit();
    return ink;
}

void paint_ink(const Canvas& canvas, const Rect& clip, Point to, const Ink& ink, std::uint32_t color) {
    const Rect area = paintable(canvas, clip);
    if (is_empty(area)) return;
    if (holds(area, to.x, to.y, ink.width, ink.height))
        return mix_eights(row_at(canvas, to.x, to.y), canvas.pitch, ink.eights.data(), ink.eights.size(),
                          color);
    for (const Eight& eight : ink.eights)
        paint_cut(canvas, area, std::int64_t{to.x} + eight.x, std::int64_t{to.y} + eight.y, eight, color);
}

} // namespace raster
