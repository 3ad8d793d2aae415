// The log with its marks, the frame, and the strip.

#include <brask/fonts.h>

#include "console_fixture.h"

struct View : Console {
    HFONT medium = nullptr, bold = nullptr, oblique = nullptr;
    void SetUp() override {
        Console::SetUp();
        const auto font = [](const char* weight, const char* slant, const char* name, int width) {
            const HFONT font = Zeb_Create_Font(recorder::window(), nullptr, weight, slant, 9);
            recorder::name(font, name);
            recorder::metrics(font, 10, width);
            return font;
        };
        medium = font("medium", "r", "MEDIUM", 8);
        bold = font("bold", "r", "BOLD", 9);
        oblique = font("medium", "o", "OBLIQUE", 7);
    }

    // What is written for the newest line; its bottom left is at (106, 203).
    std::string written(const std::wstring& line, DWORD flag = 0) {
        if (!console.test) init(flag);
        const std::string calls = painted([&] { console.Write(L"%ls", line.c_str()); });
        const std::size_t begin = calls.find("Zeb_set_clip("), end = calls.find("Zeb_reset_clip()");
        const std::size_t from = calls.find('\n', begin) + 1;
        return calls.substr(from, end - from);
    }
    std::string clip_of_log() {
        const std::string calls = painted([&] { console.Draw(); });
        const std::size_t log = calls.find("Zeb_setup(WND, \"Texts::Re_Write\")");
        if (log == std::string::npos) return "(none)";
        const std::size_t begin = calls.find("Zeb_set_clip", log);
        return calls.substr(begin, calls.find('\n', begin) - begin);
    }
};

TEST_F(View, ALineIsWrittenInBlackAndMeasured) {
    EXPECT_EQ(written(L"abc"), "Zeb_Font_Color(0x1, 0)\nZeb_Font_Write(MEDIUM, 106, 203, \"abc\")\n");
    EXPECT_EQ(console.Line_Width[0], 24);
}

TEST_F(View, EachColourMark) {
    const struct {
        wchar_t mark;
        const char* color;
    } colors[] = {{1, "0xFF0000"}, {2, "0x1"}, {3, "0xFFFFFF"}, {4, "0xFF"}, {5, "0xFFFF"}, {6, "0xA000"}};
    for (const auto& each : colors) {
        const std::wstring line = std::wstring(L"a") + each.mark + L"bc";
        console.test = 0;
        console.Cleanup();
        EXPECT_EQ(written(line),
                  std::string("Zeb_Font_Color(0x1, 0)\nZeb_Font_Write(MEDIUM, 106, 203, \"a\")\n") +
                      "Zeb_Font_Color(" + each.color + ", 0)\nZeb_Font_Write(MEDIUM, 114, 203, \"bc\")\n");
        EXPECT_EQ(console.Line_Width[0], 24);
    }
}

TEST_F(View, EachFontMark) {
    EXPECT_EQ(written(L"\xF1"
                      L"b\xF2"
                      L"o\xF0m"),
              "Zeb_Font_Color(0x1, 0)\n"
              "Zeb_Font_Write(BOLD, 106, 203, \"b\")\n"
              "Zeb_Font_Write(OBLIQUE, 115, 203, \"o\")\n"
              "Zeb_Font_Write(MEDIUM, 122, 203, \"m\")\n");
    EXPECT_EQ(console.Line_Width[0], 24);
}

TEST_F(View, OnlyTheLowByteCounts) {
    EXPECT_EQ(written(L"a\x101"
                      L"b\x4EF1"
                      L"c"),
              "Zeb_Font_Color(0x1, 0)\n"
              "Zeb_Font_Write(MEDIUM, 106, 203, \"a\")\n"
              "Zeb_Font_Color(0xFF0000, 0)\n"
              "Zeb_Font_Write(MEDIUM, 114, 203, \"b\")\n"
              "Zeb_Font_Write(BOLD, 122, 203, \"c\")\n");
    console.Cleanup();
    // A low byte of 0 is text, and so are the neighbours of the marks.
    EXPECT_EQ(
        written(L"\x100\x107\xEF\xF3"),
        "Zeb_Font_Color(0x1, 0)\nZeb_Font_Write(MEDIUM, 106, 203, \"\xC4\x80\xC4\x87\xC3\xAF\xC3\xB3\")\n");
}

