#ifndef PLATFORM_PORTABLE_GLOBAL_MEMORY_H
#define PLATFORM_PORTABLE_GLOBAL_MEMORY_H

#include "types.h"

// Blocks of memory behind a handle, as the clipboard and the dialog manager take them. A block never moves
// and is always zeroed at first. Every function may be called from any thread, and refuses a handle that is
// none.

enum : UINT {
    GMEM_FIXED = 0x0000,
    GMEM_MOVEABLE = 0x0002,
    GMEM_ZEROINIT = 0x0040,
    GHND = GMEM_MOVEABLE | GMEM_ZEROINIT,
    GPTR = GMEM_FIXED | GMEM_ZEROINIT,
};

extern "C" {
PLATFORM_API HGLOBAL GlobalAlloc(UINT flags, SIZE_T size); // null: no memory
PLATFORM_API LPVOID GlobalLock(HGLOBAL block);             // its address; null: no such block
PLATFORM_API BOOL GlobalUnlock(HGLOBAL block);             // FALSE: nobody holds it any more
PLATFORM_API SIZE_T GlobalSize(HGLOBAL block);             // in bytes, as asked for; 0: no such block
PLATFORM_API HGLOBAL GlobalFree(HGLOBAL block);            // null: done
}

#endif
