// How text comes into the log, and how the host collects a line.

#include "console_fixture.h"

using Strings = std::vector<std::wstring>;

struct Write : Console {};

TEST_F(Write, ALineFeedBeginsAFurtherLine) {
    init();
    console.Write(L"one\ntwo");
    EXPECT_EQ(lines(), (Strings{L"two", L"one"}));
    console.Write("three\n");
    EXPECT_EQ(lines(), (Strings{L"", L"three", L"two", L"one"}));
    console.Write("\n\n");
    EXPECT_EQ(lines().size(), 7u);
    EXPECT_EQ(tag("Write"), "done");
}

TEST_F(Write, OtherControlsAndMarksStayInTheLine) {
    init();
    console.Write(L"a\rb\tc\x1"
                  L"d\xF1"
                  L"e");
    EXPECT_EQ(lines(), Strings{L"a\rb\tc\x1"
                               L"d\xF1"
                               L"e"});
}

TEST_F(Write, AnEmptyFormatIsALine) {
    init();
    console.Write("");
    EXPECT_EQ(lines(), Strings{L""});
    console.Write(L"");
    EXPECT_EQ(lines().size(), 2u);
}

TEST_F(Write, PrintsInBothWidths) {
    init();
    console.Write("%d %hs %ls %s", 7, "narrow", L"wide\x4E2D", "own");
    console.Write(L"%d %hs %ls %s", 8, "narrow", L"wide\x4E2D", L"own");
    EXPECT_EQ(lines(), (Strings{L"8 narrow wide\x4E2D own", L"7 narrow wide\x4E2D own"}));
}

TEST_F(Write, AThousandAndTwentyThreeCharactersAtMost) {
    init();
    const std::wstring most(1023, L'x');
    for (const std::size_t length : {std::size_t{1023}, std::size_t{1024}, std::size_t{5000}}) {
        console.Write(L"%ls", std::wstring(length, L'x').c_str());
        EXPECT_EQ(console.Lines[0], most);
        console.Write("%hs", std::string(length, 'x').c_str());
        EXPECT_EQ(console.Lines[0], most);
    }
    console.Write(L"%1022d", 5);
    EXPECT_EQ(std::wcslen(console.Lines[0]), 1022u);
}

TEST_F(Write, ALineFeedBeyondTheCutHasNoEffect) {
    init();
    console.Write(L"%ls\nz", std::wstring(1023, L'x').c_str());
    EXPECT_EQ(lines().size(), 1u);
    console.Write(L"%ls\nz", std::wstring(1022, L'x').c_str());
    EXPECT_EQ(console.Lines[0], std::wstring());
    EXPECT_EQ(lines().size(), 3u);
}

TEST_F(Write, ACutSequenceOfBytesIsDropped) {
    init();
    console.Write("%hs\xE4\xB8\xAD", std::string(1021, 'x').c_str());
    EXPECT_EQ(console.Lines[0], std::wstring(1021, L'x'));
}

TEST_F(Write, TheOldestOf8192LinesGoes) {
    init(OUTIL_INVISIBLE);
    recorder::listen(recorder::kReport);
    for (int i = 0; i < 8193; i++)
        console.Write(L"%d", i);
    EXPECT_STREQ(console.Lines[0], L"8192");
    EXPECT_STREQ(console.Lines[8191], L"1");
}

TEST_F(Write, WidthsMoveWithTheirLines) {
    init();
    console.Write(L"abc");
    console.Write(L"");
    EXPECT_EQ(console.Line_Width[0], 0);
    EXPECT_EQ(console.Line_Width[1], 24);
}

TEST_F(Write, BeforeInitItIsLost) {
    console.Write(L"lost");
    EXPECT_EQ(tag("Write"), "! test");
    EXPECT_EQ(console.Lines, nullptr);
    EXPECT_EQ(recorder::warnings(), "");
    console.OverWrite(L"lost");
    EXPECT_EQ(console.Lines, nullptr);
}

TEST_F(Write, ANamedConsoleIsWarnedAboutAndWrites) {
    console.Name_Set(L"log");
    console.Wnd = recorder::window();
    console.Write(L"kept");
    EXPECT_NE(recorder::warnings().find("bad data in device's structure"), std::string::npos);
    EXPECT_NE(recorder::warnings().find("type: Text::Write   name: log"), std::string::npos);
    EXPECT_EQ(console.test, 2);
    EXPECT_EQ(lines(), Strings{L"kept"});
}

TEST_F(Write, SizeAndFormatAreAskedFor) {
    init();
    console.Write(static_cast<const char*>(nullptr));
    EXPECT_EQ(tag("Write"), "! format");
    console.Write(static_cast<const wchar_t*>(nullptr));
    EXPECT_EQ(tag("Write"), "! format");
    console.Dim_Y = 0;
    console.Write(L"x");
    EXPECT_EQ(tag("Write"), "<0");
    EXPECT_EQ(console.Lines, nullptr);
}

TEST_F(Write, ADisabledConsoleKeepsItsLog) {
    init();
    console.Write(L"before");
    console.Flag |= OUTIL_DISABLE;
    recorder::clear();
    console.Write(L"%d", 5);
    EXPECT_EQ(tag("Write"), "OUTIL_DISABLE");
    EXPECT_EQ(recorder::text(recorder::kDraw), "");
    console.OverWrite(L"%d", 5);
    EXPECT_EQ(lines(), Strings{L"before"});
    console.flag_read = 3;
    EXPECT_NE(console.Update(1), nullptr);
}

