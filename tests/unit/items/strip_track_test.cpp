#include <climits>
#include <string>

#include "strip_fixture.h"

// A strip of tabs under the pointer: which of them light up, and which one is read.

namespace {

// --- Select ---

TEST_F(Strip, TabsUnderThePointerLightUp) { // 34..122, 116..204, 198..286
    struct {
        int x, answer;
        List states;
    } const rows[] = {
        {20, 0, {2, 2, 2}},  {34, 1, {1, 2, 2}},  {100, 1, {1, 2, 2}}, {116, 1, {1, 1, 2}},
        {122, 1, {1, 1, 2}}, {123, 1, {2, 1, 2}}, {200, 1, {2, 1, 1}}, {286, 1, {2, 2, 1}},
        {287, 0, {2, 2, 2}}, {310, 0, {2, 2, 2}},
    };
    for (const int mode : {0, 1, 2, KEY_QUERY, 2 + 16})
        for (const auto& row : rows) {
            for (int i = 0; i < 3; ++i)
                item(i).select = 2;
            recorder::pointer(row.x, 110);
            EXPECT_EQ(tabs.Select(mode), row.answer) << row.x;
            for (int i = 0; i < 3; ++i)
                EXPECT_EQ(item(i).select, row.states[i]) << row.x << " tab " << i;
        }
}

TEST_F(Strip, SelectAsksEachTabInOrder) {
    recorder::pointer(120, 110);
    for (const int mode : {1, 17, KEY_QUERY}) {
        for (int i = 0; i < 3; ++i)
            item(i).select = 0;
        const std::string lines = everything([&] { tabs.Select(mode); });
        for (int i = 0; i < 3; ++i)
            item(i).select = 0;
        EXPECT_EQ(lines, everything([&] {
                      read_pointer("Tabs::Select");
                      for (int i = 0; i < 3; ++i)
                          item(i).Select(mode & 15);
                  }));
    }
}

TEST_F(Strip, LeavingTellsOnlyTheTabsThatDoNotKnow) {
    outside();
    item(0).select = 2, item(1).select = 1, item(2).select = 0;
    const std::string lines = everything([&] { EXPECT_EQ(tabs.Select(0), 0); });
    item(1).select = 1, item(2).select = 0;
    EXPECT_EQ(lines, everything([&] {
                  read_pointer("Tabs::Select");
                  item(1).Select(0);
                  item(2).Select(0);
              }));
    EXPECT_EQ(everything([&] { tabs.Select(0); }), everything([&] { read_pointer("Tabs::Select"); }));
}

// A tab whose rectangle reaches beyond the strip does not count there.
TEST_F(Strip, OutsideOfTheStripTheAnswerIsZero) {
    item(0).Region.top = -1000;
    item(0).select = 0;
    recorder::pointer(60, 50);
    EXPECT_EQ(tabs.Select(0), 0);
    EXPECT_EQ(item(0).select, 1);
}

TEST_F(Strip, DisabledDoesNotEvenReadThePointer) {
    tabs.Flag = OUTIL_DISABLE;
    recorder::pointer(60, 110);
    for (const int mode : {0, 2, KEY_QUERY})
        EXPECT_EQ(everything([&] { EXPECT_EQ(tabs.Select(mode), 0); }), "");
    EXPECT_EQ(everything([&] { EXPECT_EQ(tabs.Read(), -1); }), "");
}

TEST_F(Strip, DeselectKeepsTheOrderOfPainting) {
    tabs.Cur_Value = 1;
    tabs.Draw();
    EXPECT_EQ(everything([&] { tabs.Deselect(); }), everything([&] {
                  for (const int i : {2, 0, 1})
                      item(i).Deselect();
              }));
    for (const DWORD flag : {OUTIL_INVISIBLE, OUTIL_EMPTY, GRAPH_OUTLINE}) {
        tabs.Flag = flag;
        EXPECT_EQ(everything([&] { tabs.Deselect(); }), "");
    }
    tabs.Flag = 0;
    tabs.test = 0;
    EXPECT_EQ(everything([&] { tabs.Deselect(); }), "");
    tabs.test = 1;
    for (const int wild : {-1, 3}) {
        tabs.Cur_Value = wild;
        EXPECT_EQ(everything([&] { tabs.Deselect(); }), everything([&] {
                      for (const int i : {2, 1, 0})
                          item(i).Deselect();
                  }));
    }
}

// --- Read ---

TEST_F(Strip, ReadNamesTheFirstTabUnderThePointer) {
    struct {
        int x, y, index;
    } const rows[] = {{33, 110, -1}, {34, 100, 0},   {122, 124, 0}, {123, 110, 1},  {116, 110, 0},
                      {204, 110, 1}, {205, 110, 2},  {286, 110, 2}, {287, 110, -1}, {60, 99, -1},
                      {60, 125, -1}, {311, 110, -1}, {10, 110, -1}};
    for (const int on_top : {0, 1, 2, -1}) {
        tabs.Cur_Value = on_top; // does not matter
        for (const auto& row : rows) {
            recorder::pointer(row.x, row.y);
            EXPECT_EQ(everything([&] { EXPECT_EQ(tabs.Read(), row.index) << row.x; }),
                      everything([&] { read_pointer("Tabs::Read"); }));
        }
    }
    item(0).Flag |= OUTIL_DISABLE;
    recorder::pointer(120, 110);
    EXPECT_EQ(tabs.Read(), 1);
    recorder::pointer(60, 110);
    EXPECT_EQ(tabs.Read(), -1);
}

// --- Sizes below 1, and the first use ---

TEST_F(Strip, NoSizeIsNotThere) {
    recorder::pointer(60, 110);
    tabs.Cur_Value = 1;
    for (const auto& size : {std::pair(0, 24), std::pair(300, 0), std::pair(-1, INT_MIN)}) {
        tabs.Dim_X = size.first, tabs.Dim_Y = size.second;
        EXPECT_EQ(everything([&] {
                      tabs.Draw();
                      tabs.Adjust();
                      tabs.Deselect();
                      EXPECT_EQ(tabs.Select(0), 0);
                      EXPECT_EQ(tabs.Read(), -1);
                  }),
                  "");
    }
    EXPECT_EQ(tabs.Old_Value, 0);
}

TEST_F(Strip, FirstUseWarnsOnceWithTheOperationsName) {
    expect_first_use<Tabs>({{"Tabs::Adjust", [](Tabs& t) { t.Adjust(); }},
                            {"Tabs::Draw", [](Tabs& t) { t.Draw(); }},
                            {"Tabs::Read", [](Tabs& t) { t.Read(); }},
                            {"Tabs::Select", [](Tabs& t) { t.Select(0); }}});
}

} // namespace
