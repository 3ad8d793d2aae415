// Blocks of coverage on a canvas, whichever way the processor takes: every channel is the exact mean, and
// what lies outside of clip and block stays as it was.

#include <algorithm>
#include <vector>

#include "input.h"
#include "raster/images.h"
#include "raster/ink.h"

namespace {

constexpr int most = 40; // several times what is mixed at once

std::uint32_t mean(std::uint32_t over, std::uint32_t under, std::uint32_t cover) {
    std::uint32_t word = 0;
    for (int shift = 0; shift < 24; shift += 8) {
        const double a = over >> shift & 255, b = under >> shift & 255;
        word |= static_cast<std::uint32_t>((a * cover + b * (255 - cover)) / 255 + 0.5) << shift;
    }
    return word;
}

struct Block {
    int left, top, width, height, pitch;
    std::vector<std::uint8_t> coverage;
};

Block some_block(Input& input) {
    Block block;
    block.left = static_cast<int>(input.below(most)) - 10;
    block.top = static_cast<int>(input.below(most)) - 10;
    block.width = static_cast<int>(input.below(most));
    block.height = static_cast<int>(input.below(8));
    block.pitch = block.width + static_cast<int>(input.below(3));
    // Exactly what may be read: a reader past the end is found out.
    block.coverage.resize(
        static_cast<std::size_t>(std::max(block.pitch * (block.height - 1) + block.width, 0)));
    for (std::uint8_t& byte : block.coverage)
        byte = static_cast<std::uint8_t>(input.one_in(2) ? 0 : input.one_in(2) ? 255 : input.byte());
    return block;
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    Input input(data, size);
    const int width = 1 + static_cast<int>(input.below(most)), height = 1 + static_cast<int>(input.below(12));
    const int pitch = width + static_cast<int>(input.below(3));
    std::vector<std::uint32_t> pixels(static_cast<std::size_t>(pitch) * (height - 1) + width);
    for (std::uint32_t& pixel : pixels)
        pixel = input.word() & 0xFFFFFF;
    const raster::Rect clip = {static_cast<int>(input.below(20)) - 4, static_cast<int>(input.below(8)) - 4,
                               static_cast<int>(input.below(most)), static_cast<int>(input.below(16))};
    const std::uint32_t color = input.word() & 0xFFFFFF;
    const Block block = some_block(input);

    const std::vector<std::uint32_t> before = pixels;
    std::vector<std::uint32_t> inked = pixels;
    const raster::Ink ink = raster::make_ink(block.coverage.data(), block.width, block.height, block.pitch);
    raster::paint_ink({inked.data(), width, height, pitch}, clip, {block.left, block.top}, ink, color);
    raster::mask({pixels.data(), width, height, pitch}, clip, {block.left, block.top},
                 block.coverage.empty() ? nullptr : block.coverage.data(), block.width, block.height,
                 block.pitch, color);
    for (int i = 0; i < static_cast<int>(pixels.size()); i++) {
        const int x = i % pitch, y = i / pitch, column = x - block.left, row = y - block.top;
        const bool covered = x < width && x >= clip.left && x < clip.right && y >= clip.top &&
                             y < clip.bottom && column >= 0 && column < block.width && row >= 0 &&
                             row < block.height;
        const std::uint32_t wanted =
            covered ? mean(color, before[i], block.coverage[row * block.pitch + column]) : before[i];
        expect((pixels[i] & 0xFFFFFF) == wanted, "a pixel under a block of coverage");
        expect((inked[i] & 0xFFFFFF) == wanted, "a pixel under ink");
    }
    return 0;
}
