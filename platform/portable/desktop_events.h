#ifndef PLATFORM_PORTABLE_DESKTOP_EVENTS_H
#define PLATFORM_PORTABLE_DESKTOP_EVENTS_H

#include "window.h"

// What a desktop reports. The desktop's room calls these, and so do tests, which need no desktop then. Times
// are those of GetTickCount. Bad handles and codes are ignored.
namespace platform {

constexpr unsigned kNumLock = 1;
constexpr unsigned kCapsLock = 2;

struct DesktopKey {
    int scancode = 0; // the desktop's: usage numbers of the USB keyboard page
    int symbol = 0;   // the layout's character without modifiers; 0 or above 0x10FFFF: none
    bool down = false;
    bool alt_graph = false; // the key is AltGr: it is no Alt, and never reported
    unsigned locks = 0;     // kNumLock, kCapsLock: which are on, after this event
    DWORD time = 0;
};
void desktop_key(const DesktopKey& key);
// Text that was typed, UTF-8: it belongs to the key press before it, or stands alone (an input method).
void desktop_text(const char* utf8, DWORD time);

// Client coordinates of the window, which may lie outside of it while a button is held.
void desktop_mouse_move(HWND wnd, int x, int y, DWORD time);
void desktop_mouse_leave(HWND wnd);
// 1 left, 2 middle, 3 right, 4 and 5 the side ones.
void desktop_button(HWND wnd, int button, bool down, int x, int y, DWORD time);
// In units of 120 a notch, upward and to the right.
void desktop_wheel(HWND wnd, int vertical, int horizontal, DWORD time);

void desktop_focus(HWND wnd, bool gained);
void desktop_resize(HWND wnd, int width, int height);
void desktop_layout(HWND wnd, int layout); // a SIZE_ constant
void desktop_move(HWND wnd, int x, int y);
void desktop_expose(HWND wnd);
void desktop_close(HWND wnd);

} // namespace platform

#endif
