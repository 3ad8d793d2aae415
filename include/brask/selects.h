#ifndef BRASK_SELECTS_H
#define BRASK_SELECTS_H

#include <brask/boxs.h>
#include <brask/buttons.h>
#include <brask/tools.h>

// A spinner: one choice out of a list, shown between two arrows. A press on an arrow, or the wheel through
// Scroll, steps to the previous or next choice and wraps at both ends; a choice whose item has
// OUTIL_INVISIBLE is skipped. The arrows point left and right or, with OUTIL_VERTICAL, down and up. The name
// stands beside the value (TEXT_LEFT, TEXT_RIGHT) or above it.
//
// The control changes its value by itself; the host compares Read with what it last saw.
class BRASK_API Selects : public Tools {
  public:
    int Cur_Value;  // index of the shown item; out of range none is shown
    int Arrow_Dim;  // length of each arrow zone, pixels; 0: computed by Init, which stores it here
    int Value_Dim;  // width of the value zone with its arrows, pixels; 0: what the name leaves
    Buttons** Item; // NbItem choices, then a null entry; owned. Items come from new, the array from malloc.
                    // An item's name is the choice's text
    int NbItem;     // entries in Item, counted by Grow and Init
    int select;     // tracking: 0 none, 1 pointer inside, 2 pointer outside; kept by the control
    int Old_Value;  // Cur_Value at the last repaint; kept by the control
    Boxs Box;       // frame and faces; laid out by Init
    Boxs Zone;      // rectangle of the value zone, made by Init: position, size and clip alone

    Selects();
    // A copy shares Item with its source, as all pointers: the host sees to the lifetimes.
    Selects(const Selects& other);
    Selects& operator=(const Selects& other);
    ~Selects();

    // Makes the array hold exactly n items. New ones get `flag`, or what of the control's Flag passes on when
    // it is 0. Grow once, then name each. 1, or 0 with a report and a null Item when memory fails. A negative
    // n counts as 0.
    int Grow(int n, int flag);
    // Lays out the zone and the items. wnd null keeps the window. Call it again after a Grow or a change of
    // geometry.
    void Init(HWND wnd);
    // Paints the whole control. Needs Init.
    void Draw();
    // Repaints after the host changed Cur_Value; paints nothing when it is out of range.
    void Adjust();
    // Follows the pointer for one event word (see Tools) and steps at a press on an arrow; 1 when the pointer
    // is on the control, else 0. While the pointer rests inside a new choice shows at the next repaint, at
    // the latest at Deselect.
    int Select(int mode);
    // Ends a press.
    void Deselect();
    // Cur_Value; -1 when the control is disabled.
    int Read();
    // Steps by the wheel, a positive delta toward lower indexes; the new Cur_Value.
    int Scroll(int delta);

  private:
    void Update();
};

#endif
