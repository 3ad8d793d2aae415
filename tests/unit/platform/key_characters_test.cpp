// The characters that keys type.

#include "host.h"

// What WM_CHAR messages a key makes.
static std::vector<WPARAM> characters(Host& host, UINT message = WM_CHAR) {
    std::vector<WPARAM> list;
    for (const Heard& heard : host.run_keys()) {
        if (heard.message == message) list.push_back(heard.wparam);
    }
    return list;
}
using Characters = std::vector<WPARAM>;

constexpr int kA = 4, k1 = 30, kEnter = 40, kEscape = 41, kBack = 42, kTab = 43, kSpace = 44, kMinus = 45,
              kOpen = 47, kClose = 48, kBackslash = 49, kPause = 72, kLeft = 80, kDelete = 76, kPadPlus = 87,
              kPadEnter = 88, kPad7 = 95, kControl = 224, kShift = 225, kAlt = 226;

TEST(KeyCharacters, FollowTheirKeyAtOnceWithItsParameters) {
    ShownHost host;
    type(kA, "a", 'a');
    type(kA + 1, "b", 'b');
    EXPECT_EQ(host.run_keys(), (std::vector<Heard>{{WM_KEYDOWN, 'A', pressed(0x1E)},
                                                   {WM_CHAR, 'a', pressed(0x1E)},
                                                   {WM_KEYUP, 'A', released(0x1E)},
                                                   {WM_KEYDOWN, 'B', pressed(0x30)},
                                                   {WM_CHAR, 'b', pressed(0x30)},
                                                   {WM_KEYUP, 'B', released(0x30)}}));
}

TEST(KeyCharacters, ComeFromTheText) {
    ShownHost host;
    type(kA, "\xC3\xA9");
    EXPECT_EQ(characters(host), (Characters{0xE9}));
    type(kA, "\xE2\x82\xAC");
    EXPECT_EQ(characters(host), (Characters{0x20AC}));
}

TEST(KeyCharacters, AreUnitsOfUtf16) {
    ShownHost host;
    type(kA, "\xF0\x9F\x98\x80");
    EXPECT_EQ(characters(host), (Characters{0xD83D, 0xDE00}));
}

TEST(KeyCharacters, SeveralOfOneKeyAllArrive) {
    ShownHost host;
    type(kA, "n\xCC\x83!");
    EXPECT_EQ(characters(host), (Characters{'n', 0x303, '!'}));
}

TEST(KeyCharacters, OfEditingKeysAreFixed) {
    ShownHost host;
    struct Row {
        int scancode;
        WPARAM character;
    };
    for (const Row& row :
         {Row{kBack, 8}, Row{kTab, 9}, Row{kEnter, 13}, Row{kPadEnter, 13}, Row{kEscape, 27}}) {
        tap(row.scancode);
        EXPECT_EQ(characters(host), (Characters{row.character}));
        key(kShift, true);
        tap(row.scancode);
        key(kShift, false);
        EXPECT_EQ(characters(host), (Characters{row.character}));
    }
}

TEST(KeyCharacters, OfMovingKeysAreNone) {
    ShownHost host;
    for (const int code : {kLeft, kDelete, kPad7, 58, 73, 57, 83}) {
        tap(code);
        EXPECT_EQ(characters(host), Characters()) << code;
    }
}

TEST(KeyCharacters, WithControlLettersAre1To26) {
    ShownHost host;
    key(kControl, true);
    for (int letter = 0; letter < 26; letter++) {
        tap(kA + letter, 0, 'a' + letter);
        EXPECT_EQ(characters(host), (Characters{static_cast<WPARAM>(letter + 1)}));
    }
    key(kShift, true);
    tap(kA);
    EXPECT_EQ(characters(host), (Characters{1}));
}

TEST(KeyCharacters, WithControlOtherKeysHaveTheirs) {
    ShownHost host;
    key(kControl, true);
    struct Row {
        int scancode;
        Characters characters;
    };
    for (const Row& row : {Row{kEnter, {10}}, Row{kPadEnter, {10}}, Row{kBack, {127}}, Row{kEscape, {27}},
                           Row{kOpen, {27}}, Row{kBackslash, {28}}, Row{kClose, {29}}, Row{kSpace, {' '}},
                           Row{kTab, {}}, Row{kPadPlus, {}}, Row{kMinus, {}}, Row{kLeft, {}}}) {
        tap(row.scancode);
        EXPECT_EQ(characters(host), row.characters) << row.scancode;
    }
    type(k1, "1"); // what the desktop takes for text although Control is held
    EXPECT_EQ(characters(host), Characters());
}

