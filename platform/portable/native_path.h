#ifndef PLATFORM_PORTABLE_NATIVE_PATH_H
#define PLATFORM_PORTABLE_NATIVE_PATH_H

#include <string>

// Between the system's paths, which are bytes, and those with drive letters and "\". Every native name has a
// wide form of its own and comes back from it whole: a byte that is no UTF-8 stands as U+DC00 plus its value,
// a "\" in a name as U+F05C.
namespace platform {

inline bool is_separator(wchar_t c) { return c == L'\\' || c == L'/'; }

// Adds the wide form of one name.
void append_name(std::wstring& wide, const char* native);

// Takes either separator. False, with errno set, for a share, a letter without a drive, and text that stands
// for no bytes.
bool to_native(const wchar_t* path, std::string& native);
std::wstring from_native(const char* native);

} // namespace platform

#endif
