#include <new>

#include "fenn/window.h"

namespace fenn {
namespace {

Window* first = nullptr;
Window* last = nullptr; // the one asked for last: two hundred controls of one window ask in a row

void forget(Window*& link) {
    Window* const gone = link;
    link = gone->next;
    if (last == gone) last = nullptr;
    leave_window(*gone);
    end_window(*gone);
    delete gone;
}

void forget_gone() {
    for (Window** link = &first; *link;) {
        if (refresh_window(**link))
            link = &(*link)->next;
        else
            forget(*link);
    }
}

Window* add(HWND wnd) {
    forget_gone();
    Window* const window = new (std::nothrow) Window{};
    if (!window) return nullptr;
    window->wnd = wnd;
    if (!begin_window(*window)) {
        delete window;
        return nullptr;
    }
    window->next = first;
    return first = window;
}

Window* search(HWND wnd) {
    for (Window* window = first; window; window = window->next)
        if (window->wnd == wnd) return refresh_window(*window) ? window : add(wnd);
    return add(wnd);
}

} // namespace

Window* find_window(HWND wnd) {
    if (!wnd) return nullptr;
    if (last && last->wnd == wnd && refresh_window(*last)) return last;
    return last = search(wnd);
}

} // namespace fenn
