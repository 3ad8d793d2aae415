#include <climits>
#include <cmath>

#include "valuator_fixture.h"

// Values read and moved, the thumb's length, the lock, and the number in its field.

namespace {

// --- Read ---

TEST_F(Valuator, ReadTakesTheEntryUnderTheThumbsMiddle) {
    for (const DWORD axis : kAxes) {
        lay(axis);
        // 22 is half the thumb, the bevel, less one: there entry 0 is.
        struct {
            int offset, entry;
        } const rows[] = {{-50, 0},   {0, 0},     {22, 0},    {23, 1},    {24, 2},    {100, 78},
                          {176, 154}, {177, 155}, {178, 155}, {200, 155}, {5000, 155}};
        for (const auto& row : rows) {
            along(row.offset);
            recorder::clear();
            EXPECT_EQ(bar.Read(), bar.Value_Table[row.entry]) << row.offset;
            const std::string lines = recorder::text();
            EXPECT_EQ(lines, everything([] {
                          trace_in("Valuators::Read", "no name");
                          read_pointer("Valuators::Read");
                          trace_out("Valuators::Read", "");
                      }));
        }
        along(-50);
        EXPECT_EQ(bar.Read(), bar.Val_Min);
        // Beside the track the extent alone counts, and the value itself does not change.
        axis ? recorder::pointer(-900, kY + 100) : recorder::pointer(kX + 100, -900);
        bar.Cur_Value = 3;
        EXPECT_EQ(bar.Read(), bar.Value_Table[78]);
        EXPECT_EQ(bar.Cur_Value, 3);
    }
}

TEST_F(Valuator, ReadCountsTheBevelAsItStands) {
    for (const int border : {0, 1, 5, -4}) {
        lay(0, border);
        along(100);
        EXPECT_EQ(bar.Read(), bar.Value_Table[100 - 20 - (border ? border : 3) + 1]);
    }
    lay(0, 0, "%f", 50); // the numeric field does not shift it
    along(100);
    EXPECT_EQ(bar.Read(), bar.Value_Table[78]);
    along(190);
    EXPECT_EQ(bar.Read(), bar.Value_Table[bar.Table_Size - 1]);
}

TEST_F(Valuator, ReadOfADisabledOrLockedOne) {
    bar.Cur_Value = 42;
    inside();
    bar.Flag = OUTIL_DISABLE | VALUATOR_FREZE;
    EXPECT_EQ(everything([&] { EXPECT_EQ(bar.Read(), 0); }), everything([] {
                  trace_in("Valuators::Read", "no name");
                  trace_out("Valuators::Read", "OUTIL_DISABLE");
              }));
    bar.Flag = VALUATOR_FREZE;
    EXPECT_EQ(everything([&] { EXPECT_EQ(bar.Read(), 42); }), everything([] {
                  trace_in("Valuators::Read", "no name");
                  trace_out("Valuators::Read", "VALUATOR_FREZE");
              }));
    for (const DWORD flag : {OUTIL_INVISIBLE, OUTIL_EMPTY, GRAPH_OUTLINE}) {
        bar.Flag = flag;
        EXPECT_EQ(bar.Read(), bar.Value_Table[78]);
    }
}

TEST_F(Valuator, ReadOfATableThatWasNeverBuilt) {
    Valuators fresh;
    fresh.Dim_X = 200, fresh.Dim_Y = 30;
    fresh.Cur_Value = 7;
    for (const int size : {0, -5, INT_MIN, INT_MAX}) { // the field is public
        fresh.Table_Size = size;
        for (const int x : {-100, 0, 100, INT_MAX, INT_MIN}) {
            recorder::pointer(x, 0);
            EXPECT_EQ(fresh.Read(), 0);
        }
    }
}

// A field below 0 stops Init alone: what comes later works on the table of before.
TEST_F(Valuator, ANegativeFieldLeavesTheTableOfBefore) {
    const float entry = bar.Value_Table[78];
    bar.Num_Width = -30;
    bar.Val_Max = 900;
    bar.Init(nullptr);
    EXPECT_EQ(recorder::exit_tag("Valuators::Init"), "<0");
    inside();
    EXPECT_EQ(bar.Read(), entry);
    bar.Draw();
    EXPECT_EQ(recorder::exit_tag("Valuators::Draw"), "");
    EXPECT_EQ(bar.Select(2), 1);
}

// --- Scroll ---

TEST_F(Valuator, ScrollMovesOnTheScaleAndRepaints) {
    struct {
        DWORD flag;
        float first, last, step, value;
        int notches;
        float after;
    } const rows[] = {
        {0, 0, 100, 0, 50, 1, 48},
        {0, 0, 100, 0, 50, -1, 52},
        {0, 0, 100, 0, 50, 0, 50},
        {0, 0, 100, 5, 50, 2, 40},
        {0, 0, 100, -5, 50, 2, 60},
        {0, 0, 100, 0, 1, 1, 0},
        {0, 0, 100, 0, 99, -1, 100},
        {OUTIL_REVERSE, 0, 100, 0, 50, 1, 52},
        {OUTIL_REVERSE, 0, 100, 0, 50, -1, 48},
        {OUTIL_REVERSE, 0, 100, 0, 99, 1, 100},
        {VALUATOR_LOG10, 1, 10000, 0.5f, 100, 2, 10},
        {VALUATOR_LOG10, 1, 10000, 0.5f, 100, -2, 1000},
        {VALUATOR_LOG10, 1, 10000, 0, 100, -25, 10000}, // 4 decades in fifty notches
        {VALUATOR_LOG10, 1, 10000, 0, 100, 25, 1},
        {VALUATOR_LOG10 | VALUATOR_LN, 1, 10000, 1, 100, 1, 10},
        {VALUATOR_LN, 1, 1000, 1, 100, 1, 36.787945f}, // by e
        {VALUATOR_LN, 1, 1000, 1, 100, -1, 271.82819f},
        {VALUATOR_LN, 1, 100, 0, 10, 25, 1},
        {VALUATOR_LOG10 | OUTIL_REVERSE, 1, 10000, 1, 100, 1, 1000},
        {0, 0, 100, 0, 50, INT_MAX, 0},
        {0, 0, 100, 0, 50, INT_MIN, 100},
    };
    for (const DWORD axis : kAxes)
        for (const auto& row : rows) {
            lay(axis | row.flag);
            range(row.first, row.last);
            bar.Step = row.step;
            bar.Init(nullptr);
            bar.Cur_Value = row.value;
            recorder::clear();
            const float answer = bar.Scroll(row.notches);
            const std::string lines = recorder::text(recorder::kDraw | recorder::kReport);
            EXPECT_NEAR(answer, row.after, row.after * 1e-5) << row.notches << " from " << row.value;
            EXPECT_EQ(bar.Cur_Value, answer);
            EXPECT_EQ(lines, everything([&] {
                          trace_in("Valuators::Scroll", "no name");
                          bar.Adjust();
                          trace_out("Valuators::Scroll", "");
                      }));
            bar.Step = 0;
        }
}

TEST_F(Valuator, ScrollOfADisabledOrLockedOneLeavesTheValue) {
    for (const DWORD flag : {OUTIL_DISABLE, VALUATOR_FREZE, OUTIL_DISABLE | VALUATOR_FREZE}) {
        bar.Flag = flag;
        bar.Cur_Value = 500; // not even clamped
        EXPECT_EQ(painted([&] { EXPECT_EQ(bar.Scroll(1), 500); }), "");
        EXPECT_EQ(bar.Cur_Value, 500);
    }
    bar.Flag = OUTIL_INVISIBLE; // but hidden ones move
    bar.Cur_Value = 50;
    EXPECT_EQ(painted([&] { EXPECT_EQ(bar.Scroll(1), 48); }), "");
}

// --- Larg_Adjust ---

TEST_F(Valuator, ThumbInProportion) {
    struct {
        int length;
        float visible, total;
        int larg;
    } const rows[] = {
        {200, 1, 2, 47},                                                           // half of 94
        {200, 2, 3, 62},                                                           // 62.67 is cut
        {200, -1, 2, 47},   {200, 1, -2, 47},   {200, 1, 100, 16},                 // CURSEUR at least
        {200, 1, 1, 94},                                                           // all of it
        {200, 5, 1, 94},    {200, -5, 1, 94},   {200, 0, 0, 94},    {30, 1, 1, 9}, // not held at CURSEUR
        {200, 0, 5, 16},    {13, 1, 1, 0},      {200, kInf, 1, 94}, {200, 1, kInf, 16},
        {200, kNan, 1, 16}, {200, 1, kNan, 16}, {12, 1, 1, 77}, // no room: stays
        {2, 1, 1, 77},
    };
    for (const DWORD axis : kAxes)
        for (const auto& row : rows) {
            lay(axis);
            (axis ? bar.Dim_Y : bar.Dim_X) = row.length;
            bar.Larg = 77;
            recorder::clear();
            bar.Larg_Adjust(row.visible, row.total);
            EXPECT_EQ(bar.Larg, row.larg) << row.visible << " of " << row.total << " in " << row.length;
            EXPECT_EQ(recorder::text(recorder::kDraw), "");
        }
    lay(0, 0, "%f", 50); // the field's width counts
    bar.Larg_Adjust(1, 2);
    EXPECT_EQ(bar.Larg, 34);
    bar.Num_Width = 188;
    bar.Larg_Adjust(1, 2);
    EXPECT_EQ(bar.Larg, 34);
    bar.Num_Width = 187;
    bar.Larg_Adjust(2, 1);
    EXPECT_EQ(bar.Larg, 0);
    bar.Num_Width = 0;
    SPACE = 10;
    bar.Larg_Adjust(1, 2);
    EXPECT_EQ(bar.Larg, 45);
}

// --- Lock ---

TEST_F(Valuator, LockOpensLocksAndTurnsOver) {
    struct {
        DWORD before;
        int state;
        DWORD after;
    } const rows[] = {{0, 0, 0},
                      {0, 1, VALUATOR_FREZE},
                      {0, 2, VALUATOR_FREZE},
                      {0, 8, VALUATOR_FREZE},
                      {0, -1, VALUATOR_FREZE},
                      {0, 9, VALUATOR_FREZE},
                      {VALUATOR_FREZE, 0, 0},
                      {VALUATOR_FREZE, 1, VALUATOR_FREZE},
                      {VALUATOR_FREZE, 8, 0}};
    for (const auto& row : rows)
        for (const DWORD other : {DWORD(0), OUTIL_VERTICAL | OUTIL_CAPTURE}) {
            Valuators fresh; // needs no Init and no size
            fresh.Flag = row.before | other;
            recorder::clear();
            fresh.Lock(row.state);
            EXPECT_EQ(fresh.Flag, row.after | other);
            EXPECT_EQ(recorder::text(recorder::kDraw), "");
            EXPECT_EQ(recorder::warnings(), "");
            EXPECT_EQ(fresh.test, 0);
        }
    bar.Lock(8);
    bar.Lock(8);
    EXPECT_EQ(bar.Flag, 0u);
}

// --- The number ---

TEST_F(Valuator, TheNumberInItsField) {
    struct {
        const char* format;
        const wchar_t* text;
    } const rows[] = {
        {"%f", L"12.500000"},
        {"%.1f", L"12.5"},
        {"%6.1f", L"  12.5"},
        {"%g dB", L"12.5 dB"},
        {"%e", L"1.250000e+01"},
        {"%5.0f%%", L"   12%"},
        {"%+.2f", L"+12.50"},
        {"\xC2\xB5%.1f", L"\u00B5"
                         L"12.5"},
        {"%lf", L"12.500000"},
    };
    for (const auto& row : rows)
        expect_shown(row.format, row.text);
}

// A format from outside may hold anything: what is not the one number prints nothing and reads nothing.
TEST_F(Valuator, AWrongFormatPrintsNothingOfMemory) {
    struct {
        const char* format;
        const wchar_t* text;
    } const rows[] = {
        {"text", L"text"},
        {"", L""},
        {"%s", L""},
        {"%n", L""},
        {"a%db", L"ab"},
        {"%d %f", L" 12.500000"},
        {"%.1f %.1f", L"12.5 "},
        {"%", L""},
        {"%%", L"%"},
        {"%ls|%.1f", L"|12.5"},
        {"%*.1f", L"12.5"},
        {"%p%x%c%hs", L""},
        {"100%", L"100"},
        {"%.*f", L"12"},
    };
    for (const auto& row : rows)
        expect_shown(row.format, row.text);
}

TEST_F(Valuator, ALongNumberIsCutAt79) {
    for (const char* format : {"%200.1f", "%.100f", "%0200f"}) {
        lay(0, 0, format, 60);
        bar.Cur_Value = 12.5f;
        const std::string lines = painted([&] { bar.Draw(); });
        const std::size_t start = lines.find("Zeb_Font_Write");
        ASSERT_NE(start, std::string::npos);
        const std::size_t open = lines.find('"', start), close = lines.find('"', open + 1);
        EXPECT_EQ(close - open - 1, 79u) << format;
    }
}

TEST_F(Valuator, NumbersThatAreNone) {
    struct {
        float first, last, value;
        const wchar_t* text;
    } const rows[] = {{-kInf, kInf, kInf, L"inf"}, {-kInf, kInf, -kInf, L"-inf"}, {0, kNan, kNan, L"nan"}};
    for (const auto& row : rows) {
        lay(0, 0, "%f", 60);
        bar.Val_Min = row.first, bar.Val_Max = row.last, bar.Cur_Value = row.value;
        EXPECT_EQ(painted([&] { bar.Draw(); }), painted([&] {
                      ground();
                      frame(3);
                      number(row.text);
                      thumb(0);
                  }));
    }
}

} // namespace
