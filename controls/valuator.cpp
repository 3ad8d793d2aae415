#include <brask/valuators.h>

#include <algorithm>
#include <cmath>
#include <cstring>
#include <type_traits>

#include "controls/padlock.h"
#include "controls/range.h"
#include "controls/thumb.h"
#include "controls/valuator_geometry.h"
#include "foundation/bracket.h"
#include "foundation/checks.h"
#include "foundation/layout.h"
#include "foundation/palette.h"
#include "foundation/trace.h"
#include "foundation/track.h"
#include "text/format.h"

using namespace brask;

namespace {

constexpr int TABLE_ROOM = std::extent_v<decltype(Valuators::Value_Table)>;
constexpr int NUMBER_ROOM = 80; // of the text in the numeric field

void clamp_value(Valuators& bar) { bar.Cur_Value = into_range(bar, bar.Cur_Value, bar.Val_Min, bar.Val_Max); }

// --- The scale: even steps along the track are even steps of `place`. ---

struct Scale {
    float (*place)(float value);
    float (*value)(float place);
};
float same(float v) { return v; }
float log10_of(float v) { return std::log10(v); }
float power_of_10(float v) { return std::pow(10.0f, v); }
float ln_of(float v) { return std::log(v); }
float power_of_e(float v) { return std::exp(v); }

Scale scale_of(const Valuators& bar) {
    if (bar.Flag & VALUATOR_LOG10) return {log10_of, power_of_10};
    if (bar.Flag & VALUATOR_LN) return {ln_of, power_of_e};
    return {same, same};
}

// The whole range on the scale, with its sign.
float scale_range(const Valuators& bar) {
    const Scale scale = scale_of(bar);
    return scale.place(bar.Val_Max) - scale.place(bar.Val_Min);
}

// The value of each thumb position. On a logarithmic track an end that has no logarithm makes values without
// meaning, which nothing guards against: Adjust clamps them.
void build_table(Valuators& bar) {
    bar.Table_Size = std::clamp<int>(Px(valuator_play(bar)) + 2, 1, TABLE_ROOM);
    if (bar.Table_Size == 1 || !(bar.Flag & (VALUATOR_LOG10 | VALUATOR_LN)))
        return fill_evenly(bar.Value_Table, bar.Table_Size, bar.Val_Min, bar.Val_Max);
    const Scale scale = scale_of(bar);
    const float first = scale.place(bar.Val_Min);
    const float step = (scale.place(bar.Val_Max) - first) / static_cast<float>(bar.Table_Size - 1);
    for (int i = 0; i < bar.Table_Size; i++)
        bar.Value_Table[i] = scale.value(static_cast<float>(i) * step + first);
}

// --- The thumb ---

constexpr thumb::Stroke FREE_VERTICAL[] = {thumb::VERTICAL_LIGHT, thumb::VERTICAL_DARK, thumb::INNER_SIDES};
constexpr thumb::Stroke FREE_HORIZONTAL[] = {
    thumb::HORIZONTAL_LIGHT,
    {WORD_BLACK, 2, {{thumb::MIDDLE, -1, thumb::BOTTOM, 1}, {thumb::MIDDLE, -1, thumb::TOP, 0}, {}}},
    thumb::INNER_SIDES,
};
constexpr thumb::Stroke SIDES_VERTICAL[] = {thumb::LIGHT_SIDES, thumb::DARK_SIDES};
constexpr thumb::Stroke SIDES_HORIZONTAL[] = {
    {WORD_LIGHT,
     3,
     {{thumb::LEFT, 0, thumb::BOTTOM, 1}, {thumb::LEFT, 0, thumb::TOP, 0}, {thumb::RIGHT, 0, thumb::TOP, 0}}},
    thumb::DARK_SIDES,
};

void paint_free(const Area& area, bool vertical, int middle) {
    Zeb_color(WORD_SHADOW);
    draw_fill_rectangle(Px(area.x1) + 1, Px(area.y2) - (vertical ? 0 : 1), area.x2, area.y1);
    thumb::paint(vertical ? FREE_VERTICAL : FREE_HORIZONTAL, area, middle);
}

void paint_locked(const Valuators& bar, const Area& area) {
    const Px left = area.x1, right = area.x2, bottom = area.y1, top = area.y2;
    Zeb_color(WORD_LIGHT);
    draw_fill_rectangle(left + 1, top - 1, right, bottom);
    const Valuator_Lock lock = valuator_lock(bar, area);
    if (lock.side)
        draw_image(reinterpret_cast<const char*>(padlock_glyph(lock.side)), lock.x, lock.y, 0, 0, lock.side,
                   lock.side, lock.side, lock.side, 0);
    Zeb_color(WORD_OUTLINE);
    draw_rectangle(left + 1, top - 1, right - 1, bottom + 1);
}

void paint_frame(Valuators& bar, int dir, int width) {
    const Area whole = whole_area(bar);
    bar.Cadre(1, dir, width, whole.x1, whole.x2, whole.y1, whole.y2);
}

void paint_outline(Valuators& bar) {
    const Area whole = whole_area(bar);
    bar.Cadre_Outline(whole.x1, whole.x2, whole.y1, whole.y2);
}

} // namespace

