#ifndef PLATFORM_PORTABLE_SURFACE_H
#define PLATFORM_PORTABLE_SURFACE_H

#include "raster/canvas.h"
#include "types.h"

#include "gdi.h"

// What the drawing layer asks of a window beyond the names of platform.h. Not for hosts.
namespace platform {

// The window's back buffer, of the size of its client area (at least 1 by 1), Y downward. Null when there is
// no such window. Valid until the next resize or the window's end; asking again is cheap.
raster::Canvas* window_canvas(HWND wnd);

// Tells that a rectangle of the back buffer changed. It is shown when the queue runs empty, at the latest
// 16 ms after the paint.
void window_changed(HWND wnd, const raster::Rect& rect);

// The pointer in client coordinates, Y downward; 0, 0 without a window or a desktop.
POINT window_pointer(HWND wnd);

// A number that changes with every window made, so that a cache can tell a reused handle from the old one;
// 0 when there is no such window.
std::uint64_t window_serial(HWND wnd);

// What a font was made from, null for a handle that is no font; and its number, never given twice.
const LOGFONTW* font_description(HFONT font);
std::uint64_t font_serial(HFONT font);

// A device context on a canvas, Y upward with its origin in the lower left corner. It may outlive the canvas
// pointer: attach it anew at each bracket.
HDC canvas_dc_create();
void canvas_dc_attach(HDC dc, HWND wnd, raster::Canvas* canvas);
void canvas_dc_clip(HDC dc, const raster::Rect* clip); // device pixels; null: none
void canvas_dc_move(HDC dc, int x, int y);             // the current position, in its own coordinates

} // namespace platform

#endif
