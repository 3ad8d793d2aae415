#ifndef TESTS_COLOR_FIXTURE_H
#define TESTS_COLOR_FIXTURE_H

#include <string>

#include <brask/color_edit.h>
#include <brask/fenn.h>
#include <brask/hue_edit.h>

#include "unit/brask/expect.h"

// --- Colours told a second time: words, components, ramps ---

struct Parts {
    float a, b, c;
};
inline float part_of(DWORD byte) { return (static_cast<float>(byte & 255) + 0.5f) / 255.0f; }
inline Parts rgb(DWORD word) { return {part_of(word), part_of(word >> 8), part_of(word >> 16)}; }
inline Parts hls(DWORD word) {
    const Parts in = rgb(word);
    Parts out{};
    RGB_to_HLS(in.a, in.b, in.c, &out.a, &out.b, &out.c);
    return out;
}
inline DWORD cut_byte(float part) { return static_cast<DWORD>(static_cast<int>(part * 255.0f)) & 255; }
inline DWORD word_of(float r, float g, float b) {
    return 0xFF000000 | cut_byte(b) << 16 | cut_byte(g) << 8 | cut_byte(r);
}
inline DWORD word_of_hue(float h, float l, float s) {
    float r, g, b;
    HLS_to_RGB(h, l, s, &r, &g, &b);
    return word_of(r, g, b);
}
inline DWORD turned(DWORD word) { // a drawing word as surface word, and back
    return (word & 0xFF00FF00) | (word & 255) << 16 | (word >> 16 & 255);
}
inline DWORD surface_of(int r, int g, int b) {
    return 0xFF000000u | DWORD(r) << 16 | DWORD(g) << 8 | DWORD(b);
}

inline Valuators Color_Edit::*const BARS[] = {&Color_Edit::Val_Red_Hue, &Color_Edit::Val_Green_Light,
                                              &Color_Edit::Val_Blue_Sat};

struct Editors : Recorded {
    void SetUp() override {
        Recorded::SetUp();
        BORDER = 3, SPACE = 6, CURSEUR = 16, BUT_DIM = 25;
        recorder::pointer(-500, -500);
    }
    template <typename Editor>
    static void lay(Editor& editor, DWORD flag, int border, unsigned value = 0xFF102030, int dy = 110) {
        editor.Flag = flag;
        editor.Pos_X = 10, editor.Pos_Y = 20;
        editor.Dim_X = 240, editor.Dim_Y = dy;
        editor.Border = border;
        editor.Cur_Value = value;
        editor.Init(recorder::window());
        recorder::clear();
    }
    static void middle(const Tools& part) {
        recorder::pointer(part.Pos_X + part.Dim_X / 2, part.Pos_Y + part.Dim_Y / 2);
    }
    static void expect_place(const Tools& part, int x, int y, int dx, int dy) {
        EXPECT_EQ(part.Pos_X, x);
        EXPECT_EQ(part.Pos_Y, y);
        EXPECT_EQ(part.Dim_X, dx);
        EXPECT_EQ(part.Dim_Y, dy);
    }
};

#endif
