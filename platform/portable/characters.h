#ifndef PLATFORM_PORTABLE_CHARACTERS_H
#define PLATFORM_PORTABLE_CHARACTERS_H

#include "queue.h"

namespace platform {

// Remembers what a key types, for the TranslateMessage that follows the taking of its message.
void note_taken_key(const Input& input, const MSG& msg);

} // namespace platform

#endif
