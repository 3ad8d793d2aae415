#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <iterator>

#include "screen.h"

#define STB_IMAGE_IMPLEMENTATION
#define STB_IMAGE_STATIC
#define STBI_ONLY_PNG
#pragma GCC diagnostic push
#pragma GCC diagnostic ignored "-Wunused-function"
#include <stb_image.h>
#pragma GCC diagnostic pop

namespace {

struct Folder {
    std::filesystem::path path =
        std::filesystem::temp_directory_path() / std::filesystem::u8path("fenn pict\xC3\xBCre");
    Folder() { std::filesystem::create_directories(path); }
    ~Folder() { std::filesystem::remove_all(path); }

    std::wstring file(const char* name) const {
        wchar_t library[2048] = {};
        EXPECT_EQ(Fenn_Path_From_Native((path / name).u8string().c_str(), library, 2048), 1);
        return library;
    }
    std::vector<unsigned char> bytes(const char* name) const {
        std::ifstream in(path / name, std::ios::binary);
        return {std::istreambuf_iterator<char>(in), {}};
    }
};

TEST(Snapshot, IsThePictureOfTheWindow) {
    const Folder folder;
    Screen screen(5, 3);
    {
        Painting painting(screen, red);
        draw_fill_rectangle(0, 2, 3, -1);
        Zeb_color(0x563412);
        draw_rectangle(4, 0, 4, 0);
    }
    EXPECT_EQ(Fenn_Snapshot(screen.wnd, folder.file("a.png").c_str()), 1);
    const std::vector<unsigned char> file = folder.bytes("a.png");
    int width = 0, height = 0, channels = 0;
    unsigned char* const read =
        stbi_load_from_memory(file.data(), static_cast<int>(file.size()), &width, &height, &channels, 0);
    ASSERT_NE(read, nullptr);
    ASSERT_EQ(width, 5);
    ASSERT_EQ(height, 3);
    ASSERT_EQ(channels, 3);
    for (int y = 0; y < 3; ++y)
        for (int x = 0; x < 5; ++x) {
            const unsigned char* const p = read + (y * 5 + x) * 3;
            EXPECT_EQ(static_cast<DWORD>(p[0] << 16 | p[1] << 8 | p[2]), screen.at(x, 2 - y))
                << x << ", " << y;
        }
    stbi_image_free(read);
}

TEST(Snapshot, FailsWithoutAWindowOrAFile) {
    const Folder folder;
    Screen screen(5, 3);
    EXPECT_EQ(Fenn_Snapshot(nullptr, folder.file("a.png").c_str()), 0);
    EXPECT_FALSE(std::filesystem::exists(folder.path / "a.png"));
    EXPECT_EQ(Fenn_Snapshot(screen.wnd, folder.file("no such folder").append(L"\\a.png").c_str()), 0);
    EXPECT_EQ(Fenn_Snapshot(screen.wnd, nullptr), 0);
}

} // namespace
