#ifndef PLATFORM_PORTABLE_KEYBOARD_STATE_H
#define PLATFORM_PORTABLE_KEYBOARD_STATE_H

#include "types.h"

// Which keys and mouse buttons are down: now, as the desktop told, and as of the last message that was taken.
namespace platform {

struct KeyState {
    BYTE keys[256] = {}; // 0x80 down, 1 toggled

    bool is_down(int key) const { return keys[key & 0xFF] & 0x80; }
    // Left and right modifiers carry the common one along.
    void set(int key, bool down);
    void set_locks(unsigned locks);
    unsigned locks() const;
};

KeyState& keys_now();
KeyState& keys_taken();

// Lets go of every key that is held, as when the keyboard goes to somebody else.
void release_keys(DWORD time);
// VK_LSHIFT -> VK_SHIFT and so on; others stay.
int common_key(int key);
// MK_ flags of the mouse messages.
WORD mouse_flags(const KeyState& state);

} // namespace platform

#endif
