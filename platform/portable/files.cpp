#include "files.h"

#include <cerrno>
#include <string>
#include <sys/stat.h>

#include "text/unicode.h"

namespace {

bool is_separator(wchar_t c) { return c == L'\\' || c == L'/'; }

// The root is drive C; there are no shares.
bool to_native(const wchar_t* path, std::string& native) {
    if (is_separator(path[0]) && is_separator(path[1])) return false;
    if (path[0] && path[1] == L':') {
        if (path[0] != L'C' && path[0] != L'c') return false;
        path += 2;
        native = is_separator(*path) ? "" : "/";
    }
    for (char c : text::to_utf8(path))
        native += c == '\\' ? '/' : c;
    return true;
}

} // namespace

extern "C" std::FILE* _wfopen(const wchar_t* path, const wchar_t* mode) {
    std::string native;
    if (!path || !mode || !to_native(path, native)) {
        errno = path && mode ? ENOENT : EINVAL;
        return nullptr;
    }
    std::FILE* const file = std::fopen(native.c_str(), text::to_utf8(mode).c_str());
    struct stat entry;
    if (!file || fstat(fileno(file), &entry) || !S_ISDIR(entry.st_mode)) return file;
    std::fclose(file);
    errno = EACCES;
    return nullptr;
}
