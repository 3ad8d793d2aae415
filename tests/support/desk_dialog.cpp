#include "desk_dialog.h"

#include <cstdlib>
#include <map>
#include <string>

#include "desk.h"
#include "desk_function.h"
#include "recorder.h"

// The dialog manager's part of the desk.
namespace desk {

Dialogs& dialogs() {
    static Dialogs one;
    return one;
}

void reset_dialogs() { dialogs() = Dialogs(); }

static std::map<HGLOBAL, SIZE_T>& blocks() {
    static std::map<HGLOBAL, SIZE_T> live;
    return live;
}

static void note(const std::string& line) { recorder::note(recorder::kSystem, line); }

LPVOID lock_block(HGLOBAL block) { return dialogs().locks_memory && blocks().count(block) ? block : nullptr; }

} // namespace desk

using desk::dialogs;
using desk::note;
using recorder::named;

static std::string quoted(const char* text) { return text ? '"' + std::string(text) + '"' : "null"; }

DESK_FUNCTION(HGLOBAL, GlobalAlloc, UINT flags, SIZE_T size) {
    note("GlobalAlloc(" + std::to_string(flags) + ", " + std::to_string(size) + ")");
    if (!dialogs().grants_memory) return nullptr;
    const HGLOBAL block = std::calloc(size, 1);
    if (!block) return nullptr;
    recorder::name(block, "BLOCK");
    desk::blocks()[block] = size;
    dialogs().live_blocks++;
    return block;
}

DESK_FUNCTION(HGLOBAL, GlobalFree, HGLOBAL block) {
    note("GlobalFree(" + named(block) + ")");
    if (desk::blocks().erase(block) == 0) recorder::note(recorder::kSystem, "no such block");
    std::free(block);
    dialogs().live_blocks--;
    return nullptr;
}

DESK_FUNCTION(LONG, GetDialogBaseUnits) {
    note("GetDialogBaseUnits()");
    return dialogs().base_units;
}

DESK_FUNCTION(HWND, GetActiveWindow) {
    note("GetActiveWindow()");
    return dialogs().active;
}

DESK_FUNCTION(LONG_PTR, GetWindowLongPtrA, HWND wnd, int index) {
    note("GetWindowLongPtrA(" + named(wnd) + ", " + std::to_string(index) + ")");
    return 0x77;
}

DESK_FUNCTION(INT_PTR, DialogBoxIndirectParamA, HINSTANCE instance, LPCDLGTEMPLATEA memory, HWND owner,
              DLGPROC procedure, LPARAM parameter) {
    const auto* bytes = reinterpret_cast<const BYTE*>(memory);
    const auto block = const_cast<BYTE*>(bytes);
    note("DialogBoxIndirectParamA(" + named(memory) + ", " + named(owner) + ")");
    auto& d = dialogs();
    d.instance = instance;
    d.memory.assign(bytes, bytes + desk::blocks().at(block));
    d.owner = owner;
    d.procedure = procedure;
    d.parameter = parameter;
    d.opened++;
    return d.script ? d.script() : -1;
}

DESK_FUNCTION(BOOL, EndDialog, HWND wnd, INT_PTR result) {
    note("EndDialog(" + named(wnd) + ", " + std::to_string(result) + ")");
    return TRUE;
}

DESK_FUNCTION(BOOL, GetClientRect, HWND wnd, LPRECT rect) {
    note("GetClientRect(" + named(wnd) + ")");
    *rect = {0, 0, dialogs().client.cx, dialogs().client.cy};
    return TRUE;
}

DESK_FUNCTION(BOOL, SetWindowPos, HWND wnd, HWND after, int x, int y, int width, int height, UINT flags) {
    note("SetWindowPos(" + named(wnd) + ", " + (after == HWND_TOPMOST ? "TOPMOST" : named(after)) + ", " +
         std::to_string(x) + ", " + std::to_string(y) + ", " + std::to_string(width) + ", " +
         std::to_string(height) + ", " + std::to_string(flags) + ")");
    return TRUE;
}

DESK_FUNCTION(HDC, BeginPaint, HWND wnd, PAINTSTRUCT* paint) {
    note("BeginPaint(" + named(wnd) + ")");
    *paint = {};
    return nullptr;
}

DESK_FUNCTION(BOOL, EndPaint, HWND wnd, const PAINTSTRUCT*) {
    note("EndPaint(" + named(wnd) + ")");
    return TRUE;
}

DESK_FUNCTION(HINSTANCE, ShellExecuteA, HWND wnd, LPCSTR operation, LPCSTR target, LPCSTR parameters,
              LPCSTR folder, INT show) {
    note("ShellExecuteA(" + named(wnd) + ", " + quoted(operation) + ", " + quoted(target) + ", " +
         quoted(parameters) + ", " + quoted(folder) + ", " + std::to_string(show) + ")");
    return nullptr;
}
