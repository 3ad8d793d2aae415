#ifndef PLATFORM_PORTABLE_SDL_DESKTOP_PUMP_H
#define PLATFORM_PORTABLE_SDL_DESKTOP_PUMP_H

namespace platform {

// The name under which a desktop window remembers its handle.
constexpr const char* kHandleName = "wnd";

} // namespace platform

#endif
