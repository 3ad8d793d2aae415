#include <brask/tools.h>

#include <algorithm>

#include "foundation/bracket.h"
#include "foundation/palette.h"
#include "foundation/pixels.h"
#include "foundation/trace.h"

using namespace brask;

namespace {

constexpr int CONTRAST = 80;     // the greatest shade of a ring
constexpr int SUNKEN_EXTRA = 40; // sunken frames are darker than raised ones are bright, on purpose
// Rings further out than any window is wide paint nothing that could be seen.
constexpr int MOST_RINGS = 32767;

// The shades of one ring against the control's colour.
struct Ring {
    int lower; // of the lower and right sides
    int upper; // of the left and top sides
};

// A raised frame has its strongest contrast outside, a sunken one inside. `i` counts from 1, outermost first.
constexpr Ring ring_shades(bool sunken, int step, int i) {
    if (sunken) return {i * step, -(i * step + SUNKEN_EXTRA)};
    const int shade = CONTRAST - (i - 1) * step;
    return {-shade, shade};
}

void shade_color(const Colors& base, int shade) {
    Colors color = base;
    color += static_cast<short>(shade);
    Zeb_color(color.get());
}

void paint_ring(const Colors& base, const Ring& ring, Px left, Px right, Px bottom, Px top) {
    shade_color(base, ring.lower);
    move2s(bits(left), bits(bottom));
    draw2s(bits(right), bits(bottom), 0);
    draw2s(bits(right), bits(top), 0);
    shade_color(base, ring.upper);
    move2s(bits(left), bits(bottom));
    draw2s(bits(left), bits(top), 0);
    draw2s(bits(right + 1), bits(top), 0); // a line leaves out its last point: one more closes the corner
}

} // namespace

void Tools::Cadre(long flag, int dir, int width, int x1, int x2, int y1, int y2) {
    Trace trace("Tools::Cadre", *this);
    Bracket bracket(*this, "Tools::Cadre");
    if (!(flag & CADRE_NO_LINE)) {
        Zeb_color(WORD_BLACK);
        draw_rectangle(x1, y2, x2, y1);
    }
    if (width < 1) return;
    const int step = CONTRAST / width;
    for (int i = 1; i <= std::min(width, MOST_RINGS); i++)
        paint_ring(Color, ring_shades(dir != 0, step, i), Px(x1) + i, Px(x2) - i, Px(y1) + i, Px(y2) - i);
}

void Tools::Cadre_Outline(int x1, int x2, int y1, int y2) {
    Trace trace("Tools::Cadre_Outline", *this);
    Bracket bracket(*this, "Tools::Cadre_Outline");
    Zeb_color(WORD_OUTLINE);
    draw_rectangle(Px(x1) + 1, Px(y2) - 1, Px(x2) - 1, Px(y1) + 1);
}
