#include <algorithm>

#include "desktop.h"
#include "input.h"
#include "messages.h"
#include "surface.h"
#include "window_state.h"

// Size, place and back buffer of windows.
namespace platform {

static bool make_buffer(Window& window) {
    const int width = std::max<int>(window.size.cx, 1);
    const int height = std::max<int>(window.size.cy, 1);
    // Untouched pages of a large buffer cost nothing.
    const auto count = static_cast<std::size_t>(width) * static_cast<std::size_t>(height);
    auto* pixels = static_cast<std::uint32_t*>(std::calloc(count, sizeof(std::uint32_t)));
    if (!pixels) return false;
    window.pixels.reset(pixels);
    window.canvas = {pixels, width, height, width};
    return true;
}

raster::Canvas* window_canvas(HWND wnd) {
    Window* window = find_window(wnd);
    if (!window || (!window->pixels && !make_buffer(*window))) return nullptr;
    return &window->canvas;
}

// What was painted stays until the host paints anew.
static void resize_buffer(Window& window) {
    if (!window.pixels) return;
    const raster::Canvas old = window.canvas;
    const std::unique_ptr<std::uint32_t, Free> old_pixels = std::move(window.pixels);
    window.canvas = {};
    if (!make_buffer(window)) return;
    const int width = std::min(old.width, window.canvas.width);
    const int height = std::min(old.height, window.canvas.height);
    for (int y = 0; y < height; y++) {
        std::copy_n(old.pixels + static_cast<std::ptrdiff_t>(y) * old.pitch, width,
                    window.canvas.pixels + static_cast<std::ptrdiff_t>(y) * window.canvas.pitch);
    }
}

static WPARAM size_word(Layout layout) {
    return layout == Layout::minimized   ? SIZE_MINIMIZED
           : layout == Layout::maximized ? SIZE_MAXIMIZED
                                         : SIZE_RESTORED;
}

void tell_size(HWND wnd) {
    const Window* window = find_window(wnd);
    if (!window) return;
    const bool small = window->layout == Layout::minimized;
    SendMessageW(wnd, WM_SIZE, size_word(window->layout),
                 small ? 0 : MAKELPARAM(window->size.cx, window->size.cy));
}

static void tell_place(HWND wnd) {
    const Window* window = find_window(wnd);
    if (window) SendMessageW(wnd, WM_MOVE, 0, MAKELPARAM(window->origin.x, window->origin.y));
}

void tell_first_size(HWND wnd) {
    Window* window = find_window(wnd);
    if (!window || window->size_told) return;
    window->size_told = true;
    tell_size(wnd);
    tell_place(wnd);
}

bool resize_window(HWND wnd, int width, int height, Layout layout) {
    Window* window = find_window(wnd);
    if (!window) return false;
    const SIZE size = {std::clamp(width, 0, kMostPixels), std::clamp(height, 0, kMostPixels)};
    const bool same_size = size.cx == window->size.cx && size.cy == window->size.cy;
    if (same_size && layout == window->layout) return true;
    window->size = size;
    window->layout = layout;
    window->size_told = true;
    if (!same_size) resize_buffer(*window);
    tell_size(wnd);
    if (!same_size) InvalidateRect(wnd, nullptr, TRUE);
    return find_window(wnd) != nullptr;
}

void move_window(HWND wnd, int x, int y) {
    Window* window = find_window(wnd);
    if (!window || (window->origin.x == x && window->origin.y == y)) return;
    window->origin = {std::clamp(x, -kMostPixels, kMostPixels), std::clamp(y, -kMostPixels, kMostPixels)};
    tell_place(wnd);
}

// The desktop shows a size or place that the host asked for.
static void place_on_desktop(HWND wnd, UINT flags) {
    Window* window = find_window(wnd);
    if (!window) return;
    if (!(flags & SWP_NOSIZE)) desktop_set_size(*window);
    if (!(flags & SWP_NOMOVE)) {
        window->placed = true;
        desktop_set_position(*window);
    }
}

static void set_order(HWND wnd, HWND after) {
    Window* window = find_window(wnd);
    if (!window) return;
    if (after == HWND_TOPMOST) window->ex_style |= WS_EX_TOPMOST;
    if (after == HWND_NOTOPMOST) window->ex_style &= ~static_cast<DWORD>(WS_EX_TOPMOST);
    if (after == HWND_TOPMOST || after == HWND_NOTOPMOST) desktop_set_topmost(*window, after == HWND_TOPMOST);
    if (after == HWND_TOP) desktop_raise(*window);
}

} // namespace platform

using namespace platform;

extern "C" {

BOOL SetWindowPos(HWND wnd, HWND after, int x, int y, int width, int height, UINT flags) {
    if (!find_window(wnd)) return FALSE;
    if (!(flags & SWP_NOZORDER)) set_order(wnd, after);
    if (!(flags & SWP_NOMOVE)) move_window(wnd, x, y);
    if (!(flags & SWP_NOSIZE)) resize_window(wnd, width, height, Layout::normal);
    place_on_desktop(wnd, flags);
    if (flags & SWP_SHOWWINDOW) ShowWindow(wnd, flags & SWP_NOACTIVATE ? SW_SHOWNA : SW_SHOW);
    if (flags & SWP_HIDEWINDOW) ShowWindow(wnd, SW_HIDE);
    return find_window(wnd) != nullptr;
}

BOOL MoveWindow(HWND wnd, int x, int y, int width, int height, BOOL) {
    return SetWindowPos(wnd, nullptr, x, y, width, height, SWP_NOZORDER | SWP_NOACTIVATE);
}

BOOL GetClientRect(HWND wnd, RECT* rect) {
    const Window* window = find_window(wnd);
    return window && SetRect(rect, 0, 0, window->size.cx, window->size.cy);
}

BOOL GetWindowRect(HWND wnd, RECT* rect) {
    const Window* window = find_window(wnd);
    return window && SetRect(rect, window->origin.x, window->origin.y, window->origin.x + window->size.cx,
                             window->origin.y + window->size.cy);
}

BOOL AdjustWindowRectEx(RECT* rect, DWORD, BOOL, DWORD) { return rect != nullptr; }
BOOL AdjustWindowRect(RECT* rect, DWORD, BOOL) { return rect != nullptr; }

BOOL ClientToScreen(HWND wnd, POINT* point) {
    const Window* window = find_window(wnd);
    if (!window || !point) return FALSE;
    RECT moved = {point->x, point->y, point->x, point->y};
    OffsetRect(&moved, window->origin.x, window->origin.y);
    *point = {moved.left, moved.top};
    return TRUE;
}

BOOL ScreenToClient(HWND wnd, POINT* point) {
    const Window* window = find_window(wnd);
    if (!window || !point) return FALSE;
    RECT moved = {point->x, point->y, point->x, point->y};
    OffsetRect(&moved, -window->origin.x, -window->origin.y);
    *point = {moved.left, moved.top};
    return TRUE;
}
}
