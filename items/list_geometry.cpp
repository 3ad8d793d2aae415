#include "items/list_geometry.h"

#include <algorithm>
#include <cstdint>

#include "items/item_array.h"

namespace brask {

namespace {

constexpr int INSET = 5;        // what BOX_INSET takes at the left and at the bottom
constexpr int INSET_BOTH = 11;  // and in all
constexpr int SCROLL_SLACK = 5; // beyond the last item, so that it comes wholly into view

bool vertical(const Lists& list) { return (list.Flag & OUTIL_VERTICAL) != 0; }

Place content_of(const Lists& list) {
    if (!(list.Flag & BOX_INSET)) return {list.Pos_X, list.Pos_Y, list.Dim_X, list.Dim_Y};
    return {Px(list.Pos_X) + INSET, Px(list.Pos_Y) + INSET, Px(list.Dim_X) - INSET_BOTH,
            Px(list.Dim_Y) - INSET_BOTH};
}

// The slider stands at the left of the items, as thick as it is and as long as there is room.
List_Layout lay_vertical(const Place& content, const List_Sizes& sizes, int count) {
    const Px x = content.x, y = content.y, dx = content.width, dy = content.height;
    const Px b = sizes.border, edge = b + 2;
    const Px room = dy - 2 * edge - sizes.name, share = room / count;
    List_Layout layout = {};
    layout.scrolls = share < Px(sizes.item) + 1;
    const Px height = layout.scrolls ? Px(sizes.item) : share - 1;
    const Px beside = layout.scrolls ? edge + sizes.slider : Px(0);
    const Px first = y - 2 + dy - height - b - sizes.name, step = height + 1;
    layout.first = {x + edge + beside, first, dx - 2 * edge - beside, height};
    layout.step_y = -step;
    layout.slider = {x + edge, y + edge, sizes.slider, room};
    layout.val_max = first;
    layout.val_min = first + step * count - room + SCROLL_SLACK;
    layout.notch = step;
    layout.shown = room;
    layout.total = -step * count;
    return layout;
}

// As wide as a whole number of columns allows, each with room for the widest name.
Px column_width(Px room, Px least) {
    const Px columns = room / std::max<int>(least, 1);
    return room > least ? Px(room / std::max<int>(columns, 1)) - 1 : room;
}

// The slider lies under the items.
List_Layout lay_horizontal(const Place& content, const List_Sizes& sizes, int count, int widest) {
    const Px x = content.x, y = content.y, dx = content.width, dy = content.height;
    const Px edge = Px(sizes.border) + 2;
    const Px room = dx - 2 * edge, share = room / count, need = Px(widest) + 2 * edge;
    List_Layout layout = {};
    layout.scrolls = share - 1 < need;
    const Px width = layout.scrolls ? column_width(room, need + SPACE) : share - 1;
    const Px step = width + 1;
    // The row of items that fit is centred, and loses one pixel at the top.
    layout.first =
        layout.scrolls
            ? Place{x + edge, y + 2 * edge + sizes.slider, width, dy - 3 * edge - sizes.slider - sizes.name}
            : Place{x + (dx - share * count) / 2, y + edge, width, dy - 2 * edge - 1 - sizes.name};
    layout.step_x = step;
    layout.slider = {x + edge, y + edge, room, sizes.slider};
    layout.val_min = layout.first.x;
    layout.val_max = Px(layout.first.x) - step * count - SCROLL_SLACK + room;
    layout.notch = step;
    layout.shown = room;
    layout.total = step * count;
    return layout;
}

// The rows whose position in the scrolling direction may lie from `low` to `high`.
Rows rows_between(const Lists& list, std::int64_t low, std::int64_t high) {
    const std::int64_t count = std::max(list.NbItem, 0);
    const std::int64_t step = list.Step_X ? list.Step_X : list.Step_Y;
    const std::int64_t first = list.Step_X ? list.First_X : list.First_Y;
    const bool usual = list.Step_X ? step > 0 : step < 0;
    const std::int64_t last = first + step * (count - 1);
    // Items without an extent, or so many that their positions wrap, may lie anywhere.
    if (!usual || last != static_cast<int>(last)) return {0, static_cast<int>(count)};
    const std::int64_t way = step > 0 ? step : -step;
    const std::int64_t to_begin = step > 0 ? low - first : first - high;
    const std::int64_t to_end = step > 0 ? high - first : first - low;
    const std::int64_t begin = to_begin <= 0 ? 0 : std::min((to_begin + way - 1) / way, count);
    const std::int64_t end = to_end < 0 ? 0 : std::min(to_end / way + 1, count);
    return {static_cast<int>(begin), static_cast<int>(end)};
}

// No further than there are items.
Rows with_items(const Lists& list, Rows rows) {
    rows.end = item_count(list.Item, rows.end);
    return rows;
}

} // namespace

List_Sizes list_sizes(const Lists& list, int font_height) {
    return {bevel_size(list), length_or(list.Slider_Dim, CURSEUR), length_or(list.Item_Dim, BUT_LIST),
            list.W_Name ? Px(font_height) + LIST_NAME_GAP : Px(0)};
}

int list_height(const List_Sizes& sizes, int font_height) {
    return Px(LIST_NAME_GAP) + 6 * Px(sizes.border) + 4 + font_height;
}

List_Layout list_layout(const Lists& list, const List_Sizes& sizes, int count, int widest) {
    const Place content = content_of(list);
    return vertical(list) ? lay_vertical(content, sizes, count)
                          : lay_horizontal(content, sizes, count, widest);
}

// BOX_INSET is not asked here: required so.
Area list_view(const Lists& list, const List_Sizes& sizes) {
    const Px x = list.Pos_X, y = list.Pos_Y, b = sizes.border;
    Area view = {x + 2 + b, x + list.Dim_X - 1 - b, y + 2 + b, y + list.Dim_Y - 1 - b - sizes.name};
    if (!list.Slider.Dim_X) return view;
    if (vertical(list))
        view.x1 = Px(view.x1) + 2 + list.Slider.Dim_X + b;
    else
        view.y1 = Px(view.y1) + 2 + list.Slider.Dim_Y + b;
    return view;
}

Area list_tracking(const Lists& list, const List_Sizes& sizes) {
    const Area view = list_view(list, sizes);
    return {view.x1, Px(view.x2) - 1, view.y1, Px(view.y2) - 1};
}

bool lies_within(const Tools& item, const Area& area) {
    return area.x1 <= item.Pos_X && area.y1 <= item.Pos_Y && Px(item.Pos_X) + item.Dim_X <= area.x2 &&
           Px(item.Pos_Y) + item.Dim_Y <= area.y2;
}

// Stores only, so that the processor runs ahead from item to item; counting or asking for memory in advance
// slows that down.
int place_items(const Lists& list) {
    Buttons* const* const items = list.Item;
    const int limit = items ? list.NbItem : 0;
    const Px step_x = list.Step_X, step_y = list.Step_Y;
    Px x = list.First_X, y = list.First_Y;
    int i = 0;
    for (; i < limit && items[i]; i++, x = x + step_x, y = y + step_y) {
        items[i]->Pos_X = x;
        items[i]->Pos_Y = y;
    }
    return i;
}

Rows rows_in(const Lists& list, const Area& area) {
    const Rows rows =
        list.Step_X ? rows_between(list, area.x1, area.x2) : rows_between(list, area.y1, area.y2);
    return with_items(list, rows);
}

// An item is as long as one step less the gap.
Rows rows_at(const Lists& list, POINT point) {
    const std::int64_t at = list.Step_X ? point.x : point.y;
    const std::int64_t step = list.Step_X ? list.Step_X : list.Step_Y;
    return with_items(list, rows_between(list, at - (step > 0 ? step : -step), at));
}

} // namespace brask
