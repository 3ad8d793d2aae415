// From keys of the desktop to key messages: virtual keys, scan codes and flag bits.

#include <cstring>

#include "host.h"
#include "platform/portable/key_table.h"

using platform::kNumLock;

// Usage numbers of the USB keyboard page that the tests speak of.
enum Code {
    A = 4,
    E = 8,
    M = 16,
    Q = 20,
    Y = 28,
    Z = 29,
    ENTER = 40,
    ESC = 41,
    BACK = 42,
    TAB = 43,
    SPACE = 44,
    SEMICOLON = 51,
    F4 = 61,
    F10 = 67,
    PRINT = 70,
    SCROLL = 71,
    PAUSE = 72,
    LEFT = 80,
    NUM = 83,
    PAD_PLUS = 87,
    PAD_4 = 92,
    PAD_7 = 95,
    CTRL = 224,
    SHIFT = 225,
    ALT = 226,
    RSHIFT = 229,
    RALT = 230,
};

struct Expected {
    int scancode, key, scan;
    bool extended;
};
// Written down from the scan codes of a keyboard, not from the table.
static const Expected kExpected[] = {
    {41, VK_ESCAPE, 0x01, false},     {42, VK_BACK, 0x0E, false},     {43, VK_TAB, 0x0F, false},
    {40, VK_RETURN, 0x1C, false},     {44, VK_SPACE, 0x39, false},    {57, VK_CAPITAL, 0x3A, false},
    {45, VK_OEM_MINUS, 0x0C, false},  {46, VK_OEM_PLUS, 0x0D, false}, {47, VK_OEM_4, 0x1A, false},
    {48, VK_OEM_6, 0x1B, false},      {49, VK_OEM_5, 0x2B, false},    {51, VK_OEM_1, 0x27, false},
    {52, VK_OEM_7, 0x28, false},      {53, VK_OEM_3, 0x29, false},    {54, VK_OEM_COMMA, 0x33, false},
    {55, VK_OEM_PERIOD, 0x34, false}, {56, VK_OEM_2, 0x35, false},    {100, VK_OEM_102, 0x56, false},
    {58, VK_F1, 0x3B, false},         {66, VK_F9, 0x43, false},       {68, VK_F11, 0x57, false},
    {69, VK_F12, 0x58, false},        {71, VK_SCROLL, 0x46, false},   {72, VK_PAUSE, 0x45, false},
    {83, VK_NUMLOCK, 0x45, true},     {73, VK_INSERT, 0x52, true},    {74, VK_HOME, 0x47, true},
    {75, VK_PRIOR, 0x49, true},       {76, VK_DELETE, 0x53, true},    {77, VK_END, 0x4F, true},
    {78, VK_NEXT, 0x51, true},        {79, VK_RIGHT, 0x4D, true},     {80, VK_LEFT, 0x4B, true},
    {81, VK_DOWN, 0x50, true},        {82, VK_UP, 0x48, true},        {84, VK_DIVIDE, 0x35, true},
    {85, VK_MULTIPLY, 0x37, false},   {86, VK_SUBTRACT, 0x4A, false}, {87, VK_ADD, 0x4E, false},
    {88, VK_RETURN, 0x1C, true},      {89, VK_END, 0x4F, false},      {90, VK_DOWN, 0x50, false},
    {91, VK_NEXT, 0x51, false},       {92, VK_LEFT, 0x4B, false},     {93, VK_CLEAR, 0x4C, false},
    {94, VK_RIGHT, 0x4D, false},      {95, VK_HOME, 0x47, false},     {96, VK_UP, 0x48, false},
    {97, VK_PRIOR, 0x49, false},      {98, VK_INSERT, 0x52, false},   {99, VK_DELETE, 0x53, false},
    {101, VK_APPS, 0x5D, true},       {227, VK_LWIN, 0x5B, true},     {231, VK_RWIN, 0x5C, true},
    {224, VK_CONTROL, 0x1D, false},   {228, VK_CONTROL, 0x1D, true},  {225, VK_SHIFT, 0x2A, false},
    {229, VK_SHIFT, 0x36, false},
};

TEST(KeyMessages, KeysArriveWithKeyScanCodeAndExtendedBit) {
    ShownHost host;
    for (const Expected& row : kExpected) {
        tap(row.scancode);
        const auto key = static_cast<WPARAM>(row.key);
        std::vector<Heard> keys;
        for (const Heard& heard : host.run_keys()) {
            if (heard.message != WM_CHAR) keys.push_back(heard);
        }
        EXPECT_EQ(keys, (std::vector<Heard>{{WM_KEYDOWN, key, pressed(row.scan, row.extended)},
                                            {WM_KEYUP, key, released(row.scan, row.extended)}}))
            << row.scancode;
    }
}

