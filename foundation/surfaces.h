#ifndef FOUNDATION_SURFACES_H
#define FOUNDATION_SURFACES_H

#include <brask/tools.h>

namespace brask {

// The surfaces of a host, when the control frees one that is still named elsewhere.
struct Host_Surfaces {
    // What a control's own view on a normal or selected surface stands for now.
    static DWORD* normal_view(const Tools& control, DWORD* view);
    static DWORD* select_view(const Tools& control, DWORD* view);
    // Init has made every view anew.
    static void settle(Tools& control);

    // Gives `field`, one of the two, a new block of the control's size.
    static int allocate(Tools& control, DWORD* Tools::*field, unsigned long word);

  private:
    static void release(Tools& control, DWORD* block);
    static void renew_views(Tools& control, DWORD* block);
};

} // namespace brask

#endif
