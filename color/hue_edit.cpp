#include <brask/hue_edit.h>

#include <algorithm>
#include <cstring>

#include "color/parts.h"
#include "foundation/checks.h"
#include "foundation/layout.h"
#include "foundation/trace.h"
#include "foundation/track.h"

using namespace brask;

// Of this class Scroll does not report its entry and exit.

namespace {

// Unlike in Color_Edit, the parts never have a wide bevel.
int part_bevel(const Hue_Edit& editor) { return std::min(2, bevel_size(editor)); }

// What is left for bar and swatch beside the frame; the width is that of the bar.
Place inside_of(const Hue_Edit& editor) {
    const Px c = part_bevel(editor), x = editor.Pos_X, y = editor.Pos_Y;
    const Px dx = editor.Dim_X, dy = editor.Dim_Y;
    if (editor.Border < 1) return {x, y, dx - 2 * Px(BUT_DIM) - SPACE, dy};
    return {x + 2 + c, y + 2 + c, dx - 2 * (Px(BUT_DIM) + 3 + c), dy - 2 * c - 4};
}

void place_frame(Hue_Edit& editor, HWND wnd) {
    Boxs& frame = editor.Box_Frame;
    lend_clip(editor, frame);
    lay_around(editor, frame); // without the font's slant, on purpose, here and on the bar
    frame.Border = part_bevel(editor);
    frame.Flag = (editor.Flag & (GRAPH_OUTLINE | OUTIL_FLAT)) | OUTIL_DISABLE;
    frame.Init(wnd);
    if (editor.Border < 1) frame.Flag |= OUTIL_INVISIBLE;
}

void place_swatch(Hue_Edit& editor, HWND wnd, const Place& inside) {
    Boxs& swatch = editor.Box_Swatch;
    swatch.Flag = editor.Flag;
    lend_clip(editor, swatch);
    lend_color(editor, swatch);
    swatch.Border = part_bevel(editor);
    put(swatch, {Px(inside.x) + inside.width + 2, inside.y, editor.Swatch_Width, inside.height});
    ready_surface(swatch, editor.Dim_Y != editor.Old_Dim_Y, surface_word(editor.Cur_Value));
    swatch.Init(wnd);
}

void place_bar(Hue_Edit& editor, HWND wnd, const Place& inside) {
    Valuators& bar = editor.Val_Hue;
    bar.Flag = editor.Flag;
    if (editor.W_Name)
        bar.Name_Set(L"%ls", editor.W_Name);
    else
        bar.Name_Set("Hue");
    lend_clip(editor, bar);
    lend_color(editor, bar);
    lend_font(editor, bar);
    put(bar, inside);
    bar.Border = part_bevel(editor);
    set_range(bar);
    lay_ramp(bar, resized(editor), hue_ramp); // of a hidden editor as well
    bar.Init(wnd);
}

} // namespace

Hue_Edit::Hue_Edit() {
    Trace trace("Hue_Edit::Hue_Edit");
    std::memset(static_cast<void*>(this), 0, sizeof *this);
}

Hue_Edit::Hue_Edit(const Hue_Edit& other) = default;
Hue_Edit& Hue_Edit::operator=(const Hue_Edit& other) = default;
Hue_Edit::~Hue_Edit() { Trace trace("Hue_Edit::~Hue_Edit"); }

void Hue_Edit::Init(HWND wnd) {
    Trace trace("Hue_Edit::Init", *this);
    test |= TEST_INIT;
    if (too_small(*this)) return trace.out("<0"); // the window is not even stored
    if (wnd) Wnd = wnd;
    if (missing_window(*this, "Hue_Edit::Init")) return trace.out("!wnd");
    if (Cur_Value == 0) Cur_Value = word_of_hls({0.0f, 0.5f, 1.0f});
    Old_Value = Cur_Value;
    default_color(*this);
    set_region(*this);
    font_height(*this, "Hue_Edit::Init"); // asked as in Color_Edit, though no title needs room
    if (Swatch_Width == 0) Swatch_Width = 2 * Px(BUT_DIM);
    const Place inside = inside_of(*this);
    place_frame(*this, wnd);
    place_swatch(*this, wnd, inside);
    place_bar(*this, wnd, inside);
    remember_size(*this);
}

void Hue_Edit::Draw() {
    Trace trace("Hue_Edit::Draw", *this);
    if (Flag & OUTIL_INVISIBLE) return trace.out("OUTIL_INVISIBLE");
    check_first_use(*this, "Hue_Edit::Draw");
    if (too_small(*this)) return trace.out("<0");
    Old_Value = Cur_Value;
    if (Border >= 1)
        Box_Frame.Draw();
    else
        Box_Frame.Clear(); // where no frame will stand
    Val_Hue.Cur_Value = hls_of(Cur_Value).first;
    Val_Hue.Draw();
    Box_Swatch.Draw();
    Update();
}

void Hue_Edit::Adjust() {
    Trace trace("Hue_Edit::Adjust", *this);
    check_first_use(*this, "Hue_Edit::Adjust");
    if (too_small(*this)) return trace.out("<0");
    // Old_Value is that of the last Draw and does not follow, unlike in Color_Edit.
    if (Cur_Value == Old_Value) return trace.out("Cur_Value == Old_Value");
    if (Flag & OUTIL_DISABLE) return trace.out("OUTIL_DISABLE");
    const float hue = hls_of(Cur_Value).first;
    if (hue != Val_Hue.Cur_Value) {
        Val_Hue.Cur_Value = hue;
        Val_Hue.Adjust();
    }
    Update();
}

void Hue_Edit::Update() {
    if (!too_small(*this)) show_swatch(Box_Swatch, Cur_Value);
}

unsigned long Hue_Edit::Read() {
    Trace trace("Hue_Edit::Read", *this);
    check_first_use(*this, "Hue_Edit::Read");
    if (too_small(*this)) return trace.out("<0", 0ul);
    Components color = hls_of(Cur_Value);
    if (Val_Hue.Select(1)) color.first = Val_Hue.Read();
    return word_of_hls(color);
}

int Hue_Edit::Select(int mode) {
    Trace trace("Hue_Edit::Select", *this);
    check_first_use(*this, "Hue_Edit::Select");
    if (too_small(*this)) return trace.out("<0", 0);
    if (Flag & OUTIL_DISABLE) return trace.out("OUTIL_DISABLE", 0);
    return Val_Hue.Select(event_of(mode)) ? trace.out("1", 1) : trace.out("0", 0);
}

unsigned long Hue_Edit::Scroll(int notches) {
    check_first_use(*this, "Hue_Edit::Scroll");
    if (too_small(*this)) return 0;
    Components color = hls_of(Cur_Value);
    if (!Val_Hue.Select(KEY_QUERY)) return Cur_Value;
    color.first = Val_Hue.Scroll(notches);
    Cur_Value = word_of_hls(color);
    Adjust();
    return Cur_Value;
}

void Hue_Edit::Deselect() {
    Trace trace("Hue_Edit::Deselect", *this);
    if (!test) return trace.out("! this->test");
    if (too_small(*this)) return trace.out("< 0");
    if (Flag & (OUTIL_INVISIBLE | OUTIL_EMPTY)) return trace.out("OUTIL_EMPTY|OUTIL_INVISIBLE|OUTIL_OUTLINE");
    Val_Hue.Deselect();
}
