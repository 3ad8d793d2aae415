#include "controls/box_geometry.h"

namespace brask {

namespace {

// The area less so many pixels on each side.
Area inside(const Area& area, int left, int right, int bottom, int top) {
    return {Px(area.x1) + left, Px(area.x2) - right, Px(area.y1) + bottom, Px(area.y2) - top};
}

} // namespace

Box_Face box_face(const Boxs& box) {
    const Area whole = whole_area(box);
    // 5 and 6: the inner frame has the same step at its bottom.
    if (box.Flag & BOX_INSET) return {Px(BORDER) + 1, inside(whole, 5, 5, 6, 5)};
    return {Px(bevel_width(box)) + 1, whole};
}

Area box_inner_frame(const Boxs& box) {
    if (box.Flag & BOX_RAISED) return inside(whole_area(box), 6, 6, 5, 6);
    return inside(whole_area(box), 5, 6, 6, 6);
}

} // namespace brask
