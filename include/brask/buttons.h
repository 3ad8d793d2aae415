#ifndef BRASK_BUTTONS_H
#define BRASK_BUTTONS_H

#include <brask/tools.h>

// Flags of a button, beside the shared ones of <brask/tools.h>.
inline constexpr DWORD BUTTON_LAMP = 0x100000;       // a lamp at the left; the label moves 8 pixels right
inline constexpr DWORD BUTTON_LAMP_COLOR = 0x200000; // Lamp_Color selects among all colours

// A rectangular button with an optional lamp and a label. It knows nothing of pressing: it follows the
// pointer, shows that it is under it, and shows Cur_Value, which belongs to the host. What a click means
// the host decides: it changes Cur_Value and calls Adjust.
//
//   momentary   Cur_Value 1, Adjust, do the work, Cur_Value 0, Adjust
//   toggle      flip Cur_Value on a click, Adjust
//   lamp        BUTTON_LAMP and Lamp_Color
//   picture     Graph_Normal and/or Graph_Select given by the host
//   frame only  OUTIL_EMPTY
//   outline     GRAPH_OUTLINE
class BRASK_API Buttons : public Tools {
  public:
    int Cur_Value;           // the host's value: 0 up, anything else down; default 0
    unsigned int Lamp_Color; // 0 grey, 1 green, 2 blue, 3 yellow, others red; without BUTTON_LAMP_COLOR
                             // every index but 0 is yellow; default 0
    int Shown;               // not read by the button; lists keep an item's visibility here
    int select;              // tracking: 0 none, 1 pointer inside, 2 pointer outside; kept by the button

    // What is shown for each look and value: views on the faces below or on the host's surfaces.
    DWORD* Image_Normal_Off;
    DWORD* Image_Normal_On;
    DWORD* Image_Select_Off;
    DWORD* Image_Select_On;

    // Generated faces; owned by the button, shared with its copies; null where the host gave a surface.
    DWORD* Own_Normal_Off;
    DWORD* Own_Normal_On;
    DWORD* Own_Select_Off;
    DWORD* Own_Select_On;

    unsigned int Old_Value; // Cur_Value at the last Init, Draw or effective Adjust; kept by the button

    Buttons();
    Buttons(const Buttons& other);
    Buttons& operator=(const Buttons& other);
    ~Buttons();

    // Binds the button to its window and builds the faces that changed. wnd null keeps the window; a
    // button whose Color is black gets the grey (170, 170, 170).
    void Init(HWND wnd);
    // Paints the whole button. Needs Init.
    void Draw();
    // Repaints after a change of Cur_Value or Lamp_Color. Without a lamp an unchanged value paints nothing.
    void Adjust();
    // Follows the pointer for one event word (see Tools); 1 when the pointer is on the button, else 0.
    int Select(int mode);
    // Cur_Value, whatever the size.
    int Read();
    // Gives the normal look back if the selected one is shown.
    void Deselect();
};

#endif
