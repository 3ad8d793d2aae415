#include <climits>
#include <cstdlib>
#include <functional>
#include <memory>
#include <vector>

#include <brask/tools.h>

#include "support/memory.h"
#include "unit/brask/expect.h"

// Faces with a picture on them.

namespace {

struct Freed {
    void operator()(DWORD* block) const { std::free(block); }
};
using Surface = std::unique_ptr<DWORD[], Freed>;

struct Icon_Face : Recorded {
    Tools tools;
    const Colors grey{200, 200, 200};

    void SetUp() override {
        Recorded::SetUp();
        BORDER = 3;
        size(60, 60);
        tools.Flag = OUTIL_FLAT; // so that every word of the backdrop is 0x00C8C8C8
    }
    void size(int width, int height) { tools.Dim_X = width, tools.Dim_Y = height; }

    // A picture in which each pixel has the same bytes.
    static recorder::File uniform(int width, int height, const std::vector<unsigned char>& pixel) {
        recorder::File file = {width, height, static_cast<int>(pixel.size()), {}};
        for (int i = 0; i < width * height; i++)
            file.bytes.insert(file.bytes.end(), pixel.begin(), pixel.end());
        return file;
    }
    static recorder::File red(int width, int height) { return uniform(width, height, {0, 0, 255, 255}); }

    Surface icon(const recorder::File& file, const wchar_t* name = L"a.rgb") {
        recorder::file(std::wstring(L"F/") + name, file);
        return Surface(tools.Icon(L"F/", name, grey));
    }
    DWORD at(const Surface& face, int column, int row) const {
        return face[row * std::max(tools.Dim_X, 1) + column];
    }

