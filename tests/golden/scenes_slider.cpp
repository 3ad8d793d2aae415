#include <brask/sliders.h>

#include "scenes.h"

namespace {

struct Look {
    DWORD flags = 0;
    float value = 30;
    int border = 0;
    float first = 0, last = 100;
};

void set_up(Sliders& slider, const Look& look) {
    slider.Val_Min = look.first, slider.Val_Max = look.last, slider.Cur_Value = look.value;
    slider.Border = look.border;
    slider.Larg = 20;
}

void show_slider(Stage& stage, const Look& look) {
    Sliders slider;
    set_up(slider, look);
    if (look.flags & OUTIL_VERTICAL)
        stage.show(slider, 10, 10, 20, 160, look.flags);
    else
        stage.show(slider, 10, 10, 160, 20, look.flags);
}

// The pointer over a slider, without a press; then gone, after a press.
void hovered(Stage& stage, DWORD flags) {
    Sliders slider;
    set_up(slider, {});
    stage.show(slider, 10, 10, 160, 20, flags);
    stage.point(120, 20);
    slider.Select(0);
}

// A press is followed outside of the slider.
void captured(Stage& stage) {
    Sliders slider;
    set_up(slider, {});
    stage.show(slider, 10, 10, 160, 20, OUTIL_CAPTURE);
    stage.point(60, 20);
    slider.Select(2 + 16);
    stage.point(140, 45);
    if (slider.Select(1 + 16)) slider.Cur_Value = slider.Read(), slider.Adjust();
}

// A press on the end arrow, and away again.
void stepped(Stage& stage) {
    Sliders slider;
    set_up(slider, {});
    slider.Step = 25;
    stage.show(slider, 10, 10, 160, 20);
    stage.point(165, 20);
    slider.Select(2 + 16);
    slider.Adjust();
    stage.point_away();
    slider.Select(0);
}

void ends(Stage& stage) {
    int at = 5;
    for (const float value : {0.0f, 100.0f}) {
        Sliders lying, standing;
        set_up(lying, {0, value});
        stage.show(lying, 5, at, 120, 20);
        set_up(standing, {OUTIL_VERTICAL, value});
        stage.show(standing, 130 + at, 5, 20, 100, OUTIL_VERTICAL);
        at += 25;
    }
}

// From a thumb that fills the track to one that is as short as can be.
void thumbs(Stage& stage) {
    int y = 5;
    for (const float part : {1.0f, 0.5f, 0.1f, 0.0f}) {
        Sliders slider;
        set_up(slider, {});
        slider.Dim_X = 160, slider.Dim_Y = 16;
        slider.Larg_Adjust(part, 1);
        stage.show(slider, 5, y, 160, 16);
        y += 20;
    }
}

// Bars too short for a thumb or for arrows, too flat, and with arrows of a length of their own.
void odd_sizes(Stage& stage) {
    const int sizes[][2] = {{30, 16}, {45, 16}, {60, 30}, {100, 6}, {100, 3}};
    int y = 5;
    for (const auto& size : sizes) {
        Sliders slider;
        set_up(slider, {});
        slider.Larg = 8;
        stage.show(slider, 5, y, size[0], size[1]);
        y += size[1] + 5;
    }
    Sliders arrows;
    set_up(arrows, {});
    arrows.Larg = 8, arrows.Arrow_Len = 40;
    stage.show(arrows, 5, y, 150, 16);
}

void coloured(Stage& stage, bool over) {
    Sliders slider;
    set_up(slider, {});
    slider.Color = Colors(60, 120, 90);
    Stage::place(slider, 10, 10, 160, 20);
    slider.Alloc_Graph_Normal(0x306048);
    slider.Alloc_Graph_Select(0xF0C080);
    for (int x = 0; x < 160; x++)
        for (int y = x % 20 < 10 ? 0 : 10; y < 20; y += 2)
            slider.Graph_Normal[y * 160 + x] = 0x80E0B0;
    if (over) stage.point(120, 20);
    slider.Init(stage.window());
    slider.Draw();
}

} // namespace

const std::vector<Scene> SLIDER_SCENES = {
    {"slider", 180, 40, [](Stage& s) { show_slider(s, {}); }},
    {"slider_vertical", 40, 180, [](Stage& s) { show_slider(s, {OUTIL_VERTICAL}); }},
    {"slider_reversed", 180, 40,
     [](Stage& s) {
         show_slider(s, {OUTIL_REVERSE, 30, 0, 100, 0});
     }},
    {"slider_vertical_reversed", 40, 180,
     [](Stage& s) {
         show_slider(s, {OUTIL_VERTICAL | OUTIL_REVERSE, 30, 0, 100, 0});
     }},
    {"slider_disabled", 180, 40, [](Stage& s) { show_slider(s, {OUTIL_DISABLE}); }},
    {"slider_outline", 180, 40, [](Stage& s) { show_slider(s, {GRAPH_OUTLINE}); }},
    {"slider_empty", 180, 40, [](Stage& s) { show_slider(s, {OUTIL_EMPTY}); }},
    {"slider_hidden", 180, 40, [](Stage& s) { show_slider(s, {OUTIL_INVISIBLE}); }},
    {"slider_flat", 180, 40, [](Stage& s) { show_slider(s, {OUTIL_FLAT}); }},
    {"slider_wide_border", 180, 40,
     [](Stage& s) {
         show_slider(s, {0, 30, 4});
     }},
    {"slider_hover", 180, 40, [](Stage& s) { hovered(s, 0); }},
    {"slider_hover_disabled", 180, 40, [](Stage& s) { hovered(s, OUTIL_DISABLE); }},
    {"slider_captured", 180, 60, captured},
    {"slider_stepped", 180, 40, stepped},
    {"slider_ends", 200, 110, ends},
    {"slider_thumbs", 170, 90, thumbs},
    {"slider_odd_sizes", 165, 135, odd_sizes},
    {"slider_picture", 180, 40, [](Stage& s) { coloured(s, false); }},
    {"slider_picture_hover", 180, 40, [](Stage& s) { coloured(s, true); }},
};
