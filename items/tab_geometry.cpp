#include "items/tab_geometry.h"

namespace brask {

Tab_Outline tab_outline(const TabItems& tab, const Area& area) {
    const Px slant = tab.Slant, left = area.x1, right = area.x2, base = area.y1, top = area.y2;
    return {{{left, base + 1}, {left + slant, top - 1}, {right - slant, top - 1}, {right, base + 1}}};
}

Area tab_middle(const TabItems& tab) {
    const Px slant = tab.Slant, left = tab.Pos_X, base = tab.Pos_Y;
    return {left + slant, left + tab.Dim_X - slant, base, base + tab.Dim_Y};
}

} // namespace brask
