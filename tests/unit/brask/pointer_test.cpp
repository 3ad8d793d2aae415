#include <climits>
#include <utility>

#include <brask/pointer.h>

#include "foundation/button_mask.h"
#include "support/recorded.h"

// Buttons, modifier keys and the shape of the pointer.

namespace {

struct Pointer : Recorded {
    HWND wnd = nullptr;
    HCURSOR before = nullptr; // what the host showed
    void SetUp() override {
        Recorded::SetUp();
        wnd = recorder::window();
        desk::cursor(IDC_ARROW), desk::cursor(IDC_WAIT), desk::cursor(IDC_CROSS);
        settle();
        before = desk::own_cursor(1);
        desk::show(before);
        recorder::clear();
    }
    // The state is the process's: takes down what is left of it.
    void settle() {
        Reset_Curs(wnd);
        Reset_Curs(wnd);
        EXPECT_EQ(state(), "Wait=0 Shape=0");
    }
    // Both numbers, as the library tells them; leaves them as they were.
    std::string state() {
        const HCURSOR shown = desk::shown();
        Set_Wait_Flag();
        const std::string line = recorder::log().back().text;
        Reset_Curs_Wait(wnd);
        desk::show(shown);
        return line.substr(line.find("Wait="));
    }
    template <typename Action>
    std::string done(Action action) {
        return recorded(recorder::kEverything, action);
    }
};

std::string put(const std::string& cursor) {
    return "LoadCursorW(null, " + cursor + ")\nSetCursor(" + cursor + ")\n";
}

TEST_F(Pointer, FreshStateShowsNothing) {
    EXPECT_EQ(done([&] { Reset_Curs(wnd); }), "");
}

TEST_F(Pointer, ShapesLookAndCount) {
    EXPECT_EQ(done([&] { Set_Curs_Drag(wnd); }), put("arrow"));
    EXPECT_EQ(state(), "Wait=0 Shape=3");
    EXPECT_EQ(done([&] { Set_Curs_Cross(wnd); }), put("cross"));
    EXPECT_EQ(state(), "Wait=0 Shape=4");
    EXPECT_EQ(done([&] { Set_Curs_Arrow(wnd); }), put("arrow"));
    EXPECT_EQ(state(), "Wait=0 Shape=5");
    EXPECT_EQ(done([&] { Set_Curs(wnd, desk::own_cursor(7)); }), "SetCursor(own7)\n");
    EXPECT_EQ(state(), "Wait=0 Shape=1");
}

TEST_F(Pointer, ResetGivesBackWhatTheLastShapeReplaced) {
    Set_Curs_Cross(wnd);
    Set_Curs_Arrow(wnd); // replaces the cross
    EXPECT_EQ(done([&] { Reset_Curs(wnd); }), "SetCursor(cross)\n");
    EXPECT_EQ(state(), "Wait=0 Shape=0");
    EXPECT_EQ(done([&] { Reset_Curs(wnd); }), ""); // nothing is up
}

TEST_F(Pointer, WithoutASavedCursorAShapeStaysUp) {
    desk::show(nullptr);
    Set_Curs_Cross(wnd);
    EXPECT_EQ(done([&] { Reset_Curs(wnd); }), "");
    EXPECT_EQ(state(), "Wait=0 Shape=4");
    Set_Curs_Cross(wnd); // leaves a saved cursor for the next test
    Reset_Curs(wnd);
}

TEST_F(Pointer, BusyCountsAndGivesBackAtTheLastLevel) {
    EXPECT_EQ(done([&] { Set_Curs_Wait(wnd); }), put("wait"));
    EXPECT_EQ(done([&] { Set_Curs_Wait(wnd); }), put("wait"));
    EXPECT_EQ(state(), "Wait=2 Shape=0");
    EXPECT_EQ(done([&] { Reset_Curs_Wait(wnd); }), ""); // the busy shape stays
    EXPECT_EQ(state(), "Wait=1 Shape=0");
    EXPECT_EQ(done([&] { Reset_Curs_Wait(wnd); }), "SetCursor(own1)\n");
    EXPECT_EQ(state(), "Wait=0 Shape=0");
}

TEST_F(Pointer, ResetEndsTheBusyStateWhateverItsDepth) {
    Set_Curs_Wait(wnd);
    Set_Curs_Wait(wnd);
    EXPECT_EQ(done([&] { Reset_Curs(wnd); }), "SetCursor(own1)\n");
    EXPECT_EQ(state(), "Wait=0 Shape=0");
}

TEST_F(Pointer, BusyTakesAShapeDownFirst) {
    Set_Curs_Cross(wnd);
    EXPECT_EQ(done([&] { Set_Curs_Wait(wnd); }), "SetCursor(own1)\n" + put("wait"));
    EXPECT_EQ(state(), "Wait=1 Shape=0");
    Reset_Curs_Wait(wnd);
    EXPECT_EQ(desk::shown(), before); // not the cross
}

TEST_F(Pointer, ShapesAskedForWhileBusyAreDropped) {
    Set_Curs_Wait(wnd);
    for (void (*ask)(HWND) : {Set_Curs_Arrow, Set_Curs_Cross, Set_Curs_Drag}) {
        EXPECT_EQ(done([&] { ask(wnd); }), put("wait"));
        EXPECT_EQ(state(), "Wait=1 Shape=0");
    }
    EXPECT_EQ(done([&] { Set_Curs(wnd, desk::own_cursor(7)); }), put("wait"));
    EXPECT_EQ(done([&] { Reset_Curs_Wait(wnd); }), "SetCursor(own1)\n");
}

TEST_F(Pointer, ResetWithAShapeUnderABusyFlagKeepsTheBusyState) {
    Set_Curs_Cross(wnd);
    Set_Wait_Flag();
    EXPECT_EQ(done([&] { Set_Curs_Arrow(wnd); }), put("wait")); // the flag alone makes it busy
    EXPECT_EQ(state(), "Wait=1 Shape=4");
    EXPECT_EQ(done([&] { Set_Curs_Wait(wnd); }), put("wait")); // already busy: the shape is not taken down
    EXPECT_EQ(state(), "Wait=2 Shape=4");
    EXPECT_EQ(done([&] { Reset_Curs(wnd); }), "SetCursor(own1)\n");
    EXPECT_EQ(state(), "Wait=2 Shape=0");
    Reset_Curs(wnd);
    EXPECT_EQ(state(), "Wait=0 Shape=0");
}

TEST_F(Pointer, WaitFlagReportsAndCounts) {
    EXPECT_EQ(done([&] { Set_Wait_Flag(); }), "[90000021] Set_Wait_Flag Wait=0 Shape=0\n");
    EXPECT_EQ(done([&] { Set_Wait_Flag(); }), "[90000021] Set_Wait_Flag Wait=1 Shape=0\n");
    EXPECT_EQ(desk::shown(), before);
    EXPECT_EQ(done([&] { Reset_Curs_Wait(wnd); }), "");
    Reset_Curs_Wait(wnd);
    EXPECT_EQ(state(), "Wait=0 Shape=0");
}

TEST_F(Pointer, ResetOfNoBusyStateSetsTheSavedCursorAgain) {
    Set_Curs_Wait(wnd);
    Reset_Curs_Wait(wnd);
    EXPECT_EQ(done([&] { Reset_Curs_Wait(wnd); }), "SetCursor(own1)\n");
    EXPECT_EQ(state(), "Wait=0 Shape=0");
}

// The count is a byte: 256 levels are none.
TEST_F(Pointer, NestingWraps) {
    for (int i = 0; i < 255; ++i)
        Set_Wait_Flag();
    EXPECT_EQ(done([&] { Set_Wait_Flag(); }), "[90000021] Set_Wait_Flag Wait=255 Shape=0\n");
    EXPECT_EQ(state(), "Wait=0 Shape=0");
    EXPECT_EQ(done([&] { Set_Curs_Arrow(wnd); }), put("arrow"));
}

TEST_F(Pointer, NullsAreHarmless) {
    Set_Curs(nullptr, nullptr);
    Reset_Curs(nullptr);
    Set_Curs_Wait(nullptr);
    Reset_Curs_Wait(nullptr);
    EXPECT_EQ(state(), "Wait=0 Shape=0");
}

// --- Keys and mouse buttons ---

TEST_F(Pointer, MouseButtonsHeldNow) {
    for (const int vk : {VK_LBUTTON, VK_RBUTTON, VK_MBUTTON}) {
        EXPECT_EQ(getbutton(vk), 0);
        desk::hold(vk);
        for (const int other : {VK_LBUTTON, VK_RBUTTON, VK_MBUTTON})
            EXPECT_EQ(getbutton(other), other == vk);
        desk::let_go(vk);
    }
    for (int vk = 0; vk < 256; ++vk)
        desk::hold(vk);
    for (const int vk : {0, 3, 5, 6, -1, 16, 255, 257, INT_MAX, INT_MIN})
        EXPECT_EQ(getbutton(vk), 0) << vk;
    EXPECT_EQ(recorder::text(), "");
}

struct Modifier {
    int key, asked;
};
TEST_F(Pointer, ModifiersAreFolded) {
    const Modifier rows[] = {{16, VK_SHIFT},   {160, VK_SHIFT},   {161, VK_SHIFT},   {64, VK_SHIFT},
                             {17, VK_CONTROL}, {162, VK_CONTROL}, {163, VK_CONTROL}, {32, VK_CONTROL},
                             {18, VK_MENU},    {164, VK_MENU},    {165, VK_MENU}};
    for (const Modifier& row : rows) {
        EXPECT_EQ(getkey(row.key), 0) << row.key;
        for (const int held : {VK_SHIFT, VK_CONTROL, VK_MENU}) {
            desk::hold(held);
            EXPECT_EQ(getkey(row.key) != 0, held == row.asked) << row.key << " with " << held;
            desk::let_go(held);
        }
    }
    for (int vk = 0; vk < 256; ++vk)
        desk::hold(vk);
    for (int key = -2; key < 300; ++key) {
        bool known = false;
        for (const Modifier& row : rows)
            known |= row.key == key;
        EXPECT_EQ(getkey(key) != 0, known) << key;
    }
}

TEST_F(Pointer, ToggleBitDoesNotCount) {
    desk::key_state(VK_SHIFT, 1);
    EXPECT_EQ(getkey(VK_SHIFT), 0);
    desk::key_state(VK_SHIFT, 0xFF81);
    EXPECT_NE(getkey(VK_SHIFT), 0);
    EXPECT_EQ(getkey(VK_SHIFT) & 1, 0);
    desk::key_state(VK_SHIFT, 0x8000); // bit 0 alone is masked out of the whole
    EXPECT_NE(getkey(VK_SHIFT), 0);
}

// Buttons are numbered left, middle, right; their bits stand left, right, middle.
TEST_F(Pointer, RecordedButtonsHaveTheBitsOfTheirKeys) {
    STATE_MASK(0);
    const std::pair<int, int> rows[] = {{1, VK_LBUTTON}, {2, VK_MBUTTON}, {3, VK_RBUTTON}, {0, 0},
                                        {4, 0},          {-1, 0},         {INT_MAX, 0},    {INT_MIN, 0}};
    for (const auto& row : rows) {
        BUTTON_PRESS(row.first);
        EXPECT_EQ(brask::Button_Mask, row.second) << row.first;
        BUTTON_PRESS(row.first);
        BUTTON_RELEASE(row.first);
        EXPECT_EQ(brask::Button_Mask, 0) << row.first;
    }
    for (const int button : {1, 2, 3})
        BUTTON_PRESS(button);
    EXPECT_EQ(brask::Button_Mask, 7);
    BUTTON_RELEASE(2);
    EXPECT_EQ(brask::Button_Mask, 3);
    for (const int mask : {0x100, INT_MAX, INT_MIN, 0}) { // taken whole
        STATE_MASK(mask);
        EXPECT_EQ(brask::Button_Mask, mask);
    }
    BUTTON_PRESS(1);
    EXPECT_EQ(getbutton(1), 0); // what is recorded is not what is held
    STATE_MASK(0);
}

} // namespace
