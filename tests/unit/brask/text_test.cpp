#include <sstream>

#include "text_fixture.h"

// Tools::Text: its brackets and fonts, placement, colour, clip.

namespace {

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

} // namespace
