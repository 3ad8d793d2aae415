#ifndef FOUNDATION_LAYOUT_H
#define FOUNDATION_LAYOUT_H

#include <brask/tools.h>

#include "foundation/pixels.h"

namespace brask {

// The steps that the controls' Init operations share.

// A control cannot be black by way of its face colour: black stands for the default grey.
void default_color(Tools& control);
// The hit rectangle: the far edges of the control count as inside.
void set_region(Tools& control);

// Which of the looks an Init has to choose a surface for; `wnd` is its argument.
struct Anew {
    bool normal, select;
};
Anew surfaces_anew(const Tools& control, HWND wnd);
// Is the face colour another one than at the last Init?
bool recolored(const Tools& control);
// What the next Init compares with: size, bevel and colour; and in the second form the surfaces as well.
void remember_shape(Tools& control);
void remember_surfaces(Tools& control);
// The next Init has a reason to make every face anew: memory was short for one.
void forget_shape(Tools& control);

// The whole control, as left, right, bottom, top.
Area whole_area(const Tools& control);
// The bevel's width as it stands, with its sign.
inline int bevel_width(const Tools& control) { return control.Border ? control.Border : BORDER; }

} // namespace brask

#endif
