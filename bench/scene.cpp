#include "scene.h"

#include <cstdio>
#include <cstdlib>

#include <brask/fenn.h>

namespace scene {

HWND make_window(WNDPROC procedure) {
    WNDCLASSEXW kind = {};
    kind.cbSize = sizeof kind;
    kind.lpfnWndProc = procedure;
    kind.hInstance = GetModuleHandleW(nullptr);
    kind.lpszClassName = L"bench";
    RegisterClassExW(&kind);
    // A bare popup has no border: its client area is as large as the window.
    const HWND wnd = CreateWindowExW(0, L"bench", L"bench", WS_POPUP, 0, 0, layout::window_width,
                                     layout::window_height, nullptr, nullptr, kind.hInstance, nullptr);
    if (!wnd) {
        std::fputs("bench: no window\n", stderr);
        std::exit(1);
    }
    return wnd;
}

HWND window() {
    static const HWND wnd = make_window(DefWindowProcW);
    return wnd;
}

void point_at(int x, int y) {
    Zeb_setup(window(), "bench");
    set_curs(x, layout::window_height - 1 - y);
    Zeb_release();
}

Grid::Grid(HWND wnd) : wnd(wnd) {
    for (int i = 0; i < layout::count; i++) {
        const layout::Place at = layout::corner(i);
        Buttons& button = buttons[i];
        button.Pos_X = at.x;
        button.Pos_Y = layout::window_height - at.y - layout::button_height;
        button.Dim_X = layout::button_width;
        button.Dim_Y = layout::button_height;
        button.Font_Size = 11; // points, which come to 14 pixels
        button.Name_Set(layout::label(i).text);
        button.Init(wnd);
    }
}

void Grid::draw() {
    for (Buttons& button : buttons)
        button.Draw();
}

void Grid::move(int x, int y) {
    Zeb_setup(wnd, "bench");
    set_curs(x, y);
    Zeb_release();
    for (Buttons& button : buttons)
        button.Select(0);
}

int Grid::selected() const {
    int found = 0;
    for (const Buttons& button : buttons)
        found += button.select == 1;
    return found;
}

} // namespace scene
