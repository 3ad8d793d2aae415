#include "controls/range.h"

#include <algorithm>
#include <cmath>

#include "foundation/track.h"

namespace brask {

Axis axis_of(const Tools& control) {
    if (control.Flag & OUTIL_VERTICAL) return {true, control.Pos_Y, control.Dim_Y, control.Dim_X};
    return {false, control.Pos_X, control.Dim_X, control.Dim_Y};
}

int offset_along(const Tools& control, POINT pointer) {
    const Axis axis = axis_of(control);
    return Px(static_cast<int>(axis.vertical ? pointer.y : pointer.x)) - axis.start;
}

float into_range(const Tools& control, float value, float val_min, float val_max) {
    const float low = reversed(control) ? val_max : val_min;
    const float high = reversed(control) ? val_min : val_max;
    return low >= value ? low : std::min(high, value);
}

float ratio(float part, float whole) {
    const float result = whole == 0.0f ? 0.0f : part / whole;
    return std::isfinite(result) ? result : 0.0f;
}

void fill_evenly(float* table, int count, float first, float last) {
    const float step = count > 1 ? (last - first) / static_cast<float>(count - 1) : 0.0f;
    float value = first;
    for (int i = 0; i < count; i++, value += step)
        table[i] = value;
}

bool shows_all(float visible, float total) { return std::fabs(visible) >= std::fabs(total); }

int thumb_share(float visible, float total, int room, int least) {
    const float part = ratio(std::fabs(visible), std::fabs(total));
    return std::max(cut(part * (static_cast<float>(room) * 0.5f)), least);
}

namespace {

// The answer of a touched control. With capture it is the press that counts, from its start on.
int answer(const Tools& control, int event, int& held) {
    if (!(control.Flag & OUTIL_CAPTURE)) return event == 1 || event == 2;
    if (event == 2) held = 1;
    return held;
}

} // namespace

Press follow_press(const Tools& control, int event, bool inside, int& select, int& held) {
    if (event == KEY_QUERY) return {inside ? "KEY_QUERY:1" : "KEY_QUERY:0", inside, false, false, false};
    if (event == 0) held = 0;
    if (control.Flag & GRAPH_OUTLINE || (control.Flag & OUTIL_DISABLE && control.Flag & OUTIL_INVISIBLE))
        return {"OUTIL_EMPTY|OUTIL_INVISIBLE:0", 0, false, false, false};
    if (control.Flag & OUTIL_DISABLE) return {"OUTIL_DISABLE:0", 0, false, true, false};
    const bool touched = inside || (control.Flag & OUTIL_CAPTURE && held);
    const int result = touched ? answer(control, event, held) : 0;
    if (faceless(control))
        return {touched ? "OUTIL_EMPTY|OUTIL_INVISIBLE|OUTIL_OUTLINE" : "OUTIL_EMPTY|OUTIL_INVISIBLE:0",
                result, touched, false, false};
    const Track step = track(select, touched);
    if (!step.repaint) return {touched ? "select == 1" : "select == 2", result, touched, false, false};
    select = step.next;
    return {nullptr, result, touched, true, touched};
}

const char* end_press(const Tools& control, int select, int& held) {
    held = 0;
    if (faceless(control)) return "OUTIL_EMPTY|OUTIL_INVISIBLE|OUTIL_OUTLINE";
    if (select == TRACK_NONE || select == TRACK_OUTSIDE) return "select == 0";
    return nullptr;
}

} // namespace brask
