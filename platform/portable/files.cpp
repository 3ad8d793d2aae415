#include "files.h"

#include <cerrno>
#include <string>
#include <sys/stat.h>

#include "native_path.h"
#include "text/unicode.h"

extern "C" std::FILE* _wfopen(const wchar_t* path, const wchar_t* mode) {
    if (!mode) errno = EINVAL;
    std::string native;
    if (!mode || !platform::to_native(path, native)) return nullptr;
    std::FILE* const file = std::fopen(native.c_str(), text::to_utf8(mode).c_str());
    struct stat entry;
    if (!file || fstat(fileno(file), &entry) || !S_ISDIR(entry.st_mode)) return file;
    std::fclose(file);
    errno = EACCES;
    return nullptr;
}
