#include <cstring>
#include <vector>

#include <brask/fonts.h>

#include "list_fixture.h"

// How a list is laid out: frame, items, slider.

namespace {

struct Rectangle {
    int x, y, width, height;
    bool operator==(const Rectangle& o) const {
        return x == o.x && y == o.y && width == o.width && height == o.height;
    }
};
std::ostream& operator<<(std::ostream& out, const Rectangle& r) {
    return out << r.width << " by " << r.height << " at (" << r.x << ", " << r.y << ")";
}
Rectangle of(const Tools& t) { return {t.Pos_X, t.Pos_Y, t.Dim_X, t.Dim_Y}; }
// Item 0 as the layout has it.
Rectangle first_of(const Lists& l) { return {l.First_X, l.First_Y, l.Item[0]->Dim_X, l.Item[0]->Dim_Y}; }

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
        EXPECT_EQ(recorder::reports(0x90000021),
                  (std::vector<std::string>{"Tools: WARNING ! ", "   you must provide a window",
                                            "   type: Lists::Init   name: no name"}));
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
        EXPECT_EQ(of(list.Box), of(list));
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
    EXPECT_EQ(list.Region.left, 100);
    EXPECT_EQ(list.Region.right, 221);
    EXPECT_EQ(list.Region.top, 200);
    EXPECT_EQ(list.Region.bottom, 316);
}

// --- The frame ---

