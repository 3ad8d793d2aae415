#include "foundation/shrink.h"

#include <algorithm>
#include <cmath>
#include <random>
#include <vector>

#include <gtest/gtest.h>

// The shrink by area, beside a plain one that follows the rule word for word.

namespace {

using Bytes = std::vector<unsigned char>;

struct Image {
    int width, height, channels;
    Bytes bytes;
    Image(int w, int h, int c) : width(w), height(h), channels(c), bytes(std::size_t(w) * h * c) {}
    brask::Pixels pixels() { return {bytes.data(), width, height, channels}; }
    int at(int x, int y, int channel) const {
        return bytes[(std::size_t(y) * width + x) * channels + channel];
    }
};

float weight(int at, float from, float to) {
    float result = 1.0f;
    if (at == static_cast<int>(from)) result = static_cast<float>(1.0 - (from - at));
    if (at == static_cast<int>(to)) result = to - static_cast<float>(at);
    return result;
}

// The mean before it is cut; -1 where nothing is covered.
double plain_mean(const Image& from, float sx, float sy, int i, int j, int channel) {
    const float x0 = i * sx, x1 = std::min((i + 1) * sx, static_cast<float>(from.width - 1));
    const float y0 = j * sy, y1 = std::min((j + 1) * sy, static_cast<float>(from.height - 1));
    double sum = 0, weights = 0;
    for (int r = static_cast<int>(y0); r <= static_cast<int>(y1); r++)
        for (int c = static_cast<int>(x0); c <= static_cast<int>(x1); c++) {
            const double w = double{weight(c, x0, x1)} * double{weight(r, y0, y1)};
            sum += w * from.at(c, r, channel);
            weights += w;
        }
    return weights == 0 ? -1 : sum / weights;
}

Image shrunk(Image& from, float sx, float sy, int width, int height) {
    Image to(width, height, from.channels);
    brask::shrink(from.pixels(), sx, sy, to.pixels());
    return to;
}

void expect_means(Image& from, float sx, float sy, int width, int height) {
    const Image to = shrunk(from, sx, sy, width, height);
    int wrong = 0;
    for (int j = 0; j < height; j++)
        for (int i = 0; i < width; i++)
            for (int channel = 0; channel < from.channels; channel++) {
                const double mean = plain_mean(from, sx, sy, i, j, channel);
                const int got = to.at(i, j, channel);
                if (mean < 0) {
                    wrong += got != from.at(static_cast<int>(i * sx), static_cast<int>(j * sy), channel);
                    continue;
                }
                // A mean that is a whole number may come out on either side of it.
                const bool whole = std::fabs(mean - std::round(mean)) < 1e-9;
                wrong += whole ? std::fabs(got - mean) > 1 : got != static_cast<int>(mean);
            }
    EXPECT_EQ(wrong, 0) << from.width << " by " << from.height << " to " << width << " by " << height;
}

TEST(Shrink, IsThePlainMean) {
    std::mt19937 chance(20);
    const auto upto = [&](int most) { return static_cast<int>(chance() % static_cast<unsigned>(most)); };
    for (int round = 0; round < 120; round++) {
        Image from(1 + upto(90), 1 + upto(90), round % 2 ? 1 : 4);
        for (unsigned char& byte : from.bytes)
            byte = static_cast<unsigned char>(upto(round % 3 ? 256 : 2) * (round % 3 ? 1 : 255));
        const int room_x = 1 + upto(60), room_y = 1 + upto(60);
        float sx = static_cast<float>(from.width) / static_cast<float>(room_x);
        float sy = static_cast<float>(from.height) / static_cast<float>(room_y);
        if (round % 4 < 2) sx = sy = std::max(sx, sy);
        const int width = static_cast<int>(1 / sx * from.width),
                  height = static_cast<int>(1 / sy * from.height);
        if (width > 0 && height > 0) expect_means(from, sx, sy, width, height);
    }
}

TEST(Shrink, KeepsAUniformPictureUniform) {
    std::mt19937 chance(21);
    for (int round = 0; round < 100; round++) {
        const int width = 1 + static_cast<int>(chance() % 300), height = 1 + static_cast<int>(chance() % 300);
        Image from(width, height, round % 2 ? 1 : 4);
        const unsigned char values[4] = {static_cast<unsigned char>(chance()), 255, 1, 200};
        for (std::size_t i = 0; i < from.bytes.size(); i++)
            from.bytes[i] = values[i % from.channels];
        const int room_x = 1 + static_cast<int>(chance() % 80), room_y = 1 + static_cast<int>(chance() % 80);
        const Image to = shrunk(from, static_cast<float>(width) / static_cast<float>(room_x),
                                static_cast<float>(height) / static_cast<float>(room_y), room_x, room_y);
        int wrong = 0;
        for (std::size_t i = 0; i < to.bytes.size(); i++)
            wrong += to.bytes[i] != values[i % to.channels];
        EXPECT_EQ(wrong, 0) << width << " by " << height << " to " << room_x << " by " << room_y;
    }
}

TEST(Shrink, StaysBetweenTheExtremes) {
    std::mt19937 chance(22);
    for (int round = 0; round < 100; round++) {
        Image from(1 + static_cast<int>(chance() % 50), 1 + static_cast<int>(chance() % 50), 1);
        for (unsigned char& byte : from.bytes)
            byte = static_cast<unsigned char>(100 + chance() % 20);
        const Image to = shrunk(from, static_cast<float>(from.width) / 7.0f,
                                static_cast<float>(from.height) / 11.0f, 7, 11);
        const auto ends = std::minmax_element(to.bytes.begin(), to.bytes.end());
        const auto source = std::minmax_element(from.bytes.begin(), from.bytes.end());
        EXPECT_GE(*ends.first, *source.first);
        EXPECT_LE(*ends.second, *source.second);
    }
}

TEST(Shrink, OfWholePixelsLeavesOutTheLast) { // halves: the last column's weight is 0
    Image from(4, 1, 1);
    from.bytes = {10, 20, 40, 200};
    const Image to = shrunk(from, 2, 1, 2, 1);
    // 0 to 2 covers 10 and 20 whole, and nothing of 40; 2 to 3 covers 40 alone.
    EXPECT_EQ(to.bytes, Bytes({10, 40})) << "a picture of one row has no height: its corners are taken";
    Image two_rows(4, 2, 1);
    two_rows.bytes = {10, 20, 40, 200, 10, 20, 40, 200};
    EXPECT_EQ(shrunk(two_rows, 2, 2, 2, 1).bytes, Bytes({15, 40}));
}

TEST(Shrink, TakesTheCornerWhereNothingIsCovered) { // 50 rows onto 51
    Image from(100, 50, 1);
    for (int y = 0; y < 50; y++)
        for (int x = 0; x < 100; x++)
            from.bytes[std::size_t(y) * 100 + x] = static_cast<unsigned char>(y * 5 + (x == 98 ? 1 : 0));
    const float sx = 100.0f / 51, sy = 50.0f / 51;
    const Image to = shrunk(from, sx, sy, 51, 51);
    for (int i = 0; i < 51; i++)
        EXPECT_EQ(to.at(i, 50, 0), from.at(static_cast<int>(i * sx), 49, 0));
    expect_means(from, sx, sy, 51, 51);
}

TEST(Shrink, ChannelsAreKeptApart) {
    Image from(9, 9, 4);
    for (std::size_t i = 0; i < from.bytes.size(); i++)
        from.bytes[i] = i % 4 == 2 ? static_cast<unsigned char>(i) : 0;
    const Image to = shrunk(from, 3, 3, 3, 3);
    for (std::size_t i = 0; i < to.bytes.size(); i++)
        EXPECT_EQ(to.bytes[i] != 0, i % 4 == 2) << i;
}

} // namespace
