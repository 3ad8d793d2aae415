#include <type_traits>

#include <brask/checklists.h>
#include <brask/color_edit.h>
#include <brask/hue_edit.h>
#include <brask/lists.h>
#include <brask/selects.h>
#include <brask/sliders.h>
#include <brask/tabs.h>
#include <brask/valuators.h>

#include "laws.h"

// Laws about pixels that the controls of values, items and colours all keep, on a small picture behind the
// recorder.

namespace {

using Sheet = On_A_Picture<200, 160>;

// What one of them shows, apart from the pointer.
struct Fields {
    DWORD flag;
    int x, y, dx, dy, border, count;
    unsigned value;
    Colors color;
    const wchar_t* name;
};

const char* const kLabels[] = {"ab", "cd", "ef", "gh", nullptr};

// --- What differs by class ---

void set_up(Sliders& s, const Fields& f) {
    s.Val_Max = 9, s.Larg = f.count * 3;
    s.Cur_Value = static_cast<float>(f.value % 10);
}
void set_up(Valuators& v, const Fields& f) {
    v.Val_Max = 9;
    v.Format = f.count % 2 ? "%.1f" : nullptr, v.Num_Width = f.count % 2 ? 40 : 0;
    v.Cur_Value = static_cast<float>(f.value % 10);
}
// The bars of an editor are too low to stand upright: their thumbs would reach out of it.
template <typename Editor>
void set_up_editor(Editor& e, const Fields& f) {
    e.Flag &= ~OUTIL_VERTICAL;
    e.Cur_Value = f.value | 0xFF000000;
}
void set_up(Color_Edit& e, const Fields& f) { set_up_editor(e, f); }
void set_up(Hue_Edit& e, const Fields& f) { set_up_editor(e, f); }
void set_up(CheckLists& c, const Fields& f) {
    c.List = kLabels;
    c.Cur_Value = f.flag & CHECK_EXCLUSIVE ? f.value % 4 : f.value % 16;
}
template <typename Items>
void set_up_items(Items& control, const Fields& f) {
    control.Grow(0, 0);
    control.Grow(f.count, 0);
    for (int i = 0; i < f.count; i++)
        control.Item[i]->Name_Set(L"n%d", i);
    control.Cur_Value = static_cast<int>(f.value % f.count);
}
void set_up(Lists& c, const Fields& f) { set_up_items(c, f); }
void set_up(Selects& c, const Fields& f) { set_up_items(c, f); }
void set_up(Tabs& c, const Fields& f) { set_up_items(c, f); }
void set_up(TabItems& t, const Fields& f) {
    t.Shape = std::data({0x00, 0x01, 0x10, 0x11})[f.value % 4];
    t.Slant = 6;
    t.Cur_Value = f.count % 2;
}

// What a control keeps by rule, whatever its other fields become.
void forget(Sliders& s) { s.Held = 0; }
void forget(Valuators& v) { v.Held = 0; }
void forget(Lists& l) { l.Slider.Cur_Value = 0; }
void forget(Selects& s) { s.Arrow_Dim = s.select = 0; }
void forget(Tools&) {}

void scroll(TabItems&, int) {}
void scroll(Tabs&, int) {}
void scroll(CheckLists&, int) {}
template <typename Control>
void scroll(Control& control, int notches) {
    control.Scroll(notches);
}

// Where a control may paint beside its rectangle: a tab's open base has two rows below, and the base of the
// face reaches a little to the right; the rows of an outline tab likewise.
template <typename Control>
constexpr int kBeside = std::is_same_v<Control, TabItems> || std::is_same_v<Control, Tabs> ? 4 : 0;

// Hidden ones that paint all the same, where their steps do not ask: a list that is scrolled, the tabs of a
// strip, the entry that the pointer leaves, an editor's parts.
template <typename Control>
constexpr bool kHides = std::is_same_v<Control, Sliders> || std::is_same_v<Control, Valuators> ||
                        std::is_same_v<Control, Selects> || std::is_same_v<Control, TabItems>;

// A strip hands its clip on to no tab; the label of a check list has a clip as wide as the control's, which
// begins further right.
template <typename Control>
constexpr bool kClips = !std::is_same_v<Control, Tabs> && !std::is_same_v<Control, CheckLists>;

Fields any_fields(Chance& chance) {
    static const DWORD kFlags[] = {OUTIL_DISABLE, OUTIL_VERTICAL, OUTIL_EMPTY, GRAPH_OUTLINE,
                                   OUTIL_FLAT,    OUTIL_NO_FRAME, TEXT_LEFT,   TEXT_MIDDLE};
    Fields f{};
    for (const DWORD flag : kFlags)
        if (chance.one_in(5)) f.flag |= flag;
    f.dx = chance.between(110, 160), f.dy = chance.between(80, 120);
    f.x = chance.between(10, Sheet::kWidth - f.dx - 12), f.y = chance.between(10, Sheet::kHeight - f.dy - 12);
    f.border = chance.between(0, 4);
    f.count = chance.between(2, 7);
    f.value = chance.word();
    f.color = Colors(chance.between(1, 255), chance.between(0, 255), chance.between(0, 255));
    f.name = chance.of<const wchar_t*>({nullptr, L"ok", L"longer"});
    return f;
}
template <typename Control>
void apply(Control& control, const Fields& f) {
    control.Flag = f.flag;
    control.Pos_X = f.x, control.Pos_Y = f.y, control.Dim_X = f.dx, control.Dim_Y = f.dy;
    control.Border = f.border;
    control.Color = f.color;
    control.Font_Size = 9;
    f.name ? control.Name_Set(L"%ls", f.name) : control.Name_Set(nullptr);
    set_up(control, f);
}
template <typename Control>
void operate(Control& control, Chance& chance, int times = 8) {
    for (int i = 0; i < times; ++i) {
        Sheet::any_pointer(chance);
        switch (chance.below(6)) {
        case 0: control.Draw(); break;
        case 1: control.Adjust(); break;
        case 2: control.Deselect(); break;
        case 3: control.Read(); break;
        case 4: scroll(control, chance.between(-2, 2)); break;
        default: control.Select(chance.of({0, 1, 2, 4}));
        }
    }
}

template <typename Control>
struct Family : Sheet {
    template <typename Law>
    void for_seeds(Law law) {
        for_pictures(20, [&](Chance& chance) { law(chance, any_fields(chance)); });
    }
    static Picture fresh(const Fields& f) {
        return new_one<Control>([&](Control& control) { apply(control, f); });
    }
};
using Controls =
    testing::Types<Sliders, Valuators, Lists, CheckLists, Selects, TabItems, Tabs, Color_Edit, Hue_Edit>;
TYPED_TEST_SUITE(Family, Controls);

TYPED_TEST(Family, DrawingTwiceIsDrawingOnce) {
    this->for_seeds([this](Chance& chance, const Fields& fields) {
        TypeParam control;
        apply(control, fields);
        control.Init(recorder::window());
        this->any_pointer(chance);
        control.Draw();
        const Picture once = this->picture;
        control.Draw();
        EXPECT_TRUE(this->picture == once);
    });
}

TYPED_TEST(Family, NothingIsPaintedOutside) {
    this->for_seeds([this](Chance& chance, const Fields& fields) {
        TypeParam control;
        apply(control, fields);
        control.Init(recorder::window());
        operate(control, chance);
        const int more = kBeside<TypeParam>;
        EXPECT_TRUE(this->picture.painted_only_in(fields.x - more, fields.y - more,
                                                  fields.x + fields.dx + more, fields.y + fields.dy));
    });
}

TYPED_TEST(Family, NothingIsPaintedOutsideOfTheClip) {
    if (!kClips<TypeParam>) GTEST_SKIP() << "required so";
    this->for_seeds([this](Chance& chance, const Fields& fields) {
        TypeParam control;
        this->any_clip(control, chance, this->kWidth, this->kHeight, 90);
        apply(control, fields);
        control.Init(recorder::window());
        operate(control, chance);
        EXPECT_TRUE(this->only_in_clip(control));
    });
}

TYPED_TEST(Family, HiddenPaintsNothing) {
    this->for_seeds([this](Chance& chance, Fields fields) {
        fields.flag = (fields.flag | OUTIL_INVISIBLE) & ~GRAPH_OUTLINE; // of which some paint at Adjust
        TypeParam control;
        apply(control, fields);
        control.Init(recorder::window());
        if (kHides<TypeParam>) operate(control, chance);
        control.Draw();
        EXPECT_TRUE(this->picture.untouched());
    });
}

TYPED_TEST(Family, WithoutAWindowNothingIsPaintedAndNothingCrashes) {
    this->for_seeds([this](Chance& chance, const Fields& fields) {
        TypeParam control;
        apply(control, fields);
        control.Init(nullptr);
        operate(control, chance);
        EXPECT_TRUE(this->picture.untouched());
    });
}

// With a frame and a face, what is drawn does not depend on what was there.
TYPED_TEST(Family, DrawCoversWhatStoodThere) {
    this->for_seeds([this](Chance& chance, Fields fields) {
        fields.flag &= OUTIL_VERTICAL | OUTIL_FLAT;
        TypeParam control;
        apply(control, fields);
        control.Init(recorder::window());
        control.Draw();
        operate(control, chance);
        recorder::pointer(0, 0);
        control.Deselect();
        control.Draw();
        EXPECT_TRUE(this->picture == this->apart([&] { control.Draw(); }));
    });
}

// A second Init with nothing changed shows the same as the first one.
TYPED_TEST(Family, InitOnceMoreChangesNoPixel) {
    this->for_seeds([this](Chance&, const Fields& fields) {
        TypeParam control;
        apply(control, fields);
        control.Init(recorder::window());
        control.Draw();
        control.Init(nullptr);
        control.Draw();
        EXPECT_TRUE(this->picture == this->fresh(fields));
    });
}

// A host that changes place, size, colour and contents gets what a new control would show.
TYPED_TEST(Family, ARepaintAfterAChangeIsAFreshDraw) {
    this->for_seeds([this](Chance& chance, const Fields& first) {
        const Fields second = any_fields(chance);
        TypeParam control;
        apply(control, first);
        control.Init(recorder::window());
        control.Draw();
        operate(control, chance, 3);
        this->picture.wipe();
        recorder::pointer(0, 0);
        forget(control);
        apply(control, second);
        control.Init(recorder::window());
        control.Draw();
        EXPECT_TRUE(this->picture == this->fresh(second));
    });
}

} // namespace
