#ifndef BRASK_BOXS_H
#define BRASK_BOXS_H

#include <brask/tools.h>

// A framed rectangle with a shaded face and an optional title: a panel, a background, a paint target.
// It highlights itself while the pointer is on it, and holds no value.
//
// Flags: BOX_RAISED, BOX_INSET, OUTIL_NO_FRAME, OUTIL_EMPTY, OUTIL_FLAT, GRAPH_OUTLINE, OUTIL_DISABLE,
// OUTIL_INVISIBLE, and the TEXT_ placement flags for the title, which stands at the top unless
// TEXT_MIDDLE or TEXT_BOTTOM is set.
class BRASK_API Boxs : public Tools {
  public:
    int select;        // tracking: 0 none, 1 pointer inside, 2 pointer outside; kept by the box
    void* Box_Slot_A;  // copied with the object, never read
    void* Box_Slot_B;  // copied with the object, never read
    DWORD* Box_Normal; // generated normal face; owned by the box, shared with its copies
    DWORD* Box_Select; // generated selected face; owned by the box, shared with its copies

    Boxs();
    Boxs(const Boxs& other);
    Boxs& operator=(const Boxs& other);
    ~Boxs();

    // Binds the box to its window and builds the faces that changed. wnd null keeps the window; a box
    // whose Color is black gets the grey (170, 170, 170). Needs a size of at least 1 by 1 and a window.
    void Init(HWND wnd);
    // Paints frame, title and face. Needs Init.
    void Draw();
    // Follows the pointer for one event word (see Tools); 1 when the pointer is on the box, else 0.
    int Select(int mode);
    // Always 0.
    int Read();
    // Paints the face again, without the frame.
    void Adjust();
    // Ends a press: gives the normal look back. Does not reset `select`, so a box under a resting pointer
    // does not light up again until the pointer has left it.
    void Deselect();
};

#endif
