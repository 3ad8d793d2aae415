// The text calls of the contract, in whatever fonts the system has.
#include <climits>
#include <string>

#include <gtest/gtest.h>

#include "page.h"

namespace {

const wchar_t* const samples[] = {
    L"a",
    L"W",
    L"Cancel",
    L"The quick brown fox jumps over the lazy dog.",
    L"AVAVA To. fi ffl",
    L"  spaces  ",
    L"Größe ändern, Être là",
    L"Съешь ещё этих",
    L"Ξεσκεπάζω την",
    L"שלום עולם! 123",
    L"السلام عليكم",
    L"हिन्दी क्षत्रिय",
    L"漢字かな한국어",
    L"e\u0301 x\u0302 \u0301",
    L"\U0001F600\U0001F389",
    L"\U0010FFFD\uE123\x01",
};

TEST(TextContract, WriteGivesTheWidthThatWasMeasured) {
    const Screen screen(64, 64);
    const Face small(-11), big(-30, 700, 1);
    const HFONT fonts[] = {nullptr, small, big};
    for (HFONT font : fonts)
        for (const wchar_t* text : samples) {
            const int before = Zeb_Font_Size_String(font, text);
            Zeb_setup(screen.wnd, "test");
            EXPECT_EQ(Zeb_Font_Write(font, 3, 3, text), before) << text;
            EXPECT_EQ(Zeb_Font_Size_String(font, text), before) << text;
            Zeb_release();
            EXPECT_GT(before, 0) << text;
        }
}

TEST(TextContract, LettersStandSideBySide) {
    // No kerning: a text is as wide as its letters, and looks like them one after the other.
    for (const wchar_t* text : {L"AVATo", L"Cancel", L"Größe", L"Съешь", L"Ωμέγα"}) {
        std::vector<std::wstring> letters;
        for (const wchar_t* at = text; *at; ++at)
            letters.emplace_back(1, *at);
        std::vector<At> pieces;
        int x = 8;
        for (const std::wstring& letter : letters) {
            pieces.push_back({x, letter.c_str()});
            x += Zeb_Font_Size_String(nullptr, letter.c_str());
        }
        EXPECT_EQ(Zeb_Font_Size_String(nullptr, text), x - 8) << text;
        EXPECT_EQ(trimmed(written(nullptr, pieces)).size(), trimmed(written(nullptr, text)).size()) << text;
    }
}

TEST(TextContract, NarrowTextIsUtf8) {
    EXPECT_EQ(Zeb_Font_Size_String(nullptr, "Gr\xC3\xB6\xC3\x9F"
                                            "e"),
              Zeb_Font_Size_String(nullptr, L"Größe"));
    EXPECT_EQ(Zeb_Font_Size_String(nullptr, "\xF0\x9F\x98\x80"),
              Zeb_Font_Size_String(nullptr, L"\U0001F600"));
    // A stray byte is the character of its own number.
    EXPECT_EQ(Zeb_Font_Size_String(nullptr, "a\xE9z"), Zeb_Font_Size_String(nullptr, L"aéz"));
}

TEST(TextContract, NoTextTakesNoRoom) {
    const Screen screen(20, 20);
    Painting painting(screen);
    EXPECT_EQ(Zeb_Font_Size_String(nullptr, L""), 0);
    EXPECT_EQ(Zeb_Font_Size_String(nullptr, static_cast<const wchar_t*>(nullptr)), 0);
    EXPECT_EQ(Zeb_Font_Size_String(nullptr, ""), 0);
    EXPECT_EQ(Zeb_Font_Size_String(nullptr, static_cast<const char*>(nullptr)), 0);
    EXPECT_EQ(Zeb_Font_Write(nullptr, 0, 0, L""), 0);
    EXPECT_EQ(Zeb_Font_Write(nullptr, 0, 0, nullptr), 0);
    EXPECT_EQ(screen.painted(), 0);
}

TEST(TextContract, NullFontIsArialOfSixteenPixels) {
    const Face arial(-16), bold(-16, 700), larger(-17);
    EXPECT_EQ(Zeb_Font_Size_Height(nullptr), Zeb_Font_Size_Height(arial));
    EXPECT_EQ(written(nullptr, L"Cancel 12"), written(arial, L"Cancel 12"));
    EXPECT_NE(written(nullptr, L"Cancel 12"), written(bold, L"Cancel 12"));
    EXPECT_NE(written(nullptr, L"Cancel 12"), written(larger, L"Cancel 12"));
}

TEST(TextContract, FamilyNamesAreFoundInAnyCase) {
    const Face lower(-20, 0, 0, L"arial"), upper(-20, 0, 0, L"ARIAL"), unknown(-20, 0, 0, L"No Such Family");
    EXPECT_EQ(written(lower, L"Quick"), written(upper, L"Quick"));
    EXPECT_GT(Zeb_Font_Size_String(unknown, L"Quick"), 0);
    const Face monospaced(-20, 0, 0, L"Liberation Mono");
    EXPECT_EQ(Zeb_Font_Size_String(monospaced, L"iiii"), Zeb_Font_Size_String(monospaced, L"WWWW"));
    EXPECT_LT(Zeb_Font_Size_String(lower, L"iiii"), Zeb_Font_Size_String(lower, L"WWWW"));
}

TEST(TextContract, BoldAndItalicShow) {
    const Face regular(-24), bold(-24, 700), italic(-24, 0, 1);
    EXPECT_GT(ink(written(bold, L"HHH")), ink(written(regular, L"HHH")));
    EXPECT_NE(written(italic, L"HHH"), written(regular, L"HHH"));
}

TEST(TextContract, ForeignHandlesAreArialOfSixteenPixels) {
    const int value = 5;
    const HPEN pen = CreatePen(PS_SOLID, 1, 0);
    const HFONT handles[] = {reinterpret_cast<HFONT>(const_cast<int*>(&value)), reinterpret_cast<HFONT>(pen),
                             reinterpret_cast<HFONT>(-1)};
    for (HFONT handle : handles) {
        EXPECT_EQ(Zeb_Font_Size_Height(handle), Zeb_Font_Size_Height(nullptr));
        EXPECT_EQ(written(handle, L"Cancel"), written(nullptr, L"Cancel"));
    }
    DeleteObject(pen);
}

TEST(TextContract, DeletedFontsLeaveNothingBehind) {
    int widths[8] = {};
    for (int round = 0; round < 40; ++round)
        for (int i = 0; i < 8; ++i) {
            const Face face(-(10 + 3 * i), i % 2 ? 700 : 0);
            const int width = Zeb_Font_Size_String(face, L"Cancel");
            if (round == 0) widths[i] = width;
            EXPECT_EQ(width, widths[i]);
            if (i > 0) {
                EXPECT_GT(width, widths[i - 1]);
            }
        }
}

TEST(TextContract, LineHeightGrowsWithTheSize) {
    int last = 0;
    for (int size = 1; size <= 200; ++size) {
        const Face face(-size);
        const int height = Zeb_Font_Size_Height(face);
        EXPECT_GE(height, size);
        EXPECT_LE(height, size * 3 / 2 + 2);
        EXPECT_GE(height, last);
        EXPECT_GT(Zeb_Font_Size_String(face, L"WWWW"), 0);
        last = height;
    }
}

TEST(TextContract, PositiveHeightIsThatOfTheLine) {
    for (int height : {12, 18, 40, 100}) {
        const Face face(height);
        EXPECT_NEAR(Zeb_Font_Size_Height(face), height, 1);
    }
}

TEST(TextContract, EverySizePaints) {
    const Screen screen(300, 260);
    for (int size = 1; size <= 200; size += 7) {
        const Face face(-size);
        Painting painting(screen, 0);
        draw_fill_rectangle(0, 259, 300, -1);
        Zeb_Font_Color(white, 0);
        Zeb_Font_Write(face, 4, 4, L"M");
        EXPECT_GT(screen.painted(), 0) << size;
    }
}

TEST(TextContract, OddHeightsAreHarmless) {
    for (int height : {0, INT_MAX, INT_MIN, -100000, 100000}) {
        const Face face(height);
        EXPECT_GT(Zeb_Font_Size_Height(face), 0);
        EXPECT_GT(ink(written(face, L"\u2588M\U0010FFFD")), 0) << height;
    }
}

TEST(TextContract, LowerLeftCornerOfTheLineStandsAtThePoint) {
    const Picture picture = written(nullptr, {{20, L"|g(Ågj"}}, 10, 160, 48);
    const int height = Zeb_Font_Size_Height(nullptr);
    const int width = Zeb_Font_Size_String(nullptr, L"|g(Ågj");
    for (int row = 0; row < 48; ++row)
        for (int x = 0; x < 160; ++x) {
            const int y = 47 - row;
            const bool inside = y >= 10 && y < 10 + height && x >= 19 && x < 20 + width + 1;
            if (!inside) {
                EXPECT_EQ(picture[row][x], '.') << x << ", " << y;
            }
        }
    // Descenders come close to the lower edge, and nothing is mirrored.
    const auto used = [&](int from, int to) {
        return ink(Picture(picture.begin() + (47 - to), picture.begin() + (47 - from) + 1)) > 0;
    };
    EXPECT_TRUE(used(10, 13));
    EXPECT_TRUE(used(10 + height - 4, 10 + height - 1));
    const Picture low = written(nullptr, {{20, L"..."}}, 10);
    const Picture foot(low.begin() + (47 - (10 + height / 2)), low.end());
    EXPECT_EQ(ink(low), ink(foot));
}

TEST(TextContract, ClipHolds) {
    const Screen screen(100, 40);
    Painting painting(screen);
    Zeb_set_clip(20, 12, 15, 9);
    Zeb_Font_Color(white, 0);
    for (int x = 0; x < 100; x += 5)
        Zeb_Font_Write(nullptr, x, 10, L"Wg");
    int count = 0;
    for (int y = 0; y < 40; ++y)
        for (int x = 0; x < 100; ++x) {
            if (!screen.at(x, y)) continue;
            ++count;
            EXPECT_TRUE(x >= 20 && x < 35 && y >= 12 && y < 21) << x << ", " << y;
        }
    EXPECT_GT(count, 20);
    Zeb_set_clip(0, 0, -1, 40);
    Zeb_Font_Write(nullptr, 60, 10, L"Wg");
    EXPECT_EQ(screen.at(62, 20), 0u);
}

TEST(TextContract, ColourIsTheWordsLowThirtyTwoBits) {
    const Face face(-40, 700);
    const Screen screen(80, 60);
    const struct {
        unsigned long word;
        DWORD pixel;
    } rows[] = {{0xFF, 0xFF0000}, {0xFF00, 0x00FF00}, {0xFF0000, 0x0000FF}, {0xFF00FFFFul, 0xFFFF00}};
    for (const auto& row : rows) {
        Painting painting(screen, 0);
        draw_fill_rectangle(0, 59, 80, -1);
        Zeb_Font_Color(row.word | ~0xFFFFFFFFul, 0);
        Zeb_Font_Write(face, 5, 5, L"MW");
        int full = 0;
        for (int y = 0; y < 60; ++y)
            for (int x = 0; x < 80; ++x) {
                full += screen.at(x, y) == row.pixel;
                EXPECT_EQ(screen.at(x, y) & ~row.pixel, 0u);
            }
        EXPECT_GT(full, 50);
    }
}

TEST(TextContract, WithoutATargetTheWidthIsStillGiven) {
    const int width = Zeb_Font_Size_String(nullptr, L"Cancel");
    EXPECT_EQ(Zeb_Font_Write(nullptr, 0, 0, L"Cancel"), width);
    Painting painting(static_cast<HWND>(nullptr));
    EXPECT_EQ(Zeb_Font_Write(nullptr, 0, 0, L"Cancel"), width);
}

TEST(TextContract, FarAwayPlacesAreHarmless) {
    const Screen screen(30, 30);
    Painting painting(screen);
    for (int x : {INT_MIN, INT_MIN / 2, -100000, 100000, INT_MAX / 2, INT_MAX})
        for (int y : {INT_MIN, -100000, 0, 100000, INT_MAX})
            EXPECT_GT(Zeb_Font_Write(nullptr, x, y, L"Cancel \u05D0\U0010FFFD"), 0);
    EXPECT_EQ(screen.painted(), 0);
}

TEST(TextContract, LongTextsAreWrittenWhole) {
    for (const wchar_t* unit : {L"ab ", L"שלום ", L"漢字", L"\u0001"}) {
        std::wstring text;
        while (text.size() < 5000)
            text += unit;
        const Face big(-200);
        for (HFONT font : {HFONT{}, static_cast<HFONT>(big)}) {
            const int width = Zeb_Font_Size_String(font, text.c_str());
            EXPECT_GT(width, 20000);
            // Its end can be brought into view.
            const Picture end = written(font, {{160 - width, text.c_str()}}, 0);
            EXPECT_GT(ink(end), 0) << unit;
            EXPECT_GT(ink(written(font, {{0, text.c_str()}}, 0)), 0) << unit;
        }
    }
}

} // namespace