TEST_F(List, TheFrameIsTheListsOwnRectangle) {
    list.Name_Set(L"100%% %ls"); // as the name reads, so does the frame's
    list.Border = 5;
    list.Font_Name = "f", list.Font_Weight = "bold", list.Font_Slant = "i", list.Font_Size = 14;
    list.Color = Colors(1, 2, 3);
    vertical(3);
    EXPECT_EQ(of(list.Box), of(list));
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

// --- Vertical ---

TEST_F(List, ItemsThatFitShareTheHeight) {
    struct Row {
        int count, height, first, step;
    };
    // The rest of the division stays free below the last item.
    for (const Row& row : {Row{1, 104, 206, -105}, Row{2, 51, 259, -52}, Row{3, 34, 276, -35},
                           Row{4, 25, 285, -26}, Row{5, 20, 290, -21}}) {
        vertical(row.count);
        EXPECT_EQ(first_of(list), (Rectangle{105, row.first, 110, row.height})) << row.count;
        EXPECT_EQ(list.Step_X, 0);
        EXPECT_EQ(list.Step_Y, row.step);
        EXPECT_EQ(list.Slider.Dim_X, 0);
        EXPECT_EQ(list.Get_Y(), 32);
    }
}

TEST_F(List, APixelTooFewForEachTurnsToScrolling) {
    lay(OUTIL_VERTICAL, 5, 120, 115);
    EXPECT_EQ(list.Slider.Dim_X, 0);
    EXPECT_EQ(item(0).Dim_X, 110);
    lay(OUTIL_VERTICAL, 5, 120, 114);
    EXPECT_EQ(first_of(list), (Rectangle{100 + 10 + 16, 289, 120 - 15 - 16, 20}));
    EXPECT_EQ(list.Step_Y, -21);
    EXPECT_EQ(of(list.Slider), (Rectangle{105, 205, 16, 104}));
    EXPECT_EQ(item(0).Dim_X, 110 - (16 + 3 + 2));
    EXPECT_EQ(list.Get_Y(), 32) << "a slider beside the items takes no height";
}

TEST_F(List, TheSliderOfAVerticalListHasTheTravelOfTheItems) {
    vertical(10);
    EXPECT_EQ(list.First_Y, 290);
    EXPECT_EQ(list.Slider.Val_Max, 290.0f);
    EXPECT_EQ(list.Slider.Val_Min, 290.0f + 21 * 10 - 105 + 5);
    EXPECT_EQ(list.Slider.Step, 21.0f);
    EXPECT_EQ(list.Slider.Cur_Value, 290.0f);
    EXPECT_EQ(list.Slider.Flag, list.Flag | OUTIL_REVERSE);
    EXPECT_EQ(list.Slider.Border, 1);
    EXPECT_EQ(list.Slider.Color_Get(), list.Color_Get());
    Sliders other;
    other.Flag = OUTIL_VERTICAL, other.Border = 1;
    other.Dim_X = 16, other.Dim_Y = 105;
    other.Larg_Adjust(105, -210);
    other.Init(recorder::window());
    EXPECT_EQ(list.Slider.Larg, other.Larg);
}

TEST_F(List, MetricsStandForZeroAndSignsDoNotCount) {
    list.Item_Dim = -30, list.Slider_Dim = -11, list.Border = -4;
    vertical(10);
    EXPECT_EQ(list.Step_Y, -31);
    EXPECT_EQ(of(list.Slider), (Rectangle{106, 206, 11, 103}));
    EXPECT_EQ(list.First_X, 100 + 12 + 11);
    list.Item_Dim = 0, list.Slider_Dim = 0, list.Border = 0;
    BUT_LIST = 33, CURSEUR = 12, BORDER = 6;
    list.Init(nullptr);
    EXPECT_EQ(list.Step_Y, -34);
    EXPECT_EQ(of(list.Slider), (Rectangle{108, 208, 12, 99}));
    EXPECT_EQ(item(0).Border, 0) << "as it stands";
}

TEST_F(List, ANameTakesARowAtTheTop) {
    list.Name_Set(L"name");
    vertical(3); // room 95, share 31
    EXPECT_EQ(first_of(list), (Rectangle{105, 200 - 2 + 115 - 30 - 3 - 10, 110, 30}));
    list.Flag = 0;
    horizontal(5);
    EXPECT_EQ(first_of(list), (Rectangle{105, 205, 47, 100 - 11 - 10}));
    EXPECT_EQ(list.Get_Y(), 32);
}

TEST_F(List, AnInnerFrameKeepsTheItemsOff) {
    list.Flag = BOX_INSET;
    vertical(3); // content 109 by 104 at (105, 205): room 94
    EXPECT_EQ(first_of(list), (Rectangle{110, 205 - 2 + 104 - 30 - 3, 99, 30}));
    list.Flag = BOX_INSET;
    list.Grow(20, 0);
    horizontal(20); // room 229
    EXPECT_EQ(of(list.Slider), (Rectangle{110, 210, 229, 16}));
}

// --- Horizontal ---

TEST_F(List, ItemsThatFitShareTheWidthInTheMiddle) {
    horizontal(5);
    EXPECT_EQ(first_of(list), (Rectangle{105, 205, 47, 89}));
    EXPECT_EQ(list.Step_X, 48);
    EXPECT_EQ(list.Step_Y, 0);
    EXPECT_EQ(list.Slider.Dim_X, 0);
    EXPECT_EQ(list.Get_Y(), 32);
    horizontal(4); // share 60
    EXPECT_EQ(first_of(list), (Rectangle{105, 205, 59, 89}));
    lay(0, 3, 257, 100); // room 247, share 82: 11 pixels are left over
    EXPECT_EQ(list.First_X, 105);
    EXPECT_EQ(item(0).Dim_X, 81);
}

TEST_F(List, APixelTooFewForTheWidestNameTurnsToScrolling) {
    lay(0, 5, 225, 100); // room 215, 43 for each
    EXPECT_EQ(list.Slider.Dim_X, 0);
    EXPECT_EQ(item(0).Dim_X, 42);
    lay(0, 5, 224, 100); // four columns of at least 48 in 214
    EXPECT_EQ(first_of(list), (Rectangle{105, 226, 52, 69}));
    EXPECT_EQ(list.Step_X, 53);
    EXPECT_EQ(of(list.Slider), (Rectangle{105, 205, 214, 16}));
    EXPECT_EQ(list.Get_Y(), 32 + 16);
}

TEST_F(List, TheSliderOfAHorizontalListRunsDownward) {
    horizontal(20);
    EXPECT_EQ(list.Step_X, 48);
    EXPECT_EQ(list.Slider.Val_Min, 105.0f);
    EXPECT_EQ(list.Slider.Val_Max, 105.0f - 48 * 20 - 5 + 240);
    EXPECT_EQ(list.Slider.Step, 48.0f);
    EXPECT_EQ(list.Slider.Cur_Value, 105.0f);
    EXPECT_EQ(list.Slider.Flag, list.Flag | OUTIL_REVERSE);
    Sliders other;
    other.Border = 1;
    other.Dim_X = 240, other.Dim_Y = 16;
    other.Larg_Adjust(240, 48 * 20);
    other.Init(recorder::window());
    EXPECT_EQ(list.Slider.Larg, other.Larg);
}

TEST_F(List, RoomForLessThanAColumnMakesOneOfIt) {
    lay(0, 9, 58, 100); // room 48, as much as a column needs
    EXPECT_EQ(item(0).Dim_X, 48);
    EXPECT_EQ(list.Step_X, 49);
    lay(0, 9, 59, 100);
    EXPECT_EQ(item(0).Dim_X, 48) << "room 49: one whole column less the gap";
}

TEST_F(List, TheWidestNameDecides) {
    const auto width_with = [&](const std::vector<const wchar_t*>& names) {
        Lists l;
        l.Font_Size = 9;
        l.Dim_X = 1000, l.Dim_Y = 100;
        l.Grow(100, 0);
        for (std::size_t i = 0; i < names.size(); i++)
            if (names[i]) l.Item[i]->Name_Set(L"%ls", names[i]);
        l.Init(recorder::window());
        return l.Item[0]->Dim_X;
    };
    const auto column = [](int widest) { return 990 / (990 / (widest + 16)) - 1; };
    EXPECT_EQ(width_with({}), column(12)) << "two gaps without a name";
    EXPECT_EQ(width_with({L"a"}), column(8)) << "a first name may be narrower than that";
    EXPECT_EQ(width_with({nullptr, L"a"}), column(12));
    EXPECT_EQ(width_with({nullptr, L"abc"}), column(24));
    EXPECT_EQ(width_with({L"abc", nullptr, L"abcdefg", L"ab"}), column(56));
}

TEST_F(List, OnlySideBySideTheNamesAreMeasured) {
    const auto measures = [&] {
        recorder::clear();
        list.Init(nullptr);
        return recorder::text(recorder::kMeasure);
    };
    vertical(10);
    EXPECT_EQ(times(measures(), "Zeb_Font_Size"), 1u);
    list.Flag = 0;
    EXPECT_EQ(times(measures(), "Zeb_Font_Size"), 11u);
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
        EXPECT_EQ(item(i).Clip_X, 7);
        EXPECT_EQ(item(i).Clip_Y, 200);
        EXPECT_EQ(item(i).Clip_Dim_X, 500);
        EXPECT_EQ(item(i).Clip_Dim_Y, 115);
        EXPECT_EQ(item(i).Cur_Value, i == 1);
        EXPECT_EQ(item(i).Wnd, recorder::window());
        EXPECT_EQ(of(item(i)), (Rectangle{0, 0, 112, 34})) << "Init places no item";
    }
    EXPECT_EQ(of(list.Slider), (Rectangle{0, 0, 0, 0}));
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
