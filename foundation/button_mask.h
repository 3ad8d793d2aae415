#ifndef FOUNDATION_BUTTON_MASK_H
#define FOUNDATION_BUTTON_MASK_H

namespace brask {

// The mouse buttons that the host records: 1 left, 2 right, 4 middle. The library only writes it.
extern int Button_Mask;

} // namespace brask

#endif
