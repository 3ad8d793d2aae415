#ifndef ITEMS_TAB_GEOMETRY_H
#define ITEMS_TAB_GEOMETRY_H

#include <brask/tabs.h>

#include "foundation/pixels.h"

namespace brask {

// The places of a tab: painting and tests go by the same ones.

struct Spot {
    int x, y;
};

// The trapezoid's corners: lower left, upper left, upper right, lower right.
struct Tab_Outline {
    Spot corner[4];
};
Tab_Outline tab_outline(const TabItems& tab, const Area& area);

// The straight middle, between the slanted ends.
Area tab_middle(const TabItems& tab);

// How the two ends are cut.
inline bool left_end_full(const TabItems& tab) { return tab.Shape >= 16; }
inline bool right_end_full(const TabItems& tab) { return (tab.Shape & 15) != 0; }

} // namespace brask

#endif
