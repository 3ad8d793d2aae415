#include "raster/images.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <climits>

#include "raster/ink.h"
#include "sheet.h"

using raster::Point;

namespace {

struct Block {
    Point to, from;
    int width, height;
};

std::string told(const Block& b, const raster::Rect& clip) {
    std::string text;
    for (const int value : {b.to.x, b.to.y, b.from.x, b.from.y, b.width, b.height, clip.left, clip.top,
                            clip.right, clip.bottom})
        text += " " + std::to_string(value);
    return text;
}

bool holds(const raster::Rect& rect, std::int64_t x, std::int64_t y) {
    return x >= rect.left && x < rect.right && y >= rect.top && y < rect.bottom;
}

// Whether the block paints that pixel, and from where.
bool paints(const Block& b, const raster::Rect& source, const raster::Rect& clip, int x, int y, Point& from) {
    const std::int64_t across = std::int64_t{x} - b.to.x;
    const std::int64_t down = std::int64_t{y} - b.to.y;
    if (!holds(clip, x, y) || across < 0 || across >= b.width || down < 0 || down >= b.height) return false;
    if (!holds(source, across + b.from.x, down + b.from.y)) return false;
    from = {static_cast<int>(across + b.from.x), static_cast<int>(down + b.from.y)};
    return true;
}

Block some(Dice& dice, int size) {
    const Point extent = dice.point(size);
    return {dice.point(size), dice.point(size), extent.x, extent.y};
}

// Each pixel tells where it stands.
std::vector<std::uint32_t> numbered(int count) {
    std::vector<std::uint32_t> pixels(static_cast<std::size_t>(count));
    for (int i = 0; i < count; ++i)
        pixels[static_cast<std::size_t>(i)] = 0x1000 + static_cast<std::uint32_t>(i);
    return pixels;
}

// over * cover + under * (255 - cover), through 255, to the nearest.
std::uint32_t channel(std::uint32_t over, std::uint32_t under, std::uint32_t cover) {
    return (2 * (over * cover + under * (255 - cover)) + 255) / 510;
}

std::uint32_t mixed(std::uint32_t over, std::uint32_t under, std::uint32_t cover) {
    std::uint32_t word = 0;
    for (int shift = 0; shift < 24; shift += 8)
        word |= channel(over >> shift & 0xFF, under >> shift & 0xFF, cover) << shift;
    return word;
}

} // namespace

TEST(Copy, CutToEverything) {
    constexpr int size = 16;
    const std::vector<std::uint32_t> pixels = numbered(13 * 11);
    const raster::Image source{pixels.data(), 12, 11, 13};
    Dice dice(20);
    Sheet sheet(size, size);
    for (int i = 0; i < 20000; ++i) {
        const Block b = some(dice, size);
        const raster::Rect clip = dice.one_in(2) ? sheet.all() : dice.rect(size);
        sheet.wipe();
        raster::copy(sheet.canvas(), clip, b.to, source, b.from, b.width, b.height);
        ASSERT_TRUE(sheet.is_margin_clean()) << told(b, clip);
        for (int y = 0; y < size; ++y)
            for (int x = 0; x < size; ++x) {
                Point from{};
                const bool painted = paints(b, {0, 0, 12, 11}, clip, x, y, from);
                ASSERT_EQ(sheet.pixel(x, y),
                          painted ? pixels[static_cast<std::size_t>(from.y * 13 + from.x)] : Sheet::paper)
                    << told(b, clip) << " at " << x << "," << y;
            }
    }
}

TEST(Copy, OverlappingBlocksOfOneCanvas) {
    constexpr int size = 12;
    const std::vector<std::uint32_t> before = numbered(size * size);
    for (int dy = -4; dy <= 4; ++dy)
        for (int dx = -4; dx <= 4; ++dx) {
            std::vector<std::uint32_t> pixels = before;
            const raster::Canvas canvas{pixels.data(), size, size, size};
            const Block b{{4 + dx, 4 + dy}, {4, 4}, 5, 6};
            raster::copy(canvas, {0, 0, size, size}, b.to, canvas, b.from, b.width, b.height);
            for (int y = 0; y < size; ++y)
                for (int x = 0; x < size; ++x) {
                    Point from{x, y};
                    paints(b, {0, 0, size, size}, {0, 0, size, size}, x, y, from);
                    ASSERT_EQ(pixels[static_cast<std::size_t>(y * size + x)],
                              before[static_cast<std::size_t>(from.y * size + from.x)])
                        << dx << "," << dy << " at " << x << "," << y;
                }
        }
}

