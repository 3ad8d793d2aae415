#ifndef TESTS_RASTER_SHEET_H
#define TESTS_RASTER_SHEET_H

#include <cstdint>
#include <random>
#include <string>
#include <vector>

#include "raster/canvas.h"

// A canvas in the middle of a larger block, so that a stray pixel is seen.
class Sheet {
  public:
    Sheet(int width, int height);
    raster::Canvas canvas();
    raster::Rect all() const { return {0, 0, width, height}; }
    bool is_inked(int x, int y) const { return pixel(x, y) != paper; }
    std::uint32_t pixel(int x, int y) const;
    // Rows of '#' and '.', each with a line feed.
    std::string picture() const;
    // Not a pixel around the canvas was painted.
    bool is_margin_clean() const;
    void wipe();

    static constexpr std::uint32_t paper = 0x123456;
    static constexpr std::uint32_t ink = 0xABCDEF;

  private:
    static constexpr int margin = 5;
    std::size_t index(int x, int y) const;

    int width, height;
    std::vector<std::uint32_t> block;
};

// The same pixels inside `clip` as on the whole sheet, and none outside.
std::string clip_fault(const Sheet& whole, const Sheet& clipped, const raster::Rect& clip);

struct Dice {
    explicit Dice(unsigned seed) : engine(seed) {}
    int between(int low, int high) { return std::uniform_int_distribution<int>(low, high)(engine); }
    bool one_in(int n) { return between(1, n) == 1; }
    // Near the sheet, around it, or anywhere that an int can name.
    raster::Point point(int size);
    raster::Rect rect(int size);

    std::mt19937 engine;
};

#endif
