#ifndef TESTS_EXPECT_H
#define TESTS_EXPECT_H

#include <algorithm>
#include <cstdlib>
#include <initializer_list>
#include <iterator>
#include <new>
#include <ostream>
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
// How often the piece occurs.
inline std::size_t times(const std::string& text, const std::string& piece) {
    std::size_t count = 0;
    for (std::size_t at = text.find(piece); at != std::string::npos; at = text.find(piece, at + 1))
        count++;
    return count;
}

// --- Life ---

// A constructor or destructor that reports, and does so around nothing else.
inline void life(const std::string& operation) { trace_in(operation, ""), trace_out(operation, ""); }
// A control, or a part of one, with its base.
inline void begins(const std::string& name) { life("Tools::Tools"), life(name + "::" + name); }
inline void ends(const std::string& name) { life(name + "::~" + name), life("Tools::~Tools"); }

// The log of a control that is made where everything else stood before. All of it is zero.
template <typename Control>
std::string made_all_zero() {
    alignas(Control) static unsigned char place[sizeof(Control)];
    std::fill(std::begin(place), std::end(place), 0xAA);
    Control* made = nullptr;
    const std::string lines = everything([&] { made = new (place) Control; });
    EXPECT_EQ(std::count(std::begin(place), std::end(place), 0), std::ptrdiff_t{sizeof place});
    made->~Control();
    return lines;
}

// --- Warnings, as they stand in the log ---

inline std::string first_use_warning(const std::string& type, const std::string& name = "no name",
                                     const std::string& why = "you must call *_Init() first") {
    return "[80000001] Tools: WARNING ! \n[80000001]    " + why + "\n[80000001]    type: " + type +
           "   name: " + name + "\\n\n";
}
inline std::string window_warning(const std::string& type, const std::string& name = "no name") {
    return "[90000021] Tools: WARNING ! \n[90000021]    you must provide a window\n[90000021]    type: " +
           type + "   name: " + name + "\n";
}

// An operation, and the name that it gives itself in the warning.
template <typename Control>
struct First_Use {
    const char* type;
    void (*use)(Control&);
};
// Each of them warns once of a missing Init, and of bad data once the control has a name. Whether it has a
// size does not matter.
template <typename Control>
void expect_first_use(std::initializer_list<First_Use<Control>> operations) {
    for (const auto& [type, use] : operations)
        for (const int size : {0, 40})
            for (const bool named : {false, true}) {
                Control fresh;
                fresh.Dim_X = fresh.Dim_Y = size;
                if (named) fresh.Name_Set(L"nm");
                const std::string expected =
                    named ? first_use_warning(type, "nm", "bad data in device's structure")
                          : first_use_warning(type);
                recorder::clear();
                use(fresh);
                EXPECT_EQ(recorder::warnings(), expected);
                EXPECT_EQ(fresh.test, 2);
                use(fresh);
                EXPECT_EQ(recorder::warnings(), expected);
            }
}

// --- Places ---

struct Rect {
    int x, y, width, height;
};
inline bool operator==(const Rect& a, const Rect& b) {
    return a.x == b.x && a.y == b.y && a.width == b.width && a.height == b.height;
}
inline void PrintTo(const Rect& r, std::ostream* out) {
    *out << r.width << " by " << r.height << " at " << r.x << ", " << r.y;
}
inline Rect rect_of(const Tools& part) { return {part.Pos_X, part.Pos_Y, part.Dim_X, part.Dim_Y}; }
inline Rect clip_of(const Tools& part) {
    return {part.Clip_X, part.Clip_Y, part.Clip_Dim_X, part.Clip_Dim_Y};
}
// The region reaches one beyond the far edges, which count as inside.
inline Rect region_of(const Tools& part) {
    const RECT& r = part.Region;
    return {static_cast<int>(r.left), static_cast<int>(r.top), static_cast<int>(r.right - r.left),
            static_cast<int>(r.bottom - r.top)};
}

// --- Faces ---

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
