#ifndef FUZZ_WIDE_TEXT_H
#define FUZZ_WIDE_TEXT_H

#include <string>

#include "input.h"

// A text as hosts write it, and as nobody should: marks and their look-alikes with another high byte, several
// scripts, control characters, and on request halves of surrogate pairs, together and alone.
inline std::wstring wide_text(Input& input, unsigned longest, bool halves = true) {
    static constexpr unsigned marks[] = {1, 2, 3, 4, 5, 6, 240, 241, 242, 0x101, 0x1F1, 0x4E02};
    static constexpr unsigned letters[] = {'A',   'b',   ' ',   'W',    '%',    'n',    's',    0xE9,   0x3A9,
                                           0x416, 0x5D0, 0x627, 0x644,  0x915,  0x94D,  0x4E2D, 0x3042, 0x300,
                                           7,     0x1B,  9,     0x200D, 0x200F, 0xFEFF, 0xFFFD, 239,    243};
    static constexpr unsigned surrogates[] = {0xD83D, 0xDE00, 0xD800, 0xDFFF};
    std::wstring text;
    for (unsigned left = input.below(longest + 1); left > 0; left--)
        switch (input.below(8)) {
        case 0:
        case 1: text += static_cast<wchar_t>(input.among(marks)); break;
        case 2:
            if (halves) text += static_cast<wchar_t>(input.among(surrogates));
            break;
        case 3: text += static_cast<wchar_t>(1 + input.below(0xD7FF)); break;
        default: text += static_cast<wchar_t>(input.among(letters)); break;
        }
    return text;
}

// Where a text goes and how, with fields of the control that have a say in it.
struct Writing {
    std::wstring text;
    long flag;
    int x, y, dx, dy, border;
    unsigned color;
};

template <typename Control>
Writing writing(Input& input, Control& control, unsigned longest, bool halves = true) {
    static constexpr const char* families[] = {nullptr, "arial", "no such family at all"};
    static constexpr const char* weights[] = {nullptr, "medium", "bold"};
    static constexpr const char* slants[] = {nullptr, "r", "i", "o"};
    static constexpr DWORD flags[] = {0,           TEXT_LEFT,  TEXT_RIGHT,   TEXT_TOP,
                                      TEXT_BOTTOM, TEXT_WHITE, GRAPH_OUTLINE};
    control.Font_Name = input.among(families);
    control.Font_Weight = input.among(weights);
    control.Font_Slant = input.among(slants);
    control.Font_Size = input.one_in(16) ? static_cast<int>(input.below(40)) - 4 : 10;
    if (input.one_in(4)) control.Flag |= OUTIL_VERTICAL;
    if (input.one_in(4)) {
        control.Clip_X = input.number();
        control.Clip_Y = input.number();
        control.Clip_Dim_X = input.number();
        control.Clip_Dim_Y = input.number();
    }
    Writing to;
    to.flag = static_cast<long>(input.among(flags) | input.among(flags));
    to.x = input.number();
    to.y = input.number();
    to.dx = input.number();
    to.dy = input.number();
    to.border = input.one_in(4) ? input.number() : 3;
    to.color = input.one_in(2) ? 0 : input.word();
    to.text = wide_text(input, longest, halves);
    return to;
}

#endif
