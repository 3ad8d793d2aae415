#ifndef CONSOLE_FORMATTED_H
#define CONSOLE_FORMATTED_H

#include <cstdarg>

#include "console/store.h"

namespace brask {

// A text made by a format; what does not fit is cut, of a narrow one after so many bytes.
struct Formatted {
    wchar_t text[LINE_ROOM];

    Formatted(const char* format, std::va_list args);
    Formatted(const wchar_t* format, std::va_list args);
};

} // namespace brask

#endif
