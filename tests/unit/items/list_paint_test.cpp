#include "list_fixture.h"

// What a list paints: its ground, the items in view, and the two that Adjust knows of.

namespace {

struct Painted_List : List {
    // The ground by its rule, for the list's own bevel and view.
    void ground(int left, int bottom, int right, int top, int b, int source_x) {
        Zeb_setup(recorder::window(), "Lists::Update");
        if (list.Clip_Dim_X) {
            const int x = std::max(list.Clip_X, left), y = std::max(list.Clip_Y, bottom);
            Zeb_set_clip(x, y, std::min(list.Clip_X + list.Clip_Dim_X, right) - x,
                         std::min(list.Clip_Y + list.Clip_Dim_Y, top) - y);
        } else
            Zeb_set_clip(left, bottom - 1, right - left + 1, top - bottom + 1);
        draw_image(reinterpret_cast<const char*>(list.Box.Image_Normal), list.Pos_X + b, list.Pos_Y + b,
                   source_x, b, list.Dim_X - 2 * b + 1, list.Dim_Y - 2 * b + 1, list.Dim_X, list.Dim_Y, 0);
        Zeb_reset_clip();
        Zeb_release();
    }
    void items(int first, int last) {
        for (int i = first; i <= last; i++) {
            item(i).Init(recorder::window());
            item(i).Draw();
        }
    }
};

TEST_F(Painted_List, DrawGoesFrameSliderGroundItems) {
    vertical(10);
    list.Draw(); // the second one finds fonts and faces
    EXPECT_EQ(everything([&] { list.Draw(); }), everything([&] {
                  trace_in("Lists::Draw", "no name");
                  list.Box.Draw();
                  list.Slider.Draw();
                  trace_in("Lists::Update", "no name");
                  ground(126, 205, 216, 311, 3, 0);
                  items(0, 4);
                  trace_out("Lists::Update", "GRAPH_OUTLINE");
                  trace_out("Lists::Draw", "");
              }));
    EXPECT_EQ(drawn(), 5);
}

TEST_F(Painted_List, WithoutASliderTheItemsAreInTheWholeFrame) {
    horizontal(5);
    list.Draw();
    EXPECT_EQ(everything([&] { list.Draw(); }), everything([&] {
                  trace_in("Lists::Draw", "no name");
                  list.Box.Draw();
                  trace_in("Lists::Update", "no name");
                  ground(105, 205, 346, 296, 3, 0);
                  items(0, 4);
                  trace_out("Lists::Update", "GRAPH_OUTLINE");
                  trace_out("Lists::Draw", "");
              }));
}

TEST_F(Painted_List, InAHorizontalListTheSliderIsUnderTheView) {
    horizontal(20);
    shown();
    EXPECT_NE(painted([&] { list.Draw(); }).find(painted([&] { ground(105, 226, 346, 296, 3, 0); })),
              std::string::npos);
}

TEST_F(Painted_List, TheGroundsSourceColumnIsTheBevelAsItStands) {
    for (const int border : {0, 5, -4}) {
        const int b = border ? std::abs(border) : 3;
        list.Border = border;
        vertical(2);
        shown();
        EXPECT_NE(painted([&] {
                      list.Draw();
                  }).find(painted([&] { ground(102 + b, 202 + b, 219 - b, 314 - b, b, border); })),
                  std::string::npos)
            << border;
    }
}

TEST_F(Painted_List, AClipCutsTheGround) {
    struct Row {
        int x, y, dx, dy;
    };
    for (const Row& row : {Row{0, 0, 1000, 1000}, Row{110, 210, 20, 30}, Row{300, 400, 20, 30}}) {
        list.Clip_X = row.x, list.Clip_Y = row.y, list.Clip_Dim_X = row.dx, list.Clip_Dim_Y = row.dy;
        vertical(2);
        shown();
        EXPECT_NE(painted([&] { list.Draw(); }).find(painted([&] { ground(105, 205, 216, 311, 3, 0); })),
                  std::string::npos)
            << row.x;
    }
}

TEST_F(Painted_List, TheNameIsMeasuredForItsRow) {
    list.Name_Set(L"n");
    vertical(2);
    shown();
    const std::string lines = recorded(recorder::kDraw | recorder::kMeasure, [&] { list.Draw(); });
    const std::string expected = recorded(recorder::kDraw | recorder::kMeasure, [&] {
        Zeb_setup(recorder::window(), "Lists::Update");
        Zeb_Font_Size_Height(desk::fonts().empty() ? nullptr : desk::fonts().back().handle);
        Zeb_release();
        ground(105, 205, 216, 301, 3, 0);
    });
    EXPECT_NE(lines.find(expected.substr(expected.find("Zeb_release"))), std::string::npos);
    EXPECT_NE(lines.find("Zeb_setup(WND, \"Lists::Update\")\nZeb_Font_Size_Height("), std::string::npos);
}

TEST_F(Painted_List, WithoutAFaceTheGroundIsFilled) {
    list.Flag = OUTIL_EMPTY;
    vertical(2);
    const auto filled = [&] { list.Fill(0, 105, 216, 205, 311); };
    EXPECT_NE(everything([&] { list.Draw(); }).find(everything(filled)), std::string::npos);
}

// The frame's face is as large as the list was at Init.
TEST_F(Painted_List, AfterAChangeOfSizeWithoutInitTheGroundIsFlat) {
    vertical(2);
    list.Dim_Y = 500;
    const std::string lines = everything([&] { list.Draw(); });
    EXPECT_NE(lines.find(everything([&] { list.Fill(0, 105, 216, 205, 696); })), std::string::npos);
    EXPECT_EQ(lines.find("draw_image(GROUND"), std::string::npos);
}

TEST_F(Painted_List, OnlyWholeItemsAreDrawn) {
    vertical(10);
    struct Row {
        float value;
        int first, last;
    };
    for (const Row& row : {Row{290, 0, 4}, Row{291, 0, 4}, Row{292, 1, 4}, Row{289, 0, 4}, Row{288, 0, 3},
                           Row{290.9f, 0, 4}, Row{311, 1, 5}, Row{400, 6, 9}, Row{-4000, 10, 9}}) {
        list.Slider.Cur_Value = row.value;
        const float held = row.value;
        list.Slider.Val_Min = 5000, list.Slider.Val_Max = -5000; // so that nothing corrects the value
        list.Slider.Init(nullptr);
        list.Slider.Cur_Value = held;
        list.Draw();
        EXPECT_EQ(list.First_Y, static_cast<int>(row.value));
        for (int i = 0; i < 10; i++) {
            EXPECT_EQ(item(i).Shown, i >= row.first && i <= row.last) << row.value << ' ' << i;
            EXPECT_EQ(item(i).Pos_X, x_of(i));
            EXPECT_EQ(item(i).Pos_Y, y_of(i));
        }
    }
}

TEST_F(Painted_List, AcrossTheScrollingAnItemMustFitAsWell) {
    vertical(3);
    item(1).Dim_X = 112; // one beyond the edge of the view
    list.Draw();
    EXPECT_EQ(item(0).Shown, 1);
    EXPECT_EQ(item(1).Shown, 0);
    item(1).Dim_X = 111;
    list.Draw();
    EXPECT_EQ(item(1).Shown, 1);
}

TEST_F(Painted_List, ItemsTheirRegionFollowsThem) {
    vertical(10);
    list.Draw();
    EXPECT_EQ(item(0).Region.left, 126);
    EXPECT_EQ(item(0).Region.top, 290);
    EXPECT_EQ(item(0).Region.bottom, 311);
    EXPECT_EQ(item(9).Region.top, 0) << "one out of view is left alone";
}

TEST_F(Painted_List, AnOutlineListDrawsNoItemAndForgetsNone) {
    vertical(10);
    shown();
    list.Flag |= GRAPH_OUTLINE;
    list.Init(nullptr);
    list.Slider.Cur_Value = 311;
    const std::string lines = everything([&] { list.Draw(); });
    EXPECT_EQ(times(lines, "Buttons::"), 0u);
    EXPECT_EQ(times(lines, "Boxs::Draw"), 2u);
    EXPECT_EQ(times(lines, "Sliders::Draw"), 2u);
    EXPECT_EQ(list.First_Y, 311);
    for (int i = 0; i < 10; i++)
        EXPECT_EQ(item(i).Shown, i < 5);
}

TEST_F(Painted_List, DrawMarksTheCurrentItem) {
    vertical(5);
    for (const int value : {2, 0, 4, -1, 5, 10, 1}) {
        list.Cur_Value = value;
        list.Draw();
        for (int i = 0; i < 5; i++)
            EXPECT_EQ(item(i).Cur_Value, i == value);
        EXPECT_EQ(list.Cur_Value, value) << "left alone, whatever it is";
        EXPECT_EQ(list.Old_Value, value);
    }
}

TEST_F(Painted_List, WaysOutOfDraw) {
    vertical(3);
    list.Cur_Value = 1;
    list.Flag |= OUTIL_INVISIBLE;
    EXPECT_EQ(everything([&] { list.Draw(); }), everything([] {
                  trace_in("Lists::Draw", "no name");
                  trace_out("Lists::Draw", "OUTIL_INVISIBLE");
              }));
    list.Flag = OUTIL_VERTICAL;
    list.Dim_X = 0;
    list.Draw();
    EXPECT_EQ(recorder::exit_tag("Lists::Draw"), "<0");
    EXPECT_EQ(list.Old_Value, 0);
    list.Dim_X = 120;
    list.NbItem = 0;
    EXPECT_EQ(times(everything([&] { list.Draw(); }), "Buttons::"), 0u);
}

// --- Adjust ---

TEST_F(Painted_List, AdjustRepaintsTheOldItemThenTheNewOne) {
    vertical(5);
    shown();
    list.Cur_Value = 3;
    list.Adjust();
    list.Cur_Value = 1;
    const std::string lines = everything([&] { list.Adjust(); });
    EXPECT_EQ(lines, everything([&] {
                  trace_in("Lists::Adjust", "no name");
                  for (const int i : {3, 1}) {
                      item(i).Old_Value = 9; // whatever it was, it is another one
                      item(i).Adjust();
                  }
                  trace_out("Lists::Adjust", "");
              }));
    EXPECT_EQ(item(3).Cur_Value, 0);
    EXPECT_EQ(item(1).Cur_Value, 1);
    EXPECT_EQ(list.Old_Value, 1);
}

TEST_F(Painted_List, WaysOutOfAdjust) {
    vertical(5);
    shown();
    const auto way = [&] {
        const std::string lines = everything([&] { list.Adjust(); });
        EXPECT_EQ(times(lines, "\n"), 2u) << lines;
        const std::size_t at = lines.find("<<< out Lib_Brask: Lists::Adjust(") + 33;
        return lines.substr(at, lines.rfind(')') - at);
    };
    EXPECT_EQ(way(), "Cur_Value == Old_Value");
    list.Flag |= OUTIL_DISABLE;
    EXPECT_EQ(way(), "Cur_Value == Old_Value");
    list.Cur_Value = 3;
    EXPECT_EQ(way(), "OUTIL_DISABLE");
    EXPECT_EQ(item(3).Cur_Value, 0);
    EXPECT_EQ(list.Old_Value, 0);
    list.Flag = OUTIL_VERTICAL | OUTIL_INVISIBLE;
    EXPECT_EQ(way(), "OUTIL_INVISIBLE");
    EXPECT_EQ(item(0).Cur_Value, 0);
    EXPECT_EQ(item(3).Cur_Value, 1);
    EXPECT_EQ(list.Old_Value, 3);
    list.Dim_Y = 0;
    list.Cur_Value = 1;
    EXPECT_EQ(way(), "<0");
    EXPECT_EQ(list.Old_Value, 3);
}

TEST_F(Painted_List, AdjustBringsAValueBeyondTheLastItemDown) {
    vertical(5);
    shown();
    list.Cur_Value = 10;
    list.Adjust();
    EXPECT_EQ(list.Cur_Value, 4);
    EXPECT_EQ(list.Old_Value, 4);
    EXPECT_EQ(item(4).Cur_Value, 1);
    list.Cur_Value = 5; // and from there to where it was
    list.Adjust();
    EXPECT_EQ(list.Cur_Value, 4);
    EXPECT_EQ(item(4).Cur_Value, 1);
    list.Cur_Value = -7;
    const std::string lines = everything([&] { list.Adjust(); });
    EXPECT_EQ(list.Cur_Value, -7) << "a negative one stays";
    EXPECT_EQ(item(4).Cur_Value, 0);
    EXPECT_EQ(times(lines, ">>> in  Lib_Brask: Buttons::Adjust"), 1u);
    list.Cur_Value = 2;
    EXPECT_EQ(times(everything([&] { list.Adjust(); }), ">>> in  Lib_Brask: Buttons::Adjust"), 1u);
}

TEST_F(Painted_List, AdjustPaintsNoItemOutOfViewAndDoesNotScroll) {
    vertical(10);
    shown();
    list.Cur_Value = 9;
    const std::string lines = everything([&] { list.Adjust(); });
    EXPECT_EQ(times(lines, ">>> in  Lib_Brask: Buttons::Adjust(nm00)"), 1u);
    EXPECT_EQ(times(lines, "Buttons::Adjust(nm09)"), 0u);
    EXPECT_EQ(item(9).Cur_Value, 1);
    EXPECT_EQ(list.First_Y, 290);
}

TEST_F(Painted_List, BeforeTheFirstDrawAdjustPaintsNothing) {
    vertical(5);
    list.Cur_Value = 2;
    EXPECT_EQ(times(everything([&] { list.Adjust(); }), "Buttons::"), 0u);
    EXPECT_EQ(item(2).Cur_Value, 1);
}

TEST_F(Painted_List, AdjustPlacesWhatItPaints) {
    vertical(5);
    shown();
    item(1).Pos_X = item(1).Pos_Y = -999;
    list.Cur_Value = 1;
    list.Adjust();
    EXPECT_EQ(item(1).Pos_X, x_of(1));
    EXPECT_EQ(item(1).Pos_Y, y_of(1));
}

} // namespace
