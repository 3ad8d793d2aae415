#ifndef CONTROLS_THUMB_H
#define CONTROLS_THUMB_H

#include <cstddef>

#include <brask/fenn.h>

#include "foundation/palette.h"
#include "foundation/pixels.h"

namespace brask::thumb {

// A bevelled thumb as a list of strokes. The thumbs of slider and value bar differ by single pixels, on
// purpose: each keeps its lists, made of the strokes here and of its own.

// A corner of a stroke: an edge of the thumb and so many pixels from it, on both axes. MIDDLE lies half the
// thumb's length after its start.
enum Edge { LEFT, RIGHT, BOTTOM, TOP, MIDDLE };
struct Corner {
    Edge x;
    int dx;
    Edge y;
    int dy;
};
struct Stroke {
    unsigned long color;
    int corners;
    Corner corner[3];
};

inline constexpr Stroke LIGHT_SIDES = {
    WORD_LIGHT, 3, {{LEFT, 0, BOTTOM, 0}, {LEFT, 0, TOP, 0}, {RIGHT, -1, TOP, 0}}};
inline constexpr Stroke DARK_SIDES = {
    WORD_BLACK, 3, {{LEFT, 1, BOTTOM, 0}, {RIGHT, 0, BOTTOM, 0}, {RIGHT, 0, TOP, 0}}};
inline constexpr Stroke INNER_SIDES = {
    WORD_BLACK, 3, {{LEFT, 2, BOTTOM, 1}, {RIGHT, -1, BOTTOM, 1}, {RIGHT, -1, TOP, -1}}};

// A light and a dark line make the groove across the middle. Of the horizontal thumb's dark line each
// control has its own.
inline constexpr Stroke VERTICAL_LIGHT = {
    WORD_LIGHT, 2, {{LEFT, 1, MIDDLE, -1}, {RIGHT, -1, MIDDLE, -1}, {}}};
inline constexpr Stroke VERTICAL_DARK = {WORD_BLACK, 2, {{LEFT, 1, MIDDLE, 0}, {RIGHT, 0, MIDDLE, 0}, {}}};
inline constexpr Stroke HORIZONTAL_LIGHT = {WORD_LIGHT, 2, {{MIDDLE, 0, BOTTOM, 1}, {MIDDLE, 0, TOP, 0}, {}}};

inline void paint(const Stroke& stroke, const Area& area, int middle) {
    const int edges[] = {area.x1, area.x2, area.y1, area.y2, middle};
    Zeb_color(stroke.color);
    for (int i = 0; i < stroke.corners; i++) {
        const Corner& corner = stroke.corner[i];
        const int x = Px(edges[corner.x]) + corner.dx, y = Px(edges[corner.y]) + corner.dy;
        if (i == 0)
            move2s(x, y);
        else
            draw2s(x, y, 0);
    }
}

template <std::size_t Count>
void paint(const Stroke (&strokes)[Count], const Area& area, int middle) {
    for (const Stroke& stroke : strokes)
        paint(stroke, area, middle);
}

} // namespace brask::thumb

#endif
