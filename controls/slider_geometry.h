#ifndef CONTROLS_SLIDER_GEOMETRY_H
#define CONTROLS_SLIDER_GEOMETRY_H

#include <brask/sliders.h>

#include "foundation/pixels.h"

namespace brask {

// The lengths and rectangles of a slider, one code for both directions: painting, hit test and tests go by
// the same ones.

// The track's direction: where it starts, how long it is, and how thick the slider across it.
struct Slider_Axis {
    bool vertical;
    Px start, length, thick;
};
Slider_Axis slider_axis(const Sliders& slider);

// Length of an end arrow, as a press is tested against it.
int slider_arrow(const Sliders& slider);
// How far the thumb can move: the track without both arrows, bevels and the thumb; below 0 in a short slider.
int slider_play(const Sliders& slider);
// How far a point of the window lies along the track.
int slider_offset(const Sliders& slider, POINT pointer);
// The thumb for its offset from Posit.
Area slider_thumb(const Sliders& slider, int offset);

} // namespace brask

#endif
