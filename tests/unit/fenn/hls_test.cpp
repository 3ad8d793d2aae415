#include <gtest/gtest.h>

#include <brask/fenn.h>

namespace {

struct Color {
    float a, b, c;
};

Color to_hls(float r, float g, float b) {
    Color hls{-1, -1, -1};
    RGB_to_HLS(r, g, b, &hls.a, &hls.b, &hls.c);
    return hls;
}

Color to_rgb(float h, float l, float s) {
    Color rgb{-1, -1, -1};
    HLS_to_RGB(h, l, s, &rgb.a, &rgb.b, &rgb.c);
    return rgb;
}

void expect_near(const Color& color, float a, float b, float c) {
    EXPECT_NEAR(color.a, a, 1e-5);
    EXPECT_NEAR(color.b, b, 1e-5);
    EXPECT_NEAR(color.c, c, 1e-5);
}

TEST(Hls, PureColoursStandAtTheirHues) {
    expect_near(to_hls(1, 0, 0), 0, 0.5f, 1);
    expect_near(to_hls(1, 1, 0), 1.0f / 6, 0.5f, 1);
    expect_near(to_hls(0, 1, 0), 2.0f / 6, 0.5f, 1);
    expect_near(to_hls(0, 1, 1), 3.0f / 6, 0.5f, 1);
    expect_near(to_hls(0, 0, 1), 4.0f / 6, 0.5f, 1);
    expect_near(to_hls(1, 0, 1), 5.0f / 6, 0.5f, 1);
}

TEST(Hls, HuesGiveThePureColours) {
    expect_near(to_rgb(0, 0.5f, 1), 1, 0, 0);
    expect_near(to_rgb(1.0f / 6, 0.5f, 1), 1, 1, 0);
    expect_near(to_rgb(2.0f / 6, 0.5f, 1), 0, 1, 0);
    expect_near(to_rgb(3.0f / 6, 0.5f, 1), 0, 1, 1);
    expect_near(to_rgb(4.0f / 6, 0.5f, 1), 0, 0, 1);
    expect_near(to_rgb(5.0f / 6, 0.5f, 1), 1, 0, 1);
    expect_near(to_rgb(1, 0.5f, 1), 1, 0, 0);
}

TEST(Hls, GreysHaveNoHueAndNoSaturation) {
    expect_near(to_hls(0, 0, 0), 0, 0, 0);
    expect_near(to_hls(1, 1, 1), 0, 1, 0);
    expect_near(to_hls(0.4f, 0.4f, 0.4f), 0, 0.4f, 0);
    expect_near(to_rgb(0.7f, 0.4f, 0), 0.4f, 0.4f, 0.4f);
}

TEST(Hls, LightnessAndSaturationBetweenTheEnds) {
    expect_near(to_hls(0.75f, 0.25f, 0.25f), 0, 0.5f, 0.5f);
    expect_near(to_rgb(0, 0.75f, 1), 1, 0.5f, 0.5f);
    expect_near(to_rgb(0, 0.25f, 1), 0.5f, 0, 0);
}

TEST(Hls, ThereAndBackGivesTheSameByte) {
    for (int r = 0; r < 256; r += 5)
        for (int g = 0; g < 256; g += 3)
            for (int b = 0; b < 256; b += 5) {
                const Color hls = to_hls(r / 255.0f, g / 255.0f, b / 255.0f);
                ASSERT_TRUE(hls.a >= 0 && hls.a <= 1 && hls.b >= 0 && hls.b <= 1 && hls.c >= 0 && hls.c <= 1);
                const Color rgb = to_rgb(hls.a, hls.b, hls.c);
                ASSERT_EQ(static_cast<int>(rgb.a * 255 + 0.5f), r);
                ASSERT_EQ(static_cast<int>(rgb.b * 255 + 0.5f), g);
                ASSERT_EQ(static_cast<int>(rgb.c * 255 + 0.5f), b);
            }
}

TEST(Hls, ResultsMayBeLeftOut) {
    float light = 0, green = 0;
    RGB_to_HLS(1, 0, 0, nullptr, &light, nullptr);
    EXPECT_FLOAT_EQ(light, 0.5f);
    HLS_to_RGB(1.0f / 3, 0.5f, 1, nullptr, &green, nullptr);
    EXPECT_FLOAT_EQ(green, 1);
}

} // namespace
