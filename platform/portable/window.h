#ifndef PLATFORM_PORTABLE_WINDOW_H
#define PLATFORM_PORTABLE_WINDOW_H

#include "gdi.h"
#include "types.h"

// Window classes, windows, paint requests.
//
// A window has no frame of its own: the desktop puts its own one around it. The window's rectangle is
// therefore that of its client area, and AdjustWindowRect leaves a rectangle as it is. Windows are top-level
// ones; WS_CHILD is refused. A window that was never shown lives in memory alone and needs no desktop.

typedef LRESULT(CALLBACK* WNDPROC)(HWND, UINT, WPARAM, LPARAM);

// --- Classes ---
struct WNDCLASSW {
    UINT style;
    WNDPROC lpfnWndProc;
    int cbClsExtra; // not kept
    int cbWndExtra; // bytes for SetWindowLongPtr at offsets 0 and up; at most 4096
    HINSTANCE hInstance;
    HICON hIcon;
    HCURSOR hCursor;      // shown over the window; null: the window shows its own
    HBRUSH hbrBackground; // a brush, or COLOR_ constant + 1; null: nothing is erased
    LPCWSTR lpszMenuName;
    LPCWSTR lpszClassName;
};
struct WNDCLASSEXW {
    UINT cbSize;
    UINT style;
    WNDPROC lpfnWndProc;
    int cbClsExtra;
    int cbWndExtra;
    HINSTANCE hInstance;
    HICON hIcon;
    HCURSOR hCursor;
    HBRUSH hbrBackground;
    LPCWSTR lpszMenuName;
    LPCWSTR lpszClassName;
    HICON hIconSm;
};
typedef WNDCLASSW WNDCLASS;
typedef WNDCLASSEXW WNDCLASSEX;

enum : UINT { CS_VREDRAW = 0x0001, CS_HREDRAW = 0x0002, CS_DBLCLKS = 0x0008, CS_OWNDC = 0x0020 };
#define IDI_APPLICATION MAKEINTRESOURCEW(32512)

extern "C" {
PLATFORM_API ATOM RegisterClassW(const WNDCLASSW* description); // 0: refused, a second one of the name too
PLATFORM_API ATOM RegisterClassExW(const WNDCLASSEXW* description);
PLATFORM_API BOOL UnregisterClassW(LPCWSTR name_or_atom, HINSTANCE instance); // FALSE while it has windows
PLATFORM_API HICON LoadIconW(HINSTANCE instance, LPCWSTR name);
}
#define RegisterClass RegisterClassW
#define RegisterClassEx RegisterClassExW
#define UnregisterClass UnregisterClassW
#define LoadIcon LoadIconW

// --- Windows ---
struct CREATESTRUCTW {
    LPVOID lpCreateParams;
    HINSTANCE hInstance;
    HMENU hMenu;
    HWND hwndParent;
    int cy, cx, y, x;
    LONG style;
    LPCWSTR lpszName;
    LPCWSTR lpszClass;
    DWORD dwExStyle;
};
typedef CREATESTRUCTW CREATESTRUCT;
typedef CREATESTRUCTW* LPCREATESTRUCT;

struct MINMAXINFO {
    POINT ptReserved;
    POINT ptMaxSize;
    POINT ptMaxPosition;
    POINT ptMinTrackSize; // smallest size of the window
    POINT ptMaxTrackSize; // largest size of the window
};

