// Coordinates of device contexts, on both systems.

#include <brask/platform.h>

#include <gtest/gtest.h>

class Transform : public testing::Test {
  protected:
    void SetUp() override { dc = GetDC(nullptr); }
    void TearDown() override { ReleaseDC(nullptr, dc); }

    POINT logical(int x, int y) {
        POINT point = {x, y};
        EXPECT_TRUE(DPtoLP(dc, &point, 1));
        return point;
    }
    POINT device(int x, int y) {
        POINT point = {x, y};
        EXPECT_TRUE(LPtoDP(dc, &point, 1));
        return point;
    }

    HDC dc = nullptr;
};

#define EXPECT_POINT(point, px, py)                                                                          \
    do {                                                                                                     \
        const POINT at = point;                                                                              \
        EXPECT_TRUE(at.x == (px) && at.y == (py)) << at.x << ' ' << at.y;                                    \
    } while (false)

TEST_F(Transform, IsNothingAtTheStart) { EXPECT_POINT(logical(12, -7), 12, -7); }

TEST_F(Transform, OriginsShift) {
    POINT old = {5, 5};
    EXPECT_TRUE(SetViewportOrgEx(dc, 10, 20, &old));
    EXPECT_POINT(old, 0, 0);
    EXPECT_POINT(device(1, 2), 11, 22);
    EXPECT_TRUE(SetWindowOrgEx(dc, 100, 200, nullptr));
    EXPECT_POINT(device(101, 202), 11, 22);
    EXPECT_POINT(logical(11, 22), 101, 202);
    EXPECT_TRUE(SetViewportOrgEx(dc, 0, 0, &old));
    EXPECT_POINT(old, 10, 20);
}

TEST_F(Transform, ScalesInTheAdvancedMode) {
    const XFORM scale = {2, 0, 0, 3, 1, -1};
    EXPECT_EQ(SetGraphicsMode(dc, GM_ADVANCED), GM_COMPATIBLE);
    EXPECT_TRUE(ModifyWorldTransform(dc, &scale, MWT_LEFTMULTIPLY));
    EXPECT_POINT(device(10, 10), 21, 29);
    EXPECT_POINT(logical(21, 29), 10, 10);
    EXPECT_TRUE(ModifyWorldTransform(dc, nullptr, MWT_IDENTITY));
    EXPECT_POINT(device(10, 10), 10, 10);
}

TEST_F(Transform, OrderOfProductsCounts) {
    SetGraphicsMode(dc, GM_ADVANCED);
    const XFORM scale = {2, 0, 0, 2, 0, 0};
    const XFORM shift = {1, 0, 0, 1, 5, 7};
    SetWorldTransform(dc, &scale);
    EXPECT_TRUE(ModifyWorldTransform(dc, &shift, MWT_LEFTMULTIPLY)); // the shift first
    EXPECT_POINT(device(1, 1), 12, 16);
    SetWorldTransform(dc, &scale);
    EXPECT_TRUE(ModifyWorldTransform(dc, &shift, MWT_RIGHTMULTIPLY)); // the shift last
    EXPECT_POINT(device(1, 1), 7, 9);
}

TEST_F(Transform, ModesOtherThanTheTwoAreRefused) {
    EXPECT_EQ(SetGraphicsMode(dc, 7), 0);
    EXPECT_EQ(SetGraphicsMode(dc, GM_COMPATIBLE), GM_COMPATIBLE);
}

TEST_F(Transform, ResolutionIs96) {
    EXPECT_EQ(GetDeviceCaps(dc, LOGPIXELSX), 96);
    EXPECT_EQ(GetDeviceCaps(dc, LOGPIXELSY), 96);
}
