// Birth, Init, Cleanup and end of a console.

#include <brask/fonts.h>

#include "console_fixture.h"

using Strings = std::vector<std::wstring>;

namespace {

std::vector<int> strip_of(const Texts& console) {
    return {console.Read_X1, console.Read_X2, console.Read_Y1, console.Read_Y2};
}

} // namespace

struct Init : Console {};

TEST_F(Init, BeginsEmptyAndTellsItsPartsFirst) {
    const std::string births = recorded(recorder::kReport, [] { Texts one; });
    EXPECT_EQ(births.find(">>> in  Lib_Brask: Tools::Tools()"), births.find(">>> in"));
    EXPECT_LT(births.find("Sliders::Sliders()"), births.find(">>> in  Lib_Brask: Texts::Texts()"));
    EXPECT_LT(births.find("<<< out Lib_Brask: Texts::Texts()"),
              births.find(">>> in  Lib_Brask: Texts::~Texts()"));
    EXPECT_LT(births.find("<<< out Lib_Brask: Texts::~Texts()"), births.find("Sliders::~Sliders()"));
    EXPECT_EQ(console.test, 0);
    EXPECT_EQ(console.Lines, nullptr);
    EXPECT_EQ(console.Cursor_V.Step, 0.0f);
    EXPECT_EQ(console.Edit_Line[1023], 0);
}

TEST_F(Init, AsksForTheWindowBeforeTheSize) {
    console.Dim_X = 0;
    console.Init(nullptr);
    EXPECT_EQ(tag("Init"), "!wnd");
    EXPECT_NE(recorder::warnings().find("type: Texts::Init   name: no name"), std::string::npos);
    console.Init(recorder::window());
    EXPECT_EQ(tag("Init"), "<0");
    EXPECT_EQ(console.Wnd, recorder::window());
    EXPECT_EQ(console.test, 1);
    console.Dim_X = 300, console.Dim_Y = -1;
    console.Init(nullptr);
    EXPECT_EQ(tag("Init"), "<0");
    EXPECT_EQ(console.Region.right, 0);
}

TEST_F(Init, GivesColourRegionAndStrip) {
    console.Init(recorder::window());
    EXPECT_EQ(tag("Init"), "done");
    EXPECT_TRUE(console.Color == Colors(170, 170, 170));
    EXPECT_EQ(console.Region.left, 100);
    EXPECT_EQ(console.Region.right, 401);
    EXPECT_EQ(console.Region.bottom, 401);
    EXPECT_EQ(strip_of(console), (std::vector<int>{106, 394, 206, 200 - 1 + 10 + 12}));
    console.Border = 5;
    console.Init(nullptr);
    EXPECT_EQ(strip_of(console), (std::vector<int>{110, 390, 210, 200 - 1 + 10 + 20}));
    console.Flag = TEXTS_FIELD;
    console.Init(nullptr);
    EXPECT_EQ(strip_of(console), (std::vector<int>{100, 400, 200, 400}));
}

TEST_F(Init, MeasuresAFontOnceForAllConsoles) {
    const HFONT font = Zeb_Create_Font(recorder::window(), nullptr, "medium", "r", 33);
    recorder::metrics(font, 21, 13);
    console.Font_Size = 33;
    const std::string first =
        recorded(recorder::kDraw | recorder::kMeasure, [&] { console.Init(recorder::window()); });
    recorder::name(font, "FONT");
    EXPECT_NE(first.find("Zeb_setup(WND, \"Texts::Init\")"), std::string::npos);
    EXPECT_EQ(console.Font_Dim_X, 13);
    EXPECT_EQ(console.Font_Dim_Y, 21);
    Texts other;
    other.Dim_X = other.Dim_Y = 50, other.Font_Size = 33;
    EXPECT_EQ(recorded(recorder::kDraw | recorder::kMeasure, [&] { other.Init(recorder::window()); }), "");
    EXPECT_EQ(other.Font_Dim_X, 13);
    EXPECT_EQ(other.Font_Dim_Y, 21);
    other.Font_Size = 9;
    EXPECT_NE(recorded(recorder::kMeasure, [&] { other.Init(nullptr); }), "");
}

TEST_F(Init, EmptiesTheFrontOfTheLineUnlessReading) {
    std::fill_n(console.Edit_Line, 1023, L'x');
    console.Init(recorder::window());
    EXPECT_EQ(console.Edit_Line[511], 0);
    EXPECT_EQ(console.Edit_Line[512], L'x');
    console.flag_read = 4;
    console.Edit_Line[0] = L'y';
    console.Init(nullptr);
    EXPECT_EQ(console.Edit_Line[0], L'y');
}

