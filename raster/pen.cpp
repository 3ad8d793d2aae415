#include "pen.h"

#include <algorithm>

#include "area.h"
#include "walk.h"

namespace raster {

Pen::Pen(const Canvas& on, const Rect& clip, int wanted, std::uint32_t paint)
    : canvas(on), area(paintable(on, clip)), reach(area), color(paint) {
    const int width = std::clamp(wanted, 1, 255);
    const int before = width / 2; // an even pen lies above and left of its pixel
    const auto from_middle = [width](int i) { return 2 * i + 1 - width; }; // doubled
    for (int y = 0; y < width; ++y) {
        int x = 0;
        while (from_middle(x) * from_middle(x) + from_middle(y) * from_middle(y) > width * width)
            ++x;
        disc.push_back({x - before, width - x - before});
    }
    if (is_empty(area)) return;
    const int after = width - before - 1;
    reach = {area.left - after, area.top - after, area.right + before, area.bottom + before};
}

void Pen::stamp(int x, int y) const {
    int row = y - static_cast<int>(disc.size()) / 2;
    for (const Row& part : disc) {
        fill_area(canvas, intersect(area, {x + part.left, row, x + part.right, row + 1}), color);
        ++row;
    }
}

void Pen::put(std::int64_t x, std::int64_t y) const {
    if (x >= reach.left && x < reach.right && y >= reach.top && y < reach.bottom)
        stamp(static_cast<int>(x), static_cast<int>(y));
}

void Pen::draw(Point from, Point to) const {
    if (is_empty(area)) return;
    walk_line(reach, from, to, [this](int x, int y) { stamp(x, y); });
    if (is_wide()) put(to.x, to.y);
}

} // namespace raster
