#ifndef BRASK_KEYBOARD_H
#define BRASK_KEYBOARD_H

#include <brask/export.h>
#include <brask/platform.h>

// A key code is one integer: a character or a virtual key in the low byte, and above it:
inline constexpr int KEY_SHIFT = 0x100;    // Shift was down (never on a character: it says so itself)
inline constexpr int KEY_CTRL = 0x200;     // Ctrl was down
inline constexpr int KEY_ALT = 0x400;      // Alt was down
inline constexpr int KEY_EXTENDED = 0x800; // low byte: virtual key of the navigation or function group
inline constexpr int KEY_PAD = 0x1000;     // numeric pad: Num Lock off, or an operator, or pad Enter
inline constexpr int KEY_NUM = 0x2000;     // low byte: VK_NUMPAD0 to 9, Num Lock on

// A private message by which a host pushes a key into Parse_Keyboard: wParam holds the key in its low seven
// bits, lParam is that of WM_KEYDOWN.
inline constexpr unsigned int WM_USER_CHAR = 1125;

// Turns one keyboard message into a key code; 0 means that there is nothing to do with it. Give it every
// message of the window: a key that arrives as WM_KEYDOWN and as WM_CHAR is reported once. Esc posts
// WM_CLOSE to wnd.
BRASK_API int Parse_Keyboard(HWND wnd, unsigned int message, unsigned long long wParam, long long lParam);

// The same where only WM_KEYDOWN arrives, as in a dialog: shifted characters are worked out for a US
// layout. Any other message gives 0.
BRASK_API int Parse_Dialog(HWND wnd, unsigned int message, unsigned long long wParam, long long lParam);

#endif
