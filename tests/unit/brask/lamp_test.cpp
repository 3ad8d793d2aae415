#include <brask/buttons.h>

#include "expect.h"

// The lamp of a button: its colours, and where it lies.

namespace {

struct Lamp : Recorded {
    Buttons button;
    void SetUp() override {
        Recorded::SetUp();
        BORDER = 3, SPACE = 6, BUT_DIM = 25;
        button.Pos_X = 10, button.Pos_Y = 20, button.Dim_X = 50, button.Dim_Y = 30;
        button.Flag = BUTTON_LAMP | OUTIL_EMPTY | OUTIL_NO_FRAME; // nothing but the lamp
        button.Init(recorder::window());
        recorder::clear();
    }
    void TearDown() override {
        SPACE = 6, BUT_DIM = 25;
        Recorded::TearDown();
    }
};

struct LampColour {
    unsigned index;
    const char *all, *plain;
};
TEST_F(Lamp, Colours) {
    const LampColour rows[] = {{0, "0xAAAAAA", "0xAAAAAA"},   {1, "0xFF00", "0xFFFF"},
                               {2, "0xFF0000", "0xFFFF"},     {3, "0xFFFF", "0xFFFF"},
                               {4, "0xFF", "0xFFFF"},         {5, "0xFF", "0xFFFF"},
                               {0xFFFFFFFF, "0xFF", "0xFFFF"}};
    for (const LampColour& row : rows)
        for (const DWORD flag : {DWORD(0), BUTTON_LAMP_COLOR}) {
            button.Flag = BUTTON_LAMP | OUTIL_EMPTY | OUTIL_NO_FRAME | flag;
            button.Lamp_Color = row.index;
            const std::string lines = painted([&] { button.Draw(); });
            EXPECT_NE(lines.find(std::string("Zeb_color(") + (flag ? row.all : row.plain) +
                                 ")\ndraw_fill_rectangle("),
                      std::string::npos)
                << row.index << "\n"
                << lines;
        }
}

struct Bar {
    int dim_y, border, but_dim, space;
    int left, right, bottom, top, inset;
};
TEST_F(Lamp, Geometry) {
    const Bar rows[] = {
        {30, 0, 25, 6, 16, 24, 27, 42, 2},  // 8 wide, 15 high, centred
        {25, 0, 25, 6, 16, 24, 25, 40, 2},  //
        {31, 0, 25, 6, 16, 24, 28, 43, 2},  // an odd rest: halves are rounded down
        {30, 1, 25, 6, 16, 24, 25, 44, 1},  // the inset is 1 at least
        {30, 2, 25, 6, 16, 24, 26, 43, 1},  //
        {30, -5, 25, 6, 16, 24, 29, 40, 4}, //
        {30, 0, 10, 9, 19, 27, 35, 35, 2},  // as high as its margins: nothing left
        {10, 0, 25, 6, 16, 24, 25, 25, 2},  //
        {5, 0, 25, 6, 16, 24, 25, 20, 2},   // the bottom above the top: no guard
        {100, 0, 25, 6, 16, 24, 62, 77, 2}, //
    };
    for (const Bar& row : rows) {
        SCOPED_TRACE(testing::Message() << "high " << row.dim_y << " border " << row.border);
        button.Dim_Y = row.dim_y;
        button.Border = row.border;
        BUT_DIM = row.but_dim, SPACE = row.space;
        const int c = row.inset;
        EXPECT_EQ(everything([&] { button.Draw(); }), everything([&] {
                      trace_in("Buttons::Draw", "no name");
                      button.Fill_Grey(row.left + c, row.right - c, row.bottom + c, row.top - c);
                      button.Cadre(button.Flag, 1, c, row.left, row.right, row.bottom, row.top);
                      trace_out("Buttons::Draw", "OUTIL_EMPTY");
                  }));
    }
}

} // namespace
