#include <gtest/gtest.h>

#include "boards.h"
#include "raster/images.h"

using namespace boards;

namespace {

struct Blit {
    raster::Point to, from;
    int width, height;
};

// The block lies in the source, which is as large as the board; its target anywhere.
Blit blit(Random& random) {
    const raster::Point from{random.between(0, WIDTH - 1), random.between(0, HEIGHT - 1)};
    return {{random.between(-WIDTH, WIDTH), random.between(-HEIGHT, HEIGHT)},
            from,
            random.between(1, WIDTH - from.x),
            random.between(1, HEIGHT - from.y)};
}

std::string told(const char* what, const Blit& blit) {
    return text("%s to %d,%d from %d,%d size %d,%d", what, blit.to.x, blit.to.y, blit.from.x, blit.from.y,
                blit.width, blit.height);
}

std::vector<std::uint32_t> noise(Random& random) {
    std::vector<std::uint32_t> pixels(WIDTH * HEIGHT);
    for (std::uint32_t& pixel : pixels)
        pixel = random.color();
    return pixels;
}

void copy(Pair& pair, const Blit& blit, const raster::Image& source) {
    raster::copy(pair.canvas, pair.clip, blit.to, source, blit.from, blit.width, blit.height);
}

} // namespace

TEST(GdiBlits, FromAnotherBitmap) {
    Random random(30);
    const std::vector<std::uint32_t> pixels = noise(random);
    Bitmap other;
    std::copy(pixels.begin(), pixels.end(), other.pixels);
    EXPECT_EQ(compare(31, 2000,
                      [&](Pair& pair, Random& random) {
                          const Blit b = blit(random);
                          BitBlt(pair.gdi.dc, b.to.x, b.to.y, b.width, b.height, other.dc, b.from.x, b.from.y,
                                 SRCCOPY);
                          copy(pair, b, {pixels.data(), WIDTH, HEIGHT, WIDTH});
                          return told("BitBlt", b);
                      }),
              "");
}

TEST(GdiBlits, WithinTheBoard) {
    EXPECT_EQ(compare(32, 2000,
                      [](Pair& pair, Random& random) {
                          Blit b = blit(random);
                          if (random.one_in(2)) // near enough to overlap
                              b.to = {b.from.x + random.between(-5, 5), b.from.y + random.between(-5, 5)};
                          BitBlt(pair.gdi.dc, b.to.x, b.to.y, b.width, b.height, pair.gdi.dc, b.from.x,
                                 b.from.y, SRCCOPY);
                          copy(pair, b, pair.canvas);
                          return told("BitBlt within", b);
                      }),
              "");
}

TEST(GdiBlits, FromMemory) {
    Random random(33);
    const std::vector<std::uint32_t> pixels = noise(random);
    EXPECT_EQ(compare(34, 2000,
                      [&](Pair& pair, Random& random) {
                          const Blit b = blit(random);
                          // From its own rows on, so that it does not matter from which end GDI counts them.
                          BITMAPINFO info{};
                          info.bmiHeader.biSize = sizeof info.bmiHeader;
                          info.bmiHeader.biWidth = WIDTH;
                          info.bmiHeader.biHeight = -b.height;
                          info.bmiHeader.biPlanes = 1;
                          info.bmiHeader.biBitCount = 32;
                          SetDIBitsToDevice(pair.gdi.dc, b.to.x, b.to.y, static_cast<DWORD>(b.width),
                                            static_cast<DWORD>(b.height), b.from.x, 0, 0,
                                            static_cast<UINT>(b.height), pixels.data() + b.from.y * WIDTH,
                                            &info, DIB_RGB_COLORS);
                          copy(pair, b, {pixels.data(), WIDTH, HEIGHT, WIDTH});
                          return told("SetDIBitsToDevice", b);
                      }),
              "");
}
