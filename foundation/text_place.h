#ifndef FOUNDATION_TEXT_PLACE_H
#define FOUNDATION_TEXT_PLACE_H

#include <brask/tools.h>

#include "foundation/pixels.h"

namespace brask {

// Where Tools::Text puts what it writes. Pure functions of the rectangle x, y, dx, dy and of what was
// measured.

// The border is at least so wide for placing; the clip goes by the border as given.
inline int text_border(int border) { return border < 2 ? 2 : border; }

// Is nothing of the rectangle inside the control's clip rectangle?
bool text_hidden(const Tools& control, int x, int y, int dx, int dy, int border);

// The rectangle that the text is clipped to: the lower left corner and the size.
struct Text_Clip {
    int x, y, width, height;
};
Text_Clip text_clip(const Tools& control, int x, int y, int dx, int dy, int border);

// Start of a line of `width` pixels in a font of `height` pixels; b is text_border().
int line_x(long flag, int x, int dx, int b, int width);
int line_y(long flag, int y, int dy, int b, int height);

// Stacked letters: the column's middle, `wide` being the width of a wide letter, and the row of the first of
// `count` letters.
int stack_x(long flag, int x, int dx, int b, int wide);
int stack_y(long flag, int y, int dy, int b, int count, int height);

} // namespace brask

#endif
