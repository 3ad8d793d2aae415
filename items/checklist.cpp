#include <brask/checklists.h>

#include <algorithm>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <new>

#include "foundation/bracket.h"
#include "foundation/checks.h"
#include "foundation/faces.h"
#include "foundation/layout.h"
#include "foundation/palette.h"
#include "foundation/trace.h"
#include "foundation/track.h"
#include "items/checklist_geometry.h"
#include "items/checklist_labels.h"

using namespace brask;

namespace {

constexpr DWORD BOX_MASK = 0x47771; // the flags that pass to the frame

int count_of(const CheckLists& control) {
    return control.Check && control.Label && control.Box_State ? control.NbCheckBox : 0;
}

// --- Values ---

// A mask goes round through its 64 bits.
constexpr std::uint64_t bit_of(int index) { return std::uint64_t{1} << (index & 63); }

bool checked(const CheckLists& control, int index) {
    if (control.Flag & CHECK_EXCLUSIVE) return control.Cur_Value == index;
    return (static_cast<std::uint64_t>(control.Cur_Value) & bit_of(index)) != 0;
}

void check_boxes(CheckLists& control) {
    for (int i = 0; i < count_of(control); i++)
        control.Check[i].Cur_Value = checked(control, i);
}

// The value that a box has until it is first painted, and on a disabled control for good: not by the bit of
// the entry but by all bits of its index, shifted by itself. Required so.
bool checked_at_first(const CheckLists& control, int index) {
    if (control.Flag & CHECK_EXCLUSIVE) return checked(control, index);
    const auto bits = static_cast<std::int32_t>(static_cast<std::uint32_t>(index) << (index & 31));
    return (control.Cur_Value & bits) != 0;
}

bool out_of_range(const CheckLists& control) {
    return control.Cur_Value < 0 || control.Cur_Value >= count_of(control);
}

// --- Init ---

// The metrics of the font that was last measured: the many check lists of a panel mostly share one.
struct Kept_Font {
    HFONT font;
    int height, width;
};
Kept_Font kept = {};

Check_Widths measure(CheckLists& control, const Check_Labels& labels) {
    const HFONT font = font_of(control);
    Setup setup(control.Wnd, "CheckLists::Init");
    if (font && (font != kept.font || !kept.height || !kept.width))
        kept = {font, Zeb_Font_Size_Height(font), Zeb_Font_Size_String(font, "H")};
    control.Font_Dim = kept.height;
    control.Char_Dim = kept.width;
    const bool name_beside = control.W_Name && control.Flag & TEXT_LEFT;
    return {labels.single_character() ? 0 : labels.widest(font),
            name_beside ? Zeb_Font_Size_String(font, control.W_Name) : 0};
}

void lay_frame(CheckLists& control, HWND wnd) {
    Boxs& box = control.Box;
    lend_name(control, box);
    lend_clip(control, box);
    lay_around(control, box);
    box.Font_Slant = control.Font_Slant;
    box.Border = control.Border;
    box.Flag = (control.Flag & BOX_MASK) | OUTIL_DISABLE;
    box.Init(wnd);
}

void report_no_labels(const CheckLists& control) {
    Error_Fct(hwnd, REPORT_WARNING, "Problems in CheckLists::Init()");
    Error_Fct(hwnd, REPORT_WARNING, "device->List is empty");
    Error_Fct(hwnd, REPORT_WARNING, L"type: %hs\n  name: %ls", "CheckLists", report_name(control));
}

void drop_entries(CheckLists& control) {
    delete[] control.Check;
    control.Check = nullptr;
    delete[] control.Label;
    control.Label = nullptr;
    control.Box_State = static_cast<int*>(control.Free(control.Box_State));
    control.NbCheckBox = 0;
}

// All or none of the arrays.
bool make_entries(CheckLists& control, int count) {
    const auto missing = [&](const void* array, const char* variable, std::size_t size, int line) {
        if (array) return false;
        Error_Fct(hwnd, REPORT_MEMORY, L"line %-4d of %hs \nmemory error in calloc (var=%hs, dim=%dx%d)",
                  line, "checklist", variable, count, static_cast<int>(size));
        drop_entries(control);
        return true;
    };
    const std::size_t entries = static_cast<std::size_t>(count);
    control.Box_State = static_cast<int*>(std::calloc(entries, sizeof(int)));
    if (missing(control.Box_State, "this->Box_State", sizeof(int), __LINE__)) return false;
    control.Check = new (std::nothrow) Buttons[entries];
    if (missing(control.Check, "this->Check", sizeof(Buttons), __LINE__)) return false;
    control.Label = new (std::nothrow) Buttons[entries];
    if (missing(control.Label, "this->Label", sizeof(Buttons), __LINE__)) return false;
    control.NbCheckBox = count;
    return true;
}

// Never painted: it holds the text, the cell and the hit rectangle.
void lay_label(CheckLists& control, const Check_Labels& labels, int index, const Place& cell) {
    Buttons& label = control.Label[index];
    label.Flag = OUTIL_INVISIBLE | OUTIL_EMPTY;
    labels.name(label, index);
    lend_clip(control, label);
    put(label, cell);
    label.Clip_X = std::max(label.Clip_X, label.Pos_X);
    label.Clip_Dim_X = std::min<int>(control.Clip_Dim_X, Px(label.Dim_X) - label.Clip_X + label.Pos_X);
    lend_font(control, label);
    label.Init(control.Wnd);
}

void lay_check(CheckLists& control, int index, const Place& place) {
    constexpr int LARGE_ROW = 20; // from which on a colour gets a wide bevel
    Buttons& box = control.Check[index];
    const bool enabled = !control.Enable || control.Enable[index];
    box.Flag = enabled ? 0 : GRAPH_OUTLINE | OUTIL_DISABLE;
    box.Border = control.Colour && control.Label[index].Dim_Y > LARGE_ROW ? 4 : 2;
    lend_clip(control, box);
    put(box, place);
    lend_font(control, box);
    if (control.Colour) box.Color_Set(control.Colour[index]);
    box.Cur_Value = checked_at_first(control, index);
    box.Init(control.Wnd);
}

// --- Painting ---

void set_clip(const Tools& control) {
    if (control.Clip_Dim_X)
        Zeb_set_clip(control.Clip_X, control.Clip_Y, control.Clip_Dim_X, control.Clip_Dim_Y);
}

// Inside a bracket.
void write_text(const CheckLists& control, int index, HFONT font, unsigned long color) {
    const Buttons& box = control.Check[index];
    const Buttons& label = control.Label[index];
    set_clip(control);
    Zeb_Font_Color(color, 0);
    set_clip(label);
    if (label.W_Name)
        Zeb_Font_Write(font, Px(box.Pos_X) + box.Dim_X + SPACE, Px(box.Pos_Y) - 1, label.W_Name);
    if (control.Clip_Dim_X || label.Clip_Dim_X) Zeb_reset_clip();
}

void write_label(const CheckLists& control, int index, unsigned long color, const char* tag) {
    const HFONT font = font_of(control);
    Setup setup(control.Wnd, tag);
    write_text(control, index, font, color);
}

// `painter` is the control that the operation belongs to.
void paint_mark(Tools& painter, const Buttons& box) {
    const Area mark = check_mark(box);
    painter.Fill_Yellow(mark.x1, mark.x2, mark.y1, mark.y2);
}

void paint_face(Tools& painter, const Buttons& box, bool selected) {
    const Area whole = whole_area(box);
    const DWORD* image = selected ? box.Image_Select : box.Image_Normal;
    painter.Fill_Select(selected, reinterpret_cast<const char*>(image), box.Flag, check_inset(box), whole.x1,
                        whole.x2, whole.y1, whole.y2);
}

// The box's normal look: its mark covers the face.
void paint_inside(Tools& painter, const Buttons& box) {
    if (box.Cur_Value)
        paint_mark(painter, box);
    else
        paint_face(painter, box, false);
}

bool outlined(const Tools& control) { return (control.Flag & GRAPH_OUTLINE) != 0; }

void draw_box(Buttons& box) {
    box.Draw();
    if (box.Cur_Value && box.Flag == 0) paint_mark(box, box);
}

// The outline look forgets what Enable gave, until the next Init: required so.
void draw_outlined(Buttons& box) {
    box.Flag = GRAPH_OUTLINE;
    box.Draw();
    box.Flag = 0;
}

void highlight(CheckLists& control, int index) {
    write_label(control, index, WORD_HIGHLIGHT, "CheckLists::Select");
    paint_face(control.Check[index], control.Check[index], true);
}

void unhighlight(CheckLists& control, int index) {
    write_label(control, index, WORD_BLACK, "CheckLists::Select");
    paint_inside(control.Check[index], control.Check[index]);
}

// --- Tracking ---

// The cell, not the box, is what is hit.
bool on_entry(const CheckLists& control, int index, POINT pointer) {
    return PtInRect(&control.Label[index].Region, pointer);
}

int track_inside(CheckLists& control, POINT pointer) {
    int found = 0;
    for (int i = 0; i < count_of(control); i++) {
        const bool on = on_entry(control, i, pointer);
        if (on) found = 1;
        int& state = control.Box_State[i];
        if (on == (state == TRACK_INSIDE)) continue;
        state = on ? TRACK_INSIDE : TRACK_OUTSIDE;
        if (control.Flag & OUTIL_INVISIBLE || outlined(control.Check[i])) continue;
        on ? highlight(control, i) : unhighlight(control, i);
    }
    return found;
}

// OUTIL_INVISIBLE is not asked here: required so.
void track_outside(CheckLists& control) {
    for (int i = 0; i < count_of(control); i++) {
        if (control.Box_State[i] != TRACK_INSIDE) continue;
        control.Box_State[i] = TRACK_OUTSIDE;
        if (!outlined(control.Check[i])) unhighlight(control, i);
    }
}

bool left_highlighted(const CheckLists& control, int index) {
    const int state = control.Box_State[index];
    return state != TRACK_NONE && state != TRACK_OUTSIDE && !outlined(control.Check[index]);
}

// Lets a box's face be read as a surface of the whole control's size.
void give_room(const CheckLists& control, Buttons& box) {
    if (box.Image_Normal == box.Own_Normal_Off)
        box.Image_Normal = box.Image_Normal_Off = box.Own_Normal_Off =
            faces::with_room(box.Own_Normal_Off, control);
}

} // namespace

