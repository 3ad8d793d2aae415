#include <brask/sliders.h>

#include <algorithm>
#include <cmath>
#include <cstring>
#include <iterator>

#include "controls/slider_geometry.h"
#include "foundation/bracket.h"
#include "foundation/checks.h"
#include "foundation/layout.h"
#include "foundation/trace.h"
#include "foundation/track.h"

using namespace brask;

namespace {

constexpr int TABLE_ROOM = std::extent_v<decltype(Sliders::Value_Table)>;

bool reversed(const Sliders& slider) { return (slider.Flag & OUTIL_REVERSE) != 0; }

// Into the range; what is no number goes to its upper end.
void clamp_value(Sliders& slider) {
    const float low = reversed(slider) ? slider.Val_Max : slider.Val_Min;
    const float high = reversed(slider) ? slider.Val_Min : slider.Val_Max;
    slider.Cur_Value = low >= slider.Cur_Value ? low : std::min(high, slider.Cur_Value);
}

// At least as long as the metrics say, but never longer than what the arrows leave: the upper bound wins.
void fix_thumb(Sliders& slider) {
    const Slider_Axis axis = slider_axis(slider);
    slider.Larg = std::min<int>(std::max(slider.Larg, CURSEUR / 2), Px(axis.length / 2) - axis.thick);
}

// The value of each thumb position, by running addition: the last one may miss Val_Max by rounding.
void build_table(Sliders& slider) {
    slider.Table_Size = Px(slider_play(slider)) + 2;
    if (slider.Table_Size <= 1) return;
    slider.Table_Size = std::min(slider.Table_Size, TABLE_ROOM);
    const float step = (slider.Val_Max - slider.Val_Min) / static_cast<float>(slider.Table_Size - 1);
    float value = slider.Val_Min;
    for (int i = 0; i < slider.Table_Size; i++, value += step)
        slider.Value_Table[i] = value;
}

// A press on an arrow. The far bounds are those of the end that the arrow points to.
void press_arrow(Sliders& slider, int offset) {
    const int arrow = slider_arrow(slider);
    const float up = slider.Cur_Value + slider.Step, down = slider.Cur_Value - slider.Step;
    if (offset < arrow)
        slider.Cur_Value = reversed(slider) ? std::min(slider.Val_Min, up) : std::max(slider.Val_Min, down);
    else if (offset > slider_axis(slider).length - arrow)
        slider.Cur_Value = reversed(slider) ? std::max(slider.Val_Max, down) : std::min(slider.Val_Max, up);
}

// The answer of a touched slider. With capture it is the press that counts, from its start on.
int answer(Sliders& slider, int event) {
    if (!(slider.Flag & OUTIL_CAPTURE)) return event == 1 || event == 2;
    if (event == 2) slider.Held = 1;
    return slider.Held;
}

// --- The thumb -------------------------------------------------------------------------------------------

// A corner of a stroke: an edge of the thumb and so many pixels from it, on both axes. MIDDLE lies `Larg`
// after the thumb's start.
enum Edge { LEFT, RIGHT, BOTTOM, TOP, MIDDLE };
struct Corner {
    Edge x;
    int dx;
    Edge y;
    int dy;
};
struct Stroke {
    unsigned long color;
    int corners;
    Corner corner[3];
};
constexpr unsigned long FACE = 0x6E6E6E;
constexpr unsigned long LIGHT = 0xD8D8D8;
constexpr unsigned long DARK = 1;

constexpr Stroke LIGHT_SIDES = {LIGHT, 3, {{LEFT, 0, BOTTOM, 0}, {LEFT, 0, TOP, 0}, {RIGHT, -1, TOP, 0}}};
constexpr Stroke DARK_SIDES = {DARK, 3, {{LEFT, 1, BOTTOM, 0}, {RIGHT, 0, BOTTOM, 0}, {RIGHT, 0, TOP, 0}}};
constexpr Stroke INNER_SIDES = {
    DARK, 3, {{LEFT, 2, BOTTOM, 1}, {RIGHT, -1, BOTTOM, 1}, {RIGHT, -1, TOP, -1}}};

// A light and a dark line make the groove across the middle: one stroke list for each direction.
constexpr Stroke VERTICAL_THUMB[] = {
    LIGHT_SIDES, {LIGHT, 2, {{LEFT, 1, MIDDLE, -1}, {RIGHT, -1, MIDDLE, -1}, {}}}, DARK_SIDES,
    INNER_SIDES, {DARK, 2, {{LEFT, 1, MIDDLE, 0}, {RIGHT, 0, MIDDLE, 0}, {}}},
};
constexpr Stroke HORIZONTAL_THUMB[] = {
    LIGHT_SIDES, {LIGHT, 2, {{MIDDLE, 0, BOTTOM, 1}, {MIDDLE, 0, TOP, 0}, {}}},   DARK_SIDES,
    INNER_SIDES, {DARK, 2, {{MIDDLE, -1, BOTTOM, 1}, {MIDDLE, -1, TOP, -1}, {}}},
};

void paint_stroke(const Stroke& stroke, const Area& thumb, int middle) {
    const int edges[] = {thumb.x1, thumb.x2, thumb.y1, thumb.y2, middle};
    Zeb_color(stroke.color);
    for (int i = 0; i < stroke.corners; i++) {
        const Corner& corner = stroke.corner[i];
        const int x = Px(edges[corner.x]) + corner.dx, y = Px(edges[corner.y]) + corner.dy;
        if (i == 0)
            move2s(x, y);
        else
            draw2s(x, y, 0);
    }
}

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
    const float ratio = (Cur_Value - Val_Min) / (Val_Max - Val_Min);
    const float way = static_cast<float>(slider_play(*this)) * (std::isnan(ratio) ? 0.0f : ratio);
    return cut(static_cast<double>(way + static_cast<float>(slider_axis(*this).thick)) + 0.5);
}

