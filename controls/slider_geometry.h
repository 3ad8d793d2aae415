#ifndef CONTROLS_SLIDER_GEOMETRY_H
#define CONTROLS_SLIDER_GEOMETRY_H

#include <brask/sliders.h>

#include "foundation/pixels.h"

namespace brask {

// The lengths and rectangles of a slider, one code for both directions: painting, hit test and tests go by
// the same ones.

// Length of an end arrow, as a press is tested against it.
int slider_arrow(const Sliders& slider);
// How far the thumb can move: the track without both arrows, bevels and the thumb; below 0 in a short slider.
int slider_play(const Sliders& slider);
// The thumb for its offset from Posit.
Area slider_thumb(const Sliders& slider, int offset);

} // namespace brask

#endif
