#include "alt_graph.h"

#include <X11/XKBlib.h>
#include <X11/keysym.h>
#include <dlfcn.h>

// The desktop library reports AltGr as the right Alt. The X server knows better; elsewhere it stays Alt.
namespace platform {

struct XLibrary {
    decltype(&::XkbGetState) get_state = nullptr;
    decltype(&::XkbKeycodeToKeysym) keysym = nullptr;
};

static XLibrary load() {
    XLibrary library;
    // The desktop library has it open already, or there is no X server.
    void* module = dlopen("libX11.so.6", RTLD_NOW | RTLD_LOCAL | RTLD_NOLOAD);
    if (!module) return library;
    library.get_state = reinterpret_cast<decltype(library.get_state)>(dlsym(module, "XkbGetState"));
    library.keysym = reinterpret_cast<decltype(library.keysym)>(dlsym(module, "XkbKeycodeToKeysym"));
    return library;
}

static Display* display_of(const SdlLibrary& sdl, Uint32 id) {
    SDL_SysWMinfo info;
    SDL_VERSION(&info.version)
    SDL_Window* window = sdl.SDL_GetWindowFromID(id);
    if (!window || !sdl.SDL_GetWindowWMInfo(window, &info)) return nullptr;
    return info.subsystem == SDL_SYSWM_X11 ? info.info.x11.display : nullptr;
}

bool is_alt_graph(const SdlLibrary& sdl, const SDL_KeyboardEvent& event) {
    constexpr KeyCode kRightAlt = 108;
    if (event.keysym.sym == SDLK_MODE) return true;
    if (event.keysym.scancode != SDL_SCANCODE_RALT) return false;
    static const XLibrary library = load();
    Display* display = display_of(sdl, event.windowID);
    if (!display || !library.get_state || !library.keysym) return false;
    XkbStateRec state{};
    if (library.get_state(display, XkbUseCoreKbd, &state) != Success) return false;
    const KeySym symbol = library.keysym(display, kRightAlt, state.group, 0);
    return symbol == XK_ISO_Level3_Shift || symbol == XK_Mode_switch;
}

} // namespace platform
