#ifndef TEXT_FORMAT_H
#define TEXT_FORMAT_H

#include <cstdarg>
#include <cstddef>

// Bounded printf-style formatting that gives the same text on every system and in every locale.
//
// %ls is wide and %hs narrow (UTF-8) in each form; %s and %c take the width of the format. A null text prints
// "(null)". %n prints and writes nothing; an unknown conversion prints nothing.
//
// `out` receives at most size - 1 characters and a terminator; a character is never cut in two (surrogate
// pair, UTF-8 sequence). The result is the length that the whole text would have.
namespace text {

int format(wchar_t* out, std::size_t size, const wchar_t* format, std::va_list args);
int format(wchar_t* out, std::size_t size, const char* format, std::va_list args); // UTF-8 format
int format(char* out, std::size_t size, const char* format, std::va_list args);    // UTF-8 result

// The format on its own, without arguments: %% prints one percent sign, any other conversion nothing.
int format_bare(wchar_t* out, std::size_t size, const wchar_t* format);

// The format with one number: the first floating conversion prints it, any other conversion nothing, and a *
// counts as 0. So a format from outside may hold anything.
int format_number(wchar_t* out, std::size_t size, const wchar_t* format, double value);

} // namespace text

#endif
