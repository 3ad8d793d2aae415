#include <brask/tools.h>

#include "foundation/bracket.h"
#include "foundation/checks.h"
#include "foundation/faces.h"
#include "foundation/palette.h"
#include "foundation/pixels.h"
#include "foundation/surfaces.h"
#include "foundation/trace.h"

using namespace brask;

namespace {

// The fills in fixed colours: lamps and indicators.
struct Fixed_Fill {
    const char* operation;
    unsigned long word;
};
constexpr Fixed_Fill BLUE = {"Tools::Fill_Blue", 0xFF0000};
constexpr Fixed_Fill GREEN = {"Tools::Fill_Green", 0xFF00};
constexpr Fixed_Fill GREY = {"Tools::Fill_Grey", WORD_GREY};
constexpr Fixed_Fill RED = {"Tools::Fill_Red", 0xFF};
constexpr Fixed_Fill YELLOW = {"Tools::Fill_Yellow", 0xFFFF};

void fill(const Tools& control, const char* tag, unsigned long word, int x1, int x2, int y1, int y2) {
    Bracket bracket(control, tag);
    Zeb_color(word);
    draw_fill_rectangle(x1, y2, x2, y1);
}

void fill_fixed(const Tools& control, const Fixed_Fill& look, int x1, int x2, int y1, int y2) {
    Trace trace(look.operation, control);
    if (control.Flag & OUTIL_INVISIBLE) return trace.out("invisible");
    fill(control, look.operation, look.word, x1, x2, y1, y2);
}

// The whole control, and `above` rows more at its top.
void clear(Tools& control, unsigned long word, int above) {
    check_first_use(control, "Tools::Clear");
    if (too_small(control)) return;
    fill(control, "Tools::Clear", word, control.Pos_X, Px(control.Pos_X) + control.Dim_X + 1,
         Px(control.Pos_Y) - 1, Px(control.Pos_Y) + control.Dim_Y + above);
}

} // namespace

void Tools::Clear() { clear(*this, Color.get(), 0); }
// The forms with an argument paint one row above the control.
void Tools::Clear(unsigned char r, unsigned char g, unsigned char b) {
    clear(*this, Colors(r, g, b).get(), 1);
}
void Tools::Clear(unsigned int word) { clear(*this, word, 1); }
void Tools::Clear(Colors) { clear(*this, Color_Get(), 1); } // in its own colour, whatever is given

void Tools::Fill(long flag, int x1, int x2, int y1, int y2) {
    Trace trace("Tools::Fill", *this);
    if (Flag & OUTIL_INVISIBLE) return trace.out("invisible");
    if (flag & OUTIL_EMPTY) return;
    fill(*this, "Tools::Fill", Color.get(), x1, x2, y1, y2);
}

void Tools::Fill_Blue(int x1, int x2, int y1, int y2) { fill_fixed(*this, BLUE, x1, x2, y1, y2); }
void Tools::Fill_Green(int x1, int x2, int y1, int y2) { fill_fixed(*this, GREEN, x1, x2, y1, y2); }
void Tools::Fill_Grey(int x1, int x2, int y1, int y2) { fill_fixed(*this, GREY, x1, x2, y1, y2); }
void Tools::Fill_Red(int x1, int x2, int y1, int y2) { fill_fixed(*this, RED, x1, x2, y1, y2); }
void Tools::Fill_Yellow(int x1, int x2, int y1, int y2) { fill_fixed(*this, YELLOW, x1, x2, y1, y2); }

void Tools::Fill_Select(int on, const char* image, long flag, int inset, int x1, int x2, int y1, int y2) {
    Trace trace("Tools::Fill_Select", *this);
    if (flag & OUTIL_EMPTY) return;
    const Px left = x1, right = x2, bottom = y1, top = y2;
    Bracket bracket(*this, "Tools::Fill_Select");
    if (image && !faces::outgrown(image, *this) && !Host_Surfaces::outgrown(image, *this)) {
        // The source row stands one less in than the column: that row is the first one shaded.
        draw_image(image, left + inset, bottom + inset, inset, Px(inset) - 1,
                   right - 2 * Px(inset) - left + 1, top - 2 * Px(inset) - bottom + 1, Dim_X, Dim_Y, 0);
        return;
    }
    Zeb_color(on ? WORD_HIGHLIGHT : Color.get());
    draw_fill_rectangle(left + inset, top - inset, right - inset + 1, bottom - 1 + inset);
}
