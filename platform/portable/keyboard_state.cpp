#include "keyboard_state.h"

#include <cstring>

#include "desktop_events.h"
#include "input.h"
#include "key_table.h"
#include "keys.h"

namespace platform {

struct Pair {
    int common, left, right;
};
static const Pair kPairs[] = {
    {VK_SHIFT, VK_LSHIFT, VK_RSHIFT},
    {VK_CONTROL, VK_LCONTROL, VK_RCONTROL},
    {VK_MENU, VK_LMENU, VK_RMENU},
};

static const Pair* pair_of(int key) {
    for (const Pair& pair : kPairs) {
        if (key == pair.left || key == pair.right) return &pair;
    }
    return nullptr;
}

int common_key(int key) {
    const Pair* pair = pair_of(key);
    return pair ? pair->common : key;
}

static void set_one(BYTE& state, bool down) {
    const bool was_down = state & 0x80;
    if (down && !was_down) state ^= 1; // every press toggles
    state = static_cast<BYTE>((state & 1) | (down ? 0x80 : 0));
}

void KeyState::set(int key, bool down) {
    set_one(keys[key & 0xFF], down);
    if (const Pair* pair = pair_of(key))
        set_one(keys[pair->common], is_down(pair->left) || is_down(pair->right));
}

void KeyState::set_locks(unsigned locks) {
    const auto toggle = [this](int key, bool on) {
        keys[key] = static_cast<BYTE>((keys[key] & 0x80) | (on ? 1 : 0));
    };
    toggle(VK_NUMLOCK, locks & kNumLock);
    toggle(VK_CAPITAL, locks & kCapsLock);
}

unsigned KeyState::locks() const {
    return (keys[VK_NUMLOCK] & 1 ? kNumLock : 0) | (keys[VK_CAPITAL] & 1 ? kCapsLock : 0);
}

KeyState& keys_now() {
    static KeyState state;
    return state;
}

KeyState& keys_taken() {
    static KeyState state;
    return state;
}

struct MouseFlag {
    int key;
    int flag;
};
static const MouseFlag kMouseFlags[] = {
    {VK_LBUTTON, MK_LBUTTON}, {VK_RBUTTON, MK_RBUTTON},   {VK_MBUTTON, MK_MBUTTON},   {VK_SHIFT, MK_SHIFT},
    {VK_CONTROL, MK_CONTROL}, {VK_XBUTTON1, MK_XBUTTON1}, {VK_XBUTTON2, MK_XBUTTON2},
};

WORD mouse_flags(const KeyState& state) {
    int flags = 0;
    for (const MouseFlag& row : kMouseFlags) {
        if (state.is_down(row.key)) flags |= row.flag;
    }
    return static_cast<WORD>(flags);
}

static UINT scan_of(UINT key) {
    for (const Pair& pair : kPairs) {
        if (static_cast<int>(key) == pair.common) key = static_cast<UINT>(pair.left);
    }
    int count = 0;
    const KeyRow* rows = key_rows(&count);
    for (int i = 0; i < count; i++) {
        if (rows[i].virtual_key == static_cast<int>(key) || rows[i].num_key == static_cast<int>(key)) {
            return static_cast<UINT>(rows[i].scan);
        }
    }
    return 0;
}

static UINT key_of(UINT scan) {
    const bool extended = (scan >> 8) == 0xE0;
    int count = 0;
    const KeyRow* rows = key_rows(&count);
    for (int i = 0; i < count; i++) {
        if (rows[i].scan == static_cast<int>(scan & 0xFF) && rows[i].extended == extended) {
            return static_cast<UINT>(rows[i].virtual_key);
        }
    }
    return 0;
}

static UINT character_of(UINT key) {
    if ((key >= '0' && key <= '9') || (key >= 'A' && key <= 'Z') || key == VK_SPACE) return key;
    return 0;
}

} // namespace platform

using namespace platform;

extern "C" {

SHORT GetKeyState(int key) {
    const BYTE state = key >= 0 && key < 256 ? keys_taken().keys[key] : BYTE{0};
    return static_cast<SHORT>((state & 0x80 ? 0xFF80 : 0) | (state & 1));
}

SHORT GetAsyncKeyState(int key) {
    return static_cast<SHORT>(key >= 0 && key < 256 && keys_now().is_down(key) ? 0x8000 : 0);
}

BOOL GetKeyboardState(BYTE* keys) {
    if (!keys) return FALSE;
    std::memcpy(keys, keys_taken().keys, sizeof keys_taken().keys);
    return TRUE;
}

BOOL SetKeyboardState(BYTE* keys) {
    if (!keys) return FALSE;
    std::memcpy(keys_taken().keys, keys, sizeof keys_taken().keys);
    return TRUE;
}

UINT MapVirtualKeyW(UINT code, UINT direction) {
    switch (direction) {
    case MAPVK_VK_TO_VSC: return scan_of(code);
    case MAPVK_VSC_TO_VK: return static_cast<UINT>(common_key(static_cast<int>(key_of(code))));
    case MAPVK_VSC_TO_VK_EX: return key_of(code);
    case MAPVK_VK_TO_CHAR: return character_of(code);
    }
    return 0;
}
}
