#include "device_context.h"

#include <cmath>
#include <limits>
#include <utility>

#include "objects.h"
#include "surface.h"
#include "text/guarded.h"
#include "window_state.h"

namespace platform {

HandleTable<DeviceContext>& contexts() {
    static auto& table = *new HandleTable<DeviceContext>(HandleKind::context);
    return table;
}

// Larger than any canvas.
static constexpr raster::Rect kNoClip = {-0x1000000, -0x1000000, 0x1000000, 0x1000000};

DeviceContext* find_context(HDC handle) {
    DeviceContext* dc = contexts().find(handle);
    if (dc) { // a window's buffer changes with its size, and ends with it
        const raster::Canvas* canvas = window_canvas(dc->wnd);
        dc->canvas = canvas ? *canvas : raster::Canvas{};
    }
    return dc;
}

// Null without memory.
template <class Set_Up>
static HDC add_context(Set_Up set_up) {
    return text::guarded<HDC>(nullptr, [&] {
        auto dc = std::make_unique<DeviceContext>();
        dc->pen = GetStockObject(BLACK_PEN);
        dc->brush = GetStockObject(WHITE_BRUSH);
        dc->font = GetStockObject(SYSTEM_FONT);
        set_up(*dc);
        return reinterpret_cast<HDC>(contexts().add(std::move(dc)));
    });
}

HDC create_context(HWND wnd) {
    return add_context([wnd](DeviceContext& dc) {
        dc.wnd = wnd;
        dc.clip = kNoClip;
    });
}

HDC canvas_dc_create() {
    return add_context([](DeviceContext& dc) { dc.flipped = true; });
}

CanvasContext* canvas_dc_state(HDC handle) { return contexts().find(handle); }

void canvas_dc_clip(HDC handle, const raster::Rect* clip) {
    if (DeviceContext* dc = find_context(handle)) dc->clip = clip ? *clip : kNoClip;
}

static LONG rounded(double value) {
    constexpr double most = std::numeric_limits<LONG>::max();
    constexpr double least = std::numeric_limits<LONG>::min();
    if (!(value > least)) return std::numeric_limits<LONG>::min(); // not a number too
    return value < most ? static_cast<LONG>(std::floor(value + 0.5)) : std::numeric_limits<LONG>::max();
}

// Y of the canvas to Y of the device and back.
static double flip(const DeviceContext& dc, double y) { return dc.flipped ? dc.canvas.height - 1 - y : y; }

POINT to_device(const DeviceContext& dc, POINT p) {
    const XFORM& w = dc.world;
    const double x = static_cast<double>(p.x) * w.eM11 + static_cast<double>(p.y) * w.eM21 + w.eDx;
    const double y = static_cast<double>(p.x) * w.eM12 + static_cast<double>(p.y) * w.eM22 + w.eDy;
    return {rounded(x - dc.window.x + dc.viewport.x), rounded(flip(dc, y - dc.window.y + dc.viewport.y))};
}

bool to_logical(const DeviceContext& dc, POINT p, POINT* logical) {
    const XFORM& w = dc.world;
    const double determinant = static_cast<double>(w.eM11) * w.eM22 - static_cast<double>(w.eM12) * w.eM21;
    if (determinant == 0) return false;
    const double x = static_cast<double>(p.x) - dc.viewport.x + dc.window.x - w.eDx;
    const double y = flip(dc, p.y) - dc.viewport.y + dc.window.y - w.eDy;
    *logical = {rounded((x * w.eM22 - y * w.eM21) / determinant),
                rounded((y * w.eM11 - x * w.eM12) / determinant)};
    return true;
}

// First a, then b.
static XFORM product(const XFORM& a, const XFORM& b) {
    return {a.eM11 * b.eM11 + a.eM12 * b.eM21,       a.eM11 * b.eM12 + a.eM12 * b.eM22,
            a.eM21 * b.eM11 + a.eM22 * b.eM21,       a.eM21 * b.eM12 + a.eM22 * b.eM22,
            a.eDx * b.eM11 + a.eDy * b.eM21 + b.eDx, a.eDx * b.eM12 + a.eDy * b.eM22 + b.eDy};
}

static BOOL set_origin(POINT& origin, int x, int y, POINT* old) {
    if (old) *old = origin;
    origin = {x, y};
    return TRUE;
}

// The place in a context where an object of this kind is selected; null: not an object.
static HGDIOBJ* place_of(DeviceContext& dc, HGDIOBJ object) {
    switch (object_kind(object)) {
    case ObjectKind::font: return &dc.font;
    case ObjectKind::pen: return &dc.pen;
    case ObjectKind::brush: return &dc.brush;
    case ObjectKind::none: break;
    }
    return nullptr;
}

} // namespace platform

