#include <climits>
#include <cmath>
#include <limits>

#include <gtest/gtest.h>

#include "foundation/pixels.h"
#include "foundation/track.h"

namespace {

using namespace brask;

TEST(Px, WrapsInsteadOfOverflowing) {
    EXPECT_EQ(Px(INT_MAX) + 1, INT_MIN);
    EXPECT_EQ(1 + Px(INT_MAX), INT_MIN);
    EXPECT_EQ(Px(INT_MIN) - 1, INT_MAX);
    EXPECT_EQ(0 - Px(INT_MIN), INT_MIN);
    EXPECT_EQ(-Px(INT_MIN), INT_MIN);
    EXPECT_EQ(Px(INT_MAX) * 2, -2);
    EXPECT_EQ(2 * Px(INT_MIN), 0);
}

TEST(Px, CountsAsAnIntegerDoes) {
    EXPECT_EQ(Px(7) - 9, -2);
    EXPECT_EQ((Px(7) - 10) / 2, -1);
    EXPECT_EQ((Px(7) - 10) >> 1, -2);
    EXPECT_LT(Px(-1), 0);
}

TEST(Cut, GoesTowardZeroAndStopsAtTheEnds) {
    EXPECT_EQ(cut(2.9f), 2);
    EXPECT_EQ(cut(-2.9f), -2);
    EXPECT_EQ(cut(3e9f), INT_MAX);
    EXPECT_EQ(cut(-3e9f), INT_MIN);
    EXPECT_EQ(cut(-2147483648.0f), INT_MIN);
    EXPECT_EQ(cut(std::numeric_limits<float>::infinity()), INT_MAX);
    EXPECT_EQ(cut(std::nanf("")), 0);
}

TEST(Track, FollowsItsTable) {
    struct {
        int select;
        bool inside;
        int next;
        bool repaint;
    } const rows[] = {{0, true, 1, true},  {1, true, 1, false}, {2, true, 1, true},
                      {0, false, 2, true}, {1, false, 2, true}, {2, false, 2, false}};
    for (const auto& row : rows) {
        const brask::Track step = track(row.select, row.inside);
        EXPECT_EQ(step.next, row.next) << row.select << row.inside;
        EXPECT_EQ(step.repaint, row.repaint) << row.select << row.inside;
    }
}

} // namespace
