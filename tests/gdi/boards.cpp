#include "boards.h"

#include <cstdarg>
#include <cstdio>
#include <cstdlib>

namespace boards {

Random::Random(unsigned salt) {
    const char* wanted = std::getenv("GDI_SEED");
    start = wanted ? static_cast<unsigned>(std::strtoul(wanted, nullptr, 10)) : 20260101;
    engine.seed(start + salt);
}

raster::Point Random::point(int farthest) {
    const int beyond = one_in(4) ? (one_in(4) ? farthest : 300) : 4;
    return {between(-beyond, WIDTH + beyond), between(-beyond, HEIGHT + beyond)};
}

Bitmap::Bitmap() : dc(CreateCompatibleDC(nullptr)), pixels(nullptr) {
    BITMAPINFO info{};
    info.bmiHeader.biSize = sizeof info.bmiHeader;
    info.bmiHeader.biWidth = WIDTH;
    info.bmiHeader.biHeight = -HEIGHT;
    info.bmiHeader.biPlanes = 1;
    info.bmiHeader.biBitCount = 32;
    void* bits = nullptr;
    bitmap = CreateDIBSection(dc, &info, DIB_RGB_COLORS, &bits, nullptr, 0);
    pixels = static_cast<std::uint32_t*>(bits);
    old = SelectObject(dc, bitmap);
}

Bitmap::~Bitmap() {
    SelectObject(dc, old);
    DeleteObject(bitmap);
    DeleteDC(dc);
}

COLORREF reference(std::uint32_t color) { return RGB(color >> 16 & 0xFF, color >> 8 & 0xFF, color & 0xFF); }

Pair::Pair(Random& random)
    : own(WIDTH * HEIGHT), canvas{own.data(), WIDTH, HEIGHT, WIDTH}, clip{0, 0, WIDTH, HEIGHT} {
    for (int i = 0; i < WIDTH * HEIGHT; ++i)
        gdi.pixels[i] = own[static_cast<std::size_t>(i)] = random.color();
}

void Pair::clip_all() {
    clip = {0, 0, WIDTH, HEIGHT};
    SelectClipRgn(gdi.dc, nullptr);
}

void Pair::clip_somewhere(Random& random) {
    clip_all();
    if (random.one_in(2)) return;
    clip.left = random.between(-20, WIDTH);
    clip.top = random.between(-20, HEIGHT);
    clip.right = clip.left + random.between(0, WIDTH);
    clip.bottom = clip.top + random.between(0, HEIGHT);
    const HRGN region = CreateRectRgn(clip.left, clip.top, clip.right, clip.bottom);
    SelectClipRgn(gdi.dc, region);
    DeleteObject(region);
}

void Pair::level() {
    GdiFlush();
    own.assign(gdi.pixels, gdi.pixels + WIDTH * HEIGHT);
}

std::string Pair::difference(const std::string& told) const {
    GdiFlush();
    for (int y = 0; y < HEIGHT; ++y)
        for (int x = 0; x < WIDTH; ++x)
            if (!same_at(x, y))
                return told + text(", clip %d,%d to %d,%d: at %d,%d GDI has %06X and the raster %06X",
                                   clip.left, clip.top, clip.right, clip.bottom, x, y,
                                   gdi.pixels[y * WIDTH + x] & 0xFFFFFF,
                                   own[static_cast<std::size_t>(y * WIDTH + x)] & 0xFFFFFF);
    return {};
}

std::string text(const char* format, ...) {
    char buffer[512];
    va_list values;
    va_start(values, format);
    std::vsnprintf(buffer, sizeof buffer, format, values);
    va_end(values);
    return buffer;
}

std::string text(const std::vector<raster::Point>& points) {
    std::string all;
    for (const raster::Point& point : points)
        all += text(" (%d,%d)", point.x, point.y);
    return all;
}

} // namespace boards
