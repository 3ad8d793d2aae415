#ifndef TESTS_TAB_FIXTURE_H
#define TESTS_TAB_FIXTURE_H

#include <utility>
#include <vector>

#include <brask/fenn.h>
#include <brask/tabs.h>

#include "unit/brask/expect.h"

// A second telling of what a tab paints, in calls of the drawing contract.
namespace told {

using Points = std::vector<std::pair<int, int>>;

inline void fill(const Points& points) {
    std::vector<int> xs, ys;
    for (const auto& point : points)
        xs.push_back(point.first), ys.push_back(point.second);
    draw_fill_polygon(static_cast<int>(points.size()), xs.data(), ys.data());
}
inline void outline(const Points& points) {
    std::vector<int> xs, ys;
    for (const auto& point : points)
        xs.push_back(point.first), ys.push_back(point.second);
    draw_polygon(static_cast<int>(points.size()), xs.data(), ys.data());
}
inline void line(int x, int y, int to_x, int to_y) {
    move2s(x, y);
    draw2s(to_x, to_y, 0);
}
inline void open(const Tools& control, const char* tag) {
    Zeb_setup(control.Wnd, tag);
    if (control.Clip_Dim_X)
        Zeb_set_clip(control.Clip_X, control.Clip_Y, control.Clip_Dim_X, control.Clip_Dim_Y);
}
inline void close(const Tools& control) {
    if (control.Clip_Dim_X) Zeb_reset_clip();
    Zeb_release();
}

inline void cadre(const TabItems& tab, int value, int x0, int x1, int y0, int y1) {
    const int s = tab.Slant;
    open(tab, "TabItems::Cadre");
    Zeb_color(1);
    Points corners = {{x0, y0 + 1}, {x0 + s, y1 - 1}, {x1 - s, y1 - 1}, {x1, y0 + 1}};
    if (!value) corners.push_back(corners[0]);
    outline(corners);
    Zeb_color(value ? 0xAAAAAA : 0xFFFFFF);
    line(x1, y0, x0, y0);
    Zeb_color(value ? 0xAAAAAA : 0xD8D8D8);
    line(x1, y0 - 1, x0, y0 - 1);
    close(tab);
}

inline void cadre_outline(const TabItems& tab, unsigned dark, int x0, int x1, int y0, int y1) {
    const int s = tab.Slant;
    const Points corners = {{x0, y0 + 1}, {x0 + s, y1 - 1}, {x1 - s, y1 - 1}, {x1, y0 + 1}};
    open(tab, "TabItems::Cadre_Outline");
    Zeb_color(dark);
    fill(corners);
    Zeb_color(0xE64040);
    outline(corners);
    Zeb_color(1);
    draw2s(x0, y0 + 1, 0);
    Zeb_color(0xFFFFFF);
    line(x1, y0, x0, y0);
    Zeb_color(0xD8D8D8);
    line(x1, y0 - 1, x0, y0 - 1);
    close(tab);
}

// The face without a surface, in the word `face`; x0 and x1 are the ends of the straight middle.
inline void solid_face(const TabItems& tab, unsigned face, int x0, int x1, int y0, int y1) {
    const int s = tab.Slant, l = x0 - s, r = x1 + s, ya = y0 + 2, yb = y1 - 2, ym = (y0 + y1) / 2;
    const bool right = tab.Shape & 15, left = tab.Shape >= 16;
    open(tab, "TabItems::Fill_Select");
    Zeb_color(face);
    draw_fill_rectangle(x0 + 1, yb, x1 - 1, y0 + 1);
    fill({{x1 - 1, yb}, right ? std::pair(x1 + s - 2, ya) : std::pair(x1 - 2 + s / 2, ym), {x1 - 1, ya}});
    fill({{x0, ya}, left ? std::pair(x0 - s + 2, ya) : std::pair(x0 - s / 2 + 2, ym), {x0 + 1, yb}});
    Zeb_color(0xFFFFFF);
    line(x0 + 1, yb, x1 - 1, yb);
    Zeb_color(0xD8D8D8);
    line(x0 + 1, yb - 1, x1 - 1, yb - 1);
    Zeb_color(0xFFFFFF);
    if (left)
        fill({{l, ya}, {l + 2, ya - 1}, {x0 + 2, yb - 1}, {x0, yb}});
    else
        fill({{l + s / 2, ym}, {l + s / 2 + 2, ym}, {x0 + 2, yb}, {x0, yb}});
    Zeb_color(1);
    left ? line(l, ya, x0, yb + 1) : line(l + s / 2, ym, x0, yb + 1);
    Zeb_color(0x6E6E6E);
    if (right)
        fill({{x1, yb}, {x1 - 2, yb - 1}, {r - 2, ya - 1}, {r, ya}});
    else
        fill({{x1, yb}, {x1 - 2, yb}, {r - s / 2 - 2, ym}, {r - s / 2, ym}});
    Zeb_color(1);
    right ? line(x1, yb + 1, r, ya) : line(x1, yb + 1, r - s / 2, ym);
    if (tab.Cur_Value) {
        Zeb_color(tab.Color_Get());
        line(l + 1, ya - 1, r + 1, ya - 1);
        line(l + 1, ya - 2, r + 2, ya - 2);
        line(l, ya - 3, r + 3, ya - 3);
        Zeb_color(0xFFFFFF);
        line(l + 1, ya - 1, l + 1, ya - 3);
    }
    close(tab);
}

} // namespace told

#endif
