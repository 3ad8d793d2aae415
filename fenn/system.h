#ifndef FENN_SYSTEM_H
#define FENN_SYSTEM_H

#include <cstddef>
#include <cstdio>
#include <string>

// What each system does in its own way, apart from windows and text.
namespace fenn {

// The native path of the program, UTF-8; null when the system does not tell.
const char* program_file();
// The current folder in the library's form, without a separator at its end; empty when the system does not
// tell.
std::wstring current_folder();
// What a single separator in front of a path stands for, in the same form.
std::wstring current_root();
// The one fold of letters, free of the locale.
void fold(wchar_t* text, std::size_t size);
// Opens a file whose path is in the library's form; null, with errno set, when it cannot.
std::FILE* open_file(const wchar_t* path, const char* mode);

} // namespace fenn

#endif
