#include <brask/texts.h>

#include <algorithm>

#include "console/geometry.h"
#include "console/store.h"
#include "foundation/checks.h"
#include "foundation/trace.h"

using namespace brask;

namespace {

// Lines that were never in view count with a width of 0.
Extent content_of(const Texts& console) {
    if (!console.Lines) return {0, 0};
    int count = 0, widest = 0;
    for (int i = 0; i < LOG_ROOM; i++) {
        if (!console.Lines[i]) continue;
        count++;
        widest = std::max(widest, console.Line_Width[i]);
    }
    return {Px(widest) + SPACE, Px(console.Font_Dim_Y) * count};
}

// A slider takes all of the console's flags. With nothing to scroll it is a mere outline.
void lay_slider(const Texts& console, const Slider_Room& room, DWORD flag, Sliders& slider) {
    put(slider, room.place);
    slider.Border = 1;
    slider.Color = Colors(170, 170, 170);
    slider.Val_Min = 0;
    slider.Step = static_cast<float>(console.Font_Dim_Y);
    const bool scrolls = room.total > room.shown;
    slider.Flag = console.Flag | flag | (scrolls ? 0 : OUTIL_DISABLE | GRAPH_OUTLINE);
    slider.Val_Max = scrolls ? static_cast<float>(Px(room.total) - room.shown) : 0;
    if (scrolls) slider.Larg_Adjust(static_cast<float>(room.shown), static_cast<float>(room.total));
    slider.Init(console.Wnd);
    if (!scrolls) slider.Draw();
}

// Steps one slider; whether the log has to follow.
bool scroll_by(Sliders& slider, int notches) {
    const float before = slider.Cur_Value;
    slider.Scroll(notches);
    return slider.Cur_Value != before;
}

} // namespace

void Texts::Rescale_Cursor() {
    const Slider_Rooms rooms = slider_rooms(*this, content_of(*this));
    lend_clip(*this, Cursor_V);
    lend_clip(*this, Cursor_H);
    if (Flag & TEXTS_CURSOR_V)
        lay_slider(*this, rooms.vertical, OUTIL_VERTICAL, Cursor_V);
    else
        Cursor_V.Flag = OUTIL_DISABLE;
    if (Flag & TEXTS_CURSOR_H)
        lay_slider(*this, rooms.horizontal, 0, Cursor_H);
    else
        Cursor_H.Flag = OUTIL_DISABLE;
}

void Texts::Scroll(int n) {
    Trace trace("Texts::Scroll", *this);
    check_first_use(*this, "Text::Scroll");
    if (too_small(*this)) return trace.out("<0");
    if (Flag & OUTIL_DISABLE) return trace.out("OUTIL_DISABLE");
    if (Flag & TEXTS_CURSOR_H && Cursor_H.Select(KEY_QUERY)) {
        if (scroll_by(Cursor_H, n)) Re_Write();
    } else if (Flag & TEXTS_CURSOR_V) {
        if (scroll_by(Cursor_V, n)) Re_Write();
    }
}

// The host counts from the oldest line on, the slider from the newest one.
void Texts::Center(int line) {
    Trace trace("Texts::Center", *this);
    check_first_use(*this, "Text::Center");
    if (too_small(*this)) return trace.out("<0");
    if (Flag & OUTIL_DISABLE) return trace.out("OUTIL_DISABLE");
    const int count = line_count(*this);
    if (!count || !(Flag & TEXTS_CURSOR_V)) return;
    Cursor_V.Cur_Value = (1 - static_cast<float>(line) / static_cast<float>(count)) * Cursor_V.Val_Max;
    Cursor_V.Adjust();
    Re_Write();
}
