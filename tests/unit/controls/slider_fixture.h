#ifndef TESTS_SLIDER_FIXTURE_H
#define TESTS_SLIDER_FIXTURE_H

#include <brask/fenn.h>
#include <brask/sliders.h>

#include "range_bench.h"

// A slider, and its steps told by calls of the base and of the drawing contract.
struct Slider : Range_Bench<Sliders> {
    Sliders& slider = bar;

    void SetUp() override {
        Range_Bench::SetUp();
        lay(0, 200, 16);
    }
    // Init done and forgotten.
    void lay(DWORD flag, int length, int thick, int larg = 20, int border = 0) {
        place(flag, length, thick, larg, border);
        init();
    }
    // As far along, but beside the slider.
    void beside(int offset) {
        vertical() ? recorder::pointer(kX - 50, kY + offset) : recorder::pointer(kX + offset, kY - 50);
    }

    // --- The steps ---
    void vertical_thumb(int p) const {
        const int h = slider.Larg, l = slider.Pos_X + 2 + bevel(), r = right() - 2 - bevel(),
                  B = slider.Pos_Y + 1 + bevel() + p, T = B + 2 * h - 1;
        Zeb_color(0x6E6E6E);
        draw_fill_rectangle(l + 1, T, r, B);
        line(0xD8D8D8, {{l, B}, {l, T}, {r - 1, T}});
        line(0xD8D8D8, {{l + 1, B + h - 1}, {r - 1, B + h - 1}});
        line(1, {{l + 1, B}, {r, B}, {r, T}});
        line(1, {{l + 2, B + 1}, {r - 1, B + 1}, {r - 1, T - 1}});
        line(1, {{l + 1, B + h}, {r, B + h}});
    }
    void horizontal_thumb(int p) const {
        const int h = slider.Larg, l = slider.Pos_X + bevel() + p, r = l + 2 * h - 1,
                  B = slider.Pos_Y + 2 + bevel(), T = top() - 2 - bevel();
        Zeb_color(0x6E6E6E);
        draw_fill_rectangle(l + 1, T - 1, r, B);
        line(0xD8D8D8, {{l, B}, {l, T}, {r - 1, T}});
        line(0xD8D8D8, {{l + h, B + 1}, {l + h, T}});
        line(1, {{l + 1, B}, {r, B}, {r, T}});
        line(1, {{l + 2, B + 1}, {r - 1, B + 1}, {r - 1, T - 1}});
        line(1, {{l + h - 1, B + 1}, {l + h - 1, T - 1}});
    }
    void thumb(int p) const {
        bracketed("Sliders::Cursor", [&] { vertical() ? vertical_thumb(p) : horizontal_thumb(p); });
    }
    void arrows(int length) {
        for (const int kind : {vertical() ? 2 : 0, vertical() ? 3 : 1})
            slider.Arrow(kind, bevel() + 2, length, kX, slider.Dim_X, kY, slider.Dim_Y);
    }
    // The value 0 of 0 to 100: the thumb stands at the start, past an arrow as long as the slider is thick.
    void cursor() { arrows(16), thumb(16); }
    void face(bool on, const DWORD* image) {
        slider.Fill_Select(on, reinterpret_cast<const char*>(image), slider.Flag, bevel() + 2, kX, right(),
                           kY, top());
    }
    // A Select that paints the face in this look, or none with -1.
    void select(int look, const char* tag) {
        trace_in("Sliders::Select", "no name");
        read_pointer("Sliders::Select");
        if (look >= 0) face(look == 1, look == 1 ? slider.Image_Select : slider.Image_Normal), cursor();
        trace_out("Sliders::Select", tag);
    }

    // Holds one Select against what it should answer and leave.
    void expect_select(int mode, int answer, int look, const char* tag, int select_after) {
        SCOPED_TRACE(testing::Message() << "mode " << mode << " flag " << std::hex << slider.Flag);
        int got = -1;
        const std::string lines = everything([&] { got = slider.Select(mode); });
        EXPECT_EQ(lines, everything([&] { select(look, tag); }));
        EXPECT_EQ(got, answer);
        EXPECT_EQ(slider.select, select_after);
    }
};

#endif
