#ifndef BRASK_POINTER_H
#define BRASK_POINTER_H

#include <brask/export.h>
#include <brask/platform.h>

// Mouse buttons, modifier keys and the shape of the pointer. All state is the process's; call from the
// thread of the host's window. Window arguments are accepted for convenience and not used.

// --- The recorded button mask: bit 1 left, 2 right, 4 middle ---
BRASK_API void BUTTON_PRESS(int button);   // button 1 left, 2 middle, 3 right; others do nothing
BRASK_API void BUTTON_RELEASE(int button); // the same numbering
BRASK_API void STATE_MASK(int mask);       // sets the mask whole

// --- What is held now ---
// 1 if the mouse button is down; vk 1 left, 2 right, 4 middle (the mask's numbering); others 0.
BRASK_API int getbutton(int vk);
// Not 0 if the modifier is down: 16, 160, 161, 64 Shift; 17, 162, 163, 32 Ctrl; 18, 164, 165 Alt;
// others 0.
BRASK_API int getkey(int key);

// --- Shape ---
// While the busy state is on, a shape asked for is dropped and the busy one shown again.
BRASK_API void Set_Curs(HWND wnd, void* cursor); // a cursor handle of the platform
BRASK_API void Set_Curs_Arrow(HWND wnd);
BRASK_API void Set_Curs_Cross(HWND wnd);
BRASK_API void Set_Curs_Drag(HWND wnd); // looks like the arrow, counts as its own shape
// Back to the cursor from before the last shape; with no shape up, ends the busy state whatever its depth.
BRASK_API void Reset_Curs(HWND wnd);
// Enters one level of the busy state; the count of levels wraps past 255.
BRASK_API void Set_Curs_Wait(HWND wnd);
// Leaves one level; the last one gives the cursor back.
BRASK_API void Reset_Curs_Wait(HWND wnd);
// Counts a level without touching the cursor, for a host that put up the busy shape itself.
BRASK_API void Set_Wait_Flag();

#endif
