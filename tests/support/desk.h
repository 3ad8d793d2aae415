#ifndef SUPPORT_DESK_H
#define SUPPORT_DESK_H

#include <string>
#include <vector>

#include <brask/platform.h>

// A double of the platform's functions that the controls call, so that a test program needs neither a
// desktop nor the platform. Calls are noted in the recorder's log, apart from SetRect, PtInRect and _wfopen,
// which opens real files; off Windows so are those of the critical section.
//
// On Windows the double takes the place of the imported functions; rectangles, files and the critical section
// are the system's own there.
namespace desk {

void reset(); // keys up, the arrow shown, 96 dots per inch, fonts granted; numbers of fonts go on

// --- Keys and mouse buttons ---
void hold(int key); // down, for both questions
void let_go(int key);
void key_state(int key, int state); // what GetKeyState answers, bit by bit

// --- Cursors ---
HCURSOR cursor(const wchar_t* standard); // the handle that LoadCursor gives for it
HCURSOR own_cursor(int number);          // cursors that no LoadCursor gives: own1, own2, ...
HCURSOR shown();
void show(HCURSOR cursor); // without a note

// --- Fonts ---
struct Made {
    HFONT handle;
    LOGFONTW description;
    bool deleted;
};
std::vector<Made>& fonts(); // all since the last reset
void resolution(int x, int y);
void refuse_fonts(bool refuse);

// --- The clipboard ---
struct Clipboard {
    std::vector<wchar_t> units; // the block that it gives, with or without a terminator
    bool text = false;          // there is text
    bool opens = true;          // it can be opened
    bool gives = true;          // it hands its block over
    bool locks = true;          // the block can be looked into
};
Clipboard& clipboard();
void copy(const std::wstring& text); // with a terminator

// --- Drives; none after a reset ---
void drive(char letter, unsigned type, const wchar_t* label); // a null label: the volume does not answer

} // namespace desk

#endif
