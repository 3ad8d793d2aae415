#include <brask/tabs.h>

#include <cstdlib>
#include <cstring>
#include <initializer_list>

#include <brask/buttons.h>

#include "foundation/bracket.h"
#include "foundation/checks.h"
#include "foundation/faces.h"
#include "foundation/layout.h"
#include "foundation/palette.h"
#include "foundation/surfaces.h"
#include "foundation/trace.h"
#include "foundation/track.h"
#include "items/tab_face.h"
#include "items/tab_geometry.h"

using namespace brask;

// A tab writes no traces but one exit.

namespace {

int resolved_border(const TabItems& tab) { return tab.Border < 0 ? -Px(tab.Border) : Px(bevel_width(tab)); }

// The views on one side's surface. A tab shows the host's surfaces or none; without a change of its shape it
// only lets go of one that the host has replaced.
void choose_views(TabItems& tab, const Host_Surfaces::Side& side, bool reshaped,
                  std::initializer_list<DWORD**> views) {
    DWORD* const graph = tab.*side.graph;
    for (DWORD** view : views) {
        *view = Host_Surfaces::current(tab, side, *view);
        if (reshaped || !graph || (*view && *view == tab.*side.old)) *view = graph;
    }
}

void choose_surfaces(TabItems& tab) {
    const bool reshaped =
        tab.Dim_X != tab.Old_Dim_X || tab.Dim_Y != tab.Old_Dim_Y || tab.Border != tab.Old_Border;
    choose_views(tab, Host_Surfaces::NORMAL, reshaped,
                 {&tab.Image_Normal, &tab.Image_Normal_On, &tab.Image_Normal_Off});
    choose_views(tab, Host_Surfaces::SELECT, reshaped,
                 {&tab.Image_Select, &tab.Image_Select_On, &tab.Image_Select_Off});
    remember_surfaces(tab);
}

void write_title(TabItems& tab, DWORD flags, int y) {
    if (tab.W_Name) tab.Text(tab.W_Name, flags, tab.Pos_X, y, tab.Dim_X, tab.Dim_Y, tab.Border, 0);
}

// White on the tab on top. `y` differs by one pixel between Draw and every other repaint.
void paint_title(TabItems& tab, int y) {
    write_title(tab, tab.Cur_Value ? tab.Flag | TEXT_WHITE : tab.Flag & ~TEXT_WHITE, y);
}

void paint_frame(TabItems& tab) {
    const Area whole = whole_area(tab);
    tab.Cadre(1, tab.Cur_Value, resolved_border(tab), whole.x1, whole.x2, whole.y1, whole.y2);
}

void paint_look(TabItems& tab, bool selected) {
    const Area middle = tab_middle(tab);
    const DWORD* image = selected ? tab.Image_Select : tab.Image_Normal;
    tab.Fill_Select(selected, reinterpret_cast<const char*>(image), tab.Flag, Px(resolved_border(tab)) + 1,
                    middle.x1, middle.x2, middle.y1, middle.y2);
    paint_title(tab, Px(tab.Pos_Y) - 1);
}

// The end of Draw and Adjust: the face in the look that the pointer asks for.
void paint_inside(TabItems& tab) {
    if (tab.Flag & OUTIL_EMPTY) return;
    choose_images(tab);
    tab.select = TRACK_NONE;
    tab.Select(0);
}

// Through the corners in their order, and back to the first one if closed.
void trapezoid(const Tab_Outline& outline, bool closed) {
    int xs[5], ys[5];
    for (int i = 0; i < 5; i++) {
        xs[i] = outline.corner[i % 4].x;
        ys[i] = outline.corner[i % 4].y;
    }
    draw_polygon(closed ? 5 : 4, xs, ys);
}

// A row of the page's edge, from right to left.
void base_line(unsigned long word, int x0, int x1, int y) {
    Zeb_color(word);
    move2s(x1, y);
    draw2s(x0, y, 0);
}

} // namespace

TabItems::TabItems() { std::memset(static_cast<void*>(this), 0, sizeof *this); }
TabItems::TabItems(const TabItems& other) = default;
TabItems& TabItems::operator=(const TabItems& other) = default;
TabItems::~TabItems() {
    for (DWORD* own : {Own_Normal_Off, Own_Normal_On, Own_Select_Off, Own_Select_On})
        std::free(own);
}

