// The sliders of a console: fitted to the log, moved by wheel and host.

#include "console_fixture.h"

using Strings = std::vector<std::wstring>;

struct Scrolling : Console {
    static std::vector<int> place(const Sliders& slider) {
        return {slider.Pos_X, slider.Pos_Y, slider.Dim_X, slider.Dim_Y};
    }
};

struct Rescale : Scrolling {};

TEST_F(Rescale, PlacesOfBoth) {
    init(TEXTS_CURSOR_V | TEXTS_CURSOR_H);
    EXPECT_EQ(place(console.Cursor_V), (std::vector<int>{106, 225, 16, 200 - 12 - 2 - 19}));
    EXPECT_EQ(place(console.Cursor_H), (std::vector<int>{125, 206, 300 - 12 - 2 - 19, 16}));
    console.Name_Set(L"name");
    console.Flag |= TEXTS_READ_STRIP;
    console.Cursor_Dim = -10;
    console.Init(nullptr);
    EXPECT_EQ(place(console.Cursor_V), (std::vector<int>{106, 236, 10, 200 - 14 - 26 - 13 - 17}));
    EXPECT_EQ(place(console.Cursor_H), (std::vector<int>{119, 223, 300 - 14 - 13, 10}));
}

TEST_F(Rescale, EachAlone) {
    init(TEXTS_CURSOR_V);
    EXPECT_EQ(place(console.Cursor_V), (std::vector<int>{106, 206, 16, 186}));
    console.Flag = TEXTS_CURSOR_H;
    console.Init(nullptr);
    EXPECT_EQ(place(console.Cursor_H), (std::vector<int>{106, 206, 286, 16}));
}

TEST_F(Rescale, TheInsetIsTwoAtLeast) {
    console.Border = 1;
    init(TEXTS_CURSOR_V | TEXTS_READ_STRIP);
    EXPECT_EQ(place(console.Cursor_V), (std::vector<int>{106, 200 + 6 + 15, 16, 200 - 8 - 2 - 15}));
    console.Border = 5;
    console.Init(nullptr);
    EXPECT_EQ(place(console.Cursor_V), (std::vector<int>{106, 200 + 6 + 21, 16, 200 - 20 - 2 - 21}));
}

TEST_F(Rescale, FieldsAndInheritedFlags) {
    console.Clip_X = 1, console.Clip_Y = 2, console.Clip_Dim_X = 3, console.Clip_Dim_Y = 4;
    init(TEXTS_CURSOR_V | TEXTS_CURSOR_H | TEXTS_HEX | OUTIL_INVISIBLE);
    for (const Sliders* slider : {&console.Cursor_V, &console.Cursor_H}) {
        EXPECT_EQ(slider->Border, 1);
        EXPECT_TRUE(slider->Color == Colors(170, 170, 170));
        EXPECT_EQ(slider->Val_Min, 0.0f);
        EXPECT_EQ(slider->Step, 10.0f); // a line, along both
        EXPECT_EQ(slider->Clip_Dim_X, 3);
        EXPECT_EQ(slider->Clip_Dim_Y, 4);
    }
    EXPECT_EQ(console.Cursor_V.Flag, console.Flag | OUTIL_VERTICAL | OUTIL_DISABLE | GRAPH_OUTLINE);
    EXPECT_EQ(console.Cursor_H.Flag, console.Flag | OUTIL_DISABLE | GRAPH_OUTLINE);
}

TEST_F(Rescale, WithMoreLinesThanRoomItScrolls) {
    init(TEXTS_CURSOR_V); // room for 186 pixels
    fill(18);
    EXPECT_EQ(console.Cursor_V.Flag, console.Flag | OUTIL_VERTICAL | OUTIL_DISABLE | GRAPH_OUTLINE);
    EXPECT_EQ(console.Cursor_V.Val_Max, 0.0f);
    fill(1);
    EXPECT_EQ(console.Cursor_V.Flag, console.Flag | OUTIL_VERTICAL);
    EXPECT_EQ(console.Cursor_V.Val_Max, 4.0f);
}

