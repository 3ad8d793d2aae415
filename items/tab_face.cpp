#include "items/tab_face.h"

#include <brask/fenn.h>

#include "foundation/palette.h"
#include "items/tab_geometry.h"

namespace brask {
namespace {

constexpr unsigned long HIGHLIGHT_BELOW = 0x6464D2; // of a tab that is not on top

// The lines that the face's corners lie on. The outer ends are those of the whole tab.
struct Lines {
    Px x0, x1, left, right; // middle, and the tab's ends
    Px low, high, mid;      // two pixels inside the base and the top, and half way
    Px slant;
};
Lines lines_of(const TabItems& tab, const Area& middle) {
    const Px slant = tab.Slant, x0 = middle.x1, x1 = middle.x2, base = middle.y1, top = middle.y2;
    return {x0, x1, x0 - slant, x1 + slant, base + 2, top - 2, (base + top) / 2, slant};
}

template <int COUNT>
void fill(const Spot (&spots)[COUNT]) {
    int xs[COUNT], ys[COUNT];
    for (int i = 0; i < COUNT; i++) {
        xs[i] = spots[i].x;
        ys[i] = spots[i].y;
    }
    draw_fill_polygon(COUNT, xs, ys);
}

void line(Spot from, Spot to) {
    move2s(from.x, from.y);
    draw2s(to.x, to.y, 0);
}

unsigned long face_color(const TabItems& tab, bool selected) {
    if (selected) return tab.Cur_Value ? WORD_HIGHLIGHT : HIGHLIGHT_BELOW;
    return tab.Cur_Value ? tab.Color.get() : darker(tab.Color);
}

void paint_ground(const TabItems& tab, const Lines& l, int base) {
    draw_fill_rectangle(l.x0 + 1, l.high, l.x1 - 1, Px(base) + 1);
    const Spot right =
        right_end_full(tab) ? Spot{l.x1 + l.slant - 2, l.low} : Spot{l.x1 - 2 + l.slant / 2, l.mid};
    fill({{l.x1 - 1, l.high}, right, {l.x1 - 1, l.low}});
    const Spot left =
        left_end_full(tab) ? Spot{l.x0 - l.slant + 2, l.low} : Spot{l.x0 - l.slant / 2 + 2, l.mid};
    fill({{l.x0, l.low}, left, {l.x0 + 1, l.high}});
}

void paint_top_edge(const Lines& l) {
    Zeb_color(WORD_WHITE);
    line({l.x0 + 1, l.high}, {l.x1 - 1, l.high});
    Zeb_color(WORD_LIGHT);
    line({l.x0 + 1, l.high - 1}, {l.x1 - 1, l.high - 1});
}

void paint_left_edge(const TabItems& tab, const Lines& l) {
    const Px half = l.left + l.slant / 2;
    const bool full = left_end_full(tab);
    const Spot foot = full ? Spot{l.left, l.low} : Spot{half, l.mid};
    Zeb_color(WORD_WHITE);
    if (full)
        fill({foot, {l.left + 2, l.low - 1}, {l.x0 + 2, l.high - 1}, {l.x0, l.high}});
    else
        fill({foot, {half + 2, l.mid}, {l.x0 + 2, l.high}, {l.x0, l.high}});
    Zeb_color(WORD_BLACK);
    line(foot, {l.x0, l.high + 1});
}

void paint_right_edge(const TabItems& tab, const Lines& l) {
    const Px half = l.right - l.slant / 2;
    const bool full = right_end_full(tab);
    const Spot foot = full ? Spot{l.right, l.low} : Spot{half, l.mid};
    Zeb_color(WORD_SHADOW);
    if (full)
        fill({{l.x1, l.high}, {l.x1 - 2, l.high - 1}, {l.right - 2, l.low - 1}, foot});
    else
        fill({{l.x1, l.high}, {l.x1 - 2, l.high}, {half - 2, l.mid}, foot});
    Zeb_color(WORD_BLACK);
    line({l.x1, l.high + 1}, foot);
}

// Wipes the three rows that the outline left under the tab, so that tab and page read as one shape.
void join_page(const TabItems& tab, const Lines& l) {
    Zeb_color(tab.Color.get());
    line({l.left + 1, l.low - 1}, {l.right + 1, l.low - 1});
    line({l.left + 1, l.low - 2}, {l.right + 2, l.low - 2});
    line({l.left, l.low - 3}, {l.right + 3, l.low - 3});
    Zeb_color(WORD_WHITE);
    line({l.left + 1, l.low - 1}, {l.left + 1, l.low - 3});
}

} // namespace

unsigned long darker(const Colors& color) {
    return Colors(color.R - 20, color.G - 20, color.B - 20, color.A).get();
}

void paint_tab_face(const TabItems& tab, bool selected, const Area& middle) {
    const Lines l = lines_of(tab, middle);
    Zeb_color(face_color(tab, selected));
    paint_ground(tab, l, middle.y1);
    paint_top_edge(l);
    paint_left_edge(tab, l);
    paint_right_edge(tab, l);
    if (tab.Cur_Value) join_page(tab, l);
}

} // namespace brask
