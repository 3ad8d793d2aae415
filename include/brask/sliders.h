#ifndef BRASK_SLIDERS_H
#define BRASK_SLIDERS_H

#include <brask/tools.h>

// A scroll bar over a float range: a track with an arrow at each end and a thumb of adjustable length,
// rightward or, with OUTIL_VERTICAL, upward. The host takes a value in three steps: if Select answers not 0,
// Cur_Value = Read(), then Adjust(). For a wheel: Select(KEY_QUERY) to find the slider under the pointer,
// then Scroll.
//
// Flags: OUTIL_VERTICAL, OUTIL_REVERSE (Val_Min is the greater end: a view whose first line is at the top has
// its last scroll position there and 0 in Val_Max), OUTIL_CAPTURE (a press goes on outside of the slider),
// OUTIL_DISABLE, OUTIL_EMPTY, OUTIL_INVISIBLE, GRAPH_OUTLINE.
class BRASK_API Sliders : public Tools {
  public:
    float Cur_Value; // the value; Init, Draw, Adjust and Scroll keep it inside the range
    float Val_Min;   // value at the start of the track, left or bottom
    float Val_Max;   // value at its end, right or top
    int Larg;        // half the thumb's length, pixels; Init holds it between CURSEUR / 2 and what fits
    int Arrow_Len;   // length of an end arrow, pixels; 0: as long as the slider is thick, if that fits
    float Step;      // change for one click on an arrow or one notch; 0 becomes 1 at Init
    float Value_Table[4096]; // value of each thumb position, made by Init
    int Reserved;            // copied with the object, otherwise never read
    int select;              // tracking: 0 none, 1 pointer inside, 2 pointer outside; kept by the slider
    int Held;                // 1 while a press is followed under OUTIL_CAPTURE; kept by the slider
    int Table_Size;          // positions in Value_Table; below 2 there was no room for a table

    Sliders();
    Sliders(const Sliders& other);
    Sliders& operator=(const Sliders& other);
    ~Sliders();

    // Fixes the thumb, builds the table and clamps the value. Call it again after any change of size, range
    // or Larg. wnd null keeps the window; a Border below 1 becomes 1, a black Color the grey (170, 170, 170).
    void Init(HWND wnd);
    // Paints the whole slider. Needs Init.
    void Draw();
    // Repaints after a change of Cur_Value.
    void Adjust();
    // Follows the pointer for one event word (see Tools). Not 0: take a new value now; that is during a press
    // on the slider, and with OUTIL_CAPTURE from the press until its end. A press on an arrow moves Cur_Value
    // by Step. KEY_QUERY answers 1 when the pointer is on the slider.
    int Select(int mode);
    // The value under the pointer: Cur_Value over the arrows and when there is no table, 0 when disabled.
    float Read();
    // Moves the value by `notches` times Step, up toward the start of the track, and repaints; the new value.
    float Scroll(int notches);
    // Makes the thumb as long as `visible` is of `total`. Call Init afterwards.
    void Larg_Adjust(float visible, float total);
    // Ends a press: gives the normal look back. Does not reset `select`: under a resting pointer the slider
    // does not light up again until the pointer has left it.
    void Deselect();

  private:
    void Cursor();
    int Posit() const;
    void Paint_Face(bool selected, DWORD* image);
    void Paint_Thumb();
    void Paint_Frame();
    void Paint_Inside();
};

#endif
