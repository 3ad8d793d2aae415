#include <brask/boxs.h>

#include "scenes.h"

namespace {

// One box of 100 by 60 in a picture of 120 by 80.
void show_box(Stage& stage, DWORD flags, int border = 0, const Colors& color = Colors()) {
    Boxs box;
    box.Border = border;
    box.Color = color;
    stage.show(box, 10, 10, 100, 60, flags, L"Title");
}

// The title at each of the nine places.
void titles(Stage& stage) {
    const DWORD columns[] = {TEXT_LEFT, 0, TEXT_RIGHT}, rows[] = {TEXT_BOTTOM, TEXT_MIDDLE, TEXT_TOP};
    for (int row = 0; row < 3; row++)
        for (int column = 0; column < 3; column++) {
            Boxs box;
            stage.show(box, 5 + 80 * column, 5 + 60 * row, 75, 55, columns[column] | rows[row], L"Place");
        }
}

void after_deselect(Stage& stage) {
    Boxs box;
    stage.point(50, 40);
    stage.show(box, 10, 10, 100, 60, 0, L"Title");
    box.Deselect();
    box.Select(2 + 16); // does not light up again until the pointer has left
}

void clipped(Stage& stage) {
    Boxs box;
    box.Clip_X = 30;
    box.Clip_Y = 25;
    box.Clip_Dim_X = 50;
    box.Clip_Dim_Y = 55;
    stage.show(box, 10, 10, 100, 60, BOX_RAISED, L"Clipped title");
}

void resized(Stage& stage) {
    Boxs box;
    stage.show(box, 10, 10, 40, 30, 0, L"Small");
    box.Dim_X = 100;
    box.Dim_Y = 60;
    box.Color = Colors(120, 160, 200);
    box.Init(nullptr);
    box.Draw();
}

} // namespace

const std::vector<Scene> BOX_SCENES = {
    {"box_sunken", 120, 80, [](Stage& s) { show_box(s, 0); }},
    {"box_raised", 120, 80, [](Stage& s) { show_box(s, BOX_RAISED); }},
    {"box_inset", 120, 80, [](Stage& s) { show_box(s, BOX_INSET); }},
    {"box_raised_inset", 120, 80, [](Stage& s) { show_box(s, BOX_INSET | BOX_RAISED); }},
    {"box_no_frame", 120, 80, [](Stage& s) { show_box(s, OUTIL_NO_FRAME); }},
    {"box_no_frame_inset", 120, 80, [](Stage& s) { show_box(s, OUTIL_NO_FRAME | BOX_INSET); }},
    {"box_no_line", 120, 80, [](Stage& s) { show_box(s, CADRE_NO_LINE); }},
    {"box_outline", 120, 80, [](Stage& s) { show_box(s, GRAPH_OUTLINE); }},
    {"box_empty", 120, 80, [](Stage& s) { show_box(s, OUTIL_EMPTY); }},
    {"box_flat", 120, 80, [](Stage& s) { show_box(s, OUTIL_FLAT, 0, Colors(220, 200, 160)); }},
    {"box_disabled", 120, 80, [](Stage& s) { show_box(s, OUTIL_DISABLE); }},
    {"box_hidden", 120, 80, [](Stage& s) { show_box(s, OUTIL_INVISIBLE); }},
    {"box_wide_border", 120, 80, [](Stage& s) { show_box(s, 0, 10); }},
    {"box_negative_border", 120, 80, [](Stage& s) { show_box(s, 0, -2); }},
    {"box_border_beyond", 120, 80, [](Stage& s) { show_box(s, 0, 40); }},
    {"box_dark_blue", 120, 80, [](Stage& s) { show_box(s, TEXT_WHITE, 0, Colors(40, 60, 130)); }},
    {"box_selected", 120, 80,
     [](Stage& s) {
         s.point(50, 40);
         show_box(s, 0);
     }},
    {"box_selected_inset", 120, 80,
     [](Stage& s) {
         s.point(50, 40);
         show_box(s, BOX_INSET);
     }},
    {"box_after_deselect", 120, 80, after_deselect},
    {"box_clipped", 120, 80, clipped},
    {"box_resized", 120, 80, resized},
    {"box_titles", 250, 190, titles},
};
