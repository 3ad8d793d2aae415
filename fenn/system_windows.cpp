#include <cstring>
#include <cwchar>
#include <string>

#include <brask/fenn_host.h>

#include "fenn/system.h"
#include "text/unicode.h"

namespace fenn {

const char* program_file() {
    static char file[4 * MAX_PATH];
    wchar_t path[MAX_PATH];
    const DWORD size = GetModuleFileNameW(nullptr, path, MAX_PATH);
    if (size == 0 || size == MAX_PATH) return nullptr;
    return Fenn_Path_To_Native(path, file, sizeof file) ? file : nullptr;
}

bool current_folder(wchar_t* folder, int size) {
    const DWORD length = GetCurrentDirectoryW(static_cast<DWORD>(size), folder);
    if (length == 0 || length >= static_cast<DWORD>(size)) return false;
    if (folder[length - 1] == L'\\') folder[length - 1] = 0;
    return true;
}

wchar_t to_lower(wchar_t unit) {
    CharLowerBuffW(&unit, 1);
    return unit;
}

std::FILE* open_file(const wchar_t* path, const char* mode) {
    return path ? _wfopen(path, text::to_wide(mode).c_str()) : nullptr;
}

} // namespace fenn

FENN_API int Fenn_Path_To_Native(const wchar_t* path, char* native, int size) {
    if (!path || !native) return 0;
    const std::string result = text::to_utf8(path);
    if (size < 1 || result.size() >= static_cast<std::size_t>(size)) return 0;
    std::memcpy(native, result.c_str(), result.size() + 1);
    return 1;
}

FENN_API int Fenn_Path_From_Native(const char* native, wchar_t* path, int size) {
    if (!native || !path) return 0;
    const std::wstring result = text::to_wide(native);
    if (size < 1 || result.size() >= static_cast<std::size_t>(size)) return 0;
    std::wmemcpy(path, result.c_str(), result.size() + 1);
    return 1;
}
