#ifndef FENN_PICTURES_H
#define FENN_PICTURES_H

#include <cstddef>

#include <brask/fenn.h>

// Picture files in memory. Nothing outside of the bytes is read, whatever they say.
namespace fenn {

struct PictureBytes {
    const unsigned char* data;
    std::size_t size;
};

// Fills the image, whose Data is then a block from malloc. Otherwise false, with errno set and the image left
// alone.
bool decode_rgb(PictureBytes file, IGB_data& image);
bool decode_tga(PictureBytes file, IGB_data& image);

// Whether sizes from a header can be served: more is a lie, or would not fit in the image's record.
bool is_picture_size(unsigned width, unsigned height);

} // namespace fenn

#endif
