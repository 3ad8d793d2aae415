#include "text/unicode.h"

#include <cstdint>

namespace text {
namespace {

constexpr char32_t replacement = 0xFFFD;
constexpr char32_t last_code = 0x10FFFF;

bool is_high(char32_t unit) { return unit >= 0xD800 && unit < 0xDC00; }
bool is_low(char32_t unit) { return unit >= 0xDC00 && unit < 0xE000; }
bool is_code(char32_t code) { return code <= last_code && !is_high(code) && !is_low(code); }

char32_t unit_at(const wchar_t* at) {
    if constexpr (sizeof(wchar_t) == 2) return static_cast<std::uint16_t>(*at);
    return static_cast<char32_t>(*at);
}

// Length of the sequence that a lead byte announces, 0 for a byte that cannot lead.
int sequence_length(unsigned char lead) {
    if (lead >= 0xC2 && lead < 0xE0) return 2;
    if (lead >= 0xE0 && lead < 0xF0) return 3;
    if (lead >= 0xF0 && lead < 0xF5) return 4;
    return 0;
}

} // namespace

char32_t next(const wchar_t*& at) {
    const char32_t unit = unit_at(at);
    if (unit == 0) return 0;
    ++at;
    if (is_high(unit) && is_low(unit_at(at))) {
        const char32_t low = unit_at(at++);
        return 0x10000 + ((unit - 0xD800) << 10) + (low - 0xDC00);
    }
    return is_code(unit) ? unit : replacement;
}

char32_t next(const char*& at) {
    const auto lead = static_cast<unsigned char>(*at);
    if (lead == 0) return 0;
    const int length = sequence_length(lead);
    char32_t code = lead & (0x7F >> length);
    for (int i = 1; i < length; ++i) {
        const auto byte = static_cast<unsigned char>(at[i]);
        // The terminator is no continuation byte, so nothing behind it is read.
        if ((byte & 0xC0) != 0x80) {
            ++at;
            return lead;
        }
        code = code << 6 | (byte & 0x3F);
    }
    constexpr char32_t shortest[5] = {0, 0, 0x80, 0x800, 0x10000};
    if (length == 0 || code < shortest[length] || !is_code(code)) {
        ++at;
        return lead;
    }
    at += length;
    return code;
}

int put(char32_t code, wchar_t* out) {
    if (!is_code(code)) code = replacement;
    if (sizeof(wchar_t) > 2 || code < 0x10000) {
        out[0] = static_cast<wchar_t>(code);
        return 1;
    }
    out[0] = static_cast<wchar_t>(0xD800 + ((code - 0x10000) >> 10));
    out[1] = static_cast<wchar_t>(0xDC00 + (code & 0x3FF));
    return 2;
}

int put(char32_t code, char* out) {
    if (!is_code(code)) code = replacement;
    if (code < 0x80) {
        out[0] = static_cast<char>(code);
        return 1;
    }
    const int length = code < 0x800 ? 2 : code < 0x10000 ? 3 : 4;
    for (int i = length - 1; i > 0; --i) {
        out[i] = static_cast<char>(0x80 | (code & 0x3F));
        code >>= 6;
    }
    out[0] = static_cast<char>((0xF00 >> length & 0xFF) | code);
    return length;
}

std::wstring to_wide(const char* narrow) {
    std::wstring wide;
    wchar_t units[2];
    while (const char32_t code = next(narrow))
        wide.append(units, put(code, units));
    return wide;
}

std::string to_utf8(const wchar_t* wide) {
    std::string narrow;
    char units[4];
    while (const char32_t code = next(wide))
        narrow.append(units, put(code, units));
    return narrow;
}

} // namespace text
