// The portable dialog manager and the desktop: what the library under it is told, and what its events become.

#include <cstdlib>

#include <SDL.h>

#include "dialog_box.h"
#include "platform/portable/desktop_events.h"
#include "platform/portable/window_state.h"

// A driver that shows nothing, on a screen of 1024 by 768.
static const int dummy_driver = setenv("SDL_VIDEODRIVER", "dummy", 1);

// Runs the dialog, does that once it is shown, and ends it with 1 unless that did already.
static INT_PTR run_with(Box& box, HWND owner, const std::function<void()>& action) {
    box.answer = [&](UINT message, WPARAM, LPARAM) -> INT_PTR {
        if (message == WM_INITDIALOG) SetTimer(box.wnd, 1, 10, nullptr);
        if (message != WM_TIMER) return FALSE;
        KillTimer(box.wnd, 1);
        action();
        Owner::settle();
        return EndDialog(box.wnd, 1);
    };
    return box.run(owner);
}

TEST(DialogDesktop, UnitsAreOfAFixedLetter) { EXPECT_EQ(GetDialogBaseUnits(), MAKELONG(8, 16)); }

TEST(DialogDesktop, StandsInItsOwnersCornerWithAFrameAboveAllOthers) {
    Owner owner;
    Box box;
    box.memory = template_bytes(L"caption", 150, 75);
    RECT place{};
    Uint32 flags = 0;
    box.answer = [&](UINT message, WPARAM, LPARAM) -> INT_PTR {
        if (message == WM_INITDIALOG) SetTimer(box.wnd, 1, 10, nullptr);
        if (message == WM_INITDIALOG)
            SetWindowPos(box.wnd, HWND_TOPMOST, 0, 0, 1, 1, SWP_NOSIZE | SWP_NOMOVE);
        if (message != WM_TIMER) return FALSE;
        GetWindowRect(box.wnd, &place);
        auto* shown = static_cast<SDL_Window*>(platform::find_window(box.wnd)->desktop);
        flags = SDL_GetWindowFlags(shown);
        EXPECT_STREQ(SDL_GetWindowTitle(shown), "caption");
        return EndDialog(box.wnd, 1);
    };
    EXPECT_EQ(box.run(owner.wnd), 1);
    EXPECT_TRUE(place.left == 120 && place.top == 120 && place.right == 420 && place.bottom == 270)
        << place.left << ' ' << place.top << ' ' << place.right << ' ' << place.bottom;
    EXPECT_TRUE(flags & SDL_WINDOW_RESIZABLE);
    EXPECT_TRUE(flags & SDL_WINDOW_ALWAYS_ON_TOP);
    EXPECT_FALSE(flags & SDL_WINDOW_BORDERLESS);
}

TEST(DialogDesktop, StaysWithinTheScreen) {
    Owner owner;
    MoveWindow(owner.wnd, 900, 700, 300, 200, FALSE);
    Box box;
    RECT place{};
    run_with(box, owner.wnd, [&] { GetWindowRect(box.wnd, &place); });
    EXPECT_TRUE(place.right == 1024 && place.bottom == 768) << place.right << ' ' << place.bottom;
    EXPECT_EQ(place.right - place.left, 300);
    box.memory = template_bytes(L"", 32767, 32767);
    run_with(box, owner.wnd, [&] { GetWindowRect(box.wnd, &place); });
    EXPECT_TRUE(place.left == 0 && place.top == 0 && place.right == 1024 && place.bottom == 768);
    box.memory = template_bytes(L"", -5, 0);
    EXPECT_EQ(run_with(box, owner.wnd, [&] { GetWindowRect(box.wnd, &place); }), 1);
    EXPECT_TRUE(place.right == place.left && place.bottom == place.top);
}

TEST(DialogDesktop, ItsOwnerHearsNoMouseAndCannotBeClosed) {
    Owner owner;
    Box box;
    run_with(box, owner.wnd, [&] {
        owner.heard.clear();
        platform::desktop_mouse_move(owner.wnd, 5, 5, 1);
        platform::desktop_button(owner.wnd, 1, true, 5, 5, 2);
        platform::desktop_button(owner.wnd, 1, false, 5, 5, 3);
        platform::desktop_close(owner.wnd);
    });
    EXPECT_EQ(owner.count(WM_MOUSEMOVE) + owner.count(WM_LBUTTONDOWN) + owner.count(WM_LBUTTONUP), 0);
    EXPECT_EQ(owner.count(WM_SYSCOMMAND), 0);
    EXPECT_TRUE(IsWindow(owner.wnd));
    platform::desktop_close(owner.wnd);
    Owner::settle();
    EXPECT_FALSE(IsWindow(owner.wnd));
}

TEST(DialogDesktop, WhenItsOwnerIsChosenTheDialogComesForward) {
    Owner owner;
    Box box;
    HWND active = nullptr;
    run_with(box, owner.wnd, [&] {
        platform::desktop_focus(box.wnd, false);
        Owner::settle();
        EXPECT_EQ(GetActiveWindow(), nullptr);
        platform::desktop_focus(owner.wnd, true);
        Owner::settle();
        active = GetActiveWindow();
    });
    EXPECT_EQ(active, box.wnd);
    EXPECT_EQ(GetActiveWindow(), owner.wnd);
}

