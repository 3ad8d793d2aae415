#include <brask/keyboard.h>

#include <brask/fenn.h>
#include <brask/pointer.h>

namespace {

using Key = unsigned long long; // a virtual key or a character as the message carries it

constexpr unsigned REPORT_KEYS = 0x90000027;

// --- What the tables say of a key ----------------------------------------------------------------------

// Keys `first` to `last` give `code` and what follows it.
struct Row {
    Key first, last;
    int code;
    bool skip_char; // its WM_CHAR will follow and is to be swallowed
    bool with_ctrl; // only while Ctrl is down
};

// Keys whose extended bit is clear: the navigation keys among them are those of the pad, by their digits.
constexpr Row PLAIN_ROWS[] = {
    {VK_BACK, VK_TAB, VK_BACK, true, false},
    {VK_RETURN, VK_RETURN, VK_RETURN, true, false},
    {VK_PRIOR, VK_PRIOR, KEY_PAD + VK_NUMPAD9, false, false},
    {VK_NEXT, VK_NEXT, KEY_PAD + VK_NUMPAD3, false, false},
    {VK_END, VK_END, KEY_PAD + VK_NUMPAD1, false, false},
    {VK_HOME, VK_HOME, KEY_PAD + VK_NUMPAD7, false, false},
    {VK_LEFT, VK_LEFT, KEY_PAD + VK_NUMPAD4, false, false},
    {VK_UP, VK_UP, KEY_PAD + VK_NUMPAD8, false, false},
    {VK_RIGHT, VK_RIGHT, KEY_PAD + VK_NUMPAD6, false, false},
    {VK_DOWN, VK_DOWN, KEY_PAD + VK_NUMPAD2, false, false},
    {VK_INSERT, VK_INSERT, KEY_PAD + VK_NUMPAD0, false, false},
    {VK_DELETE, VK_DELETE, KEY_PAD + VK_DELETE, true, false},
    {VK_MULTIPLY, VK_ADD, KEY_PAD + VK_MULTIPLY, true, false},
    {VK_SUBTRACT, VK_DIVIDE, KEY_PAD + VK_SUBTRACT, true, false},
    {VK_NUMPAD0, VK_NUMPAD9, KEY_NUM + VK_NUMPAD0, false, false},
    {VK_F1, VK_F12, KEY_EXTENDED + VK_F1, false, false},
    {VK_SCROLL, VK_SCROLL, KEY_EXTENDED + VK_SCROLL, false, false},
    {'0', '9', '0', true, true},
    {'A', 'Z', 'A', true, true},
};
constexpr Row EXTENDED_ROWS[] = {
    {VK_RETURN, VK_RETURN, KEY_PAD + VK_RETURN, true, false},
    {VK_MULTIPLY, VK_ADD, KEY_PAD + VK_MULTIPLY, true, false},
    {VK_SUBTRACT, VK_DIVIDE, KEY_PAD + VK_SUBTRACT, true, false},
    {VK_PRIOR, VK_DOWN, KEY_EXTENDED + VK_PRIOR, false, false},
    {VK_INSERT, VK_DELETE, KEY_EXTENDED + VK_INSERT, false, false},
};
// With Alt down.
constexpr Row SYSTEM_ROWS[] = {
    {VK_PRIOR, VK_DOWN, KEY_EXTENDED + VK_PRIOR, false, false},
    {VK_INSERT, VK_DELETE, KEY_EXTENDED + VK_INSERT, false, false},
    {VK_F1, VK_F12, KEY_EXTENDED + VK_F1, false, false},
};

// Alt and a key of the pad, told by the scan code with the bit for Alt held.
struct Pad_Row {
    unsigned high_word;
    int code;
};
constexpr int ALT_PAD = KEY_PAD + KEY_ALT;
constexpr Pad_Row PAD_ROWS[] = {
    {0x2037, ALT_PAD + VK_MULTIPLY}, {0x204E, ALT_PAD + VK_ADD},     {0x204A, ALT_PAD + VK_SUBTRACT},
    {0x2053, ALT_PAD + VK_DECIMAL},  {0x2135, ALT_PAD + VK_DIVIDE},  {0x2052, ALT_PAD + VK_NUMPAD0},
    {0x204F, ALT_PAD + VK_NUMPAD1},  {0x2050, ALT_PAD + VK_NUMPAD2}, {0x2051, ALT_PAD + VK_NUMPAD3},
    {0x204B, ALT_PAD + VK_NUMPAD4},  {0x204C, ALT_PAD + VK_NUMPAD5}, {0x204D, ALT_PAD + VK_NUMPAD6},
    {0x2047, ALT_PAD + VK_NUMPAD7},  {0x2048, ALT_PAD + VK_NUMPAD8}, {0x2049, ALT_PAD + VK_NUMPAD9},
};
constexpr unsigned PAD_MIDDLE = 0x4C; // the pad's 5, Num Lock off, unrepeated

template <int COUNT>
const Row* find(const Row (&rows)[COUNT], Key key, bool ctrl = true) {
    for (const Row& row : rows)
        if (key >= row.first && key <= row.last && (ctrl || !row.with_ctrl)) return &row;
    return nullptr;
}

int code_of(const Row* row, Key key) { return row ? row->code + static_cast<int>(key - row->first) : 0; }

// --- Modifiers -----------------------------------------------------------------------------------------

bool shift_down() { return getkey(VK_SHIFT) != 0; }
bool ctrl_down() { return getkey(VK_CONTROL) != 0; }
int alt_ctrl() { return (getkey(VK_MENU) ? KEY_ALT : 0) + (ctrl_down() ? KEY_CTRL : 0); }
int modifiers() { return alt_ctrl() + (shift_down() ? KEY_SHIFT : 0); }

// The sum of modifier bits and a key; a message may carry any number.
int add(int bits, Key key) {
    return static_cast<int>(static_cast<unsigned>(bits) + static_cast<unsigned>(key));
}

// --- One message ---------------------------------------------------------------------------------------

struct Message {
    HWND wnd;
    Key key;
    unsigned high_word; // scan code, extended bit, Alt held, repeated
    bool extended;
};

// What is made of a message, and by which way.
struct Answer {
    int key;
    const char* tag;
    bool coded; // the tag ends in a code
    unsigned code;
};
Answer plain(int key, const char* tag) { return {key, tag, false, 0}; }
Answer coded(int key, const char* tag, int code) { return {key, tag, true, static_cast<unsigned>(code)}; }

bool Skip_Char = false; // a key was delivered whose WM_CHAR has yet to come

Answer close(HWND wnd, const char* tag) {
    PostMessageW(wnd, WM_CLOSE, 0, 0);
    return plain(0, tag);
}

Answer key_down(const Message& m) {
    if (m.high_word == PAD_MIDDLE) return plain(modifiers() + KEY_PAD + VK_NUMPAD5, "WM_KEYDOWN:0x0004c");
    if (!m.extended && (m.key == VK_SHIFT || m.key == VK_CONTROL))
        return plain(static_cast<int>(m.key), "WM_KEYDOWN:CTRLKEY/SHIFTKEY");
    const Row* row = m.extended ? find(EXTENDED_ROWS, m.key) : find(PLAIN_ROWS, m.key, ctrl_down());
    if (row && row->skip_char) Skip_Char = true;
    const int code = code_of(row, m.key);
    const int key = modifiers() + code;
    // The tag of the plain keys is that of a character, as the traces have always had it.
    return m.extended ? plain(key, "WM_KEYDOWN:extended keys") : coded(key, "WM_CHAR:", code);
}

Answer character(const Message& m) {
    if (m.key == VK_ESCAPE) return close(m.wnd, "WM_CHAR:ESC");
    if (Skip_Char) {
        Skip_Char = false;
        return plain(0, "WM_CHAR:skip");
    }
    const int key = add(alt_ctrl(), m.key);
    return coded(key, "WM_CHAR:", key);
}

// The print key has no key-down worth acting on.
Answer key_up(const Message& m) {
    if (m.key != VK_PRINT && m.key != VK_SNAPSHOT) return plain(0, "WM_KEYUP:0");
    return plain(modifiers() + KEY_EXTENDED + VK_PRINT, "WM_KEYUP:VK_PRINT");
}

Answer system_key_down(const Message& m) {
    for (const Pad_Row& row : PAD_ROWS)
        if (row.high_word == m.high_word) return plain(row.code, "WM_SYSKEYDOWN:PAD");
    if (m.key == VK_MENU) return plain(VK_MENU, "WM_SYSKEYDOWN:ALTKEY");
    int key;
    if (m.key == VK_RETURN || m.key == VK_SEPARATOR)
        key = modifiers() + VK_RETURN + (m.extended ? KEY_PAD : 0);
    else if (const Row* row = find(SYSTEM_ROWS, m.key))
        key = modifiers() + code_of(row, m.key);
    else
        key = add(modifiers(), m.key);
    return coded(key, "WM_SYSKEYDOWN:", key);
}

// A key that the host pushes in.
Answer user_char(const Message& m) {
    const Key key = m.key & 127;
    if (key == VK_ESCAPE) return close(m.wnd, "WM_USER_CHAR:ESC");
    if (key >= '0' && key <= '9') return plain(static_cast<int>(key), "WM_USER_CHAR:0-9");
    if (m.extended)
        return plain(modifiers() + code_of(find(EXTENDED_ROWS, key), key), "WM_USER_CHAR:extended keys");
    if (key == VK_SHIFT || key == VK_CONTROL)
        return plain(static_cast<int>(key), "WM_USER_CHAR:CTRLKEY/SHIFTKEY");
    if (key == VK_DELETE || (key >= VK_MULTIPLY && key <= VK_DIVIDE && key != VK_SEPARATOR)) Skip_Char = true;
    const bool lower = key >= 'A' && key <= 'Z' && !shift_down();
    const int result = add(alt_ctrl(), lower ? key + 32 : key);
    return coded(result, "WM_USER_CHAR:", result);
}

Answer translate(unsigned int message, const Message& m) {
    switch (message) {
    case WM_KEYDOWN: return key_down(m);
    case WM_CHAR: return character(m);
    case WM_KEYUP: return key_up(m);
    case WM_SYSKEYDOWN: return system_key_down(m);
    case WM_SYSKEYUP: return plain(0, "WM_SYSKEYUP:0");
    case WM_USER_CHAR: return user_char(m);
    default: return plain(0, "not found");
    }
}

} // namespace

