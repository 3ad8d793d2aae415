#include <cstring>
#include <vector>

#include <brask/fonts.h>

#include "list_fixture.h"

// What Init makes of a list: its ways out, the frame, the slider's life, the items.

namespace {

// --- Ways out of Init ---

TEST_F(List, InitOfAListTooSmallEndsAtOnce) {
    for (const auto& size : {std::pair(0, 50), std::pair(50, 0), std::pair(-4, -4)}) {
        list.Dim_X = size.first, list.Dim_Y = size.second;
        list.Cur_Value = 4;
        list.Init(recorder::window());
        EXPECT_EQ(recorder::exit_tag("Lists::Init"), "<0");
        EXPECT_EQ(list.Wnd, nullptr);
        EXPECT_EQ(list.test, 1);
        EXPECT_EQ(list.Old_Value, 0);
    }
}

TEST_F(List, InitWithoutAWindowWarnsEachTime) {
    list.Dim_X = list.Dim_Y = 50;
    for (int i = 0; i < 2; i++) {
        recorder::clear();
        list.Init(nullptr);
        EXPECT_EQ(recorder::warnings(), window_warning("Lists::Init"));
        EXPECT_EQ(recorder::exit_tag("Lists::Init"), "!wnd");
        EXPECT_EQ(list.Box.test, 0);
    }
}

TEST_F(List, InitWithoutItemsMakesTheFrameAlone) {
    list.Flag = OUTIL_VERTICAL;
    list.Dim_X = 120, list.Dim_Y = 115;
    list.NbItem = 8;
    list.Slider.Dim_X = 12;
    for (const bool empty : {false, true}) {
        if (empty) list.Grow(0, 0);
        list.Init(recorder::window());
        EXPECT_EQ(recorder::exit_tag("Lists::Init"), "!end");
        EXPECT_EQ(list.NbItem, 0);
        EXPECT_EQ(list.Slider.Dim_X, 0);
        EXPECT_EQ(rect_of(list.Box), rect_of(list));
        EXPECT_EQ(list.Get_Y(), 6 * 3 + 4 + 10);
        EXPECT_EQ(list.Old_Dim_X, 0);
        list.Draw();
        list.Read();
    }
}

TEST_F(List, InitGoesFrameItemsSlider) {
    list.Name_Set(L"L");
    list.Flag = OUTIL_VERTICAL;
    list.Dim_X = 120, list.Dim_Y = 115;
    list.Grow(10, 0);
    for (int i = 0; i < 10; i++)
        item(i).Name_Set(L"i%d", i);
    list.Init(recorder::window()); // brings faces and fonts into being
    constexpr unsigned kinds = recorder::kDraw | recorder::kMeasure | recorder::kReport;
    EXPECT_EQ(recorded(kinds, [&] { list.Init(nullptr); }), recorded(kinds, [&] {
                  trace_in("Lists::Init", "L");
                  const HFONT font = Zeb_Create_Font(nullptr, nullptr, nullptr, nullptr, 9);
                  Zeb_setup(recorder::window(), "Lists::Init");
                  Zeb_Font_Size_Height(font);
                  Zeb_release();
                  list.Box.Init(nullptr);
                  for (int i = 0; i < 10; i++) {
                      item(i).Init(nullptr);
                      item(i).Deselect();
                  }
                  list.Slider.Init(nullptr);
                  trace_out("Lists::Init", "");
              }));
}

TEST_F(List, InitKeepsWhatTheNextOneComparesWith) {
    list.Cur_Value = 2;
    list.Border = -4;
    vertical(3);
    EXPECT_EQ(list.Old_Value, 2);
    EXPECT_EQ(list.Old_Dim_X, 120);
    EXPECT_EQ(list.Old_Dim_Y, 115);
    EXPECT_EQ(list.Old_Border, -4);
    EXPECT_EQ(list.Wnd, recorder::window());
    EXPECT_EQ(list.Color_Get(), Colors(170, 170, 170).get());
    EXPECT_EQ(region_of(list), (Rect{100, 200, 121, 116}));
}

// --- The frame ---

TEST_F(List, TheFrameIsTheListsOwnRectangle) {
    list.Name_Set(L"100%% %ls"); // as the name reads, so does the frame's
    list.Border = 5;
    list.Font_Name = "f", list.Font_Weight = "bold", list.Font_Slant = "i", list.Font_Size = 14;
    list.Color = Colors(1, 2, 3);
    vertical(3);
    EXPECT_EQ(rect_of(list.Box), rect_of(list));
    EXPECT_STREQ(list.Box.W_Name, list.W_Name);
    EXPECT_NE(list.Box.W_Name, list.W_Name);
    EXPECT_EQ(list.Box.Border, 5);
    EXPECT_EQ(list.Box.Font_Name, list.Font_Name);
    EXPECT_EQ(list.Box.Font_Weight, list.Font_Weight);
    EXPECT_EQ(list.Box.Font_Slant, nullptr);
    EXPECT_EQ(list.Box.Font_Size, 14);
    EXPECT_EQ(list.Box.Color_Get(), list.Color_Get());
    list.Name_Set(nullptr);
    list.Init(nullptr);
    EXPECT_EQ(list.Box.W_Name, nullptr);
}

TEST_F(List, ANameWithConversionsIsNoFormat) {
    list.Name_Set(L"%ls", L"%ls %d %n");
    vertical(3);
    EXPECT_STREQ(list.Box.W_Name, L"%ls %d %n");
}

TEST_F(List, TheFrameNeverReactsAndTakesThreeFlags) {
    for (const auto& row : {std::pair<DWORD, DWORD>{0, 0x42},
                            {0xFFFFFFFF, 0x73},
                            {OUTIL_INVISIBLE, 0x43},
                            {OUTIL_EMPTY, 0x52},
                            {GRAPH_OUTLINE, 0x62},
                            {BOX_RAISED | BOX_INSET, 0x42}}) {
        list.Flag = row.first;
        list.Dim_X = 120, list.Dim_Y = 115;
        list.Init(recorder::window());
        EXPECT_EQ(list.Box.Flag, row.second) << std::hex << row.first;
    }
}

TEST_F(List, TheFramesClipIsTheListsWithItsRectangleForEachZero) {
    int Tools::*const clips[] = {&Tools::Clip_X, &Tools::Clip_Y, &Tools::Clip_Dim_X, &Tools::Clip_Dim_Y};
    const int rectangle[] = {100, 200, 120, 115};
    for (int set = 0; set < 16; set++) {
        for (int i = 0; i < 4; i++)
            list.*clips[i] = set >> i & 1 ? 30 + i : 0;
        vertical(3);
        for (int i = 0; i < 4; i++)
            EXPECT_EQ(list.Box.*clips[i], set >> i & 1 ? 30 + i : rectangle[i]) << set << ' ' << i;
    }
}

// --- The slider's life ---

TEST_F(List, AScrollPositionSurvivesInit) {
    vertical(10);
    list.Slider.Cur_Value = 300.5f;
    list.Init(nullptr);
    EXPECT_EQ(list.Slider.Cur_Value, 300.5f);
    list.Slider.Cur_Value = 0.0f;
    list.Init(nullptr);
    EXPECT_EQ(list.Slider.Cur_Value, 290.0f);
    list.Flag = 0;
    horizontal(20);
    list.Slider.Cur_Value = 0.0f;
    list.Init(nullptr);
    EXPECT_EQ(list.Slider.Cur_Value, 105.0f);
}

TEST_F(List, WhenAllFitsTheSliderIsClearedWithWhatItOwned) {
    vertical(10);
    list.Slider.Name_Set(L"owned");
    list.Slider.Alloc_Graph_Normal(1);
    list.Slider.Graph_Select = list.Slider.Graph_Normal; // one block for both
    list.Grow(3, 0);
    const std::string lines = everything([&] { list.Init(nullptr); });
    EXPECT_EQ(times(lines, "Sliders::"), 0u);
    static const unsigned char zeros[sizeof(Sliders)] = {};
    EXPECT_EQ(std::memcmp(static_cast<const void*>(&list.Slider), zeros, sizeof zeros), 0);
    list.Grow(10, 0);
    list.Init(nullptr);
    list.Slider.Alloc_Graph_Normal(1);
    list.Slider.Alloc_Graph_Select(2);
    list.Grow(3, 0);
    list.Init(nullptr); // a leak would be found at the end
    EXPECT_EQ(list.Slider.Graph_Select, nullptr);
}

TEST_F(List, ASliderWithoutAWindowGetsTheLists) {
    vertical(3);
    list.Grow(10, 0);
    list.Init(nullptr);
    EXPECT_EQ(list.Slider.Wnd, recorder::window());
    list.Init(recorder::window(2));
    EXPECT_EQ(list.Slider.Wnd, recorder::window(2));
    EXPECT_EQ(item(0).Wnd, recorder::window(2));
}

// --- The items ---

TEST_F(List, EachItemTakesFontBevelAndClip) {
    list.Font_Name = "f", list.Font_Weight = "bold", list.Font_Slant = "i", list.Font_Size = 14;
    list.Border = -2;
    list.Clip_X = 7, list.Clip_Dim_X = 500;
    list.Cur_Value = 1;
    vertical(3);
    for (int i = 0; i < 3; i++) {
        EXPECT_STREQ(item(i).Font_Name, "f");
        EXPECT_STREQ(item(i).Font_Weight, "bold");
        EXPECT_STREQ(item(i).Font_Slant, "i");
        EXPECT_EQ(item(i).Font_Size, 14);
        EXPECT_EQ(item(i).Border, -2);
        EXPECT_EQ(clip_of(item(i)), (Rect{7, 200, 500, 115}));
        EXPECT_EQ(item(i).Cur_Value, i == 1);
        EXPECT_EQ(item(i).Wnd, recorder::window());
        EXPECT_EQ(rect_of(item(i)), (Rect{0, 0, 112, 34})) << "Init places no item";
    }
    EXPECT_EQ(rect_of(list.Slider), (Rect{0, 0, 0, 0}));
}

TEST_F(List, ANameTakesItsRowFromTheItemsClip) {
    list.Name_Set(L"n");
    vertical(3);
    EXPECT_EQ(item(0).Clip_Dim_Y, 115 - 2 - 10 - 3);
    list.Clip_Dim_Y = 300;
    list.Init(nullptr);
    EXPECT_EQ(item(0).Clip_Dim_Y, 300 - 15);
}

TEST_F(List, OnlyUnderEmptyTheListsFlagsReachItsItems) {
    vertical(3);
    item(0).Flag = OUTIL_DISABLE;
    list.Flag |= OUTIL_FLAT | TEXT_LEFT;
    list.Init(nullptr);
    EXPECT_EQ(item(0).Flag, OUTIL_DISABLE | CADRE_NO_LINE);
    list.Flag |= OUTIL_EMPTY | OUTIL_INVISIBLE;
    list.Init(nullptr);
    EXPECT_EQ(item(0).Flag, OUTIL_DISABLE | CADRE_NO_LINE | OUTIL_EMPTY | OUTIL_FLAT | TEXT_LEFT);
}

TEST_F(List, InitEndsTheTrackingOfItems) {
    vertical(3);
    item(1).select = 1;
    list.Init(nullptr);
    EXPECT_EQ(item(1).select, 0);
}

TEST_F(List, GetYWritesNoTrace) {
    vertical(3);
    EXPECT_EQ(everything([&] { EXPECT_EQ(list.Get_Y(), 32); }), "");
}

} // namespace
