#include <algorithm>
#include <list>

#include "text/guarded.h"
#include "window_state.h"

namespace platform {

// A list, since windows keep the address of their class.
static std::list<WindowClass>& classes() {
    static auto& list = *new std::list<WindowClass>;
    return list;
}

static constexpr std::uintptr_t kMostAtom = 0xFFFF;

WindowClass* find_class(LPCWSTR name_or_atom) {
    if (!name_or_atom) return nullptr;
    const auto number = reinterpret_cast<std::uintptr_t>(name_or_atom);
    for (WindowClass& type : classes()) {
        if (number <= kMostAtom ? type.atom == number : type.name == name_or_atom) return &type;
    }
    return nullptr;
}

static ATOM next_atom() {
    static ATOM last = 0xC000;
    if (last == 0xFFFF) return 0;
    return ++last;
}

} // namespace platform

using namespace platform;

extern "C" {

ATOM RegisterClassW(const WNDCLASSW* description) {
    constexpr int kMostExtra = 4096;
    if (!description || !description->lpfnWndProc) return 0;
    if (description->cbWndExtra < 0 || description->cbWndExtra > kMostExtra) return 0;
    const LPCWSTR name = description->lpszClassName;
    if (reinterpret_cast<std::uintptr_t>(name) <= kMostAtom || !name[0] || find_class(name)) return 0;
    WindowClass type;
    type.atom = next_atom();
    if (!type.atom) return 0;
    type.style = description->style;
    type.procedure = description->lpfnWndProc;
    type.extra_bytes = description->cbWndExtra;
    type.cursor = description->hCursor;
    type.brush = description->hbrBackground;
    return text::guarded<ATOM>(0, [&] {
        type.name = name;
        classes().push_back(type);
        return type.atom;
    });
}

ATOM RegisterClassExW(const WNDCLASSEXW* d) {
    if (!d || d->cbSize != sizeof *d) return 0;
    const WNDCLASSW plain = {d->style, d->lpfnWndProc, d->cbClsExtra,    d->cbWndExtra,   d->hInstance,
                             d->hIcon, d->hCursor,     d->hbrBackground, d->lpszMenuName, d->lpszClassName};
    return RegisterClassW(&plain);
}

BOOL UnregisterClassW(LPCWSTR name_or_atom, HINSTANCE) {
    const WindowClass* type = find_class(name_or_atom);
    if (!type || type->windows > 0) return FALSE;
    classes().remove_if([type](const WindowClass& other) { return &other == type; });
    return TRUE;
}

HICON LoadIconW(HINSTANCE instance, LPCWSTR name) {
    // The desktop chooses a window's icon; hosts only pass the handle on.
    if (instance || !name) return nullptr;
    return reinterpret_cast<HICON>(static_cast<std::uintptr_t>(HandleKind::icon));
}
}
