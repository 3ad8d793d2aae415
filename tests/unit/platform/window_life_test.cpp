// The life of windows and classes: creation, words, titles, end. Nothing here is ever shown.

#include <cstring>

#include "host.h"
#include "platform/portable/surface.h"

static LRESULT CALLBACK silent(HWND wnd, UINT message, WPARAM wparam, LPARAM lparam) {
    return DefWindowProcW(wnd, message, wparam, lparam);
}

static WNDCLASSEXW plain_class(LPCWSTR name) {
    WNDCLASSEXW type{};
    type.cbSize = sizeof type;
    type.lpfnWndProc = silent;
    type.lpszClassName = name;
    return type;
}

static HWND make(LPCWSTR name, HWND owner = nullptr) {
    return CreateWindowW(name, L"t", WS_POPUP, 1, 2, 30, 40, owner, nullptr, nullptr, nullptr);
}

TEST(WindowClass, IsRegisteredOnceAndGoesWhenItsWindowsAreGone) {
    WNDCLASSEXW type = plain_class(L"Once");
    const ATOM atom = RegisterClassExW(&type);
    EXPECT_GE(atom, 0xC000);
    EXPECT_EQ(RegisterClassExW(&type), 0);
    const HWND by_name = make(L"Once");
    const HWND by_atom = make(MAKEINTRESOURCEW(atom));
    EXPECT_TRUE(by_name && by_atom);
    EXPECT_FALSE(UnregisterClassW(L"Once", nullptr));
    DestroyWindow(by_name);
    DestroyWindow(by_atom);
    EXPECT_TRUE(UnregisterClassW(L"Once", nullptr));
    EXPECT_FALSE(UnregisterClassW(L"Once", nullptr));
    EXPECT_EQ(make(L"Once"), nullptr);
}

TEST(WindowClass, RefusesWhatMakesNoSense) {
    EXPECT_EQ(RegisterClassExW(nullptr), 0);
    EXPECT_EQ(RegisterClassW(nullptr), 0);
    WNDCLASSEXW type = plain_class(L"Bad");
    type.cbSize = 3;
    EXPECT_EQ(RegisterClassExW(&type), 0);
    type = plain_class(nullptr);
    EXPECT_EQ(RegisterClassExW(&type), 0);
    type = plain_class(L"");
    EXPECT_EQ(RegisterClassExW(&type), 0);
    type = plain_class(L"Bad");
    type.lpfnWndProc = nullptr;
    EXPECT_EQ(RegisterClassExW(&type), 0);
    type = plain_class(L"Bad");
    type.cbWndExtra = -1;
    EXPECT_EQ(RegisterClassExW(&type), 0);
    type.cbWndExtra = 1 << 30;
    EXPECT_EQ(RegisterClassExW(&type), 0);
    EXPECT_EQ(make(nullptr), nullptr);
    EXPECT_EQ(make(MAKEINTRESOURCEW(1)), nullptr);
}

TEST(WindowLife, CreationTellsTheWishAndEndsInOrder) {
    std::vector<UINT> names;
    {
        Host host;
        names = host.names();
        EXPECT_EQ(names, (std::vector<UINT>{WM_NCCREATE, WM_CREATE}));
        DestroyWindow(host.wnd);
        EXPECT_EQ(host.names(), (std::vector<UINT>{WM_DESTROY, WM_NCDESTROY}));
        EXPECT_FALSE(IsWindow(host.wnd));
    }
}

static CREATESTRUCTW told;
static LRESULT CALLBACK notes_wish(HWND wnd, UINT message, WPARAM wparam, LPARAM lparam) {
    if (message == WM_CREATE) told = *reinterpret_cast<CREATESTRUCTW*>(lparam);
    return DefWindowProcW(wnd, message, wparam, lparam);
}

