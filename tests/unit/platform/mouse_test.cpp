// Mouse messages: positions, flags, double clicks, wheel, capture, cursor.

#include "host.h"
#include "platform/portable/surface.h"

using platform::desktop_button;
using platform::desktop_mouse_leave;
using platform::desktop_mouse_move;
using platform::desktop_wheel;

static LPARAM at(int x, int y) { return MAKELPARAM(x, y); }

static void click(HWND wnd, int button, int x, int y, DWORD time) {
    desktop_button(wnd, button, true, x, y, time);
    desktop_button(wnd, button, false, x, y, time + 1);
}

TEST(Mouse, MovesCarryClientCoordinates) {
    ShownHost host;
    desktop_mouse_move(host.wnd, 12, 34, 1);
    EXPECT_EQ(host.run_mouse(), (std::vector<Heard>{{WM_MOUSEMOVE, 0, at(12, 34)}}));
    POINT point;
    GetCursorPos(&point);
    EXPECT_EQ(point.x, 112);
    EXPECT_EQ(point.y, 84);
    EXPECT_EQ(platform::window_pointer(host.wnd).x, 12);
    EXPECT_EQ(platform::window_pointer(host.wnd).y, 34);
}

TEST(Mouse, OfMovesInARowOnlyTheLatestIsTold) {
    ShownHost host;
    for (int x = 1; x <= 5; x++)
        desktop_mouse_move(host.wnd, x, 9, 1);
    desktop_button(host.wnd, 1, true, 5, 9, 1);
    desktop_mouse_move(host.wnd, 6, 9, 1);
    desktop_mouse_move(host.wnd, 7, 9, 1);
    EXPECT_EQ(host.run_mouse(), (std::vector<Heard>{{WM_MOUSEMOVE, 0, at(5, 9)},
                                                    {WM_LBUTTONDOWN, MK_LBUTTON, at(5, 9)},
                                                    {WM_MOUSEMOVE, MK_LBUTTON, at(7, 9)}}));
}

TEST(Mouse, EachButtonHasItsMessagesAndFlag) {
    ShownHost host;
    struct Row {
        int button;
        UINT down, up;
        WPARAM flag, extra;
    };
    for (const Row& row : {Row{1, WM_LBUTTONDOWN, WM_LBUTTONUP, MK_LBUTTON, 0},
                           Row{2, WM_MBUTTONDOWN, WM_MBUTTONUP, MK_MBUTTON, 0},
                           Row{3, WM_RBUTTONDOWN, WM_RBUTTONUP, MK_RBUTTON, 0},
                           Row{4, WM_XBUTTONDOWN, WM_XBUTTONUP, MK_XBUTTON1, XBUTTON1},
                           Row{5, WM_XBUTTONDOWN, WM_XBUTTONUP, MK_XBUTTON2, XBUTTON2}}) {
        click(host.wnd, row.button, 3, 4, 1);
        EXPECT_EQ(host.run_mouse(), (std::vector<Heard>{{row.down, row.flag | row.extra << 16, at(3, 4)},
                                                        {row.up, row.extra << 16, at(3, 4)}}));
    }
}

TEST(Mouse, FlagsTellWhatIsHeld) {
    ShownHost host;
    key(225, true);
    desktop_button(host.wnd, 3, true, 3, 4, 1);
    desktop_button(host.wnd, 1, true, 3, 4, 1);
    desktop_button(host.wnd, 3, false, 3, 4, 1);
    key(224, true);
    key(225, false);
    desktop_mouse_move(host.wnd, 5, 6, 1);
    const std::vector<Heard> heard = host.run_mouse();
    ASSERT_EQ(heard.size(), 4u);
    EXPECT_EQ(heard[0].wparam, static_cast<WPARAM>(MK_RBUTTON | MK_SHIFT));
    EXPECT_EQ(heard[1].wparam, static_cast<WPARAM>(MK_LBUTTON | MK_RBUTTON | MK_SHIFT));
    EXPECT_EQ(heard[2].wparam, static_cast<WPARAM>(MK_LBUTTON | MK_SHIFT));
    EXPECT_EQ(heard[3].wparam, static_cast<WPARAM>(MK_LBUTTON | MK_CONTROL));
}

