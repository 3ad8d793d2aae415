#include "characters.h"
#include "desktop_events.h"
#include "keyboard_state.h"
#include "keys.h"
#include "messages.h"
#include "process.h"
#include "queue.h"
#include "window_state.h"

// Keyboard events and changes of focus on their way to the host.
namespace platform {

static bool change_focus(const Input& input, bool take) {
    if (take) activate_window(find_window(input.wnd) ? input.wnd : nullptr, WA_ACTIVE);
    return false; // the host hears of it by sent messages
}

bool key_message(const Input& input, bool take, MSG* msg) {
    if (input.kind == Input::Kind::focus) return change_focus(input, take);
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
    Input input;
    input.kind = Input::Kind::focus;
    input.wnd = gained ? wnd : nullptr;
    queue_input(input);
}

} // namespace platform
