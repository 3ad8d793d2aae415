#ifndef BRASK_FONTS_H
#define BRASK_FONTS_H

#include <brask/export.h>
#include <brask/platform.h>

// A font from the process-wide ring cache of 16. The handle belongs to the cache: do not delete it, and
// ask anew at each use, since 16 other requests recycle it.
//   wnd     any window, or null: only its resolution is asked
//   name    family, told apart by its first 79 characters; null means "Arial"
//   weight  "bold" for bold; told apart in the cache by the first letter
//   slant   "i" or "o" for slanted; likewise
//   size    points at 96 dots per inch; 0 or negative means 12
// Null with all arguments null and size 0 (which only prepares the lock: make that the first call when
// several threads will ask), and null when the system has no font to give.
// May be called from several threads once the first call has returned.
BRASK_API HFONT Zeb_Create_Font(HWND wnd, const char* name, const char* weight, const char* slant, int size);

#endif
