#ifndef POPUP_POPUP_WINDOW_H
#define POPUP_POPUP_WINDOW_H

#include <brask/platform.h>

namespace brask {

// What the pop-up that is up shows. Texts are the caller's.
struct Popup_State {
    const wchar_t* title;
    wchar_t* body;
    const wchar_t* const* labels; // ended by null
    int count;                    // of answer buttons in use
    DWORD color;                  // of the ground, red in the low byte
    char help_topic[1024];        // empty: no help button
    int wheel;                    // movement not yet used, in the platform's units
};
extern Popup_State Popup;

// The case of the letters apart, do the first five of the text and of the word agree?
bool begins_like(const wchar_t* text, const wchar_t* word);

// The window's procedure, for the dialog manager.
INT_PTR CALLBACK Dialog_Popup_Proc(HWND wnd, UINT message, WPARAM wparam, LPARAM lparam);

} // namespace brask

#endif
