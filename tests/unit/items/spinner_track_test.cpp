#include <climits>

#include "spinner_fixture.h"

// How a spinner follows the pointer, and what it says.

namespace {

// --- Select: tracking ---

TEST_F(Tracked_Spinner, EnteringAndLeavingRepaintEachOnce) {
    spin.Name_Set(L"name");
    horizontal(3);
    spin.Cur_Value = 1;
    shown();
    for (const int mode : {0, 1, 3, 15, 64, 64 + 1}) {
        spin.select = 0;
        on_low();
        EXPECT_EQ(selected(mode, 1), select_told("1", [&] { update_told(true, 1); }));
        EXPECT_EQ(spin.select, 1);
        EXPECT_EQ(selected(mode, 1), select_told("select == 1"));
        outside();
        EXPECT_EQ(selected(mode, 0), select_told("0", [&] { update_told(false, 1); }));
        EXPECT_EQ(spin.select, 2);
        EXPECT_EQ(selected(mode, 0), select_told("select == 2"));
        EXPECT_EQ(spin.Cur_Value, 1) << "only a press steps";
    }
    EXPECT_EQ(spin.Old_Value, 1);
}

TEST_F(Tracked_Spinner, TheFarEdgesCountAsInside) {
    horizontal(1);
    shown();
    for (const auto& at : {std::pair(100, 200), std::pair(300, 230), std::pair(100, 230)}) {
        recorder::pointer(at.first, at.second);
        EXPECT_EQ(spin.Select(0), 1);
        EXPECT_EQ(spin.Select(KEY_QUERY), 1);
    }
    for (const auto& at :
         {std::pair(99, 215), std::pair(301, 215), std::pair(200, 199), std::pair(200, 231)}) {
        recorder::pointer(at.first, at.second);
        EXPECT_EQ(spin.Select(0), 0);
        EXPECT_EQ(spin.Select(KEY_QUERY), 0);
    }
}

TEST_F(Tracked_Spinner, KeyQueryAsksForTheRectangleAlone) {
    horizontal(2);
    shown();
    spin.select = 2;
    for (const DWORD flag : {DWORD(0), OUTIL_DISABLE, OUTIL_INVISIBLE, OUTIL_EMPTY, GRAPH_OUTLINE})
        for (const int mode : {KEY_QUERY, KEY_QUERY + 16, KEY_QUERY + 48}) {
            spin.Flag = flag;
            on_low();
            EXPECT_EQ(selected(mode, 1), select_told("KEY_QUERY:1"));
            outside();
            EXPECT_EQ(selected(mode, 0), select_told("KEY_QUERY:0"));
        }
    EXPECT_EQ(spin.select, 2);
    EXPECT_EQ(spin.Cur_Value, 0);
}

TEST_F(Tracked_Spinner, DisabledOrInOutlineItDoesNotReact) {
    horizontal(3);
    shown();
    for (const DWORD flag : {OUTIL_DISABLE, GRAPH_OUTLINE, OUTIL_DISABLE | OUTIL_INVISIBLE})
        for (const int mode : {0, 1, 2}) {
            spin.Flag = flag;
            on_low();
            EXPECT_EQ(selected(mode, 0), select_told("OUTIL_DISABLE:0"));
            outside();
            EXPECT_EQ(selected(mode, 0), select_told("OUTIL_DISABLE:0"));
        }
    EXPECT_EQ(spin.select, 0);
    EXPECT_EQ(spin.Cur_Value, 0);
}

TEST_F(Tracked_Spinner, WithoutAFaceItAnswersAndStepsButPaintsNothing) {
    horizontal(3);
    shown();
    for (const DWORD flag : {OUTIL_INVISIBLE, OUTIL_EMPTY}) {
        spin.Flag = flag;
        spin.Cur_Value = 0, spin.select = 1;
        on_high();
        for (const int mode : {0, 2}) {
            EXPECT_EQ(selected(mode, 1), select_told("OUTIL_EMPTY|OUTIL_INVISIBLE|OUTIL_OUTLINE"));
        }
        EXPECT_EQ(spin.Cur_Value, 1);
        outside();
        EXPECT_EQ(selected(0, 0), select_told("OUTIL_EMPTY|OUTIL_INVISIBLE|OUTIL_OUTLINE"));
        EXPECT_EQ(spin.select, 1);
    }
}

TEST_F(Tracked_Spinner, NoSizeIsNotThere) {
    horizontal(3);
    shown();
    on_low();
    for (const auto& size : {std::pair(0, 30), std::pair(200, -1)}) {
        spin.Dim_X = size.first, spin.Dim_Y = size.second;
        for (const int mode : {0, 2, KEY_QUERY})
            EXPECT_EQ(selected(mode, 0), everything([] {
                          trace_in("Selects::Select", "no name");
                          trace_out("Selects::Select", "<0");
                      }));
        EXPECT_EQ(spin.Read(), -1);
        EXPECT_EQ(recorder::exit_tag("Selects::Read"), "<0");
        spin.Deselect();
        EXPECT_EQ(recorder::exit_tag("Selects::Deselect"), "< 0");
        recorder::clear();
        EXPECT_EQ(everything([&] { EXPECT_EQ(spin.Scroll(1), 0); }), "");
    }
}

// --- Deselect ---

TEST_F(Tracked_Spinner, DeselectRepaintsOnlyAfterThePointerWasInside) {
    horizontal(2);
    shown();
    for (const int state : {0, 2}) {
        spin.select = state;
        EXPECT_EQ(everything([&] { spin.Deselect(); }), everything([] {
                      trace_in("Selects::Deselect", "no name");
                      trace_out("Selects::Deselect", "select == 0");
                  }));
        EXPECT_EQ(spin.select, 0);
    }
    for (const int state : {1, 7, -1}) {
        spin.select = state;
        on_low(); // the pointer does not matter
        EXPECT_EQ(everything([&] { spin.Deselect(); }), everything([&] {
                      trace_in("Selects::Deselect", "no name");
                      update_told(false, 0);
                      trace_out("Selects::Deselect", "");
                  }));
        EXPECT_EQ(spin.select, 0);
    }
    spin.Flag |= OUTIL_DISABLE;
    spin.select = 1;
    EXPECT_NE(painted([&] { spin.Deselect(); }), "");
}

TEST_F(Tracked_Spinner, WaysOutOfDeselect) {
    Selects fresh;
    fresh.Deselect();
    EXPECT_EQ(recorder::exit_tag("Selects::Deselect"), "! this->test");
    horizontal(2);
    shown();
    for (const DWORD flag : {OUTIL_EMPTY, OUTIL_INVISIBLE, GRAPH_OUTLINE}) {
        spin.Flag = flag;
        spin.select = 1;
        EXPECT_EQ(everything([&] { spin.Deselect(); }), everything([] {
                      trace_in("Selects::Deselect", "no name");
                      trace_out("Selects::Deselect", "OUTIL_EMPTY|OUTIL_INVISIBLE|OUTIL_OUTLINE");
                  }));
        EXPECT_EQ(spin.select, 1);
    }
}

// --- Read ---

TEST_F(Tracked_Spinner, ReadIsTheValueAsItStands) {
    horizontal(3);
    for (const int value : {0, 2, 3, -7, INT_MAX}) {
        spin.Cur_Value = value;
        EXPECT_EQ(everything([&] { EXPECT_EQ(spin.Read(), value); }), everything([] {
                      trace_in("Selects::Read", "no name");
                      trace_out("Selects::Read", "");
                  }));
    }
    for (const DWORD flag : {OUTIL_INVISIBLE, OUTIL_EMPTY, GRAPH_OUTLINE}) {
        spin.Flag = flag;
        EXPECT_EQ(spin.Read(), INT_MAX);
    }
    spin.Flag = OUTIL_DISABLE;
    spin.Cur_Value = 1;
    EXPECT_EQ(everything([&] { EXPECT_EQ(spin.Read(), -1); }), everything([] {
                  trace_in("Selects::Read", "no name");
                  trace_out("Selects::Read", "OUTIL_DISABLE");
              }));
}

} // namespace
