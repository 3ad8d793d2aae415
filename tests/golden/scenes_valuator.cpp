#include <brask/valuators.h>

#include "scenes.h"

namespace {

struct Look {
    DWORD flags = 0;
    float value = 40;
    int border = 0;
    const char* format = nullptr;
    float first = 0, last = 100;
};

void set_up(Valuators& bar, const Look& look) {
    bar.Val_Min = look.first, bar.Val_Max = look.last, bar.Cur_Value = look.value;
    bar.Border = look.border;
    bar.Format = look.format;
    bar.Num_Width = look.format ? 50 : 0;
}

void show_valuator(Stage& stage, const Look& look) {
    Valuators bar;
    set_up(bar, look);
    if (look.flags & OUTIL_VERTICAL)
        stage.show(bar, 10, 10, 30, 150, look.flags, L"Name");
    else
        stage.show(bar, 10, 10, 200, 30, look.flags, L"Name");
}

// A repaint by Adjust over what Draw has left.
void adjusted(Stage& stage, const Look& look, float value) {
    Valuators bar;
    set_up(bar, look);
    stage.show(bar, 10, 10, 200, 30, look.flags, L"Name");
    bar.Cur_Value = value;
    bar.Adjust();
}

void hovered(Stage& stage, DWORD flags) {
    Valuators bar;
    set_up(bar, {});
    stage.show(bar, 10, 10, 200, 30, flags, L"Name");
    stage.point(50, 25);
    bar.Select(1);
}

// Stripes for the normal look, a plain surface for the selected one.
void pictured(Stage& stage, bool over) {
    Valuators bar;
    set_up(bar, {0, 40, 2, "%.1f"});
    Stage::place(bar, 10, 10, 200, 30, 0, L"Name");
    bar.Alloc_Graph_Normal(0x80C0F0);
    bar.Alloc_Graph_Select(0xF0C080);
    for (int y = 0; y < 30; y += 5)
        for (int x = 0; x < 200; x++)
            bar.Graph_Normal[y * 200 + x] = 0x205080;
    if (over) stage.point(50, 25);
    bar.Init(stage.window());
    bar.Draw();
}

// The three padlocks, and a thumb too flat for one, lying and standing.
void padlocks(Stage& stage) {
    const int thicks[] = {30, 20, 16, 14};
    int y = 5;
    for (int thick : thicks) {
        Valuators bar;
        set_up(bar, {});
        stage.show(bar, 5, y, 120, thick, VALUATOR_FREZE);
        y += thick + 5;
    }
    Valuators upright;
    set_up(upright, {});
    stage.show(upright, 135, 5, 40, 95, VALUATOR_FREZE | OUTIL_VERTICAL);
}

void scales(Stage& stage) {
    const DWORD flags[] = {0, VALUATOR_LOG10, VALUATOR_LN, VALUATOR_LOG10 | OUTIL_REVERSE};
    int y = 5;
    for (DWORD scale : flags) {
        Valuators bar;
        set_up(bar, {scale, 10, 0, "%.0f", scale & OUTIL_REVERSE ? 1000.0f : 1.0f,
                     scale & OUTIL_REVERSE ? 1.0f : 1000.0f});
        stage.show(bar, 5, y, 250, 26, scale);
        y += 30;
    }
}

void ends(Stage& stage) {
    int y = 5;
    for (float value : {0.0f, 100.0f}) {
        Valuators bar;
        set_up(bar, {0, value});
        stage.show(bar, 5, y, 150, 26);
        Valuators upright;
        set_up(upright, {0, value});
        stage.show(upright, value > 0 ? 200 : 165, 5, 26, 100, OUTIL_VERTICAL);
        y += 30;
    }
}

} // namespace

const std::vector<Scene> VALUATOR_SCENES = {
    {"valuator", 220, 50, [](Stage& s) { show_valuator(s, {}); }},
    {"valuator_vertical", 50, 170, [](Stage& s) { show_valuator(s, {OUTIL_VERTICAL}); }},
    {"valuator_ends", 240, 110, ends},
    {"valuator_hover", 220, 50, [](Stage& s) { hovered(s, 0); }},
    {"valuator_hover_disabled", 220, 50, [](Stage& s) { hovered(s, OUTIL_DISABLE); }},
    {"valuator_number", 220, 50,
     [](Stage& s) {
         show_valuator(s, {0, 40, 0, "%.1f"});
     }},
    {"valuator_number_border", 220, 50,
     [](Stage& s) {
         show_valuator(s, {0, 40, 2, "%.1f dB"});
     }},
    {"valuator_number_adjusted", 220, 50,
     [](Stage& s) {
         adjusted(s, {0, 40, 2, "%.1f"}, 80);
     }},
    {"valuator_adjusted", 220, 50, [](Stage& s) { adjusted(s, {}, 80); }},
    {"valuator_locked", 220, 50, [](Stage& s) { show_valuator(s, {VALUATOR_FREZE}); }},
    {"valuator_padlocks", 180, 105, padlocks},
    {"valuator_scales", 260, 125, scales},
    {"valuator_reversed", 220, 50,
     [](Stage& s) {
         show_valuator(s, {OUTIL_REVERSE, 25, 0, nullptr, 100, 0});
     }},
    {"valuator_outline", 220, 50, [](Stage& s) { show_valuator(s, {GRAPH_OUTLINE}); }},
    {"valuator_disabled", 220, 50, [](Stage& s) { show_valuator(s, {OUTIL_DISABLE}); }},
    {"valuator_flat", 220, 50, [](Stage& s) { show_valuator(s, {OUTIL_FLAT}); }},
    {"valuator_hidden", 220, 50, [](Stage& s) { show_valuator(s, {OUTIL_INVISIBLE}); }},
    {"valuator_vertical_locked", 50, 170,
     [](Stage& s) { show_valuator(s, {OUTIL_VERTICAL | VALUATOR_FREZE}); }},
    {"valuator_vertical_reversed", 50, 170,
     [](Stage& s) {
         show_valuator(s, {OUTIL_VERTICAL | OUTIL_REVERSE, 25, 0, nullptr, 100, 0});
     }},
    {"valuator_vertical_log", 50, 170,
     [](Stage& s) {
         show_valuator(s, {OUTIL_VERTICAL | VALUATOR_LOG10, 10, 0, nullptr, 1, 1000});
     }},
    {"valuator_vertical_outline", 50, 170,
     [](Stage& s) { show_valuator(s, {OUTIL_VERTICAL | GRAPH_OUTLINE}); }},
    {"valuator_empty", 220, 50, [](Stage& s) { show_valuator(s, {OUTIL_EMPTY}); }},
    {"valuator_wide_border", 220, 50,
     [](Stage& s) {
         show_valuator(s, {0, 40, 7});
     }},
    {"valuator_negative_border", 220, 50,
     [](Stage& s) {
         show_valuator(s, {0, 40, -2});
     }},
    {"valuator_picture", 220, 50, [](Stage& s) { pictured(s, false); }},
    {"valuator_picture_hover", 220, 50, [](Stage& s) { pictured(s, true); }},
};
