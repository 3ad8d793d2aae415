#ifndef RASTER_MIX_H
#define RASTER_MIX_H

#include <cstddef>
#include <cstdint>

#include "ink.h"

// How two colours mix, for one pixel and for many; see images.h for the rule.
namespace raster {

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

// Mixes one colour into a row by coverage bytes.
void mix_row(std::uint32_t* to, const std::uint8_t* coverage, int count, std::uint32_t color);
// The same for eights of pixels, whose places count from `to`.
void mix_eights(std::uint32_t* to, int pitch, const Eight* eights, std::size_t count, std::uint32_t color);

} // namespace raster

#endif
