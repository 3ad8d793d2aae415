// Keyboard messages through both translations: any numbers do no harm, and a key that arrives as a pair of
// messages is told once.

#include <brask/keyboard.h>

#include "input.h"
#include "support/desk.h"
#include "support/recorder.h"

namespace {

constexpr long long extended_bit = 1 << 24;
constexpr int modifiers = KEY_SHIFT | KEY_CTRL | KEY_ALT;
constexpr const char* close_posted = "PostMessageW(";

int posted() {
    int count = 0;
    for (const recorder::Line& line : recorder::log())
        count += line.text.compare(0, 13, close_posted) == 0;
    return count;
}

struct Held {
    bool shift, ctrl, alt;
};

Held hold_some(Input& input) {
    desk::reset();
    const unsigned mask = input.below(8);
    const Held held = {(mask & 1) != 0, (mask & 2) != 0, (mask & 4) != 0};
    if (held.shift) desk::hold(VK_SHIFT);
    if (held.ctrl) desk::hold(VK_CONTROL);
    if (held.alt) desk::hold(VK_MENU);
    return held;
}

int bits(const Held& held) {
    return (held.shift ? KEY_SHIFT : 0) | (held.ctrl ? KEY_CTRL : 0) | (held.alt ? KEY_ALT : 0);
}

// A key whose character follows it, as the desktop sends them.
struct Pair {
    unsigned key;
    unsigned character;
};

Pair some_pair(Input& input, const Held& held) {
    static constexpr Pair control_keys[] = {{VK_BACK, 8}, {VK_TAB, 9}, {VK_RETURN, 13}};
    static constexpr Pair pad_keys[] = {
        {VK_MULTIPLY, '*'}, {VK_ADD, '+'}, {VK_SUBTRACT, '-'}, {VK_DECIMAL, '.'}, {VK_DIVIDE, '/'}};
    switch (input.below(4)) {
    case 0: return input.among(control_keys);
    case 1: return input.among(pad_keys);
    case 2: return {'0' + input.below(10), '0' + input.below(10)};
    default: {
        const unsigned letter = input.below(26);
        return {'A' + letter, held.ctrl ? letter + 1 : (held.shift ? 'A' : 'a') + letter};
    }
    }
}

void check_pair(Input& input) {
    Held held = hold_some(input);
    const Pair pair = some_pair(input, held);
    const long long down = static_cast<long long>(1 + (input.below(127) << 16)) & ~(0x4CLL << 16);
    const int first = Parse_Keyboard(recorder::window(), WM_KEYDOWN, pair.key, down);
    const int second = Parse_Keyboard(recorder::window(), WM_CHAR, pair.character, down);
    const bool told_first = (first & ~modifiers) != 0, told_second = second != 0;
    expect(told_first != told_second, "a key and its character are told once");
    expect((first & modifiers) == bits(held), "modifiers of a key");
    if (told_second)
        expect(second == ((bits(held) & ~KEY_SHIFT) | static_cast<int>(pair.character)),
               "a character as it came");
}

void check_dialog(Input& input) {
    const Held held = hold_some(input);
    const unsigned key = input.below(256);
    recorder::clear();
    const int code = Parse_Dialog(recorder::window(), WM_KEYDOWN, key, 0);
    expect(posted() == (key == VK_ESCAPE), "Escape alone closes");
    if (key >= 'A' && key <= 'Z') {
        const int letter = static_cast<int>(key) + (held.shift ? 0 : 'a' - 'A');
        expect(code == (letter | (bits(held) & ~KEY_SHIFT)), "a letter in a dialog");
    }
}

unsigned some_message(Input& input) {
    static constexpr unsigned messages[] = {WM_KEYDOWN,  WM_CHAR,      WM_KEYUP, WM_SYSKEYDOWN,
                                            WM_SYSKEYUP, WM_USER_CHAR, WM_PAINT};
    return input.one_in(8) ? input.word() : input.among(messages);
}

// Any message with any parameters.
void check_any(Input& input) {
    hold_some(input);
    const unsigned message = some_message(input);
    const unsigned long long key = input.one_in(4)
                                       ? static_cast<unsigned long long>(input.word()) << 32 | input.word()
                                       : input.below(256);
    const long long more = static_cast<long long>(input.word()) | (input.one_in(3) ? extended_bit : 0);
    recorder::clear();
    const int code = Parse_Keyboard(recorder::window(), message, key, more);
    const bool escape =
        (message == WM_CHAR && key == VK_ESCAPE) || (message == WM_USER_CHAR && (key & 0x7F) == VK_ESCAPE);
    expect(posted() == escape, "Escape as a character closes, nothing else does");
    expect(!escape || code == 0, "Escape is told to nobody else");
    if (message != WM_KEYDOWN)
        expect(Parse_Dialog(recorder::window(), message, key, more) == 0, "no other message");
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    Input input(data, size);
    recorder::reset();
    while (!input.empty()) {
        // A character may be on its way from the messages before: let it come.
        Parse_Keyboard(recorder::window(), WM_CHAR, ' ', 0);
        if (input.one_in(2))
            check_pair(input);
        else if (input.one_in(2))
            check_dialog(input);
        else
            check_any(input);
        recorder::clear();
    }
    return 0;
}
