#include <brask/tools.h>

#include "foundation/popup_controls.h"

// What exists from the loading of the library on. The order of the lines is that of their making, and the end
// runs the other way round; everything in front of them and in the drawing layer is there without being made.

int BORDER = 3;
int SPACE = 6;
int CURSEUR = 16;
int BUT_DIM = 25;
int NUM_DIM = 48;
int VAL_DIM = 26;
int VAL_SMALL = 18;
unsigned char Tool_Looks = 0;

namespace brask {

Boxs Popup_Box;
Buttons Popup_Help;
Buttons Popup_Buttons[POPUP_BUTTONS];
Texts Popup_Text;

} // namespace brask

int BUT_LIST = BUT_DIM; // follows what the build gives BUT_DIM, not what a host gives it later
