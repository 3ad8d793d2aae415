#include <cerrno>
#include <climits>
#include <cstddef>
#include <utility>

#include "fenn/pictures.h"

#define STB_IMAGE_IMPLEMENTATION
#define STB_IMAGE_STATIC
#define STBI_ONLY_TGA
#define STBI_NO_STDIO
#define STBI_NO_FAILURE_STRINGS
#pragma GCC diagnostic push
#pragma GCC diagnostic ignored "-Wunused-function"
#pragma GCC diagnostic ignored "-Wmissing-field-initializers"
#pragma GCC diagnostic ignored "-Wunused-but-set-variable"
#pragma GCC diagnostic ignored "-Wsign-compare"
#include <stb_image.h>
#pragma GCC diagnostic pop

// The reader of this format takes missing bytes for zeros, so whether they are all there is found out before.

namespace fenn {
namespace {

constexpr std::size_t header_size = 18;

enum Kind { indexed = 1, colored = 2, grey = 3 };

struct Header {
    Kind kind;
    bool packed;
    unsigned width, height;
    std::size_t pixel_size; // bytes of one stored pixel
    std::size_t start;      // of the pixels
};

unsigned read16(const unsigned char* at) { return static_cast<unsigned>(at[0] | at[1] << 8); }

bool is_depth(Kind kind, unsigned bits) {
    switch (kind) {
    case indexed: return bits == 8 || bits == 16;
    case colored: return bits == 15 || bits == 16 || bits == 24 || bits == 32;
    case grey: return bits == 8 || bits == 16;
    }
    return false;
}

// The bytes of the colour table. False for one that is not served: it must be there just when it is needed,
// and begin at its first colour.
bool table_size(const unsigned char* header, Kind kind, std::size_t& size) {
    const unsigned present = header[1], first = read16(header + 3), count = read16(header + 5),
                   bits = header[7];
    size = 0;
    if (kind != indexed) return present == 0;
    if (present != 1 || first != 0 || count == 0 || !is_depth(colored, bits)) return false;
    size = std::size_t{count} * ((bits + 7) / 8);
    return true;
}

bool read_header(PictureBytes file, Header& header) {
    if (file.size < header_size) return false;
    const unsigned type = file.data[2], bits = file.data[16];
    const unsigned kind = type & 7;
    if ((type & ~8u) != kind || kind < indexed || kind > grey) return false;
    header.kind = static_cast<Kind>(kind);
    header.packed = (type & 8) != 0;
    header.width = read16(file.data + 12);
    header.height = read16(file.data + 14);
    header.pixel_size = (bits + 7) / 8;
    std::size_t table = 0;
    if (!is_depth(header.kind, bits) || !table_size(file.data, header.kind, table)) return false;
    header.start = header_size + file.data[0] + table;
    return is_picture_size(header.width, header.height) && header.start <= file.size;
}

// A byte stands before each run: its low 7 bits, plus 1, count the pixels; with the high bit set one pixel
// follows that is repeated.
bool has_packed_pixels(PictureBytes file, const Header& header) {
    std::size_t at = header.start;
    std::size_t left = std::size_t{header.width} * header.height;
    while (left > 0) {
        if (at >= file.size) return false;
        const std::size_t count = (file.data[at] & 0x7Fu) + 1;
        const std::size_t stored = (file.data[at] & 0x80) != 0 ? 1 : count < left ? count : left;
        ++at;
        if (stored * header.pixel_size > file.size - at) return false;
        at += stored * header.pixel_size;
        left -= count < left ? count : left;
    }
    return true;
}

bool has_pixels(PictureBytes file, const Header& header) {
    if (header.packed) return has_packed_pixels(file, header);
    return std::size_t{header.width} * header.height * header.pixel_size <= file.size - header.start;
}

} // namespace

bool decode_tga(PictureBytes file, IGB_data& image) {
    Header header;
    errno = EINVAL;
    if (!read_header(file, header) || !has_pixels(file, header) || file.size > INT_MAX) return false;
    const int channels = header.kind == grey && header.pixel_size == 1 ? 1 : 4;
    int width = 0, height = 0, found = 0;
    errno = ENOMEM; // nothing else is left to fail
    unsigned char* const pixels =
        stbi_load_from_memory(file.data, static_cast<int>(file.size), &width, &height, &found, channels);
    if (!pixels) return false;
    const std::size_t size = std::size_t{header.width} * header.height * static_cast<std::size_t>(channels);
    for (std::size_t i = 0; channels == 4 && i < size; i += 4)
        std::swap(pixels[i], pixels[i + 2]);
    image = {pixels, static_cast<short>(width), static_cast<short>(height), static_cast<short>(channels)};
    return true;
}

} // namespace fenn