TEST(WindowLife, TheWishArrivesWhole) {
    WNDCLASSEXW type = plain_class(L"Wish");
    type.lpfnWndProc = notes_wish;
    RegisterClassExW(&type);
    int parameter = 0;
    const HWND wnd = CreateWindowExW(WS_EX_TOOLWINDOW, L"Wish", L"name", WS_CAPTION, 11, 12, 130, 140,
                                     nullptr, nullptr, GetModuleHandleW(nullptr), &parameter);
    EXPECT_EQ(told.lpCreateParams, &parameter);
    EXPECT_EQ(told.x, 11);
    EXPECT_EQ(told.y, 12);
    EXPECT_EQ(told.cx, 130);
    EXPECT_EQ(told.cy, 140);
    EXPECT_EQ(told.style, static_cast<LONG>(WS_CAPTION));
    EXPECT_EQ(told.dwExStyle, static_cast<DWORD>(WS_EX_TOOLWINDOW));
    EXPECT_STREQ(told.lpszName, L"name");
    EXPECT_EQ(told.hInstance, GetModuleHandleW(nullptr));
    DestroyWindow(wnd);
    UnregisterClassW(L"Wish", nullptr);
}

static UINT refuse_at;
static std::vector<UINT> refused;
static LRESULT CALLBACK refuses(HWND wnd, UINT message, WPARAM wparam, LPARAM lparam) {
    refused.push_back(message);
    if (message == refuse_at) return message == WM_CREATE ? -1 : 0;
    return DefWindowProcW(wnd, message, wparam, lparam);
}

TEST(WindowLife, AHostMayRefuseItsCreation) {
    WNDCLASSEXW type = plain_class(L"Refuses");
    type.lpfnWndProc = refuses;
    RegisterClassExW(&type);
    refuse_at = WM_NCCREATE;
    refused.clear();
    EXPECT_EQ(make(L"Refuses"), nullptr);
    EXPECT_EQ(refused, (std::vector<UINT>{WM_NCCREATE}));
    refuse_at = WM_CREATE;
    refused.clear();
    EXPECT_EQ(make(L"Refuses"), nullptr);
    EXPECT_EQ(refused, (std::vector<UINT>{WM_NCCREATE, WM_CREATE, WM_DESTROY, WM_NCDESTROY}));
    EXPECT_TRUE(UnregisterClassW(L"Refuses", nullptr));
}

TEST(WindowLife, EndingWithinAMessageIsHarmless) {
    for (const UINT at : {WM_CREATE, WM_SHOWWINDOW, WM_SIZE, WM_ACTIVATE, WM_SETFOCUS, WM_PAINT,
                          WM_ERASEBKGND, WM_DESTROY, WM_NCDESTROY, WM_KILLFOCUS, WM_MOVE, WM_SETTEXT}) {
        Host host;
        host.answer = [&](UINT message, WPARAM, LPARAM, LRESULT*) {
            if (message == at) DestroyWindow(host.wnd);
            return false;
        };
        ShowWindow(host.wnd, SW_SHOW);
        UpdateWindow(host.wnd);
        SetWindowTextW(host.wnd, L"x");
        MoveWindow(host.wnd, 7, 8, 90, 91, TRUE);
        host.run();
        DestroyWindow(host.wnd);
        EXPECT_FALSE(IsWindow(host.wnd)) << at;
    }
}

TEST(WindowLife, AHandleIsNeverGivenTwice) {
    RegisterClassExW([] {
        static WNDCLASSEXW type = plain_class(L"Many");
        return &type;
    }());
    std::vector<HWND> seen;
    for (int i = 0; i < 50; i++) {
        const HWND wnd = make(L"Many");
        EXPECT_EQ(std::count(seen.begin(), seen.end(), wnd), 0);
        EXPECT_NE(platform::window_serial(wnd), 0u);
        seen.push_back(wnd);
        DestroyWindow(wnd);
        EXPECT_EQ(platform::window_serial(wnd), 0u);
    }
    EXPECT_TRUE(UnregisterClassW(L"Many", nullptr));
}

