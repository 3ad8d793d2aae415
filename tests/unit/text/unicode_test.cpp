#include "text/unicode.h"

#include <gtest/gtest.h>

#include <cstring>
#include <vector>

namespace {

std::vector<char32_t> codes(const char* text) {
    std::vector<char32_t> all;
    while (const char32_t code = text::next(text))
        all.push_back(code);
    return all;
}

std::vector<char32_t> codes(const wchar_t* text) {
    std::vector<char32_t> all;
    while (const char32_t code = text::next(text))
        all.push_back(code);
    return all;
}

using Codes = std::vector<char32_t>;

TEST(Unicode, EveryCodePointSurvivesUtf8AndWide) {
    for (char32_t code = 1; code <= 0x10FFFF; ++code) {
        if (code == 0xD800) code = 0xE000;
        char narrow[5] = {};
        const char* narrow_at = narrow;
        const int narrow_size = text::put(code, narrow);
        ASSERT_EQ(text::next(narrow_at), code);
        ASSERT_EQ(narrow_at - narrow, narrow_size);
        wchar_t wide[3] = {};
        const wchar_t* wide_at = wide;
        const int wide_size = text::put(code, wide);
        ASSERT_EQ(text::next(wide_at), code);
        ASSERT_EQ(wide_at - wide, wide_size);
    }
}

TEST(Unicode, Utf8HasItsKnownForms) {
    EXPECT_EQ(text::to_utf8(L"\u00E9"), "\xC3\xA9");
    EXPECT_EQ(text::to_utf8(L"\u20AC"), "\xE2\x82\xAC");
    EXPECT_EQ(text::to_utf8(L"\U0001F600"), "\xF0\x9F\x98\x80");
    EXPECT_EQ(text::to_wide("A\xE2\x82\xAC"), L"A\u20AC");
    EXPECT_EQ(text::to_wide("\xF0\x9F\x98\x80"), L"\U0001F600");
}

TEST(Unicode, TheEndIsNotPassed) {
    const char* narrow = "";
    const char* narrow_start = narrow;
    EXPECT_EQ(text::next(narrow), 0u);
    EXPECT_EQ(narrow, narrow_start);
    const wchar_t* wide = L"";
    const wchar_t* wide_start = wide;
    EXPECT_EQ(text::next(wide), 0u);
    EXPECT_EQ(wide, wide_start);
}

TEST(Unicode, StrayBytesBecomeTheirOwnNumber) {
    EXPECT_EQ(codes("\xF1"), Codes({0xF1})); // as a mark in narrow text
    EXPECT_EQ(codes("a\x80z"), Codes({'a', 0x80, 'z'}));
    EXPECT_EQ(codes("\xFF\xFE"), Codes({0xFF, 0xFE}));
}

TEST(Unicode, CutSequencesStopAtTheTerminator) {
    EXPECT_EQ(codes("\xE2\x82"), Codes({0xE2, 0x82}));
    EXPECT_EQ(codes("\xF0\x9F\x98"), Codes({0xF0, 0x9F, 0x98}));
    EXPECT_EQ(codes("\xC3"), Codes({0xC3}));
    EXPECT_EQ(codes("\xE2\x82X"), Codes({0xE2, 0x82, 'X'}));
}

TEST(Unicode, OverlongFormsSurrogatesAndTooLargeCodesAreNoUtf8) {
    EXPECT_EQ(codes("\xC0\x80"), Codes({0xC0, 0x80}));
    EXPECT_EQ(codes("\xE0\x80\xAF"), Codes({0xE0, 0x80, 0xAF}));
    EXPECT_EQ(codes("\xF0\x8F\xBF\xBF"), Codes({0xF0, 0x8F, 0xBF, 0xBF}));
    EXPECT_EQ(codes("\xED\xA0\x80"), Codes({0xED, 0xA0, 0x80}));
    EXPECT_EQ(codes("\xF4\x90\x80\x80"), Codes({0xF4, 0x90, 0x80, 0x80}));
    EXPECT_EQ(codes("\xF5\x80\x80\x80"), Codes({0xF5, 0x80, 0x80, 0x80}));
}

TEST(Unicode, SurrogatePairsAreJoinedOnBothSystems) {
    const wchar_t pair[] = {wchar_t(0xD83D), wchar_t(0xDE00), L'!', 0};
    EXPECT_EQ(codes(pair), Codes({0x1F600, '!'}));
    EXPECT_EQ(text::to_utf8(pair), "\xF0\x9F\x98\x80!");
}

TEST(Unicode, LoneSurrogatesAreReplaced) {
    const wchar_t high[] = {wchar_t(0xD83D), 0};
    const wchar_t low[] = {wchar_t(0xDE00), L'a', 0};
    const wchar_t twice[] = {wchar_t(0xD83D), wchar_t(0xD83D), wchar_t(0xDE00), 0};
    EXPECT_EQ(codes(high), Codes({0xFFFD}));
    EXPECT_EQ(codes(low), Codes({0xFFFD, 'a'}));
    EXPECT_EQ(codes(twice), Codes({0xFFFD, 0x1F600}));
}

TEST(Unicode, WhatIsNoCodePointIsWrittenAsTheReplacement) {
    for (const char32_t bad :
         {char32_t(0xD800), char32_t(0xDFFF), char32_t(0x110000), char32_t(0xFFFFFFFF)}) {
        char narrow[4];
        ASSERT_EQ(text::put(bad, narrow), 3);
        EXPECT_EQ(0, std::memcmp(narrow, "\xEF\xBF\xBD", 3));
        wchar_t wide[2];
        ASSERT_EQ(text::put(bad, wide), 1);
        EXPECT_EQ(wide[0], wchar_t(0xFFFD));
    }
}

} // namespace
