#include <vector>

#include "list_fixture.h"

// Where a list's items and slider are laid, upright and lying.

namespace {

Rect first_of(const Lists& l) { return {l.First_X, l.First_Y, l.Item[0]->Dim_X, l.Item[0]->Dim_Y}; }

// --- Vertical ---

TEST_F(List, ItemsThatFitShareTheHeight) {
    struct Row {
        int count, height, first, step;
    };
    // The rest of the division stays free below the last item.
    for (const Row& row : {Row{1, 104, 206, -105}, Row{2, 51, 259, -52}, Row{3, 34, 276, -35},
                           Row{4, 25, 285, -26}, Row{5, 20, 290, -21}}) {
        vertical(row.count);
        EXPECT_EQ(first_of(list), (Rect{105, row.first, 110, row.height})) << row.count;
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
    EXPECT_EQ(first_of(list), (Rect{100 + 10 + 16, 289, 120 - 15 - 16, 20}));
    EXPECT_EQ(list.Step_Y, -21);
    EXPECT_EQ(rect_of(list.Slider), (Rect{105, 205, 16, 104}));
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
    EXPECT_EQ(rect_of(list.Slider), (Rect{106, 206, 11, 103}));
    EXPECT_EQ(list.First_X, 100 + 12 + 11);
    list.Item_Dim = 0, list.Slider_Dim = 0, list.Border = 0;
    BUT_LIST = 33, CURSEUR = 12, BORDER = 6;
    list.Init(nullptr);
    EXPECT_EQ(list.Step_Y, -34);
    EXPECT_EQ(rect_of(list.Slider), (Rect{108, 208, 12, 99}));
    EXPECT_EQ(item(0).Border, 0) << "as it stands";
}

TEST_F(List, ANameTakesARowAtTheTop) {
    list.Name_Set(L"name");
    vertical(3); // room 95, share 31
    EXPECT_EQ(first_of(list), (Rect{105, 200 - 2 + 115 - 30 - 3 - 10, 110, 30}));
    list.Flag = 0;
    horizontal(5);
    EXPECT_EQ(first_of(list), (Rect{105, 205, 47, 100 - 11 - 10}));
    EXPECT_EQ(list.Get_Y(), 32);
}

TEST_F(List, AnInnerFrameKeepsTheItemsOff) {
    list.Flag = BOX_INSET;
    vertical(3); // content 109 by 104 at (105, 205): room 94
    EXPECT_EQ(first_of(list), (Rect{110, 205 - 2 + 104 - 30 - 3, 99, 30}));
    list.Flag = BOX_INSET;
    list.Grow(20, 0);
    horizontal(20); // room 229
    EXPECT_EQ(rect_of(list.Slider), (Rect{110, 210, 229, 16}));
}

// --- Horizontal ---

TEST_F(List, ItemsThatFitShareTheWidthInTheMiddle) {
    horizontal(5);
    EXPECT_EQ(first_of(list), (Rect{105, 205, 47, 89}));
    EXPECT_EQ(list.Step_X, 48);
    EXPECT_EQ(list.Step_Y, 0);
    EXPECT_EQ(list.Slider.Dim_X, 0);
    EXPECT_EQ(list.Get_Y(), 32);
    horizontal(4); // share 60
    EXPECT_EQ(first_of(list), (Rect{105, 205, 59, 89}));
    lay(0, 3, 257, 100); // room 247, share 82: 11 pixels are left over
    EXPECT_EQ(list.First_X, 105);
    EXPECT_EQ(item(0).Dim_X, 81);
}

TEST_F(List, APixelTooFewForTheWidestNameTurnsToScrolling) {
    lay(0, 5, 225, 100); // room 215, 43 for each
    EXPECT_EQ(list.Slider.Dim_X, 0);
    EXPECT_EQ(item(0).Dim_X, 42);
    lay(0, 5, 224, 100); // four columns of at least 48 in 214
    EXPECT_EQ(first_of(list), (Rect{105, 226, 52, 69}));
    EXPECT_EQ(list.Step_X, 53);
    EXPECT_EQ(rect_of(list.Slider), (Rect{105, 205, 214, 16}));
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

} // namespace
