#ifndef PLATFORM_PORTABLE_SDL_SDL_LIBRARY_H
#define PLATFORM_PORTABLE_SDL_SDL_LIBRARY_H

#include <SDL.h>
#include <SDL_syswm.h>

// The desktop library, opened at run time: a process that shows no window never loads it.
namespace platform {

#define PLATFORM_SDL_FUNCTIONS(X)                                                                            \
    X(SDL_CaptureMouse)                                                                                      \
    X(SDL_CreateSystemCursor)                                                                                \
    X(SDL_CreateWindow)                                                                                      \
    X(SDL_DestroyWindow)                                                                                     \
    X(SDL_GetClipboardText)                                                                                  \
    X(SDL_GetCurrentVideoDriver)                                                                             \
    X(SDL_GetDisplayUsableBounds)                                                                            \
    X(SDL_GetError)                                                                                          \
    X(SDL_GetNumVideoDisplays)                                                                               \
    X(SDL_GetGlobalMouseState)                                                                               \
    X(SDL_GetMouseState)                                                                                     \
    X(SDL_GetTicks)                                                                                          \
    X(SDL_GetWindowFromID)                                                                                   \
    X(SDL_GetWindowData)                                                                                     \
    X(SDL_GetWindowDisplayIndex)                                                                             \
    X(SDL_GetWindowPosition)                                                                                 \
    X(SDL_GetWindowSurface)                                                                                  \
    X(SDL_GetWindowWMInfo)                                                                                   \
    X(SDL_HideWindow)                                                                                        \
    X(SDL_InitSubSystem)                                                                                     \
    X(SDL_MaximizeWindow)                                                                                    \
    X(SDL_MinimizeWindow)                                                                                    \
    X(SDL_PollEvent)                                                                                         \
    X(SDL_PushEvent)                                                                                         \
    X(SDL_QuitSubSystem)                                                                                     \
    X(SDL_RaiseWindow)                                                                                       \
    X(SDL_RestoreWindow)                                                                                     \
    X(SDL_SetClipboardText)                                                                                  \
    X(SDL_SetCursor)                                                                                         \
    X(SDL_SetHint)                                                                                           \
    X(SDL_SetWindowAlwaysOnTop)                                                                              \
    X(SDL_SetWindowData)                                                                                     \
    X(SDL_SetWindowMaximumSize)                                                                              \
    X(SDL_SetWindowMinimumSize)                                                                              \
    X(SDL_SetWindowModalFor)                                                                                 \
    X(SDL_SetWindowPosition)                                                                                 \
    X(SDL_SetWindowSize)                                                                                     \
    X(SDL_SetWindowTitle)                                                                                    \
    X(SDL_ShowCursor)                                                                                        \
    X(SDL_ShowWindow)                                                                                        \
    X(SDL_UpdateWindowSurfaceRects)                                                                          \
    X(SDL_WaitEventTimeout)                                                                                  \
    X(SDL_free)

struct SdlLibrary {
#define PLATFORM_SDL_POINTER(name) decltype(&::name) name = nullptr;
    PLATFORM_SDL_FUNCTIONS(PLATFORM_SDL_POINTER)
#undef PLATFORM_SDL_POINTER
};

// The library with a display opened. Tried once; null: there is none, which is reported once.
const SdlLibrary* sdl_open();
// The same, if it has been opened; never opens it. Any thread may ask.
const SdlLibrary* sdl_opened();

} // namespace platform

#endif
