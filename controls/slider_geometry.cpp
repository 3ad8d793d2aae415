#include "controls/slider_geometry.h"

#include <algorithm>

#include "controls/range.h"
#include "foundation/layout.h"

namespace brask {

int slider_arrow(const Sliders& slider) {
    if (slider.Arrow_Len) return slider.Arrow_Len;
    const Axis axis = axis_of(slider);
    return std::min<int>(axis.thick, axis.length / 2 - Px(CURSEUR));
}

int slider_play(const Sliders& slider) {
    const Axis axis = axis_of(slider);
    return axis.length - 2 * axis.thick - 2 * Px(slider.Larg) - 2 * Px(bevel_width(slider));
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
