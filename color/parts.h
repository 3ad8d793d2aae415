#ifndef COLOR_PARTS_H
#define COLOR_PARTS_H

#include <brask/boxs.h>
#include <brask/valuators.h>

#include "color/words.h"
#include "foundation/compound.h"

namespace brask {

// What the two colour editors do alike with the controls that they are made of.

// Was the editor given another size since its last Init?
inline bool resized(const Tools& editor) {
    return editor.Dim_X != editor.Old_Dim_X || editor.Dim_Y != editor.Old_Dim_Y;
}

// Gives the part a surface of its size, of one surface word, where it has none or, with `anew` or at another
// size, instead of the one that it has. False: there is none, and nothing names one.
bool ready_surface(Tools& part, bool anew, DWORD word);

// The colour of one column of a ramp, a surface word; `step` is one part of its width.
using Ramp = DWORD (*)(float column, float step);
// Hues from red to red.
DWORD hue_ramp(float column, float step);
// Lays a ramp under a bar, for both looks.
void lay_ramp(Valuators& bar, bool anew, Ramp ramp);
// The range that all bars of the editors have.
void set_range(Valuators& bar);

// Shows the colour, a drawing word, on the swatch.
void show_swatch(Boxs& swatch, DWORD color);

} // namespace brask

#endif
