// Text of many scripts: fallback faces, order, joining, and a sign for what has no glyph.
#include <string>

#include <gtest/gtest.h>

#include "page.h"

namespace {

TEST(Scripts, EachScriptIsShownInAFaceThatHasIt) {
    const wchar_t* const letters[] = {
        L"A", L"é", L"ő", L"Ω", L"Я", L"א", L"ب", L"漢", L"字", L"か", L"ナ",
    };
    for (const wchar_t* letter : letters) {
        const Picture picture = written(nullptr, letter);
        EXPECT_GT(ink(picture), 8) << letter;
        EXPECT_FALSE(is_box(picture)) << letter;
    }
}

#ifndef _WIN32
// Of the fonts that the set-up installs: Bengali, Tamil, Thai, Georgian, Armenian, Ethiopic, Devanagari, a
// sign.
TEST(Scripts, FallbackReachesEveryInstalledFace) {
    for (const wchar_t* letter : {L"ব", L"த", L"ท", L"ა", L"Ա", L"ሀ", L"क", L"☺"}) {
        const Picture picture = written(nullptr, letter);
        EXPECT_GT(ink(picture), 8) << letter;
        EXPECT_FALSE(is_box(picture)) << letter;
    }
}
#endif

TEST(Scripts, WhatNoFaceHasIsShownByItsCode) {
    const wchar_t* const missing[] = {L"\U0010FFFD", L"\uE123", L"\x01", L"\x1F", L"\x7F"};
    for (const wchar_t* text : missing)
        EXPECT_TRUE(is_box(written(nullptr, text))) << *text;
    EXPECT_NE(written(nullptr, L"\uE123"), written(nullptr, L"\uE124"));
    // Also between others, and one for each.
    const int one = Zeb_Font_Size_String(nullptr, L"\uE123");
    EXPECT_EQ(Zeb_Font_Size_String(nullptr, L"\uE123\uE124"), 2 * one);
    EXPECT_EQ(Zeb_Font_Size_String(nullptr, L"a\uE123z"), Zeb_Font_Size_String(nullptr, L"az") + one);
}

TEST(Scripts, NoVisibleCharacterLeavesAGap) {
    // Every character of these blocks that is assigned and visible.
    const struct {
        char32_t first, last;
    } blocks[] = {{0x21, 0x7E},     {0xA1, 0xAC},     {0xAE, 0x17F},    {0x391, 0x3A1},  {0x3A3, 0x3CE},
                  {0x400, 0x45F},   {0x5D0, 0x5EA},   {0x627, 0x63A},   {0x641, 0x64A},  {0x905, 0x939},
                  {0x2190, 0x21FF}, {0x2500, 0x257F}, {0x4E00, 0x4E40}, {0xAC00, 0xAC20}};
    for (const auto& block : blocks)
        for (char32_t code = block.first; code <= block.last; ++code) {
            const wchar_t text[] = {static_cast<wchar_t>(code), 0};
            EXPECT_GT(ink(written(nullptr, text)), 0) << std::hex << static_cast<unsigned>(code);
        }
}

TEST(Scripts, BlanksStayBlank) {
    for (const wchar_t* blank : {L" ", L"\u00A0", L"\t", L"\n", L"\u2003", L"\u3000"}) {
        EXPECT_EQ(ink(written(nullptr, blank)), 0);
        EXPECT_GT(Zeb_Font_Size_String(nullptr, blank), 0);
    }
    EXPECT_EQ(Zeb_Font_Size_String(nullptr, L"\t"), Zeb_Font_Size_String(nullptr, L" "));
}

TEST(Scripts, HebrewRunsFromRightToLeft) {
    const int last = Zeb_Font_Size_String(nullptr, L"ל");
    EXPECT_EQ(written(nullptr, L"אל"), written(nullptr, {{8, L"ל"}, {8 + last, L"א"}}));
    EXPECT_NE(written(nullptr, L"אל"), written(nullptr, L"לא"));
}

// How wide the leftmost piece of ink is, up to the first empty column.
std::size_t first_piece(const Picture& picture) {
    const Picture shape = trimmed(picture);
    std::size_t column = 0;
    const auto is_used = [&](const std::string& row) { return row[column] != '.'; };
    while (column < shape[0].size() && std::any_of(shape.begin(), shape.end(), is_used))
        ++column;
    return column;
}

TEST(Scripts, TheFirstLetterGivesTheDirectionOfTheWhole) {
    // The mark at the end of a Hebrew sentence stands on its left, a word before it on the right.
    const std::size_t mark = first_piece(written(nullptr, L"!"));
    EXPECT_LE(first_piece(written(nullptr, L"שש!")), mark + 1);
    EXPECT_GT(first_piece(written(nullptr, L"!שש")), mark + 1);
    const int a = Zeb_Font_Size_String(nullptr, L"a");
    EXPECT_EQ(written(nullptr, L"aאל"), written(nullptr, {{8, L"a"}, {8 + a, L"אל"}}));
}

TEST(Scripts, ArabicLettersJoin) {
    const int alone = Zeb_Font_Size_String(nullptr, L"ب");
    const Picture apart = written(nullptr, {{8, L"ب"}, {8 + alone, L"ب"}, {8 + 2 * alone, L"ب"}});
    EXPECT_NE(trimmed(written(nullptr, L"ببب")), trimmed(apart));
}

TEST(Scripts, MarksSitOnTheirLetters) {
    // The letter may come from another face than alone: the one that has the mark too.
    EXPECT_NEAR(Zeb_Font_Size_String(nullptr, L"x\u0302"), Zeb_Font_Size_String(nullptr, L"x"), 2);
    EXPECT_GT(ink(written(nullptr, L"x\u0302")), ink(written(nullptr, L"x")));
    EXPECT_NE(written(nullptr, L"x\u0302"), written(nullptr, L"x\u0301"));
}

TEST(Scripts, SurrogatePairsAreOneCharacter) {
    const wchar_t pair[] = {0xDBFF, 0xDFFD, 0}; // U+10FFFD
    EXPECT_EQ(written(nullptr, pair), written(nullptr, L"\U0010FFFD"));
    EXPECT_EQ(Zeb_Font_Size_String(nullptr, pair), Zeb_Font_Size_String(nullptr, L"\U0010FFFD"));
    const wchar_t face[] = {0xD83D, 0xDE00, 0}; // U+1F600
    EXPECT_EQ(written(nullptr, face), written(nullptr, L"\U0001F600"));
    EXPECT_GT(ink(written(nullptr, face)), 8);
}

TEST(Scripts, BrokenTextIsHarmless) {
    const wchar_t lone[] = {0xD83D, L'a', 0xDE00, 0};
    EXPECT_GT(Zeb_Font_Size_String(nullptr, lone), Zeb_Font_Size_String(nullptr, L"a"));
    for (const wchar_t* text :
         {L"\u0301", L"\u200D\u200D", L"\u202E\u202Eab\u202C", L"\uFE0F", L"\u094D\u094D",
          L"\u2067\u2067\u2067", L"\u0301\u05D0\u0301\u0301\u0628\U0001F3FD"})
        EXPECT_EQ(Zeb_Font_Size_String(nullptr, text), Zeb_Font_Size_String(nullptr, text));
}

TEST(Scripts, BoldAndItalicReachTheFallbackFaces) {
    const Face regular(-24), bold(-24, 700), italic(-24, 0, 1);
    EXPECT_NE(written(bold, L"漢字"), written(regular, L"漢字"));
    EXPECT_NE(written(italic, L"漢字"), written(regular, L"漢字"));
}

} // namespace
