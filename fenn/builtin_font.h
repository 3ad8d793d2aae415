#ifndef FENN_BUILTIN_FONT_H
#define FENN_BUILTIN_FONT_H

#include <cstdint>

#include <brask/platform.h>

#include "fenn/text_run.h"

// The small bitmap font that the layer brings along: the same pixels on every system. It serves golden
// pictures, systems without any font, and the box with a code in it for a character that no font has.
namespace fenn {

// The built-in font that stands for a described one: enlarged by whole factors, bold and oblique.
Font& builtin_font(const LOGFONTW& description);

// A box with the code's hexadecimal digits, for a font of that size.
void draw_hex_box(char32_t code, int em, int ascent, Glyph& out);

namespace builtin {

constexpr int LINE = 16;     // rows of a line before it is enlarged
constexpr int BASELINE = 13; // rows above the baseline

// Bit n of a row is the pixel in column n.
struct Letter {
    int width = 0; // how far the pen moves on
    std::uint32_t rows[LINE] = {};
};

// Letters drawn side by side. `art` has one line of text a row of pixels, '#' ink and '.' paper, with a blank
// between the letters; its first line is row `top`. A letter is as wide as its drawing.
struct Sheet {
    int top;
    const char32_t* codes;
    const char* art;
};

// A letter made of a base and an accent, which both stand in the sheets.
struct Composed {
    char32_t code, base, accent;
};

template <class Row>
struct Table {
    const Row* rows;
    int count;
};

extern const Table<Sheet> latin_sheets;
extern const Table<Sheet> symbol_sheets;
extern const Table<Sheet> world_sheets;
extern const char32_t alike_pairs[]; // a letter, then the one that it looks like; ends with 0
extern const Table<Composed> composed_letters;

// The letter for a code, null when the font has none.
const Letter* find_letter(char32_t code);
bool is_accent(char32_t code);
// The base with an accent above or below it.
Letter compose(const Letter& base, const Letter& accent);

} // namespace builtin
} // namespace fenn

#endif
