#ifndef BRASK_CHECKLISTS_H
#define BRASK_CHECKLISTS_H

#include <brask/boxs.h>
#include <brask/buttons.h>
#include <brask/tools.h>

// Flags of a check list, beside the shared ones of <brask/tools.h>.
inline constexpr DWORD CHECK_HORIZONTAL = 0x8; // as many columns as the widest label allows, filled evenly
inline constexpr DWORD CHECK_NO_CENTER =
    0x2000000; // the rows stand at the bottom of the room, not in its middle
inline constexpr DWORD CHECK_EXCLUSIVE = 0x40000000; // Cur_Value is the index of the one checked entry

// A block of check boxes, each with a text beside it, in rows and columns inside a frame. Its value is a mask
// of the checked entries or, with CHECK_EXCLUSIVE, the index of the one that is checked. The entries are
// filled in column by column: as many rows as fit; all in one column with OUTIL_VERTICAL; as many columns as
// fit with CHECK_HORIZONTAL, which wins.
//
// The control never changes its value: where Select answers not 0 the host sets Cur_Value = Read(), then
// calls Adjust(). A mask has 64 bits; entry 64 shares bit 0 with entry 0.
//
// Flags: the three above, OUTIL_VERTICAL, OUTIL_DISABLE, OUTIL_INVISIBLE, OUTIL_EMPTY (no frame),
// GRAPH_OUTLINE, TEXT_LEFT (the name stands at the left of the block), TEXT_MIDDLE (the name takes no row).
class BRASK_API CheckLists : public Tools {
  public:
    const char* const* List;      // labels, UTF-8; the host's; a null entry or an empty string ends them
    const wchar_t* const* List_W; // wide labels, likewise. With both, List is counted to its end and List_W
                                  // from there; List_W wins where it has an entry. A label is a format
                                  // without arguments: a conversion in it prints nothing
    const char* Enable;         // null, or a byte for each entry: 0 shows it in the outline look; the host's.
                                // Read answers for it all the same
    const unsigned int* Colour; // null, or a drawing word for each entry's box; the host's
    int Row_Dim;                // height of a row, pixels; sign ignored; 0: height of the font + 2
    long long Cur_Value;        // mask, bit i for entry i; with CHECK_EXCLUSIVE the index; default 0
    int* Box_State;             // tracking of each entry: 0 none, 1 pointer on it, 2 pointer left it; owned
    int NbCheckBox;             // entries, counted by Init
    long long Old_Value;        // Cur_Value at the last repaint; kept by the control
    int Char_Dim;               // width of an "H" in the control's font, found by Init
    int Font_Dim;               // height of the control's font, found by Init
    int Need_Y;                 // what Get_Y answers
    Buttons* Check;             // NbCheckBox boxes, made by Init; owned
    Buttons* Label;             // NbCheckBox cells with the texts, made by Init; owned
    Boxs Box;                   // frame and name; laid out by Init

    CheckLists();
    // A copy shares the entries with its source, as all pointers: the host sees to the lifetimes.
    CheckLists(const CheckLists& other);
    CheckLists& operator=(const CheckLists& other);
    ~CheckLists();

    // Makes the entries anew from the labels and lays them out. wnd null keeps the window. Without any labels
    // the control reports that, and switches itself off by its Flag. A control whose font fields are all null
    // and 0 takes the metrics of the font that was last measured for a check list: give Font_Size or Row_Dim.
    void Init(HWND wnd);
    // Paints the whole control. Needs Init.
    void Draw();
    // Repaints the boxes after the host changed Cur_Value; with CHECK_EXCLUSIVE nothing when it is out of
    // range.
    void Adjust();
    // Follows the pointer for one event word (see Tools): 1 when it is on an entry, else 0. KEY_QUERY asks
    // for the whole control.
    int Select(int mode);
    // Ends a press: gives the entry under the pointer the normal look.
    void Deselect();
    // What Cur_Value would become by a click at the pointer: the mask with one bit turned, or the index; -1
    // when there is no entry, and on a disabled control.
    long long Read();
    // Height that the block needs with its name and frame; valid after Init.
    int Get_Y();
};

#endif
