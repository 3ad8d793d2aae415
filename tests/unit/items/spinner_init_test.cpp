#include <climits>

#include <brask/fonts.h>

#include "spinner_fixture.h"
#include "support/memory.h"

// A spinner's life, its choices, and what Init makes of its fields.

namespace {

// --- Life ---

TEST_F(Spinner, BeginsWithAllFieldsZero) {
    EXPECT_EQ(made_all_zero<Selects>(), everything([] {
                  life("Tools::Tools");
                  begins("Boxs"), begins("Boxs");
                  life("Selects::Selects");
              }));
}

TEST_F(Spinner, EndsWithItsChoicesThenZoneThenBox) {
    Selects* gone = new Selects;
    gone->Grow(2, 0);
    EXPECT_EQ(everything([&] { delete gone; }), everything([] {
                  trace_in("Selects::~Selects", "");
                  ends("Buttons"), ends("Buttons");
                  trace_out("Selects::~Selects", "");
                  ends("Boxs"), ends("Boxs");
                  life("Tools::~Tools");
              }));
}

TEST_F(Spinner, ACopySharesTheChoices) {
    horizontal(3);
    spin.Value_Dim = 77, spin.Old_Value = 2, spin.select = 2;
    Selects copy(spin), assigned;
    assigned = spin;
    for (Selects* other : {&copy, &assigned}) {
        EXPECT_EQ(other->Item, spin.Item);
        EXPECT_EQ(other->NbItem, 3);
        EXPECT_EQ(other->Arrow_Dim, 30);
        EXPECT_EQ(other->Value_Dim, 77);
        EXPECT_EQ(other->Old_Value, 2);
        EXPECT_EQ(other->select, 2);
        EXPECT_EQ(rect_of(other->Zone), rect_of(spin.Zone));
        EXPECT_EQ(other->Box.Box_Normal, spin.Box.Box_Normal);
        other->Item = nullptr;
    }
}

// --- Grow ---

TEST_F(Spinner, ANewChoiceHasTheControlsClipAndNothingElse) {
    spin.Clip_X = 1, spin.Clip_Y = 2, spin.Clip_Dim_X = 3, spin.Clip_Dim_Y = 4;
    spin.Wnd = recorder::window();
    spin.Grow(1, 0);
    EXPECT_EQ(clip_of(item(0)), (Rect{1, 2, 3, 4}));
    EXPECT_EQ(rect_of(item(0)), (Rect{0, 0, 0, 0}));
    EXPECT_EQ(item(0).Wnd, nullptr);
    EXPECT_EQ(item(0).W_Name, nullptr);
    EXPECT_EQ(item(0).Cur_Value, 0);
    EXPECT_EQ(item(0).test, 0);
}

TEST_F(Spinner, WithoutMemoryGrowReportsAndEveryOperationFindsNoChoice) {
    if (!memory::can_fail()) GTEST_SKIP() << "this system's build cannot make memory run out";
    struct Row {
        int from, to;
        const char* report;
    };
    for (const Row& row :
         {Row{2, 5, "line 250  of select \\nmemory error in realloc (var=this->Item, dim=6x8)"},
          Row{5, 2, "line 247  of select \\nmemory error in realloc (var=this->Item, dim=3x8)"}}) {
        Selects fresh;
        fresh.Dim_X = 200, fresh.Dim_Y = 30;
        fresh.Grow(row.from, 0);
        fresh.Init(recorder::window());
        fresh.Cur_Value = 1;
        recorder::clear();
        int done;
        {
            memory::Failing failing(1);
            done = fresh.Grow(row.to, 0);
        }
        EXPECT_EQ(done, 0);
        EXPECT_EQ(fresh.Item, nullptr);
        EXPECT_EQ(fresh.NbItem, row.from);
        EXPECT_EQ(recorder::reports(1), std::vector<std::string>{row.report});
        recorder::pointer(5, 5);
        EXPECT_EQ(fresh.Select(2), 1);
        EXPECT_EQ(fresh.Cur_Value, 1) << "no step without choices";
        EXPECT_EQ(fresh.Scroll(1), 0);
        fresh.Adjust();
        fresh.Deselect();
        fresh.Draw();
        EXPECT_EQ(fresh.Cur_Value, 0);
        fresh.Init(nullptr);
        EXPECT_EQ(recorder::exit_tag("Selects::Init"), "!end");
        EXPECT_EQ(fresh.NbItem, 0);
    }
}

// --- Init: the ways out ---

TEST_F(Spinner, InitStopsWhereItMust) {
    for (const auto& size : {std::pair(0, 30), std::pair(200, 0), std::pair(-1, INT_MIN)}) {
        Selects fresh;
        fresh.Dim_X = size.first, fresh.Dim_Y = size.second;
        fresh.Init(recorder::window());
        EXPECT_EQ(recorder::exit_tag("Selects::Init"), "<0");
        EXPECT_EQ(fresh.test, 1);
        EXPECT_EQ(fresh.Wnd, nullptr);
    }
    Selects fresh;
    fresh.Dim_X = 200, fresh.Dim_Y = 30;
    for (int time = 0; time < 2; time++) {
        recorder::clear();
        fresh.Init(nullptr);
        EXPECT_EQ(recorder::warnings(), window_warning("Selects::Init"));
        EXPECT_EQ(recorder::exit_tag("Selects::Init"), "!wnd");
    }
    EXPECT_EQ(fresh.Region.right, 0) << "nothing is built";
    EXPECT_EQ(fresh.Box.test, 0);
}

TEST_F(Spinner, InitWithoutChoicesStopsBeforeTheSizeIsKept) {
    spin.Dim_X = 200, spin.Dim_Y = 30;
    spin.Cur_Value = 5, spin.NbItem = 9;
    spin.Init(recorder::window());
    EXPECT_EQ(recorder::exit_tag("Selects::Init"), "!end");
    EXPECT_EQ(spin.NbItem, 0);
    EXPECT_EQ(spin.Cur_Value, 0);
    EXPECT_EQ(spin.Old_Value, 0);
    EXPECT_EQ(spin.Old_Dim_X, 0);
    EXPECT_EQ(spin.Old_Dim_Y, 0);
    EXPECT_EQ(rect_of(spin.Zone), (Rect{105, 205, 190, 20}));
    EXPECT_EQ(spin.Box.test, 1);
    spin.Border = 4;
    spin.Grow(1, 0);
    spin.Init(nullptr);
    EXPECT_EQ(recorder::exit_tag("Selects::Init"), "");
    EXPECT_EQ(spin.Old_Dim_X, 200);
    EXPECT_EQ(spin.Old_Dim_Y, 30);
    EXPECT_EQ(spin.Old_Border, 4);
}

TEST_F(Spinner, InitLaysTheBoxMeasuresAndLaysEachChoice) {
    spin.Name_Set(L"nm");
    horizontal(2);
    EXPECT_EQ(recorded(recorder::kDraw | recorder::kMeasure | recorder::kReport,
                       [&] { spin.Init(recorder::window(2)); }),
              recorded(recorder::kDraw | recorder::kMeasure | recorder::kReport, [&] {
                  trace_in("Selects::Init", "nm");
                  spin.Box.Init(recorder::window(2));
                  const HFONT font = Zeb_Create_Font(spin.Wnd, nullptr, nullptr, nullptr, 9);
                  Zeb_setup(recorder::window(2), "Selects::Init");
                  Zeb_Font_Size_String(font, L"nm");
                  Zeb_Font_Size_String(font, "X");
                  Zeb_Font_Size_Height(font);
                  Zeb_release();
                  item(0).Init(recorder::window(2));
                  item(1).Init(recorder::window(2));
                  trace_out("Selects::Init", "");
              }));
}

TEST_F(Spinner, InitWithoutAWindowKeepsTheFramesFaces) {
    horizontal(2);
    const DWORD* const face = spin.Box.Image_Normal;
    const std::string lines = everything([&] { spin.Init(nullptr); });
    EXPECT_GT(lines.find("Inside_3D"), lines.find("Buttons::Init")) << "the choices get the window each time";
    EXPECT_EQ(spin.Box.Image_Normal, face);
    EXPECT_EQ(spin.Wnd, recorder::window());
}

// --- Init: fields ---

TEST_F(Spinner, InitSetsRegionAndTheDefaultColour) {
    horizontal(1);
    EXPECT_EQ(spin.Color_Get(), 0xAAAAAAu);
    EXPECT_EQ(region_of(spin), (Rect{100, 200, 201, 31}));
    EXPECT_EQ(spin.select, 0);
    spin.Color = Colors(1, 2, 3);
    spin.select = 1;
    spin.Init(nullptr);
    EXPECT_EQ(spin.Color_Get(), 0x30201u);
    EXPECT_EQ(spin.select, 1) << "Init does not reset it";
}

TEST_F(Spinner, TheBoxHasWhatBelongsToTheFrame) {
    static const char name[] = "f", weight[] = "bold", slant[] = "i";
    spin.Font_Name = name, spin.Font_Weight = weight, spin.Font_Slant = slant, spin.Font_Size = 11;
    spin.Clip_X = 1, spin.Clip_Y = 2, spin.Clip_Dim_X = 3, spin.Clip_Dim_Y = 4;
    spin.Color = Colors(1, 2, 3);
    spin.Border = 7;
    spin.Name_Set(L"title");
    spin.Flag = 0xFFFFFFFFu & ~OUTIL_EMPTY;
    lay(0, 1, 200, 30);
    const Boxs& box = spin.Box;
    EXPECT_EQ(box.Flag, (0x7771u & ~OUTIL_EMPTY) | OUTIL_DISABLE);
    EXPECT_EQ(rect_of(box), (Rect{100, 200, 200, 30}));
    EXPECT_EQ(clip_of(box), (Rect{1, 2, 3, 4}));
    EXPECT_EQ(box.Color_Get(), 0x30201u);
    EXPECT_EQ(box.Border, 7);
    EXPECT_EQ(box.Font_Name, name);
    EXPECT_EQ(box.Font_Weight, weight);
    EXPECT_EQ(box.Font_Slant, nullptr);
    EXPECT_EQ(box.Font_Size, 11);
    EXPECT_EQ(box.W_Name, nullptr) << "the control writes the name itself";
    EXPECT_EQ(box.Wnd, recorder::window());
    for (const DWORD passes : {OUTIL_INVISIBLE, OUTIL_EMPTY, GRAPH_OUTLINE, OUTIL_FLAT, TEXT_MIDDLE, TEXT_TOP,
                               TEXT_BOTTOM, TEXT_LEFT, TEXT_RIGHT}) {
        spin.Flag = passes;
        spin.Init(nullptr);
        EXPECT_EQ(box.Flag, passes | OUTIL_DISABLE);
    }
    for (const DWORD stays : {OUTIL_VERTICAL, OUTIL_NO_FRAME, BOX_INSET, BOX_RAISED, TEXT_WHITE}) {
        spin.Flag = stays;
        spin.Init(nullptr);
        EXPECT_EQ(box.Flag, OUTIL_DISABLE);
    }
}

TEST_F(Spinner, TheZoneIsARectangleAndNoControl) {
    spin.Clip_X = 1, spin.Clip_Y = 2, spin.Clip_Dim_X = 3, spin.Clip_Dim_Y = 4;
    horizontal(1);
    EXPECT_EQ(clip_of(spin.Zone), (Rect{1, 2, 3, 4}));
    EXPECT_EQ(spin.Zone.test, 0);
    EXPECT_EQ(spin.Zone.Flag, 0u);
    EXPECT_EQ(spin.Zone.Wnd, nullptr);
    EXPECT_EQ(spin.Zone.Box_Normal, nullptr);
}

TEST_F(Spinner, ChoicesAreSunkenFieldsOverOneRectangle) {
    static const char name[] = "f", weight[] = "bold", slant[] = "i";
    spin.Font_Name = name, spin.Font_Weight = weight, spin.Font_Slant = slant, spin.Font_Size = 11;
    spin.Border = 6, spin.Clip_Dim_X = 3;
    spin.Grow(3, 0);
    item(1).Flag = OUTIL_INVISIBLE, item(2).Border = 9, item(2).Clip_Y = 12;
    lay(TEXT_LEFT | OUTIL_FLAT, 3, 200, 40);
    for (int i = 0; i < 3; i++) {
        EXPECT_EQ(item(i).Border, 1);
        EXPECT_EQ(item(i).Cur_Value, 1);
        EXPECT_EQ(rect_of(item(i)), rect_of(item(0)));
        EXPECT_EQ(item(i).Clip_Dim_X, 3);
        EXPECT_EQ(item(i).Clip_Y, 0);
        EXPECT_EQ(item(i).Font_Name, name);
        EXPECT_EQ(item(i).Font_Weight, weight);
        EXPECT_EQ(item(i).Font_Slant, slant);
        EXPECT_EQ(item(i).Font_Size, 11);
        EXPECT_EQ(item(i).Wnd, recorder::window());
        EXPECT_EQ(item(i).test & 1, 1);
    }
    EXPECT_EQ(item(1).Flag, OUTIL_INVISIBLE | CADRE_NO_LINE) << "the control's own flags stay with it";
    spin.Flag |= OUTIL_EMPTY | OUTIL_DISABLE;
    spin.Init(nullptr);
    EXPECT_EQ(item(1).Flag, OUTIL_INVISIBLE | CADRE_NO_LINE | ((spin.Flag | OUTIL_EMPTY) & 0xF127750));
}

TEST_F(Spinner, InitBringsTheValueIntoRange) {
    horizontal(3);
    for (const int value : {0, 1, 2, 3, -1, INT_MAX, INT_MIN}) {
        spin.Cur_Value = value, spin.Old_Value = 77;
        spin.Init(nullptr);
        EXPECT_EQ(spin.Cur_Value, value >= 0 && value < 3 ? value : 0);
        EXPECT_EQ(spin.Old_Value, spin.Cur_Value);
    }
    skip(0);
    spin.Cur_Value = 0;
    spin.Init(nullptr);
    EXPECT_EQ(spin.Cur_Value, 0) << "only Draw leaves a choice that is skipped";
}

} // namespace