TEST_F(Rescale, ExactlyFullIsNotScrolled) {
    console.Dim_Y = 194; // room for 180
    init(TEXTS_CURSOR_V);
    fill(18);
    EXPECT_NE(console.Cursor_V.Flag & OUTIL_DISABLE, 0u);
    EXPECT_NE(console.Cursor_V.Flag & GRAPH_OUTLINE, 0u);
    EXPECT_EQ(console.Cursor_V.Val_Max, 0.0f);
}

TEST_F(Rescale, TheWidestLineSeenDecides) {
    init(TEXTS_CURSOR_H); // room for 286: a line of 35 letters and the gap just fits
    console.Write(L"%ls", std::wstring(35, L'x').c_str());
    EXPECT_NE(console.Cursor_H.Flag & OUTIL_DISABLE, 0u);
    console.Write(L"%ls", std::wstring(36, L'x').c_str());
    EXPECT_EQ(console.Cursor_H.Flag, console.Flag);
    EXPECT_EQ(console.Cursor_H.Val_Max, 36.0f * 8 + 6 - 286);
}

TEST_F(Rescale, MarksAloneCountAsALine) {
    init(TEXTS_CURSOR_V);
    for (int i = 0; i < 19; i++)
        console.Write(L"\x1\xF1");
    EXPECT_EQ(console.Cursor_V.Val_Max, 4.0f);
}

TEST_F(Rescale, AFieldCountsTheLinesThatItHides) {
    init(TEXTS_CURSOR_V | TEXTS_FIELD);
    fill(19);
    EXPECT_EQ(console.Cursor_V.Val_Max, 4.0f);
}

TEST_F(Rescale, WithNothingToScrollItIsDrawnAtOnce) {
    console.Init(recorder::window());
    console.Flag = TEXTS_CURSOR_V | TEXTS_CURSOR_H;
    const std::string calls = painted([&] { console.Init(nullptr); });
    EXPECT_EQ(calls, painted([&] { console.Cursor_V.Draw(), console.Cursor_H.Draw(); }));
}

struct Center : Scrolling {};

TEST_F(Center, FromTheOldestToTheNewest) {
    init(TEXTS_CURSOR_V);
    fill(40); // 400 pixels in 186
    console.Center(0);
    EXPECT_EQ(console.Cursor_V.Cur_Value, 214.0f);
    console.Center(40);
    EXPECT_EQ(console.Cursor_V.Cur_Value, 0.0f);
    console.Center(13);
    EXPECT_EQ(console.Cursor_V.Cur_Value, (1.0f - 13.0f / 40.0f) * 214.0f);
    console.Center(-100); // held by the slider
    EXPECT_EQ(console.Cursor_V.Cur_Value, 214.0f);
    console.Center(100000);
    EXPECT_EQ(console.Cursor_V.Cur_Value, 0.0f);
    EXPECT_EQ(tag("Center"), "");
}

TEST_F(Center, PaintsSliderAndLog) {
    init(TEXTS_CURSOR_V);
    fill(40);
    const std::string calls = painted([&] { console.Center(20); });
    EXPECT_LT(calls.find("Sliders::Cursor"), calls.find("Texts::Re_Write"));
    EXPECT_NE(calls.find("Texts::Re_Write"), std::string::npos);
}

TEST_F(Center, HolesDoNotCount) {
    init(TEXTS_CURSOR_V);
    fill(40);
    for (int i = 10; i < 30; i++) {
        std::free(console.Lines[i]);
        console.Lines[i] = nullptr;
    }
    console.Center(20);
    EXPECT_EQ(console.Cursor_V.Cur_Value, 0.0f);
}

