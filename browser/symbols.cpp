#include <algorithm>

#include <brask/icons.h>

#include "browser/glyphs.h"
#include "foundation/bracket.h"

using namespace brask;

// Symbols of any size.

namespace {

// Larger ones than any window show nothing more.
constexpr int MOST_ROWS = 32767;

// A set-up that is clipped to the box itself.
class Box_Bracket {
  public:
    Box_Bracket(const Boxs& box, const char* tag) : setup(box.Wnd, tag) {
        Zeb_set_clip(box.Pos_X, box.Pos_Y, box.Dim_X, box.Dim_Y);
    }
    ~Box_Bracket() { Zeb_reset_clip(); }

  private:
    Setup setup;
};

// The frame with its horizontal bar.
void paint_minus(Px size, Px x, Px y) {
    Zeb_color(WORD_WHITE);
    draw_rectangle(x, y + size, x + size, y);
    const Px middle = y + size / 2;
    stroke(x + 2, middle, x + size - 1, middle);
}

// A whole circle, which starts and ends at its right point.
void paint_circle(Px x, Px y, Px radius) {
    if (radius < 1) return;
    move2s(bits(x + radius), bits(y));
    const HPEN pen = CreatePen(PS_SOLID, 1, Current_Color);
    const HGDIOBJ before = SelectObject(Zeb_DC, pen);
    AngleArc(Zeb_DC, x, y, bits(radius), 0, 360);
    SelectObject(Zeb_DC, before);
    DeleteObject(pen);
}

} // namespace

void Icon_Close(const Boxs* box, int size, int x, int y) {
    if (!box) return;
    Box_Bracket bracket(*box, "Icon_Close");
    Zeb_color(GLYPH_RED);
    const int thickness = std::max(size / 4, 3);
    const Px low = Px(y) + 1, high = Px(y) + size;
    for (int i = 0; i < std::min(size, MOST_ROWS); i++) {
        const Px left = Px(x) + i, right = left + thickness;
        stroke(left, low + i, right, low + i);
        stroke(left, high - i, right, high - i);
    }
}

void Icon_Collapse(const Boxs* box, int size, int x, int y) {
    if (!box) return;
    Box_Bracket bracket(*box, "Icon_Collapse");
    paint_minus(size, x, y);
    const Px middle = Px(x) + size / 2;
    stroke(middle, Px(y) + 2, middle, Px(y) + size - 1);
}

void Icon_Expand(const Boxs* box, int size, int x, int y) {
    if (!box) return;
    Box_Bracket bracket(*box, "Icon_Expand");
    paint_minus(size, x, y);
}

void Icon_No_Access(const Boxs* box, int size, int x, int y) {
    if (!box) return;
    Box_Bracket bracket(*box, "Icon_No_Access");
    Zeb_color(GLYPH_RED);
    const int half = size / 2;
    paint_circle(Px(x) + half, Px(y) + half, Px(half) - 1);
    stroke(Px(x) + 1, Px(y) + 1, Px(x) + size, Px(y) + size);
}
