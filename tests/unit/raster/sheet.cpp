#include "sheet.h"

#include <climits>

Sheet::Sheet(int width, int height)
    : width(width), height(height),
      block(static_cast<std::size_t>((width + 2 * margin) * (height + 2 * margin)), paper) {}

std::size_t Sheet::index(int x, int y) const {
    return static_cast<std::size_t>((y + margin) * (width + 2 * margin) + x + margin);
}

raster::Canvas Sheet::canvas() { return {&block[index(0, 0)], width, height, width + 2 * margin}; }

std::uint32_t Sheet::pixel(int x, int y) const { return block[index(x, y)]; }

std::string Sheet::picture() const {
    std::string rows;
    for (int y = 0; y < height; ++y) {
        for (int x = 0; x < width; ++x)
            rows += is_inked(x, y) ? '#' : '.';
        rows += '\n';
    }
    return rows;
}

bool Sheet::is_margin_clean() const {
    for (int y = -margin; y < height + margin; ++y)
        for (int x = -margin; x < width + margin; ++x) {
            const bool inside = x >= 0 && x < width && y >= 0 && y < height;
            if (!inside && is_inked(x, y)) return false;
        }
    return true;
}

void Sheet::wipe() { block.assign(block.size(), paper); }

std::string clip_fault(const Sheet& whole, const Sheet& clipped, const raster::Rect& clip) {
    const raster::Rect all = whole.all();
    if (!clipped.is_margin_clean()) return "painted outside the canvas";
    for (int y = 0; y < all.bottom; ++y)
        for (int x = 0; x < all.right; ++x) {
            const bool inside = x >= clip.left && x < clip.right && y >= clip.top && y < clip.bottom;
            if (clipped.is_inked(x, y) != (inside && whole.is_inked(x, y)))
                return "at " + std::to_string(x) + "," + std::to_string(y);
        }
    return {};
}

raster::Point Dice::point(int size) {
    if (one_in(8)) return {between(INT_MIN, INT_MAX), between(INT_MIN, INT_MAX)};
    if (one_in(8))
        return {one_in(2) ? INT_MIN : INT_MAX, one_in(2) ? between(0, size) : one_in(2) ? INT_MIN : INT_MAX};
    const int beyond = one_in(3) ? 100 : 3;
    return {between(-beyond, size + beyond), between(-beyond, size + beyond)};
}

raster::Rect Dice::rect(int size) {
    const raster::Point a = point(size);
    const raster::Point b = point(size);
    return {a.x, a.y, b.x, b.y};
}
