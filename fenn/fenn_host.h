#ifndef BRASK_FENN_HOST_H
#define BRASK_FENN_HOST_H

#include <brask/export.h>
#include <brask/platform.h>

// What a host may ask of Lib_Fenn beyond the drawing contract: pictures of a window, its reports, the
// built-in font, native paths.

// --- Pictures ---
// Writes the window's back buffer as a PNG file; 1, or 0 when there is no such window or file.
FENN_API int Fenn_Snapshot(HWND wnd, const wchar_t* file);
// The window's back buffer: words 0x00RRGGBB, top row first, *width by *height. It stays the layer's and is
// valid until the next message or resize. Null without a window.
FENN_API const DWORD* Fenn_Pixels(HWND wnd, int* width, int* height);

// --- Reports ---
// Receives each report that is listened to, formatted, with its marks. It is called by the thread that
// reports, so by several at once if several do. What it reports itself is dropped. It may not throw.
typedef void (*Fenn_Report)(void* user, HWND wnd, unsigned int code, const wchar_t* text);
// Installs the one receiver; null gives the standard error stream back, one line of UTF-8 for each report.
FENN_API void Fenn_Set_Report(Fenn_Report report, void* user);
// Turns one code on or off. At the start everything but the traces is on: codes 0x90000029, 0x90000027,
// 0x90004009 and 0x80000005 are off. At most 64 codes can be off at a time. A report nobody listens to costs
// a few nanoseconds.
FENN_API void Fenn_Listen(unsigned int code, int on);

// --- Text ---
// Not 0: all text is written in the small built-in bitmap font, the same pixels on every system. It is also
// what a system without any font gets.
FENN_API void Fenn_Builtin_Font(int on);

// --- Paths ---
// From the library's form (drive letters, "\") to the system's own, as UTF-8, and back. 1, or 0 when the
// result does not fit in `size` characters or no mount holds the path.
FENN_API int Fenn_Path_To_Native(const wchar_t* path, char* native, int size);
FENN_API int Fenn_Path_From_Native(const char* native, wchar_t* path, int size);

#endif
