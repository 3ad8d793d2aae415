#include "console/store.h"

#include <algorithm>
#include <cstdlib>
#include <cstring>

namespace brask {

namespace {

// Opens n places at the front; what falls off the far end is freed.
void shift(wchar_t** store, int room, int n) {
    for (int i = room - n; i < room; i++)
        std::free(store[i]);
    std::memmove(store + n, store, static_cast<std::size_t>(room - n) * sizeof *store);
    std::fill_n(store, n, nullptr);
}

} // namespace

int line_count(const Texts& console) {
    if (!console.Lines) return 0;
    return static_cast<int>(LOG_ROOM - std::count(console.Lines, console.Lines + LOG_ROOM, nullptr));
}

int edit_length(const Texts& console) {
    const wchar_t* const end = console.Edit_Line + LINE_ROOM - 1;
    return static_cast<int>(std::find(console.Edit_Line, end, L'\0') - console.Edit_Line);
}

wchar_t* copy_line(const wchar_t* text, std::size_t length) {
    wchar_t* copy = static_cast<wchar_t*>(std::malloc((length + 1) * sizeof *text));
    if (!copy) return nullptr;
    std::memcpy(copy, text, length * sizeof *text);
    copy[length] = 0;
    return copy;
}

wchar_t** free_store(wchar_t** store, int room) {
    for (int i = 0; store && i < room; i++)
        std::free(store[i]);
    std::free(store);
    return nullptr;
}

} // namespace brask

using namespace brask;

void Texts::Scroll_1(int n) {
    if (Flag & OUTIL_DISABLE) return;
    if (!Lines) { // both or none: painting measures what it shows
        if (!Line_Width) Line_Width = static_cast<int*>(std::calloc(LOG_ROOM, sizeof *Line_Width));
        if (Line_Width) Lines = static_cast<wchar_t**>(std::calloc(LOG_ROOM, sizeof *Lines));
        if (!Lines) return;
    }
    n = std::min(n, LOG_ROOM);
    if (n > 0) {
        shift(Lines, LOG_ROOM, n);
        std::memmove(Line_Width + n, Line_Width, static_cast<std::size_t>(LOG_ROOM - n) * sizeof *Line_Width);
        std::fill_n(Line_Width, n, 0);
    } else {
        std::free(Lines[0]);
        Lines[0] = nullptr;
        Line_Width[0] = 0;
    }
}

void Texts::Scroll_2(int n) {
    if (Flag & OUTIL_DISABLE) return;
    if (!History) History = static_cast<wchar_t**>(std::calloc(HISTORY_ROOM, sizeof *History));
    if (History && n > 0) shift(History, HISTORY_ROOM, std::min(n, HISTORY_ROOM));
}
