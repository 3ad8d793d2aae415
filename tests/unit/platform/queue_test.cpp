// The message queue: order, filters, end, threads.

#include <atomic>
#include <thread>

#include "host.h"

static MSG take() {
    MSG msg{};
    EXPECT_TRUE(PeekMessageW(&msg, nullptr, 0, 0, PM_REMOVE));
    return msg;
}

TEST(Queue, OrderIsPostedInputQuitPaintTimer) {
    ShownHost host;
    SetTimer(host.wnd, 1, USER_TIMER_MINIMUM, nullptr);
    Sleep(20);
    InvalidateRect(host.wnd, nullptr, FALSE);
    PostQuitMessage(7);
    key(4, true);
    PostMessageW(host.wnd, WM_APP, 1, 2);
    EXPECT_EQ(take().message, static_cast<UINT>(WM_APP));
    EXPECT_EQ(take().message, static_cast<UINT>(WM_KEYDOWN));
    MSG quit;
    EXPECT_EQ(GetMessageW(&quit, nullptr, 0, 0), 0);
    EXPECT_EQ(quit.message, static_cast<UINT>(WM_QUIT));
    EXPECT_EQ(quit.wParam, 7u);
    EXPECT_EQ(take().message, static_cast<UINT>(WM_PAINT));
    ValidateRect(host.wnd, nullptr);
    EXPECT_EQ(take().message, static_cast<UINT>(WM_TIMER));
}

TEST(Queue, PostedMessagesKeepTheirOrderAndParameters) {
    Host host;
    host.run();
    for (UINT i = 0; i < 5; i++)
        EXPECT_TRUE(PostMessageW(host.wnd, WM_USER + i, i, -static_cast<LPARAM>(i)));
    const std::vector<Heard> heard = host.run();
    ASSERT_EQ(heard.size(), 5u);
    for (UINT i = 0; i < 5; i++)
        EXPECT_EQ(heard[i], (Heard{WM_USER + i, i, -static_cast<LPARAM>(i)}));
}

TEST(Queue, PeekingLeavesTheMessageUnlessToldToTakeIt) {
    Host host;
    PostMessageW(host.wnd, WM_APP, 0, 0);
    MSG msg;
    EXPECT_TRUE(PeekMessageW(&msg, nullptr, 0, 0, PM_NOREMOVE));
    EXPECT_TRUE(PeekMessageW(&msg, nullptr, 0, 0, PM_REMOVE));
    EXPECT_FALSE(PeekMessageW(&msg, nullptr, 0, 0, PM_REMOVE));
}

TEST(Queue, FiltersByWindowAndRange) {
    ShownHost host;
    Host other;
    PostMessageW(host.wnd, WM_APP, 0, 0);
    PostMessageW(other.wnd, WM_APP + 1, 0, 0);
    key(4, true);
    MSG msg;
    EXPECT_TRUE(PeekMessageW(&msg, other.wnd, 0, 0, PM_REMOVE));
    EXPECT_EQ(msg.message, static_cast<UINT>(WM_APP + 1));
    EXPECT_FALSE(PeekMessageW(&msg, other.wnd, 0, 0, PM_REMOVE));
    EXPECT_TRUE(PeekMessageW(&msg, nullptr, WM_KEYFIRST, WM_KEYLAST, PM_REMOVE));
    EXPECT_EQ(msg.message, static_cast<UINT>(WM_KEYDOWN));
    EXPECT_FALSE(PeekMessageW(&msg, nullptr, WM_MOUSEFIRST, WM_MOUSELAST, PM_REMOVE));
    EXPECT_TRUE(PeekMessageW(&msg, host.wnd, WM_APP, WM_APP, PM_REMOVE));
}

TEST(Queue, InputThatDoesNotPassTheFilterKeepsItsPlace) {
    ShownHost host;
    key(4, true);
    platform::desktop_button(host.wnd, 1, true, 3, 3, 1);
    MSG msg;
    EXPECT_TRUE(PeekMessageW(&msg, nullptr, WM_MOUSEFIRST, WM_MOUSELAST, PM_REMOVE));
    EXPECT_EQ(msg.message, static_cast<UINT>(WM_LBUTTONDOWN));
    EXPECT_TRUE(PeekMessageW(&msg, nullptr, 0, 0, PM_REMOVE));
    EXPECT_EQ(msg.message, static_cast<UINT>(WM_KEYDOWN));
}

