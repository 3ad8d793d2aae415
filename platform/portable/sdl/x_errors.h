#ifndef PLATFORM_PORTABLE_SDL_X_ERRORS_H
#define PLATFORM_PORTABLE_SDL_X_ERRORS_H

namespace platform {

// The desktop library wakes a wait by an event that it sends to a window, on a connection of its own, for
// each event that it reads. A window that ends at once may be gone by then, and X ends the process for that.
// From here on such a wake is forgiven; all other errors go where they went. Without an X server nothing
// happens.
void forgive_late_wakes();

} // namespace platform

#endif