int Parse_Keyboard(HWND wnd, unsigned int message, unsigned long long wParam, long long lParam) {
    Error_Fct(hwnd, REPORT_KEYS, ">>> in  Lib_Brask: Parse_Keyboard(%08x)", message);
    const Message m = {wnd, wParam, static_cast<unsigned>(lParam >> 16) & 0xFFFF, (lParam >> 24 & 1) != 0};
    const Answer answer = translate(message, m);
    if (answer.coded)
        Error_Fct(hwnd, REPORT_KEYS, "<<< out Lib_Brask: Parse_Keyboard(%hs%08X)", answer.tag, answer.code);
    else
        Error_Fct(hwnd, REPORT_KEYS, "<<< out Lib_Brask: Parse_Keyboard(%hs)", answer.tag);
    return answer.key;
}

// --- Dialogs -------------------------------------------------------------------------------------------

namespace {

// Keys of the US layout that give characters, and nothing of the modifiers but Shift.
struct Typed {
    Key key;
    char alone, shifted;
};
constexpr Typed TYPED[] = {
    {'0', '0', ')'},
    {'1', '1', '!'},
    {'2', '2', '@'},
    {'3', '3', '#'},
    {'4', '4', '$'},
    {'5', '5', '%'},
    {'6', '6', '^'},
    {'7', '7', '&'},
    {'8', '8', '*'},
    {'9', '9', '('},
    {187, '=', '+'},
    {189, '-', '_'},
    {220, '\\', '|'},
    // Of the pad's digits only these two: the others come out as letters, by the rule for all other keys.
    {VK_NUMPAD0, '0', '0'},
    {VK_NUMPAD9, '9', '9'},
};

} // namespace

int Parse_Dialog(HWND wnd, unsigned int message, unsigned long long wParam, long long) {
    if (message != WM_KEYDOWN) return 0;
    const Key key = wParam;
    if (key == VK_ESCAPE) return close(wnd, "").key;
    if ((key >= VK_PRIOR && key <= VK_DOWN) || key == VK_INSERT || key == VK_DELETE)
        return KEY_EXTENDED + static_cast<int>(key);
    const bool shift = shift_down();
    for (const Typed& typed : TYPED)
        if (typed.key == key) return shift ? typed.shifted : typed.alone;
    if (!shift && key >= 'A' && key <= 'Z') return add(alt_ctrl(), key + 32);
    if (shift && key >= 'a' && key <= 'z') return add(alt_ctrl(), key - 32);
    return add(alt_ctrl(), key);
}
