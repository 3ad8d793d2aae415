#include <climits>
#include <cstdlib>
#include <string>
#include <vector>

#include <brask/boxs.h>

#include "support/recorded.h"

// Name_Set in all its forms, Name_Get.

namespace {

struct Name : Recorded {
    Boxs box;
    std::string name() { return box.W_Name ? recorder::narrow(box.W_Name) : "(null)"; }
};

TEST_F(Name, IsFormatted) {
    EXPECT_EQ(box.Name_Set(L"%ls %d of %hs: %c%%", L"page", 3, "seven", L'!'), 1);
    EXPECT_EQ(name(), "page 3 of seven: !%");
    EXPECT_EQ(box.test, 4);
    EXPECT_EQ(box.Name_Get(), box.W_Name);
}

TEST_F(Name, IsReplaced) {
    box.Name_Set(L"first");
    box.Name_Set(L"second");
    EXPECT_EQ(name(), "second");
}

TEST_F(Name, BitTwoIsAddedToTheOthers) {
    box.test = 1;
    EXPECT_EQ(box.Name_Set(L"x"), 1);
    EXPECT_EQ(box.test, 5);
}

TEST_F(Name, EmptyResultLeavesNullAndStillCounts) {
    box.Name_Set(L"x");
    EXPECT_EQ(box.Name_Set(L"%ls", L""), 1);
    EXPECT_EQ(name(), "(null)");
    EXPECT_EQ(box.test, 4);
}

TEST_F(Name, NullFormatOnAnUntouchedObjectTouchesNothing) {
    box.W_Name = static_cast<wchar_t*>(std::malloc(2 * sizeof(wchar_t)));
    box.W_Name[0] = L'k';
    box.W_Name[1] = 0;
    EXPECT_EQ(box.Name_Set(nullptr), 0);
    EXPECT_EQ(name(), "k");
    EXPECT_EQ(box.Name_Set(static_cast<const wchar_t*>(nullptr)), 0);
    EXPECT_EQ(name(), "k");
}

TEST_F(Name, NullFormatFreesTheNameAndClearsBitTwo) {
    box.test = 1;
    box.Name_Set(L"x");
    EXPECT_EQ(box.Name_Set(nullptr), 0);
    EXPECT_EQ(name(), "(null)");
    EXPECT_EQ(box.test, 1);
    box.Name_Set(L"x");
    EXPECT_EQ(box.Name_Set(static_cast<const wchar_t*>(nullptr)), 0);
    EXPECT_EQ(name(), "(null)");
    EXPECT_EQ(box.test, 1);
}

TEST_F(Name, TooLongIsAFailureThatLeavesBitTwo) {
    const std::wstring fits(1023, L'a'), over(1024, L'b'), far_over(5000, L'c');
    EXPECT_EQ(box.Name_Set(L"%ls", fits.c_str()), 1);
    EXPECT_EQ(name(), std::string(1023, 'a'));
    EXPECT_EQ(box.Name_Set(L"%ls", over.c_str()), 0);
    EXPECT_EQ(name(), "(null)");
    EXPECT_EQ(box.test, 4); // as it was
    box.test = 1;
    EXPECT_EQ(box.Name_Set(far_over.c_str()), 0);
    EXPECT_EQ(name(), "(null)");
    EXPECT_EQ(box.test, 1);
}

TEST_F(Name, FromItself) {
    box.Name_Set(L"alpha");
    EXPECT_EQ(box.Name_Set(L"%ls-%ls", box.W_Name, box.W_Name), 1);
    EXPECT_EQ(name(), "alpha-alpha");
    EXPECT_EQ(box.Name_Set(box.W_Name), 1);
    EXPECT_EQ(name(), "alpha-alpha");
}

TEST_F(Name, NarrowTextIsConverted) {
    EXPECT_EQ(box.Name_Set("Gr\xC3\xBC\xC3\x9F"), 1);
    EXPECT_EQ(name(), "Gr\xC3\xBC\xC3\x9F");
    EXPECT_EQ(box.test, 4);
}

TEST_F(Name, NarrowNullChangesNothing) {
    box.Name_Set(L"kept");
    EXPECT_EQ(box.Name_Set(static_cast<const char*>(nullptr)), 1);
    EXPECT_EQ(name(), "kept");
    EXPECT_EQ(box.test, 4);
}

// The text is its own format, without arguments: conversions print nothing and read nothing.
TEST_F(Name, NarrowPercentSignsAreConversions) {
    EXPECT_EQ(box.Name_Set("100%% sure"), 1);
    EXPECT_EQ(name(), "100% sure");
    for (const char* text :
         {"%s%ls%hs", "%n%n%n", "%d", "%", "50%", "%99999999d", "%*d", "%.*s", "%ll", "%lc"}) {
        SCOPED_TRACE(text);
        const int result = box.Name_Set(text);
        EXPECT_TRUE(result == 0 || result == 1);
    }
    EXPECT_EQ(box.Name_Set("a%db%sc%nd"), 1);
    EXPECT_EQ(name(), "abcd");
}

TEST_F(Name, NarrowTextOfAnyLength) {
    EXPECT_EQ(box.Name_Set(std::string(1023, 'x').c_str()), 1);
    EXPECT_EQ(name(), std::string(1023, 'x'));
    EXPECT_EQ(box.Name_Set(std::string(1024, 'x').c_str()), 0);
    EXPECT_EQ(name(), "(null)");
    EXPECT_EQ(box.Name_Set(std::string(5000, 'x').c_str()), 0);
    EXPECT_EQ(name(), "(null)");
    EXPECT_EQ(box.Name_Set(""), 1);
    EXPECT_EQ(name(), "(null)");
}

struct Table : Name {
    wchar_t size[10] = L"Size: big", plain[6] = L"plain", none[1] = L"", colon[2] = L":", two[6] = L"a:b:c",
            percent[9] = L"%d items";
    wchar_t* table[7] = {size, plain, none, nullptr, colon, two, percent};
};

TEST_F(Table, CharFormKeepsAnEntryUpToItsColon) {
    const char* expected[] = {"Size:", "plain", "(null)", nullptr, ":", "a:", "%d items"};
    for (int which = 1; which <= 7; ++which) {
        if (!expected[which - 1]) continue;
        SCOPED_TRACE(which);
        box.Name_Set(nullptr);
        box.test = 0;
        EXPECT_EQ(box.Name_Set(which, 7, table, "fallback"), 1);
        EXPECT_EQ(name(), expected[which - 1]);
        EXPECT_EQ(box.test, 4);
    }
}

TEST_F(Table, FallbackWhenThereIsNoEntry) {
    struct Row {
        int which, count;
        bool with_table;
    };
    const Row rows[] = {{1, 0, true}, {8, 7, true},  {3, 2, true},       {4, 7, true},  {1, 7, false},
                        {0, 7, true}, {-1, 7, true}, {INT_MIN, 7, true}, {1, -5, true}, {INT_MAX, 7, true}};
    for (const Row& row : rows) {
        SCOPED_TRACE(row.which);
        wchar_t** const from = row.with_table ? table : nullptr;
        box.Name_Set(L"before");
        EXPECT_EQ(box.Name_Set(row.which, row.count, from, "fall: back"), 1);
        EXPECT_EQ(name(), "fall: back"); // no colon rule for a fallback
        EXPECT_EQ(box.Name_Set(row.which, row.count, from, L"wide %d", 5), 1);
        EXPECT_EQ(name(), "wide 5");
    }
}

TEST_F(Table, NullFallbackGivesNoName) {
    box.Name_Set(L"before");
    EXPECT_EQ(box.Name_Set(1, 0, table, static_cast<const char*>(nullptr)), 0);
    EXPECT_EQ(name(), "(null)");
    box.Name_Set(L"before");
    EXPECT_EQ(box.Name_Set(1, 0, table, nullptr), 0);
    EXPECT_EQ(name(), "(null)");
}

TEST_F(Table, NullFallbackLeavesAnExistingEntryAlone) {
    EXPECT_EQ(box.Name_Set(1, 7, table, nullptr), 1);
    EXPECT_EQ(name(), "Size:");
}

TEST_F(Table, WideFormUsesTheEntryAsFormatWithoutColonRule) {
    EXPECT_EQ(box.Name_Set(7, 7, table, L"unused", 12), 1);
    EXPECT_EQ(name(), "12 items");
    EXPECT_EQ(box.Name_Set(1, 7, table, L"unused"), 1);
    EXPECT_EQ(name(), "Size: big");
    EXPECT_EQ(box.test, 4);
}

TEST_F(Table, FallbackText) {
    EXPECT_EQ(box.Name_Set(1, 0, table, "50%% off"), 1);
    EXPECT_EQ(name(), "50% off");
}

TEST_F(Table, EntriesOfAnyLengthAreHarmless) {
    for (const std::size_t length : {1023u, 1024u, 2047u, 2048u, 5000u}) {
        SCOPED_TRACE(length);
        std::wstring text(length, L'y');
        wchar_t* one[] = {text.data()};
        const int narrow_result = box.Name_Set(1, 1, one, "f");
        EXPECT_TRUE(narrow_result == 0 || name()[0] == 'y');
        const int wide_result = box.Name_Set(1, 1, one, L"f");
        EXPECT_EQ(wide_result, length <= 1023 ? 1 : 0);
    }
}

TEST_F(Table, FromItself) {
    box.Name_Set(L"self: me");
    wchar_t* one[] = {box.W_Name};
    EXPECT_EQ(box.Name_Set(1, 1, one, "f"), 1);
    EXPECT_EQ(name(), "self:");
    one[0] = box.W_Name;
    EXPECT_EQ(box.Name_Set(1, 1, one, L"f"), 1);
    EXPECT_EQ(name(), "self:");
}

TEST_F(Table, PlaceOfTheName) {
    wchar_t again[6] = L"plain";
    wchar_t* const entries[] = {size, nullptr, again, plain};
    box.Name_Set(L"plain");
    EXPECT_EQ(box.Name_Get(4, entries), 3); // the first one
    EXPECT_EQ(box.Name_Get(2, entries), 0);
    EXPECT_EQ(box.Name_Get(0, entries), 0);
    EXPECT_EQ(box.Name_Get(-1, entries), 0);
    EXPECT_EQ(box.Name_Get(3, nullptr), 0);
    box.Name_Set(L"Plain");
    EXPECT_EQ(box.Name_Get(4, entries), 0);
    box.Name_Set(L"Size: big");
    EXPECT_EQ(box.Name_Get(4, entries), 1);
    box.Name_Set(nullptr);
    EXPECT_EQ(box.Name_Get(4, entries), 0);
}

TEST_F(Name, AccessorsTakeNoTrace) {
    wchar_t entry[2] = L"x";
    wchar_t* table[] = {entry};
    const std::string lines = recorded(recorder::kReport | recorder::kDraw, [&] {
        box.Name_Set(L"a");
        box.Name_Set("b");
        box.Name_Set(1, 1, table, "f");
        box.Name_Set(1, 1, table, L"f");
        box.Name_Get();
        box.Name_Get(1, table);
        box.Name_Set(nullptr);
    });
    EXPECT_EQ(lines, "");
}

} // namespace
