#ifndef CONSOLE_GEOMETRY_H
#define CONSOLE_GEOMETRY_H

#include <cstdint>

#include <brask/texts.h>

#include "foundation/compound.h"
#include "foundation/layout.h"

namespace brask {

// The rectangles of a console: painting, hit test and tests go by the same ones.

inline constexpr int NAME_HEIGHT = 20; // of the strip with the name, whatever the font

inline bool has_sliders(const Texts& console) {
    return (console.Flag & (TEXTS_CURSOR_V | TEXTS_CURSOR_H)) != 0;
}

// The editor's strip, at the foot of the control or the whole of it.
Area strip_area(const Texts& console);

// What shows the log, as lower left corner and size; a height below 1 shows nothing.
Place log_place(const Texts& console);
// How far the log is scrolled: less than 0, or 0.
int shift_x(const Texts& console);
int shift_y(const Texts& console);

// The lines, from `begin` to before `end`, whose bottom lies from `low` to `high` above the log's.
struct Line_Range {
    int begin, end;
};
Line_Range lines_between(const Texts& console, std::int64_t low, std::int64_t high);

// What a console holds, as its sliders see it: pixels.
struct Extent {
    int width, height;
};
// One slider: its place and how much of the content is in view.
struct Slider_Room {
    Place place;
    int shown, total;
};
struct Slider_Rooms {
    Slider_Room vertical, horizontal;
};
Slider_Rooms slider_rooms(const Texts& console, const Extent& content);

// A rectangle cut by the control's clip rectangle, if it has one.
Area clipped(const Texts& console, const Area& area);

} // namespace brask

#endif
