#include <utility>

#include "desktop.h"
#include "input.h"
#include "messages.h"
#include "window_state.h"

// Which window is active and which has the keyboard. There are no child windows, so that the two differ only
// while a host has given the focus away.
namespace platform {

static HWND active;
static HWND focus;

static HWND move_focus(HWND wnd) {
    if (focus == wnd) return focus;
    const HWND old = std::exchange(focus, wnd);
    SendMessageW(old, WM_KILLFOCUS, reinterpret_cast<WPARAM>(wnd), 0);
    if (focus == wnd) SendMessageW(wnd, WM_SETFOCUS, reinterpret_cast<WPARAM>(old), 0);
    return old;
}

static bool can_have_focus(HWND wnd) {
    const Window* window = find_window(wnd);
    return window && !(window->style & WS_DISABLED);
}

static WPARAM activation_word(HWND wnd, int how) {
    const Window* window = find_window(wnd);
    return MAKEWPARAM(how, window && window->layout == Layout::minimized);
}

void activate_window(HWND wnd, int how) {
    if (active == wnd || (wnd && !find_window(wnd))) return;
    const HWND old = std::exchange(active, wnd);
    SendMessageW(old, WM_ACTIVATE, activation_word(old, WA_INACTIVE), reinterpret_cast<LPARAM>(wnd));
    if (active != wnd) return; // the host chose another one meanwhile
    SendMessageW(wnd, WM_ACTIVATE, activation_word(wnd, how), reinterpret_cast<LPARAM>(old));
    if (active == wnd) move_focus(can_have_focus(wnd) ? wnd : nullptr);
}

void leave_activation(HWND wnd) {
    if (active != wnd) return;
    const Window* window = find_window(wnd);
    const HWND owner = window && IsWindowVisible(window->owner) ? window->owner : nullptr;
    if (owner) desktop_raise(*find_window(owner));
    activate_window(owner, WA_ACTIVE);
}

void forget_activation(HWND wnd) {
    if (active == wnd) active = nullptr;
    if (focus == wnd) focus = nullptr;
}

} // namespace platform

using namespace platform;

extern "C" {

HWND SetFocus(HWND wnd) {
    if (!wnd) return move_focus(nullptr);
    if (!can_have_focus(wnd)) return nullptr;
    const HWND old = focus;
    activate_window(wnd, WA_ACTIVE);
    move_focus(active == wnd ? wnd : focus);
    return old;
}

HWND GetFocus() { return focus; }

HWND SetActiveWindow(HWND wnd) {
    Window* window = find_window(wnd);
    if (!window) return nullptr;
    const HWND old = active;
    desktop_raise(*window);
    activate_window(wnd, WA_ACTIVE);
    return old;
}

HWND GetActiveWindow() { return active; }

BOOL SetForegroundWindow(HWND wnd) {
    SetActiveWindow(wnd);
    return active == wnd && wnd;
}

BOOL EnableWindow(HWND wnd, BOOL enable) {
    Window* window = find_window(wnd);
    if (!window) return FALSE;
    const bool was_disabled = window->style & WS_DISABLED;
    if (was_disabled != (enable != FALSE)) return was_disabled;
    window->style ^= WS_DISABLED;
    if (!enable && GetCapture() == wnd) ReleaseCapture();
    if (!enable && focus == wnd) move_focus(nullptr);
    SendMessageW(wnd, WM_ENABLE, enable != FALSE, 0);
    return was_disabled;
}

BOOL IsWindowEnabled(HWND wnd) { return can_have_focus(wnd); }
}
