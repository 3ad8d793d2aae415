#include <cstdlib>
#include <utility>

#include "desktop.h"
#include "desktop_events.h"
#include "keyboard_state.h"
#include "keys.h"
#include "messages.h"
#include "process.h"
#include "queue.h"
#include "surface.h"
#include "window_state.h"

// From the desktop's mouse to mouse messages.
namespace platform {

struct ButtonRow {
    int key;
    UINT down, up, twice;
    WORD extra; // high word of wParam
};
static const ButtonRow kButtons[] = {
    {VK_LBUTTON, WM_LBUTTONDOWN, WM_LBUTTONUP, WM_LBUTTONDBLCLK, 0},
    {VK_MBUTTON, WM_MBUTTONDOWN, WM_MBUTTONUP, WM_MBUTTONDBLCLK, 0},
    {VK_RBUTTON, WM_RBUTTONDOWN, WM_RBUTTONUP, WM_RBUTTONDBLCLK, 0},
    {VK_XBUTTON1, WM_XBUTTONDOWN, WM_XBUTTONUP, WM_XBUTTONDBLCLK, XBUTTON1},
    {VK_XBUTTON2, WM_XBUTTONDOWN, WM_XBUTTONUP, WM_XBUTTONDBLCLK, XBUTTON2},
};

// --- From the desktop to the queue ---

static Input mouse_input(HWND wnd, UINT message, POINT screen, DWORD time) {
    Input input;
    input.kind = Input::Kind::mouse;
    input.wnd = wnd;
    input.message = message;
    input.wparam = mouse_flags(keys_now());
    input.time = time;
    input.screen = screen;
    return input;
}

// The pointer moved there; false: no such window, it stays where it was.
static bool locate(HWND wnd, int x, int y, POINT* screen) {
    *screen = {x, y};
    const bool known = ClientToScreen(wnd, screen);
    if (!known) *screen = pointer_position();
    set_pointer_position(*screen);
    return known;
}

void desktop_mouse_move(HWND wnd, int x, int y, DWORD time) {
    POINT screen;
    if (!locate(wnd, x, y, &screen)) return;
    const Input move = mouse_input(wnd, WM_MOUSEMOVE, screen, time);
    Input* last = last_input();
    // Only the latest of several moves in a row is told.
    if (last && last->kind == Input::Kind::mouse && last->message == WM_MOUSEMOVE && last->wnd == wnd) {
        *last = move;
    } else {
        queue_input(move);
    }
}

void desktop_button(HWND wnd, int button, bool down, int x, int y, DWORD time) {
    if (button < 1 || button > 5) return;
    POINT screen;
    if (!locate(wnd, x, y, &screen)) wnd = nullptr; // released outside of all windows: it counts all the same
    const ButtonRow& row = kButtons[button - 1];
    keys_now().set(row.key, down);
    Input input = mouse_input(wnd, down ? row.down : row.up, screen, time);
    input.wparam |= static_cast<WPARAM>(row.extra) << 16;
    input.virtual_key = row.key;
    input.down = down;
    queue_input(input);
}

static void queue_wheel(HWND wnd, UINT message, int amount, DWORD time) {
    if (amount == 0) return;
    Input input = mouse_input(wnd, message, pointer_position(), time);
    input.wparam = MAKEWPARAM(input.wparam, amount);
    queue_input(input);
}

void desktop_wheel(HWND wnd, int vertical, int horizontal, DWORD time) {
    if (!find_window(wnd)) return;
    queue_wheel(wnd, WM_MOUSEWHEEL, vertical, time);
    queue_wheel(wnd, WM_MOUSEHWHEEL, horizontal, time);
}

void desktop_mouse_leave(HWND wnd) {
    Window* window = find_window(wnd);
    if (!window || !window->track_leave) return;
    window->track_leave = false;
    queue_input(mouse_input(wnd, WM_MOUSELEAVE, pointer_position(), GetTickCount()));
}

// --- From the queue to the host ---

struct Click {
    HWND wnd;
    const ButtonRow* button;
    DWORD time;
    POINT at;
};
static Click last_click;

static bool is_near(LONG a, LONG b) {
    constexpr long long kReach = 2; // pixels to each side
    return std::abs(static_cast<long long>(a) - b) <= kReach;
}

// The second press of a pair becomes a double click; the third starts anew.
static bool is_second_click(const MSG& msg, const ButtonRow& button) {
    const Click click = {msg.hwnd, &button, msg.time, msg.pt};
    const bool near = is_near(click.at.x, last_click.at.x) && is_near(click.at.y, last_click.at.y);
    const bool second = near && click.wnd == last_click.wnd && click.button == last_click.button &&
                        click.time - last_click.time <= GetDoubleClickTime();
    last_click = second ? Click{} : click;
    return second;
}

// The button that a press is of; null: not a press.
static const ButtonRow* pressed_button(const MSG& msg) {
    for (const ButtonRow& row : kButtons) {
        if (row.down == msg.message && row.extra == HIWORD(msg.wParam)) return &row;
    }
    return nullptr;
}

static bool is_wheel(UINT message) { return message == WM_MOUSEWHEEL || message == WM_MOUSEHWHEEL; }

static HWND target_of(const Input& input) {
    if (input.message == WM_MOUSELEAVE) return input.wnd;
    if (is_wheel(input.message)) return GetFocus() ? GetFocus() : input.wnd;
    if (GetCapture()) return GetCapture();
    POINT point = input.screen;
    RECT area;
    const bool inside =
        ScreenToClient(input.wnd, &point) && GetClientRect(input.wnd, &area) && PtInRect(&area, point);
    return inside ? input.wnd : nullptr;
}

// What the taking of a press or move sets off before the host sees it.
static void before_mouse(const MSG& msg) {
    if (is_wheel(msg.message) || msg.message == WM_MOUSELEAVE) return;
    if (!GetCapture()) {
        SendMessageW(msg.hwnd, WM_SETCURSOR, reinterpret_cast<WPARAM>(msg.hwnd),
                     MAKELPARAM(HTCLIENT, msg.message));
    }
    if (pressed_button(msg)) activate_window(msg.hwnd, WA_CLICKACTIVE);
}

bool mouse_message(const Input& input, bool take, MSG* msg) {
    if (take && input.virtual_key) keys_taken().set(input.virtual_key, input.down);
    const HWND wnd = target_of(input);
    if (!IsWindowEnabled(wnd)) return false;
    POINT point = input.screen;
    if (!is_wheel(input.message)) ScreenToClient(wnd, &point);
    const LPARAM where = input.message == WM_MOUSELEAVE ? 0 : MAKELPARAM(point.x, point.y);
    *msg = {wnd, input.message, input.wparam, where, input.time, input.screen};
    if (!take) return true;
    before_mouse(*msg);
    const Window* window = find_window(wnd); // it may have ended
    const ButtonRow* pressed = pressed_button(*msg);
    if (window && pressed && is_second_click(*msg, *pressed) && window->type->style & CS_DBLCLKS)
        msg->message = pressed->twice;
    return window != nullptr;
}

POINT window_pointer(HWND wnd) {
    POINT point = pointer_position();
    return ScreenToClient(wnd, &point) ? point : POINT{0, 0};
}

// --- Capture ---

static HWND capture;

static HWND move_capture(HWND wnd) {
    const HWND old = std::exchange(capture, wnd);
    desktop_set_capture(wnd != nullptr);
    if (old != wnd) SendMessageW(old, WM_CAPTURECHANGED, 0, reinterpret_cast<LPARAM>(wnd));
    return old;
}

void forget_capture(HWND wnd) {
    if (capture != wnd) return;
    capture = nullptr;
    desktop_set_capture(false);
}

} // namespace platform

using namespace platform;

extern "C" {

HWND SetCapture(HWND wnd) {
    if (wnd && !find_window(wnd)) return nullptr;
    return move_capture(wnd);
}

BOOL ReleaseCapture() {
    move_capture(nullptr);
    return TRUE;
}

HWND GetCapture() { return capture; }

UINT GetDoubleClickTime() { return 500; }

BOOL TrackMouseEvent(TRACKMOUSEEVENT* request) {
    Window* window = request ? find_window(request->hwndTrack) : nullptr;
    if (!window || request->cbSize != sizeof *request || !(request->dwFlags & TME_LEAVE)) return FALSE;
    window->track_leave = !(request->dwFlags & TME_CANCEL);
    return TRUE;
}
}
