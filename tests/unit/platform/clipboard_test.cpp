// The clipboard, on each system.

#include <cstring>
#include <string>

#include <brask/platform.h>

#include <gtest/gtest.h>

namespace {

template <class Unit>
HGLOBAL block_of(const std::basic_string<Unit>& text) {
    const std::size_t bytes = (text.size() + 1) * sizeof(Unit);
    const HGLOBAL block = GlobalAlloc(GMEM_MOVEABLE, bytes);
    std::memcpy(GlobalLock(block), text.c_str(), bytes);
    GlobalUnlock(block);
    return block;
}

template <class Unit>
bool put(UINT format, const std::basic_string<Unit>& text) {
    if (!OpenClipboard(nullptr)) return false;
    EmptyClipboard();
    const HGLOBAL block = block_of(text);
    const bool taken = SetClipboardData(format, block) != nullptr;
    if (!taken) GlobalFree(block);
    CloseClipboard();
    return taken;
}

template <class Unit>
std::basic_string<Unit> get(UINT format) {
    OpenClipboard(nullptr);
    const HANDLE block = GetClipboardData(format);
    std::basic_string<Unit> text;
    if (block) {
        text = static_cast<const Unit*>(GlobalLock(block));
        EXPECT_GE(GlobalSize(block), (text.size() + 1) * sizeof(Unit));
        GlobalUnlock(block);
    }
    CloseClipboard();
    return text;
}

} // namespace

TEST(ClipboardText, GoesInAndOutInBothWidths) {
    ASSERT_TRUE(put(CF_UNICODETEXT, std::wstring(L"one\r\ntwo\t\x4E2D")));
    EXPECT_TRUE(IsClipboardFormatAvailable(CF_TEXT));
    EXPECT_TRUE(IsClipboardFormatAvailable(CF_UNICODETEXT));
    EXPECT_FALSE(IsClipboardFormatAvailable(0xBFFF));
    EXPECT_EQ(get<wchar_t>(CF_UNICODETEXT), L"one\r\ntwo\t\x4E2D");
    ASSERT_TRUE(put(CF_TEXT, std::string("narrow")));
    EXPECT_EQ(get<wchar_t>(CF_UNICODETEXT), L"narrow");
    EXPECT_EQ(get<char>(CF_TEXT), "narrow");
}

TEST(ClipboardText, AHundredThousandCharacters) {
    std::wstring text;
    for (int i = 0; i < 100000; i++)
        text += static_cast<wchar_t>(L'a' + i % 26);
    ASSERT_TRUE(put(CF_UNICODETEXT, text));
    EXPECT_EQ(get<wchar_t>(CF_UNICODETEXT), text);
}

TEST(ClipboardText, AnEmptiedClipboardHasNone) {
    ASSERT_TRUE(put(CF_UNICODETEXT, std::wstring(L"gone soon")));
    ASSERT_TRUE(OpenClipboard(nullptr));
    EXPECT_TRUE(EmptyClipboard());
    CloseClipboard();
    EXPECT_FALSE(IsClipboardFormatAvailable(CF_TEXT));
    OpenClipboard(nullptr);
    EXPECT_EQ(GetClipboardData(CF_UNICODETEXT), nullptr);
    CloseClipboard();
}

TEST(ClipboardText, IsReadOnlyWhileOpen) {
    ASSERT_TRUE(put(CF_UNICODETEXT, std::wstring(L"closed")));
    EXPECT_EQ(GetClipboardData(CF_UNICODETEXT), nullptr);
    EXPECT_FALSE(CloseClipboard());
    EXPECT_FALSE(EmptyClipboard());
}
