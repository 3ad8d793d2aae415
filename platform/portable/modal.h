#ifndef PLATFORM_PORTABLE_MODAL_H
#define PLATFORM_PORTABLE_MODAL_H

#include "types.h"

namespace platform {

// Who is to be used in a window's place: the innermost dialog that it waits for, else itself.
HWND modal_of(HWND wnd);

} // namespace platform

#endif
