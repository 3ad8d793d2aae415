// How text comes into the log.

#include "console_fixture.h"

using Strings = std::vector<std::wstring>;

struct Write : Console {};

TEST_F(Write, ALineFeedBeginsAFurtherLine) {
    init();
    console.Write(L"one\ntwo");
    EXPECT_EQ(lines(), (Strings{L"two", L"one"}));
    console.Write("three\n");
    EXPECT_EQ(lines(), (Strings{L"", L"three", L"two", L"one"}));
}