TEST(KeyMessages, EveryKeyOfTheTableGoesDownAndUp) {
    ShownHost host;
    int count = 0;
    const platform::KeyRow* rows = platform::key_rows(&count);
    for (int i = 0; i < count; i++) {
        tap(rows[i].scancode);
        const std::vector<Heard> heard = host.run_keys();
        ASSERT_FALSE(heard.empty()) << rows[i].scancode;
        EXPECT_EQ(heard.back().lparam, released(rows[i].scan, rows[i].extended)) << rows[i].scancode;
        EXPECT_EQ(GetKeyState(rows[i].virtual_key) & 0x8000, 0) << rows[i].scancode;
        const bool has_press = rows[i].virtual_key != VK_SNAPSHOT;
        EXPECT_EQ(heard.front().message == WM_KEYDOWN || heard.front().message == WM_SYSKEYDOWN, has_press);
        tap(ESC); // ends what Alt has begun
        host.run();
    }
}

TEST(KeyMessages, UnknownKeysAreIgnored) {
    ShownHost host;
    for (const int code : {-5, 0, 102, 511, 512, 1 << 30})
        tap(code);
    EXPECT_TRUE(host.run_keys().empty());
}

TEST(KeyMessages, ARepeatedPressTellsThatTheKeyWasDown) {
    ShownHost host;
    key(LEFT, true);
    key(LEFT, true);
    key(LEFT, false);
    EXPECT_EQ(host.run_keys(), (std::vector<Heard>{{WM_KEYDOWN, VK_LEFT, pressed(0x4B, true)},
                                                   {WM_KEYDOWN, VK_LEFT, pressed(0x4B, true) | 1L << 30},
                                                   {WM_KEYUP, VK_LEFT, released(0x4B, true)}}));
}

TEST(KeyMessages, AReleaseWithoutAPressIsNotTold) {
    ShownHost host;
    key(A, false);
    EXPECT_TRUE(host.run_keys().empty());
}

TEST(KeyMessages, PrintScreenIsToldAtItsReleaseAlone) {
    ShownHost host;
    tap(PRINT);
    EXPECT_EQ(host.run_keys(), (std::vector<Heard>{{WM_KEYUP, VK_SNAPSHOT, released(0x37, true)}}));
}

TEST(KeyMessages, AltMakesSystemKeys) {
    ShownHost host;
    key(ALT, true);
    tap(F10 - 4); // F6
    key(ALT, false);
    EXPECT_EQ(host.run_keys(), (std::vector<Heard>{{WM_SYSKEYDOWN, VK_MENU, pressed(0x38, false, true)},
                                                   {WM_SYSKEYDOWN, VK_F6, pressed(0x40, false, true)},
                                                   {WM_SYSKEYUP, VK_F6, released(0x40, false, true)},
                                                   {WM_KEYUP, VK_MENU, released(0x38)}}));
}

TEST(KeyMessages, AltAloneIsASystemKeyAtItsReleaseToo) {
    ShownHost host;
    tap(ALT);
    EXPECT_EQ(host.run_keys(), (std::vector<Heard>{{WM_SYSKEYDOWN, VK_MENU, pressed(0x38, false, true)},
                                                   {WM_SYSKEYUP, VK_MENU, released(0x38)}}));
    tap(RALT);
    EXPECT_EQ(host.run_keys(), (std::vector<Heard>{{WM_SYSKEYDOWN, VK_MENU, pressed(0x38, true, true)},
                                                   {WM_SYSKEYUP, VK_MENU, released(0x38, true)}}));
}

TEST(KeyMessages, AltReleasedBeforeItsKeyLeavesAPlainRelease) {
    ShownHost host;
    key(ALT, true);
    key(LEFT, true);
    key(ALT, false);
    key(LEFT, false);
    EXPECT_EQ(host.run_keys(), (std::vector<Heard>{{WM_SYSKEYDOWN, VK_MENU, pressed(0x38, false, true)},
                                                   {WM_SYSKEYDOWN, VK_LEFT, pressed(0x4B, true, true)},
                                                   {WM_KEYUP, VK_MENU, released(0x38)},
                                                   {WM_KEYUP, VK_LEFT, released(0x4B, true)}}));
}

TEST(KeyMessages, F10IsASystemKeyByItself) {
    ShownHost host;
    tap(F10);
    EXPECT_EQ(host.run_keys(), (std::vector<Heard>{{WM_SYSKEYDOWN, VK_F10, pressed(0x44)},
                                                   {WM_SYSKEYUP, VK_F10, released(0x44)}}));
}

