#include <cstring>

#include "edit_fixture.h"

// What each key does to the line and its caret, and what of it is shown and reported.

namespace {

struct Keys : Editor {};

struct Edit {
    int key;
    const wchar_t* before; // the caret as "|"
    const wchar_t* after;
};

// Puts the editor into a state written with the caret as "|".
void set(Texts& console, const wchar_t* state) {
    std::wstring line = state;
    console.Edit_Pos = static_cast<int>(line.find(L'|'));
    line.erase(line.find(L'|'), 1);
    std::wmemset(console.Edit_Line, 0, 1024);
    std::wcscpy(console.Edit_Line, line.c_str());
}

TEST_F(Keys, MovementShowsItselfAndReportsNothing) {
    read(TEXTS_REPORT_KEYS);
    const Edit table[] = {
        {0x823, L"a|bc", L"abc|"}, {0x1061, L"|abc", L"abc|"}, {0x823, L"abc|", L"abc|"}, // End
        {0x824, L"ab|c", L"|abc"}, {0x1067, L"abc|", L"|abc"}, {0x824, L"|", L"|"},       // Home
        {0x825, L"ab|c", L"a|bc"}, {0x1064, L"abc|", L"ab|c"}, {0x825, L"|abc", L"|abc"}, // Left
        {0x827, L"ab|c", L"abc|"}, {0x1066, L"|abc", L"a|bc"}, {0x827, L"abc|", L"abc|"}, // Right
    };
    for (const Edit& edit : table) {
        set(console, edit.before);
        EXPECT_EQ(echoes([&] { console.Input(edit.key); }), 1) << edit.key;
        EXPECT_EQ(edited(), edit.after) << edit.key;
        EXPECT_FALSE(changed()) << edit.key;
        set(console, edit.before);
        EXPECT_EQ(key(edit.key), "done");
    }
}

TEST_F(Keys, TakingAwayIsAlwaysShownAndReported) {
    read(TEXTS_REPORT_KEYS);
    const Edit table[] = {
        {8, L"ab|c", L"a|c"},     {8, L"abc|", L"ab|"},      {8, L"|abc", L"|abc"},     {8, L"|", L"|"},
        {0x82E, L"ab|c", L"ab|"}, {0x102E, L"|abc", L"|bc"}, {0x82E, L"abc|", L"abc|"}, {0x102E, L"|", L"|"},
    };
    for (const Edit& edit : table) {
        set(console, edit.before);
        EXPECT_EQ(echoes([&] { EXPECT_EQ(key(edit.key), "done"); }), 1) << edit.key;
        EXPECT_EQ(edited(), edit.after) << edit.key;
        EXPECT_TRUE(changed()) << edit.key;
    }
    console.Flag = 0;
    console.Input('x');
    console.Input(8);
    EXPECT_FALSE(changed()) << "only a host that asked for it gets reports";
}

TEST_F(Keys, TypingPutsCharactersBeforeTheCaret) {
    read(TEXTS_REPORT_KEYS);
    const Edit table[] = {
        {'x', L"|", L"x|"},         {'x', L"|ab", L"x|ab"},       {'x', L"a|b", L"ax|b"},
        {' ', L"a|", L"a |"},       {0x106E, L"1|2", L"1.|2"},    {0xE9, L"|", L"\u00e9|"},
        {0x20AC, L"|", L"\u20ac|"}, {0xD83D, L"a|", L"a\xD83D|"}, {0xDE00, L"a|", L"a\xDE00|"},
    };
    for (const Edit& edit : table) {
        set(console, edit.before);
        EXPECT_EQ(echoes([&] { EXPECT_EQ(key(edit.key), "done"); }), 1) << edit.key;
        EXPECT_EQ(edited(), edit.after) << edit.key;
        EXPECT_TRUE(changed()) << edit.key;
    }
}

// Only the low 16 bits make the character; keys that the table does not know may well be some.
TEST_F(Keys, OtherCodesTypeWhatTheyStandFor) {
    read();
    for (int code : {0x241 /* Ctrl+A */, 0x10041, 0x140}) {
        set(console, L"|");
        EXPECT_EQ(key(code), "done");
        EXPECT_EQ(console.Edit_Line, std::wstring(1, static_cast<wchar_t>(code & 0xFFFF))) << code;
    }
}

TEST_F(Keys, WhatIsNoCharacterIsRefused) {
    read(TEXTS_REPORT_KEYS, L"ab");
    struct Case {
        int code;
        const char* tag;
    };
    for (const Case& c : {Case{9, "key < 32"},
                          {10, "key < 32"},
                          {1, "key < 32"},
                          {31, "key < 32"},
                          {-1, "key < 32"},
                          {-65, "key < 32"},
                          {-2147483647 - 1, "key < 32"},
                          {256, "key == 256"},
                          {127, "! iswprint"},
                          {0x80, "! iswprint"},
                          {0x9F, "! iswprint"},
                          {0x200B, "! iswprint"},
                          {0x2028, "! iswprint"},
                          {0x202E, "! iswprint"},
                          {0xFEFF, "! iswprint"},
                          {0xFFFF, "! iswprint"},
                          {0xFFFE, "! iswprint"},
                          {0x10000, "! iswprint"},
                          {0x378, "! iswprint"},
                          {0x2061 /* 1 on the pad */, "! iswprint"},
                          {0x7FFF0001, "! iswprint"}}) {
        EXPECT_EQ(painted([&] { console.Input(c.code); }), "") << c.code;
        EXPECT_EQ(key(c.code), c.tag) << c.code;
        EXPECT_EQ(edited(), L"ab|") << c.code;
        EXPECT_FALSE(changed()) << c.code;
    }
}

TEST_F(Keys, EveryFilterThatIsSetMustPass) {
    struct Case {
        DWORD flag;
        const wchar_t* takes;
    };
    const Case table[] = {
        {TEXTS_INTEGER, L"+-0123456789"},
        {TEXTS_FLOAT, L"+-.0123456789e"},
        {TEXTS_HEX, L"0123456789ABCDEFabcdef"},
        {TEXTS_INTEGER | TEXTS_FLOAT, L"+-0123456789"},
        {TEXTS_FLOAT | TEXTS_HEX, L"0123456789e"},
        {TEXTS_INTEGER | TEXTS_HEX, L"0123456789"},
        {TEXTS_INTEGER | TEXTS_FLOAT | TEXTS_HEX, L"0123456789"},
    };
    for (const Case& c : table) {
        console.Flag = TEXTS_REPORT_KEYS | c.flag;
        init();
        console.Read(nullptr);
        std::wstring taken;
        for (int code = 32; code < 0x700; code++) {
            if (code == 256 || code == 0x256) continue; // keys of their own
            console.Edit_Line[0] = 0;
            const std::string tag = key(code);
            if (console.Edit_Line[0])
                taken += static_cast<wchar_t>(code);
            else
                EXPECT_TRUE(tag == "not valid" || tag == "! iswprint") << code << " " << tag;
        }
        EXPECT_EQ(taken, c.takes) << std::hex << c.flag;
        changed();
        EXPECT_EQ(key('z'), "not valid");
        EXPECT_EQ(painted([&] { console.Input('z'); }), "");
        EXPECT_FALSE(changed());
    }
}

TEST_F(Keys, TheOrderOfACharacterIsNotTested) {
    read(TEXTS_FLOAT);
    keys(L"1e+e.");
    EXPECT_EQ(edited(), L"1e+e.|");
    EXPECT_EQ(key(127), "! iswprint") << "asked before the filters";
    EXPECT_EQ(key(0x106E), "done") << "the pad's point is one of its characters";
}

TEST_F(Keys, TypingStopsAt1022Characters) {
    read(TEXTS_REPORT_KEYS);
    for (int i = 0; i < 1021; i++)
        console.Input('a');
    changed();
    EXPECT_EQ(key('b'), "done");
    EXPECT_TRUE(changed());
    EXPECT_EQ(std::wcslen(console.Edit_Line), 1022u);
    console.Edit_Pos = 5;
    EXPECT_EQ(painted([&] { console.Input('c'); }), "");
    EXPECT_EQ(key('c'), "done");
    EXPECT_FALSE(changed());
    EXPECT_EQ(console.Edit_Line, std::wstring(1021, L'a') + L'b');
    EXPECT_EQ(console.Edit_Pos, 5);
    console.Flag |= TEXTS_INTEGER;
    EXPECT_EQ(key('c'), "not valid") << "the filters come first";
}

// A host may put the caret anywhere.
TEST_F(Keys, ACaretOutsideOfTheLineIsHarmless) {
    struct Case {
        int key, caret, after;
        const wchar_t* line;
    };
    const int least = -2147483647 - 1, most = 2147483647;
    for (const Case& c : {Case{8, 5, 4, L"abc"},
                          {8, 3, 2, L"ab"},
                          {8, most, most - 1, L"abc"},
                          {8, -7, -7, L"abc"},
                          {0x82E, 5, 5, L"abc"},
                          {0x82E, -1, -1, L"abc"},
                          {'x', 9, 4, L"abcx"},
                          {'x', most, 4, L"abcx"},
                          {'x', least, 1, L"xabc"},
                          {0x827, 9, 9, L"abc"},
                          {0x825, 9, 8, L"abc"},
                          {0x825, -4, -4, L"abc"},
                          {0x823, most, 3, L"abc"},
                          {0x824, most, 0, L"abc"}}) {
        read(0, L"abc");
        console.Edit_Pos = c.caret;
        console.Input(c.key);
        EXPECT_EQ(console.Edit_Pos, c.after) << c.key << " " << c.caret;
        EXPECT_STREQ(console.Edit_Line, c.line) << c.key << " " << c.caret;
    }
}

// A host may have filled the line without a terminator.
TEST_F(Keys, ALineWithoutEndIsHarmless) {
    read();
    for (int code : {0x823, 0x827, 8, 0x82E, int{'x'}, ENTER, UP, DOWN}) {
        std::fill_n(console.Edit_Line, 1024, L'x');
        console.Edit_Pos = 1023;
        console.Input(code);
        EXPECT_EQ(console.Edit_Line[1023], 0) << code;
    }
    std::fill_n(console.Edit_Line, 1024, L'x');
    console.Select(0, 0, 0);
    console.Draw();
    console.flag_read = 3;
    EXPECT_EQ(std::strlen(console.Update()), 1023u);
}

TEST_F(Keys, TheStripShowsTheLine) {
    read();
    keys(L"abc");
    EXPECT_EQ(shown(), "abc");
    console.Input(8);
    EXPECT_EQ(shown(), "ab");
    console.Flag |= TEXTS_PASSWORD;
    console.Input(HOME);
    EXPECT_EQ(shown(), "##");
}

// While the start goes by the true text, the caret goes by what is shown.
TEST_F(Keys, APasswordsCaretGoesByTheSigns) {
    read(TEXTS_PASSWORD);
    inside();
    console.Select(0, 0, 0);
    const std::string lines = painted([&] { console.Input('i'); });
    const int caret = console.Read_X1 + 3 + 3 + 8; // one sign of 8 pixels
    EXPECT_NE(lines.find("move2s(" + std::to_string(caret) + ", "), std::string::npos) << lines;
    EXPECT_NE(lines.find("\"#\""), std::string::npos);
}

// --- Enter and Escape ---

TEST_F(Keys, EnterKeepsTheLineAndLeavesTheRestToTheHost) {
    for (int code : {13, 0x100D}) {
        Console::console.Cleanup();
        read(TEXTS_CURSOR_V | TEXTS_CURSOR_H, L"first");
        console.Cursor_V.Cur_Value = console.Cursor_H.Cur_Value = 7;
        console.Edit_Pos = 2, console.Hist_Pos = 4;
        EXPECT_EQ(painted([&] { console.Input(code); }), "") << "nothing is repainted";
        EXPECT_EQ(recorder::exit_tag("Texts::Input"), "(none)") << "the log was forgotten";
        EXPECT_EQ(lines(), std::vector<std::wstring>{L"first"});
        EXPECT_EQ(history(), std::vector<std::wstring>{L"first"});
        EXPECT_EQ(console.flag_read, 3);
        EXPECT_EQ(console.Cursor_V.Cur_Value, 0.0f);
        EXPECT_EQ(console.Cursor_H.Cur_Value, 7.0f);
        EXPECT_STREQ(console.Edit_Line, L"first");
        EXPECT_EQ(console.Edit_Pos, 2);
        EXPECT_EQ(console.Hist_Pos, 4);
        EXPECT_EQ(key(code), "done");
        EXPECT_EQ(lines().size(), 2u) << "reading goes on until the line is collected";
        EXPECT_STREQ(console.Update(), "first");
        EXPECT_EQ(key('x'), "! flag_read");
    }
}

TEST_F(Keys, EmptyLinesAreKeptToo) {
    read();
    console.Input(ENTER);
    EXPECT_EQ(lines(), std::vector<std::wstring>{L""});
    EXPECT_EQ(history(), std::vector<std::wstring>{L""});
    EXPECT_STREQ(console.Update(), "");
}

TEST_F(Keys, AFieldLogsNothing) {
    read(TEXTS_FIELD, L"entry");
    console.Input(ENTER);
    EXPECT_EQ(console.Lines, nullptr);
    EXPECT_EQ(history(), std::vector<std::wstring>{L"entry"});
    EXPECT_EQ(console.flag_read, 3);
}

TEST_F(Keys, KeysGoOnWhileALineWaits) {
    read(TEXTS_REPORT_KEYS, L"ab");
    console.Input(ENTER);
    console.Input('c');
    EXPECT_EQ(console.flag_read, 7);
    EXPECT_STREQ(console.Update(), "abc");
    EXPECT_EQ(console.flag_read, 0);
    EXPECT_EQ(lines(), std::vector<std::wstring>{L"ab"});
}

TEST_F(Keys, EscapeEndsReadingWithoutALine) {
    read(TEXTS_REPORT_KEYS, L"left");
    console.Edit_Pos = 1;
    console.flag_read = 7;
    const std::string lines = everything([&] { console.Input(ESCAPE); });
    EXPECT_EQ(lines, everything([&] {
                  trace_in("Texts::Input", "no name");
                  console.Draw(); // without reading
                  trace_out("Texts::Input", "done");
              }));
    EXPECT_EQ(console.flag_read, 0);
    EXPECT_EQ(console.Update(), nullptr);
    EXPECT_STREQ(console.Edit_Line, L"left");
    EXPECT_EQ(console.Edit_Pos, 1);
    EXPECT_EQ(history().size(), 0u);
}

// The sliders get back the room that the strip took.
TEST_F(Keys, EscapeFitsTheSliders) {
    for (DWORD flag : {TEXTS_CURSOR_V, TEXTS_CURSOR_H}) {
        console.Flag = flag;
        init();
        Sliders& slider = flag == TEXTS_CURSOR_V ? console.Cursor_V : console.Cursor_H;
        const int y = slider.Pos_Y;
        console.Read(nullptr);
        console.Write("takes the room into account");
        EXPECT_NE(slider.Pos_Y, y);
        console.Input(ESCAPE);
        EXPECT_EQ(slider.Pos_Y, y) << "reading had ended before";
    }
}

} // namespace
