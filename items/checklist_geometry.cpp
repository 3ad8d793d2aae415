#include "items/checklist_geometry.h"

#include <algorithm>

#include "foundation/layout.h"

namespace brask {

namespace {

struct Grid {
    int rows, columns;
};

// How many of a size go into a room, at least 1 and no more than there are.
int fitting(Px room, Px size, int count) {
    return std::clamp(room / std::max<int>(size, 1), 1, std::max(count, 1));
}
// How many of one are needed for `count` with so many in each.
int needed(int count, int each) { return (count - 1) / each + 1; }

Grid grid_of(const CheckLists& control, int count, Px room_x, Px room_y, Px width, Px row) {
    if (control.Flag & CHECK_HORIZONTAL) {
        const int rows = needed(count, fitting(room_x, width, count));
        return {rows, needed(count, rows)}; // evened: five in room for four columns make rows of three
    }
    if (control.Flag & OUTIL_VERTICAL) return {count, 1};
    const int rows = fitting(room_y, row, count);
    return {rows, needed(count, rows)};
}

} // namespace

Check_Layout check_layout(const CheckLists& control, const Check_Widths& widths, int count) {
    const Px b = bevel_size(control), edges = 2 * b + 4;
    const Px row = length_or(control.Row_Dim, Px(control.Font_Dim) + 2);
    const Px width = std::max<int>(control.Char_Dim, widths.label) + 2 * (Px(SPACE) - 2) + row;
    const bool name_row = control.W_Name && !(control.Flag & TEXT_MIDDLE);
    const Px name = name_row ? 2 * b + control.Font_Dim : Px(0);
    const Px room_x = control.Box.Dim_X - edges, room_y = control.Box.Dim_Y - edges - name;
    const Grid grid = grid_of(control, count, room_x, room_y, width, row);
    const Px rest = control.Flag & CHECK_NO_CENTER ? Px(0) : room_y - row * grid.rows;
    // A name at the left is not taken off the columns: the last one may pass the frame. Required so.
    const bool beside = control.W_Name && control.Flag & TEXT_LEFT;
    const Px shift = beside ? Px(widths.name) + SPACE : Px(0);
    return {grid.rows,
            grid.columns,
            Px(control.Box.Pos_X) + 2 + b + shift,
            Px(control.Box.Pos_Y) + 2 + rest / 2 + Px(grid.rows - 1) * row + b,
            room_x / grid.columns,
            row,
            2 * b + 6 + name + row * grid.rows};
}

Place check_cell(const Check_Layout& layout, int index) {
    const int column = index / layout.rows, row = index % layout.rows;
    return {Px(layout.x) + Px(layout.cell_width) * column, Px(layout.y) - Px(layout.row) * row,
            layout.cell_width, layout.row};
}

Place check_box(const Check_Layout& layout, int index) {
    const Place cell = check_cell(layout, index);
    const Px size = Px(layout.row) - 4;
    return {Px(cell.x) + 1, Px(cell.y) + 1, size, size};
}

int check_inset(const Buttons& box) { return Px(bevel_width(box)) + 1; }

Area check_mark(const Buttons& box) {
    const Area whole = whole_area(box);
    const Px b = bevel_width(box);
    return {b + whole.x1 + 1, Px(whole.x2) - b, b + whole.y1, Px(whole.y2) - b - 1};
}

} // namespace brask
