#ifndef FOUNDATION_TRACK_H
#define FOUNDATION_TRACK_H

#include <brask/tools.h>

namespace brask {

// How a control follows the pointer, apart from what it paints. `select`:
inline constexpr int TRACK_NONE = 0;    // no press is followed
inline constexpr int TRACK_INSIDE = 1;  // the pointer is inside, the selected look is shown
inline constexpr int TRACK_OUTSIDE = 2; // the pointer is outside, the normal look is shown

//   select   pointer   next   repaint
//   0, 2     inside    1      selected look
//   1        inside    1      none
//   0, 1     outside   2      normal look
//   2        outside   2      none
struct Track {
    int next;
    bool repaint;
};
constexpr Track track(int select, bool inside) {
    const int next = inside ? TRACK_INSIDE : TRACK_OUTSIDE;
    return {next, select != next};
}

// The event of a Select word.
constexpr int event_of(int mode) { return mode & 15; }

// Any of these keeps a control from painting a face; it still answers.
inline bool faceless(const Tools& control) {
    return (control.Flag & (OUTIL_EMPTY | OUTIL_INVISIBLE | GRAPH_OUTLINE)) != 0;
}

} // namespace brask

#endif