using namespace platform;

extern "C" {

HDC GetDC(HWND wnd) { return wnd && !find_window(wnd) ? nullptr : create_context(wnd); }

int ReleaseDC(HWND wnd, HDC handle) {
    const DeviceContext* dc = find_context(handle);
    return dc && !dc->flipped && dc->wnd == wnd && contexts().remove(handle); // a canvas' own lasts
}

HGDIOBJ SelectObject(HDC handle, HGDIOBJ object) {
    DeviceContext* dc = find_context(handle);
    HGDIOBJ* place = dc ? place_of(*dc, object) : nullptr;
    return place ? std::exchange(*place, object) : nullptr;
}

int GetDeviceCaps(HDC dc, int index) {
    constexpr int kDotsPerInch = 96; // sizes are sizes at 96 dots per inch, whatever the screen has
    if (!find_context(dc)) return 0;
    return index == LOGPIXELSX || index == LOGPIXELSY ? kDotsPerInch : 0;
}

int SetGraphicsMode(HDC handle, int mode) {
    DeviceContext* dc = find_context(handle);
    if (!dc || (mode != GM_COMPATIBLE && mode != GM_ADVANCED)) return 0;
    return std::exchange(dc->mode, mode);
}

BOOL SetWorldTransform(HDC handle, const XFORM* form) {
    DeviceContext* dc = find_context(handle);
    if (!dc || !form || dc->mode != GM_ADVANCED) return FALSE;
    dc->world = *form;
    return TRUE;
}

BOOL ModifyWorldTransform(HDC handle, const XFORM* form, DWORD mode) {
    DeviceContext* dc = find_context(handle);
    if (!dc || dc->mode != GM_ADVANCED || (!form && mode != MWT_IDENTITY)) return FALSE;
    switch (mode) {
    case MWT_IDENTITY: dc->world = {1, 0, 0, 1, 0, 0}; return TRUE;
    case MWT_LEFTMULTIPLY: dc->world = product(*form, dc->world); return TRUE;
    case MWT_RIGHTMULTIPLY: dc->world = product(dc->world, *form); return TRUE;
    }
    return FALSE;
}

BOOL SetViewportOrgEx(HDC handle, int x, int y, POINT* old) {
    DeviceContext* dc = find_context(handle);
    return dc && set_origin(dc->viewport, x, y, old);
}

BOOL SetWindowOrgEx(HDC handle, int x, int y, POINT* old) {
    DeviceContext* dc = find_context(handle);
    return dc && set_origin(dc->window, x, y, old);
}

BOOL DPtoLP(HDC handle, POINT* points, int count) {
    const DeviceContext* dc = find_context(handle);
    if (!dc || (!points && count > 0)) return FALSE;
    for (int i = 0; i < count; i++) {
        if (!to_logical(*dc, points[i], &points[i])) return FALSE;
    }
    return TRUE;
}

BOOL LPtoDP(HDC handle, POINT* points, int count) {
    const DeviceContext* dc = find_context(handle);
    if (!dc || (!points && count > 0)) return FALSE;
    for (int i = 0; i < count; i++)
        points[i] = to_device(*dc, points[i]);
    return TRUE;
}
}
