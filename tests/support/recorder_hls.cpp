#include <algorithm>
#include <cmath>

#include <brask/fenn.h>

// Hue, lightness and saturation, in the usual double-cone model; all channels 0 to 1.

void RGB_to_HLS(float r, float g, float b, float* h, float* l, float* s) {
    const float top = std::max({r, g, b}), low = std::min({r, g, b}), span = top - low;
    *l = (top + low) / 2;
    *h = *s = 0;
    if (span == 0) return;
    const float room = *l <= 0.5f ? top + low : 2 * (1 - *l);
    *s = room > 0 ? span / room : 1;
    const float sixth = top == r ? (g - b) / span : top == g ? 2 + (b - r) / span : 4 + (r - g) / span;
    *h = sixth / 6 - std::floor(sixth / 6);
}

static float on_circle(float low, float high, float hue) {
    hue = (hue - std::floor(hue)) * 6;
    if (hue < 1) return low + (high - low) * hue;
    if (hue < 3) return high;
    if (hue < 4) return low + (high - low) * (4 - hue);
    return low;
}

static float channel(float low, float high, float hue) {
    return std::min(std::max(0.0f, on_circle(low, high, hue)), 1.0f);
}

void HLS_to_RGB(float h, float l, float s, float* r, float* g, float* b) {
    const float high = l <= 0.5f ? l * (1 + s) : l + s * (1 - l), low = 2 * l - high;
    *r = channel(low, high, h + 1.0f / 3);
    *g = channel(low, high, h);
    *b = channel(low, high, h - 1.0f / 3);
}
