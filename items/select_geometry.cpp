#include "items/select_geometry.h"

#include <algorithm>

#include "foundation/layout.h"

namespace brask {
namespace {

bool vertical(const Selects& control) { return (control.Flag & OUTIL_VERTICAL) != 0; }

// The gap between the control's edge and its inside. The bevel keeps its sign here.
Px padding(const Selects& control) { return std::max<int>(Px(bevel_width(control)) + 2, 4); }

Place beside_name(const Selects& control, const Name_Size& name) {
    const Px p = padding(control), x = control.Pos_X, y = control.Pos_Y;
    const Px dx = control.Dim_X, dy = Px(control.Dim_Y) - 2 * p;
    if (control.Value_Dim) return {x + dx - 2 * p - control.Value_Dim, y + p, control.Value_Dim, dy};
    if (!control.W_Name) return {x + p, y + p, dx - 2 * p, dy};
    const Px taken = Px(name.width) + name.letter;
    if (control.Flag & TEXT_LEFT) return {x + 2 * p + taken, y + p, dx - 3 * p - taken, dy};
    if (control.Flag & TEXT_RIGHT) return {x + p, y + p, dx - 3 * p - taken, dy};
    return {x + p, y + p, dx - 2 * p, dy - name.height};
}

} // namespace

int select_arrow(const Selects& control) {
    const int along = vertical(control) ? control.Dim_Y : control.Dim_X;
    const int across = vertical(control) ? control.Dim_X : control.Dim_Y;
    return std::min<int>(across, Px(along / 2) - CURSEUR);
}

Place select_zone(const Selects& control, const Name_Size& name) {
    Place zone = beside_name(control, name);
    zone.width = std::max(zone.width, 0);
    zone.height = std::max(zone.height, 0);
    return zone;
}

Place select_value(const Selects& control) {
    const Px end = Px(control.Arrow_Dim) + padding(control);
    Place value = {control.Zone.Pos_X, control.Zone.Pos_Y, control.Zone.Dim_X, control.Zone.Dim_Y};
    int& start = vertical(control) ? value.y : value.x;
    int& length = vertical(control) ? value.height : value.width;
    start = Px(start) + end;
    length = Px(length) - 2 * end;
    value.width = std::max(value.width, 0);
    value.height = std::max(value.height, 0);
    return value;
}

int select_step(const Selects& control, POINT pointer) {
    const bool up = vertical(control);
    const Px offset = up ? Px(pointer.y) - control.Zone.Pos_Y : Px(pointer.x) - control.Zone.Pos_X;
    const Px length = up ? control.Zone.Dim_Y : control.Zone.Dim_X;
    if (offset < control.Arrow_Dim) return up ? 1 : -1;
    if (offset > length - control.Arrow_Dim) return up ? -1 : 1;
    return 0;
}

} // namespace brask
