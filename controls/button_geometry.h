#ifndef CONTROLS_BUTTON_GEOMETRY_H
#define CONTROLS_BUTTON_GEOMETRY_H

#include <brask/buttons.h>

#include "foundation/layout.h"

namespace brask {

// The rectangles of a button: painting and tests go by the same ones.

// The bevel's width, without its sign.
int button_bevel(const Buttons& button);

// The lamp: the fill lies inside its frame by the width of the frame's bevel.
struct Button_Lamp {
    int bevel;
    Area frame, fill;
};
Button_Lamp button_lamp(const Buttons& button);

// Where the label is placed: left, bottom, width and height.
struct Button_Label {
    int x, y, dx, dy;
};
Button_Label button_label(const Buttons& button);

} // namespace brask

#endif
