#ifndef FOUNDATION_POPUP_CONTROLS_H
#define FOUNDATION_POPUP_CONTROLS_H

#include <brask/boxs.h>
#include <brask/buttons.h>
#include <brask/texts.h>

namespace brask {

// The controls of the pop-up windows. They live as long as the library is loaded and serve one pop-up at a
// time.
inline constexpr int POPUP_BUTTONS = 10;

extern Boxs Popup_Box;                       // the ground
extern Buttons Popup_Help;                   // opens the help
extern Buttons Popup_Buttons[POPUP_BUTTONS]; // the answers
extern Texts Popup_Text;                     // the message, under the title as its name

} // namespace brask

#endif