TEST(Copy, WholeRowsOfOneCanvas) {
    constexpr int size = 12;
    const std::vector<std::uint32_t> before = numbered(size * size);
    for (int dy = -size; dy <= size; ++dy) {
        std::vector<std::uint32_t> pixels = before;
        const raster::Canvas canvas{pixels.data(), size, size, size};
        raster::copy(canvas, {0, 0, size, size}, {0, dy}, canvas, {0, 0}, size, size);
        for (int i = 0; i < size * size; ++i) {
            const int from = i - dy * size;
            const bool painted = from >= 0 && from < size * size;
            ASSERT_EQ(pixels[static_cast<std::size_t>(i)],
                      before[static_cast<std::size_t>(painted ? from : i)])
                << dy;
        }
    }
}

// Rows without gaps on one side only.
TEST(Copy, RowsWithGaps) {
    const std::vector<std::uint32_t> pixels = numbered(13 * 4);
    for (const int gap : {0, 1}) {
        std::vector<std::uint32_t> result(static_cast<std::size_t>((12 + gap) * 4), 7);
        const raster::Image source{pixels.data(), 12, 4, 13 - gap};
        raster::copy({result.data(), 12, 4, 12 + gap}, {0, 0, 12, 4}, {0, 0}, source, {0, 0}, 12, 4);
        for (int y = 0; y < 4; ++y)
            for (int x = 0; x < 12 + gap; ++x)
                ASSERT_EQ(result[static_cast<std::size_t>(y * (12 + gap) + x)],
                          x < 12 ? pixels[static_cast<std::size_t>(y * (13 - gap) + x)] : 7);
    }
}

TEST(Blend, EveryMix) {
    std::vector<std::uint32_t> source(256 * 256);
    for (std::uint32_t i = 0; i < 256 * 256; ++i) {
        const std::uint32_t over = i & 0xFF;
        source[i] = (i >> 8) << 24 | over << 16 | (255 - over) << 8 | (over ^ 0x55);
    }
    std::vector<std::uint32_t> result(256 * 256, 0xFFFFFFFF);
    const raster::Canvas canvas{result.data(), 256, 256, 256};
    for (std::uint32_t under = 0; under < 256; ++under) {
        const std::uint32_t background = under << 16 | (under ^ 0xAA) << 8 | (255 - under);
        raster::blend(canvas, {0, 0, 256, 256}, {0, 0}, {source.data(), 256, 256, 256}, {0, 0}, 256, 256,
                      background);
        for (std::uint32_t i = 0; i < 256 * 256; ++i)
            ASSERT_EQ(result[i], mixed(source[i], background, i >> 8))
                << std::hex << source[i] << " on " << background;
    }
}

// In rows that are as wide as the block, and in strips: wide and narrow rows are mixed in different ways.
TEST(Mask, EveryMix) {
    constexpr int size = 256;
    std::vector<std::uint8_t> coverage(size * size);
    std::vector<std::uint32_t> ground(size * size);
    for (std::uint32_t i = 0; i < size * size; ++i) {
        const std::uint32_t under = i & 0xFF;
        coverage[i] = static_cast<std::uint8_t>(i >> 8);
        ground[i] = under << 16 | (255 - under) << 8 | (under ^ 0x55);
    }
    const raster::Ink ink = raster::make_ink(coverage.data(), size, size, size);
    for (std::uint32_t over = 0; over < 256; ++over) {
        const std::uint32_t color = over << 16 | (over ^ 0xAA) << 8 | (255 - over);
        std::vector<std::uint32_t> rows = ground;
        std::vector<std::uint32_t> strips = ground;
        std::vector<std::uint32_t> inked = ground;
        raster::mask({rows.data(), size, size, size}, {0, 0, size, size}, {0, 0}, coverage.data(), size, size,
                     size, color);
        const raster::Canvas canvas{strips.data(), size, size, size};
        for (int x = 0, width = 1; x < size; x += width, width = width % 7 + 1)
            raster::mask(canvas, {0, 0, size, size}, {x, 0}, coverage.data() + x, std::min(width, size - x),
                         size, size, color);
        raster::paint_ink({inked.data(), size, size, size}, {0, 0, size, size}, {0, 0}, ink, color);
        for (std::uint32_t i = 0; i < size * size; ++i) {
            ASSERT_EQ(inked[i] & 0xFFFFFF, mixed(color, ground[i], coverage[i]))
                << std::hex << color << " on " << ground[i];
            ASSERT_EQ(rows[i] & 0xFFFFFF, mixed(color, ground[i], coverage[i]))
                << std::hex << color << " on " << ground[i];
            ASSERT_EQ(strips[i] & 0xFFFFFF, mixed(color, ground[i], coverage[i]))
                << std::hex << color << " on " << ground[i];
        }
    }
}

