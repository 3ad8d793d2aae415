#include <algorithm>

#include "desktop.h"
#include "device_context.h"
#include "input.h"
#include "messages.h"
#include "process.h"
#include "queue.h"
#include "surface.h"
#include "window_state.h"

// Paint requests, and the way of what was painted to the screen.
namespace platform {

static bool wants_paint(const Window& window) {
    return window.style & WS_VISIBLE && window.layout != Layout::minimized && !IsRectEmpty(&window.update);
}

bool paint_message(HWND filter, MSG* msg) {
    for (HWND wnd = nullptr; (wnd = windows().next(wnd)) != nullptr;) {
        if (filter && filter != wnd) continue;
        if (!wants_paint(*find_window(wnd))) continue;
        *msg = {wnd, WM_PAINT, 0, 0, GetTickCount(), pointer_position()};
        return true;
    }
    return false;
}

static void invalidate(Window& window, const RECT* rect, bool erase) {
    const RECT whole = {0, 0, window.size.cx, window.size.cy};
    RECT part = whole;
    if (rect && !IntersectRect(&part, &whole, rect)) return;
    UnionRect(&part, &window.update, &part);
    IntersectRect(&window.update, &whole, &part); // the window may have become smaller since
    window.erase = window.erase || erase;
}

// What is left of `rect` without `taken`, as one rectangle.
static RECT without(const RECT& rect, const RECT& taken) {
    RECT left = rect;
    if (taken.left <= rect.left && taken.right >= rect.right) {
        if (taken.top <= rect.top) left.top = std::max(rect.top, taken.bottom);
        if (taken.bottom >= rect.bottom) left.bottom = std::min(rect.bottom, taken.top);
    } else if (taken.top <= rect.top && taken.bottom >= rect.bottom) {
        if (taken.left <= rect.left) left.left = std::max(rect.left, taken.right);
        if (taken.right >= rect.right) left.right = std::min(rect.right, taken.left);
    }
    if (IsRectEmpty(&left)) SetRectEmpty(&left);
    return left;
}

// At the latest so many milliseconds after it was painted, a change is on the screen.
static constexpr DWORD kPatience = 16;
static bool something_waits = false;

static void show(Window& window) {
    desktop_present(window);
    window.damage = {};
}

static bool is_overdue(const Window& window) { return GetTickCount() - window.damage_time >= kPatience; }

void window_changed(HWND wnd, const raster::Rect& rect) {
    Window* window = find_window(wnd);
    if (!window || !window->desktop) return; // nobody sees it
    const raster::Rect part = {std::max(rect.left, 0), std::max(rect.top, 0),
                               std::min(rect.right, window->canvas.width),
                               std::min(rect.bottom, window->canvas.height)};
    if (is_empty(part)) return;
    raster::Rect& damage = window->damage;
    if (is_empty(damage)) {
        damage = part;
        window->damage_time = GetTickCount();
        something_waits = true;
        return;
    }
    damage = {std::min(damage.left, part.left), std::min(damage.top, part.top),
              std::max(damage.right, part.right), std::max(damage.bottom, part.bottom)};
    if (is_overdue(*window)) show(*window);
}

void show_damage(bool only_overdue) {
    if (!something_waits) return;
    something_waits = false;
    for (HWND wnd = nullptr; (wnd = windows().next(wnd)) != nullptr;) {
        Window* window = find_window(wnd);
        if (is_empty(window->damage)) continue;
        if (only_overdue && !is_overdue(*window)) {
            something_waits = true;
        } else {
            show(*window);
        }
    }
}

} // namespace platform

using namespace platform;

extern "C" {

BOOL InvalidateRect(HWND wnd, const RECT* rect, BOOL erase) {
    if (Window* window = find_window(wnd)) {
        invalidate(*window, rect, erase);
        return TRUE;
    }
    if (wnd) return FALSE;
    for (HWND each = nullptr; (each = windows().next(each)) != nullptr;)
        invalidate(*find_window(each), nullptr, erase);
    return TRUE;
}

BOOL ValidateRect(HWND wnd, const RECT* rect) {
    Window* window = find_window(wnd);
    if (!window) return FALSE;
    window->update = rect ? without(window->update, *rect) : RECT{};
    if (IsRectEmpty(&window->update)) window->erase = false;
    return TRUE;
}

BOOL GetUpdateRect(HWND wnd, RECT* rect, BOOL) {
    const Window* window = find_window(wnd);
    if (!window) return FALSE;
    if (rect) *rect = window->update;
    return !IsRectEmpty(&window->update);
}

BOOL UpdateWindow(HWND wnd) {
    const Window* window = find_window(wnd);
    if (!window) return FALSE;
    if (wants_paint(*window)) SendMessageW(wnd, WM_PAINT, 0, 0);
    return TRUE;
}

HDC BeginPaint(HWND wnd, PAINTSTRUCT* paint) {
    if (!paint) return nullptr;
    *paint = {};
    Window* window = find_window(wnd);
    const HDC dc = window ? create_context(wnd) : nullptr;
    if (!dc) return nullptr;
    paint->hdc = dc;
    paint->rcPaint = window->update;
    paint->fErase = window->erase;
    window->update = {};
    window->erase = false;
    const RECT& part = paint->rcPaint;
    const raster::Rect clip = {part.left, part.top, part.right, part.bottom};
    canvas_dc_clip(dc, &clip);
    if (paint->fErase && SendMessageW(wnd, WM_ERASEBKGND, reinterpret_cast<WPARAM>(dc), 0))
        paint->fErase = FALSE;
    return dc;
}

BOOL EndPaint(HWND wnd, const PAINTSTRUCT* paint) {
    if (!paint) return FALSE;
    ReleaseDC(wnd, paint->hdc);
    return TRUE;
}
}
