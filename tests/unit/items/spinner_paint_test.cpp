#include <climits>

#include "spinner_fixture.h"

// What a spinner paints at Draw and at Adjust, and in which order.

namespace {

struct Painted_Spinner : Spinner {
    std::string drawn() {
        return everything([&] { spin.Draw(); });
    }
    std::string adjusted() {
        return everything([&] { spin.Adjust(); });
    }
    std::string nothing(const std::string& operation, const std::string& tag) {
        return everything([&] {
            trace_in(operation, name_of(spin));
            trace_out(operation, tag);
        });
    }
};

// --- Draw ---

TEST_F(Painted_Spinner, DrawGoesFrameFaceNameArrowsChoice) {
    for (const bool upright : {false, true}) {
        spin.Flag = 0, spin.Arrow_Dim = 0;
        spin.Name_Set(L"name");
        upright ? vertical(3) : horizontal(3);
        spin.Cur_Value = 1;
        shown();
        EXPECT_EQ(drawn(), everything([&] {
                      trace_in("Selects::Draw", "name");
                      spin.Box.Draw();
                      update_told(false, 1);
                      trace_out("Selects::Draw", "");
                  }));
    }
}

TEST_F(Painted_Spinner, TheFaceAndTheArrowsByTheirNumbers) {
    horizontal(1);
    skip(0);
    shown();
    const std::string lines = painted([&] { spin.Draw(); });
    // The whole control but for bevel and line, out of the frame's face.
    EXPECT_NE(lines.find("Zeb_setup(WND, \"Tools::Fill_Select\")\n"
                         "draw_image(GROUND, 104, 204, 4, 3, 193, 23, 200, 30, 0x0)\n"
                         "Zeb_release()\n"
                         "Zeb_setup(WND, \"Tools::Arrow\")\n"),
              std::string::npos)
        << lines;
    // The left one begins at the zone's left edge, the right one at its right edge.
    EXPECT_NE(lines.find("draw_fill_polygon(3 (108, 215)"), std::string::npos) << lines;
    EXPECT_NE(lines.find("draw_fill_polygon(3 (292, 215)"), std::string::npos) << lines;
}

TEST_F(Painted_Spinner, TheFaceIsLitOnlyWhileThePointerIsInside) {
    horizontal(2);
    shown();
    for (const int state : {0, 1, 2, 7, -1}) {
        spin.select = state;
        EXPECT_EQ(drawn(), everything([&] {
                      trace_in("Selects::Draw", "no name");
                      spin.Box.Draw();
                      update_told(state == 1, 0);
                      trace_out("Selects::Draw", "");
                  }));
        EXPECT_EQ(spin.select, state);
    }
    spin.select = 1;
    EXPECT_NE(drawn().find("draw_image(LIT, 104, 204"), std::string::npos);
}

TEST_F(Painted_Spinner, TheNameStandsWhereTheFlagsSay) {
    struct Row {
        DWORD flag;
        int value_dim, border, width;
    };
    for (const Row& row : {
             Row{0, 0, 0, 200},
             Row{TEXT_LEFT, 0, 0, 200},
             Row{TEXT_TOP, 0, 0, 200},
             Row{TEXT_MIDDLE, 0, 0, 200},
             Row{TEXT_BOTTOM, 0, 0, 200},
             Row{TEXT_BOTTOM | TEXT_MIDDLE | TEXT_WHITE, 0, 0, 200},
             Row{TEXT_RIGHT, 0, 0, 200 - 145 - 2 - 6}, // clear of the zone
             Row{TEXT_RIGHT, 0, 5, 200 - 139 - 2 - 10},
             Row{TEXT_RIGHT | TEXT_LEFT, 0, 0, 200 - 145 - 2 - 6},
             Row{TEXT_RIGHT, 80, 0, 200 - 80 - 2 - 6},
             Row{TEXT_LEFT, 80, 0, 200},
         }) {
        spin.Name_Set(L"name");
        spin.Flag = 0, spin.Value_Dim = row.value_dim, spin.Border = row.border;
        lay(row.flag, 1, 200, 30);
        shown();
        EXPECT_EQ(drawn(), everything([&] {
                      trace_in("Selects::Draw", "name");
                      spin.Box.Draw();
                      update_told(false, 0, row.width);
                      trace_out("Selects::Draw", "");
                  }))
            << std::hex << row.flag << ' ' << std::dec << row.value_dim << ' ' << row.border;
    }
}

// The flag given to the text lacks it, but the object's own flag is what stacks the letters.
TEST_F(Painted_Spinner, TheNameOfAnUprightSpinnerIsStacked) {
    spin.Name_Set(L"up");
    vertical(1);
    shown();
    const std::string lines = painted([&] { name_told(spin.Dim_X); });
    EXPECT_NE(lines.find("\"u\""), std::string::npos) << lines;
    EXPECT_NE(drawn().find("\"p\""), std::string::npos);
}

TEST_F(Painted_Spinner, AllIsPaintedInsideTheClip) {
    spin.Clip_X = 1, spin.Clip_Y = 2, spin.Clip_Dim_X = 300, spin.Clip_Dim_Y = 400;
    spin.Name_Set(L"name");
    horizontal(1);
    shown();
    const std::string lines = painted([&] { spin.Draw(); });
    for (std::size_t at = lines.find("draw"); at != std::string::npos; at = lines.find("draw", at + 1)) {
        const std::size_t clip = lines.rfind("Zeb_set_clip(", at);
        ASSERT_NE(clip, std::string::npos);
        EXPECT_GT(clip, lines.rfind("Zeb_setup", at));
    }
}

TEST_F(Painted_Spinner, WithoutAFrameTheRestIsPainted) {
    horizontal(1);
    shown();
    spin.Flag |= OUTIL_NO_FRAME;
    EXPECT_EQ(drawn(), everything([&] {
                  trace_in("Selects::Draw", "no name");
                  update_told(false, 0);
                  trace_out("Selects::Draw", "");
              }));
}

TEST_F(Painted_Spinner, DisabledItIsDrawnAlike) {
    horizontal(1);
    shown();
    const std::string normal = painted([&] { spin.Draw(); });
    spin.Flag |= OUTIL_DISABLE;
    EXPECT_EQ(painted([&] { spin.Draw(); }), normal);
}

TEST_F(Painted_Spinner, InvisiblePaintsAndChangesNothing) {
    horizontal(3);
    shown();
    spin.Flag |= OUTIL_INVISIBLE;
    spin.Cur_Value = 99, spin.test = 0;
    EXPECT_EQ(drawn(), nothing("Selects::Draw", "OUTIL_INVISIBLE"));
    EXPECT_EQ(spin.Cur_Value, 99);
    EXPECT_EQ(spin.test, 0) << "before the first-use check";
}

TEST_F(Painted_Spinner, AnEmptyOneHasItsFrameAlone) {
    spin.Name_Set(L"name");
    horizontal(2);
    shown();
    spin.Flag |= OUTIL_EMPTY;
    spin.Init(nullptr);
    EXPECT_EQ(drawn(), everything([&] {
                  trace_in("Selects::Draw", "name");
                  spin.Box.Draw();
                  trace_out("Selects::Draw", "");
              }));
}

TEST_F(Painted_Spinner, InOutlineFrameNameAndTheChoiceInOutline) {
    spin.Name_Set(L"name");
    horizontal(2);
    shown();
    spin.Flag |= GRAPH_OUTLINE;
    for (const DWORD own : {CADRE_NO_LINE, OUTIL_DISABLE | TEXT_LEFT, GRAPH_OUTLINE}) {
        item(1).Flag = own;
        spin.Cur_Value = 1;
        const std::string lines = drawn();
        EXPECT_EQ(item(1).Flag, own) << "as it was";
        EXPECT_EQ(lines, everything([&] {
                      trace_in("Selects::Draw", "name");
                      spin.Cadre_Outline(100, 300, 200, 230);
                      name_told(200);
                      item(1).Flag |= GRAPH_OUTLINE;
                      item(1).Draw();
                      item(1).Flag = own;
                      trace_out("Selects::Draw", "GRAPH_OUTLINE");
                  }));
        EXPECT_EQ(lines.find("Tools::Arrow"), std::string::npos);
    }
    spin.Grow(0, 0);
    EXPECT_EQ(drawn().find("Buttons::"), std::string::npos);
}

TEST_F(Painted_Spinner, WithoutChoicesFrameAndArrowsAreDrawn) {
    horizontal(0);
    shown();
    EXPECT_EQ(drawn(), everything([&] {
                  trace_in("Selects::Draw", "no name");
                  spin.Box.Draw();
                  update_told(false, -1);
                  trace_out("Selects::Draw", "");
              }));
    EXPECT_EQ(spin.Read(), 0);
}

TEST_F(Painted_Spinner, ANarrowOneHasNoArrows) {
    for (const int width : {32, 10}) {
        spin.Arrow_Dim = 0;
        lay(0, 1, width, 30);
        shown();
        const std::string lines = drawn();
        EXPECT_NE(lines.find("Tools::Arrow(larg <= border)"), std::string::npos);
        EXPECT_EQ(lines.find("draw_fill_polygon"), std::string::npos);
    }
}

TEST_F(Painted_Spinner, DrawBringsTheValueIntoRange) {
    horizontal(3);
    shown();
    for (const int value : {0, 2, 3, -1, INT_MAX, INT_MIN}) {
        spin.Cur_Value = value, spin.Old_Value = 77;
        const std::string lines = drawn();
        const int expected = value == 2 ? 2 : 0;
        EXPECT_EQ(spin.Cur_Value, expected);
        EXPECT_EQ(spin.Old_Value, expected);
        EXPECT_NE(lines.find("Buttons::Draw(no" + std::to_string(expected) + ")"), std::string::npos);
    }
}

TEST_F(Painted_Spinner, DrawLeavesAChoiceThatIsSkipped) {
    horizontal(4);
    shown();
    skip(1), skip(2);
    spin.Cur_Value = 1;
    drawn();
    EXPECT_EQ(spin.Cur_Value, 3);
    skip(3);
    spin.Cur_Value = 2;
    drawn();
    EXPECT_EQ(spin.Cur_Value, 0) << "round the end";
    EXPECT_EQ(spin.Old_Value, 0);
}

TEST_F(Painted_Spinner, WithAllChoicesSkippedDrawEndsWhereItBegan) {
    horizontal(3);
    shown();
    for (int i = 0; i < 3; i++)
        skip(i);
    for (const int value : {0, 1, 2}) {
        spin.Cur_Value = value;
        EXPECT_EQ(drawn(), everything([&] {
                      trace_in("Selects::Draw", "no name");
                      spin.Box.Draw();
                      update_told(false, value);
                      trace_out("Selects::Draw", "");
                  }));
        EXPECT_EQ(spin.Cur_Value, value) << "one whole round";
    }
}

// --- Adjust ---

TEST_F(Painted_Spinner, AdjustRepaintsAllButTheFrame) {
    spin.Name_Set(L"name");
    horizontal(3);
    shown();
    for (const int state : {0, 1, 2}) {
        spin.select = state;
        spin.Cur_Value = 2, spin.Old_Value = 0;
        EXPECT_EQ(adjusted(), everything([&] {
                      trace_in("Selects::Adjust", "name");
                      update_told(state == 1, 2);
                      trace_out("Selects::Adjust", "");
                  }));
        EXPECT_EQ(spin.Old_Value, 2);
        EXPECT_EQ(spin.select, state);
    }
    EXPECT_EQ(adjusted(), nothing("Selects::Adjust", "Cur_Value==old_value"));
}

TEST_F(Painted_Spinner, AdjustDoesNotCorrectAValueOutsideTheRange) {
    horizontal(3);
    shown();
    for (const int value : {3, -1, INT_MAX, INT_MIN}) {
        spin.Cur_Value = value;
        EXPECT_EQ(adjusted(), nothing("Selects::Adjust", "outside range"));
        EXPECT_EQ(spin.Cur_Value, value);
        EXPECT_EQ(spin.Old_Value, 0);
    }
    spin.Grow(0, 0);
    spin.Cur_Value = 0;
    EXPECT_EQ(adjusted(), nothing("Selects::Adjust", "outside range"));
}

TEST_F(Painted_Spinner, AdjustLeavesAChoiceThatIsSkippedFirst) {
    horizontal(3);
    shown();
    skip(1);
    spin.Cur_Value = 1;
    EXPECT_NE(adjusted().find("Buttons::Draw(no2)"), std::string::npos);
    EXPECT_EQ(spin.Cur_Value, 2);
    EXPECT_EQ(spin.Old_Value, 2);
    spin.Cur_Value = 1; // and so it may come to what is shown
    EXPECT_EQ(adjusted(), nothing("Selects::Adjust", "Cur_Value==old_value"));
    EXPECT_EQ(spin.Cur_Value, 2);
}

TEST_F(Painted_Spinner, AdjustOfOtherLooks) {
    horizontal(3);
    shown();
    spin.Cur_Value = 1;
    spin.Flag = OUTIL_DISABLE;
    EXPECT_EQ(adjusted(), nothing("Selects::Adjust", "OUTIL_DISABLE"));
    EXPECT_EQ(spin.Old_Value, 0);
    spin.Flag = OUTIL_INVISIBLE;
    EXPECT_EQ(adjusted(), nothing("Selects::Adjust", "OUTIL_INVISIBLE"));
    EXPECT_EQ(spin.Old_Value, 1);
    for (const DWORD flag : {OUTIL_EMPTY, GRAPH_OUTLINE}) {
        spin.Flag = flag;
        spin.Cur_Value = 1, spin.Old_Value = 0;
        EXPECT_EQ(adjusted(), nothing("Selects::Adjust", ""));
        EXPECT_EQ(spin.Old_Value, 1);
    }
    spin.Flag = 0;
    spin.Dim_X = 0;
    EXPECT_EQ(adjusted(), nothing("Selects::Adjust", "<0"));
    EXPECT_EQ(drawn(), nothing("Selects::Draw", "<0"));
}

// --- The first use ---

TEST_F(Painted_Spinner, FirstUseWarnsOnceWithTheOperationsName) {
    expect_first_use<Selects>({{"Selects::Adjust", [](Selects& s) { s.Adjust(); }},
                               {"Selects::Draw", [](Selects& s) { s.Dim_X = 0, s.Draw(); }},
                               {"Selects::Read", [](Selects& s) { s.Read(); }},
                               {"Selects::Scroll", [](Selects& s) { s.Scroll(1); }},
                               {"Selects::Select", [](Selects& s) { s.Select(0); }}});
}

} // namespace
