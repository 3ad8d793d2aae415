// The pointer over a console: caret, sliders, and the line under it.

#include "console_fixture.h"

struct Tracking : Console {
    bool echoed(const std::string& calls) { return calls.find("Texts::Read_Echo") != std::string::npos; }
    bool rewritten(const std::string& calls) { return calls.find("Texts::Re_Write") != std::string::npos; }
};

struct Select : Tracking {};

TEST_F(Select, TheCaretComesAndGoesWithThePointer) {
    read();
    inside();
    EXPECT_TRUE(echoed(painted([&] { EXPECT_EQ(console.Select(1), 1); })));
    EXPECT_EQ(console.select, 1);
    EXPECT_EQ(tag("Select"), "(none)"); // the log was read and emptied
    EXPECT_FALSE(echoed(painted([&] { EXPECT_EQ(console.Select(1), 1); })));
    console.Select(1);
    EXPECT_EQ(tag("Select"), "select == 1");
    outside();
    EXPECT_TRUE(echoed(painted([&] { EXPECT_EQ(console.Select(1), 0); })));
    EXPECT_EQ(console.select, 2);
    EXPECT_FALSE(echoed(painted([&] { EXPECT_EQ(console.Select(1), 0); })));
    console.Select(1);
    EXPECT_EQ(tag("Select"), "select == 2:0");
}

TEST_F(Select, WithoutReadingNothingIsPainted) {
    init();
    for (const signed char reading : {0, 2, 4}) {
        console.flag_read = reading;
        inside();
        EXPECT_FALSE(echoed(painted([&] { EXPECT_EQ(console.Select(1), 1); })));
        outside();
        EXPECT_FALSE(echoed(painted([&] { EXPECT_EQ(console.Select(1), 0); })));
    }
    EXPECT_EQ(console.select, 2);
}

TEST_F(Select, AQueryIsAnEventLikeOthers) {
    read();
    inside();
    EXPECT_TRUE(echoed(painted([&] { EXPECT_EQ(console.Select(4 + 48), 1); })));
    EXPECT_EQ(console.select, 1);
}

TEST_F(Select, TheFarEdgesAreInside) {
    init();
    recorder::pointer(400, 400);
    EXPECT_EQ(console.Select(1), 1);
    recorder::pointer(401, 400);
    EXPECT_EQ(console.Select(1), 0);
}

TEST_F(Select, PullsTheCaretBackToTheLine) {
    read(0, L"abc");
    console.Edit_Pos = 9;
    console.Select(1);
    EXPECT_EQ(console.Edit_Pos, 3);
    console.Edit_Pos = 9;
    console.Flag |= OUTIL_DISABLE;
    console.Select(1);
    EXPECT_EQ(console.Edit_Pos, 3);
    console.Edit_Pos = 9;
    console.Dim_X = 0;
    console.Select(1);
    EXPECT_EQ(console.Edit_Pos, 9);
    EXPECT_EQ(tag("Select"), "<0");
}

TEST_F(Select, ADisabledConsoleShowsItsStripAnew) {
    read(TEXTS_CURSOR_V);
    console.Flag |= OUTIL_DISABLE;
    inside();
    const std::string calls = painted([&] { EXPECT_EQ(console.Select(2), 0); });
    EXPECT_TRUE(echoed(calls));
    EXPECT_EQ(console.select, 0);
    recorder::clear();
    console.Select(2);
    const std::string reports = recorder::text(recorder::kReport);
    EXPECT_LT(reports.find("Sliders::Deselect"), reports.find("Zeb_Create_Font"));
    EXPECT_EQ(tag("Select"), "OUTIL_DISABLE:0");
    console.Cursor_V.Wnd = nullptr;
    recorder::clear();
    console.Select(2);
    EXPECT_EQ(recorder::text(recorder::kReport).find("Sliders::Deselect"), std::string::npos);
    for (const DWORD flag : {OUTIL_INVISIBLE, OUTIL_EMPTY, GRAPH_OUTLINE}) {
        console.Flag = OUTIL_DISABLE | flag;
        EXPECT_EQ(painted([&] { EXPECT_EQ(console.Select(2), 0); }), "");
        console.Select(2);
        EXPECT_EQ(tag("Select"), "OUTIL_EMPTY|OUTIL_INVISIBLE:0");
    }
}

