#ifndef BRASK_VALUATORS_H
#define BRASK_VALUATORS_H

#include <brask/tools.h>

// Flags of a value bar, beside the shared ones of <brask/tools.h>.
inline constexpr DWORD VALUATOR_FREZE = 0x100000;  // locked: Read and Scroll leave the value alone
inline constexpr DWORD VALUATOR_LOG10 = 0x1000000; // decimal logarithmic track; wins over VALUATOR_LN
inline constexpr DWORD VALUATOR_LN = 0x2000000;    // natural logarithmic track

// A bar that sets a float: a thumb on a track, rightward or, with OUTIL_VERTICAL, upward, over a face that
// may be a picture. The name is written on the track, and with a Format the value in a field at the right
// end; the field only shows. The host takes a value in three steps: if Select answers not 0,
// Cur_Value = Read(), then Adjust(). For a wheel: Select(KEY_QUERY) to find the bar under the pointer, then
// Scroll.
//
// Flags: those above, OUTIL_VERTICAL, OUTIL_REVERSE (Val_Min is the greater end), OUTIL_CAPTURE (a press goes
// on outside of the bar), OUTIL_DISABLE, OUTIL_EMPTY, OUTIL_INVISIBLE, GRAPH_OUTLINE, and the TEXT_ placement
// flags for the name.
//
// Any values may stand in the fields. A range that a logarithm has no value for, or whose ends are equal or
// no numbers, leaves the thumb at the start of the track.
class BRASK_API Valuators : public Tools {
  public:
    float Cur_Value;    // the value; Init, Draw, Adjust and Scroll keep it inside the range
    float Val_Min;      // value at the start of the track, left or bottom
    float Val_Max;      // value at its end, right or top
    const char* Format; // printf style, with one floating conversion, for the numeric field; any other
                        // conversion prints nothing; at most 79 characters are shown. null: no field.
                        // Borrowed. Init of a vertical bar sets it to null
    int Num_Width; // width of the numeric field, pixels; Init of a bar without a Format sets it to 0; below
                   // 0 Init does nothing
    int Larg;      // half the thumb's length, pixels; Init makes it CURSEUR at least
    float Step;    // one notch, in the units of the scale: of the value, or decades, or natural logarithms;
                   // 0: the fiftieth part of the range
    float Value_Table[4096]; // value of each thumb position, made by Init
    int select;              // tracking: 0 none, 1 pointer inside, 2 pointer outside; kept by the bar
    int Held;                // 1 while a press is followed under OUTIL_CAPTURE; kept by the bar, also by Init
    int Table_Size;          // positions in Value_Table, at least 1 after Init

    Valuators();
    Valuators(const Valuators& other);
    Valuators& operator=(const Valuators& other);
    ~Valuators();

    // Fixes the thumb, builds the table and clamps the value. Call it again after any change of size, range,
    // scale, Num_Width or Larg. wnd null keeps the window; a black Color becomes the grey (170, 170, 170).
    void Init(HWND wnd);
    // Paints the whole bar. Needs Init.
    void Draw();
    // Repaints after a change of Cur_Value or of the lock.
    void Adjust();
    // Follows the pointer for one event word (see Tools). Not 0: take a new value now; that is during a press
    // on the bar, and with OUTIL_CAPTURE from the press until its end. KEY_QUERY answers 1 when the pointer
    // is on the bar. 0, without a warning, before Init.
    int Select(int mode);
    // The value under the pointer: Cur_Value when locked, 0 when disabled.
    float Read();
    // Moves the value by `notches` on the scale, up toward the start of the track, and repaints; the value.
    float Scroll(int notches);
    // Makes the thumb as long as `visible` is of `total`. Call Init afterwards.
    void Larg_Adjust(float visible, float total);
    // 0 opens, 8 turns over, anything else locks. Paints nothing.
    void Lock(int state);
    // Ends a press: gives the normal look back. Does not reset `select`: under a resting pointer the bar does
    // not light up again until the pointer has left it.
    void Deselect();

  private:
    void Cursor();
    int Posit() const;
    void Paint_Face(bool selected, DWORD* image);
    void Paint_Name();
    void Paint_Number();
    void Paint_Inner_Frame();
};

#endif
