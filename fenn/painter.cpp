#include "fenn/painter.h"

#include <algorithm>
#include <cstdint>

#include <brask/fenn.h>

#include "fenn/window.h"

// The bracket and its state: target, clip, colour, pen, pointer. What is painted stands in shapes.cpp.

FENN_API HDC Zeb_DC = nullptr;
FENN_API DWORD Current_Color = 0;

namespace fenn {
namespace {

constexpr raster::Rect nothing{0, 0, 0, 0};

struct State {
    Bracket bracket;
    Window* window; // null: nothing to paint on
    bool open;
    bool used;    // something was painted
    bool pointed; // the pointer was asked for or set: a bracket for that alone paints nothing
    raster::Rect changed;
    POINT pen; // contract coordinates
};
State state;

raster::Rect whole(const raster::Canvas& canvas) { return {0, 0, canvas.width, canvas.height}; }

void add(const raster::Rect& rect, const raster::Rect& limit) {
    const raster::Rect part = raster::intersect(rect, limit);
    if (is_empty(part)) return;
    raster::Rect& all = state.changed;
    all = is_empty(all) ? part
                        : raster::Rect{std::min(all.left, part.left), std::min(all.top, part.top),
                                       std::max(all.right, part.right), std::max(all.bottom, part.bottom)};
}

void set_clip(const raster::Rect& clip, bool whole_canvas) {
    state.bracket.clip = clip;
    clip_context(*state.window, whole_canvas ? nullptr : &clip);
}

bool is_clipped() {
    const raster::Rect all = whole(state.bracket.canvas);
    const raster::Rect& clip = state.bracket.clip;
    return clip.left != all.left || clip.top != all.top || clip.right != all.right ||
           clip.bottom != all.bottom;
}

// A message's words come without their sign: 65530 is 6 pixels beyond the left or upper edge.
int signed_word(int value) { return value > 0x7FFF && value <= 0xFFFF ? value - 0x10000 : value; }

} // namespace

const Bracket* bracket() {
    if (!state.bracket.canvas.pixels) return nullptr;
    // A report in the middle of a bracket may end or resize the window: the rest is not painted then.
    if (!canvas_stands(*state.window)) {
        leave_window(*state.window);
        return nullptr;
    }
    state.used = true;
    return &state.bracket;
}

void changed(const raster::Rect& rect) { add(rect, state.bracket.clip); }

int flip(const raster::Canvas& canvas, int y) { return limit(std::int64_t{canvas.height} - 1 - y); }

const POINT& pen() { return state.pen; }

void set_pen(int x, int y) {
    state.pen = {x, y};
    if (state.window) move_context(*state.window, x, y);
}

void leave_window(const Window& window) {
    if (state.window != &window) return;
    state.window = nullptr;
    state.bracket = {};
    state.changed = nothing;
    Zeb_DC = nullptr;
}

} // namespace fenn

using namespace fenn;

FENN_API void Zeb_setup(HWND wnd, const char*) {
    if (state.open) Zeb_release();
    state.open = true;
    state.used = state.pointed = false;
    state.changed = nothing;
    state.pen = {0, 0};
    state.window = find_window(wnd);
    if (!state.window) return;
    Window& window = *state.window;
    state.bracket = {wnd, window.canvas, whole(window.canvas), window.dc};
    attach_context(window);
    Zeb_DC = window.dc;
}

FENN_API void Zeb_release() {
    state.open = false;
    if (!state.window) return;
    Window& window = *state.window;
    if (is_clipped()) clip_context(window, nullptr);
    // Drawing on the context itself is not seen here: only brackets for the pointer alone are spared.
    add(detach_context(window, state.used || !state.pointed), whole(window.canvas));
    if (!is_empty(state.changed)) show_window(window, state.changed);
    leave_window(window);
}

FENN_API int Zeb_test() { return state.open; }

FENN_API HDC Zeb_GetDC(HWND wnd, const char*) { return GetDC(wnd); }

FENN_API void Zeb_ReleaseDC(HWND wnd, HDC dc) { ReleaseDC(wnd, dc); }

FENN_API void Zeb_color(unsigned long word) {
    Current_Color = static_cast<DWORD>(word);
    state.used = true;
}

FENN_API void Zeb_set_clip(int x, int y, int width, int height) {
    if (!state.window) return;
    const raster::Canvas& canvas = state.bracket.canvas;
    const std::int64_t bottom = std::int64_t{canvas.height} - y;
    const raster::Rect rect{limit(x), limit(bottom - height), limit(std::int64_t{x} + width), limit(bottom)};
    const raster::Rect clip = raster::intersect(rect, whole(canvas));
    set_clip(is_empty(clip) ? nothing : clip, false);
}

FENN_API void Zeb_reset_clip() {
    if (state.window) set_clip(whole(state.bracket.canvas), true);
}

FENN_API POINT read_curs(int* x, int* y) {
    state.pointed = true;
    // Without a window the pointer is on nothing.
    POINT point{-1, -1};
    if (state.window) {
        const Window& window = *state.window;
        point = window.placed ? window.pointer : ask_pointer(window.wnd);
        point.y = flip(window.canvas, point.y);
    }
    if (x) *x = point.x;
    if (y) *y = point.y;
    return point;
}

FENN_API POINT read_curs(unsigned short* x, unsigned short* y) {
    const POINT point = read_curs(static_cast<int*>(nullptr), nullptr);
    if (x) *x = static_cast<unsigned short>(point.x);
    if (y) *y = static_cast<unsigned short>(point.y);
    return point;
}

FENN_API void set_curs(int x, int y) {
    if (!state.window) return;
    state.pointed = true;
    state.window->placed = true;
    state.window->pointer = {signed_word(x), signed_word(y)};
}
