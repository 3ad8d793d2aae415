#include <brask/tools.h>

#include <brask/fonts.h>

#include "foundation/bracket.h"
#include "foundation/text_place.h"
#include "foundation/trace.h"

using namespace brask;

namespace {

constexpr unsigned long BLACK = 1;
constexpr unsigned long WHITE = 0xFFFFFF;
constexpr unsigned long OUTLINE_BLUE = 0xE64040;

constexpr int RUN_ROOM = 1024; // of the text written at once; longer runs are written in pieces
constexpr int MOST_STACKED = 128;

// --- Marks: characters that are not shown but act on the text after them --------------------------------

enum class Face { current, regular, bold, oblique };
struct Mark {
    int byte;
    unsigned long color; // 0: changes the font
    Face face;
};
constexpr Mark MARKS[] = {
    {1, 0xFF0000, Face::current}, // blue
    {2, BLACK, Face::current},    //
    {3, WHITE, Face::current},    //
    {4, 0xFF, Face::current},     // red
    {5, 0xFFFF, Face::current},   // yellow
    {6, 0xA000, Face::current},   // green
    {240, 0, Face::regular},      //
    {241, 0, Face::bold},         //
    {242, 0, Face::oblique},      //
};

// Only the low byte is looked at, so that some letters act as marks and cannot be shown: required so.
const Mark* mark_of(wchar_t c) {
    const int byte = static_cast<int>(c) & 255;
    if (byte > 6 && byte < 240) return nullptr; // nearly every letter
    for (const Mark& mark : MARKS)
        if (mark.byte == byte) return &mark;
    return nullptr;
}

// The fonts of one text.
struct Fonts {
    HFONT regular, bold, oblique, current;

    HFONT of(Face face) const {
        switch (face) {
        case Face::regular: return regular;
        case Face::bold: return bold;
        case Face::oblique: return oblique;
        default: return current;
        }
    }
};

Fonts ask_fonts(const Tools& control) {
    const auto ask = [&](const char* weight, const char* slant) {
        return Zeb_Create_Font(control.Wnd, control.Font_Name, weight, slant, control.Font_Size);
    };
    Fonts fonts;
    fonts.regular = ask("medium", "r");
    fonts.bold = ask("bold", "r");
    fonts.oblique = ask("medium", "o");
    fonts.current = ask(control.Font_Weight, control.Font_Slant);
    return fonts;
}

// --- Runs: what lies between marks --------------------------------------------------------------------

class Runs {
  public:
    // Colour marks do not end a run for measuring.
    Runs(const wchar_t* text, bool by_font_only) : at(text), skip_colors(by_font_only) {}

    wchar_t text[RUN_ROOM];
    int length = 0;
    const Mark* mark = nullptr; // the one that ended the run; null at the end, and between pieces

    // Collects the next run; false when the text is at its end.
    bool next() {
        length = 0;
        mark = nullptr;
        while (*at && !mark && !full()) {
            const wchar_t c = *at++;
            mark = mark_of(c);
            if (mark && mark->color && skip_colors)
                mark = nullptr;
            else if (!mark)
                text[length++] = c;
        }
        text[length] = 0;
        return length || mark;
    }

  private:
    // The last place is kept for the second half of a surrogate pair, which is not to be parted.
    bool full() const {
        const bool second_half = *at >= 0xDC00 && *at <= 0xDFFF;
        return length >= RUN_ROOM - 1 - !second_half;
    }

    const wchar_t* at;
    bool skip_colors;
};

struct Measure {
    Px width = 0;
    int count = 0; // of visible characters
};

Measure measure(const wchar_t* text, const Fonts& fonts) {
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

void write_line(const wchar_t* text, const Fonts& fonts, Px x, int y) {
    HFONT font = fonts.current;
    Runs runs(text, false);
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
    if (flag & GRAPH_OUTLINE) return OUTLINE_BLUE;
    return flag & TEXT_WHITE ? WHITE : BLACK;
}

} // namespace

void Tools::Text(const wchar_t* text, long flag, int x, int y, int dx, int dy, int border,
                 unsigned int color) {
    Trace trace("Tools::Text", *this);
    if (!text || !*text) return trace.out("no text");
    if (text_hidden(*this, x, y, dx, dy, border)) return trace.out("clip");
    const Fonts fonts = ask_fonts(*this); // before the bracket: the cache measures in a context of its own
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
