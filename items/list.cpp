#include <brask/lists.h>

#include <algorithm>
#include <cstdlib>
#include <cstring>

#include "foundation/bracket.h"
#include "foundation/checks.h"
#include "foundation/faces.h"
#include "foundation/layout.h"
#include "foundation/surfaces.h"
#include "foundation/trace.h"
#include "foundation/track.h"
#include "items/item_array.h"
#include "items/list_geometry.h"

using namespace brask;

namespace {

int count_of(const Lists& list) { return item_count(list.Item, list.NbItem); }

// The item of that index; null out of range.
Buttons* item_at(const Lists& list, int index) {
    if (index < 0 || index >= list.NbItem) return nullptr;
    return item_count(list.Item, index + 1) > index ? list.Item[index] : nullptr;
}

bool has_slider(const Lists& list) { return list.Slider.Dim_X != 0; }

// The font is asked only for a name, which alone needs room.
List_Sizes sizes_now(const Lists& list, const char* tag) {
    return list_sizes(list, list.W_Name ? font_height(list, tag) : 0);
}

// --- Init ---

struct Measures {
    int font_height;
    int widest; // of the names, for items side by side
};
Measures measure(const Lists& list) {
    const HFONT font = font_of(list);
    Setup setup(list.Wnd, "Lists::Init");
    Measures measures = {Zeb_Font_Size_Height(font), 2 * Px(SPACE)};
    const int count = item_count(list.Item);
    if (list.Flag & OUTIL_VERTICAL) return measures;
    for (int i = 0; i < count; i++) {
        const wchar_t* name = list.Item[i]->W_Name;
        if (!name) continue;
        const int width = Zeb_Font_Size_String(font, name);
        // Only without a name on the first item the standard width counts.
        measures.widest = i ? std::max(measures.widest, width) : width;
    }
    return measures;
}

// Never reacts: the list tracks its items only.
void lay_box(Lists& list, HWND wnd) {
    Boxs& box = list.Box;
    lend_name(list, box);
    lay_around(list, box);
    box.Border = list.Border;
    box.Flag = (list.Flag & (OUTIL_INVISIBLE | OUTIL_EMPTY | GRAPH_OUTLINE)) | OUTIL_FLAT | OUTIL_DISABLE;
    box.Clip_X = list.Clip_X ? list.Clip_X : list.Pos_X;
    box.Clip_Y = list.Clip_Y ? list.Clip_Y : list.Pos_Y;
    box.Clip_Dim_X = list.Clip_Dim_X ? list.Clip_Dim_X : list.Dim_X;
    box.Clip_Dim_Y = list.Clip_Dim_Y ? list.Clip_Dim_Y : list.Dim_Y;
    box.Init(wnd);
}

// A value of 0 counts as none: the list stands at its first item.
void lay_slider(Lists& list, const List_Layout& layout) {
    Sliders& slider = list.Slider;
    if (!layout.scrolls) return clear_part(slider);
    put(slider, layout.slider);
    slider.Flag = list.Flag | OUTIL_REVERSE;
    slider.Border = 1;
    lend_color(list, slider);
    lend_clip(list.Box, slider);
    slider.Val_Min = static_cast<float>(layout.val_min);
    slider.Val_Max = static_cast<float>(layout.val_max);
    slider.Step = static_cast<float>(layout.notch);
    slider.Larg_Adjust(static_cast<float>(layout.shown), static_cast<float>(layout.total));
    if (slider.Cur_Value == 0.0f)
        slider.Cur_Value = static_cast<float>(layout.step_x ? layout.first.x : layout.first.y);
}

// `clip_height`: the name's row is not for items.
void lay_item(const Lists& list, int index, const Place& size, int clip_height, HWND wnd) {
    Buttons& item = *list.Item[index];
    item.Flag |= CADRE_NO_LINE;
    if (list.Flag & OUTIL_EMPTY) item.Flag |= list.Flag & LIST_ITEM_MASK;
    item.Cur_Value = index == list.Cur_Value;
    item.Dim_X = size.width;
    item.Dim_Y = size.height;
    item.Border = list.Border;
    lend_whole_font(list, item);
    lend_clip(list.Box, item);
    item.Clip_Dim_Y = clip_height;
    item.Init(item.Wnd ? wnd : list.Wnd);
    item.Deselect();
}

int item_clip_height(const Lists& list, const List_Sizes& sizes) {
    const Px height = list.Box.Clip_Dim_Y;
    return list.W_Name ? height - 2 - sizes.name - sizes.border : height;
}

// --- Painting ---

// Whether the box's face may be read as a surface of the list's size.
bool face_fits(const Lists& list) {
    const Boxs& box = list.Box;
    return box.Image_Normal && list.Dim_X == box.Dim_X && list.Dim_Y == box.Dim_Y &&
           !faces::outgrown(box.Image_Normal, box) && !Host_Surfaces::outgrown(box.Image_Normal, box);
}

void set_view_clip(const Lists& list, const Area& view) {
    const Px left = view.x1, right = view.x2, bottom = view.y1, top = view.y2;
    if (!list.Clip_Dim_X) return Zeb_set_clip(left, bottom - 1, right - left + 1, top - bottom + 1);
    const Px x = std::max(list.Clip_X, view.x1), y = std::max(list.Clip_Y, view.y1);
    Zeb_set_clip(x, y, std::min<int>(Px(list.Clip_X) + list.Clip_Dim_X, right) - x,
                 std::min<int>(Px(list.Clip_Y) + list.Clip_Dim_Y, top) - y);
}

// What stood in the view is covered by the frame's face.
void paint_ground(Lists& list, const Area& view) {
    if (!face_fits(list)) return list.Fill(0, view.x1, view.x2, view.y1, view.y2);
    const Boxs& box = list.Box;
    const Px b = bevel_size(list);
    Setup setup(list.Wnd, "Lists::Update");
    set_view_clip(list, view);
    // The source corner is lopsided on purpose: its column is the bevel as it stands, 0 for a default one.
    draw_image(reinterpret_cast<const char*>(box.Image_Normal), b + box.Pos_X, b + box.Pos_Y, box.Border, b,
               box.Dim_X - 2 * b + 1, box.Dim_Y - 2 * b + 1, list.Dim_X, list.Dim_Y, 0);
    Zeb_reset_clip();
}

// --- Scrolling ---

int slider_place(const Lists& list) { return cut(list.Slider.Cur_Value); }

bool scrolled(const Lists& list) { return slider_place(list) != (list.Step_X ? list.First_X : list.First_Y); }

// --- Tracking ---

int track_inside(Lists& list, const Area& tracking, int event) {
    int found = 0;
    const Rows rows = rows_in(list, tracking);
    for (int i = rows.begin; i < rows.end; i++) {
        Buttons& item = *list.Item[i];
        place_item(list, i);
        if (lies_within(item, tracking) && item.Shown && item.Select(event)) found = 1;
    }
    return found;
}

// Those that can be seen are painted in the normal look. Unlike inside, Shown is not asked: required so.
void track_outside(Lists& list, const Area& tracking, int event) {
    const int count = count_of(list);
    for (int i = 0; i < count; i++) {
        Buttons& item = *list.Item[i];
        if (item.select == TRACK_OUTSIDE) continue;
        place_item(list, i);
        if (lies_within(item, tracking))
            item.Select(event);
        else
            item.select = TRACK_OUTSIDE;
    }
}

} // namespace