TEST_F(Write, TheLogIsPaintedBeforeTheSlidersGoBack) {
    init(TEXTS_CURSOR_V);
    for (int i = 0; i < 40; i++)
        console.Write(L"line %d", i);
    console.Cursor_V.Cur_Value = 100;
    const std::string calls = painted([&] { console.Write(L"new"); });
    EXPECT_EQ(console.Cursor_V.Cur_Value, 0.0f);
    // Ten lines up: the new line is not among what was painted, and no second painting followed.
    EXPECT_EQ(calls.find("\"new\""), std::string::npos);
    EXPECT_NE(calls.find("\"line 30\""), std::string::npos) << calls;
    const std::size_t log = calls.find("Texts::Re_Write"), slider = calls.find("Sliders::Cursor");
    EXPECT_LT(log, slider);
    EXPECT_EQ(calls.find("Texts::Re_Write", log + 1), std::string::npos);
}

TEST_F(Write, WhileReadingTheStripIsPaintedToo) {
    read();
    const std::string calls = painted([&] { console.Write(L"x"); });
    const std::size_t log = calls.find("Texts::Re_Write"), frame = calls.find("Tools::Cadre"),
                      strip = calls.find("Texts::Read_Echo");
    EXPECT_TRUE(log < frame && frame < strip && strip != std::string::npos) << calls;
    console.flag_read = 4; // not reading
    EXPECT_EQ(painted([&] { console.Write(L"x"); }).find("Read_Echo"), std::string::npos);
}

TEST_F(Write, HiddenItPaintsNothing) {
    read(OUTIL_INVISIBLE);
    EXPECT_EQ(painted([&] { console.Write(L"x"); }), "");
    EXPECT_EQ(lines(), Strings{L"x"});
}

struct OverWrite : Console {};

TEST_F(OverWrite, TakesThePlaceOfTheNewestLine) {
    init();
    console.Write(L"first");
    console.Write(L"1 %%");
    console.OverWrite(L"%d %%", 50);
    EXPECT_EQ(lines(), (Strings{L"50 %", L"first"}));
    console.OverWrite("100 %%\ndone");
    EXPECT_EQ(lines(), (Strings{L"done", L"100 %", L"first"}));
}

TEST_F(OverWrite, WithoutALogItMakesOne) {
    init();
    console.OverWrite("x");
    EXPECT_EQ(lines(), Strings{L"x"});
}

TEST_F(OverWrite, LeavesNoTrace) {
    init();
    console.OverWrite("%hs", "x");
    console.OverWrite(static_cast<const char*>(nullptr));
    console.OverWrite(static_cast<const wchar_t*>(nullptr));
    console.Dim_X = 0;
    console.OverWrite("y");
    EXPECT_EQ(tag("OverWrite"), "(none)");
    EXPECT_EQ(lines(), Strings{L"x"});
}

TEST_F(OverWrite, WarnsUnderItsOwnName) {
    console.Name_Set(L"log");
    console.OverWrite(L"x");
    EXPECT_NE(recorder::warnings().find("type: Text::OverWrite   name: log"), std::string::npos);
}

struct Update : Console {
    std::wstring wide() {
        const void* line = console.Update(1);
        return line ? static_cast<const wchar_t*>(line) : L"(null)";
    }
};

TEST_F(Update, GivesNothingWhileNothingWaits) {
    read();
    for (const signed char reading : {0, 1, -1, -128, -2}) {
        console.flag_read = reading;
        EXPECT_EQ(console.Update(), nullptr);
        EXPECT_EQ(console.Update(1), nullptr);
        EXPECT_EQ(console.flag_read, reading);
    }
    EXPECT_EQ(tag("Update"), "");
}

TEST_F(Update, ACompletedLineEndsReading) {
    read(0, L"gr\x00FC\x00DF");
    for (const signed char reading : {2, 3, 6, 7}) {
        console.flag_read = reading;
        EXPECT_STREQ(console.Update(), "gr\xC3\xBC\xC3\x9F");
        EXPECT_EQ(console.flag_read, 0);
    }
}

TEST_F(Update, AReportedKeyGoesOnReading) {
    read(0, L"ab");
    console.flag_read = 5;
    EXPECT_EQ(wide(), L"ab");
    EXPECT_EQ(console.flag_read, 1);
    console.flag_read = 4;
    EXPECT_STREQ(static_cast<char*>(console.Update(0)), "ab");
    EXPECT_EQ(console.flag_read, 0);
}

TEST_F(Update, TheWideFormIsTheLineItself) {
    read(0, L"ab");
    console.flag_read = 3;
    EXPECT_EQ(console.Update(2), console.Edit_Line);
    EXPECT_STREQ(console.Edit_Line, L"ab"); // collecting does not empty it
}

TEST_F(Update, SmallConsolesGiveNothing) {
    read(0, L"ab");
    console.flag_read = 3;
    console.Dim_X = 0;
    EXPECT_EQ(console.Update(), nullptr);
    EXPECT_EQ(tag("Update"), "<0");
    EXPECT_EQ(console.Update(1), nullptr);
    EXPECT_EQ(console.flag_read, 3);
}
