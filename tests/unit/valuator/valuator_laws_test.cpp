#include <climits>
#include <cmath>

#include "laws/chance.h"
#include "valuator_fixture.h"
#include "valuator_model.h"

// Random operations on random fields, against the model. LAWS_SEED repeats a run, LAWS_ROUNDS lengthens it.

namespace {

float any_float(Chance& chance) {
    return chance.of({0.0f, 1.0f, -1.0f, 0.5f, 100.0f, 1000.0f, 1e-30f, 3e38f, -3e38f, kInf, -kInf, kNan});
}
int any_int(Chance& chance) {
    if (chance.one_in(8)) return chance.of({INT_MIN, INT_MAX, -1, 0, 1, 4096, 100000});
    return chance.between(-20, 300);
}

void change(Valuators& bar, Chance& chance) {
    static const DWORD flags[] = {OUTIL_INVISIBLE, OUTIL_DISABLE,  OUTIL_VERTICAL, OUTIL_EMPTY,
                                  GRAPH_OUTLINE,   VALUATOR_FREZE, VALUATOR_LOG10, VALUATOR_LN,
                                  OUTIL_REVERSE,   OUTIL_CAPTURE,  TEXT_LEFT};
    switch (chance.below(15)) {
    case 0:
    case 1:
    case 2: bar.Flag ^= flags[chance.below(std::size(flags))]; break;
    case 3: bar.Flag = 0; break;
    case 4: bar.Dim_X = any_int(chance), bar.Dim_Y = any_int(chance); break;
    case 5: bar.Pos_X = any_int(chance), bar.Pos_Y = any_int(chance); break;
    case 6: bar.Val_Min = any_float(chance), bar.Val_Max = any_float(chance); break;
    case 7: bar.Cur_Value = any_float(chance); break;
    case 8: bar.Step = any_float(chance); break;
    case 9: bar.Larg = any_int(chance), bar.Num_Width = any_int(chance); break;
    case 10: bar.Border = chance.of({0, 0, 1, 3, 40, -1, -7, INT_MIN}); break;
    case 11: bar.Format = chance.of<const char*>({nullptr, "%f", "%.3g", "%s%n", "plain", "%900f"}); break;
    case 12: bar.Table_Size = any_int(chance); break;
    case 13: bar.select = chance.between(0, 2), bar.Held = chance.between(0, 1); break;
    default:
        bar.Dim_X = chance.between(1, 300), bar.Dim_Y = chance.between(1, 60); // sane again
        if (chance.one_in(2)) bar.Alloc_Graph_Normal(chance.word());
        if (chance.one_in(2)) bar.Alloc_Graph_Select(chance.word());
        bar.Init(recorder::window());
        break;
    }
}

bool in_range(const Valuators& bar) {
    const bool turned = bar.Flag & OUTIL_REVERSE;
    const float low = turned ? bar.Val_Max : bar.Val_Min, high = turned ? bar.Val_Min : bar.Val_Max;
    const float v = bar.Cur_Value;
    if (std::isnan(low) || std::isnan(high)) return true;
    return v == low || v == high || (low < v && v < high);
}

void hold_select(Valuators& bar, int mode, POINT at) {
    const RECT& r = bar.Region;
    const bool over = at.x >= r.left && at.x < r.right && at.y >= r.top && at.y < r.bottom;
    const bool there = bar.Dim_X > 0 && bar.Dim_Y > 0;
    const Told expected = bar.test && there ? told(bar, mode, over)
                                            : Told{0, -1, bar.test ? "<0" : "! test", bar.select, bar.Held};
    EXPECT_EQ(bar.Select(mode), expected.answer);
    EXPECT_EQ(recorder::exit_tag("Valuators::Select"), expected.tag);
    EXPECT_EQ(bar.select, expected.select);
    EXPECT_EQ(bar.Held, expected.held);
}

void operate(Valuators& bar, Chance& chance, POINT at) {
    const bool there = bar.Dim_X > 0 && bar.Dim_Y > 0, hidden = bar.Flag & OUTIL_INVISIBLE;
    const float value = bar.Cur_Value;
    switch (chance.below(9)) {
    case 0:
        bar.Init(chance.one_in(2) ? recorder::window() : nullptr);
        if (recorder::exit_tag("Valuators::Init") != "") break;
        EXPECT_TRUE(bar.Table_Size >= 1 && bar.Table_Size <= 4096);
        EXPECT_GE(bar.Larg, CURSEUR);
        EXPECT_TRUE(in_range(bar));
        break;
    case 1:
        bar.Draw();
        if (there && !hidden && !(bar.Flag & GRAPH_OUTLINE)) {
            EXPECT_TRUE(in_range(bar));
        }
        break;
    case 2:
        bar.Adjust();
        if (there && !hidden) {
            EXPECT_TRUE(in_range(bar));
        }
        break;
    case 3: {
        const float read = bar.Read();
        if (!there || bar.Flag & OUTIL_DISABLE) {
            EXPECT_EQ(read, 0);
        }
        EXPECT_TRUE(bar.Cur_Value == value || std::isnan(value)) << "Read changes nothing";
        break;
    }
    case 4: {
        const bool still = !there || bar.Flag & (OUTIL_DISABLE | VALUATOR_FREZE);
        bar.Scroll(any_int(chance));
        EXPECT_TRUE(still ? bar.Cur_Value == value || std::isnan(value) : in_range(bar));
        break;
    }
    case 5: bar.Larg_Adjust(any_float(chance), any_float(chance)); break;
    case 6: {
        const DWORD flag = bar.Flag;
        bar.Lock(chance.of({0, 1, 8}));
        EXPECT_EQ(bar.Flag & ~VALUATOR_FREZE, flag & ~VALUATOR_FREZE);
        break;
    }
    case 7:
        bar.Deselect();
        if (there) {
            EXPECT_EQ(bar.Held, 0);
        }
        break;
    default: hold_select(bar, chance.below(64), at); break;
    }
}

TEST_F(Valuator, AnyOperationsInAnyOrder) {
    Chance chance(law_seed());
    for (int round = 0; round < law_rounds(60); ++round) {
        Valuators any;
        for (int step = 0; step < 120; ++step) {
            const POINT at = {any_int(chance), any_int(chance)};
            recorder::pointer(static_cast<int>(at.x), static_cast<int>(at.y));
            change(any, chance);
            recorder::clear();
            operate(any, chance, at);
            if (HasFailure()) FAIL() << "round " << round << " step " << step;
        }
    }
}

// Every position that a pointer can take gives a value whose thumb stands under it again, to the pixel.
TEST_F(Valuator, ThereAndBack) {
    for (const DWORD axis : kAxes)
        for (const DWORD scale : {DWORD(0), VALUATOR_LOG10, VALUATOR_LN})
            for (const DWORD turned : {DWORD(0), OUTIL_REVERSE}) {
                lay(axis | scale | turned);
                range(1, 1000);
                bar.Init(nullptr);
                for (int offset = 23; offset < 177; ++offset) {
                    along(offset);
                    bar.Cur_Value = bar.Read();
                    const std::string drawn = painted([&] { bar.Draw(); });
                    bool found = false; // the table has one entry more than the play has pixels
                    for (int p = offset - 23; p <= offset - 22 && !found; ++p)
                        found = drawn == painted([&] {
                                    ground();
                                    frame(3);
                                    thumb(p);
                                });
                    EXPECT_TRUE(found) << offset;
                }
            }
}

// Drawing twice is drawing once.
TEST_F(Valuator, DrawingTwiceGivesTheSamePicture) {
    Chance chance(law_seed());
    for (int round = 0; round < law_rounds(40); ++round) {
        Picture once(320, 120), twice(320, 120);
        Valuators any;
        any.Flag = chance.of({DWORD(0), OUTIL_VERTICAL, OUTIL_EMPTY, GRAPH_OUTLINE, VALUATOR_FREZE});
        any.Pos_X = 10, any.Pos_Y = 10;
        any.Dim_X = chance.between(1, 300), any.Dim_Y = chance.between(1, 100);
        any.Val_Max = 100, any.Cur_Value = static_cast<float>(chance.between(0, 100));
        any.Border = chance.between(-2, 6);
        any.Name_Set(L"Name");
        any.Init(recorder::window());
        recorder::paint_on(&once);
        any.Draw();
        recorder::paint_on(&twice);
        any.Draw();
        any.Draw();
        recorder::paint_on(nullptr);
        EXPECT_TRUE(once == twice);
        EXPECT_FALSE(once.untouched());
    }
}

} // namespace
