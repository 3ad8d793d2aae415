#include "console/geometry.h"

#include <algorithm>

#include "console/store.h"

namespace brask {

namespace {

bool has_strip(const Texts& console) { return (console.Flag & TEXTS_READ_STRIP) || console.flag_read; }

// The name's strip with the gap above it.
Px name_room(const Texts& console) { return console.W_Name ? Px(SPACE) + NAME_HEIGHT : Px(0); }

// The inset of the sliders: the bevel's width, but no less than 2 where the host gives one.
Px slider_inset(const Texts& console) { return console.Border ? std::max(console.Border, 2) : BORDER; }

// A slider with nothing to scroll is disabled, and its value means nothing.
int shift_of(const Sliders& slider, bool there) {
    if (!there || slider.Flag & OUTIL_DISABLE) return 0;
    return -Px(cut(slider.Cur_Value));
}

} // namespace

Area strip_area(const Texts& console) {
    const Area whole = whole_area(console);
    if (console.Flag & TEXTS_FIELD) return whole;
    const Px b = bevel_width(console);
    return {Px(whole.x1) + 2 * b, Px(whole.x2) - 2 * b, Px(whole.y1) + 2 * b,
            Px(whole.y1) - 1 + console.Font_Dim_Y + 4 * b};
}

// The room beside the sliders goes by the standard thickness, whatever theirs is: required so.
Place log_place(const Texts& console) {
    const Px b = bevel_width(console), beside = Px(CURSEUR) + SPACE;
    Px x = Px(console.Pos_X) + 1 + b, y = Px(console.Pos_Y) + b;
    Px width = console.Dim_X - 2 * b - 1, height = console.Dim_Y - 2 * b - 1 - name_room(console);
    if (console.Flag & TEXTS_CURSOR_V) x = x + beside, width = width - beside;
    if (console.Flag & TEXTS_CURSOR_H) y = y + beside, height = height - beside;
    if (has_strip(console)) {
        const Px strip = console.Font_Dim_Y + 3 * b;
        y = y + strip, height = height - strip;
    }
    return {x, y, width, height};
}

int shift_x(const Texts& console) { return shift_of(console.Cursor_H, (console.Flag & TEXTS_CURSOR_H) != 0); }
int shift_y(const Texts& console) { return shift_of(console.Cursor_V, (console.Flag & TEXTS_CURSOR_V) != 0); }

Line_Range lines_between(const Texts& console, std::int64_t low, std::int64_t high) {
    const std::int64_t step = console.Font_Dim_Y, first = shift_y(console);
    if (low > high) return {0, 0};
    if (!step) return first < low || first > high ? Line_Range{0, 0} : Line_Range{0, LOG_ROOM};
    const std::int64_t way = step > 0 ? step : -step;
    const std::int64_t to_begin = step > 0 ? low - first : first - high;
    const std::int64_t to_end = step > 0 ? high - first : first - low;
    const auto held = [](std::int64_t index) {
        return static_cast<int>(std::min<std::int64_t>(index, LOG_ROOM));
    };
    return {to_begin <= 0 ? 0 : held((to_begin + way - 1) / way), to_end < 0 ? 0 : held(to_end / way + 1)};
}

Slider_Rooms slider_rooms(const Texts& console, const Extent& content) {
    const Px b = slider_inset(console), thick = length_or(console.Cursor_Dim, CURSEUR);
    const Px beside = thick + SPACE / 2;
    const Px strip = has_strip(console) ? Px(console.Font_Dim_Y) + 1 + 2 * b : Px(0);
    const Px right = console.Flag & TEXTS_CURSOR_V ? beside : Px(0);
    const Px up = console.Flag & TEXTS_CURSOR_H ? beside : Px(0);
    const Px width = console.Dim_X - 4 * b - 2 - right;
    const Px height = console.Dim_Y - 4 * b - 2 - name_room(console) - up - strip;
    const Px x = Px(console.Pos_X) + SPACE, y = Px(console.Pos_Y) + SPACE + strip;
    return {{{x, y + up, thick, height}, height, content.height},
            {{x + right, y, width, thick}, width, content.width}};
}

Area clipped(const Texts& console, const Area& area) {
    if (!console.Clip_Dim_X) return area;
    return {
        std::max(area.x1, console.Clip_X), std::min<int>(area.x2, Px(console.Clip_X) + console.Clip_Dim_X),
        std::max(area.y1, console.Clip_Y), std::min<int>(area.y2, Px(console.Clip_Y) + console.Clip_Dim_Y)};
}

} // namespace brask
