#ifndef BRASK_LISTS_H
#define BRASK_LISTS_H

#include <brask/boxs.h>
#include <brask/buttons.h>
#include <brask/sliders.h>
#include <brask/tools.h>

// A list of items in a frame, stacked from the top with OUTIL_VERTICAL, else side by side from the left. Each
// item is a button that the list owns. Items that all fit share the room evenly; otherwise they get a fixed
// size and a slider scrolls them; those that are not wholly in view are left out.
//
// One item is current. The list shows that but does not take it from the pointer: where Select answers not 0
// the host sets Cur_Value = Read(), then calls Adjust(). A wheel goes to Scroll.
//
// Flags: OUTIL_VERTICAL, OUTIL_DISABLE, OUTIL_INVISIBLE, OUTIL_EMPTY (frame without face, which goes for the
// items too), GRAPH_OUTLINE (frame and slider without items), BOX_INSET (the items keep 5 pixels off each
// edge). Grow gives new items what of the list's look applies to buttons.
//
//   list.Flag = OUTIL_VERTICAL;
//   list.Grow(1000, 0);
//   for (int i = 0; i < 1000; i++) list.Item[i]->Name_Set(L"Row %d", i);
//   list.Init(wnd);
//   list.Draw();
class BRASK_API Lists : public Tools {
  public:
    int Cur_Value; // index of the current item; out of range none is; default 0
    int Item_Dim; // least height of an item of a vertical list, and its height when the list scrolls, pixels;
                  // sign ignored; 0: BUT_LIST
    int Slider_Dim; // thickness of the slider, pixels; sign ignored; 0: CURSEUR
    Buttons** Item; // NbItem items, then a null entry; owned. Items come from new, the array from malloc: so
                    // must those of a host that makes them itself. An item's name is its text
    int Old_Value;  // Cur_Value at the last repaint; kept by the list
    int NbItem;     // entries in Item, counted by Grow and Init
    int First_X;    // left of item 0 as the list is scrolled now; kept by the list
    int First_Y;    // bottom of item 0; kept by the list
    int Step_X;     // from one item's left to the next one's; 0 in a vertical list
    int Step_Y;     // from one item's bottom to the next one's, negative; 0 in a horizontal list
    int Need_Y;     // what Get_Y answers
    Boxs Box;       // frame and name, laid out by Init
    Sliders Slider; // scrolls; its Dim_X is 0 when all items fit. Its value is the position of item 0

    Lists();
    // A copy shares Item with its source, as all pointers: the host sees to the lifetimes.
    Lists(const Lists& other);
    Lists& operator=(const Lists& other);
    ~Lists();

    // Makes the array hold exactly n items; those there are stay. New ones get `flag`, or what of the list's
    // Flag passes on when it is 0. Each call makes room for exactly n and counts anew, so that growing one by
    // one is quadratic: grow once. 1, or 0 with a report and a null Item when memory fails. A negative n
    // counts as 0. Call Init afterwards.
    int Grow(int n, int flag);
    // Lays out frame, slider and items. wnd null keeps the window. Call it after any change of the items,
    // their names, the size or the font. The slider's value stays, as far as its new range allows.
    void Init(HWND wnd);
    // Paints the whole list. Needs Init.
    void Draw();
    // Repaints the item that was current and the one that is now, where they are in view; the list does not
    // scroll. A Cur_Value beyond the last item becomes the last one.
    void Adjust();
    // Follows the pointer for one event word (see Tools): 1 when it is on an item in view. On the slider it
    // scrolls and answers 0. KEY_QUERY asks for the whole list and answers 0 when that is disabled.
    int Select(int mode);
    // Ends a press.
    void Deselect();
    // Index of the item under the pointer, in view or not, even under the slider; -1 when there is none, and
    // on a disabled list. Disabled items are passed over.
    int Read();
    // Scrolls by `delta` notches while the pointer is on the list: a positive one moves the items of a
    // vertical list up and those of a horizontal one right.
    void Scroll(int delta);
    // Height for a single row with its name and frame, and with the slider where a horizontal list scrolls;
    // valid after Init.
    int Get_Y();

  private:
    void Update();
    bool Scrolls(int event);

    int Shown_Begin, Shown_End; // no item outside of these has Shown set
};

#endif
