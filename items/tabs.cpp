#include <brask/tabs.h>

#include <cstring>

#include "foundation/bracket.h"
#include "foundation/checks.h"
#include "foundation/compound.h"
#include "foundation/layout.h"
#include "foundation/palette.h"
#include "foundation/pixels.h"
#include "foundation/track.h"
#include "items/item_array.h"

using namespace brask;

// A strip writes no traces.

namespace {

// How the ends of a tab are cut, see TabItems::Shape.
constexpr unsigned char LEFT_FULL = 0x10;
constexpr unsigned char RIGHT_FULL = 0x01;

int count_of(const Tabs& tabs) { return item_count(tabs.Item, tabs.NbItem); }

// The tab on top; null when Cur_Value is out of range.
TabItems* on_top(const Tabs& tabs) {
    return tabs.Cur_Value >= 0 && tabs.Cur_Value < count_of(tabs) ? tabs.Item[tabs.Cur_Value] : nullptr;
}

void mark(const Tabs& tabs, int index, int value) {
    if (index >= 0 && index < count_of(tabs)) tabs.Item[index]->Cur_Value = value;
}

// From the last tab to the first, so that each lies over its right-hand neighbour; the one on top last.
template <typename Operation>
void in_painting_order(const Tabs& tabs, Operation operation) {
    TabItems* const top = on_top(tabs);
    for (int i = count_of(tabs) - 1; i >= 0; i--)
        if (tabs.Item[i] != top) operation(*tabs.Item[i]);
    if (top) operation(*top);
}

// Each tab's left end is tucked under its neighbour, but for the first one and the one on top; its right end
// lies over the next one, but for the tab left of the one on top.
void shape_tabs(const Tabs& tabs) {
    const int count = count_of(tabs);
    for (int i = 0; i < count; i++)
        tabs.Item[i]->Shape = i == 0 ? LEFT_FULL | RIGHT_FULL : RIGHT_FULL;
    TabItems* const top = on_top(tabs);
    if (!top) return;
    top->Shape = LEFT_FULL | RIGHT_FULL;
    const int at = tabs.Cur_Value;
    if (at > 0) tabs.Item[at - 1]->Shape &= ~RIGHT_FULL;
    if (at + 1 < count) tabs.Item[at + 1]->Shape &= ~LEFT_FULL;
}

// The box behind the strip is kept in step but never painted.
void lay_box(Tabs& tabs, HWND wnd) {
    Boxs& box = tabs.Box;
    lay_around(tabs, box);
    box.Flag = (tabs.Flag & (GRAPH_OUTLINE | OUTIL_EMPTY | OUTIL_FLAT | OUTIL_INVISIBLE)) | OUTIL_DISABLE;
    box.Init(wnd);
}

// Overlapping, the tabs run from four gaps inside the left edge to four gaps inside the right one.
struct Layout {
    Px overlap, width, first, rest; // the rest of the division goes to the last tab
};
Layout layout_of(const Tabs& tabs, int count) {
    const Px overlap = tabs.Dim_Y / 4;
    const Px room = Px(tabs.Dim_X) - 8 * Px(SPACE) + Px(count - 1) * overlap;
    const Px width = room / count;
    return {overlap, width, Px(tabs.Pos_X) + 4 * Px(SPACE), room - Px(count) * width};
}

void lay_tab(const Tabs& tabs, int index, const Layout& layout, bool last) {
    TabItems& tab = *tabs.Item[index];
    if (tabs.Flag & OUTIL_EMPTY) tab.Flag |= tabs.Flag & (OUTIL_EMPTY | OUTIL_FLAT);
    tab.Cur_Value = index == tabs.Cur_Value;
    put(tab, {layout.first + (layout.width - layout.overlap) * index, tabs.Pos_Y,
              last ? layout.width + layout.rest : layout.width, tabs.Dim_Y});
    tab.Slant = layout.overlap;
    lend_whole_font(tabs, tab);
    if (tab.Color_Get() == 0) tab.Color = tabs.Color;
    tab.Init(tabs.Wnd);
}

// The page's edges: figures from point to point, the colour changing on the way. The points are given from
// the page's corners and from the gap at each end of its top.
enum Edge { LEFT, LEFT_GAP, RIGHT, RIGHT_GAP };
enum Side { BOTTOM, TOP };
constexpr unsigned long KEEP = 0; // the colour stays
struct Stroke {
    unsigned long color;
    bool draws; // else the pen is only moved there
    Edge x;
    int dx;
    Side y;
    int dy;
};
constexpr Stroke PAGE_EDGES[] = {
    // outer bevel
    {WORD_WHITE, false, LEFT_GAP, 0, TOP, 2},
    {KEEP, true, LEFT, 1, TOP, 2},
    {KEEP, true, LEFT, 1, BOTTOM, 1},
    {WORD_SHADOW, true, RIGHT, -1, BOTTOM, 1},
    {WORD_WHITE, true, RIGHT, -1, TOP, 2},
    {KEEP, true, RIGHT_GAP, 0, TOP, 2},
    // inner bevel
    {WORD_LIGHT, false, LEFT_GAP, 0, TOP, 1},
    {KEEP, true, LEFT, 2, TOP, 1},
    {KEEP, true, LEFT, 2, BOTTOM, 2},
    {WORD_SHADOW, true, RIGHT, -2, BOTTOM, 2},
    {WORD_LIGHT, true, RIGHT, -2, TOP, 1},
    {KEEP, true, RIGHT_GAP, 0, TOP, 1},
    // outline
    {WORD_BLACK, false, LEFT_GAP, 0, TOP, 3},
    {KEEP, true, LEFT, 0, TOP, 3},
    {KEEP, true, LEFT, 0, BOTTOM, 0},
    {KEEP, true, RIGHT, 0, BOTTOM, 0},
    {KEEP, true, RIGHT, 0, TOP, 3},
    {KEEP, true, RIGHT_GAP, 0, TOP, 3},
};

struct Page_Area {
    Px left, right, bottom, top;
};

void paint_ground(const Page_Area& page, unsigned long word) {
    const int xs[] = {page.left, page.left, page.right, page.right};
    const int ys[] = {page.top, page.bottom, page.bottom, page.top};
    Zeb_color(word);
    draw_fill_polygon(4, xs, ys);
}

void paint_edges(const Page_Area& page) {
    const Px gap = 4 * Px(SPACE);
    const int xs[] = {page.left, page.left + gap, page.right, page.right - gap};
    const int ys[] = {page.bottom, page.top};
    for (const Stroke& stroke : PAGE_EDGES) {
        const int x = Px(xs[stroke.x]) + stroke.dx, y = Px(ys[stroke.y]) + stroke.dy;
        if (stroke.color != KEEP) Zeb_color(stroke.color);
        if (stroke.draws)
            draw2s(x, y, 0);
        else
            move2s(x, y);
    }
}

} // namespace

