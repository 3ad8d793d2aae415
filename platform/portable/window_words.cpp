#include <algorithm>
#include <cstring>

#include "desktop.h"
#include "input.h"
#include "messages.h"
#include "window_state.h"

// What a window keeps for its host: title, style, procedure, words.
namespace platform {

// The value kept behind a negative index, as a number; false: there is none.
static bool get_word(const Window& window, int index, LONG_PTR* value) {
    switch (index) {
    case GWLP_WNDPROC: *value = reinterpret_cast<LONG_PTR>(window.procedure); return true;
    case GWLP_HINSTANCE: *value = reinterpret_cast<LONG_PTR>(window.instance); return true;
    case GWLP_HWNDPARENT: *value = reinterpret_cast<LONG_PTR>(window.owner); return true;
    case GWLP_ID: *value = window.id; return true;
    case GWL_STYLE: *value = static_cast<LONG>(window.style); return true;
    case GWL_EXSTYLE: *value = static_cast<LONG>(window.ex_style); return true;
    case GWLP_USERDATA: *value = window.user_data; return true;
    }
    return false;
}

static void set_word(Window& window, int index, LONG_PTR value) {
    constexpr DWORD kOurs = WS_VISIBLE | WS_DISABLED; // follow ShowWindow and EnableWindow alone
    switch (index) {
    case GWLP_WNDPROC:
        if (value) window.procedure = reinterpret_cast<WNDPROC>(value);
        break;
    case GWLP_HINSTANCE: window.instance = reinterpret_cast<HINSTANCE>(value); break;
    case GWLP_HWNDPARENT: window.owner = reinterpret_cast<HWND>(value); break;
    case GWLP_ID: window.id = value; break;
    case GWL_STYLE: window.style = (static_cast<DWORD>(value) & ~kOurs) | (window.style & kOurs); break;
    case GWL_EXSTYLE: window.ex_style = static_cast<DWORD>(value); break;
    case GWLP_USERDATA: window.user_data = value; break;
    }
}

// The word among the class' extra bytes; null: outside of them.
static BYTE* extra_word(Window& window, int index) {
    if (index < 0 || static_cast<std::size_t>(index) + sizeof(LONG_PTR) > window.extra.size()) return nullptr;
    return window.extra.data() + index;
}

} // namespace platform

using namespace platform;

extern "C" {

LONG_PTR GetWindowLongPtrW(HWND wnd, int index) {
    Window* window = find_window(wnd);
    LONG_PTR value = 0;
    if (!window || get_word(*window, index, &value)) return value;
    if (const BYTE* word = extra_word(*window, index)) std::memcpy(&value, word, sizeof value);
    return value;
}

LONG_PTR GetWindowLongPtrA(HWND wnd, int index) { return GetWindowLongPtrW(wnd, index); }

LONG_PTR SetWindowLongPtrW(HWND wnd, int index, LONG_PTR value) {
    Window* window = find_window(wnd);
    if (!window) return 0;
    const LONG_PTR old = GetWindowLongPtrW(wnd, index);
    set_word(*window, index, value);
    if (BYTE* word = extra_word(*window, index)) std::memcpy(word, &value, sizeof value);
    return old;
}

BOOL SetWindowTextW(HWND wnd, LPCWSTR text) {
    return static_cast<BOOL>(SendMessageW(wnd, WM_SETTEXT, 0, reinterpret_cast<LPARAM>(text)));
}

int GetWindowTextW(HWND wnd, LPWSTR text, int size) {
    if (!text || size <= 0) return 0;
    text[0] = 0;
    return static_cast<int>(
        SendMessageW(wnd, WM_GETTEXT, static_cast<WPARAM>(size), reinterpret_cast<LPARAM>(text)));
}

int GetWindowTextLengthW(HWND wnd) { return static_cast<int>(SendMessageW(wnd, WM_GETTEXTLENGTH, 0, 0)); }
}