enum : DWORD {
    WS_OVERLAPPED = 0x00000000,
    WS_POPUP = 0x80000000,
    WS_CHILD = 0x40000000,
    WS_MINIMIZE = 0x20000000,
    WS_VISIBLE = 0x10000000,
    WS_DISABLED = 0x08000000,
    WS_CLIPSIBLINGS = 0x04000000,
    WS_CLIPCHILDREN = 0x02000000,
    WS_MAXIMIZE = 0x01000000,
    WS_CAPTION = 0x00C00000,
    WS_BORDER = 0x00800000,
    WS_DLGFRAME = 0x00400000,
    WS_VSCROLL = 0x00200000,
    WS_HSCROLL = 0x00100000,
    WS_SYSMENU = 0x00080000,
    WS_THICKFRAME = 0x00040000, // the user may resize it
    WS_SIZEBOX = WS_THICKFRAME,
    WS_MINIMIZEBOX = 0x00020000,
    WS_MAXIMIZEBOX = 0x00010000,
    WS_OVERLAPPEDWINDOW =
        WS_OVERLAPPED | WS_CAPTION | WS_SYSMENU | WS_THICKFRAME | WS_MINIMIZEBOX | WS_MAXIMIZEBOX,
    WS_POPUPWINDOW = WS_POPUP | WS_BORDER | WS_SYSMENU,
    WS_EX_DLGMODALFRAME = 0x00000001,
    WS_EX_TOPMOST = 0x00000008,
    WS_EX_TOOLWINDOW = 0x00000080,
    WS_EX_APPWINDOW = 0x00040000,
};
enum : int { CW_USEDEFAULT = -2147483647 - 1 };
enum : int {
    SW_HIDE = 0,
    SW_SHOWNORMAL = 1,
    SW_SHOWMINIMIZED = 2,
    SW_MAXIMIZE = 3,
    SW_SHOWMAXIMIZED = 3,
    SW_SHOWNOACTIVATE = 4,
    SW_SHOW = 5,
    SW_MINIMIZE = 6,
    SW_SHOWMINNOACTIVE = 7,
    SW_SHOWNA = 8,
    SW_RESTORE = 9,
    SW_SHOWDEFAULT = 10,
};
enum : UINT {
    SWP_NOSIZE = 0x0001,
    SWP_NOMOVE = 0x0002,
    SWP_NOZORDER = 0x0004,
    SWP_NOREDRAW = 0x0008,
    SWP_NOACTIVATE = 0x0010,
    SWP_FRAMECHANGED = 0x0020,
    SWP_SHOWWINDOW = 0x0040,
    SWP_HIDEWINDOW = 0x0080,
};
#define HWND_DESKTOP ((HWND)0)
#define HWND_TOP ((HWND)0)
#define HWND_BOTTOM ((HWND)1)
#define HWND_TOPMOST ((HWND)-1)
#define HWND_NOTOPMOST ((HWND)-2)
#define HWND_MESSAGE ((HWND)-3)

enum : int {
    GWLP_WNDPROC = -4,
    GWLP_HINSTANCE = -6,
    GWLP_HWNDPARENT = -8,
    GWLP_ID = -12,
    GWL_STYLE = -16,
    GWL_EXSTYLE = -20,
    GWLP_USERDATA = -21,
};

// wParam of WM_SIZE, WM_ACTIVATE, WM_SYSCOMMAND.
enum : int { SIZE_RESTORED = 0, SIZE_MINIMIZED = 1, SIZE_MAXIMIZED = 2 };
enum : int { WA_INACTIVE = 0, WA_ACTIVE = 1, WA_CLICKACTIVE = 2 };
enum : int { SC_CLOSE = 0xF060 };

enum : int { SM_CMONITORS = 80 };