TEST_F(Center, WithoutLinesOrSliderNothingHappens) {
    init(TEXTS_CURSOR_V);
    EXPECT_EQ(painted([&] { console.Center(5); }), "");
    console.Flag = 0;
    console.Init(nullptr);
    console.Write(L"x");
    EXPECT_EQ(painted([&] { console.Center(1); }), "");
    console.Flag = OUTIL_DISABLE | TEXTS_CURSOR_V;
    console.Center(1);
    EXPECT_EQ(tag("Center"), "OUTIL_DISABLE");
    console.Dim_X = 0;
    console.Center(1);
    EXPECT_EQ(tag("Center"), "<0");
}

TEST_F(Center, WarnsAtFirstUse) {
    console.Center(1);
    EXPECT_NE(recorder::warnings().find("type: Text::Center   name: no name"), std::string::npos);
}

struct Wheel : Scrolling {
    void on_horizontal() { recorder::pointer(console.Cursor_H.Pos_X + 50, console.Cursor_H.Pos_Y + 8); }
};

TEST_F(Wheel, MovesTheLogByALine) {
    init(TEXTS_CURSOR_V);
    fill(40);
    inside();
    const std::string calls = painted([&] { console.Scroll(-3); });
    EXPECT_EQ(console.Cursor_V.Cur_Value, 30.0f);
    EXPECT_NE(calls.find("203, \"line 36\")"), std::string::npos);
    console.Scroll(1);
    EXPECT_EQ(console.Cursor_V.Cur_Value, 20.0f);
    EXPECT_EQ(tag("Scroll"), "");
}

TEST_F(Wheel, WhatDoesNotMoveIsNotPainted) {
    init(TEXTS_CURSOR_V);
    fill(40);
    EXPECT_EQ(painted([&] { console.Scroll(1); }).find("Texts::Re_Write"), std::string::npos);
    EXPECT_EQ(painted([&] { console.Scroll(0); }).find("Texts::Re_Write"), std::string::npos);
}

TEST_F(Wheel, OnTheHorizontalSliderItGoesSideways) {
    init(TEXTS_CURSOR_V | TEXTS_CURSOR_H);
    fill(40);
    console.Write(L"%ls", std::wstring(60, L'x').c_str());
    on_horizontal();
    console.Scroll(-2);
    EXPECT_EQ(console.Cursor_H.Cur_Value, 20.0f);
    EXPECT_EQ(console.Cursor_V.Cur_Value, 0.0f);
    const std::string calls = painted([&] { console.Draw(); });
    EXPECT_NE(calls.find("Zeb_Font_Write(" + recorder::named(nullptr)), 0u);
    EXPECT_NE(calls.find(", 108, 225, \"xxx"), std::string::npos); // 126 + 2 - 20
    inside();
    console.Scroll(-1);
    EXPECT_EQ(console.Cursor_V.Cur_Value, 10.0f);
}

TEST_F(Wheel, WithAHorizontalSliderAloneThePointerHasToBeOnIt) {
    init(TEXTS_CURSOR_H);
    console.Write(L"%ls", std::wstring(60, L'x').c_str());
    inside();
    console.Scroll(-2);
    EXPECT_EQ(console.Cursor_H.Cur_Value, 0.0f);
    on_horizontal();
    console.Scroll(-2);
    EXPECT_EQ(console.Cursor_H.Cur_Value, 20.0f);
}

TEST_F(Wheel, TellsItsWaysOut) {
    console.Scroll(1);
    EXPECT_NE(recorder::warnings().find("type: Text::Scroll   name: no name"), std::string::npos);
    EXPECT_EQ(tag("Scroll"), "");
    init(TEXTS_CURSOR_V);
    fill(40);
    console.Flag |= OUTIL_DISABLE;
    console.Scroll(-1);
    EXPECT_EQ(tag("Scroll"), "OUTIL_DISABLE");
    EXPECT_EQ(console.Cursor_V.Cur_Value, 0.0f);
    console.Dim_X = 0;
    console.Scroll(-1);
    EXPECT_EQ(tag("Scroll"), "<0");
}
