#include "controls/padlock.h"

#include <algorithm>

namespace brask {

namespace {

// Shades of grey, first row on top: the shackle stands first.
// clang-format off
constexpr unsigned char SHADES_16[16 * 16] = {
    255, 255, 255, 255, 255, 255, 235, 205, 205, 235, 255, 255, 255, 255, 255, 255, //
    255, 255, 255, 255, 255, 173,  17,   0,   0,  17, 173, 255, 255, 255, 255, 255, //
    255, 255, 255, 255, 173,   0,   0,   0,   0,   0,   0, 173, 255, 255, 255, 255, //
    255, 255, 255, 173,   0,   0,   0, 144, 144,   0,   0,   0, 173, 255, 255, 255, //
    255, 255, 235,  17,   0,   0, 173, 255, 255, 173,   0,   0,  17, 235, 255, 255, //
    255, 255, 205,   0,   0, 144, 255, 255, 255, 255, 144,   0,   0, 205, 255, 255, //
    255, 255, 205,   0,   0, 205, 255, 255, 255, 255, 205,   0,   0, 205, 255, 255, //
    255, 255,   0,   0,   0,   0,   0,   0,   0,   0,   0,   0,   0,   0, 255, 255, //
    255, 255,   0,   0,   0,   0,   0, 144, 144,   0,   0,   0,   0,   0, 255, 255, //
    255, 255,   0,   0,   0,   0, 144, 255, 255, 144,   0,   0,   0,   0, 255, 255, //
    255, 255,   0,   0,   0,   0, 144, 255, 255, 144,   0,   0,   0,   0, 255, 255, //
    255, 255,   0,   0,   0,   0,  17, 235, 235,  17,   0,   0,   0,   0, 255, 255, //
    255, 255,   0,   0,   0,   0,   0, 205, 205,   0,   0,   0,   0,   0, 255, 255, //
    255, 255,   0,   0,   0,   0,   0, 114, 114,   0,   0,   0,   0,   0, 255, 255, //
    255, 255,   0,   0,   0,   0,   0,   0,   0,   0,   0,   0,   0,   0, 255, 255, //
    255, 255, 255, 255, 255, 255, 255, 255, 255, 255, 255, 255, 255, 255, 255, 255
};
constexpr unsigned char SHADES_10[10 * 10] = {
    255, 255, 255, 210, 137, 137, 210, 255, 255, 255, //
    255, 253, 208,  49,  12,  12,  50, 208, 253, 255, //
    255, 228,  47,  21, 157, 157,  21,  47, 228, 255, //
    255, 194,   1, 149, 251, 251, 148,   1, 194, 255, //
    255, 111,   0,  72,  95,  95,  71,   0, 112, 255, //
    255,  63,   0,   0,  59,  59,   0,   0,  64, 255, //
    255,  63,   0,   0, 160, 160,   0,   0,  64, 255, //
    255,  63,   0,   2,  82,  82,   2,   0,  64, 255, //
    255,  63,   0,   0,   0,   0,   0,   0,  64, 255, //
    255, 183, 159, 159, 159, 159, 159, 159, 183, 255
};
constexpr unsigned char SHADES_8[8 * 8] = {
    254, 251, 204, 125, 125, 205, 251, 254, //
    252, 203,  80,  63,  63,  80, 203, 252, //
    245, 132,  66, 190, 190,  66, 132, 245, //
    229,  76,  52, 118, 118,  51,  77, 229, //
    216,  37,   0,  63,  63,   0,  38, 216, //
    216,  37,   0, 103, 103,   0,  38, 216, //
    216,  37,   0,  26,  26,   0,  38, 216, //
    235, 146, 127, 127, 127, 127, 146, 235
};
// clang-format on

// One surface for each size, shared by all value bars; empty until the first Init.
DWORD Lock_Glyph_16[16 * 16];
DWORD Lock_Glyph_10[10 * 10];
DWORD Lock_Glyph_8[8 * 8];

struct Padlock {
    int side;
    DWORD* glyph;
    const unsigned char* shades;
};
constexpr Padlock PADLOCKS[] = {
    {16, Lock_Glyph_16, SHADES_16}, {10, Lock_Glyph_10, SHADES_10}, {8, Lock_Glyph_8, SHADES_8}};

// White is as bright as the face of a locked thumb, so that no square shows.
constexpr unsigned char BRIGHTEST = 216;

} // namespace

void fill_padlocks() {
    for (const Padlock& padlock : PADLOCKS) {
        if (padlock.glyph[0] & 255) continue;
        for (int i = 0; i < padlock.side * padlock.side; i++)
            padlock.glyph[i] = std::min(padlock.shades[i], BRIGHTEST) * 0x01010101u;
    }
}

int padlock_side(int room) {
    for (const Padlock& padlock : PADLOCKS)
        if (padlock.side <= room) return padlock.side;
    return 0;
}

const DWORD* padlock_glyph(int side) {
    for (const Padlock& padlock : PADLOCKS)
        if (padlock.side == side) return padlock.glyph;
    return nullptr;
}

} // namespace brask
