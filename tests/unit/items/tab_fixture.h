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

// A tab of 80 by 24 at (10, 20), drawn once, the pointer beside it.
struct Tab : Recorded {
    TabItems tab;
    void SetUp() override {
        Recorded::SetUp();
        BORDER = 3;
        tab.Pos_X = 10, tab.Pos_Y = 20, tab.Dim_X = 80, tab.Dim_Y = 24;
        tab.Slant = 6;
        tab.Shape = 0x11;
        tab.Name_Set(L"tab");
        tab.Init(recorder::window());
        tab.Draw(); // brings the fonts into their cache
        outside();
        recorder::clear();
    }
    void inside() { recorder::pointer(30, 30); }
    void outside() { recorder::pointer(-50, -50); }

    // --- The steps ---
    void frame() { told::cadre(tab, tab.Cur_Value, 10, 90, 20, 44); }
    void written(DWORD flag, int y) {
        if (tab.W_Name) tab.Text(tab.W_Name, static_cast<long>(flag), 10, y, 80, 24, tab.Border, 0);
    }
    void title(int y) { written(tab.Cur_Value ? tab.Flag | TEXT_WHITE : tab.Flag & ~TEXT_WHITE, y); }
    unsigned face_word(bool on) const {
        if (on) return tab.Cur_Value ? 0x6464E6 : 0x6464D2;
        return tab.Cur_Value ? 0xAAAAAA : 0x969696; // 170, and 150
    }
    void look(bool on) {
        const DWORD* image = on ? tab.Image_Select : tab.Image_Normal;
        if (!image)
            told::solid_face(tab, face_word(on), 16, 84, 20, 44);
        else
            tab.Fill_Select(on, reinterpret_cast<const char*>(image), tab.Flag, 4, 16, 84, 20, 44);
        title(19);
    }
    void select(int which) {
        read_pointer("TabItems::Select");
        if (which >= 0) look(which == 1);
    }
};

#endif
