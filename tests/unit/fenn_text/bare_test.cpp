// A system without any font: everything is written in the built-in one.
#include <cstdio>
#include <cstdlib>
#include <string>

#include <gtest/gtest.h>
#include <unistd.h>

#include "page.h"

namespace {

// Before the first text fontconfig is told of a configuration without folders.
class NoFonts : public testing::Environment {
  public:
    void SetUp() override {
        path = testing::TempDir() + "no-fonts-" + std::to_string(getpid()) + ".conf";
        std::FILE* const file = std::fopen(path.c_str(), "w");
        ASSERT_TRUE(file);
        std::fputs("<?xml version=\"1.0\"?><fontconfig></fontconfig>", file);
        std::fclose(file);
        setenv("FONTCONFIG_FILE", path.c_str(), 1);
    }
    void TearDown() override { std::remove(path.c_str()); }

  private:
    std::string path;
};

const auto* const no_fonts = testing::AddGlobalTestEnvironment(new NoFonts);

TEST(BareSystem, TextIsWrittenInTheBuiltInFont) {
    const Face large(-32, 700);
    for (HFONT font : {HFONT{}, static_cast<HFONT>(large)})
        for (const wchar_t* text : {L"Cancel", L"Größe", L"Щука", L"שלום", L"漢 e\u0301"}) {
            const Picture bare = written(font, text);
            const int width = Zeb_Font_Size_String(font, text);
            const Builtin builtin;
            EXPECT_EQ(bare, written(font, text));
            EXPECT_EQ(width, Zeb_Font_Size_String(font, text));
            EXPECT_GT(ink(bare), 0);
        }
    EXPECT_EQ(Zeb_Font_Size_Height(large), 32);
    EXPECT_TRUE(no_fonts);
}

} // namespace
