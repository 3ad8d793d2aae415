// The built-in font: its drawings, what is made of them, and the box for everything else.
#include <cstring>
#include <set>
#include <string>

#include <gtest/gtest.h>

#include "fenn/builtin_font.h"
#include "page.h"

namespace {

using fenn::builtin::find_letter;

class BuiltinFont : public testing::Test {
    Builtin builtin;
};

Picture letter(const wchar_t* text) { return trimmed(written(nullptr, text)); }

// Letters as the sheets have them: '#' for ink.
Picture drawn(const Picture& rows) {
    Picture result = rows;
    for (std::string& row : result)
        for (char& pixel : row)
            if (pixel == '#') pixel = 'W';
    return result;
}

TEST_F(BuiltinFont, LettersLookAsDrawn) {
    EXPECT_EQ(letter(L"A"), drawn({"...#...", "...#...", "..#.#..", "..#.#..", ".#...#.", ".#...#.",
                                   ".#####.", "#.....#", "#.....#"}));
    EXPECT_EQ(letter(L"g"), drawn({".##.#", "#..##", "#...#", "#...#", "#...#", "#..##", ".##.#", "....#",
                                   "#...#", ".###."}));
    EXPECT_EQ(letter(L"É"), drawn({"...#..", "..#...", "......", "######", "#.....", "#.....", "#.....",
                                   "#####.", "#.....", "#.....", "#.....", "######"}));
    EXPECT_EQ(letter(L"ї"), drawn({"#.#", "...", ".#.", ".#.", ".#.", ".#.", ".#.", ".#.", ".#."}));
    EXPECT_EQ(letter(L"ж"), drawn({"#.#.#", "#.#.#", "#.#.#", ".###.", "#.#.#", "#.#.#", "#.#.#"}));
}

TEST_F(BuiltinFont, LinesHaveSixteenRowsAndWholeEnlargements) {
    const struct {
        int height, line;
    } rows[] = {{-16, 16}, {0, 16}, {-1, 16}, {-31, 16}, {-32, 32}, {40, 32}, {-200, 192}, {-1000000, 1024}};
    for (const auto& row : rows) {
        const Face face(row.height);
        EXPECT_EQ(Zeb_Font_Size_Height(face), row.line) << row.height;
    }
    EXPECT_EQ(Zeb_Font_Size_Height(nullptr), 16);
}

TEST_F(BuiltinFont, StandsOnItsLine) {
    const Picture picture = written(nullptr, {{8, L"Ég"}}, 8, 40, 32);
    // Canvas rows 8 to 23 are the line; the baseline is below its thirteenth row.
    EXPECT_EQ(picture[8 + 1].find('W'), 8u + 3);             // the accent
    EXPECT_EQ(picture[8 + 12].substr(8, 6), "WWWWWW");       // the foot of the letter
    EXPECT_NE(picture[8 + 15].find('W'), std::string::npos); // the tail of the g
    EXPECT_EQ(picture[8 + 16].find('W'), std::string::npos);
}

TEST_F(BuiltinFont, EnlargedPixelsAreSquares) {
    const Face twice(-32);
    const Picture small = letter(L"Ëq"), large = trimmed(written(twice, L"Ëq"));
    ASSERT_EQ(large.size(), 2 * small.size());
    for (std::size_t y = 0; y < large.size(); ++y)
        for (std::size_t x = 0; x < large[y].size(); ++x)
            EXPECT_EQ(large[y][x], small[y / 2][x / 2]);
    EXPECT_EQ(Zeb_Font_Size_String(twice, L"Ëq"), 2 * Zeb_Font_Size_String(nullptr, L"Ëq"));
}

TEST_F(BuiltinFont, BoldIsSmearedByOne) {
    const Face bold(-16, 700);
    EXPECT_EQ(Zeb_Font_Size_String(bold, L"abc"), Zeb_Font_Size_String(nullptr, L"abc") + 3);
    const Picture thin = letter(L"V"), thick = trimmed(written(bold, L"V"));
    ASSERT_EQ(thin.size(), thick.size());
    for (std::size_t y = 0; y < thick.size(); ++y)
        for (std::size_t x = 0; x < thick[y].size(); ++x) {
            const bool here = x < thin[y].size() && thin[y][x] == 'W';
            EXPECT_EQ(thick[y][x] == 'W', here || (x > 0 && thin[y][x - 1] == 'W'));
        }
}

TEST_F(BuiltinFont, ObliqueLeansToTheRight) {
    const Face oblique(-16, 0, 1);
    EXPECT_EQ(Zeb_Font_Size_String(oblique, L"abc"), Zeb_Font_Size_String(nullptr, L"abc"));
    // A bar from row 4 to the lowest one moves by a column every four rows.
    EXPECT_EQ(trimmed(written(oblique, L"|")),
              drawn({"..#", "..#", "..#", "..#", ".#.", ".#.", ".#.", ".#.", "#..", "#..", "#..", "#.."}));
}

TEST_F(BuiltinFont, AlphabetsAreWhole) {
    const struct {
        char32_t first, last;
    } blocks[] = {{0x20, 0x7E},   {0xA0, 0x17E},  {0x386, 0x386}, {0x388, 0x38A}, {0x38E, 0x3A1},
                  {0x3A3, 0x3CE}, {0x400, 0x408}, {0x40A, 0x45F}, {0x490, 0x491}, {0x2190, 0x2195}};
    const std::set<char32_t> unusual = {0x132, 0x133, 0x138, 0x13F, 0x140, 0x149, 0x166, 0x167};
    for (const auto& block : blocks)
        for (char32_t code = block.first; code <= block.last; ++code) {
            if (unusual.count(code)) continue;
            EXPECT_TRUE(find_letter(code)) << std::hex << static_cast<unsigned>(code);
        }
}

TEST_F(BuiltinFont, LettersOfAnAlphabetDiffer) {
    for (const wchar_t* alphabet :
         {L"ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789!\"#$%&'()*+,-./:;<=>?@[\\]^_`{|}~",
          L"ÀÁÂÃÄÅÆÇÈÉÊËÌÍÎÏÐÑÒÓÔÕÖØÙÚÛÜÝÞßàáâãäåæçèéêëìíîïðñòóôõöøùúûüýþÿ",
          L"¡¢£¤¥¦§¨©ª«¬®¯°±²³´µ¶·¸¹º»¼½¾¿×÷", L"ΑΒΓΔΕΖΗΘΙΚΛΜΝΞΟΠΡΣΤΥΦΧΨΩαβγδεζηθικλμνξοπρσςτυφχψω",
          L"АБВГДЕЁЖЗИЙКЛМНОПРСТУФХЦЧШЩЪЫЬЭЮЯабвгдеёжзийклмнопрстуфхцчшщъыьэюя"}) {
        std::set<Picture> seen;
        for (const wchar_t* at = alphabet; *at; ++at) {
            const wchar_t text[] = {*at, 0};
            const Picture picture = written(nullptr, text);
            EXPECT_GT(ink(picture), 0) << text;
            EXPECT_TRUE(seen.insert(picture).second) << text;
        }
    }
}

TEST_F(BuiltinFont, NeighboursDoNotTouch) {
    // Between two letters there is at least one free column.
    const std::wstring letters = L"ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789ÀÎïÖßжщДΩψ";
    for (wchar_t code : letters) {
        const fenn::builtin::Letter* const drawing = find_letter(code);
        ASSERT_TRUE(drawing);
        for (std::uint32_t row : drawing->rows)
            EXPECT_EQ(row >> (drawing->width - 1), 0u) << code;
    }
}

TEST_F(BuiltinFont, SheetsAreStraight) {
    for (const auto& table :
         {fenn::builtin::latin_sheets, fenn::builtin::symbol_sheets, fenn::builtin::world_sheets})
        for (int i = 0; i < table.count; ++i) {
            const fenn::builtin::Sheet& sheet = table.rows[i];
            const std::string art = sheet.art;
            const std::size_t width = art.find('\n');
            const std::string first = art.substr(0, width);
            std::size_t letters = 0;
            while (sheet.codes[letters])
                ++letters;
            EXPECT_EQ(static_cast<std::size_t>(std::count(first.begin(), first.end(), ' ')), letters - 1);
            EXPECT_EQ(art.size() % (width + 1), 0u);
            EXPECT_LE(sheet.top + static_cast<int>(art.size() / (width + 1)), fenn::builtin::LINE);
            for (std::size_t at = 0; at < art.size(); ++at) {
                const std::size_t column = at % (width + 1);
                const bool is_end = column == width;
                EXPECT_EQ(art[at] == '\n', is_end) << sheet.top << " " << at;
                EXPECT_EQ(art[at] == ' ', !is_end && first[column] == ' ') << sheet.top << " " << at;
            }
        }
}

TEST_F(BuiltinFont, AccentsCombine) {
    EXPECT_EQ(written(nullptr, L"e\u0301"), written(nullptr, L"é"));
    EXPECT_EQ(written(nullptr, L"U\u0308x"), written(nullptr, L"Üx"));
    EXPECT_EQ(Zeb_Font_Size_String(nullptr, L"q\u0304"), Zeb_Font_Size_String(nullptr, L"q"));
    EXPECT_GT(ink(written(nullptr, L"q\u0304")), ink(written(nullptr, L"q")));
}

TEST_F(BuiltinFont, EverythingElseIsABoxWithItsCode) {
    EXPECT_EQ(letter(L"\u05D0"),
              drawn({"###########", "#.........#", "#.###.###.#", "#.#.#.#...#", "#.#.#.###.#", "#.#.#...#.#",
                     "#.###.###.#", "#.........#", "#.##..###.#", "#.#.#.#.#.#", "#.#.#.#.#.#", "#.#.#.#.#.#",
                     "#.##..###.#", "#.........#", "###########"}));
    for (const wchar_t* text : {L"漢", L"\x01", L"\U0001F600", L"ب"})
        EXPECT_TRUE(is_box(letter(text)));
    EXPECT_EQ(Zeb_Font_Size_String(nullptr, L"\u200D\uFE0F"), 0);
    // The box stays within its line.
    const Picture picture = written(nullptr, {{8, L"\u05D0"}}, 8, 40, 32);
    EXPECT_EQ(picture[7].find('W'), std::string::npos);
    EXPECT_EQ(picture[24].find('W'), std::string::npos);
}

TEST_F(BuiltinFont, CanBeSwitchedAtAnyTime) {
    const Picture built_in = written(nullptr, L"Cancel");
    Fenn_Builtin_Font(0);
    EXPECT_NE(written(nullptr, L"Cancel"), built_in);
    Fenn_Builtin_Font(1);
    EXPECT_EQ(written(nullptr, L"Cancel"), built_in);
}

} // namespace
