#include <algorithm>
#include <cstdint>

#include "fenn/builtin_font.h"

// The box with a code in it, for a character that no font has.
namespace fenn {
namespace {

constexpr int DIGIT_WIDTH = 3;
constexpr int DIGIT_HEIGHT = 5;
// Rows of three pixels, the first in the highest bit, the left pixel in the highest of each row.
constexpr std::uint16_t digits[16] = {
    0b111'101'101'101'111, 0b010'110'010'010'111, 0b111'001'111'100'111, 0b111'001'111'001'111,
    0b101'101'111'001'001, 0b111'100'111'001'111, 0b111'100'111'101'111, 0b111'001'001'010'010,
    0b111'101'111'101'111, 0b111'101'111'001'111, 0b111'101'111'101'101, 0b110'101'110'101'110,
    0b111'100'100'100'111, 0b110'101'101'101'110, 0b111'100'111'100'111, 0b111'100'111'100'100,
};

void fill(Coverage& shape, int x, int y, int width, int height) {
    for (int row = y; row < y + height; ++row)
        std::fill_n(shape.bytes.begin() + std::ptrdiff_t{row} * shape.width + x, width, std::uint8_t{255});
}

void frame(Coverage& shape, int thick) {
    fill(shape, 0, 0, shape.width, thick);
    fill(shape, 0, shape.height - thick, shape.width, thick);
    fill(shape, 0, 0, thick, shape.height);
    fill(shape, shape.width - thick, 0, thick, shape.height);
}

void put_digit(Coverage& shape, unsigned digit, int x, int y, int scale) {
    for (int bit = 0; bit < DIGIT_WIDTH * DIGIT_HEIGHT; ++bit)
        if (digits[digit] >> (DIGIT_WIDTH * DIGIT_HEIGHT - 1 - bit) & 1)
            fill(shape, x + bit % DIGIT_WIDTH * scale, y + bit / DIGIT_WIDTH * scale, scale, scale);
}

void size_box(Coverage& shape, int width, int height, int ascent) {
    shape.left = 0;
    shape.top = ascent - height;
    shape.width = width;
    shape.height = height;
    shape.bytes.assign(static_cast<std::size_t>(width) * height, 0);
}

} // namespace

void draw_hex_box(char32_t code, int em, int ascent, Glyph& out) {
    constexpr int CELL_X = DIGIT_WIDTH + 1;
    constexpr int CELL_Y = DIGIT_HEIGHT + 1;
    const int columns = code > 0xFFFF ? 3 : 2; // two rows of digits
    const int scale = std::max(em / 16, 1);
    const bool is_legible = em >= 2 * CELL_Y;
    if (is_legible)
        size_box(out.shape, (columns * CELL_X + 3) * scale, (2 * CELL_Y + 3) * scale, ascent + 2 * scale);
    else
        size_box(out.shape, std::max(em * 2 / 3, 2), std::max(em * 2 / 3, 2), ascent);
    frame(out.shape, scale);
    for (int i = 0; is_legible && i < 2 * columns; ++i)
        put_digit(out.shape, code >> 4 * (2 * columns - 1 - i) & 15, (2 + i % columns * CELL_X) * scale,
                  (2 + i / columns * CELL_Y) * scale, scale);
    out.advance = out.shape.width + scale;
}

} // namespace fenn
