#include <algorithm>

#include <brask/boxs.h>
#include <brask/buttons.h>
#include <brask/labels.h>

#include "laws.h"

// Laws about pixels, on a small picture behind the recorder.

namespace {

struct Painting : On_A_Picture<120, 90> {
    // Fields of a control that lies in the picture and is not smaller than its bevels.
    struct Fields {
        DWORD flag;
        int x, y, dx, dy, border, value;
        unsigned lamp;
        Colors color;
        const wchar_t* name;
    };
    static Fields any_fields(Chance& chance) {
        static const DWORD kFlags[] = {
            OUTIL_DISABLE, OUTIL_VERTICAL, OUTIL_EMPTY, GRAPH_OUTLINE,     OUTIL_FLAT,   OUTIL_NO_FRAME,
            TEXT_MIDDLE,   TEXT_TOP,       TEXT_BOTTOM, TEXT_LEFT,         TEXT_RIGHT,   BOX_INSET,
            TEXT_WHITE,    BOX_RAISED,     BUTTON_LAMP, BUTTON_LAMP_COLOR, CADRE_NO_LINE};
        Fields f{};
        for (const DWORD flag : kFlags)
            if (chance.one_in(5)) f.flag |= flag;
        f.dx = chance.between(30, 60), f.dy = chance.between(30, 50);
        f.x = chance.between(5, kWidth - f.dx - 6), f.y = chance.between(5, kHeight - f.dy - 6);
        f.border = chance.between(0, 5);
        f.value = chance.of({0, 1});
        f.lamp = chance.below(5);
        f.color = Colors(chance.between(0, 255), chance.between(0, 255), chance.between(0, 255));
        f.name = chance.of<const wchar_t*>({nullptr, L"ok", L"longer than the control",
                                            L"r\x04"
                                            L"ed\xF1"
                                            L"bold"});
        return f;
    }
    static void value(Buttons& button, const Fields& f) {
        button.Cur_Value = f.value, button.Lamp_Color = f.lamp;
    }
    static void value(Tools&, const Fields&) {}
    template <typename Control>
    static void apply(Control& control, const Fields& f) {
        control.Flag = f.flag;
        control.Pos_X = f.x, control.Pos_Y = f.y, control.Dim_X = f.dx, control.Dim_Y = f.dy;
        control.Border = f.border;
        control.Color = f.color;
        f.name ? control.Name_Set(L"%ls", f.name) : control.Name_Set(nullptr);
        value(control, f);
    }