Valuators::Valuators() {
    Trace trace("Valuators::Valuators");
    std::memset(static_cast<void*>(this), 0, sizeof *this);
}

Valuators::Valuators(const Valuators& other) = default;
Valuators& Valuators::operator=(const Valuators& other) = default;
Valuators::~Valuators() { Trace trace("Valuators::~Valuators"); }

void Valuators::Init(HWND wnd) {
    Trace trace("Valuators::Init", *this);
    test |= TEST_INIT;
    if (too_small(*this) || Num_Width < 0) return trace.out("<0"); // the window is not even stored
    if (wnd) Wnd = wnd;
    if (missing_window(*this, "Valuators::Init")) return trace.out("!wnd");
    fill_padlocks();
    Larg = std::max(Larg, CURSEUR);
    default_color(*this);
    set_region(*this);
    if (Flag & OUTIL_VERTICAL) Format = nullptr; // a vertical bar has no numeric field
    if (!Format) Num_Width = 0;
    build_table(*this);
    Old_Dim_X = Dim_X;
    Old_Dim_Y = Dim_Y;
    if (Flag & (OUTIL_EMPTY | OUTIL_INVISIBLE)) return trace.out("OUTIL_EMPTY | OUTIL_INVISIBLE");
    // No face is generated; a surface that the host took away is not shown any more.
    Image_Select = Graph_Select;
    Image_Normal = Graph_Normal;
    clamp_value(*this);
}

// The thumb's offset in pixels from the inner edge of the track.
int Valuators::Posit() const {
    const Scale scale = scale_of(*this);
    const float place = ratio(scale.place(Cur_Value) - scale.place(Val_Min), scale_range(*this));
    const float way = static_cast<float>(valuator_play(*this)) * place;
    return cut(static_cast<double>(way) + 0.5);
}

// The thumb, over a face that has just been painted.
void Valuators::Cursor() {
    if (Flag & (OUTIL_INVISIBLE | GRAPH_OUTLINE)) return;
    Bracket bracket(*this, "Valuators::Cursor");
    const bool vertical = (Flag & OUTIL_VERTICAL) != 0;
    const Area area = valuator_thumb(*this, Posit());
    const int middle = Px(vertical ? area.y1 : area.x1) + Larg;
    if (Flag & VALUATOR_FREZE)
        paint_locked(*this, area);
    else
        paint_free(area, vertical, middle);
    thumb::paint(vertical ? SIDES_VERTICAL : SIDES_HORIZONTAL, area, middle);
}

void Valuators::Paint_Face(bool selected, DWORD* image) {
    const Valuator_Face face = valuator_face(*this);
    Fill_Select(selected, reinterpret_cast<const char*>(image), Flag, face.inset, face.area.x1, face.area.x2,
                face.area.y1, face.area.y2);
}

// On the track, under the thumb.
void Valuators::Paint_Name() {
    if (!W_Name) return;
    const Valuator_Text at = valuator_name(*this);
    Text(W_Name, Flag, at.x, at.y, at.dx, at.dy, Border, 0);
}

void Valuators::Paint_Number() {
    wchar_t number[NUMBER_ROOM];
    text::format_number(number, NUMBER_ROOM, Char_2_Wchar(Format), static_cast<double>(Cur_Value));
    const Valuator_Text at = valuator_number(*this);
    Text(number, 0, at.x, at.y, at.dx, at.dy, Border, 0); // the flags place the name, not the number
}

void Valuators::Paint_Inner_Frame() {
    const Area frame = valuator_inner_frame(*this);
    Cadre(0, 1, 1, frame.x1, frame.x2, frame.y1, frame.y2);
}

void Valuators::Draw() {
    Trace trace("Valuators::Draw", *this);
    if (Flag & OUTIL_INVISIBLE) return trace.out("OUTIL_INVISIBLE");
    check_first_use(*this, "Valuator::Draw");
    if (too_small(*this)) return trace.out("<0");
    if (Flag & GRAPH_OUTLINE) {
        paint_outline(*this);
        Paint_Name();
        return trace.out("GRAPH_OUTLINE");
    }
    clamp_value(*this);
    const Area whole = whole_area(*this);
    Fill(Flag, whole.x1, whole.x2, whole.y1, whole.y2);
    paint_frame(*this, 1, bevel_width(*this));
    if (Format) {
        if (Border) Paint_Inner_Frame();
        Paint_Number();
    }
    Paint_Name();
    // The host's surfaces are laid by Select; `Held` as the event keeps a drag alive.
    if (!Graph_Select && !Graph_Normal && !Held) return Cursor();
    select = TRACK_NONE;
    Select(Held);
}