Lists::Lists() {
    Trace trace("Lists::Lists");
    std::memset(static_cast<void*>(this), 0, sizeof *this);
}
Lists::Lists(const Lists& other) = default;
Lists& Lists::operator=(const Lists& other) = default;
Lists::~Lists() {
    Trace trace("Lists::~Lists");
    Item = free_items(Item);
}

int Lists::Grow(int n, int flag) {
    const Grow_Source source = {"list", 155, 158};
    const DWORD flags = button_flags(*this, flag);
    const int done = grow_items(Item, n, source, [this, flags](Buttons& item) {
        item.Flag = flags;
        lend_clip(Box, item);
    });
    if (done) NbItem = item_count(Item);
    return done;
}

void Lists::Init(HWND wnd) {
    Trace trace("Lists::Init", *this);
    test |= TEST_INIT;
    if (too_small(*this)) return trace.out("<0");
    if (wnd) Wnd = wnd;
    if (missing_window(*this, "Lists::Init")) return trace.out("!wnd");
    Old_Value = Cur_Value;
    default_color(*this);
    set_region(*this);
    const Measures measures = measure(*this);
    const List_Sizes sizes = list_sizes(*this, measures.font_height);
    lay_box(*this, wnd);
    Need_Y = list_height(sizes, measures.font_height);
    Slider.Dim_X = 0;
    NbItem = item_count(Item);
    if (!NbItem) return trace.out("!end");
    const List_Layout layout = list_layout(*this, sizes, NbItem, measures.widest);
    First_X = layout.first.x;
    First_Y = layout.first.y;
    Step_X = layout.step_x;
    Step_Y = layout.step_y;
    if (layout.scrolls && Step_X) Need_Y = Px(Need_Y) + sizes.slider;
    lay_slider(*this, layout);
    const int clip_height = item_clip_height(*this, sizes);
    for (int i = 0; i < NbItem; i++)
        lay_item(*this, i, layout.first, clip_height, wnd);
    if (has_slider(*this)) Slider.Init(Slider.Wnd ? wnd : Wnd);
    remember_size(*this);
}

