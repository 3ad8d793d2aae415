#include <gtest/gtest.h>

#include <cerrno>
#include <string>
#include <thread>

#include <brask/fenn.h>

namespace {

TEST(Strings, ConvertsUtf8BothWays) {
    EXPECT_STREQ(Char_2_Wchar("a\xC3\xA9\xE2\x82\xAC"), L"a\u00E9\u20AC");
    EXPECT_STREQ(Wchar_2_Char(L"a\u00E9\u20AC\U0001F600"), "a\xC3\xA9\xE2\x82\xAC\xF0\x9F\x98\x80");
}

TEST(Strings, StrayBytesLiveAsMarks) { EXPECT_STREQ(Char_2_Wchar("\xF1"), L"\u00F1"); }

TEST(Strings, NullAndEmptyGiveAnEmptyText) {
    EXPECT_STREQ(Char_2_Wchar(nullptr), L"");
    EXPECT_STREQ(Wchar_2_Char(nullptr), "");
    EXPECT_STREQ(Char_2_Wchar(""), L"");
}

TEST(Strings, GrowWithTheText) {
    const std::string narrow(100000, 'x');
    EXPECT_EQ(std::wstring(Char_2_Wchar(narrow.c_str())), std::wstring(100000, L'x'));
    EXPECT_STREQ(Char_2_Wchar("short"), L"short");
    EXPECT_EQ(std::string(Wchar_2_Char(std::wstring(5000, L'\u20AC').c_str())).size(), 15000u);
}

TEST(Strings, TheResultOfOneConverterMayGoIntoTheOther) {
    EXPECT_STREQ(Char_2_Wchar(Wchar_2_Char(L"\u0416 text")), L"\u0416 text");
}

TEST(Strings, EachThreadHasItsOwnResult) {
    const wchar_t* const mine = Char_2_Wchar("mine");
    std::thread([] { EXPECT_STREQ(Char_2_Wchar("another"), L"another"); }).join();
    EXPECT_STREQ(mine, L"mine");
}

TEST(Strings, LowerCaseInPlaceForEveryAlphabet) {
    wchar_t text[] = L"Icon.RGB \u00C9\u0416\u03A9 7";
    EXPECT_EQ(Str_To_Lower(text), text);
    EXPECT_STREQ(text, L"icon.rgb \u00E9\u0436\u03C9 7");
    EXPECT_EQ(Str_To_Lower(nullptr), nullptr);
}

TEST(Strings, ErrorNumbersHaveTexts) {
    EXPECT_STREQ(Error_Perror(ENOENT), L"No such file or directory");
    EXPECT_STRNE(Error_Perror(123456), L"");
}

} // namespace
