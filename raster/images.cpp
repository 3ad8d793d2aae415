#include "images.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <cstring>

#include "area.h"

#ifdef __SSE2__
#include <emmintrin.h>
#endif

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

// x / 255 to the nearest, for x up to 255 * 255 in each half of the word.
constexpr std::uint32_t divided(std::uint32_t halves) {
    const std::uint32_t raised = halves + 0x00800080;
    return (raised + (raised >> 8 & 0x00FF00FF)) >> 8 & 0x00FF00FF;
}

// Two channels at once in the halves of a word.
constexpr std::uint32_t mix(std::uint32_t over, std::uint32_t under, std::uint32_t cover) {
    const std::uint32_t even = divided((over & 0x00FF00FF) * cover + (under & 0x00FF00FF) * (255 - cover));
    const std::uint32_t odd =
        divided((over >> 8 & 0x00FF00FF) * cover + (under >> 8 & 0x00FF00FF) * (255 - cover));
    return even | odd << 8;
}

void blend_row(std::uint32_t* to, const std::uint32_t* from, int count, std::uint32_t background) {
    for (int i = 0; i < count; ++i)
        to[i] = mix(from[i], background, from[i] >> 24) & 0x00FFFFFF;
}

#ifdef __SSE2__
// Eight channels at once, with the same rounding as mix.
__m128i mix_lanes(__m128i over, __m128i under, __m128i cover) {
    const __m128i rest = _mm_sub_epi16(_mm_set1_epi16(255), cover);
    const __m128i sum = _mm_add_epi16(_mm_mullo_epi16(over, cover), _mm_mullo_epi16(under, rest));
    const __m128i raised = _mm_add_epi16(sum, _mm_set1_epi16(128));
    return _mm_srli_epi16(_mm_add_epi16(raised, _mm_srli_epi16(raised, 8)), 8);
}

// Four pixels; `color` has two of them in lanes.
void mask_four(std::uint32_t* to, std::uint32_t coverage, __m128i color) {
    const __m128i zero = _mm_setzero_si128();
    const __m128i under = _mm_loadu_si128(reinterpret_cast<const __m128i*>(to));
    const __m128i pairs = _mm_cvtsi32_si128(static_cast<int>(coverage));
    const __m128i cover =
        _mm_unpacklo_epi16(_mm_unpacklo_epi8(pairs, pairs), _mm_unpacklo_epi8(pairs, pairs));
    const __m128i low = mix_lanes(color, _mm_unpacklo_epi8(under, zero), _mm_unpacklo_epi8(cover, zero));
    const __m128i high = mix_lanes(color, _mm_unpackhi_epi8(under, zero), _mm_unpackhi_epi8(cover, zero));
    _mm_storeu_si128(reinterpret_cast<__m128i*>(to), _mm_packus_epi16(low, high));
}

// Text is mostly ground: four pixels without coverage are passed over together. Gives how far it came.
int mask_fours(std::uint32_t* to, const std::uint8_t* coverage, int count, std::uint32_t color) {
    const __m128i lanes = _mm_unpacklo_epi8(_mm_set1_epi32(static_cast<int>(color)), _mm_setzero_si128());
    int i = 0;
    for (; i + 4 <= count; i += 4) {
        std::uint32_t four;
        std::memcpy(&four, coverage + i, sizeof four);
        if (four) mask_four(to + i, four, lanes);
    }
    return i;
}
#else
int mask_fours(std::uint32_t*, const std::uint8_t*, int, std::uint32_t) { return 0; }
#endif

void mask_row(std::uint32_t* to, const std::uint8_t* coverage, int count, std::uint32_t color) {
    for (int i = mask_fours(to, coverage, count, color); i < count; ++i)
        to[i] = mix(color, to[i], coverage[i]);
}

} // namespace

void copy(const Canvas& canvas, const Rect& clip, Point to, const Image& source, Point from, int width,
          int height) {
    if (!source.pixels) return;
    const Block block = cut(paintable(canvas, clip), to, from, width, height, source.width, source.height);
    const int rows = block.area.bottom - block.area.top;
    const std::size_t size =
        sizeof(std::uint32_t) * static_cast<std::size_t>(block.area.right - block.area.left);
    // Downward within one canvas the lower rows go first, so that none is overwritten before it was read.
    const bool lower_first = source.pixels == canvas.pixels && block.area.top > block.from.y;
    for (int i = 0; i < rows; ++i) {
        const int row = lower_first ? rows - 1 - i : i;
        std::memmove(row_at(canvas, block.area.left, block.area.top + row),
                     row_of(source, {block.from.x, block.from.y + row}), size);
    }
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
        mask_row(row_at(canvas, block.area.left, y), row, block.area.right - block.area.left, color);
}

} // namespace raster
