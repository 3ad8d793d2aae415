#include <gtest/gtest.h>

#include "text/printable.h"

using text::printable;

TEST(Printable, LettersOfEveryScript) {
    for (const char32_t code : {U'a', U'~', U' ', U'\u00E4', U'\u0416', U'\u05D0', U'\u0627', U'\u0915',
                                U'\u4E2D', U'\u3042', U'\uAC00', U'\u20AC', U'\U0001F600', U'\U00020000'})
        EXPECT_TRUE(printable(code)) << std::hex << static_cast<unsigned>(code);
}

TEST(Printable, CombiningMarksBlanksAndPrivateCharacters) {
    for (const char32_t code : {U'\u0301', U'\u064B', U'\u00A0', U'\u3000', U'\uE000', U'\uFE0F', U'\uFFFD'})
        EXPECT_TRUE(printable(code)) << std::hex << static_cast<unsigned>(code);
}

TEST(Printable, BothHalvesOfAPair) {
    for (char32_t code = 0xD800; code <= 0xDFFF; code++)
        ASSERT_TRUE(printable(code));
}

TEST(Printable, ControlsAreRefused) {
    for (char32_t code = 0; code < 0x20; code++)
        EXPECT_FALSE(printable(code));
    for (char32_t code = 0x7F; code < 0xA0; code++)
        EXPECT_FALSE(printable(code));
    EXPECT_TRUE(printable(0x20) && printable(0x7E) && printable(0xA0));
}

TEST(Printable, FormatCharactersAndSeparatorsOfLinesAreRefused) {
    for (const char32_t code :
         {0x00ADu, 0x200Bu, 0x200Du, 0x200Eu, 0x202Eu, 0x2028u, 0x2029u, 0x2066u, 0xFEFFu, 0xE0001u})
        EXPECT_FALSE(printable(code)) << std::hex << static_cast<unsigned>(code);
}

TEST(Printable, WhatIsNotAssignedIsRefused) {
    for (const char32_t code : {0x0378u, 0xFFFEu, 0xFFFFu, 0x1FFFEu, 0x40000u, 0x110000u, 0xFFFFFFFFu})
        EXPECT_FALSE(printable(code)) << std::hex << static_cast<unsigned>(code);
}

TEST(Printable, TheRangesRiseAndLeaveRoom) {
    for (int i = 0; i < text::PRINTABLE_COUNT; i++) {
        const text::Range& range = text::PRINTABLE_RANGES[i];
        ASSERT_LE(range.first, range.last);
        EXPECT_TRUE(printable(range.first) && printable(range.last));
        EXPECT_FALSE(printable(range.first - 1) || printable(range.last + 1)); // neighbours are joined
    }
    EXPECT_GT(text::PRINTABLE_COUNT, 600);
}

TEST(Printable, AsciiGoesFromBlankToTilde) {
    for (int c = 0; c < 256; c++)
        EXPECT_EQ(text::printable_ascii(static_cast<unsigned char>(c)), c >= 0x20 && c <= 0x7E);
}
