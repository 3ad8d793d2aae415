// What is kept of written text stays within its bounds, and forgetting changes nothing.
#include <string>

#include <gtest/gtest.h>

#include "fenn/text_run.h"
#include "page.h"

namespace {

TEST(TextCache, StaysWithinItsLimit) {
    const Builtin builtin;
    const Screen screen(200, 40);
    Painting painting(screen);
    const Face large(-200);
    for (int i = 0; i < 20000; ++i) {
        const std::wstring text = L"Number " + std::to_wstring(i * 7919);
        Zeb_Font_Write(i % 100 ? nullptr : static_cast<HFONT>(large), 0, 0, text.c_str());
        ASSERT_LT(fenn::text_cache_bytes(), fenn::TEXT_CACHE_LIMIT);
    }
    EXPECT_GT(fenn::text_cache_bytes(), 0u);
}

TEST(TextCache, ManyFontsStayWithinItToo) {
    for (int round = 0; round < 2; ++round)
        for (int size = 1; size <= 200; ++size) {
            const Face face(-size);
            EXPECT_GT(ink(written(face, {{0, L"Aש漢\uE123"}}, 0, 160, 260)), 0) << size;
            ASSERT_LT(fenn::text_cache_bytes(), fenn::TEXT_CACHE_LIMIT);
        }
}

TEST(TextCache, ForgettingChangesNothing) {
    const Face face(-20);
    for (const wchar_t* text : {L"Cancel", L"שלום", L"漢字 \uE123"}) {
        const Picture before = written(face, text);
        fenn::text_cache_clear();
        EXPECT_EQ(written(face, text), before);
        EXPECT_EQ(written(face, text), before);
    }
}

TEST(TextCache, ARunPaintsLikeItsGlyphs) {
    // Long runs are painted glyph by glyph, short ones as one picture.
    const Builtin builtin;
    std::wstring text(600, L'x');
    text.replace(0, 4, L"Ägpt");
    const Picture alone = written(nullptr, L"Ägptxxxxxxxxxxxxxxxxxxxxxxxxx");
    const Picture part = written(nullptr, text.c_str());
    for (std::size_t row = 0; row < alone.size(); ++row)
        EXPECT_EQ(part[row].substr(0, 100), alone[row].substr(0, 100));
}

} // namespace
