#ifndef COLOR_WORDS_H
#define COLOR_WORDS_H

#include <brask/tools.h>

namespace brask {

// A colour as three components, about 0 to 1: red, green and blue, or hue, lightness and saturation.
struct Components {
    float first, second, third;
};

// Of a drawing word. The half that is added to each byte lets the way back give the same byte; so 255 is a
// little above 1.
Components rgb_of(DWORD word);
Components hls_of(DWORD word);
// The drawing word, alpha 255.
DWORD word_of_rgb(const Components& color);
DWORD word_of_hls(const Components& color);

// The surface word of a drawing word.
DWORD surface_word(DWORD word);

} // namespace brask

#endif
