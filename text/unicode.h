#ifndef TEXT_UNICODE_H
#define TEXT_UNICODE_H

#include <cstddef>
#include <string>

// UTF-8, wide text and code points. A wide unit is 16 bits on one system and 32 on the other; surrogate pairs
// are joined on both. Bytes that are no UTF-8 become U+0080 to U+00FF, so that marks in narrow text live.
namespace text {

// Reads one code point and moves past it; 0 at the end. A lone surrogate gives U+FFFD.
char32_t next(const wchar_t*& at);
char32_t next(const char*& at);
// Writes one code point, returns the number of units (room for 2 wide or 4 narrow ones is needed).
int put(char32_t code, wchar_t* out);
int put(char32_t code, char* out);

std::wstring to_wide(const char* narrow);
std::string to_utf8(const wchar_t* wide);

} // namespace text

#endif
