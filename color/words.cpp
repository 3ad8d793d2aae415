#include "color/words.h"

#include <brask/fenn.h>

#include "foundation/pixels.h"

namespace brask {

namespace {

constexpr float component(DWORD byte) { return (static_cast<float>(byte & 255) + 0.5f) / 255.0f; }
constexpr DWORD byte(float component) { return static_cast<DWORD>(cut(component * 255.0f)) & 255; }

} // namespace

Components rgb_of(DWORD word) { return {component(word), component(word >> 8), component(word >> 16)}; }

Components hls_of(DWORD word) {
    const Components rgb = rgb_of(word);
    Components hls = {};
    RGB_to_HLS(rgb.first, rgb.second, rgb.third, &hls.first, &hls.second, &hls.third);
    return hls;
}

DWORD word_of_rgb(const Components& color) {
    return byte(color.first) | byte(color.second) << 8 | byte(color.third) << 16 | 0xFF000000;
}

DWORD word_of_hls(const Components& color) {
    Components rgb = {};
    HLS_to_RGB(color.first, color.second, color.third, &rgb.first, &rgb.second, &rgb.third);
    return word_of_rgb(rgb);
}

DWORD surface_word(DWORD word) { return (word & 0xFF00FF00) | (word & 255) << 16 | (word >> 16 & 255); }

} // namespace brask
