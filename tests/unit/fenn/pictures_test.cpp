#include "scratch.h"

#include <cerrno>
#include <cstring>
#include <vector>

#include "fenn/pictures.h"
#include "picture_files.h"

namespace {

using Decode = bool (*)(fenn::PictureBytes, IGB_data&);

// Decodes from a block of just the file's size, so that a byte read behind its end is found out.
struct Decoded {
    bool good;
    int reason;
    IGB_data image{};

    Decoded(Decode decode, const std::string& file) {
        std::vector<unsigned char> bytes(file.begin(), file.end());
        errno = 0;
        good = decode({bytes.data(), bytes.size()}, image);
        reason = errno;
    }
    ~Decoded() { IGB_Free(&image); }
    unsigned at(int x, int y, int channel) const {
        return image.Data[(y * image.Dim_X + x) * image.Channels + channel];
    }
};

void expect_refused(Decode decode, const std::string& file) {
    const Decoded decoded(decode, file);
    EXPECT_FALSE(decoded.good);
    EXPECT_EQ(decoded.reason, EINVAL);
    EXPECT_EQ(decoded.image.Data, nullptr);
}

void expect_size(const Decoded& decoded, int width, int height, int channels) {
    ASSERT_TRUE(decoded.good);
    EXPECT_EQ(decoded.image.Dim_X, width);
    EXPECT_EQ(decoded.image.Dim_Y, height);
    EXPECT_EQ(decoded.image.Channels, channels);
}

void expect_refused_when_cut(Decode decode, const std::string& file) {
    for (std::size_t size = 0; size < file.size(); ++size) {
        SCOPED_TRACE("cut to " + std::to_string(size));
        expect_refused(decode, file.substr(0, size));
    }
    EXPECT_TRUE(Decoded(decode, file).good);
    EXPECT_TRUE(Decoded(decode, file + "what stands behind").good);
}

std::string changed(std::string file, std::size_t at, unsigned value, int size) {
    put_high_first(file, at, value, size);
    return file;
}

TEST(RgbPictures, EachNumberOfChannelsStoredAndPacked) {
    for (int channels = 1; channels <= 4; ++channels)
        for (const bool packed : {false, true}) {
            RgbFile file;
            file.channels = channels;
            file.packed = packed;
            const Decoded decoded(fenn::decode_rgb, file.bytes());
            expect_size(decoded, file.width, file.height, channels);
            // Red, green and blue turn round; grey and alpha stay.
            const int order[4][4] = {{0}, {0, 1}, {2, 1, 0}, {2, 1, 0, 3}};
            for (int y = 0; y < file.height; ++y)
                for (int x = 0; x < file.width; ++x)
                    for (int i = 0; i < channels; ++i)
                        ASSERT_EQ(decoded.at(x, y, i), sample(x, y, order[channels - 1][i]))
                            << channels << " channels, " << x << ", " << y;
        }
}

TEST(RgbPictures, LongRunsOfEitherKind) {
    RgbFile file;
    file.width = 700;
    file.packed = true;
    const Decoded decoded(fenn::decode_rgb, file.bytes());
    expect_size(decoded, 700, 3, 4);
    for (int x = 0; x < 700; ++x)
        ASSERT_EQ(decoded.at(x, 1, 1), sample(x, 1, 1));
}

TEST(RgbPictures, FewerDimensionsMeanOneRowOrOneChannel) {
    RgbFile file;
    file.channels = 1;
    const std::string row = changed(changed(file.bytes(), 4, 1, 2), 8, 9999, 2);
    expect_size(Decoded(fenn::decode_rgb, row), 7, 1, 1);
    const std::string plane = changed(changed(file.bytes(), 4, 2, 2), 10, 9999, 2);
    expect_size(Decoded(fenn::decode_rgb, plane), 7, 3, 1);
}

TEST(RgbPictures, CutShortAtEveryByte) {
    for (const bool packed : {false, true}) {
        RgbFile file;
        file.packed = packed;
        expect_refused_when_cut(fenn::decode_rgb, file.bytes());
    }
}

TEST(RgbPictures, HeadersThatLie) {
    for (const bool packed : {false, true}) {
        RgbFile file;
        file.packed = packed;
        const std::string good = file.bytes();
        for (const std::size_t place : {6, 8})
            for (const unsigned size : {0u, 1000u, 32767u, 32768u, 65535u}) {
                SCOPED_TRACE("size " + std::to_string(size) + " at " + std::to_string(place));
                expect_refused(fenn::decode_rgb, changed(good, place, size, 2));
            }
        expect_refused(fenn::decode_rgb, changed(changed(good, 6, 65535, 2), 8, 65535, 2));
        expect_refused(fenn::decode_rgb, changed(changed(good, 6, 32767, 2), 8, 32767, 2));
        for (const unsigned channels : {0u, 5u, 65535u})
            expect_refused(fenn::decode_rgb, changed(good, 10, channels, 2));
        for (const unsigned dimensions : {0u, 4u, 65535u})
            expect_refused(fenn::decode_rgb, changed(good, 4, dimensions, 2));
        expect_refused(fenn::decode_rgb, changed(good, 0, 0xDA01, 2)); // the other order of bytes
        expect_refused(fenn::decode_rgb, changed(good, 2, 2, 1));      // a packing that there is not
        expect_refused(fenn::decode_rgb, changed(good, 3, 2, 1));      // 16 bits
        expect_refused(fenn::decode_rgb, changed(good, 104, 1, 4));    // colours of an old kind
    }
}

TEST(RgbPictures, TablesThatLie) {
    RgbFile file;
    file.packed = true;
    const std::string good = file.bytes();
    const std::size_t rows = 12, starts = 512, sizes = 512 + 4 * rows;
    for (std::size_t row = 0; row < rows; ++row) {
        for (const unsigned start :
             {static_cast<unsigned>(good.size()), 0x7FFFFFFFu, 0x80000000u, 0xFFFFFFFFu})
            expect_refused(fenn::decode_rgb, changed(good, starts + 4 * row, start, 4));
        for (const unsigned size : {0u, 1u, 0x7FFFFFFFu, 0x80000000u, 0xFFFFFFFFu})
            expect_refused(fenn::decode_rgb, changed(good, sizes + 4 * row, size, 4));
    }
}

// A picture of one row, whose packed bytes are given.
std::string one_row(int width, const std::string& packed) {
    RgbFile file;
    file.width = width;
    file.height = 1;
    file.channels = 1;
    file.packed = true;
    std::string bytes = file.header() + std::string(8, 0) + packed;
    put_high_first(bytes, 512, 520, 4);
    put_high_first(bytes, 516, static_cast<unsigned>(packed.size()), 4);
    return bytes;
}

TEST(RgbPictures, ARowIsFilledExactly) {
    using namespace std::string_literals;
    EXPECT_TRUE(Decoded(fenn::decode_rgb, one_row(4, "\x04x\0"s)).good);
    EXPECT_TRUE(Decoded(fenn::decode_rgb, one_row(4, "\x04x"s)).good); // the end mark may be missing
    EXPECT_TRUE(Decoded(fenn::decode_rgb, one_row(4, "\x82xy\x02z\0"s)).good);
    expect_refused(fenn::decode_rgb, one_row(4, "\x05x\0"s));     // too long
    expect_refused(fenn::decode_rgb, one_row(4, "\x85xxxxx\0"s)); // too long, copied
    expect_refused(fenn::decode_rgb, one_row(4, "\x03x\0"s));     // too short
    expect_refused(fenn::decode_rgb, one_row(4, "\x84xxx"s));     // ends inside a run
    expect_refused(fenn::decode_rgb, one_row(4, "\x04"s));
    expect_refused(fenn::decode_rgb, one_row(4, ""s));
}

TEST(TgaPictures, EachKindOfPixel) {
    const int kinds[][2] = {{2, 32}, {2, 24}, {10, 32}, {10, 24}};
    for (const auto& kind : kinds)
        for (const bool top_first : {false, true}) {
            TgaFile file;
            file.type = kind[0];
            file.bits = kind[1];
            file.top_first = top_first;
            file.note = top_first ? "a note" : "";
            const Decoded decoded(fenn::decode_tga, file.bytes());
            expect_size(decoded, file.width, file.height, 4);
            for (int y = 0; y < file.height; ++y)
                for (int x = 0; x < file.width; ++x)
                    for (int i = 0; i < 4; ++i)
                        ASSERT_EQ(decoded.at(x, y, i), i == 3 && file.bits == 24 ? 255u : sample(x, y, i))
                            << "kind " << kind[0] << ", " << x << ", " << y;
        }
}

TEST(TgaPictures, GreyIsOneChannel) {
    for (const int type : {3, 11}) {
        TgaFile file;
        file.type = type;
        file.bits = 8;
        const Decoded decoded(fenn::decode_tga, file.bytes());
        expect_size(decoded, file.width, file.height, 1);
        EXPECT_EQ(decoded.at(6, 0, 0), sample(6, 0, 0));
        EXPECT_EQ(decoded.at(0, 2, 0), sample(0, 2, 0));
    }
}

TEST(TgaPictures, GreyWithAlphaHasFourChannels) {
    TgaFile file;
    file.type = 3;
    file.bits = 16;
    const Decoded decoded(fenn::decode_tga, file.bytes());
    expect_size(decoded, file.width, file.height, 4);
    for (int i = 0; i < 3; ++i)
        EXPECT_EQ(decoded.at(3, 1, i), sample(3, 1, 0));
    EXPECT_EQ(decoded.at(3, 1, 3), sample(3, 1, 1));
}

TEST(TgaPictures, ColorsFromATable) {
    for (const int type : {1, 9})
        for (const int bits : {8, 16}) {
            TgaFile file;
            file.type = type;
            file.bits = bits;
            const Decoded decoded(fenn::decode_tga, file.bytes());
            expect_size(decoded, file.width, file.height, 4);
            const unsigned index = sample(3, 1, 0);
            EXPECT_EQ(decoded.at(3, 1, 0), index);
            EXPECT_EQ(decoded.at(3, 1, 1), 255 - index);
            EXPECT_EQ(decoded.at(3, 1, 2), index / 2);
            EXPECT_EQ(decoded.at(3, 1, 3), 255u);
        }
}

TEST(TgaPictures, FifteenBitsAreThreeColors) {
    TgaFile file;
    file.width = file.height = 1;
    file.bits = 16;
    std::string bytes = file.header();
    bytes += {static_cast<char>(0x1F), static_cast<char>(0x7C)}; // red and blue full, green none
    const Decoded decoded(fenn::decode_tga, bytes);
    expect_size(decoded, 1, 1, 4);
    EXPECT_EQ(decoded.at(0, 0, 0), 255u);
    EXPECT_EQ(decoded.at(0, 0, 1), 0u);
    EXPECT_EQ(decoded.at(0, 0, 2), 255u);
    EXPECT_EQ(decoded.at(0, 0, 3), 255u);
}

TEST(TgaPictures, CutShortAtEveryByte) {
    const int kinds[][2] = {{2, 32}, {2, 24}, {2, 16}, {3, 8}, {1, 8}, {10, 32}, {10, 24}, {11, 8}, {9, 8}};
    for (const auto& kind : kinds) {
        TgaFile file;
        file.type = kind[0];
        file.bits = kind[1];
        file.note = "note";
        SCOPED_TRACE("kind " + std::to_string(kind[0]) + ", bits " + std::to_string(kind[1]));
        expect_refused_when_cut(fenn::decode_tga, file.bytes());
    }
}

TEST(TgaPictures, HeadersThatLie) {
    for (const int type : {2, 10}) {
        TgaFile file;
        file.type = type;
        const std::string good = file.bytes();
        const auto with = [&](std::size_t at, unsigned value) {
            std::string bytes = good;
            put_low_first(bytes, at, value);
            return bytes;
        };
        for (const std::size_t place : {12, 14})
            for (const unsigned size : {0u, 1000u, 32767u, 32768u, 65535u})
                expect_refused(fenn::decode_tga, with(place, size));
        for (const unsigned bits : {0u, 1u, 8u, 48u, 255u})
            expect_refused(fenn::decode_tga, changed(good, 16, bits, 1));
        for (const unsigned kind : {0u, 1u, 4u, 8u, 9u, 12u, 32u, 255u})
            expect_refused(fenn::decode_tga, changed(good, 2, kind, 1));
        expect_refused(fenn::decode_tga, changed(good, 0, 255, 1)); // a note longer than the file
        expect_refused(fenn::decode_tga, changed(good, 1, 1, 1));   // a table that nothing needs
    }
    TgaFile file;
    file.type = 1;
    file.bits = 8;
    const std::string good = file.bytes();
    EXPECT_TRUE(Decoded(fenn::decode_tga, good).good);
    expect_refused(fenn::decode_tga, changed(good, 5, 0, 2));      // no colours
    expect_refused(fenn::decode_tga, changed(good, 5, 0xFFFF, 2)); // more than there are
    expect_refused(fenn::decode_tga, changed(good, 3, 0x0100, 2)); // the first one elsewhere
    expect_refused(fenn::decode_tga, changed(good, 7, 8, 1));
    expect_refused(fenn::decode_tga, changed(good, 1, 0, 1)); // no table
}

using Read = int (*)(const wchar_t*, IGB_data*, void*);

TEST(PictureFiles, AreReadThroughThePathsOfTheLibrary) {
    const Scratch scratch;
    RgbFile rgb;
    scratch.write("\xC3\xA9\xE4\xB8\xAD.rgb", rgb.bytes());
    scratch.write("\xC3\xA9\xE4\xB8\xAD.tga", TgaFile().bytes());
    IGB_data image{};
    ASSERT_EQ(IGB_Read_Image(scratch.path("\xC3\xA9\xE4\xB8\xAD.rgb").c_str(), &image, nullptr), 1);
    EXPECT_EQ(image.Dim_X, 7);
    EXPECT_EQ(image.Data[4 * 6], sample(6, 0, 2));
    IGB_Free(&image);
    EXPECT_EQ(image.Data, nullptr);
    ASSERT_EQ(TGA_Read_Image(scratch.path("\xC3\xA9\xE4\xB8\xAD.tga").c_str(), &image, nullptr), 1);
    EXPECT_EQ(image.Dim_Y, 3);
    EXPECT_EQ(image.Data[4 * 6], sample(6, 0, 0));
    IGB_Free(&image);
}

TEST(PictureFiles, OfSeveralMegabytes) {
    const Scratch scratch;
    RgbFile rgb;
    rgb.width = 1500;
    rgb.height = 900;
    scratch.write("large.rgb", rgb.bytes());
    IGB_data image{};
    ASSERT_EQ(IGB_Read_Image(scratch.path("large.rgb").c_str(), &image, nullptr), 1);
    EXPECT_EQ(image.Data[4 * (1500 * 900 - 1)], sample(1499, 899, 2));
    IGB_Free(&image);
}

TEST(PictureFiles, FailWithTheirReason) {
    const Scratch scratch;
    scratch.make("folder.rgb");
    scratch.write("empty.rgb");
    scratch.write("text.rgb", "not a picture");
    for (const Read read : {Read{IGB_Read_Image}, Read{TGA_Read_Image}}) {
        IGB_data image;
        const auto reason = [&](const wchar_t* file) {
            std::memset(static_cast<void*>(&image), '#', sizeof image);
            errno = 0;
            EXPECT_EQ(read(file, &image, nullptr), 0);
            EXPECT_EQ(image.Data, nullptr);
            EXPECT_EQ(image.Dim_X, 0);
            return errno;
        };
        EXPECT_EQ(reason(scratch.path("nothing.rgb").c_str()), ENOENT);
        EXPECT_EQ(reason(scratch.path("empty.rgb").c_str()), EINVAL);
        EXPECT_EQ(reason(scratch.path("text.rgb").c_str()), EINVAL);
        EXPECT_EQ(reason(scratch.path("folder.rgb").c_str()), EACCES);
        EXPECT_EQ(reason(nullptr), EINVAL);
        EXPECT_EQ(reason(L""), ENOENT);
        errno = 0;
        EXPECT_EQ(read(scratch.path("text.rgb").c_str(), nullptr, nullptr), 0);
        EXPECT_EQ(errno, EINVAL);
    }
}

TEST(PictureFiles, FreeingLeavesAnEmptyPicture) {
    IGB_data image{static_cast<unsigned char*>(std::malloc(16)), 2, 2, 4};
    IGB_Free(&image);
    EXPECT_EQ(image.Data, nullptr);
    EXPECT_EQ(image.Dim_X, 0);
    IGB_Free(&image);
    IGB_Free(nullptr);
}

} // namespace
