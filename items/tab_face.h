#ifndef ITEMS_TAB_FACE_H
#define ITEMS_TAB_FACE_H

#include <brask/tabs.h>

#include "foundation/pixels.h"

namespace brask {

// Paints the face of a tab that has no surface, with its edges, inside an open bracket. `middle` is the
// straight part between the slanted ends.
void paint_tab_face(const TabItems& tab, bool selected, const Area& middle);

// The colour of a tab that is not on top, and of the outline look.
unsigned long darker(const Colors& color);

} // namespace brask

#endif
