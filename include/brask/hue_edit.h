#ifndef BRASK_HUE_EDIT_H
#define BRASK_HUE_EDIT_H

#include <brask/boxs.h>
#include <brask/valuators.h>

// An editor of a colour's hue: one value bar over the hues, and a swatch that shows the result. Lightness and
// saturation stay; so a grey stays what it is. The host takes a colour in three steps: if Select answers not
// 0, Cur_Value = Read(), then Adjust().
//
// Flags: OUTIL_DISABLE, OUTIL_EMPTY, OUTIL_INVISIBLE, OUTIL_FLAT, GRAPH_OUTLINE, and those of the value bar,
// which gets the whole word.
class BRASK_API Hue_Edit : public Tools {
  public:
    unsigned int Cur_Value; // the colour, a drawing word; the host's; 0 becomes red at Init
    int Swatch_Width;       // width of the swatch, pixels; 0 becomes 2 * BUT_DIM at Init
    void* Edit_Slot_A;      // copied with the object, never read
    void* Edit_Slot_B;      // copied with the object, never read
    void* Edit_Slot_C;      // copied with the object, never read
    int Edit_Slot_D;        // copied with the object, never read
    unsigned int Old_Value; // Cur_Value at the last Init or Draw; kept by the editor

    // The parts. Init writes their fields and places them; the ramp and the swatch's surface belong to them.
    // Their bevels are 2 wide at most.
    Boxs Box_Frame;    // the frame, without a title; below a Border of 1 its place is wiped instead
    Boxs Box_Swatch;   // the sample of the colour; like every box it lights up under the pointer
    Valuators Val_Hue; // carries the editor's name, or "Hue"

    Hue_Edit();
    Hue_Edit(const Hue_Edit& other);
    Hue_Edit& operator=(const Hue_Edit& other);
    ~Hue_Edit();

    // Places the parts and paints the ramp; surfaces are made anew only where a size changed. wnd null keeps
    // the window; a black Color becomes the grey (170, 170, 170).
    void Init(HWND wnd);
    // Paints the whole editor. Needs Init.
    void Draw();
    // Repaints the bar and the swatch after a change of Cur_Value; nothing when it is the one of the last
    // Draw, even if another one has been shown since, or when the editor is disabled.
    void Adjust();
    // 1 when the bar takes the event; 0 when disabled, KEY_QUERY included.
    int Select(int mode);
    // The colour that the pointer proposes, a drawing word with alpha 255; Cur_Value stays. Off the bar it is
    // Cur_Value there and back, whose channels may differ by rounding.
    unsigned long Read();
    // Moves the bar by `notches` when the pointer is on it, stores and paints the colour; the new one, else
    // Cur_Value.
    unsigned long Scroll(int notches);
    // Ends a press on the bar.
    void Deselect();

  private:
    void Update();
};

#endif
