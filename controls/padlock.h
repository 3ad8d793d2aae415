#ifndef CONTROLS_PADLOCK_H
#define CONTROLS_PADLOCK_H

#include <brask/platform.h>

namespace brask {

// The padlocks on the thumbs of locked value bars: square surfaces in three sizes.

// Fills those that are still empty.
void fill_padlocks();
// The side of the largest one for so much room; 0 when there is none.
int padlock_side(int room);
const DWORD* padlock_glyph(int side);

} // namespace brask

#endif
