#ifndef TESTS_GOLDEN_STAGE_H
#define TESTS_GOLDEN_STAGE_H

#include <brask/tools.h>

// A hidden window on a grey ground, its pointer far away unless a scene puts it somewhere.
class Stage {
  public:
    Stage(int width, int height);
    ~Stage();
    Stage(const Stage&) = delete;
    Stage& operator=(const Stage&) = delete;

    HWND window() const { return wnd; }
    // The pointer, in the controls' coordinates.
    void point(int x, int y);
    void point_away();

    // The folder with the programs, and with the icon files beside them.
    static wchar_t* installation();

    // Gives a control its place and flags, and its name as text, not as a format.
    static void place(Tools& control, int x, int y, int width, int height, DWORD flags = 0,
                      const wchar_t* name = nullptr);

    // The same and then Init and Draw.
    template <typename Control>
    void show(Control& control, int x, int y, int width, int height, DWORD flags = 0,
              const wchar_t* name = nullptr) {
        place(control, x, y, width, height, flags, name);
        control.Init(wnd);
        control.Draw();
    }

  private:
    HWND wnd;
    int height;
};

#endif