TEST(WindowLife, WrongHandlesAreHarmless) {
    int something = 0;
    const HFONT font = static_cast<HFONT>(GetStockObject(SYSTEM_FONT));
    Host host;
    const HWND dead = host.wnd;
    DestroyWindow(host.wnd);
    for (const HWND wnd : {HWND(), dead, reinterpret_cast<HWND>(&something), reinterpret_cast<HWND>(font),
                           HWND_TOPMOST, HWND_MESSAGE, reinterpret_cast<HWND>(1)}) {
        RECT rect;
        POINT point = {};
        PAINTSTRUCT paint;
        wchar_t text[8];
        EXPECT_FALSE(IsWindow(wnd));
        EXPECT_FALSE(DestroyWindow(wnd));
        EXPECT_FALSE(ShowWindow(wnd, SW_SHOW));
        EXPECT_FALSE(UpdateWindow(wnd));
        EXPECT_FALSE(GetClientRect(wnd, &rect));
        EXPECT_FALSE(GetWindowRect(wnd, &rect));
        EXPECT_FALSE(ClientToScreen(wnd, &point));
        EXPECT_FALSE(ScreenToClient(wnd, &point));
        EXPECT_FALSE(MoveWindow(wnd, 0, 0, 1, 1, TRUE));
        EXPECT_FALSE(ValidateRect(wnd, nullptr));
        EXPECT_FALSE(GetUpdateRect(wnd, &rect, FALSE));
        EXPECT_EQ(BeginPaint(wnd, &paint), nullptr);
        EXPECT_EQ(GetWindowTextW(wnd, text, 8), 0);
        EXPECT_EQ(GetWindowTextLengthW(wnd), 0);
        EXPECT_FALSE(SetWindowTextW(wnd, L"x"));
        EXPECT_EQ(GetWindowLongPtrW(wnd, GWL_STYLE), 0);
        EXPECT_EQ(SetWindowLongPtrW(wnd, GWLP_USERDATA, 5), 0);
        EXPECT_EQ(SetActiveWindow(wnd), nullptr);
        EXPECT_FALSE(EnableWindow(wnd, TRUE));
        EXPECT_FALSE(IsWindowEnabled(wnd));
        EXPECT_FALSE(IsWindowVisible(wnd));
        EXPECT_EQ(GetParent(wnd), nullptr);
        EXPECT_EQ(DefWindowProcW(wnd, WM_CLOSE, 0, 0), 0);
        EXPECT_EQ(platform::window_canvas(wnd), nullptr);
        platform::window_changed(wnd, {0, 0, 5, 5});
        EXPECT_EQ(platform::window_pointer(wnd).x, 0);
        if (wnd) {
            EXPECT_FALSE(InvalidateRect(wnd, nullptr, TRUE));
            EXPECT_EQ(GetDC(wnd), nullptr);
            EXPECT_EQ(SetFocus(wnd), nullptr);
        }
    }
}

TEST(WindowLife, OwnedWindowsEndWithTheirOwner) {
    Host owner;
    Host owned(WS_POPUP, 0, owner.wnd);
    EXPECT_EQ(GetParent(owned.wnd), owner.wnd);
    bool owned_at_end = true;
    owner.answer = [&](UINT message, WPARAM, LPARAM, LRESULT*) {
        if (message == WM_DESTROY) owned_at_end = IsWindow(owned.wnd);
        return false;
    };
    DestroyWindow(owner.wnd);
    EXPECT_FALSE(IsWindow(owned.wnd));
    EXPECT_FALSE(owned_at_end); // the owner goes last
}

TEST(WindowLife, ChildWindowsAndDeadOwnersAreRefused) {
    Host host;
    EXPECT_EQ(CreateWindowW(L"Host", L"", WS_CHILD, 0, 0, 1, 1, host.wnd, nullptr, nullptr, nullptr),
              nullptr);
    EXPECT_EQ(make(L"Host", reinterpret_cast<HWND>(0x70)), nullptr);
}

