#include "foundation/marks.h"
#include "foundation/palette.h"

#include <brask/fonts.h>

namespace brask {

namespace {

constexpr Mark MARKS[] = {
    {1, 0xFF0000, Face::current},   // blue
    {2, WORD_BLACK, Face::current}, //
    {3, WORD_WHITE, Face::current}, //
    {4, 0xFF, Face::current},       // red
    {5, 0xFFFF, Face::current},     // yellow
    {6, 0xA000, Face::current},     // green
    {240, 0, Face::regular},        //
    {241, 0, Face::bold},           //
    {242, 0, Face::oblique},        //
};

} // namespace

const Mark* find_mark(int byte) {
    for (const Mark& mark : MARKS)
        if (mark.byte == byte) return &mark;
    return nullptr;
}

HFONT Mark_Fonts::of(Face face) const {
    switch (face) {
    case Face::regular: return regular;
    case Face::bold: return bold;
    case Face::oblique: return oblique;
    default: return current;
    }
}

Mark_Fonts mark_fonts(const Tools& control) {
    const auto ask = [&](const char* weight, const char* slant) {
        return Zeb_Create_Font(control.Wnd, control.Font_Name, weight, slant, control.Font_Size);
    };
    Mark_Fonts fonts;
    fonts.regular = fonts.current = ask("medium", "r");
    fonts.bold = ask("bold", "r");
    fonts.oblique = ask("medium", "o");
    return fonts;
}

bool Runs::next() {
    length = 0;
    mark = nullptr;
    if (rest_is_plain()) return length;
    while (*at && !mark && !full()) {
        const wchar_t c = *at++;
        mark = is_plain(c) ? nullptr : find_mark(static_cast<int>(c) & 255);
        if (mark && mark->color && skip_colors)
            mark = nullptr;
        else if (!mark)
            piece[length++] = c;
    }
    piece[length] = 0;
    text = piece;
    return length || mark;
}

// Most text has no marks, and is handed on as it stands.
bool Runs::rest_is_plain() {
    const wchar_t* end = at;
    while (is_plain(*end) && end - at < ROOM - 2)
        ++end;
    if (*end) return false;
    text = at;
    length = static_cast<int>(end - at);
    at = end;
    return true;
}

// The last place is kept for the second half of a surrogate pair, which is not to be parted.
bool Runs::full() const {
    const bool second_half = *at >= 0xDC00 && *at <= 0xDFFF;
    return length >= ROOM - 1 - !second_half;
}

} // namespace brask
