#include "../desktop.h"

#include <algorithm>
#include <cstring>

#include "../cursor.h"
#include "../input.h"
#include "../messages.h"
#include "desktop_pump.h"
#include "sdl_library.h"
#include "text/guarded.h"
#include "text/unicode.h"

// Windows on the desktop.
namespace platform {

static SDL_Window* window_of(const Window& window) { return static_cast<SDL_Window*>(window.desktop); }

static Uint32 creation_flags(const Window& window) {
    Uint32 flags = SDL_WINDOW_HIDDEN;
    if (window.style & WS_THICKFRAME) flags |= SDL_WINDOW_RESIZABLE;
    if ((window.style & WS_CAPTION) != WS_CAPTION) flags |= SDL_WINDOW_BORDERLESS;
    const bool is_bare = window.style & WS_POPUP && !(window.style & WS_CAPTION);
    if (is_bare || window.owner) flags |= SDL_WINDOW_SKIP_TASKBAR;
    if (window.ex_style & WS_EX_TOPMOST) flags |= SDL_WINDOW_ALWAYS_ON_TOP;
    return flags;
}

// The desktop centres a window that may stand anywhere; of one larger than the screen the corner stays in
// view.
static void choose_position(const SdlLibrary& sdl, Window& window, SDL_Window* made) {
    int x = 0, y = 0;
    sdl.SDL_GetWindowPosition(made, &x, &y);
    window.origin = {std::max(x, 0), std::max(y, 0)};
    if (x < 0 || y < 0) sdl.SDL_SetWindowPosition(made, window.origin.x, window.origin.y);
}

// A window with an owner stays above it.
static void tell_owner(const SdlLibrary& sdl, const Window& window, SDL_Window* made) {
    const Window* owner = find_window(window.owner);
    if (owner && owner->desktop) sdl.SDL_SetWindowModalFor(made, window_of(*owner));
}

static bool create(const SdlLibrary& sdl, HWND wnd, Window& window) {
    const int x = window.placed ? window.origin.x : static_cast<int>(SDL_WINDOWPOS_UNDEFINED);
    const int y = window.placed ? window.origin.y : static_cast<int>(SDL_WINDOWPOS_UNDEFINED);
    const int width = std::max<int>(window.size.cx, 1);
    const int height = std::max<int>(window.size.cy, 1);
    SDL_Window* made = text::guarded<SDL_Window*>(nullptr, [&] {
        const std::string title = text::to_utf8(window.title.c_str());
        return sdl.SDL_CreateWindow(title.c_str(), x, y, width, height, creation_flags(window));
    });
    if (!made) return false;
    sdl.SDL_SetWindowData(made, kHandleName, wnd);
    window.desktop = made;
    tell_owner(sdl, window, made);
    if (!window.placed) choose_position(sdl, window, made);
    return true;
}

// The host may bound the size of its window.
static void bound_size(const SdlLibrary& sdl, HWND wnd, SDL_Window* made) {
    MINMAXINFO bounds{};
    bounds.ptMaxTrackSize = {kMostPixels, kMostPixels};
    SendMessageW(wnd, WM_GETMINMAXINFO, 0, reinterpret_cast<LPARAM>(&bounds));
    const Window* window = find_window(wnd);
    if (!window || window->desktop != made) return;
    const auto bound = [](LONG value) { return std::clamp<int>(value, 1, kMostPixels); };
    sdl.SDL_SetWindowMinimumSize(made, bound(bounds.ptMinTrackSize.x), bound(bounds.ptMinTrackSize.y));
    sdl.SDL_SetWindowMaximumSize(made, bound(bounds.ptMaxTrackSize.x), bound(bounds.ptMaxTrackSize.y));
}

static void apply_layout(const SdlLibrary& sdl, const Window& window) {
    switch (window.layout) {
    case Layout::normal: sdl.SDL_RestoreWindow(window_of(window)); break;
    case Layout::minimized: sdl.SDL_MinimizeWindow(window_of(window)); break;
    case Layout::maximized: sdl.SDL_MaximizeWindow(window_of(window)); break;
    }
}

int desktop_screens() {
    const SdlLibrary* sdl = sdl_open();
    return sdl ? std::max(sdl->SDL_GetNumVideoDisplays(), 0) : 0;
}

bool desktop_show(HWND wnd, Window& window) {
    const SdlLibrary* sdl = sdl_open();
    if (!sdl) return false;
    const bool is_new = !window.desktop;
    if (is_new && !create(*sdl, wnd, window)) return false;
    SDL_Window* shown = window_of(window);
    if (is_new) bound_size(*sdl, wnd, shown);
    const Window* same = find_window(wnd);
    if (!same || same->desktop != shown) return false; // the host ended it in WM_GETMINMAXINFO
    sdl->SDL_ShowWindow(shown);
    if (!is_new || same->layout != Layout::normal) apply_layout(*sdl, *same);
    desktop_set_cursor(current_shape());
    return true;
}

void desktop_hide(Window& window) {
    if (window.desktop) sdl_opened()->SDL_HideWindow(window_of(window));
}

void desktop_end(Window& window) {
    if (!window.desktop) return;
    sdl_opened()->SDL_SetWindowData(window_of(window), kHandleName, nullptr);
    sdl_opened()->SDL_DestroyWindow(window_of(window));
    window.desktop = nullptr;
}

bool desktop_work_area(const Window* window, RECT* area) {
    const SdlLibrary* sdl = sdl_open();
    if (!sdl) return false;
    const int monitor =
        window && window->desktop ? std::max(sdl->SDL_GetWindowDisplayIndex(window_of(*window)), 0) : 0;
    SDL_Rect free;
    if (sdl->SDL_GetDisplayUsableBounds(monitor, &free) != 0 || free.w < 1 || free.h < 1) return false;
    return SetRect(area, free.x, free.y, free.x + free.w, free.y + free.h);
}

void desktop_set_title(Window& window) {
    if (!window.desktop) return;
    sdl_opened()->SDL_SetWindowTitle(window_of(window), text::to_utf8(window.title.c_str()).c_str());
}

void desktop_set_size(Window& window) {
    if (!window.desktop) return;
    sdl_opened()->SDL_SetWindowSize(window_of(window), std::max<int>(window.size.cx, 1),
                                    std::max<int>(window.size.cy, 1));
}

void desktop_set_position(Window& window) {
    if (window.desktop)
        sdl_opened()->SDL_SetWindowPosition(window_of(window), window.origin.x, window.origin.y);
}

void desktop_set_topmost(Window& window, bool topmost) {
    if (window.desktop)
        sdl_opened()->SDL_SetWindowAlwaysOnTop(window_of(window), topmost ? SDL_TRUE : SDL_FALSE);
}

void desktop_raise(Window& window) {
    if (window.desktop) sdl_opened()->SDL_RaiseWindow(window_of(window));
}

void desktop_set_capture(bool capture) {
    if (const SdlLibrary* sdl = sdl_opened()) sdl->SDL_CaptureMouse(capture ? SDL_TRUE : SDL_FALSE);
}

bool desktop_button_held() {
    const SdlLibrary* sdl = sdl_opened();
    return sdl && sdl->SDL_GetMouseState(nullptr, nullptr) != 0;
}

bool desktop_button_is_down() {
    const SdlLibrary* sdl = sdl_opened();
    return sdl && sdl->SDL_GetGlobalMouseState(nullptr, nullptr) != 0;
}

void desktop_set_cursor(int index) {
    // In the order of Shape; the desktop has no arrow upward.
    static const SDL_SystemCursor kCursors[kShapes] = {
        SDL_SYSTEM_CURSOR_ARROW,     SDL_SYSTEM_CURSOR_IBEAM,  SDL_SYSTEM_CURSOR_WAIT,
        SDL_SYSTEM_CURSOR_CROSSHAIR, SDL_SYSTEM_CURSOR_ARROW,  SDL_SYSTEM_CURSOR_SIZENWSE,
        SDL_SYSTEM_CURSOR_SIZENESW,  SDL_SYSTEM_CURSOR_SIZEWE, SDL_SYSTEM_CURSOR_SIZENS,
        SDL_SYSTEM_CURSOR_SIZEALL,   SDL_SYSTEM_CURSOR_NO,     SDL_SYSTEM_CURSOR_HAND,
        SDL_SYSTEM_CURSOR_WAITARROW};
    static SDL_Cursor* made[kShapes];
    const SdlLibrary* sdl = sdl_opened();
    if (!sdl) return;
    sdl->SDL_ShowCursor(index >= 0 ? SDL_ENABLE : SDL_DISABLE);
    if (index < 0 || index >= kShapes) return;
    if (!made[index]) made[index] = sdl->SDL_CreateSystemCursor(kCursors[index]);
    if (made[index]) sdl->SDL_SetCursor(made[index]);
}

bool desktop_get_text(std::string& text) {
    const SdlLibrary* sdl = sdl_opened();
    if (!sdl) return false;
    char* held = sdl->SDL_GetClipboardText();
    text = held ? held : "";
    sdl->SDL_free(held);
    return true;
}

bool desktop_set_text(const char* text) {
    const SdlLibrary* sdl = sdl_opened();
    return sdl && sdl->SDL_SetClipboardText(text) == 0;
}

static void copy_rows(const raster::Canvas& from, const SDL_Rect& part, SDL_Surface& to) {
    for (int y = part.y; y < part.y + part.h; y++) {
        const std::uint32_t* row = from.pixels + static_cast<std::ptrdiff_t>(y) * from.pitch + part.x;
        auto* out = static_cast<Uint8*>(to.pixels) + static_cast<std::ptrdiff_t>(y) * to.pitch + part.x * 4;
        std::memcpy(out, row, static_cast<std::size_t>(part.w) * 4);
    }
}

void desktop_present(Window& window) {
    if (!window.desktop || !window.pixels) return;
    const SdlLibrary& sdl = *sdl_opened();
    SDL_Surface* surface = sdl.SDL_GetWindowSurface(window_of(window));
    if (!surface || surface->format->BytesPerPixel != 4) return;
    const raster::Rect& d = window.damage;
    const int right = std::min({d.right, window.canvas.width, surface->w});
    const int bottom = std::min({d.bottom, window.canvas.height, surface->h});
    const SDL_Rect part = {d.left, d.top, right - d.left, bottom - d.top};
    if (part.w <= 0 || part.h <= 0) return;
    copy_rows(window.canvas, part, *surface);
    sdl.SDL_UpdateWindowSurfaceRects(window_of(window), &part, 1);
}

} // namespace platform
