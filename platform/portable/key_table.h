#ifndef PLATFORM_PORTABLE_KEY_TABLE_H
#define PLATFORM_PORTABLE_KEY_TABLE_H

// Where the keys of a keyboard lie, and what they are called. Usable on every system.
namespace platform {

struct KeyRow {
    int scancode;    // the desktop's: usage number of the USB keyboard page
    int virtual_key; // left and right told apart; on the pad: with Num Lock off
    int scan;        // scan code, set 1
    bool extended;
    int num_key = 0; // on the pad: with Num Lock on; 0: the same
};

// Null: no such key.
const KeyRow* find_key(int scancode);
// All rows, for whoever walks them.
const KeyRow* key_rows(int* count);

} // namespace platform

#endif
