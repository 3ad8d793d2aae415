#ifndef CONTROLS_BOX_GEOMETRY_H
#define CONTROLS_BOX_GEOMETRY_H

#include <brask/boxs.h>

#include "foundation/layout.h"

namespace brask {

// The rectangles of a box: painting and tests go by the same ones.

// Where the face is painted, and the number that insets it there.
struct Box_Face {
    int inset;
    Area area;
};
Box_Face box_face(const Boxs& box);

// The inner frame of BOX_INSET.
Area box_inner_frame(const Boxs& box);

} // namespace brask

#endif
