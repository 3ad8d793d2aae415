#include "desk.h"

#include <algorithm>
#include <cstdio>
#include <mutex>
#include <utility>

#include "desk_function.h"
#include "recorder.h"

namespace desk {

struct Drive {
    bool present;
    unsigned type;
    const wchar_t* label;
};

struct State {
    int key_states[256] = {};
    bool now[256] = {};
    HCURSOR shown = nullptr;
    std::vector<Made> fonts;
    int dpi_x = 96, dpi_y = 96;
    bool refuse = false;
    HGDIOBJ selected = nullptr;
    Drive drives[26] = {};
};
static State state;
static std::uintptr_t fonts_made = 0; // goes on over resets: the library's cache remembers old handles

static int cursor_blocks[64];

HCURSOR cursor(const wchar_t* standard) {
    const auto id = static_cast<int>(reinterpret_cast<std::uintptr_t>(standard) - 32512);
    const auto handle = reinterpret_cast<HCURSOR>(&cursor_blocks[id & 31]);
    recorder::name(handle, id == 0 ? "arrow" : id == 2 ? "wait" : id == 3 ? "cross" : "other");
    return handle;
}

HCURSOR own_cursor(int number) {
    const auto handle = reinterpret_cast<HCURSOR>(&cursor_blocks[32 + number]);
    recorder::name(handle, "own" + std::to_string(number));
    return handle;
}

static int pen_blocks[2]; // the one that a context starts with, and the one that is made
static HPEN pen(int number) {
    const auto handle = reinterpret_cast<HPEN>(&pen_blocks[number]);
    recorder::name(handle, number ? "pen" : "standard pen");
    return handle;
}

void reset() {
    state = State();
    clipboard() = Clipboard();
    state.selected = pen(0);
    state.shown = own_cursor(0);
}

void hold(int key) {
    state.key_states[key & 255] = 0xFF80;
    state.now[key & 255] = true;
}
void let_go(int key) {
    state.key_states[key & 255] = 0;
    state.now[key & 255] = false;
}
void key_state(int key, int bits) { state.key_states[key & 255] = bits; }

HCURSOR shown() { return state.shown; }
void show(HCURSOR cursor) { state.shown = cursor; }

std::vector<Made>& fonts() { return state.fonts; }
void resolution(int x, int y) {
    state.dpi_x = x;
    state.dpi_y = y;
}
void refuse_fonts(bool refuse) { state.refuse = refuse; }

void drive(char letter, unsigned type, const wchar_t* label) {
    state.drives[letter - 'A'] = {true, type, label};
}
static const Drive& drive_of(const wchar_t* path) { return state.drives[path[0] - L'A']; }

static void note(const std::string& line) { recorder::note(recorder::kSystem, line); }

} // namespace desk

using desk::note;
using recorder::named;

DESK_FUNCTION(SHORT, GetKeyState, int key) { return static_cast<SHORT>(desk::state.key_states[key & 255]); }

DESK_FUNCTION(SHORT, GetAsyncKeyState, int key) {
    return static_cast<SHORT>(desk::state.now[key & 255] ? 0x8000 : 0);
}

DESK_FUNCTION(HCURSOR, LoadCursorW, HINSTANCE instance, LPCWSTR name) {
    const HCURSOR cursor = desk::cursor(name);
    note("LoadCursorW(" + named(instance) + ", " + named(cursor) + ")");
    return cursor;
}

DESK_FUNCTION(HCURSOR, SetCursor, HCURSOR cursor) {
    note("SetCursor(" + named(cursor) + ")");
    const HCURSOR before = desk::state.shown;
    desk::state.shown = cursor;
    return before;
}

DESK_FUNCTION(BOOL, PostMessageW, HWND wnd, UINT message, WPARAM wparam, LPARAM lparam) {
    note("PostMessageW(" + named(wnd) + ", " + std::to_string(message) + ", " + std::to_string(wparam) +
         ", " + std::to_string(lparam) + ")");
    return TRUE;
}

DESK_FUNCTION(HFONT, CreateFontIndirectW, const LOGFONTW* font) {
    note("CreateFontIndirectW(" + std::to_string(font->lfHeight) + ", " + std::to_string(font->lfWeight) +
         ", " + std::to_string(font->lfItalic) + ", " + recorder::quoted(font->lfFaceName) + ")");
    if (desk::state.refuse) return nullptr;
    const auto handle = reinterpret_cast<HFONT>(0x70000000 + 16 * ++desk::fonts_made);
    desk::state.fonts.push_back({handle, *font, false});
    return handle;
}

DESK_FUNCTION(BOOL, DeleteObject, HGDIOBJ object) {
    note("DeleteObject(" + named(object) + ")");
    for (desk::Made& font : desk::state.fonts)
        if (font.handle == object) font.deleted = true;
    return TRUE;
}

DESK_FUNCTION(HPEN, CreatePen, int style, int width, COLORREF color) {
    note("CreatePen(" + std::to_string(style) + ", " + std::to_string(width) + ", " + std::to_string(color) +
         ")");
    return desk::pen(1);
}

