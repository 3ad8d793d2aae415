#include "characters.h"

#include "keyboard_state.h"
#include "keys.h"
#include "messages.h"
#include "queue.h"
#include "window_state.h"

// From key messages to the characters that they type.
namespace platform {

// The key whose message was taken last, with what the desktop said that it types.
struct TakenKey {
    MSG msg{};
    std::u16string text;
    int symbol = 0;
};
static TakenKey& taken_key() {
    static auto& key = *new TakenKey;
    return key;
}

// Keys with the same characters on every layout; -1: none.
struct FixedKey {
    int key;
    int plain, control, control_shift;
};
static const FixedKey kFixed[] = {
    {VK_CANCEL, 3, 3, -1},      {VK_BACK, 8, 127, -1},    {VK_TAB, 9, -1, -1},    {VK_RETURN, 13, 10, -1},
    {VK_ESCAPE, 27, 27, -1},    {VK_SPACE, -1, ' ', -1},  {VK_OEM_4, -1, 27, -1}, {VK_OEM_5, -1, 28, -1},
    {VK_OEM_6, -1, 29, -1},     {VK_OEM_102, -1, 28, -1}, {'2', -1, -1, 0},       {'6', -1, -1, 30},
    {VK_OEM_MINUS, -1, -1, 31},
};

// What a pad key types when the desktop gave no text with it.
static int pad_character(int key) {
    if (key >= VK_NUMPAD0 && key <= VK_NUMPAD9) return key - VK_NUMPAD0 + '0';
    switch (key) {
    case VK_MULTIPLY: return '*';
    case VK_ADD: return '+';
    case VK_SUBTRACT: return '-';
    case VK_DECIMAL: return '.';
    case VK_DIVIDE: return '/';
    }
    return -1;
}

static std::u16string one(int character) {
    return character < 0 ? std::u16string() : std::u16string(1, static_cast<char16_t>(character));
}

static const FixedKey* fixed_key(int key) {
    for (const FixedKey& row : kFixed) {
        if (row.key == key) return &row;
    }
    return nullptr;
}

static std::u16string control_text(int key, bool shift, bool alt) {
    if (alt) return {};
    if (key >= 'A' && key <= 'Z') return one(key - 'A' + 1);
    const FixedKey* row = fixed_key(key);
    return one(!row ? -1 : shift ? row->control_shift : row->control);
}

// The layout's character for a key that typed nothing because of Alt.
static std::u16string symbol_text(int symbol, const KeyState& state) {
    if (symbol < ' ' || symbol == 127 || symbol > 0xFFFF) return {};
    const bool upper = state.is_down(VK_SHIFT) != ((state.keys[VK_CAPITAL] & 1) != 0);
    return one(upper && symbol >= 'a' && symbol <= 'z' ? symbol - 'a' + 'A' : symbol);
}

static std::u16string typed_text(const MSG& msg) {
    const KeyState& state = keys_taken();
    const int key = static_cast<int>(msg.wParam & 0xFF);
    if (state.is_down(VK_CONTROL)) return control_text(key, state.is_down(VK_SHIFT), state.is_down(VK_MENU));
    const FixedKey* row = fixed_key(key);
    if (row && row->plain >= 0) return one(row->plain);
    const bool system = msg.message == WM_SYSKEYDOWN;
    // On Windows they spell the number of a character with Alt; here an input method does that.
    if (system && key >= VK_NUMPAD0 && key <= VK_NUMPAD9) return {};
    const TakenKey& taken = taken_key();
    const bool known = msg.hwnd == taken.msg.hwnd && msg.message == taken.msg.message &&
                       msg.wParam == taken.msg.wParam && msg.lParam == taken.msg.lParam &&
                       msg.time == taken.msg.time;
    if (known && !taken.text.empty()) return taken.text;
    if (const int character = pad_character(key); character >= 0) return one(character);
    return known && system ? symbol_text(taken.symbol, state) : std::u16string();
}

void note_taken_key(const Input& input, const MSG& msg) { taken_key() = {msg, input.text, input.symbol}; }

} // namespace platform

using namespace platform;

extern "C" {

BOOL TranslateMessage(const MSG* msg) {
    if (!msg || msg->message < WM_KEYDOWN || msg->message > WM_SYSKEYUP) return FALSE;
    if (msg->message == WM_CHAR || msg->message == WM_DEADCHAR) return FALSE;
    if (msg->message == WM_KEYUP || msg->message == WM_SYSKEYUP) return TRUE;
    const UINT message = msg->message == WM_SYSKEYDOWN ? WM_SYSCHAR : WM_CHAR;
    for (const char16_t unit : typed_text(*msg))
        PostMessageW(msg->hwnd, message, unit, msg->lParam);
    return TRUE;
}
}
