#include <algorithm>
#include <cstring>

#include "desktop.h"
#include "input.h"
#include "messages.h"
#include "surface.h"
#include "text/guarded.h"
#include "window_state.h"

// The life of windows: made, found, ended.
namespace platform {

HandleTable<Window>& windows() {
    static auto& table = *new HandleTable<Window>(HandleKind::window);
    return table;
}

Window* find_window(HWND wnd) { return wnd ? windows().find(wnd) : nullptr; }

// Handles are never given twice, so they serve as the number.
std::uint64_t window_serial(HWND wnd) { return find_window(wnd) ? reinterpret_cast<std::uintptr_t>(wnd) : 0; }

static SIZE first_size(int width, int height) {
    constexpr SIZE kDefault = {800, 600};
    if (width == CW_USEDEFAULT) return kDefault;
    return {std::clamp(width, 0, kMostPixels), std::clamp(height, 0, kMostPixels)};
}

static HWND make_window(WindowClass& type, const CREATESTRUCTW& wish) {
    auto window = std::make_unique<Window>();
    window->type = &type;
    window->procedure = type.procedure;
    window->style = static_cast<DWORD>(wish.style) & ~static_cast<DWORD>(WS_VISIBLE);
    window->ex_style = wish.dwExStyle;
    window->instance = wish.hInstance;
    window->id = reinterpret_cast<LONG_PTR>(wish.hMenu);
    window->owner = find_window(wish.hwndParent) ? wish.hwndParent : nullptr;
    window->extra.resize(static_cast<std::size_t>(type.extra_bytes));
    window->placed = wish.x != CW_USEDEFAULT;
    if (window->placed) {
        window->origin = {std::clamp(wish.x, -kMostPixels, kMostPixels),
                          std::clamp(wish.y, -kMostPixels, kMostPixels)};
    }
    window->size = first_size(wish.cx, wish.cy);
    if (window->style & WS_MAXIMIZE) window->layout = Layout::maximized;
    if (window->style & WS_MINIMIZE) window->layout = Layout::minimized;
    return reinterpret_cast<HWND>(windows().add(std::move(window)));
}

// The desktop's window and everything that still refers to this one.
static void release_window(HWND wnd) {
    forget_activation(wnd);
    forget_capture(wnd);
    forget_timers(wnd);
    forget_messages(wnd);
    Window* window = find_window(wnd);
    if (!window) return;
    desktop_end(*window);
    window->type->windows--;
    windows().remove(wnd);
}

static void end_owned(HWND owner) {
    for (HWND wnd = nullptr; (wnd = windows().next(wnd)) != nullptr;) {
        const Window* window = find_window(wnd);
        if (window && window->owner == owner) DestroyWindow(wnd);
    }
}

} // namespace platform

using namespace platform;

extern "C" {

HWND CreateWindowExW(DWORD ex_style, LPCWSTR class_name, LPCWSTR title, DWORD style, int x, int y, int width,
                     int height, HWND owner, HMENU menu, HINSTANCE instance, LPVOID parameter) {
    WindowClass* type = find_class(class_name);
    const bool owner_is_real = !owner || owner == HWND_MESSAGE || find_window(owner);
    if (!type || !owner_is_real || style & WS_CHILD) return nullptr;
    CREATESTRUCTW wish = {
        parameter, instance,   menu,    owner, height, width, y, x, static_cast<LONG>(style),
        title,     class_name, ex_style};
    const HWND wnd = text::guarded<HWND>(nullptr, [&] { return make_window(*type, wish); });
    if (!wnd) return nullptr;
    type->windows++;
    const SIZE size = find_window(wnd)->size;
    wish.cx = size.cx;
    wish.cy = size.cy;
    const auto tell = reinterpret_cast<LPARAM>(&wish);
    if (!SendMessageW(wnd, WM_NCCREATE, 0, tell)) {
        release_window(wnd);
        return nullptr;
    }
    if (SendMessageW(wnd, WM_CREATE, 0, tell) == -1) {
        DestroyWindow(wnd);
        return nullptr;
    }
    if (style & WS_POPUP) tell_first_size(wnd); // others hear of it when they are shown
    if (style & WS_VISIBLE) ShowWindow(wnd, SW_SHOW);
    return find_window(wnd) ? wnd : nullptr;
}

BOOL DestroyWindow(HWND wnd) {
    Window* window = find_window(wnd);
    if (!window || window->destroying) return FALSE;
    window->destroying = true;
    hide_window(wnd);
    leave_activation(wnd);
    end_owned(wnd);
    SendMessageW(wnd, WM_DESTROY, 0, 0);
    SendMessageW(wnd, WM_NCDESTROY, 0, 0);
    release_window(wnd);
    return TRUE;
}

BOOL IsWindow(HWND wnd) { return find_window(wnd) != nullptr; }

HWND GetParent(HWND wnd) {
    const Window* window = find_window(wnd);
    return window && find_window(window->owner) ? window->owner : nullptr;
}

LRESULT SendMessageW(HWND wnd, UINT message, WPARAM wparam, LPARAM lparam) {
    const Window* window = find_window(wnd);
    return window ? window->procedure(wnd, message, wparam, lparam) : 0;
}

LRESULT CallWindowProcW(WNDPROC procedure, HWND wnd, UINT message, WPARAM wparam, LPARAM lparam) {
    return procedure ? procedure(wnd, message, wparam, lparam) : 0;
}
}
