// The state of keys: as of the last message taken, and now.

#include "host.h"

static USHORT state(int key) { return static_cast<USHORT>(GetKeyState(key)); }
static bool is_now(int key) { return GetAsyncKeyState(key) < 0; }

constexpr int kA = 4, kControl = 224, kShift = 225, kAlt = 226, kRightControl = 228, kRightShift = 229;

TEST(KeyState, FollowsTheMessagesThatAreTaken) {
    ShownHost host;
    key(kA, true);
    EXPECT_EQ(state('A'), 0);
    EXPECT_TRUE(is_now('A'));
    MSG msg;
    EXPECT_TRUE(PeekMessageW(&msg, nullptr, 0, 0, PM_NOREMOVE));
    EXPECT_EQ(state('A'), 0);
    EXPECT_TRUE(PeekMessageW(&msg, nullptr, 0, 0, PM_REMOVE));
    EXPECT_EQ(state('A'), 0xFF81);
    key(kA, false);
    EXPECT_EQ(state('A'), 0xFF81);
    EXPECT_FALSE(is_now('A'));
    host.run();
    EXPECT_EQ(state('A'), 0x0001);
}

TEST(KeyState, EveryPressToggles) {
    ShownHost host;
    for (int i = 1; i <= 4; i++) {
        key(kA, true);
        host.run();
        EXPECT_EQ(state('A'), 0xFF80 | (i & 1));
        key(kA, true); // a repetition does not
        host.run();
        EXPECT_EQ(state('A'), 0xFF80 | (i & 1));
        key(kA, false);
        host.run();
        EXPECT_EQ(state('A'), i & 1);
    }
}

TEST(KeyState, LocksFollowTheDesktop) {
    ShownHost host;
    tap(kA, platform::kNumLock);
    host.run();
    EXPECT_EQ(state(VK_NUMLOCK), 1);
    EXPECT_EQ(state(VK_CAPITAL), 0);
    tap(kA, platform::kCapsLock);
    host.run();
    EXPECT_EQ(state(VK_NUMLOCK), 0);
    EXPECT_EQ(state(VK_CAPITAL), 1);
}

TEST(KeyState, LeftAndRightModifiersCarryTheCommonOne) {
    ShownHost host;
    key(kShift, true);
    key(kRightShift, true);
    host.run();
    EXPECT_TRUE(state(VK_LSHIFT) & 0x8000 && state(VK_RSHIFT) & 0x8000 && state(VK_SHIFT) & 0x8000);
    key(kShift, false);
    host.run();
    EXPECT_FALSE(state(VK_LSHIFT) & 0x8000);
    EXPECT_TRUE(state(VK_SHIFT) & 0x8000);
    EXPECT_TRUE(is_now(VK_SHIFT));
    key(kRightShift, false);
    host.run();
    EXPECT_FALSE(state(VK_SHIFT) & 0x8000);
    EXPECT_FALSE(is_now(VK_SHIFT));
    key(kRightControl, true);
    host.run();
    EXPECT_TRUE(state(VK_CONTROL) & 0x8000 && state(VK_RCONTROL) & 0x8000);
    EXPECT_FALSE(state(VK_LCONTROL) & 0x8000);
}

TEST(KeyState, ButtonsOfTheMouseAreKeysToo) {
    ShownHost host;
    const int keys[] = {VK_LBUTTON, VK_MBUTTON, VK_RBUTTON, VK_XBUTTON1, VK_XBUTTON2};
    for (int button = 1; button <= 5; button++) {
        platform::desktop_button(host.wnd, button, true, 5, 5, 1);
        EXPECT_TRUE(is_now(keys[button - 1]));
        host.run();
        EXPECT_TRUE(state(keys[button - 1]) & 0x8000);
        platform::desktop_button(host.wnd, button, false, 5, 5, 1);
        EXPECT_FALSE(is_now(keys[button - 1]));
        host.run();
        EXPECT_FALSE(state(keys[button - 1]) & 0x8000);
    }
}

TEST(KeyState, GoesAllAtOnceToAndFromAnArray) {
    ShownHost host;
    key(kAlt, true);
    host.run();
    BYTE keys[256];
    EXPECT_TRUE(GetKeyboardState(keys));
    EXPECT_EQ(keys[VK_MENU], 0x81);
    EXPECT_EQ(keys[VK_LMENU], 0x81);
    EXPECT_EQ(keys[VK_SHIFT], 0);
    keys[static_cast<int>('Q')] = 0x80;
    keys[VK_LMENU] = 0;
    EXPECT_TRUE(SetKeyboardState(keys));
    EXPECT_EQ(state('Q'), 0xFF80);
    EXPECT_EQ(state(VK_LMENU), 0);
    EXPECT_TRUE(is_now(VK_LMENU)); // what the hand does is not changed by it
}

TEST(KeyState, KeysOutsideOfTheRangeAreUp) {
    for (const int key : {-1, 256, 1 << 20}) {
        EXPECT_EQ(state(key), 0);
        EXPECT_FALSE(is_now(key));
    }
    EXPECT_FALSE(GetKeyboardState(nullptr));
    EXPECT_FALSE(SetKeyboardState(nullptr));
}

TEST(KeyState, VirtualKeysAndScanCodesMap) {
    EXPECT_EQ(MapVirtualKeyW('Q', MAPVK_VK_TO_VSC), 0x10u);
    EXPECT_EQ(MapVirtualKeyW(VK_SHIFT, MAPVK_VK_TO_VSC), 0x2Au);
    EXPECT_EQ(MapVirtualKeyW(VK_NUMPAD7, MAPVK_VK_TO_VSC), 0x47u);
    EXPECT_EQ(MapVirtualKeyW(0x36, MAPVK_VSC_TO_VK), static_cast<UINT>(VK_SHIFT));
    EXPECT_EQ(MapVirtualKeyW(0x36, MAPVK_VSC_TO_VK_EX), static_cast<UINT>(VK_RSHIFT));
    EXPECT_EQ(MapVirtualKeyW(0xE01D, MAPVK_VSC_TO_VK_EX), static_cast<UINT>(VK_RCONTROL));
    EXPECT_EQ(MapVirtualKeyW('Q', MAPVK_VK_TO_CHAR), static_cast<UINT>('Q'));
    EXPECT_EQ(MapVirtualKeyW(VK_F1, MAPVK_VK_TO_CHAR), 0u);
    EXPECT_EQ(MapVirtualKeyW('Q', 9), 0u);
}
