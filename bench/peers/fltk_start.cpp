// Starts, shows the grid in a window and says so when it is painted.

#include <FL/Fl.H>
#include <FL/x.H>

#include "first_frame.h"
#include "fltk_scene.h"

int main() {
    fltk_scene::Window window;
    window.show();
    while (!window.painted) {
        Fl::wait();
        Fl::flush(); // the next wait would paint it, and then wait for an event more
    }
    XSync(fl_display, False);
    first_frame_painted();
}
