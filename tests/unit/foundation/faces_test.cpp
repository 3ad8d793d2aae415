#include <cstdlib>
#include <iterator>
#include <list>
#include <memory>
#include <set>

#include <brask/boxs.h>
#include <brask/buttons.h>

#include "foundation/faces.h"
#include "support/recorded.h"

// Faces are shared between controls that want the same pixels, and live as long as one of them does.

namespace {

struct Faces : Recorded {
    template <typename Control>
    static void lay_out(Control& control, int width = 60, int height = 24) {
        control.Dim_X = width, control.Dim_Y = height;
        control.Init(recorder::window());
    }
    static std::set<DWORD*> faces_of(const Buttons& b) {
        return {b.Own_Normal_Off, b.Own_Normal_On, b.Own_Select_Off, b.Own_Select_On};
    }
};

TEST_F(Faces, EqualButtonsHaveFourInAll) {
    std::list<Buttons> buttons(200);
    std::set<DWORD*> all;
    for (Buttons& button : buttons) {
        lay_out(button);
        all.merge(faces_of(button));
    }
    EXPECT_EQ(all.size(), 4u);
    EXPECT_EQ(all.count(nullptr), 0u);
}

// So many of each kind that some of them share a place wherever they are kept.
TEST_F(Faces, WhateverDecidesThePixelsPartsThem) {
    constexpr int MANY = 200;
    std::list<Boxs> boxes(5 * MANY);
    std::set<DWORD*> faces;
    int number = 0;
    for (Boxs& box : boxes) {
        const int way = number % 5, value = number / 5;
        box.Border = way == 2 ? 4 + value : 3;
        if (way == 3) box.Color = Colors(value, 7, 7);
        if (way == 4) box.Color = Colors(value, 7, 7), box.Flag = OUTIL_FLAT;
        lay_out(box, way == 0 ? 61 + value : 60, way == 1 ? 25 + value : 24);
        faces.insert(box.Box_Normal);
        ++number;
    }
    EXPECT_EQ(faces.size(), boxes.size());
    for (const Boxs& box : boxes)
        if (box.Border == 3 && box.Dim_X == 60 && box.Dim_Y == 24 && !box.Flag) {
            // The selected look knows no colour of the box.
            ASSERT_EQ(box.Box_Select, std::next(boxes.begin(), 3)->Box_Select);
        }
}

TEST_F(Faces, ABorderOfTheSameWidthIsTheSameFace) {
    Boxs plain, given, negative;
    given.Border = BORDER;
    negative.Border = -BORDER;
    lay_out(plain);
    lay_out(given);
    lay_out(negative);
    EXPECT_EQ(plain.Box_Normal, given.Box_Normal);
    EXPECT_EQ(plain.Box_Normal, negative.Box_Normal);
}

TEST_F(Faces, AnOnlyOwnerGetsItsFaceMadeAnew) {
    Boxs box;
    lay_out(box);
    const DWORD clean = box.Box_Normal[70];
    box.Box_Normal[70] = ~clean;
    box.Init(recorder::window());
    EXPECT_EQ(box.Box_Normal[70], clean);
}

TEST_F(Faces, AFaceOfOthersIsHandedOn) {
    Boxs box, other;
    lay_out(box);
    lay_out(other);
    const DWORD* face = box.Box_Normal;
    box.Init(recorder::window());
    EXPECT_EQ(box.Box_Normal, face);
}

TEST_F(Faces, ACopyOutlivesItsSource) {
    auto source = std::make_unique<Buttons>();
    lay_out(*source);
    Buttons copy(*source);
    Buttons assigned;
    lay_out(assigned, 10, 10);
    assigned = copy;
    source.reset();
    EXPECT_EQ(faces_of(copy), faces_of(assigned));
    for (DWORD* face : faces_of(copy))
        EXPECT_EQ(face[60 * 24 - 1] >> 24, 0u); // still there to be read
    Buttons& same = assigned;
    assigned = same;
    EXPECT_EQ(assigned.Own_Select_On[0] >> 24, 0u);
}

TEST_F(Faces, ManyDifferentOnesAreAllFound) {
    std::list<Boxs> boxes(500);
    int width = 10;
    for (Boxs& box : boxes)
        lay_out(box, width++, 8);
    for (Boxs& box : boxes) {
        EXPECT_FALSE(brask::faces::outgrown(box.Box_Normal, box));
        Boxs twin;
        lay_out(twin, box.Dim_X, 8);
        EXPECT_EQ(twin.Box_Normal, box.Box_Normal);
        box.Dim_X--;
        EXPECT_TRUE(brask::faces::outgrown(box.Box_Select, box));
    }
}

// Around the widths at which another way of shading sets in.
TEST_F(Faces, EachWidthIsShadedByTheSameRule) {
    for (int width : {1, 2, 7, 8, 9, 15, 16, 17, 2047, 2048, 2049, 2055, 4100}) {
        Tools tools;
        tools.Border = 1;
        tools.Dim_X = width + 2, tools.Dim_Y = 5;
        const Colors color(170, 60, 200);
        const std::unique_ptr<DWORD, decltype(&std::free)> face(tools.Inside_3D(color), std::free);
        const float step_x = 100.0f / static_cast<float>(width), step_y = 100.0f / 3.0f;
        for (int y = 0; y < tools.Dim_Y; ++y)
            for (int x = 0; x < tools.Dim_X; ++x) {
                const bool margin = x == 0 || x == width + 1 || y == 0 || y == 4;
                const float across = static_cast<float>(x - 1) * step_x - 50.0f;
                const float down = static_cast<float>(y - 1) * step_y - 50.0f;
                const int shade = margin ? 0 : static_cast<int>(across + down);
                const DWORD wanted =
                    static_cast<DWORD>(Colors(170 + shade, 60 + shade, 200 + shade).get_invert());
                ASSERT_EQ(face.get()[y * tools.Dim_X + x], wanted) << width << ": " << x << ", " << y;
            }
    }
}

} // namespace
