// Opens a list of very many items and says so, for the most memory that it takes.

#include "first_frame.h"
#include "long_list.h"
#include "scene.h"

int main() {
    const HWND wnd = scene::make_window(DefWindowProcW);
    Long_List work;
    work.open(100000, wnd);
    first_frame_painted();
}
