#include <brask/buttons.h>

#include "tab_fixture.h"

// One tab: what it paints, when, and what it answers.

namespace {

const DWORD kHiding[] = {OUTIL_EMPTY, OUTIL_INVISIBLE, GRAPH_OUTLINE, OUTIL_INVISIBLE | GRAPH_OUTLINE};
const unsigned char kShapes[] = {0, 0x01, 0x10, 0x11, 0x0F, 0x02, 0x20, 0xF0, 0xFF};

struct Tab : Recorded {
    TabItems tab;
    void SetUp() override {
        Recorded::SetUp();
        BORDER = 3;
        tab.Pos_X = 10, tab.Pos_Y = 20, tab.Dim_X = 80, tab.Dim_Y = 24;
        tab.Slant = 6;
        tab.Shape = 0x11;
        tab.Name_Set(L"tab");
        tab.Init(recorder::window());
        tab.Draw(); // brings the fonts into their cache
        outside();
        recorder::clear();
    }
    void inside() { recorder::pointer(30, 30); }
    void outside() { recorder::pointer(-50, -50); }

    // --- The steps ---
    void frame() { told::cadre(tab, tab.Cur_Value, 10, 90, 20, 44); }
    void written(DWORD flag, int y) {
        if (tab.W_Name) tab.Text(tab.W_Name, static_cast<long>(flag), 10, y, 80, 24, tab.Border, 0);
    }
    void title(int y) { written(tab.Cur_Value ? tab.Flag | TEXT_WHITE : tab.Flag & ~TEXT_WHITE, y); }
    unsigned face_word(bool on) const {
        if (on) return tab.Cur_Value ? 0x6464E6 : 0x6464D2;
        return tab.Cur_Value ? 0xAAAAAA : 0x969696; // 170, and 150
    }
    void look(bool on) {
        const DWORD* image = on ? tab.Image_Select : tab.Image_Normal;
        if (!image)
            told::solid_face(tab, face_word(on), 16, 84, 20, 44);
        else
            tab.Fill_Select(on, reinterpret_cast<const char*>(image), tab.Flag, 4, 16, 84, 20, 44);
        title(19);
    }
    void select(int which) {
        read_pointer("TabItems::Select");
        if (which >= 0) look(which == 1);
    }
};

TEST_F(Tab, BeginsAllZeroWithoutATraceOfItsOwn) {
    EXPECT_EQ(recorded(recorder::kReport,
                       [] {
                           TabItems fresh;
                           EXPECT_EQ(fresh.Cur_Value | fresh.select | fresh.Slant | fresh.Shape, 0);
                           EXPECT_EQ(fresh.Old_Value, 0u);
                           for (const DWORD* surface :
                                {fresh.Image_Normal_Off, fresh.Image_Normal_On, fresh.Image_Select_Off,
                                 fresh.Image_Select_On, fresh.Own_Normal_Off, fresh.Own_Normal_On,
                                 fresh.Own_Select_Off, fresh.Own_Select_On})
                               EXPECT_EQ(surface, nullptr);
                       }),
              recorded(recorder::kReport, [] {
                  for (const char* operation : {"Tools::Tools", "Tools::~Tools"})
                      trace_in(operation, ""), trace_out(operation, "");
              }));
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
    EXPECT_EQ(tab.Region.left, 10);
    EXPECT_EQ(tab.Region.top, 20);
    EXPECT_EQ(tab.Region.right, 91);
    EXPECT_EQ(tab.Region.bottom, 45);
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
        EXPECT_EQ(recorder::text(), "[90000021] Tools: WARNING ! \n"
                                    "[90000021]    you must provide a window\n"
                                    "[90000021]    type: TabItems::Init   name: no name\n");
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

// --- Cadre, Cadre_Outline, Fill_Select ---

TEST_F(Tab, CadreIsATrapezoidOverTwoLines) {
    EXPECT_EQ(everything([&] { tab.Cadre(0, 0, 9, 10, 90, 20, 44); }),
              "Zeb_setup(WND, \"TabItems::Cadre\")\n"
              "Zeb_color(0x1)\n"
              "draw_polygon(5 (10, 21) (16, 43) (84, 43) (90, 21) (10, 21))\n"
              "Zeb_color(0xFFFFFF)\n"
              "move2s(90, 20)\n"
              "draw2s(10, 20, 0)\n"
              "Zeb_color(0xD8D8D8)\n"
              "move2s(90, 19)\n"
              "draw2s(10, 19, 0)\n"
              "Zeb_release()\n");
    EXPECT_EQ(everything([&] { tab.Cadre(CADRE_NO_LINE, -3, 0, 10, 90, 20, 44); }),
              "Zeb_setup(WND, \"TabItems::Cadre\")\n"
              "Zeb_color(0x1)\n"
              "draw_polygon(4 (10, 21) (16, 43) (84, 43) (90, 21))\n"
              "Zeb_color(0xAAAAAA)\n"
              "move2s(90, 20)\n"
              "draw2s(10, 20, 0)\n"
              "Zeb_color(0xAAAAAA)\n"
              "move2s(90, 19)\n"
              "draw2s(10, 19, 0)\n"
              "Zeb_release()\n");
}

TEST_F(Tab, OutlineIsAFilledTrapezoid) {
    EXPECT_EQ(everything([&] { tab.Cadre_Outline(10, 90, 20, 44); }),
              "Zeb_setup(WND, \"TabItems::Cadre_Outline\")\n"
              "Zeb_color(0x969696)\n"
              "draw_fill_polygon(4 (10, 21) (16, 43) (84, 43) (90, 21))\n"
              "Zeb_color(0xE64040)\n"
              "draw_polygon(4 (10, 21) (16, 43) (84, 43) (90, 21))\n"
              "Zeb_color(0x1)\n"
              "draw2s(10, 21, 0)\n"
              "Zeb_color(0xFFFFFF)\n"
              "move2s(90, 20)\n"
              "draw2s(10, 20, 0)\n"
              "Zeb_color(0xD8D8D8)\n"
              "move2s(90, 19)\n"
              "draw2s(10, 19, 0)\n"
              "Zeb_release()\n");
    struct {
        Colors color;
        unsigned dark;
    } const rows[] = {{Colors(19, 20, 21), 0x010000},
                      {Colors(300, -5, 275), 0xFF00FF},
                      {Colors(274, 100, 0, 128), 0x800050FE},
                      {Colors(-32000, 32767, 0), 0x00FF00}};
    for (const auto& row : rows) {
        tab.Color = row.color;
        EXPECT_EQ(everything([&] { tab.Cadre_Outline(10, 90, 20, 44); }),
                  everything([&] { told::cadre_outline(tab, row.dark, 10, 90, 20, 44); }));
    }
}

TEST_F(Tab, SolidFaceForEachShapeValueAndLook) {
    for (const unsigned char shape : kShapes)
        for (const int value : {0, 1, -4})
            for (const int on : {0, 1, 7})
                for (const int slant : {6, 7, 0, -5}) {
                    tab.Shape = shape, tab.Cur_Value = value, tab.Slant = slant;
                    SCOPED_TRACE(testing::Message()
                                 << "shape " << int(shape) << " value " << value << " on " << on);
                    EXPECT_EQ(everything([&] { tab.Fill_Select(on, nullptr, 0, 4, 16, 84, 20, 45); }),
                              everything([&] { told::solid_face(tab, face_word(on != 0), 16, 84, 20, 45); }));
                    EXPECT_EQ(
                        everything([&] { tab.Fill_Select(on, nullptr, OUTIL_EMPTY, 4, 16, 84, 20, 45); }),
                        "");
                }
}

TEST_F(Tab, SolidFaceByItsNumbers) {
    tab.Shape = 0x10; // full on the left, cut on the right
    EXPECT_EQ(painted([&] { tab.Fill_Select(0, nullptr, 0, 4, 16, 84, 20, 44); }),
              "Zeb_setup(WND, \"TabItems::Fill_Select\")\n"
              "Zeb_color(0x969696)\n"
              "draw_fill_rectangle(17, 42, 83, 21)\n"
              "draw_fill_polygon(3 (83, 42) (85, 32) (83, 22))\n"
              "draw_fill_polygon(3 (16, 22) (12, 22) (17, 42))\n"
              "Zeb_color(0xFFFFFF)\n"
              "move2s(17, 42)\n"
              "draw2s(83, 42, 0)\n"
              "Zeb_color(0xD8D8D8)\n"
              "move2s(17, 41)\n"
              "draw2s(83, 41, 0)\n"
              "Zeb_color(0xFFFFFF)\n"
              "draw_fill_polygon(4 (10, 22) (12, 21) (18, 41) (16, 42))\n"
              "Zeb_color(0x1)\n"
              "move2s(10, 22)\n"
              "draw2s(16, 43, 0)\n"
              "Zeb_color(0x6E6E6E)\n"
              "draw_fill_polygon(4 (84, 42) (82, 42) (85, 32) (87, 32))\n"
              "Zeb_color(0x1)\n"
              "move2s(84, 43)\n"
              "draw2s(87, 32, 0)\n"
              "Zeb_release()\n");
}

TEST_F(Tab, TheFaceNotOnTopIsDarkerByTwenty) {
    struct {
        Colors color;
        unsigned off, on;
    } const rows[] = {{Colors(100, 10, 20, 200), 0xC8000050, 0xC8140A64},
                      {Colors(300, 1, 0), 0x0000FF, 0x0001FF}};
    for (const auto& row : rows) {
        tab.Color = row.color;
        for (const int value : {0, 1}) {
            tab.Cur_Value = value;
            EXPECT_EQ(painted([&] { tab.Fill_Select(0, nullptr, 0, 4, 16, 84, 20, 44); }),
                      painted([&] { told::solid_face(tab, value ? row.on : row.off, 16, 84, 20, 44); }));
        }
    }
}

TEST_F(Tab, ASurfaceIsLaidOnTheStraightMiddle) {
    tab.Alloc_Graph_Normal(1);
    recorder::name(tab.Graph_Normal, "FACE");
    const char* face = reinterpret_cast<const char*>(tab.Graph_Normal);
    EXPECT_EQ(everything([&] { tab.Fill_Select(1, face, 0, 4, 16, 84, 20, 44); }),
              "Zeb_setup(WND, \"TabItems::Fill_Select\")\n"
              "draw_image(FACE, 20, 24, 4, 4, 61, 17, 80, 24, 0x0)\n" // the source row is the inset itself
              "Zeb_release()\n");
    EXPECT_EQ(everything([&] { tab.Fill_Select(1, face, OUTIL_EMPTY, 4, 16, 84, 20, 44); }), "");
}

TEST_F(Tab, EveryFigureObeysTheClip) {
    tab.Clip_X = 1, tab.Clip_Y = 2, tab.Clip_Dim_X = 3, tab.Clip_Dim_Y = 4;
    EXPECT_EQ(painted([&] { tab.Cadre(0, 1, 1, 10, 90, 20, 44); }),
              painted([&] { told::cadre(tab, 1, 10, 90, 20, 44); }));
    EXPECT_EQ(painted([&] { tab.Cadre_Outline(10, 90, 20, 44); }),
              painted([&] { told::cadre_outline(tab, 0x969696, 10, 90, 20, 44); }));
    EXPECT_EQ(painted([&] { tab.Fill_Select(0, nullptr, 0, 4, 16, 84, 20, 44); }),
              painted([&] { told::solid_face(tab, 0x969696, 16, 84, 20, 44); }));
}

// --- Draw ---

TEST_F(Tab, DrawPaintsFrameTitleThenItsLook) {
    for (const int value : {0, 1, -2})
        for (const DWORD flag : {DWORD(0), TEXT_WHITE, TEXT_LEFT | TEXT_BOTTOM, BUTTON_LAMP})
            for (const bool over : {false, true}) {
                tab.Flag = flag;
                tab.Cur_Value = value;
                tab.Old_Value = 99, tab.select = over ? 1 : 2; // forgotten, so that the face is painted
                over ? inside() : outside();
                EXPECT_EQ(everything([&] { tab.Draw(); }), everything([&] {
                              frame();
                              title(20); // one pixel higher than with the face
                              select(over);
                          }));
                EXPECT_EQ(tab.select, over ? 1 : 2);
                EXPECT_EQ(tab.Old_Value, static_cast<unsigned>(value));
                EXPECT_EQ(tab.Flag, flag);
            }
}

TEST_F(Tab, DrawHasNoTitleWithoutAName) {
    tab.Name_Set(nullptr);
    EXPECT_EQ(everything([&] { tab.Draw(); }), everything([&] {
                  frame();
                  select(0);
              }));
}

TEST_F(Tab, InvisibleDrawsNothing) {
    tab.Flag = OUTIL_INVISIBLE;
    tab.Cur_Value = 3;
    EXPECT_EQ(everything([&] { tab.Draw(); }), "");
    EXPECT_EQ(tab.Old_Value, 0u);
}

TEST_F(Tab, OutlineDrawsTrapezoidAndTitleAsFlagged) {
    for (const DWORD flag : {DWORD(0), TEXT_WHITE, OUTIL_EMPTY, OUTIL_DISABLE}) {
        tab.Flag = GRAPH_OUTLINE | flag;
        tab.Cur_Value = 1, tab.select = 1;
        EXPECT_EQ(everything([&] { tab.Draw(); }), everything([&] {
                      told::cadre_outline(tab, 0x969696, 10, 90, 20, 44);
                      written(tab.Flag, 19);
                      trace_out("TabItems::Draw", "GRAPH_OUTLINE");
                  }));
        EXPECT_EQ(tab.select, 1);
        EXPECT_EQ(tab.Old_Value, 1u);
    }
}

TEST_F(Tab, EmptyDrawsFrameAndTitle) {
    tab.Flag = OUTIL_EMPTY;
    tab.select = 1;
    EXPECT_EQ(everything([&] { tab.Draw(); }), everything([&] {
                  frame();
                  title(20);
              }));
    EXPECT_EQ(tab.select, 1);
}

TEST_F(Tab, DisabledDrawsItsNormalLook) {
    tab.Flag = OUTIL_DISABLE;
    tab.select = 1;
    inside();
    EXPECT_EQ(everything([&] { tab.Draw(); }), everything([&] {
                  frame();
                  title(20);
                  look(false);
              }));
    EXPECT_EQ(tab.select, 0);
}

TEST_F(Tab, DrawShowsTheSurfacesOfItsValue) {
    tab.Alloc_Graph_Normal(1);
    tab.Alloc_Graph_Select(2);
    tab.Border = -5; // the resolved border is absolute: the window stands 6 inside
    tab.Init(nullptr);
    recorder::name(tab.Graph_Normal, "NORMAL");
    recorder::name(tab.Graph_Select, "SELECT");
    for (const bool over : {false, true}) {
        over ? inside() : outside();
        const std::string lines = painted([&] { tab.Draw(); });
        EXPECT_NE(lines.find(over ? "draw_image(SELECT, 22, 26, 6, 6, 57, 13, 80, 24, 0x0)"
                                  : "draw_image(NORMAL, 22, 26, 6, 6, 57, 13, 80, 24, 0x0)"),
                  std::string::npos)
            << lines;
    }
}

TEST_F(Tab, ASurfaceOfAnotherSizeIsNotRead) {
    tab.Alloc_Graph_Normal(1);
    tab.Alloc_Graph_Select(1);
    tab.Old_Dim_X = 0;
    tab.Init(nullptr);
    EXPECT_NE(painted([&] { tab.Draw(); }).find("draw_image"), std::string::npos);
    tab.Dim_X = 100, tab.Dim_Y = 60;
    for (const bool over : {false, true}) {
        over ? inside() : outside();
        EXPECT_EQ(painted([&] { tab.Draw(); }).find("draw_image"), std::string::npos);
    }
}

// --- Adjust ---

TEST_F(Tab, AdjustRepaintsAChangedValue) {
    for (const int value : {1, 0, -7}) {
        tab.Cur_Value = value;
        tab.select = 2;
        EXPECT_EQ(everything([&] { tab.Adjust(); }), everything([&] {
                      frame();
                      title(19);
                      select(0);
                  }));
        EXPECT_EQ(tab.Old_Value, static_cast<unsigned>(value));
        EXPECT_EQ(everything([&] { tab.Adjust(); }), "");
    }
    tab.Flag |= BUTTON_LAMP; // always
    EXPECT_EQ(everything([&] { tab.Adjust(); }), everything([&] {
                  frame();
                  title(19);
                  select(0);
              }));
}

TEST_F(Tab, AdjustOfOtherLooks) {
    tab.Cur_Value = 1, tab.Old_Value = 0;
    tab.Flag = OUTIL_INVISIBLE | BUTTON_LAMP;
    EXPECT_EQ(everything([&] { tab.Adjust(); }), "");
    EXPECT_EQ(tab.Old_Value, 0u);
    tab.Flag = OUTIL_EMPTY;
    EXPECT_EQ(everything([&] { tab.Adjust(); }), everything([&] {
                  frame();
                  title(19);
              }));
    EXPECT_EQ(tab.Old_Value, 1u);
    tab.Cur_Value = 0;
    tab.Flag = GRAPH_OUTLINE; // the frame of the other look all the same
    EXPECT_EQ(everything([&] { tab.Adjust(); }), everything([&] {
                  frame();
                  title(19);
                  read_pointer("TabItems::Select");
              }));
}

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
    struct {
        const char* type;
        void (*use)(TabItems&);
    } const rows[] = {{"TabItems::Adjust", [](TabItems& t) { t.Adjust(); }},
                      {"TabItems::Draw", [](TabItems& t) { t.Draw(); }},
                      {"TabItems::Read", [](TabItems& t) { t.Read(); }},
                      {"TabItems::Select", [](TabItems& t) { t.Select(0); }}};
    for (const auto& row : rows) {
        TabItems fresh;
        fresh.Cur_Value = 6;
        recorder::clear();
        row.use(fresh);
        EXPECT_EQ(recorder::text(), std::string("[80000001] Tools: WARNING ! \n"
                                                "[80000001]    you must call *_Init() first\n"
                                                "[80000001]    type: ") +
                                        row.type + "   name: no name\\n\n");
        EXPECT_EQ(fresh.test, 2);
        row.use(fresh);
        EXPECT_EQ(recorder::reports(0x80000001).size(), 3u);
        EXPECT_EQ(fresh.Read(), 6);
    }
    TabItems hidden;
    hidden.Flag = OUTIL_INVISIBLE;
    recorder::clear();
    hidden.Draw(); // this comes before the check
    EXPECT_EQ(recorder::text(), "");
}

} // namespace
