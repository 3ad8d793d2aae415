#ifndef BRASK_LABELS_H
#define BRASK_LABELS_H

#include <brask/tools.h>

// A line of static text: W_Name written in Color, on whatever is there already. Centred on both axes
// unless a TEXT_ flag says otherwise; OUTIL_VERTICAL stacks the letters. A black Color means the default
// text colour: black, white with TEXT_WHITE, blue with GRAPH_OUTLINE.
class BRASK_API Labels : public Tools {
  public:
    Labels();
    Labels(const Labels& other);
    Labels& operator=(const Labels& other);
    ~Labels();

    // Binds the label to its window. wnd null keeps the window. With a size below 1 not even the window
    // is stored.
    void Init(HWND wnd);
    // Writes the name. Nothing is cleared first; a label without a name writes nothing.
    void Draw();
    // Width of the name in pixels, in the label's font; 0 without a name.
    int Get_X();
};

#endif
