#include <climits>
#include <string>

#include "support/memory.h"
#include "tab_fixture.h"

// A strip of tabs: layout, shapes, order of painting, the pointer, and the page.

namespace {

struct Strip : Recorded {
    Tabs tabs;
    void SetUp() override {
        Recorded::SetUp();
        BORDER = 3, SPACE = 6;
        tabs.Pos_X = 10, tabs.Pos_Y = 100, tabs.Dim_X = 300, tabs.Dim_Y = 24;
        grow(3);
    }
    void TearDown() override {
        SPACE = 6;
        Recorded::TearDown();
    }
    void grow(int count) {
        ASSERT_EQ(tabs.Grow(count, 0), 1);
        for (int i = 0; i < count; ++i)
            tabs.Item[i]->Name_Set(L"tab %d", i);
        outside();
        tabs.Init(recorder::window());
        tabs.Draw();
        recorder::clear();
    }
    void outside() { recorder::pointer(-50, -50); }
    TabItems& item(int i) { return *tabs.Item[i]; }
    std::vector<int> shapes() {
        std::vector<int> all;
        for (int i = 0; i < tabs.NbItem; ++i)
            all.push_back(item(i).Shape);
        return all;
    }
    std::vector<int> values() {
        std::vector<int> all;
        for (int i = 0; i < tabs.NbItem; ++i)
            all.push_back(item(i).Cur_Value);
        return all;
    }
    std::string drawn(const std::vector<int>& order) {
        return everything([&] {
            for (const int i : order)
                item(i).Draw();
        });
    }
};
using List = std::vector<int>;

TEST_F(Strip, BeginsAllZeroWithoutATraceOfItsOwn) {
    const std::string life = recorded(recorder::kReport, [] {
        Tabs fresh;
        EXPECT_EQ(fresh.Cur_Value | fresh.Reserved | fresh.Page_Dim | fresh.Old_Value | fresh.NbItem, 0);
        EXPECT_EQ(fresh.First_X | fresh.Tab_Width | fresh.Tab_Overlap, 0);
        EXPECT_EQ(fresh.Item, nullptr);
        EXPECT_EQ(fresh.Box.test, 0);
    });
    EXPECT_EQ(life.find("Tabs::"), std::string::npos);
    EXPECT_EQ(life.find("warn"), std::string::npos);
    // The box goes before the base.
    EXPECT_LT(life.find("Boxs::~Boxs"), life.rfind("Tools::~Tools"));
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
    EXPECT_EQ(tabs.Region.left, 10);
    EXPECT_EQ(tabs.Region.top, 100);
    EXPECT_EQ(tabs.Region.right, 311);
    EXPECT_EQ(tabs.Region.bottom, 125);
    EXPECT_EQ(tabs.Old_Dim_X, 300);
    EXPECT_EQ(tabs.Old_Dim_Y, 24);
    EXPECT_EQ(tabs.Old_Border, 8);
    EXPECT_EQ(tabs.Box.Flag, 0x61u | OUTIL_DISABLE);
    tabs.Flag = OUTIL_EMPTY | TEXT_LEFT;
    tabs.Init(nullptr);
    EXPECT_EQ(tabs.Box.Flag, OUTIL_EMPTY | OUTIL_DISABLE);
    EXPECT_EQ(tabs.Box.Pos_X, 10);
    EXPECT_EQ(tabs.Box.Pos_Y, 100);
    EXPECT_EQ(tabs.Box.Dim_X, 300);
    EXPECT_EQ(tabs.Box.Dim_Y, 24);
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
    EXPECT_EQ(recorder::text(), "[90000021] Tools: WARNING ! \n"
                                "[90000021]    you must provide a window\n"
                                "[90000021]    type: Tabs::Init   name: no name\n");
    EXPECT_EQ(strip.Old_Value, 0);
    strip.NbItem = 77;
    strip.Init(recorder::window()); // no tabs
    EXPECT_EQ(strip.NbItem, 0);
    EXPECT_EQ(strip.Old_Value, 3);
    EXPECT_EQ(strip.Old_Dim_X, 0);
    EXPECT_EQ(strip.Box.test, 1);
}

// --- Draw: shapes and order ---

TEST_F(Strip, ShapesAndOrderForEachTabOnTop) {
    struct {
        int count, on_top;
        List shapes, order;
    } const rows[] = {
        {1, 0, {0x11}, {0}},
        {2, 0, {0x11, 0x01}, {1, 0}},
        {2, 1, {0x10, 0x11}, {0, 1}},
        {3, 0, {0x11, 0x01, 0x01}, {2, 1, 0}},
        {3, 1, {0x10, 0x11, 0x01}, {2, 0, 1}},
        {3, 2, {0x11, 0x00, 0x11}, {1, 0, 2}},
        {5, 2, {0x11, 0x00, 0x11, 0x01, 0x01}, {4, 3, 1, 0, 2}},
        {3, -1, {0x11, 0x01, 0x01}, {2, 1, 0}}, // out of range no tab is on top
        {3, 3, {0x11, 0x01, 0x01}, {2, 1, 0}},
        {3, INT_MAX, {0x11, 0x01, 0x01}, {2, 1, 0}},
        {3, INT_MIN, {0x11, 0x01, 0x01}, {2, 1, 0}},
    };
    for (const auto& row : rows) {
        grow(row.count);
        for (int i = 0; i < row.count; ++i)
            item(i).Shape = 0xEE, item(i).Cur_Value = 1;
        tabs.Cur_Value = row.on_top, tabs.Old_Value = 99;
        const std::string lines = everything([&] { tabs.Draw(); });
        EXPECT_EQ(shapes(), row.shapes) << row.count << " tabs, on top " << row.on_top;
        for (int i = 0; i < row.count; ++i)
            EXPECT_EQ(item(i).Cur_Value, i == row.on_top);
        EXPECT_EQ(lines, drawn(row.order));
        EXPECT_EQ(tabs.Old_Value, row.on_top);
    }
}

TEST_F(Strip, AfterDrawTheTabOnTopIsRepaintedByTheNextSelect) {
    tabs.Cur_Value = 1;
    recorder::pointer(130, 110);
    tabs.Draw();
    EXPECT_EQ(item(1).select, 0);
    EXPECT_EQ(item(0).select, 2);
    EXPECT_EQ(tabs.Select(0), 1);
    EXPECT_EQ(item(1).select, 1);
}

TEST_F(Strip, DrawOfOtherLooks) {
    tabs.Flag = OUTIL_INVISIBLE;
    tabs.Cur_Value = 1;
    EXPECT_EQ(everything([&] { tabs.Draw(); }), "");
    EXPECT_EQ(tabs.Old_Value, 0);
    tabs.Flag = GRAPH_OUTLINE; // shapes without paint
    EXPECT_EQ(everything([&] { tabs.Draw(); }), "");
    EXPECT_EQ(shapes(), (List{0x10, 0x11, 0x01}));
    EXPECT_EQ(values(), (List{0, 1, 0}));
    tabs.Flag = OUTIL_DISABLE;
    EXPECT_EQ(everything([&] { tabs.Draw(); }), drawn({2, 0, 1}));
}

// --- Adjust ---

TEST_F(Strip, AdjustRepaintsTheWholeStripAfterAChange) {
    EXPECT_EQ(everything([&] { tabs.Adjust(); }), "");
    tabs.Cur_Value = 2;
    item(1).Cur_Value = 1; // a third one stays as it is
    const std::string lines = everything([&] { tabs.Adjust(); });
    EXPECT_EQ(values(), (List{0, 1, 1}));
    EXPECT_EQ(shapes(), (List{0x11, 0x00, 0x11}));
    EXPECT_EQ(lines, drawn({1, 0, 2}));
    EXPECT_EQ(tabs.Old_Value, 2);
    item(1).Cur_Value = 0;
    tabs.Adjust();
    recorder::pointer(230, 110);
    tabs.Old_Value = 0;
    tabs.Adjust();
    EXPECT_EQ(item(2).select, 0);
}

TEST_F(Strip, AdjustOfOtherLooks) {
    tabs.Flag = OUTIL_DISABLE;
    tabs.Cur_Value = 1;
    EXPECT_EQ(everything([&] { tabs.Adjust(); }), "");
    EXPECT_EQ(tabs.Old_Value, 0);
    EXPECT_EQ(values(), (List{1, 0, 0}));
    tabs.Flag = OUTIL_INVISIBLE;
    item(1).select = 1;
    EXPECT_EQ(everything([&] { tabs.Adjust(); }), "");
    EXPECT_EQ(tabs.Old_Value, 1);
    EXPECT_EQ(values(), (List{0, 1, 0}));
    EXPECT_EQ(item(1).select, 1);
    tabs.Flag = GRAPH_OUTLINE;
    tabs.Cur_Value = 0;
    EXPECT_EQ(everything([&] { tabs.Adjust(); }), "");
    EXPECT_EQ(shapes(), (List{0x11, 0x01, 0x01}));
    tabs.Flag = 0;
    for (const int wild : {-1, 3, INT_MAX, INT_MIN}) {
        tabs.Cur_Value = wild;
        tabs.Adjust();
        EXPECT_EQ(values(), (List{0, 0, 0}));
        EXPECT_EQ(tabs.Old_Value, wild);
    }
}

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

// --- Page ---

TEST_F(Strip, PageByItsNumbers) {
    tabs.Cur_Value = 1;
    item(1).Color = Colors(300, 2, -3);
    EXPECT_EQ(everything([&] { tabs.Page(94); }),
              "Zeb_setup(WND, \"Tabs::Page\")\n"
              "Zeb_color(0x2FF)\n"
              "draw_fill_polygon(4 (10, 98) (10, 30) (310, 30) (310, 98))\n"
              "Zeb_color(0xFFFFFF)\n"
              "move2s(34, 100)\n"
              "draw2s(11, 100, 0)\n"
              "draw2s(11, 31, 0)\n"
              "Zeb_color(0x6E6E6E)\n"
              "draw2s(309, 31, 0)\n"
              "Zeb_color(0xFFFFFF)\n"
              "draw2s(309, 100, 0)\n"
              "draw2s(286, 100, 0)\n"
              "Zeb_color(0xD8D8D8)\n"
              "move2s(34, 99)\n"
              "draw2s(12, 99, 0)\n"
              "draw2s(12, 32, 0)\n"
              "Zeb_color(0x6E6E6E)\n"
              "draw2s(308, 32, 0)\n"
              "Zeb_color(0xD8D8D8)\n"
              "draw2s(308, 99, 0)\n"
              "draw2s(286, 99, 0)\n"
              "Zeb_color(0x1)\n"
              "move2s(34, 101)\n"
              "draw2s(10, 101, 0)\n"
              "draw2s(10, 30, 0)\n"
              "draw2s(310, 30, 0)\n"
              "draw2s(310, 101, 0)\n"
              "draw2s(286, 101, 0)\n"
              "Zeb_release()\n");
}

TEST_F(Strip, PageTakesItsHeightColourAndClip) {
    const std::string given = painted([&] { tabs.Page(94); });
    tabs.Page_Dim = 94;
    EXPECT_EQ(painted([&] { tabs.Page(0); }), given);
    EXPECT_NE(painted([&] { tabs.Page(95); }), given);
    for (const DWORD flag : {OUTIL_INVISIBLE, OUTIL_EMPTY, GRAPH_OUTLINE, OUTIL_DISABLE}) {
        tabs.Flag = flag; // none of them matters
        EXPECT_EQ(painted([&] { tabs.Page(94); }), given);
    }
    tabs.Color = Colors(1, 2, 3);
    EXPECT_EQ(painted([&] { tabs.Page(94); }), given); // the tab's colour, not the strip's
    for (const int wild : {-1, 3, INT_MAX, INT_MIN}) {
        tabs.Cur_Value = wild;
        EXPECT_NE(painted([&] { tabs.Page(94); }).find("Zeb_color(0x30201)\ndraw_fill_polygon"),
                  std::string::npos);
    }
    tabs.Clip_X = 1, tabs.Clip_Y = 2, tabs.Clip_Dim_X = 3, tabs.Clip_Dim_Y = 4;
    const std::string clipped = painted([&] { tabs.Page(94); });
    EXPECT_EQ(clipped.find("Zeb_setup(WND, \"Tabs::Page\")\nZeb_set_clip(1, 2, 3, 4)\n"), 0u);
    EXPECT_NE(clipped.find("Zeb_reset_clip()\nZeb_release()\n"), std::string::npos);
}

TEST_F(Strip, PageGoesByTheGap) {
    SPACE = 10;
    EXPECT_NE(painted([&] { tabs.Page(94); }).find("move2s(50, 100)"), std::string::npos);
}

TEST_F(Strip, NoTabsPaintNothing) {
    for (const int way : {0, 1}) {
        Tabs strip;
        strip.Dim_X = 100, strip.Dim_Y = 20;
        if (way) strip.Grow(0, 0);
        strip.Init(recorder::window());
        recorder::pointer(5, 5);
        recorder::clear();
        strip.Draw();
        strip.Cur_Value = 1;
        strip.Adjust();
        strip.Deselect();
        EXPECT_EQ(strip.Select(2), 0);
        EXPECT_EQ(strip.Read(), -1);
        strip.Page(50);
        EXPECT_EQ(recorder::text().find("draw"), std::string::npos);
    }
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
    struct {
        const char* type;
        void (*use)(Tabs&);
    } const rows[] = {{"Tabs::Adjust", [](Tabs& t) { t.Adjust(); }},
                      {"Tabs::Draw", [](Tabs& t) { t.Draw(); }},
                      {"Tabs::Read", [](Tabs& t) { t.Read(); }},
                      {"Tabs::Select", [](Tabs& t) { t.Select(0); }}};
    for (const auto& row : rows) {
        Tabs fresh;
        recorder::clear();
        row.use(fresh);
        EXPECT_EQ(recorder::text(), std::string("[80000001] Tools: WARNING ! \n"
                                                "[80000001]    you must call *_Init() first\n"
                                                "[80000001]    type: ") +
                                        row.type + "   name: no name\\n\n");
        row.use(fresh);
        EXPECT_EQ(recorder::reports(0x80000001).size(), 3u);
    }
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