TEST(Mouse, ASecondPressIsADoubleClickForClassesThatAsk) {
    ShownHost host(CS_DBLCLKS);
    for (int i = 0; i < 4; i++)
        click(host.wnd, 1, 10 + i % 2, 10, 1000 + 100 * static_cast<DWORD>(i));
    std::vector<UINT> downs;
    for (const Heard& heard : host.run_mouse()) {
        if (heard.message != WM_LBUTTONUP) downs.push_back(heard.message);
    }
    EXPECT_EQ(downs, (std::vector<UINT>{WM_LBUTTONDOWN, WM_LBUTTONDBLCLK, WM_LBUTTONDOWN, WM_LBUTTONDBLCLK}));
}

TEST(Mouse, OtherClassesHearPressesAlone) {
    ShownHost host;
    click(host.wnd, 1, 10, 10, 1000);
    click(host.wnd, 1, 10, 10, 1100);
    for (const Heard& heard : host.run_mouse())
        EXPECT_NE(heard.message, static_cast<UINT>(WM_LBUTTONDBLCLK));
}

TEST(Mouse, PressesApartInTimePlaceOrButtonAreNoDoubleClick) {
    ShownHost host(CS_DBLCLKS);
    struct Row {
        int button, x;
        DWORD later;
    };
    DWORD time = 10000;
    for (const Row& row : {Row{1, 10, 501}, Row{1, 13, 100}, Row{3, 10, 100}}) {
        click(host.wnd, 1, 10, 10, time);
        click(host.wnd, row.button, row.x, 10, time + row.later);
        for (const Heard& heard : host.run_mouse()) {
            EXPECT_TRUE(heard.message != WM_LBUTTONDBLCLK && heard.message != WM_RBUTTONDBLCLK);
        }
        time += 10000;
    }
    click(host.wnd, 4, 10, 10, time); // the two side buttons share their messages
    click(host.wnd, 5, 10, 10, time + 100);
    for (const Heard& heard : host.run_mouse())
        EXPECT_NE(heard.message, static_cast<UINT>(WM_XBUTTONDBLCLK));
    click(host.wnd, 1, 10, 10, time + 10000);
    click(host.wnd, 1, 10, 10, time + 10500);
    EXPECT_EQ(host.run_mouse()[2].message, static_cast<UINT>(WM_LBUTTONDBLCLK));
}

TEST(Mouse, TheWheelTurnsInUnitsOf120WithScreenCoordinates) {
    ShownHost host;
    desktop_mouse_move(host.wnd, 12, 34, 1);
    host.run();
    key(224, true);
    desktop_wheel(host.wnd, 120, 0, 2);
    desktop_wheel(host.wnd, -60, 0, 2);
    desktop_wheel(host.wnd, 0, 240, 2);
    EXPECT_EQ(host.run_mouse(),
              (std::vector<Heard>{{WM_MOUSEWHEEL, MAKEWPARAM(MK_CONTROL, 120), at(112, 84)},
                                  {WM_MOUSEWHEEL, MAKEWPARAM(MK_CONTROL, -60), at(112, 84)},
                                  {WM_MOUSEHWHEEL, MAKEWPARAM(MK_CONTROL, 240), at(112, 84)}}));
}

TEST(Mouse, OutsideIsNotToldWithoutCapture) {
    ShownHost host;
    for (const POINT& p : {POINT{-1, 5}, POINT{5, -1}, POINT{200, 5}, POINT{5, 100}})
        desktop_mouse_move(host.wnd, p.x, p.y, 1);
    EXPECT_TRUE(host.run_mouse().empty());
    desktop_mouse_move(host.wnd, 199, 99, 1);
    EXPECT_EQ(host.run_mouse().size(), 1u);
}

