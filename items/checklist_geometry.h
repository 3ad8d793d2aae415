#ifndef ITEMS_CHECKLIST_GEOMETRY_H
#define ITEMS_CHECKLIST_GEOMETRY_H

#include <brask/checklists.h>

#include "foundation/compound.h"

namespace brask {

// The rectangles of a check list: painting, hit test and tests go by the same ones.

// What the texts take, in the control's font.
struct Check_Widths {
    int label; // the widest one; 0 when a single letter's width is enough
    int name;  // 0 where the name does not stand at the left
};

struct Check_Layout {
    int rows, columns;
    int x, y;       // of the first cell: left of the first column, bottom of the top row
    int cell_width; // of a column
    int row;        // height of a row
    int need;       // height that the control needs
};
// Of at least one entry; Box, Char_Dim and Font_Dim are set.
Check_Layout check_layout(const CheckLists& control, const Check_Widths& widths, int count);

// The cell of an entry, which holds its text and is hit; and the box in it. Columns are filled one by one.
Place check_cell(const Check_Layout& layout, int index);
Place check_box(const Check_Layout& layout, int index);

// Where a box shows its face, as an inset of its rectangle, and where its check mark is painted.
int check_inset(const Buttons& box);
Area check_mark(const Buttons& box);

} // namespace brask

#endif
