#ifndef PLATFORM_PORTABLE_DESKTOP_H
#define PLATFORM_PORTABLE_DESKTOP_H

#include <string>

#include "raster/canvas.h"
#include "window_state.h"

// What the windows ask of a real desktop. It is opened by the first desktop_show, _screens or _work_area;
// until then, and when there is none, every other function does nothing.
namespace platform {

// How many screens there are; it opens the desktop, too.
int desktop_screens();

// Puts the window on the screen in its layout; false: there is no desktop, it stays in memory.
bool desktop_show(HWND wnd, Window& window);
void desktop_hide(Window& window);
void desktop_end(Window& window);

// The part of the screen that windows may take, on the monitor where this one is (null: the first one). Opens
// the desktop; false: there is none.
bool desktop_work_area(const Window* window, RECT* area);

void desktop_set_title(Window& window);
void desktop_set_size(Window& window);
void desktop_set_position(Window& window);
void desktop_set_topmost(Window& window, bool topmost);
void desktop_raise(Window& window);
void desktop_set_capture(bool capture);
// Whether a mouse button is held, as far as windows of ours have heard; and whether it really is at this
// moment.
bool desktop_button_held();
bool desktop_button_is_down();
// An index into the standard cursors (see cursor.h); -1: hidden.
void desktop_set_cursor(int index);

// The clipboard's text as UTF-8; false: there is no desktop.
bool desktop_get_text(std::string& text);
bool desktop_set_text(const char* text);

// Copies what changed to the screen.
void desktop_present(Window& window);
// Reports everything that waits on the desktop's side.
void desktop_pump();
// Waits for the desktop, or a wake, at most so many milliseconds (-1: for ever); false: there is no desktop.
bool desktop_wait(int milliseconds);
// From any thread.
void desktop_wake();

} // namespace platform

#endif
