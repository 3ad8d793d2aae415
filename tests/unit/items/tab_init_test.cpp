#include "tab_fixture.h"

// One tab: its life, and what Init makes of its fields and surfaces.

namespace {

TEST_F(Tab, BeginsAllZeroWithoutATraceOfItsOwn) {
    EXPECT_EQ(made_all_zero<TabItems>(), everything([] { life("Tools::Tools"); }));
    EXPECT_EQ(everything([] { TabItems fresh; }),
              everything([] { life("Tools::Tools"), life("Tools::~Tools"); }));
}

TEST_F(Tab, FreesItsOwnSurfacesAtItsEnd) { // the sanitizer counts
    TabItems owner;
    for (DWORD** own :
         {&owner.Own_Normal_Off, &owner.Own_Normal_On, &owner.Own_Select_Off, &owner.Own_Select_On})
        *own = static_cast<DWORD*>(std::malloc(64));
    EXPECT_NE(owner.Own_Select_On, nullptr);
}

TEST_F(Tab, CopiesMemberByMember) {
    tab.Cur_Value = 1, tab.Slant = 9, tab.Shape = 0x10, tab.select = 2;
    wchar_t* const name = tab.W_Name;
    TabItems assigned;
    recorder::clear();
    {
        TabItems copy(tab);
        assigned = tab;
        EXPECT_EQ(recorder::text(), "");
        for (const TabItems* other : {&copy, &assigned}) {
            EXPECT_EQ(other->Cur_Value, 1);
            EXPECT_EQ(other->Slant, 9);
            EXPECT_EQ(other->Shape, 0x10);
            EXPECT_EQ(other->select, 2);
            EXPECT_EQ(other->W_Name, name);
        }
        copy.W_Name = nullptr; // one owner is enough
        assigned.W_Name = nullptr;
    }
}

// --- Init ---

TEST_F(Tab, InitSetsUpWithoutATrace) {
    tab.Cur_Value = 5, tab.select = 2;
    tab.Color = Colors(0, 0, 0, 7);
    tab.Flag = TEXT_LEFT;
    EXPECT_EQ(everything([&] { tab.Init(recorder::window(2)); }), "");
    EXPECT_EQ(tab.Wnd, recorder::window(2));
    EXPECT_EQ(tab.Old_Value, 5u);
    EXPECT_EQ(tab.select, 0);
    EXPECT_EQ(tab.Color_Get(), 0xAAAAAAu);
    EXPECT_EQ(tab.Flag, TEXT_LEFT | OUTIL_FLAT); // always
    EXPECT_EQ(region_of(tab), (Rect{10, 20, 81, 25}));
    EXPECT_EQ(tab.Image_Normal, nullptr); // no face is ever made
    EXPECT_EQ(tab.Image_Select, nullptr);
    tab.Border = 2, tab.Dim_X = 81, tab.Color = Colors(1, 2, 3);
    tab.Init(nullptr);
    EXPECT_EQ(tab.Wnd, recorder::window(2));
    EXPECT_EQ(tab.Old_Dim_X, 81);
    EXPECT_EQ(tab.Old_Dim_Y, 24);
    EXPECT_EQ(tab.Old_Border, 2);
    EXPECT_EQ(tab.Old_Color, 0x030201u);
}

TEST_F(Tab, InitOfNoSizeOnlyMarksIt) {
    TabItems small;
    small.Dim_X = 0, small.Dim_Y = 5;
    small.select = 1;
    small.Init(recorder::window());
    EXPECT_EQ(small.test, 1);
    EXPECT_EQ(small.Wnd, nullptr);
    EXPECT_EQ(small.select, 1);
    EXPECT_EQ(small.Flag, 0u);
}

TEST_F(Tab, InitWithoutAWindowWarnsEachTime) {
    TabItems lost;
    lost.Dim_X = lost.Dim_Y = 5;
    for (int time = 0; time < 2; ++time) {
        recorder::clear();
        lost.Init(nullptr);
        EXPECT_EQ(recorder::text(), window_warning("TabItems::Init"));
    }
    EXPECT_EQ(lost.Flag, 0u);
}

TEST_F(Tab, HostsSurfacesServeBothValues) {
    tab.Alloc_Graph_Normal(1);
    tab.Old_Dim_X = 0;
    tab.Init(nullptr);
    for (const DWORD* view : {tab.Image_Normal, tab.Image_Normal_On, tab.Image_Normal_Off})
        EXPECT_EQ(view, tab.Graph_Normal);
    EXPECT_EQ(tab.Image_Select_On, nullptr);
    tab.Alloc_Graph_Select(2);
    for (int* old : {&tab.Old_Dim_X, &tab.Old_Dim_Y, &tab.Old_Border}) { // each of them alone
        tab.Image_Select_On = tab.Image_Select_Off = tab.Image_Select = nullptr;
        *old += 1;
        tab.Init(nullptr);
        for (const DWORD* view : {tab.Image_Select, tab.Image_Select_On, tab.Image_Select_Off})
            EXPECT_EQ(view, tab.Graph_Select);
    }
}

TEST_F(Tab, ASurfaceGivenLaterWaitsForAChangeOfShape) {
    tab.Alloc_Graph_Normal(1);
    tab.Init(nullptr);
    EXPECT_EQ(tab.Image_Normal_On, nullptr);
    tab.Border = 5;
    tab.Init(nullptr);
    EXPECT_EQ(tab.Image_Normal_On, tab.Graph_Normal);
}

TEST_F(Tab, AnEmptyTabTakesNoSurface) {
    tab.Flag |= OUTIL_EMPTY;
    tab.Alloc_Graph_Normal(1);
    tab.Old_Dim_X = 0;
    tab.Init(nullptr);
    EXPECT_EQ(tab.Image_Normal_On, nullptr);
    EXPECT_EQ(tab.Old_Dim_X, 80);
}

// The views for each value are the host's to set: an Init that sees no change leaves them.
TEST_F(Tab, ViewsOfItsOwnForEachValue) {
    tab.Alloc_Graph_Normal(1);
    tab.Alloc_Graph_Select(2);
    tab.Old_Dim_X = 0;
    tab.Init(nullptr);
    tab.Image_Normal_On = tab.Image_Select_Off = tab.Graph_Select;
    tab.Image_Select_On = tab.Image_Normal_Off = tab.Graph_Normal;
    tab.Init(nullptr);
    tab.Cur_Value = 1;
    tab.Draw();
    EXPECT_EQ(tab.Image_Normal, tab.Graph_Select);
    EXPECT_EQ(tab.Image_Select, tab.Graph_Normal);
    tab.Cur_Value = 0;
    tab.Adjust();
    EXPECT_EQ(tab.Image_Normal, tab.Graph_Normal);
    EXPECT_EQ(tab.Image_Select, tab.Graph_Select);
}

// However the host changes its surfaces, no view on a freed one is read: the sanitizer looks on.
TEST_F(Tab, SurfacesMadeAnewLeaveNoViewDangling) {
    const auto operate = [&] {
        for (const int value : {0, 1})
            for (const bool over : {true, false}) {
                over ? inside() : outside();
                tab.Select(0);
                tab.Deselect();
                tab.Cur_Value = value;
                tab.Draw();
                tab.Deselect();
                tab.Cur_Value = !value;
                tab.Adjust();
            }
    };
    for (const bool again : {false, true}) {
        tab.Alloc_Graph_Normal(1);
        tab.Alloc_Graph_Select(2);
        if (!again) tab.Old_Dim_X = 0; // the first time they are taken for the size
        tab.Init(nullptr);
        operate();
        tab.Alloc_Graph_Normal(3);
        tab.Alloc_Graph_Select(4);
        if (again) tab.Alloc_Graph_Normal(5);
        operate();
        tab.Init(nullptr);
        operate();
    }
    EXPECT_EQ(tab.Image_Normal_Off, tab.Graph_Normal);
    EXPECT_EQ(tab.Image_Select_On, tab.Graph_Select);
    // By hand, without a change of size: the surface before is gone.
    DWORD* const before = tab.Graph_Normal;
    tab.Graph_Normal = static_cast<DWORD*>(std::calloc(80 * 24, 4));
    std::free(before);
    tab.Init(nullptr);
    operate();
    EXPECT_EQ(tab.Image_Normal_Off, tab.Graph_Normal);
    // And taken away.
    tab.Graph_Normal = static_cast<DWORD*>(tab.Free(tab.Graph_Normal));
    tab.Graph_Select = static_cast<DWORD*>(tab.Free(tab.Graph_Select));
    tab.Init(nullptr);
    operate();
    EXPECT_EQ(tab.Image_Select_On, nullptr);
}

} // namespace
