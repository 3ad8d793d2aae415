#include "fenn/window.h"
#include "platform/portable/surface.h"

// The platform's window owns the back buffer and shows what changed.
namespace fenn {
namespace {

// One context serves all windows: brackets are never nested.
HDC shared_context() {
    static const HDC dc = platform::canvas_dc_create();
    return dc;
}

} // namespace

bool begin_window(Window& window) {
    window.serial = platform::window_serial(window.wnd);
    if (window.serial == 0) return false;
    window.dc = shared_context();
    return refresh_window(window);
}

bool refresh_window(Window& window) {
    if (platform::window_serial(window.wnd) != window.serial) return false;
    const raster::Canvas* const canvas = platform::window_canvas(window.wnd);
    if (!canvas) return false;
    window.canvas = *canvas;
    return true;
}

void end_window(Window&) {}

void attach_context(Window& window) { platform::canvas_dc_attach(window.dc, window.wnd, &window.canvas); }

raster::Rect detach_context(Window& window, bool) {
    platform::canvas_dc_attach(window.dc, nullptr, nullptr);
    return {};
}

void clip_context(Window& window, const raster::Rect* clip) { platform::canvas_dc_clip(window.dc, clip); }

void move_context(Window& window, int x, int y) { platform::canvas_dc_move(window.dc, x, y); }

void show_window(Window& window, const raster::Rect& changed) {
    platform::window_changed(window.wnd, changed);
}

POINT ask_pointer(HWND wnd) { return platform::window_pointer(wnd); }

} // namespace fenn
