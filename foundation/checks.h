#ifndef FOUNDATION_CHECKS_H
#define FOUNDATION_CHECKS_H

#include <brask/tools.h>

namespace brask {

// The tests that every operation begins with. `type` names the operation in the warning.

// Bits of Tools::test.
inline constexpr unsigned char TEST_INIT = 1;
inline constexpr unsigned char TEST_WARNED = 2;
inline constexpr unsigned char TEST_NAMED = 4;

// Warns once for each object that is used before its Init; the operation goes on.
void warn_first_use(Tools& control, const char* type);
inline void check_first_use(Tools& control, const char* type) {
    if (!(control.test & (TEST_INIT | TEST_WARNED))) warn_first_use(control, type);
}

// A control of such a size is not there.
inline bool too_small(const Tools& control) { return control.Dim_X < 1 || control.Dim_Y < 1; }

// The three lines of a warning; `what` is the middle one.
void warn(const char* what, const char* type, const wchar_t* name);

// Warns, at every Init, of a control that has no window to paint in.
bool missing_window(const Tools& control, const char* type);

} // namespace brask

#endif
