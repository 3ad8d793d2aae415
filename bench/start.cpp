// Starts, paints the grid once and says so. With --window the frame is shown on the display, without it is
// painted off-screen.

#include <cstring>

#include "first_frame.h"
#include "scene.h"

namespace {

scene::Grid* grid;
bool painted = false;

LRESULT CALLBACK procedure(HWND wnd, UINT message, WPARAM wparam, LPARAM lparam) {
    if (message != WM_PAINT) return DefWindowProcW(wnd, message, wparam, lparam);
    PAINTSTRUCT paint;
    BeginPaint(wnd, &paint);
    if (grid) {
        grid->draw();
        painted = true;
    }
    EndPaint(wnd, &paint);
    return 0;
}

// A frame is on the display when the queue has run empty after the paint.
void show(HWND wnd) {
    ShowWindow(wnd, SW_SHOW);
    MSG message;
    while (!painted && GetMessageW(&message, nullptr, 0, 0) > 0)
        DispatchMessageW(&message);
    while (PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE))
        DispatchMessageW(&message);
}

} // namespace

int main(int argc, char** argv) {
    const HWND wnd = scene::make_window(procedure);
    scene::Grid buttons(wnd);
    grid = &buttons;
    if (argc > 1 && std::strcmp(argv[1], "--window") == 0)
        show(wnd);
    else
        buttons.draw();
    first_frame_painted();
    grid = nullptr;
}
