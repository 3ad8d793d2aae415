#ifndef FENN_WINDOW_H
#define FENN_WINDOW_H

#include "raster/canvas.h"
#include <brask/platform.h>

// What the drawing layer keeps of a window, and what each system does for it.
namespace fenn {

struct Backing; // the system's own part

struct Window {
    HWND wnd;
    bool placed;           // set_curs gave the pointer below
    POINT pointer;         // client coordinates, Y downward
    raster::Canvas canvas; // as of the last refresh; no pixels: nothing to paint on
    HDC dc;                // a context on the canvas, Y upward
    unsigned buffers_gone; // of the platform, at the last refresh
    Backing* backing;
    Window* next;
};

// The record of a window, made at the first call; null when there is no such window. Its canvas is up to
// date.
Window* find_window(HWND wnd);

// Kept by the painter: the record is about to go; an open bracket on it paints nothing from here on.
void leave_window(const Window& window);

// --- Kept by each system ---

// A first record; false when there is no such window.
bool begin_window(Window& window);
// Brings the canvas up to date with the window's size; false when that window is gone. Must cost next to
// nothing when nothing changed.
bool refresh_window(Window& window);
void end_window(Window& window);
// False when the canvas may be gone since the last refresh. Asked before each shape, so as cheap as can be.
bool canvas_stands(const Window& window);

// The bracket opens and closes; `used`: its context may have been drawn on. Gives what was drawn on the
// context and not told by itself.
void attach_context(Window& window);
raster::Rect detach_context(Window& window, bool used);
void clip_context(Window& window, const raster::Rect* clip); // null: none
void move_context(Window& window, int x, int y);             // contract coordinates

void show_window(Window& window, const raster::Rect& changed);
POINT ask_pointer(HWND wnd); // client coordinates, Y downward

} // namespace fenn

#endif
