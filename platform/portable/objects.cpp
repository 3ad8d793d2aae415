#include "objects.h"

#include <algorithm>
#include <cstring>
#include <mutex>

#include "handles.h"
#include "surface.h"
#include "text/guarded.h"

namespace platform {

struct Font {
    LOGFONTW description;
    bool stock;
};
struct Pen {
    LOGPEN description;
    bool stock;
};
struct Brush {
    LOGBRUSH description;
    bool stock;
};

// The tables live as long as the process: objects are used before main and after it.
static HandleTable<Font>& fonts() {
    static auto& table = *new HandleTable<Font>(HandleKind::font);
    return table;
}
static HandleTable<Pen>& pens() {
    static auto& table = *new HandleTable<Pen>(HandleKind::pen);
    return table;
}
static HandleTable<Brush>& brushes() {
    static auto& table = *new HandleTable<Brush>(HandleKind::brush);
    return table;
}

template <class O, class D>
static void* add(HandleTable<O>& table, const D& description, bool stock) {
    return text::guarded<void*>(nullptr, [&] {
        return reinterpret_cast<void*>(table.add(std::make_unique<O>(O{description, stock})));
    });
}

// False: no object of this table. A stock object stays.
template <class O>
static bool remove(HandleTable<O>& table, const void* handle) {
    const O* object = table.find(handle);
    return object && (object->stock || table.remove(handle));
}

template <class O>
static int describe(const HandleTable<O>& table, const void* handle, int size, void* out) {
    const O* object = table.find(handle);
    if (!object) return 0;
    const int whole = sizeof object->description;
    if (!out) return whole;
    const int bytes = std::clamp(size, 0, whole);
    std::memcpy(out, &object->description, static_cast<std::size_t>(bytes));
    return bytes;
}

ObjectKind object_kind(const void* handle) {
    if (fonts().find(handle)) return ObjectKind::font;
    if (pens().find(handle)) return ObjectKind::pen;
    if (brushes().find(handle)) return ObjectKind::brush;
    return ObjectKind::none;
}

const LOGPEN* pen_description(const void* handle) {
    const Pen* pen = pens().find(handle);
    return pen ? &pen->description : nullptr;
}

const LOGBRUSH* brush_description(const void* handle) {
    const Brush* brush = brushes().find(handle);
    return brush ? &brush->description : nullptr;
}

const LOGFONTW* font_description(HFONT handle) {
    const Font* font = fonts().find(handle);
    return font ? &font->description : nullptr;
}

// Handles are never given twice, so they serve as the number.
std::uint64_t font_serial(HFONT handle) {
    return fonts().find(handle) ? reinterpret_cast<std::uintptr_t>(handle) : 0;
}

bool brush_color(HBRUSH brush, COLORREF* color) {
    const auto number = reinterpret_cast<std::uintptr_t>(brush);
    if (number >= 1 && number <= 31) { // a colour of the system
        *color = GetSysColor(static_cast<int>(number) - 1);
        return true;
    }
    const LOGBRUSH* description = brush_description(brush);
    if (!description || description->lbStyle == BS_NULL) return false;
    *color = description->lbColor;
    return true;
}

struct StockObject {
    int index;
    ObjectKind kind;
    UINT style;
    COLORREF color;
};
static const StockObject kStock[] = {
    {WHITE_BRUSH, ObjectKind::brush, BS_SOLID, RGB(255, 255, 255)},
    {LTGRAY_BRUSH, ObjectKind::brush, BS_SOLID, RGB(192, 192, 192)},
    {GRAY_BRUSH, ObjectKind::brush, BS_SOLID, RGB(128, 128, 128)},
    {DKGRAY_BRUSH, ObjectKind::brush, BS_SOLID, RGB(64, 64, 64)},
    {BLACK_BRUSH, ObjectKind::brush, BS_SOLID, RGB(0, 0, 0)},
    {NULL_BRUSH, ObjectKind::brush, BS_NULL, 0},
    {WHITE_PEN, ObjectKind::pen, PS_SOLID, RGB(255, 255, 255)},
    {BLACK_PEN, ObjectKind::pen, PS_SOLID, RGB(0, 0, 0)},
    {NULL_PEN, ObjectKind::pen, PS_NULL, 0},
    {SYSTEM_FONT, ObjectKind::font, 0, 0},
    {DEFAULT_GUI_FONT, ObjectKind::font, 0, 0},
};
constexpr std::size_t kStockCount = sizeof kStock / sizeof *kStock;

static void* make_stock(const StockObject& stock) {
    switch (stock.kind) {
    case ObjectKind::brush: return add(brushes(), LOGBRUSH{stock.style, stock.color, 0}, true);
    case ObjectKind::pen: return add(pens(), LOGPEN{stock.style, {0, 0}, stock.color}, true);
    case ObjectKind::font: {
        LOGFONTW font{};
        font.lfHeight = -12;
        std::wmemcpy(font.lfFaceName, L"Arial", 6);
        return add(fonts(), font, true);
    }
    case ObjectKind::none: break;
    }
    return nullptr;
}

struct SystemColor {
    int index;
    COLORREF color;
};
static const SystemColor kColors[] = {
    {COLOR_WINDOW, RGB(255, 255, 255)},
    {COLOR_WINDOWTEXT, RGB(0, 0, 0)},
    {COLOR_BTNFACE, RGB(240, 240, 240)},
};

} // namespace platform

using namespace platform;

extern "C" {

HFONT CreateFontIndirectW(const LOGFONTW* font) {
    if (!font) return nullptr;
    LOGFONTW own = *font;
    own.lfFaceName[31] = 0;
    return static_cast<HFONT>(add(fonts(), own, false));
}

HPEN CreatePen(int style, int width, COLORREF color) {
    return static_cast<HPEN>(
        add(pens(), LOGPEN{static_cast<UINT>(style), {std::max(width, 0), 0}, color & 0xFFFFFF}, false));
}

HBRUSH CreateSolidBrush(COLORREF color) {
    return static_cast<HBRUSH>(add(brushes(), LOGBRUSH{BS_SOLID, color & 0xFFFFFF, 0}, false));
}

HGDIOBJ GetStockObject(int index) {
    static void* made[kStockCount];
    static std::mutex mutex;
    std::lock_guard<std::mutex> lock(mutex);
    for (std::size_t i = 0; i < kStockCount; i++) {
        if (kStock[i].index != index) continue;
        if (!made[i]) made[i] = make_stock(kStock[i]);
        return made[i];
    }
    return nullptr;
}

DWORD GetSysColor(int index) {
    for (const SystemColor& entry : kColors) {
        if (entry.index == index) return entry.color;
    }
    return RGB(0, 0, 0);
}

int GetObjectW(HANDLE object, int size, LPVOID out) {
    if (const int bytes = describe(fonts(), object, size, out)) return bytes;
    if (const int bytes = describe(pens(), object, size, out)) return bytes;
    return describe(brushes(), object, size, out);
}

BOOL DeleteObject(HGDIOBJ object) {
    return remove(fonts(), object) || remove(pens(), object) || remove(brushes(), object);
}
}
