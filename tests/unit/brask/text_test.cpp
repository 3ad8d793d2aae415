#include <climits>
#include <sstream>

#include <brask/fonts.h>
#include <brask/tools.h>

#include "font_cache.h"
#include "support/recorded.h"

// Tools::Text: placement, clip, colours, marks, stacked letters.

namespace {

// The current font is none of the three that marks choose, and all four differ in width, so that a run in
// the wrong one stands out.
struct Text : Recorded {
    Tools tools;
    void SetUp() override {
        Recorded::SetUp();
        tools.Wnd = recorder::window();
        tools.test = 1;
        tools.Font_Name = "times", tools.Font_Weight = "bold", tools.Font_Slant = "i", tools.Font_Size = 12;
        tools.Name_Set(L"it");
        fill_font_cache();
        font("medium", "r", "REGULAR", 11, 8);
        font("bold", "r", "BOLD", 12, 9);
        font("medium", "o", "OBLIQUE", 13, 7);
        font("bold", "i", "CURRENT", 14, 10);
        recorder::clear();
    }
    void font(const char* weight, const char* slant, const char* name, int height, int width) {
        const HFONT handle = Zeb_Create_Font(tools.Wnd, "times", weight, slant, 12);
        recorder::name(handle, name);
        recorder::metrics(handle, height, width);
    }
    // Text in the rectangle 100, 200, 100 wide and 50 high, with a bevel of 3. Empty runs may be written or
    // not, so they are left out.
    std::string written(const wchar_t* text, long flag = 0, unsigned color = 0) {
        return without_empty(painted([&] { tools.Text(text, flag, 100, 200, 100, 50, 3, color); }));
    }
    static std::string without_empty(const std::string& lines) {
        std::istringstream in(lines);
        std::string line, out;
        while (std::getline(in, line))
            if (line.find("\"\")") == std::string::npos) out += line + "\n";
        return out;
    }
    static std::string bracket(const std::string& inside, const std::string& clip = "103, 203, 95, 45") {
        return "Zeb_setup(WND, \"Tools::Text\")\nZeb_set_clip(" + clip + ")\n" + inside +
               "Zeb_reset_clip()\nZeb_release()\n";
    }
    static std::string color(const char* word) { return std::string("Zeb_Font_Color(") + word + ", 0)\n"; }
    static std::string run(const char* font, int x, int y, const std::string& text) {
        return std::string("Zeb_Font_Write(") + font + ", " + std::to_string(x) + ", " + std::to_string(y) +
               ", \"" + text + "\")\n";
    }
};

TEST_F(Text, CentredByDefault) { // 20 wide, 14 high
    EXPECT_EQ(written(L"AB"), bracket(color("0x1") + run("CURRENT", 140, 218, "AB")));
    EXPECT_EQ(written(L"AB", TEXT_MIDDLE), bracket(color("0x1") + run("CURRENT", 140, 218, "AB")));
}

TEST_F(Text, WithoutTextPaintsNothing) {
    for (const wchar_t* text : {static_cast<const wchar_t*>(nullptr), L""})
        EXPECT_EQ(recorded(recorder::kEverything, [&] { tools.Text(text, 0, 0, 0, 10, 10, 3, 0); }),
                  "[90000029] >>> in  Lib_Brask: Tools::Text(it)\n[90000029] <<< out Lib_Brask: "
                  "Tools::Text(no text)\n");
}

TEST_F(Text, TracesAndAsksForFourFontsBeforeItsBracket) {
    tools.Text(L"A", 0, 100, 200, 100, 50, 3, 0);
    std::vector<std::string> order;
    for (const recorder::Line& line : recorder::log())
        if (line.text.find("Lib_Brask") != std::string::npos || line.text.find("Zeb_setup") == 0)
            order.push_back(line.text.substr(0, line.text.find(':', 20)));
    ASSERT_EQ(order.size(), 11u);
    EXPECT_EQ(recorder::log().front().text, ">>> in  Lib_Brask: Tools::Text(it)");
    EXPECT_EQ(recorder::log().back().text, "<<< out Lib_Brask: Tools::Text()");
    EXPECT_EQ(order[9].substr(0, 9), "Zeb_setup");
}

// In a fresh cache the four requests make four fonts, in this order.
TEST_F(Text, AsksForRegularBoldObliqueAndCurrent) {
    fill_font_cache();
    const std::string lines =
        recorded(recorder::kSystem, [&] { tools.Text(L"A", 0, 100, 200, 100, 50, 3, 0); });
    std::istringstream in(lines);
    std::string line, made;
    while (std::getline(in, line))
        if (line.find("CreateFont") == 0) made += line + "\n";
    EXPECT_EQ(made,
              "CreateFontIndirectW(-16, 0, 0, \"times\")\nCreateFontIndirectW(-16, 700, 0, \"times\")\n"
              "CreateFontIndirectW(-16, 0, 1, \"times\")\nCreateFontIndirectW(-16, 700, 1, \"times\")\n");
}

TEST_F(Text, MeasuresInTheCurrentFont) {
    const std::string lines = without_empty(recorded(recorder::kMeasure, [&] {
        tools.Text(L"A\x01"
                   L"B",
                   0, 100, 200, 100, 50, 3, 0);
    }));
    EXPECT_EQ(lines, "Zeb_Font_Size_Height(CURRENT)\nZeb_Font_Size_String(CURRENT, \"W\")\n"
                     "Zeb_Font_Size_String(CURRENT, \"AB\")\n");
}

TEST_F(Text, MeasuresEachRunInItsFont) {
    const std::string lines = without_empty(recorded(recorder::kMeasure, [&] {
        tools.Text(L"A\xF1"
                   L"BC\xF2"
                   L"D\xF0"
                   L"E",
                   0, 100, 200, 100, 50, 3, 0);
    }));
    EXPECT_EQ(lines, "Zeb_Font_Size_Height(CURRENT)\nZeb_Font_Size_String(CURRENT, \"W\")\n"
                     "Zeb_Font_Size_String(CURRENT, \"A\")\nZeb_Font_Size_String(BOLD, \"BC\")\n"
                     "Zeb_Font_Size_String(OBLIQUE, \"D\")\nZeb_Font_Size_String(REGULAR, \"E\")\n");
}

// --- Placement, in 100, 200, 100 by 50; a letter is 10 by 14 ---

struct Place {
    int length, border;
    long flag;
    int x, y;
};
TEST_F(Text, Placement) {
    const Place rows[] = {
        {2, 3, TEXT_LEFT, 106, 218},
        {2, 0, TEXT_LEFT, 106, 218},  // the bevel counts as 2 at least, the offset is 6 at least
        {2, 4, TEXT_LEFT, 108, 218},  //
        {2, -9, TEXT_LEFT, 106, 218}, //
        {9, 3, TEXT_LEFT, 106, 218},  // 90: fits
        {10, 3, TEXT_LEFT, 104, 218}, // 100: pushed left by 2
        {11, 3, TEXT_LEFT, 94, 218},  // 110: 12 to the left of a short one
        {2, 3, TEXT_RIGHT, 174, 218},
        {2, 4, TEXT_RIGHT, 172, 218},
        {11, 3, TEXT_RIGHT, 84, 218},
        {2, 3, TEXT_LEFT | TEXT_RIGHT, 106, 218}, // left wins
        {9, 3, 0, 105, 218},
        {10, 3, 0, 98, 218}, // as wide as the rectangle: two pixels out
        {11, 3, 0, 88, 218}, // the end stays in view
        {2, 3, TEXT_BOTTOM, 140, 206},
        {2, 0, TEXT_BOTTOM, 140, 204},
        {2, 5, TEXT_BOTTOM, 140, 210},
        {2, 3, TEXT_TOP, 140, 230},
        {2, 0, TEXT_TOP, 140, 232},
        {2, 3, TEXT_TOP | TEXT_BOTTOM, 140, 206}, // bottom wins
        {2, 3, TEXT_TOP | TEXT_MIDDLE, 140, 230}, // the middle has no test of its own
    };
    for (const Place& row : rows) {
        SCOPED_TRACE(testing::Message()
                     << row.length << " letters, border " << row.border << ", flag " << row.flag);
        const std::wstring text(row.length, L'A');
        const std::string lines =
            painted([&] { tools.Text(text.c_str(), row.flag, 100, 200, 100, 50, row.border, 0); });
        EXPECT_NE(lines.find(run("CURRENT", row.x, row.y, std::string(row.length, 'A'))), std::string::npos)
            << lines;
    }
}

TEST_F(Text, HalvesAreCutTowardZero) {
    // Height 5 against 14: -9 / 2 is -4. Width 25 against 10: 15 / 2 is 7.
    EXPECT_NE(
        painted([&] { tools.Text(L"A", 0, 100, 200, 25, 5, 0, 0); }).find(run("CURRENT", 107, 196, "A")),
        std::string::npos);
}

TEST_F(Text, PlacementGoesByTheArgumentStackingByTheObject) {
    tools.Flag = TEXT_LEFT | TEXT_TOP | TEXT_WHITE;
    EXPECT_EQ(written(L"AB"), bracket(color("0x1") + run("CURRENT", 140, 218, "AB")));
    tools.Flag = 0;
    EXPECT_EQ(written(L"AB", OUTIL_VERTICAL), bracket(color("0x1") + run("CURRENT", 140, 218, "AB")));
}

// --- Colour ---

TEST_F(Text, DefaultColours) {
    const auto started = [&](long flag, unsigned word) {
        const std::string lines = written(L"A", flag, word);
        return lines.substr(lines.find("Zeb_Font_Color"),
                            lines.find("Zeb_Font_Write") - lines.find("Zeb_Font_Color"));
    };
    EXPECT_EQ(started(0, 0), color("0x1"));
    EXPECT_EQ(started(TEXT_WHITE, 0), color("0xFFFFFF"));
    EXPECT_EQ(started(GRAPH_OUTLINE, 0), color("0xE64040"));
    EXPECT_EQ(started(GRAPH_OUTLINE | TEXT_WHITE, 0), color("0xE64040"));
    EXPECT_EQ(started(GRAPH_OUTLINE | TEXT_WHITE, 0x123456), color("0x123456"));
    EXPECT_EQ(started(0, 0xFF000000), color("0xFF000000")); // not 0, so not the default
}

// --- Clip ---

struct Clip {
    int x, y, dx, dy;       // Clip_ fields
    int at_x, at_y, border; // rectangle of 100 by 50
    const char* expected;   // null: dropped
};
TEST_F(Text, ClipIsCutToTheControlsOwn) {
    const Clip rows[] = {
        {0, 0, 0, 0, 100, 200, 3, "103, 203, 95, 45"},
        {0, 0, 0, 0, 100, 200, 0, "100, 200, 101, 51"},
        {0, 0, 0, 0, 100, 200, -5, "95, 195, 111, 61"}, // the raw border, not the 2 it is raised to
        {0, 0, 0, 0, -20, -10, 3, "0, 0, 95, 45"},      // stops at the window's edges
        {110, 210, 0, 0, 100, 200, 3, "110, 210, 95, 45"},
        {0, 0, 1000, 1000, 100, 200, 3, "103, 203, 95, 45"},
        {0, 0, 150, 230, 100, 200, 3, "103, 203, 47, 27"},
        {120, 210, 1000, 1000, 100, 200, 3, "120, 210, 78, 38"},
        {120, 210, 30, 10, 100, 200, 3, "120, 210, 30, 10"},
        {120, 210, 30, 0, 100, 200, 3, "120, 210, 30, 45"}, // each size counts for its own axis
        {120, 210, 0, 10, 100, 200, 3, "120, 210, 95, 10"},
        {0, 0, 103, 1000, 100, 200, 3, nullptr}, // starts where the clip ends
        {0, 0, 104, 1000, 100, 200, 3, "103, 203, 1, 45"},
        {0, 0, 1000, 203, 100, 200, 3, nullptr},
        {0, 0, 1000, 204, 100, 200, 3, "103, 203, 95, 1"},
        {198, 0, 1000, 1000, 100, 200, 3, nullptr}, // ends left of it
        {197, 0, 1000, 1000, 100, 200, 3, "197, 203, 1, 45"},
        {0, 248, 1000, 1000, 100, 200, 3, nullptr},
        {0, 247, 1000, 1000, 100, 200, 3, "103, 247, 95, 1"},
        {0, 0, 103, 0, 100, 200, 3, "103, 203, 0, 45"}, // the early test needs both sizes
        {0, 0, 0, 203, 100, 200, 3, "103, 203, 95, 0"},
    };
    for (const Clip& row : rows) {
        SCOPED_TRACE(testing::Message() << "clip " << row.x << ", " << row.y << ", " << row.dx << ", "
                                        << row.dy << " border " << row.border);
        tools.Clip_X = row.x, tools.Clip_Y = row.y, tools.Clip_Dim_X = row.dx, tools.Clip_Dim_Y = row.dy;
        recorder::clear();
        tools.Text(L"A", 0, row.at_x, row.at_y, 100, 50, row.border, 0);
        const std::string lines = recorder::text(recorder::kDraw);
        if (!row.expected) {
            EXPECT_EQ(lines, "");
            EXPECT_EQ(recorder::exit_tag("Tools::Text"), "clip");
            EXPECT_EQ(recorder::reports(0x90000029).size(), 2u); // no font was asked for
            continue;
        }
        EXPECT_NE(lines.find(std::string("Zeb_set_clip(") + row.expected + ")\n"), std::string::npos)
            << lines;
        EXPECT_EQ(recorder::exit_tag("Tools::Text"), "");
    }
}

// --- Marks ---

TEST_F(Text, MarksChangeColourAndFontOfWhatFollows) { // widths 10, 10 and 9
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
TEST_F(Text, ColourMarks) {
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
TEST_F(Text, FontMarks) {
    const FontMark marks[] = {
        {240, "REGULAR"}, {241, "BOLD"}, {242, "OBLIQUE"}, {0x1F1, "BOLD"}, {0x22F0, "REGULAR"}};
    for (const FontMark& mark : marks) {
        const wchar_t text[] = {L'A', mark.mark, L'B', 0};
        EXPECT_EQ(written(text, TEXT_LEFT),
                  bracket(color("0x1") + run("CURRENT", 106, 218, "A") + run(mark.font, 116, 218, "B")))
            << mark.mark;
    }
}

TEST_F(Text, NeighboursOfMarksAreShown) {
    for (const wchar_t c :
         {wchar_t(7), wchar_t(239), wchar_t(243), wchar_t(0x107), wchar_t(0x100), wchar_t(0x1EF)}) {
        const wchar_t text[] = {L'A', c, L'B', 0};
        EXPECT_EQ(written(text, TEXT_LEFT), bracket(color("0x1") + "Zeb_Font_Write(CURRENT, 106, 218, " +
                                                    recorder::quoted(text) + ")\n"))
            << static_cast<int>(c);
    }
}

TEST_F(Text, WriteMovesOnByWhatWasWritten) { // 7 + 7 + 9 + 8
    EXPECT_EQ(written(L"\xF2"
                      L"ab\xF1"
                      L"c\x04\xF0"
                      L"d",
                      TEXT_LEFT),
              bracket(color("0x1") + run("OBLIQUE", 106, 218, "ab") + run("BOLD", 120, 218, "c") +
                      color("0xFF") + run("REGULAR", 129, 218, "d")));
}

TEST_F(Text, WriteBeginsInTheCurrentFontAgain) {
    EXPECT_EQ(written(L"A\xF1"
                      L"B",
                      TEXT_RIGHT), // 19 wide
              bracket(color("0x1") + run("CURRENT", 175, 218, "A") + run("BOLD", 185, 218, "B")));
}

TEST_F(Text, MarksAlone) {
    EXPECT_EQ(written(L"\x01\x02\xF1", TEXT_LEFT), bracket(color("0x1") + color("0xFF0000") + color("0x1")));
}

TEST_F(Text, DefaultControlWritesInTheNullFont) {
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
TEST_F(Text, StackedPlacement) { // three letters of 10 by 14
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

TEST_F(Text, StackedMarksAreLettersThatWereNotCounted) { // two letters count, three rows are written
    tools.Flag = OUTIL_VERTICAL;
    EXPECT_EQ(written(L"A\x01"
                      L"B"),
              bracket(color("0x1") + run("CURRENT", 146, 225, "A") + run("CURRENT", 146, 211, "\\x01") +
                      run("CURRENT", 146, 197, "B")));
    EXPECT_EQ(written(L"\xF1"
                      L"B"),
              bracket(color("0x1") + run("CURRENT", 146, 218, "\xC3\xB1") + run("CURRENT", 146, 204, "B")));
}

TEST_F(Text, StackedStopsAfter128) {
    tools.Flag = OUTIL_VERTICAL;
    const std::wstring text(200, L'A');
    const std::string lines = painted([&] { tools.Text(text.c_str(), TEXT_TOP, 100, 200, 100, 50, 3, 0); });
    EXPECT_EQ(lines, bracket(color("0x1") + column(146, 233, 14, std::string(128, 'A'))));
}

// --- Bad input ---

TEST_F(Text, AnyLengthAndAnyMarksAreHarmless) {
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

TEST_F(Text, ExtremeRectanglesAreHarmless) {
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
