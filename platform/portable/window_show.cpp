#include "desktop.h"
#include "input.h"
#include "messages.h"
#include "window_state.h"

namespace platform {

struct ShowCommand {
    int command;
    bool keep_layout;
    Layout layout;
    bool activate;
};
static const ShowCommand kCommands[] = {
    {SW_SHOWNORMAL, false, Layout::normal, true},
    {SW_SHOWMINIMIZED, false, Layout::minimized, true},
    {SW_SHOWMAXIMIZED, false, Layout::maximized, true},
    {SW_SHOWNOACTIVATE, false, Layout::normal, false},
    {SW_SHOW, true, Layout::normal, true},
    {SW_MINIMIZE, false, Layout::minimized, false},
    {SW_SHOWMINNOACTIVE, false, Layout::minimized, false},
    {SW_SHOWNA, true, Layout::normal, false},
    {SW_RESTORE, false, Layout::normal, true},
    {SW_SHOWDEFAULT, true, Layout::normal, true},
};

static const ShowCommand* find_command(int command) {
    for (const ShowCommand& row : kCommands) {
        if (row.command == command) return &row;
    }
    return nullptr;
}

void hide_window(HWND wnd) {
    Window* window = find_window(wnd);
    if (!window) return;
    window->style &= ~static_cast<DWORD>(WS_VISIBLE);
    window->update = {};
    desktop_hide(*window);
}

static void show(HWND wnd, const ShowCommand& command, bool was_visible) {
    Window* window = find_window(wnd);
    if (!window) return;
    const Layout layout = command.keep_layout ? window->layout : command.layout;
    const bool new_layout = layout != window->layout && window->size_told;
    window->style |= WS_VISIBLE;
    window->layout = layout;
    if (!was_visible || new_layout) {
        desktop_show(wnd, *window);
        InvalidateRect(wnd, nullptr, TRUE);
    }
    if (command.activate) activate_window(wnd, WA_ACTIVE);
    if (new_layout) tell_size(wnd);
    tell_first_size(wnd);
}

} // namespace platform

using namespace platform;

extern "C" {

BOOL ShowWindow(HWND wnd, int number) {
    const Window* window = find_window(wnd);
    const ShowCommand* command = find_command(number);
    if (!window || (!command && number != SW_HIDE)) return FALSE;
    const bool was_visible = window->style & WS_VISIBLE;
    if (was_visible != (command != nullptr)) SendMessageW(wnd, WM_SHOWWINDOW, command != nullptr, 0);
    if (command) {
        show(wnd, *command, was_visible);
    } else if (was_visible) {
        hide_window(wnd);
        leave_activation(wnd);
    }
    return was_visible;
}

BOOL IsWindowVisible(HWND wnd) {
    const Window* window = find_window(wnd);
    return window && window->style & WS_VISIBLE;
}

BOOL IsIconic(HWND wnd) {
    const Window* window = find_window(wnd);
    return window && window->layout == Layout::minimized;
}

BOOL IsZoomed(HWND wnd) {
    const Window* window = find_window(wnd);
    return window && window->layout == Layout::maximized;
}

int GetSystemMetrics(int index) { return index == SM_CMONITORS ? desktop_screens() : 0; }
}
