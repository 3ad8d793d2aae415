#ifndef PLATFORM_PORTABLE_DEVICE_CONTEXT_H
#define PLATFORM_PORTABLE_DEVICE_CONTEXT_H

#include "gdi.h"
#include "handles.h"
#include "surface.h"

namespace platform {

// Logical point -> world transform -> window and viewport origin -> canvas; `flipped` ones count Y upward
// from the lower left corner of the canvas.
struct DeviceContext : CanvasContext {
    bool flipped = false;
    int mode = GM_COMPATIBLE;
    XFORM world = {1, 0, 0, 1, 0, 0};
    POINT viewport{};
    POINT window{};
    HGDIOBJ pen = nullptr;
    HGDIOBJ brush = nullptr;
    HGDIOBJ font = nullptr;
};

HandleTable<DeviceContext>& contexts();
DeviceContext* find_context(HDC dc); // with the canvas as it is now
// On the window's back buffer, Y downward; null window: on nothing.
HDC create_context(HWND wnd);

POINT to_device(const DeviceContext& dc, POINT logical);
bool to_logical(const DeviceContext& dc, POINT device, POINT* logical); // false: the transform has no inverse

} // namespace platform

#endif
