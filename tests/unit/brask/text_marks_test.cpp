#include <climits>

#include "text_fixture.h"

// Tools::Text: marks, stacked letters, and input that no host should give.

namespace {

// --- Marks ---

using TextMarks = Text;

TEST_F(TextMarks, MarksChangeColourAndFontOfWhatFollows) { // widths 10, 10 and 9
    EXPECT_EQ(written(L"A\x01"
                      L"B\xF1"
                      L"C"),
              bracket(color("0x1") + run("CURRENT", 135, 218, "A") + color("0xFF0000") +
                      run("CURRENT", 145, 218, "B") + run("BOLD", 155, 218, "C")));
}

struct ColourMark {
    wchar_t mark;
    const char* color;
};
TEST_F(TextMarks, ColourMarks) {
    const ColourMark marks[] = {{1, "0xFF0000"}, {2, "0x1"},    {3, "0xFFFFFF"},     {4, "0xFF"},
                                {5, "0xFFFF"},   {6, "0xA000"}, {0x101, "0xFF0000"}, {0x506, "0xA000"}};
    for (const ColourMark& mark : marks) {
        const wchar_t text[] = {L'A', mark.mark, L'B', 0};
        EXPECT_EQ(written(text, TEXT_LEFT, 0x123456),
                  bracket(color("0x123456") + run("CURRENT", 106, 218, "A") + color(mark.color) +
                          run("CURRENT", 116, 218, "B")))
            << mark.mark;
    }
}

struct FontMark {
    wchar_t mark;
    const char* font;
};
TEST_F(TextMarks, FontMarks) {
    const FontMark marks[] = {
        {240, "REGULAR"}, {241, "BOLD"}, {242, "OBLIQUE"}, {0x1F1, "BOLD"}, {0x22F0, "REGULAR"}};
    for (const FontMark& mark : marks) {
        const wchar_t text[] = {L'A', mark.mark, L'B', 0};
        EXPECT_EQ(written(text, TEXT_LEFT),
                  bracket(color("0x1") + run("CURRENT", 106, 218, "A") + run(mark.font, 116, 218, "B")))
            << mark.mark;
    }
}

TEST_F(TextMarks, NeighboursOfMarksAreShown) {
    for (const wchar_t c :
         {wchar_t(7), wchar_t(239), wchar_t(243), wchar_t(0x107), wchar_t(0x100), wchar_t(0x1EF)}) {
        const wchar_t text[] = {L'A', c, L'B', 0};
        EXPECT_EQ(written(text, TEXT_LEFT), bracket(color("0x1") + "Zeb_Font_Write(CURRENT, 106, 218, " +
                                                    recorder::quoted(text) + ")\n"))
            << static_cast<int>(c);
    }
}

TEST_F(TextMarks, WriteMovesOnByWhatWasWritten) { // 7 + 7 + 9 + 8
    EXPECT_EQ(written(L"\xF2"
                      L"ab\xF1"
                      L"c\x04\xF0"
                      L"d",
                      TEXT_LEFT),
              bracket(color("0x1") + run("OBLIQUE", 106, 218, "ab") + run("BOLD", 120, 218, "c") +
                      color("0xFF") + run("REGULAR", 129, 218, "d")));
}

TEST_F(TextMarks, WriteBeginsInTheCurrentFontAgain) {
    EXPECT_EQ(written(L"A\xF1"
                      L"B",
                      TEXT_RIGHT), // 19 wide
              bracket(color("0x1") + run("CURRENT", 175, 218, "A") + run("BOLD", 185, 218, "B")));
}

TEST_F(TextMarks, MarksAlone) {
    EXPECT_EQ(written(L"\x01\x02\xF1", TEXT_LEFT), bracket(color("0x1") + color("0xFF0000") + color("0x1")));
}

TEST_F(TextMarks, DefaultControlWritesInTheNullFont) {
    tools.Font_Name = tools.Font_Weight = tools.Font_Slant = nullptr;
    tools.Font_Size = 0;
    EXPECT_EQ(written(L"AB"), bracket(color("0x1") + run("null", 142, 220, "AB"))); // 8 by 10
}

// --- Stacked letters ---

std::string column(int x, int y, int step, const std::string& letters) {
    std::string lines;
    for (const char letter : letters) {
        lines += "Zeb_Font_Write(CURRENT, " + std::to_string(x) + ", " + std::to_string(y) + ", \"" + letter +
                 "\")\n";
        y -= step;
    }
    return lines;
}
struct Stack {
    long flag;
    int border, x, y;
};
TEST_F(TextMarks, StackedPlacement) { // three letters of 10 by 14
    tools.Flag = OUTIL_VERTICAL;
    const Stack rows[] = {
        {0, 3, 146, 232},           // 100 + 50 + 1 - 5; 200 + 21 + 25 - 14
        {TEXT_LEFT, 3, 101, 232},   // 106 - 5
        {TEXT_LEFT, 4, 103, 232},   //
        {TEXT_RIGHT, 3, 179, 232},  // 200 - 6 - 10 - 5
        {TEXT_BOTTOM, 3, 146, 231}, // 200 + 28 + 3
        {TEXT_BOTTOM, 0, 146, 230}, //
        {TEXT_TOP, 3, 146, 233},    // 250 - 14 - 3
        {TEXT_TOP | TEXT_BOTTOM, 3, 146, 231},
        {TEXT_LEFT | TEXT_RIGHT, 3, 101, 232},
    };
    for (const Stack& row : rows) {
        SCOPED_TRACE(testing::Message() << row.flag << " border " << row.border);
        const std::string lines =
            painted([&] { tools.Text(L"ABC", row.flag, 100, 200, 100, 50, row.border, 0); });
        EXPECT_NE(lines.find("Zeb_Font_Color(0x1, 0)\n" + column(row.x, row.y, 14, "ABC") + "Zeb_reset_clip"),
                  std::string::npos)
            << lines;
    }
}

TEST_F(TextMarks, StackedMarksAreLettersThatWereNotCounted) { // two letters count, three rows are written
    tools.Flag = OUTIL_VERTICAL;
    EXPECT_EQ(written(L"A\x01"
                      L"B"),
              bracket(color("0x1") + run("CURRENT", 146, 225, "A") + run("CURRENT", 146, 211, "\\x01") +
                      run("CURRENT", 146, 197, "B")));
    EXPECT_EQ(written(L"\xF1"
                      L"B"),
              bracket(color("0x1") + run("CURRENT", 146, 218, "\xC3\xB1") + run("CURRENT", 146, 204, "B")));
}

TEST_F(TextMarks, StackedStopsAfter128) {
    tools.Flag = OUTIL_VERTICAL;
    const std::wstring text(200, L'A');
    const std::string lines = painted([&] { tools.Text(text.c_str(), TEXT_TOP, 100, 200, 100, 50, 3, 0); });
    EXPECT_EQ(lines, bracket(color("0x1") + column(146, 233, 14, std::string(128, 'A'))));
}

// --- Bad input ---

TEST_F(TextMarks, AnyLengthAndAnyMarksAreHarmless) {
    for (const DWORD flag : {DWORD(0), OUTIL_VERTICAL})
        for (const std::size_t length : {1022u, 1023u, 1024u, 1025u, 5000u, 20000u}) {
            tools.Flag = flag;
            std::wstring text(length, L'x');
            tools.Text(text.c_str(), 0, 0, 0, 10, 10, 3, 0);
            for (std::size_t i = 0; i < length; ++i)
                text[i] = static_cast<wchar_t>(1 + i * 37 % 0x2FF);
            tools.Text(text.c_str(), TEXT_LEFT, 0, 0, 10, 10, 3, 0);
        }
    EXPECT_FALSE(recorder::open());
}

// However long the text, a surrogate pair is not parted between two writes. (0xD83D 0xDE00; neither half is a
// mark by its low byte.)
TEST_F(TextMarks, PairsStayTogetherInLongTexts) {
    for (const std::size_t odd : {0u, 1u}) {
        std::wstring text(odd, L'x');
        for (int i = 0; i < 1500; ++i)
            text += {wchar_t(0xD83D), wchar_t(0xDE00)};
        const std::string lines = painted([&] { tools.Text(text.c_str(), TEXT_LEFT, 0, 0, 10, 10, 3, 0); });
        EXPECT_NE(lines.find("\xF0\x9F\x98\x80"), std::string::npos);
        EXPECT_EQ(lines.find("\xED"), std::string::npos); // a lone half, as the recorder writes it
    }
}

TEST_F(TextMarks, ExtremeRectanglesAreHarmless) {
    const int values[] = {INT_MIN, INT_MIN + 1, -1, 0, 1, INT_MAX - 1, INT_MAX};
    for (const DWORD flag : {DWORD(0), OUTIL_VERTICAL})
        for (const long place : {0l, long(TEXT_LEFT | TEXT_BOTTOM), long(TEXT_RIGHT | TEXT_TOP)})
            for (const int a : values)
                for (const int b : values) {
                    tools.Flag = flag;
                    tools.Clip_X = a, tools.Clip_Y = b, tools.Clip_Dim_X = b, tools.Clip_Dim_Y = a;
                    tools.Text(L"abc", place, a, b, b, a, a, 0);
                    tools.Clip_Dim_X = 0;
                    tools.Text(L"abc", place, b, a, a, b, b, 0);
                }
    EXPECT_FALSE(recorder::open());
}

} // namespace