// Whole items only: one that is partly in view is not painted, and the ground covers what was there. All
// items are placed, of which there may be very many: nothing else of those out of view is touched.
void Lists::Update() {
    Trace trace("Lists::Update", *this);
    if (too_small(*this)) return trace.out("< 0");
    trace.out("GRAPH_OUTLINE"); // also on the normal way out: required so
    const Area view = list_view(*this, sizes_now(*this, "Lists::Update"));
    paint_ground(*this, view);
    if (has_slider(*this)) (Step_X ? First_X : First_Y) = slider_place(*this);
    if (Flag & GRAPH_OUTLINE) return;
    for (int i = Shown_Begin; i < std::min(Shown_End, NbItem) && Item && Item[i]; i++)
        Item[i]->Shown = 0;
    place_items(*this);
    const Rows rows = rows_in(*this, view);
    for (int i = rows.begin; i < rows.end; i++) {
        Buttons& item = *Item[i];
        item.Shown = lies_within(item, view);
        if (!item.Shown) continue;
        item.Init(Wnd);
        item.Draw();
    }
    Shown_Begin = rows.begin;
    Shown_End = rows.end;
}

void Lists::Draw() {
    Trace trace("Lists::Draw", *this);
    if (Flag & OUTIL_INVISIBLE) return trace.out("OUTIL_INVISIBLE");
    check_first_use(*this, "List::Draw");
    if (too_small(*this)) return trace.out("<0");
    Old_Value = Cur_Value;
    Box.Draw();
    if (has_slider(*this)) Slider.Draw();
    const int count = count_of(*this);
    for (int i = 0; i < count; i++)
        Item[i]->Cur_Value = i == Cur_Value;
    Shown_Begin = 0, Shown_End = count; // whatever they were
    Update();
}

