#include "picture.h"

#include <algorithm>

Picture::Picture(int width, int height)
    : width_(width), height_(height), pixels_(static_cast<std::size_t>(width) * height, kUntouched) {
    unclip();
}

void Picture::wipe() {
    std::fill(pixels_.begin(), pixels_.end(), kUntouched);
    unclip();
}

void Picture::clip(int x, int y, int width, int height) {
    clip_left_ = std::max(0LL, static_cast<long long>(x));
    clip_bottom_ = std::max(0LL, static_cast<long long>(y));
    clip_right_ = std::min<long long>(width_, static_cast<long long>(x) + width);
    clip_top_ = std::min<long long>(height_, static_cast<long long>(y) + height);
}

void Picture::unclip() {
    clip_left_ = clip_bottom_ = 0;
    clip_right_ = width_;
    clip_top_ = height_;
}

void Picture::put(long long x, long long y, std::uint32_t word) {
    if (x < clip_left_ || x >= clip_right_ || y < clip_bottom_ || y >= clip_top_) return;
    pixels_[static_cast<std::size_t>(y * width_ + x)] = word & 0xFFFFFF;
}

void Picture::span(long long left, long long right, long long y, std::uint32_t word) {
    left = std::max(left, clip_left_);
    right = std::min(right, clip_right_ - 1);
    for (long long x = left; x <= right; ++x)
        put(x, y, word);
}

void Picture::rows(long long left, long long bottom, long long right, long long top, std::uint32_t word) {
    bottom = std::max(bottom, clip_bottom_);
    top = std::min(top, clip_top_ - 1);
    for (long long y = bottom; y <= top; ++y)
        span(left, right, y, word);
}

void Picture::move(int x, int y) {
    pen_x_ = x;
    pen_y_ = y;
}

// The controls draw along the axes only; a slanted line is left out rather than guessed at.
void Picture::line_to(int x, int y) {
    const long long step_x = (x > pen_x_) - (x < pen_x_), step_y = (y > pen_y_) - (y < pen_y_);
    if (step_y == 0 && step_x != 0)
        rows(std::min<long long>(pen_x_, x - step_x), y, std::max<long long>(pen_x_, x - step_x), y, color_);
    if (step_x == 0 && step_y != 0)
        rows(x, std::min<long long>(pen_y_, y - step_y), x, std::max<long long>(pen_y_, y - step_y), color_);
    move(x, y);
}

void Picture::frame(int left, int top, int right, int bottom) {
    const int x1 = std::min(left, right), x2 = std::max(left, right);
    const int y1 = std::min(bottom, top), y2 = std::max(bottom, top);
    rows(x1, y1, x2, y1, color_);
    rows(x1, y2, x2, y2, color_);
    rows(x1, y1, x1, y2, color_);
    rows(x2, y1, x2, y2, color_);
}

void Picture::fill(int left, int top, int right, int bottom) {
    rows(left, bottom + 1LL, right - 1LL, top, color_);
}

void Picture::polygon(int count, const int* xs, const int* ys) {
    for (long long y = clip_bottom_; y < clip_top_; ++y)
        for (long long x = clip_left_; x < clip_right_; ++x) {
            bool inside = false;
            for (int i = 0, j = count - 1; i < count; j = i++) {
                if ((ys[i] > y) == (ys[j] > y)) continue;
                const double cross =
                    xs[i] + (double(y) - ys[i]) * (double(xs[j]) - xs[i]) / (double(ys[j]) - ys[i]);
                if (double(x) < cross) inside = !inside;
            }
            if (inside) put(x, y, color_);
        }
}

// Surface words have blue in the low byte, the picture holds drawing words.
static std::uint32_t swapped(std::uint32_t word) {
    return (word & 0xFF00) | (word >> 16 & 0xFF) | (word & 0xFF) << 16;
}

void Picture::image(const std::uint32_t* pixels, int x, int y, int source_x, int source_y, int width,
                    int height, int image_width, int image_height) {
    for (long long row = std::max(0LL, -static_cast<long long>(source_y)); row < height; ++row) {
        const long long source_row = source_y + row;
        if (source_row >= image_height) break;
        for (long long column = std::max(0LL, -static_cast<long long>(source_x)); column < width; ++column) {
            const long long source_column = source_x + column;
            if (source_column >= image_width) break;
            put(x + column, static_cast<long long>(y) + height - 1 - row,
                swapped(pixels[source_row * image_width + source_column]));
        }
    }
}

void Picture::write(int x, int y, const wchar_t* text, int height, int width, std::uint32_t color) {
    for (long long left = x; *text; ++text, left += width) {
        if (left >= clip_right_) return;
        if (left + width <= clip_left_) continue;
        const std::uint32_t pattern = static_cast<std::uint32_t>(*text) * 2654435761u | 0x11;
        for (int row = 0; row < height; ++row)
            for (int column = 0; column < width; ++column)
                if (pattern >> ((row * 3 + column) % 32) & 1)
                    put(left + column, static_cast<long long>(y) + row, color);
    }
}

bool Picture::untouched() const {
    return std::all_of(pixels_.begin(), pixels_.end(), [](std::uint32_t word) { return word == kUntouched; });
}

bool Picture::painted_only_in(long long left, long long bottom, long long right, long long top) const {
    for (int y = 0; y < height_; ++y)
        for (int x = 0; x < width_; ++x)
            if (at(x, y) != kUntouched && (x < left || x > right || y < bottom || y > top)) return false;
    return true;
}