// Arrows and thumb, over a face that has just been painted.
void Sliders::Cursor() {
    if (Flag & (OUTIL_INVISIBLE | GRAPH_OUTLINE)) return;
    const Slider_Axis axis = slider_axis(*this);
    const int first = axis.vertical ? 2 : 0;
    for (int dir : {first, first + 1})
        Arrow(dir, Px(bevel_width(*this)) + 2, slider_arrow(*this), Pos_X, Dim_X, Pos_Y, Dim_Y);
    if (axis.length < 2 * axis.thick) return; // too short for a thumb
    Paint_Thumb();
}

void Sliders::Paint_Thumb() {
    Bracket bracket(*this, "Sliders::Cursor");
    const bool vertical = slider_axis(*this).vertical;
    const Area thumb = slider_thumb(*this, Posit());
    const int middle = Px(vertical ? thumb.y1 : thumb.x1) + Larg;
    Zeb_color(FACE);
    // Along the horizontal track the fill stops one row lower.
    draw_fill_rectangle(Px(thumb.x1) + 1, Px(thumb.y2) - (vertical ? 0 : 1), thumb.x2, thumb.y1);
    for (const Stroke& stroke : vertical ? VERTICAL_THUMB : HORIZONTAL_THUMB)
        paint_stroke(stroke, thumb, middle);
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
    const bool inside = PtInRect(&Region, pointer);
    if (event == KEY_QUERY) return inside ? trace.out("KEY_QUERY:1", 1) : trace.out("KEY_QUERY:0", 0);
    if (event == 0) Held = 0;
    if (Flag & (OUTIL_DISABLE | GRAPH_OUTLINE)) {
        if (Flag & (OUTIL_INVISIBLE | GRAPH_OUTLINE)) return trace.out("OUTIL_EMPTY|OUTIL_INVISIBLE:0", 0);
        if (!(Flag & OUTIL_EMPTY)) Paint_Face(false, Image_Normal);
        Cursor();
        return trace.out("OUTIL_DISABLE:0", 0);
    }
    const bool touched = inside || (Flag & OUTIL_CAPTURE && Held);
    if (touched && event == 2) press_arrow(*this, slider_offset(*this, pointer));
    const int result = touched ? answer(*this, event) : 0;
    if (faceless(*this))
        return trace.out(
            touched ? "OUTIL_EMPTY|OUTIL_INVISIBLE|OUTIL_OUTLINE" : "OUTIL_EMPTY|OUTIL_INVISIBLE:0", result);
    const Track step = track(select, touched);
    if (!step.repaint) return trace.out(touched ? "select == 1" : "select == 2", result);
    select = step.next;
    Paint_Face(touched, touched ? Image_Select : Image_Normal);
    Cursor();
    return trace.out("", result, result);
}

float Sliders::Read() {
    Trace trace("Sliders::Read", *this);
    check_first_use(*this, "Sliders::Read");
    if (too_small(*this)) return trace.out("< 0", 0.0f);
    if (Flag & OUTIL_DISABLE) return trace.out("OUTIL_DISABLE", 0.0f);
    const POINT pointer = read_pointer(*this, "Sliders::Read");
    const Slider_Axis axis = slider_axis(*this);
    const Px offset = slider_offset(*this, pointer);
    const char* way = axis.vertical ? "OUTIL_VERTICAL" : "";
    // As thick as long, whatever Arrow_Len says: unlike the test of a press, on purpose.
    if (offset <= axis.thick || offset >= axis.length - axis.thick) return trace.out(way, Cur_Value);
    const int last = std::min(Table_Size, TABLE_ROOM) - 1;
    if (last < 1) return trace.out(way, Cur_Value); // there was no room for a table
    // The pointer holds the thumb by its middle.
    const int at = offset - (axis.thick + bevel_width(*this) + Larg - 1);
    return trace.out(way, Value_Table[std::clamp(at, 0, last)]);
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
    const Slider_Axis axis = slider_axis(*this);
    if (axis.length <= 2 * (Px(SPACE) + axis.thick)) return;
    // Upward the room is measured by the bevel, though it was guarded by the gap: required so.
    const int room = axis.length - 2 * (Px(axis.vertical ? Border : SPACE) + axis.thick);
    const float part = std::fabs(visible), whole = std::fabs(total);
    if (part >= whole)
        Larg = room / 2;
    else
        Larg = std::max(cut(part / whole * (static_cast<float>(room) * 0.5f)), CURSEUR / 2);
}

void Sliders::Deselect() {
    Trace trace("Sliders::Deselect", *this);
    check_first_use(*this, "Sliders::Deselect");
    if (too_small(*this)) return trace.out("< 0");
    Held = 0;
    if (faceless(*this)) return trace.out("OUTIL_EMPTY|OUTIL_INVISIBLE|OUTIL_OUTLINE");
    if (select == TRACK_NONE || select == TRACK_OUTSIDE) return trace.out("select == 0");
    Paint_Face(false, Image_Normal);
    Cursor();
}
