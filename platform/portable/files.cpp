#include "files.h"

#include <cerrno>
#include <string>
#include <sys/stat.h>

#include "native_path.h"
#include "text/guarded.h"
#include "text/unicode.h"

static std::FILE* open_native(const wchar_t* path, const wchar_t* mode) {
    std::string native;
    if (!platform::to_native(path, native)) return nullptr;
    return std::fopen(native.c_str(), text::to_utf8(mode).c_str());
}

extern "C" std::FILE* _wfopen(const wchar_t* path, const wchar_t* mode) {
    if (!mode) errno = EINVAL;
    if (!mode) return nullptr;
    std::FILE* const file = text::guarded<std::FILE*>(nullptr, [=] { return open_native(path, mode); });
    struct stat entry;
    if (!file || fstat(fileno(file), &entry) || !S_ISDIR(entry.st_mode)) return file;
    std::fclose(file);
    errno = EACCES;
    return nullptr;
}
