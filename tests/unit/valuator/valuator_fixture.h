#ifndef TESTS_VALUATOR_FIXTURE_H
#define TESTS_VALUATOR_FIXTURE_H

#include <limits>
#include <string>
#include <utility>
#include <vector>

#include <brask/fenn.h>
#include <brask/valuators.h>

#include "controls/padlock.h"
#include "unit/brask/expect.h"

inline constexpr float kInf = std::numeric_limits<float>::infinity();
inline constexpr float kNan = std::numeric_limits<float>::quiet_NaN();
const DWORD kAxes[] = {0, OUTIL_VERTICAL};

// A value bar at 10, 20, along either axis, and its steps told by calls of the base and of the drawing
// contract.
struct Valuator : Recorded {
    static constexpr int kX = 10, kY = 20, kLength = 200, kThick = 30;
    Valuators bar;

    void SetUp() override {
        Recorded::SetUp();
        BORDER = 3, SPACE = 6, CURSEUR = 16;
        lay(0);
    }
    void TearDown() override {
        BORDER = 3, SPACE = 6, CURSEUR = 16;
        Recorded::TearDown();
    }

    // 200 by 30 along the axis that the flag tells, values from 0 to 100; Init done and forgotten.
    void lay(DWORD flag, int border = 0, const char* format = nullptr, int field = 0) {
        bar.Flag = flag;
        bar.Pos_X = kX, bar.Pos_Y = kY;
        bar.Dim_X = vertical() ? kThick : kLength;
        bar.Dim_Y = vertical() ? kLength : kThick;
        bar.Larg = 20;
        bar.Border = border;
        bar.Format = format;
        bar.Num_Width = field;
        range(0, 100);
        init();
    }
    void range(float first, float last) {
        bar.Val_Min = first, bar.Val_Max = last;
        if (bar.Flag & OUTIL_REVERSE) std::swap(bar.Val_Min, bar.Val_Max);
    }
    void init() {
        bar.Init(recorder::window());
        outside();
        recorder::clear();
    }
    bool vertical() const { return (bar.Flag & OUTIL_VERTICAL) != 0; }
    int b() const { return bar.Border ? bar.Border : BORDER; }
    int e() const { return b() + (bar.Format ? 2 : 0); }
    int g() const { return b() + (bar.Format && bar.Border ? 2 : 0); }
    int right() const { return bar.Pos_X + bar.Dim_X; }
    int top() const { return bar.Pos_Y + bar.Dim_Y; }

    // --- The pointer: so far along the track, in the middle of its thickness ---
    void along(int offset) {
        vertical() ? recorder::pointer(kX + bar.Dim_X / 2, kY + offset)
                   : recorder::pointer(kX + offset, kY + bar.Dim_Y / 2);
    }
    void inside() { along(kLength / 2); }
    void outside() { recorder::pointer(-500, -500); }

