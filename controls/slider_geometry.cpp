#include "controls/slider_geometry.h"

#include <algorithm>

#include "foundation/layout.h"

namespace brask {

Slider_Axis slider_axis(const Sliders& slider) {
    if (slider.Flag & OUTIL_VERTICAL) return {true, slider.Pos_Y, slider.Dim_Y, slider.Dim_X};
    return {false, slider.Pos_X, slider.Dim_X, slider.Dim_Y};
}

int slider_arrow(const Sliders& slider) {
    if (slider.Arrow_Len) return slider.Arrow_Len;
    const Slider_Axis axis = slider_axis(slider);
    return std::min<int>(axis.thick, axis.length / 2 - Px(CURSEUR));
}

int slider_play(const Sliders& slider) {
    const Slider_Axis axis = slider_axis(slider);
    return axis.length - 2 * axis.thick - 2 * Px(slider.Larg) - 2 * Px(bevel_width(slider));
}

int slider_offset(const Sliders& slider, POINT pointer) {
    const Slider_Axis axis = slider_axis(slider);
    return Px(axis.vertical ? pointer.y : pointer.x) - axis.start;
}

Area slider_thumb(const Sliders& slider, int offset) {
    const Px b = bevel_width(slider), span = 2 * Px(slider.Larg) - 1;
    const Px left = slider.Pos_X, bottom = slider.Pos_Y;
    const Px right = left + slider.Dim_X, top = bottom + slider.Dim_Y;
    if (slider.Flag & OUTIL_VERTICAL) {
        // One pixel further in than along the other axis, on purpose.
        const Px start = bottom + 1 + b + offset;
        return {left + 2 + b, right - 2 - b, start, start + span};
    }
    const Px start = left + b + offset;
    return {start, start + span, bottom + 2 + b, top - 2 - b};
}

} // namespace brask
