#ifndef GALLERY_STRIP_H
#define GALLERY_STRIP_H

#include <brask/boxs.h>
#include <brask/buttons.h>

#include "page.h"

// The strip at the foot of the window: what came in last, and buttons that change the shape of the pointer.
class Strip {
  public:
    static constexpr int height = 46; // pixels

    Strip();
    void layout(HWND wnd, const Area& area);
    void draw();
    // Follows one mouse message; a press on a shape button calls the function of its name.
    void pointer(int word);
    void show_event(int word);
    void show_key(int code);
    void each(const Visitor& visit) const;
    // The shape of the pointer that the window has to keep up.
    HCURSOR shape() const { return shown; }

  private:
    static constexpr int shapes = 6;
    void press(int which);
    void show_cursor(const wchar_t* call);

    Boxs panel, event, key, cursor;
    Buttons button[shapes];
    HCURSOR shown;
    int pressed = -1; // the shape button that is down
};

#endif