void TabItems::Init(HWND wnd) {
    test |= TEST_INIT;
    if (too_small(*this)) return;
    if (wnd) Wnd = wnd;
    if (missing_window(*this, "TabItems::Init")) return;
    Old_Value = static_cast<unsigned>(Cur_Value);
    select = TRACK_NONE;
    default_color(*this);
    Flag |= OUTIL_FLAT; // whatever Tool_Looks says
    set_region(*this);
    if (!(Flag & OUTIL_EMPTY)) choose_surfaces(*this);
    remember_shape(*this);
}

void TabItems::Draw() {
    if (Flag & OUTIL_INVISIBLE) return;
    check_first_use(*this, "TabItems::Draw");
    if (too_small(*this)) return;
    Old_Value = static_cast<unsigned>(Cur_Value);
    if (Flag & GRAPH_OUTLINE) {
        const Area whole = whole_area(*this);
        Cadre_Outline(whole.x1, whole.x2, whole.y1, whole.y2);
        write_title(*this, Flag, Px(Pos_Y) - 1);
        Error_Fct(hwnd, REPORT_TRACE, "<<< out Lib_Brask: %hs(%hs)", "TabItems::Draw", "GRAPH_OUTLINE");
        return;
    }
    paint_frame(*this);
    paint_title(*this, Pos_Y); // one pixel higher than in every other repaint: required so
    paint_inside(*this);
}

void TabItems::Adjust() {
    check_first_use(*this, "TabItems::Adjust");
    if (too_small(*this) || Flag & OUTIL_INVISIBLE) return;
    // The lamp's flag means nothing more here than to repaint always.
    if (!(Flag & BUTTON_LAMP) && static_cast<unsigned>(Cur_Value) == Old_Value) return;
    paint_frame(*this);
    paint_title(*this, Px(Pos_Y) - 1);
    Old_Value = static_cast<unsigned>(Cur_Value);
    paint_inside(*this);
}

int TabItems::Select(int) {
    check_first_use(*this, "TabItems::Select");
    if (too_small(*this)) return 0;
    if (Flag & OUTIL_DISABLE) {
        if (!faceless(*this)) paint_look(*this, false);
        return 0;
    }
    const bool inside = PtInRect(&Region, read_pointer(*this, "TabItems::Select"));
    const Track step = track(select, inside);
    if (faceless(*this) || !step.repaint) return inside;
    select = step.next;
    paint_look(*this, inside);
    return inside;
}

// Without a look at `select`, which stays as it is.
void TabItems::Deselect() {
    if (!test || too_small(*this) || faceless(*this)) return;
    paint_look(*this, false);
}

int TabItems::Read() {
    check_first_use(*this, "TabItems::Read");
    return Cur_Value;
}

void TabItems::Cadre(long, int value, int, int x0, int x1, int y0, int y1) {
    Bracket bracket(*this, "TabItems::Cadre");
    Zeb_color(WORD_BLACK);
    trapezoid(tab_outline(*this, {x0, x1, y0, y1}), !value);
    base_line(value ? WORD_GREY : WORD_WHITE, x0, x1, y0);
    base_line(value ? WORD_GREY : WORD_LIGHT, x0, x1, Px(y0) - 1);
}

void TabItems::Cadre_Outline(int x0, int x1, int y0, int y1) {
    Bracket bracket(*this, "TabItems::Cadre_Outline");
    const Tab_Outline outline = tab_outline(*this, {x0, x1, y0, y1});
    int xs[4], ys[4];
    for (int i = 0; i < 4; i++) {
        xs[i] = outline.corner[i].x;
        ys[i] = outline.corner[i].y;
    }
    Zeb_color(darker(Color));
    draw_fill_polygon(4, xs, ys);
    Zeb_color(WORD_OUTLINE);
    draw_polygon(4, xs, ys);
    Zeb_color(WORD_BLACK); // from where the pen is now, the base
    draw2s(xs[0], ys[0], 0);
    base_line(WORD_WHITE, x0, x1, y0);
    base_line(WORD_LIGHT, x0, x1, Px(y0) - 1);
}

void TabItems::Fill_Select(int selected, const char* surface, long flags, int inset, int x0, int x1, int y0,
                           int y1) {
    if (flags & OUTIL_EMPTY) return;
    Bracket bracket(*this, "TabItems::Fill_Select");
    if (!surface || faces::outgrown(surface, *this) || Host_Surfaces::outgrown(surface, *this))
        return paint_tab_face(*this, selected != 0, {x0, x1, y0, y1});
    // The source row is the inset itself, where other controls take the one above: required so.
    const Px left = x0, bottom = y0;
    draw_image(surface, left + inset, bottom + inset, inset, inset, Px(x1) - left - 2 * Px(inset) + 1,
               Px(y1) - bottom - 2 * Px(inset) + 1, Dim_X, Dim_Y, 0);
}