TEST(Queue, MessagesOfADeadWindowAreGone) {
    Host host;
    PostMessageW(host.wnd, WM_APP, 0, 0);
    const HWND dead = host.wnd;
    DestroyWindow(dead);
    MSG msg;
    EXPECT_FALSE(PeekMessageW(&msg, nullptr, 0, 0, PM_REMOVE));
    EXPECT_FALSE(PostMessageW(dead, WM_APP, 0, 0));
    EXPECT_EQ(SendMessageW(dead, WM_APP, 0, 0), 0);
    EXPECT_FALSE(PeekMessageW(&msg, dead, 0, 0, PM_REMOVE));
    EXPECT_EQ(GetMessageW(&msg, dead, 0, 0), -1);
    msg = {};
    msg.hwnd = dead;
    msg.message = WM_APP;
    EXPECT_EQ(DispatchMessageW(&msg), 0);
}

TEST(Queue, MessagesWithoutAWindowArriveAndGoNowhere) {
    EXPECT_TRUE(PostMessageW(nullptr, WM_APP, 5, 6));
    const MSG msg = take();
    EXPECT_EQ(msg.hwnd, nullptr);
    EXPECT_EQ(msg.wParam, 5u);
    EXPECT_EQ(DispatchMessageW(&msg), 0);
}

TEST(Queue, BadArgumentsAreErrors) {
    EXPECT_EQ(GetMessageW(nullptr, nullptr, 0, 0), -1);
    EXPECT_FALSE(PeekMessageW(nullptr, nullptr, 0, 0, PM_REMOVE));
    EXPECT_EQ(DispatchMessageW(nullptr), 0);
    MSG msg;
    EXPECT_EQ(GetMessageW(&msg, reinterpret_cast<HWND>(0x1234), 0, 0), -1);
}

TEST(Queue, HoldsTenThousandPostedMessages) {
    Host host;
    int taken = 0;
    while (PostMessageW(host.wnd, WM_APP, 0, 0))
        taken++;
    EXPECT_EQ(taken, 10000);
    MSG msg;
    EXPECT_TRUE(PeekMessageW(&msg, nullptr, 0, 0, PM_REMOVE));
    EXPECT_TRUE(PostMessageW(host.wnd, WM_APP, 0, 0));
}

TEST(Queue, AnotherThreadWakesAWaitingHost) {
    Host host;
    host.run();
    std::thread other([&] {
        Sleep(30);
        PostMessageW(host.wnd, WM_APP, 42, 0);
    });
    MSG msg;
    EXPECT_EQ(GetMessageW(&msg, nullptr, 0, 0), 1);
    EXPECT_EQ(msg.wParam, 42u);
    other.join();
}

TEST(Queue, MessagesOfManyThreadsAllArrive) {
    Host host;
    host.run();
    std::vector<std::thread> threads;
    for (WPARAM number = 0; number < 4; number++) {
        threads.emplace_back([&host, number] {
            for (LPARAM i = 0; i < 500; i++)
                PostMessageW(host.wnd, WM_APP, number, i);
        });
    }
    LPARAM next[4] = {};
    for (int i = 0; i < 2000; i++) {
        MSG msg;
        ASSERT_EQ(GetMessageW(&msg, nullptr, 0, 0), 1);
        ASSERT_LT(msg.wParam, 4u);
        EXPECT_EQ(msg.lParam, next[msg.wParam]++); // each thread's in its order
    }
    for (std::thread& thread : threads)
        thread.join();
}

TEST(Queue, AFilteredWaitIsNotEndedByOtherMessages) {
    Host host, other;
    host.run();
    PostMessageW(other.wnd, WM_APP, 1, 0);
    std::thread thread([&] {
        Sleep(20);
        PostMessageW(host.wnd, WM_APP, 2, 0);
    });
    MSG msg;
    EXPECT_EQ(GetMessageW(&msg, host.wnd, 0, 0), 1);
    EXPECT_EQ(msg.wParam, 2u);
    thread.join();
}

TEST(Queue, AHostMayPumpWithinAMessage) {
    ShownHost host;
    int depth = 0;
    host.answer = [&](UINT message, WPARAM, LPARAM, LRESULT*) {
        if (message == WM_APP && depth++ < 3) host.run();
        return false;
    };
    for (int i = 0; i < 4; i++)
        PostMessageW(host.wnd, WM_APP, 0, 0);
    host.run();
    EXPECT_EQ(depth, 4);
}
