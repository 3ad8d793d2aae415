#include "world.h"

#include <brask/fonts.h>

namespace world {

void renew_fonts() {
    constexpr int places = 16;
    for (int i = 0; i < places; i++)
        Zeb_Create_Font(window(), "arial", "medium", "r", 40 + i);
}

} // namespace world
