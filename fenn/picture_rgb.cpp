#include <cerrno>
#include <cstdint>
#include <cstdlib>
#include <cstring>

#include "fenn/pictures.h"

// The .rgb format: a header of 512 bytes, numbers with the high byte first, then one plane for each channel,
// its lowest row first. Rows are stored as they are, or packed, each found through a table.

namespace fenn {
namespace {

constexpr std::size_t header_size = 512;

unsigned read16(const unsigned char* at) { return static_cast<unsigned>(at[0] << 8 | at[1]); }
std::uint32_t read32(const unsigned char* at) { return std::uint32_t{read16(at)} << 16 | read16(at + 2); }

struct Header {
    bool packed;
    unsigned width, height, channels;
};

bool read_header(PictureBytes file, Header& header) {
    constexpr unsigned magic = 474;
    if (file.size < header_size || read16(file.data) != magic) return false;
    const unsigned packing = file.data[2], bytes = file.data[3], dimensions = read16(file.data + 4);
    const std::uint32_t color_map = read32(file.data + 104);
    if (packing > 1 || bytes != 1 || dimensions < 1 || dimensions > 3 || color_map != 0) return false;
    header.packed = packing == 1;
    header.width = read16(file.data + 6);
    header.height = dimensions > 1 ? read16(file.data + 8) : 1;
    header.channels = dimensions > 2 ? read16(file.data + 10) : 1;
    return is_picture_size(header.width, header.height) && header.channels >= 1 && header.channels <= 4;
}

// The stored bytes of one row of one plane; empty when they lie outside of the file.
PictureBytes stored_row(PictureBytes file, const Header& header, std::size_t row) {
    if (!header.packed) return {file.data + header_size + row * header.width, header.width};
    const std::size_t rows = std::size_t{header.height} * header.channels;
    const unsigned char* const table = file.data + header_size;
    const std::size_t start = read32(table + 4 * row), size = read32(table + 4 * (rows + row));
    if (start > file.size || size > file.size - start) return {nullptr, 0};
    return {file.data + start, size};
}

// Writes one channel of a row, a byte every `step`. A count byte stands before each run: with the high bit
// set so many bytes follow, without it one byte that is repeated; 0 ends the row. False unless the row is
// filled exactly.
bool unpack_row(PictureBytes row, unsigned char* to, unsigned width, unsigned step) {
    const unsigned char* at = row.data;
    const unsigned char* const end = row.data + row.size;
    unsigned left = width;
    while (left > 0 && at < end) {
        const unsigned count = *at & 0x7F;
        const bool copied = (*at++ & 0x80) != 0;
        const std::size_t needed = copied ? count : 1;
        if (count == 0 || count > left || needed > static_cast<std::size_t>(end - at)) return false;
        for (unsigned i = 0; i < count; ++i, to += step)
            *to = at[copied ? i : 0];
        at += needed;
        left -= count;
    }
    return left == 0;
}

bool copy_row(PictureBytes row, unsigned char* to, unsigned step) {
    for (std::size_t i = 0; i < row.size; ++i)
        to[i * step] = row.data[i];
    return true;
}

// The place of a channel in a pixel: red, green, blue turn into blue, green, red.
unsigned place_of(unsigned channel, unsigned channels) {
    return channels >= 3 && channel < 3 ? 2 - channel : channel;
}

bool read_planes(PictureBytes file, const Header& header, unsigned char* pixels) {
    const std::size_t pitch = std::size_t{header.width} * header.channels;
    for (unsigned channel = 0; channel < header.channels; ++channel)
        for (unsigned y = 0; y < header.height; ++y) {
            const PictureBytes row = stored_row(file, header, std::size_t{channel} * header.height + y);
            unsigned char* const to =
                pixels + (header.height - 1 - y) * pitch + place_of(channel, header.channels);
            const bool good = header.packed ? unpack_row(row, to, header.width, header.channels)
                                            : copy_row(row, to, header.channels);
            if (!good) return false;
        }
    return true;
}

// What must stand behind the header: the tables, or the pixels themselves.
std::size_t least_size(const Header& header) {
    const std::size_t rows = std::size_t{header.height} * header.channels;
    return header_size + rows * (header.packed ? 8 : header.width);
}

} // namespace

bool decode_rgb(PictureBytes file, IGB_data& image) {
    Header header;
    errno = EINVAL;
    if (!read_header(file, header) || file.size < least_size(header)) return false;
    const std::size_t size = std::size_t{header.width} * header.height * header.channels;
    unsigned char* const pixels = static_cast<unsigned char*>(std::malloc(size));
    if (!pixels) {
        errno = ENOMEM;
        return false;
    }
    if (!read_planes(file, header, pixels)) {
        std::free(pixels);
        errno = EINVAL;
        return false;
    }
    image = {pixels, static_cast<short>(header.width), static_cast<short>(header.height),
             static_cast<short>(header.channels)};
    return true;
}

} // namespace fenn