    // What of the face is not backdrop, as first column, first row, width, height; all of it of one word.
    struct Spot {
        int left, top, width, height;
        bool operator==(const Spot& o) const {
            return left == o.left && top == o.top && width == o.width && height == o.height;
        }
    };
    Spot spot(const Surface& face) const {
        int left = INT_MAX, top = INT_MAX, right = -1, bottom = -1, count = 0;
        for (int y = 0; y < tools.Dim_Y; y++)
            for (int x = 0; x < tools.Dim_X; x++) {
                if (at(face, x, y) == 0x00C8C8C8) continue;
                left = std::min(left, x), right = std::max(right, x);
                top = std::min(top, y), bottom = std::max(bottom, y);
                count++;
            }
        if (!count) return {0, 0, 0, 0};
        EXPECT_EQ(count, (right - left + 1) * (bottom - top + 1));
        return {left, top, right - left + 1, bottom - top + 1};
    }
    friend std::ostream& operator<<(std::ostream& out, const Spot& s) {
        return out << s.width << " by " << s.height << " at " << s.left << ", " << s.top;
    }
};

// --- The steps ---

TEST_F(Icon_Face, ReadsPaintsAndGivesTheFileBack) {
    tools.Name_Set(L"face");
    recorder::file(L"F/a.rgb", red(2, 2));
    recorder::clear();
    const Surface face(tools.Icon(L"F/", L"a.rgb", grey));
    ASSERT_TRUE(face);
    const std::string trace = "[90000029] >>> in  Lib_Brask: ", out = "[90000029] <<< out Lib_Brask: ";
    EXPECT_EQ(recorder::text(), trace + "Tools::Icon(face)\nIGB_Read_Image(\"F/a.rgb\")\nIGB_Free()\n" +
                                    trace + "Tools::Inside_3D(face)\n" + out + "Tools::Inside_3D(no 3D)\n" +
                                    out + "Tools::Icon()\n");
    EXPECT_EQ(recorder::held(), 0);
}

TEST_F(Icon_Face, OfNoSizeIsNone) {
    for (const auto& dim : {std::pair<int, int>{0, 5}, {5, 0}, {0, 0}, {0, -1}}) {
        size(dim.first, dim.second);
        recorder::clear();
        EXPECT_FALSE(icon(red(2, 2)));
        EXPECT_EQ(recorder::exit_tag("Tools::Icon"), "! dim");
        EXPECT_EQ(recorder::text(recorder::kService), "");
    }
}

TEST_F(Icon_Face, OfANegativeSizeIsOnePixel) {
    size(-5, -7);
    const Surface face = icon(red(2, 2));
    ASSERT_TRUE(face);
    EXPECT_EQ(face[0], 0x00C8C8C8u);
    EXPECT_EQ(recorder::exit_tag("Tools::Icon"), "");
}

TEST_F(Icon_Face, IsNoneWithoutItsFile) {
    EXPECT_EQ(tools.Icon(L"F/", L"b.rgb", grey), nullptr);
    EXPECT_EQ(recorder::exit_tag("Tools::Icon"), "! IGB_Read_Image");
    EXPECT_EQ(tools.Icon(L"F/", L"b.tga", grey), nullptr);
    EXPECT_EQ(recorder::exit_tag("Tools::Icon"), "! TGA_Read_Image");
    EXPECT_EQ(recorder::text(recorder::kService),
              "IGB_Read_Image(\"F/b.rgb\")\nTGA_Read_Image(\"F/b.tga\")\n");
}

TEST_F(Icon_Face, ReadsATgaWhereverTheWordStandsInTheName) {
    for (const wchar_t* name : {L"a.tga", L"a.tga.rgb", L".tga"}) {
        recorder::clear();
        EXPECT_TRUE(icon(red(2, 2), name));
        EXPECT_EQ(recorder::text(recorder::kService).find("TGA_Read_Image"), 0u) << recorder::narrow(name);
    }
    recorder::clear();
    EXPECT_TRUE(icon(red(2, 2), L"a.TGA"));
    recorder::file(L".tga/a.rgb", red(2, 2)); // the folder does not count
    EXPECT_TRUE(Surface(tools.Icon(L".tga/", L"a.rgb", grey)));
    EXPECT_EQ(recorder::text(recorder::kService).find("TGA_Read_Image"), std::string::npos);
}

TEST_F(Icon_Face, KnowsOneAndFourChannels) {
    for (const int channels : {-1, 0, 2, 3, 5, 100}) {
        recorder::File file = red(2, 2);
        file.channels = channels;
        EXPECT_FALSE(icon(file));
        EXPECT_EQ(recorder::exit_tag("Tools::Icon"), "! IGB_Read_Image");
        EXPECT_FALSE(icon(file, L"a.tga"));
        EXPECT_EQ(recorder::exit_tag("Tools::Icon"), "! TGA_Read_Image");
        EXPECT_EQ(recorder::held(), 0);
    }
}

TEST_F(Icon_Face, OfAnEmptyPictureIsBare) {
    for (const auto& dim : {std::pair<int, int>{0, 5}, {500, 0}, {-1, -1}, {0, 0}})
        for (const int channels : {1, 4}) {
            const Surface face = icon({dim.first, dim.second, channels, {}});
            ASSERT_TRUE(face);
            EXPECT_EQ(spot(face), (Spot{0, 0, 0, 0}));
        }
}

TEST_F(Icon_Face, TakesNarrowTexts) {
    recorder::file(L"d\u00E9p\u00F4t/\u00E9.rgb", red(2, 2));
    recorder::clear();
    EXPECT_TRUE(Surface(tools.Icon("d\xC3\xA9p\xC3\xB4t/", "\xC3\xA9.rgb", grey)))
        << "neither overwrites the other";
    EXPECT_TRUE(Surface(tools.Icon(L"d\u00E9p\u00F4t/", "\xC3\xA9.rgb", grey)));
    EXPECT_EQ(recorder::reports(0x90000029).size(), 8u) << "only the working form leaves a trace";
}

TEST_F(Icon_Face, TakesNoTextsToo) {
    const char* const no_narrow = nullptr;
    const wchar_t* const no_wide = nullptr;
    recorder::clear();
    EXPECT_EQ(tools.Icon(no_wide, no_wide, grey), nullptr);
    EXPECT_EQ(tools.Icon(no_narrow, no_narrow, grey), nullptr);
    EXPECT_EQ(tools.Icon(no_wide, no_narrow, grey), nullptr);
    EXPECT_EQ(tools.Icon(no_wide, "a", grey), nullptr);
    EXPECT_EQ(tools.Icon("a", no_narrow, grey), nullptr);
    EXPECT_EQ(recorder::exit_tag("Tools::Icon"), "! IGB_Read_Image");
}

TEST_F(Icon_Face, CutsAPathOfMoreThan770Characters) {
    const std::wstring folder(700, L'f'), name(200, L'n');
    recorder::clear();
    EXPECT_EQ(tools.Icon(folder.c_str(), name.c_str(), grey), nullptr);
    EXPECT_EQ(recorder::text(recorder::kService),
              "IGB_Read_Image(\"" + std::string(700, 'f') + std::string(70, 'n') + "\")\n");
}

TEST_F(Icon_Face, HasTheBackdropOfAnyFace) {
    tools.Flag = 0;
    size(40, 30);
    const Surface face = icon(red(2, 2));
    ASSERT_TRUE(face);
    const Surface bare(tools.Inside_3D(grey));
    int other = 0;
    for (int i = 0; i < 40 * 30; i++)
        other += face[i] != bare[i];
    EXPECT_EQ(other, 4);
}

// --- Size and place: 60 by 60 without a bevel leaves 51 by 51 ---

TEST_F(Icon_Face, CentresAPictureOnePastTheMiddle) {
    EXPECT_EQ(spot(icon(red(10, 20))), (Spot{26, 21, 10, 20}));
    EXPECT_EQ(spot(icon(red(11, 21))), (Spot{25, 20, 11, 21})); // (60 - 11) / 2 is 24
    EXPECT_EQ(spot(icon(red(51, 51))), (Spot{5, 5, 51, 51})) << "what just fits is not touched";
    EXPECT_EQ(spot(icon(red(1, 1))), (Spot{30, 30, 1, 1}));
}

TEST_F(Icon_Face, StretchesAPictureIntoItsRoom) {
    EXPECT_EQ(spot(icon(red(100, 50))), (Spot{5, 5, 51, 51}));
    EXPECT_EQ(spot(icon(red(102, 51))), (Spot{5, 5, 51, 51}));
    EXPECT_EQ(spot(icon(red(102, 1))), (Spot{5, 5, 51, 51})) << "the other axis is stretched to the room";
    // 1 / (52 / 51) times 52 is a little less than 51 in single precision.
    EXPECT_EQ(spot(icon(red(52, 51))), (Spot{6, 5, 50, 51}));
}

TEST_F(Icon_Face, KeepsTheRatioOnDemand) {
    tools.Flag |= ICON_KEEP_RATIO;
    EXPECT_EQ(spot(icon(red(100, 50))), (Spot{5, 18, 51, 25})); // (60 - 25) / 2 is 17
    EXPECT_EQ(spot(icon(red(50, 100))), (Spot{18, 5, 25, 51}));
    EXPECT_EQ(spot(icon(red(52, 1))), (Spot{0, 0, 0, 0})) << "less than one row is nothing";
}

TEST_F(Icon_Face, LeavesTwoBevelsOrNinePixels) {
    const struct {
        int border, global, margin;
    } cases[] = {{0, 3, 9},  {4, 3, 9},   {5, 3, 10},  {-7, 3, 14},      {1, 100, 9},     {0, 10, 20},
                 {0, -9, 9}, {29, 3, 58}, {30, 3, 60}, {INT_MIN, 3, 60}, {INT_MAX, 3, 60}};
    for (const auto& c : cases) {
        tools.Border = c.border, BORDER = c.global;
        const int room = 60 - c.margin;
        // A picture that just fits is not touched, a larger one is shrunk.
        const Spot found = spot(icon(red(std::max(room, 1), std::max(room, 1))));
        EXPECT_EQ(found.width, room) << c.border << " " << c.global;
        EXPECT_EQ(found.height, room) << c.border << " " << c.global;
        EXPECT_LE(spot(icon(red(room + 1, room + 1))).width, room) << c.border << " " << c.global;
    }
    BORDER = 3;
}

TEST_F(Icon_Face, LeavesNoMarginAlongTheAxisOfAnEdge) {
    const struct {
        DWORD flag;
        Spot wide, tall;
    } cases[] = {
        // 100 by 50, then 50 by 100. The room is 60 along the axis of the flag and 51 along the other one.
        {ICON_TOP, {5, 18, 51, 25}, {16, 1, 30, 60}},
        {ICON_BOTTOM, {5, 33, 51, 25}, {16, 0, 30, 60}},
        {ICON_LEFT, {1, 16, 60, 30}, {18, 5, 25, 51}},
        {ICON_RIGHT, {0, 16, 60, 30}, {33, 5, 25, 51}},
        {ICON_RIGHT | ICON_BOTTOM, {0, 28, 60, 30}, {28, 0, 30, 60}},
        {ICON_LEFT | ICON_TOP, {1, 16, 60, 30}, {16, 1, 30, 60}},
    };
    for (const auto& c : cases) {
        tools.Flag = OUTIL_FLAT | c.flag;
        // One past the middle, the last row or column of a picture as large as the surface falls outside.
        const auto cut = [](Spot s) {
            return Spot{s.left, s.top, std::min(s.width, 60 - s.left), std::min(s.height, 60 - s.top)};
        };
        EXPECT_EQ(spot(icon(red(100, 50))), cut(c.wide)) << std::hex << c.flag;
        EXPECT_EQ(spot(icon(red(50, 100))), cut(c.tall)) << std::hex << c.flag;
    }
}

TEST_F(Icon_Face, PutsAPictureAtTheFarEdges) {
    tools.Flag |= ICON_RIGHT;
    EXPECT_EQ(spot(icon(red(10, 20))), (Spot{48, 21, 10, 20}));
    EXPECT_EQ(spot(icon(red(58, 20))), (Spot{0, 21, 58, 20}));
    EXPECT_EQ(spot(icon(red(59, 20))), (Spot{0, 21, 59, 20})) << "never left of the surface";
    tools.Flag = OUTIL_FLAT | ICON_BOTTOM;
    EXPECT_EQ(spot(icon(red(10, 20))), (Spot{26, 38, 10, 20}));
    tools.Flag = OUTIL_FLAT | ICON_LEFT | ICON_TOP;
    EXPECT_EQ(spot(icon(red(10, 20))), (Spot{26, 21, 10, 20})) << "the near edges have no place of their own";
}

TEST_F(Icon_Face, WithoutRoomIsBare) {
    size(9, 60);
    EXPECT_EQ(spot(icon(red(1, 1))), (Spot{0, 0, 0, 0}));
    size(10, 60);
    EXPECT_EQ(spot(icon(red(1, 1))), (Spot{5, 30, 1, 1}));
    size(60, 9);
    EXPECT_EQ(spot(icon(red(1, 1))), (Spot{0, 0, 0, 0}));
    EXPECT_EQ(recorder::exit_tag("Tools::Icon"), "");
}

// --- Grey ---

TEST_F(Icon_Face, GreyLeavesOutABrightFirstPixel) {
    for (const int first : {250, 251, 255}) {
        const auto byte = static_cast<unsigned char>(first);
        const Surface face = icon({2, 2, 1, {byte, 0, 7, byte}});
        EXPECT_EQ(at(face, 30, 30), 0x00C8C8C8u);
        EXPECT_EQ(at(face, 31, 30), 0u) << "black is painted";
        EXPECT_EQ(at(face, 30, 31), 0x00070707u);
        EXPECT_EQ(at(face, 31, 31), 0x00C8C8C8u);
    }
}

TEST_F(Icon_Face, GreyLeavesOutBlackBehindADarkFirstPixel) {
    for (const int first : {249, 128, 1}) {
        const auto byte = static_cast<unsigned char>(first);
        const Surface face = icon({2, 2, 1, {byte, 0, 255, byte}});
        EXPECT_EQ(at(face, 30, 30), byte * 0x010101u);
        EXPECT_EQ(at(face, 31, 30), 0x00C8C8C8u);
        EXPECT_EQ(at(face, 30, 31), 0x00FFFFFFu);
    }
}

TEST_F(Icon_Face, GreyGoesByThePictureAsItIsPlaced) {
    // The first pixel is white, but that of the shrunk picture is not.
    recorder::File file = uniform(100, 100, {0});
    file.bytes[0] = 255;
    EXPECT_EQ(spot(icon(file)), (Spot{5, 5, 1, 1})) << "the first pixel alone is not black";
}

// --- Four channels ---

TEST_F(Icon_Face, ColourIsMixedByItsTopByte) {
    const Surface face = icon({2, 2, 4, {1, 2, 3, 255, 9, 9, 9, 0, 0, 0, 0, 128, 255, 100, 0, 1}});
    EXPECT_EQ(at(face, 30, 30), 0xFF030201u) << "stored as it is, blue first";
    EXPECT_EQ(at(face, 31, 30), 0x00C8C8C8u) << "transparent";
    EXPECT_EQ(at(face, 30, 31), 0xFF636363u) << "(0 + 200 * 127) >> 8 is 99";
    EXPECT_EQ(at(face, 31, 31), 0xFFC6C6C7u) << "(200 * 254 + blue 255, green 100, red 0) >> 8";
}

TEST_F(Icon_Face, ColourFollowsTheRuleForEveryByte) {
    std::vector<unsigned char> bytes;
    for (int alpha = 1; alpha < 255; alpha++)
        bytes.insert(bytes.end(),
                     {static_cast<unsigned char>(alpha * 7), static_cast<unsigned char>(255 - alpha),
                      static_cast<unsigned char>(alpha), static_cast<unsigned char>(alpha)});
    size(300, 20);
    const Surface face = icon({254, 1, 4, bytes});
    ASSERT_TRUE(face);
    const int left = (300 - 254) / 2 + 1, top = (20 - 1) / 2 + 1;
    for (int i = 0; i < 254; i++) {
        const unsigned a = bytes[4 * i + 3];
        DWORD expected = 0xFF000000;
        for (int channel = 0; channel < 3; channel++)
            expected |= ((bytes[4 * i + channel] * a + 200 * (255 - a)) >> 8) << (8 * channel);
        EXPECT_EQ(at(face, left + i, top), expected) << i;
    }
}

TEST_F(Icon_Face, ColourIsShrunkWithItsTopByte) {
    recorder::File file = uniform(102, 102, {10, 20, 30, 255});
    for (std::size_t i = 0; i < file.bytes.size(); i += 8)
        file.bytes[i + 3] = 1; // every other pixel is nearly transparent: the mean of two is 128
    const Surface face = icon(file);
    EXPECT_EQ(at(face, 30, 30), 0xFF726D68u) << std::hex << at(face, 30, 30);
}

// --- Memory, and what hosts write ---

TEST_F(Icon_Face, SurvivesAnyFields) {
    const int ends[] = {INT_MIN, -1, 1, 13, INT_MAX};
    for (const int width : ends)
        for (const int height : ends)
            for (const int border : ends)
                for (const DWORD flag : {DWORD{0}, DWORD{0xFFFFFFFF}, ICON_KEEP_RATIO, ICON_TOP}) {
                    if (width == INT_MAX && height == INT_MAX) continue; // the next test
                    size(width, height);
                    tools.Border = border, tools.Flag = flag;
                    const Surface face = icon(red(3, 70));
                    const bool small = std::max(width, 1) < 1000 && std::max(height, 1) < 1000;
                    EXPECT_TRUE(face || !small);
                }
}

TEST_F(Icon_Face, BeyondAnyScreenIsNone) {
    size(INT_MAX, INT_MAX);
    EXPECT_FALSE(icon(red(3, 70)));
    EXPECT_EQ(recorder::held(), 0);
}

TEST_F(Icon_Face, WithoutMemoryIsNone) {
    if (!memory::can_fail()) GTEST_SKIP() << "this system's build cannot make memory run out";
    recorder::file(L"F/a.rgb", red(100, 80));
    const char* const reports[] = {"memory error in malloc (var=local_data, dim=100x80)", "",
                                   "memory error in calloc (var=local_data, dim=51x51)"};
    for (int nth = 1; nth <= 5; nth++) { // the copy, the backdrop, the smaller picture and what makes it
        recorder::clear();
        memory::Failing failing(nth);
        EXPECT_EQ(tools.Icon(L"F/", L"a.rgb", grey), nullptr) << nth;
        EXPECT_TRUE(failing.happened());
        const auto told = recorder::reports(1);
        const char* const report = reports[std::min(nth, 3) - 1];
        ASSERT_EQ(told.size(), *report ? 1u : 0u) << nth;
        if (told.empty()) continue;
        int line = 0, used = 0;
        std::sscanf(told[0].c_str(), "line %d of tools \\n%n", &line, &used);
        EXPECT_GT(line, 1);
        EXPECT_EQ(told[0].substr(static_cast<std::size_t>(used)), report);
        EXPECT_EQ(recorder::exit_tag("Tools::Icon"), "");
        EXPECT_EQ(recorder::held(), 0);
    }
}

} // namespace
