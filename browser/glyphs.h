#ifndef BROWSER_GLYPHS_H
#define BROWSER_GLYPHS_H

#include <brask/fenn.h>

#include "foundation/palette.h"
#include "foundation/pixels.h"

namespace brask {

inline constexpr unsigned long GLYPH_RED = 0xFF;

// One line; its end point is not painted.
inline void stroke(int x1, int y1, int x2, int y2) {
    move2s(bits(x1), bits(y1));
    draw2s(bits(x2), bits(y2), 0);
}

} // namespace brask

#endif
