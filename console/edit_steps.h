#ifndef CONSOLE_EDIT_STEPS_H
#define CONSOLE_EDIT_STEPS_H

#include <brask/texts.h>

// What a key does to the line under edit and its caret, apart from what is painted. A host may have put the
// caret anywhere.
namespace brask {

enum class Edit_Action {
    // move the caret
    end,
    home,
    left,
    right,
    // take a character away, before the caret and behind it
    backspace,
    del,
    // walk the history
    older,
    newer,
    // complete the line, give it up, type what the clipboard holds
    enter,
    escape,
    paste,
    // type a full stop, or the character that the code stands for
    point,
    type,
    // nothing
    control,
    shift_bit,
};
// Of a code of Parse_Keyboard, or of any other number.
Edit_Action edit_action(int key);

// Where a moving action takes the caret in a line of that length.
int moved_caret(Edit_Action action, int caret, int length);

// The caret goes back by one, and the character that it passes goes away.
void erase_before(Texts& console);
// The character behind the caret goes away.
void erase_behind(Texts& console);

// Typing stops at this length: one character fewer than the buffer holds.
inline constexpr int TYPED_MOST = 1022;
// Puts a character before the caret; false when the line is full. A caret outside of the line goes to its
// nearer end first.
bool insert(Texts& console, wchar_t character);

// Does the character pass every filter that is set? The order of the characters in a line is not looked at.
bool passes_filters(DWORD flags, wchar_t character);

// The next entry of the history, up or down, as the line with the caret behind it. The position stands
// behind the entry shown, so that the first step back shows the same entry again. Upward nothing happens at
// the oldest entry, and the answer is false; downward the line is emptied where there is none. What the two
// can show differs, on purpose: upward every printable character, downward by its low byte in ASCII; a blank
// stands for others.
bool recall_older(Texts& console);
void recall_newer(Texts& console);

} // namespace brask

#endif
