#include "list_fixture.h"

// The pointer on a list's items: Select, Read, Deselect.

namespace {

struct Tracked_List : List {
    std::string selected(int mode, int answer) {
        return everything([&] { EXPECT_EQ(list.Select(mode), answer); });
    }
};

// --- Select ---

TEST_F(Tracked_List, TheItemUnderThePointerAnswersAndAllInViewAreAsked) {
    vertical(10);
    shown();
    for (const int event : {0, 1, 2, 3, 16 + 2, 64 + 1}) {
        point_at(2);
        selected(event, 1);
        EXPECT_EQ(recorder::exit_tag("Lists::Select"), "(none)");
        list.Draw();
        point_at(1);
        recorder::clear();
        EXPECT_EQ(list.Select(event), 1);
        EXPECT_EQ(recorder::exit_tag("Lists::Select"), "1");
        const std::string lines = recorder::text(recorder::kReport);
        for (int i = 0; i < 10; i++)
            EXPECT_EQ(times(lines, ">>> in  Lib_Brask: Buttons::Select(nm0" + std::to_string(i) + ")"),
                      i < 5 ? 1u : 0u);
        EXPECT_EQ(item(1).select, 1);
        EXPECT_EQ(item(2).select, 2);
    }
}

TEST_F(Tracked_List, SelectReadsThePointerThenAsksSliderThenItems) {
    vertical(10);
    shown();
    point_at(0);
    list.Select(0);
    EXPECT_EQ(selected(0, 1), everything([&] {
                  trace_in("Lists::Select", "no name");
                  read_pointer("Lists::Select");
                  list.Slider.Select(0);
                  for (int i = 0; i < 5; i++)
                      item(i).Select(0);
                  trace_out("Lists::Select", "1");
              }));
}

TEST_F(Tracked_List, BetweenTheItemsNoneAnswers) {
    vertical(2);
    shown();
    recorder::pointer(101, 250); // on the frame
    selected(0, 0);
    recorder::pointer(220, 315); // the far corner of the region
    EXPECT_EQ(times(selected(0, 0), ">>> in  Lib_Brask: Buttons::Select"), 2u);
}

TEST_F(Tracked_List, AnItemInTheLastRowOfTheViewIsDrawnButNotTracked) {
    vertical(10);
    list.Slider.Cur_Value = 291;
    shown();
    ASSERT_EQ(item(0).Shown, 1);
    point_at(0);
    EXPECT_EQ(times(selected(0, 0), "Buttons::Select(nm00)"), 0u);
    point_at(1);
    selected(0, 1);
    EXPECT_EQ(list.Read(), 1);
}

TEST_F(Tracked_List, AnItemInTheLastColumnOfTheViewIsDrawnButNotTracked) {
    vertical(3);
    item(1).Dim_X = 111;
    shown();
    ASSERT_EQ(item(1).Shown, 1);
    point_at(1);
    selected(0, 0);
}

TEST_F(Tracked_List, BeforeTheFirstDrawNoItemIsTracked) {
    vertical(5);
    point_at(1);
    EXPECT_EQ(times(selected(0, 0), "Buttons::"), 0u);
    EXPECT_EQ(list.Read(), 1) << "which looks at no such thing";
}

TEST_F(Tracked_List, OutsideAllItemsAreLetGo) {
    vertical(10);
    shown();
    point_at(3);
    list.Select(0);
    item(7).select = 1;
    outside();
    const std::string lines = selected(0, 0);
    EXPECT_EQ(times(lines, ">>> in  Lib_Brask: Buttons::Select(nm03)"), 1u);
    EXPECT_EQ(times(lines, ">>> in  Lib_Brask: Buttons::Select"), 1u) << "the others were outside already";
    for (int i = 0; i < 10; i++)
        EXPECT_EQ(item(i).select, 2);
    EXPECT_EQ(times(selected(0, 0), "Buttons::"), 0u);
}

// Unlike inside, whether it was drawn is not asked.
TEST_F(Tracked_List, OutsideAnItemThatWasNeverDrawnIsAskedAsWell) {
    vertical(3);
    const std::string lines = selected(0, 0);
    EXPECT_EQ(times(lines, ">>> in  Lib_Brask: Buttons::Select"), 3u);
    EXPECT_EQ(item(0).Pos_X, x_of(0));
}

TEST_F(Tracked_List, KeyQueryAsksForTheWholeListUnlessItIsDisabled) {
    vertical(10);
    shown();
    for (const int mode : {KEY_QUERY, KEY_QUERY + 16}) {
        list.Flag = OUTIL_VERTICAL | OUTIL_INVISIBLE | OUTIL_EMPTY;
        recorder::pointer(220, 315);
        selected(mode, 1);
        list.Select(mode);
        EXPECT_EQ(recorder::exit_tag("Lists::Select"), "KEY_QUERY:1");
        recorder::pointer(221, 315);
        const std::string lines = selected(mode, 0);
        EXPECT_EQ(times(lines, "Buttons::") + times(lines, "Sliders::"), 0u);
        list.Select(mode);
        EXPECT_EQ(recorder::exit_tag("Lists::Select"), "KEY_QUERY:0");
        point_at(0);
        list.Flag = OUTIL_VERTICAL | OUTIL_DISABLE;
        EXPECT_EQ(selected(mode, 0), everything([] {
                      trace_in("Lists::Select", "no name");
                      trace_out("Lists::Select", "OUTIL_DISABLE");
                  }));
    }
}

TEST_F(Tracked_List, AListTooSmallTracksNothing) {
    vertical(3);
    shown();
    point_at(0);
    list.Dim_X = 0;
    for (const int mode : {0, 2, KEY_QUERY}) {
        EXPECT_EQ(selected(mode, 0), everything([] {
                      trace_in("Lists::Select", "no name");
                      trace_out("Lists::Select", "<0");
                  }));
    }
    EXPECT_EQ(list.Read(), -1);
    EXPECT_EQ(recorder::exit_tag("Lists::Read"), "<0");
    recorder::clear();
    list.Deselect();
    EXPECT_EQ(recorder::exit_tag("Lists::Deselect"), "< 0");
    list.Scroll(1);
}

TEST_F(Tracked_List, DisabledItemsDoNotAnswer) {
    vertical(3);
    item(1).Flag |= OUTIL_DISABLE;
    shown();
    point_at(1);
    selected(0, 0);
    EXPECT_EQ(list.Read(), -1);
    point_at(0);
    selected(0, 1);
}

TEST_F(Tracked_List, OnlyRowsThatCanMatchArePlaced) {
    vertical(50);
    shown();
    item(40).Pos_Y = -12345;
    point_at(2);
    list.Select(0);
    list.Read();
    EXPECT_EQ(item(40).Pos_Y, -12345);
}

// --- Read ---

TEST_F(Tracked_List, ReadNamesTheItem) {
    for (const DWORD flag : {OUTIL_VERTICAL, DWORD(0)})
        for (const int count : {3, 20}) {
            list.Flag = 0;
            flag ? vertical(count) : horizontal(count);
            shown();
            for (int i = 0; i < 3; i++) {
                point_at(i);
                EXPECT_EQ(everything([&] { EXPECT_EQ(list.Read(), i); }), everything([] {
                              trace_in("Lists::Read", "no name");
                              read_pointer("Lists::Read");
                              trace_out("Lists::Read", "");
                          }));
            }
            EXPECT_EQ(list.Cur_Value, 0);
        }
}

TEST_F(Tracked_List, BothEndsOfAnItemCountAndTheLowerIndexWins) {
    vertical(3); // 110 by 34 at 276, 241, 206
    recorder::pointer(105, 276);
    EXPECT_EQ(list.Read(), 0);
    recorder::pointer(215, 310);
    EXPECT_EQ(list.Read(), 0);
    recorder::pointer(216, 310);
    EXPECT_EQ(list.Read(), -1);
    recorder::pointer(105, 311);
    EXPECT_EQ(list.Read(), -1);
    recorder::pointer(104, 276);
    EXPECT_EQ(list.Read(), -1);
    recorder::pointer(150, 275); // the second one's top, just under the first one
    EXPECT_EQ(list.Read(), 1);
    list.Step_Y = -34; // now they touch
    recorder::pointer(150, 276);
    EXPECT_EQ(list.Read(), 0);
    horizontal(0);
}

TEST_F(Tracked_List, EveryPointReadsAsIfAllItemsWereAsked) {
    for (const bool is_vertical : {true, false})
        for (const int count : {2, 5, 9}) {
            list.Flag = 0;
            is_vertical ? vertical(count) : horizontal(count);
            for (const float by : {0.0f, 7.0f, 33.0f, -20.0f}) {
                (is_vertical ? list.First_Y : list.First_X) += static_cast<int>(by);
                for (int along = 95; along < 360; along++) {
                    const int x = is_vertical ? 150 : along, y = is_vertical ? along + 100 : 250;
                    int expected = -1;
                    for (int i = count - 1; i >= 0; i--)
                        if (x >= x_of(i) && x <= x_of(i) + item(i).Dim_X && y >= y_of(i) &&
                            y <= y_of(i) + item(i).Dim_Y)
                            expected = i;
                    if (x < list.Region.left || x >= list.Region.right || y < list.Region.top ||
                        y >= list.Region.bottom)
                        expected = -1;
                    recorder::pointer(x, y);
                    ASSERT_EQ(list.Read(), expected) << x << ' ' << y << ' ' << by;
                }
            }
            recorder::clear();
        }
}

TEST_F(Tracked_List, AScrolledItemThatIsNotDrawnIsReadButNotSelected) {
    vertical(10);
    list.Slider.Cur_Value = 300; // item 0 stands half above the view
    shown();
    ASSERT_EQ(item(0).Shown, 0);
    point_at(0);
    EXPECT_EQ(list.Read(), 0);
    EXPECT_EQ(list.Select(0), 0);
}

TEST_F(Tracked_List, ReadOutsideTheListAndOnADisabledOne) {
    vertical(3);
    recorder::pointer(99, 250);
    EXPECT_EQ(list.Read(), -1);
    EXPECT_EQ(recorder::exit_tag("Lists::Read"), "!PtInRect");
    point_at(0);
    list.Flag |= OUTIL_DISABLE;
    EXPECT_EQ(everything([&] { EXPECT_EQ(list.Read(), -1); }), everything([] {
                  trace_in("Lists::Read", "no name");
                  trace_out("Lists::Read", "OUTIL_DISABLE");
              }));
}

// --- Deselect ---

TEST_F(Tracked_List, DeselectEndsTheSliderThenTheItemsThatAreDrawn) {
    vertical(10);
    shown();
    point_at(2);
    list.Select(0);
    list.Slider.select = 1;
    item(7).select = 1;
    const std::string lines = everything([&] { list.Deselect(); });
    EXPECT_EQ(lines, everything([&] {
                  trace_in("Lists::Deselect", "no name");
                  list.Slider.select = 1;
                  list.Slider.Deselect();
                  item(2).select = 1;
                  for (int i = 0; i < 5; i++)
                      item(i).Deselect();
                  trace_out("Lists::Deselect", "");
              }));
    EXPECT_EQ(item(7).select, 1);
    EXPECT_EQ(item(2).select, 0);
}

TEST_F(Tracked_List, WaysOutOfDeselect) {
    Lists fresh;
    fresh.Dim_X = fresh.Dim_Y = 50;
    fresh.Deselect();
    EXPECT_EQ(recorder::exit_tag("Lists::Deselect"), "! this->test");
    vertical(3);
    shown();
    for (const DWORD flag : {OUTIL_EMPTY, OUTIL_INVISIBLE, GRAPH_OUTLINE}) {
        list.Flag = OUTIL_VERTICAL | flag;
        EXPECT_EQ(everything([&] { list.Deselect(); }), everything([] {
                      trace_in("Lists::Deselect", "no name");
                      trace_out("Lists::Deselect", "OUTIL_EMPTY|OUTIL_INVISIBLE|OUTIL_OUTLINE");
                  }));
    }
}

} // namespace
