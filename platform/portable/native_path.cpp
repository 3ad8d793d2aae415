#include "native_path.h"

#include <cerrno>

#include "drive_table.h"
#include "text/unicode.h"

namespace platform {

constexpr char32_t kEscape = 0xDC00;    // plus a byte from 0x80 on
constexpr char32_t kBackslash = 0xF05C; // in a name

static bool is_letter(wchar_t c) { return (c >= L'A' && c <= L'Z') || (c >= L'a' && c <= L'z'); }
static bool has_drive(const wchar_t* path) { return is_letter(path[0]) && path[1] == L':'; }

static bool is_share(const wchar_t* path) {
    return is_separator(path[0]) && is_separator(path[1]) && path[2] && !is_separator(path[2]);
}

static void append_bytes(std::wstring& wide, const char* from, const char* end) {
    for (; from < end; from++)
        wide += static_cast<wchar_t>(kEscape + static_cast<unsigned char>(*from));
}

void append_name(std::wstring& wide, const char* native) {
    while (*native) {
        const char* const start = native;
        const char32_t code = text::next(native);
        const bool byte = code >= 0x80 && native == start + 1;
        if (byte || code == kBackslash) // the character itself would come back as a backslash
            append_bytes(wide, start, native);
        else
            wide += static_cast<wchar_t>(code == '\\' ? kBackslash : code);
    }
}

// One character of a path; false when no bytes stand for it.
static bool append_native(std::string& native, const wchar_t*& at) {
    const auto unit = static_cast<char32_t>(*at);
    if (unit >= kEscape + 0x80 && unit <= kEscape + 0xFF) {
        native += static_cast<char>(unit - kEscape);
        at++;
        return true;
    }
    if (is_separator(*at) || unit == kBackslash) {
        native += unit == kBackslash ? '\\' : '/';
        at++;
        return true;
    }
    const char32_t code = text::next(at);
    if (code == 0xFFFD && unit != code) return false;
    char bytes[4];
    native.append(bytes, static_cast<std::size_t>(text::put(code, bytes)));
    return true;
}

static bool fail(int reason) {
    errno = reason;
    return false;
}

bool to_native(const wchar_t* path, std::string& native) {
    native.clear();
    if (!path) return fail(EINVAL);
    if (is_share(path)) return fail(ENOENT);
    if (has_drive(path)) {
        if (!drive_point(path[0], native)) return fail(ENOENT);
        path += 2;
        if (!is_separator(*path)) native += '/';
    }
    while (*path)
        if (!append_native(native, path)) return fail(EILSEQ);
    return true;
}

// Part by part, since a "\" is a separator only in the wide form.
static void append_path(std::wstring& wide, const std::string& native) {
    std::size_t at = 0;
    while (true) {
        const std::size_t end = native.find('/', at);
        append_name(wide, native.substr(at, end - at).c_str());
        if (end == std::string::npos) return;
        wide += L'\\';
        at = end + 1;
    }
}

std::wstring from_native(const char* native) {
    std::wstring wide;
    std::string rest = native ? native : "";
    if (!rest.empty() && rest[0] == '/') {
        std::size_t length = 0;
        wide = {drive_holding(rest, length), L':'};
        rest.erase(0, length);
        if (rest.empty()) rest = "/";
    }
    append_path(wide, rest);
    // A name in front that looks like a drive.
    if (native && native[0] != '/' && has_drive(wide.c_str())) wide.insert(0, L".\\");
    return wide;
}

} // namespace platform
