#ifndef PLATFORM_TEST_DIALOG_BOX_H
#define PLATFORM_TEST_DIALOG_BOX_H

#include <algorithm>
#include <cstring>
#include <functional>
#include <string>
#include <vector>

#include <brask/platform.h>

#include <gtest/gtest.h>

// A template in memory: a caption, and the fields in front of it.
constexpr DWORD kFramed = 0x80CC0080; // with caption, close box and a frame to resize it by
constexpr DWORD kBare = 0x80000000;   // nothing that a window manager would have to answer for
inline std::vector<BYTE> template_bytes(const wchar_t* caption, short cx, short cy, DWORD style = kFramed) {
    DLGTEMPLATE head{};
    head.style = style;
    head.x = head.y = 10;
    head.cx = cx;
    head.cy = cy;
    constexpr std::size_t kHead = 22;
    const std::size_t letters = (std::wcslen(caption) + 1) * sizeof(wchar_t);
    std::vector<BYTE> bytes(kHead + letters);
    std::memcpy(bytes.data(), &head, 18);
    std::memcpy(bytes.data() + kHead, caption, letters);
    return bytes;
}

// A dialog as a host writes one: its procedure notes what it hears and asks `answer`.
class Box {
  public:
    std::function<INT_PTR(UINT, WPARAM, LPARAM)> answer;
    std::vector<UINT> heard;
    HWND wnd = nullptr;
    std::vector<BYTE> memory = template_bytes(L"caption", 150, 75, kBare);

    INT_PTR run(HWND owner) {
        return DialogBoxIndirectParamA(nullptr, reinterpret_cast<LPCDLGTEMPLATEA>(memory.data()), owner,
                                       procedure, reinterpret_cast<LPARAM>(this));
    }
    bool heard_of(UINT message) const {
        return std::find(heard.begin(), heard.end(), message) != heard.end();
    }

  private:
    static INT_PTR CALLBACK procedure(HWND wnd, UINT message, WPARAM wparam, LPARAM lparam) {
        if (message == WM_INITDIALOG) SetWindowLongPtrW(wnd, GWLP_USERDATA, lparam);
        auto* box = reinterpret_cast<Box*>(GetWindowLongPtrW(wnd, GWLP_USERDATA));
        if (!box) return FALSE;
        box->wnd = wnd;
        box->heard.push_back(message);
        return box->answer ? box->answer(message, wparam, lparam) : FALSE;
    }
};

// The host's window, which owns the dialogs.
class Owner {
  public:
    Owner() {
        WNDCLASSW type{};
        type.lpfnWndProc = procedure;
        type.lpszClassName = L"Owner";
        RegisterClassW(&type);
        wnd = CreateWindowExW(0, L"Owner", L"owner", WS_POPUP, 100, 100, 300, 200, nullptr, nullptr, nullptr,
                              nullptr);
        one = this;
        ShowWindow(wnd, SW_SHOW);
        settle();
        heard.clear();
    }
    ~Owner() {
        DestroyWindow(wnd);
        settle();
        UnregisterClassW(L"Owner", nullptr);
        one = nullptr;
    }
    Owner(const Owner&) = delete;
    Owner& operator=(const Owner&) = delete;

    static void settle() {
        MSG msg;
        while (PeekMessageW(&msg, nullptr, 0, 0, PM_REMOVE))
            DispatchMessageW(&msg);
    }
    int count(UINT message) const {
        return static_cast<int>(std::count(heard.begin(), heard.end(), message));
    }

    HWND wnd = nullptr;
    std::vector<UINT> heard;
    std::function<void(UINT)> after; // called once a message has been dealt with

  private:
    static inline Owner* one = nullptr;

    static LRESULT CALLBACK procedure(HWND wnd, UINT message, WPARAM wparam, LPARAM lparam) {
        if (!one) return DefWindowProcW(wnd, message, wparam, lparam);
        one->heard.push_back(message);
        const LRESULT result = DefWindowProcW(wnd, message, wparam, lparam);
        if (one->after) one->after(message);
        return result;
    }
};

#endif