extern "C" {
PLATFORM_API HWND CreateWindowExW(DWORD ex_style, LPCWSTR class_name, LPCWSTR title, DWORD style, int x,
                                  int y, int width, int height, HWND owner, HMENU menu, HINSTANCE instance,
                                  LPVOID parameter);
PLATFORM_API BOOL DestroyWindow(HWND wnd);
PLATFORM_API LRESULT DefWindowProcW(HWND wnd, UINT message, WPARAM wparam, LPARAM lparam);
PLATFORM_API LRESULT CallWindowProcW(WNDPROC procedure, HWND wnd, UINT message, WPARAM wparam, LPARAM lparam);

PLATFORM_API BOOL ShowWindow(HWND wnd, int command); // not 0: it was visible before
PLATFORM_API BOOL IsWindow(HWND wnd);
PLATFORM_API BOOL IsWindowVisible(HWND wnd);
PLATFORM_API BOOL IsIconic(HWND wnd);
PLATFORM_API BOOL IsZoomed(HWND wnd);

PLATFORM_API BOOL MoveWindow(HWND wnd, int x, int y, int width, int height, BOOL repaint);
PLATFORM_API BOOL SetWindowPos(HWND wnd, HWND after, int x, int y, int width, int height, UINT flags);
PLATFORM_API BOOL GetClientRect(HWND wnd, RECT* rect);
PLATFORM_API BOOL GetWindowRect(HWND wnd, RECT* rect);
PLATFORM_API BOOL AdjustWindowRect(RECT* rect, DWORD style, BOOL menu);
PLATFORM_API BOOL AdjustWindowRectEx(RECT* rect, DWORD style, BOOL menu, DWORD ex_style);
PLATFORM_API BOOL ScreenToClient(HWND wnd, POINT* point);
PLATFORM_API BOOL ClientToScreen(HWND wnd, POINT* point);

PLATFORM_API BOOL SetWindowTextW(HWND wnd, LPCWSTR text);
PLATFORM_API int GetWindowTextW(HWND wnd, LPWSTR text, int size);
PLATFORM_API int GetWindowTextLengthW(HWND wnd);
PLATFORM_API LONG_PTR GetWindowLongPtrW(HWND wnd, int index);
PLATFORM_API LONG_PTR GetWindowLongPtrA(HWND wnd, int index);
PLATFORM_API LONG_PTR SetWindowLongPtrW(HWND wnd, int index, LONG_PTR value);
PLATFORM_API HWND GetParent(HWND wnd); // the owner

// SM_CMONITORS: how many screens there are, 0 without a desktop, which this opens. Any other index answers 0.
PLATFORM_API int GetSystemMetrics(int index);

PLATFORM_API HWND SetFocus(HWND wnd);
PLATFORM_API HWND GetFocus();
PLATFORM_API HWND SetActiveWindow(HWND wnd);
PLATFORM_API HWND GetActiveWindow();
PLATFORM_API BOOL SetForegroundWindow(HWND wnd);
PLATFORM_API BOOL EnableWindow(HWND wnd, BOOL enable); // not 0: it was disabled before
PLATFORM_API BOOL IsWindowEnabled(HWND wnd);
}
#define CreateWindowEx CreateWindowExW
#define CreateWindowW(class_name, title, style, x, y, width, height, owner, menu, instance, parameter)       \
    CreateWindowExW(0, class_name, title, style, x, y, width, height, owner, menu, instance, parameter)
#define CreateWindow CreateWindowW
#define DefWindowProc DefWindowProcW
#define CallWindowProc CallWindowProcW
#define SetWindowText SetWindowTextW
#define GetWindowText GetWindowTextW
#define GetWindowTextLength GetWindowTextLengthW
#define GetWindowLongPtr GetWindowLongPtrW
#define SetWindowLongPtr SetWindowLongPtrW

// --- Paint requests ---
struct PAINTSTRUCT {
    HDC hdc;
    BOOL fErase; // not 0: the background is still to be painted
    RECT rcPaint;
    BOOL fRestore;
    BOOL fIncUpdate;
    BYTE rgbReserved[32];
};

extern "C" {
PLATFORM_API BOOL UpdateWindow(HWND wnd);                                 // sends WM_PAINT now, if one is due
PLATFORM_API BOOL InvalidateRect(HWND wnd, const RECT* rect, BOOL erase); // null: all of it
PLATFORM_API BOOL ValidateRect(HWND wnd, const RECT* rect);               // null: all of it
PLATFORM_API BOOL GetUpdateRect(HWND wnd, RECT* rect, BOOL erase);        // FALSE: nothing is due
PLATFORM_API HDC BeginPaint(HWND wnd, PAINTSTRUCT* paint);
PLATFORM_API BOOL EndPaint(HWND wnd, const PAINTSTRUCT* paint);
}

#endif
