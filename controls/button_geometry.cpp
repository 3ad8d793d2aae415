#include "controls/button_geometry.h"

#include <algorithm>

namespace brask {

namespace {

constexpr int LAMP_WIDTH = 8; // also what the label gives way by

} // namespace

int button_bevel(const Buttons& button) {
    return button.Border < 0 ? -Px(button.Border) : Px(bevel_width(button));
}

Button_Lamp button_lamp(const Buttons& button) {
    const Px b = button_bevel(button), y = button.Pos_Y, height = button.Dim_Y;
    const Px room = std::min(button.Dim_Y, BUT_DIM);
    const Px gap = 2 * b + 4;
    const int bevel = std::max<int>(b - 1, 1);
    // In a low button the bottom lies above the top: nothing guards against that.
    const Px left = Px(button.Pos_X) + SPACE, right = left + LAMP_WIDTH;
    const Px bottom = y + ((height + gap - room) >> 1), top = y + ((height - gap + room) >> 1);
    return {bevel, {left, right, bottom, top}, {left + bevel, right - bevel, bottom + bevel, top - bevel}};
}

Button_Label button_label(const Buttons& button) {
    const int shift = button.Flag & BUTTON_LAMP ? LAMP_WIDTH : 0;
    return {Px(button.Pos_X) + shift, button.Pos_Y, Px(button.Dim_X) - shift, button.Dim_Y};
}

} // namespace brask
