#ifndef FENN_SYSTEM_H
#define FENN_SYSTEM_H

#include <cstdio>

// What each system does in its own way, apart from windows and text.
namespace fenn {

// The native path of the program, UTF-8; null when the system does not tell.
const char* program_file();
// The current folder in the library's form, without a separator at its end; false when it does not fit.
bool current_folder(wchar_t* folder, int size);
wchar_t to_lower(wchar_t unit);
// Opens a file whose path is in the library's form.
std::FILE* open_file(const wchar_t* path, const char* mode);

} // namespace fenn

#endif
