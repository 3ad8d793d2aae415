#ifndef FOUNDATION_PICTURE_PATH_H
#define FOUNDATION_PICTURE_PATH_H

#include <cstddef>
#include <cwchar>
#include <initializer_list>

namespace brask {

inline constexpr std::size_t PATH_ROOM = 771;

// A picture file's path: the folder, which brings its separator along, and the name. One that is too long is
// cut, a null part is empty.
struct Picture_Path {
    wchar_t text[PATH_ROOM];

    Picture_Path(const wchar_t* folder, const wchar_t* name) {
        text[0] = 0;
        for (const wchar_t* part : {folder, name})
            if (part) std::wcsncat(text, part, PATH_ROOM - 1 - std::wcslen(text));
    }
};

// The kind of a file is told by its name, wherever in it the word stands. Case counts.
inline bool is_tga(const wchar_t* name) { return name && std::wcsstr(name, L".tga"); }

} // namespace brask

#endif
