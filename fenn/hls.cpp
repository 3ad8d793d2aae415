#include <algorithm>
#include <cmath>

#include <brask/fenn.h>

// Hue, lightness and saturation, all 0 to 1: the hue runs from red over green (1/3) and blue (2/3) back to
// red. Channels may be a little above 1, as the middle of the brightest byte is: there the saturation may
// pass 1, which leads back to the same channels.

namespace {

// One channel, between the darkest and the brightest value, by its distance on the circle of hues.
float on_circle(float low, float high, float hue) {
    hue -= std::floor(hue);
    if (hue < 1.0f / 6) return low + (high - low) * 6 * hue;
    if (hue < 1.0f / 2) return high;
    if (hue < 2.0f / 3) return low + (high - low) * 6 * (2.0f / 3 - hue);
    return low;
}

// Held between 0 and 1, so that a byte made of it never wraps; what is no number is 0.
float channel(float low, float high, float hue) {
    return std::min(std::max(0.0f, on_circle(low, high, hue)), 1.0f);
}

} // namespace

FENN_API void RGB_to_HLS(float r, float g, float b, float* h, float* l, float* s) {
    const float high = std::max({r, g, b});
    const float low = std::min({r, g, b});
    const float span = high - low;
    const float light = (high + low) / 2;
    float hue = 0; // of a grey, which has none
    float saturation = 0;
    if (span > 0) {
        // Nearly white with a channel above 1, and nearly black with one below 0, leave no room.
        const float room = light <= 0.5f ? high + low : (1 - high) + (1 - low);
        saturation = room > 0 ? span / room : 1;
        if (r == high)
            hue = (g - b) / span;
        else if (g == high)
            hue = 2 + (b - r) / span;
        else
            hue = 4 + (r - g) / span;
        hue /= 6;
        if (hue < 0) hue += 1;
    }
    if (h) *h = hue;
    if (l) *l = light;
    if (s) *s = saturation;
}

FENN_API void HLS_to_RGB(float h, float l, float s, float* r, float* g, float* b) {
    const float high = l <= 0.5f ? l * (1 + s) : l + s * (1 - l);
    const float low = 2 * l - high;
    if (r) *r = channel(low, high, h + 1.0f / 3);
    if (g) *g = channel(low, high, h);
    if (b) *b = channel(low, high, h - 1.0f / 3);
}
