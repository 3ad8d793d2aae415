#ifndef POPUP_DIALOG_TEMPLATE_H
#define POPUP_DIALOG_TEMPLATE_H

#include <brask/platform.h>

namespace brask {

// What a pop-up's window is made from, for the dialog manager.
struct Template_Wish {
    const wchar_t* caption; // null: none
    int dx, dy;             // as the caller gave them, pixels
    bool help;              // room for the help button beside the message
    LONG base;              // the manager's base units
};
inline constexpr SIZE_T TEMPLATE_SIZE = 1024;

// Fills a block of that size, zeroed before. What of the caption does not fit is cut.
void fill_template(BYTE* block, const Template_Wish& wish);

} // namespace brask

#endif
