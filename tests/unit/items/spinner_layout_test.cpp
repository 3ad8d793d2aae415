#include <climits>

#include <brask/fonts.h>

#include "spinner_fixture.h"

// Where a spinner's zone, arrows and choices are laid.

namespace {

TEST_F(Spinner, TheZoneByNameFlagsAndBorder) {
    struct Row {
        DWORD flag;
        const wchar_t* name;
        int value_dim, border;
        Rect zone;
    };
    const wchar_t* const name = L"name"; // 32 wide, and an "X" of 8
    for (const Row& row : {
             Row{0, nullptr, 0, 0, {105, 205, 190, 20}},
             Row{TEXT_LEFT, nullptr, 0, 0, {105, 205, 190, 20}},
             Row{TEXT_LEFT, name, 0, 0, {150, 205, 145, 20}},
             Row{TEXT_RIGHT, name, 0, 0, {105, 205, 145, 20}},
             Row{TEXT_LEFT | TEXT_RIGHT, name, 0, 0, {150, 205, 145, 20}},
             Row{0, name, 0, 0, {105, 205, 190, 10}},
             Row{TEXT_BOTTOM, name, 0, 0, {105, 205, 190, 10}},
             Row{TEXT_MIDDLE, name, 0, 0, {105, 205, 190, 10}},
             Row{0, nullptr, 80, 0, {210, 205, 80, 20}},
             Row{TEXT_LEFT, name, 80, 0, {210, 205, 80, 20}}, // the name may run under the zone
             Row{TEXT_RIGHT, name, 80, 0, {210, 205, 80, 20}},
             Row{0, name, 300, 0, {-10, 205, 300, 20}},
             Row{0, name, -5, 0, {295, 205, 0, 20}},
             Row{0, nullptr, 0, 1, {104, 204, 192, 22}}, // never nearer than 4
             Row{0, nullptr, 0, 7, {109, 209, 182, 12}},
             Row{0, nullptr, 0, -8, {104, 204, 192, 22}}, // the border keeps its sign
             Row{0, nullptr, 0, 60, {162, 262, 76, 0}},
             Row{0, nullptr, 0, 150, {252, 352, 0, 0}},
         }) {
        spin.Flag = row.flag;
        row.name ? spin.Name_Set(L"%ls", row.name) : spin.Name_Set(nullptr);
        spin.Value_Dim = row.value_dim, spin.Border = row.border;
        spin.Dim_X = 200, spin.Dim_Y = 30;
        spin.Init(recorder::window());
        EXPECT_EQ(rect_of(spin.Zone), row.zone)
            << std::hex << row.flag << std::dec << (row.name ? " named " : " ") << row.value_dim << ' '
            << row.border;
    }
    BORDER = 10;
    spin.Border = 0, spin.Value_Dim = 0, spin.Flag = 0;
    spin.Name_Set(nullptr);
    spin.Init(nullptr);
    EXPECT_EQ(rect_of(spin.Zone), (Rect{112, 212, 176, 6}));
}

TEST_F(Spinner, TheZoneGoesByTheControlsOwnFont) {
    spin.Font_Size = 13;
    spin.Name_Set(L"name");
    spin.Flag = TEXT_LEFT;
    const HFONT font = Zeb_Create_Font(recorder::window(), nullptr, nullptr, nullptr, 13);
    recorder::metrics(font, 9, 11);
    horizontal(1);
    EXPECT_EQ(spin.Zone.Pos_X, 100 + 10 + 44 + 11);
    EXPECT_EQ(spin.Zone.Dim_X, 200 - 15 - 44 - 11);
    spin.Flag = 0;
    spin.Init(nullptr);
    EXPECT_EQ(spin.Zone.Dim_Y, 30 - 10 - 9);
}

TEST_F(Spinner, TheArrowsLengthIsTheLesserOfAcrossAndHalfOfAlong) {
    struct Row {
        DWORD flag;
        int width, height, given, arrow;
    };
    for (const Row& row : {
             Row{0, 200, 30, 0, 30},
             Row{0, 60, 30, 0, 14},
             Row{0, 61, 30, 0, 14}, // the division cuts
             Row{0, 32, 30, 0, 0},
             Row{0, 10, 30, 0, -11}, // stored all the same
             Row{0, 1, 1, 0, -16},
             Row{OUTIL_VERTICAL, 40, 200, 0, 40},
             Row{OUTIL_VERTICAL, 40, 81, 0, 24},
             Row{OUTIL_VERTICAL, 200, 30, 0, -1},
             Row{0, 200, 30, 12, 12},
             Row{0, 200, 30, -3, -3},
             Row{0, INT_MAX, INT_MAX, 0, INT_MAX / 2 - 16},
         }) {
        Selects fresh;
        fresh.Flag = row.flag | OUTIL_EMPTY; // no faces, of which some would be too large
        fresh.Dim_X = row.width, fresh.Dim_Y = row.height, fresh.Arrow_Dim = row.given;
        fresh.Init(recorder::window());
        EXPECT_EQ(fresh.Arrow_Dim, row.arrow) << row.width << ' ' << row.height;
    }
    CURSEUR = 40;
    Selects fresh;
    fresh.Dim_X = 100, fresh.Dim_Y = 30;
    fresh.Init(recorder::window());
    EXPECT_EQ(fresh.Arrow_Dim, 10);
}

TEST_F(Spinner, TheComputedArrowSurvivesALaterInit) {
    horizontal(1);
    spin.Dim_X = 500, spin.Dim_Y = 80;
    spin.Init(nullptr);
    EXPECT_EQ(spin.Arrow_Dim, 30);
    spin.Arrow_Dim = 0;
    spin.Init(nullptr);
    EXPECT_EQ(spin.Arrow_Dim, 80);
}

TEST_F(Spinner, TheChoicesHaveWhatTheArrowsLeave) {
    struct Row {
        DWORD flag;
        int width, height, arrow;
        Rect value;
    };
    for (const Row& row : {
             Row{0, 200, 30, 0, {140, 205, 120, 20}},
             Row{0, 200, 30, 12, {122, 205, 156, 20}},
             Row{OUTIL_VERTICAL, 40, 200, 0, {105, 250, 30, 100}},
             Row{0, 80, 30, 30, {140, 205, 0, 20}},
             Row{OUTIL_VERTICAL, 40, 80, 30, {105, 240, 30, 0}},
             Row{0, 10, 30, 0, {99, 205, 12, 20}}, // wider than the zone, which is empty
             Row{OUTIL_VERTICAL, 40, 10, 0, {105, 199, 30, 12}},
             Row{0, 200, 30, -100, {10, 205, 380, 20}},
         }) {
        spin.Flag = 0, spin.Arrow_Dim = row.arrow;
        lay(row.flag, 2, row.width, row.height);
        for (int i = 0; i < 2; i++)
            EXPECT_EQ(rect_of(item(i)), row.value) << row.width << ' ' << row.height << ' ' << row.arrow;
    }
}

// Nothing overflows whatever the fields hold.
TEST_F(Spinner, WildFieldsAreLaidOut) {
    spin.Flag = OUTIL_EMPTY;
    spin.Grow(2, 0);
    spin.Name_Set(L"name");
    for (const int wild : {INT_MIN, INT_MIN + 1, -1, 1 << 30, INT_MAX - 1, INT_MAX})
        for (const DWORD flag : {DWORD(0), OUTIL_VERTICAL, TEXT_LEFT, TEXT_RIGHT})
            for (int field = 0; field < 6; field++) {
                spin.Flag = OUTIL_EMPTY | flag;
                spin.Pos_X = spin.Pos_Y = 10, spin.Dim_X = spin.Dim_Y = 50;
                spin.Border = spin.Value_Dim = spin.Arrow_Dim = 0;
                (field == 0   ? spin.Pos_X
                 : field == 1 ? spin.Pos_Y
                 : field == 2 ? spin.Dim_X
                 : field == 3 ? spin.Border
                 : field == 4 ? spin.Value_Dim
                              : spin.Arrow_Dim) = wild;
                spin.Init(recorder::window());
                EXPECT_GE(spin.Zone.Dim_X, 0);
                EXPECT_GE(spin.Zone.Dim_Y, 0);
                EXPECT_GE(item(0).Dim_X, 0);
                EXPECT_GE(item(1).Dim_Y, 0);
                spin.Draw();
                spin.Select(2);
                recorder::clear();
            }
}

} // namespace
