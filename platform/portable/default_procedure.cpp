#include <algorithm>

#include "cursor.h"
#include "desktop.h"
#include "input.h"
#include "keys.h"
#include "messages.h"
#include "objects.h"
#include "text/guarded.h"
#include "window_state.h"

// What a window does with a message that its host leaves alone.
namespace platform {

static LRESULT keep_title(Window& window, LPCWSTR title) {
    return text::guarded<LRESULT>(FALSE, [&] {
        window.title = title ? title : L"";
        desktop_set_title(window);
        return TRUE;
    });
}

static LRESULT keep_first_title(Window& window, LPARAM lparam) {
    const auto* wish = reinterpret_cast<const CREATESTRUCTW*>(lparam);
    return wish ? keep_title(window, wish->lpszName) : FALSE;
}

static LRESULT give_title(const Window& window, WPARAM size, LPARAM out) {
    auto* text = reinterpret_cast<LPWSTR>(out);
    if (!text || size == 0) return 0;
    const std::size_t length = window.title.copy(text, std::min<std::size_t>(size - 1, window.title.size()));
    text[length] = 0;
    return static_cast<LRESULT>(length);
}

static LRESULT paint_nothing(HWND wnd) {
    PAINTSTRUCT paint;
    BeginPaint(wnd, &paint);
    EndPaint(wnd, &paint);
    return 0;
}

static LRESULT erase(HWND wnd, const Window& window, HDC dc) {
    RECT area;
    if (!window.type->brush || !GetClientRect(wnd, &area)) return 0;
    return FillRect(dc, &area, window.type->brush);
}

static LRESULT default_cursor(const Window& window, LPARAM lparam) {
    if (LOWORD(lparam) != HTCLIENT || !window.type->cursor) return FALSE;
    SetCursor(window.type->cursor);
    return TRUE;
}

static LRESULT system_key(HWND wnd, WPARAM key, LPARAM lparam) {
    constexpr LPARAM kAltHeld = static_cast<LPARAM>(KF_ALTDOWN) << 16;
    if (key == VK_F4 && lparam & kAltHeld) PostMessageW(wnd, WM_SYSCOMMAND, SC_CLOSE, 0);
    return 0;
}

} // namespace platform

using namespace platform;

extern "C" {

LRESULT DefWindowProcW(HWND wnd, UINT message, WPARAM wparam, LPARAM lparam) {
    Window* window = find_window(wnd);
    if (!window) return 0;
    switch (message) {
    case WM_NCCREATE: return keep_first_title(*window, lparam);
    case WM_SETTEXT: return keep_title(*window, reinterpret_cast<LPCWSTR>(lparam));
    case WM_GETTEXT: return give_title(*window, wparam, lparam);
    case WM_GETTEXTLENGTH: return static_cast<LRESULT>(window->title.size());
    case WM_PAINT: return paint_nothing(wnd);
    case WM_ERASEBKGND: return erase(wnd, *window, reinterpret_cast<HDC>(wparam));
    case WM_SETCURSOR: return default_cursor(*window, lparam);
    case WM_SYSKEYDOWN: return system_key(wnd, wparam, lparam);
    case WM_SYSCOMMAND:
        if ((wparam & 0xFFF0) == SC_CLOSE) SendMessageW(wnd, WM_CLOSE, 0, 0);
        return 0;
    case WM_CLOSE: DestroyWindow(wnd); return 0;
    default: return 0;
    }
}
}
