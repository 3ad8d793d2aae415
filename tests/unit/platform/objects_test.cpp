// Fonts, pens and brushes.

#include <cstring>
#include <cwchar>
#include <vector>

#include <brask/platform.h>

#include <gtest/gtest.h>

#include "platform/portable/surface.h"

static LOGFONTW sample_font(int height) {
    LOGFONTW font{};
    font.lfHeight = -height;
    font.lfWeight = FW_BOLD;
    font.lfItalic = 1;
    std::wcscpy(font.lfFaceName, L"Arial");
    return font;
}

TEST(Objects, AFontKnowsWhatItWasMadeFrom) {
    const LOGFONTW wish = sample_font(16);
    const HFONT font = CreateFontIndirectW(&wish);
    LOGFONTW told{};
    EXPECT_EQ(GetObjectW(font, sizeof told, &told), static_cast<int>(sizeof told));
    EXPECT_EQ(told.lfHeight, -16);
    EXPECT_EQ(told.lfWeight, 700);
    EXPECT_EQ(told.lfItalic, 1);
    EXPECT_STREQ(told.lfFaceName, L"Arial");
    EXPECT_STREQ(platform::font_description(font)->lfFaceName, L"Arial");
    EXPECT_TRUE(DeleteObject(font));
    EXPECT_FALSE(DeleteObject(font));
    EXPECT_EQ(platform::font_description(font), nullptr);
    EXPECT_EQ(GetObjectW(font, sizeof told, &told), 0);
}

TEST(Objects, HandlesAndSerialsAreNeverGivenTwice) {
    const LOGFONTW wish = sample_font(10);
    std::vector<std::uint64_t> serials;
    std::vector<HFONT> fonts;
    for (int i = 0; i < 100; i++) {
        const HFONT font = CreateFontIndirectW(&wish);
        const std::uint64_t serial = platform::font_serial(font);
        EXPECT_NE(serial, 0u);
        EXPECT_EQ(std::count(serials.begin(), serials.end(), serial), 0);
        EXPECT_EQ(std::count(fonts.begin(), fonts.end(), font), 0);
        serials.push_back(serial);
        fonts.push_back(font);
        DeleteObject(font);
        EXPECT_EQ(platform::font_serial(font), 0u);
    }
}

TEST(Objects, AnUnendedFamilyNameIsEnded) {
    LOGFONTW wish = sample_font(10);
    std::wmemset(wish.lfFaceName, L'x', 32);
    const HFONT font = CreateFontIndirectW(&wish);
    EXPECT_EQ(std::wcslen(platform::font_description(font)->lfFaceName), 31u);
    DeleteObject(font);
}

TEST(Objects, AShortRequestIsAnsweredInPart) {
    const LOGFONTW wish = sample_font(16);
    const HFONT font = CreateFontIndirectW(&wish);
    LONG height = 0;
    EXPECT_EQ(GetObjectW(font, sizeof height, &height), static_cast<int>(sizeof height));
    EXPECT_EQ(height, -16);
    EXPECT_EQ(GetObjectW(font, 0, nullptr), static_cast<int>(sizeof(LOGFONTW)));
    EXPECT_EQ(GetObjectW(font, -5, &height), 0);
    DeleteObject(font);
}

TEST(Objects, PensAndBrushes) {
    const HPEN pen = CreatePen(PS_SOLID, 3, RGB(1, 2, 3));
    LOGPEN told{};
    EXPECT_EQ(GetObjectW(pen, sizeof told, &told), static_cast<int>(sizeof told));
    EXPECT_EQ(told.lopnStyle, static_cast<UINT>(PS_SOLID));
    EXPECT_EQ(told.lopnWidth.x, 3);
    EXPECT_EQ(told.lopnColor, RGB(1, 2, 3));
    const HBRUSH brush = CreateSolidBrush(RGB(4, 5, 6));
    LOGBRUSH filled{};
    EXPECT_EQ(GetObjectW(brush, sizeof filled, &filled), static_cast<int>(sizeof filled));
    EXPECT_EQ(filled.lbColor, RGB(4, 5, 6));
    EXPECT_TRUE(DeleteObject(pen));
    EXPECT_TRUE(DeleteObject(brush));
}

TEST(Objects, StockOnesCannotBeDeleted) {
    for (const int index : {WHITE_BRUSH, BLACK_PEN, NULL_PEN, SYSTEM_FONT, DEFAULT_GUI_FONT}) {
        const HGDIOBJ object = GetStockObject(index);
        ASSERT_NE(object, nullptr);
        EXPECT_TRUE(DeleteObject(object));
        EXPECT_EQ(GetStockObject(index), object);
        EXPECT_GT(GetObjectW(object, 0, nullptr), 0);
    }
    EXPECT_EQ(GetStockObject(99), nullptr);
}

TEST(Objects, WrongHandlesAreRefused) {
    int something = 0;
    EXPECT_EQ(CreateFontIndirectW(nullptr), nullptr);
    for (void* handle :
         {static_cast<void*>(nullptr), static_cast<void*>(&something), reinterpret_cast<void*>(-1)}) {
        EXPECT_FALSE(DeleteObject(handle));
        EXPECT_EQ(GetObjectW(handle, 4, &something), 0);
        EXPECT_EQ(platform::font_description(static_cast<HFONT>(handle)), nullptr);
    }
}

TEST(Objects, TheTableOfFontsHasAnEnd) {
    const LOGFONTW wish = sample_font(10);
    std::vector<HFONT> fonts;
    for (int i = 0; i < 70000; i++) {
        const HFONT font = CreateFontIndirectW(&wish);
        if (!font) break;
        fonts.push_back(font);
    }
    EXPECT_GE(fonts.size(), 10000u);
    EXPECT_LE(fonts.size(), 65536u);
    for (const HFONT font : fonts)
        EXPECT_TRUE(DeleteObject(font));
    const HFONT again = CreateFontIndirectW(&wish);
    EXPECT_NE(again, nullptr);
    DeleteObject(again);
}
