#include <gtest/gtest.h>

#include "screen.h"

namespace {

struct Place {
    int x, y;
    bool operator==(const Place& other) const { return x == other.x && y == other.y; }
};
std::ostream& operator<<(std::ostream& out, const Place& place) { return out << place.x << ", " << place.y; }

Place read(HWND wnd) {
    Place place{-77, -77};
    Zeb_setup(wnd, "test");
    const POINT point = read_curs(&place.x, &place.y);
    Zeb_release();
    EXPECT_EQ(point.x, place.x);
    EXPECT_EQ(point.y, place.y);
    return place;
}

void put(HWND wnd, int x, int y) {
    Zeb_setup(wnd, "test");
    set_curs(x, y);
    Zeb_release();
}

TEST(Pointer, ComesDownwardAndGoesUpward) {
    Screen screen(20, 10);
    put(screen.wnd, 3, 0);
    EXPECT_EQ(read(screen.wnd), (Place{3, 9}));
    put(screen.wnd, 0, 9);
    EXPECT_EQ(read(screen.wnd), (Place{0, 0}));
}

TEST(Pointer, HoldsUntilTheNextOneOfThatWindow) {
    Screen one(20, 10), other(20, 20);
    put(one.wnd, 1, 2);
    put(other.wnd, 5, 6);
    EXPECT_EQ(read(one.wnd), (Place{1, 7}));
    EXPECT_EQ(read(other.wnd), (Place{5, 13}));
    EXPECT_EQ(read(one.wnd), (Place{1, 7}));
    put(one.wnd, 8, 8);
    EXPECT_EQ(read(one.wnd), (Place{8, 1}));
    EXPECT_EQ(read(other.wnd), (Place{5, 13}));
}

TEST(Pointer, FollowsTheWindowsHeight) {
    Screen screen(20, 10);
    put(screen.wnd, 3, 4);
    screen.resize(20, 30);
    EXPECT_EQ(read(screen.wnd), (Place{3, 25}));
}

TEST(Pointer, IsThePlatformsUntilTheFirstOne) {
    Screen screen(20, 10);
    POINT point{};
    GetCursorPos(&point);
    ScreenToClient(screen.wnd, &point);
    EXPECT_EQ(read(screen.wnd), (Place{point.x, 9 - point.y}));
}

TEST(Pointer, WordsOfAMessageRegainTheirSign) {
    Screen screen(20, 10);
    put(screen.wnd, 0xFFFA, 0xFFFF);
    EXPECT_EQ(read(screen.wnd), (Place{-6, 10}));
    put(screen.wnd, -6, -1);
    EXPECT_EQ(read(screen.wnd), (Place{-6, 10}));
    put(screen.wnd, 0x7FFF, 0x10000);
    EXPECT_EQ(read(screen.wnd), (Place{0x7FFF, 9 - 0x10000}));
}

TEST(Pointer, ShortNumbersToo) {
    Screen screen(20, 10);
    unsigned short x = 7, y = 7;
    Zeb_setup(screen.wnd, "test");
    set_curs(4, 2);
    POINT point = read_curs(&x, &y);
    EXPECT_EQ(x, 4);
    EXPECT_EQ(y, 7);
    EXPECT_EQ(point.x, 4);
    EXPECT_EQ(point.y, 7);
    set_curs(-2, 12);
    point = read_curs(&x, &y);
    EXPECT_EQ(x, 0xFFFE); // wrapped in the arguments, whole in the result
    EXPECT_EQ(y, 0xFFFD);
    EXPECT_EQ(point.x, -2);
    EXPECT_EQ(point.y, -3);
    Zeb_release();
}

TEST(Pointer, IsOnNothingWithoutAWindow) {
    Screen screen(20, 10);
    put(screen.wnd, 3, 4);
    EXPECT_EQ(read(nullptr), (Place{-1, -1}));
    int x = 5, y = 5;
    read_curs(&x, &y); // outside of a bracket
    EXPECT_EQ(x, -1);
    EXPECT_EQ(y, -1);
    set_curs(9, 9);
    EXPECT_EQ(read(screen.wnd), (Place{3, 5}));
}

TEST(Pointer, ArgumentsMayBeNull) {
    Screen screen(20, 10);
    Zeb_setup(screen.wnd, "test");
    set_curs(4, 2);
    int y = 0;
    EXPECT_EQ(read_curs(nullptr, &y).x, 4);
    EXPECT_EQ(y, 7);
    unsigned short x = 0;
    EXPECT_EQ(read_curs(&x, static_cast<unsigned short*>(nullptr)).y, 7);
    EXPECT_EQ(x, 4);
    Zeb_release();
}

TEST(Pointer, IsForgottenWithItsWindow) {
    for (int i = 0; i < 50; ++i) { // sooner or later a handle comes again
        Screen screen(20, 10);
        POINT point{};
        GetCursorPos(&point);
        ScreenToClient(screen.wnd, &point);
        ASSERT_EQ(read(screen.wnd), (Place{point.x, 9 - point.y})) << "window " << i;
        put(screen.wnd, 7, 7);
    }
}

} // namespace
