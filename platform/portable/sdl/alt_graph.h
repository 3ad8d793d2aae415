#ifndef PLATFORM_PORTABLE_SDL_ALT_GRAPH_H
#define PLATFORM_PORTABLE_SDL_ALT_GRAPH_H

#include "sdl_library.h"

namespace platform {

// Whether a key is AltGr, which chooses characters, and not the right Alt that it looks like.
bool is_alt_graph(const SdlLibrary& sdl, const SDL_KeyboardEvent& event);

} // namespace platform

#endif
