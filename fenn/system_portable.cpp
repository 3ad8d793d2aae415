#include <climits>
#include <cstring>
#include <cwctype>
#include <locale.h>
#include <string>
#include <unistd.h>
#include <wctype.h>

#include <brask/fenn_host.h>

#include "fenn/system.h"
#include "text/unicode.h"

namespace fenn {
namespace {

// Where a drive is mounted, without a separator at its end; null for a letter without a drive.
const char* mount_point(wchar_t letter) { return letter == L'C' || letter == L'c' ? "" : nullptr; }

bool is_letter(wchar_t c) { return (c >= L'A' && c <= L'Z') || (c >= L'a' && c <= L'z'); }

bool copy_out(const std::string& from, char* to, int size) {
    if (!to || from.size() >= static_cast<std::size_t>(size < 0 ? 0 : size)) return false;
    std::memcpy(to, from.c_str(), from.size() + 1);
    return true;
}

bool copy_out(const std::wstring& from, wchar_t* to, int size) {
    if (!to || from.size() >= static_cast<std::size_t>(size < 0 ? 0 : size)) return false;
    std::wmemcpy(to, from.c_str(), from.size() + 1);
    return true;
}

bool to_native(const wchar_t* path, std::string& native) {
    const bool share = (path[0] == L'\\' || path[0] == L'/') && path[1] == path[0];
    if (share) return false;
    if (is_letter(path[0]) && path[1] == L':') {
        const char* const mount = mount_point(path[0]);
        if (!mount) return false;
        native = mount;
        path += 2;
        if (*path != L'\\' && *path != L'/') native += '/';
    }
    for (char c : text::to_utf8(path))
        native += c == '\\' ? '/' : c;
    return true;
}

} // namespace

const char* program_file() {
    static char file[PATH_MAX];
    const ssize_t size = readlink("/proc/self/exe", file, sizeof file - 1);
    if (size < 1) return nullptr;
    file[size] = 0;
    return file;
}

bool current_folder(wchar_t* folder, int size) {
    char native[PATH_MAX];
    if (!getcwd(native, sizeof native) || !Fenn_Path_From_Native(native, folder, size)) return false;
    std::size_t length = std::wcslen(folder);
    if (length > 0 && folder[length - 1] == L'\\') folder[length - 1] = 0;
    return true;
}

wchar_t to_lower(wchar_t unit) {
    // The locale of the process must not matter, and may know no letter beyond ASCII.
    static const locale_t unicode = newlocale(LC_CTYPE_MASK, "C.UTF-8", nullptr);
    if (unicode) return static_cast<wchar_t>(towlower_l(static_cast<wint_t>(unit), unicode));
    return unit >= L'A' && unit <= L'Z' ? unit - L'A' + L'a' : unit;
}

std::FILE* open_file(const wchar_t* path, const char* mode) {
    std::string native;
    return path && to_native(path, native) ? std::fopen(native.c_str(), mode) : nullptr;
}

} // namespace fenn

FENN_API int Fenn_Path_To_Native(const wchar_t* path, char* native, int size) {
    std::string result;
    return path && fenn::to_native(path, result) && fenn::copy_out(result, native, size);
}

FENN_API int Fenn_Path_From_Native(const char* native, wchar_t* path, int size) {
    // A "\" inside a native name would turn into a separator.
    if (!native || std::strchr(native, '\\')) return 0;
    std::wstring result = native[0] == '/' ? L"C:" : L"";
    for (wchar_t c : text::to_wide(native))
        result += c == L'/' ? L'\\' : c;
    return fenn::copy_out(result, path, size);
}
