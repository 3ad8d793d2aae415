#include <brask/selects.h>

#include <cstdint>
#include <cstring>

#include "foundation/bracket.h"
#include "foundation/checks.h"
#include "foundation/layout.h"
#include "foundation/trace.h"
#include "foundation/track.h"
#include "items/item_array.h"
#include "items/select_geometry.h"

using namespace brask;

namespace {

constexpr DWORD BOX_MASK = 0x7771; // the flags that pass to the box

int count_of(const Selects& control) { return item_count(control.Item, control.NbItem); }
bool in_range(const Selects& control) {
    return control.Cur_Value >= 0 && control.Cur_Value < count_of(control);
}
bool skipped(const Selects& control) {
    return (control.Item[control.Cur_Value]->Flag & OUTIL_INVISIBLE) != 0;
}

// One step forward or backward, over the choices that are skipped; where all are, it ends after one round.
void step(Selects& control, std::int64_t by) {
    const int count = count_of(control);
    for (int steps = 0; steps < count; steps++) {
        const std::int64_t next = control.Cur_Value + by;
        control.Cur_Value = next >= count ? 0 : next < 0 ? count - 1 : static_cast<int>(next);
        if (!skipped(control)) return;
    }
}

// Off a choice that is skipped.
void leave_skipped(Selects& control) {
    if (in_range(control) && skipped(control)) step(control, 1);
}

// Without the name, which Update writes itself.
void lay_box(Selects& control, HWND wnd) {
    Boxs& box = control.Box;
    lend_clip(control, box);
    lay_around(control, box);
    box.Border = control.Border;
    box.Flag = (control.Flag & BOX_MASK) | OUTIL_DISABLE;
    box.Init(wnd);
}

Name_Size measure_name(const Selects& control) {
    if (!control.W_Name) return {0, 0, 0};
    const HFONT font = font_of(control);
    Setup setup(control.Wnd, "Selects::Init");
    const int width = Zeb_Font_Size_String(font, control.W_Name);
    const int letter = Zeb_Font_Size_String(font, "X");
    return {width, letter, Zeb_Font_Size_Height(font)};
}

// All items lie on one rectangle and are drawn pressed, so that the value shows as a sunken field.
void lay_item(const Selects& control, Buttons& item, const Place& at) {
    item.Flag |= CADRE_NO_LINE;
    if (control.Flag & OUTIL_EMPTY) item.Flag |= control.Flag & LIST_ITEM_MASK;
    item.Border = 1;
    item.Cur_Value = 1;
    put(item, at);
    lend_clip(control, item);
    lend_whole_font(control, item);
    item.Init(control.Wnd);
}

void write_name(Selects& control) {
    if (!control.W_Name) return;
    const DWORD top = control.Flag & (TEXT_MIDDLE | TEXT_BOTTOM) ? 0 : TEXT_TOP;
    // On the right the name keeps clear of the zone.
    const Px taken = Px(control.Zone.Dim_X) + 2 + 2 * Px(bevel_width(control.Box));
    const int width = control.Flag & TEXT_RIGHT ? Px(control.Dim_X) - taken : Px(control.Dim_X);
    control.Text(control.W_Name, (control.Flag | top) & ~OUTIL_VERTICAL, control.Pos_X, control.Pos_Y, width,
                 control.Dim_Y, control.Border, 0);
}

// In the outline look for once.
void draw_outlined(Buttons& item) {
    const DWORD flag = item.Flag;
    item.Flag |= GRAPH_OUTLINE;
    item.Draw();
    item.Flag = flag;
}

} // namespace

Selects::Selects() {
    Trace trace("Selects::Selects");
    std::memset(static_cast<void*>(this), 0, sizeof *this);
}
Selects::Selects(const Selects& other) = default;
Selects& Selects::operator=(const Selects& other) = default;
Selects::~Selects() {
    Trace trace("Selects::~Selects");
    Item = free_items(Item);
}

int Selects::Grow(int n, int flag) {
    const Grow_Source source = {"select", 247, 250};
    const DWORD flags = button_flags(*this, flag);
    const int done = grow_items(Item, n, source, [this, flags](Buttons& item) {
        item.Flag = flags;
        lend_clip(*this, item);
    });
    if (done) NbItem = item_count(Item);
    return done;
}

void Selects::Init(HWND wnd) {
    Trace trace("Selects::Init", *this);
    test |= TEST_INIT;
    if (too_small(*this)) return trace.out("<0");
    if (wnd) Wnd = wnd;
    if (missing_window(*this, "Selects::Init")) return trace.out("!wnd");
    default_color(*this);
    set_region(*this);
    lay_box(*this, wnd);
    if (!Arrow_Dim) Arrow_Dim = select_arrow(*this);
    put(Zone, select_zone(*this, measure_name(*this)));
    lend_clip(*this, Zone);
    NbItem = item_count(Item);
    if (!in_range(*this)) Cur_Value = 0;
    Old_Value = Cur_Value;
    if (!NbItem) return trace.out("!end");
    const Place value = select_value(*this);
    for (int i = 0; i < NbItem; i++)
        lay_item(*this, *Item[i], value);
    remember_size(*this);
}

