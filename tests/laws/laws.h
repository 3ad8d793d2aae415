#ifndef LAWS_LAWS_H
#define LAWS_LAWS_H

#include <brask/tools.h>

#include "chance.h"
#include "support/recorded.h"

// What laws about controls stand on.

inline bool hits(const Tools& control, POINT at) {
    return at.x >= control.Region.left && at.x < control.Region.right && at.y >= control.Region.top &&
           at.y < control.Region.bottom;
}
inline bool painted_something() {
    for (const recorder::Line& line : recorder::log())
        if (line.kind == recorder::kDraw &&
            (line.text.rfind("draw", 0) == 0 || line.text.rfind("Zeb_Font_Write", 0) == 0))
            return true;
    return false;
}

// So many rounds, each with a chance of its own, until a law is broken.
template <typename Law>
void for_seeds(int usual, Law law) {
    const unsigned seed = law_seed();
    for (int round = 0; round < law_rounds(usual) && !testing::Test::HasFailure(); ++round) {
        SCOPED_TRACE(testing::Message() << "LAWS_SEED=" << seed << " round " << round);
        Chance chance(seed + static_cast<unsigned>(round));
        law(chance);
        recorder::clear();
    }
}

// Laws about pixels are tried on a small picture behind the recorder.
template <int width, int height>
struct On_A_Picture : Recorded {
    static constexpr int kWidth = width, kHeight = height;
    Picture picture{width, height};
    void SetUp() override {
        Recorded::SetUp();
        recorder::paint_on(&picture);
    }
    static void any_pointer(Chance& chance) {
        recorder::pointer(chance.between(0, width), chance.between(0, height));
    }
    // Each round on a clean picture, the pointer beside all controls.
    template <typename Law>
    void for_pictures(int usual, Law law) {
        for_seeds(usual, [&](Chance& chance) {
            recorder::pointer(0, 0);
            picture.wipe();
            law(chance);
            recorder::paint_on(&picture);
        });
    }
    // What paint leaves on a clean picture of its own.
    template <typename Paint>
    static Picture apart(Paint paint) {
        Picture other(width, height);
        recorder::paint_on(&other);
        paint();
        return other;
    }
    // What a new control shows that was set up like this.
    template <typename Control, typename SetUp>
    static Picture new_one(SetUp set_up) {
        return apart([&] {
            Control control;
            set_up(control);
            control.Init(recorder::window());
            control.Draw();
        });
    }
    bool only_in(const Tools& control, int more_above = 0) const {
        return picture.painted_only_in(control.Pos_X, control.Pos_Y, control.Pos_X + control.Dim_X,
                                       control.Pos_Y + control.Dim_Y + more_above);
    }
    static void any_clip(Tools& control, Chance& chance, int right, int top, int largest) {
        control.Clip_X = chance.between(1, right), control.Clip_Y = chance.between(1, top);
        control.Clip_Dim_X = chance.between(1, largest), control.Clip_Dim_Y = chance.between(1, largest);
    }
    bool only_in_clip(const Tools& control) const {
        return picture.painted_only_in(control.Clip_X, control.Clip_Y,
                                       control.Clip_X + control.Clip_Dim_X - 1,
                                       control.Clip_Y + control.Clip_Dim_Y - 1);
    }
};

#endif
