#include <cstdint>
#include <functional>
#include <map>

#include <brask/keyboard.h>

#include "support/recorded.h"

// Parse_Keyboard, whole: every key of each table, with every set of modifiers.

namespace {

constexpr long long kExtended = 1 << 24;

struct Keyboard : Recorded {
    HWND wnd = nullptr;
    void SetUp() override {
        Recorded::SetUp();
        wnd = recorder::window();
        take_skip();
        recorder::clear();
    }
    void hold(int mods) { // bits as in the result
        mods& KEY_SHIFT ? desk::hold(VK_SHIFT) : desk::let_go(VK_SHIFT);
        mods& KEY_CTRL ? desk::hold(VK_CONTROL) : desk::let_go(VK_CONTROL);
        mods& KEY_ALT ? desk::hold(VK_MENU) : desk::let_go(VK_MENU);
    }
    int parse(unsigned message, unsigned long long key, long long bits = 0) {
        recorder::clear();
        const int code = Parse_Keyboard(wnd, message, key, bits);
        tag = traced(message);
        return code;
    }
    // The tag of the one call in the log, which must be framed by its two lines and no other report.
    std::string traced(unsigned message) {
        const std::vector<std::string> lines = recorder::reports(0x90000027);
        EXPECT_EQ(lines.size(), 2u);
        if (lines.size() != 2) return "(not traced)";
        EXPECT_EQ(recorder::text(recorder::kReport),
                  "[90000027] " + lines[0] + "\n[90000027] " + lines[1] + "\n");
        char in[64];
        std::snprintf(in, sizeof in, ">>> in  Lib_Brask: Parse_Keyboard(%08x)", message);
        EXPECT_EQ(lines[0], in);
        return recorder::exit_tag("Parse_Keyboard");
    }
    // Whether a WM_CHAR would be swallowed; takes that state away.
    bool take_skip() { return Parse_Keyboard(wnd, WM_CHAR, 'x', 0) == 0; }
    std::string tag;
};

std::string hex(const char* prefix, int code) {
    char text[64];
    std::snprintf(text, sizeof text, "%s%08X", prefix, static_cast<unsigned>(code));
    return text;
}

const int kAllMods[] = {0, 0x100, 0x200, 0x300, 0x400, 0x500, 0x600, 0x700};

struct Result {
    int code;
    bool skip;
};

// WM_KEYDOWN, not extended, as the table has it.
Result plain_key(int key, bool ctrl) {
    static const std::map<int, int> pad = {{33, 0x1069}, {34, 0x1063}, {35, 0x1061},
                                           {36, 0x1067}, {37, 0x1064}, {38, 0x1068},
                                           {39, 0x1066}, {40, 0x1062}, {45, 0x1060}};
    if (key == 8 || key == 9 || key == 13) return {key, true};
    if (pad.count(key)) return {pad.at(key), false};
    if (key == 46 || key == 106 || key == 107 || key == 109 || key == 110 || key == 111)
        return {key + 0x1000, true};
    if (key >= 96 && key <= 105) return {key + 0x2000, false};
    if ((key >= 112 && key <= 123) || key == 145) return {key + 0x800, false};
    if (ctrl && ((key >= 48 && key <= 57) || (key >= 65 && key <= 90))) return {key, true};
    return {0, false};
}

TEST_F(Keyboard, EveryPlainKeyDown) {
    for (const int mods : kAllMods) {
        hold(mods);
        for (int key = 0; key < 256; ++key) {
            if (key == 16 || key == 17) continue;
            SCOPED_TRACE(testing::Message() << "key " << key << " mods " << mods);
            const Result expected = plain_key(key, mods & KEY_CTRL);
            for (const long long bits : {0x00010000ll, 0x40010000ll, 0x20010000ll, 0x404C0000ll, 1ll}) {
                EXPECT_EQ(parse(WM_KEYDOWN, key, bits), mods + expected.code);
                EXPECT_EQ(tag, hex("WM_CHAR:", expected.code));
                EXPECT_EQ(take_skip(), expected.skip);
            }
        }
    }
}

TEST_F(Keyboard, ShiftAndControlThemselves) {
    for (const int mods : kAllMods)
        for (const int key : {16, 17}) {
            hold(mods);
            EXPECT_EQ(parse(WM_KEYDOWN, key, 0x002A0001), key);
            EXPECT_EQ(tag, "WM_KEYDOWN:CTRLKEY/SHIFTKEY");
            EXPECT_FALSE(take_skip());
        }
}

// The pad's middle key with Num Lock off: the high word alone decides, and exactly.
TEST_F(Keyboard, MiddleKeyOfThePad) {
    for (const int mods : kAllMods) {
        hold(mods);
        for (const int key : {12, 0, 65, 16, 255}) {
            EXPECT_EQ(parse(WM_KEYDOWN, key, 0x004C0001), mods + 0x1065);
            EXPECT_EQ(tag, "WM_KEYDOWN:0x0004c");
            EXPECT_FALSE(take_skip());
        }
        EXPECT_EQ(parse(WM_KEYDOWN, 12, 0x404C0001), mods); // repeated
        EXPECT_EQ(parse(WM_KEYDOWN, 12, 0x014C0001), mods); // extended
    }
}

TEST_F(Keyboard, EveryExtendedKeyDown) {
    for (const int mods : kAllMods) {
        hold(mods);
        for (int key = 0; key < 256; ++key) {
            SCOPED_TRACE(testing::Message() << "key " << key << " mods " << mods);
            const bool pad = key == 13 || key == 106 || key == 107 || key == 109 || key == 110 || key == 111;
            const bool navigation = (key >= 33 && key <= 40) || key == 45 || key == 46;
            EXPECT_EQ(parse(WM_KEYDOWN, key, kExtended), mods + (pad          ? key + 0x1000
                                                                 : navigation ? key + 0x800
                                                                              : 0));
            EXPECT_EQ(tag, "WM_KEYDOWN:extended keys");
            EXPECT_EQ(take_skip(), pad);
        }
    }
}

TEST_F(Keyboard, EveryCharacter) {
    for (const int mods : kAllMods) {
        hold(mods);
        for (int key = 0; key < 0x300; ++key) {
            if (key == 27) continue;
            const int expected = (mods & ~KEY_SHIFT) + key;
            EXPECT_EQ(parse(WM_CHAR, key), expected) << key;
            EXPECT_EQ(tag, hex("WM_CHAR:", expected)) << key;
        }
    }
}

TEST_F(Keyboard, SkipSwallowsOneCharacter) {
    parse(WM_KEYDOWN, 13);
    EXPECT_EQ(parse(WM_CHAR, 13), 0);
    EXPECT_EQ(tag, "WM_CHAR:skip");
    EXPECT_EQ(parse(WM_CHAR, 13), 13);
    parse(WM_KEYDOWN, 13);
    parse(WM_KEYDOWN, 65); // a key that sets nothing leaves the flag
    EXPECT_EQ(parse(WM_CHAR, 'a'), 0);
}

TEST_F(Keyboard, EscapeAsACharacterClosesTheWindow) {
    hold(0x700);
    EXPECT_EQ(parse(WM_CHAR, 27), 0);
    EXPECT_EQ(tag, "WM_CHAR:ESC");
    EXPECT_EQ(recorder::text(recorder::kSystem), "PostMessageW(WND, 16, 0, 0)\n");
    hold(0);
    EXPECT_EQ(parse(WM_KEYDOWN, 27, 0x00010001), 0);
    EXPECT_EQ(recorder::text(recorder::kSystem), "");
    EXPECT_EQ(tag, "WM_CHAR:00000000");
    // Escape comes before the flag and leaves it.
    parse(WM_KEYDOWN, 13);
    EXPECT_EQ(parse(WM_CHAR, 27), 0);
    EXPECT_EQ(tag, "WM_CHAR:ESC");
    EXPECT_TRUE(take_skip());
}

TEST_F(Keyboard, EveryKeyUp) {
    for (const int mods : kAllMods) {
        hold(mods);
        for (int key = 0; key < 256; ++key) {
            const bool print = key == 42 || key == 44;
            EXPECT_EQ(parse(WM_KEYUP, key, kExtended), print ? 0x82A + mods : 0) << key;
            EXPECT_EQ(tag, print ? "WM_KEYUP:VK_PRINT" : "WM_KEYUP:0") << key;
        }
    }
}

const std::map<unsigned, int> kAltPad = {
    {0x2037, 0x146A}, {0x204E, 0x146B}, {0x204A, 0x146D}, {0x2053, 0x146E}, {0x2135, 0x146F},
    {0x2052, 0x1460}, {0x204F, 0x1461}, {0x2050, 0x1462}, {0x2051, 0x1463}, {0x204B, 0x1464},
    {0x204C, 0x1465}, {0x204D, 0x1466}, {0x2047, 0x1467}, {0x2048, 0x1468}, {0x2049, 0x1469}};

TEST_F(Keyboard, AltWithThePadGoesByTheHighWordAlone) {
    for (const int mods : kAllMods) {
        hold(mods);
        for (unsigned high = 0; high < 0x10000; ++high) {
            const auto row = kAltPad.find(high);
            if (row == kAltPad.end() && mods) continue; // the others once are enough
            const int code = parse(WM_SYSKEYDOWN, 65, static_cast<long long>(high) << 16 | 1);
            if (row == kAltPad.end()) {
                ASSERT_EQ(code, 65) << high;
                continue;
            }
            EXPECT_EQ(code, row->second) << high;
            EXPECT_EQ(tag, "WM_SYSKEYDOWN:PAD");
        }
    }
}

TEST_F(Keyboard, EveryKeyDownWithAlt) {
    for (const int mods : kAllMods) {
        hold(mods);
        for (const long long bits : {0x20010000ll, 0x21010000ll})
            for (int key = 0; key < 256; ++key) {
                SCOPED_TRACE(testing::Message() << "key " << key << " mods " << mods << " bits " << bits);
                const int code = parse(WM_SYSKEYDOWN, key, bits);
                if (key == 18) {
                    EXPECT_EQ(code, 18);
                    EXPECT_EQ(tag, "WM_SYSKEYDOWN:ALTKEY");
                    continue;
                }
                const bool navigation =
                    (key >= 33 && key <= 40) || key == 45 || key == 46 || (key >= 112 && key <= 123);
                const int enter = bits & kExtended ? 13 + 0x1000 : 13;
                const int expected = mods + (key == 13 || key == 108 ? enter
                                             : navigation            ? key + 0x800
                                                                     : key);
                EXPECT_EQ(code, expected);
                EXPECT_EQ(tag, hex("WM_SYSKEYDOWN:", expected));
                EXPECT_FALSE(take_skip());
            }
    }
}

TEST_F(Keyboard, KeyUpWithAlt) {
    for (const int key : {18, 65, 44}) {
        EXPECT_EQ(parse(WM_SYSKEYUP, key), 0);
        EXPECT_EQ(tag, "WM_SYSKEYUP:0");
    }
}

// --- The private message ---

struct Pushed {
    int code;
    std::string tag;
    bool skip;
};
Pushed pushed(int k, bool extended, int mods) {
    const bool operators = k == 106 || k == 107 || k == 109 || k == 110 || k == 111;
    if (k == 27) return {0, "WM_USER_CHAR:ESC", false};
    if (k >= 48 && k <= 57) return {k, "WM_USER_CHAR:0-9", false};
    if (extended) {
        const bool navigation = (k >= 33 && k <= 40) || k == 45 || k == 46;
        return {mods + (k == 13 || operators ? k + 0x1000
                        : navigation         ? k + 0x800
                                             : 0),
                "WM_USER_CHAR:extended keys", false};
    }
    if (k == 16 || k == 17) return {k, "WM_USER_CHAR:CTRLKEY/SHIFTKEY", false};
    const bool letter = k >= 65 && k <= 90 && !(mods & KEY_SHIFT);
    const int code = (mods & ~KEY_SHIFT) + (letter ? k + 32 : k);
    return {code, hex("WM_USER_CHAR:", code), k == 46 || operators};
}

TEST_F(Keyboard, EveryPushedKey) {
    for (const int mods : kAllMods) {
        hold(mods);
        for (const bool extended : {false, true})
            for (int key = 0; key < 256; ++key) { // the low seven bits count
                SCOPED_TRACE(testing::Message()
                             << "key " << key << " mods " << mods << " extended " << extended);
                const Pushed expected = pushed(key & 127, extended, mods);
                EXPECT_EQ(parse(WM_USER_CHAR, key, extended ? kExtended : 0), expected.code);
                EXPECT_EQ(tag, expected.tag);
                EXPECT_EQ(recorder::text(recorder::kSystem),
                          (key & 127) == 27 ? "PostMessageW(WND, 16, 0, 0)\n" : "");
                EXPECT_EQ(take_skip(), expected.skip);
            }
    }
}

TEST_F(Keyboard, OtherMessagesAreNotFound) {
    for (const unsigned message :
         {0u, 1u, 0xFFu, 0x103u, 0x106u, 0x107u, 0x109u, 0x200u, 1124u, 1126u, 0xFFFFFFFFu}) {
        EXPECT_EQ(parse(message, 65), 0);
        EXPECT_EQ(tag, "not found");
    }
}

// What a user would see, key by key.
TEST_F(Keyboard, WholeKeystrokes) {
    const auto stroke = [&](int mods, int key, long long bits) {
        hold(mods);
        return parse(WM_KEYDOWN, key, bits);
    };
    EXPECT_EQ(stroke(0, 'A', 0x001E0001), 0);
    EXPECT_EQ(parse(WM_CHAR, 'a'), 97);
    EXPECT_EQ(stroke(KEY_SHIFT, 'A', 0x001E0001), 0x100);
    EXPECT_EQ(parse(WM_CHAR, 'A'), 65);
    EXPECT_EQ(stroke(KEY_CTRL, 'A', 0x001E0001), 0x241);
    EXPECT_EQ(parse(WM_CHAR, 1), 0);
    EXPECT_EQ(stroke(0, VK_RETURN, 0x001C0001), 13);
    EXPECT_EQ(parse(WM_CHAR, 13), 0);
    EXPECT_EQ(stroke(0, VK_RETURN, 0x011C0001), 0x100D);
    EXPECT_EQ(parse(WM_CHAR, 13), 0);
    EXPECT_EQ(stroke(0, VK_LEFT, 0x014B0001), 0x825);
    EXPECT_EQ(stroke(0, VK_LEFT, 0x004B0001), 0x1064);
    EXPECT_EQ(stroke(0, VK_NUMPAD4, 0x004B0001), 0x2064);
    EXPECT_EQ(stroke(0, VK_F5, 0x003F0001), 0x874);
    EXPECT_EQ(stroke(KEY_CTRL | KEY_SHIFT, VK_F5, 0x003F0001), 0xB74);
    hold(KEY_ALT);
    EXPECT_EQ(parse(WM_SYSKEYDOWN, VK_HOME, 0x20470001), 0x1467);
    EXPECT_EQ(parse(WM_SYSKEYDOWN, VK_MENU, 0x20380001), 18);
    EXPECT_EQ(stroke(KEY_SHIFT, VK_SHIFT, 0x002A0001), 16);
    EXPECT_EQ(stroke(KEY_CTRL, VK_CONTROL, 0x001D0001), 17);
    EXPECT_EQ(stroke(0, VK_SNAPSHOT, 0x01370001), 0);
    EXPECT_EQ(parse(WM_KEYUP, VK_SNAPSHOT, 0xC1370001), 0x82A);
}

TEST_F(Keyboard, AnyWordsAreHarmless) {
    const unsigned long long words[] = {0,          0x7F,           0x80,       0xFFFF,
                                        0xFFFFFFFF, 0x100000000ull, UINT64_MAX, 1ull << 63};
    for (const unsigned message : {unsigned(WM_KEYDOWN), unsigned(WM_CHAR), unsigned(WM_KEYUP),
                                   unsigned(WM_SYSKEYDOWN), unsigned(WM_SYSKEYUP), WM_USER_CHAR, 0u})
        for (const unsigned long long key : words)
            for (const unsigned long long bits : words) {
                parse(message, key, static_cast<long long>(bits));
                Parse_Dialog(wnd, message, key, static_cast<long long>(bits));
                take_skip();
            }
    Parse_Keyboard(nullptr, WM_CHAR, 27, 0);
    EXPECT_EQ(recorder::text(recorder::kSystem), "PostMessageW(null, 16, 0, 0)\n");
}

// --- Parse_Dialog ---

int dialog_code(int key, int mods) {
    const bool shift = mods & KEY_SHIFT;
    if ((key >= 33 && key <= 40) || key == 45 || key == 46) return key + 0x800;
    if (key >= 48 && key <= 57) return shift ? ")!@#$%^&*("[key - 48] : key;
    if (key == 96 || key == 105) return key - 48;
    if (key == 187) return shift ? '+' : '=';
    if (key == 189) return shift ? '_' : '-';
    if (key == 220) return shift ? '|' : '\\';
    if (!shift && key >= 65 && key <= 90)
        key += 32;
    else if (shift && key >= 97 && key <= 122)
        key -= 32;
    return (mods & ~KEY_SHIFT) + key;
}

TEST_F(Keyboard, EveryKeyInADialog) {
    for (const int mods : kAllMods) {
        hold(mods);
        for (const long long bits : {0ll, kExtended, 0x404C0000ll})
            for (int key = 0; key < 256; ++key) {
                if (key == 27) continue;
                EXPECT_EQ(Parse_Dialog(wnd, WM_KEYDOWN, key, bits), dialog_code(key, mods))
                    << "key " << key << " mods " << mods;
            }
    }
    EXPECT_EQ(recorder::text(), ""); // neither traces nor messages
    hold(0);
    EXPECT_EQ(Parse_Dialog(wnd, WM_KEYDOWN, VK_NUMPAD3, 0), 'c');
    EXPECT_FALSE(take_skip());
}

TEST_F(Keyboard, EscapeClosesADialog) {
    EXPECT_EQ(Parse_Dialog(wnd, WM_KEYDOWN, 27, 0), 0);
    EXPECT_EQ(recorder::text(), "PostMessageW(WND, 16, 0, 0)\n");
}

TEST_F(Keyboard, ADialogTakesNoOtherMessage) {
    for (const unsigned message : {unsigned(WM_KEYUP), unsigned(WM_CHAR), unsigned(WM_SYSKEYDOWN),
                                   unsigned(WM_SYSKEYUP), WM_USER_CHAR, 0u})
        for (const int key : {27, 65, 13})
            EXPECT_EQ(Parse_Dialog(wnd, message, key, 0), 0);
    EXPECT_EQ(recorder::text(), "");
}

} // namespace
