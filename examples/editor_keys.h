#ifndef EXAMPLES_EDITOR_KEYS_H
#define EXAMPLES_EDITOR_KEYS_H

#include <brask/keyboard.h>

// What a console's editor shall be given for a key: `code` is what Parse_Keyboard made of the message. The
// editor takes any code that it does not know for a character. So only characters and its own keys are passed
// on: these with Shift, Ctrl and Alt taken off, operators of the pad as the characters on them. 0: nothing.
inline int editor_key(UINT message, WPARAM wparam, int code) {
    if (!code) return 0;
    if (message == WM_CHAR) return int(wparam); // without the Ctrl and Alt of an AltGr
    if (code == (KEY_CTRL | 'V')) return code;  // paste
    // With Alt the digits of the pad spell a character, which Windows types when Alt comes up.
    constexpr int spelling = KEY_ALT | KEY_PAD;
    if (code >= (spelling | VK_NUMPAD0) && code <= (spelling | VK_NUMPAD9)) return 0;
    const int key = code & ~(KEY_SHIFT | KEY_CTRL | KEY_ALT);
    switch (key) {
    case VK_BACK:
    case VK_RETURN:
    case KEY_PAD | VK_RETURN:
    case KEY_PAD | VK_DELETE:
    case KEY_PAD | VK_DECIMAL:
    case KEY_PAD | VK_NUMPAD1: // End, Down, Left, Right, Home, Up of the pad
    case KEY_PAD | VK_NUMPAD2:
    case KEY_PAD | VK_NUMPAD4:
    case KEY_PAD | VK_NUMPAD6:
    case KEY_PAD | VK_NUMPAD7:
    case KEY_PAD | VK_NUMPAD8:
    case KEY_EXTENDED | VK_END:
    case KEY_EXTENDED | VK_HOME:
    case KEY_EXTENDED | VK_LEFT:
    case KEY_EXTENDED | VK_UP:
    case KEY_EXTENDED | VK_RIGHT:
    case KEY_EXTENDED | VK_DOWN:
    case KEY_EXTENDED | VK_DELETE: return key;
    case KEY_PAD | VK_MULTIPLY: return '*';
    case KEY_PAD | VK_ADD: return '+';
    case KEY_PAD | VK_SUBTRACT: return '-';
    case KEY_PAD | VK_DIVIDE: return '/';
    }
    return 0;
}

#endif
