#include "slider_fixture.h"

// How a slider follows the pointer: what Select paints and answers, and how Deselect ends it.

namespace {

// The exit tags of the ways without a result in them.
constexpr const char* kUntouched = "OUTIL_EMPTY|OUTIL_INVISIBLE:0";
constexpr const char* kFaceless = "OUTIL_EMPTY|OUTIL_INVISIBLE|OUTIL_OUTLINE";

TEST_F(Slider, QueryTestsTheRegionAndNothingElse) {
    for (const DWORD axis : kAxes)
        for (const DWORD flag : {DWORD(0), OUTIL_DISABLE, OUTIL_INVISIBLE | OUTIL_DISABLE, GRAPH_OUTLINE,
                                 OUTIL_EMPTY, OUTIL_CAPTURE}) {
            lay(axis | flag, 200, 16);
            slider.Held = 1, slider.select = 2, slider.Cur_Value = 50;
            const int far_x = right(), far_y = top(); // the far edges belong to it
            struct {
                int x, y, answer;
            } const spots[] = {{kX, kY, 1},     {far_x, far_y, 1},     {kX - 1, kY, 0},
                               {kX, kY - 1, 0}, {far_x + 1, far_y, 0}, {far_x, far_y + 1, 0}};
            for (const auto& spot : spots)
                for (const int mode : {4, 4 + 16, 4 + 32}) {
                    recorder::pointer(spot.x, spot.y);
                    expect_select(mode, spot.answer, -1, spot.answer ? "KEY_QUERY:1" : "KEY_QUERY:0", 2);
                }
            EXPECT_EQ(slider.Held, 1);
            EXPECT_EQ(slider.Cur_Value, 50);
        }
}

TEST_F(Slider, WithoutCaptureItFollowsThePointer) {
    for (const DWORD axis : kAxes) {
        lay(axis, 200, 16);
        struct {
            bool in;
            int mode, select, answer, look;
            const char* tag;
            int after;
        } const rows[] = {
            {true, 0, 0, 0, 1, "0", 1},
            {true, 1, 0, 1, 1, "1", 1},
            {true, 2, 0, 1, 1, "1", 1},
            {true, 3, 0, 0, 1, "0", 1},
            {true, 15, 0, 0, 1, "0", 1},
            {true, 1 + 16, 2, 1, 1, "1", 1},
            {true, 2 + 64, 2, 1, 1, "1", 1},
            {true, 0, 1, 0, -1, "select == 1", 1},
            {true, 1, 1, 1, -1, "select == 1", 1},
            {true, 2, 1, 1, -1, "select == 1", 1},
            {true, 3, 1, 0, -1, "select == 1", 1},
            {false, 0, 0, 0, 0, "0", 2},
            {false, 1, 0, 0, 0, "0", 2},
            {false, 2, 1, 0, 0, "0", 2},
            {false, 1, 2, 0, -1, "select == 2", 2},
            {false, 0, 2, 0, -1, "select == 2", 2},
        };
        for (const auto& row : rows) {
            row.in ? inside() : outside();
            slider.select = row.select;
            expect_select(row.mode, row.answer, row.look, row.tag, row.after);
            EXPECT_EQ(slider.Held, 0);
        }
        slider.Held = 1; // counts only with the flag
        slider.select = 1;
        outside();
        expect_select(1, 0, 0, "0", 2);
    }
}

TEST_F(Slider, WithCaptureOnlyThePressCounts) {
    for (const DWORD axis : kAxes) {
        lay(axis | OUTIL_CAPTURE, 200, 16);
        inside();
        expect_select(1, 0, 1, "0", 1); // hovering answers 0
        expect_select(0, 0, -1, "select == 1", 1);
        expect_select(2, 1, -1, "select == 1", 1);
        EXPECT_EQ(slider.Held, 1);
        expect_select(1, 1, -1, "select == 1", 1);
        outside();
        expect_select(1, 1, -1, "select == 1", 1); // it goes on outside
        expect_select(3, 1, -1, "select == 1", 1);
        slider.select = 2;
        expect_select(1, 1, 1, "1", 1); // and looks touched there
        expect_select(2, 1, -1, "select == 1", 1);
        expect_select(0, 0, 0, "0", 2); // the release ends it
        EXPECT_EQ(slider.Held, 0);
        expect_select(1, 0, -1, "select == 2", 2);
        expect_select(2, 0, -1, "select == 2", 2); // a press outside is none
        EXPECT_EQ(slider.Held, 0);
    }
}

TEST_F(Slider, ADragFollowsBesideTheTrackAndStopsAtItsEnds) {
    for (const DWORD axis : kAxes) {
        lay(axis | OUTIL_CAPTURE, 173, 16);
        along(80);
        ASSERT_EQ(slider.Select(2), 1);
        slider.Cur_Value = slider.Read();
        EXPECT_EQ(slider.Cur_Value, 44); // 80 - (16 + 1 + 20 - 1)
        beside(90);
        ASSERT_EQ(slider.Select(1), 1);
        slider.Cur_Value = slider.Read();
        EXPECT_EQ(slider.Cur_Value, 54);
        for (const int past : {16, 0, -900, 157, 173, 900}) {
            beside(past);
            ASSERT_EQ(slider.Select(1), 1);
            EXPECT_EQ(slider.Read(), 54) << past;
        }
    }
}

TEST_F(Slider, DisabledShowsTheNormalLook) {
    for (const DWORD axis : kAxes)
        for (const bool in : {true, false})
            for (const int mode : {0, 1, 2, 3}) {
                lay(axis | OUTIL_DISABLE | OUTIL_CAPTURE, 200, 16);
                in ? inside() : outside();
                slider.select = 1, slider.Held = 1;
                expect_select(mode, 0, 0, "OUTIL_DISABLE:0", 1);
                EXPECT_EQ(slider.Held, mode == 0 ? 0 : 1); // even here the event 0 ends the press
                slider.Flag |= OUTIL_EMPTY;
                EXPECT_EQ(everything([&] { EXPECT_EQ(slider.Select(mode), 0); }), everything([&] {
                              trace_in("Sliders::Select", "no name");
                              read_pointer("Sliders::Select");
                              cursor(); // the thumb alone
                              trace_out("Sliders::Select", "OUTIL_DISABLE:0");
                          }));
                for (const DWORD hidden : {OUTIL_INVISIBLE, GRAPH_OUTLINE}) {
                    slider.Flag = axis | OUTIL_DISABLE | hidden;
                    expect_select(mode, 0, -1, kUntouched, 1);
                }
            }
}

TEST_F(Slider, AnOutlineAnswersNothing) {
    for (const DWORD axis : kAxes)
        for (const int mode : {0, 1, 2, 3, 2 + 16}) {
            lay(axis | GRAPH_OUTLINE | OUTIL_CAPTURE, 200, 16);
            inside();
            slider.Held = 1;
            expect_select(mode, 0, -1, kUntouched, 0);
            EXPECT_EQ(slider.Held, mode == 0 ? 0 : 1);
            along(2); // nor does its arrow
            slider.Cur_Value = 50;
            slider.Select(2);
            EXPECT_EQ(slider.Cur_Value, 50);
        }
}

TEST_F(Slider, HiddenItAnswersButPaintsNothing) {
    for (const DWORD axis : kAxes)
        for (const DWORD flag : {OUTIL_EMPTY, OUTIL_INVISIBLE, OUTIL_EMPTY | OUTIL_INVISIBLE}) {
            lay(axis | flag, 200, 16);
            inside();
            expect_select(0, 0, -1, kFaceless, 0);
            expect_select(1, 1, -1, kFaceless, 0);
            expect_select(2, 1, -1, kFaceless, 0);
            expect_select(3, 0, -1, kFaceless, 0);
            outside();
            expect_select(1, 0, -1, kUntouched, 0);
            slider.Flag |= OUTIL_CAPTURE;
            inside();
            expect_select(2, 1, -1, kFaceless, 0);
            outside();
            expect_select(1, 1, -1, kFaceless, 0);
            expect_select(0, 0, -1, kUntouched, 0);
            slider.Cur_Value = 50; // its arrows work
            along(2);
            expect_select(2, 1, -1, kFaceless, 0);
            EXPECT_EQ(slider.Cur_Value, 49);
        }
}

// --- The arrows ---

struct Press {
    DWORD flag;
    int offset;
    float value, expected;
};

TEST_F(Slider, APressOnAnArrowSteps) {
    const Press rows[] = {
        {0, 0, 50, 47},
        {0, 15, 50, 47},
        {0, 16, 50, 50},
        {0, 100, 50, 50},
        {0, 184, 50, 50},
        {0, 185, 50, 53},
        {0, 200, 50, 53}, // the arrow is 16 of 200
        {0, 5, 2, 0},
        {0, 190, 99, 100}, // no farther than the end
        {OUTIL_REVERSE, 0, 50, 53},
        {OUTIL_REVERSE, 15, 50, 53},
        {OUTIL_REVERSE, 16, 50, 50},
        {OUTIL_REVERSE, 184, 50, 50},
        {OUTIL_REVERSE, 185, 50, 47},
        {OUTIL_REVERSE, 200, 50, 47},
        {OUTIL_REVERSE, 5, 98, 100},
        {OUTIL_REVERSE, 190, 1, 0},
    };
    for (const DWORD axis : kAxes)
        for (const DWORD capture : {DWORD(0), OUTIL_CAPTURE})
            for (const Press& row : rows)
                for (const int mode : {2, 2 + 16, 1, 0, 3}) {
                    lay(axis | capture | row.flag, 200, 16);
                    slider.Step = 3;
                    slider.Cur_Value = row.value;
                    along(row.offset);
                    slider.Select(mode);
                    EXPECT_EQ(slider.Cur_Value, (mode & 15) == 2 ? row.expected : row.value)
                        << "at " << row.offset << " mode " << mode << " flag " << slider.Flag;
                }
}

TEST_F(Slider, TheArrowOfAPressGoesByArrowLen) {
    for (const DWORD axis : kAxes) {
        lay(axis, 200, 16);
        slider.Arrow_Len = 40;
        slider.Cur_Value = 50;
        along(39);
        slider.Select(2);
        EXPECT_EQ(slider.Cur_Value, 49);
        along(40);
        slider.Select(2);
        EXPECT_EQ(slider.Cur_Value, 49);
        along(160);
        slider.Select(2);
        EXPECT_EQ(slider.Cur_Value, 49);
        along(161);
        slider.Select(2);
        EXPECT_EQ(slider.Cur_Value, 50);
        // In both arrows at once the first one counts.
        slider.Arrow_Len = 150;
        along(100);
        slider.Select(2);
        EXPECT_EQ(slider.Cur_Value, 49);
        // Reading has zones of its own, as long as the slider is thick.
        slider.Arrow_Len = 40;
        along(30);
        EXPECT_NE(slider.Read(), 49);
    }
}

// The value moves before the face is painted, and not at all while it is disabled.
TEST_F(Slider, ASteppedValueIsPaintedAtOnceWhenTheLookChanges) {
    lay(0, 173, 16); // 99 pixels of play for 100 values
    slider.Cur_Value = 51;
    along(2);
    EXPECT_EQ(painted([&] { slider.Select(2); }), painted([&] {
                  read_pointer("Sliders::Select");
                  face(true, nullptr);
                  arrows(16);
                  thumb(66); // 99 * 0.5 + 16, and a half
              }));
    EXPECT_EQ(slider.Read(), 50) << "over an arrow it is the value that has just been changed";
    EXPECT_EQ(painted([&] { slider.Select(2); }), painted([&] { read_pointer("Sliders::Select"); }));
    EXPECT_EQ(slider.Cur_Value, 49);
    slider.Flag = OUTIL_DISABLE;
    slider.Select(2);
    EXPECT_EQ(slider.Cur_Value, 49);
}

TEST_F(Slider, AHeldPressStepsOutsideToo) {
    lay(OUTIL_CAPTURE, 200, 16);
    slider.Cur_Value = 50, slider.Held = 1;
    beside(-30);
    EXPECT_EQ(slider.Select(2), 1);
    EXPECT_EQ(slider.Cur_Value, 49);
    slider.Held = 0;
    EXPECT_EQ(slider.Select(2), 0);
    EXPECT_EQ(slider.Cur_Value, 49);
}

// --- Deselect ---

TEST_F(Slider, DeselectGivesTheNormalLookBack) {
    for (const DWORD axis : kAxes) {
        lay(axis | OUTIL_CAPTURE, 200, 16);
        slider.select = 1, slider.Held = 1;
        inside();
        EXPECT_EQ(everything([&] { slider.Deselect(); }), everything([&] {
                      trace_in("Sliders::Deselect", "no name");
                      face(false, nullptr);
                      cursor();
                      trace_out("Sliders::Deselect", "");
                  }));
        EXPECT_EQ(slider.Held, 0);
        EXPECT_EQ(slider.select, 1); // so under a resting pointer it does not light up again
        expect_select(0, 0, -1, "select == 1", 1);
        outside();
        slider.Select(0);
        inside();
        expect_select(0, 0, 1, "0", 1);
    }
}

TEST_F(Slider, DeselectEndsThePressWhateverFollows) {
    struct {
        DWORD flag;
        int select;
        const char* tag;
    } const rows[] = {{0, 0, "select == 0"},         {0, 2, "select == 0"},
                      {OUTIL_EMPTY, 1, kFaceless},   {OUTIL_INVISIBLE, 1, kFaceless},
                      {GRAPH_OUTLINE, 1, kFaceless}, {OUTIL_EMPTY, 0, kFaceless}};
    for (const auto& row : rows) {
        slider.Flag = row.flag;
        slider.select = row.select, slider.Held = 1;
        EXPECT_EQ(everything([&] { slider.Deselect(); }), everything([&] {
                      trace_in("Sliders::Deselect", "no name");
                      trace_out("Sliders::Deselect", row.tag);
                  }));
        EXPECT_EQ(slider.Held, 0);
        EXPECT_EQ(slider.select, row.select);
    }
}

} // namespace
