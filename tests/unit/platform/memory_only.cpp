#include <cstdlib>

// These tests play the desktop themselves: no display is opened, wherever they run.
static const int no_display = setenv("SDL_VIDEODRIVER", "none", 1);
