#include <algorithm>
#include <cmath>

#include "device_context.h"
#include "objects.h"
#include "raster/shapes.h"
#include "surface.h"
#include "text/guarded.h"

namespace platform {

// Far outside of any canvas, and safe to calculate with.
static int near_enough(LONG value) { return std::clamp<LONG>(value, -0x1000000, 0x1000000); }

static raster::Point device_point(const DeviceContext& dc, POINT logical) {
    const POINT p = to_device(dc, logical);
    return {near_enough(p.x), near_enough(p.y)};
}

// The colour that the selected pen draws; false: it draws nothing. A pen that was deleted meanwhile is black.
static bool pen_color(const DeviceContext& dc, std::uint32_t* color) {
    const LOGPEN* pen = pen_description(dc.pen);
    if (pen && pen->lopnStyle == PS_NULL) return false;
    *color = pen ? canvas_color(pen->lopnColor) : 0;
    return dc.canvas.width > 0;
}

static void changed(const DeviceContext& dc, const raster::Rect& rect) {
    const raster::Rect cut = {std::max(rect.left, dc.clip.left), std::max(rect.top, dc.clip.top),
                              std::min(rect.right, dc.clip.right), std::min(rect.bottom, dc.clip.bottom)};
    window_changed(dc.wnd, cut);
}

static void draw_line(const DeviceContext& dc, POINT from, POINT to) {
    std::uint32_t color = 0;
    if (!pen_color(dc, &color)) return;
    const raster::Point a = device_point(dc, from);
    const raster::Point b = device_point(dc, to);
    raster::line(dc.canvas, dc.clip, a, b, color);
    changed(dc, {std::min(a.x, b.x), std::min(a.y, b.y), std::max(a.x, b.x) + 1, std::max(a.y, b.y) + 1});
}

static POINT point_on_circle(int x, int y, DWORD radius, double degrees) {
    const double angle = degrees * 3.14159265358979323846 / 180.0;
    return {static_cast<LONG>(std::floor(x + std::cos(angle) * radius + 0.5)),
            static_cast<LONG>(std::floor(y - std::sin(angle) * radius + 0.5))};
}

// Where Y runs upward GDI mirrors an arc's ends but not its direction: it paints the other part of the
// circle. A whole turn stays one.
static FLOAT flipped_sweep(FLOAT sweep) {
    if (std::fabs(sweep) >= 360.0f) return sweep;
    return sweep < 0 ? -360.0f - sweep : 360.0f - sweep;
}

} // namespace platform

using namespace platform;

extern "C" {

BOOL MoveToEx(HDC handle, int x, int y, POINT* old) {
    DeviceContext* dc = find_context(handle);
    if (!dc) return FALSE;
    if (old) *old = dc->position;
    dc->position = {x, y};
    return TRUE;
}

BOOL LineTo(HDC handle, int x, int y) {
    DeviceContext* dc = find_context(handle);
    if (!dc) return FALSE;
    draw_line(*dc, dc->position, {x, y});
    dc->position = {x, y};
    return TRUE;
}

BOOL AngleArc(HDC handle, int x, int y, DWORD radius, FLOAT start, FLOAT sweep) {
    constexpr DWORD kMostRadius = 0x8000;
    DeviceContext* dc = find_context(handle);
    if (!dc || radius > kMostRadius || !std::isfinite(start) || !std::isfinite(sweep)) return FALSE;
    if (near_enough(x) != x || near_enough(y) != y) return FALSE;
    std::uint32_t color = 0;
    if (pen_color(*dc, &color)) {
        const raster::Point from = device_point(*dc, dc->position);
        const raster::Point center = device_point(*dc, {x, y});
        const LOGPEN* pen = pen_description(dc->pen);
        const int width = pen ? std::max<int>(pen->lopnWidth.x, 1) : 1;
        const float begin = dc->flipped ? -start : start, turn = dc->flipped ? flipped_sweep(sweep) : sweep;
        const bool drawn = text::guarded(false, [&] {
            raster::angle_arc(dc->canvas, dc->clip, from, center, radius, begin, turn, width, color);
            return true;
        });
        if (!drawn) return FALSE;
        const int reach = static_cast<int>(radius) + 1 + width / 2;
        changed(*dc, {std::min(from.x, center.x - reach), std::min(from.y, center.y - reach),
                      std::max(from.x, center.x + reach) + 1, std::max(from.y, center.y + reach) + 1});
    }
    dc->position = point_on_circle(x, y, radius, start + sweep);
    return TRUE;
}

int FillRect(HDC handle, const RECT* rect, HBRUSH brush) {
    const DeviceContext* dc = find_context(handle);
    if (!dc || !rect) return 0;
    COLORREF color = 0;
    if (!brush_color(brush, &color) || dc->canvas.width == 0) return 1;
    // A corner is the edge between pixels: where Y runs upward the row below it is meant.
    const raster::Point a = device_point(*dc, {rect->left, rect->top});
    const raster::Point b = device_point(*dc, {rect->right, rect->bottom});
    const int edge = dc->flipped ? 1 : 0;
    const raster::Rect area = {std::min(a.x, b.x), std::min(a.y, b.y) + edge, std::max(a.x, b.x),
                               std::max(a.y, b.y) + edge};
    raster::fill_rectangle(dc->canvas, dc->clip, area, canvas_color(color));
    changed(*dc, area);
    return 1;
}
}
