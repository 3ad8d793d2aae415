#ifndef PLATFORM_PORTABLE_CLIPBOARD_H
#define PLATFORM_PORTABLE_CLIPBOARD_H

#include "global_memory.h"

// The clipboard holds text. Its lines end in a carriage return and a line feed, as on Windows; what other
// programs put and get has the desktop's line feeds.
enum : UINT {
    CF_TEXT = 1,         // UTF-8, ends in a zero byte
    CF_UNICODETEXT = 13, // wchar_t, ends in a zero
};

extern "C" {
// FALSE while another window has it open.
PLATFORM_API BOOL OpenClipboard(HWND wnd);
PLATFORM_API BOOL CloseClipboard();
PLATFORM_API BOOL EmptyClipboard(); // needs OpenClipboard, as the next two
// A block that is the clipboard's and lasts until it is closed or emptied; null: there is no such text.
PLATFORM_API HANDLE GetClipboardData(UINT format);
// The clipboard becomes the owner of the block, of which it takes a copy. Null: it did not take it.
PLATFORM_API HANDLE SetClipboardData(UINT format, HANDLE block);
PLATFORM_API BOOL IsClipboardFormatAvailable(UINT format);
}

#endif
