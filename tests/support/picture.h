#ifndef SUPPORT_PICTURE_H
#define SUPPORT_PICTURE_H

#include <cstdint>
#include <vector>

// A small canvas with the contract's coordinates, origin at the lower left and Y upward, for laws about
// what is painted where. Written for plainness: pixel by pixel, any coordinates harmless.
class Picture {
  public:
    Picture(int width, int height);

    static constexpr std::uint32_t kUntouched = 0xDEADBEEF;

    void color(std::uint32_t word) { color_ = word; }
    void clip(int x, int y, int width, int height);
    void unclip();
    void move(int x, int y);
    void line_to(int x, int y); // without its end point
    void frame(int left, int top, int right, int bottom);
    void fill(int left, int top, int right, int bottom);
    void polygon(int count, const int* xs, const int* ys);
    void image(const std::uint32_t* pixels, int x, int y, int source_x, int source_y, int width, int height,
               int image_width, int image_height);
    // A pattern that differs by character, one block per character.
    void write(int x, int y, const wchar_t* text, int height, int width, std::uint32_t color);

    void wipe();
    std::uint32_t at(int x, int y) const { return pixels_[static_cast<std::size_t>(y) * width_ + x]; }
    int width() const { return width_; }
    int height() const { return height_; }
    bool operator==(const Picture& other) const { return pixels_ == other.pixels_; }
    bool untouched() const;
    // Whether every painted pixel lies in columns left to right, rows bottom to top, both inclusive.
    bool painted_only_in(long long left, long long bottom, long long right, long long top) const;

  private:
    void put(long long x, long long y, std::uint32_t word);
    void span(long long left, long long right, long long y, std::uint32_t word);
    void rows(long long left, long long bottom, long long right, long long top, std::uint32_t word);

    int width_, height_;
    std::vector<std::uint32_t> pixels_;
    std::uint32_t color_ = 0;
    long long clip_left_, clip_bottom_, clip_right_, clip_top_; // the first past the edge on the far sides
    int pen_x_ = 0, pen_y_ = 0;
};

#endif