Tabs::Tabs() { std::memset(static_cast<void*>(this), 0, sizeof *this); }
Tabs::Tabs(const Tabs& other) = default;
Tabs& Tabs::operator=(const Tabs& other) = default;
Tabs::~Tabs() { Item = free_items(Item); }

int Tabs::Grow(int n, int flag) {
    const Grow_Source source = {"tabs", 89, 92};
    return grow_items(Item, n, source, [flag](TabItems& tab) { tab.Flag = static_cast<DWORD>(flag); });
}

void Tabs::Init(HWND wnd) {
    test |= TEST_INIT;
    if (too_small(*this)) return;
    if (wnd) Wnd = wnd;
    if (missing_window(*this, "Tabs::Init")) return;
    Old_Value = Cur_Value;
    default_color(*this);
    set_region(*this);
    lay_box(*this, wnd);
    NbItem = item_count(Item);
    if (!NbItem) return;
    const Layout layout = layout_of(*this, NbItem);
    Tab_Overlap = layout.overlap;
    First_X = layout.first;
    Tab_Width = layout.width;
    for (int i = 0; i < NbItem; i++)
        lay_tab(*this, i, layout, i == NbItem - 1);
    remember_size(*this);
}

void Tabs::Update() {
    if (too_small(*this)) return;
    shape_tabs(*this);
    if (Flag & GRAPH_OUTLINE) return; // the shapes are set and nothing is painted
    in_painting_order(*this, [](TabItems& tab) { tab.Draw(); });
}

// Paints the strip, and lets the next Select repaint the tab on top.
void Tabs::Repaint() {
    Update();
    if (TabItems* top = on_top(*this)) top->select = TRACK_NONE;
}

void Tabs::Draw() {
    if (Flag & OUTIL_INVISIBLE) return;
    check_first_use(*this, "Tabs::Draw");
    if (too_small(*this)) return;
    Old_Value = Cur_Value;
    for (int i = count_of(*this) - 1; i >= 0; i--)
        Item[i]->Cur_Value = i == Cur_Value;
    Repaint();
}

void Tabs::Adjust() {
    check_first_use(*this, "Tabs::Adjust");
    if (too_small(*this) || Cur_Value == Old_Value || Flag & OUTIL_DISABLE) return;
    mark(*this, Old_Value, 0);
    mark(*this, Cur_Value, 1);
    Old_Value = Cur_Value;
    if (!(Flag & OUTIL_INVISIBLE)) Repaint();
}

// All tabs whose rectangles hold the pointer light up, two of them where they overlap.
int Tabs::Select(int mode) {
    check_first_use(*this, "Tabs::Select");
    if (too_small(*this) || Flag & OUTIL_DISABLE) return 0;
    const bool inside = PtInRect(&Region, read_pointer(*this, "Tabs::Select"));
    const int count = count_of(*this);
    int found = 0;
    for (int i = 0; i < count; i++)
        if (inside || Item[i]->select != TRACK_OUTSIDE) found |= Item[i]->Select(event_of(mode));
    return inside && found;
}

// Only the faces are painted, so the cut ends stay as they are.
void Tabs::Deselect() {
    if (!test || too_small(*this) || faceless(*this)) return;
    in_painting_order(*this, [](TabItems& tab) { tab.Deselect(); });
}

int Tabs::Read() {
    check_first_use(*this, "Tabs::Read");
    if (too_small(*this) || Flag & OUTIL_DISABLE) return -1;
    const POINT pointer = read_pointer(*this, "Tabs::Read");
    if (!PtInRect(&Region, pointer)) return -1;
    // By whole rectangles: where two overlap the lower index wins, even if the other one lies on top.
    const int count = count_of(*this);
    for (int i = 0; i < count; i++) {
        const Area tab = whole_area(*Item[i]);
        if (!(Item[i]->Flag & OUTIL_DISABLE) && pointer.x >= tab.x1 && pointer.x <= tab.x2 &&
            pointer.y >= tab.y1 && pointer.y <= tab.y2)
            return i;
    }
    return -1;
}

void Tabs::Page(int height) {
    if (!count_of(*this)) return;
    const TabItems* top = on_top(*this);
    const Px left = Pos_X, bottom = Pos_Y;
    const Page_Area page = {left, left + Dim_X, bottom + Dim_Y - (height ? height : Page_Dim), bottom - 2};
    Bracket bracket(*this, "Tabs::Page");
    paint_ground(page, (top ? top->Color : Color).get());
    paint_edges(page);
}
