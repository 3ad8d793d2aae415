// Packing of message parameters, on both systems.

#include <brask/platform.h>

#include <gtest/gtest.h>

TEST(Words, HalvesOfAParameterAreUnsigned) {
    const LPARAM packed = MAKELPARAM(-2, 0x8001);
    EXPECT_EQ(LOWORD(packed), 0xFFFE);
    EXPECT_EQ(HIWORD(packed), 0x8001);
    EXPECT_EQ(static_cast<short>(LOWORD(packed)), -2);
    EXPECT_EQ(packed, static_cast<LPARAM>(0x8001FFFE));
}

TEST(Words, WheelStepsAreSigned) {
    EXPECT_EQ(GET_WHEEL_DELTA_WPARAM(MAKEWPARAM(MK_CONTROL, -120)), -120);
    EXPECT_EQ(GET_KEYSTATE_WPARAM(MAKEWPARAM(MK_CONTROL, -120)), MK_CONTROL);
}

TEST(Words, ColoursHaveRedInTheLowByte) { EXPECT_EQ(RGB(1, 2, 3), 0x030201u); }

TEST(Words, BytesOfAWord) {
    EXPECT_EQ(LOBYTE(0x1234), 0x34);
    EXPECT_EQ(HIBYTE(0x1234), 0x12);
}

TEST(Words, SizesAreThoseOfTheSystem) {
    EXPECT_EQ(sizeof(DWORD), 4u);
    EXPECT_EQ(sizeof(LONG), 4u);
    EXPECT_EQ(sizeof(WPARAM), sizeof(void*));
    EXPECT_EQ(sizeof(RECT), 16u);
    EXPECT_EQ(sizeof(POINT), 8u);
}
