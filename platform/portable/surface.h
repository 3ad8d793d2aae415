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
// Counts the back buffers that are gone, by a resize or with their window: a canvas taken before that may be
// one.
inline unsigned buffers_gone = 0;

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

// What a canvas' context draws on. Its owner writes it as often as it likes, at no cost: it is looked at when
// something is drawn.
struct CanvasContext {
    HWND wnd = nullptr;      // null: nothing to draw on
    raster::Canvas canvas{}; // the window's back buffer, found anew at each use
    raster::Rect clip{};     // canvas coordinates
    POINT position{};        // the current position, in the context's own coordinates
};
// A device context on a window's back buffer, Y upward with its origin in the lower left corner. It lasts.
HDC canvas_dc_create();
CanvasContext* canvas_dc_state(HDC dc);                // null for a handle that is no context
void canvas_dc_clip(HDC dc, const raster::Rect* clip); // null: none

} // namespace platform

#endif
