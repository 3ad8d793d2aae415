#ifndef TESTS_EXPECT_H
#define TESTS_EXPECT_H

#include <cstdlib>
#include <string>

#include <brask/tools.h>

#include "support/recorded.h"

// Pieces that the expected log of a control is put together from. What the base paints is proved in its own
// tests, so a control's steps are told by calling the base as the control should.

inline std::string name_of(const Tools& control) {
    return control.W_Name ? recorder::narrow(control.W_Name) : "no name";
}
inline void read_pointer(const std::string& operation) {
    recorder::note(recorder::kDraw, "Zeb_setup(WND, \"" + operation + "\")");
    recorder::note(recorder::kDraw, "read_curs()");
    recorder::note(recorder::kDraw, "Zeb_release()");
}
// The trace of one generated face, built and thrown away.
inline void built_face(Tools& control, const Colors& color) { std::free(control.Inside_3D(color)); }

// Whether two surfaces of the control's size hold the same words.
inline bool same_face(const Tools& control, const DWORD* a, const DWORD* b) {
    for (int pixel = 0; pixel < control.Dim_X * control.Dim_Y; ++pixel)
        if (a[pixel] != b[pixel]) return false;
    return true;
}
// Whether the surface is what the base would build for this colour now.
inline bool face_of(Tools& control, const DWORD* face, const Colors& color) {
    DWORD* expected = control.Inside_3D(color);
    const bool same = face && same_face(control, face, expected);
    std::free(expected);
    return same;
}

#endif
