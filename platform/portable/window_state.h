#ifndef PLATFORM_PORTABLE_WINDOW_STATE_H
#define PLATFORM_PORTABLE_WINDOW_STATE_H

#include <cstdlib>
#include <memory>
#include <string>
#include <vector>

#include "handles.h"
#include "raster/canvas.h"
#include "surface.h"
#include "window.h"

// What a window and its class are inside. A call of a window procedure may end any window: look a handle up
// anew after each.
namespace platform {

struct WindowClass {
    std::wstring name;
    ATOM atom = 0;
    UINT style = 0;
    WNDPROC procedure = nullptr;
    int extra_bytes = 0;
    HCURSOR cursor = nullptr;
    HBRUSH brush = nullptr;
    int windows = 0; // alive
};
// By name or atom; null: none.
WindowClass* find_class(LPCWSTR name_or_atom);

enum class Layout { normal, minimized, maximized };

struct Free {
    void operator()(void* block) const {
        buffers_gone++;
        std::free(block);
    }
};

struct Window {
    WindowClass* type = nullptr;
    WNDPROC procedure = nullptr;
    DWORD style = 0;
    DWORD ex_style = 0;
    HINSTANCE instance = nullptr;
    LONG_PTR id = 0;
    LONG_PTR user_data = 0;
    HWND owner = nullptr;
    std::wstring title;
    std::vector<BYTE> extra;

    POINT origin{}; // of the client area, in screen coordinates
    SIZE size{};
    bool placed = false; // the host chose the origin
    Layout layout = Layout::normal;
    bool size_told = false; // the first WM_SIZE has been sent
    bool destroying = false;
    bool track_leave = false; // WM_MOUSELEAVE was asked for

    RECT update{};      // what is to be painted; empty: nothing
    bool erase = false; // with the background

    std::unique_ptr<std::uint32_t, Free> pixels; // made when first asked for
    raster::Canvas canvas{};

    void* desktop = nullptr; // the desktop's window, when it is shown on one
    raster::Rect damage{};   // painted and not yet shown
    DWORD damage_time = 0;   // of the oldest part of it
};

HandleTable<Window>& windows();
Window* find_window(HWND wnd);

// The largest width and height of a window: what 16-bit message parameters and memory carry.
constexpr int kMostPixels = 16384;

// Gives the window a new size on our side: buffer, WM_SIZE, paint request. False: it died on the way.
bool resize_window(HWND wnd, int width, int height, Layout layout);
void move_window(HWND wnd, int x, int y);
// Tells the window its size and place for the first time; later calls do nothing.
void tell_first_size(HWND wnd);
void tell_size(HWND wnd);

// Sends the messages of an activation; null: none of ours is active now.
void activate_window(HWND wnd, int how);
// Passes activation on to the owner, when this window has it.
void leave_activation(HWND wnd);
// Takes a window off the screen, without messages.
void hide_window(HWND wnd);

// Forgets a window that ends.
void forget_activation(HWND wnd);
void forget_capture(HWND wnd);
void forget_timers(HWND wnd);
void forget_messages(HWND wnd);

// Shows what was painted: all of it, or only what waits for 16 ms and longer.
void show_damage(bool only_overdue);

} // namespace platform

#endif