TEST(Mouse, AButtonReleasedOutsideIsUpAllTheSame) {
    ShownHost host;
    desktop_button(host.wnd, 1, true, 5, 5, 1);
    host.run();
    desktop_button(nullptr, 1, false, 0, 0, 2);
    EXPECT_TRUE(host.run_mouse().empty());
    EXPECT_EQ(GetAsyncKeyState(VK_LBUTTON), 0);
    EXPECT_EQ(GetKeyState(VK_LBUTTON) & 0x8000, 0);
}

TEST(Mouse, CaptureBringsEverythingFromOutside) {
    ShownHost host;
    EXPECT_EQ(SetCapture(host.wnd), nullptr);
    EXPECT_EQ(GetCapture(), host.wnd);
    desktop_mouse_move(host.wnd, -20, 300, 1);
    desktop_button(host.wnd, 1, true, -20, 300, 1);
    EXPECT_EQ(host.run_mouse(), (std::vector<Heard>{{WM_MOUSEMOVE, 0, at(-20, 300)},
                                                    {WM_LBUTTONDOWN, MK_LBUTTON, at(-20, 300)}}));
    EXPECT_TRUE(ReleaseCapture());
    EXPECT_EQ(host.run_mouse(), (std::vector<Heard>{{WM_CAPTURECHANGED, 0, 0}}));
    EXPECT_EQ(GetCapture(), nullptr);
}

TEST(Mouse, CaptureTranslatesFromOtherWindows) {
    ShownHost host;
    Host other;
    MoveWindow(other.wnd, 300, 250, 50, 50, FALSE);
    SetCapture(host.wnd);
    desktop_mouse_move(other.wnd, 1, 2, 1);
    EXPECT_EQ(host.run_mouse(), (std::vector<Heard>{{WM_MOUSEMOVE, 0, at(201, 202)}}));
    EXPECT_EQ(SetCapture(other.wnd), host.wnd);
    const std::vector<Heard> heard = host.run_mouse();
    EXPECT_EQ(heard, (std::vector<Heard>{{WM_CAPTURECHANGED, 0, reinterpret_cast<LPARAM>(other.wnd)}}));
    ReleaseCapture();
}

TEST(Mouse, CaptureEndsWithItsWindow) {
    ShownHost host;
    SetCapture(host.wnd);
    DestroyWindow(host.wnd);
    EXPECT_EQ(GetCapture(), nullptr);
    EXPECT_EQ(SetCapture(host.wnd), nullptr);
    EXPECT_EQ(GetCapture(), nullptr);
}

TEST(Mouse, TheCursorIsAskedForBeforeEachMessage) {
    ShownHost host;
    SetCursor(LoadCursorW(nullptr, IDC_ARROW));
    desktop_mouse_move(host.wnd, 5, 6, 1);
    const std::vector<Heard> heard = host.run();
    ASSERT_EQ(heard.size(), 2u);
    EXPECT_EQ(heard[0],
              (Heard{WM_SETCURSOR, reinterpret_cast<WPARAM>(host.wnd), MAKELPARAM(HTCLIENT, WM_MOUSEMOVE)}));
    EXPECT_EQ(heard[1].message, static_cast<UINT>(WM_MOUSEMOVE));
    EXPECT_EQ(GetCursor(), LoadCursorW(nullptr, IDC_CROSS)); // the class' own
}

TEST(Mouse, AHostMayKeepItsOwnCursor) {
    ShownHost host;
    host.answer = [](UINT message, WPARAM, LPARAM, LRESULT* result) {
        *result = TRUE;
        return message == WM_SETCURSOR;
    };
    SetCursor(LoadCursorW(nullptr, IDC_WAIT));
    desktop_mouse_move(host.wnd, 5, 6, 1);
    host.run();
    EXPECT_EQ(GetCursor(), LoadCursorW(nullptr, IDC_WAIT));
    SetCursor(LoadCursorW(nullptr, IDC_ARROW));
}

