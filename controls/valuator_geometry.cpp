#include "controls/valuator_geometry.h"

#include "controls/padlock.h"
#include "controls/range.h"
#include "foundation/layout.h"

namespace brask {

namespace {

constexpr int FRAME = 2; // what the inner frame takes beside the bevel

// From the edge of the bar to its thumb.
Px thumb_inset(const Valuators& bar) { return Px(bevel_width(bar)) + (bar.Format ? FRAME : 0); }

} // namespace

int valuator_play(const Valuators& bar) {
    const Axis axis = axis_of(bar);
    const Px field = axis.vertical ? 0 : bar.Num_Width;
    return axis.length - 2 * Px(bar.Larg) - 2 * Px(bevel_width(bar)) - field;
}

Area valuator_thumb(const Valuators& bar, int offset) {
    const Px inset = thumb_inset(bar), span = 2 * Px(bar.Larg) - 1;
    const Px left = Px(bar.Pos_X) + inset, bottom = Px(bar.Pos_Y) + inset;
    if (bar.Flag & OUTIL_VERTICAL) {
        const Px start = bottom + offset;
        return {left, left + bar.Dim_X - 2 * inset - bar.Num_Width, start, start + span};
    }
    const Px start = left + offset;
    return {start, start + span, bottom, bottom + bar.Dim_Y - 2 * inset};
}

Valuator_Face valuator_face(const Valuators& bar) {
    Area area = whole_area(bar);
    area.x2 = Px(area.x2) - bar.Num_Width;
    // The face gives way to the inner frame, which a bar without a border of its own does not have.
    return {Px(bevel_width(bar)) + (bar.Format && bar.Border ? FRAME : 0) + 1, area};
}

Valuator_Text valuator_name(const Valuators& bar) {
    return {bar.Pos_X, bar.Pos_Y, Px(bar.Dim_X) - bar.Num_Width, bar.Dim_Y};
}

Valuator_Text valuator_number(const Valuators& bar) {
    const Px right = Px(bar.Pos_X) + bar.Dim_X - bevel_width(bar);
    return {right - 1 - bar.Num_Width, bar.Pos_Y, bar.Num_Width, bar.Dim_Y};
}

Area valuator_field(const Valuators& bar) {
    const Area whole = whole_area(bar);
    const Px inset = Px(bevel_width(bar)) + FRAME;
    return {Px(whole.x2) - inset - bar.Num_Width, Px(whole.x2) - inset, Px(whole.y1) + inset,
            Px(whole.y2) - inset};
}

Area valuator_inner_frame(const Valuators& bar) {
    const Area field = valuator_field(bar);
    return {Px(bar.Pos_X) + FRAME + bevel_width(bar), field.x1, field.y1, field.y2};
}

Valuator_Lock valuator_lock(const Valuators& bar, const Area& thumb) {
    // A vertical thumb takes a padlock of just its extent, a horizontal one wants a pixel more.
    const Px room = Px(thumb.y2) - thumb.y1 - (bar.Flag & OUTIL_VERTICAL ? 0 : 1);
    const int side = padlock_side(room);
    // On a vertical thumb it stands off the middle: Larg does not run across that one. Required so.
    return {side, Px(thumb.x1) + bar.Larg - side / 2, Px((Px(thumb.y2) + thumb.y1) / 2) - side / 2};
}

} // namespace brask
