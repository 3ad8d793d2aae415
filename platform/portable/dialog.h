#ifndef PLATFORM_PORTABLE_DIALOG_H
#define PLATFORM_PORTABLE_DIALOG_H

#include "types.h"

// Modal dialogs from a template in memory, and the desktop's own way to open a document.

typedef INT_PTR(CALLBACK* DLGPROC)(HWND, UINT, WPARAM, LPARAM);

// Followed in memory by a word for the menu and one for the class, both 0, and the caption, in wide
// characters of the system with their terminator. A template with controls, a menu or a class of its own is
// refused; the font that DS_SETFONT names is not used.
#pragma pack(push, 2)
struct DLGTEMPLATE {
    DWORD style;
    DWORD dwExtendedStyle;
    WORD cdit;    // controls
    short x, y;   // from the owner's corner, in dialog units
    short cx, cy; // of the client area, in dialog units
};
#pragma pack(pop)
typedef const DLGTEMPLATE* LPCDLGTEMPLATEA;

enum : DWORD { DS_ABSALIGN = 0x01, DS_SETFONT = 0x40, DS_MODALFRAME = 0x80 };
enum : int { IDOK = 1, IDCANCEL = 2 };
// Words of a dialog's window: the answer to the message at hand, the procedure, one for the host.
enum : int { DWLP_MSGRESULT = 0, DWLP_DLGPROC = 8, DWLP_USER = 16 };

extern "C" {
// The pixels that a dialog unit is a part of: a quarter of the low word across, an eighth of the high one
// down.
PLATFORM_API LONG GetDialogBaseUnits();

// Opens the dialog, takes its owner out of use, and runs a message loop until EndDialog, whose result it
// gives. The other windows get their paint requests, timers and posted messages all the while. The procedure
// answers not 0 to what it has dealt with; Return and Escape arrive as WM_COMMAND with IDOK and IDCANCEL, and
// so does WM_CLOSE when it is left alone. -1: the dialog could not be made or seen, its window or its owner
// ended, or the process is to quit, which the caller's own loop will hear of.
PLATFORM_API INT_PTR DialogBoxIndirectParamA(HINSTANCE instance, LPCDLGTEMPLATEA memory, HWND owner,
                                             DLGPROC procedure, LPARAM parameter);
// Hides the dialog and gives its owner back; it ends when the message at hand has been dealt with.
PLATFORM_API BOOL EndDialog(HWND wnd, INT_PTR result);

// Hands a document or an address to the desktop, in UTF-8, as an argument that no shell reads. `operation` is
// null or "open"; parameters, folder and show are not used. More than 32: done.
PLATFORM_API HINSTANCE ShellExecuteA(HWND wnd, LPCSTR operation, LPCSTR target, LPCSTR parameters,
                                     LPCSTR folder, INT show);
}

#endif
