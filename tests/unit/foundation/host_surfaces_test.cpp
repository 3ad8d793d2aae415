#include <brask/boxs.h>
#include <brask/buttons.h>

#include "support/recorded.h"

// Surfaces from Alloc_Graph_*: never read at another size than they have, nor after they were replaced.

namespace {

struct Host_Pictures : Recorded {
    // The painting of a control, with its surfaces under these names.
    template <typename Control>
    static std::string drawn(Control& control) {
        recorder::name(control.Graph_Normal, "picture");
        recorder::clear();
        control.Draw();
        return recorder::text(recorder::kDraw);
    }
    template <typename Control>
    static void lay_out(Control& control) {
        control.Dim_X = 60, control.Dim_Y = 24;
        control.Alloc_Graph_Normal(0x112233);
        control.Init(recorder::window());
    }
};

TEST_F(Host_Pictures, OneThatNoLongerFitsGivesWayToTheFlatLook) {
    Boxs box;
    lay_out(box);
    EXPECT_NE(drawn(box).find("draw_image(picture"), std::string::npos);
    box.Dim_X = 600;
    EXPECT_EQ(drawn(box).find("draw_image("), std::string::npos);
    box.Init(nullptr);
    EXPECT_EQ(drawn(box).find("draw_image("), std::string::npos); // the host still has to make a new one
    box.Alloc_Graph_Normal(0x445566);
    EXPECT_NE(drawn(box).find("draw_image(picture"), std::string::npos);
}

TEST_F(Host_Pictures, AReplacedOneIsSeenByAButtonEvenWithoutInit) {
    Buttons button;
    lay_out(button);
    button.Cur_Value = 1;
    for (int round = 0; round < 3; ++round) {
        EXPECT_EQ(button.Alloc_Graph_Normal(round), 1);
        EXPECT_NE(drawn(button).find("draw_image(picture"), std::string::npos) << round;
        EXPECT_EQ(button.Image_Normal, button.Graph_Normal);
    }
    button.Init(nullptr);
    EXPECT_EQ(button.Image_Normal_Off, button.Graph_Normal);
    EXPECT_EQ(button.Image_Normal_On, button.Graph_Normal);
}

TEST_F(Host_Pictures, ABlockOfBothLooksIsReplacedOnBoth) {
    Buttons button;
    button.Dim_X = 60, button.Dim_Y = 24;
    button.Alloc_Graph_Normal(1);
    button.Graph_Select = button.Graph_Normal;
    button.Init(recorder::window());
    EXPECT_EQ(button.Alloc_Graph_Normal(2), 1);
    EXPECT_EQ(button.Graph_Select[0], 1u); // lives on under its other name
    EXPECT_EQ(button.Alloc_Graph_Select(3), 1);
    button.Cur_Value = 1;
    button.Adjust();
    EXPECT_EQ(button.Image_Normal, button.Graph_Normal);
    EXPECT_EQ(button.Image_Select, button.Graph_Select);
}

TEST_F(Host_Pictures, AViewThatTheHostChoseStays) {
    static DWORD own[60 * 24];
    Buttons button;
    lay_out(button);
    button.Image_Normal_On = own;
    button.Alloc_Graph_Normal(5);
    button.Cur_Value = 1;
    button.Adjust();
    EXPECT_EQ(button.Image_Normal, own);
}

} // namespace
