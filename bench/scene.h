#ifndef BENCH_SCENE_H
#define BENCH_SCENE_H

#include <brask/buttons.h>

#include "layout.h"

// The grid as a host of the library has it: a window and an array of buttons.
namespace scene {

// The window of the comparison's size; it stays hidden, so that only its back buffer is painted.
HWND make_window(WNDPROC procedure);
// One for all measures of a program, and the pointer in it.
HWND window();
void point_at(int x, int y);

class Grid {
  public:
    explicit Grid(HWND wnd);
    void draw();
    // One mouse move as a host hands it on: every button is asked.
    void move(int x, int y);
    // How many buttons show the selected look.
    int selected() const;

  private:
    HWND wnd;
    Buttons buttons[layout::count];
};

} // namespace scene

#endif
