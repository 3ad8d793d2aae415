#ifndef BRASK_COLOR_EDIT_H
#define BRASK_COLOR_EDIT_H

#include <brask/boxs.h>
#include <brask/buttons.h>
#include <brask/valuators.h>

// Flags of a colour editor, beside the shared ones of <brask/tools.h>.
inline constexpr DWORD COLOR_MODE_BUTTON = 0x800; // a button switches between RGB and HLS
inline constexpr DWORD COLOR_HLS = 0x8000;        // the bars are hue, lightness and saturation

// An editor of one colour: three value bars over ramps, a swatch that shows the result, and a narrow button
// that switches the bars between RGB and HLS. The host takes a colour in three steps: if Select answers not
// 0, Cur_Value = Read(), then Adjust(). A press on the mode button needs nothing from the host.
//
// Flags: those above, OUTIL_DISABLE, OUTIL_EMPTY, OUTIL_INVISIBLE, GRAPH_OUTLINE, and those of the value bars
// (OUTIL_CAPTURE, VALUATOR_FREZE and the TEXT_ placement flags), which get the whole word.
//
// A bar goes to 0.99 only: drawn to its end it gives 252 of 255. A channel that nobody touches keeps its 255.
class BRASK_API Color_Edit : public Tools {
  public:
    unsigned int Cur_Value; // the colour, a drawing word; the host's
    int Swatch_Width;       // width of the swatch, pixels; 0 becomes 2 * BUT_DIM at Init
    void* Edit_Slot_A;      // copied with the object, never read
    void* Edit_Slot_B;      // copied with the object, never read
    void* Edit_Slot_C;      // copied with the object, never read
    int Edit_Slot_D;        // copied with the object, never read
    unsigned int Old_Value; // Cur_Value at the last Init, Draw or effective Adjust; kept by the editor

    // The parts. Init writes their fields and places them; the ramps and the swatch's surface belong to them.
    Boxs Box_Frame;            // the frame, with the editor's name as title; not there when Border is below 1
    Boxs Box_Swatch;           // the sample of the colour; not there when Border is below 1
    Buttons Button_Mode;       // shows the present mode; with COLOR_MODE_BUTTON only
    Valuators Val_Red_Hue;     // top bar
    Valuators Val_Green_Light; // middle bar
    Valuators Val_Blue_Sat;    // bottom bar

    Color_Edit();
    Color_Edit(const Color_Edit& other);
    Color_Edit& operator=(const Color_Edit& other);
    ~Color_Edit();

    // Places the parts and paints the ramps; surfaces are made anew only where a size changed. wnd null keeps
    // the window; a black Color becomes the grey (170, 170, 170).
    void Init(HWND wnd);
    // Paints the whole editor. Needs Init.
    void Draw();
    // Repaints the bars and the swatch after a change of Cur_Value; nothing when it is the old one or when
    // the editor is disabled.
    void Adjust();
    // 1 when a bar takes the event; 0 when disabled, KEY_QUERY included. A press on the mode button flips
    // COLOR_HLS, paints the editor anew and answers 0.
    int Select(int mode);
    // The colour that the pointer proposes, a drawing word with alpha 255; Cur_Value stays.
    unsigned long Read();
    // Moves the bar under the pointer by `notches`, stores and paints the colour; the new one, or Cur_Value
    // where no bar is.
    unsigned long Scroll(int notches);
    // Ends a press on the bars and the button.
    void Deselect();

  private:
    void Update();
};

#endif