TEST(MaskAndBlend, CutToEverything) {
    constexpr int size = 24;
    constexpr int pitch = 23;
    Dice dice(21);
    std::vector<std::uint8_t> coverage(pitch * 19);
    for (std::uint8_t& cover : coverage) // whole groups of none and of all, and what lies between
        cover = static_cast<std::uint8_t>(dice.one_in(3) ? dice.between(0, 255) : dice.one_in(2) ? 0 : 255);
    std::fill(coverage.begin() + 40, coverage.begin() + 80, std::uint8_t{0});
    std::vector<std::uint32_t> icon(coverage.size());
    for (std::size_t i = 0; i < icon.size(); ++i)
        icon[i] = static_cast<std::uint32_t>(coverage[i]) << 24 | 0x808080;
    Sheet masked(size, size);
    Sheet blended(size, size);
    for (int i = 0; i < 10000; ++i) {
        Block b = some(dice, size);
        const raster::Rect clip = dice.one_in(2) ? masked.all() : dice.rect(size);
        masked.wipe();
        blended.wipe();
        raster::blend(blended.canvas(), clip, b.to, {icon.data(), 22, 19, pitch}, b.from, b.width, b.height,
                      0x10FF20);
        // A mask has no place to begin at; its size must be its own.
        const Block whole{b.to, {0, 0}, std::min(b.width, 22), std::min(b.height, 19)};
        raster::mask(masked.canvas(), clip, b.to, coverage.data(), whole.width, whole.height, pitch,
                     Sheet::ink);
        ASSERT_TRUE(masked.is_margin_clean() && blended.is_margin_clean()) << told(b, clip);
        for (int y = 0; y < size; ++y)
            for (int x = 0; x < size; ++x) {
                Point from{};
                std::uint32_t wanted = Sheet::paper;
                if (paints(b, {0, 0, 22, 19}, clip, x, y, from))
                    wanted = mixed(0x808080, 0x10FF20,
                                   coverage[static_cast<std::size_t>(from.y * pitch + from.x)]);
                ASSERT_EQ(blended.pixel(x, y), wanted) << told(b, clip) << " at " << x << "," << y;
                wanted = Sheet::paper;
                if (paints(whole, {0, 0, 22, 19}, clip, x, y, from))
                    wanted = mixed(Sheet::ink, Sheet::paper,
                                   coverage[static_cast<std::size_t>(from.y * pitch + from.x)]);
                ASSERT_EQ(masked.pixel(x, y), wanted) << told(b, clip) << " at " << x << "," << y;
            }
    }
}

TEST(Ink, PaintsWhatTheMaskDoes) {
    constexpr int size = 40;
    Dice dice(22);
    Sheet masked(size, size);
    Sheet inked(size, size);
    for (int i = 0; i < 10000; ++i) {
        const int width = dice.between(0, 30);
        const int height = dice.between(0, 12);
        const int pitch = width + dice.between(0, 3);
        std::vector<std::uint8_t> coverage(static_cast<std::size_t>(pitch * height));
        const int sparse = dice.between(1, 20);
        for (std::uint8_t& cover : coverage)
            cover = static_cast<std::uint8_t>(dice.one_in(sparse) ? dice.between(0, 255) : 0);
        const Point to = dice.point(size);
        const raster::Rect clip = dice.one_in(2) ? masked.all() : dice.rect(size);
        masked.wipe();
        inked.wipe();
        raster::mask(masked.canvas(), clip, to, coverage.data(), width, height, pitch, Sheet::ink);
        raster::paint_ink(inked.canvas(), clip, to, raster::make_ink(coverage.data(), width, height, pitch),
                          Sheet::ink);
        ASSERT_TRUE(inked.is_margin_clean());
        for (int y = 0; y < size; ++y)
            for (int x = 0; x < size; ++x)
                ASSERT_EQ(inked.pixel(x, y), masked.pixel(x, y))
                    << width << " by " << height << " to " << to.x << "," << to.y << " at " << x << "," << y;
    }
}

// In the last corner of a canvas without anything behind it.
TEST(Ink, StaysOnTheCanvas) {
    const std::uint8_t coverage[] = {255, 0, 255};
    std::vector<std::uint32_t> pixels(20 * 2, 1);
    const raster::Ink ink = raster::make_ink(coverage, 3, 1, 3);
    raster::paint_ink({pixels.data(), 20, 2, 20}, {0, 0, 20, 2}, {17, 1}, ink, 2);
    const std::vector<std::uint32_t> corner(pixels.end() - 4, pixels.end());
    EXPECT_EQ(corner, (std::vector<std::uint32_t>{1, 2, 1, 2}));
}

TEST(Images, NullSources) {
    Sheet sheet(4, 4);
    raster::copy(sheet.canvas(), sheet.all(), {0, 0}, {nullptr, 4, 4, 4}, {0, 0}, 4, 4);
    raster::blend(sheet.canvas(), sheet.all(), {0, 0}, {nullptr, 4, 4, 4}, {0, 0}, 4, 4, 0);
    raster::mask(sheet.canvas(), sheet.all(), {0, 0}, nullptr, 4, 4, 4, 0);
    EXPECT_EQ(sheet.picture().find('#'), std::string::npos);
}