TEST(KeyCharacters, WithControlAndShiftAreThoseOfThreeKeysAndOfLetters) {
    ShownHost host;
    key(kControl, true);
    key(kShift, true);
    struct Row {
        int scancode;
        Characters characters;
    };
    for (const Row& row :
         {Row{k1, {}}, Row{k1 + 1, {0}}, Row{k1 + 5, {30}}, Row{kMinus, {31}}, Row{kSpace, {}},
          Row{kOpen, {}}, Row{kBackslash, {}}, Row{kClose, {}}, Row{kEnter, {}}, Row{kBack, {}},
          Row{kTab, {}}, Row{kEscape, {}}, Row{kPause, {}}, Row{kPadPlus, {}}, Row{kA, {1}}}) {
        type(row.scancode, "!"); // what the desktop takes for text all the same
        EXPECT_EQ(characters(host), row.characters) << row.scancode;
    }
}

TEST(KeyCharacters, WithControlAndAltAreNone) {
    ShownHost host;
    key(kControl, true);
    key(kAlt, true);
    type(kA, "a", 'a');
    EXPECT_EQ(characters(host), Characters());
}

TEST(KeyCharacters, OfThePad) {
    ShownHost host;
    struct Row {
        int scancode;
        WPARAM character;
    };
    for (const Row& row :
         {Row{84, '/'}, Row{85, '*'}, Row{86, '-'}, Row{87, '+'}, Row{99, '.'}, Row{95, '7'}}) {
        tap(row.scancode, platform::kNumLock);
        EXPECT_EQ(characters(host), (Characters{row.character}));
    }
    type(99, ",", 0, platform::kNumLock); // the decimal sign of the layout
    EXPECT_EQ(characters(host), (Characters{','}));
}

TEST(KeyCharacters, WithAltAreSystemCharacters) {
    ShownHost host;
    key(kAlt, true);
    type(kA, "a", 'a');
    EXPECT_EQ(characters(host, WM_SYSCHAR), (Characters{'a'}));
    tap(kA, 0, 'a'); // a desktop that gives no text with Alt
    EXPECT_EQ(characters(host, WM_SYSCHAR), (Characters{'a'}));
    tap(kEnter);
    EXPECT_EQ(characters(host, WM_SYSCHAR), (Characters{13}));
    key(kShift, true);
    tap(kA, 0, 'a');
    EXPECT_EQ(characters(host, WM_SYSCHAR), (Characters{'A'}));
}

TEST(KeyCharacters, WithAltPadDigitsHaveNone) {
    ShownHost host;
    key(kAlt, true);
    type(kPad7, "7", 0, platform::kNumLock);
    EXPECT_EQ(characters(host, WM_SYSCHAR), Characters());
}

TEST(KeyCharacters, OfAnInputMethodComeWithoutAKey) {
    ShownHost host;
    platform::desktop_text("\xE4\xB8\xAD\xE6\x96\x87", 5);
    EXPECT_EQ(host.run_keys(), (std::vector<Heard>{{WM_CHAR, 0x4E2D, 1}, {WM_CHAR, 0x6587, 1}}));
}

TEST(KeyCharacters, TextAfterAModifierIsNotItsOwn) {
    ShownHost host;
    key(kShift, true);
    platform::desktop_text("x", 5);
    EXPECT_EQ(host.run_keys(),
              (std::vector<Heard>{{WM_KEYDOWN, VK_SHIFT, pressed(0x2A)}, {WM_CHAR, 'x', 1}}));
}

TEST(KeyCharacters, NeedTranslation) {
    ShownHost host;
    type(kA, "a", 'a');
    MSG msg;
    while (PeekMessageW(&msg, nullptr, 0, 0, PM_REMOVE)) {
        EXPECT_NE(msg.message, static_cast<UINT>(WM_CHAR));
        DispatchMessageW(&msg);
    }
}

TEST(KeyCharacters, OfAMessageThatTheHostMadeUpAreTheFixedOnesAlone) {
    ShownHost host;
    type(kA, "a", 'a');
    host.run();
    PostMessageW(host.wnd, WM_KEYDOWN, 'A', pressed(0x1E));
    PostMessageW(host.wnd, WM_KEYDOWN, VK_RETURN, pressed(0x1C));
    EXPECT_EQ(characters(host), (Characters{13}));
}

TEST(KeyCharacters, TranslationSaysWhatItIsFor) {
    MSG msg{};
    msg.message = WM_KEYUP;
    EXPECT_TRUE(TranslateMessage(&msg));
    msg.message = WM_CHAR;
    EXPECT_FALSE(TranslateMessage(&msg));
    msg.message = WM_MOUSEMOVE;
    EXPECT_FALSE(TranslateMessage(&msg));
    EXPECT_FALSE(TranslateMessage(nullptr));
}

TEST(KeyCharacters, BrokenTextDoesNoHarm) {
    ShownHost host;
    type(kA, "\xFF\xC3");
    EXPECT_EQ(characters(host).size(), 2u);
    platform::desktop_text(nullptr, 1);
    platform::desktop_text("", 1);
    EXPECT_TRUE(host.run_keys().empty());
}
