#include <utility>

#include "tab_fixture.h"

// One tab under the pointer: what it repaints, and what it answers.

namespace {

const DWORD kHiding[] = {OUTIL_EMPTY, OUTIL_INVISIBLE, GRAPH_OUTLINE, OUTIL_INVISIBLE | GRAPH_OUTLINE};

// --- Select ---

TEST_F(Tab, SelectFollowsThePointerWhateverTheEvent) {
    struct {
        bool in;
        int before, look, after;
    } const rows[] = {{true, 0, 1, 1},  {true, 2, 1, 1},  {true, 1, -1, 1},
                      {false, 0, 0, 2}, {false, 1, 0, 2}, {false, 2, -1, 2}};
    for (const int mode : {0, 1, 2, 3, KEY_QUERY, 20, -1})
        for (const int value : {0, 1})
            for (const auto& row : rows) {
                tab.Cur_Value = value;
                tab.select = row.before;
                row.in ? inside() : outside();
                EXPECT_EQ(everything([&] { EXPECT_EQ(tab.Select(mode), row.in); }),
                          everything([&] { select(row.look); }));
                EXPECT_EQ(tab.select, row.after);
            }
}

TEST_F(Tab, TheFarEdgesAreInside) {
    struct {
        int x, y, answer;
    } const spots[] = {{10, 20, 1}, {90, 44, 1}, {91, 44, 0}, {90, 45, 0}, {9, 20, 0}, {10, 19, 0}};
    for (const auto& spot : spots) {
        recorder::pointer(spot.x, spot.y); // by the rectangle, not the trapezoid
        EXPECT_EQ(tab.Select(0), spot.answer) << spot.x << ", " << spot.y;
    }
}

TEST_F(Tab, HiddenItAnswersButPaintsNothing) {
    for (const DWORD flag : kHiding)
        for (const bool in : {true, false}) {
            tab.Flag = flag;
            tab.select = 0;
            in ? inside() : outside();
            EXPECT_EQ(everything([&] { EXPECT_EQ(tab.Select(2), in); }),
                      everything([&] { read_pointer("TabItems::Select"); }));
            EXPECT_EQ(tab.select, 0);
        }
}

TEST_F(Tab, DisabledRepaintsItsNormalLookEachTime) {
    for (const int mode : {0, 2, KEY_QUERY}) {
        tab.Flag = OUTIL_DISABLE;
        tab.select = 1;
        inside();
        EXPECT_EQ(everything([&] { EXPECT_EQ(tab.Select(mode), 0); }), everything([&] { look(false); }));
        EXPECT_EQ(tab.select, 1);
        for (const DWORD flag : kHiding) {
            tab.Flag = OUTIL_DISABLE | flag;
            EXPECT_EQ(everything([&] { EXPECT_EQ(tab.Select(mode), 0); }), "");
        }
    }
}

// --- Deselect and Read ---

TEST_F(Tab, DeselectRepaintsWhetherOrNotItWasTracked) {
    for (const int before : {0, 1, 2}) {
        tab.select = before;
        tab.Cur_Value = before == 1;
        EXPECT_EQ(everything([&] { tab.Deselect(); }), everything([&] { look(false); }));
        EXPECT_EQ(tab.select, before);
    }
    for (const DWORD flag : kHiding) {
        tab.Flag = flag;
        EXPECT_EQ(everything([&] { tab.Deselect(); }), "");
    }
    TabItems fresh;
    fresh.Dim_X = fresh.Dim_Y = 20;
    EXPECT_EQ(everything([&] { fresh.Deselect(); }), "");
    EXPECT_EQ(fresh.test, 0);
}

TEST_F(Tab, ReadGivesTheValueWhateverElse) {
    tab.Cur_Value = 42;
    tab.Flag = OUTIL_DISABLE | OUTIL_INVISIBLE;
    tab.Dim_X = 0;
    EXPECT_EQ(everything([&] { EXPECT_EQ(tab.Read(), 42); }), "");
}

TEST_F(Tab, NoSizeIsNotThere) {
    inside();
    tab.Cur_Value = 1;
    for (const auto& size : {std::pair(0, 24), std::pair(80, 0), std::pair(-1, -1)}) {
        tab.Dim_X = size.first, tab.Dim_Y = size.second;
        EXPECT_EQ(everything([&] {
                      tab.Draw();
                      tab.Adjust();
                      tab.Deselect();
                      EXPECT_EQ(tab.Select(0), 0);
                  }),
                  "");
    }
    EXPECT_EQ(tab.Old_Value, 0u);
}

TEST_F(Tab, FirstUseWarnsOnceWithTheOperationsName) {
    expect_first_use<TabItems>({{"TabItems::Adjust", [](TabItems& t) { t.Adjust(); }},
                                {"TabItems::Draw", [](TabItems& t) { t.Draw(); }},
                                {"TabItems::Read", [](TabItems& t) { t.Read(); }},
                                {"TabItems::Select", [](TabItems& t) { t.Select(0); }}});
    TabItems hidden;
    hidden.Flag = OUTIL_INVISIBLE;
    recorder::clear();
    hidden.Draw(); // this comes before the check
    EXPECT_EQ(recorder::text(), "");
}

} // namespace
