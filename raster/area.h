#ifndef RASTER_AREA_H
#define RASTER_AREA_H

#include <algorithm>
#include <cstddef>
#include <cwchar>

#include "canvas.h"

// What all painting shares: the part of the canvas that it may touch.
namespace raster {

inline Rect paintable(const Canvas& canvas, const Rect& clip) {
    return canvas.pixels ? intersect(clip, {0, 0, canvas.width, canvas.height}) : Rect{};
}

inline std::uint32_t* row_at(const Canvas& canvas, int x, int y) {
    return canvas.pixels + static_cast<std::ptrdiff_t>(y) * canvas.pitch + x;
}

// The C library's own filler knows the widest registers, where its units are as wide as a pixel.
inline void fill_row(std::uint32_t* row, int count, std::uint32_t color) {
    if constexpr (sizeof(wchar_t) == sizeof(std::uint32_t))
        std::wmemset(reinterpret_cast<wchar_t*>(row), static_cast<wchar_t>(color),
                     static_cast<std::size_t>(count));
    else
        std::fill_n(row, count, color);
}

// `area` lies within the canvas.
inline void fill_area(const Canvas& canvas, const Rect& area, std::uint32_t color) {
    if (is_empty(area)) return;
    if (area.right - area.left == 1) {             // the upright sides of bevels: most of what is filled
        const std::ptrdiff_t pitch = canvas.pitch; // not read anew after each pixel
        std::uint32_t* pixel = row_at(canvas, area.left, area.top);
        int rows = area.bottom - area.top;
        for (; rows >= 4; rows -= 4, pixel += 4 * pitch)
            pixel[0] = pixel[pitch] = pixel[2 * pitch] = pixel[3 * pitch] = color;
        for (; rows > 0; --rows, pixel += pitch)
            *pixel = color;
        return;
    }
    for (int y = area.top; y < area.bottom; ++y)
        fill_row(row_at(canvas, area.left, y), area.right - area.left, color);
}

} // namespace raster

#endif
