#include <climits>
#include <limits>

#include "slider_fixture.h"

// The values of a slider: reading the pointer, the wheel, and the thumb's length.

namespace {

constexpr float kNaN = std::numeric_limits<float>::quiet_NaN();
constexpr float kInf = std::numeric_limits<float>::infinity();

std::string read_lines(const char* tag) {
    return everything([&] {
        trace_in("Sliders::Read", "no name");
        read_pointer("Sliders::Read");
        trace_out("Sliders::Read", tag);
    });
}

TEST_F(Slider, ReadTakesTheValueUnderTheThumbsMiddle) {
    struct {
        int offset;
        float value;
    } const rows[] = {
        {0, 7},   {16, 7},                        // the zone of the first arrow
        {17, 0},  {35, 0},   {36, 0},    {37, 1}, // then the first value, until half a thumb is passed
        {86, 50}, {135, 99}, {136, 100}, {137, 100}, {156, 100},
        {157, 7}, {173, 7},  {400, 7},   {-5, 7}, // and of the last
    };
    for (const DWORD axis : kAxes) {
        lay(axis, 173, 16);
        for (const auto& row : rows) {
            slider.Cur_Value = 7;
            along(row.offset);
            float value = -1;
            EXPECT_EQ(everything([&] { value = slider.Read(); }), read_lines(axis ? "OUTIL_VERTICAL" : ""));
            EXPECT_EQ(value, row.value) << row.offset;
            beside(row.offset);
            EXPECT_EQ(slider.Read(), value) << "only the way along counts";
            EXPECT_EQ(slider.Cur_Value, 7);
        }
    }
}

TEST_F(Slider, ReadHoldsThumbsOfAnyLength) {
    for (const DWORD axis : kAxes)
        for (const int larg : {8, 13, 60}) {
            lay(axis, 200, 16, larg, 3);
            const int first = 16 + 3 + larg - 1;
            along(first + 5);
            EXPECT_EQ(slider.Read(), slider.Value_Table[5]);
            along(first);
            EXPECT_EQ(slider.Read(), slider.Value_Table[0]);
            // The value read puts the thumb's middle back under the pointer, within a pixel.
            along(first + 9);
            slider.Cur_Value = slider.Read();
            const std::string lines = painted([&] { slider.Draw(); });
            const std::string groove = axis ? "move2s(16, " : "move2s(";
            EXPECT_NE(lines.find(groove), std::string::npos);
        }
}

TEST_F(Slider, AVeryLongTrackIsReadToItsEndBeforeItEnds) {
    lay(0, 10000, 16);
    slider.Cur_Value = 3;
    along(16 + 20 + 4095);
    const float last = slider.Read();
    EXPECT_EQ(last, slider.Value_Table[4095]);
    along(9900);
    EXPECT_EQ(slider.Read(), last);
    slider.Cur_Value = 100;
    EXPECT_EQ(painted([&] { slider.Draw(); }), painted([&] {
                  slider.Fill(0, kX, right(), kY, top());
                  frame();
                  arrows(16);
                  thumb(10000 - 32 - 40 - 2 + 16); // the thumb goes by the whole track
              }));
}

TEST_F(Slider, ReadWithoutATableGivesTheValue) {
    for (const DWORD axis : kAxes)
        for (const auto& row : {std::pair(200, 84), std::pair(201, 84), std::pair(60, 8)}) {
            lay(axis, row.first, 16, row.second);
            if (row.first == 60) lay(axis, 60, 16, 90);
            ASSERT_LE(slider.Table_Size, 1);
            slider.Cur_Value = 33;
            for (const int offset : {17, row.first / 2, row.first - 17}) {
                along(offset);
                EXPECT_EQ(slider.Read(), 33);
            }
        }
    Sliders fresh; // never built at all
    fresh.Dim_X = 200, fresh.Dim_Y = 16;
    fresh.Cur_Value = 4;
    recorder::pointer(100, 5);
    EXPECT_EQ(fresh.Read(), 4);
    for (const int size : {-1, INT_MIN, 0, 4097, INT_MAX}) { // a size that no Init wrote
        fresh.Table_Size = size;
        const float value = fresh.Read();
        EXPECT_TRUE(value == 4 || value == 0) << size;
    }
}

TEST_F(Slider, DisabledReadsNothing) {
    lay(OUTIL_DISABLE, 200, 16);
    slider.Cur_Value = 50;
    inside();
    EXPECT_EQ(everything([&] { EXPECT_EQ(slider.Read(), 0.0f); }), everything([&] {
                  trace_in("Sliders::Read", "no name");
                  trace_out("Sliders::Read", "OUTIL_DISABLE");
              }));
    for (const DWORD flag : {OUTIL_INVISIBLE, OUTIL_EMPTY, GRAPH_OUTLINE}) {
        slider.Flag = flag; // these do not matter here
        EXPECT_NE(slider.Read(), 0.0f);
    }
}

// --- The wheel ---

TEST_F(Slider, ScrollStepsTowardTheStart) {
    struct {
        DWORD flag;
        float step, value;
        int notches;
        float expected;
    } const rows[] = {
        {0, 1, 50, 3, 47},
        {0, 1, 50, -3, 53},
        {0, 1, 2, 3, 0},
        {0, 1, 99, -3, 100},
        {0, 2.5f, 50, 2, 45},
        {0, 1, 50, 0, 50},
        {0, -1, 50, 3, 53}, // a negative step turns it round
        {OUTIL_REVERSE, 1, 50, 3, 53},
        {OUTIL_REVERSE, 1, 50, -3, 47},
        {OUTIL_REVERSE, 1, 99, 3, 100},
        {OUTIL_REVERSE, 1, 2, -3, 0},
        {0, 1, 50, INT_MAX, 0},
        {0, 1, 50, INT_MIN, 100},
        {0, kInf, 50, 1, 0},
        {OUTIL_REVERSE, kInf, 50, 1, 100},
    };
    for (const DWORD axis : kAxes)
        for (const auto& row : rows) {
            lay(axis | row.flag, 200, 16);
            slider.Step = row.step, slider.Cur_Value = row.value;
            EXPECT_EQ(slider.Scroll(row.notches), row.expected) << row.value << " by " << row.notches;
            EXPECT_EQ(slider.Cur_Value, row.expected);
        }
}

TEST_F(Slider, ScrollRepaintsLikeAdjustWhereverThePointerIs) {
    for (const DWORD axis : kAxes) {
        lay(axis, 200, 16);
        slider.Cur_Value = 1;
        EXPECT_EQ(everything([&] { slider.Scroll(5); }), everything([&] {
                      trace_in("Sliders::Scroll", "no name");
                      trace_in("Sliders::Adjust", "no name");
                      face(false, nullptr);
                      frame();
                      cursor();
                      trace_out("Sliders::Adjust", "");
                      trace_out("Sliders::Scroll", "");
                  }));
        slider.Flag |= OUTIL_INVISIBLE;
        slider.Cur_Value = 50;
        recorder::clear();
        EXPECT_EQ(slider.Scroll(1), 49); // it moves all the same
        EXPECT_EQ(recorder::text(recorder::kDraw), "");
    }
}

TEST_F(Slider, DisabledDoesNotScroll) {
    lay(OUTIL_DISABLE, 200, 16);
    slider.Cur_Value = 500; // not even the clamp
    recorder::clear();
    EXPECT_EQ(slider.Scroll(3), 500);
    EXPECT_EQ(slider.Cur_Value, 500);
    EXPECT_EQ(recorder::text(recorder::kDraw), "");
}

// --- Larg_Adjust ---

TEST_F(Slider, LargAdjustSetsTheThumbInProportion) {
    struct {
        DWORD axis;
        int length, thick, border;
        float visible, total;
        int larg;
    } const rows[] = {
        {0, 344, 16, 1, 10, 1000, 8},  // a track of 300: max(1, 8)
        {0, 344, 16, 1, 50, 100, 75},  // half of it; Larg is half the thumb
        {0, 344, 16, 9, 50, 100, 75},  // the bevel does not count here
        {0, 344, 16, 1, -50, 100, 75}, // nor do signs
        {0, 344, 16, 1, 50, -100, 75},
        {0, 344, 16, 1, 100, 100, 150},
        {0, 344, 16, 1, -101, 100, 150},
        {0, 345, 16, 1, 5, 1, 150}, // 301 / 2
        {0, 345, 16, 1, 1, 3, 50},  // 50.17 is cut
        {0, 344, 16, 1, 0, 0, 150}, // nothing of nothing is all of it
        {0, 344, 16, 1, 0, 5, 8},
        {0, 44, 16, 1, 1, 2, -1}, // no room: Larg stays
        {0, 45, 16, 1, 5, 2, 0},  // room for one pixel
        {0, 45, 16, 1, 1, 2, 8},
        {OUTIL_VERTICAL, 344, 16, 1, 50, 100, 77}, // measured by the bevel: 344 - 2 * (1 + 16) = 310
        {OUTIL_VERTICAL, 344, 16, 6, 50, 100, 75},
        {OUTIL_VERTICAL, 344, 16, 1, 100, 100, 155},
        {OUTIL_VERTICAL, 44, 16, 1, 100, 100, -1}, // yet guarded by the gap
        {OUTIL_VERTICAL, 45, 16, 1, 100, 100, 5},
        {OUTIL_VERTICAL, 344, 16, 0, 100, 100, 156}, // the field as it stands
        {OUTIL_VERTICAL, 344, 16, -10, 100, 100, 166},
        {0, 344, 16, 1, kInf, 100, 150},
        {0, 344, 16, 1, 100, kInf, 8},
        {0, 344, 16, 1, kNaN, 100, 8}, // a ratio without value is 0
        {0, 344, 16, 1, 100, kNaN, 8},
    };
    for (const auto& row : rows) {
        lay(row.axis, row.length, row.thick);
        slider.Border = row.border;
        slider.Larg = -1;
        EXPECT_EQ(everything([&] { slider.Larg_Adjust(row.visible, row.total); }), "");
        EXPECT_EQ(slider.Larg, row.larg) << row.visible << " of " << row.total << " on " << row.length;
    }
}

TEST_F(Slider, LargAdjustGoesByTheMetrics) {
    SPACE = 10, CURSEUR = 50;
    lay(0, 352, 16);
    slider.Larg_Adjust(50, 100); // 352 - 2 * 26
    EXPECT_EQ(slider.Larg, 75);
    slider.Larg_Adjust(1, 100);
    EXPECT_EQ(slider.Larg, 25);
}

// All of it in single precision: in double the last product is a hair below 93 and is cut to 92.
TEST_F(Slider, LargAdjustIsSinglePrecision) {
    bool differs = false;
    lay(0, 2044, 16); // a track of 2000
    for (int total = 2; total < 4000 && !differs; ++total)
        for (int visible = 1; visible < total && !differs; visible += 7) {
            const float ratio = static_cast<float>(visible) / static_cast<float>(total);
            const int single = static_cast<int>(ratio * 1000.0f);
            const int twice = static_cast<int>(static_cast<double>(visible) / total * 1000.0);
            if (single == twice || single < 8) continue;
            differs = true;
            slider.Larg_Adjust(static_cast<float>(visible), static_cast<float>(total));
            EXPECT_EQ(slider.Larg, single) << visible << " of " << total;
        }
    EXPECT_TRUE(differs);
}

} // namespace
