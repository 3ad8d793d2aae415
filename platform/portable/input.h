#ifndef PLATFORM_PORTABLE_INPUT_H
#define PLATFORM_PORTABLE_INPUT_H

#include "types.h"
#include "window.h"

// The message queue, timers, the mouse and its cursors. Everything belongs to the thread of the windows,
// apart from PostMessage, which any thread may use.

// --- Messages ---
struct MSG {
    HWND hwnd;
    UINT message;
    WPARAM wParam;
    LPARAM lParam;
    DWORD time;
    POINT pt; // the pointer, in screen coordinates
};
typedef MSG* LPMSG;

enum : UINT { PM_NOREMOVE = 0, PM_REMOVE = 1 };

extern "C" {
// Order: posted messages, keyboard and mouse, WM_QUIT, WM_PAINT, WM_TIMER. 0 for WM_QUIT, -1 for a bad
// argument.
PLATFORM_API BOOL GetMessageW(MSG* msg, HWND wnd, UINT first, UINT last);
PLATFORM_API BOOL PeekMessageW(MSG* msg, HWND wnd, UINT first, UINT last, UINT remove);
PLATFORM_API BOOL TranslateMessage(const MSG* msg); // posts the WM_CHAR of a key
PLATFORM_API LRESULT DispatchMessageW(const MSG* msg);
PLATFORM_API BOOL PostMessageW(HWND wnd, UINT message, WPARAM wparam, LPARAM lparam); // FALSE beyond 10,000
PLATFORM_API LRESULT SendMessageW(HWND wnd, UINT message, WPARAM wparam, LPARAM lparam);
PLATFORM_API void PostQuitMessage(int code);
PLATFORM_API DWORD GetMessagePos();
PLATFORM_API LONG GetMessageTime();
}
#define GetMessage GetMessageW
#define PeekMessage PeekMessageW
#define DispatchMessage DispatchMessageW
#define PostMessage PostMessageW
#define SendMessage SendMessageW

// --- Timers: one WM_TIMER at a time, when nothing else is waiting ---
typedef void(CALLBACK* TIMERPROC)(HWND, UINT, UINT_PTR, DWORD);
enum : UINT { USER_TIMER_MINIMUM = 10, USER_TIMER_MAXIMUM = 0x7FFFFFFF };

extern "C" {
PLATFORM_API UINT_PTR SetTimer(HWND wnd, UINT_PTR id, UINT milliseconds, TIMERPROC procedure);
PLATFORM_API BOOL KillTimer(HWND wnd, UINT_PTR id);
}

// --- Mouse ---
// Low word of wParam of the mouse messages.
enum : int {
    MK_LBUTTON = 0x0001,
    MK_RBUTTON = 0x0002,
    MK_SHIFT = 0x0004,
    MK_CONTROL = 0x0008,
    MK_MBUTTON = 0x0010,
    MK_XBUTTON1 = 0x0020,
    MK_XBUTTON2 = 0x0040,
};
enum : int { XBUTTON1 = 1, XBUTTON2 = 2 };
enum : int { WHEEL_DELTA = 120 };
enum : int { HTNOWHERE = 0, HTCLIENT = 1, HTCAPTION = 2 };
#define GET_KEYSTATE_WPARAM(wparam) (LOWORD(wparam))
#define GET_WHEEL_DELTA_WPARAM(wparam) ((SHORT)HIWORD(wparam))
#define GET_XBUTTON_WPARAM(wparam) (HIWORD(wparam))

struct TRACKMOUSEEVENT {
    DWORD cbSize;
    DWORD dwFlags;
    HWND hwndTrack;
    DWORD dwHoverTime;
};
typedef TRACKMOUSEEVENT* LPTRACKMOUSEEVENT;
enum : DWORD { TME_LEAVE = 0x00000002, TME_CANCEL = 0x80000000 };

extern "C" {
PLATFORM_API HWND SetCapture(HWND wnd);
PLATFORM_API BOOL ReleaseCapture();
PLATFORM_API HWND GetCapture();
PLATFORM_API BOOL GetCursorPos(POINT* point);
PLATFORM_API UINT GetDoubleClickTime();
PLATFORM_API BOOL TrackMouseEvent(TRACKMOUSEEVENT* request); // WM_MOUSELEAVE, once; nothing else
}

// --- Cursors ---
#define IDC_ARROW MAKEINTRESOURCEW(32512)
#define IDC_IBEAM MAKEINTRESOURCEW(32513)
#define IDC_WAIT MAKEINTRESOURCEW(32514)
#define IDC_CROSS MAKEINTRESOURCEW(32515)
#define IDC_UPARROW MAKEINTRESOURCEW(32516)
#define IDC_SIZENWSE MAKEINTRESOURCEW(32642)
#define IDC_SIZENESW MAKEINTRESOURCEW(32643)
#define IDC_SIZEWE MAKEINTRESOURCEW(32644)
#define IDC_SIZENS MAKEINTRESOURCEW(32645)
#define IDC_SIZEALL MAKEINTRESOURCEW(32646)
#define IDC_NO MAKEINTRESOURCEW(32648)
#define IDC_HAND MAKEINTRESOURCEW(32649)
#define IDC_APPSTARTING MAKEINTRESOURCEW(32650)

extern "C" {
PLATFORM_API HCURSOR LoadCursorW(HINSTANCE instance, LPCWSTR name); // only the standard ones, instance null
PLATFORM_API HCURSOR SetCursor(HCURSOR cursor); // gives the one before; null: none is shown
PLATFORM_API HCURSOR GetCursor();
}
#define LoadCursor LoadCursorW

#endif
