#ifndef FOUNDATION_BRACKET_H
#define FOUNDATION_BRACKET_H

#include <brask/fenn.h>
#include <brask/tools.h>

namespace brask {

// The drawing layer's pairs as objects, closed on every way out.

class Setup {
  public:
    Setup(HWND wnd, const char* tag) { Zeb_setup(wnd, tag); }
    Setup(const Setup&) = delete;
    Setup& operator=(const Setup&) = delete;
    ~Setup() { Zeb_release(); }
};

// A set-up with the control's own clip rectangle, if it has one.
class Bracket {
  public:
    Bracket(const Tools& control, const char* tag)
        : setup(control.Wnd, tag), clipped(control.Clip_Dim_X != 0) {
        if (clipped) Zeb_set_clip(control.Clip_X, control.Clip_Y, control.Clip_Dim_X, control.Clip_Dim_Y);
    }
    Bracket(const Bracket&) = delete;
    Bracket& operator=(const Bracket&) = delete;
    ~Bracket() {
        if (clipped) Zeb_reset_clip();
    }

  private:
    Setup setup;
    bool clipped;
};

// Where the pointer is in the control's window.
inline POINT read_pointer(const Tools& control, const char* tag) {
    Setup setup(control.Wnd, tag);
    int x, y;
    return read_curs(&x, &y);
}

} // namespace brask

#endif
