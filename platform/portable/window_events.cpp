#include "desktop.h"
#include "desktop_events.h"
#include "input.h"
#include "messages.h"
#include "modal.h"
#include "surface.h"
#include "window_state.h"

// What happens to a window on the desktop.
namespace platform {

void desktop_resize(HWND wnd, int width, int height) {
    const Window* window = find_window(wnd);
    if (window) resize_window(wnd, width, height, window->layout);
}

void desktop_layout(HWND wnd, int layout) {
    const Window* window = find_window(wnd);
    if (!window || layout < SIZE_RESTORED || layout > SIZE_MAXIMIZED) return;
    static const Layout kLayouts[] = {Layout::normal, Layout::minimized, Layout::maximized};
    resize_window(wnd, window->size.cx, window->size.cy, kLayouts[layout]);
}

void desktop_move(HWND wnd, int x, int y) { move_window(wnd, x, y); }

// The buffer still holds what was there: the host is not asked.
void desktop_expose(HWND wnd) {
    const Window* window = find_window(wnd);
    if (window) window_changed(wnd, {0, 0, window->canvas.width, window->canvas.height});
}

// A window that waits for a dialog cannot be closed by its box; the dialog is shown instead.
void desktop_close(HWND wnd) {
    if (const HWND modal = modal_of(wnd); modal != wnd) {
        desktop_raise(*find_window(modal));
    } else {
        PostMessageW(wnd, WM_SYSCOMMAND, SC_CLOSE, 0);
    }
}

} // namespace platform
