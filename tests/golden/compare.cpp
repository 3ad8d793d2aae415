#include "compare.h"

#include <cstdio>
#include <memory>

#include <brask/fenn_host.h>

#define STB_IMAGE_IMPLEMENTATION
#define STB_IMAGE_STATIC
#define STBI_ONLY_PNG
#pragma GCC diagnostic push
#pragma GCC diagnostic ignored "-Wunused-function"
#include <stb_image.h>
#pragma GCC diagnostic pop

namespace {

std::string picture_file(const std::string& name) { return TESTS_ROOT "/golden/pictures/" + name + ".png"; }

// File names of the tests are plain ASCII.
std::wstring wide(const std::string& text) { return std::wstring(text.begin(), text.end()); }

struct Picture {
    int width = 0, height = 0;
    std::unique_ptr<unsigned char, void (*)(void*)> rgb{nullptr, stbi_image_free};

    DWORD word(int x, int y) const {
        const unsigned char* at = rgb.get() + 3 * (y * width + x);
        return static_cast<DWORD>(at[0]) << 16 | static_cast<DWORD>(at[1]) << 8 | at[2];
    }
};

Picture load(const std::string& file) {
    Picture picture;
    int channels;
    picture.rgb.reset(stbi_load(file.c_str(), &picture.width, &picture.height, &channels, 3));
    return picture;
}

std::string differences(const Picture& wanted, const DWORD* got, int width, int height) {
    int count = 0;
    char first[120] = "";
    for (int y = 0; y < height; y++)
        for (int x = 0; x < width; x++) {
            const DWORD is = got[y * width + x] & 0xFFFFFF, should = wanted.word(x, y);
            if (is == should || count++) continue;
            std::snprintf(first, sizeof first, "column %d, row %d from the top is %06X and should be %06X", x,
                          y, static_cast<unsigned>(is), static_cast<unsigned>(should));
        }
    return count ? std::to_string(count) + " pixels differ; the first: " + first : "";
}

} // namespace

std::string compare(HWND wnd, const std::string& name) {
    int width = 0, height = 0;
    const DWORD* got = Fenn_Pixels(wnd, &width, &height);
    if (!got) return "the window has no pixels";
    const Picture wanted = load(picture_file(name));
    std::string wrong;
    if (!wanted.rgb)
        wrong = "there is no picture " + picture_file(name);
    else if (wanted.width != width || wanted.height != height)
        wrong = "the picture has another size";
    else
        wrong = differences(wanted, got, width, height);
    if (!wrong.empty()) Fenn_Snapshot(wnd, wide(name + ".actual.png").c_str());
    return wrong;
}

bool update(HWND wnd, const std::string& name) {
    return Fenn_Snapshot(wnd, wide(picture_file(name)).c_str()) != 0;
}