    // The picture of a new control with these fields.
    template <typename Control>
    static Picture fresh(const Fields& f) {
        return new_one<Control>([&](Control& control) { apply(control, f); });
    }
    template <typename Law>
    void for_seeds(Law law) {
        for_pictures(120, [&](Chance& chance) {
            any_pointer(chance);
            law(chance);
        });
    }
};

template <typename Control>
struct PaintingOf : Painting {
    // Everything that a control can be asked for.
    static void operate(Control& control, Chance& chance) {
        for (int i = 0; i < 8; ++i) {
            any_pointer(chance);
            if constexpr (std::is_same_v<Control, Labels>) {
                control.Draw();
            } else {
                const unsigned which = chance.below(5);
                if (which == 0) control.Draw();
                if (which == 1) control.Adjust();
                if (which == 2) control.Deselect();
                if (which == 3) control.Read();
                if (which == 4) control.Select(chance.of({0, 1, 2, 4}));
            }
        }
    }
};
using Controls = testing::Types<Boxs, Buttons, Labels>;
TYPED_TEST_SUITE(PaintingOf, Controls);

TYPED_TEST(PaintingOf, DrawingTwiceIsDrawingOnce) {
    this->for_seeds([this](Chance& chance) {
        TypeParam control;
        this->apply(control, this->any_fields(chance));
        control.Init(recorder::window());
        control.Draw();
        const Picture once = this->picture;
        control.Draw();
        EXPECT_TRUE(this->picture == once);
    });
}

TYPED_TEST(PaintingOf, NothingIsPaintedOutside) {
    this->for_seeds([this](Chance& chance) {
        TypeParam control;
        this->apply(control, this->any_fields(chance));
        control.Init(recorder::window());
        this->operate(control, chance);
        EXPECT_TRUE(this->only_in(control));
    });
}

TYPED_TEST(PaintingOf, NothingIsPaintedOutsideOfTheClip) {
    this->for_seeds([this](Chance& chance) {
        TypeParam control;
        this->apply(control, this->any_fields(chance));
        this->any_clip(control, chance, this->kWidth, this->kHeight, 60);
        control.Init(recorder::window());
        this->operate(control, chance);
        control.Clear();
        EXPECT_TRUE(this->only_in_clip(control));
    });
}

TYPED_TEST(PaintingOf, HiddenPaintsNothing) {
    this->for_seeds([this](Chance& chance) {
        TypeParam control;
        this->apply(control, this->any_fields(chance));
        control.Flag |= OUTIL_INVISIBLE;
        control.Init(recorder::window());
        this->operate(control, chance);
        EXPECT_TRUE(this->picture.untouched());
    });
}

TYPED_TEST(PaintingOf, WithoutAWindowNothingIsPainted) {
    this->for_seeds([this](Chance& chance) {
        TypeParam control;
        this->apply(control, this->any_fields(chance));
        control.Init(nullptr);
        this->operate(control, chance);
        EXPECT_TRUE(this->picture.untouched());
    });
}

TYPED_TEST(PaintingOf, ClearCoversTheControlExactly) {
    this->for_seeds([this](Chance& chance) {
        TypeParam control;
        this->apply(control, this->any_fields(chance));
        control.Init(recorder::window());
        const int more = chance.of({0, 1}); // the forms with an argument paint one row above
        more ? control.Clear(0x123456u) : control.Clear();
        EXPECT_TRUE(this->only_in(control, more));
        const DWORD word = more ? 0x123456 : control.Color_Get() & 0xFFFFFF;
        for (int y = control.Pos_Y; y <= control.Pos_Y + control.Dim_Y + more; ++y)
            for (int x = control.Pos_X; x <= control.Pos_X + control.Dim_X; ++x)
                ASSERT_EQ(this->picture.at(x, y), word) << x << ", " << y;
    });
}

// --- A repaint after a change equals a fresh draw; of the controls that have a face ---

template <typename Control>
struct FacePainting : PaintingOf<Control> {};
using Faces = testing::Types<Boxs, Buttons>;
TYPED_TEST_SUITE(FacePainting, Faces);

// With a frame and a face a Draw covers every pixel of the control, whatever stood there.
TYPED_TEST(FacePainting, DrawCoversWhatStoodThere) {
    this->for_seeds([this](Chance& chance) {
        constexpr DWORD kKept = OUTIL_EMPTY | GRAPH_OUTLINE | OUTIL_NO_FRAME | CADRE_NO_LINE | BOX_INSET;
        auto first = this->any_fields(chance), second = this->any_fields(chance);
        second.x = first.x, second.y = first.y, second.dx = first.dx, second.dy = first.dy;
        first.flag &= ~kKept, second.flag &= ~kKept;
        second.flag = (second.flag & ~OUTIL_FLAT) | (first.flag & OUTIL_FLAT); // no Init(0) looks at it
        TypeParam control;
        this->apply(control, first);
        control.Init(recorder::window());
        control.Draw();
        this->operate(control, chance);
        this->apply(control, second);
        control.Init(nullptr);
        control.Draw();
        EXPECT_TRUE(this->picture == this->template fresh<TypeParam>(second));
    });
}

// Wherever the pointer went in between, the look is that of the place where it is now.
TYPED_TEST(FacePainting, TrackingLeavesNoTrail) {
    this->for_seeds([this](Chance& chance) {
        const auto fields = this->any_fields(chance);
        TypeParam control;
        this->apply(control, fields);
        control.Init(recorder::window());
        control.Draw();
        for (int i = 0; i < 6; ++i) {
            this->any_pointer(chance);
            control.Select(chance.of({0, 1, 2}));
        }
        EXPECT_TRUE(this->picture == this->template fresh<TypeParam>(fields));
    });
}

TYPED_TEST(FacePainting, DeselectGivesThePictureWithoutThePointer) {
    this->for_seeds([this](Chance& chance) {
        const auto fields = this->any_fields(chance);
        TypeParam control;
        this->apply(control, fields);
        control.Init(recorder::window());
        recorder::pointer(fields.x + 3, fields.y + 3);
        control.Draw();
        control.Deselect();
        recorder::pointer(0, 0);
        EXPECT_TRUE(this->picture == this->template fresh<TypeParam>(fields));
    });
}

using ButtonPainting = PaintingOf<Buttons>;
TEST_F(ButtonPainting, AdjustAfterAChangeOfValueIsAFreshDraw) {
    for_seeds([this](Chance& chance) {
        auto fields = any_fields(chance);
        fields.flag &= ~OUTIL_NO_FRAME; // Adjust paints the frame even so
        Buttons button;
        apply(button, fields);
        button.Init(recorder::window());
        button.Draw();
        for (int i = 0; i < 4; ++i) {
            any_pointer(chance);
            button.Cur_Value = fields.value = chance.of({0, 1});
            if (fields.flag & BUTTON_LAMP) button.Lamp_Color = fields.lamp = chance.below(6);
            button.Adjust();
            button.Select(0); // an unchanged value leaves the look to the pointer's own event
        }
        EXPECT_TRUE(picture == fresh<Buttons>(fields));
    });
}

} // namespace
