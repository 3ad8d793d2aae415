// Size, place and back buffer of windows.

#include "host.h"
#include "platform/portable/surface.h"

static RECT client(HWND wnd) {
    RECT rect = {9, 9, 9, 9};
    EXPECT_TRUE(GetClientRect(wnd, &rect));
    return rect;
}

TEST(WindowPlace, ClientAndWindowAreTheSame) {
    Host host;
    RECT rect;
    EXPECT_TRUE(GetWindowRect(host.wnd, &rect));
    EXPECT_TRUE(rect.left == 100 && rect.top == 50 && rect.right == 300 && rect.bottom == 150);
    rect = client(host.wnd);
    EXPECT_TRUE(rect.left == 0 && rect.top == 0 && rect.right == 200 && rect.bottom == 100);
    RECT wish = {0, 0, 640, 480};
    EXPECT_TRUE(AdjustWindowRect(&wish, WS_OVERLAPPEDWINDOW, FALSE));
    EXPECT_TRUE(wish.left == 0 && wish.top == 0 && wish.right == 640 && wish.bottom == 480);
    EXPECT_FALSE(AdjustWindowRectEx(nullptr, 0, FALSE, 0));
}

TEST(WindowPlace, PointsGoBothWays) {
    Host host;
    POINT point = {3, 4};
    EXPECT_TRUE(ClientToScreen(host.wnd, &point));
    EXPECT_TRUE(point.x == 103 && point.y == 54);
    EXPECT_TRUE(ScreenToClient(host.wnd, &point));
    EXPECT_TRUE(point.x == 3 && point.y == 4);
}

TEST(WindowPlace, AResizeIsToldAndMovesTheBuffer) {
    ShownHost host;
    EXPECT_TRUE(MoveWindow(host.wnd, 100, 50, 320, 240, TRUE));
    const std::vector<Heard> heard = host.run();
    ASSERT_FALSE(heard.empty());
    EXPECT_EQ(heard[0], (Heard{WM_SIZE, SIZE_RESTORED, MAKELPARAM(320, 240)}));
    const raster::Canvas* canvas = platform::window_canvas(host.wnd);
    ASSERT_NE(canvas, nullptr);
    EXPECT_EQ(canvas->width, 320);
    EXPECT_EQ(canvas->height, 240);
}

TEST(WindowPlace, AMoveIsToldAndASizeThatStaysIsNot) {
    ShownHost host;
    EXPECT_TRUE(SetWindowPos(host.wnd, nullptr, 7, -8, 200, 100, SWP_NOZORDER));
    EXPECT_EQ(host.run(), (std::vector<Heard>{{WM_MOVE, 0, MAKELPARAM(7, -8)}}));
    EXPECT_TRUE(SetWindowPos(host.wnd, nullptr, 1, 2, 3, 4, SWP_NOZORDER | SWP_NOMOVE | SWP_NOSIZE));
    EXPECT_TRUE(host.run().empty());
}

TEST(WindowPlace, WhatWasPaintedSurvivesAResize) {
    Host host;
    raster::Canvas* canvas = platform::window_canvas(host.wnd);
    canvas->pixels[5 * canvas->pitch + 7] = 0x123456;
    canvas->pixels[99 * canvas->pitch + 199] = 0x654321;
    platform::desktop_resize(host.wnd, 300, 40);
    canvas = platform::window_canvas(host.wnd);
    EXPECT_EQ(canvas->pixels[5 * canvas->pitch + 7], 0x123456u);
    EXPECT_EQ(canvas->pixels[5 * canvas->pitch + 299], 0u);
}

TEST(WindowPlace, TheBufferHasAtLeastOnePixel) {
    for (const int size : {0, -5}) {
        Host host;
        MoveWindow(host.wnd, 0, 0, size, size, FALSE);
        const RECT rect = client(host.wnd);
        EXPECT_TRUE(rect.right == 0 && rect.bottom == 0);
        const raster::Canvas* canvas = platform::window_canvas(host.wnd);
        ASSERT_NE(canvas, nullptr);
        EXPECT_EQ(canvas->width, 1);
        EXPECT_EQ(canvas->height, 1);
        canvas->pixels[0] = 1;
    }
}

