// What the portable clipboard does beyond the other system: foreign windows, wrong blocks, line ends.

#include <cstring>

#include "host.h"

namespace {

HANDLE put(UINT format, const void* data, std::size_t bytes) {
    const HGLOBAL block = GlobalAlloc(GMEM_FIXED, bytes);
    std::memcpy(block, data, bytes);
    OpenClipboard(nullptr);
    const HANDLE taken = SetClipboardData(format, block);
    CloseClipboard();
    return taken;
}

std::wstring get() {
    OpenClipboard(nullptr);
    const HANDLE block = GetClipboardData(CF_UNICODETEXT);
    const std::wstring text = block ? static_cast<const wchar_t*>(GlobalLock(block)) : L"";
    CloseClipboard();
    EXPECT_EQ(GlobalSize(block), 0u); // it went with the closing
    return text;
}

} // namespace

TEST(Clipboard, AnotherWindowWaits) {
    Host one, two;
    EXPECT_TRUE(OpenClipboard(one.wnd));
    EXPECT_TRUE(OpenClipboard(one.wnd));
    EXPECT_FALSE(OpenClipboard(two.wnd));
    DestroyWindow(one.wnd);
    EXPECT_TRUE(OpenClipboard(two.wnd)); // its opener is gone
    EXPECT_TRUE(CloseClipboard());
}

TEST(Clipboard, LinesEndAsOnTheOtherSystem) {
    put(CF_TEXT, "a\nb\r\nc\rd", 9);
    EXPECT_EQ(get(), L"a\r\nb\r\nc\rd");
}

TEST(Clipboard, ATextWithoutTerminatorEndsWithItsBlock) {
    put(CF_TEXT, "abcdef", 4);
    EXPECT_EQ(get(), L"abcd");
    put(CF_UNICODETEXT, L"xyz", 2 * sizeof(wchar_t) + 1);
    EXPECT_EQ(get(), L"xy");
}

TEST(Clipboard, TakesOnlyBlocksOfText) {
    OpenClipboard(nullptr);
    EmptyClipboard();
    const HGLOBAL block = GlobalAlloc(GPTR, 8);
    EXPECT_EQ(SetClipboardData(2, block), nullptr);
    EXPECT_EQ(SetClipboardData(CF_TEXT, nullptr), nullptr);
    CloseClipboard();
    EXPECT_EQ(SetClipboardData(CF_TEXT, block), nullptr); // not open
    EXPECT_EQ(GlobalSize(block), 8u);                     // still the caller's
    GlobalFree(block);
    EXPECT_FALSE(IsClipboardFormatAvailable(CF_TEXT));
}