TEST(KeyMessages, ControlWithAltMakesPlainKeys) {
    ShownHost host;
    key(CTRL, true);
    key(ALT, true);
    tap(A);
    key(ALT, false);
    key(CTRL, false);
    EXPECT_EQ(host.run_keys(), (std::vector<Heard>{{WM_KEYDOWN, VK_CONTROL, pressed(0x1D)},
                                                   {WM_KEYDOWN, VK_MENU, pressed(0x38, false, true)},
                                                   {WM_KEYDOWN, 'A', pressed(0x1E, false, true)},
                                                   {WM_KEYUP, 'A', released(0x1E, false, true)},
                                                   {WM_KEYUP, VK_MENU, released(0x38)},
                                                   {WM_KEYUP, VK_CONTROL, released(0x1D)}}));
}

TEST(KeyMessages, ControlReleasedUnderAltIsASystemKey) {
    ShownHost host;
    key(CTRL, true);
    key(ALT, true);
    host.run();
    key(CTRL, false);
    EXPECT_EQ(host.run_keys(), (std::vector<Heard>{{WM_SYSKEYUP, VK_CONTROL, released(0x1D, false, true)}}));
}

TEST(KeyMessages, ControlTurnsPauseAndScrollIntoBreak) {
    ShownHost host;
    key(CTRL, true);
    host.run();
    tap(PAUSE);
    EXPECT_EQ(host.run_keys(), (std::vector<Heard>{{WM_KEYDOWN, VK_CANCEL, pressed(0x46, true)},
                                                   {WM_CHAR, 3, pressed(0x46, true)},
                                                   {WM_KEYUP, VK_CANCEL, released(0x46, true)}}));
    tap(SCROLL);
    EXPECT_EQ(host.run_keys().front(), (Heard{WM_KEYDOWN, VK_CANCEL, pressed(0x46)}));
}

TEST(KeyMessages, NumLockChoosesTheKeysOfThePad) {
    ShownHost host;
    const int digits[] = {98, 89, 90, 91, 92, 93, 94, 95, 96, 97};
    const int scans[] = {0x52, 0x4F, 0x50, 0x51, 0x4B, 0x4C, 0x4D, 0x47, 0x48, 0x49};
    const int moves[] = {VK_INSERT, VK_END,   VK_DOWN, VK_NEXT, VK_LEFT,
                         VK_CLEAR,  VK_RIGHT, VK_HOME, VK_UP,   VK_PRIOR};
    for (int digit = 0; digit < 10; digit++) {
        tap(digits[digit]);
        EXPECT_EQ(host.run_keys().front(),
                  (Heard{WM_KEYDOWN, static_cast<WPARAM>(moves[digit]), pressed(scans[digit])}));
        tap(digits[digit], kNumLock);
        const auto number = static_cast<WPARAM>(VK_NUMPAD0 + digit);
        EXPECT_EQ(host.run_keys(),
                  (std::vector<Heard>{{WM_KEYDOWN, number, pressed(scans[digit])},
                                      {WM_CHAR, static_cast<WPARAM>('0' + digit), pressed(scans[digit])},
                                      {WM_KEYUP, number, released(scans[digit])}}));
    }
    tap(99, kNumLock);
    EXPECT_EQ(host.run_keys().front(), (Heard{WM_KEYDOWN, VK_DECIMAL, pressed(0x53)}));
}

TEST(KeyMessages, APadKeyIsReleasedAsTheKeyThatWasPressed) {
    ShownHost host;
    key(PAD_4, true, kNumLock);
    key(PAD_4, false, 0); // Num Lock went off meanwhile
    EXPECT_EQ(host.run_keys().back(), (Heard{WM_KEYUP, VK_NUMPAD4, released(0x4B)}));
}

TEST(KeyMessages, ShiftIsLiftedWhileAPadKeyHasItsOtherMeaning) {
    ShownHost host;
    key(SHIFT, true, kNumLock);
    host.run();
    key(PAD_7, true, kNumLock);
    EXPECT_EQ(host.run_keys(), (std::vector<Heard>{{WM_KEYUP, VK_SHIFT, released(0x2A)},
                                                   {WM_KEYDOWN, VK_HOME, pressed(0x47)}}));
    EXPECT_EQ(GetKeyState(VK_SHIFT) & 0x8000, 0);
    key(PAD_7, false, kNumLock);
    EXPECT_EQ(host.run_keys(), (std::vector<Heard>{{WM_KEYUP, VK_HOME, released(0x47)},
                                                   {WM_KEYDOWN, VK_SHIFT, pressed(0x2A)}}));
    key(SHIFT, false, kNumLock);
    EXPECT_EQ(host.run_keys(), (std::vector<Heard>{{WM_KEYUP, VK_SHIFT, released(0x2A)}}));
}

TEST(KeyMessages, AShiftReleasedWhileLiftedStaysUp) {
    ShownHost host;
    key(SHIFT, true, kNumLock);
    key(PAD_7, true, kNumLock);
    host.run();
    key(SHIFT, false, kNumLock);
    key(PAD_7, false, kNumLock);
    EXPECT_EQ(host.run_keys(), (std::vector<Heard>{{WM_KEYUP, VK_HOME, released(0x47)}}));
    EXPECT_EQ(GetKeyState(VK_SHIFT) & 0x8000, 0);
}

