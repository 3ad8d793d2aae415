#ifndef BRASK_POPUP_H
#define BRASK_POPUP_H

#include <brask/export.h>

// Questions and messages in a window of their own, above all others. The call returns when the user has
// answered; the host's windows are painted and its timers run meanwhile, but the active window, which owns
// the pop-up, takes no input. There is one pop-up at a time: a call from within another one's, by a timer for
// instance, is refused with a report and -1. Call from the thread of the host's windows.
//
//   level    caption and colour of the window: what begins as "warning" does in five letters is yellow,
//            "error" red, anything else grey; case does not matter. Null: grey, no caption
//   title    stands over the message; null: none
//   text     the message; null: empty. It is a format without arguments: %% prints one percent sign, any
//            conversion nothing. A line feed begins a line, lines do not wrap, and a text of fewer than 1025
//            characters loses what is beyond 1023. A longer one is cut in place at its line feeds, so that
//            the caller's text is its first line afterwards; its empty lines are left out, and each line may
//            have 1023 characters
//   dx, dy   wished size, pixels; 0: 300 by 150; at least 200 by 120. The screen and 750 by 550 dialog units
//            bound it, and the user may change it
//   help     a document or an address for the desktop to open by a "Help" button, at most 1023 bytes of
//            UTF-8; null or empty: no such button
//
// A press on a button is the answer; keys give none.

// Asks. `buttons` is a list of 1 to 10 words ended by null; null: "No", "Yes". The index of the word pressed;
// -1 when the window was closed or could not be made, and, with a report, for a list of another length.
BRASK_API int PopUp_Query(const wchar_t* level, const wchar_t* title, wchar_t* text,
                          const wchar_t* const* buttons, int dx, int dy, const char* help);

// Tells: the same with the one word "OK".
BRASK_API int PopUp_Message(const wchar_t* level, const wchar_t* title, wchar_t* text, int dx, int dy,
                            const char* help);

#endif