TEST_F(Select, OnASliderItAnswersOneAndLeavesTheCaret) {
    read(TEXTS_CURSOR_V);
    fill(40);
    recorder::pointer(console.Cursor_V.Pos_X + 8, console.Cursor_V.Pos_Y + 80);
    const std::string calls = painted([&] { EXPECT_EQ(console.Select(1), 1); });
    EXPECT_EQ(console.select, 0);
    EXPECT_FALSE(echoed(calls));
    EXPECT_FALSE(rewritten(calls)); // no button is down
    console.Select(1);
    EXPECT_EQ(tag("Select"), "1");
}

TEST_F(Select, ADragMovesTheLogAtEachStep) {
    for (const int button : {VK_LBUTTON, VK_RBUTTON, VK_MBUTTON}) {
        init(TEXTS_CURSOR_V);
        fill(40);
        desk::hold(button);
        recorder::pointer(console.Cursor_V.Pos_X + 8, console.Cursor_V.Pos_Y + 120);
        std::string calls = painted([&] { EXPECT_EQ(console.Select(2 + 16), 1); });
        EXPECT_TRUE(rewritten(calls));
        EXPECT_GT(console.Cursor_V.Cur_Value, 0.0f);
        EXPECT_EQ(console.Cursor_V.Cur_Value, console.Cursor_V.Read());
        desk::let_go(button);
        console.Deselect();
        console.Cleanup();
    }
}

TEST_F(Select, ADragOfTheHorizontalSlider) {
    init(TEXTS_CURSOR_H);
    console.Write(L"%ls", std::wstring(80, L'x').c_str());
    desk::hold(VK_LBUTTON);
    recorder::pointer(console.Cursor_H.Pos_X + 200, console.Cursor_H.Pos_Y + 8);
    EXPECT_TRUE(rewritten(painted([&] { EXPECT_EQ(console.Select(2 + 16), 1); })));
    EXPECT_GT(console.Cursor_H.Cur_Value, 0.0f);
}

TEST_F(Select, AHostMovesTheLogByPixels) {
    init(TEXTS_CURSOR_V | TEXTS_CURSOR_H);
    fill(40);
    console.Write(L"%ls", std::wstring(80, L'x').c_str());
    inside();
    const std::string calls = painted([&] { EXPECT_EQ(console.Select(1, 7, 15), 1); });
    EXPECT_EQ(console.Cursor_H.Cur_Value, 7.0f);
    EXPECT_EQ(console.Cursor_V.Cur_Value, 15.0f);
    const std::size_t first = calls.find("Texts::Re_Write");
    EXPECT_NE(calls.find("Texts::Re_Write", first + 1), std::string::npos); // once for each
    console.Select(1, -100, 100000);
    EXPECT_EQ(console.Cursor_H.Cur_Value, 0.0f);
    EXPECT_EQ(console.Cursor_V.Cur_Value, console.Cursor_V.Val_Max);
    outside();
    console.Select(1, 5, 5);
    EXPECT_EQ(console.Cursor_H.Cur_Value, 0.0f);
    console.Flag = 0;
    inside();
    EXPECT_FALSE(rewritten(painted([&] { console.Select(1, 5, 5); })));
}

TEST_F(Select, WarnsAtFirstUse) {
    console.Select(1);
    EXPECT_NE(recorder::warnings().find("type: Text::Select   name: no name"), std::string::npos);
}

struct Deselect : Tracking {};

TEST_F(Deselect, TakesTheCaretAway) {
    read(TEXTS_CURSOR_V);
    console.select = 1;
    recorder::clear();
    console.Deselect();
    EXPECT_EQ(console.select, 2);
    EXPECT_TRUE(echoed(recorder::text(recorder::kDraw)));
    EXPECT_NE(recorder::text(recorder::kReport).find("Sliders::Deselect"), std::string::npos);
    EXPECT_EQ(tag("Deselect"), "");
}

TEST_F(Deselect, WithoutReadingOrSliderItOnlyNotes) {
    init();
    EXPECT_EQ(painted([&] { console.Deselect(); }), "");
    EXPECT_EQ(console.select, 2);
}