    // --- The steps ---
    using Points = std::vector<std::pair<int, int>>;
    static void line(unsigned long color, const Points& points) {
        Zeb_color(color);
        for (std::size_t i = 0; i < points.size(); ++i)
            i ? draw2s(points[i].first, points[i].second, 0) : move2s(points[0].first, points[0].second);
    }
    void locked(int l, int T, int r, int B, int side) const {
        Zeb_color(0xD8D8D8);
        draw_fill_rectangle(l + 1, T - 1, r, B);
        if (side)
            draw_image(reinterpret_cast<const char*>(brask::padlock_glyph(side)), l + bar.Larg - side / 2,
                       (T + B) / 2 - side / 2, 0, 0, side, side, side, side, 0);
        Zeb_color(0xE64040);
        draw_rectangle(l + 1, T - 1, r - 1, B + 1);
    }
    void vertical_thumb(int p) const {
        const int h = bar.Larg, l = bar.Pos_X + e(), r = l + bar.Dim_X - 2 * e() - bar.Num_Width,
                  B = bar.Pos_Y + e() + p, T = B + 2 * h - 1, extent = 2 * h - 1;
        if (bar.Flag & VALUATOR_FREZE) {
            locked(l, T, r, B, extent >= 16 ? 16 : extent >= 10 ? 10 : extent >= 8 ? 8 : 0);
        } else {
            Zeb_color(0x6E6E6E);
            draw_fill_rectangle(l + 1, T, r, B);
            line(0xD8D8D8, {{l + 1, B + h - 1}, {r - 1, B + h - 1}});
            line(1, {{l + 1, B + h}, {r, B + h}});
            line(1, {{l + 2, B + 1}, {r - 1, B + 1}, {r - 1, T - 1}});
        }
        line(0xD8D8D8, {{l, B}, {l, T}, {r - 1, T}});
        line(1, {{l + 1, B}, {r, B}, {r, T}});
    }
    void horizontal_thumb(int p) const {
        const int h = bar.Larg, l = bar.Pos_X + e() + p, r = l + 2 * h - 1, B = bar.Pos_Y + e(),
                  T = B + bar.Dim_Y - 2 * e(), extent = T - B;
        if (bar.Flag & VALUATOR_FREZE) {
            locked(l, T, r, B, extent > 16 ? 16 : extent > 10 ? 10 : extent > 8 ? 8 : 0);
        } else {
            Zeb_color(0x6E6E6E);
            draw_fill_rectangle(l + 1, T - 1, r, B);
            line(0xD8D8D8, {{l + h, B + 1}, {l + h, T}});
            line(1, {{l + h - 1, B + 1}, {l + h - 1, T}});
            line(1, {{l + 2, B + 1}, {r - 1, B + 1}, {r - 1, T - 1}});
        }
        line(0xD8D8D8, {{l, B + 1}, {l, T}, {r, T}});
        line(1, {{l + 1, B}, {r, B}, {r, T}});
    }
    void thumb(int p = 0) const {
        Zeb_setup(bar.Wnd, "Valuators::Cursor");
        const bool clip = bar.Clip_Dim_X != 0;
        if (clip) Zeb_set_clip(bar.Clip_X, bar.Clip_Y, bar.Clip_Dim_X, bar.Clip_Dim_Y);
        vertical() ? vertical_thumb(p) : horizontal_thumb(p);
        if (clip) Zeb_reset_clip();
        Zeb_release();
    }
    void ground() { bar.Fill(bar.Flag, kX, right(), kY, top()); }
    void frame(int width) { bar.Cadre(1, 1, width, kX, right(), kY, top()); }
    void outline() { bar.Cadre_Outline(kX, right(), kY, top()); }
    void face(bool on, const DWORD* image) {
        bar.Fill_Select(on, reinterpret_cast<const char*>(image), bar.Flag, g() + 1, kX,
                        right() - bar.Num_Width, kY, top());
    }
    void name() {
        if (bar.W_Name)
            bar.Text(bar.W_Name, bar.Flag, kX, kY, bar.Dim_X - bar.Num_Width, bar.Dim_Y, bar.Border, 0);
    }
    void number(const wchar_t* text) {
        bar.Text(text, 0, right() - 1 - bar.Num_Width - b(), kY, bar.Num_Width, bar.Dim_Y, bar.Border, 0);
    }
    void inner_frame() {
        bar.Cadre(0, 1, 1, kX + 2 + b(), right() - 2 - bar.Num_Width - b(), kY + 2 + b(), top() - 2 - b());
    }
    void wipe() {
        bar.Fill(0, right() - 2 - bar.Num_Width - b(), right() - 2 - b(), kY + 2 + b(), top() - 2 - b());
    }
    // A Select that paints in this look, or nothing with -1. A faceless one paints name and thumb alone.
    void select(int look, const std::string& tag, int p = 0) {
        trace_in("Valuators::Select", name_of(bar));
        read_pointer("Valuators::Select");
        if (look >= 0) {
            if (!(bar.Flag & OUTIL_EMPTY)) face(look == 1, look == 1 ? bar.Image_Select : bar.Image_Normal);
            name();
            if (!(bar.Flag & (OUTIL_INVISIBLE | GRAPH_OUTLINE))) thumb(p);
        }
        trace_out("Valuators::Select", tag);
    }
};

#endif
