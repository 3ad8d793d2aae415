#include <cmath>
#include <cstring>

#include "valuator_fixture.h"

// What Init makes of the fields, and the table.

namespace {

TEST_F(Valuator, StartsAllZero) {
    EXPECT_EQ(made_all_zero<Valuators>(), everything([] { begins("Valuators"); }));
}

TEST_F(Valuator, ConstructorAndDestructorReportCopiesDoNot) {
    EXPECT_EQ(everything([] { Valuators fresh; }),
              everything([] { begins("Valuators"), ends("Valuators"); }));
    Valuators other;
    EXPECT_EQ(everything([&] { other = bar; }), "");
}

TEST_F(Valuator, CopiesTakeEveryFieldAndTheTable) {
    static const char format[] = "%.1f";
    lay(0, 4, format, 40);
    bar.Step = 3, bar.select = 2, bar.Held = 1, bar.Cur_Value = 42;
    const Valuators copy(bar);
    Valuators assigned;
    assigned = bar;
    for (const Valuators* other : {&copy, static_cast<const Valuators*>(&assigned)}) {
        EXPECT_EQ(other->Format, format);
        EXPECT_EQ(other->Num_Width, 40);
        EXPECT_EQ(other->Step, 3);
        EXPECT_EQ(other->select, 2);
        EXPECT_EQ(other->Held, 1);
        EXPECT_EQ(other->Cur_Value, 42);
        EXPECT_EQ(other->Larg, bar.Larg);
        EXPECT_EQ(other->Table_Size, bar.Table_Size);
        EXPECT_EQ(std::memcmp(other->Value_Table, bar.Value_Table, sizeof bar.Value_Table), 0);
        EXPECT_EQ(other->Pos_X, kX);
        EXPECT_EQ(other->Wnd, bar.Wnd);
    }
}

// --- Ways out ---

TEST_F(Valuator, InitStopsForSizesBelowOneAndForANegativeField) {
    struct {
        int dx, dy, field;
    } const rows[] = {{0, 30, 0}, {200, 0, 0}, {-1, -1, 0}, {200, 30, -1}};
    for (const auto& row : rows) {
        Valuators small;
        small.Dim_X = row.dx, small.Dim_Y = row.dy, small.Num_Width = row.field;
        EXPECT_EQ(everything([&] { small.Init(recorder::window()); }), everything([] {
                      trace_in("Valuators::Init", "no name");
                      trace_out("Valuators::Init", "<0");
                  }));
        EXPECT_EQ(small.test, 1);
        EXPECT_EQ(small.Wnd, nullptr);
        EXPECT_EQ(small.Larg, 0);
        EXPECT_EQ(small.Table_Size, 0);
    }
}

TEST_F(Valuator, InitWithoutAWindowWarnsEachTime) {
    Valuators lone;
    lone.Dim_X = lone.Dim_Y = 50;
    for (int time = 0; time < 2; ++time) {
        recorder::clear();
        lone.Init(nullptr);
        EXPECT_EQ(recorder::warnings(), window_warning("Valuators::Init"));
        EXPECT_EQ(recorder::exit_tag("Valuators::Init"), "!wnd");
        EXPECT_EQ(lone.Table_Size, 0);
    }
    lone.Init(recorder::window());
    recorder::clear();
    lone.Init(nullptr); // the window is kept
    EXPECT_EQ(recorder::warnings(), "");
    EXPECT_EQ(lone.Wnd, recorder::window());
}

TEST_F(Valuator, InitOfOneWithoutAFaceDoesNotClamp) {
    for (const DWORD flag : {OUTIL_EMPTY, OUTIL_INVISIBLE, OUTIL_EMPTY | OUTIL_INVISIBLE}) {
        bar.Cur_Value = 500;
        bar.Flag = flag;
        bar.Table_Size = 0;
        bar.Init(nullptr);
        EXPECT_EQ(recorder::exit_tag("Valuators::Init"), "OUTIL_EMPTY | OUTIL_INVISIBLE");
        EXPECT_EQ(bar.Cur_Value, 500);
        EXPECT_GT(bar.Table_Size, 1) << "the table is built before";
    }
    for (const DWORD flag : {DWORD(0), GRAPH_OUTLINE, OUTIL_DISABLE, VALUATOR_FREZE}) {
        bar.Cur_Value = 500;
        bar.Flag = flag;
        bar.Init(nullptr);
        EXPECT_EQ(recorder::exit_tag("Valuators::Init"), "");
        EXPECT_EQ(bar.Cur_Value, 100);
    }
}

TEST_F(Valuator, InitPaintsNothing) {
    bar.Alloc_Graph_Normal(1);
    for (const DWORD axis : kAxes) {
        bar.Flag = axis;
        EXPECT_EQ(painted([&] { bar.Init(recorder::window()); }), "");
    }
}

// --- Fields ---

TEST_F(Valuator, InitFixesThumbColourRegionAndSize) {
    for (const DWORD axis : kAxes) {
        lay(axis);
        EXPECT_EQ(bar.Region.left, kX);
        EXPECT_EQ(bar.Region.top, kY);
        EXPECT_EQ(bar.Region.right, right() + 1);
        EXPECT_EQ(bar.Region.bottom, top() + 1);
        EXPECT_EQ(bar.Old_Dim_X, bar.Dim_X);
        EXPECT_EQ(bar.Old_Dim_Y, bar.Dim_Y);
    }
    struct {
        int larg, kept;
    } const rows[] = {{0, 16}, {15, 16}, {-40, 16}, {16, 16}, {17, 17}, {5000, 5000}}; // no upper bound
    for (const auto& row : rows) {
        bar.Larg = row.larg;
        bar.Init(nullptr);
        EXPECT_EQ(bar.Larg, row.kept);
    }
    CURSEUR = 30;
    bar.Larg = 20;
    bar.Init(nullptr);
    EXPECT_EQ(bar.Larg, 30);

    bar.Color = Colors(0, 0, 0, 9);
    bar.Init(nullptr);
    EXPECT_EQ(bar.Color_Get() & 0xFFFFFF, 0xAAAAAAu);
    EXPECT_EQ(bar.Color_Get() >> 24, 0u);
    bar.Color = Colors(0, 0, 1, 9);
    bar.Init(nullptr);
    EXPECT_EQ(bar.Color_Get() & 0xFFFFFF, 0x010000u);
}

TEST_F(Valuator, InitKeepsStepBorderTrackingAndHeld) {
    bar.Step = 0, bar.Border = 0, bar.select = 1, bar.Held = 1;
    bar.Init(recorder::window());
    EXPECT_EQ(bar.Step, 0);
    EXPECT_EQ(bar.Border, 0);
    EXPECT_EQ(bar.select, 1);
    EXPECT_EQ(bar.Held, 1);
}

TEST_F(Valuator, TheFieldNeedsAFormatAndAHorizontalBar) {
    lay(0, 0, "%f", 50);
    EXPECT_STREQ(bar.Format, "%f");
    EXPECT_EQ(bar.Num_Width, 50);
    lay(0, 0, nullptr, 50);
    EXPECT_EQ(bar.Num_Width, 0);
    lay(OUTIL_VERTICAL, 0, "%f", 50);
    EXPECT_EQ(bar.Format, nullptr) << "for good";
    EXPECT_EQ(bar.Num_Width, 0);
    lay(0, 0, "", 50); // an empty one is one
    EXPECT_STREQ(bar.Format, "");
    EXPECT_EQ(bar.Num_Width, 50);
}

TEST_F(Valuator, HostSurfacesBecomeTheLooks) {
    EXPECT_EQ(bar.Image_Normal, nullptr) << "none is generated";
    EXPECT_EQ(bar.Image_Select, nullptr);
    bar.Alloc_Graph_Normal(1);
    bar.Init(nullptr);
    EXPECT_EQ(bar.Image_Normal, bar.Graph_Normal);
    EXPECT_EQ(bar.Image_Select, nullptr);
    bar.Alloc_Graph_Select(2);
    bar.Init(nullptr);
    EXPECT_EQ(bar.Image_Select, bar.Graph_Select);
    EXPECT_NE(bar.Image_Select, bar.Image_Normal);
}

// --- Clamping ---

TEST_F(Valuator, InitClamps) {
    struct {
        DWORD flag;
        float first, last, value, kept;
    } const rows[] = {
        {0, 0, 100, -1, 0},
        {0, 0, 100, 0, 0},
        {0, 0, 100, 99.5f, 99.5f},
        {0, 0, 100, 101, 100},
        {OUTIL_REVERSE, 100, 0, 101, 100},
        {OUTIL_REVERSE, 100, 0, -1, 0},
        {OUTIL_REVERSE, 100, 0, 40, 40},
        {0, 100, 0, 40, 100}, // the wrong way round: the lower end is asked first
        {0, 100, 0, 140, 0},
        {OUTIL_REVERSE, 0, 100, 40, 100},
        {0, 5, 5, 1, 5},
        {0, -kInf, kInf, 7, 7},
        {0, 0, 100, kInf, 100},
        {0, 0, 100, -kInf, 0},
        {0, 0, 100, kNan, 100}, // what is no number goes to the upper end
        {OUTIL_REVERSE, 100, 0, kNan, 100},
    };
    for (const auto& row : rows) {
        bar.Flag = row.flag;
        bar.Val_Min = row.first, bar.Val_Max = row.last, bar.Cur_Value = row.value;
        bar.Init(nullptr);
        EXPECT_EQ(bar.Cur_Value, row.kept) << row.value << " in " << row.first << ".." << row.last;
    }
}

// --- The table ---

TEST_F(Valuator, TableSize) {
    struct {
        int length, larg, border, field, size;
    } const rows[] = {
        {200, 20, 0, 0, 156},                          // 200 - 40 - 6 + 2
        {200, 20, 1, 0, 160},   {200, 20, -1, 0, 164}, // not made absolute
        {200, 20, 0, 50, 106},  {46, 20, 0, 0, 2},      {45, 20, 0, 0, 1},
        {44, 20, 0, 0, 1},      {1, 20, 0, 0, 1},       {200, 5000, 0, 0, 1},
        {4140, 20, 0, 0, 4096}, {4141, 20, 0, 0, 4096}, {1000000, 20, 0, 0, 4096},
    };
    for (const DWORD axis : kAxes)
        for (const auto& row : rows) {
            lay(axis, row.border, row.field ? "%f" : nullptr, row.field);
            if (axis && row.field) continue; // such a bar has none
            (axis ? bar.Dim_Y : bar.Dim_X) = row.length;
            bar.Larg = row.larg;
            bar.Init(nullptr);
            EXPECT_EQ(bar.Table_Size, row.size) << row.length << " larg " << row.larg;
        }
}

// Running addition in single precision, so that its rounding adds up.
TEST_F(Valuator, LinearTableIsAddedUp) {
    bool drifts = false;
    for (const DWORD axis : kAxes)
        for (const auto& ends : {std::pair(0.0f, 100.0f), std::pair(0.0f, 0.99f), std::pair(-7.3f, 1e6f)}) {
            lay(axis);
            range(ends.first, ends.second);
            init();
            const float step = (ends.second - ends.first) / static_cast<float>(bar.Table_Size - 1);
            volatile float value = ends.first; // rounds at each step, whatever the compiler has in mind
            for (int i = 0; i < bar.Table_Size; ++i) {
                ASSERT_EQ(bar.Value_Table[i], value) << i;
                const volatile float product = ends.first + static_cast<float>(i) * step;
                drifts |= product != value;
                value = value + step;
            }
            EXPECT_NEAR(bar.Value_Table[bar.Table_Size - 1], ends.second, std::fabs(ends.second) * 1e-4);
        }
    EXPECT_TRUE(drifts) << "these ranges do not tell addition from multiplication";
}

TEST_F(Valuator, ReversedTableFalls) {
    lay(OUTIL_REVERSE);
    EXPECT_EQ(bar.Value_Table[0], 100);
    for (int i = 1; i < bar.Table_Size; ++i)
        ASSERT_LT(bar.Value_Table[i], bar.Value_Table[i - 1]);
    EXPECT_NEAR(bar.Value_Table[bar.Table_Size - 1], 0, 1e-3);
}

TEST_F(Valuator, LogarithmicTables) {
    for (const DWORD axis : kAxes) {
        lay(axis | VALUATOR_LOG10);
        (axis ? bar.Dim_Y : bar.Dim_X) = 301 - 2 + 40 + 6;
        range(1, 1000);
        bar.Init(nullptr);
        ASSERT_EQ(bar.Table_Size, 301);
        EXPECT_EQ(bar.Value_Table[0], 1);
        EXPECT_NEAR(bar.Value_Table[100], 10, 1e-3);
        EXPECT_NEAR(bar.Value_Table[150], 31.6228, 1e-3);
        EXPECT_NEAR(bar.Value_Table[300], 1000, 0.1);
        const float step = (std::log10(1000.0f) - std::log10(1.0f)) / 300.0f;
        for (int i = 0; i < 301; ++i)
            ASSERT_EQ(bar.Value_Table[i], std::pow(10.0f, static_cast<float>(i) * step)) << i;

        bar.Flag |= VALUATOR_LN; // the decimal one wins
        const float middle = bar.Value_Table[77];
        bar.Init(nullptr);
        EXPECT_EQ(bar.Value_Table[77], middle);

        bar.Flag = axis | VALUATOR_LN;
        range(2, 50);
        bar.Init(nullptr);
        const float first = std::log(2.0f), natural = (std::log(50.0f) - first) / 300.0f;
        for (int i = 0; i < 301; ++i)
            ASSERT_EQ(bar.Value_Table[i], std::exp(static_cast<float>(i) * natural + first)) << i;
        EXPECT_NEAR(bar.Value_Table[150], 10, 1e-3); // the geometric mean
    }
}

TEST_F(Valuator, ATableOfOneHoldsTheStart) {
    for (const DWORD scale : {DWORD(0), VALUATOR_LOG10, VALUATOR_LN})
        for (const float first : {5.0f, 0.0f, -3.0f}) {
            lay(scale);
            bar.Dim_X = 20;
            bar.Val_Min = first, bar.Val_Max = 90;
            bar.Init(nullptr);
            ASSERT_EQ(bar.Table_Size, 1);
            EXPECT_EQ(bar.Value_Table[0], first) << "scale " << std::hex << scale;
        }
}

// No range does harm: whatever the table holds, the value ends inside or at an end.
TEST_F(Valuator, RangesWithoutMeaning) {
    const float odd[] = {0, -1, 5, kInf, -kInf, kNan, 3.4e38f, -3.4e38f, 1e-45f};
    for (const DWORD axis : kAxes)
        for (const DWORD scale : {DWORD(0), VALUATOR_LOG10, VALUATOR_LN})
            for (const DWORD turned : {DWORD(0), OUTIL_REVERSE})
                for (const float first : odd)
                    for (const float last : odd)
                        for (const float value : {5.0f, -kInf, kNan}) {
                            bar.Flag = axis | scale | turned;
                            bar.Val_Min = first, bar.Val_Max = last, bar.Cur_Value = value;
                            bar.Init(nullptr);
                            bar.Draw();
                            inside();
                            bar.Cur_Value = bar.Read();
                            bar.Adjust();
                            bar.Scroll(3);
                            bar.Scroll(-2147483647 - 1);
                            EXPECT_EQ(bar.Table_Size > 0, true);
                            recorder::clear();
                        }
}

} // namespace
