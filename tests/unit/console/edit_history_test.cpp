#include "edit_fixture.h"

// Walking the history, and typing by the clipboard.

namespace {

struct History : Editor {
    static constexpr int PAD_UP = 0x1068, PAD_DOWN = 0x1062;
    void entered(int count) {
        init(TEXTS_REPORT_KEYS);
        for (int i = 1; i <= count; i++)
            enter(L"line " + std::to_wstring(i));
        console.Read(L"");
        recorder::clear();
    }
};

TEST_F(History, WalksBackAndShowsTheSameEntryOnceMoreOnTheWayForth) {
    for (bool pad : {false, true}) {
        const int up = pad ? PAD_UP : UP, down = pad ? PAD_DOWN : DOWN;
        console.Cleanup();
        entered(3);
        keys(L"typed");
        console.Input(up);
        EXPECT_EQ(edited(), L"line 3|");
        console.Input(up);
        EXPECT_EQ(edited(), L"line 2|");
        console.Input(up);
        EXPECT_EQ(edited(), L"line 1|");
        EXPECT_EQ(console.Hist_Pos, 3);
        console.Input(up);
        EXPECT_EQ(edited(), L"line 1|") << "the oldest one stays";
        EXPECT_EQ(console.Hist_Pos, 3);
        console.Input(down);
        EXPECT_EQ(edited(), L"line 1|") << "once more";
        console.Input(down);
        EXPECT_EQ(edited(), L"line 2|");
        console.Input(up);
        EXPECT_EQ(edited(), L"line 2|");
        console.Input(down);
        console.Input(down);
        EXPECT_EQ(edited(), L"line 3|");
        EXPECT_EQ(console.Hist_Pos, 0);
        console.Input(down);
        EXPECT_EQ(edited(), L"|");
        EXPECT_EQ(console.Hist_Pos, 0);
    }
}

TEST_F(History, UpReportsInAnyCaseAndShowsOnlyAChange) {
    entered(1);
    EXPECT_EQ(echoes([&] { EXPECT_EQ(key(UP), "done"); }), 1);
    EXPECT_TRUE(changed());
    EXPECT_EQ(painted([&] { console.Input(UP); }), "") << "nothing older";
    EXPECT_TRUE(changed());
    EXPECT_EQ(edited(), L"line 1|");
    console.Cleanup();
    console.Read(L"kept");
    EXPECT_EQ(painted([&] { console.Input(UP); }), "") << "no history at all";
    EXPECT_TRUE(changed());
    EXPECT_EQ(edited(), L"kept|");
}

TEST_F(History, DownEmptiesTheLineInAnyCase) {
    init(TEXTS_REPORT_KEYS);
    console.Read(L"gone");
    EXPECT_EQ(echoes([&] { EXPECT_EQ(key(DOWN), "done"); }), 1) << "no history at all";
    EXPECT_TRUE(changed());
    EXPECT_EQ(edited(), L"|");
    console.Read(L"");
    EXPECT_EQ(echoes([&] { console.Input(DOWN); }), 1) << "right after Read";
    EXPECT_TRUE(changed());
    entered(1);
    std::fill_n(console.Edit_Line, 1023, L'x');
    console.Input(DOWN);
    for (wchar_t c : console.Edit_Line)
        ASSERT_EQ(c, 0) << "the whole buffer";
}

TEST_F(History, HoldsFiftyLines) {
    entered(53);
    ASSERT_EQ(history().size(), 50u);
    EXPECT_EQ(history().front(), L"line 53");
    EXPECT_EQ(history().back(), L"line 4");
    for (int i = 0; i < 50; i++)
        console.Input(UP);
    EXPECT_EQ(edited(), L"line 4|");
    EXPECT_EQ(console.Hist_Pos, 50);
    EXPECT_EQ(painted([&] { console.Input(UP); }), "");
    EXPECT_EQ(edited(), L"line 4|");
    EXPECT_EQ(console.Hist_Pos, 50);
}

// The two ways are not alike.
TEST_F(History, UpShowsWhatCanBePrintedAndDownOnlyAscii) {
    init();
    enter(L"a\x01\u00e9\u20ac\u0141~\x7f\u200b"
          L"b");
    console.Read(L"");
    console.Input(UP);
    EXPECT_STREQ(console.Edit_Line, L"a \u00e9\u20ac\u0141~  b");
    console.Input(DOWN);
    // By the low byte: U+20AC has 0xAC, which is none, and U+0141 has 0x41, which is one.
    EXPECT_STREQ(console.Edit_Line, L"a   \u0141~  b");
    EXPECT_EQ(console.Edit_Pos, 9);
}

TEST_F(History, AHoleIsNotAnEntry) {
    entered(3);
    std::free(console.History[1]);
    console.History[1] = nullptr;
    console.Input(UP);
    EXPECT_EQ(edited(), L"line 3|");
    console.Input(UP);
    EXPECT_EQ(edited(), L"line 3|");
    EXPECT_EQ(console.Hist_Pos, 1);
    console.Hist_Pos = 2;
    console.Input(DOWN);
    EXPECT_EQ(edited(), L"|");
    EXPECT_EQ(console.Hist_Pos, 2);
}

TEST_F(History, AnyPositionIsHarmless) {
    entered(3);
    for (int place : {-1, -2147483647 - 1, 50, 51, 2147483647}) {
        console.Hist_Pos = place;
        console.Input(UP);
        EXPECT_EQ(console.Hist_Pos, place);
        console.Input(DOWN);
        EXPECT_EQ(console.Edit_Line[0], 0);
    }
}

// A host may put its own strings there, of any length.
TEST_F(History, ALongEntryIsCut) {
    entered(1);
    std::free(console.History[0]);
    console.History[0] = static_cast<wchar_t*>(std::calloc(3001, sizeof(wchar_t)));
    std::fill_n(console.History[0], 3000, L'h');
    console.Input(UP);
    EXPECT_EQ(console.Edit_Line, std::wstring(1023, L'h'));
    EXPECT_EQ(console.Edit_Pos, 1023);
    console.Input(DOWN);
    EXPECT_EQ(console.Edit_Line, std::wstring(1023, L'h'));
}

TEST_F(History, StaysWhileReadingIsGivenUpAndBegunAnew) {
    entered(2);
    console.Input(UP);
    console.Input(ESCAPE);
    EXPECT_EQ(console.Hist_Pos, 1);
    EXPECT_EQ(history().size(), 2u);
    console.Read(L"");
    EXPECT_EQ(console.Hist_Pos, 0);
}

// --- Paste ---

struct Paste : Editor {
    static std::string system(Texts& console) {
        return recorded(recorder::kSystem, [&] { console.Input(PASTE); });
    }
};

TEST_F(Paste, TypesTheTextKeyByKey) {
    read(TEXTS_REPORT_KEYS, L"<>");
    console.Edit_Pos = 1;
    desk::copy(L"ab");
    recorder::clear();
    console.Input(PASTE);
    EXPECT_EQ(edited(), L"<ab|>");
    EXPECT_TRUE(changed());
    std::string traces;
    for (const std::string& line : recorder::reports(0x90000029))
        if (line.find("Texts::Input") != std::string::npos) traces += line.substr(0, 3);
    EXPECT_EQ(traces, ">>>>>><<<>>><<<<<<") << "each character goes through Input";
}

TEST_F(Paste, AsksTheClipboardInThisOrder) {
    read();
    desk::copy(L"x");
    const std::string calls = system(console);
    std::size_t at = 0;
    for (const char* call : {"IsClipboardFormatAvailable(1)", "OpenClipboard(WND)", "GetClipboardData(13)",
                             "GlobalLock(BLOCK)", "GlobalUnlock(BLOCK)", "CloseClipboard()"}) {
        const std::size_t found = calls.find(call, at);
        ASSERT_NE(found, std::string::npos) << call << " in\n" << calls;
        at = found + 1;
    }
}

TEST_F(Paste, WithoutTextOnlyReports) {
    read(TEXTS_REPORT_KEYS, L"a");
    EXPECT_EQ(system(console), "IsClipboardFormatAvailable(1)\n");
    EXPECT_TRUE(changed());
    EXPECT_EQ(painted([&] { EXPECT_EQ(key(PASTE), "done"); }), "");
    EXPECT_EQ(edited(), L"a|");
}

TEST_F(Paste, AClipboardThatGivesNothingIsClosedWithoutAReport) {
    read(TEXTS_REPORT_KEYS, L"a");
    desk::copy(L"x");
    desk::clipboard().gives = false;
    EXPECT_EQ(system(console), "IsClipboardFormatAvailable(1)\nOpenClipboard(WND)\nGetClipboardData(13)\n"
                               "CloseClipboard()\n");
    EXPECT_FALSE(changed());
    EXPECT_EQ(edited(), L"a|");
}

TEST_F(Paste, AClipboardThatCannotBeReadIsPassedOver) {
    read(TEXTS_REPORT_KEYS, L"a");
    desk::copy(L"x");
    desk::clipboard().locks = false;
    const std::string calls = system(console);
    EXPECT_NE(calls.find("CloseClipboard()"), std::string::npos) << calls;
    EXPECT_EQ(edited(), L"a|");
    desk::clipboard().locks = true, desk::clipboard().opens = false;
    system(console);
    EXPECT_EQ(edited(), L"a|");
}

// A carriage return is Enter in mid-paste, and what follows adds to the line that is still there.
TEST_F(Paste, LineBreaksActAsKeys) {
    read(0, L"0");
    desk::copy(L"a\r\nb\tc\r\n");
    console.Input(PASTE);
    EXPECT_EQ(lines(), (std::vector<std::wstring>{L"0abc", L"0a"}));
    EXPECT_EQ(history(), (std::vector<std::wstring>{L"0abc", L"0a"}));
    EXPECT_EQ(edited(), L"0abc|");
    EXPECT_EQ(console.flag_read, 3);
}

TEST_F(Paste, AnEscapeEndsReadingAndRefusesTheRest) {
    read(0, L"0");
    desk::copy(L"a\x1b"
               L"b");
    EXPECT_EQ(key(PASTE), "done");
    EXPECT_EQ(console.flag_read, 0);
    EXPECT_STREQ(console.Edit_Line, L"0a");
}

TEST_F(Paste, AReportAfterItsEndMarksTheChange) {
    read(TEXTS_REPORT_KEYS);
    desk::copy(L"\x1b");
    console.Input(PASTE);
    EXPECT_EQ(console.flag_read, TEXTS_CHANGED);
}

TEST_F(Paste, ItsOwnKeyInTheTextDoesNothing) {
    read();
    desk::copy(L"a\u0256"
               L"b");
    console.Input(PASTE);
    EXPECT_EQ(edited(), L"ab|");
    console.Input(PASTE);
    EXPECT_EQ(edited(), L"abab|") << "it works again afterwards";
}

// A unit that looks like a key acts as one: U+0825 is Left.
TEST_F(Paste, CharactersThatLookLikeKeysActAsKeys) {
    read();
    desk::copy(L"ab\u0825c\u0100");
    console.Input(PASTE);
    EXPECT_EQ(edited(), L"ac|b");
}

TEST_F(Paste, EndsAtTheBlocksSizeEvenWithoutATerminator) {
    read();
    desk::clipboard().text = true;
    desk::clipboard().units = {L'a', L'b'};
    desk::clipboard().units.shrink_to_fit();
    console.Input(PASTE);
    EXPECT_EQ(edited(), L"ab|");
    desk::clipboard().units.clear();
    desk::clipboard().units.push_back(0);
    console.Input(PASTE);
    EXPECT_EQ(edited(), L"ab|");
    desk::clipboard().units = {L'c', 0, L'd'};
    console.Input(PASTE);
    EXPECT_EQ(edited(), L"abc|") << "and at the terminator";
}

TEST_F(Paste, ALongTextFillsTheLineAndNoMore) {
    read();
    recorder::listen(0);
    desk::copy(std::wstring(100000, L'p'));
    console.Input(PASTE);
    recorder::listen(recorder::kEverything);
    EXPECT_EQ(console.Edit_Line, std::wstring(1022, L'p'));
    EXPECT_EQ(console.Edit_Pos, 1022);
}

TEST_F(Paste, IsFilteredLikeTyping) {
    read(TEXTS_INTEGER);
    desk::copy(L"a1b-2.5");
    console.Input(PASTE);
    EXPECT_EQ(edited(), L"1-25|");
}

TEST_F(Paste, CharactersBeyond16BitsComeAsPairs) {
    read();
    desk::copy(L"\U0001F600");
    console.Input(PASTE);
    EXPECT_EQ(edited(), L"\xD83D\xDE00|");
}

} // namespace
