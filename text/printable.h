#ifndef TEXT_PRINTABLE_H
#define TEXT_PRINTABLE_H

// Which characters can be shown: the same answers on every system and in every locale.
namespace text {

// Not for controls, format characters, separators of lines and what is not assigned. Either half of a
// surrogate pair counts, so that a character beyond 16 bits can come in two units.
bool printable(char32_t code);
// The characters from blank to tilde.
inline bool printable_ascii(unsigned char c) { return c >= 0x20 && c <= 0x7E; }

// Both ends are part of it.
struct Range {
    char32_t first, last;
};
// In rising order.
extern const Range PRINTABLE_RANGES[];
extern const int PRINTABLE_COUNT;

} // namespace text

#endif
