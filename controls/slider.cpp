#include <brask/sliders.h>

#include <algorithm>
#include <cstring>
#include <type_traits>

#include "controls/range.h"
#include "controls/slider_geometry.h"
#include "controls/thumb.h"
#include "foundation/bracket.h"
#include "foundation/checks.h"
#include "foundation/layout.h"
#include "foundation/trace.h"
#include "foundation/track.h"

using namespace brask;

namespace {

constexpr int TABLE_ROOM = std::extent_v<decltype(Sliders::Value_Table)>;

void clamp_value(Sliders& slider) {
    slider.Cur_Value = into_range(slider, slider.Cur_Value, slider.Val_Min, slider.Val_Max);
}

// At least as long as the metrics say, but never longer than what the arrows leave: the upper bound wins.
void fix_thumb(Sliders& slider) {
    const Axis axis = axis_of(slider);
    slider.Larg = std::min<int>(std::max(slider.Larg, CURSEUR / 2), Px(axis.length / 2) - axis.thick);
}

void build_table(Sliders& slider) {
    slider.Table_Size = Px(slider_play(slider)) + 2;
    if (slider.Table_Size <= 1) return;
    slider.Table_Size = std::min(slider.Table_Size, TABLE_ROOM);
    fill_evenly(slider.Value_Table, slider.Table_Size, slider.Val_Min, slider.Val_Max);
}

// A press on an arrow. The far bounds are those of the end that the arrow points to.
void press_arrow(Sliders& slider, int offset) {
    const int arrow = slider_arrow(slider);
    const float up = slider.Cur_Value + slider.Step, down = slider.Cur_Value - slider.Step;
    if (offset < arrow)
        slider.Cur_Value = reversed(slider) ? std::min(slider.Val_Min, up) : std::max(slider.Val_Min, down);
    else if (offset > axis_of(slider).length - arrow)
        slider.Cur_Value = reversed(slider) ? std::max(slider.Val_Max, down) : std::min(slider.Val_Max, up);
}

constexpr thumb::Stroke VERTICAL_THUMB[] = {thumb::LIGHT_SIDES, thumb::VERTICAL_LIGHT, thumb::DARK_SIDES,
                                            thumb::INNER_SIDES, thumb::VERTICAL_DARK};
constexpr thumb::Stroke HORIZONTAL_THUMB[] = {
    thumb::LIGHT_SIDES,
    thumb::HORIZONTAL_LIGHT,
    thumb::DARK_SIDES,
    thumb::INNER_SIDES,
    {WORD_BLACK, 2, {{thumb::MIDDLE, -1, thumb::BOTTOM, 1}, {thumb::MIDDLE, -1, thumb::TOP, -1}, {}}},
};

} // namespace

Sliders::Sliders() {
    Trace trace("Sliders::Sliders");
    std::memset(static_cast<void*>(this), 0, sizeof *this);
}

Sliders::Sliders(const Sliders& other) = default;
Sliders& Sliders::operator=(const Sliders& other) = default;
Sliders::~Sliders() { Trace trace("Sliders::~Sliders"); }

void Sliders::Init(HWND wnd) {
    Trace trace("Sliders::Init", *this);
    test |= TEST_INIT;
    if (too_small(*this)) return trace.out("<0"); // the window is not even stored
    if (wnd) Wnd = wnd;
    if (missing_window(*this, "Sliders::Init")) return trace.out("!wnd");
    Held = 0;
    fix_thumb(*this);
    Border = std::max(Border, 1); // a slider has no zero or negative bevel
    default_color(*this);
    if (Step == 0.0f) Step = 1.0f;
    set_region(*this);
    build_table(*this);
    // No face is generated; a surface that the host took away is not shown any more.
    Image_Select = Graph_Select;
    Image_Normal = Graph_Normal;
    clamp_value(*this);
    Old_Dim_X = Dim_X;
    Old_Dim_Y = Dim_Y;
}

// The thumb's offset in pixels from the inner edge of the track.
int Sliders::Posit() const {
    const float way = static_cast<float>(slider_play(*this)) * ratio(Cur_Value - Val_Min, Val_Max - Val_Min);
    return cut(static_cast<double>(way + static_cast<float>(axis_of(*this).thick)) + 0.5);
}

// Arrows and thumb, over a face that has just been painted.
void Sliders::Cursor() {
    if (Flag & (OUTIL_INVISIBLE | GRAPH_OUTLINE)) return;
    const Axis axis = axis_of(*this);
    const int first = axis.vertical ? 2 : 0;
    for (int dir : {first, first + 1})
        Arrow(dir, Px(bevel_width(*this)) + 2, slider_arrow(*this), Pos_X, Dim_X, Pos_Y, Dim_Y);
    if (axis.length < 2 * axis.thick) return; // too short for a thumb
    Paint_Thumb();
}

void Sliders::Paint_Thumb() {
    Bracket bracket(*this, "Sliders::Cursor");
    const bool vertical = axis_of(*this).vertical;
    const Area area = slider_thumb(*this, Posit());
    Zeb_color(WORD_SHADOW);
    // Along the horizontal track the fill stops one row lower.
    draw_fill_rectangle(Px(area.x1) + 1, Px(area.y2) - (vertical ? 0 : 1), area.x2, area.y1);
    thumb::paint(vertical ? VERTICAL_THUMB : HORIZONTAL_THUMB, area, Px(vertical ? area.y1 : area.x1) + Larg);
}

void Sliders::Paint_Face(bool selected, DWORD* image) {
    const Area whole = whole_area(*this);
    Fill_Select(selected, reinterpret_cast<const char*>(image), Flag, Px(bevel_width(*this)) + 2, whole.x1,
                whole.x2, whole.y1, whole.y2);
}

