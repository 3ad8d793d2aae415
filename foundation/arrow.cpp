#include <brask/tools.h>

#include "foundation/bracket.h"
#include "foundation/palette.h"
#include "foundation/pixels.h"
#include "foundation/trace.h"

using namespace brask;

namespace {

// The look of each direction. Light comes from the upper left, so the sides change their colours with it.
struct Direction {
    bool vertical;
    bool far_end; // points to the greater coordinate
    unsigned long upper, back, lower;
};
constexpr Direction DIRECTIONS[] = {
    {false, false, WORD_LIGHT, WORD_BLACK, WORD_BLACK}, // left
    {false, true, WORD_LIGHT, WORD_LIGHT, WORD_BLACK},  // right
    {true, false, WORD_BLACK, WORD_LIGHT, WORD_LIGHT},  // down
    {true, true, WORD_BLACK, WORD_LIGHT, WORD_LIGHT},   // up
};

// The lines that the polygons' corners lie on: along the axis of pointing, and across it. The second name of
// each pair is that of the inner edge, inside the bevel.
struct Along {
    Px tip, tip_in, base, base_in;
};
struct Across {
    Px middle, low, low_in, high, high_in;
};

Along along_of(bool far_end, int border, int larg, Px start, Px length) {
    const int inward = far_end ? -1 : 1;
    const Px edge = far_end ? start + length : start;
    const Px tip = edge + inward * Px(border);
    const Px base = edge + inward * Px(larg);
    return {tip, tip + 3 * inward, base, base - inward};
}

Across across_of(int border, int larg, Px start, Px length) {
    const Px offset = (length - larg) / 2;
    const Px low = start + offset + border;
    const Px high = start + offset + larg - border;
    return {start + length / 2, low, low + 2, high, high - 2};
}

struct Corner {
    int along, across;
};

template <int COUNT>
void polygon(bool vertical, unsigned long word, const Corner (&corners)[COUNT]) {
    int xs[COUNT], ys[COUNT];
    for (int i = 0; i < COUNT; i++) {
        xs[i] = vertical ? corners[i].across : corners[i].along;
        ys[i] = vertical ? corners[i].along : corners[i].across;
    }
    Zeb_color(word);
    draw_fill_polygon(COUNT, xs, ys);
}

void paint_arrow(const Direction& look, const Along& a, const Across& c) {
    const Corner tip = {a.tip, c.middle}, tip_in = {a.tip_in, c.middle};
    const Corner high = {a.base, c.high}, high_in = {a.base_in, c.high_in};
    const Corner low = {a.base, c.low}, low_in = {a.base_in, c.low_in};
    polygon(look.vertical, WORD_SHADOW, {tip_in, low_in, high_in});
    polygon(look.vertical, look.upper, {tip, high, high_in, tip_in});
    polygon(look.vertical, look.back, {high, low, low_in, high_in});
    polygon(look.vertical, look.lower, {tip, low, low_in, tip_in});
}

} // namespace

void Tools::Arrow(int dir, int border, int larg, int x, int dx, int y, int dy) {
    Trace trace("Tools::Arrow", *this);
    if (larg <= border) return trace.out("larg <= border");
    if (dir < 0 || dir > 3) return;
    const Direction& look = DIRECTIONS[dir];
    Bracket bracket(*this, "Tools::Arrow");
    if (look.vertical)
        paint_arrow(look, along_of(look.far_end, border, larg, y, dy), across_of(border, larg, x, dx));
    else
        paint_arrow(look, along_of(look.far_end, border, larg, x, dx), across_of(border, larg, y, dy));
}
