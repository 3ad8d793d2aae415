#include <brask/texts.h>

#include <algorithm>
#include <cstddef>

#include "console/geometry.h"
#include "console/store.h"
#include "foundation/checks.h"
#include "foundation/trace.h"

using namespace brask;

namespace {

// Lines that were never in view count with a width of 0. This walks the whole store for every line written,
// and so it goes by searches, from hole to hole and from one width to the next greater one.
Extent content_of(const Texts& console) {
    if (!console.Lines) return {0, 0};
    const int* const widths = console.Line_Width;
    wchar_t* const* const lines = console.Lines;
    wchar_t* const* const end = lines + LOG_ROOM;
    std::ptrdiff_t count = 0;
    int widest = 0;
    const auto wider = [&widest](int width) { return width > widest; };
    for (auto first = lines; first != end;) {
        const auto hole = std::find(first, end, nullptr);
        count += hole - first;
        for (auto at = widths + (first - lines), last = widths + (hole - lines);
             (at = std::find_if(at, last, wider)) != last;)
            widest = *at;
        first = std::find_if(hole, end, [](const wchar_t* line) { return line != nullptr; });
    }
    return {Px(widest) + SPACE, Px(console.Font_Dim_Y) * static_cast<int>(count)};
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
