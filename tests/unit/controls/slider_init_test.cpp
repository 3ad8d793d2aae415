#include <cmath>
#include <cstdlib>
#include <limits>

#include "slider_fixture.h"

// What Init makes of a slider's fields.

namespace {

constexpr float kNaN = std::numeric_limits<float>::quiet_NaN();
constexpr float kInf = std::numeric_limits<float>::infinity();

TEST_F(Slider, BeginsAllZeroAndTracesItsLife) {
    EXPECT_EQ(made_all_zero<Sliders>(), everything([] { begins("Sliders"); }));
    EXPECT_EQ(everything([] { Sliders fresh; }), everything([] { begins("Sliders"), ends("Sliders"); }));
}

TEST_F(Slider, CopiesEverythingTheTableIncluded) {
    slider.Reserved = 77;
    slider.Cur_Value = 12;
    const auto same = [&](const Sliders& copy) {
        EXPECT_EQ(copy.Reserved, 77);
        EXPECT_EQ(copy.Cur_Value, 12);
        EXPECT_EQ(copy.Table_Size, 128);
        EXPECT_EQ(copy.Wnd, recorder::window());
        EXPECT_TRUE(std::equal(std::begin(copy.Value_Table), std::end(copy.Value_Table), slider.Value_Table));
    };
    Sliders assigned;
    recorder::clear();
    const Sliders copy(slider);
    assigned = slider;
    EXPECT_EQ(recorder::text(), "");
    same(copy);
    same(assigned);
}

TEST_F(Slider, InitTracesItsEnd) {
    EXPECT_EQ(everything([&] { slider.Init(recorder::window(2)); }), everything([&] {
                  trace_in("Sliders::Init", "no name");
                  trace_out("Sliders::Init", "");
              }));
    EXPECT_EQ(slider.Wnd, recorder::window(2));
    slider.Init(nullptr);
    EXPECT_EQ(slider.Wnd, recorder::window(2));
}

TEST_F(Slider, InitOfNoSizeOnlyMarksIt) {
    for (const auto& size : {std::pair(0, 5), std::pair(5, 0), std::pair(-3, 5)}) {
        Sliders small;
        small.Dim_X = size.first, small.Dim_Y = size.second;
        small.Held = 1;
        small.Init(recorder::window());
        EXPECT_EQ(recorder::exit_tag("Sliders::Init"), "<0");
        EXPECT_EQ(small.test, 1);
        EXPECT_EQ(small.Wnd, nullptr);
        EXPECT_EQ(small.Held, 1);
    }
    EXPECT_EQ(recorder::warnings(), "");
}

TEST_F(Slider, InitWithoutAWindowWarnsEachTime) {
    Sliders lost;
    lost.Dim_X = 100, lost.Dim_Y = 10;
    lost.Held = 1;
    lost.Name_Set(L"lost");
    for (int time = 0; time < 2; ++time) {
        recorder::clear();
        lost.Init(nullptr);
        EXPECT_EQ(recorder::warnings(), window_warning("Sliders::Init", "lost"));
        EXPECT_EQ(recorder::exit_tag("Sliders::Init"), "!wnd");
    }
    EXPECT_EQ(lost.test, 5);
    EXPECT_EQ(lost.Held, 1);
    EXPECT_EQ(lost.Border, 0);
    EXPECT_EQ(lost.Table_Size, 0);
}

TEST_F(Slider, InitHoldsTheThumbBetweenItsBounds) {
    struct {
        int length, thick, curseur, larg, expected;
    } const rows[] = {
        {200, 16, 16, 20, 20}, {200, 16, 16, 0, 8},   {200, 16, 16, 7, 8},    {200, 16, 16, -50, 8},
        {200, 16, 16, 84, 84}, {200, 16, 16, 85, 84}, {201, 16, 16, 500, 84}, {200, 16, 40, 3, 20},
        {200, 16, 17, 0, 8},   {60, 40, 16, 20, -10}, {61, 40, 16, -99, -10}, {40, 16, 16, 99, 4},
        {32, 16, 16, 0, 0},    {1, 1, 16, 0, -1},     {5, 100, 16, 8, -98},
    };
    for (const DWORD axis : kAxes)
        for (const auto& row : rows) {
            CURSEUR = row.curseur;
            lay(axis, row.length, row.thick, row.larg);
            EXPECT_EQ(slider.Larg, row.expected) << row.length << " by " << row.thick << ", " << row.larg;
        }
}

TEST_F(Slider, InitPutsFieldsRight) {
    struct {
        int border, expected;
    } const borders[] = {{0, 1}, {-5, 1}, {1, 1}, {2, 2}, {9, 9}};
    for (const auto& row : borders) {
        lay(0, 200, 16, 20, row.border);
        EXPECT_EQ(slider.Border, row.expected);
    }
    struct {
        float step, expected;
    } const steps[] = {{0, 1}, {-0.0f, 1}, {0.25f, 0.25f}, {-2, -2}};
    for (const auto& row : steps) {
        slider.Step = row.step;
        slider.Init(nullptr);
        EXPECT_EQ(slider.Step, row.expected);
    }
    slider.Color = Colors(0, 0, 0, 9);
    slider.Init(nullptr);
    EXPECT_TRUE(slider.Color == Colors(170, 170, 170));
    EXPECT_EQ(slider.Color.A, 0);
    slider.Color = Colors(0, 0, 1, 7);
    slider.Init(nullptr);
    EXPECT_TRUE(slider.Color == Colors(0, 0, 1));
}

TEST_F(Slider, InitKeepsTheLookAndEndsThePress) {
    slider.select = 1, slider.Held = 1;
    slider.Init(nullptr);
    EXPECT_EQ(slider.select, 1);
    EXPECT_EQ(slider.Held, 0);
}

TEST_F(Slider, InitMakesRegionAndRemembersTheSize) {
    EXPECT_EQ(slider.Region.left, 10);
    EXPECT_EQ(slider.Region.top, 20);
    EXPECT_EQ(slider.Region.right, 211);
    EXPECT_EQ(slider.Region.bottom, 37);
    EXPECT_EQ(slider.Old_Dim_X, 200);
    EXPECT_EQ(slider.Old_Dim_Y, 16);
}

TEST_F(Slider, TableHasStepsOfOneWhereTheyFit) {
    for (const DWORD axis : kAxes) {
        lay(axis, 173, 16); // 173 - 2 * 16 - 2 * 1 - 2 * 20 + 2
        ASSERT_EQ(slider.Table_Size, 101);
        for (int i = 0; i < 101; ++i)
            EXPECT_EQ(slider.Value_Table[i], static_cast<float>(i));
        lay(axis | OUTIL_REVERSE, 173, 16);
        for (int i = 0; i < 101; ++i)
            EXPECT_EQ(slider.Value_Table[i], static_cast<float>(100 - i));
    }
}

TEST_F(Slider, TableIsMadeByRunningAddition) {
    lay(0, 373, 16, 20, 4);
    slider.Val_Min = 0.1f, slider.Val_Max = 0.9f;
    slider.Init(nullptr);
    ASSERT_EQ(slider.Table_Size, 295); // 373 - 32 - 8 - 40 + 2
    const float step = (0.9f - 0.1f) / 294.0f;
    volatile float value = 0.1f;
    bool multiplied = true;
    for (int i = 0; i < 295; ++i) {
        ASSERT_EQ(slider.Value_Table[i], value) << i;
        multiplied &= slider.Value_Table[i] == 0.1f + static_cast<float>(i) * step;
        value = value + step;
    }
    EXPECT_FALSE(multiplied) << "the two ways do not differ here: the row proves nothing";
}

TEST_F(Slider, TableHoldsNoMoreThan4096) {
    lay(0, 4095 + 72, 16);
    EXPECT_EQ(slider.Table_Size, 4095);
    lay(0, 4096 + 72, 16);
    EXPECT_EQ(slider.Table_Size, 4096);
    lay(0, 10000, 16);
    EXPECT_EQ(slider.Table_Size, 4096);
    EXPECT_NEAR(slider.Value_Table[4095], 100.0f, 0.1f);
    EXPECT_NEAR(slider.Value_Table[2048], 50.0f, 0.1f);
}

TEST_F(Slider, ATrackWithoutRoomLeavesTheTableAlone) {
    struct {
        int length, thick, larg, border, size;
    } const rows[] = {{200, 16, 84, 1, 0}, {201, 16, 84, 1, 1}, {200, 16, 84, 5, -8},
                      {60, 40, 8, 1, 0},   {10, 200, 8, 1, 0},  {61, 40, 8, 1, 1}};
    for (const DWORD axis : kAxes)
        for (const auto& row : rows) {
            slider.Value_Table[0] = 5, slider.Value_Table[1] = 6;
            lay(axis, row.length, row.thick, row.larg, row.border);
            EXPECT_EQ(slider.Table_Size, row.size);
            EXPECT_EQ(slider.Value_Table[0], 5);
            EXPECT_EQ(slider.Value_Table[1], 6);
        }
    lay(0, 203, 16, 84); // two places more make a table of the two ends and the middle
    EXPECT_EQ(slider.Table_Size, 3);
    EXPECT_EQ(slider.Value_Table[1], 50);
}

TEST_F(Slider, HostsSurfacesAreShownAndNoneIsMade) {
    EXPECT_EQ(slider.Image_Normal, nullptr);
    EXPECT_EQ(slider.Image_Select, nullptr);
    slider.Alloc_Graph_Select(1);
    slider.Init(nullptr);
    EXPECT_EQ(slider.Image_Normal, nullptr);
    EXPECT_EQ(slider.Image_Select, slider.Graph_Select);
    slider.Alloc_Graph_Normal(2);
    slider.Init(nullptr);
    EXPECT_EQ(slider.Image_Normal, slider.Graph_Normal);
    EXPECT_EQ(slider.Image_Select, slider.Graph_Select);
    // A surface that is gone is not shown any more.
    slider.Graph_Normal = static_cast<DWORD*>(slider.Free(slider.Graph_Normal));
    slider.Init(nullptr);
    EXPECT_EQ(slider.Image_Normal, nullptr);
}

// --- The clamp, of Init, Draw and Adjust ---

struct Clamp {
    DWORD flag;
    float first, last, value, expected;
};
const Clamp kClamps[] = {
    {0, 0, 100, 50, 50},
    {0, 0, 100, -1, 0},
    {0, 0, 100, 101, 100},
    {0, 0, 100, 0, 0},
    {0, 0, 100, 100, 100},
    {OUTIL_REVERSE, 100, 0, 50, 50},
    {OUTIL_REVERSE, 100, 0, -1, 0},
    {OUTIL_REVERSE, 100, 0, 101, 100},
    {0, 100, 0, 50, 100},             // not told to be reversed: below the "lower" end
    {0, 100, 0, 150, 0},              // and above it, the smaller of both
    {OUTIL_REVERSE, 0, 100, 50, 100}, // the same the other way round
    {0, 7, 7, 3, 7},
    {0, 7, 7, 9, 7},
    {0, 0, 100, kInf, 100},
    {0, 0, 100, -kInf, 0},
    {0, 0, 100, kNaN, 100}, // what is no number goes to the upper end
    {OUTIL_REVERSE, 100, 0, kNaN, 100},
    {0, -kInf, kInf, 5, 5},
    {0, kInf, -kInf, 5, kInf},
};

TEST_F(Slider, InitDrawAndAdjustClamp) {
    for (const DWORD axis : kAxes)
        for (const Clamp& row : kClamps)
            for (int operation = 0; operation < 3; ++operation) {
                lay(axis | row.flag, 200, 16);
                slider.Val_Min = row.first, slider.Val_Max = row.last, slider.Cur_Value = row.value;
                operation == 0 ? slider.Init(nullptr) : operation == 1 ? slider.Draw() : slider.Adjust();
                EXPECT_EQ(slider.Cur_Value, row.expected)
                    << row.value << " in " << row.first << ".." << row.last << ", operation " << operation;
            }
}

} // namespace
