#include <brask/tools.h>

#include "foundation/bracket.h"
#include "foundation/compound.h"
#include "foundation/marks.h"
#include "foundation/palette.h"
#include "foundation/text_place.h"
#include "foundation/trace.h"

using namespace brask;

namespace {

constexpr int MOST_STACKED = 128;

struct Measure {
    Px width = 0;
    int count = 0; // of visible characters
};

Measure measure(const wchar_t* text, const Mark_Fonts& fonts) {
    Measure sum;
    HFONT font = fonts.current;
    Runs runs(text, true);
    while (runs.next()) {
        if (runs.length) sum.width = sum.width + Zeb_Font_Size_String(font, runs.text);
        sum.count += runs.length;
        if (runs.mark) font = fonts.of(runs.mark->face);
    }
    return sum;
}

void write_line(const wchar_t* text, const Mark_Fonts& fonts, Px x, int y) {
    HFONT font = fonts.current;
    Runs runs(text);
    while (runs.next()) {
        if (runs.length) x = x + Zeb_Font_Write(font, x, y, runs.text);
        if (!runs.mark) continue;
        if (runs.mark->color)
            Zeb_Font_Color(runs.mark->color, 0);
        else
            font = fonts.of(runs.mark->face);
    }
}

// One letter above the other. Marks are not obeyed here but written like any letter, and take a row that was
// not counted: required so.
void write_stacked(const wchar_t* text, HFONT font, int height, int middle, Px y) {
    for (int i = 0; i < MOST_STACKED && text[i]; i++, y = y - height) {
        const wchar_t letter[2] = {text[i], 0};
        Zeb_Font_Write(font, Px(middle) - Zeb_Font_Size_String(font, letter) / 2, y, letter);
    }
}

unsigned long text_color(long flag, unsigned int color) {
    if (color) return color;
    if (flag & GRAPH_OUTLINE) return WORD_OUTLINE;
    return flag & TEXT_WHITE ? WORD_WHITE : WORD_BLACK;
}

} // namespace

void Tools::Text(const wchar_t* text, long flag, int x, int y, int dx, int dy, int border,
                 unsigned int color) {
    Trace trace("Tools::Text", *this);
    if (!text || !*text) return trace.out("no text");
    if (text_hidden(*this, x, y, dx, dy, border)) return trace.out("clip");
    Mark_Fonts fonts = mark_fonts(*this); // before the bracket: the cache measures in a context of its own
    fonts.current = font_of(*this);
    Setup setup(Wnd, "Tools::Text");
    const Text_Clip clip = text_clip(*this, x, y, dx, dy, border);
    Zeb_set_clip(clip.x, clip.y, clip.width, clip.height);
    Zeb_Font_Color(text_color(flag, color), 0);

    const int b = text_border(border);
    const int height = Zeb_Font_Size_Height(fonts.current);
    const int wide = Zeb_Font_Size_String(fonts.current, L"W");
    const Measure size = measure(text, fonts);
    if (Flag & OUTIL_VERTICAL)
        write_stacked(text, fonts.current, height, stack_x(flag, x, dx, b, wide),
                      stack_y(flag, y, dy, b, size.count, height));
    else
        write_line(text, fonts, line_x(flag, x, dx, b, size.width), line_y(flag, y, dy, b, height));
    Zeb_reset_clip();
}