void Sliders::Draw() {
    Trace trace("Sliders::Draw", *this);
    if (Flag & OUTIL_INVISIBLE) return trace.out("OUTIL_INVISIBLE");
    check_first_use(*this, "Sliders::Draw");
    if (too_small(*this)) return trace.out("<0");
    clamp_value(*this);
    const Area whole = whole_area(*this);
    if (Flag & GRAPH_OUTLINE) {
        Cadre_Outline(whole.x1, whole.x2, whole.y1, whole.y2);
        return trace.out("GRAPH_OUTLINE");
    }
    Fill(Flag, whole.x1, whole.x2, whole.y1, whole.y2);
    Paint_Frame();
    Paint_Inside();
}

void Sliders::Adjust() {
    Trace trace("Sliders::Adjust", *this);
    check_first_use(*this, "Sliders::Adjust");
    if (too_small(*this)) return trace.out("<0");
    const Area whole = whole_area(*this);
    if (Flag & GRAPH_OUTLINE) Cadre_Outline(whole.x1, whole.x2, whole.y1, whole.y2); // and goes on
    if (Flag & OUTIL_INVISIBLE) return trace.out("OUTIL_INVISIBLE");
    clamp_value(*this);
    Paint_Face(select == TRACK_INSIDE, Image_Select); // this one in both looks, so that the hover look stays
    Paint_Frame();
    Paint_Inside();
}

// The line and a thin bevel, in the same rectangle for both.
void Sliders::Paint_Frame() {
    const Area whole = whole_area(*this);
    Cadre(1, 1, Border >= 2 ? 2 : 1, whole.x1, whole.x2, whole.y1, whole.y2);
}

// The host's surfaces are laid by Select; without them the face stays as it was filled. `Held` as the event
// keeps a drag alive and resets one that is over.
void Sliders::Paint_Inside() {
    if (!Graph_Select && !Graph_Normal) return Cursor();
    select = TRACK_NONE;
    Select(Held);
}

int Sliders::Select(int mode) {
    Trace trace("Sliders::Select", *this);
    check_first_use(*this, "Sliders::Select");
    if (too_small(*this)) return trace.out("<0", 0);
    const POINT pointer = read_pointer(*this, "Sliders::Select");
    const int event = event_of(mode);
    const Press press = follow_press(*this, event, PtInRect(&Region, pointer), select, Held);
    if (press.touched && event == 2) press_arrow(*this, offset_along(*this, pointer));
    if (press.paint) {
        if (!(Flag & OUTIL_EMPTY)) Paint_Face(press.selected, press.selected ? Image_Select : Image_Normal);
        Cursor();
    }
    if (press.way) return trace.out(press.way, press.result);
    return trace.out("", press.result, press.result);
}

float Sliders::Read() {
    Trace trace("Sliders::Read", *this);
    check_first_use(*this, "Sliders::Read");
    if (too_small(*this)) return trace.out("< 0", 0.0f);
    if (Flag & OUTIL_DISABLE) return trace.out("OUTIL_DISABLE", 0.0f);
    const POINT pointer = read_pointer(*this, "Sliders::Read");
    const Axis axis = axis_of(*this);
    const Px offset = offset_along(*this, pointer);
    const char* way = axis.vertical ? "OUTIL_VERTICAL" : "";
    // As thick as long, whatever Arrow_Len says: unlike the test of a press, on purpose.
    if (offset <= axis.thick || offset >= axis.length - axis.thick) return trace.out(way, Cur_Value);
    const int places = std::min(Table_Size, TABLE_ROOM);
    if (places < 2) return trace.out(way, Cur_Value); // there was no room for a table
    // The pointer holds the thumb by its middle.
    const int at = offset - (axis.thick + bevel_width(*this) + Larg - 1);
    return trace.out(way, Value_Table[std::clamp(at, 0, places - 1)]);
}

float Sliders::Scroll(int notches) {
    Trace trace("Sliders::Scroll", *this);
    check_first_use(*this, "Sliders::Scroll");
    if (too_small(*this)) return trace.out("<0", 0.0f);
    if (Flag & OUTIL_DISABLE) return trace.out("OUTIL_DISABLE", Cur_Value);
    const float way = static_cast<float>(notches) * Step;
    // Reversed, these are the bounds of the far end and limit nothing; Adjust does.
    if (reversed(*this))
        Cur_Value = notches > 0 ? std::max(Val_Max, Cur_Value + way) : std::min(Val_Min, Cur_Value + way);
    else
        Cur_Value = notches > 0 ? std::max(Val_Min, Cur_Value - way) : std::min(Val_Max, Cur_Value - way);
    Adjust();
    return trace.out("", Cur_Value);
}

void Sliders::Larg_Adjust(float visible, float total) {
    if (too_small(*this)) return;
    const Axis axis = axis_of(*this);
    if (axis.length <= 2 * (Px(SPACE) + axis.thick)) return;
    // Upward the room is measured by the bevel, though it was guarded by the gap: required so.
    const int room = axis.length - 2 * (Px(axis.vertical ? Border : SPACE) + axis.thick);
    Larg = shows_all(visible, total) ? room / 2 : thumb_share(visible, total, room, CURSEUR / 2);
}

void Sliders::Deselect() {
    Trace trace("Sliders::Deselect", *this);
    check_first_use(*this, "Sliders::Deselect");
    if (too_small(*this)) return trace.out("< 0");
    if (const char* way = end_press(*this, select, Held)) return trace.out(way);
    Paint_Face(false, Image_Normal);
    Cursor();
}
