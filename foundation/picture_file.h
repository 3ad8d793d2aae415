#ifndef FOUNDATION_PICTURE_FILE_H
#define FOUNDATION_PICTURE_FILE_H

#include <cstddef>
#include <cstdlib>
#include <cwchar>
#include <initializer_list>
#include <memory>

#include <brask/fenn.h>

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

// What the drawing layer reads from a file; given back at the end.
class Picture_File {
  public:
    using Reader = decltype(IGB_Read_Image);

    Picture_File(Reader& reader, const Picture_Path& path) : found(reader(path.text, &image, nullptr) != 0) {}
    Picture_File(const Picture_File&) = delete;
    Picture_File& operator=(const Picture_File&) = delete;
    ~Picture_File() {
        if (found) IGB_Free(&image);
    }

    bool there() const { return found; }
    const IGB_data& data() const { return image; }
    bool without_pixels() const { return !image.Data && image.Dim_X > 0 && image.Dim_Y > 0; }

  private:
    IGB_data image = {};
    bool found;
};

// A block from malloc.
struct Freed {
    void operator()(void* block) const { std::free(block); }
};
template <typename Unit>
using Block = std::unique_ptr<Unit[], Freed>;

} // namespace brask

#endif
