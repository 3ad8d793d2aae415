#include <brask/texts.h>

#include <algorithm>

#include "console/geometry.h"
#include "console/store.h"
#include "foundation/bracket.h"
#include "foundation/checks.h"
#include "foundation/trace.h"
#include "foundation/track.h"

using namespace brask;

bool Texts::Scrolls(Sliders& slider, int event) {
    if (!slider.Select(event)) return false;
    if (!any_button_down()) return true;
    slider.Cur_Value = slider.Read();
    slider.Adjust();
    Re_Write();
    return true;
}

void Texts::Shift(Sliders& slider, int way) {
    slider.Cur_Value += static_cast<float>(way);
    slider.Adjust();
    Re_Write();
}

// Query or not, the caret comes and goes with the pointer.
int Texts::Select(int mode, int dx, int dy) {
    Trace trace("Texts::Select", *this);
    check_first_use(*this, "Text::Select");
    if (too_small(*this)) return trace.out("<0", 0);
    const int event = event_of(mode);
    Edit_Pos = std::min(Edit_Pos, edit_length(*this));
    if (Flag & OUTIL_DISABLE) {
        if (faceless(*this)) return trace.out("OUTIL_EMPTY|OUTIL_INVISIBLE:0", 0);
        if (Cursor_V.Wnd) Cursor_V.Deselect();
        Read_Echo(Edit_Line, Edit_Pos);
        return trace.out("OUTIL_DISABLE:0", 0);
    }
    if (Flag & TEXTS_CURSOR_V && Scrolls(Cursor_V, event)) return trace.out("1", 1);
    if (Flag & TEXTS_CURSOR_H && Scrolls(Cursor_H, event)) return trace.out("1", 1);
    const bool inside = PtInRect(&Region, read_pointer(*this, "Texts::Select"));
    if (inside && dx && Flag & TEXTS_CURSOR_H) Shift(Cursor_H, dx);
    if (inside && dy && Flag & TEXTS_CURSOR_V) Shift(Cursor_V, dy);
    const Track step = track(select, inside);
    if (!step.repaint) return inside ? trace.out("select == 1", 1) : trace.out("select == 2:0", 0);
    select = step.next;
    if (flag_read & TEXTS_READING) Read_Echo(Edit_Line, Edit_Pos);
    return inside ? trace.out("1", 1) : trace.out("0", 0);
}

void Texts::Deselect() {
    Trace trace("Texts::Deselect", *this);
    if (!test) return trace.out("! this->test");
    if (too_small(*this)) return trace.out("< 0");
    if (faceless(*this)) return trace.out("OUTIL_EMPTY|OUTIL_INVISIBLE|OUTIL_OUTLINE");
    if (Cursor_V.Dim_X) Cursor_V.Deselect();
    select = TRACK_OUTSIDE;
    if (flag_read & TEXTS_READING) Read_Echo(Edit_Line, Edit_Pos);
}