TEST_F(View, MarksAloneWriteNothingAndCount) {
    EXPECT_EQ(written(L"\x1\xF1\x4"),
              "Zeb_Font_Color(0x1, 0)\nZeb_Font_Color(0xFF0000, 0)\nZeb_Font_Color(0xFF, 0)\n");
    EXPECT_EQ(console.Line_Width[0], 0);
    EXPECT_EQ(lines().size(), 1u);
}

TEST_F(View, MarksAtTheEndCauseNoEmptyWrite) {
    EXPECT_EQ(
        written(L"ab\x1\xF1"),
        "Zeb_Font_Color(0x1, 0)\nZeb_Font_Write(MEDIUM, 106, 203, \"ab\")\nZeb_Font_Color(0xFF0000, 0)\n");
}

TEST_F(View, EachLineBeginsAnew) {
    init();
    console.Write(L"\x4\xF1old");
    EXPECT_EQ(written(L"new"),
              "Zeb_Font_Color(0x1, 0)\nZeb_Font_Write(MEDIUM, 106, 203, \"new\")\n"
              "Zeb_Font_Color(0x1, 0)\nZeb_Font_Color(0xFF, 0)\nZeb_Font_Write(BOLD, 106, 213, \"old\")\n");
}

TEST_F(View, LinesGoUpToTheHeightOfTheWholeControl) {
    init();
    recorder::listen(recorder::kReport);
    for (int i = 0; i < 30; i++)
        console.Write(L"%d", i);
    recorder::listen(recorder::kEverything);
    const std::string calls = painted([&] { console.Draw(); });
    EXPECT_NE(calls.find("203, \"29\")"), std::string::npos);
    EXPECT_NE(calls.find("403, \"9\")"), std::string::npos); // its bottom is exactly the height above
    EXPECT_EQ(calls.find("\"8\")"), std::string::npos);
}

TEST_F(View, AHoleIsPassedOver) {
    init();
    console.Write(L"a\nb\nc");
    std::free(console.Lines[1]);
    console.Lines[1] = nullptr;
    const std::string calls = painted([&] { console.Draw(); });
    EXPECT_NE(calls.find("203, \"c\")"), std::string::npos);
    EXPECT_NE(calls.find("223, \"a\")"), std::string::npos);
}

TEST_F(View, AFieldShowsTheNewestLineAlone) {
    init(TEXTS_FIELD);
    console.Write(L"old\x4!");
    console.Line_Width[0] = 77;
    EXPECT_EQ(written(L"new"), "Zeb_Font_Color(0x1, 0)\nZeb_Font_Write(MEDIUM, 106, 203, \"new\")\n"
                               "Zeb_Font_Color(0x1, 0)\nZeb_Font_Color(0xFF, 0)\n");
    EXPECT_EQ(console.Line_Width[1], 0);
}

TEST_F(View, TheAreaOfTheLog) {
    init();
    console.Write(L"x");
    EXPECT_EQ(clip_of_log(), "Zeb_set_clip(104, 203, 293, 193)");
    console.Name_Set(L"log");
    EXPECT_EQ(clip_of_log(), "Zeb_set_clip(104, 203, 293, 167)");
    console.Flag = TEXTS_CURSOR_V;
    EXPECT_EQ(clip_of_log(), "Zeb_set_clip(126, 203, 271, 167)");
    console.Flag = TEXTS_CURSOR_V | TEXTS_CURSOR_H;
    console.Cursor_Dim = 99; // the standard thickness counts here
    EXPECT_EQ(clip_of_log(), "Zeb_set_clip(126, 225, 271, 145)");
    console.Flag |= TEXTS_READ_STRIP;
    EXPECT_EQ(clip_of_log(), "Zeb_set_clip(126, 244, 271, 126)");
    console.Flag &= ~TEXTS_READ_STRIP;
    console.flag_read = 2; // any bit
    EXPECT_EQ(clip_of_log(), "Zeb_set_clip(126, 244, 271, 126)");
    console.flag_read = 0;
    console.Border = 10;
    EXPECT_EQ(clip_of_log(), "Zeb_set_clip(133, 232, 257, 131)");
}

TEST_F(View, TheClipRectangleCutsTheLog) {
    init();
    console.Write(L"x");
    console.Clip_X = 50, console.Clip_Y = 250, console.Clip_Dim_X = 100, console.Clip_Dim_Y = 500;
    EXPECT_EQ(clip_of_log(), "Zeb_set_clip(104, 250, 46, 146)");
    console.Clip_X = 150, console.Clip_Y = 150, console.Clip_Dim_Y = 100;
    EXPECT_EQ(clip_of_log(), "Zeb_set_clip(150, 203, 100, 47)");
    console.Clip_X = 1000; // nothing in common
    EXPECT_EQ(clip_of_log(), "Zeb_set_clip(1000, 203, -603, 47)");
}

