#include "sdl_library.h"

#include <dlfcn.h>

#include <atomic>
#include <cstdio>
#include <cstdlib>
#include <cstring>

#include "x_errors.h"

namespace platform {

static std::atomic<const SdlLibrary*> opened{nullptr};

static const char* load(SdlLibrary& library) {
    void* module = dlopen("libSDL2-2.0.so.0", RTLD_LAZY | RTLD_LOCAL);
    if (!module) return dlerror();
#define PLATFORM_SDL_LOAD(name)                                                                              \
    library.name = reinterpret_cast<decltype(library.name)>(dlsym(module, #name));                           \
    if (!library.name) return "libSDL2 is too old: no " #name;
    PLATFORM_SDL_FUNCTIONS(PLATFORM_SDL_LOAD)
#undef PLATFORM_SDL_LOAD
    return nullptr;
}

struct Hint {
    const char* name;
    const char* value;
};
static const Hint kHints[] = {
    {SDL_HINT_NO_SIGNAL_HANDLERS, "1"},       // signals end the process as ever
    {SDL_HINT_FRAMEBUFFER_ACCELERATION, "0"}, // pixels go through shared memory: no graphics driver is loaded
    {SDL_HINT_VIDEO_X11_NET_WM_BYPASS_COMPOSITOR, "0"}, // a program among others, not a game
    {SDL_HINT_VIDEO_ALLOW_SCREENSAVER, "1"},
    {SDL_HINT_MOUSE_FOCUS_CLICKTHROUGH, "1"}, // the click that activates a window counts
    {SDL_HINT_QUIT_ON_LAST_WINDOW_CLOSE, "0"},
};

static const char* start(SdlLibrary& library) {
    if (const char* trouble = load(library)) return trouble;
    for (const Hint& hint : kHints)
        library.SDL_SetHint(hint.name, hint.value);
    if (library.SDL_InitSubSystem(SDL_INIT_VIDEO) != 0) return library.SDL_GetError();
    // Its last resort when there is no display: a second buffer that nobody sees. Somebody may ask for it,
    // though.
    const bool unseen = std::strcmp(library.SDL_GetCurrentVideoDriver(), "offscreen") == 0;
    if (!unseen || std::getenv("SDL_VIDEODRIVER")) return nullptr;
    library.SDL_QuitSubSystem(SDL_INIT_VIDEO);
    return "no display";
}

const SdlLibrary* sdl_open() {
    static SdlLibrary library;
    static const bool works = [] {
        const char* trouble = start(library);
        if (trouble) std::fprintf(stderr, "no desktop, windows stay in memory: %s\n", trouble);
        return !trouble;
    }();
    if (works && !opened) {
        opened = &library;
        forgive_late_wakes();
    }
    return sdl_opened();
}

const SdlLibrary* sdl_opened() { return opened; }

} // namespace platform
