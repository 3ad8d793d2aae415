#ifndef CONTROLS_RANGE_H
#define CONTROLS_RANGE_H

#include <brask/tools.h>

#include "foundation/pixels.h"

namespace brask {

// What the controls over a float range, slider and value bar, have in common: the direction of the track,
// the arithmetic of the value, and what one pointer event does.

// The track's direction: where it starts, how long it is, and how thick the control across it.
struct Axis {
    bool vertical;
    Px start, length, thick;
};
Axis axis_of(const Tools& control);
// How far a point of the window lies along the track.
int offset_along(const Tools& control, POINT pointer);

// Under OUTIL_REVERSE the start of the track is the greater end.
inline bool reversed(const Tools& control) { return (control.Flag & OUTIL_REVERSE) != 0; }
// The value inside its range; what is no number goes to the upper end.
float into_range(const Tools& control, float value, float val_min, float val_max);
// part / whole; 0 where that has no value.
float ratio(float part, float whole);
// Values in even steps by running addition: the last one may miss `last` by rounding.
void fill_evenly(float* table, int count, float first, float last);

// Is all of it visible at once? The sign does not count.
bool shows_all(float visible, float total);
// Half the length of a thumb that is to `room` as visible is to total, and no less than `least`.
int thumb_share(float visible, float total, int room, int least);

// What one event does, apart from painting. `paint`: the face, in the look told by `selected`, and the thumb.
struct Press {
    const char* way; // the tag of the way out; null: it is the result
    int result;
    bool touched;
    bool paint, selected;
};
Press follow_press(const Tools& control, int event, bool inside, int& select, int& held);
// The end of a press. The tag of the way out; null: the normal look is to be painted.
const char* end_press(const Tools& control, int select, int& held);

} // namespace brask

#endif
