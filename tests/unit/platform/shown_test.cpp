// Showing, activation and focus. There is no desktop here: the windows stay in memory, and all goes on.

#include "host.h"

static HWND handle(WPARAM word) { return reinterpret_cast<HWND>(word); }

TEST(Shown, FirstShowTellsInTheOrderOfTheSystem) {
    Host host;
    host.run();
    EXPECT_FALSE(ShowWindow(host.wnd, SW_SHOW));
    std::vector<UINT> names = host.names();
    names.erase(std::remove(names.begin(), names.end(), static_cast<UINT>(WM_GETMINMAXINFO)), names.end());
    EXPECT_EQ(names, (std::vector<UINT>{WM_SHOWWINDOW, WM_ACTIVATE, WM_SETFOCUS, WM_SIZE, WM_MOVE, WM_PAINT,
                                        WM_ERASEBKGND}));
    EXPECT_TRUE(IsWindowVisible(host.wnd));
    EXPECT_EQ(GetActiveWindow(), host.wnd);
    EXPECT_EQ(GetFocus(), host.wnd);
    EXPECT_TRUE(ShowWindow(host.wnd, SW_SHOW));
    EXPECT_TRUE(host.run().empty());
}

TEST(Shown, APopUpKnowsItsSizeFromItsCreation) {
    Host host(WS_POPUP);
    EXPECT_EQ(host.names(), (std::vector<UINT>{WM_NCCREATE, WM_CREATE, WM_SIZE, WM_MOVE}));
    ShowWindow(host.wnd, SW_SHOW);
    EXPECT_TRUE(host.run(WM_SIZE, WM_SIZE).empty());
}

TEST(Shown, AVisibleStyleShowsAtCreation) {
    Host host(WS_OVERLAPPEDWINDOW | WS_VISIBLE);
    EXPECT_TRUE(IsWindowVisible(host.wnd));
    const std::vector<UINT> names = host.names();
    EXPECT_EQ(std::count(names.begin(), names.end(), static_cast<UINT>(WM_SHOWWINDOW)), 1);
}

TEST(Shown, HidingGivesTheFocusAway) {
    ShownHost host;
    EXPECT_TRUE(ShowWindow(host.wnd, SW_HIDE));
    EXPECT_EQ(host.names(), (std::vector<UINT>{WM_SHOWWINDOW, WM_ACTIVATE, WM_KILLFOCUS}));
    EXPECT_FALSE(IsWindowVisible(host.wnd));
    EXPECT_EQ(GetFocus(), nullptr);
    EXPECT_FALSE(ShowWindow(host.wnd, SW_HIDE));
    EXPECT_TRUE(host.run().empty());
}

TEST(Shown, SomeCommandsDoNotActivate) {
    for (const int command : {SW_SHOWNA, SW_SHOWNOACTIVATE}) {
        Host host;
        ShowWindow(host.wnd, command);
        EXPECT_TRUE(IsWindowVisible(host.wnd));
        EXPECT_EQ(GetActiveWindow(), nullptr);
    }
}

TEST(Shown, LayoutCommands) {
    ShownHost host;
    ShowWindow(host.wnd, SW_MAXIMIZE);
    EXPECT_TRUE(IsZoomed(host.wnd));
    EXPECT_EQ(host.run(WM_SIZE, WM_SIZE),
              (std::vector<Heard>{{WM_SIZE, SIZE_MAXIMIZED, MAKELPARAM(200, 100)}}));
    ShowWindow(host.wnd, SW_MINIMIZE);
    EXPECT_TRUE(IsIconic(host.wnd));
    EXPECT_EQ(host.run(WM_SIZE, WM_SIZE), (std::vector<Heard>{{WM_SIZE, SIZE_MINIMIZED, 0}}));
    ShowWindow(host.wnd, SW_RESTORE);
    EXPECT_FALSE(IsIconic(host.wnd) || IsZoomed(host.wnd));
    EXPECT_EQ(host.run(WM_SIZE, WM_SIZE).size(), 1u);
    ShowWindow(host.wnd, 1234);
    EXPECT_TRUE(host.run().empty());
}

