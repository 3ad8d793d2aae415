#include "characters.h"
#include "desktop.h"
#include "desktop_events.h"
#include "keyboard_state.h"
#include "keys.h"
#include "messages.h"
#include "modal.h"
#include "process.h"
#include "queue.h"
#include "window_state.h"

// Keyboard events and changes of focus on their way to the host.
namespace platform {

// The host hears of it by sent messages.
static void change_focus(const Input& input) {
    if (input.down) {
        const HWND used = modal_of(input.wnd);
        if (used != input.wnd) desktop_raise(*find_window(used));
        activate_window(used, WA_ACTIVE);
    } else if (GetActiveWindow() == input.wnd) { // or another one of ours has been activated meanwhile
        activate_window(nullptr, WA_INACTIVE);
    }
}

bool key_message(const Input& input, bool take, MSG* msg) {
    if (input.kind == Input::Kind::focus) {
        if (take) change_focus(input);
        return false;
    }
    if (take && input.kind == Input::Kind::key) {
        keys_taken().set(input.virtual_key, input.down);
        keys_taken().set_locks(input.locks);
    }
    const HWND focus = GetFocus();
    if (!find_window(focus)) return false;
    *msg = {focus, input.message, input.wparam, input.lparam, input.time, input.screen};
    if (take && input.kind == Input::Kind::key) note_taken_key(input, *msg);
    return true;
}

void desktop_focus(HWND wnd, bool gained) {
    if (!find_window(wnd)) return;
    if (!gained) release_keys(GetTickCount());
    Input change;
    change.kind = Input::Kind::focus;
    change.wnd = wnd;
    change.down = gained;
    Input* last = last_input();
    // From one window of ours to another it passes in one step.
    if (gained && last && last->kind == Input::Kind::focus && !last->down) {
        *last = change;
    } else {
        queue_input(change);
    }
}

} // namespace platform
