#include <brask/platform.h>

#include "desk.h"
#include "desk_dialog.h"
#include "desk_function.h"
#include "recorder.h"

// The clipboard's part of the desk.
namespace desk {

Clipboard& clipboard() {
    static Clipboard one;
    return one;
}

void copy(const std::wstring& text) {
    clipboard().text = true;
    clipboard().units.assign(text.c_str(), text.c_str() + text.size() + 1);
}

static int block;

static void note(const std::string& line) { recorder::note(recorder::kSystem, line); }

} // namespace desk

using desk::note;

DESK_FUNCTION(BOOL, IsClipboardFormatAvailable, UINT format) {
    note("IsClipboardFormatAvailable(" + std::to_string(format) + ")");
    return desk::clipboard().text;
}

DESK_FUNCTION(BOOL, OpenClipboard, HWND wnd) {
    note("OpenClipboard(" + recorder::named(wnd) + ")");
    return desk::clipboard().opens;
}

DESK_FUNCTION(HANDLE, GetClipboardData, UINT format) {
    note("GetClipboardData(" + std::to_string(format) + ")");
    recorder::name(&desk::block, "BLOCK");
    return desk::clipboard().gives ? &desk::block : nullptr;
}

DESK_FUNCTION(LPVOID, GlobalLock, HGLOBAL block) {
    note("GlobalLock(" + recorder::named(block) + ")");
    if (block != &desk::block) return desk::lock_block(block);
    return desk::clipboard().locks ? desk::clipboard().units.data() : nullptr;
}

DESK_FUNCTION(SIZE_T, GlobalSize, HGLOBAL block) {
    note("GlobalSize(" + recorder::named(block) + ")");
    return desk::clipboard().units.size() * sizeof(wchar_t);
}

DESK_FUNCTION(BOOL, GlobalUnlock, HGLOBAL block) {
    note("GlobalUnlock(" + recorder::named(block) + ")");
    return FALSE;
}

DESK_FUNCTION(BOOL, CloseClipboard) {
    note("CloseClipboard()");
    return TRUE;
}
