#ifndef FENN_TEXT_CODES_H
#define FENN_TEXT_CODES_H

// What the text code must know of single code points.
namespace fenn {

// Takes no room and shows nothing by its nature: joiners, direction marks, variation selectors.
bool is_invisible(char32_t code);
// Control characters that show as a blank: tabulator and line ends.
constexpr bool is_blank_control(char32_t code) { return code >= 9 && code <= 13; }
// Other control characters: shown by their code, as fonts have no picture of them.
constexpr bool is_control(char32_t code) { return code < 0x20 || (code >= 0x7F && code < 0xA0); }
// One glyph each, left to right, whatever stands beside it.
bool is_simple(char32_t code);
// Sits on the character before it.
bool is_combining(char32_t code);

} // namespace fenn

#endif