TEST_F(Init, ASliderThatIsNotWantedIsZeroAltogether) {
    init(TEXTS_CURSOR_V | TEXTS_CURSOR_H);
    EXPECT_NE(console.Cursor_V.test, 0);
    console.Flag = TEXTS_CURSOR_H;
    console.Init(nullptr);
    // Rescaling then marks it as one that scrolls nothing.
    EXPECT_EQ(console.Cursor_V.test, 0);
    EXPECT_EQ(console.Cursor_V.Dim_X, 0);
    EXPECT_EQ(console.Cursor_V.Flag, OUTIL_DISABLE);
    console.Flag = 0;
    console.Init(nullptr);
    EXPECT_EQ(console.Cursor_V.Flag, 0u);
    EXPECT_EQ(console.Cursor_H.Flag, 0u);
}

TEST_F(Init, ASlidersNameGoesWithIt) { // its block would be lost otherwise
    init(TEXTS_CURSOR_V);
    console.Cursor_V.Name_Set(L"slider");
    console.Flag = 0;
    console.Init(nullptr);
    EXPECT_EQ(console.Cursor_V.W_Name, nullptr);
}

TEST_F(Init, KeepsTheLogAndTheReading) {
    read(TEXTS_CURSOR_V, L"typing");
    console.Write(L"kept");
    console.Dim_X = 250;
    console.Init(nullptr);
    EXPECT_EQ(lines(), Strings{L"kept"});
    EXPECT_EQ(edited(), L"typing|");
    EXPECT_EQ(console.flag_read, 1);
}

TEST_F(Init, ACopySharesTheStores) {
    init();
    console.Write(L"line");
    console.Cursor_Dim = 7, console.select = 2, console.Hist_Pos = 3, console.Edit_Pos = 4;
    Texts copy(console);
    Texts assigned;
    assigned = console;
    for (Texts* each : {&copy, &assigned}) {
        EXPECT_EQ(each->Lines, console.Lines);
        EXPECT_EQ(each->Line_Width, console.Line_Width);
        EXPECT_EQ(each->Cursor_Dim, 7);
        EXPECT_EQ(each->select, 2);
        EXPECT_EQ(each->Hist_Pos, 3);
        EXPECT_EQ(each->Edit_Pos, 4);
        EXPECT_EQ(each->Read_Y2, console.Read_Y2);
        each->Lines = nullptr, each->History = nullptr,
        each->Line_Width = nullptr; // only one may end with them
    }
}

struct Cleanup : Console {};

TEST_F(Cleanup, EmptiesLogHistoryAndFrontOfTheLine) {
    read(TEXTS_CURSOR_V, L"line");
    console.Write(L"one\ntwo");
    console.Input(13);
    std::fill_n(console.Edit_Line, 1023, L'x');
    console.Hist_Pos = 5, console.Edit_Pos = 6;
    const std::string calls = painted([&] { console.Cleanup(); });
    EXPECT_EQ(console.Lines, nullptr);
    EXPECT_EQ(console.Line_Width, nullptr);
    EXPECT_EQ(console.History, nullptr);
    EXPECT_EQ(console.Edit_Line[511], 0);
    EXPECT_EQ(console.Edit_Line[512], L'x');
    EXPECT_EQ(console.flag_read, 0);
    EXPECT_EQ(console.Hist_Pos, 5);
    EXPECT_EQ(console.Edit_Pos, 6);
    // The log is not painted anew, only the slider that has nothing to scroll any more.
    EXPECT_EQ(calls.find("Texts::"), std::string::npos) << calls;
    EXPECT_NE(calls.find("Tools::Cadre_Outline"), std::string::npos) << calls;
    console.Write(L"again");
    EXPECT_EQ(lines(), Strings{L"again"});
}

TEST_F(Cleanup, RescalesWhileItStillReads) {
    read(TEXTS_CURSOR_V);
    console.Cleanup();
    EXPECT_EQ(console.Cursor_V.Pos_Y, 200 + 6 + 10 + 1 + 6); // above the strip
}

TEST_F(Cleanup, TellsItsWaysOut) {
    console.Cleanup();
    EXPECT_EQ(tag("Cleanup"), "done");
    EXPECT_NE(recorder::warnings().find("type: Text::Cleanup   name: no name"), std::string::npos);
    console.Dim_X = 0;
    console.Cleanup();
    EXPECT_EQ(tag("Cleanup"), "<0");
}
