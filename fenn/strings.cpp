#include <cstdlib>
#include <cstring>
#include <cwchar>

#include <brask/fenn.h>

#include "fenn/system.h"
#include "text/unicode.h"

namespace fenn {
namespace {

// Storage for the last converted string of a thread. A line of text needs no memory beyond it; for more it
// grows and stays. A use after the thread's end, by the destructor of a static object, begins anew.
template <typename Unit>
struct Buffer {
    // In units: 1,023 characters of any kind, and room to look ahead.
    static constexpr std::size_t line = sizeof(Unit) == 1 ? 4100 : 2050;
    Unit first[line];
    Unit* grown;
    std::size_t size; // of what has grown

    ~Buffer() {
        std::free(grown);
        grown = nullptr;
        size = 0;
    }
    Unit* data() { return grown ? grown : first; }
    // False when memory fails.
    bool reserve(std::size_t units) {
        if (units <= (grown ? size : line)) return true;
        const std::size_t room = units < 2 * size ? 2 * size : 2 * units;
        void* const block = std::realloc(grown, room * sizeof(Unit));
        if (!block) return false;
        if (!grown) std::memcpy(block, first, sizeof first);
        grown = static_cast<Unit*>(block);
        size = room;
        return true;
    }
};

thread_local Buffer<wchar_t> wide_buffer;
thread_local Buffer<char> narrow_buffer;

template <typename To, typename From>
To* convert(Buffer<To>& buffer, const From* text) {
    static To empty[1];
    empty[0] = 0;
    constexpr std::size_t longest_code = 4;
    std::size_t used = 0;
    do {
        if (!buffer.reserve(used + longest_code + 1)) return empty;
        const char32_t code = text ? text::next(text) : 0;
        if (code == 0) break;
        used += static_cast<std::size_t>(text::put(code, buffer.data() + used));
    } while (true);
    buffer.data()[used] = 0;
    return buffer.data();
}

} // namespace
} // namespace fenn

FENN_API wchar_t* Char_2_Wchar(const char* text) { return fenn::convert(fenn::wide_buffer, text); }

FENN_API char* Wchar_2_Char(const wchar_t* text) { return fenn::convert(fenn::narrow_buffer, text); }

FENN_API wchar_t* Str_To_Lower(wchar_t* text) {
    if (text) fenn::fold(text, std::wcslen(text));
    return text;
}
