#include <cstdlib>
#include <cwchar>

#include <brask/fenn.h>

#include "fenn/system.h"
#include "text/unicode.h"

namespace fenn {
namespace {

// Storage for the last converted string of a thread. It grows and stays; a use after the thread's end, by the
// destructor of a static object, begins anew.
template <typename Unit>
struct Buffer {
    Unit* data;
    std::size_t size;

    ~Buffer() {
        std::free(data);
        data = nullptr;
        size = 0;
    }
    // False when memory fails.
    bool reserve(std::size_t units) {
        if (units <= size) return true;
        const std::size_t grown = units < 2 * size ? 2 * size : units;
        void* const block = std::realloc(data, grown * sizeof(Unit));
        if (!block) return false;
        data = static_cast<Unit*>(block);
        size = grown;
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
        used += static_cast<std::size_t>(text::put(code, buffer.data + used));
    } while (true);
    buffer.data[used] = 0;
    return buffer.data;
}

} // namespace
} // namespace fenn

FENN_API wchar_t* Char_2_Wchar(const char* text) { return fenn::convert(fenn::wide_buffer, text); }

FENN_API char* Wchar_2_Char(const wchar_t* text) { return fenn::convert(fenn::narrow_buffer, text); }

FENN_API wchar_t* Str_To_Lower(wchar_t* text) {
    if (text) fenn::fold(text, std::wcslen(text));
    return text;
}
