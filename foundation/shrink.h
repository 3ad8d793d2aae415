#ifndef FOUNDATION_SHRINK_H
#define FOUNDATION_SHRINK_H

#include <cstddef>

namespace brask {

// Pixels of one or four bytes, row after row without gaps, first row on top.
struct Pixels {
    unsigned char* bytes;
    int width, height;
    int channels;

    std::size_t size() const { return std::size_t(width) * height * channels; }
    unsigned char* at(int column, int row) const {
        return bytes + (std::size_t(row) * width + column) * channels;
    }
};

// Fills `to`, whose size says into how many pixels `from` goes. Each is the mean of the source pixels that it
// covers, by their area in it; scale_x by scale_y of them. A uniform picture stays uniform. False when memory
// fails.
bool shrink(const Pixels& from, float scale_x, float scale_y, const Pixels& to);

} // namespace brask

#endif
