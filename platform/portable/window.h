#ifndef PLATFORM_PORTABLE_WINDOW_H
#define PLATFORM_PORTABLE_WINDOW_H

#include "types.h"

// Window classes, windows, the message queue, timers, capture, paint requests and cursors.

#define IDC_ARROW MAKEINTRESOURCEW(32512)
#define IDC_IBEAM MAKEINTRESOURCEW(32513)
#define IDC_WAIT MAKEINTRESOURCEW(32514)
#define IDC_CROSS MAKEINTRESOURCEW(32515)

extern "C" {
PLATFORM_API HCURSOR LoadCursorW(HINSTANCE instance, LPCWSTR name);
PLATFORM_API HCURSOR SetCursor(HCURSOR cursor);
PLATFORM_API BOOL PostMessageW(HWND wnd, UINT message, WPARAM wparam, LPARAM lparam);
}
#define LoadCursor LoadCursorW
#define PostMessage PostMessageW

#endif
