#include "track_fixture.h"

// A slider: its range, its thumb, and what a pointer event does.

namespace {

struct Slider : Track {
    int select(int mode) {
        recorder::clear();
        return slider.Select(mode);
    }
    float read(int offset) {
        along(offset);
        return slider.Read();
    }
    std::string tag(const char* operation) {
        return recorder::exit_tag(std::string("Sliders::") + operation);
    }
    // What the last call painted, beside reading the pointer.
    bool has_painted() {
        return recorder::text(recorder::kDraw).find("Zeb_color") != std::string::npos ||
               recorder::text(recorder::kDraw).find("draw_image") != std::string::npos;
    }
};

// --- Init ---

TEST_F(Slider, TableRunsOverTheRangeInEvenSteps) {
    for (const DWORD direction : kAxes) {
        lay(direction);
        ASSERT_EQ(slider.Table_Size, 101);
        for (int i = 0; i <= 100; i++)
            EXPECT_EQ(slider.Value_Table[i], static_cast<float>(i));
    }
}

TEST_F(Slider, TableIsMadeByAddingUp) {
    slider.Val_Max = 1;
    slider.Init(nullptr);
    const float step = 1.0f / 100;
    float sum = 0;
    for (int i = 0; i <= 100; i++, sum += step)
        EXPECT_EQ(slider.Value_Table[i], sum);
    EXPECT_NE(slider.Value_Table[100], 100 * step); // it is not multiplied
}

TEST_F(Slider, TableHasAtMost4096Places) {
    slider.Dim_X = 10000;
    slider.Init(nullptr);
    EXPECT_EQ(slider.Table_Size, 4096);
    EXPECT_EQ(slider.Value_Table[0], 0.0f);
    EXPECT_NEAR(slider.Value_Table[4095], 100.0f, 0.1f);
}

TEST_F(Slider, ShortTracksHaveNoTable) {
    slider.Dim_X = 60;
    slider.Dim_Y = 40;
    slider.Cur_Value = 7;
    slider.Init(nullptr);
    EXPECT_EQ(slider.Larg, -10); // the upper bound wins, even below the lower one
    EXPECT_LE(slider.Table_Size, 1);
    for (const int offset : {-5, 0, 30, 59, 100})
        EXPECT_EQ(read(offset), 7.0f);
}

struct Thumb {
    int given, dim_x, kept;
};
TEST_F(Slider, ThumbIsKeptWithinItsTrack) {
    for (const Thumb& row : {Thumb{0, 161, 8}, {9, 161, 9}, {1000, 161, 60}, {10, 50, 5}}) {
        slider.Larg = row.given;
        slider.Dim_X = row.dim_x;
        slider.Init(nullptr);
        EXPECT_EQ(slider.Larg, row.kept);
    }
}

TEST_F(Slider, InitMendsWhatWasNotGiven) {
    slider.Border = -4;
    slider.Step = 0;
    slider.Held = 1;
    slider.select = 2;
    slider.Color = Colors();
    slider.Init(nullptr);
    EXPECT_EQ(slider.Border, 1);
    EXPECT_EQ(slider.Step, 1.0f);
    EXPECT_EQ(slider.Held, 0);
    EXPECT_EQ(slider.select, 2); // not touched
    EXPECT_EQ(slider.Color_Get(), 0xAAAAAAu);
    EXPECT_EQ(slider.Region.right, 172);
    EXPECT_EQ(slider.Region.bottom, 41);
    EXPECT_EQ(slider.Old_Dim_X, 161);
    EXPECT_EQ(slider.Old_Dim_Y, 20);
}

struct Clamped {
    float value, kept;
};
TEST_F(Slider, ValueIsKeptWithinItsRange) {
    const Clamped rows[] = {{-1, 0}, {0, 0}, {50, 50}, {100, 100}, {101, 100}};
    for (const bool reverse : {false, true}) {
        lay(reverse ? OUTIL_REVERSE : 0);
        slider.Val_Min = reverse ? 100.0f : 0.0f;
        slider.Val_Max = reverse ? 0.0f : 100.0f;
        for (const Clamped& row : rows) {
            slider.Cur_Value = row.value;
            slider.Init(nullptr);
            EXPECT_EQ(slider.Cur_Value, row.kept);
            slider.Cur_Value = row.value;
            slider.Draw();
            EXPECT_EQ(slider.Cur_Value, row.kept);
            slider.Cur_Value = row.value;
            slider.Adjust();
            EXPECT_EQ(slider.Cur_Value, row.kept);
        }
    }
}

TEST_F(Slider, InitHasItsWaysOut) {
    Sliders fresh;
    fresh.Dim_X = 0, fresh.Dim_Y = 20;
    fresh.Init(recorder::window());
    EXPECT_EQ(tag("Init"), "<0");
    EXPECT_EQ(fresh.Wnd, nullptr); // not even stored
    fresh.Dim_X = 100;
    fresh.Init(nullptr);
    EXPECT_EQ(tag("Init"), "!wnd");
    EXPECT_EQ(fresh.test, 1);
    EXPECT_NE(recorder::warnings().find("type: Sliders::Init"), std::string::npos);
}

// --- Read ---

TEST_F(Slider, ReadHoldsTheThumbByItsMiddle) {
    for (const DWORD direction : kAxes) {
        lay(direction);
        slider.Cur_Value = 33;
        EXPECT_EQ(read(30), 0.0f);
        EXPECT_EQ(read(55), 25.0f);
        EXPECT_EQ(read(130), 100.0f);
        EXPECT_EQ(read(21), 0.0f);    // before the first place
        EXPECT_EQ(read(140), 100.0f); // behind the last one
        EXPECT_EQ(tag("Read"), direction ? "OUTIL_VERTICAL" : "");
        for (const int arrow : {-100, 0, 20, 141, 161, 1000})
            EXPECT_EQ(read(arrow), 33.0f) << arrow;
        slider.Arrow_Len = 60; // these zones do not follow it
        EXPECT_EQ(read(30), 0.0f);
        slider.Arrow_Len = 0;
    }
}

TEST_F(Slider, ReadOfOneThatCannotBeOperated) {
    slider.Cur_Value = 33;
    slider.Flag = OUTIL_DISABLE;
    EXPECT_EQ(read(55), 0.0f);
    EXPECT_EQ(tag("Read"), "OUTIL_DISABLE");
    slider.Dim_Y = 0;
    EXPECT_EQ(read(55), 0.0f);
    EXPECT_EQ(tag("Read"), "< 0");
}

// --- Select ---

struct Row {
    DWORD flag;
    int offset, before, mode;
    int answer, after;
    bool paints;
    const char* tag;
};
TEST_F(Slider, SelectFollowsThePointer) {
    const char* const hidden = "OUTIL_EMPTY|OUTIL_INVISIBLE:0";
    const char* const inert = "OUTIL_EMPTY|OUTIL_INVISIBLE|OUTIL_OUTLINE";
    const Row rows[] = {
        {0, 80, 0, 1, 1, 1, true, "1"},
        {0, 80, 2, 2, 1, 1, true, "1"},
        {0, 80, 1, 1, 1, 1, false, "select == 1"},
        {0, 80, 0, 0, 0, 1, true, "0"}, // a hover alone takes no value
        {0, 80, 0, 3, 0, 1, true, "0"},
        {0, 80, 0, 1 + 16, 1, 1, true, "1"},
        {0, 161, 0, 1, 1, 1, true, "1"}, // the far edge counts as inside
        {0, 162, 0, 1, 0, 2, true, "0"},
        {0, 162, 2, 1, 0, 2, false, "select == 2"},
        {0, 80, 0, 4, 1, 0, false, "KEY_QUERY:1"},
        {0, 162, 1, 4 + 16, 0, 1, false, "KEY_QUERY:0"},
        {OUTIL_DISABLE | OUTIL_INVISIBLE, 80, 0, 4, 1, 0, false, "KEY_QUERY:1"},
        {OUTIL_DISABLE, 80, 1, 1, 0, 1, true, "OUTIL_DISABLE:0"},
        {OUTIL_DISABLE | OUTIL_EMPTY, 80, 1, 1, 0, 1, true, "OUTIL_DISABLE:0"}, // arrows and thumb
        {OUTIL_DISABLE | OUTIL_INVISIBLE, 80, 1, 1, 0, 1, false, hidden},
        {GRAPH_OUTLINE, 80, 0, 1, 0, 0, false, hidden},
        {OUTIL_INVISIBLE, 80, 0, 1, 1, 0, false, inert},
        {OUTIL_INVISIBLE, 80, 0, 0, 0, 0, false, inert},
        {OUTIL_EMPTY, 80, 0, 2, 1, 0, false, inert},
        {OUTIL_EMPTY, 162, 0, 2, 0, 0, false, hidden},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(testing::Message() << std::hex << row.flag << " at " << std::dec << row.offset
                                        << " select " << row.before << " mode " << row.mode);
        slider.Flag = row.flag;
        slider.select = row.before;
        along(row.offset);
        EXPECT_EQ(select(row.mode), row.answer);
        EXPECT_EQ(slider.select, row.after);
        EXPECT_EQ(has_painted(), row.paints);
        EXPECT_EQ(tag("Select"), row.tag);
    }
}

TEST_F(Slider, CaptureHoldsFromThePressOn) {
    for (const DWORD direction : kAxes) {
        lay(direction | OUTIL_CAPTURE);
        along(80);
        EXPECT_EQ(select(1), 0); // not pressed here
        EXPECT_EQ(select(2), 1);
        EXPECT_EQ(slider.Held, 1);
        recorder::pointer(direction ? 300 : 65, direction ? 75 : 300); // beside the track
        EXPECT_EQ(select(1), 1);
        EXPECT_EQ(slider.Read(), 25.0f);
        slider.Adjust();
        EXPECT_EQ(slider.Held, 1); // a repaint keeps it
        EXPECT_EQ(select(0), 0);
        EXPECT_EQ(slider.Held, 0);
        EXPECT_EQ(select(1), 0);
    }
}

struct Press {
    bool reverse;
    int offset;
    float value, next;
};
TEST_F(Slider, ArrowsMoveTheValueByAStep) {
    const Press rows[] = {
        {false, 0, 50, 47},   {false, 19, 50, 47}, {false, 20, 50, 50},   {false, 141, 50, 50},
        {false, 142, 50, 53}, {false, 5, 2, 0},    {false, 150, 98, 100}, {true, 0, 50, 53},
        {true, 142, 50, 47},  {true, 5, 98, 100},  {true, 150, 2, 0},
    };
    for (const DWORD direction : kAxes)
        for (const Press& row : rows) {
            SCOPED_TRACE(testing::Message() << row.reverse << " at " << row.offset << " of " << row.value);
            lay(direction | (row.reverse ? OUTIL_REVERSE : 0));
            slider.Val_Min = row.reverse ? 100.0f : 0.0f;
            slider.Val_Max = row.reverse ? 0.0f : 100.0f;
            slider.Step = 3;
            slider.Cur_Value = row.value;
            along(row.offset);
            EXPECT_EQ(select(1), 1);
            EXPECT_EQ(slider.Cur_Value, row.value); // only a press does
            EXPECT_EQ(select(2), 1);
            EXPECT_EQ(slider.Cur_Value, row.next);
        }
}

TEST_F(Slider, ArrowsGoByTheirOwnLength) {
    slider.Cur_Value = 50;
    slider.Arrow_Len = 40;
    along(39);
    select(2);
    EXPECT_EQ(slider.Cur_Value, 49.0f);
    slider.Flag = OUTIL_DISABLE;
    select(2);
    EXPECT_EQ(slider.Cur_Value, 49.0f);
}

// --- Scroll, thumb, Deselect ---

TEST_F(Slider, ScrollMovesAgainstTheCount) {
    slider.Cur_Value = 2;
    EXPECT_EQ(slider.Scroll(3), 0.0f);
    slider.Cur_Value = 99;
    EXPECT_EQ(slider.Scroll(-3), 100.0f);
    EXPECT_EQ(slider.Scroll(2), 98.0f);
    EXPECT_TRUE(has_painted());
    slider.Flag = OUTIL_REVERSE;
    slider.Val_Min = 100, slider.Val_Max = 0;
    EXPECT_EQ(slider.Scroll(1), 99.0f); // toward the start, which is the greater end
    EXPECT_EQ(slider.Scroll(-4), 95.0f);
    EXPECT_EQ(slider.Scroll(1000), 100.0f);
    EXPECT_EQ(slider.Scroll(-1000), 0.0f);
    slider.Flag = OUTIL_DISABLE;
    slider.Cur_Value = 5;
    EXPECT_EQ(slider.Scroll(1), 5.0f);
    slider.Dim_X = 0;
    EXPECT_EQ(slider.Scroll(1), 0.0f);
}

struct Share {
    DWORD flag;
    int length;
    float visible, total;
    int larg;
};
TEST_F(Slider, ThumbShowsTheShare) {
    slider.Border = 1;
    const Share rows[] = {
        {0, 352, 10, 1000, 8},
        {0, 352, 500, 1000, 75},
        {0, 352, -500, 1000, 75},
        {0, 352, 5, 5, 150},
        {0, 352, 6, -5, 150},
        {0, 353, 5, 5, 150},
        {0, 52, 5, 5, 77},
        {0, 53, 5, 5, 0},
        {OUTIL_VERTICAL, 352, 5, 5, 155}, // 352 less both squares and bevels
        {OUTIL_VERTICAL, 52, 5, 5, 77},   // guarded by the gap all the same
    };
    for (const Share& row : rows) {
        SCOPED_TRACE(testing::Message() << row.flag << " " << row.length << " " << row.visible);
        slider.Flag = row.flag;
        slider.Dim_X = row.flag ? 20 : row.length;
        slider.Dim_Y = row.flag ? row.length : 20;
        slider.Larg = 77;
        recorder::clear();
        slider.Larg_Adjust(row.visible, row.total);
        EXPECT_EQ(slider.Larg, row.larg);
        EXPECT_EQ(recorder::text(), "");
    }
}

TEST_F(Slider, DeselectGivesTheNormalLookBackAndKeepsSelect) {
    slider.select = 1;
    slider.Held = 1;
    recorder::clear();
    slider.Deselect();
    EXPECT_TRUE(has_painted());
    EXPECT_EQ(tag("Deselect"), "");
    EXPECT_EQ(slider.select, 1);
    EXPECT_EQ(slider.Held, 0);
    for (const int state : {0, 2}) {
        slider.select = state;
        slider.Held = 1;
        recorder::clear();
        slider.Deselect();
        EXPECT_FALSE(has_painted());
        EXPECT_EQ(tag("Deselect"), "select == 0");
        EXPECT_EQ(slider.select, state);
        EXPECT_EQ(slider.Held, 0);
    }
    slider.select = 1;
    for (const DWORD flag : {OUTIL_EMPTY, OUTIL_INVISIBLE, GRAPH_OUTLINE}) {
        slider.Flag = flag;
        slider.Held = 1;
        recorder::clear();
        slider.Deselect();
        EXPECT_FALSE(has_painted());
        EXPECT_EQ(slider.Held, 0);
    }
    slider.Dim_X = 0;
    slider.Deselect();
    EXPECT_EQ(tag("Deselect"), "< 0");
}

TEST_F(Slider, EveryOperationWarnsOnceBeforeInit) {
    expect_first_use<Sliders>({{"Sliders::Adjust", [](Sliders& s) { s.Adjust(); }},
                               {"Sliders::Deselect", [](Sliders& s) { s.Deselect(); }},
                               {"Sliders::Draw", [](Sliders& s) { s.Draw(); }},
                               {"Sliders::Read", [](Sliders& s) { s.Read(); }},
                               {"Sliders::Scroll", [](Sliders& s) { s.Scroll(1); }},
                               {"Sliders::Select", [](Sliders& s) { s.Select(1); }}});
}

} // namespace
