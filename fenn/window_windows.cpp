#include <algorithm>
#include <cstring>
#include <new>

#include "fenn/window.h"

// A window's back buffer is a DIB section, and its context a memory context on that.
namespace fenn {

struct Backing {
    HBITMAP bitmap; // null: the window has no client area
    HGDIOBJ former; // what the context held before it
    HRGN clip;
};

namespace {

int width_of(const RECT& rect) { return rect.right - rect.left; }
int height_of(const RECT& rect) { return rect.bottom - rect.top; }

HBITMAP create_pixels(int width, int height, void** pixels) {
    BITMAPINFO info{};
    info.bmiHeader.biSize = sizeof info.bmiHeader;
    info.bmiHeader.biWidth = width;
    info.bmiHeader.biHeight = -height; // top row first
    info.bmiHeader.biPlanes = 1;
    info.bmiHeader.biBitCount = 32;
    info.bmiHeader.biCompression = BI_RGB;
    return CreateDIBSection(nullptr, &info, DIB_RGB_COLORS, pixels, nullptr, 0);
}

void keep_content(const raster::Canvas& to, const raster::Canvas& from) {
    const int width = std::min(to.width, from.width);
    const int height = std::min(to.height, from.height);
    for (int y = 0; y < height; ++y)
        std::memcpy(to.pixels + std::ptrdiff_t{y} * to.pitch, from.pixels + std::ptrdiff_t{y} * from.pitch,
                    sizeof(std::uint32_t) * static_cast<std::size_t>(width));
}

void drop_pixels(Window& window) {
    Backing& backing = *window.backing;
    if (backing.bitmap) {
        SelectObject(window.dc, backing.former);
        DeleteObject(backing.bitmap);
    }
    backing.bitmap = nullptr;
    window.canvas = {};
}

void map_upward(Window& window) {
    SetMapMode(window.dc, MM_ANISOTROPIC);
    SetWindowExtEx(window.dc, 1, 1, nullptr);
    SetViewportExtEx(window.dc, 1, -1, nullptr);
    SetViewportOrgEx(window.dc, 0, window.canvas.height - 1, nullptr);
}

void map_downward(Window& window) {
    SetMapMode(window.dc, MM_TEXT);
    SetViewportOrgEx(window.dc, 0, 0, nullptr);
}

void resize(Window& window, int width, int height) {
    void* pixels = nullptr;
    const HBITMAP bitmap = width > 0 && height > 0 ? create_pixels(width, height, &pixels) : nullptr;
    if (!bitmap) return drop_pixels(window);
    const raster::Canvas canvas{static_cast<std::uint32_t*>(pixels), width, height, width};
    keep_content(canvas, window.canvas);
    drop_pixels(window);
    window.backing->bitmap = bitmap;
    window.backing->former = SelectObject(window.dc, bitmap);
    window.canvas = canvas;
    map_upward(window);
}

} // namespace

bool begin_window(Window& window) {
    if (!IsWindow(window.wnd)) return false;
    window.backing = new (std::nothrow) Backing{};
    if (!window.backing) return false;
    window.dc = CreateCompatibleDC(nullptr);
    window.backing->clip = CreateRectRgn(0, 0, 0, 0);
    // GDI and the raster write the same pixels by turns: GDI must not put its part off.
    GdiSetBatchLimit(1);
    SetBoundsRect(window.dc, nullptr, DCB_ENABLE | DCB_RESET);
    if (window.dc && refresh_window(window)) return true;
    end_window(window);
    return false;
}

bool refresh_window(Window& window) {
    RECT client;
    if (!GetClientRect(window.wnd, &client)) return false;
    const int width = width_of(client);
    const int height = height_of(client);
    if (width != window.canvas.width || height != window.canvas.height) resize(window, width, height);
    return true;
}

// The memory context keeps the canvas until the next refresh, whatever becomes of the window.
bool canvas_stands(const Window&) { return true; }

void end_window(Window& window) {
    drop_pixels(window);
    DeleteDC(window.dc);
    DeleteObject(window.backing->clip);
    delete window.backing;
}

void attach_context(Window&) {}

raster::Rect detach_context(Window& window, bool used) {
    RECT drawn;
    if (!used || !(GetBoundsRect(window.dc, &drawn, DCB_RESET) & DCB_SET)) return {};
    LPtoDP(window.dc, reinterpret_cast<POINT*>(&drawn), 2);
    // Turned upside down, the rows come in the other order; one pixel to spare on each side.
    return {static_cast<int>(std::min(drawn.left, drawn.right)) - 1,
            static_cast<int>(std::min(drawn.top, drawn.bottom)) - 1,
            static_cast<int>(std::max(drawn.left, drawn.right)) + 2,
            static_cast<int>(std::max(drawn.top, drawn.bottom)) + 2};
}

void clip_context(Window& window, const raster::Rect* clip) {
    if (!clip) {
        SelectClipRgn(window.dc, nullptr);
        return;
    }
    SetRectRgn(window.backing->clip, clip->left, clip->top, clip->right, clip->bottom);
    SelectClipRgn(window.dc, window.backing->clip);
}

void move_context(Window& window, int x, int y) { MoveToEx(window.dc, x, y, nullptr); }

void show_window(Window& window, const raster::Rect& changed) {
    if (!IsWindowVisible(window.wnd)) return;
    const HDC screen = GetDC(window.wnd);
    if (!screen) return;
    map_downward(window);
    BitBlt(screen, changed.left, changed.top, changed.right - changed.left, changed.bottom - changed.top,
           window.dc, changed.left, changed.top, SRCCOPY);
    map_upward(window);
    ReleaseDC(window.wnd, screen);
}

POINT ask_pointer(HWND wnd) {
    POINT point{};
    if (GetCursorPos(&point)) ScreenToClient(wnd, &point);
    return point;
}

} // namespace fenn
