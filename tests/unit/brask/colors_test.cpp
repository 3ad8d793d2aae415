#include <climits>
#include <cmath>
#include <ostream>

#include <gtest/gtest.h>

#include <brask/colors.h>

// The colour value needs no drawing layer: everything here is arithmetic.

namespace {

struct Channels {
    int r, g, b, a;
    bool operator==(const Channels& o) const { return r == o.r && g == o.g && b == o.b && a == o.a; }
};
std::ostream& operator<<(std::ostream& out, const Channels& c) {
    return out << "(" << c.r << ", " << c.g << ", " << c.b << ", " << c.a << ")";
}
Channels channels(const Colors& c) { return {c.R, c.G, c.B, c.A}; }

using byte = unsigned char;

TEST(ColorsMade, WithoutArgumentsAllChannelsAreZero) {
    EXPECT_EQ(channels(Colors()), (Channels{0, 0, 0, 0}));
}

TEST(ColorsMade, CopyTakesAllChannels) {
    const Colors source(-7, 300, 1, 9);
    EXPECT_EQ(channels(Colors(source)), (Channels{-7, 300, 1, 9}));
}

TEST(ColorsMade, OneValueFillsThreeChannels) {
    EXPECT_EQ(channels(Colors(byte(200))), (Channels{200, 200, 200, 0}));
    EXPECT_EQ(channels(Colors(short(-300))), (Channels{-300, -300, -300, 0}));
}

TEST(ColorsMade, FromChannels) {
    EXPECT_EQ(channels(Colors(byte(1), byte(2), byte(255))), (Channels{1, 2, 255, 0}));
    EXPECT_EQ(channels(Colors(byte(1), byte(2), byte(3), byte(4))), (Channels{1, 2, 3, 4}));
    EXPECT_EQ(channels(Colors(-1, 256, 32767)), (Channels{-1, 256, 32767, 0}));
    EXPECT_EQ(channels(Colors(-1, 256, -32768, 999)), (Channels{-1, 256, -32768, 999}));
}

TEST(ColorsMade, IntegersAreCutTo16Bits) {
    EXPECT_EQ(channels(Colors(0x12345, 0x18000, -65537)), (Channels{0x2345, -32768, -1, 0}));
    EXPECT_EQ(channels(Colors(INT_MAX, INT_MIN, 65536, 0x1FFFF)), (Channels{-1, 0, 0, -1}));
}

TEST(ColorsMade, FromAWordTakesTheAlphaByte) {
    EXPECT_EQ(channels(Colors(0xAABBCCDDu)), (Channels{0xDD, 0xCC, 0xBB, 0xAA}));
    EXPECT_EQ(channels(Colors(0xAABBCCDDul)), (Channels{0xDD, 0xCC, 0xBB, 0xAA}));
}

TEST(ColorsMade, FromArrays) {
    const byte bytes[3] = {255, 0, 7};
    const int ints[3] = {-5, 70000, 12};
    EXPECT_EQ(channels(Colors(bytes)), (Channels{255, 0, 7, 0}));
    EXPECT_EQ(channels(Colors(ints)), (Channels{-5, 70000 - 65536, 12, 0}));
}

// Every assignment and every `set` on an object whose channels are all known, so that what is left alone
// shows.
struct Written : testing::Test {
    Colors c{11, 12, 13, 9};
};

TEST_F(Written, AssignmentOfAColourCopiesAlphaToo) {
    EXPECT_EQ(&(c = Colors(1, 2, 3, 4)), &c);
    EXPECT_EQ(channels(c), (Channels{1, 2, 3, 4}));
}

TEST_F(Written, AssignmentOfOneValueLeavesAlpha) {
    EXPECT_EQ(&(c = byte(5)), &c);
    EXPECT_EQ(channels(c), (Channels{5, 5, 5, 9}));
    EXPECT_EQ(&(c = short(-300)), &c);
    EXPECT_EQ(channels(c), (Channels{-300, -300, -300, 9}));
}

TEST_F(Written, AssignmentOfAWordLeavesAlpha) {
    EXPECT_EQ(&(c = 0xAABBCCDDu), &c);
    EXPECT_EQ(channels(c), (Channels{0xDD, 0xCC, 0xBB, 9}));
    EXPECT_EQ(&(c = 0x11223344ul), &c);
    EXPECT_EQ(channels(c), (Channels{0x44, 0x33, 0x22, 9}));
}

TEST_F(Written, SetOfAColourLeavesAlpha) {
    c.set(Colors(1, 2, 3, 4));
    EXPECT_EQ(channels(c), (Channels{1, 2, 3, 9}));
}

TEST_F(Written, SetOfOneValueOrAWordLeavesAlpha) {
    c.set(byte(5));
    EXPECT_EQ(channels(c), (Channels{5, 5, 5, 9}));
    c.set(short(-300));
    EXPECT_EQ(channels(c), (Channels{-300, -300, -300, 9}));
    c.set(0xAABBCCDDu);
    EXPECT_EQ(channels(c), (Channels{0xDD, 0xCC, 0xBB, 9}));
    c.set(0x11223344ul);
    EXPECT_EQ(channels(c), (Channels{0x44, 0x33, 0x22, 9}));
}

TEST_F(Written, SetOfFourChannelsTakesThemAll) {
    c.set(byte(1), byte(2), byte(3), byte(4));
    EXPECT_EQ(channels(c), (Channels{1, 2, 3, 4}));
    c.set(-1, 0x10001, 256, 70000);
    EXPECT_EQ(channels(c), (Channels{-1, 1, 256, 70000 - 65536}));
}

TEST_F(Written, SetOfAnArrayLeavesAlpha) {
    const byte bytes[3] = {255, 0, 7};
    const int ints[3] = {-5, 65537, 12};
    c.set(bytes);
    EXPECT_EQ(channels(c), (Channels{255, 0, 7, 9}));
    c.set(ints);
    EXPECT_EQ(channels(c), (Channels{-5, 1, 12, 9}));
}

TEST_F(Written, NullArraysReadAsBlack) {
    EXPECT_EQ(channels(Colors(static_cast<const byte*>(nullptr))), (Channels{0, 0, 0, 0}));
    EXPECT_EQ(channels(Colors(static_cast<const int*>(nullptr))), (Channels{0, 0, 0, 0}));
    c.set(static_cast<const byte*>(nullptr));
    EXPECT_EQ(channels(c), (Channels{0, 0, 0, 9}));
}

TEST(ColorsArithmetic, AddsAValueWithoutClamping) {
    Colors c(200, -5, 0, 9);
    EXPECT_EQ(&(c += short(100)), &c);
    EXPECT_EQ(channels(c), (Channels{300, 95, 100, 9}));
}

TEST(ColorsArithmetic, WrapsIn16Bits) {
    Colors c(32767, -32768, 0, 9);
    c += short(1);
    EXPECT_EQ(channels(c), (Channels{-32768, -32767, 1, 9}));
    c -= Colors(1, 2, 3, 100);
    EXPECT_EQ(channels(c), (Channels{32767, 32767, -2, 9}));
}

TEST(ColorsArithmetic, AddsAWordByteByByteWithoutCarry) {
    Colors c(255, 0, 1, 9);
    EXPECT_EQ(&(c += 0x77030201u), &c);
    EXPECT_EQ(channels(c), (Channels{256, 2, 4, 9}));
    c += 0x00FF00FFul;
    EXPECT_EQ(channels(c), (Channels{511, 2, 259, 9}));
}

TEST(ColorsArithmetic, AddsAFractionOfFullRangeCutTowardZero) {
    Colors c(100, 100, 100, 9);
    EXPECT_EQ(&(c += 0.5f), &c);
    EXPECT_EQ(channels(c), (Channels{227, 227, 227, 9})); // 127.5 is cut to 127
    c += -0.5f;
    EXPECT_EQ(channels(c), (Channels{100, 100, 100, 9})); // and -127.5 to -127
    // The product is cut before it is added: -7 and -0.51 make -7, not -6 or -8.
    Colors negative(-7, -7, -7);
    negative += 0.002f;
    EXPECT_EQ(channels(negative), (Channels{-7, -7, -7, 0}));
}

TEST(ColorsArithmetic, ScalesCutTowardZero) {
    Colors c(227, -227, 3, 9);
    EXPECT_EQ(&(c *= 0.5f), &c);
    EXPECT_EQ(channels(c), (Channels{113, -113, 1, 9}));
}

// 0.1f * 255.0f is 25.5 in single precision and a little more in double; 0.7f * 90 is 63 in single and less
// in double.
TEST(ColorsArithmetic, RoundsInSinglePrecision) {
    Colors c(90, 10, 30);
    c *= 0.7f;
    EXPECT_EQ(channels(c), (Channels{static_cast<int>(90.0f * 0.7f), 7, 21, 0}));
    EXPECT_EQ(static_cast<int>(90.0f * 0.7f), 63);
}

TEST(ColorsArithmetic, AddsAndSubtractsColoursChannelByChannel) {
    Colors c(200, 200, 200, 9);
    c += short(100);
    EXPECT_EQ(&(c -= Colors(100, 100, 100, 50)), &c);
    EXPECT_EQ(channels(c), (Channels{200, 200, 200, 9})); // out of range on the way and back, not 155
    EXPECT_EQ(&(c += Colors(1, -2, 300, 50)), &c);
    EXPECT_EQ(channels(c), (Channels{201, 198, 500, 9}));
    const Colors& itself = c;
    c += itself;
    EXPECT_EQ(channels(c), (Channels{402, 396, 1000, 9}));
    c -= itself;
    EXPECT_EQ(channels(c), (Channels{0, 0, 0, 9}));
}

TEST(ColorsArithmetic, MinusGivesANewColour) {
    const Colors c(1, -2, 300, 9);
    EXPECT_EQ(channels(-c), (Channels{-1, 2, -300, 0}));
    EXPECT_EQ(channels(c), (Channels{1, -2, 300, 9}));
    EXPECT_EQ(channels(-Colors(-32768, 0, 0)), (Channels{-32768, 0, 0, 0}));
}

// Factors that no integer can hold saturate first, then wrap like any other value.
TEST(ColorsArithmetic, SurvivesEveryFloat) {
    for (const float f : {1e30f, -1e30f, INFINITY, -INFINITY, NAN, 1e9f, -1e9f, 3e38f}) {
        Colors added(1, 2, 3, 9), scaled(1, 2, -3, 9);
        added += f;
        scaled *= f;
        EXPECT_EQ(added.A, 9) << f;
        EXPECT_EQ(scaled.A, 9) << f;
    }
    Colors c(5, 5, 5);
    c += 1e30f; // INT_MAX wraps to -1 in 16 bits
    EXPECT_EQ(channels(c), (Channels{4, 4, 4, 0}));
    c = Colors(5, 5, -5);
    c *= 1e30f;
    EXPECT_EQ(channels(c), (Channels{-1, -1, 0, 0}));
}

TEST(ColorsRead, EqualityLooksAtThreeChannels) {
    EXPECT_EQ(Colors(1, 2, 3, 4) == Colors(1, 2, 3, 9), 1);
    EXPECT_EQ(Colors(1, 2, 3) == Colors(0, 2, 3), 0);
    EXPECT_EQ(Colors(1, 2, 3) == Colors(1, 0, 3), 0);
    EXPECT_EQ(Colors(1, 2, 3) == Colors(1, 2, 0), 0);
    EXPECT_EQ(Colors(256, 0, 0) == Colors(255, 0, 0), 0); // not what is shown, what is kept
}

TEST(ColorsRead, IndexIsClamped) {
    const Colors c(300, -5, 128, 7);
    const int expected[] = {255, 0, 128, 7};
    for (int i = 0; i < 4; ++i)
        EXPECT_EQ(c[i], expected[i]) << i;
    for (const int i : {4, -1, 5, INT_MAX, INT_MIN})
        EXPECT_EQ(c[i], 0) << i;
    EXPECT_EQ(Colors(255, 256, 254)[0], 255);
    EXPECT_EQ(Colors(255, 256, 254)[1], 255);
    EXPECT_EQ(Colors(255, 256, 254)[2], 254);
    EXPECT_EQ(Colors(0, 0, 0, -1)[3], 0);
}

struct WordRow {
    int r, g, b, a;
    unsigned long drawing, surface;
};
TEST(ColorsRead, WordsClampEachChannel) {
    const WordRow rows[] = {
        {300, -5, 128, 0, 0x008000FF, 0x00FF0080},
        {0, 0, 0, 0, 0, 0},
        {1, 2, 3, 4, 0x04030201, 0x04010203},
        {255, 256, 32767, 255, 0xFFFFFFFF, 0xFFFFFFFF},
        {-1, -32768, 0, -1, 0, 0},
        {254, 1, 0, 300, 0xFF0001FE, 0xFFFE0100},
    };
    for (const WordRow& row : rows) {
        const Colors c(row.r, row.g, row.b, row.a);
        EXPECT_EQ(c.get(), row.drawing) << channels(c);
        EXPECT_EQ(c.get_invert(), row.surface) << channels(c);
    }
}

TEST(ColorsRead, WordsComeBackFromTheirConstructor) {
    for (unsigned i = 0; i < 256; ++i) {
        const unsigned word = i << 24 | (i * 7 & 255) << 16 | (255 - i) << 8 | i;
        EXPECT_EQ(Colors(word).get(), word);
    }
}

#ifndef _WIN32
TEST(ColorsMade, OnlyTheLow32BitsOfAWordCount) {
    EXPECT_EQ(channels(Colors(0x1234'AABBCCDDul)), (Channels{0xDD, 0xCC, 0xBB, 0xAA}));
    Colors c(1, 1, 1);
    c += 0xFFFFFFFF'00000001ul;
    EXPECT_EQ(channels(c), (Channels{2, 1, 1, 0}));
}
#endif

} // namespace
