// The table of keys. On Windows it is held against the system's own, scan code by scan code.

#include "platform/portable/key_table.h"

#include <set>
#include <utility>

#include <brask/platform.h>

#include <gtest/gtest.h>

using platform::KeyRow;

static std::pair<const KeyRow*, const KeyRow*> rows() {
    int count = 0;
    const KeyRow* first = platform::key_rows(&count);
    return {first, first + count};
}

TEST(KeyTable, RowsStandInOrderSoThatTheyAreFound) {
    const auto [first, end] = rows();
    for (const KeyRow* row = first; row != end; ++row) {
        if (row != first) {
            EXPECT_GT(row->scancode, row[-1].scancode);
        }
        EXPECT_EQ(platform::find_key(row->scancode), row);
    }
}

TEST(KeyTable, UnknownCodesHaveNoKey) {
    for (const int code : {-1, 0, 3, 102, 511, 512, 100000})
        EXPECT_EQ(platform::find_key(code), nullptr) << code;
}

TEST(KeyTable, NoTwoKeysShareAScanCode) {
    const auto [first, end] = rows();
    std::set<std::pair<int, bool>> seen;
    // The desktop has two codes for the key beside Return, and for the mute key.
    const std::set<int> doubles = {50, 262};
    for (const KeyRow* row = first; row != end; ++row) {
        const bool fresh = seen.insert({row->scan, row->extended}).second;
        EXPECT_EQ(fresh, doubles.count(row->scancode) == 0) << row->scancode;
    }
}

TEST(KeyTable, LettersLieWhereTheSystemHasThem) {
    // Pairs of key and scan code, straight from the rows of the keyboard.
    struct Line {
        const char* keys;
        int scan;
    };
    for (const Line& line : {Line{"1234567890", 0x02}, Line{"QWERTYUIOP", 0x10}, Line{"ASDFGHJKL", 0x1E},
                             Line{"ZXCVBNM", 0x2C}}) {
        for (int i = 0; line.keys[i]; i++) {
            EXPECT_EQ(MapVirtualKeyW(static_cast<UINT>(line.scan + i), MAPVK_VSC_TO_VK),
                      static_cast<UINT>(line.keys[i]));
        }
    }
}

// Keys whose codes the system maps otherwise than its key messages have them, or leaves to the keyboard:
// Pause and Num Lock, two pad operators, the right modifiers, and all that a plain keyboard lacks.
static bool is_left_to_the_keyboard(const KeyRow& row) {
    const std::set<int> single = {72, 83, 84, 85, 103, 228, 230};
    return single.count(row.scancode) || (row.scancode >= 104 && row.scancode < 224) || row.scancode > 231;
}

TEST(KeyTable, ScanCodesAndKeysMapAsTheSystemSays) {
    const auto [first, end] = rows();
    int compared = 0;
    for (const KeyRow* row = first; row != end; ++row) {
        if (is_left_to_the_keyboard(*row)) continue;
        const UINT code = static_cast<UINT>(row->scan) | (row->extended ? 0xE000u : 0u);
        EXPECT_EQ(MapVirtualKeyW(code, MAPVK_VSC_TO_VK_EX), static_cast<UINT>(row->virtual_key))
            << row->scancode;
        compared++;
    }
    EXPECT_GE(compared, 95);
}

TEST(KeyTable, PadKeysHaveTheirDigits) {
    const int digits[] = {98, 89, 90, 91, 92, 93, 94, 95, 96, 97};
    for (int digit = 0; digit < 10; digit++) {
        const KeyRow* row = platform::find_key(digits[digit]);
        ASSERT_NE(row, nullptr);
        EXPECT_EQ(row->num_key, VK_NUMPAD0 + digit);
        EXPECT_FALSE(row->extended);
    }
}
