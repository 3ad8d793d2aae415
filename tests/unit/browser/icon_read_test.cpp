#include "icon_fixture.h"

#include "support/memory.h"

// The cache, the bracket around a read, and .rgb pictures.

namespace {

using Icon_Reads = Icons;

TEST_F(Icon_Reads, APictureWithItsTransparencyTurned) {
    recorder::file(path_of(L"a.rgb"), {2, 1, 4, {10, 20, 30, 0, 40, 50, 60, 200}});
    const Icon_Entry* entry = read(L"a.rgb");
    ASSERT_NE(entry, nullptr);
    EXPECT_EQ(std::wstring(entry->Name), L"a.rgb");
    EXPECT_EQ(entry->Dim_X, 2);
    EXPECT_EQ(entry->Dim_Y, 1);
    EXPECT_EQ(bytes(entry->Data, 8), (std::vector<int>{10, 20, 30, 255, 40, 50, 60, 55}));
    EXPECT_EQ(bytes(entry->Data_Swap, 8), (std::vector<int>{30, 20, 10, 255, 60, 50, 40, 55}));
    EXPECT_EQ(recorder::held(), 0);
    EXPECT_EQ(recorder::text(), "[80000005] Icon_Read_RGB(" + told(L"a.rgb") + ")\nIGB_Read_Image(\"" +
                                    told(L"a.rgb") + "\")\nIGB_Free()\n");
}

TEST_F(Icon_Reads, AFileOnce) {
    rgb(L"a.rgb", 3, 2);
    void* const first = read(L"a.rgb");
    ASSERT_NE(first, nullptr);
    EXPECT_EQ(recorded(recorder::kEverything, [&] { EXPECT_EQ(read(L"a.rgb"), first); }), "");
    Boxs other;
    EXPECT_EQ(Icon_Read(&other, L"a.rgb"), first);
    EXPECT_EQ(Icon_Read(nullptr, L"a.rgb"), first);
}

TEST_F(Icon_Reads, AMissingFileOnce) {
    EXPECT_EQ(read(L"missing.rgb"), nullptr);
    rgb(L"missing.rgb", 3, 2);
    EXPECT_EQ(recorded(recorder::kEverything, [&] { EXPECT_EQ(read(L"missing.rgb"), nullptr); }), "");
}

TEST_F(Icon_Reads, NamesThatDifferInCaseApart) {
    rgb(L"a.rgb", 3, 2);
    rgb(L"A.rgb", 5, 4);
    const Icon_Entry *small = read(L"a.rgb"), *large = read(L"A.rgb");
    ASSERT_NE(small, nullptr);
    ASSERT_NE(large, nullptr);
    EXPECT_NE(small, large);
    EXPECT_EQ(small->Dim_X, 3);
    EXPECT_EQ(large->Dim_X, 5);
    EXPECT_EQ(large, small + 1) << "entries follow one another";
}

TEST_F(Icon_Reads, ANameAsItsOwnCopy) {
    rgb(L"a.rgb", 1, 1);
    std::wstring name = L"a.rgb";
    Icon_Entry* const entry = static_cast<Icon_Entry*>(Icon_Read(&box, name.c_str()));
    name[0] = L'b';
    EXPECT_EQ(read(L"a.rgb"), entry);
}

TEST_F(Icon_Reads, OfAnyEndingAsRgb) {
    for (const wchar_t* name : {L"a", L"", L"a.png", L"a.TGA", L"tga", L"a.tg", L"sub\\a.rgb"}) {
        rgb(name, 1, 1);
        EXPECT_NE(read(name), nullptr) << recorder::narrow(name);
    }
}

TEST_F(Icon_Reads, NothingOfANullName) {
    EXPECT_EQ(recorded(recorder::kEverything, [&] { EXPECT_EQ(Icon_Read(&box, nullptr), nullptr); }), "");
}

// --- The bracket ---

TEST_F(Icon_Reads, StepOutOfTheBracketAndBackIn) {
    rgb(L"a.rgb", 1, 1);
    Zeb_setup(box.Wnd, "caller");
    Zeb_set_clip(1, 2, 3, 4);
    EXPECT_EQ(recorded(recorder::kDraw | recorder::kService, [&] { read(L"a.rgb"); }),
              "Zeb_release()\nIGB_Read_Image(\"" + told(L"a.rgb") +
                  "\")\nIGB_Free()\nZeb_setup(WND, \"Icon_Read\")\nZeb_set_clip(10, 20, 100, 50)\n");
    EXPECT_EQ(painted([&] { read(L"a.rgb"); }), "") << "only for a read";
    Zeb_reset_clip();
    Zeb_release();
}

TEST_F(Icon_Reads, StepOutForAFailureToo) {
    Zeb_setup(box.Wnd, "caller");
    Zeb_set_clip(1, 2, 3, 4);
    const std::string there_and_back =
        "Zeb_release()\nZeb_setup(WND, \"Icon_Read\")\nZeb_set_clip(10, 20, 100, 50)\n";
    EXPECT_EQ(painted([&] { read(L"missing.rgb"); }), there_and_back);
    EXPECT_EQ(painted([&] { read(L"missing.tga"); }), there_and_back);
    Zeb_reset_clip();
    Zeb_release();
}

TEST_F(Icon_Reads, OpenNoBracketWhereNoneWasOpen) {
    rgb(L"a.rgb", 1, 1);
    EXPECT_EQ(painted([&] { read(L"a.rgb"); }), "");
}

TEST_F(Icon_Reads, WithoutABoxStayInTheBracket) {
    rgb(L"a.rgb", 1, 1);
    Zeb_setup(box.Wnd, "caller");
    EXPECT_EQ(painted([&] { EXPECT_NE(Icon_Read(nullptr, L"a.rgb"), nullptr); }), "");
    Zeb_release();
}

// --- Pictures of another form ---

TEST_F(Icon_Reads, OnlyPicturesOfFourChannels) {
    for (const int channels : {1, 2, 3, 5, 0, -1}) {
        const std::wstring name = L"c" + std::to_wstring(channels) + L".rgb";
        recorder::file(path_of(name), {1, 1, channels, {1, 2, 3, 4, 5}});
        recorder::clear();
        EXPECT_EQ(read(name), nullptr);
        const auto told_now = recorder::reports(0x90000021);
        ASSERT_EQ(told_now.size(), 2u);
        int line = 0, used = 0;
        EXPECT_EQ(std::sscanf(told_now[0].c_str(), "Icon_Read_RGB() File:icon Line:%d%n", &line, &used), 1);
        EXPECT_EQ(used, static_cast<int>(told_now[0].size()));
        EXPECT_GT(line, 1);
        EXPECT_EQ(told_now[1], told(name) + " should be RGBA");
        EXPECT_EQ(recorder::held(), 0);
        EXPECT_EQ(recorded(recorder::kEverything, [&] { EXPECT_EQ(read(name), nullptr); }), "")
            << "not tried again";
    }
}

TEST_F(Icon_Reads, PicturesWithoutPixels) {
    recorder::file(path_of(L"none.rgb"), {0, 5, 4, {}});
    recorder::file(path_of(L"less.rgb"), {-3, -4, 4, {}});
    for (const wchar_t* name : {L"none.rgb", L"less.rgb"}) {
        ASSERT_NE(read(name), nullptr);
        EXPECT_NE(read(name)->Data, nullptr);
        EXPECT_NE(read(name)->Data_Swap, nullptr);
    }
    EXPECT_EQ(read(L"none.rgb")->Dim_Y, 5);
    EXPECT_EQ(read(L"less.rgb")->Dim_X, -3);
    EXPECT_EQ(recorder::held(), 0);
}

TEST_F(Icon_Reads, NoMoreThanAnyIconHas) { // 32,767 by 32,767: no such block is delivered in earnest
    recorder::file(path_of(L"huge.rgb"), {32767, 32767, 4, {0}});
    EXPECT_EQ(read(L"huge.rgb"), nullptr);
    EXPECT_EQ(recorder::reports(0x90000021),
              std::vector<std::string>{"Icon_Read_RGB(" + told(L"huge.rgb") + ") failed in new"});
    EXPECT_EQ(recorder::held(), 0);
}

// --- A full cache ---

TEST_F(Icon_Reads, TwoHundredAndFiftyFiveNames) {
    std::vector<void*> entries;
    for (int i = 0; i < 300; i++) {
        const std::wstring name = L"i" + std::to_wstring(i) + L".rgb";
        if (i % 2) rgb(name, 1 + i % 5, 1); // every other one is missing, and takes its place all the same
        recorder::clear();
        void* const entry = read(name);
        EXPECT_EQ(entry != nullptr, i % 2 == 1 && i < 255) << i;
        EXPECT_EQ(recorder::text().empty(), i >= 255) << "refused in silence";
        entries.push_back(entry);
    }
    for (int i = 0; i < 300; i++)
        EXPECT_EQ(read(L"i" + std::to_wstring(i) + L".rgb"), entries[i]);
}

TEST_F(Icon_Reads, AfreshAfterACleanup) {
    rgb(L"a.rgb", 3, 2);
    read(L"a.rgb");
    read(L"b.rgb");
    Icon_Cleanup();
    Icon_Cleanup();
    rgb(L"b.rgb", 1, 1);
    EXPECT_NE(read(L"a.rgb"), nullptr);
    EXPECT_NE(read(L"b.rgb"), nullptr);
    EXPECT_EQ(read(L"a.rgb")->Dim_X, 3);
}

// --- Memory ---

TEST_F(Icon_Reads, NothingWithoutMemoryForTheName) {
    if (!memory::can_fail()) GTEST_SKIP() << "this system's build cannot make memory run out";
    rgb(L"a.rgb", 1, 1);
    {
        memory::Failing failing(1);
        EXPECT_EQ(Icon_Read(&box, L"a.rgb"), nullptr);
        EXPECT_TRUE(failing.happened());
    }
    EXPECT_EQ(recorder::text(), "");
    EXPECT_NE(read(L"a.rgb"), nullptr) << "the place was not taken";
}

TEST_F(Icon_Reads, NothingWithoutMemoryForThePixels) {
    if (!memory::can_fail()) GTEST_SKIP() << "this system's build cannot make memory run out";
    for (const int nth : {2, 3}) {
        const std::wstring name = L"m" + std::to_wstring(nth) + L".rgb";
        rgb(name, 1, 1);
        recorder::clear();
        {
            memory::Failing failing(nth);
            EXPECT_EQ(read(name), nullptr);
            EXPECT_TRUE(failing.happened());
        }
        EXPECT_EQ(recorder::reports(0x90000021),
                  std::vector<std::string>{"Icon_Read_RGB(" + told(name) + ") failed in new"});
        EXPECT_EQ(recorder::held(), 0);
        EXPECT_EQ(read(name), nullptr) << "a failed name stays failed";
    }
}

} // namespace