TEST(KeyMessages, AnotherKeyBringsALiftedShiftBack) {
    ShownHost host;
    key(SHIFT, true, kNumLock);
    key(PAD_7, true, kNumLock);
    host.run();
    key(LEFT, true, kNumLock);
    EXPECT_EQ(host.run_keys(), (std::vector<Heard>{{WM_KEYDOWN, VK_SHIFT, pressed(0x2A)},
                                                   {WM_KEYDOWN, VK_LEFT, pressed(0x4B, true)}}));
}

TEST(KeyMessages, WithNumLockOffShiftStaysWithThePad) {
    ShownHost host;
    key(SHIFT, true);
    host.run();
    tap(PAD_7);
    EXPECT_EQ(host.run_keys(), (std::vector<Heard>{{WM_KEYDOWN, VK_HOME, pressed(0x47)},
                                                   {WM_KEYUP, VK_HOME, released(0x47)}}));
}

TEST(KeyMessages, LettersGoByTheLayout) {
    ShownHost host;
    struct Row {
        int scancode, symbol, key;
    };
    // German Y and Z, French M, Q and comma; Greek has no Latin letters, so its keys go by their place.
    for (const Row& row : {Row{Y, 'z', 'Z'}, Row{Z, 'y', 'Y'}, Row{SEMICOLON, 'm', 'M'}, Row{A, 'q', 'Q'},
                           Row{M, ',', VK_OEM_COMMA}, Row{A, 0x3B1, 'A'}, Row{E, 0, 'E'}}) {
        tap(row.scancode, 0, row.symbol);
        EXPECT_EQ(host.run_keys().front().wparam, static_cast<WPARAM>(row.key)) << row.scancode;
    }
}

TEST(KeyMessages, DigitsGoByTheirPlace) {
    ShownHost host;
    tap(31, 0, 0xE9); // the French 2 types an e with an accent
    EXPECT_EQ(host.run_keys().front().wparam, static_cast<WPARAM>('2'));
}

TEST(KeyMessages, AltGrIsNoKey) {
    ShownHost host;
    platform::DesktopKey event;
    event.scancode = RALT;
    event.alt_graph = true;
    event.down = true;
    platform::desktop_key(event);
    type(Q, "@", 'q');
    event.down = false;
    platform::desktop_key(event);
    EXPECT_EQ(host.run_keys(), (std::vector<Heard>{{WM_KEYDOWN, 'Q', pressed(0x10)},
                                                   {WM_CHAR, '@', pressed(0x10)},
                                                   {WM_KEYUP, 'Q', released(0x10)}}));
    EXPECT_EQ(GetKeyState(VK_MENU) & 0x8000, 0);
    EXPECT_EQ(GetKeyState(VK_CONTROL) & 0x8000, 0);
}

TEST(KeyMessages, KeysThatAreHeldAreReleasedWithTheFocus) {
    ShownHost host;
    key(SHIFT, true);
    key(A, true);
    host.run();
    platform::desktop_focus(host.wnd, false);
    const std::vector<UINT> names = host.names();
    EXPECT_EQ(names, (std::vector<UINT>{WM_KEYUP, WM_KEYUP, WM_ACTIVATE, WM_KILLFOCUS}));
    EXPECT_EQ(GetKeyState(VK_SHIFT) & 0x8000, 0);
    EXPECT_EQ(GetAsyncKeyState('A'), 0);
}

TEST(KeyMessages, WithoutFocusNobodyHearsKeysButTheStateFollows) {
    ShownHost host;
    platform::desktop_focus(host.wnd, false);
    host.run();
    key(A, true);
    EXPECT_TRUE(host.run_keys().empty());
    EXPECT_EQ(static_cast<USHORT>(GetKeyState('A') & 0xFFFE), 0xFF80);
}

TEST(KeyMessages, AltF4AsksTheWindowToClose) {
    ShownHost host;
    host.answer = [](UINT message, WPARAM, LPARAM, LRESULT* result) {
        *result = 0;
        return message == WM_CLOSE;
    };
    key(ALT, true);
    tap(F4);
    const std::vector<UINT> names = host.names();
    EXPECT_EQ(std::count(names.begin(), names.end(), static_cast<UINT>(WM_CLOSE)), 1);
    EXPECT_TRUE(IsWindow(host.wnd));
    key(ALT, false);
    tap(F4);
    const std::vector<UINT> later = host.names();
    EXPECT_EQ(std::count(later.begin(), later.end(), static_cast<UINT>(WM_CLOSE)), 0);
}
