#include <algorithm>
#include <climits>
#include <cstdlib>
#include <new>

#include <brask/fonts.h>

#include "spinner_fixture.h"
#include "support/memory.h"

// A spinner's life, its choices, and where everything is laid.

namespace {

struct Rect {
    int x, y, width, height;
};
bool operator==(const Rect& a, const Rect& b) {
    return a.x == b.x && a.y == b.y && a.width == b.width && a.height == b.height;
}
void PrintTo(const Rect& r, std::ostream* out) {
    *out << r.width << " by " << r.height << " at " << r.x << ", " << r.y;
}
Rect rect_of(const Tools& part) { return {part.Pos_X, part.Pos_Y, part.Dim_X, part.Dim_Y}; }

// --- Life ---

TEST_F(Spinner, BeginsWithAllFieldsZero) {
    alignas(Selects) static unsigned char place[sizeof(Selects)];
    std::fill(std::begin(place), std::end(place), 0xAA);
    Selects* made = nullptr;
    const std::string lines = everything([&] { made = new (place) Selects; });
    for (const unsigned char byte : place)
        ASSERT_EQ(byte, 0);
    EXPECT_EQ(lines, everything([] {
                  trace_in("Tools::Tools", "");
                  trace_out("Tools::Tools", "");
                  for (int part = 0; part < 2; part++) {
                      trace_in("Tools::Tools", "");
                      trace_out("Tools::Tools", "");
                      trace_in("Boxs::Boxs", "");
                      trace_out("Boxs::Boxs", "");
                  }
                  trace_in("Selects::Selects", "");
                  trace_out("Selects::Selects", "");
              }));
    made->~Selects();
}

TEST_F(Spinner, EndsWithItsChoicesThenZoneThenBox) {
    Selects* gone = new Selects;
    gone->Grow(2, 0);
    EXPECT_EQ(everything([&] { delete gone; }), everything([] {
                  const auto ended = [](const char* what) {
                      trace_in(what, "");
                      trace_out(what, "");
                      trace_in("Tools::~Tools", "");
                      trace_out("Tools::~Tools", "");
                  };
                  trace_in("Selects::~Selects", "");
                  ended("Buttons::~Buttons");
                  ended("Buttons::~Buttons");
                  trace_out("Selects::~Selects", "");
                  ended("Boxs::~Boxs");
                  ended("Boxs::~Boxs");
                  trace_in("Tools::~Tools", "");
                  trace_out("Tools::~Tools", "");
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
    EXPECT_EQ(item(0).Clip_X, 1);
    EXPECT_EQ(item(0).Clip_Y, 2);
    EXPECT_EQ(item(0).Clip_Dim_X, 3);
    EXPECT_EQ(item(0).Clip_Dim_Y, 4);
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
        EXPECT_EQ(recorder::warnings(), "[90000021] Tools: WARNING ! \n"
                                        "[90000021]    you must provide a window\n"
                                        "[90000021]    type: Selects::Init   name: no name\n");
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
    EXPECT_EQ(spin.Region.left, 100);
    EXPECT_EQ(spin.Region.top, 200);
    EXPECT_EQ(spin.Region.right, 301);
    EXPECT_EQ(spin.Region.bottom, 231);
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
    EXPECT_EQ(box.Clip_X, 1);
    EXPECT_EQ(box.Clip_Y, 2);
    EXPECT_EQ(box.Clip_Dim_X, 3);
    EXPECT_EQ(box.Clip_Dim_Y, 4);
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
    EXPECT_EQ(spin.Zone.Clip_X, 1);
    EXPECT_EQ(spin.Zone.Clip_Y, 2);
    EXPECT_EQ(spin.Zone.Clip_Dim_X, 3);
    EXPECT_EQ(spin.Zone.Clip_Dim_Y, 4);
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

// --- Init: layout ---

TEST_F(Spinner, TheZoneByNameFlagsAndBorder) {
    struct Row {
        DWORD flag;
        const wchar_t* name;
        int value_dim, border;
        Rect zone;
    };
    const wchar_t* const name = L"name"; // 32 wide, and an "X" of 8
    for (const Row& row : {
             Row{0, nullptr, 0, 0, {105, 205, 190, 20}},
             Row{TEXT_LEFT, nullptr, 0, 0, {105, 205, 190, 20}},
             Row{TEXT_LEFT, name, 0, 0, {150, 205, 145, 20}},
             Row{TEXT_RIGHT, name, 0, 0, {105, 205, 145, 20}},
             Row{TEXT_LEFT | TEXT_RIGHT, name, 0, 0, {150, 205, 145, 20}},
             Row{0, name, 0, 0, {105, 205, 190, 10}},
             Row{TEXT_BOTTOM, name, 0, 0, {105, 205, 190, 10}},
             Row{TEXT_MIDDLE, name, 0, 0, {105, 205, 190, 10}},
             Row{0, nullptr, 80, 0, {210, 205, 80, 20}},
             Row{TEXT_LEFT, name, 80, 0, {210, 205, 80, 20}}, // the name may run under the zone
             Row{TEXT_RIGHT, name, 80, 0, {210, 205, 80, 20}},
             Row{0, name, 300, 0, {-10, 205, 300, 20}},
             Row{0, name, -5, 0, {295, 205, 0, 20}},
             Row{0, nullptr, 0, 1, {104, 204, 192, 22}}, // never nearer than 4
             Row{0, nullptr, 0, 7, {109, 209, 182, 12}},
             Row{0, nullptr, 0, -8, {104, 204, 192, 22}}, // the border keeps its sign
             Row{0, nullptr, 0, 60, {162, 262, 76, 0}},
             Row{0, nullptr, 0, 150, {252, 352, 0, 0}},
         }) {
        spin.Flag = row.flag;
        row.name ? spin.Name_Set(L"%ls", row.name) : spin.Name_Set(nullptr);
        spin.Value_Dim = row.value_dim, spin.Border = row.border;
        spin.Dim_X = 200, spin.Dim_Y = 30;
        spin.Init(recorder::window());
        EXPECT_EQ(rect_of(spin.Zone), row.zone)
            << std::hex << row.flag << std::dec << (row.name ? " named " : " ") << row.value_dim << ' '
            << row.border;
    }
    BORDER = 10;
    spin.Border = 0, spin.Value_Dim = 0, spin.Flag = 0;
    spin.Name_Set(nullptr);
    spin.Init(nullptr);
    EXPECT_EQ(rect_of(spin.Zone), (Rect{112, 212, 176, 6}));
}

TEST_F(Spinner, TheZoneGoesByTheControlsOwnFont) {
    spin.Font_Size = 13;
    spin.Name_Set(L"name");
    spin.Flag = TEXT_LEFT;
    const HFONT font = Zeb_Create_Font(recorder::window(), nullptr, nullptr, nullptr, 13);
    recorder::metrics(font, 9, 11);
    horizontal(1);
    EXPECT_EQ(spin.Zone.Pos_X, 100 + 10 + 44 + 11);
    EXPECT_EQ(spin.Zone.Dim_X, 200 - 15 - 44 - 11);
    spin.Flag = 0;
    spin.Init(nullptr);
    EXPECT_EQ(spin.Zone.Dim_Y, 30 - 10 - 9);
}

TEST_F(Spinner, TheArrowsLengthIsTheLesserOfAcrossAndHalfOfAlong) {
    struct Row {
        DWORD flag;
        int width, height, given, arrow;
    };
    for (const Row& row : {
             Row{0, 200, 30, 0, 30},
             Row{0, 60, 30, 0, 14},
             Row{0, 61, 30, 0, 14}, // the division cuts
             Row{0, 32, 30, 0, 0},
             Row{0, 10, 30, 0, -11}, // stored all the same
             Row{0, 1, 1, 0, -16},
             Row{OUTIL_VERTICAL, 40, 200, 0, 40},
             Row{OUTIL_VERTICAL, 40, 81, 0, 24},
             Row{OUTIL_VERTICAL, 200, 30, 0, -1},
             Row{0, 200, 30, 12, 12},
             Row{0, 200, 30, -3, -3},
             Row{0, INT_MAX, INT_MAX, 0, INT_MAX / 2 - 16},
         }) {
        Selects fresh;
        fresh.Flag = row.flag | OUTIL_EMPTY; // no faces, of which some would be too large
        fresh.Dim_X = row.width, fresh.Dim_Y = row.height, fresh.Arrow_Dim = row.given;
        fresh.Init(recorder::window());
        EXPECT_EQ(fresh.Arrow_Dim, row.arrow) << row.width << ' ' << row.height;
    }
    CURSEUR = 40;
    Selects fresh;
    fresh.Dim_X = 100, fresh.Dim_Y = 30;
    fresh.Init(recorder::window());
    EXPECT_EQ(fresh.Arrow_Dim, 10);
}

TEST_F(Spinner, TheComputedArrowSurvivesALaterInit) {
    horizontal(1);
    spin.Dim_X = 500, spin.Dim_Y = 80;
    spin.Init(nullptr);
    EXPECT_EQ(spin.Arrow_Dim, 30);
    spin.Arrow_Dim = 0;
    spin.Init(nullptr);
    EXPECT_EQ(spin.Arrow_Dim, 80);
}

TEST_F(Spinner, TheChoicesHaveWhatTheArrowsLeave) {
    struct Row {
        DWORD flag;
        int width, height, arrow;
        Rect value;
    };
    for (const Row& row : {
             Row{0, 200, 30, 0, {140, 205, 120, 20}},
             Row{0, 200, 30, 12, {122, 205, 156, 20}},
             Row{OUTIL_VERTICAL, 40, 200, 0, {105, 250, 30, 100}},
             Row{0, 80, 30, 30, {140, 205, 0, 20}},
             Row{OUTIL_VERTICAL, 40, 80, 30, {105, 240, 30, 0}},
             Row{0, 10, 30, 0, {99, 205, 12, 20}}, // wider than the zone, which is empty
             Row{OUTIL_VERTICAL, 40, 10, 0, {105, 199, 30, 12}},
             Row{0, 200, 30, -100, {10, 205, 380, 20}},
         }) {
        spin.Flag = 0, spin.Arrow_Dim = row.arrow;
        lay(row.flag, 2, row.width, row.height);
        for (int i = 0; i < 2; i++)
            EXPECT_EQ(rect_of(item(i)), row.value) << row.width << ' ' << row.height << ' ' << row.arrow;
    }
}

// Nothing overflows whatever the fields hold.
TEST_F(Spinner, WildFieldsAreLaidOut) {
    spin.Flag = OUTIL_EMPTY;
    spin.Grow(2, 0);
    spin.Name_Set(L"name");
    for (const int wild : {INT_MIN, INT_MIN + 1, -1, 1 << 30, INT_MAX - 1, INT_MAX})
        for (const DWORD flag : {DWORD(0), OUTIL_VERTICAL, TEXT_LEFT, TEXT_RIGHT})
            for (int field = 0; field < 6; field++) {
                spin.Flag = OUTIL_EMPTY | flag;
                spin.Pos_X = spin.Pos_Y = 10, spin.Dim_X = spin.Dim_Y = 50;
                spin.Border = spin.Value_Dim = spin.Arrow_Dim = 0;
                (field == 0   ? spin.Pos_X
                 : field == 1 ? spin.Pos_Y
                 : field == 2 ? spin.Dim_X
                 : field == 3 ? spin.Border
                 : field == 4 ? spin.Value_Dim
                              : spin.Arrow_Dim) = wild;
                spin.Init(recorder::window());
                EXPECT_GE(spin.Zone.Dim_X, 0);
                EXPECT_GE(spin.Zone.Dim_Y, 0);
                EXPECT_GE(item(0).Dim_X, 0);
                EXPECT_GE(item(1).Dim_Y, 0);
                spin.Draw();
                spin.Select(2);
                recorder::clear();
            }
}

} // namespace