TEST_F(View, WithoutRoomNoLogIsPainted) {
    init();
    console.Write(L"x");
    console.Dim_Y = 7; // inside the bevel nothing is left
    EXPECT_EQ(clip_of_log(), "(none)");
    console.Dim_Y = 8;
    EXPECT_EQ(clip_of_log(), "Zeb_set_clip(104, 203, 293, 1)");
    console.Dim_X = 1, console.Dim_Y = 1;
    EXPECT_EQ(clip_of_log(), "(none)");
    EXPECT_EQ(recorder::warnings(), "");
}

struct Draw : View {
    std::string tag() { return recorder::exit_tag("Texts::Draw"); }
};

TEST_F(Draw, TellsItsWaysOut) {
    console.Flag = OUTIL_INVISIBLE;
    console.Draw(); // before any check
    EXPECT_EQ(tag(), "OUTIL_INVISIBLE");
    EXPECT_EQ(recorder::warnings(), "");
    console.Flag = 0, console.Dim_X = 0;
    console.Draw();
    EXPECT_NE(recorder::warnings().find("type: Text::Draw   name: no name"), std::string::npos);
    EXPECT_EQ(tag(), "<0");
    console.Dim_X = 300;
    init();
    console.Draw();
    EXPECT_EQ(tag(), "done");
}

TEST_F(Draw, OutlineIsAllThereIs) {
    init(GRAPH_OUTLINE);
    console.Name_Set(L"name");
    console.Write(L"x");
    const std::string calls = painted([&] { console.Draw(); });
    EXPECT_EQ(calls, painted([&] { console.Cadre_Outline(100, 400, 200, 400); }));
    console.Draw();
    EXPECT_EQ(tag(), "GRAPH_OUTLINE");
}

TEST_F(Draw, FaceFrameNameSlidersLogAndStrip) {
    read(TEXTS_CURSOR_V | TEXTS_CURSOR_H, L"edit");
    console.Name_Set(L"Log");
    console.Write(L"x");
    const std::string calls = painted([&] { console.Draw(); });
    std::string expected = painted([&] {
        console.Fill(console.Flag, 100, 400, 200, 400);
        console.Cadre(1, 1, 3, 100, 400, 200, 400);
        console.Cadre(1, 0, 2, 106, 394, 374, 394);
        console.Text(L"Log", console.Flag, 100, 374, 300, 20, 0, 0);
        console.Cursor_V.Draw();
        console.Cursor_H.Draw();
        console.Fill(0, 126, 397, 244, 370);
    });
    EXPECT_EQ(calls.substr(0, expected.size()), expected);
    const std::string frame = painted([&] { console.Cadre(1, 1, 2, 106, 394, 206, 220); });
    EXPECT_LT(calls.find("Texts::Re_Write"), calls.find(frame));
    EXPECT_LT(calls.find(frame), calls.find("Texts::Read_Echo"));
    EXPECT_NE(calls.find("Texts::Read_Echo"), std::string::npos);
}

TEST_F(Draw, AnEmptyFaceIsNotFilled) {
    init(OUTIL_EMPTY);
    EXPECT_EQ(painted([&] { console.Draw(); }), painted([&] { console.Cadre(1, 1, 3, 100, 400, 200, 400); }));
    console.Border = 7;
    EXPECT_EQ(painted([&] { console.Draw(); }), painted([&] { console.Cadre(1, 1, 7, 100, 400, 200, 400); }));
}

TEST_F(Draw, TheStripIsFramedOnlyWhileReading) {
    init(TEXTS_READ_STRIP);
    EXPECT_EQ(painted([&] { console.Draw(); }).find("Read_Echo"), std::string::npos);
    for (const signed char reading : {2, 4, 6}) {
        console.flag_read = reading;
        EXPECT_EQ(painted([&] { console.Draw(); }).find("Read_Echo"), std::string::npos);
    }
}

TEST_F(Draw, TwiceTheSame) {
    read(TEXTS_CURSOR_V, L"edit");
    console.Write(L"a\x1"
                  L"b");
    const std::string once = everything([&] { console.Draw(); });
    EXPECT_EQ(everything([&] { console.Draw(); }), once);
}

