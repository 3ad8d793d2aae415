#include "checklist_fixture.h"

// What a check list paints.

namespace {

// --- Draw ---

struct Painted_Check_List : Check_List {
    // One entry of Draw, in a normal control.
    void entry(int i) {
        bracketed_text(i, box(i).Flag & GRAPH_OUTLINE ? kOutline : kBlack, "CheckLists::Draw");
        box(i).Draw();
        if (box(i).Cur_Value && box(i).Flag == 0) mark(box(i), i);
    }
};

TEST_F(Painted_Check_List, DrawGoesFrameThenTextBoxAndMarkOfEachEntry) {
    const char enable[] = {1, 1, 0, 0};
    const unsigned colours[] = {0xFF, 0xFF00, 0xFF0000, 0};
    struct Row {
        DWORD flag;
        int clip, row;
        bool coloured;
    };
    for (const Row& row : {Row{0, 0, 0, false}, Row{0, 130, 0, false}, Row{OUTIL_EMPTY, 0, 0, false},
                           Row{0, 0, 25, true}, Row{TEXT_LEFT, 0, 25, false}}) {
        control.Flag = row.flag;
        control.Clip_X = row.clip ? 90 : 0, control.Clip_Dim_X = control.Clip_Dim_Y = row.clip;
        control.Row_Dim = row.row;
        control.Colour = row.coloured ? colours : nullptr;
        control.Enable = enable;
        control.Cur_Value = 1 + 4;
        shown(4);
        const std::string lines = everything([&] { control.Draw(); });
        EXPECT_EQ(lines, everything([&] {
                      trace_in("CheckLists::Draw", "no name");
                      if (!(row.flag & OUTIL_EMPTY)) control.Box.Draw();
                      for (int i = 0; i < 4; i++)
                          entry(i);
                      trace_out("CheckLists::Draw", "");
                  }));
        EXPECT_EQ(times(lines, ">>> in  Lib_Brask: Tools::Fill_Yellow"), 1u)
            << "the second checked entry is disabled";
    }
}

TEST_F(Painted_Check_List, AnOutlineControlForgetsWhatEnableGave) {
    const char enable[] = {1, 0};
    control.Enable = enable;
    control.Flag = GRAPH_OUTLINE;
    control.Cur_Value = 3;
    laid(2);
    ASSERT_EQ(box(1).Flag, GRAPH_OUTLINE | OUTIL_DISABLE);
    control.Draw();
    EXPECT_EQ(box(1).Flag, 0u);
    const std::string lines = everything([&] { control.Draw(); });
    EXPECT_EQ(lines, everything([&] {
                  trace_in("CheckLists::Draw", "no name");
                  control.Box.Draw();
                  for (int i = 0; i < 2; i++) {
                      bracketed_text(i, kOutline, "CheckLists::Draw");
                      box(i).Flag = GRAPH_OUTLINE;
                      box(i).Draw();
                      box(i).Flag = 0;
                  }
                  trace_out("CheckLists::Draw", "GRAPH_OUTLINE");
              }));
    control.Init(nullptr);
    EXPECT_EQ(box(1).Flag, GRAPH_OUTLINE | OUTIL_DISABLE);
}

TEST_F(Painted_Check_List, WaysOutOfDraw) {
    laid(2);
    control.Cur_Value = 1;
    control.Flag = OUTIL_INVISIBLE;
    EXPECT_EQ(everything([&] { control.Draw(); }), everything([] {
                  trace_in("CheckLists::Draw", "no name");
                  trace_out("CheckLists::Draw", "OUTIL_INVISIBLE");
              }));
    control.Flag = 0;
    control.Dim_X = 0;
    control.Draw();
    EXPECT_EQ(recorder::exit_tag("CheckLists::Draw"), "<0");
    EXPECT_EQ(box(0).Cur_Value, 0);
}

TEST_F(Painted_Check_List, DrawTakesEachBit) {
    laid(65);
    for (const long long value : {0LL, 1LL, 6LL, -1LL, 1LL << 63, 1LL << 32, 0x5555555555555555LL}) {
        control.Cur_Value = value;
        control.Draw();
        for (int i = 0; i < 65; i++)
            EXPECT_EQ(box(i).Cur_Value, (value >> (i % 64)) & 1) << value << ' ' << i;
    }
}

TEST_F(Painted_Check_List, ExclusiveDrawTakesTheIndex) {
    control.Flag = CHECK_EXCLUSIVE;
    laid(3);
    for (const long long value : {2LL, 0LL, -1LL, 3LL, 1LL, 1LL << 40}) {
        control.Cur_Value = value;
        control.Draw();
        for (int i = 0; i < 3; i++)
            EXPECT_EQ(box(i).Cur_Value, i == value);
    }
}

TEST_F(Painted_Check_List, ADisabledControlKeepsTheStatesOfInit) {
    control.Flag = OUTIL_DISABLE;
    control.Cur_Value = 2;
    laid(3); // entry 1 alone has bit 1 in its shifted index
    EXPECT_EQ(box(1).Cur_Value, 1);
    control.Cur_Value = 1;
    control.Draw();
    EXPECT_EQ(box(0).Cur_Value, 0);
    EXPECT_EQ(box(1).Cur_Value, 1);
}

// --- Adjust ---

TEST_F(Painted_Check_List, AdjustRepaintsTheBoxesAlone) {
    const char enable[] = {1, 1, 0};
    control.Enable = enable;
    shown(3);
    control.Cur_Value = 6;
    const std::string lines = everything([&] { control.Adjust(); });
    EXPECT_EQ(lines, everything([&] {
                  trace_in("CheckLists::Adjust", "no name");
                  for (int i = 0; i < 3; i++) {
                      box(i).Draw();
                      if (i == 1) mark(box(i), i);
                  }
                  trace_out("CheckLists::Adjust", "");
              }));
    EXPECT_EQ(control.Old_Value, 6);
    EXPECT_EQ(box(2).Cur_Value, 1);
}

TEST_F(Painted_Check_List, AdjustPaintsTheNormalFormOfAnOutlineControlToo) {
    control.Flag = GRAPH_OUTLINE;
    shown(2);
    control.Cur_Value = 1;
    const std::string lines = everything([&] { control.Adjust(); });
    EXPECT_EQ(lines, everything([&] {
                  trace_in("CheckLists::Adjust", "no name");
                  box(0).Draw();
                  mark(box(0), 0);
                  box(1).Draw();
                  trace_out("CheckLists::Adjust", "");
              }));
}

TEST_F(Painted_Check_List, WaysOutOfAdjust) {
    shown(3);
    const auto way = [&] {
        const std::string lines = everything([&] { control.Adjust(); });
        EXPECT_EQ(times(lines, "\n"), 2u) << lines;
        const std::size_t at = lines.find("<<< out Lib_Brask: CheckLists::Adjust(") + 38;
        return lines.substr(at, lines.rfind(')') - at);
    };
    EXPECT_EQ(way(), "Cur_Value==old_value");
    control.Cur_Value = 1LL << 40; // alike in the low half
    control.Flag = OUTIL_DISABLE | CHECK_EXCLUSIVE;
    EXPECT_EQ(way(), "OUTIL_DISABLE");
    control.Flag = CHECK_EXCLUSIVE;
    for (const long long value : {1LL << 40, -1LL, 3LL}) {
        control.Cur_Value = value;
        EXPECT_EQ(way(), "Cur_Value outside range");
        EXPECT_EQ(way(), "Cur_Value outside range");
        EXPECT_EQ(control.Old_Value, 0);
        EXPECT_EQ(box(0).Cur_Value, 0);
    }
    control.Cur_Value = 2;
    control.Flag |= OUTIL_INVISIBLE;
    EXPECT_EQ(way(), "OUTIL_INVISIBLE");
    EXPECT_EQ(box(2).Cur_Value, 1);
    EXPECT_EQ(control.Old_Value, 2);
    control.Dim_Y = -1;
    EXPECT_EQ(way(), "<0");
}

TEST_F(Painted_Check_List, AdjustTakesBitsAndIndex) {
    shown(65);
    control.Cur_Value = (1LL << 63) | 1;
    control.Adjust();
    for (int i = 0; i < 65; i++)
        EXPECT_EQ(box(i).Cur_Value, i == 0 || i == 63 || i == 64);
    control.Flag = CHECK_EXCLUSIVE;
    control.Cur_Value = 64;
    control.Adjust();
    for (int i = 0; i < 65; i++)
        EXPECT_EQ(box(i).Cur_Value, i == 64);
}

} // namespace
