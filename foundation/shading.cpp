#include "foundation/faces.h"

#include <algorithm>
#include <cstdint>
#include <cstdlib>

#include "foundation/pixels.h"
#include "machine/wide_registers.h"

namespace brask {

namespace {

constexpr std::int64_t WIDEST_INSET = 1 << 30; // twice that leaves nothing of any surface

constexpr int SPAN = 100; // of the shading along each axis, so that opposite corners differ by twice that

// The part of a face that is shaded; empty when the margins meet.
struct Inner {
    int left, top, width, height;
};

Inner inner_of(const Look& look) {
    const std::int64_t width = look.width - 2 * std::int64_t{look.inset};
    const std::int64_t height = look.height - 2 * std::int64_t{look.inset};
    if (width < 1 || height < 1) return {0, 0, 0, 0};
    return {look.inset, look.inset, static_cast<int>(width), static_cast<int>(height)};
}

// The word of each shade from -SPAN to SPAN.
struct Shades {
    DWORD words[2 * SPAN + 1];

    explicit Shades(DWORD color) {
        for (int shade = -SPAN; shade <= SPAN; shade++)
            words[shade + SPAN] = (color & 0xFF000000u) | channel(color, 16, shade) |
                                  channel(color, 8, shade) | channel(color, 0, shade);
    }
    static DWORD channel(DWORD color, int shift, int shade) {
        const int value = static_cast<int>(color >> shift & 255) + shade;
        return static_cast<DWORD>(std::clamp(value, 0, 255)) << shift;
    }
};

constexpr int EIGHT = 8;

// --- Eight pixels at once, where the processor can. Exactly the same words as from the table. -------------

#ifdef MACHINE_WIDE
// At least eight pixels; the last eight overlap those before them.
MACHINE_WIDE void shade_eights(DWORD* row, const float* across, float down, int count, DWORD color) {
    // Turned by 128 the channels are signed bytes, whose saturating sum stops just at the ends of the range.
    const __m256i turn = _mm256_set1_epi32(0x00808080);
    const __m256i base = _mm256_xor_si256(_mm256_set1_epi32(static_cast<int>(color)), turn);
    const __m256 downs = _mm256_set1_ps(down);
    // The low byte of each number goes into the three channels of its pixel.
    const __m256i channels = _mm256_set_epi8(-1, 12, 12, 12, -1, 8, 8, 8, -1, 4, 4, 4, -1, 0, 0, 0, //
                                             -1, 12, 12, 12, -1, 8, 8, 8, -1, 4, 4, 4, -1, 0, 0, 0);
    for (int i = 0; i < count; i += EIGHT) {
        const int at = std::min(i, count - EIGHT);
        const __m256i shade = _mm256_cvttps_epi32(_mm256_add_ps(_mm256_loadu_ps(across + at), downs));
        const __m256i sum = _mm256_adds_epi8(base, _mm256_shuffle_epi8(shade, channels));
        _mm256_storeu_si256(reinterpret_cast<__m256i*>(row + at), _mm256_xor_si256(sum, turn));
    }
}
#else
void shade_eights(DWORD*, const float*, float, int, DWORD) {}
#endif

// --- Any processor -------------------------------------------------------------------------------------

// One stretch of a row: the shade of each pixel is its column's share and the row's, cut toward zero.
void shade_stretch(DWORD* row, const float* across, float down, int count, const Shades& shades) {
    for (int i = 0; i < count; i++)
        row[i] = shades.words[static_cast<int>(across[i] + down) + SPAN];
}

// Columns are taken in blocks, so that their share of the shade is worked out once for all rows. The last
// block reaches back into the one before it.
template <typename Stretch>
void shade_rows(DWORD* pixels, const Look& look, const Inner& inner, Stretch stretch) {
    constexpr int BLOCK = 2048;
    const float step_x = static_cast<float>(SPAN) / static_cast<float>(inner.width);
    const float step_y = static_cast<float>(SPAN) / static_cast<float>(inner.height);
    const int count = std::min(BLOCK, inner.width);
    for (int start = 0; start < inner.width; start += BLOCK) {
        const int first = std::min(start, inner.width - count);
        float across[BLOCK];
        for (int i = 0; i < count; i++)
            across[i] = static_cast<float>(first + i) * step_x - SPAN / 2.0f;
        DWORD* row = pixels + std::size_t(inner.top) * look.width + inner.left + first;
        for (int j = 0; j < inner.height; j++, row += look.width)
            stretch(row, across, static_cast<float>(j) * step_y - SPAN / 2.0f, count);
    }
}

// Darkest at the upper left.
void shade(DWORD* pixels, const Look& look, const Inner& inner) {
    if (inner.width >= EIGHT && machine::wide_registers()) {
        shade_rows(pixels, look, inner, [&](DWORD* row, const float* across, float down, int count) {
            shade_eights(row, across, down, count, look.color);
        });
        return;
    }
    const Shades shades(look.color);
    shade_rows(pixels, look, inner, [&](DWORD* row, const float* across, float down, int count) {
        shade_stretch(row, across, down, count, shades);
    });
}

} // namespace

Look look_of(const Tools& control, const Colors& color) {
    const std::int64_t border = control.Border ? std::abs(std::int64_t{control.Border}) : BORDER;
    const int inset = static_cast<int>(std::clamp<std::int64_t>(border, 0, WIDEST_INSET));
    return {std::max(control.Dim_X, 1), std::max(control.Dim_Y, 1), inset,
            static_cast<DWORD>(color.get_invert()),
            (Tool_Looks & 1) != 0 || (control.Flag & OUTIL_FLAT) != 0};
}

DWORD* surface_block(int width, int height) {
    const std::int64_t count = std::int64_t{width} * height;
    if (count < 1 || count > MOST_PIXELS) return nullptr;
    return static_cast<DWORD*>(std::malloc(static_cast<std::size_t>(count) * sizeof(DWORD)));
}

namespace {

// A block with the room for the look, filled where no picture is.
DWORD* look_block(const Look& look) {
    const std::int64_t count = std::int64_t{look.width} * look.height;
    if (count > MOST_PIXELS || look.room <= count) return surface_block(look.width, look.height);
    DWORD* pixels = surface_block(look.room, 1);
    if (pixels) std::fill_n(pixels + count, look.room - count, look.color);
    return pixels;
}

} // namespace

DWORD* paint_look(const Look& look) {
    DWORD* pixels = look_block(look);
    if (!pixels) return nullptr;
    const Inner inner = inner_of(look);
    if (look.flat || !inner.width) {
        std::fill_n(pixels, std::size_t(look.width) * look.height, look.color);
        return pixels;
    }
    // The margin is filled with the face's colour, for whoever shows it all the same.
    DWORD* row = pixels;
    for (int y = 0; y < look.height; y++, row += look.width) {
        const bool crossed = y >= inner.top && y < inner.top + inner.height;
        std::fill_n(row, crossed ? inner.left : look.width, look.color);
        if (crossed) std::fill_n(row + inner.left + inner.width, look.inset, look.color);
    }
    shade(pixels, look, inner);
    return pixels;
}

} // namespace brask
