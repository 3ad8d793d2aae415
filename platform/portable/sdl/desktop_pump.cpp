#include "desktop_pump.h"

#include <cmath>

#include "../desktop.h"
#include "../desktop_events.h"
#include "../input.h"
#include "../messages.h"
#include "../process.h"
#include "alt_graph.h"
#include "sdl_library.h"

// Events of the desktop, one handler for each kind.
namespace platform {

static HWND handle_of(const SdlLibrary& sdl, Uint32 id) {
    SDL_Window* window = sdl.SDL_GetWindowFromID(id);
    return window ? static_cast<HWND>(sdl.SDL_GetWindowData(window, kHandleName)) : nullptr;
}

// The desktop counts its milliseconds from its own start.
static DWORD time_of(const SdlLibrary& sdl, Uint32 timestamp) {
    return GetTickCount() - (sdl.SDL_GetTicks() - timestamp);
}

static unsigned locks_of(Uint16 mods) {
    return (mods & KMOD_NUM ? kNumLock : 0) | (mods & KMOD_CAPS ? kCapsLock : 0);
}

static void on_key(const SdlLibrary& sdl, const SDL_KeyboardEvent& event) {
    DesktopKey key;
    key.scancode = event.keysym.scancode;
    key.symbol = event.keysym.sym & SDLK_SCANCODE_MASK ? 0 : event.keysym.sym;
    key.down = event.type == SDL_KEYDOWN;
    key.alt_graph = is_alt_graph(sdl, event);
    key.locks = locks_of(event.keysym.mod);
    key.time = time_of(sdl, event.timestamp);
    desktop_key(key);
}

static void on_text(const SdlLibrary& sdl, const SDL_TextInputEvent& event) {
    desktop_text(event.text, time_of(sdl, event.timestamp));
}

static void on_motion(const SdlLibrary& sdl, const SDL_MouseMotionEvent& event) {
    desktop_mouse_move(handle_of(sdl, event.windowID), event.x, event.y, time_of(sdl, event.timestamp));
}

static void on_button(const SdlLibrary& sdl, const SDL_MouseButtonEvent& event) {
    desktop_button(handle_of(sdl, event.windowID), event.button, event.state == SDL_PRESSED, event.x, event.y,
                   time_of(sdl, event.timestamp));
}

static void on_wheel(const SdlLibrary& sdl, const SDL_MouseWheelEvent& event) {
    const auto units = [](float notches) { return static_cast<int>(std::lround(notches * WHEEL_DELTA)); };
    desktop_wheel(handle_of(sdl, event.windowID), units(event.preciseY), units(event.preciseX),
                  time_of(sdl, event.timestamp));
}

static void on_window(const SdlLibrary& sdl, const SDL_WindowEvent& event) {
    const HWND wnd = handle_of(sdl, event.windowID);
    switch (event.event) {
    case SDL_WINDOWEVENT_EXPOSED: desktop_expose(wnd); break;
    case SDL_WINDOWEVENT_MOVED: desktop_move(wnd, event.data1, event.data2); break;
    case SDL_WINDOWEVENT_SIZE_CHANGED: desktop_resize(wnd, event.data1, event.data2); break;
    case SDL_WINDOWEVENT_MINIMIZED: desktop_layout(wnd, SIZE_MINIMIZED); break;
    case SDL_WINDOWEVENT_MAXIMIZED: desktop_layout(wnd, SIZE_MAXIMIZED); break;
    case SDL_WINDOWEVENT_RESTORED: desktop_layout(wnd, SIZE_RESTORED); break;
    case SDL_WINDOWEVENT_LEAVE: desktop_mouse_leave(wnd); break;
    case SDL_WINDOWEVENT_FOCUS_GAINED: desktop_focus(wnd, true); break;
    case SDL_WINDOWEVENT_FOCUS_LOST: desktop_focus(wnd, false); break;
    case SDL_WINDOWEVENT_CLOSE: desktop_close(wnd); break;
    }
}

// The session ends, for windows that wait for a dialog too.
static void close_all() {
    for (HWND wnd = nullptr; (wnd = windows().next(wnd)) != nullptr;) {
        if (IsWindowVisible(wnd)) PostMessageW(wnd, WM_SYSCOMMAND, SC_CLOSE, 0);
    }
}

static void handle(const SdlLibrary& sdl, const SDL_Event& event) {
    switch (event.type) {
    case SDL_KEYDOWN:
    case SDL_KEYUP: on_key(sdl, event.key); break;
    case SDL_TEXTINPUT: on_text(sdl, event.text); break;
    case SDL_MOUSEMOTION: on_motion(sdl, event.motion); break;
    case SDL_MOUSEBUTTONDOWN:
    case SDL_MOUSEBUTTONUP: on_button(sdl, event.button); break;
    case SDL_MOUSEWHEEL: on_wheel(sdl, event.wheel); break;
    case SDL_WINDOWEVENT: on_window(sdl, event.window); break;
    case SDL_QUIT: close_all(); break;
    }
}

void desktop_pump() {
    const SdlLibrary* sdl = sdl_opened();
    SDL_Event event;
    while (sdl && sdl->SDL_PollEvent(&event))
        handle(*sdl, event);
}

bool desktop_wait(int milliseconds) {
    const SdlLibrary* sdl = sdl_opened();
    if (!sdl) return false;
    // The event stays queued: a key and its text have to be read in one go.
    if (sdl->SDL_WaitEventTimeout(nullptr, milliseconds)) desktop_pump();
    return true;
}

void desktop_wake() {
    const SdlLibrary* sdl = sdl_opened();
    if (!sdl) return;
    SDL_Event event{};
    event.type = SDL_USEREVENT; // ends a wait, nothing more
    sdl->SDL_PushEvent(&event);
}

} // namespace platform
