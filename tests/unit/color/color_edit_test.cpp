#include "color_fixture.h"

// The editor of three bars: drawing, reading, following the pointer.

namespace {

TEST_F(Editors, DrawInItsOrderAndSetsTheBars) {
    for (const DWORD mode : {DWORD(0), COLOR_HLS, COLOR_MODE_BUTTON}) {
        Color_Edit editor;
        lay(editor, mode, 2, 0x00406080);
        editor.Draw(); // so that the fonts are known
        editor.Old_Value = 1;
        const Parts c = mode == COLOR_HLS ? hls(0x406080) : rgb(0x406080);
        const std::string lines = everything([&] { editor.Draw(); });
        EXPECT_EQ(editor.Old_Value, 0x406080u);
        EXPECT_EQ(editor.Val_Red_Hue.Cur_Value, c.a);
        EXPECT_EQ(editor.Val_Green_Light.Cur_Value, c.b);
        EXPECT_EQ(editor.Val_Blue_Sat.Cur_Value, c.c);
        EXPECT_EQ(lines, everything([&] {
                      trace_in("Color_Edit::Draw", "no name");
                      editor.Box_Frame.Draw();
                      editor.Val_Red_Hue.Draw();
                      editor.Val_Green_Light.Draw();
                      editor.Val_Blue_Sat.Draw();
                      editor.Box_Swatch.Draw();
                      if (mode & COLOR_MODE_BUTTON) editor.Button_Mode.Draw();
                      editor.Box_Swatch.select = 0;
                      editor.Box_Swatch.Select(1);
                      trace_out("Color_Edit::Draw", "done");
                  }));
        EXPECT_EQ(editor.Box_Swatch.Graph_Normal[0], 0x806040u);
    }
}

TEST_F(Editors, WaysOutOfDraw) {
    Color_Edit fresh;
    fresh.Flag = OUTIL_INVISIBLE;
    fresh.Draw();
    EXPECT_EQ(recorder::exit_tag("Color_Edit::Draw"), "OUTIL_INVISIBLE");
    EXPECT_EQ(recorder::warnings(), "");
    fresh.Flag = 0;
    fresh.Draw();
    EXPECT_EQ(recorder::exit_tag("Color_Edit::Draw"), "<0");
    EXPECT_EQ(recorder::warnings(), first_use_warning("Color_Edit::Draw"));

    Color_Edit editor;
    lay(editor, GRAPH_OUTLINE | COLOR_MODE_BUTTON, 2);
    editor.Val_Red_Hue.Cur_Value = 0.25f;
    const std::string lines = everything([&] { editor.Draw(); });
    EXPECT_EQ(editor.Val_Red_Hue.Cur_Value, 0.25f) << "not set on this way";
    EXPECT_EQ(lines, everything([&] {
                  trace_in("Color_Edit::Draw", "no name");
                  editor.Box_Frame.Draw();
                  for (const auto bar : BARS)
                      (editor.*bar).Draw();
                  editor.Box_Swatch.Draw();
                  editor.Button_Mode.Draw();
                  trace_out("Color_Edit::Draw", "GRAPH_OUTLINE");
              }));
}

TEST_F(Editors, RedIsAboveTheEndOfItsBar) {
    Color_Edit editor;
    lay(editor, 0, 2, 0x000000FF);
    editor.Draw();
    EXPECT_EQ(editor.Val_Red_Hue.Cur_Value, 0.99f);
    EXPECT_EQ(editor.Read(), 0xFF0000FFu) << "an untouched channel keeps its 255";
    middle(editor.Val_Red_Hue);
    recorder::pointer(editor.Val_Red_Hue.Pos_X + editor.Val_Red_Hue.Dim_X, 100);
    EXPECT_EQ(editor.Read(), 0xFF0000FCu) << "252 at the far end of the ramp";
    EXPECT_EQ(editor.Cur_Value, 0xFFu);
}

// Off the bars every colour comes back as it was, with alpha 255.
TEST_F(Editors, ReadGivesEveryColourBack) {
    Color_Edit editor;
    lay(editor, 0, 2);
    for (const DWORD mode : {DWORD(0), COLOR_HLS}) {
        editor.Flag = mode;
        for (unsigned r = 0; r < 256; r += 51)
            for (unsigned g = 0; g < 256; g += 51)
                for (unsigned b = 0; b < 256; b += 51) {
                    editor.Cur_Value = r | g << 8 | b << 16 | 0x12000000;
                    const DWORD got = editor.Read(), plain = editor.Cur_Value | 0xFF000000;
                    const Parts c = hls(editor.Cur_Value);
                    ASSERT_EQ(got, mode ? word_of_hue(c.a, c.b, c.c) : plain);
                    recorder::clear();
                }
    }
}

TEST_F(Editors, ReadTakesTheBarUnderThePointer) {
    for (const DWORD mode : {DWORD(0), COLOR_HLS})
        for (int bar = 0; bar < 3; ++bar) {
            Color_Edit editor;
            lay(editor, mode, 2, 0x00406080);
            editor.Draw();
            middle(editor.*BARS[bar]);
            Parts c = mode ? hls(0x406080) : rgb(0x406080);
            (bar == 0 ? c.a : bar == 1 ? c.b : c.c) = (editor.*BARS[bar]).Read();
            EXPECT_EQ(editor.Read(), mode ? word_of_hue(c.a, c.b, c.c) : word_of(c.a, c.b, c.c));
            EXPECT_EQ(editor.Cur_Value, 0x406080u);
        }
}

TEST_F(Editors, AdjustRepaintsChangedBarsAlone) {
    Color_Edit editor;
    lay(editor, 0, 2, 0xFF406080);
    editor.Draw();
    editor.Cur_Value = 0xFF40A080; // green
    const std::string lines = everything([&] { editor.Adjust(); });
    EXPECT_EQ(editor.Val_Green_Light.Cur_Value, rgb(0xA000).b);
    EXPECT_EQ(editor.Old_Value, 0xFF40A080u);
    EXPECT_EQ(lines, everything([&] {
                  editor.Val_Green_Light.select = 0;
                  editor.Val_Green_Light.Adjust();
                  editor.Box_Swatch.select = 0;
                  editor.Box_Swatch.Select(1);
              }));
    EXPECT_EQ(editor.Box_Swatch.Graph_Normal[0], 0xFF80A040u);
    EXPECT_EQ(everything([&] { editor.Adjust(); }), "") << "the same colour";
    editor.Flag |= OUTIL_DISABLE;
    editor.Cur_Value = 1;
    EXPECT_EQ(everything([&] { editor.Adjust(); }), "");
    EXPECT_EQ(editor.Old_Value, 0xFF40A080u);
}

// The first word is compared in the other form: red after blue finds itself there already, and is not shown.
TEST_F(Editors, TheSwatchsTestStaysAsItIs) {
    Color_Edit editor;
    lay(editor, 0, 2, 0xFFFF0000);
    editor.Draw();
    const DWORD blue = editor.Box_Swatch.Graph_Normal[0];
    EXPECT_EQ(blue, 0xFF0000FFu);
    editor.Cur_Value = blue; // as a drawing word that is red
    EXPECT_EQ(everything([&] { editor.Adjust(); }).find("Boxs::Select"), std::string::npos);
    EXPECT_EQ(editor.Box_Swatch.Graph_Normal[0], blue);
    lay(editor, 0, 2, 0xFF406040);
    editor.Draw();
    EXPECT_EQ(everything([&] { editor.Draw(); }).find("Boxs::Select(0)"),
              everything([&] { editor.Draw(); }).rfind("Boxs::Select(0)"));
}

TEST_F(Editors, SelectAsksTheBarsFromTheTop) {
    for (int bar = 0; bar < 3; ++bar) {
        Color_Edit editor;
        lay(editor, 0, 2);
        editor.Draw();
        middle(editor.*BARS[bar]);
        recorder::clear();
        EXPECT_EQ(editor.Select(18), 1);
        int asked = 0;
        for (const std::string& line : recorder::reports(0x90000029))
            asked += line.rfind(">>> in  Lib_Brask: Valuators::Select", 0) == 0;
        EXPECT_EQ(asked, bar + 1);
        EXPECT_EQ(editor.Select(KEY_QUERY), 1);
        editor.Flag |= OUTIL_DISABLE;
        EXPECT_EQ(everything([&] { EXPECT_EQ(editor.Select(KEY_QUERY), 0); }), "");
        EXPECT_EQ(everything([&] { EXPECT_EQ(editor.Select(2), 0); }), "");
    }
}

TEST_F(Editors, AQueryOverSwatchOrButtonIs0) {
    Color_Edit editor;
    lay(editor, COLOR_MODE_BUTTON, 2);
    middle(editor.Box_Swatch);
    EXPECT_EQ(editor.Select(KEY_QUERY), 0);
    middle(editor.Button_Mode);
    EXPECT_EQ(editor.Select(KEY_QUERY), 0);
    EXPECT_EQ(editor.Flag, COLOR_MODE_BUTTON);
}

TEST_F(Editors, APressOnTheButtonSwitchesTheMode) {
    Color_Edit editor;
    lay(editor, COLOR_MODE_BUTTON, 2);
    editor.Draw();
    const DWORD* ramp = editor.Val_Red_Hue.Graph_Normal;
    middle(editor.Button_Mode);
    for (const int mode : {0, 1, 17, 3}) {
        EXPECT_EQ(editor.Select(mode), 0);
        EXPECT_EQ(editor.Flag, COLOR_MODE_BUTTON);
    }
    EXPECT_EQ(editor.Select(18), 0);
    EXPECT_EQ(editor.Flag, COLOR_MODE_BUTTON | COLOR_HLS);
    EXPECT_EQ(name_of(editor.Val_Blue_Sat), "Saturation");
    EXPECT_EQ(name_of(editor.Button_Mode), "HLS");
    EXPECT_EQ(editor.Val_Red_Hue.Graph_Normal, ramp) << "written in place";
    EXPECT_EQ(editor.Val_Green_Light.Graph_Normal[90], 0xFF000000u + 0x010101 * (90 * 255 / 159));
    EXPECT_EQ(recorder::exit_tag("Color_Edit::Draw"), "done");
    EXPECT_EQ(editor.Select(18), 0);
    EXPECT_EQ(editor.Flag, COLOR_MODE_BUTTON);
    editor.Flag = 0; // no button, no switch
    EXPECT_EQ(editor.Select(18), 0);
    EXPECT_EQ(editor.Flag, 0u);
}

TEST_F(Editors, ScrollMovesTheBarUnderThePointer) {
    for (const DWORD mode : {DWORD(0), COLOR_HLS})
        for (int bar = 0; bar < 3; ++bar) {
            Color_Edit editor;
            lay(editor, mode, 2, 0x00406080);
            editor.Draw();
            recorder::pointer(-500, -500);
            EXPECT_EQ(editor.Scroll(1), 0x406080u) << "no bar there";
            middle(editor.*BARS[bar]);
            Parts c = mode ? hls(0x406080) : rgb(0x406080);
            (bar == 0 ? c.a : bar == 1 ? c.b : c.c) -= 3 * (0.99f / 50);
            const DWORD expected = mode ? word_of_hue(c.a, c.b, c.c) : word_of(c.a, c.b, c.c);
            EXPECT_EQ(editor.Scroll(3), expected);
            EXPECT_EQ(editor.Cur_Value, expected);
            EXPECT_EQ(editor.Old_Value, expected);
            EXPECT_EQ(editor.Box_Swatch.Graph_Normal[0], turned(expected));
        }
}

TEST_F(Editors, DeselectEndsThePressOfAllParts) {
    Color_Edit editor;
    lay(editor, COLOR_MODE_BUTTON | OUTIL_CAPTURE, 2);
    for (const auto bar : BARS)
        (editor.*bar).Held = 1;
    EXPECT_EQ(everything([&] { editor.Deselect(); }), everything([&] {
                  for (const auto bar : BARS)
                      (editor.*bar).Deselect();
                  editor.Button_Mode.Deselect();
              }));
    EXPECT_EQ(editor.Val_Blue_Sat.Held, 0);
    editor.Flag &= ~COLOR_MODE_BUTTON;
    EXPECT_EQ(everything([&] { editor.Deselect(); }).find("Buttons"), std::string::npos);
    for (const DWORD flag : {OUTIL_INVISIBLE, OUTIL_EMPTY}) {
        editor.Flag = flag;
        EXPECT_EQ(everything([&] { editor.Deselect(); }), "");
    }
    Color_Edit fresh;
    fresh.Dim_X = fresh.Dim_Y = 50;
    EXPECT_EQ(everything([&] { fresh.Deselect(); }), "");
}

TEST_F(Editors, FirstUseWarnsOnce) {
    struct {
        const char* type;
        void (*use)(Color_Edit&);
    } const rows[] = {
        {"Color_Edit::Adjust", [](Color_Edit& e) { e.Adjust(); }},
        {"Color_Edit::Draw", [](Color_Edit& e) { e.Draw(); }},
        {"Color_Edit::Read", [](Color_Edit& e) { EXPECT_EQ(e.Read(), 0u); }},
        {"Color_Edit::Scroll", [](Color_Edit& e) { EXPECT_EQ(e.Scroll(1), 0u); }},
        {"Color_Edit::Select", [](Color_Edit& e) { EXPECT_EQ(e.Select(2), 0); }},
    };
    for (const auto& row : rows) {
        Color_Edit fresh;
        fresh.Cur_Value = 9;
        recorder::clear();
        row.use(fresh);
        row.use(fresh);
        EXPECT_EQ(recorder::warnings(), first_use_warning(row.type));
    }
}

} // namespace