TEST(Shown, ActivationPassesFromWindowToWindow) {
    ShownHost first;
    Host second;
    ShowWindow(second.wnd, SW_SHOW);
    const std::vector<Heard> left = first.run();
    ASSERT_EQ(left.size(), 2u);
    EXPECT_EQ(left[0].message, static_cast<UINT>(WM_ACTIVATE));
    EXPECT_EQ(left[0].wparam, static_cast<WPARAM>(WA_INACTIVE));
    EXPECT_EQ(reinterpret_cast<HWND>(left[0].lparam), second.wnd);
    EXPECT_EQ(left[1].message, static_cast<UINT>(WM_KILLFOCUS));
    EXPECT_EQ(handle(left[1].wparam), second.wnd);
    EXPECT_EQ(SetFocus(first.wnd), second.wnd);
    EXPECT_EQ(GetActiveWindow(), first.wnd);
    EXPECT_EQ(SetFocus(nullptr), first.wnd);
    EXPECT_EQ(GetFocus(), nullptr);
    EXPECT_EQ(GetActiveWindow(), first.wnd);
    EXPECT_TRUE(SetForegroundWindow(second.wnd));
    EXPECT_EQ(GetFocus(), second.wnd);
}

TEST(Shown, TheOwnerIsActiveAgainWhenItsWindowEnds) {
    ShownHost owner;
    {
        Host owned(WS_POPUP, 0, owner.wnd);
        ShowWindow(owned.wnd, SW_SHOW);
        EXPECT_EQ(GetActiveWindow(), owned.wnd);
    }
    EXPECT_EQ(GetActiveWindow(), owner.wnd);
    EXPECT_EQ(GetFocus(), owner.wnd);
}

TEST(Shown, TheDesktopGivesAndTakesTheKeyboard) {
    ShownHost host;
    platform::desktop_focus(host.wnd, false);
    EXPECT_EQ(GetFocus(), host.wnd); // in the order of the queue
    EXPECT_EQ(host.run(), (std::vector<Heard>{{WM_ACTIVATE, WA_INACTIVE, 0}, {WM_KILLFOCUS, 0, 0}}));
    platform::desktop_focus(host.wnd, true);
    EXPECT_EQ(host.run(), (std::vector<Heard>{{WM_ACTIVATE, WA_ACTIVE, 0}, {WM_SETFOCUS, 0, 0}}));
    platform::desktop_focus(host.wnd, true);
    EXPECT_TRUE(host.run().empty());
}

TEST(Shown, DisablingTakesFocusAndCapture) {
    ShownHost host;
    SetCapture(host.wnd);
    EXPECT_FALSE(EnableWindow(host.wnd, FALSE));
    EXPECT_EQ(host.names(), (std::vector<UINT>{WM_CAPTURECHANGED, WM_KILLFOCUS, WM_ENABLE}));
    EXPECT_FALSE(IsWindowEnabled(host.wnd));
    EXPECT_EQ(SetFocus(host.wnd), nullptr);
    EXPECT_TRUE(EnableWindow(host.wnd, FALSE));
    EXPECT_TRUE(host.run().empty());
    EXPECT_TRUE(EnableWindow(host.wnd, TRUE));
    EXPECT_EQ(host.names(), (std::vector<UINT>{WM_ENABLE})); // the focus is the host's to give back
    EXPECT_EQ(SetFocus(host.wnd), nullptr);
    EXPECT_EQ(GetFocus(), host.wnd);
}

TEST(Shown, TheLossOfAWindowThatIsNotActiveIsOldNews) {
    ShownHost first;
    platform::desktop_focus(first.wnd, false);
    Host second;
    ShowWindow(second.wnd, SW_SHOW);
    second.run();
    EXPECT_EQ(GetActiveWindow(), second.wnd);
}

TEST(Shown, BetweenTwoWindowsTheKeyboardPassesInOneStep) {
    ShownHost first;
    Host second;
    ShowWindow(second.wnd, SW_SHOWNA);
    second.run();
    first.run();
    platform::desktop_focus(first.wnd, false);
    platform::desktop_focus(second.wnd, true);
    second.run();
    const auto next = reinterpret_cast<LPARAM>(second.wnd);
    EXPECT_EQ(first.run(), (std::vector<Heard>{{WM_ACTIVATE, WA_INACTIVE, next},
                                               {WM_KILLFOCUS, static_cast<WPARAM>(next), 0}}));
}

TEST(Shown, AHostMayChooseAnotherWindowWhileItIsDeactivated) {
    ShownHost first;
    Host second, third;
    ShowWindow(third.wnd, SW_SHOWNA);
    first.answer = [&](UINT message, WPARAM wparam, LPARAM, LRESULT*) {
        if (message == WM_ACTIVATE && wparam == WA_INACTIVE) SetActiveWindow(third.wnd);
        return false;
    };
    ShowWindow(second.wnd, SW_SHOW);
    EXPECT_EQ(GetActiveWindow(), third.wnd);
    EXPECT_EQ(GetFocus(), third.wnd);
    for (const Heard& heard : second.run(WM_ACTIVATE, WM_ACTIVATE))
        EXPECT_EQ(heard.wparam, static_cast<WPARAM>(WA_INACTIVE));
}
