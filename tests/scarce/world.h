#ifndef TESTS_SCARCE_WORLD_H
#define TESTS_SCARCE_WORLD_H

#include <string>

#include <brask/platform.h>

// Where controls are tried when memory runs out: one set of these functions stands on the recorder, another
// on the real drawing layer with a window in memory.
namespace world {

constexpr int WIDTH = 240, HEIGHT = 200;

// Everything as at the start: caches forgotten, the window blank, the pointer away, no button held.
void fresh();
HWND window();
void wipe();
std::string shown(); // all that was painted since then, in the world's own form

void point(int x, int y); // where the pointer is from now on, the controls' coordinates
void hold(bool down);     // the left button
void copy(const wchar_t* text);
std::wstring folder(); // one with two others in it

// A font that could not be made is missing until its place in the cache is taken, as required: takes all of
// them.
void renew_fonts();

} // namespace world

#endif
