#include <brask/boxs.h>

#include "scenes.h"

// The painting operations that all controls are made of.

namespace {

void arrows(Stage& stage) {
    Tools control;
    Stage::place(control, 0, 0, 230, 120);
    control.Wnd = stage.window();
    control.test = 1;
    for (int dir = 0; dir < 4; dir++) {
        control.Arrow(dir, 3, 16, 5 + 55 * dir, 16, 5, 16);
        control.Arrow(dir, 5, 25, 5 + 55 * dir, 40, 30, 30);
        control.Arrow(dir, 2, 40, 5 + 55 * dir, 45, 70, 45);
    }
}

void frames(Stage& stage) {
    Tools control;
    Stage::place(control, 0, 0, 230, 120);
    control.Wnd = stage.window();
    control.test = 1;
    control.Color = Colors(170, 170, 170);
    const int widths[] = {-1, 1, 2, 3, 6, 12};
    int x = 5;
    for (int width : widths) {
        control.Cadre(0, 0, width, x, x + 32, 5, 55);
        control.Cadre(CADRE_NO_LINE, 1, width, x, x + 32, 60, 110);
        x += 37;
    }
}

void fills(Stage& stage) {
    Tools control;
    Stage::place(control, 0, 0, 100, 20);
    control.Wnd = stage.window();
    control.test = 1;
    control.Color = Colors(100, 120, 140);
    control.Fill(0, 5, 15, 5, 15);
    control.Fill_Blue(20, 30, 5, 15);
    control.Fill_Green(35, 45, 5, 15);
    control.Fill_Grey(50, 60, 5, 15);
    control.Fill_Red(65, 75, 5, 15);
    control.Fill_Yellow(80, 90, 5, 15);
    control.Fill_Select(1, nullptr, 0, 4, 95, 125, 2, 18);
    control.Fill_Select(0, nullptr, 0, 2, 130, 160, 2, 18);
    control.Cadre_Outline(165, 195, 2, 18);
}

// Each form of Clear above the last, so that the row by which they differ shows.
void clears(Stage& stage) {
    Tools control;
    Stage::place(control, 10, 5, 20, 12);
    control.Wnd = stage.window();
    control.test = 1;
    control.Color = Colors(250, 250, 160);
    control.Clear();
    control.Pos_X = 40;
    control.Clear(200, 40, 40);
    control.Pos_X = 70;
    control.Clear(0x40C040u);
    control.Pos_X = 100;
    control.Clear(Colors(1, 2, 3));
}

} // namespace

const std::vector<Scene> PART_SCENES = {
    {"part_arrows", 230, 120, arrows},
    {"part_frames", 235, 115, frames},
    {"part_fills", 200, 20, fills},
    {"part_clears", 130, 24, clears},
};
