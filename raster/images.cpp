#include "images.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <cstring>

#include "area.h"
#include "mix.h"

namespace raster {
namespace {

// The part of a block that is painted: its place on the canvas and where it begins in the source.
struct Block {
    Rect area;
    Point from;
};

// One axis of it, in 64 bits since sums of any two coordinates must fit.
struct Range {
    std::int64_t begin, end;
};

Range overlap(int low, int high, std::int64_t to, std::int64_t from, int size, int source_size) {
    return {std::max({std::int64_t{low}, to, to - from}),
            std::min({std::int64_t{high}, to + size, to - from + source_size})};
}

// An empty area when nothing is left.
Block cut(const Rect& area, Point to, Point from, int width, int height, int source_width,
          int source_height) {
    const Range x = overlap(area.left, area.right, to.x, from.x, width, source_width);
    const Range y = overlap(area.top, area.bottom, to.y, from.y, height, source_height);
    if (x.begin >= x.end || y.begin >= y.end) return {};
    return {{static_cast<int>(x.begin), static_cast<int>(y.begin), static_cast<int>(x.end),
             static_cast<int>(y.end)},
            {static_cast<int>(x.begin - to.x + from.x), static_cast<int>(y.begin - to.y + from.y)}};
}

const std::uint32_t* row_of(const Image& image, Point at) {
    return image.pixels + static_cast<std::ptrdiff_t>(at.y) * image.pitch + at.x;
}

void blend_row(std::uint32_t* to, const std::uint32_t* from, int count, std::uint32_t background) {
    for (int i = 0; i < count; ++i)
        to[i] = mix(from[i], background, from[i] >> 24) & 0x00FFFFFF;
}

} // namespace

void copy(const Canvas& canvas, const Rect& clip, Point to, const Image& source, Point from, int width,
          int height) {
    if (!source.pixels) return;
    const Block block = cut(paintable(canvas, clip), to, from, width, height, source.width, source.height);
    const int rows = block.area.bottom - block.area.top;
    const int columns = block.area.right - block.area.left;
    const std::size_t size = sizeof(std::uint32_t) * static_cast<std::size_t>(columns);
    if (rows > 0 && columns == canvas.pitch && columns == source.pitch) { // no gaps between the rows
        std::memmove(row_at(canvas, block.area.left, block.area.top), row_of(source, block.from),
                     size * static_cast<std::size_t>(rows));
        return;
    }
    // Downward within one canvas the lower rows go first, so that none is overwritten before it was read.
    const bool lower_first = source.pixels == canvas.pixels && block.area.top > block.from.y;
    const int first = lower_first ? rows - 1 : 0;
    // Worked out before: after each row that is written they would be read from memory again.
    const std::ptrdiff_t to_step = lower_first ? -canvas.pitch : canvas.pitch;
    const std::ptrdiff_t from_step = lower_first ? -source.pitch : source.pitch;
    std::uint32_t* const to_row = row_at(canvas, block.area.left, block.area.top + first);
    const std::uint32_t* const from_row = row_of(source, {block.from.x, block.from.y + first});
    for (std::ptrdiff_t i = 0; i < rows; ++i)
        std::memmove(to_row + i * to_step, from_row + i * from_step, size);
}

void blend(const Canvas& canvas, const Rect& clip, Point to, const Image& source, Point from, int width,
           int height, std::uint32_t background) {
    if (!source.pixels) return;
    const Block block = cut(paintable(canvas, clip), to, from, width, height, source.width, source.height);
    for (int y = block.area.top; y < block.area.bottom; ++y)
        blend_row(row_at(canvas, block.area.left, y),
                  row_of(source, {block.from.x, block.from.y + y - block.area.top}),
                  block.area.right - block.area.left, background);
}

void mask(const Canvas& canvas, const Rect& clip, Point to, const std::uint8_t* coverage, int width,
          int height, int pitch, std::uint32_t color) {
    if (!coverage) return;
    const Block block = cut(paintable(canvas, clip), to, {0, 0}, width, height, width, height);
    const std::uint8_t* row = coverage + static_cast<std::ptrdiff_t>(block.from.y) * pitch + block.from.x;
    for (int y = block.area.top; y < block.area.bottom; ++y, row += pitch)
        mix_row(row_at(canvas, block.area.left, y), row, block.area.right - block.area.left, color);
}

} // namespace raster
