// Rectangles, on both systems.

#include <climits>

#include <brask/platform.h>

#include <gtest/gtest.h>

static RECT rect(int left, int top, int right, int bottom) {
    RECT result;
    SetRect(&result, left, top, right, bottom);
    return result;
}

#define EXPECT_RECT(rect, l, t, r, b)                                                                        \
    EXPECT_TRUE(rect.left == l && rect.top == t && rect.right == r && rect.bottom == b)                      \
        << rect.left << ' ' << rect.top << ' ' << rect.right << ' ' << rect.bottom

TEST(Geometry, FarEdgesOfARectangleAreOutside) {
    const RECT area = rect(10, 20, 30, 40);
    EXPECT_TRUE(PtInRect(&area, {10, 20}));
    EXPECT_TRUE(PtInRect(&area, {29, 39}));
    EXPECT_FALSE(PtInRect(&area, {30, 39}));
    EXPECT_FALSE(PtInRect(&area, {29, 40}));
    EXPECT_FALSE(PtInRect(&area, {9, 20}));
    EXPECT_FALSE(PtInRect(&area, {10, 19}));
}

TEST(Geometry, ATurnedRectangleHoldsNoPoint) {
    const RECT area = rect(30, 20, 10, 40);
    for (int x = 5; x < 35; x++)
        EXPECT_FALSE(PtInRect(&area, {x, 30}));
}

TEST(Geometry, MovesAndGrows) {
    RECT area = rect(1, 2, 3, 4);
    EXPECT_TRUE(OffsetRect(&area, 10, -20));
    EXPECT_RECT(area, 11, -18, 13, -16);
    EXPECT_TRUE(InflateRect(&area, 2, 3));
    EXPECT_RECT(area, 9, -21, 15, -13);
    EXPECT_TRUE(InflateRect(&area, -1, -1));
    EXPECT_RECT(area, 10, -20, 14, -14);
}

TEST(Geometry, SumsBeyondTheRangeWrap) {
    RECT area = rect(INT_MAX, INT_MAX, INT_MAX, INT_MAX);
    EXPECT_TRUE(OffsetRect(&area, 1, 2));
    EXPECT_RECT(area, INT_MIN, INT_MIN + 1, INT_MIN, INT_MIN + 1);
}

TEST(Geometry, EmptyIsWithoutWidthOrHeight) {
    const RECT plain = rect(0, 0, 1, 1), flat = rect(0, 0, 5, 0), thin = rect(3, 0, 3, 9),
               turned = rect(4, 4, 1, 1);
    EXPECT_FALSE(IsRectEmpty(&plain));
    EXPECT_TRUE(IsRectEmpty(&flat));
    EXPECT_TRUE(IsRectEmpty(&thin));
    EXPECT_TRUE(IsRectEmpty(&turned));
}

TEST(Geometry, IntersectionIsTheCommonPart) {
    const RECT a = rect(0, 0, 10, 10), b = rect(5, -5, 20, 5), c = rect(10, 0, 20, 10);
    RECT common = rect(9, 9, 9, 9);
    EXPECT_TRUE(IntersectRect(&common, &a, &b));
    EXPECT_RECT(common, 5, 0, 10, 5);
    EXPECT_FALSE(IntersectRect(&common, &a, &c));
    EXPECT_RECT(common, 0, 0, 0, 0);
}

TEST(Geometry, IntersectionMayReplaceItsSource) {
    RECT a = rect(0, 0, 10, 10);
    const RECT b = rect(2, 3, 4, 5);
    EXPECT_TRUE(IntersectRect(&a, &a, &b));
    EXPECT_RECT(a, 2, 3, 4, 5);
}

TEST(Geometry, UnionHoldsBothAndIgnoresEmptyOnes) {
    const RECT a = rect(0, 0, 10, 10), b = rect(5, -5, 20, 5), empty = rect(50, 50, 50, 90);
    RECT whole;
    EXPECT_TRUE(UnionRect(&whole, &a, &b));
    EXPECT_RECT(whole, 0, -5, 20, 10);
    EXPECT_TRUE(UnionRect(&whole, &a, &empty));
    EXPECT_RECT(whole, 0, 0, 10, 10);
    EXPECT_TRUE(UnionRect(&whole, &empty, &b));
    EXPECT_RECT(whole, 5, -5, 20, 5);
    EXPECT_FALSE(UnionRect(&whole, &empty, &empty));
    EXPECT_RECT(whole, 0, 0, 0, 0);
}

TEST(Geometry, EqualInAllFourEdges) {
    const RECT a = rect(1, 2, 3, 4);
    for (int edge = 0; edge < 4; edge++) {
        const RECT other = rect(1 + (edge == 0), 2 + (edge == 1), 3 + (edge == 2), 4 + (edge == 3));
        EXPECT_FALSE(EqualRect(&a, &other));
    }
    const RECT same = a;
    EXPECT_TRUE(EqualRect(&a, &same));
}
