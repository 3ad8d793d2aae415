#include "fenn/pictures.h"

#include <cerrno>
#include <cstdlib>

#include "fenn/system.h"
#include "text/guarded.h"

namespace fenn {
namespace {

constexpr unsigned longest_side = 32767; // the record has 16 bits with a sign
constexpr std::size_t most_pixels = std::size_t{1} << 26;
constexpr std::size_t longest_file = 9 * most_pixels; // four channels that a poor packing has doubled

// A whole file in one block.
class FileBytes {
  public:
    ~FileBytes() { std::free(data_); }
    FileBytes() = default;
    FileBytes(const FileBytes&) = delete;
    FileBytes& operator=(const FileBytes&) = delete;

    // False, with errno set.
    bool read(const wchar_t* path) {
        std::FILE* const file = open_file(path, "rb");
        if (!file) return false;
        const int failure = read_all(file);
        std::fclose(file);
        if (failure) errno = failure;
        return failure == 0;
    }
    PictureBytes bytes() const { return {data_, size_}; }

  private:
    int read_all(std::FILE* file) {
        while (!std::feof(file)) {
            if (size_ > longest_file) return EINVAL;
            if (!grow()) return ENOMEM;
            errno = 0;
            size_ += std::fread(data_ + size_, 1, room_ - size_, file);
            if (std::ferror(file)) return errno ? errno : EIO;
        }
        return 0;
    }
    bool grow() {
        if (size_ < room_) return true;
        const std::size_t room = room_ ? 2 * room_ : 64 * 1024;
        void* const block = std::realloc(data_, room);
        if (!block) return false;
        data_ = static_cast<unsigned char*>(block);
        room_ = room;
        return true;
    }

    unsigned char* data_ = nullptr;
    std::size_t size_ = 0, room_ = 0;
};

int read_picture(const wchar_t* file, IGB_data* image, bool (*decode)(PictureBytes, IGB_data&)) {
    if (!image) {
        errno = EINVAL;
        return 0;
    }
    *image = {};
    return text::guarded(0, [=]() -> int {
        FileBytes content;
        return content.read(file) && decode(content.bytes(), *image);
    });
}

} // namespace

bool is_picture_size(unsigned width, unsigned height) {
    return width > 0 && width <= longest_side && height > 0 && height <= longest_side &&
           std::size_t{width} * height <= most_pixels;
}

} // namespace fenn

FENN_API int IGB_Read_Image(const wchar_t* file, IGB_data* image, void*) {
    return fenn::read_picture(file, image, fenn::decode_rgb);
}

FENN_API int TGA_Read_Image(const wchar_t* file, IGB_data* image, void*) {
    return fenn::read_picture(file, image, fenn::decode_tga);
}

FENN_API void IGB_Free(IGB_data* image) {
    if (!image) return;
    std::free(image->Data);
    *image = {};
}
