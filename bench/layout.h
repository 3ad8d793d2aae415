#ifndef BENCH_LAYOUT_H
#define BENCH_LAYOUT_H

#include <cstdio>

// The work that every toolkit of the comparison does: one grid of buttons, and one road of the pointer over
// it. Y runs downward here, as in a window's messages.
namespace layout {

inline constexpr int window_width = 1280;
inline constexpr int window_height = 800;
inline constexpr int columns = 10;
inline constexpr int rows = 20;
inline constexpr int count = columns * rows;
inline constexpr int button_width = 120;
inline constexpr int button_height = 32;
inline constexpr int text_pixels = 14;
inline constexpr const char* family = "Liberation Sans";

struct Place {
    int x, y;
};

// Upper left corner of button `index`, counted row by row.
inline Place corner(int index) {
    const int pitch_x = window_width / columns, pitch_y = window_height / rows;
    return {index % columns * pitch_x + (pitch_x - button_width) / 2,
            index / columns * pitch_y + (pitch_y - button_height) / 2};
}

// Ten characters.
struct Label {
    char text[16];
};
inline Label label(int index) {
    Label label;
    std::snprintf(label.text, sizeof label.text, "Button %03d", index % 1000);
    return label;
}

// The button under the pointer after `step` moves: a serpentine over the rows, so that each move leaves one
// button and enters its neighbour. From the last button it goes the same way back.
inline int visited(long step) {
    const int there = static_cast<int>(step % (2 * count));
    const int index = there < count ? there : 2 * count - 1 - there;
    const int row = index / columns, column = index % columns;
    return row * columns + (row % 2 ? columns - 1 - column : column);
}

inline Place middle(int index) {
    const Place at = corner(index);
    return {at.x + button_width / 2, at.y + button_height / 2};
}

// A list of one column, scrolled row by row.
inline constexpr int list_width = 800;
inline constexpr int list_height = 600;
inline constexpr int list_row = 20;
inline constexpr int list_rows = 10000;

inline Label row_label(int index) {
    Label label;
    std::snprintf(label.text, sizeof label.text, "Item %06d", index % 1000000);
    return label;
}

// The row at the top after `step` moves by one: a long way down and the same way up again, all of it far from
// both ends.
inline int top_row(long step) {
    constexpr long way = 1000;
    const long there = step % (2 * way);
    return 100 + static_cast<int>(there < way ? there : 2 * way - there);
}

} // namespace layout

#endif
