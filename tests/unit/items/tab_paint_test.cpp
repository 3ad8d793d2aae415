#include <brask/buttons.h>

#include "tab_fixture.h"

// One tab: its figures by their numbers, and what it paints when.

namespace {

const unsigned char kShapes[] = {0, 0x01, 0x10, 0x11, 0x0F, 0x02, 0x20, 0xF0, 0xFF};

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

} // namespace
