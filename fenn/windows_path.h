#ifndef FENN_WINDOWS_PATH_H
#define FENN_WINDOWS_PATH_H

#include <string>

#include <brask/platform.h>

namespace fenn {

// A path as the system takes it at any length.
std::wstring system_path(const wchar_t* path);
// errno for an error of the system.
int error_number(DWORD error);

} // namespace fenn

#endif
