#include "valuator_fixture.h"
#include "valuator_model.h"

// The pointer: Select, Held and Deselect.

namespace {

// Every combination of the flags, the tracking state, a press held or not, the event and the pointer.
TEST_F(Valuator, EveryEventInEveryState) {
    const DWORD flags[] = {OUTIL_CAPTURE, OUTIL_DISABLE, OUTIL_INVISIBLE, OUTIL_EMPTY, GRAPH_OUTLINE};
    for (const DWORD axis : kAxes)
        for (unsigned chosen = 0; chosen < 32; ++chosen) {
            DWORD flag = axis;
            for (int bit = 0; bit < 5; ++bit)
                if (chosen >> bit & 1) flag |= flags[bit];
            lay(flag);
            for (int state = 0; state < 2 * 2 * 3; ++state)
                for (const int mode : {16, 1, 18, 3, 52}) {
                    bar.select = state % 3, bar.Held = state / 3 % 2;
                    const bool over = state / 6;
                    over ? inside() : outside();
                    const Told expected = told(bar, mode, over);
                    int got = -1;
                    const std::string lines = everything([&] { got = bar.Select(mode); });
                    SCOPED_TRACE(testing::Message()
                                 << "flag " << std::hex << flag << " mode " << mode << " state " << state);
                    ASSERT_EQ(got, expected.answer);
                    ASSERT_EQ(bar.select, expected.select);
                    ASSERT_EQ(bar.Held, expected.held);
                    ASSERT_EQ(lines, everything([&] { select(expected.look, expected.tag); }));
                }
        }
}

TEST_F(Valuator, SelectPaintsFaceNameAndThumb) {
    for (const DWORD axis : kAxes)
        for (const int surfaces : {0, 1, 2, 3}) {
            bar.~Valuators();
            new (&bar) Valuators;
            bar.Name_Set(L"Name");
            if (surfaces) bar.Border = 2;
            lay(axis, surfaces ? 2 : 0, axis ? nullptr : "%.0f", axis ? 0 : 50);
            if (surfaces & 1) bar.Alloc_Graph_Normal(1);
            if (surfaces & 2) bar.Alloc_Graph_Select(2);
            bar.Init(nullptr);
            inside();
            EXPECT_EQ(everything([&] { bar.Select(1); }), everything([&] { select(1, "1"); }));
            outside();
            EXPECT_EQ(everything([&] { bar.Select(1); }), everything([&] { select(0, "0"); }));
        }
}

// The far edges of the bar count as inside, the pixel after them does not; the numeric field counts.
TEST_F(Valuator, EdgesOfTheHitRectangle) {
    lay(0, 0, "%f", 50);
    struct {
        int x, y, hit;
    } const rows[] = {{10, 20, 1},  {9, 20, 0},   {10, 19, 0}, {210, 50, 1},
                      {211, 50, 0}, {210, 51, 0}, {205, 30, 1}};
    for (const auto& row : rows) {
        recorder::pointer(row.x, row.y);
        EXPECT_EQ(bar.Select(KEY_QUERY), row.hit) << row.x << ", " << row.y;
        bar.select = 0;
        EXPECT_EQ(bar.Select(2), row.hit);
        EXPECT_EQ(bar.select, row.hit ? 1 : 2);
    }
}

TEST_F(Valuator, BeforeInitSelectAnswers0WithoutAWarning) {
    Valuators fresh;
    fresh.Dim_X = fresh.Dim_Y = 50;
    fresh.select = 1, fresh.Held = 1;
    for (const int mode : {0, 2, 4})
        EXPECT_EQ(everything([&] { EXPECT_EQ(fresh.Select(mode), 0); }), everything([] {
                      trace_in("Valuators::Select", "no name");
                      trace_out("Valuators::Select", "! test");
                  }));
    EXPECT_EQ(fresh.Held, 1);
    EXPECT_EQ(fresh.test, 0);
}

TEST_F(Valuator, ANameBeforeInitLetsSelectWarnOfBadData) {
    Valuators named;
    named.Dim_X = named.Dim_Y = 0;
    named.Name_Set(L"Name");
    recorder::clear();
    EXPECT_EQ(named.Select(2), 0);
    EXPECT_EQ(recorder::warnings(),
              first_use_warning("Valuator::Select", "Name", "bad data in device's structure"));
    EXPECT_EQ(recorder::exit_tag("Valuators::Select"), "<0");
    EXPECT_EQ(named.test, 2);
}

// --- Capture ---

TEST_F(Valuator, ACapturedDragGoesOnOutside) {
    lay(OUTIL_CAPTURE);
    inside();
    EXPECT_EQ(bar.Select(0), 0);
    EXPECT_EQ(bar.Select(17), 0) << "the button went down elsewhere";
    EXPECT_EQ(bar.Select(18), 1);
    outside();
    EXPECT_EQ(bar.Select(17), 1);
    EXPECT_EQ(bar.Select(18), 1);
    EXPECT_EQ(bar.select, 1);
    EXPECT_EQ(bar.Select(0), 0);
    EXPECT_EQ(bar.Held, 0);
    EXPECT_EQ(bar.select, 2);
    EXPECT_EQ(bar.Select(17), 0);
    EXPECT_EQ(bar.Select(18), 0) << "a press outside is none";
    EXPECT_EQ(bar.Held, 0);
}

TEST_F(Valuator, WithoutCaptureHeldCountsNothing) {
    bar.Held = 1;
    outside();
    EXPECT_EQ(bar.Select(1), 0);
    inside();
    EXPECT_EQ(bar.Select(1), 1);
    EXPECT_EQ(bar.Select(3), 0);
    EXPECT_EQ(bar.Held, 1);
}

TEST_F(Valuator, HeldOutlivesInit) {
    lay(OUTIL_CAPTURE);
    bar.Held = 1;
    bar.Init(recorder::window());
    EXPECT_EQ(bar.Held, 1);
}

TEST_F(Valuator, ALockedOneStillTracks) {
    lay(VALUATOR_FREZE);
    inside();
    EXPECT_EQ(everything([&] { EXPECT_EQ(bar.Select(1), 1); }), everything([&] { select(1, "1"); }));
}

// --- Deselect ---

TEST_F(Valuator, DeselectGivesTheNormalLookBack) {
    for (const DWORD axis : kAxes) {
        lay(axis);
        bar.Name_Set(L"Name");
        bar.select = 1, bar.Held = 1;
        EXPECT_EQ(everything([&] { bar.Deselect(); }), everything([&] {
                      trace_in("Valuators::Deselect", "Name");
                      face(false, bar.Image_Normal);
                      name();
                      thumb();
                      trace_out("Valuators::Deselect", "");
                  }));
        EXPECT_EQ(bar.select, 1) << "no new highlight under a resting pointer";
        EXPECT_EQ(bar.Held, 0);
        inside();
        EXPECT_EQ(painted([&] { bar.Select(2); }).find("draw"), std::string::npos);
    }
}

TEST_F(Valuator, DeselectPaintsNothingWhenNothingIsLit) {
    struct {
        DWORD flag;
        int select;
        const char* tag;
    } const rows[] = {
        {0, 0, "select == 0"},
        {0, 2, "select == 0"},
        {OUTIL_EMPTY, 1, "OUTIL_EMPTY|OUTIL_INVISIBLE|OUTIL_OUTLINE"},
        {OUTIL_INVISIBLE, 1, "OUTIL_EMPTY|OUTIL_INVISIBLE|OUTIL_OUTLINE"},
        {GRAPH_OUTLINE, 1, "OUTIL_EMPTY|OUTIL_INVISIBLE|OUTIL_OUTLINE"},
        {GRAPH_OUTLINE, 0, "OUTIL_EMPTY|OUTIL_INVISIBLE|OUTIL_OUTLINE"},
    };
    for (const auto& row : rows) {
        bar.Flag = row.flag, bar.select = row.select, bar.Held = 1;
        EXPECT_EQ(everything([&] { bar.Deselect(); }), everything([&] {
                      trace_in("Valuators::Deselect", "no name");
                      trace_out("Valuators::Deselect", row.tag);
                  }));
        EXPECT_EQ(bar.Held, 0);
        EXPECT_EQ(bar.select, row.select);
    }
    bar.Flag = OUTIL_DISABLE; // disabled ones are given it as well
    bar.select = 1;
    EXPECT_NE(painted([&] { bar.Deselect(); }), "");
}

} // namespace
