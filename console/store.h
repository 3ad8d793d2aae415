#ifndef CONSOLE_STORE_H
#define CONSOLE_STORE_H

#include <cstddef>

#include <brask/texts.h>

namespace brask {

// The stores of a console: flat arrays of strings, the newest first.
inline constexpr int LOG_ROOM = 8192;
inline constexpr int HISTORY_ROOM = 50;

// Characters of the buffers that text passes through, with its terminator.
inline constexpr int LINE_ROOM = 1024;
// The front half of the line under edit; what empties that often stops there.
inline constexpr int EDIT_FRONT = 512;

// Lines in the log: holes, left where memory failed, do not count.
int line_count(const Texts& console);
// Characters in the line under edit, whatever a host wrote into it.
int edit_length(const Texts& console);

// A copy of so many characters from malloc; null when memory fails.
wchar_t* copy_line(const wchar_t* text, std::size_t length);

// Frees a store and its strings; null, for `Lines = free_store(Lines, LOG_ROOM)`.
wchar_t** free_store(wchar_t** store, int room);

} // namespace brask

#endif
