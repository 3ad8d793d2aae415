#include "cursor.h"

#include <utility>

#include "desktop.h"
#include "input.h"

namespace platform {

// In the order of Shape: the number of each in MAKEINTRESOURCE.
static const int kNumbers[kShapes] = {32512, 32513, 32514, 32515, 32516, 32642, 32643,
                                      32644, 32645, 32646, 32648, 32649, 32650};

static HCURSOR handle_of(int shape) {
    const auto index = static_cast<std::uintptr_t>(shape);
    return reinterpret_cast<HCURSOR>((index + 1) << 20 | static_cast<std::uintptr_t>(HandleKind::cursor));
}

static int shape_of(HCURSOR cursor) {
    for (int shape = 0; shape < kShapes; shape++) {
        if (handle_of(shape) == cursor) return shape;
    }
    return -1;
}

static HCURSOR shown = handle_of(0);

int current_shape() { return shape_of(shown); }

} // namespace platform

using namespace platform;

extern "C" {

HCURSOR LoadCursorW(HINSTANCE instance, LPCWSTR name) {
    if (instance) return nullptr;
    for (int shape = 0; shape < kShapes; shape++) {
        if (reinterpret_cast<std::uintptr_t>(name) == static_cast<std::uintptr_t>(kNumbers[shape]))
            return handle_of(shape);
    }
    return nullptr;
}

HCURSOR SetCursor(HCURSOR cursor) {
    if (cursor == shown || (cursor && shape_of(cursor) < 0)) return shown;
    const HCURSOR old = std::exchange(shown, cursor);
    desktop_set_cursor(current_shape());
    return old;
}

HCURSOR GetCursor() { return shown; }
}