// All items share one rectangle and the face is painted first, so the old item needs no erasing.
void Selects::Update() {
    if (faceless(*this)) return;
    const bool selected = select == TRACK_INSIDE;
    const DWORD* image = selected ? Box.Image_Select : Box.Image_Normal;
    const Area whole = whole_area(*this);
    Fill_Select(selected, reinterpret_cast<const char*>(image), Box.Flag, Px(bevel_width(Box)) + 1, whole.x1,
                whole.x2, whole.y1, whole.y2);
    write_name(*this);
    const int first = Flag & OUTIL_VERTICAL ? 2 : 0;
    for (int dir = first; dir < first + 2; dir++)
        Arrow(dir, 0, Arrow_Dim, Zone.Pos_X, Zone.Dim_X, Zone.Pos_Y, Zone.Dim_Y);
    if (in_range(*this)) Item[Cur_Value]->Draw();
}

void Selects::Draw() {
    Trace trace("Selects::Draw", *this);
    if (Flag & OUTIL_INVISIBLE) return trace.out("OUTIL_INVISIBLE");
    check_first_use(*this, "Selects::Draw");
    if (too_small(*this)) return trace.out("<0");
    if (!in_range(*this)) Cur_Value = 0;
    leave_skipped(*this);
    Old_Value = Cur_Value;
    if (Flag & GRAPH_OUTLINE) {
        const Area whole = whole_area(*this);
        Cadre_Outline(whole.x1, whole.x2, whole.y1, whole.y2);
        write_name(*this);
        if (in_range(*this)) draw_outlined(*Item[Cur_Value]);
        return trace.out("GRAPH_OUTLINE");
    }
    if (!(Flag & OUTIL_NO_FRAME)) Box.Draw();
    Update();
}

void Selects::Adjust() {
    Trace trace("Selects::Adjust", *this);
    check_first_use(*this, "Selects::Adjust");
    if (too_small(*this)) return trace.out("<0");
    if (!in_range(*this)) return trace.out("outside range"); // not put right, as Draw does
    leave_skipped(*this);
    if (Cur_Value == Old_Value) return trace.out("Cur_Value==old_value");
    if (Flag & OUTIL_DISABLE) return trace.out("OUTIL_DISABLE");
    Old_Value = Cur_Value;
    if (Flag & OUTIL_INVISIBLE) return trace.out("OUTIL_INVISIBLE");
    Update();
}

int Selects::Select(int mode) {
    Trace trace("Selects::Select", *this);
    check_first_use(*this, "Selects::Select");
    if (too_small(*this)) return trace.out("<0", 0);
    const POINT pointer = read_pointer(*this, "Selects::Select");
    const int event = event_of(mode);
    const bool inside = PtInRect(&Region, pointer);
    if (event == KEY_QUERY) return inside ? trace.out("KEY_QUERY:1", 1) : trace.out("KEY_QUERY:0", 0);
    if (Flag & (OUTIL_DISABLE | GRAPH_OUTLINE)) return trace.out("OUTIL_DISABLE:0", 0);
    if (inside && event == 2)
        if (const int by = select_step(*this, pointer)) step(*this, by);
    if (faceless(*this)) return trace.out("OUTIL_EMPTY|OUTIL_INVISIBLE|OUTIL_OUTLINE", inside ? 1 : 0);
    const Track tracked = track(select, inside);
    if (!tracked.repaint) return inside ? trace.out("select == 1", 1) : trace.out("select == 2", 0);
    select = tracked.next;
    Update();
    return trace.out("", inside, inside ? 1 : 0);
}

void Selects::Deselect() {
    Trace trace("Selects::Deselect", *this);
    if (!test) return trace.out("! this->test");
    if (too_small(*this)) return trace.out("< 0");
    if (faceless(*this)) return trace.out("OUTIL_EMPTY|OUTIL_INVISIBLE|OUTIL_OUTLINE");
    const bool was_inside = select != TRACK_NONE && select != TRACK_OUTSIDE;
    select = TRACK_NONE;
    if (!was_inside) return trace.out("select == 0");
    Update();
}

int Selects::Read() {
    Trace trace("Selects::Read", *this);
    check_first_use(*this, "Selects::Read");
    if (too_small(*this)) return trace.out("<0", -1);
    if (Flag & OUTIL_DISABLE) return trace.out("OUTIL_DISABLE", -1);
    return Cur_Value;
}

int Selects::Scroll(int delta) {
    check_first_use(*this, "Selects::Scroll");
    if (too_small(*this) || Flag & OUTIL_DISABLE) return Cur_Value;
    if (!count_of(*this)) return 0;
    step(*this, -std::int64_t{delta}); // beyond an end it goes to the other one, not round
    Update();
    return Cur_Value;
}
