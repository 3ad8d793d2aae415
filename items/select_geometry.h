#ifndef ITEMS_SELECT_GEOMETRY_H
#define ITEMS_SELECT_GEOMETRY_H

#include <brask/selects.h>

#include "foundation/compound.h"

namespace brask {

// The rectangles of a spinner: painting, hit test and tests go by the same ones.

// What the name takes, in the control's font; all 0 without a name.
struct Name_Size {
    int width, letter, height; // letter: the gap between name and zone, as wide as an "X"
};

// Length of an arrow zone when the host gives none.
int select_arrow(const Selects& control);
// The value zone with its arrows.
Place select_zone(const Selects& control, const Name_Size& name);
// What the arrows leave of the zone: the rectangle of every item.
Place select_value(const Selects& control);

// Which way a press at this point steps: 1 forward, -1 backward, 0 not on an arrow. The low end steps forward
// in a vertical control and backward in a horizontal one, as a list is read from the top.
int select_step(const Selects& control, POINT pointer);

} // namespace brask

#endif
