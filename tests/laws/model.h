#ifndef LAWS_MODEL_H
#define LAWS_MODEL_H

#include <string>

#include <brask/boxs.h>
#include <brask/buttons.h>
#include <brask/labels.h>

// What a control must do next, worked out from its fields alone: a second telling of the protocol, as short
// as it can be made.

enum class Act { Init, InitWindow, Draw, Select, Read, Adjust, Deselect, kCount };

struct Expected {
    std::string tag;
    int answer = 0;
    int select = 0;
    unsigned char test = 0;
    bool warns = false; // of a first use or of a missing window
    bool may_paint = false;
    bool must_paint = false;
};

Expected expected_of(const Boxs& box, Act act, int mode, POINT pointer);
Expected expected_of(const Buttons& button, Act act, int mode, POINT pointer);
Expected expected_of(const Labels& label, Act act, int mode, POINT pointer);

#endif
