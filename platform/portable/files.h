#ifndef PLATFORM_PORTABLE_FILES_H
#define PLATFORM_PORTABLE_FILES_H

#include <cstdio>

#include "types.h"

extern "C" {
// Opens a file by its path in the library's form: drive letters, either separator. Null, and errno, when that
// fails, for a folder too.
PLATFORM_API std::FILE* _wfopen(const wchar_t* path, const wchar_t* mode);
}

#endif
