#ifndef TESTS_GDI_BOARDS_H
#define TESTS_GDI_BOARDS_H

#include <windows.h>

#include <cstdint>
#include <random>
#include <string>
#include <vector>

#include "raster/canvas.h"

// Two boards with the same pixels, one for GDI and one for the raster.
namespace boards {

constexpr int WIDTH = 96;
constexpr int HEIGHT = 80;

// Seeded by GDI_SEED from the environment, otherwise always the same.
class Random {
  public:
    explicit Random(unsigned salt);
    int between(int low, int high) { return std::uniform_int_distribution<int>(low, high)(engine); }
    bool one_in(int n) { return between(1, n) == 1; }
    // On the board, around it, or far from it: by default as far as the 27 bits reach that GDI keeps.
    raster::Point point(int farthest = 60000000);
    std::uint32_t color() { return static_cast<std::uint32_t>(between(0, 0xFFFFFF)); }
    unsigned seed() const { return start; }

  private:
    unsigned start;
    std::mt19937 engine;
};

// A bitmap that GDI draws on, top row first, in a memory context.
class Bitmap {
  public:
    Bitmap();
    ~Bitmap();
    Bitmap(const Bitmap&) = delete;
    Bitmap& operator=(const Bitmap&) = delete;
    HDC dc;
    std::uint32_t* pixels;

  private:
    HBITMAP bitmap;
    HGDIOBJ old;
};

// A pen or a brush that is selected as long as this lives.
class Selected {
  public:
    Selected(HDC dc, HGDIOBJ object) : dc(dc), object(object), old(SelectObject(dc, object)) {}
    ~Selected() {
        SelectObject(dc, old);
        DeleteObject(object);
    }
    Selected(const Selected&) = delete;
    Selected& operator=(const Selected&) = delete;

  private:
    HDC dc;
    HGDIOBJ object, old;
};

COLORREF reference(std::uint32_t color); // from a pixel to GDI's colour

struct Pair {
    explicit Pair(Random& random);
    // Sets a clip on both, or none; it may be empty or lie outside.
    void clip_somewhere(Random& random);
    void clip_all();
    // Makes the raster's board like GDI's again.
    void level();
    // The first pixel whose colour differs, as text; empty: there is none. `told` says what was drawn.
    std::string difference(const std::string& told) const;
    bool same_at(int x, int y) const {
        return ((gdi.pixels[y * WIDTH + x] ^ own[y * WIDTH + x]) & 0xFFFFFF) == 0;
    }

    Bitmap gdi;
    std::vector<std::uint32_t> own;
    raster::Canvas canvas;
    raster::Rect clip;
};

std::string text(const char* format, ...) __attribute__((format(gnu_printf, 1, 2)));
std::string text(const std::vector<raster::Point>& points);

// Draws `count` primitives on both boards: draw(pair, random) draws one and tells which. Stops at the first
// difference.
template <class Draw>
std::string compare(unsigned salt, int count, Draw draw) {
    Random random(salt);
    Pair pair(random);
    for (int i = 0; i < count; ++i) {
        pair.clip_somewhere(random);
        const std::string told = draw(pair, random);
        const std::string bad = pair.difference(told);
        if (!bad.empty()) return text("seed %u, primitive %d: ", random.seed(), i) + bad;
    }
    return {};
}

} // namespace boards

#endif
