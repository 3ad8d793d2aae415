#ifndef TESTS_LIFE_GUEST_H
#define TESTS_LIFE_GUEST_H

#include <brask/platform.h>

// What the guest found while it used the library in a window.
struct Found {
    char version[128];
    bool other_version_refused, same_buffer;
    int list_height_before, list_height_after; // BUT_LIST, and again once BUT_DIM was changed
    bool pointer_on_button;
    int question; // what a refused question answers
};
typedef void (*Use)(HWND wnd, Found* found);

#endif
