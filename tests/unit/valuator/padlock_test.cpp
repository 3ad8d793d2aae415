#include <cstdlib>
#include <string>

#include "valuator_fixture.h"

// The padlocks, told a second time: two hexadecimal digits for each shade, 216 of them at most shown.

namespace {

struct Drawing {
    int side;
    const char* rows;
};
const Drawing DRAWINGS[] = {
    {16, "ffffffffffffebcdcdebffffffffffff"
         "ffffffffffad11000011adffffffffff"
         "ffffffffad000000000000adffffffff"
         "ffffffad0000009090000000adffffff"
         "ffffeb110000adffffad000011ebffff"
         "ffffcd000090ffffffff900000cdffff"
         "ffffcd0000cdffffffffcd0000cdffff"
         "ffff000000000000000000000000ffff"
         "ffff000000000090900000000000ffff"
         "ffff0000000090ffff9000000000ffff"
         "ffff0000000090ffff9000000000ffff"
         "ffff0000000011ebeb1100000000ffff"
         "ffff0000000000cdcd0000000000ffff"
         "ffff000000000072720000000000ffff"
         "ffff000000000000000000000000ffff"
         "ffffffffffffffffffffffffffffffff"},
    {10, "ffffffd28989d2ffffff"
         "fffdd0310c0c32d0fdff"
         "ffe42f159d9d152fe4ff"
         "ffc20195fbfb9401c2ff"
         "ff6f00485f5f470070ff"
         "ff3f00003b3b000040ff"
         "ff3f0000a0a0000040ff"
         "ff3f00025252020040ff"
         "ff3f00000000000040ff"
         "ffb79f9f9f9f9f9fb7ff"},
    {8, "fefbcc7d7dcdfbfe"
        "fccb503f3f50cbfc"
        "f58442bebe4284f5"
        "e54c347676334de5"
        "d825003f3f0026d8"
        "d8250067670026d8"
        "d825001a1a0026d8"
        "eb927f7f7f7f92eb"},
};

TEST_F(Valuator, PadlocksAreGreyAndNoBrighterThanTheirThumb) {
    for (const Drawing& drawing : DRAWINGS) {
        const std::string rows = drawing.rows;
        const int pixels = drawing.side * drawing.side;
        ASSERT_EQ(rows.size(), static_cast<std::size_t>(2 * pixels));
        const DWORD* glyph = brask::padlock_glyph(drawing.side);
        for (int i = 0; i < pixels; ++i) {
            const DWORD shade = std::strtoul(rows.substr(2 * i, 2).c_str(), nullptr, 16);
            const DWORD shown = shade > 216 ? 216 : shade;
            ASSERT_EQ(glyph[i], shown << 24 | shown << 16 | shown << 8 | shown)
                << "row " << i / drawing.side << ", column " << i % drawing.side;
        }
    }
}

// A glyph that has been filled is left alone by the Init of the next bar.
TEST_F(Valuator, PadlocksAreFilledOnce) {
    for (const int side : {16, 10, 8}) {
        DWORD* glyph = const_cast<DWORD*>(brask::padlock_glyph(side));
        const DWORD before = glyph[1];
        glyph[1] = 0x12345678;
        bar.Init(recorder::window());
        EXPECT_EQ(glyph[1], 0x12345678u);
        glyph[1] = before;
        const DWORD first = glyph[0];
        glyph[0] = 0xFFFFFF00; // its first byte tells
        glyph[1] = 0;
        bar.Init(recorder::window());
        EXPECT_EQ(glyph[0], first);
        EXPECT_EQ(glyph[1], before);
    }
}

// The largest padlock that fits: a vertical thumb takes one of just its extent, a horizontal one does not.
TEST_F(Valuator, PadlockByTheThumbsExtent) {
    struct {
        DWORD axis;
        int extent, side;
    } const rows[] = {
        {0, 17, 16},
        {0, 16, 10},
        {0, 11, 10},
        {0, 10, 8},
        {0, 9, 8},
        {0, 8, 0},
        {0, 1, 0},
        {0, 60, 16},
        {OUTIL_VERTICAL, 17, 16},
        {OUTIL_VERTICAL, 15, 10},
        {OUTIL_VERTICAL, 11, 10},
        {OUTIL_VERTICAL, 9, 8},
        {OUTIL_VERTICAL, 7, 0},
        {OUTIL_VERTICAL, 1, 0},
        {OUTIL_VERTICAL, 61, 16},
    };
    for (const auto& row : rows) {
        lay(row.axis | VALUATOR_FREZE);
        if (row.axis)
            bar.Larg = (row.extent + 1) / 2; // shorter than Init lets it be, as a host may write it
        else
            bar.Dim_Y = row.extent + 6;
        bar.Cur_Value = 0;
        recorder::clear();
        bar.Draw();
        const std::string lines = recorder::text(recorder::kDraw);
        const std::string side = std::to_string(row.side);
        const std::string image = ", 0, 0, " + side + ", " + side + ", " + side + ", " + side + ", 0x0)";
        EXPECT_EQ(lines.find("draw_image") != std::string::npos, row.side != 0) << row.extent;
        if (row.side) {
            EXPECT_NE(lines.find(image), std::string::npos) << row.extent << " in\n" << lines;
        }
    }
}

} // namespace
