#include <climits>
#include <string>

#include "strip_fixture.h"
#include "support/memory.h"

// A strip of tabs: its life, its tabs, and where Init lays them.

namespace {

TEST_F(Strip, BeginsAllZeroWithoutATraceOfItsOwn) {
    EXPECT_EQ(made_all_zero<Tabs>(), everything([] { life("Tools::Tools"), begins("Boxs"); }));
    Tabs* const gone = new Tabs; // the box goes before the base
    EXPECT_EQ(everything([&] { delete gone; }), everything([] { ends("Boxs"), life("Tools::~Tools"); }));
}

TEST_F(Strip, CopiesShareTheItems) {
    tabs.Reserved = 9, tabs.Page_Dim = 7;
    Tabs assigned;
    recorder::clear();
    Tabs copy(tabs);
    assigned = tabs;
    EXPECT_EQ(recorder::text(), "");
    for (Tabs* other : {&copy, &assigned}) {
        EXPECT_EQ(other->Item, tabs.Item);
        EXPECT_EQ(other->NbItem, 3);
        EXPECT_EQ(other->Reserved, 9);
        EXPECT_EQ(other->Page_Dim, 7);
        EXPECT_EQ(other->Tab_Width, tabs.Tab_Width);
        other->Item = nullptr; // one owner is enough
    }
}

// --- Grow ---

TEST_F(Strip, GrowKeepsWhatItCan) {
    TabItems* const first = tabs.Item[0];
    tabs.Clip_Dim_X = 5;
    ASSERT_EQ(tabs.Grow(5, 0x1234), 1);
    EXPECT_EQ(tabs.Item[0], first);
    EXPECT_EQ(tabs.Item[5], nullptr);
    EXPECT_EQ(tabs.NbItem, 3); // only Init counts
    for (const int i : {3, 4}) {
        EXPECT_EQ(item(i).Flag, 0x1234u);
        EXPECT_EQ(item(i).Clip_Dim_X, 0);
        EXPECT_EQ(item(i).W_Name, nullptr);
    }
    ASSERT_EQ(tabs.Grow(2, 0), 1);
    EXPECT_EQ(tabs.Item[0], first);
    EXPECT_EQ(tabs.Item[2], nullptr);
    EXPECT_EQ(tabs.NbItem, 3);
    TabItems** const array = tabs.Item;
    EXPECT_EQ(tabs.Grow(2, 0), 1);
    EXPECT_EQ(tabs.Item, array);
    for (const int none : {0, -1, INT_MIN}) {
        EXPECT_EQ(tabs.Grow(none, 0), 1);
        EXPECT_EQ(tabs.Item[0], nullptr);
    }
}

TEST_F(Strip, GrowTakesTheFlagAsItStands) {
    Tabs fresh;
    fresh.Flag = OUTIL_DISABLE | OUTIL_EMPTY;
    ASSERT_EQ(fresh.Grow(1, 0), 1);
    EXPECT_EQ(fresh.Item[0]->Flag, 0u); // no default
    EXPECT_EQ(everything([&] { fresh.Grow(1, 7); }), "");
    EXPECT_EQ(fresh.Item[0]->Flag, 0u);
}

TEST_F(Strip, GrowReportsMemory) {
    if (!memory::can_fail()) GTEST_SKIP() << "this system's build cannot make memory run out";
    for (const auto& row : {std::pair(5, "92"), std::pair(1, "89")}) {
        Tabs strip;
        ASSERT_EQ(strip.Grow(3, 0), 1);
        strip.NbItem = 3;
        recorder::clear();
        int done;
        {
            memory::Failing failing(1);
            done = strip.Grow(row.first, 0);
            EXPECT_TRUE(failing.happened());
        }
        EXPECT_EQ(done, 0);
        EXPECT_EQ(strip.Item, nullptr);
        EXPECT_EQ(strip.NbItem, 3);
        EXPECT_EQ(recorder::warnings(), std::string("[00000001] line ") + row.second +
                                            "   of tabs \\nmemory error in "
                                            "realloc (var=this->Item, dim=" +
                                            std::to_string(row.first + 1) + "x8)\n");
        strip.Dim_X = 100, strip.Dim_Y = 20; // the count is stale, and nothing reads past the end
        strip.Draw();
        strip.Adjust();
        strip.Select(2);
        strip.Read();
        strip.Page(50);
        strip.Init(recorder::window());
        EXPECT_EQ(strip.NbItem, 0);
    }
}

// --- Init ---

TEST_F(Strip, InitLaysTheTabsOut) {
    struct {
        int dx, dy, space, count;
        int overlap, width, first, rest;
    } const rows[] = {
        {300, 24, 6, 3, 6, 88, 34, 0}, // (300 - 48 + 12) / 3
        {301, 24, 6, 3, 6, 88, 34, 1},  {302, 24, 6, 3, 6, 88, 34, 2},
        {300, 27, 6, 3, 6, 88, 34, 0}, // the overlap is cut
        {300, 3, 6, 3, 0, 84, 34, 0},   {300, 24, 6, 1, 6, 252, 34, 0},
        {300, 24, 10, 4, 6, 59, 50, 2}, // (300 - 80 + 18) / 4
        {10, 24, 6, 3, 6, -8, 34, -2},  // (10 - 48 + 12) / 3 is cut toward zero
        {300, 24, 6, 12, 6, 26, 34, 6}, // (252 + 66) / 12
    };
    for (const auto& row : rows) {
        SPACE = row.space;
        tabs.Dim_X = row.dx, tabs.Dim_Y = row.dy;
        grow(row.count);
        EXPECT_EQ(tabs.NbItem, row.count);
        EXPECT_EQ(tabs.Tab_Overlap, row.overlap);
        EXPECT_EQ(tabs.Tab_Width, row.width);
        EXPECT_EQ(tabs.First_X, row.first);
        for (int i = 0; i < row.count; ++i) {
            EXPECT_EQ(item(i).Pos_X, row.first + (row.width - row.overlap) * i);
            EXPECT_EQ(item(i).Pos_Y, 100);
            EXPECT_EQ(item(i).Dim_X, row.width + (i == row.count - 1 ? row.rest : 0));
            EXPECT_EQ(item(i).Dim_Y, row.dy);
            EXPECT_EQ(item(i).Slant, row.overlap);
        }
        const TabItems& last = item(row.count - 1);
        EXPECT_EQ(last.Pos_X + last.Dim_X, 10 + row.dx - 4 * row.space); // as far from the right edge
    }
}

TEST_F(Strip, InitHandsOnFontColourWindowAndFlags) {
    static const char name[] = "f", weight[] = "bold", slant[] = "i";
    tabs.Font_Name = name, tabs.Font_Weight = weight, tabs.Font_Slant = slant, tabs.Font_Size = 9;
    tabs.Color = Colors(10, 20, 30);
    tabs.Cur_Value = 1;
    item(0).Color = Colors(0, 0, 0, 0);
    item(1).Color = Colors(1, 2, 3);
    item(2).Color = Colors(0, 0, 0, 5); // its word is not 0: it has a colour, until its own Init
    for (int i = 0; i < 3; ++i)
        item(i).Flag = OUTIL_DISABLE;
    tabs.Flag = OUTIL_FLAT | GRAPH_OUTLINE | OUTIL_INVISIBLE | TEXT_LEFT;
    tabs.Init(recorder::window(2));
    for (int i = 0; i < 3; ++i) {
        EXPECT_EQ(item(i).Font_Name, name);
        EXPECT_EQ(item(i).Font_Weight, weight);
        EXPECT_EQ(item(i).Font_Slant, slant);
        EXPECT_EQ(item(i).Font_Size, 9);
        EXPECT_EQ(item(i).Wnd, recorder::window(2));
        EXPECT_EQ(item(i).Flag, OUTIL_DISABLE | OUTIL_FLAT); // nothing of the strip's
    }
    EXPECT_EQ(item(0).Color_Get(), 0x1E140Au);
    EXPECT_EQ(item(1).Color_Get(), 0x030201u);
    EXPECT_EQ(item(2).Color_Get(), 0xAAAAAAu);
    EXPECT_EQ(values(), (List{0, 1, 0}));
    tabs.Flag = OUTIL_EMPTY | GRAPH_OUTLINE | OUTIL_INVISIBLE;
    tabs.Init(nullptr);
    EXPECT_EQ(item(0).Flag, OUTIL_DISABLE | OUTIL_FLAT | OUTIL_EMPTY);
}

TEST_F(Strip, InitSetsUpItsBoxAndItself) {
    tabs.Color = Colors(0, 0, 0, 3);
    tabs.Cur_Value = 2, tabs.Border = 8;
    tabs.Font_Size = 11, tabs.Font_Weight = "bold", tabs.Font_Name = "f", tabs.Font_Slant = "i";
    tabs.Flag = ~DWORD(0) & ~OUTIL_EMPTY;
    tabs.Init(recorder::window());
    EXPECT_EQ(tabs.Color_Get(), 0xAAAAAAu);
    EXPECT_EQ(tabs.Old_Value, 2);
    EXPECT_EQ(region_of(tabs), (Rect{10, 100, 301, 25}));
    EXPECT_EQ(tabs.Old_Dim_X, 300);
    EXPECT_EQ(tabs.Old_Dim_Y, 24);
    EXPECT_EQ(tabs.Old_Border, 8);
    EXPECT_EQ(tabs.Box.Flag, 0x61u | OUTIL_DISABLE);
    tabs.Flag = OUTIL_EMPTY | TEXT_LEFT;
    tabs.Init(nullptr);
    EXPECT_EQ(tabs.Box.Flag, OUTIL_EMPTY | OUTIL_DISABLE);
    EXPECT_EQ(rect_of(tabs.Box), rect_of(tabs));
    EXPECT_EQ(tabs.Box.Color_Get(), 0xAAAAAAu);
    EXPECT_EQ(tabs.Box.Font_Size, 11);
    EXPECT_STREQ(tabs.Box.Font_Weight, "bold");
    EXPECT_STREQ(tabs.Box.Font_Name, "f");
    EXPECT_EQ(tabs.Box.Border, 0);
    EXPECT_EQ(tabs.Box.Wnd, recorder::window());
}

TEST_F(Strip, InitStopsWhereItMust) {
    Tabs strip;
    strip.Dim_Y = 5;
    strip.Cur_Value = 3;
    recorder::clear();
    strip.Init(recorder::window());
    EXPECT_EQ(strip.test, 1);
    EXPECT_EQ(strip.Wnd, nullptr);
    strip.Dim_X = 50;
    strip.Init(nullptr);
    EXPECT_EQ(recorder::text(), window_warning("Tabs::Init"));
    EXPECT_EQ(strip.Old_Value, 0);
    strip.NbItem = 77;
    strip.Init(recorder::window()); // no tabs
    EXPECT_EQ(strip.NbItem, 0);
    EXPECT_EQ(strip.Old_Value, 3);
    EXPECT_EQ(strip.Old_Dim_X, 0);
    EXPECT_EQ(strip.Box.test, 1);
}

TEST_F(Strip, AHundredThousandTabs) {
    Tabs strip;
    strip.Dim_X = 3000, strip.Dim_Y = 40;
    ASSERT_EQ(strip.Grow(100000, OUTIL_INVISIBLE), 1);
    strip.Init(recorder::window());
    EXPECT_EQ(strip.NbItem, 100000);
    strip.Cur_Value = 99999;
    strip.Draw();
    strip.Cur_Value = 5;
    strip.Adjust();
    EXPECT_EQ(strip.Item[5]->Cur_Value, 1);
    EXPECT_EQ(strip.Item[99999]->Cur_Value, 0);
}

} // namespace
