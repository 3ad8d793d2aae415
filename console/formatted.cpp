#include "console/formatted.h"

#include <cwchar>

#include <brask/fenn.h>

#include "text/format.h"

namespace brask {

Formatted::Formatted(const char* format, std::va_list args) {
    char narrow[LINE_ROOM];
    text::format(narrow, LINE_ROOM, format, args);
    const wchar_t* wide = Char_2_Wchar(narrow);
    text[0] = 0;
    if (wide) std::wcsncat(text, wide, LINE_ROOM - 1);
}

Formatted::Formatted(const wchar_t* format, std::va_list args) {
    text::format(text, LINE_ROOM, format, args);
}

} // namespace brask
