#include <algorithm>
#include <cerrno>
#include <cstring>
#include <cwchar>
#include <string>

#include <brask/fenn_host.h>

#include "fenn/system.h"
#include "fenn/windows_path.h"
#include "text/guarded.h"
#include "text/unicode.h"

namespace fenn {
namespace {

// The whole form of a path; empty when the system refuses it.
std::wstring full_path(const wchar_t* path) {
    const DWORD size = GetFullPathNameW(path, 0, nullptr, nullptr);
    std::wstring full(size, 0);
    const DWORD length = size > 0 ? GetFullPathNameW(path, size, &full[0], nullptr) : 0;
    full.resize(length < size ? length : 0);
    return full;
}

struct ErrorPair {
    DWORD error;
    int number;
};
constexpr ErrorPair errors[] = {
    {ERROR_FILE_NOT_FOUND, ENOENT},
    {ERROR_PATH_NOT_FOUND, ENOENT},
    {ERROR_INVALID_DRIVE, ENOENT},
    {ERROR_INVALID_NAME, ENOENT},
    {ERROR_BAD_NETPATH, ENOENT},
    {ERROR_BAD_NET_NAME, ENOENT},
    {ERROR_ACCESS_DENIED, EACCES},
    {ERROR_SHARING_VIOLATION, EACCES},
    {ERROR_NOT_ENOUGH_MEMORY, ENOMEM},
    {ERROR_DIRECTORY, ENOTDIR},
    {ERROR_FILENAME_EXCED_RANGE, ENAMETOOLONG},
};

} // namespace

int error_number(DWORD error) {
    for (const ErrorPair& pair : errors)
        if (pair.error == error) return pair.number;
    return EIO;
}

std::wstring system_path(const wchar_t* path) {
    // A folder's own limit is 12 characters below that of a file.
    constexpr std::size_t short_enough = MAX_PATH - 13;
    if (std::wcslen(path) < short_enough) return path;
    const std::wstring full = full_path(path);
    if (full.size() > 2 && full[1] == L':') return L"\\\\?\\" + full;
    if (full.size() > 3 && full[0] == L'\\' && full[2] != L'?') return L"\\\\?\\UNC" + full.substr(1);
    return path;
}

const char* program_file() {
    static char file[4 * MAX_PATH];
    wchar_t path[MAX_PATH];
    const DWORD size = GetModuleFileNameW(nullptr, path, MAX_PATH);
    if (size == 0 || size == MAX_PATH) return nullptr;
    return Fenn_Path_To_Native(path, file, sizeof file) ? file : nullptr;
}

std::wstring current_folder() {
    std::wstring folder = full_path(L".");
    if (!folder.empty() && folder.back() == L'\\') folder.pop_back();
    return folder;
}

std::wstring current_root() {
    std::wstring root = full_path(L"\\");
    if (!root.empty() && root.back() == L'\\') root.pop_back();
    return root;
}

void fold(wchar_t* text, std::size_t size) { CharLowerBuffW(text, static_cast<DWORD>(size)); }

std::FILE* open_file(const wchar_t* path, const char* mode) {
    if (path) return _wfopen(system_path(path).c_str(), text::to_wide(mode).c_str());
    errno = EINVAL;
    return nullptr;
}

} // namespace fenn

FENN_API int Fenn_Path_To_Native(const wchar_t* path, char* native, int size) {
    if (!path || !native) return 0;
    return text::guarded(0, [=] {
        const std::string result = text::to_utf8(path);
        if (size < 1 || result.size() >= static_cast<std::size_t>(size)) return 0;
        std::memcpy(native, result.c_str(), result.size() + 1);
        return 1;
    });
}

FENN_API int Fenn_Path_From_Native(const char* native, wchar_t* path, int size) {
    if (!native || !path) return 0;
    return text::guarded(0, [=] {
        std::wstring result = text::to_wide(native);
        std::replace(result.begin(), result.end(), L'/', L'\\');
        if (size < 1 || result.size() >= static_cast<std::size_t>(size)) return 0;
        std::wmemcpy(path, result.c_str(), result.size() + 1);
        return 1;
    });
}
