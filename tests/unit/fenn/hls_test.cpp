#include <limits>
#include <vector>

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

// Every colour of three bytes, as `component` makes one of a byte, there and back; `byte` is the way back.
// Gives the colours that came back as others.
template <typename Component, typename Byte, typename Check>
std::vector<unsigned> strays(Component component, Byte byte, Check check) {
    std::vector<unsigned> found;
    for (unsigned word = 0; word < 1u << 24; word++) {
        const Color hls =
            to_hls(component(word >> 16 & 255), component(word >> 8 & 255), component(word & 255));
        check(hls);
        const Color rgb = to_rgb(hls.a, hls.b, hls.c);
        if ((byte(rgb.a) << 16 | byte(rgb.b) << 8 | byte(rgb.c)) != word) found.push_back(word);
    }
    return found;
}

TEST(Hls, ThereAndBackGivesTheSameByte) {
    bool inside = true;
    const auto found = strays([](unsigned byte) { return static_cast<float>(byte) / 255.0f; },
                              [](float part) { return static_cast<unsigned>(part * 255 + 0.5f); },
                              [&inside](const Color& hls) {
                                  for (float part : {hls.a, hls.b, hls.c})
                                      inside = inside && part >= 0 && part <= 1;
                              });
    EXPECT_TRUE(inside);
    EXPECT_EQ(found, std::vector<unsigned>());
}

TEST(Hls, TheMiddleOfEachByteComesBackButForNearlyWhite) {
    const auto found =
        strays([](unsigned byte) { return (static_cast<float>(byte) + 0.5f) / 255.0f; },
               [](float part) { return static_cast<unsigned>(part * 255); }, [](const Color&) {});
    // Those that leave no room for a saturation become white.
    const std::vector<unsigned> nearly_white = {0xFEFEFF, 0xFEFFFE, 0xFEFFFF, 0xFFFEFE, 0xFFFEFF, 0xFFFFFE};
    EXPECT_EQ(found, nearly_white);
}

TEST(Hls, ResultsAreHeldBetween0And1) {
    const float parts[] = {-2,
                           0,
                           0.5f,
                           1.00196f,
                           1.5f,
                           100,
                           std::numeric_limits<float>::infinity(),
                           std::numeric_limits<float>::quiet_NaN()};
    for (float h : parts)
        for (float l : parts)
            for (float s : parts) {
                const Color rgb = to_rgb(h, l, s);
                for (float part : {rgb.a, rgb.b, rgb.c})
                    ASSERT_TRUE(part >= 0 && part <= 1) << h << ' ' << l << ' ' << s;
            }
}

TEST(Hls, NoRoomForASaturationMakesItFull) {
    EXPECT_EQ(to_hls(1.00196f, 0.999f, 1.00196f).c, 1);
    EXPECT_EQ(to_hls(0.5f, -0.5f, 0).c, 1);
}

TEST(Hls, ResultsMayBeLeftOut) {
    float light = 0, green = 0;
    RGB_to_HLS(1, 0, 0, nullptr, &light, nullptr);
    EXPECT_FLOAT_EQ(light, 0.5f);
    HLS_to_RGB(1.0f / 3, 0.5f, 1, nullptr, &green, nullptr);
    EXPECT_FLOAT_EQ(green, 1);
}

} // namespace
