#ifndef TEXT_WRITER_H
#define TEXT_WRITER_H

#include <cstddef>
#include <cstdint>

#include "text/unicode.h"

namespace text {

// The bounded output. Once a character did not fit, nothing more is written, only counted.
template <typename Unit>
struct Writer {
    Unit* out;
    std::size_t room;
    std::int64_t total;

    void units(const Unit* from, std::size_t count) {
        total += static_cast<std::int64_t>(count);
        const std::size_t fits = count < room ? count : room;
        for (std::size_t i = 0; i < fits; ++i)
            out[i] = from[i];
        out += fits;
        room = fits < count ? 0 : room - fits;
    }
    void ascii(const char* from, int count) {
        for (int i = 0; i < count; ++i)
            unit(static_cast<Unit>(from[i]));
    }
    void unit(Unit c) {
        ++total;
        if (room == 0) return;
        *out++ = c;
        --room;
    }
    void code(char32_t code) {
        Unit form[4];
        const int count = put(code, form);
        if (static_cast<std::size_t>(count) > room) room = 0;
        total += count;
        if (room == 0) return;
        for (int i = 0; i < count; ++i)
            *out++ = form[i];
        room -= static_cast<std::size_t>(count);
    }
    void fill(char c, std::int64_t count) {
        if (count <= 0) return;
        total += count;
        for (; count > 0 && room > 0; --count, --room)
            *out++ = static_cast<Unit>(c);
    }
};

} // namespace text

#endif