DESK_FUNCTION(HGDIOBJ, SelectObject, HDC dc, HGDIOBJ object) {
    note("SelectObject(" + named(dc) + ", " + named(object) + ")");
    return std::exchange(desk::state.selected, object);
}

DESK_FUNCTION(BOOL, AngleArc, HDC dc, int x, int y, DWORD radius, FLOAT start, FLOAT sweep) {
    note("AngleArc(" + named(dc) + ", " + std::to_string(x) + ", " + std::to_string(y) + ", " +
         std::to_string(radius) + ", " + std::to_string(static_cast<int>(start)) + ", " +
         std::to_string(static_cast<int>(sweep)) + ")");
    return TRUE;
}

DESK_FUNCTION(int, GetDeviceCaps, HDC dc, int index) {
    note("GetDeviceCaps(" + named(dc) + ", " + std::to_string(index) + ")");
    return index == LOGPIXELSX ? desk::state.dpi_x : index == LOGPIXELSY ? desk::state.dpi_y : 0;
}

DESK_FUNCTION(int, SetGraphicsMode, HDC dc, int mode) {
    note("SetGraphicsMode(" + named(dc) + ", " + std::to_string(mode) + ")");
    return 1;
}

DESK_FUNCTION(BOOL, ModifyWorldTransform, HDC dc, const XFORM*, DWORD mode) {
    note("ModifyWorldTransform(" + named(dc) + ", " + std::to_string(mode) + ")");
    return TRUE;
}

DESK_FUNCTION(BOOL, SetViewportOrgEx, HDC dc, int x, int y, LPPOINT) {
    note("SetViewportOrgEx(" + named(dc) + ", " + std::to_string(x) + ", " + std::to_string(y) + ")");
    return TRUE;
}

DESK_FUNCTION(BOOL, SetWindowOrgEx, HDC dc, int x, int y, LPPOINT) {
    note("SetWindowOrgEx(" + named(dc) + ", " + std::to_string(x) + ", " + std::to_string(y) + ")");
    return TRUE;
}

// One logical unit is one pixel.
DESK_FUNCTION(BOOL, DPtoLP, HDC dc, LPPOINT points, int count) {
    std::string line = "DPtoLP(" + named(dc);
    for (int i = 0; i < count; ++i)
        line += ", " + std::to_string(points[i].x) + ", " + std::to_string(points[i].y);
    note(line + ")");
    return TRUE;
}

DESK_FUNCTION(DWORD, GetLogicalDrives) {
    note("GetLogicalDrives()");
    DWORD mask = 0;
    for (int i = 0; i < 26; ++i)
        mask |= static_cast<DWORD>(desk::state.drives[i].present) << i;
    return mask;
}

DESK_FUNCTION(UINT, GetDriveTypeW, LPCWSTR root) {
    note("GetDriveTypeW(" + recorder::quoted(root) + ")");
    return desk::drive_of(root).type;
}

DESK_FUNCTION(BOOL, GetVolumeInformationW, LPCWSTR root, LPWSTR name, DWORD room, LPDWORD, LPDWORD, LPDWORD,
              LPWSTR, DWORD) {
    note("GetVolumeInformationW(" + recorder::quoted(root) + ", " + std::to_string(room) + ")");
    const std::wstring label = desk::drive_of(root).label ? desk::drive_of(root).label : L"";
    if (!desk::drive_of(root).label || label.size() >= room) return FALSE;
    name[label.copy(name, label.size())] = 0;
    return TRUE;
}

#ifndef _WIN32
// A file of the system, whose path may have drive C in front.
extern "C" std::FILE* _wfopen(const wchar_t* path, const wchar_t* mode) {
    std::string native = recorder::narrow(path[0] && path[1] == L':' ? path + 2 : path);
    std::replace(native.begin(), native.end(), '\\', '/');
    return std::fopen(native.c_str(), recorder::narrow(mode).c_str());
}

extern "C" BOOL SetRect(RECT* rect, int left, int top, int right, int bottom) {
    *rect = {left, top, right, bottom};
    return TRUE;
}

extern "C" BOOL PtInRect(const RECT* rect, POINT point) {
    return point.x >= rect->left && point.x < rect->right && point.y >= rect->top && point.y < rect->bottom;
}

static std::recursive_mutex& mutex(CRITICAL_SECTION* section) {
    return *static_cast<std::recursive_mutex*>(section->state);
}
extern "C" void InitializeCriticalSection(CRITICAL_SECTION* section) {
    note("InitializeCriticalSection()");
    section->state = new std::recursive_mutex;
}
extern "C" void EnterCriticalSection(CRITICAL_SECTION* section) {
    mutex(section).lock();
    note("EnterCriticalSection()");
}
extern "C" void LeaveCriticalSection(CRITICAL_SECTION* section) {
    note("LeaveCriticalSection()");
    mutex(section).unlock();
}
extern "C" void DeleteCriticalSection(CRITICAL_SECTION* section) {
    delete static_cast<std::recursive_mutex*>(section->state);
    section->state = nullptr;
}
#endif
