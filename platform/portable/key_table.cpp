#include "key_table.h"

#include <algorithm>

#ifdef _WIN32
#include <windows.h>
#else
#include "keys.h"
#endif

namespace platform {

// In the order of the first column.
static const KeyRow kRows[] = {
    // Letters, in alphabetical order.
    {4, 'A', 0x1E, false},
    {5, 'B', 0x30, false},
    {6, 'C', 0x2E, false},
    {7, 'D', 0x20, false},
    {8, 'E', 0x12, false},
    {9, 'F', 0x21, false},
    {10, 'G', 0x22, false},
    {11, 'H', 0x23, false},
    {12, 'I', 0x17, false},
    {13, 'J', 0x24, false},
    {14, 'K', 0x25, false},
    {15, 'L', 0x26, false},
    {16, 'M', 0x32, false},
    {17, 'N', 0x31, false},
    {18, 'O', 0x18, false},
    {19, 'P', 0x19, false},
    {20, 'Q', 0x10, false},
    {21, 'R', 0x13, false},
    {22, 'S', 0x1F, false},
    {23, 'T', 0x14, false},
    {24, 'U', 0x16, false},
    {25, 'V', 0x2F, false},
    {26, 'W', 0x11, false},
    {27, 'X', 0x2D, false},
    {28, 'Y', 0x15, false},
    {29, 'Z', 0x2C, false},
    // Digits, 1 to 9 and 0.
    {30, '1', 0x02, false},
    {31, '2', 0x03, false},
    {32, '3', 0x04, false},
    {33, '4', 0x05, false},
    {34, '5', 0x06, false},
    {35, '6', 0x07, false},
    {36, '7', 0x08, false},
    {37, '8', 0x09, false},
    {38, '9', 0x0A, false},
    {39, '0', 0x0B, false},
    // The rest of the main block.
    {40, VK_RETURN, 0x1C, false},
    {41, VK_ESCAPE, 0x01, false},
    {42, VK_BACK, 0x0E, false},
    {43, VK_TAB, 0x0F, false},
    {44, VK_SPACE, 0x39, false},
    {45, VK_OEM_MINUS, 0x0C, false},
    {46, VK_OEM_PLUS, 0x0D, false},
    {47, VK_OEM_4, 0x1A, false},
    {48, VK_OEM_6, 0x1B, false},
    {49, VK_OEM_5, 0x2B, false},
    {50, VK_OEM_5, 0x2B, false},
    {51, VK_OEM_1, 0x27, false},
    {52, VK_OEM_7, 0x28, false},
    {53, VK_OEM_3, 0x29, false},
    {54, VK_OEM_COMMA, 0x33, false},
    {55, VK_OEM_PERIOD, 0x34, false},
    {56, VK_OEM_2, 0x35, false},
    {57, VK_CAPITAL, 0x3A, false},
    // Function keys, and those beside them.
    {58, VK_F1, 0x3B, false},
    {59, VK_F2, 0x3C, false},
    {60, VK_F3, 0x3D, false},
    {61, VK_F4, 0x3E, false},
    {62, VK_F5, 0x3F, false},
    {63, VK_F6, 0x40, false},
    {64, VK_F7, 0x41, false},
    {65, VK_F8, 0x42, false},
    {66, VK_F9, 0x43, false},
    {67, VK_F10, 0x44, false},
    {68, VK_F11, 0x57, false},
    {69, VK_F12, 0x58, false},
    {70, VK_SNAPSHOT, 0x37, true},
    {71, VK_SCROLL, 0x46, false},
    {72, VK_PAUSE, 0x45, false},
    // Navigation.
    {73, VK_INSERT, 0x52, true},
    {74, VK_HOME, 0x47, true},
    {75, VK_PRIOR, 0x49, true},
    {76, VK_DELETE, 0x53, true},
    {77, VK_END, 0x4F, true},
    {78, VK_NEXT, 0x51, true},
    {79, VK_RIGHT, 0x4D, true},
    {80, VK_LEFT, 0x4B, true},
    {81, VK_DOWN, 0x50, true},
    {82, VK_UP, 0x48, true},
    // The pad.
    {83, VK_NUMLOCK, 0x45, true},
    {84, VK_DIVIDE, 0x35, true},
    {85, VK_MULTIPLY, 0x37, false},
    {86, VK_SUBTRACT, 0x4A, false},
    {87, VK_ADD, 0x4E, false},
    {88, VK_RETURN, 0x1C, true},
    {89, VK_END, 0x4F, false, VK_NUMPAD1},
    {90, VK_DOWN, 0x50, false, VK_NUMPAD2},
    {91, VK_NEXT, 0x51, false, VK_NUMPAD3},
    {92, VK_LEFT, 0x4B, false, VK_NUMPAD4},
    {93, VK_CLEAR, 0x4C, false, VK_NUMPAD5},
    {94, VK_RIGHT, 0x4D, false, VK_NUMPAD6},
    {95, VK_HOME, 0x47, false, VK_NUMPAD7},
    {96, VK_UP, 0x48, false, VK_NUMPAD8},
    {97, VK_PRIOR, 0x49, false, VK_NUMPAD9},
    {98, VK_INSERT, 0x52, false, VK_NUMPAD0},
    {99, VK_DELETE, 0x53, false, VK_DECIMAL},
    // Keys of larger keyboards.
    {100, VK_OEM_102, 0x56, false},
    {101, VK_APPS, 0x5D, true},
    {103, VK_OEM_NEC_EQUAL, 0x59, false},
    {104, VK_F13, 0x64, false},
    {105, VK_F14, 0x65, false},
    {106, VK_F15, 0x66, false},
    {107, VK_F16, 0x67, false},
    {108, VK_F17, 0x68, false},
    {109, VK_F18, 0x69, false},
    {110, VK_F19, 0x6A, false},
    {111, VK_F20, 0x6B, false},
    {112, VK_F21, 0x6C, false},
    {113, VK_F22, 0x6D, false},
    {114, VK_F23, 0x6E, false},
    {115, VK_F24, 0x76, false},
    {117, VK_HELP, 0x63, false},
    {127, VK_VOLUME_MUTE, 0x20, true},
    {128, VK_VOLUME_UP, 0x30, true},
    {129, VK_VOLUME_DOWN, 0x2E, true},
    // The two further keys of Brazilian keyboards have no names.
    {133, 0xC2, 0x7E, false},
    {135, 0xC1, 0x73, false},
    {136, VK_KANA, 0x70, false},
    {138, VK_CONVERT, 0x79, false},
    {139, VK_NONCONVERT, 0x7B, false},
    // Modifiers.
    {224, VK_LCONTROL, 0x1D, false},
    {225, VK_LSHIFT, 0x2A, false},
    {226, VK_LMENU, 0x38, false},
    {227, VK_LWIN, 0x5B, true},
    {228, VK_RCONTROL, 0x1D, true},
    {229, VK_RSHIFT, 0x36, false},
    {230, VK_RMENU, 0x38, true},
    {231, VK_RWIN, 0x5C, true},
    // Keys of media and browsers, under numbers of the desktop library.
    {258, VK_MEDIA_NEXT_TRACK, 0x19, true},
    {259, VK_MEDIA_PREV_TRACK, 0x10, true},
    {260, VK_MEDIA_STOP, 0x24, true},
    {261, VK_MEDIA_PLAY_PAUSE, 0x22, true},
    {262, VK_VOLUME_MUTE, 0x20, true},
    {263, VK_LAUNCH_MEDIA_SELECT, 0x6D, true},
    {265, VK_LAUNCH_MAIL, 0x6C, true},
    {266, VK_LAUNCH_APP2, 0x21, true},
    {267, VK_LAUNCH_APP1, 0x6B, true},
    {268, VK_BROWSER_SEARCH, 0x65, true},
    {269, VK_BROWSER_HOME, 0x32, true},
    {270, VK_BROWSER_BACK, 0x6A, true},
    {271, VK_BROWSER_FORWARD, 0x69, true},
    {272, VK_BROWSER_STOP, 0x68, true},
    {273, VK_BROWSER_REFRESH, 0x67, true},
    {274, VK_BROWSER_FAVORITES, 0x66, true},
    {282, VK_SLEEP, 0x5F, true},
};

const KeyRow* key_rows(int* count) {
    *count = sizeof kRows / sizeof *kRows;
    return kRows;
}

const KeyRow* find_key(int scancode) {
    const KeyRow* end = kRows + sizeof kRows / sizeof *kRows;
    const KeyRow* row = std::lower_bound(kRows, end, scancode,
                                         [](const KeyRow& each, int code) { return each.scancode < code; });
    return row != end && row->scancode == scancode ? row : nullptr;
}

} // namespace platform
