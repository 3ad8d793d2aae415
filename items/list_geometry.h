#ifndef ITEMS_LIST_GEOMETRY_H
#define ITEMS_LIST_GEOMETRY_H

#include <brask/lists.h>

#include "foundation/compound.h"

namespace brask {

// The rectangles of a list: painting, hit test and tests go by the same ones.

// More room for the name than its font is high.
inline constexpr int LIST_NAME_GAP = 0;

// The heights and widths that all of a list goes by.
struct List_Sizes {
    int border; // of the frame's bevel, without its sign
    int slider; // its thickness
    int item;   // least height of an item
    int name;   // of the row that the name takes; 0 without one
};
// `font_height` is that of the list's font.
List_Sizes list_sizes(const Lists& list, int font_height);

// The height that a single row needs, without a slider.
int list_height(const List_Sizes& sizes, int font_height);

struct List_Layout {
    bool scrolls;
    Place first;        // item 0, not scrolled; all items are as large
    int step_x, step_y; // from one item to the next
    Place slider;
    int val_min, val_max; // the slider's range: the position of item 0 in the scrolling direction
    int notch;            // one item
    int shown, total;     // what decides the thumb's length
};
// `widest`: the greatest width of a name. At least one item.
List_Layout list_layout(const Lists& list, const List_Sizes& sizes, int count, int widest);

// What shows items; an item is painted when it lies wholly in it.
Area list_view(const Lists& list, const List_Sizes& sizes);
// What tracks items: less at the right and at the top by a pixel, so that an item in the last column or row
// of the view is painted but not tracked. Required so.
Area list_tracking(const Lists& list, const List_Sizes& sizes);
bool lies_within(const Tools& item, const Area& area);

// Where an item is as the list is scrolled now.
inline void place_item(const Lists& list, int index) {
    Buttons& item = *list.Item[index];
    item.Pos_X = list.First_X + Px(list.Step_X) * index;
    item.Pos_Y = list.First_Y + Px(list.Step_Y) * index;
}

// Puts every item there; how many there are.
int place_items(const Lists& list);

// The items, from `begin` to before `end`, whose position may lie between the far ends of an area; only these
// need be looked at.
struct Rows {
    int begin, end;
};
Rows rows_in(const Lists& list, const Area& area);
// Those whose rectangle may hold a point.
Rows rows_at(const Lists& list, POINT point);

} // namespace brask

#endif