void Valuators::Adjust() {
    Trace trace("Valuators::Adjust", *this);
    check_first_use(*this, "Valuator::Adjust");
    if (too_small(*this)) return trace.out("<0");
    if (Flag & GRAPH_OUTLINE) {
        paint_outline(*this);
        Paint_Name(); // and goes on
    }
    if (Flag & OUTIL_INVISIBLE) return trace.out("OUTIL_INVISIBLE");
    clamp_value(*this);
    if (Format) {
        const Area field = valuator_field(*this);
        Fill(0, field.x1, field.x2, field.y1, field.y2); // no flags: an empty bar's number is wiped as well
        Paint_Number();
        if (Border)
            Paint_Inner_Frame();
        else {
            const Area whole = whole_area(*this);
            Cadre(0, 1, bevel_width(*this), whole.x1, whole.x2, whole.y1, whole.y2);
        }
    } else {
        paint_frame(*this, 1, Border); // the field as it stands, on purpose: 0 gives no bevel here
    }
    Paint_Face(select == TRACK_INSIDE, Image_Select); // this one in both looks, so that the hover look stays
    Paint_Name();
    // `Held` is not asked here, unlike in Draw.
    if (!Graph_Select && !Graph_Normal) return Cursor();
    select = TRACK_NONE;
    Select(Held);
}

int Valuators::Select(int mode) {
    Trace trace("Valuators::Select", *this);
    if (!test) return trace.out("! test", 0);
    check_first_use(*this, "Valuator::Select");
    if (too_small(*this)) return trace.out("<0", 0);
    const bool inside = PtInRect(&Region, read_pointer(*this, "Valuators::Select"));
    const Press press = follow_press(*this, event_of(mode), inside, select, Held);
    if (press.paint) {
        if (!(Flag & OUTIL_EMPTY)) Paint_Face(press.selected, press.selected ? Image_Select : Image_Normal);
        Paint_Name();
        Cursor();
    }
    if (press.way) return trace.out(press.way, press.result);
    return trace.out("", press.result, press.result);
}

float Valuators::Read() {
    Trace trace("Valuators::Read", *this);
    check_first_use(*this, "Valuator::Read");
    if (too_small(*this)) return trace.out("< 0", 0.0f);
    if (Flag & OUTIL_DISABLE) return trace.out("OUTIL_DISABLE", 0.0f);
    if (Flag & VALUATOR_FREZE) return trace.out("VALUATOR_FREZE", Cur_Value);
    const POINT pointer = read_pointer(*this, "Valuators::Read");
    // The pointer holds the thumb by its middle, and the whole bar answers.
    const int at = Px(offset_along(*this, pointer)) - Larg - bevel_width(*this) + 1;
    const int last = std::clamp(Table_Size, 1, TABLE_ROOM) - 1; // a table that was never built has one zero
    return Value_Table[std::clamp(at, 0, last)];
}

float Valuators::Scroll(int notches) {
    Trace trace("Valuators::Scroll", *this);
    check_first_use(*this, "Valuators::Scroll");
    if (too_small(*this)) return trace.out("<0", 0.0f);
    if (Flag & OUTIL_DISABLE) return trace.out("OUTIL_DISABLE", Cur_Value);
    if (Flag & VALUATOR_FREZE) return trace.out("VALUATOR_FREZE", Cur_Value);
    const Scale scale = scale_of(*this);
    const float notch = Step != 0.0f ? Step : std::fabs(scale_range(*this)) / 50.0f;
    const float way = static_cast<float>(notches) * notch;
    const float place = scale.place(Cur_Value);
    Cur_Value = scale.value(reversed(*this) ? place + way : place - way);
    clamp_value(*this);
    Adjust();
    return Cur_Value;
}

void Valuators::Larg_Adjust(float visible, float total) {
    Trace trace("Valuators::Larg_Adjust", *this);
    check_first_use(*this, "Valuators::Larg_Adjust");
    if (too_small(*this)) return trace.out("<0");
    const Px track = Flag & OUTIL_VERTICAL ? Px(Dim_Y) : Px(Dim_X) - Num_Width;
    const Px gaps = 2 * Px(SPACE);
    if (track <= gaps) return;
    const int room = track - gaps;
    Larg = shows_all(visible, total) ? cut(static_cast<float>(room) * 0.5f)
                                     : thumb_share(visible, total, room, CURSEUR);
}

void Valuators::Lock(int state) {
    Trace trace("Valuators::Lock", *this);
    if (state == 8)
        Flag ^= VALUATOR_FREZE;
    else
        Flag = state ? Flag | VALUATOR_FREZE : Flag & ~VALUATOR_FREZE;
}

void Valuators::Deselect() {
    Trace trace("Valuators::Deselect", *this);
    check_first_use(*this, "Valuator::Deselect");
    if (too_small(*this)) return trace.out("< 0");
    if (const char* way = end_press(*this, select, Held)) return trace.out(way);
    Paint_Face(false, Image_Normal);
    Paint_Name();
    Cursor();
}
