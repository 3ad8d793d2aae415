#include <climits>

#include "color_fixture.h"
#include "laws/chance.h"

// Random operations on random fields. LAWS_SEED repeats a run, LAWS_ROUNDS lengthens it.

namespace {

int any_int(Chance& chance) {
    if (chance.one_in(10)) return chance.of({INT_MIN, INT_MAX, -1, 0, 1, 100000});
    return chance.between(-20, 400);
}

template <typename Editor>
void change(Editor& editor, Chance& chance) {
    static const DWORD flags[] = {OUTIL_INVISIBLE, OUTIL_DISABLE,     OUTIL_VERTICAL, OUTIL_EMPTY,
                                  GRAPH_OUTLINE,   COLOR_MODE_BUTTON, COLOR_HLS,      OUTIL_CAPTURE,
                                  VALUATOR_LOG10,  VALUATOR_FREZE};
    switch (chance.below(11)) {
    case 0:
    case 1: editor.Flag ^= flags[chance.below(std::size(flags))]; break;
    case 2: editor.Flag = 0; break;
    case 3: editor.Dim_X = any_int(chance), editor.Dim_Y = any_int(chance); break;
    case 4: editor.Dim_X = chance.between(1, 400), editor.Dim_Y = chance.between(1, 200); break;
    case 5: editor.Pos_X = any_int(chance), editor.Pos_Y = any_int(chance); break;
    case 6: editor.Border = chance.of({0, 1, 2, 9, -1, -4, INT_MIN, INT_MAX}); break;
    case 7: editor.Swatch_Width = any_int(chance); break;
    case 8: chance.one_in(2) ? editor.Name_Set(L"Name %d", 5) : editor.Name_Set(nullptr); break;
    case 9: BUT_DIM = chance.of({25, 25, 0, -3, 60}), SPACE = chance.of({6, 6, 0, 30}); break;
    default: editor.Cur_Value = chance.word(); break;
    }
}

template <typename Editor>
void operate(Editor& editor, Chance& chance) {
    const bool there = editor.Dim_X > 0 && editor.Dim_Y > 0;
    const unsigned value = editor.Cur_Value;
    const auto alpha = [&](DWORD word) { return word >> 24 == 255 || !there; };
    switch (chance.below(8)) {
    case 0:
    case 1: editor.Init(chance.one_in(2) ? recorder::window() : nullptr); return;
    case 2: editor.Draw(); break;
    case 3: editor.Adjust(); break;
    case 4: EXPECT_TRUE(alpha(static_cast<DWORD>(editor.Read()))); break;
    case 5: {
        const int got = editor.Select(chance.below(64));
        EXPECT_TRUE(got == 0 || (got == 1 && there && !(editor.Flag & OUTIL_DISABLE)));
        break;
    }
    case 6: {
        const DWORD got = static_cast<DWORD>(editor.Scroll(any_int(chance)));
        EXPECT_EQ(got, there ? editor.Cur_Value : 0);
        EXPECT_TRUE(got == value || alpha(got));
        return;
    }
    default: editor.Deselect(); break;
    }
    EXPECT_EQ(editor.Cur_Value, value) << "the colour is the host's";
}

template <typename Editor>
void try_any(Chance& chance) {
    Editor editor;
    for (int step = 0; step < 60; ++step) {
        recorder::pointer(any_int(chance), any_int(chance));
        if (chance.one_in(3)) recorder::pointer(editor.Pos_X / 2 + 60, editor.Pos_Y / 2 + 30);
        change(editor, chance);
        recorder::clear();
        operate(editor, chance);
    }
}

TEST_F(Editors, AnyOperationsInAnyOrder) {
    Chance chance(law_seed());
    for (int round = 0; round < law_rounds(25) && !HasFailure(); ++round) {
        try_any<Color_Edit>(chance);
        try_any<Hue_Edit>(chance);
    }
}

// A drag, as a host does it: after each step the proposed colour is the stored one, and stays so.
TEST_F(Editors, ADragSettles) {
    Chance chance(law_seed());
    for (const DWORD mode : {DWORD(0), COLOR_HLS}) {
        Color_Edit editor;
        lay(editor, mode, 2, chance.word());
        editor.Draw();
        for (int step = 0; step < law_rounds(60); ++step) {
            recorder::pointer(chance.between(14, 190), chance.between(24, 126));
            if (!editor.Select(17)) continue;
            editor.Cur_Value = static_cast<DWORD>(editor.Read());
            editor.Adjust();
            EXPECT_EQ(editor.Old_Value, editor.Cur_Value);
            recorder::clear();
        }
    }
}

} // namespace
