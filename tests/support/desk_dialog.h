#ifndef SUPPORT_DESK_DIALOG_H
#define SUPPORT_DESK_DIALOG_H

#include <functional>
#include <vector>

#include <brask/platform.h>

// The desk's dialog manager: what it is given to open is kept, and in place of its loop the test's script
// runs.
namespace desk {

struct Dialogs {
    // What was opened last.
    HINSTANCE instance = nullptr;
    std::vector<BYTE> memory; // the block of the template, whole
    HWND owner = nullptr;
    DLGPROC procedure = nullptr;
    LPARAM parameter = 0;
    int opened = 0;

    std::function<INT_PTR()> script; // gives the result; none: -1
    LONG base_units = 8 | 16 << 16;
    SIZE client = {300, 150};
    HWND active = nullptr;
    bool grants_memory = true, locks_memory = true;
    int live_blocks = 0;
};
Dialogs& dialogs();
void reset_dialogs();
// What GlobalLock gives for one of its blocks.
LPVOID lock_block(HGLOBAL block);

} // namespace desk

#endif