CheckLists::CheckLists() {
    Trace trace("CheckLists::CheckLists");
    std::memset(static_cast<void*>(this), 0, sizeof *this);
}
CheckLists::CheckLists(const CheckLists& other) = default;
CheckLists& CheckLists::operator=(const CheckLists& other) = default;
CheckLists::~CheckLists() {
    Trace trace("CheckLists::~CheckLists");
    drop_entries(*this);
}

void CheckLists::Init(HWND wnd) {
    Trace trace("CheckLists::Init", *this);
    test |= TEST_INIT;
    if (too_small(*this)) return trace.out("<0");
    if (wnd) Wnd = wnd;
    if (missing_window(*this, "CheckLists::Init")) return trace.out("!wnd");
    default_color(*this);
    drop_entries(*this);
    set_region(*this);
    remember_size(*this);
    const Check_Labels labels(*this);
    const Check_Widths widths = measure(*this, labels);
    lay_frame(*this, wnd);
    if (!List && !List_W) {
        report_no_labels(*this);
        Flag = OUTIL_INVISIBLE | OUTIL_DISABLE;
        return trace.out("!List");
    }
    Old_Value = Cur_Value;
    if (!labels.count() || !make_entries(*this, labels.count())) return trace.out("!NbCheckBox");
    const Check_Layout layout = check_layout(*this, widths, NbCheckBox);
    Need_Y = layout.need;
    for (int i = 0; i < NbCheckBox; i++) {
        lay_label(*this, labels, i, check_cell(layout, i));
        lay_check(*this, i, check_box(layout, i));
    }
    trace.out("!wnd"); // also on the normal way out: required so
}

