#include "color_fixture.h"

// The editor of one hue.

namespace {

TEST_F(Editors, HueConstructorReports) {
    const std::string lines = everything([] { Hue_Edit fresh; });
    EXPECT_NE(lines.find(">>> in  Lib_Brask: Hue_Edit::Hue_Edit()"), std::string::npos);
    EXPECT_NE(lines.find("<<< out Lib_Brask: Hue_Edit::~Hue_Edit()"), std::string::npos);
    EXPECT_EQ(everything([] { Color_Edit fresh; }).find("Color_Edit"), std::string::npos);
}

TEST_F(Editors, HueCopiesCarryTheSlots) {
    Hue_Edit editor;
    int thing = 0;
    editor.Edit_Slot_B = &thing, editor.Edit_Slot_D = 7, editor.Cur_Value = 5, editor.Old_Value = 6;
    editor.Swatch_Width = 33, editor.Val_Hue.Cur_Value = 0.5f, editor.Box_Swatch.select = 2;
    const Hue_Edit copy(editor);
    Hue_Edit assigned;
    EXPECT_EQ(&(assigned = editor), &assigned);
    for (const Hue_Edit* other : {&copy, static_cast<const Hue_Edit*>(&assigned)}) {
        EXPECT_EQ(other->Edit_Slot_A, nullptr);
        EXPECT_EQ(other->Edit_Slot_B, &thing);
        EXPECT_EQ(other->Edit_Slot_D, 7);
        EXPECT_EQ(other->Cur_Value, 5u);
        EXPECT_EQ(other->Old_Value, 6u);
        EXPECT_EQ(other->Swatch_Width, 33);
        EXPECT_EQ(other->Val_Hue.Cur_Value, 0.5f);
        EXPECT_EQ(other->Box_Swatch.select, 2);
    }
}

TEST_F(Editors, HueInit) {
    Hue_Edit editor;
    editor.Init(recorder::window());
    EXPECT_EQ(recorder::exit_tag("Hue_Edit::Init"), "<0");
    editor.Dim_X = editor.Dim_Y = 100;
    recorder::clear();
    editor.Init(nullptr);
    EXPECT_EQ(recorder::exit_tag("Hue_Edit::Init"), "!wnd");
    EXPECT_EQ(recorder::warnings(), window_warning("Hue_Edit::Init"));
    lay(editor, 0, 2, 0);
    EXPECT_EQ(editor.Cur_Value, 0xFF0000FFu) << "full red for nothing";
    EXPECT_EQ(editor.Old_Value, 0xFF0000FFu);
    EXPECT_EQ(editor.Swatch_Width, 50);
    editor.Draw();
    EXPECT_EQ(editor.Val_Hue.Cur_Value, 0);
}

TEST_F(Editors, HuePlaces) {
    struct {
        int border, b, x, y, w, h;
    } const rows[] = {
        {2, 2, 14, 24, 180, 32}, {1, 1, 13, 23, 182, 34},  {5, 2, 14, 24, 180, 32}, // never wider than 2
        {0, 2, 10, 20, 184, 40}, {-1, 1, 10, 20, 184, 40}, {-7, 2, 10, 20, 184, 40},
    };
    for (const auto& row : rows) {
        Hue_Edit editor;
        editor.Font_Slant = "i", editor.Font_Weight = "bold";
        lay(editor, OUTIL_FLAT | OUTIL_CAPTURE, row.border, 0xFF102030, 40);
        expect_place(editor.Box_Frame, 10, 20, 240, 40);
        expect_place(editor.Val_Hue, row.x, row.y, row.w, row.h);
        expect_place(editor.Box_Swatch, row.x + row.w + 2, row.y, 50, row.h);
        for (const Tools* part :
             {static_cast<Tools*>(&editor.Box_Frame), static_cast<Tools*>(&editor.Box_Swatch),
              static_cast<Tools*>(&editor.Val_Hue)})
            EXPECT_EQ(part->Border, row.b);
        EXPECT_EQ(editor.Box_Frame.Flag,
                  OUTIL_FLAT | OUTIL_DISABLE | (row.border < 1 ? OUTIL_INVISIBLE : 0u));
        EXPECT_EQ(editor.Box_Swatch.Flag, OUTIL_FLAT | OUTIL_CAPTURE);
        EXPECT_EQ(editor.Val_Hue.Flag, OUTIL_FLAT | OUTIL_CAPTURE);
        EXPECT_EQ(editor.Val_Hue.Font_Slant, nullptr);
        EXPECT_EQ(editor.Box_Frame.Font_Slant, nullptr);
        EXPECT_STREQ(editor.Val_Hue.Font_Weight, "bold");
        EXPECT_EQ(editor.Box_Swatch.Graph_Normal[0], turned(0xFF102030));
    }
}

TEST_F(Editors, HueNames) {
    Hue_Edit editor;
    lay(editor, 0, 2);
    EXPECT_EQ(name_of(editor.Val_Hue), "Hue");
    editor.Name_Set(L"%ls", L"100%d");
    editor.Init(nullptr);
    EXPECT_EQ(name_of(editor.Val_Hue), "100%d");
    EXPECT_EQ(editor.Box_Frame.W_Name, nullptr);
}

TEST_F(Editors, HueRampAlsoOfAHiddenOne) {
    for (const DWORD flag : {DWORD(0), OUTIL_INVISIBLE, OUTIL_EMPTY}) {
        Hue_Edit editor;
        lay(editor, flag, 2);
        const Valuators& bar = editor.Val_Hue;
        ASSERT_NE(bar.Graph_Normal, nullptr);
        EXPECT_EQ(bar.Graph_Select, bar.Graph_Normal);
        const float inv = 1.0f / static_cast<float>(bar.Dim_X);
        for (int i = 0; i < bar.Dim_X * bar.Dim_Y; ++i)
            ASSERT_EQ(bar.Graph_Normal[i],
                      turned(word_of_hue(static_cast<float>(i % bar.Dim_X) * inv, 0.5f, 1.0f)));
        const DWORD* before = bar.Graph_Normal;
        editor.Init(nullptr);
        EXPECT_EQ(bar.Graph_Normal, before);
    }
}

TEST_F(Editors, HueDraw) {
    for (const int border : {1, 0, -3}) {
        Hue_Edit editor;
        lay(editor, 0, border, 0xFF406080);
        const std::string lines = everything([&] { editor.Draw(); });
        EXPECT_EQ(editor.Val_Hue.Cur_Value, hls(0x406080).a);
        EXPECT_EQ(lines, everything([&] {
                      trace_in("Hue_Edit::Draw", "no name");
                      if (border > 0)
                          editor.Box_Frame.Draw();
                      else
                          editor.Box_Frame.Clear();
                      editor.Val_Hue.Draw();
                      editor.Box_Swatch.Draw();
                      editor.Box_Swatch.select = 0;
                      editor.Box_Swatch.Select(1);
                      trace_out("Hue_Edit::Draw", "");
                  }));
    }
    Hue_Edit hidden;
    hidden.Flag = OUTIL_INVISIBLE;
    hidden.Draw();
    EXPECT_EQ(recorder::exit_tag("Hue_Edit::Draw"), "OUTIL_INVISIBLE");
    EXPECT_EQ(recorder::warnings(), "");
}

// Old_Value stays that of the last Draw, so that the way back to it is not shown.
TEST_F(Editors, HueAdjustComparesWithTheLastDraw) {
    Hue_Edit editor;
    lay(editor, 0, 2, 0xFF2060A0);
    editor.Draw();
    editor.Adjust();
    EXPECT_EQ(recorder::exit_tag("Hue_Edit::Adjust"), "Cur_Value == Old_Value");
    editor.Cur_Value = 0xFF20A060;
    const float hue = hls(editor.Cur_Value).a;
    const std::string lines = everything([&] { editor.Adjust(); });
    EXPECT_EQ(editor.Old_Value, 0xFF2060A0u);
    EXPECT_EQ(editor.Val_Hue.Cur_Value, hue);
    EXPECT_EQ(lines, everything([&] {
                  trace_in("Hue_Edit::Adjust", "no name");
                  editor.Val_Hue.select = 0;
                  editor.Val_Hue.Adjust();
                  editor.Box_Swatch.select = 0;
                  editor.Box_Swatch.Select(1);
                  trace_out("Hue_Edit::Adjust", "");
              }));
    EXPECT_EQ(everything([&] { editor.Adjust(); }).find("Valuators::Adjust"), std::string::npos)
        << "same hue";
    editor.Cur_Value = 0xFF2060A0;
    EXPECT_EQ(painted([&] { editor.Adjust(); }), "");
    EXPECT_EQ(editor.Val_Hue.Cur_Value, hue);
    editor.Cur_Value = 1, editor.Flag = OUTIL_DISABLE;
    EXPECT_EQ(painted([&] { editor.Adjust(); }), "");
    editor.Adjust();
    EXPECT_EQ(recorder::exit_tag("Hue_Edit::Adjust"), "OUTIL_DISABLE");
}

TEST_F(Editors, HueReadKeepsLightAndSaturation) {
    Hue_Edit editor;
    lay(editor, 0, 2, 0x002060A0);
    const Parts c = hls(0x2060A0);
    EXPECT_EQ(editor.Read(), word_of_hue(c.a, c.b, c.c));
    middle(editor.Val_Hue);
    EXPECT_EQ(editor.Read(), word_of_hue(editor.Val_Hue.Read(), c.b, c.c));
    EXPECT_EQ(editor.Cur_Value, 0x2060A0u);
    editor.Cur_Value = 0x808080; // a grey has no hue to change
    EXPECT_EQ(editor.Read(), 0xFF808080u);
}

TEST_F(Editors, HueSelectAndScroll) {
    Hue_Edit editor;
    lay(editor, 0, 2, 0x002060A0);
    editor.Draw();
    EXPECT_EQ(editor.Select(2), 0);
    EXPECT_EQ(recorder::exit_tag("Hue_Edit::Select"), "0");
    EXPECT_EQ(editor.Scroll(1), 0x2060A0u);
    middle(editor.Val_Hue);
    for (const int mode : {18, 1, 4, 52}) {
        EXPECT_EQ(editor.Select(mode), 1);
        EXPECT_EQ(recorder::exit_tag("Hue_Edit::Select"), "1");
    }
    EXPECT_EQ(editor.Select(0), 0);
    const Parts c = hls(0x2060A0);
    const DWORD expected = word_of_hue(c.a + 0.99f / 50 * 4, c.b, c.c);
    recorder::clear();
    EXPECT_EQ(editor.Scroll(-4), expected);
    EXPECT_EQ(editor.Cur_Value, expected);
    EXPECT_EQ(recorder::exit_tag("Hue_Edit::Scroll"), "(none)");
    EXPECT_EQ(recorder::exit_tag("Hue_Edit::Adjust"), "");
    editor.Flag = OUTIL_DISABLE;
    EXPECT_EQ(editor.Select(KEY_QUERY), 0);
    EXPECT_EQ(recorder::exit_tag("Hue_Edit::Select"), "OUTIL_DISABLE");
    middle(editor.Box_Swatch);
    editor.Flag = 0;
    EXPECT_EQ(editor.Select(KEY_QUERY), 0);
}

TEST_F(Editors, HueDeselectWaysOut) {
    Hue_Edit editor;
    editor.Deselect();
    EXPECT_EQ(recorder::exit_tag("Hue_Edit::Deselect"), "! this->test");
    editor.test = 1;
    editor.Deselect();
    EXPECT_EQ(recorder::exit_tag("Hue_Edit::Deselect"), "< 0");
    lay(editor, OUTIL_EMPTY, 2);
    editor.Val_Hue.Held = 1;
    editor.Deselect();
    EXPECT_EQ(recorder::exit_tag("Hue_Edit::Deselect"), "OUTIL_EMPTY|OUTIL_INVISIBLE|OUTIL_OUTLINE");
    EXPECT_EQ(editor.Val_Hue.Held, 1);
    editor.Flag = 0;
    editor.Deselect();
    EXPECT_EQ(recorder::exit_tag("Hue_Edit::Deselect"), "");
    EXPECT_EQ(editor.Val_Hue.Held, 0);
}

TEST_F(Editors, HueFirstUseAndSize) {
    struct {
        const char* type;
        void (*use)(Hue_Edit&);
    } const rows[] = {
        {"Hue_Edit::Adjust", [](Hue_Edit& e) { e.Adjust(); }},
        {"Hue_Edit::Draw", [](Hue_Edit& e) { e.Draw(); }},
        {"Hue_Edit::Read", [](Hue_Edit& e) { EXPECT_EQ(e.Read(), 0u); }},
        {"Hue_Edit::Scroll", [](Hue_Edit& e) { EXPECT_EQ(e.Scroll(1), 0u); }},
        {"Hue_Edit::Select", [](Hue_Edit& e) { EXPECT_EQ(e.Select(2), 0); }},
    };
    for (const auto& row : rows) {
        Hue_Edit fresh;
        fresh.Cur_Value = 9;
        recorder::clear();
        row.use(fresh);
        row.use(fresh);
        EXPECT_EQ(recorder::warnings(), first_use_warning(row.type));
        if (row.type != std::string("Hue_Edit::Scroll")) {
            EXPECT_EQ(recorder::exit_tag(row.type), "<0");
        }
    }
}

// The swatch is a box like any other: under the pointer it shows its selected look.
TEST_F(Editors, HueSwatchLightsUpUnderThePointer) {
    Hue_Edit editor;
    lay(editor, 0, 2, 0xFF2060A0);
    editor.Draw();
    middle(editor.Box_Swatch);
    editor.Cur_Value = 0xFF20A060;
    editor.Adjust();
    EXPECT_EQ(editor.Box_Swatch.select, 1);
    EXPECT_EQ(editor.Box_Swatch.Graph_Normal[0], turned(0xFF20A060));
}

} // namespace
