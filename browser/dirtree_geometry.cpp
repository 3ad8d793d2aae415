#include "browser/dirtree_geometry.h"

#include <algorithm>

namespace brask {

namespace {

// The metrics, which a host may have set to any number.
struct Metrics {
    Px border = BORDER, space = SPACE, slider = CURSEUR, button = BUT_DIM;
};

struct Spot {
    explicit Spot(const Tools& part) : x(part.Pos_X), y(part.Pos_Y), width(part.Dim_X), height(part.Dim_Y) {}
    Px x, y, width, height;
};

} // namespace

Place frame_place(const DirTrees& tree) {
    const Spot whole(tree);
    return {whole.x + 1, whole.y + 1, whole.width - 2, whole.height - 2};
}

// As wide as the whole less two gaps, so that the right one is 2 pixels narrower: required so.
Place inner_place(const DirTrees& tree) {
    const Metrics m;
    const Spot whole(tree), frame(tree.Box_Frame);
    return {frame.x + m.space, frame.y + m.button + m.space, whole.width - 2 * m.space,
            frame.height - 2 * m.space - m.button};
}

Place vertical_place(const DirTrees& tree) {
    const Metrics m;
    const Spot inner(tree.Box_Inner);
    return {inner.x + inner.width - m.slider - m.space, inner.y + m.slider + 2 * m.space, m.slider,
            inner.height - 3 * m.space - m.border - m.slider - m.button};
}

Place horizontal_place(const DirTrees& tree) {
    const Metrics m;
    const Spot inner(tree.Box_Inner);
    return {inner.x + m.space, inner.y + m.space, inner.width - 3 * m.space - m.slider, m.slider};
}

Place rows_place(const DirTrees& tree) {
    const Metrics m;
    const Spot inner(tree.Box_Inner);
    return {inner.x + m.border + 2, inner.y + m.border + m.slider + m.space,
            inner.width - 2 * m.border - 2 - m.slider - m.space,
            inner.height - 3 * m.border - m.slider - m.button - m.space - 2};
}

Place refresh_place(const DirTrees& tree) {
    const Metrics m;
    const Spot inner(tree.Box_Inner), rows(tree.Box_Tree);
    return {inner.x + m.space, rows.y + rows.height + m.border, inner.width - 2 * m.space, m.button - 3};
}

Dir_View dir_view(const DirTrees& tree) {
    const Spot rows(tree.Box_Tree);
    const float down = tree.Cursor_V.Cur_Value;
    const Px last = 1 - Px(cut((static_cast<float>(tree.Box_Tree.Dim_Y) + down) / -ROW_HEIGHT));
    Dir_View view;
    view.first = std::max(0, cut(down / ROW_HEIGHT));
    view.end = std::min<int>(tree.NbList, last);
    view.bottom = rows.y + rows.height - ROW_HEIGHT + Px(cut(down)) - SPACE;
    view.left = rows.x + 2 * Px(SPACE) - Px(cut(tree.Cursor_H.Cur_Value));
    return view;
}

int row_y(const Dir_View& view, int row) { return Px(view.bottom) - ROW_HEIGHT * Px(row); }

int cell_x(const Dir_View& view, int column) { return Px(view.left) + ROW_HEIGHT * Px(column); }

int row_extent(const DirTrees& tree, int depth, int text) {
    return Px(tree.Box_Tree.Pos_X) + 2 * (9 * (Px(depth) + 1) + SPACE) + text;
}

// The column goes by the panel and not by the rows' own box, and so by the bevel's standard width: required
// so.
Dir_Cell cell_at(const DirTrees& tree, POINT pointer) {
    const Spot rows(tree.Box_Tree);
    const Px down = cut(tree.Cursor_V.Cur_Value);
    const int from_top = rows.y + rows.height - SPACE + down - Px(static_cast<int>(pointer.y)) - 4;
    const float from_left = static_cast<float>(pointer.x) + tree.Cursor_H.Cur_Value -
                            static_cast<float>(tree.Box_Inner.Pos_X) - static_cast<float>(2 * Px(SPACE)) -
                            5.0f;
    return {from_top / ROW_HEIGHT, cut(from_left / ROW_HEIGHT)};
}

} // namespace brask
