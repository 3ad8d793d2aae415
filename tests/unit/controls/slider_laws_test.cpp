#include <algorithm>
#include <climits>
#include <cmath>
#include <limits>

#include "laws/laws.h"
#include "slider_fixture.h"

// Random operations on random fields, held against a small model of the protocol, and laws about pixels.

namespace {

constexpr float kNaN = std::numeric_limits<float>::quiet_NaN();
constexpr float kInf = std::numeric_limits<float>::infinity();
constexpr DWORD kHidden = OUTIL_INVISIBLE | GRAPH_OUTLINE | OUTIL_EMPTY;

enum class Act { Init, Draw, Select, Read, Adjust, Deselect, Scroll, kCount };

struct Model {
    int select, held;
    int answer = 0; // of Select
    bool paints = false;
};

// What one Select leaves behind.
Model after_select(const Sliders& s, Model before, int mode, POINT pointer) {
    Model m = before;
    const int event = mode & 15;
    const bool in = hits(s, pointer);
    if (event == KEY_QUERY) {
        m.answer = in;
        return m;
    }
    if (event == 0) m.held = 0;
    if (s.Flag & (OUTIL_DISABLE | GRAPH_OUTLINE)) {
        m.paints = !(s.Flag & (OUTIL_INVISIBLE | GRAPH_OUTLINE));
        return m;
    }
    const bool capture = (s.Flag & OUTIL_CAPTURE) != 0;
    const bool touched = in || (capture && m.held);
    if (touched && capture && event == 2) m.held = 1;
    if (touched) m.answer = capture ? m.held : event == 1 || event == 2;
    if (!(s.Flag & kHidden) && m.select != (touched ? 1 : 2)) {
        m.select = touched ? 1 : 2;
        m.paints = true;
    }
    return m;
}

Model expected_of(const Sliders& s, Act act, int mode, POINT pointer) {
    Model m = {s.select, s.Held};
    const bool surfaces = s.Graph_Normal || s.Graph_Select;
    if (s.Dim_X < 1 || s.Dim_Y < 1) return m;
    switch (act) {
    case Act::Init: m.held = 0; break;
    case Act::Select: return after_select(s, m, mode, pointer);
    case Act::Deselect:
        m.held = 0;
        m.paints = !(s.Flag & kHidden) && m.select != 0 && m.select != 2;
        break;
    case Act::Scroll:
        if (s.Flag & OUTIL_DISABLE) break;
        [[fallthrough]];
    case Act::Draw:
    case Act::Adjust:
        m.paints = !(s.Flag & OUTIL_INVISIBLE) || (act != Act::Draw && s.Flag & GRAPH_OUTLINE);
        if (s.Flag & OUTIL_INVISIBLE || (act == Act::Draw && s.Flag & GRAPH_OUTLINE) || !surfaces) break;
        m.select = 0;
        m = after_select(s, m, m.held, pointer);
        m.answer = 0;
        m.paints = true;
        break;
    default: break;
    }
    return m;
}

bool clamps(const Sliders& s, Act act) {
    if (s.Dim_X < 1 || s.Dim_Y < 1) return false;
    if (act == Act::Init) return true;
    if (s.Flag & OUTIL_INVISIBLE) return false;
    return act == Act::Draw || act == Act::Adjust || (act == Act::Scroll && !(s.Flag & OUTIL_DISABLE));
}
bool in_range(const Sliders& s) {
    const bool reversed = (s.Flag & OUTIL_REVERSE) != 0;
    const float low = reversed ? s.Val_Max : s.Val_Min, high = reversed ? s.Val_Min : s.Val_Max;
    if (std::isnan(low) || std::isnan(high)) return true; // nothing can be said
    if (low > high) return s.Cur_Value == low || s.Cur_Value <= high;
    return s.Cur_Value >= low && s.Cur_Value <= high;
}

struct SliderLaws : Recorded {
    static int any_int(Chance& chance) {
        return chance.one_in(3)
                   ? chance.of({INT_MIN, INT_MIN + 1, -65536, -1, 65536, 1 << 30, INT_MAX - 1, INT_MAX})
                   : chance.of({0, 1, 2, 5, 16, 17, 40, 60, 100, 200, 5000});
    }
    static float any_float(Chance& chance) {
        return chance.of({0.0f, -0.0f, 1.0f, -1.0f, 0.5f, 3.0f, 100.0f, -100.0f, 1e-40f, 1e30f, -3e38f, 3e38f,
                          kInf, -kInf, kNaN, static_cast<float>(chance.between(-200, 200))});
    }
    static void change_surfaces(Sliders& s, Chance& chance) {
        if (s.Dim_X > 300 || s.Dim_Y > 300) return;
        if (chance.one_in(2)) s.Alloc_Graph_Normal(chance.word());
        if (chance.one_in(2)) s.Alloc_Graph_Select(chance.word());
        if (chance.one_in(2)) s.Init(nullptr);
    }
    static void change(Sliders& s, Chance& chance) {
        static const DWORD kFlags[] = {OUTIL_INVISIBLE, OUTIL_DISABLE, OUTIL_VERTICAL, OUTIL_EMPTY,
                                       GRAPH_OUTLINE,   OUTIL_REVERSE, OUTIL_CAPTURE,  CADRE_NO_LINE};
        switch (chance.below(16)) {
        case 0:
        case 1: s.Flag ^= kFlags[chance.below(std::size(kFlags))]; break;
        case 2: s.Flag = 0; break;
        case 3: s.Dim_X = any_int(chance), s.Dim_Y = any_int(chance); break;
        case 4: s.Dim_X = 200, s.Dim_Y = 20; break;
        case 5: s.Pos_X = any_int(chance), s.Pos_Y = any_int(chance); break;
        case 6:
            s.Clip_X = any_int(chance), s.Clip_Dim_X = any_int(chance), s.Clip_Dim_Y = any_int(chance);
            break;
        case 7: s.Val_Min = any_float(chance), s.Val_Max = any_float(chance); break;
        case 8: s.Cur_Value = any_float(chance); break;
        case 9: s.Step = any_float(chance); break;
        case 10: s.Larg = any_int(chance); break;
        case 11: s.Arrow_Len = any_int(chance); break;
        case 12: s.Border = chance.of({0, 1, 2, 7, 100, -3, INT_MIN, INT_MAX}); break;
        case 13: s.select = chance.of({0, 1, 2, 7, -1}); break;
        case 14: s.Table_Size = any_int(chance); break;
        default: change_surfaces(s, chance); break;
        }
    }
    static int perform(Sliders& s, Act act, int mode) {
        switch (act) {
        case Act::Init: s.Init(recorder::window()); return 0;
        case Act::Draw: s.Draw(); return 0;
        case Act::Select: return s.Select(mode);
        case Act::Read: s.Read(); return 0;
        case Act::Adjust: s.Adjust(); return 0;
        case Act::Deselect: s.Deselect(); return 0;
        default: s.Scroll(mode); return 0;
        }
    }
};

TEST_F(SliderLaws, KeepsTheProtocolWithAnyFields) {
    for_seeds(300, [&](Chance& chance) {
        Sliders slider;
        for (int step = 0; step < 60 && !HasFailure(); ++step) {
            for (unsigned changes = chance.below(4); changes > 0; --changes)
                change(slider, chance);
            if (chance.one_in(8)) slider.Larg_Adjust(any_float(chance), any_float(chance));
            const POINT pointer = {any_int(chance), any_int(chance)};
            recorder::pointer(pointer.x, pointer.y);
            const Act act = static_cast<Act>(chance.below(static_cast<unsigned>(Act::kCount)));
            const int mode = chance.of({0, 1, 2, 3, 4, 18, 20, 33, -1, INT_MAX, INT_MIN});
            SCOPED_TRACE(testing::Message() << "step " << step << " act " << static_cast<int>(act) << " mode "
                                            << mode << " flag " << std::hex << slider.Flag);
            const Model expected = expected_of(slider, act, mode, pointer);
            recorder::clear();
            EXPECT_EQ(perform(slider, act, mode), expected.answer);
            EXPECT_EQ(slider.select, expected.select);
            EXPECT_EQ(slider.Held, expected.held);
            if (!expected.paints) {
                EXPECT_FALSE(painted_something()) << recorder::text();
            }
            if (clamps(slider, act)) {
                EXPECT_TRUE(in_range(slider))
                    << slider.Cur_Value << " in " << slider.Val_Min << ".." << slider.Val_Max;
            }
            if (act == Act::Init && clamps(slider, act)) {
                EXPECT_LE(slider.Table_Size, 4096);
            }
        }
    });
}

// A drag moves the value the way the pointer goes, and never past an end.
TEST_F(SliderLaws, DraggingIsMonotonous) {
    for_seeds(15, [&](Chance& chance) {
        Sliders slider;
        const int length = chance.between(80, 600);
        slider.Flag = OUTIL_CAPTURE | (chance.one_in(2) ? OUTIL_REVERSE : 0);
        slider.Dim_X = length, slider.Dim_Y = chance.between(8, 20);
        slider.Larg = chance.between(0, 40);
        slider.Val_Min = slider.Flag & OUTIL_REVERSE ? 10.0f : -10.0f, slider.Val_Max = -slider.Val_Min;
        slider.Init(recorder::window());
        recorder::pointer(length / 2, 4);
        ASSERT_EQ(slider.Select(2), 1);
        const int sign = slider.Flag & OUTIL_REVERSE ? -1 : 1;
        float before = -10;
        for (int x = slider.Dim_Y + 1; x < length - slider.Dim_Y; ++x) {
            recorder::pointer(x, 500);
            ASSERT_EQ(slider.Select(1), 1);
            slider.Cur_Value = slider.Read();
            slider.Adjust();
            EXPECT_GE(sign * slider.Cur_Value, before) << "at " << x;
            EXPECT_LE(std::abs(slider.Cur_Value), 10);
            before = sign * slider.Cur_Value;
        }
        recorder::clear();
    });
}

struct SliderPainting : On_A_Picture<140, 140> {
    static void any_place(Sliders& s, Chance& chance) {
        static const DWORD kFlags[] = {OUTIL_DISABLE, OUTIL_VERTICAL, OUTIL_REVERSE, OUTIL_CAPTURE};
        for (const DWORD flag : kFlags)
            if (chance.one_in(2)) s.Flag |= flag;
        const int length = chance.between(60, 110), thick = chance.between(14, 28);
        const bool up = (s.Flag & OUTIL_VERTICAL) != 0;
        s.Dim_X = up ? thick : length, s.Dim_Y = up ? length : thick;
        s.Pos_X = chance.between(5, kWidth - s.Dim_X - 6), s.Pos_Y = chance.between(5, kHeight - s.Dim_Y - 6);
        s.Border = chance.between(0, 3);
        s.Val_Min = s.Flag & OUTIL_REVERSE ? 9.0f : 0.0f, s.Val_Max = 9.0f - s.Val_Min;
        s.Cur_Value = static_cast<float>(chance.between(0, 9));
        s.Color = Colors(chance.between(1, 255), chance.between(0, 255), chance.between(0, 255));
    }
    static void operate(Sliders& s, Chance& chance) {
        for (int i = 0; i < 8; ++i) {
            any_pointer(chance);
            const unsigned which = chance.below(5);
            if (which == 0) s.Draw();
            if (which == 1) s.Adjust();
            if (which == 2) s.Deselect();
            if (which == 3) s.Scroll(chance.between(-2, 2));
            if (which == 4) s.Select(chance.of({0, 1, 2, 4}));
        }
    }
    template <typename Law>
    void for_sliders(Law law) {
        for_pictures(100, [&](Chance& chance) {
            Sliders slider;
            any_place(slider, chance);
            law(chance, slider);
        });
    }
};

TEST_F(SliderPainting, StaysInside) {
    for_sliders([this](Chance& chance, Sliders& s) {
        s.Init(recorder::window());
        operate(s, chance);
        EXPECT_TRUE(only_in(s));
    });
}

TEST_F(SliderPainting, StaysInsideTheClip) {
    for_sliders([this](Chance& chance, Sliders& s) {
        any_clip(s, chance, 80, 80, 50);
        s.Init(recorder::window());
        operate(s, chance);
        EXPECT_TRUE(only_in_clip(s));
    });
}

TEST_F(SliderPainting, DrawCoversWhatStoodThere) {
    for_sliders([this](Chance& chance, Sliders& s) {
        s.Init(recorder::window());
        s.Draw();
        operate(s, chance);
        s.Draw();
        EXPECT_TRUE(picture == apart([&] { s.Draw(); }));
    });
}

TEST_F(SliderPainting, AdjustEqualsDrawInsideTheFrameWhenNotTouched) {
    for_sliders([this](Chance& chance, Sliders& s) {
        s.Init(recorder::window());
        s.Draw();
        s.Cur_Value = static_cast<float>(chance.between(0, 9));
        s.select = 2;
        s.Adjust();
        const Picture adjusted = picture;
        s.Draw();
        EXPECT_TRUE(picture == adjusted);
    });
}

TEST_F(SliderPainting, HiddenPaintsNothing) {
    for_sliders([this](Chance& chance, Sliders& s) {
        s.Flag |= OUTIL_INVISIBLE;
        s.Init(recorder::window());
        operate(s, chance);
        EXPECT_TRUE(picture.untouched());
    });
}

} // namespace