TEST(DialogDesktop, HearsTheMouseAndItsCloseBox) {
    Owner owner;
    Box box;
    run_with(box, owner.wnd, [&] {
        platform::desktop_button(box.wnd, 1, true, 5, 5, 2);
        platform::desktop_wheel(box.wnd, -120, 0, 3);
        platform::desktop_close(box.wnd);
    });
    for (const UINT message : {WM_LBUTTONDOWN, WM_MOUSEWHEEL, WM_CLOSE, WM_COMMAND})
        EXPECT_TRUE(box.heard_of(message)) << message;
}

TEST(DialogDesktop, AnOwnerThatWasOutOfUseStaysSo) {
    Owner owner;
    EnableWindow(owner.wnd, FALSE);
    Box box;
    box.answer = [&](UINT message, WPARAM, LPARAM) -> INT_PTR {
        return message == WM_INITDIALOG && EndDialog(box.wnd, 4);
    };
    EXPECT_EQ(box.run(owner.wnd), 4);
    EXPECT_FALSE(IsWindowEnabled(owner.wnd));
}

TEST(DialogDesktop, TheEndOfItsOwnerEndsIt) {
    Owner owner;
    Box box;
    EXPECT_EQ(run_with(box, owner.wnd, [&] { DestroyWindow(owner.wnd); }), -1);
    EXPECT_FALSE(IsWindow(box.wnd));
}

TEST(DialogDesktop, TheEndOfItsWindowEndsItAtOnce) {
    Owner owner;
    Box box;
    // Within the desktop's own report, while the loop waits for a message.
    EXPECT_EQ(run_with(box, owner.wnd, [&] { DestroyWindow(box.wnd); }), -1);
    EXPECT_TRUE(IsWindowEnabled(owner.wnd));
}

TEST(DialogDesktop, AnEndWithinAReportOfTheDesktopIsSeen) {
    Owner owner;
    Box box;
    box.answer = [&](UINT message, WPARAM, LPARAM) -> INT_PTR {
        if (message == WM_INITDIALOG) {
            PostMessageW(box.wnd, WM_APP, 0, 0);
            return TRUE;
        }
        if (message == WM_APP) {
            SDL_Event event{};
            event.type = SDL_WINDOWEVENT;
            event.window.event = SDL_WINDOWEVENT_SIZE_CHANGED;
            event.window.windowID =
                SDL_GetWindowID(static_cast<SDL_Window*>(platform::find_window(box.wnd)->desktop));
            event.window.data1 = 222;
            event.window.data2 = 111;
            SDL_PushEvent(&event);
        }
        return message == WM_SIZE && EndDialog(box.wnd, 5);
    };
    EXPECT_EQ(box.run(owner.wnd), 5);
}

TEST(DialogDesktop, TheWishToQuitPassesThrough) {
    Owner owner;
    Box box;
    box.answer = [&](UINT message, WPARAM, LPARAM) -> INT_PTR {
        if (message == WM_INITDIALOG) PostQuitMessage(17);
        return FALSE;
    };
    EXPECT_EQ(box.run(owner.wnd), -1);
    EXPECT_TRUE(IsWindowEnabled(owner.wnd));
    MSG msg;
    while (PeekMessageW(&msg, nullptr, 0, 0, PM_REMOVE) && msg.message != WM_QUIT) {
    }
    EXPECT_EQ(msg.message, static_cast<UINT>(WM_QUIT));
    EXPECT_EQ(msg.wParam, 17u);
}

TEST(DialogDesktop, TheEndOfTheSessionReachesTheOwnerToo) {
    Owner owner;
    Box box;
    const INT_PTR result = run_with(box, owner.wnd, [] {
        SDL_Event quit{};
        quit.type = SDL_QUIT;
        SDL_PushEvent(&quit);
        Owner::settle();
    });
    EXPECT_EQ(result, -1);
    EXPECT_FALSE(IsWindow(owner.wnd));
}

TEST(DialogDesktop, RefusesATemplateThatItCannotShow) {
    Owner owner;
    Box box;
    const std::vector<BYTE> good = box.memory;
    for (const std::size_t byte : {8, 18, 20}) { // controls, menu, class
        box.memory = good;
        box.memory[byte] = 1;
        EXPECT_EQ(box.run(owner.wnd), -1) << byte;
    }
    box.memory = good;
    box.memory[3] |= 0x40; // a child window
    EXPECT_EQ(box.run(owner.wnd), -1);
    EXPECT_TRUE(box.heard.empty());
    EXPECT_TRUE(IsWindowEnabled(owner.wnd));
    EXPECT_EQ(DialogBoxIndirectParamA(nullptr, nullptr, owner.wnd, nullptr, 0), -1);
    EXPECT_EQ(DialogBoxIndirectParamA(nullptr, reinterpret_cast<LPCDLGTEMPLATEA>(good.data()), owner.wnd,
                                      nullptr, 0),
              -1);
    EXPECT_EQ(box.run(reinterpret_cast<HWND>(0x1234)), -1);
}
