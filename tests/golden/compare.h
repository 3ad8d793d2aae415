#ifndef TESTS_GOLDEN_COMPARE_H
#define TESTS_GOLDEN_COMPARE_H

#include <string>

#include <brask/platform.h>

// Holds a window's pixels against a picture file. Empty when they are the same; else what is wrong, with the
// first pixel that differs and the number of them. A picture that does not fit is kept as NAME.actual.png in
// the working folder.
std::string compare(HWND wnd, const std::string& name);

// Writes the picture anew; false when the file cannot be written.
bool update(HWND wnd, const std::string& name);

#endif
