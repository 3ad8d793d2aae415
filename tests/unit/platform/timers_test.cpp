// Timers.

#include "host.h"

static int count_timers(const std::vector<Heard>& heard, WPARAM id) {
    int count = 0;
    for (const Heard& each : heard)
        count += each.message == WM_TIMER && each.wparam == id;
    return count;
}

TEST(Timers, ArriveWhenTheirTimeHasCome) {
    Host host;
    host.run();
    EXPECT_EQ(SetTimer(host.wnd, 5, 10, nullptr), 5u);
    EXPECT_EQ(count_timers(host.run(), 5), 0);
    MSG msg;
    EXPECT_EQ(GetMessageW(&msg, nullptr, 0, 0), 1);
    EXPECT_EQ(msg.message, static_cast<UINT>(WM_TIMER));
    EXPECT_EQ(msg.hwnd, host.wnd);
    EXPECT_EQ(msg.wParam, 5u);
}

TEST(Timers, TicksThatWereMissedAreNotMadeUpFor) {
    Host host;
    SetTimer(host.wnd, 5, 10, nullptr);
    Sleep(60);
    EXPECT_LE(count_timers(host.run(), 5), 2);
}

TEST(Timers, GoOnUntilTheyAreKilled) {
    Host host;
    SetTimer(host.wnd, 5, 10, nullptr);
    for (int i = 0; i < 3; i++) {
        MSG msg;
        EXPECT_EQ(GetMessageW(&msg, host.wnd, WM_TIMER, WM_TIMER), 1);
    }
    EXPECT_TRUE(KillTimer(host.wnd, 5));
    EXPECT_FALSE(KillTimer(host.wnd, 5));
    Sleep(15);
    EXPECT_EQ(count_timers(host.run(), 5), 0);
}

TEST(Timers, ASecondOneOfTheNumberReplacesTheFirst) {
    Host host;
    SetTimer(host.wnd, 5, 10, nullptr);
    SetTimer(host.wnd, 5, 100000, nullptr);
    Sleep(15);
    EXPECT_EQ(count_timers(host.run(), 5), 0);
    EXPECT_TRUE(KillTimer(host.wnd, 5));
    EXPECT_FALSE(KillTimer(host.wnd, 5));
}

TEST(Timers, EndWithTheirWindow) {
    Host host;
    SetTimer(host.wnd, 5, 10, nullptr);
    DestroyWindow(host.wnd);
    EXPECT_FALSE(KillTimer(host.wnd, 5));
    EXPECT_EQ(SetTimer(host.wnd, 5, 10, nullptr), 0u);
}

static int calls;
static UINT_PTR called_with;
static void CALLBACK on_timer(HWND, UINT, UINT_PTR id, DWORD) {
    calls++;
    called_with = id;
}

TEST(Timers, CallTheirProcedure) {
    Host host;
    host.run();
    calls = 0;
    SetTimer(host.wnd, 9, 10, on_timer);
    MSG msg;
    ASSERT_EQ(GetMessageW(&msg, nullptr, 0, 0), 1);
    DispatchMessageW(&msg);
    EXPECT_EQ(calls, 1);
    EXPECT_EQ(called_with, 9u);
    EXPECT_EQ(count_timers(host.heard, 9), 0);
}

TEST(Timers, AMadeUpProcedureIsNotCalled) {
    Host host;
    MSG msg{};
    msg.hwnd = host.wnd;
    msg.message = WM_TIMER;
    msg.wParam = 9;
    msg.lParam = 0x1234;
    EXPECT_EQ(DispatchMessageW(&msg), 0);
}

TEST(Timers, WithoutAWindowGetANumberOfTheirOwn) {
    calls = 0;
    const UINT_PTR first = SetTimer(nullptr, 1, 10, on_timer);
    const UINT_PTR second = SetTimer(nullptr, 1, 10, on_timer);
    EXPECT_NE(first, 0u);
    EXPECT_NE(first, second);
    MSG msg;
    ASSERT_EQ(GetMessageW(&msg, nullptr, 0, 0), 1);
    DispatchMessageW(&msg);
    EXPECT_EQ(calls, 1);
    EXPECT_TRUE(KillTimer(nullptr, first));
    EXPECT_TRUE(KillTimer(nullptr, second));
}