void CheckLists::Draw() {
    Trace trace("CheckLists::Draw", *this);
    if (Flag & OUTIL_INVISIBLE) return trace.out("OUTIL_INVISIBLE");
    check_first_use(*this, "CheckList::Draw");
    if (too_small(*this)) return trace.out("<0");
    if (!(Flag & OUTIL_DISABLE)) check_boxes(*this);
    if (!(Flag & OUTIL_EMPTY)) Box.Draw();
    for (int i = 0; i < count_of(*this); i++) {
        const bool blue = outlined(*this) || outlined(Check[i]);
        write_label(*this, i, blue ? WORD_OUTLINE : WORD_BLACK, "CheckLists::Draw");
        outlined(*this) ? draw_outlined(Check[i]) : draw_box(Check[i]);
    }
    trace.out(outlined(*this) ? "GRAPH_OUTLINE" : "");
}

// The boxes alone, and those in the normal form on an outline control as well.
void CheckLists::Adjust() {
    Trace trace("CheckLists::Adjust", *this);
    check_first_use(*this, "CheckList::Adjust");
    if (too_small(*this)) return trace.out("<0");
    if (Cur_Value == Old_Value) return trace.out("Cur_Value==old_value");
    if (Flag & OUTIL_DISABLE) return trace.out("OUTIL_DISABLE");
    if (Flag & CHECK_EXCLUSIVE && out_of_range(*this)) return trace.out("Cur_Value outside range");
    check_boxes(*this);
    Old_Value = Cur_Value;
    if (Flag & OUTIL_INVISIBLE) return trace.out("OUTIL_INVISIBLE");
    for (int i = 0; i < count_of(*this); i++)
        draw_box(Check[i]);
}

