#include "fenn/window.h"
#include "platform/portable/surface.h"

// The platform's window owns the back buffer and shows what changed.
namespace fenn {
namespace {

// One context serves all windows: brackets are never nested.
HDC context = nullptr;
platform::CanvasContext* context_state = nullptr;

bool make_context() {
    if (context_state) return true;
    context = platform::canvas_dc_create();
    context_state = platform::canvas_dc_state(context);
    return context_state != nullptr;
}

raster::Rect whole(const Window& window) { return {0, 0, window.canvas.width, window.canvas.height}; }

} // namespace

bool begin_window(Window& window) {
    if (!make_context()) return false;
    window.dc = context;
    return refresh_window(window);
}

// A window's handle is never given again, so its canvas alone tells that it is still there.
bool refresh_window(Window& window) {
    if (window.canvas.pixels && canvas_stands(window)) return true; // most brackets: no look at the table
    const raster::Canvas* const canvas = platform::window_canvas(window.wnd);
    if (!canvas) return false;
    window.canvas = *canvas;
    window.buffers_gone = platform::buffers_gone;
    return true;
}

bool canvas_stands(const Window& window) { return window.buffers_gone == platform::buffers_gone; }

void end_window(Window&) {}

void attach_context(Window& window) {
    context_state->wnd = window.wnd;
    context_state->clip = whole(window);
}

raster::Rect detach_context(Window&, bool) {
    context_state->wnd = nullptr;
    return {};
}

void clip_context(Window& window, const raster::Rect* clip) {
    context_state->clip = clip ? *clip : whole(window);
}

void move_context(Window&, int x, int y) { context_state->position = {x, y}; }

void show_window(Window& window, const raster::Rect& changed) {
    platform::window_changed(window.wnd, changed);
}

POINT ask_pointer(HWND wnd) { return platform::window_pointer(wnd); }

} // namespace fenn
