#include <gtest/gtest.h>

#include <climits>
#include <cstdint>
#include <random>

#include "screen.h"

namespace {

// A surface whose pixel tells where it stands: red its column, green its row.
struct Surface {
    int width, height;
    std::vector<DWORD> words;

    Surface(int w, int h, DWORD top_byte = 0) : width(w), height(h) {
        for (int y = 0; y < h; ++y)
            for (int x = 0; x < w; ++x)
                words.push_back(top_byte << 24 | pixel(x, y));
    }
    static DWORD pixel(int x, int y) { return static_cast<DWORD>((x + 1) << 16 | (y + 1) << 8 | 0x80); }
    void draw(int x, int y, int source_x, int source_y, int w, int h, unsigned int background = 0) const {
        draw_image(reinterpret_cast<const char*>(words.data()), x, y, source_x, source_y, w, h, width, height,
                   background);
    }
};

// What the rules say, pixel by pixel: column i, row j from the top of the window lands at x + i and
// y + height - 1 - j when it lies in the image.
void expect_copy(const Screen& screen, int screen_width, int screen_height, const Surface& surface, int x,
                 int y, int source_x, int source_y, int w, int h) {
    for (int py = 0; py < screen_height; ++py)
        for (int px = 0; px < screen_width; ++px) {
            const long long i = px - x, j = y + 0LL + h - 1 - py;
            const long long sx = source_x + i, sy = source_y + j;
            const bool covered = i >= 0 && i < w && j >= 0 && j < h && sx >= 0 && sx < surface.width &&
                                 sy >= 0 && sy < surface.height;
            ASSERT_EQ(screen.at(px, py), covered ? Surface::pixel(int(sx), int(sy)) : 0u)
                << "pixel " << px << ", " << py << " of draw_image(" << x << ", " << y << ", " << source_x
                << ", " << source_y << ", " << w << ", " << h << ")";
        }
}

void check_copy(int x, int y, int source_x, int source_y, int w, int h) {
    const Surface surface(6, 5);
    Screen screen(12, 10);
    {
        Painting painting(screen);
        surface.draw(x, y, source_x, source_y, w, h);
    }
    expect_copy(screen, 12, 10, surface, x, y, source_x, source_y, w, h);
}

TEST(Images, TheFirstRowIsTheTopOne) {
    const Surface surface(2, 2);
    Screen screen(4, 4);
    {
        Painting painting(screen);
        surface.draw(1, 1, 0, 0, 2, 2);
    }
    EXPECT_EQ(screen.at(1, 2), Surface::pixel(0, 0));
    EXPECT_EQ(screen.at(2, 2), Surface::pixel(1, 0));
    EXPECT_EQ(screen.at(1, 1), Surface::pixel(0, 1));
    EXPECT_EQ(screen.at(2, 1), Surface::pixel(1, 1));
    EXPECT_EQ(screen.at(0, 1), 0u);
    EXPECT_EQ(screen.at(1, 3), 0u);
}

TEST(Images, WindowsOfAnImage) {
    check_copy(2, 3, 0, 0, 6, 5);
    check_copy(2, 3, 1, 2, 3, 2);
    check_copy(0, 0, 5, 4, 1, 1);
}

TEST(Images, OnlyThePartInsideTheImageIsCopied) {
    check_copy(3, 3, -2, -1, 6, 5);
    check_copy(3, 3, 4, 3, 6, 5);
    check_copy(3, 3, -2, -2, 12, 12);
    check_copy(3, 3, 6, 0, 2, 2);
    check_copy(3, 3, 0, 5, 2, 2);
    check_copy(3, 3, -4, 0, 4, 2);
}

TEST(Images, PartlyOutsideTheScreen) {
    check_copy(-2, -3, 0, 0, 6, 5);
    check_copy(9, 8, 0, 0, 6, 5);
    check_copy(-20, 3, 0, 0, 6, 5);
}

TEST(Images, SizesBelowOnePaintNothing) {
    for (const int size : {0, -1, -100, INT_MIN}) {
        check_copy(2, 2, 0, 0, size, 3);
        check_copy(2, 2, 0, 0, 3, size);
        check_copy(2, 2, -3, -3, size, size);
    }
}

TEST(Images, SeededWindows) {
    std::mt19937 random(7);
    const auto number = [&](int low, int high) {
        return low + static_cast<int>(random() % static_cast<unsigned>(high - low + 1));
    };
    for (int i = 0; i < 300; ++i)
        check_copy(number(-8, 14), number(-8, 12), number(-8, 8), number(-8, 8), number(-2, 14),
                   number(-2, 14));
}

TEST(Images, AnyNumbersAreHarmless) {
    const Surface surface(6, 5);
    Screen screen(4, 4);
    Painting painting(screen);
    const int wild[] = {INT_MIN, -1000000, -1, 0, 3, 1000000, INT_MAX};
    for (const int a : wild)
        for (const int b : wild)
            for (const int c : wild) {
                surface.draw(a, b, c, a, b, c);
                surface.draw(a, 0, 0, b, c, c, 0xFF);
                draw_image(nullptr, 0, 0, 0, 0, a, b, c, c, 0);
                draw_image(reinterpret_cast<const char*>(surface.words.data()), 0, 0, 0, 0, 4, 4,
                           a < 0 ? a : 0, b < 0 ? b : 0, 0);
            }
    // The last source point that is inside, through a start far outside.
    surface.draw(-1000000 + 2, 0, -1000000, 0, 1000001, 5);
    EXPECT_EQ(screen.at(2, 0), Surface::pixel(0, 4));
}

TEST(Images, ThePlainCopyIgnoresTheTopByte) {
    const Surface surface(3, 3, 0xC7);
    Screen screen(3, 3);
    {
        Painting painting(screen);
        surface.draw(0, 0, 0, 0, 3, 3);
    }
    expect_copy(screen, 3, 3, surface, 0, 0, 0, 0, 3, 3);
}

TEST(Images, ABackgroundShowsThroughTheTopByte) {
    const std::vector<DWORD> words = {0xFF112233, 0x00112233, 0x80FF0000};
    Screen screen(3, 1);
    {
        Painting painting(screen);
        draw_image(reinterpret_cast<const char*>(words.data()), 0, 0, 0, 0, 3, 1, 3, 1, 0x0000FF00); // green
    }
    EXPECT_EQ(screen.at(0, 0), 0x112233u);
    EXPECT_EQ(screen.at(1, 0), 0x00FF00u);
    const DWORD half = screen.at(2, 0); // half red over green
    EXPECT_NEAR(static_cast<int>(half >> 16), 0x80, 1);
    EXPECT_NEAR(static_cast<int>(half >> 8 & 0xFF), 0x7F, 1);
    EXPECT_EQ(half & 0xFF, 0u);
}

TEST(Images, TheBackgroundIsADrawingWord) {
    const DWORD clear = 0;
    Screen screen(1, 1);
    {
        Painting painting(screen);
        draw_image(reinterpret_cast<const char*>(&clear), 0, 0, 0, 0, 1, 1, 1, 1, 0xAA112233);
    }
    EXPECT_EQ(screen.at(0, 0), 0x332211u);
}

TEST(Images, TheClipHoldsForPicturesToo) {
    const Surface surface(6, 5);
    Screen screen(8, 8);
    {
        Painting painting(screen);
        Zeb_set_clip(2, 3, 2, 1);
        surface.draw(0, 0, 0, 0, 6, 5);
        surface.draw(0, 0, 0, 0, 6, 5, 0xFF);
    }
    EXPECT_EQ(screen.painted(), 2);
    EXPECT_NE(screen.at(2, 3), 0u);
    EXPECT_NE(screen.at(3, 3), 0u);
}

} // namespace
