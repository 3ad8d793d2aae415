#ifndef PLATFORM_TEST_HOST_H
#define PLATFORM_TEST_HOST_H

#include <cstdio>
#include <functional>
#include <ostream>
#include <vector>

#include <brask/platform.h>

#include <gtest/gtest.h>

#include "platform/portable/desktop_events.h"
#include "platform/portable/keyboard_state.h"
#include "platform/portable/queue.h"

// A host as programs are written: a window whose procedure notes what it hears, and a message loop.
struct Heard {
    UINT message;
    WPARAM wparam;
    LPARAM lparam;

    bool operator==(const Heard& other) const {
        return message == other.message && wparam == other.wparam && lparam == other.lparam;
    }
};

inline std::ostream& operator<<(std::ostream& out, const Heard& heard) {
    char line[64];
    std::snprintf(line, sizeof line, "{0x%04X, 0x%llX, 0x%llX}", heard.message,
                  static_cast<unsigned long long>(heard.wparam),
                  static_cast<unsigned long long>(heard.lparam));
    return out << line;
}

class Host {
  public:
    explicit Host(DWORD style = WS_OVERLAPPEDWINDOW, UINT class_style = 0, HWND owner = nullptr) {
        WNDCLASSW type{};
        type.style = class_style;
        type.lpfnWndProc = procedure;
        type.lpszClassName = L"Host";
        type.cbWndExtra = 16;
        type.hCursor = LoadCursorW(nullptr, IDC_CROSS);
        type.hbrBackground = reinterpret_cast<HBRUSH>(COLOR_WINDOW + 1);
        atom = RegisterClassW(&type);
        wnd = CreateWindowExW(0, L"Host", L"title", style, 100, 50, 200, 100, owner, nullptr, nullptr, this);
    }
    ~Host() {
        DestroyWindow(wnd);
        if (atom) UnregisterClassW(L"Host", nullptr);
        platform::release_keys(0);
        platform::clear_queue();
        platform::keys_now() = platform::KeyState();
        platform::keys_taken() = platform::KeyState();
    }
    Host(const Host&) = delete;
    Host& operator=(const Host&) = delete;

    // What the window heard since the last call, messages that wait included.
    std::vector<Heard> run() {
        MSG msg;
        while (PeekMessageW(&msg, nullptr, 0, 0, PM_REMOVE) && msg.message != WM_QUIT) {
            TranslateMessage(&msg);
            DispatchMessageW(&msg);
        }
        return std::exchange(heard, {});
    }
    // The same, within a range of messages.
    std::vector<Heard> run(UINT first, UINT last) {
        std::vector<Heard> part;
        for (const Heard& each : run()) {
            if (each.message >= first && each.message <= last) part.push_back(each);
        }
        return part;
    }
    std::vector<Heard> run_keys() { return run(WM_KEYFIRST, WM_KEYLAST); }
    std::vector<Heard> run_mouse() { return run(WM_MOUSEFIRST, WM_MOUSELEAVE); }

    std::vector<UINT> names() {
        std::vector<UINT> list;
        for (const Heard& each : run())
            list.push_back(each.message);
        return list;
    }

    HWND wnd = nullptr;
    std::vector<Heard> heard;
    // Asked first; true: it has answered with *result.
    std::function<bool(UINT, WPARAM, LPARAM, LRESULT*)> answer;

  private:
    ATOM atom = 0;

    static LRESULT CALLBACK procedure(HWND wnd, UINT message, WPARAM wparam, LPARAM lparam) {
        if (message == WM_NCCREATE) {
            auto* host = reinterpret_cast<CREATESTRUCTW*>(lparam)->lpCreateParams;
            SetWindowLongPtrW(wnd, GWLP_USERDATA, reinterpret_cast<LONG_PTR>(host));
        }
        auto* host = reinterpret_cast<Host*>(GetWindowLongPtrW(wnd, GWLP_USERDATA));
        if (!host) return DefWindowProcW(wnd, message, wparam, lparam);
        host->heard.push_back({message, wparam, lparam});
        LRESULT result = 0;
        if (host->answer && host->answer(message, wparam, lparam, &result)) return result;
        return DefWindowProcW(wnd, message, wparam, lparam);
    }
};

// A shown window with the keyboard, and nothing left to hear.
class ShownHost : public Host {
  public:
    explicit ShownHost(UINT class_style = 0) : Host(WS_OVERLAPPEDWINDOW, class_style) {
        ShowWindow(wnd, SW_SHOW);
        run();
    }
};

// --- Keys, as a desktop reports them ---

inline void key(int scancode, bool down, unsigned locks = 0, int symbol = 0, DWORD time = 1) {
    platform::DesktopKey event;
    event.scancode = scancode;
    event.symbol = symbol;
    event.down = down;
    event.locks = locks;
    event.time = time;
    platform::desktop_key(event);
}
inline void tap(int scancode, unsigned locks = 0, int symbol = 0) {
    key(scancode, true, locks, symbol);
    key(scancode, false, locks, symbol);
}
// A key that types.
inline void type(int scancode, const char* text, int symbol = 0, unsigned locks = 0) {
    key(scancode, true, locks, symbol);
    platform::desktop_text(text, 1);
    key(scancode, false, locks, symbol);
}

// lParam of a first press, and of a release.
inline LPARAM pressed(int scan, bool extended = false, bool alt = false) {
    return 1 | static_cast<LPARAM>(scan) << 16 | (extended ? 1L << 24 : 0) | (alt ? 1L << 29 : 0);
}
inline LPARAM released(int scan, bool extended = false, bool alt = false) {
    return pressed(scan, extended, alt) | 3L << 30;
}

#endif