void Lists::Adjust() {
    Trace trace("Lists::Adjust", *this);
    check_first_use(*this, "List::Adjust");
    if (too_small(*this)) return trace.out("<0");
    if (Cur_Value == Old_Value) return trace.out("Cur_Value == Old_Value");
    if (Flag & OUTIL_DISABLE) return trace.out("OUTIL_DISABLE");
    const int changed[] = {Old_Value, std::min(Cur_Value, count_of(*this) - 1)};
    if (Buttons* old = item_at(*this, changed[0])) old->Cur_Value = 0;
    Cur_Value = changed[1];
    if (Buttons* current = item_at(*this, Cur_Value)) current->Cur_Value = 1;
    Old_Value = Cur_Value;
    if (Flag & OUTIL_INVISIBLE) return trace.out("OUTIL_INVISIBLE");
    for (int index : changed) {
        Buttons* item = item_at(*this, index);
        if (!item || !item->Shown) continue;
        place_item(*this, index);
        item->Adjust();
    }
}

// Follows the pointer on the slider; whether that has the pointer.
bool Lists::Scrolls(int event) {
    if (!has_slider(*this) || !Slider.Select(event)) return false;
    if (!any_button_down()) return true;
    Slider.Cur_Value = Slider.Read();
    Slider.Adjust();
    if (scrolled(*this)) Update();
    return true;
}

int Lists::Select(int mode) {
    Trace trace("Lists::Select", *this);
    check_first_use(*this, "List::Select");
    if (too_small(*this)) return trace.out("<0", 0);
    if (Flag & OUTIL_DISABLE) return trace.out("OUTIL_DISABLE", 0); // before KEY_QUERY, unlike other controls
    const bool inside = PtInRect(&Region, read_pointer(*this, "Lists::Select"));
    const int event = event_of(mode);
    if (event == KEY_QUERY) return inside ? trace.out("KEY_QUERY:1", 1) : trace.out("KEY_QUERY:0", 0);
    const Area tracking = list_tracking(*this, sizes_now(*this, "Lists::Select"));
    if (Scrolls(event)) return trace.out("", 0, 0);
    if (inside) {
        const int found = track_inside(*this, tracking, event);
        return trace.out("", found, found);
    }
    track_outside(*this, tracking, event);
    return trace.out("", 0, 0);
}

int Lists::Read() {
    Trace trace("Lists::Read", *this);
    check_first_use(*this, "List::Read");
    if (too_small(*this)) return trace.out("<0", -1);
    if (Flag & OUTIL_DISABLE) return trace.out("OUTIL_DISABLE", -1);
    const POINT pointer = read_pointer(*this, "Lists::Read");
    if (!PtInRect(&Region, pointer)) return trace.out("!PtInRect", -1);
    const Rows rows = rows_at(*this, pointer);
    for (int i = rows.begin; i < rows.end; i++) {
        const Buttons& item = *Item[i];
        if (item.Flag & OUTIL_DISABLE) continue;
        place_item(*this, i);
        const Area area = whole_area(item);
        // Both ends count, so that where two items touch the first one answers.
        if (area.x1 <= pointer.x && pointer.x <= area.x2 && area.y1 <= pointer.y && pointer.y <= area.y2)
            return i;
    }
    return -1;
}

void Lists::Deselect() {
    Trace trace("Lists::Deselect", *this);
    if (!test) return trace.out("! this->test");
    if (too_small(*this)) return trace.out("< 0");
    if (faceless(*this)) return trace.out("OUTIL_EMPTY|OUTIL_INVISIBLE|OUTIL_OUTLINE");
    if (has_slider(*this)) Slider.Deselect();
    const int count = count_of(*this);
    for (int i = 0; i < count; i++)
        if (Item[i]->Shown) Item[i]->Deselect();
}

// A list without a slider compares with a slider value of 0 and may repaint to no effect: required so.
void Lists::Scroll(int delta) {
    check_first_use(*this, "Lists::Scroll");
    if (too_small(*this) || Flag & OUTIL_DISABLE) return;
    if (!PtInRect(&Region, read_pointer(*this, "Lists::Scroll"))) return;
    if (has_slider(*this)) {
        Slider.Cur_Value = Slider.Scroll(delta);
        Slider.Adjust();
    }
    if (scrolled(*this)) Update();
}

int Lists::Get_Y() { return Need_Y; }
