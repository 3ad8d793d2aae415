#include "icon_fixture.h"

#include "support/memory.h"

// .tga icons, which the library reads by itself.

namespace {

using Bytes = std::vector<unsigned char>;

struct Icon_Tga : Icons {
    static Bytes header(int width, int height, int depth = 24) {
        Bytes head(18, 0x5A); // nothing but size and depth is looked at
        head[12] = static_cast<unsigned char>(width), head[13] = static_cast<unsigned char>(width >> 8);
        head[14] = static_cast<unsigned char>(height), head[15] = static_cast<unsigned char>(height >> 8);
        head[16] = static_cast<unsigned char>(depth);
        return head;
    }
    void tga(const std::wstring& name, int width, int height, const Bytes& pixels, int depth = 24) {
        Bytes file = header(width, height, depth);
        for (const unsigned char byte : pixels)
            file.push_back(byte);
        write(name, file);
    }
    std::vector<std::string> warnings_of(const std::wstring& name) {
        recorder::clear();
        EXPECT_EQ(read(name), nullptr);
        return recorder::reports(0x90000021);
    }
    void expect_other_form(const std::wstring& name) {
        const auto told_now = warnings_of(name);
        ASSERT_EQ(told_now.size(), 2u);
        int line = 0, used = 0;
        EXPECT_EQ(std::sscanf(told_now[0].c_str(), "Icon_Read_TGA() File:icon Line:%d%n", &line, &used), 1);
        EXPECT_EQ(used, static_cast<int>(told_now[0].size()));
        EXPECT_EQ(told_now[1], told(name) + " should be RGB");
    }
};

TEST_F(Icon_Tga, BlueAloneIsTransparent) {
    tga(L"keys.tga", 6, 1, {255, 0, 0, 0, 0, 0, 10, 1, 0, 200, 0, 0, 255, 0, 1, 7, 8, 9});
    const Icon_Entry* entry = read(L"keys.tga");
    ASSERT_NE(entry, nullptr);
    EXPECT_EQ(bytes(entry->Data, 24), (std::vector<int>{0, 0, 0, 0,  0,   0, 0, 255, 10, 1, 0, 255,
                                                        0, 0, 0, 55, 255, 0, 1, 255, 7,  8, 9, 255}));
    EXPECT_EQ(bytes(entry->Data_Swap, 24), (std::vector<int>{0, 0, 0, 0,  0, 0, 0,   255, 0, 1, 10, 255,
                                                             0, 0, 0, 55, 1, 0, 255, 255, 9, 8, 7,  255}));
    EXPECT_EQ(recorder::text(), "") << "no service of the drawing layer, and no report";
}

TEST_F(Icon_Tga, TheLowestRowComesFirst) {
    tga(L"rows.tga", 2, 3, {1, 1, 1, 2, 2, 2, 3, 3, 3, 4, 4, 4, 5, 5, 5, 6, 6, 6});
    const Icon_Entry* entry = read(L"rows.tga");
    ASSERT_NE(entry, nullptr);
    EXPECT_EQ(entry->Dim_X, 2);
    EXPECT_EQ(entry->Dim_Y, 3);
    std::vector<int> order;
    for (int i = 0; i < 6; i++)
        order.push_back(entry->Data[4 * i]);
    EXPECT_EQ(order, (std::vector<int>{5, 6, 3, 4, 1, 2}));
}

TEST_F(Icon_Tga, SizesHaveTwoBytes) {
    tga(L"wide.tga", 0x0201, 1, Bytes(0x0201 * 3, 9));
    tga(L"high.tga", 1, 0x0102, Bytes(0x0102 * 3, 9));
    ASSERT_NE(read(L"wide.tga"), nullptr);
    EXPECT_EQ(read(L"wide.tga")->Dim_X, 0x0201);
    ASSERT_NE(read(L"high.tga"), nullptr);
    EXPECT_EQ(read(L"high.tga")->Dim_Y, 0x0102);
}

TEST_F(Icon_Tga, TheWordMayStandAnywhereInTheName) {
    for (const wchar_t* name : {L"a.tga", L"a.tga.rgb", L".tgabc", L"x.tga~1"}) {
        tga(name, 1, 1, {1, 2, 3});
        EXPECT_NE(read(name), nullptr) << recorder::narrow(name);
    }
    EXPECT_EQ(recorder::text(recorder::kService), "");
}

TEST_F(Icon_Tga, ReadOnce) {
    tga(L"a.tga", 1, 1, {1, 2, 3});
    void* const entry = read(L"a.tga");
    ASSERT_NE(entry, nullptr);
    remove(L"a.tga");
    EXPECT_EQ(read(L"a.tga"), entry);
}

TEST_F(Icon_Tga, OfAnotherDepthIsRefused) {
    for (const int depth : {0, 1, 8, 15, 16, 23, 25, 32, 255}) {
        const std::wstring name = L"d" + std::to_wstring(depth) + L".tga";
        tga(name, 1, 1, {1, 2, 3, 4}, depth);
        expect_other_form(name);
    }
}

TEST_F(Icon_Tga, CutShortInTheHeaderHasNoDepth) {
    const Bytes whole = header(1, 1);
    for (std::size_t size = 0; size < whole.size(); size++) {
        const std::wstring name = L"h" + std::to_wstring(size) + L".tga";
        write(name, Bytes(whole.begin(), whole.begin() + static_cast<std::ptrdiff_t>(size)));
        expect_other_form(name);
    }
}

TEST_F(Icon_Tga, CutShortInThePixelsIsBlackThere) {
    for (std::size_t size = 0; size <= 12; size++) {
        const std::wstring name = L"p" + std::to_wstring(size) + L".tga";
        tga(name, 2, 2, Bytes(size, 9));
        const Icon_Entry* entry = read(name);
        ASSERT_NE(entry, nullptr) << size;
        // File order is lower left, lower right, upper left, upper right.
        const int place[] = {2, 3, 0, 1};
        for (std::size_t i = 0; i < 4; i++) {
            const BYTE* pixel = entry->Data + 4 * place[i];
            for (std::size_t channel = 0; channel < 3 && 3 * i + 2 < size; channel++)
                EXPECT_EQ(pixel[channel], 9);
            const bool beyond = 3 * i >= size;
            EXPECT_EQ(beyond, bytes(pixel, 4) == (std::vector<int>{0, 0, 0, 255})) << size << " " << i;
        }
    }
}

TEST_F(Icon_Tga, WithoutPixelsIsEmpty) {
    const int sizes[][2] = {{0, 0}, {0, 5}, {5, 0}, {0, 65535}, {65535, 0}};
    for (const auto& size : sizes) {
        const std::wstring name = L"e" + std::to_wstring(size[0]) + L"_" + std::to_wstring(size[1]) + L".tga";
        tga(name, size[0], size[1], {});
        const Icon_Entry* entry = read(name);
        ASSERT_NE(entry, nullptr);
        EXPECT_EQ(entry->Dim_X, size[0]);
        EXPECT_EQ(entry->Dim_Y, size[1]);
        EXPECT_NE(entry->Data, nullptr);
    }
}

TEST_F(Icon_Tga, LargerThanAnyIconIsRefused) {
    tga(L"huge.tga", 65535, 65535, {1, 2, 3});
    EXPECT_EQ(warnings_of(L"huge.tga"),
              std::vector<std::string>{"Icon_Read_TGA(" + told(L"huge.tga") + ") failed in new"});
    tga(L"more.tga", 8192, 8193, {1, 2, 3});
    EXPECT_EQ(warnings_of(L"more.tga").size(), 1u);
}

TEST_F(Icon_Tga, EveryMissingOneIsTold) {
    for (const wchar_t* name : {L"one.tga", L"two.tga"}) {
        recorder::clear();
        EXPECT_EQ(read(name), nullptr);
        EXPECT_EQ(recorder::log().size(), 3u);
        const auto warning = recorder::reports(0x90000021);
        ASSERT_EQ(warning.size(), 1u);
        int line = 0, used = 0;
        std::sscanf(warning[0].c_str(), "Icon_Read_TGA() File:icon Line:%d%n", &line, &used);
        EXPECT_GT(line, 1);
        EXPECT_EQ(warning[0].substr(static_cast<std::size_t>(used)), " ") << "with a blank at its end";
        EXPECT_EQ(recorder::reports(2),
                  (std::vector<std::string>{"\xC3\xB1\\x05WARNING:\\x02 Unable to open \\x01" + told(name),
                                            "\xC3\xB1\\x09 error 2"}));
        EXPECT_EQ(std::wstring(Kelvar_Err_Str), L"error 2");
        EXPECT_EQ(recorded(recorder::kEverything, [&] { EXPECT_EQ(read(name), nullptr); }), "") << "but once";
    }
}

TEST_F(Icon_Tga, WithoutMemoryIsTold) {
    if (!memory::can_fail()) GTEST_SKIP() << "this system's build cannot make memory run out";
    for (const int nth : {1, 2, 3}) { // work, pixels, swapped pixels: the blocks that are zeroed
        const std::wstring name = L"m" + std::to_wstring(nth) + L".tga";
        tga(name, 1, 1, {1, 2, 3});
        recorder::clear();
        {
            memory::Failing failing(1 + nth); // the first is the name
            EXPECT_EQ(read(name), nullptr);
            EXPECT_TRUE(failing.happened());
        }
        EXPECT_EQ(recorder::reports(0x90000021),
                  std::vector<std::string>{"Icon_Read_TGA(" + told(name) + ") failed in new"});
    }
}

TEST_F(Icon_Tga, AFolderOfThatNameIsNoPicture) {
    make_folder(L"holder.tga");
    EXPECT_EQ(read(L"holder.tga"), nullptr);
    EXPECT_FALSE(recorder::reports(0x90000021).empty());
}

TEST_F(Icon_Tga, FilesAreClosed) { // far more than a process may have open
    tga(L"bad.tga", 1, 1, {1, 2, 3}, 32);
    tga(L"good.tga", 1, 1, {1, 2, 3});
    for (int i = 0; i < 3000; i++) {
        ASSERT_EQ(read(L"bad.tga"), nullptr);
        ASSERT_NE(read(L"good.tga"), nullptr) << i;
        Icon_Cleanup();
    }
}

} // namespace
