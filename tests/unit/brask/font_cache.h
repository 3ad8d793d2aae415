#ifndef TESTS_FONT_CACHE_H
#define TESTS_FONT_CACHE_H

#include <brask/fonts.h>

// The font cache is the process's and has no way to be emptied, so a test fills it with fonts that nobody
// else asks for.
inline int never_asked_size() {
    static int size = 1000;
    return ++size;
}
inline void fill_font_cache() {
    for (int i = 0; i < 16; ++i)
        Zeb_Create_Font(nullptr, "filler", nullptr, nullptr, never_asked_size());
}

#endif
