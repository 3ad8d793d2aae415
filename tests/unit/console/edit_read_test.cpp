#include <cstring>

#include "edit_fixture.h"

// How reading begins, which keys are refused, and how the host collects what was typed.

namespace {

struct Reading : Editor {};

TEST_F(Reading, BeginsWithTheFormattedTextAndTheCaretBehindIt) {
    init();
    console.Read("%d-%ls", 42, L"wide");
    EXPECT_EQ(edited(), L"42-wide|");
    EXPECT_EQ(console.flag_read, TEXTS_READING);
    EXPECT_EQ(recorder::exit_tag("Texts::Read"), "done0");
    console.Read(L"%d-%hs", 7, "narrow");
    EXPECT_EQ(edited(), L"7-narrow|");
    console.Read(static_cast<const char*>(nullptr));
    EXPECT_EQ(edited(), L"|");
    console.Read(L"x");
    console.Read(static_cast<const wchar_t*>(nullptr));
    EXPECT_EQ(edited(), L"|");
    console.Read(L"x");
    console.Read(nullptr);
    EXPECT_EQ(edited(), L"|");
}

TEST_F(Reading, DropsWhatWaitedAndStartsAtTheHistorysEnd) {
    init();
    for (int waiting : {0, 1, 3, 5, 7}) {
        console.flag_read = static_cast<signed char>(waiting);
        console.Hist_Pos = 9;
        console.Read("new");
        EXPECT_EQ(console.flag_read, TEXTS_READING);
        EXPECT_EQ(console.Hist_Pos, 0);
        EXPECT_EQ(console.Update(), nullptr) << "right after Read";
    }
}

// The narrow form empties the front half alone.
TEST_F(Reading, TheFormsEmptyDifferentLengths) {
    init();
    std::fill_n(console.Edit_Line, 1023, L'x');
    console.Read(static_cast<const char*>(nullptr));
    EXPECT_EQ(console.Edit_Line[0], 0);
    EXPECT_EQ(console.Edit_Line[511], 0);
    EXPECT_EQ(console.Edit_Line[512], L'x');
    console.Read(static_cast<const wchar_t*>(nullptr));
    for (wchar_t c : console.Edit_Line)
        ASSERT_EQ(c, 0);
}

TEST_F(Reading, ALongTextIsCut) {
    init();
    const std::string narrow(5000, 'n');
    console.Read("%hs", narrow.c_str());
    EXPECT_EQ(console.Edit_Line, std::wstring(1023, L'n'));
    EXPECT_EQ(console.Edit_Pos, 1023);
    console.Read(L"%hs", narrow.c_str());
    EXPECT_EQ(console.Edit_Line, std::wstring(1023, L'n'));
}

// A host that begins anew after each reported edit leaves the caret to the user.
TEST_F(Reading, TheCaretStaysOnlyWhenReportsGoOn) {
    struct Case {
        DWORD flag;
        int flag_read, caret;
    };
    for (const Case& c : {Case{0, 0, 5},
                          {0, 1, 5},
                          {TEXTS_REPORT_KEYS, 0, 5},
                          {TEXTS_REPORT_KEYS, 4, 5},
                          {TEXTS_REPORT_KEYS, 1, 2},
                          {TEXTS_REPORT_KEYS, 7, 2}}) {
        console.Flag = c.flag;
        init();
        console.flag_read = static_cast<signed char>(c.flag_read);
        console.Edit_Pos = 2;
        console.Read("hello");
        EXPECT_EQ(console.Edit_Pos, c.caret) << c.flag << " " << c.flag_read;
    }
}

TEST_F(Reading, ACaretThatStayedBeyondAShorterTextIsPulledBackByThePointer) {
    read(TEXTS_REPORT_KEYS, L"a long text");
    console.Read("hey");
    EXPECT_EQ(console.Edit_Pos, 11);
    console.Select(0, 0, 0);
    EXPECT_EQ(console.Edit_Pos, 3);
    console.Edit_Pos = 9;
    console.Flag |= OUTIL_DISABLE;
    console.Select(0, 0, 0);
    EXPECT_EQ(console.Edit_Pos, 3) << "also on a disabled control";
}

TEST_F(Reading, PaintsByDraw) {
    for (DWORD flag :
         {DWORD{0}, TEXTS_CURSOR_V | TEXTS_CURSOR_H, TEXTS_FIELD, OUTIL_INVISIBLE, GRAPH_OUTLINE}) {
        console.Flag = flag;
        init();
        console.Read("text");
        const float value = console.Cursor_V.Val_Max;
        EXPECT_EQ(everything([&] { console.Read("text"); }), everything([&] {
                      trace_in("Texts::Read", "no name");
                      console.Draw();
                      trace_out("Texts::Read", "done0");
                  }));
        EXPECT_EQ(console.Cursor_V.Val_Max, value) << "the sliders are not fitted";
    }
}

TEST_F(Reading, NeedsASizeAndWarnsOnceOfAMissingInit) {
    console.Edit_Pos = 3;
    console.Dim_Y = 0;
    console.Read("text");
    EXPECT_EQ(recorder::exit_tag("Texts::Read"), "<0");
    EXPECT_EQ(recorder::warnings(), first_use_warning("Text::Read"));
    EXPECT_EQ(console.flag_read, 0);
    EXPECT_EQ(console.Edit_Line[0], 0);
    EXPECT_EQ(console.Edit_Pos, 3);
    recorder::clear();
    console.Read("text");
    EXPECT_EQ(recorder::warnings(), "");
}

// --- The gate ---

TEST_F(Reading, KeysAreRefusedInThisOrder) {
    read(TEXTS_REPORT_KEYS, L"ab");
    console.Flag |= OUTIL_INVISIBLE;
    EXPECT_EQ(key('x'), "OUTIL_INVISIBLE");
    console.Flag |= OUTIL_DISABLE;
    EXPECT_EQ(key('x'), "OUTIL_DISABLE");
    console.flag_read = 6;
    EXPECT_EQ(key('x'), "! flag_read");
    EXPECT_EQ(key(0), "! key");
    console.Dim_X = 0;
    EXPECT_EQ(key(0), "<0");
    console.Dim_X = 300, console.Dim_Y = -1;
    EXPECT_EQ(key(0), "<0");
    EXPECT_EQ(edited(), L"ab|");
    EXPECT_EQ(console.flag_read, 6);
}

TEST_F(Reading, RefusedKeysPaintNothing) {
    read(0, L"ab");
    for (DWORD flag : {OUTIL_INVISIBLE, OUTIL_DISABLE}) {
        console.Flag = flag;
        for (int code : {int{'x'}, ENTER, ESCAPE, UP, PASTE, 8})
            EXPECT_EQ(painted([&] { console.Input(code); }), "");
        EXPECT_EQ(console.flag_read, TEXTS_READING);
        EXPECT_EQ(console.Lines, nullptr);
    }
}

TEST_F(Reading, AKeyBeforeInitWarnsAndIsRefused) {
    console.Input('x');
    EXPECT_EQ(recorder::warnings(), first_use_warning("Text::Input"));
    EXPECT_EQ(recorder::exit_tag("Texts::Input"), "! flag_read");
}

// --- Collecting ---

TEST_F(Reading, UpdateGoesByItsTable) {
    struct Case {
        int before;
        bool line;
        int after;
    };
    init();
    std::wcscpy(console.Edit_Line, L"line");
    for (const Case& c : {Case{0, false, 0},
                          {1, false, 1},
                          {2, true, 0},
                          {3, true, 0},
                          {7, true, 0},
                          {6, true, 0},
                          {5, true, 1},
                          {4, true, 0},
                          {-1, false, -1},
                          {-128, false, -128}}) {
        for (bool wide : {false, true}) {
            console.flag_read = static_cast<signed char>(c.before);
            void* const line = wide ? console.Update(1) : console.Update();
            EXPECT_EQ(line != nullptr, c.line) << c.before;
            if (line && wide) {
                EXPECT_EQ(line, console.Edit_Line);
            }
            if (line && !wide) {
                EXPECT_STREQ(static_cast<char*>(line), "line");
            }
            EXPECT_EQ(console.flag_read, c.after) << c.before;
            EXPECT_STREQ(console.Edit_Line, L"line") << "collecting does not empty it";
        }
    }
}

TEST_F(Reading, UpdateWithoutWidthIsTheNarrowOne) {
    read(0, L"\u00e9\u20ac");
    console.Input(ENTER);
    EXPECT_STREQ(static_cast<char*>(console.Update(0)), "\xC3\xA9\xE2\x82\xAC");
    EXPECT_EQ(console.flag_read, 0);
}

TEST_F(Reading, UpdateNeedsASizeButNoInitAndWorksDisabled) {
    console.flag_read = 3;
    console.Dim_X = 0;
    EXPECT_EQ(console.Update(), nullptr);
    EXPECT_EQ(console.Update(1), nullptr);
    EXPECT_EQ(console.flag_read, 3);
    EXPECT_EQ(recorder::exit_tag("Texts::Update"), "<0");
    console.Dim_X = 300;
    console.Flag = OUTIL_DISABLE | OUTIL_INVISIBLE;
    EXPECT_NE(console.Update(1), nullptr);
    EXPECT_EQ(recorder::exit_tag("Texts::Update"), "");
    EXPECT_EQ(recorder::warnings(), "");
}

} // namespace
