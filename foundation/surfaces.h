#ifndef FOUNDATION_SURFACES_H
#define FOUNDATION_SURFACES_H

#include <brask/tools.h>

namespace brask {

// The surfaces that a host gives or asks for, as far as the control can know them.
struct Host_Surfaces {
    // The two looks, with what is kept for each.
    struct Side {
        DWORD* Tools::*graph;
        DWORD* Tools::*old;
        DWORD* Tools::*image;
        Tools::Made Tools::*made;
        const DWORD* Tools::*gone;
    };
    static const Side NORMAL, SELECT;

    // Gives one side a new block of the control's size, filled with a surface word. 1, or 0 without memory.
    static int allocate(Tools& control, const Side& side, unsigned long word);
    // Was this surface made for another size than the control has now? Then it must not be read.
    static bool outgrown(const void* image, const Tools& control);
    // What a control's own view on a surface of that side stands for now.
    static DWORD* current(const Tools& control, const Side& side, DWORD* view);
    // Init has made every view anew.
    static void settle(Tools& control);

  private:
    static void forget(Tools& control, const DWORD* block);
};

// Shows the two views of a control that has others when it is down.
template <typename Control>
void choose_images(Control& control) {
    const bool down = control.Cur_Value != 0;
    control.Image_Normal = Host_Surfaces::current(control, Host_Surfaces::NORMAL,
                                                  down ? control.Image_Normal_On : control.Image_Normal_Off);
    control.Image_Select = Host_Surfaces::current(control, Host_Surfaces::SELECT,
                                                  down ? control.Image_Select_On : control.Image_Select_Off);
}

} // namespace brask

#endif
