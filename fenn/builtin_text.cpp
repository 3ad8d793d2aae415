#include <algorithm>
#include <cstdlib>
#include <map>

#include "fenn/builtin_font.h"
#include "fenn/text_codes.h"
#include "text/unicode.h"

// Text in the built-in font, and the box for what has no glyph.
namespace fenn {
namespace {

using builtin::BASELINE;
using builtin::Letter;
using builtin::LINE;

constexpr int BOLD = 1;
constexpr int OBLIQUE = 2;
constexpr int SCALE = 4; // the enlargement stands from this bit on
constexpr int MAX_SCALE = 64;

// A glyph's number: the letter, and from this bit on an accent for it.
constexpr int ACCENT_SHIFT = 24;

void smear(Letter& letter) {
    for (std::uint32_t& row : letter.rows)
        row |= row << 1;
    ++letter.width;
}

// Leans to the right by one column every four rows.
void shear(Letter& letter) {
    for (int row = 0; row < LINE; ++row)
        letter.rows[row] <<= (LINE - 1 - row) / 4;
}

Letter letter_of(std::uint64_t glyph) {
    const Letter* const base = builtin::find_letter(static_cast<char32_t>(glyph & 0x1FFFFF));
    const auto code = static_cast<char32_t>(glyph >> ACCENT_SHIFT);
    const Letter* const accent = code ? builtin::find_letter(code) : nullptr;
    if (!base) return {};
    return accent ? builtin::compose(*base, *accent) : *base;
}

void enlarge(const Letter& letter, int scale, Coverage& out) {
    int columns = 0;
    for (std::uint32_t row : letter.rows)
        while (columns < 32 && row >> columns)
            ++columns;
    out.width = columns * scale;
    out.height = columns ? LINE * scale : 0;
    out.bytes.assign(static_cast<std::size_t>(out.width) * out.height, 0);
    std::uint8_t* at = out.bytes.data();
    for (int y = 0; y < out.height; ++y)
        for (int x = 0; x < out.width; ++x)
            *at++ = letter.rows[y / scale] >> x / scale & 1 ? 255 : 0;
}

void draw(Font& font, std::uint64_t glyph, Glyph& out) {
    Letter letter = letter_of(glyph);
    if (font.style & OBLIQUE) shear(letter);
    if (font.style & BOLD) smear(letter);
    const int scale = font.style / SCALE;
    enlarge(letter, scale, out.shape);
    out.advance = letter.width * scale;
}

void layout(Font& font, const wchar_t* text, Run& run) {
    while (char32_t code = text::next(text)) {
        if (is_invisible(code)) continue;
        if (is_blank_control(code)) code = U' ';
        Placed* const last = run.glyphs.empty() ? nullptr : &run.glyphs.back();
        if (builtin::is_accent(code) && last && !(last->glyph >> ACCENT_SHIFT)) {
            const std::uint64_t base = last->glyph;
            run.width = last->x;
            run.glyphs.pop_back();
            append(font, base | std::uint64_t{code} << ACCENT_SHIFT, run);
        } else {
            append(font, builtin::find_letter(code) ? code : HEX_BOX | code, run);
        }
    }
}

constexpr FontKind builtin_kind{layout, draw};

// Height of the letters, or of the line, to the enlargement: whole factors of 16, never below 1.
int scale_of(LONG height) {
    const LONG size = height < -MAX_SCALE * LINE ? MAX_SCALE * LINE : std::abs(height);
    return std::clamp(static_cast<int>(size / LINE), 1, MAX_SCALE);
}

} // namespace

Font& builtin_font(const LOGFONTW& description) {
    static std::map<int, Font>& fonts = *new std::map<int, Font>;
    const int scale = scale_of(description.lfHeight);
    const int style = (description.lfWeight >= 600 ? BOLD : 0) + (description.lfItalic ? OBLIQUE : 0);
    Font& font = fonts[scale * SCALE + style];
    if (!font.kind)
        font = {&builtin_kind, next_font_id(),   LINE * scale,
                LINE * scale,  BASELINE * scale, scale * SCALE + style};
    return font;
}

} // namespace fenn