TEST_F(Deselect, TellsItsWaysOut) {
    console.Deselect();
    EXPECT_EQ(tag("Deselect"), "! this->test");
    EXPECT_EQ(recorder::warnings(), "");
    read();
    for (const DWORD flag : {OUTIL_INVISIBLE, OUTIL_EMPTY, GRAPH_OUTLINE}) {
        console.Flag = flag;
        console.Deselect();
        EXPECT_EQ(tag("Deselect"), "OUTIL_EMPTY|OUTIL_INVISIBLE|OUTIL_OUTLINE");
        EXPECT_EQ(console.select, 0);
    }
    console.Dim_Y = 0;
    console.Deselect();
    EXPECT_EQ(tag("Deselect"), "< 0");
}

// --- The line under the pointer: 10 pixels each, the newest from 203 up ---

struct Read_Line : Tracking {
    std::string at(int y, int x = 250) {
        recorder::pointer(x, y);
        const wchar_t* line = console.Read_Line();
        return line ? recorder::narrow(line) : "none";
    }
};

TEST_F(Read_Line, WhereTwoTouchTheLowerOneAnswers) {
    init();
    fill(3);
    EXPECT_EQ(at(202), "none");
    EXPECT_EQ(at(203), "line 2");
    EXPECT_EQ(at(213), "line 2");
    EXPECT_EQ(at(214), "line 1");
    EXPECT_EQ(at(223), "line 1");
    EXPECT_EQ(at(224), "line 0");
    EXPECT_EQ(at(233), "line 0");
    EXPECT_EQ(at(234), "none") << "above the oldest";
    EXPECT_EQ(at(208, -500), "line 2") << "only the height counts";
}

TEST_F(Read_Line, FollowsTheScrollingAndTheStrip) {
    init(TEXTS_CURSOR_V);
    fill(100);
    console.Cursor_V.Cur_Value = 30.0f;
    EXPECT_EQ(at(208), "line 96");
    EXPECT_EQ(at(203), "line 96") << "the one below lies out of the log";
    console.Cursor_V.Flag |= OUTIL_DISABLE;
    EXPECT_EQ(at(208), "line 99");
    console.Flag |= TEXTS_READ_STRIP; // 19 pixels
    EXPECT_EQ(at(208), "none");
    EXPECT_EQ(at(227), "line 99");
}

TEST_F(Read_Line, GivesTheWholeLineWithItsMarksInABufferOfItsOwn) {
    init();
    console.Write(L"\x1"
                  L"a\xF1"
                  L"b");
    recorder::pointer(250, 208);
    wchar_t* const found = console.Read_Line();
    ASSERT_NE(found, nullptr);
    EXPECT_STREQ(found, L"\x1"
                        L"a\xF1"
                        L"b");
    EXPECT_NE(found, console.Lines[0]);
    console.OverWrite(L"other");
    EXPECT_EQ(console.Read_Line(), found) << "one for all calls";
    EXPECT_STREQ(found, L"other");
}

TEST_F(Read_Line, ALineFromTheHostIsCutToTheBuffer) {
    init();
    console.Write(L"x");
    std::free(console.Lines[0]);
    console.Lines[0] = static_cast<wchar_t*>(std::calloc(5001, sizeof(wchar_t)));
    std::fill_n(console.Lines[0], 5000, L'n');
    EXPECT_EQ(at(208), std::string(1023, 'n'));
}

TEST_F(Read_Line, AHoleIsNoLine) {
    init();
    fill(3);
    std::free(console.Lines[1]);
    console.Lines[1] = nullptr;
    EXPECT_EQ(at(213), "line 2");
    EXPECT_EQ(at(218), "none");
    EXPECT_EQ(at(223), "line 0") << "the far end of a hole belongs to the next one";
}

TEST_F(Read_Line, HiddenEmptyOrTooSmallThereIsNone) {
    init();
    EXPECT_EQ(at(208), "none") << "nothing was ever written";
    fill(1);
    EXPECT_EQ(painted([&] { at(208); }),
              "Zeb_setup(WND, \"Texts::Read_Line\")\nread_curs()\nZeb_release()\n");
    console.Flag = OUTIL_INVISIBLE;
    EXPECT_EQ(painted([&] { EXPECT_EQ(at(208), "none"); }), "");
    console.Flag = 0, console.Dim_Y = 7; // inside the bevel nothing is left
    EXPECT_EQ(painted([&] { EXPECT_EQ(at(203), "none"); }), "");
}
