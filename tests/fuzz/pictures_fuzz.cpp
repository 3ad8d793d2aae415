// Picture files: whatever their bytes say, nothing outside of them is read, and what is delivered is whole.

#include <cerrno>
#include <cstring>
#include <vector>

#include <brask/fenn.h>

#include "../unit/fenn/picture_files.h"
#include "fenn/pictures.h"
#include "input.h"

namespace {

std::string good_file(Input& input, bool& rgb) {
    rgb = input.one_in(2);
    if (rgb) {
        RgbFile file;
        file.width = static_cast<int>(1 + input.below(40));
        file.height = static_cast<int>(1 + input.below(6));
        file.channels = static_cast<int>(1 + input.below(4));
        file.packed = input.one_in(2);
        return file.bytes();
    }
    static constexpr int kinds[][2] = {{1, 8}, {1, 16}, {2, 15}, {2, 16}, {2, 24}, {2, 32}, {3, 8}, {3, 16}};
    const auto& kind = input.among(kinds);
    TgaFile file;
    file.width = static_cast<int>(1 + input.below(40));
    file.height = static_cast<int>(1 + input.below(6));
    file.type = kind[0] | (input.one_in(2) ? 8 : 0);
    file.bits = kind[1];
    file.top_first = input.one_in(2);
    file.note = std::string(input.below(20), 'n');
    return file.bytes();
}

// Mostly the first bytes, which say what the others are.
void damage(Input& input, std::string& file) {
    for (unsigned left = input.below(6); left > 0; left--) {
        const unsigned reach = input.one_in(2) ? 18 : input.one_in(2) ? 700 : 65535;
        const std::size_t at = input.below(reach) % file.size();
        file[at] = static_cast<char>(input.one_in(3) ? 0xFF * input.below(2) : input.byte());
    }
    if (input.one_in(3)) file.resize(input.below(static_cast<unsigned>(file.size())) + 1);
}

void check(bool (*decode)(fenn::PictureBytes, IGB_data&), const std::string& file) {
    const std::vector<unsigned char> bytes(file.begin(), file.end());
    IGB_data image{};
    errno = 0;
    if (!decode({bytes.data(), bytes.size()}, image)) {
        expect(errno == EINVAL || errno == ENOMEM, "a refusal has its reason");
        expect(!image.Data && image.Dim_X == 0, "a refused picture is empty");
        return;
    }
    expect(image.Data && image.Dim_X > 0 && image.Dim_Y > 0, "a picture has a size");
    expect(image.Channels >= 1 && image.Channels <= 4, "a picture has channels");
    const std::size_t size =
        std::size_t(image.Dim_X) * std::size_t(image.Dim_Y) * std::size_t(image.Channels);
    unsigned sum = 0;
    for (std::size_t i = 0; i < size; i++)
        sum += image.Data[i];
    expect(sum <= 255 * size, "every byte is there");
    IGB_Free(&image);
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    Input input(data, size);
    while (!input.empty()) {
        bool rgb = false;
        std::string file = good_file(input, rgb);
        damage(input, file);
        check(rgb ? fenn::decode_rgb : fenn::decode_tga, file);
        check(rgb ? fenn::decode_tga : fenn::decode_rgb, file);
    }
    const std::string raw(reinterpret_cast<const char*>(data), size);
    check(fenn::decode_rgb, raw);
    check(fenn::decode_tga, raw);
    return 0;
}
