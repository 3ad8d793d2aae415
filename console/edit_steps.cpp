#include "console/edit_steps.h"

#include <algorithm>
#include <cstring>
#include <cwchar>

#include <brask/keyboard.h>

#include "console/store.h"
#include "text/printable.h"

namespace brask {

namespace {

struct Key {
    int code;
    Edit_Action action;
};
// Where an action has two, the second is the key of the numeric pad.
constexpr Key KEYS[] = {
    {KEY_EXTENDED + VK_END, Edit_Action::end},
    {KEY_PAD + VK_NUMPAD1, Edit_Action::end},
    {KEY_EXTENDED + VK_HOME, Edit_Action::home},
    {KEY_PAD + VK_NUMPAD7, Edit_Action::home},
    {KEY_EXTENDED + VK_LEFT, Edit_Action::left},
    {KEY_PAD + VK_NUMPAD4, Edit_Action::left},
    {KEY_EXTENDED + VK_RIGHT, Edit_Action::right},
    {KEY_PAD + VK_NUMPAD6, Edit_Action::right},
    {KEY_EXTENDED + VK_UP, Edit_Action::older},
    {KEY_PAD + VK_NUMPAD8, Edit_Action::older},
    {KEY_EXTENDED + VK_DOWN, Edit_Action::newer},
    {KEY_PAD + VK_NUMPAD2, Edit_Action::newer},
    {KEY_EXTENDED + VK_DELETE, Edit_Action::del},
    {KEY_PAD + VK_DELETE, Edit_Action::del},
    {VK_RETURN, Edit_Action::enter},
    {KEY_PAD + VK_RETURN, Edit_Action::enter},
    {VK_BACK, Edit_Action::backspace},
    {VK_ESCAPE, Edit_Action::escape},
    {KEY_CTRL + 'V', Edit_Action::paste},
    {KEY_PAD + VK_DECIMAL, Edit_Action::point},
    {KEY_SHIFT, Edit_Action::shift_bit},
};

// Takes one character out of the line, if there is one.
void take_out(Texts& console, int at) {
    const int length = edit_length(console);
    if (at < 0 || at >= length) return;
    std::wmemmove(console.Edit_Line + at, console.Edit_Line + at + 1, static_cast<std::size_t>(length - at));
}

bool is_digit(wchar_t c) { return c >= L'0' && c <= L'9'; }
bool is_one_of(wchar_t c, const wchar_t* set) { return std::wcschr(set, c) != nullptr; }

// Copies an entry into the emptied line.
template <typename Shown>
void show_entry(Texts& console, const wchar_t* entry, Shown shown) {
    int length = 0;
    for (; entry[length] && length < LINE_ROOM - 1; length++)
        console.Edit_Line[length] = shown(entry[length]) ? entry[length] : L' ';
    console.Edit_Pos = length;
}

// The entry of the history at a place, null when there is none.
const wchar_t* entry_at(const Texts& console, int place) {
    return console.History && place >= 0 && place < HISTORY_ROOM ? console.History[place] : nullptr;
}

} // namespace

Edit_Action edit_action(int key) {
    for (const Key& each : KEYS)
        if (each.code == key) return each.action;
    return key < 32 ? Edit_Action::control : Edit_Action::type;
}

int moved_caret(Edit_Action action, int caret, int length) {
    switch (action) {
    case Edit_Action::end: return length;
    case Edit_Action::home: return 0;
    case Edit_Action::left: return caret > 0 ? caret - 1 : caret;
    case Edit_Action::right: return caret < length ? caret + 1 : caret;
    default: return caret;
    }
}

void erase_before(Texts& console) {
    if (console.Edit_Pos > 0) take_out(console, --console.Edit_Pos);
}

void erase_behind(Texts& console) { take_out(console, console.Edit_Pos); }

bool insert(Texts& console, wchar_t character) {
    const int length = edit_length(console);
    if (length >= TYPED_MOST) return false;
    console.Edit_Pos = std::clamp(console.Edit_Pos, 0, length);
    wchar_t* const at = console.Edit_Line + console.Edit_Pos++;
    std::wmemmove(at + 1, at, static_cast<std::size_t>(console.Edit_Line + length + 1 - at));
    *at = character;
    return true;
}

bool passes_filters(DWORD flags, wchar_t c) {
    if (flags & TEXTS_FLOAT && !is_digit(c) && !is_one_of(c, L"+-.e")) return false;
    if (flags & TEXTS_INTEGER && !is_digit(c) && !is_one_of(c, L"+-")) return false;
    if (flags & TEXTS_HEX && !is_digit(c) && !is_one_of(c, L"abcdefABCDEF")) return false;
    return true;
}

bool recall_older(Texts& console) {
    const wchar_t* entry = entry_at(console, console.Hist_Pos);
    if (!entry) return false;
    console.Hist_Pos++;
    std::memset(console.Edit_Line, 0, sizeof console.Edit_Line);
    show_entry(console, entry, [](wchar_t c) { return text::printable(static_cast<char32_t>(c)); });
    return true;
}

void recall_newer(Texts& console) {
    std::memset(console.Edit_Line, 0, sizeof console.Edit_Line);
    console.Edit_Pos = 0;
    const wchar_t* entry = console.Hist_Pos > 0 ? entry_at(console, console.Hist_Pos - 1) : nullptr;
    if (!entry) return;
    console.Hist_Pos--;
    show_entry(console, entry,
               [](wchar_t c) { return text::printable_ascii(static_cast<unsigned char>(c)); });
}

} // namespace brask
