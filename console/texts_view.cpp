#include <brask/texts.h>

#include <algorithm>
#include <cwchar>

#include <brask/fenn.h>

#include "console/geometry.h"
#include "console/store.h"
#include "foundation/bracket.h"
#include "foundation/checks.h"
#include "foundation/marks.h"
#include "foundation/palette.h"
#include "foundation/trace.h"

using namespace brask;

namespace {

constexpr int FRAME_WIDTH = 2; // of the name's and the editor's strip

// Writes a line and gives its width. A line that is not to be seen still sets the colours of its marks.
int write_line(const wchar_t* line, const Mark_Fonts& fonts, int left, int bottom, bool seen) {
    Zeb_Font_Color(WORD_BLACK, 0);
    HFONT font = fonts.regular;
    Px width = 0;
    Runs runs(line);
    while (runs.next()) {
        if (runs.length && seen) {
            Zeb_Font_Write(font, left + width, bottom, runs.text);
            width = width + Zeb_Font_Size_String(font, runs.text);
        }
        if (!runs.mark) continue;
        if (runs.mark->color)
            Zeb_Font_Color(runs.mark->color, 0);
        else
            font = fonts.of(runs.mark->face);
    }
    return width;
}

} // namespace

void Texts::Draw() {
    Trace trace("Texts::Draw", *this);
    if (Flag & OUTIL_INVISIBLE) return trace.out("OUTIL_INVISIBLE");
    check_first_use(*this, "Text::Draw");
    if (too_small(*this)) return trace.out("<0");
    const Area whole = whole_area(*this);
    if (Flag & GRAPH_OUTLINE) {
        Cadre_Outline(whole.x1, whole.x2, whole.y1, whole.y2);
        return trace.out("GRAPH_OUTLINE");
    }
    if (!(Flag & OUTIL_EMPTY)) Fill(Flag, whole.x1, whole.x2, whole.y1, whole.y2);
    Cadre(1, 1, bevel_width(*this), whole.x1, whole.x2, whole.y1, whole.y2);
    if (W_Name) {
        const Px top = Px(whole.y2) - SPACE;
        Cadre(1, 0, FRAME_WIDTH, Px(whole.x1) + SPACE, Px(whole.x2) - SPACE, top - NAME_HEIGHT, top);
        Text(W_Name, Flag, Pos_X, top - NAME_HEIGHT, Dim_X, NAME_HEIGHT, Border, 0);
    }
    if (Flag & TEXTS_CURSOR_V) Cursor_V.Draw();
    if (Flag & TEXTS_CURSOR_H) Cursor_H.Draw();
    Paint_Inside();
    trace.out("done");
}

void Texts::Paint_Inside() {
    if (Flag & OUTIL_INVISIBLE) return;
    Re_Write();
    if (!(flag_read & TEXTS_READING)) return;
    Cadre(1, 1, FRAME_WIDTH, Read_X1, Read_X2, Read_Y1, Px(Read_Y2) - 1);
    Read_Echo(Edit_Line, Edit_Pos);
}

// A line is in view by the height of the whole control: the clip hides the rest.
void Texts::Re_Write() {
    if (Flag & OUTIL_INVISIBLE || !Lines) return;
    const Place log = log_place(*this);
    if (log.height < 1) return;
    const Mark_Fonts fonts = mark_fonts(*this);
    const Area area = {log.x, Px(log.x) + log.width, log.y, Px(log.y) + log.height};
    Fill(0, area.x1, area.x2, area.y1, area.y2);
    Setup setup(Wnd, "Texts::Re_Write");
    const Area clip = clipped(*this, area);
    Zeb_set_clip(clip.x1, clip.y1, Px(clip.x2) - clip.x1, Px(clip.y2) - clip.y1);
    const Px left = Px(log.x) + 2 + shift_x(*this), newest = Px(log.y) + shift_y(*this);
    const Line_Range range = lines_between(*this, 0, Dim_Y);
    for (int i = range.begin; i < range.end; i++) {
        if (!Lines[i]) continue;
        Line_Width[i] =
            write_line(Lines[i], fonts, left, newest + i * Px(Font_Dim_Y), !i || !(Flag & TEXTS_FIELD));
    }
    Zeb_reset_clip();
}

wchar_t* Texts::Read_Line() {
    static wchar_t found[LINE_ROOM];
    Trace trace("Texts::Read_Line", *this);
    if (Flag & OUTIL_INVISIBLE || !Lines) return nullptr;
    const Place log = log_place(*this);
    if (log.height < 1) return nullptr;
    const POINT pointer = read_pointer(*this, "Texts::Read_Line");
    // Both ends of a line count, so that where two touch the lower one answers.
    const Px above = Px(pointer.y) - log.y;
    const Line_Range range =
        lines_between(*this, std::max<int>(0, above - Font_Dim_Y), std::min<int>(Dim_Y, above));
    for (int i = range.begin; i < range.end; i++) {
        if (!Lines[i]) continue;
        found[0] = 0;
        return std::wcsncat(found, Lines[i], LINE_ROOM - 1);
    }
    return nullptr;
}