int CheckLists::Select(int mode) {
    Trace trace("CheckLists::Select", *this);
    check_first_use(*this, "CheckList::Select");
    if (too_small(*this)) return trace.out("<0", 0);
    const POINT pointer = read_pointer(*this, "CheckLists::Select");
    const bool inside = PtInRect(&Region, pointer);
    if (event_of(mode) == KEY_QUERY)
        return inside ? trace.out("KEY_QUERY:1", 1) : trace.out("KEY_QUERY:0", 0);
    if (Flag & OUTIL_DISABLE) return trace.out("OUTIL_DISABLE:0", 0);
    if (inside) {
        const int found = track_inside(*this, pointer);
        return trace.out("", found, found);
    }
    track_outside(*this);
    return trace.out("", 0, 0);
}

// Leaves the states as they are, and paints by way of the control itself, so that its size counts as that of
// the boxes' surfaces: both required so, unlike in Select.
void CheckLists::Deselect() {
    Trace trace("CheckLists::Deselect", *this);
    if (!test) return trace.out("! this->test");
    if (too_small(*this)) return trace.out("< 0");
    if (Flag & OUTIL_INVISIBLE) return trace.out("OUTIL_INVISIBLE");
    {
        const HFONT font = font_of(*this);
        Setup setup(Wnd, "CheckLists::Deselect");
        for (int i = 0; i < count_of(*this); i++)
            if (left_highlighted(*this, i)) write_text(*this, i, font, WORD_BLACK);
    }
    for (int i = 0; i < count_of(*this); i++) {
        if (!left_highlighted(*this, i)) continue;
        give_room(*this, Check[i]);
        paint_inside(*this, Check[i]);
    }
}

long long CheckLists::Read() {
    char mask[9]; // outlives the trace, which names it
    Trace trace("CheckLists::Read", *this);
    check_first_use(*this, "CheckList::Read");
    if (too_small(*this) || Flag & OUTIL_DISABLE) return trace.out("-1", -1LL);
    const POINT pointer = read_pointer(*this, "CheckLists::Read");
    if (!PtInRect(&Region, pointer)) return trace.out("-1", -1LL);
    for (int i = 0; i < count_of(*this); i++) {
        if (!on_entry(*this, i, pointer)) continue;
        if (Flag & CHECK_EXCLUSIVE) return trace.out("", i, static_cast<long long>(i));
        const std::uint64_t turned = static_cast<std::uint64_t>(Cur_Value) ^ bit_of(i);
        std::snprintf(mask, sizeof mask, "%08X", static_cast<unsigned>(turned & 0xFFFFFFFFu));
        return trace.out(mask, static_cast<long long>(turned));
    }
    return trace.out("-1", -1LL);
}

int CheckLists::Get_Y() {
    Trace trace("CheckLists::Get_Y", *this);
    return Need_Y;
}