TEST(WindowWords, KeepWhatTheHostPutsThere) {
    Host host;
    EXPECT_EQ(SetWindowLongPtrW(host.wnd, GWLP_ID, 77), 0);
    EXPECT_EQ(GetWindowLongPtrW(host.wnd, GWLP_ID), 77);
    EXPECT_EQ(GetWindowLongPtrA(host.wnd, GWLP_ID), 77);
    EXPECT_EQ(SetWindowLongPtrW(host.wnd, 0, -5), 0);
    EXPECT_EQ(SetWindowLongPtrW(host.wnd, 8, 6), 0);
    EXPECT_EQ(GetWindowLongPtrW(host.wnd, 0), -5);
    EXPECT_EQ(GetWindowLongPtrW(host.wnd, 8), 6);
    EXPECT_EQ(GetWindowLongPtrW(host.wnd, GWLP_USERDATA), reinterpret_cast<LONG_PTR>(&host));
}

TEST(WindowWords, OutsideOfTheClassesBytesThereIsNothing) {
    Host host;
    for (const int index : {9, 16, 1 << 20, -1, -1000, -2147483647 - 1}) {
        EXPECT_EQ(SetWindowLongPtrW(host.wnd, index, 5), 0);
        EXPECT_EQ(GetWindowLongPtrW(host.wnd, index), 0);
    }
}

TEST(WindowWords, TheProcedureMayBeReplaced) {
    Host host;
    host.run();
    const auto old = SetWindowLongPtrW(host.wnd, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(silent));
    SendMessageW(host.wnd, WM_APP, 0, 0);
    EXPECT_TRUE(host.heard.empty());
    CallWindowProcW(reinterpret_cast<WNDPROC>(old), host.wnd, WM_APP, 0, 0);
    EXPECT_EQ(host.heard.size(), 1u);
    SetWindowLongPtrW(host.wnd, GWLP_WNDPROC, 0); // none is no procedure
    EXPECT_EQ(GetWindowLongPtrW(host.wnd, GWLP_WNDPROC), reinterpret_cast<LONG_PTR>(silent));
    EXPECT_EQ(CallWindowProcW(nullptr, host.wnd, WM_APP, 0, 0), 0);
}

TEST(WindowWords, StyleTellsVisibleAndDisabledAsTheyAre) {
    Host host;
    SetWindowLongPtrW(host.wnd, GWL_STYLE, static_cast<LONG_PTR>(WS_VISIBLE | WS_DISABLED | WS_CAPTION));
    EXPECT_FALSE(IsWindowVisible(host.wnd));
    EXPECT_TRUE(IsWindowEnabled(host.wnd));
    EXPECT_EQ(static_cast<DWORD>(GetWindowLongPtrW(host.wnd, GWL_STYLE)), static_cast<DWORD>(WS_CAPTION));
}

TEST(WindowTitle, IsKeptAndCut) {
    Host host;
    wchar_t text[32];
    EXPECT_EQ(GetWindowTextW(host.wnd, text, 32), 5);
    EXPECT_STREQ(text, L"title");
    EXPECT_TRUE(SetWindowTextW(host.wnd, L"a longer one"));
    EXPECT_EQ(GetWindowTextLengthW(host.wnd), 12);
    EXPECT_EQ(GetWindowTextW(host.wnd, text, 4), 3);
    EXPECT_STREQ(text, L"a l");
    EXPECT_TRUE(SetWindowTextW(host.wnd, nullptr));
    EXPECT_EQ(GetWindowTextW(host.wnd, text, 32), 0);
    EXPECT_STREQ(text, L"");
    EXPECT_EQ(GetWindowTextW(host.wnd, nullptr, 5), 0);
    EXPECT_EQ(GetWindowTextW(host.wnd, text, 0), 0);
}
