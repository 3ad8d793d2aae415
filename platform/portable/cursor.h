#ifndef PLATFORM_PORTABLE_CURSOR_H
#define PLATFORM_PORTABLE_CURSOR_H

namespace platform {

// The standard cursors, in the order of the table in cursor.cpp.
enum class Shape { arrow, ibeam, wait, cross, up, nwse, nesw, we, ns, all, no, hand, starting };
constexpr int kShapes = 13;

// The shape that is put up now, as an index; -1: none is shown.
int current_shape();

} // namespace platform

#endif
