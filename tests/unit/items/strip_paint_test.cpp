#include <climits>
#include <string>

#include "strip_fixture.h"

// A strip of tabs: shapes, order of painting, and the page.

namespace {

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

} // namespace
