#include <array>
#include <utility>

#include "desktop_events.h"
#include "key_table.h"
#include "keyboard_state.h"
#include "keys.h"
#include "messages.h"
#include "process.h"
#include "queue.h"
#include "text/unicode.h"

// From keys of the desktop to key messages.
namespace platform {

// What a key that is down counts as: it is released as the same, whatever the locks say by then.
struct Held {
    int key = 0; // left and right told apart; 0: not held
    int scan = 0;
    bool extended = false;
    bool on_pad = false;
};

struct Keyboard {
    std::array<Held, 512> held{};
    bool alt_alone = false; // Alt went down and nothing else since
    Held lifted;            // the Shift that is let go of while a pad key is held, Num Lock on
};
static Keyboard keyboard;

static bool is_modifier(int key) { return common_key(key) != key; }

// Letters, and the signs that have a virtual key on every layout, go by what the layout has on the key.
static int key_by_symbol(int symbol) {
    if (symbol >= 'a' && symbol <= 'z') return symbol - 'a' + 'A';
    switch (symbol) {
    case ',': return VK_OEM_COMMA;
    case '.': return VK_OEM_PERIOD;
    case '-': return VK_OEM_MINUS;
    case '+': return VK_OEM_PLUS;
    }
    return 0;
}

static bool is_text_key(const KeyRow& row) {
    const int key = row.virtual_key;
    return (key >= 'A' && key <= 'Z') || (key >= VK_OEM_1 && key <= VK_OEM_102);
}

static bool shift_is_meant() { return keys_now().is_down(VK_SHIFT) || keyboard.lifted.key; }

static Held resolve(const KeyRow& row, const DesktopKey& key) {
    Held held = {row.virtual_key, row.scan, row.extended, row.num_key != 0};
    const bool control = keys_now().is_down(VK_CONTROL);
    if (held.on_pad && key.locks & kNumLock && !shift_is_meant()) held.key = row.num_key;
    if (row.virtual_key == VK_PAUSE && control) held = {VK_CANCEL, 0x46, true, false};
    if (row.virtual_key == VK_SCROLL && control) held = {VK_CANCEL, 0x46, false, false};
    if (const int by_symbol = is_text_key(row) ? key_by_symbol(key.symbol) : 0) held.key = by_symbol;
    return held;
}

// Alt without Ctrl makes system keys, and F10 is one by itself. Alt's own release is one only when no other
// key came between.
static bool is_system_key(int key, bool down, bool alt_before) {
    const bool control = keys_now().is_down(VK_CONTROL);
    bool system = alt_before && !control;
    if (common_key(key) == VK_MENU) {
        system = down ? !control : keyboard.alt_alone;
        keyboard.alt_alone = down && system;
        return system;
    }
    if (common_key(key) == VK_CONTROL) system = alt_before && !down;
    if (key == VK_F10) system = true;
    if (system) keyboard.alt_alone = false;
    return system;
}

static LPARAM key_word(const Held& held, bool was_down, bool down) {
    DWORD word = 1 | static_cast<DWORD>(held.scan) << 16;
    if (held.extended) word |= static_cast<DWORD>(KF_EXTENDED) << 16;
    if (keys_now().is_down(VK_MENU)) word |= static_cast<DWORD>(KF_ALTDOWN) << 16;
    if (was_down || !down) word |= static_cast<DWORD>(KF_REPEAT) << 16;
    if (!down) word |= static_cast<DWORD>(KF_UP) << 16;
    return static_cast<LPARAM>(word);
}

static void queue_key(const Held& held, const DesktopKey& from, bool down) {
    const bool alt_before = keys_now().is_down(VK_MENU);
    const bool was_down = keys_now().is_down(held.key);
    keys_now().set(held.key, down);
    keys_now().set_locks(from.locks);
    const bool system = is_system_key(held.key, down, alt_before);
    Input input;
    input.kind = Input::Kind::key;
    input.message = down ? (system ? WM_SYSKEYDOWN : WM_KEYDOWN) : (system ? WM_SYSKEYUP : WM_KEYUP);
    input.wparam = static_cast<WPARAM>(common_key(held.key));
    input.lparam = key_word(held, was_down, down);
    input.time = from.time;
    input.screen = pointer_position();
    input.virtual_key = held.key;
    input.down = down;
    input.locks = from.locks;
    input.symbol = from.symbol;
    queue_input(input);
}

// With Num Lock on, Shift turns a pad digit into its other meaning: the key is then seen without Shift, which
// is let go of before it and pressed again after it.
static void lift_shift(const DesktopKey& from) {
    for (const Held& held : keyboard.held) {
        if (common_key(held.key) != VK_SHIFT || !keys_now().is_down(held.key)) continue;
        keyboard.lifted = held;
        queue_key(held, from, false);
    }
}

static void restore_shift(const DesktopKey& from) {
    const Held shift = std::exchange(keyboard.lifted, Held());
    if (shift.key) queue_key(shift, from, true);
}

static void press(const KeyRow& row, const DesktopKey& key) {
    Held& held = keyboard.held[static_cast<std::size_t>(row.scancode)];
    const bool repeated = held.key != 0;
    if (!repeated) held = resolve(row, key);
    const bool lifts = held.on_pad && key.locks & kNumLock && held.key == row.virtual_key;
    if (!repeated && lifts && keys_now().is_down(VK_SHIFT)) lift_shift(key);
    if (!held.on_pad) restore_shift(key);
    if (held.key == VK_SNAPSHOT) return; // its press is never told
    queue_key(held, key, true);
}

static void release(const KeyRow& row, const DesktopKey& key) {
    const Held held = std::exchange(keyboard.held[static_cast<std::size_t>(row.scancode)], Held());
    if (!held.key) return;
    if (held.key == keyboard.lifted.key) { // it has been let go of already
        keyboard.lifted = Held();
        return;
    }
    queue_key(held, key, false);
    if (held.on_pad) restore_shift(key);
}

void desktop_key(const DesktopKey& key) {
    const KeyRow* row = find_key(key.scancode);
    if (!row || key.alt_graph || static_cast<std::size_t>(row->scancode) >= keyboard.held.size()) return;
    if (key.down) {
        press(*row, key);
    } else {
        release(*row, key);
    }
}

void release_keys(DWORD time) {
    DesktopKey up;
    up.time = time;
    up.locks = keys_now().locks();
    for (std::size_t code = 0; code < keyboard.held.size(); code++) {
        up.scancode = static_cast<int>(code);
        if (keyboard.held[code].key) desktop_key(up);
    }
    keyboard.alt_alone = false;
}

static std::u16string utf16(const char* utf8) {
    std::u16string units;
    while (const char32_t code = text::next(utf8)) {
        if (code >= 0x10000) {
            units += static_cast<char16_t>(0xD7C0 + (code >> 10));
            units += static_cast<char16_t>(0xDC00 + (code & 0x3FF));
        } else {
            units += static_cast<char16_t>(code);
        }
    }
    return units;
}

void desktop_text(const char* utf8, DWORD time) {
    if (!utf8) return;
    Input* last = last_input();
    if (last && last->kind == Input::Kind::key && last->down && !is_modifier(last->virtual_key)) {
        last->text += utf16(utf8);
        return;
    }
    for (const char16_t unit : utf16(utf8)) { // an input method's, without a key of its own
        Input input;
        input.kind = Input::Kind::text;
        input.message = WM_CHAR;
        input.wparam = unit;
        input.lparam = 1;
        input.time = time;
        input.screen = pointer_position();
        queue_input(input);
    }
}

} // namespace platform