struct Strip : View {
    // What the strip paints as the pointer comes in, or as it leaves; from its clip on.
    std::string strip() {
        recorder::pointer(shown == 1 ? 250 : 0, 300);
        console.select = 3 - shown;
        const std::string all = painted([&] { console.Select(1); });
        const std::size_t at = all.find("Texts::Read_Echo");
        const std::size_t from = all.find('\n', at) + 1, to = all.find("Zeb_reset_clip()", from);
        return at == std::string::npos ? "(none)" : all.substr(from, to - from);
    }
    int shown = 1;
};

TEST_F(Strip, TextAndCaretInBold) {
    read(0, L"abc");
    EXPECT_EQ(strip(), "Zeb_set_clip(109, 209, 282, 9)\n"
                       "Zeb_color(0xFFFF)\n"
                       "move2s(139, 211)\ndraw2s(139, 216, 0)\n"
                       "move2s(140, 211)\ndraw2s(140, 216, 0)\n"
                       "Zeb_Font_Color(0x1, 0)\n"
                       "Zeb_Font_Write(BOLD, 112, 209, \"abc\")\n");
    shown = 2;
    EXPECT_EQ(strip(), "Zeb_set_clip(109, 209, 282, 9)\n"
                       "Zeb_Font_Color(0x1, 0)\n"
                       "Zeb_Font_Write(BOLD, 112, 209, \"abc\")\n");
}

TEST_F(Strip, TheCaretStandsBeforeItsCharacter) {
    read(0, L"abc");
    console.Edit_Pos = 1;
    EXPECT_NE(strip().find("move2s(121, 211)"), std::string::npos);
    console.Edit_Pos = 0;
    EXPECT_NE(strip().find("move2s(112, 211)"), std::string::npos);
    console.Edit_Pos = -5; // held to the line
    EXPECT_NE(strip().find("move2s(112, 211)"), std::string::npos);
}

TEST_F(Strip, ScrollsSoThatTheCaretStaysInView) {
    // Room for 288 - 12 pixels: thirty letters of 9, and 6 pixels.
    read(0, std::wstring(40, L'x').c_str());
    EXPECT_NE(strip().find("\"" + std::string(30, 'x') + "\""), std::string::npos) << strip();
    EXPECT_NE(strip().find("move2s(382, 211)"), std::string::npos);
    console.Edit_Pos = 35; // five letters run out behind the caret
    EXPECT_NE(strip().find("\"" + std::string(35, 'x') + "\""), std::string::npos);
    EXPECT_NE(strip().find("move2s(382, 211)"), std::string::npos);
    console.Edit_Pos = 30;
    EXPECT_NE(strip().find("\"" + std::string(40, 'x') + "\""), std::string::npos);
}

TEST_F(Strip, MarksAreWrittenAsTheyAre) {
    read(0, L"a\x4\xF1"
            L"b");
    EXPECT_NE(strip().find("Zeb_Font_Write(BOLD, 112, 209, \"a\\x04\xC3\xB1"
                           "b\")"),
              std::string::npos)
        << strip();
}

TEST_F(Strip, APasswordIsShownAsCrosses) {
    read(TEXTS_PASSWORD, L"secret");
    EXPECT_NE(strip().find("\"######\""), std::string::npos);
    EXPECT_EQ(strip().find("secret"), std::string::npos);
}

TEST_F(Strip, FaceInTheLookOfThePointer) {
    read();
    for (const int select : {1, 2}) {
        recorder::pointer(select == 1 ? 250 : 0, 300);
        console.select = 3 - select;
        const std::string calls = painted([&] { console.Select(1); });
        EXPECT_NE(
            calls.find(painted([&] { console.Fill_Select(select == 1, nullptr, 0, 4, 106, 394, 206, 221); })),
            std::string::npos);
    }
}

TEST_F(Strip, AFieldIsTheWholeControl) {
    read(TEXTS_FIELD, L"ab");
    EXPECT_NE(strip().find("Zeb_set_clip(103, 203, 294, 194)"), std::string::npos);
    EXPECT_NE(strip().find("Zeb_Font_Write(BOLD, 106, 203, \"ab\")"), std::string::npos);
}

TEST_F(Strip, TheClipRectangleCutsIt) {
    read(0, L"ab");
    console.Clip_X = 120, console.Clip_Y = 0, console.Clip_Dim_X = 40, console.Clip_Dim_Y = 212;
    EXPECT_NE(strip().find("Zeb_set_clip(120, 209, 40, 3)"), std::string::npos);
}