TEST(WindowPlace, EnormousSizesAreBounded) {
    Host host;
    MoveWindow(host.wnd, 2147483647, -2147483647, 2147483647, 3, FALSE);
    const RECT rect = client(host.wnd);
    EXPECT_EQ(rect.right, 16384);
    EXPECT_EQ(rect.bottom, 3);
    const HWND large =
        CreateWindowW(L"Host", L"", WS_POPUP, 0, 0, 2147483647, -1, nullptr, nullptr, nullptr, nullptr);
    const RECT other = client(large);
    EXPECT_EQ(other.right, 16384);
    EXPECT_EQ(other.bottom, 0);
    DestroyWindow(large);
}

TEST(WindowPlace, AWindowMayLeaveItsSizeToTheSystem) {
    Host host;
    const HWND wnd = CreateWindowW(L"Host", L"", WS_OVERLAPPEDWINDOW, CW_USEDEFAULT, 0, CW_USEDEFAULT, 0,
                                   nullptr, nullptr, nullptr, nullptr);
    const RECT rect = client(wnd);
    EXPECT_GE(rect.right, 320);
    EXPECT_GE(rect.bottom, 200);
    DestroyWindow(wnd);
}

TEST(WindowPlace, TheDesktopResizesAndMoves) {
    ShownHost host;
    platform::desktop_resize(host.wnd, 222, 111);
    platform::desktop_move(host.wnd, 5, 6);
    const std::vector<Heard> heard = host.run();
    ASSERT_GE(heard.size(), 3u);
    EXPECT_EQ(heard[0], (Heard{WM_SIZE, SIZE_RESTORED, MAKELPARAM(222, 111)}));
    EXPECT_EQ(heard[1], (Heard{WM_MOVE, 0, MAKELPARAM(5, 6)}));
    EXPECT_EQ(heard[2].message, static_cast<UINT>(WM_PAINT));
}

TEST(WindowPlace, TheDesktopMinimizesAndMaximizes) {
    ShownHost host;
    platform::desktop_layout(host.wnd, SIZE_MINIMIZED);
    EXPECT_TRUE(IsIconic(host.wnd));
    EXPECT_EQ(host.run(), (std::vector<Heard>{{WM_SIZE, SIZE_MINIMIZED, 0}}));
    platform::desktop_layout(host.wnd, SIZE_MAXIMIZED);
    EXPECT_TRUE(IsZoomed(host.wnd));
    EXPECT_EQ(host.run().front(), (Heard{WM_SIZE, SIZE_MAXIMIZED, MAKELPARAM(200, 100)}));
    platform::desktop_layout(host.wnd, 99);
    EXPECT_TRUE(host.run().empty());
}

TEST(WindowPlace, TheDesktopClosesByASystemCommand) {
    ShownHost host;
    platform::desktop_close(host.wnd);
    const std::vector<Heard> heard = host.run();
    ASSERT_GE(heard.size(), 2u);
    EXPECT_EQ(heard[0], (Heard{WM_SYSCOMMAND, SC_CLOSE, 0}));
    EXPECT_EQ(heard[1].message, static_cast<UINT>(WM_CLOSE));
    EXPECT_FALSE(IsWindow(host.wnd));
}

TEST(WindowPlace, TopmostIsAWordOfTheWindow) {
    Host host;
    SetWindowPos(host.wnd, HWND_TOPMOST, 0, 0, 1, 1, SWP_NOMOVE | SWP_NOSIZE);
    EXPECT_TRUE(GetWindowLongPtrW(host.wnd, GWL_EXSTYLE) & WS_EX_TOPMOST);
    SetWindowPos(host.wnd, HWND_NOTOPMOST, 0, 0, 1, 1, SWP_NOMOVE | SWP_NOSIZE);
    EXPECT_FALSE(GetWindowLongPtrW(host.wnd, GWL_EXSTYLE) & WS_EX_TOPMOST);
}
