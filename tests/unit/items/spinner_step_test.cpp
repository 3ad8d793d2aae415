#include <climits>
#include <vector>

#include "spinner_fixture.h"

// How presses and the wheel step through a spinner's choices.

namespace {

// --- Select: stepping ---

TEST_F(Tracked_Spinner, EveryPointOfALyingSpinnerStepsByItsDistance) {
    horizontal(5); // the zone runs from 105 to 295, the arrows are 30
    shown();
    for (int x = 99; x <= 301; x++)
        for (const int y : {200, 215, 230}) { // anywhere in the height
            recorder::pointer(x, y);
            spin.Cur_Value = 2, spin.select = 1;
            spin.Select(2 + 16);
            const int step = x < 100 || x > 300 ? 0 : x < 135 ? -1 : x > 265 ? 1 : 0;
            ASSERT_EQ(spin.Cur_Value, 2 + step) << x;
        }
}

// The low end steps forward here, which agrees with a list read from the top.
TEST_F(Tracked_Spinner, EveryPointOfAnUprightSpinnerStepsTheOtherWay) {
    vertical(5); // the zone runs from 205 to 395, the arrows are 40
    shown();
    for (int y = 199; y <= 401; y++)
        for (const int x : {100, 120, 140}) {
            recorder::pointer(x, y);
            spin.Cur_Value = 2, spin.select = 1;
            spin.Select(2);
            const int step = y < 200 || y > 400 ? 0 : y < 245 ? 1 : y > 355 ? -1 : 0;
            ASSERT_EQ(spin.Cur_Value, 2 + step) << y;
        }
}

TEST_F(Tracked_Spinner, WhereBothArrowsHoldTheFirstOneWins) {
    horizontal(5);
    shown();
    spin.Arrow_Dim = 150;
    recorder::pointer(200, 215);
    spin.Cur_Value = 2;
    spin.Select(2);
    EXPECT_EQ(spin.Cur_Value, 1);
    spin.Flag = OUTIL_VERTICAL;
    recorder::pointer(200, 215);
    spin.Select(2);
    EXPECT_EQ(spin.Cur_Value, 2);
}

TEST_F(Tracked_Spinner, OnlyAFreshPressSteps) {
    horizontal(3);
    shown();
    on_high();
    for (int mode = 0; mode < 128; mode++) {
        spin.Cur_Value = 0;
        spin.Select(mode);
        EXPECT_EQ(spin.Cur_Value, (mode & 15) == 2 ? 1 : 0) << mode;
    }
    outside();
    spin.Cur_Value = 0;
    spin.Select(2);
    EXPECT_EQ(spin.Cur_Value, 0);
}

TEST_F(Tracked_Spinner, APressEntersAndShowsTheNewChoice) {
    horizontal(3);
    shown();
    on_high();
    EXPECT_EQ(selected(2, 1), select_told("1", [&] { update_told(true, 1); }));
    EXPECT_EQ(spin.Cur_Value, 1);
    EXPECT_EQ(spin.Old_Value, 0) << "Adjust would repaint";
}

TEST_F(Tracked_Spinner, ASecondPressShowsOnlyAtDeselect) {
    horizontal(3);
    shown();
    on_high();
    spin.Select(2);
    EXPECT_EQ(selected(2, 1), select_told("select == 1"));
    EXPECT_EQ(spin.Cur_Value, 2);
    EXPECT_EQ(everything([&] { spin.Deselect(); }), everything([&] {
                  trace_in("Selects::Deselect", "no name");
                  update_told(false, 2);
                  trace_out("Selects::Deselect", "");
              }));
    EXPECT_EQ(spin.select, 0);
}

TEST_F(Tracked_Spinner, StepsWrapAtBothEndsAndSkip) {
    struct Row {
        int count;
        std::vector<int> skipped;
        int from, forward, backward;
    };
    for (const Row& row : {
             Row{3, {}, 0, 1, 2},
             Row{3, {}, 2, 0, 1},
             Row{3, {1}, 0, 2, 2},
             Row{4, {1, 2}, 0, 3, 3},
             Row{4, {0}, 3, 1, 2},
             Row{4, {3}, 0, 1, 2},
             Row{1, {}, 0, 0, 0},
             Row{3, {0, 1, 2}, 1, 1, 1}, // one whole round
             Row{3, {0, 2}, 1, 1, 1},
             Row{3, {1, 2}, 1, 0, 0},
         }) {
        spin.Grow(0, 0);
        horizontal(row.count);
        shown();
        for (const int i : row.skipped)
            skip(i);
        spin.Cur_Value = row.from;
        on_high();
        spin.Select(2);
        EXPECT_EQ(spin.Cur_Value, row.forward);
        spin.Cur_Value = row.from;
        on_low();
        spin.Select(2);
        EXPECT_EQ(spin.Cur_Value, row.backward);
        for (const int delta : {-1, 1}) {
            spin.Cur_Value = row.from;
            EXPECT_EQ(spin.Scroll(delta), delta < 0 ? row.forward : row.backward);
        }
    }
}

TEST_F(Tracked_Spinner, AStepFromOutsideTheRangeComesIntoIt) {
    horizontal(3);
    shown();
    for (const int wild : {3, 77, -1, -77, INT_MAX, INT_MIN}) {
        on_high();
        spin.Cur_Value = wild;
        spin.Select(2);
        EXPECT_EQ(spin.Cur_Value, wild > 0 || wild == -1 ? 0 : 2) << wild;
        on_low();
        spin.Cur_Value = wild;
        spin.Select(2);
        EXPECT_EQ(spin.Cur_Value, wild == 3 ? 2 : wild > 0 ? 0 : 2) << wild;
    }
}

TEST_F(Tracked_Spinner, WithoutChoicesNoStepIsMade) {
    horizontal(0);
    shown();
    for (const int value : {0, 5, -1}) {
        spin.Cur_Value = value;
        on_high();
        EXPECT_EQ(spin.Select(2), 1);
        EXPECT_EQ(spin.Cur_Value, value);
        EXPECT_EQ(everything([&] { EXPECT_EQ(spin.Scroll(1), 0); }), "");
        EXPECT_EQ(spin.Cur_Value, value);
    }
}

// --- Scroll ---

TEST_F(Tracked_Spinner, TheWheelStepsAndRepaintsWhereverThePointerIs) {
    horizontal(3);
    shown();
    spin.select = 2;
    EXPECT_EQ(everything([&] { EXPECT_EQ(spin.Scroll(1), 2); }), everything([&] { update_told(false, 2); }));
    EXPECT_EQ(spin.Old_Value, 0);
    EXPECT_EQ(spin.select, 2);
    spin.select = 1;
    EXPECT_EQ(everything([&] { EXPECT_EQ(spin.Scroll(-1), 0); }), everything([&] { update_told(true, 0); }));
    EXPECT_NE(painted([&] { spin.Scroll(1), spin.Adjust(); }), painted([&] { spin.Scroll(0); }))
        << "Adjust repaints once more";
}

TEST_F(Tracked_Spinner, BeyondAnEndTheWheelGoesToTheOtherOneAndNoFurther) {
    horizontal(4);
    shown();
    struct Row {
        int from, delta, to;
    };
    for (const Row& row : {
             Row{0, 1, 3},
             Row{3, -1, 0},
             Row{1, 2, 3},
             Row{2, -2, 0},
             Row{3, 3, 0},
             Row{3, 4, 3},
             Row{3, -3, 0},
             Row{0, -3, 3},
             Row{0, -4, 0},
             Row{2, 0, 2},
             Row{1, INT_MAX, 3},
             Row{1, INT_MIN, 0},
             Row{0, INT_MIN + 1, 0},
             Row{INT_MAX, INT_MIN, 0},
             Row{INT_MIN, INT_MAX, 3},
             Row{INT_MIN, INT_MIN, 0},
             Row{-5, -7, 2},
         }) {
        spin.Cur_Value = row.from;
        EXPECT_EQ(spin.Scroll(row.delta), row.to) << row.from << " by " << row.delta;
        EXPECT_EQ(spin.Cur_Value, row.to);
    }
}

TEST_F(Tracked_Spinner, TheWheelGoesOnByTheSameWayOverSkippedChoices) {
    horizontal(6);
    shown();
    skip(3);
    spin.Cur_Value = 5;
    EXPECT_EQ(spin.Scroll(2), 1) << "over 3";
    skip(1);
    spin.Cur_Value = 5;
    EXPECT_EQ(spin.Scroll(2), 5) << "over 3 and 1 and beyond the end";
    skip(5), skip(0), skip(2), skip(4);
    spin.Cur_Value = 2;
    EXPECT_EQ(spin.Scroll(0), 2) << "ends";
    EXPECT_EQ(spin.Scroll(1), 2) << "one whole round";
}

TEST_F(Tracked_Spinner, TheWheelOnOtherLooks) {
    horizontal(3);
    shown();
    spin.Flag = OUTIL_DISABLE;
    spin.Cur_Value = 1;
    EXPECT_EQ(everything([&] { EXPECT_EQ(spin.Scroll(1), 1); }), "");
    for (const DWORD flag : {OUTIL_INVISIBLE, OUTIL_EMPTY, GRAPH_OUTLINE}) {
        spin.Flag = flag;
        spin.Cur_Value = 1;
        EXPECT_EQ(everything([&] { EXPECT_EQ(spin.Scroll(1), 0); }), "");
    }
}

// A choice may be taken out of the round at any time, without an Init.
TEST_F(Tracked_Spinner, ChoicesComeAndGoAtRunTime) {
    horizontal(3);
    shown();
    skip(1);
    EXPECT_EQ(spin.Scroll(-1), 2);
    item(1).Flag &= ~OUTIL_INVISIBLE;
    EXPECT_EQ(spin.Scroll(1), 1);
}

} // namespace
