#ifndef TESTS_VALUATOR_FIXTURE_H
#define TESTS_VALUATOR_FIXTURE_H

#include <limits>
#include <string>

#include <brask/fenn.h>
#include <brask/valuators.h>

#include "controls/padlock.h"
#include "unit/controls/range_bench.h"

inline constexpr float kInf = std::numeric_limits<float>::infinity();
inline constexpr float kNan = std::numeric_limits<float>::quiet_NaN();

// A value bar of 200 by 30, and its steps told by calls of the base and of the drawing contract.
struct Valuator : Range_Bench<Valuators> {
    static constexpr int kLength = 200, kThick = 30;

    void SetUp() override {
        Range_Bench::SetUp();
        lay(0);
    }
    // Init done and forgotten.
    void lay(DWORD flag, int border = 0, const char* format = nullptr, int field = 0) {
        place(flag, kLength, kThick, 20, border);
        bar.Format = format;
        bar.Num_Width = field;
        init();
    }
    int e() const { return bevel() + (bar.Format ? 2 : 0); }
    int g() const { return bevel() + (bar.Format && bar.Border ? 2 : 0); }

    // --- The steps ---
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
        bracketed("Valuators::Cursor", [&] { vertical() ? vertical_thumb(p) : horizontal_thumb(p); });
    }
    void face(bool on, const DWORD* image) {
        bar.Fill_Select(on, reinterpret_cast<const char*>(image), bar.Flag, g() + 1, kX,
                        right() - bar.Num_Width, kY, top());
    }
    void name() {
        if (bar.W_Name)
            bar.Text(bar.W_Name, bar.Flag, kX, kY, bar.Dim_X - bar.Num_Width, bar.Dim_Y, bar.Border, 0);
    }
    void number(const wchar_t* text) {
        bar.Text(text, 0, right() - 1 - bar.Num_Width - bevel(), kY, bar.Num_Width, bar.Dim_Y, bar.Border, 0);
    }
    void inner_frame() {
        bar.Cadre(0, 1, 1, kX + 2 + bevel(), right() - 2 - bar.Num_Width - bevel(), kY + 2 + bevel(),
                  top() - 2 - bevel());
    }
    void wipe() {
        bar.Fill(0, right() - 2 - bar.Num_Width - bevel(), right() - 2 - bevel(), kY + 2 + bevel(),
                 top() - 2 - bevel());
    }
    // The value 12.5 of 100 in a field of 60.
    void expect_shown(const char* format, const wchar_t* text) {
        lay(0, 0, format, 60);
        bar.Cur_Value = 12.5f;
        EXPECT_EQ(painted([&] { bar.Draw(); }), painted([&] {
                      ground();
                      frame(3);
                      number(text);
                      thumb(static_cast<int>(94 * 0.125 + 0.5)); // of 200 - 40 - 6 - 60
                  }))
            << format;
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
