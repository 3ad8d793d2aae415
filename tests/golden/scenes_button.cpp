#include <brask/buttons.h>

#include "scenes.h"

namespace {

void show_button(Stage& stage, DWORD flags, int value = 0, unsigned lamp = 0, int border = 0) {
    Buttons button;
    button.Cur_Value = value;
    button.Lamp_Color = lamp;
    button.Border = border;
    stage.show(button, 10, 10, 100, 30, flags, L"Label");
}

void hovered(Stage& stage, DWORD flags, int value = 0) {
    stage.point(50, 25);
    show_button(stage, flags, value, 1);
}

// Every lamp colour, without and with the flag that lets them all count.
void lamps(Stage& stage) {
    for (unsigned color = 0; color < 6; color++)
        for (int all = 0; all < 2; all++) {
            Buttons button;
            button.Lamp_Color = color;
            stage.show(button, 5 + 90 * all, 5 + 32 * static_cast<int>(color), 85, 28,
                       BUTTON_LAMP | (all ? BUTTON_LAMP_COLOR : 0), L"Lamp");
        }
}

void lamp_heights(Stage& stage) {
    const int heights[] = {8, 10, 12, 16, 25, 40, 60};
    int x = 5;
    for (int height : heights) {
        Buttons button;
        button.Lamp_Color = 1;
        stage.show(button, x, 5, 30, height, BUTTON_LAMP | BUTTON_LAMP_COLOR);
        x += 35;
    }
}

// A picture for the normal look: stripes with a diagonal.
void picture(Stage& stage) {
    for (int i = 0; i < 2; i++) {
        Buttons button;
        button.Cur_Value = i;
        Stage::place(button, 10 + 110 * i, 10, 100, 30, 0, L"Label");
        button.Alloc_Graph_Normal(0x80C0F0);
        for (int y = 0; y < 30; y++)
            for (int x = 0; x < 100; x++)
                if (y % 6 == 0 || x / 3 == y) button.Graph_Normal[y * 100 + x] = 0x205080;
        button.Init(stage.window());
        button.Draw();
    }
}

void adjusted(Stage& stage) {
    Buttons button;
    stage.show(button, 10, 10, 100, 30, OUTIL_NO_FRAME, L"Label");
    button.Cur_Value = 1;
    button.Adjust(); // gets its frame here
}

void left_again(Stage& stage) {
    Buttons button;
    stage.point(50, 25);
    stage.show(button, 10, 10, 100, 30, BUTTON_LAMP, L"Label");
    stage.point_away();
    button.Select(0);
}

} // namespace

const std::vector<Scene> BUTTON_SCENES = {
    {"button_up", 120, 50, [](Stage& s) { show_button(s, 0); }},
    {"button_down", 120, 50, [](Stage& s) { show_button(s, 0, 1); }},
    {"button_hover_up", 120, 50, [](Stage& s) { hovered(s, 0); }},
    {"button_hover_down", 120, 50, [](Stage& s) { hovered(s, 0, 1); }},
    {"button_hover_lamp", 120, 50, [](Stage& s) { hovered(s, BUTTON_LAMP); }},
    {"button_hover_disabled", 120, 50, [](Stage& s) { hovered(s, OUTIL_DISABLE); }},
    {"button_left_again", 120, 50, left_again},
    {"button_frame_only", 120, 50, [](Stage& s) { show_button(s, OUTIL_EMPTY | BUTTON_LAMP, 0, 1); }},
    {"button_outline", 120, 50, [](Stage& s) { show_button(s, GRAPH_OUTLINE); }},
    {"button_outline_lamp", 120, 50, [](Stage& s) { show_button(s, GRAPH_OUTLINE | BUTTON_LAMP); }},
    {"button_no_frame", 120, 50, [](Stage& s) { show_button(s, OUTIL_NO_FRAME); }},
    {"button_no_frame_adjusted", 120, 50, adjusted},
    {"button_flat", 120, 50, [](Stage& s) { show_button(s, OUTIL_FLAT); }},
    {"button_wide_border", 120, 50, [](Stage& s) { show_button(s, 0, 0, 0, 8); }},
    {"button_negative_border", 120, 50, [](Stage& s) { show_button(s, 0, 0, 0, -4); }},
    {"button_lamps", 185, 200, lamps},
    {"button_lamp_heights", 260, 75, lamp_heights},
    {"button_picture", 230, 50, picture},
};