TEST(Mouse, UnderCaptureTheCursorIsLeftAlone) {
    ShownHost host;
    SetCapture(host.wnd);
    desktop_mouse_move(host.wnd, 5, 6, 1);
    EXPECT_EQ(host.names(), (std::vector<UINT>{WM_MOUSEMOVE}));
    ReleaseCapture();
}

TEST(Mouse, LeavingIsToldOnceWhenAskedFor) {
    ShownHost host;
    desktop_mouse_leave(host.wnd);
    EXPECT_TRUE(host.run_mouse().empty());
    TRACKMOUSEEVENT request = {sizeof request, TME_LEAVE, host.wnd, 0};
    EXPECT_TRUE(TrackMouseEvent(&request));
    desktop_mouse_leave(host.wnd);
    desktop_mouse_leave(host.wnd);
    EXPECT_EQ(host.run_mouse(), (std::vector<Heard>{{WM_MOUSELEAVE, 0, 0}}));
    EXPECT_TRUE(TrackMouseEvent(&request));
    request.dwFlags = TME_LEAVE | TME_CANCEL;
    EXPECT_TRUE(TrackMouseEvent(&request));
    desktop_mouse_leave(host.wnd);
    EXPECT_TRUE(host.run_mouse().empty());
    request.hwndTrack = nullptr;
    EXPECT_FALSE(TrackMouseEvent(&request));
    EXPECT_FALSE(TrackMouseEvent(nullptr));
}

TEST(Mouse, ADisabledWindowHearsNothing) {
    ShownHost host;
    EXPECT_FALSE(EnableWindow(host.wnd, FALSE));
    host.run();
    desktop_mouse_move(host.wnd, 5, 5, 1);
    click(host.wnd, 1, 5, 5, 1);
    key(4, true);
    EXPECT_TRUE(host.run().empty());
    EXPECT_TRUE(EnableWindow(host.wnd, TRUE));
    host.run();
    desktop_mouse_move(host.wnd, 6, 5, 1);
    EXPECT_EQ(host.run_mouse().size(), 1u);
}

TEST(Mouse, AClickActivatesItsWindow) {
    ShownHost first;
    Host second;
    ShowWindow(second.wnd, SW_SHOWNA);
    EXPECT_EQ(GetActiveWindow(), first.wnd);
    desktop_button(second.wnd, 1, true, 5, 5, 1);
    second.run();
    EXPECT_EQ(GetActiveWindow(), second.wnd);
    EXPECT_EQ(GetFocus(), second.wnd);
}

TEST(Mouse, ButtonsThatDoNotExistAreIgnored) {
    ShownHost host;
    for (const int button : {-1, 0, 6, 1000})
        desktop_button(host.wnd, button, true, 5, 5, 1);
    EXPECT_TRUE(host.run_mouse().empty());
}

TEST(Mouse, MessagesTellTimeAndPlace) {
    ShownHost host;
    desktop_button(host.wnd, 1, true, 12, 34, 4711);
    MSG msg;
    ASSERT_TRUE(PeekMessageW(&msg, nullptr, 0, 0, PM_REMOVE));
    EXPECT_EQ(msg.time, 4711u);
    EXPECT_EQ(msg.pt.x, 112);
    EXPECT_EQ(msg.pt.y, 84);
    EXPECT_EQ(GetMessageTime(), 4711);
    EXPECT_EQ(GetMessagePos(), static_cast<DWORD>(at(112, 84)));
}

TEST(Mouse, AWindowThatEndsAtItsCursorQuestionIsNotTouchedAgain) {
    Host host;
    ShowWindow(host.wnd, SW_SHOWNA);
    host.run();
    host.answer = [&](UINT message, WPARAM, LPARAM, LRESULT* result) {
        if (message != WM_SETCURSOR) return false;
        DestroyWindow(host.wnd);
        *result = TRUE;
        return true;
    };
    click(host.wnd, 1, 5, 5, 1);
    EXPECT_TRUE(host.run_mouse().empty());
    EXPECT_EQ(GetActiveWindow(), nullptr);
}
