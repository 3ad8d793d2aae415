#ifndef PLATFORM_PORTABLE_QUEUE_H
#define PLATFORM_PORTABLE_QUEUE_H

#include <string>

#include "input.h"

// What waits for the host: posted messages, and the input that the desktop reported.
namespace platform {

// One event of keyboard or mouse, in the order of its arrival. The window that gets it is found when it is
// taken, since focus and capture may change in between.
struct Input {
    enum class Kind { key, text, mouse, focus };
    Kind kind = Kind::key;
    HWND wnd = nullptr; // mouse: under the pointer; focus: gained or lost
    UINT message = 0;
    WPARAM wparam = 0;
    LPARAM lparam = 0; // of keys
    DWORD time = 0;
    POINT screen{}; // the pointer

    int virtual_key = 0; // whose state changes when the message is taken, left and right told apart; 0: none
    bool down = false;   // key and button: pressed; focus: gained
    unsigned locks = 0;  // as of the event
    int symbol = 0;      // the layout's character of a key, 0: none
    std::u16string text; // that the key types
};

void queue_input(const Input& input);
// The youngest event that waits; null: none.
Input* last_input();
// Forgets everything that waits, for tests.
void clear_queue();

// Turns waiting input into a message; false: it is for nobody. `take`: it leaves the queue, and its
// consequences (key state, cursor, activation) take place.
bool key_message(const Input& input, bool take, MSG* msg);
bool mouse_message(const Input& input, bool take, MSG* msg);

// A WM_PAINT or WM_TIMER that is due, for the window (null: any).
bool paint_message(HWND wnd, MSG* msg);
bool timer_message(HWND wnd, bool take, MSG* msg);
// Calls the procedure that a WM_TIMER names, if it is one of a timer that runs.
void call_timer(const MSG& msg);
// Milliseconds until the next timer is due; -1: there is none.
int timer_wait();

POINT pointer_position(); // screen coordinates
void set_pointer_position(POINT point);

} // namespace platform

#endif
