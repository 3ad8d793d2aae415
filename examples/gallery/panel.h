#ifndef GALLERY_PANEL_H
#define GALLERY_PANEL_H

#include <brask/boxs.h>

#include "page.h"

// A titled panel that stays as it is under the pointer.
class Panel {
  public:
    explicit Panel(const wchar_t* title);
    // Lays the panel; what is inside is the area that it leaves free.
    Area place(HWND wnd, const Area& area);
    void draw() { box.Draw(); }
    void each(const Visitor& visit) const { visit("panel", box); }

  private:
    Boxs box;
};

#endif
