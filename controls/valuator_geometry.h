#ifndef CONTROLS_VALUATOR_GEOMETRY_H
#define CONTROLS_VALUATOR_GEOMETRY_H

#include <brask/valuators.h>

#include "foundation/pixels.h"

namespace brask {

// The lengths and rectangles of a value bar: painting, hit test and tests go by the same ones.

// How far the thumb can move: the track without bevels, thumb and numeric field; below 0 in a short bar.
int valuator_play(const Valuators& bar);
// The thumb for its offset from Posit.
Area valuator_thumb(const Valuators& bar, int offset);

// Where the face is painted, and the number that insets it there: the bar without its numeric field.
struct Valuator_Face {
    int inset;
    Area area;
};
Valuator_Face valuator_face(const Valuators& bar);

// Where a text is placed: left, bottom, width and height.
struct Valuator_Text {
    int x, y, dx, dy;
};
Valuator_Text valuator_name(const Valuators& bar);
Valuator_Text valuator_number(const Valuators& bar);
// What is wiped before a new number is written.
Area valuator_field(const Valuators& bar);
// The frame around the track beside a numeric field.
Area valuator_inner_frame(const Valuators& bar);

// The padlock on the thumb: its side, 0 where there is no room for one, and its lower left corner.
struct Valuator_Lock {
    int side;
    int x, y;
};
Valuator_Lock valuator_lock(const Valuators& bar, const Area& thumb);

} // namespace brask

#endif
