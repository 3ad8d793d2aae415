#include "scratch.h"

#include <algorithm>
#include <cerrno>
#include <cwchar>
#include <thread>
#include <vector>

namespace {

using Names = std::vector<std::wstring>;

// The names that a scan gives, after the checks that hold for every list.
Names scan(const std::wstring& folder, std::vector<bool>* no_access = nullptr) {
    int count = -1;
    Dir_Ulmen* const list = Scan_Dir(folder.c_str(), &count);
    EXPECT_NE(list, nullptr) << Wchar_2_Char(folder.c_str());
    Names names;
    for (const Dir_Ulmen* entry = list; entry && entry->Type; ++entry) {
        names.push_back(entry->Name);
        if (no_access) no_access->push_back(entry->No_Access != 0);
    }
    EXPECT_EQ(count, static_cast<int>(names.size()));
    Scan_Free(list);
    return names;
}

bool has(const Names& names, const std::wstring& name) {
    return std::find(names.begin(), names.end(), name) != names.end();
}

// Both answers of a folder that cannot be listed.
void expect_failure(const std::wstring& folder, int reason) {
    int count = 7;
    errno = 0;
    EXPECT_EQ(Scan_Dir(folder.c_str(), &count), nullptr);
    EXPECT_EQ(errno, reason);
    EXPECT_EQ(count, 0);
    errno = 0;
    EXPECT_EQ(Is_Tree(folder.c_str()), 0);
    EXPECT_EQ(errno, reason);
}

TEST(Folders, OnlyFoldersAreListedByTheirLowerCaseName) {
    const Scratch scratch;
    for (const char* name : {"beta", "Alpha", "alpha 2", "GAMMA", "_", "10", "9", "\xC3\x89t\xC3\xA9"})
        scratch.make(name);
    scratch.write("file");
    scratch.write("alpha.txt");
    EXPECT_EQ(scan(scratch.path()),
              (Names{L"10", L"9", L"_", L"Alpha", L"alpha 2", L"beta", L"GAMMA", L"\u00C9t\u00E9"}));
}

TEST(Folders, AnEmptyOneHasAListWithoutEntries) {
    const Scratch scratch;
    EXPECT_EQ(scan(scratch.path()), Names{});
    scratch.write("file");
    EXPECT_EQ(scan(scratch.path()), Names{});
    errno = 0;
    EXPECT_EQ(Is_Tree(scratch.path().c_str()), 0);
    EXPECT_EQ(errno, 0);
}

TEST(Folders, NamesWithADotInFrontAreListedButMakeNoTree) {
    const Scratch scratch;
    scratch.make(".hidden");
    scratch.make("..both");
    EXPECT_EQ(scan(scratch.path()), (Names{L"..both", L".hidden"}));
    EXPECT_EQ(Is_Tree(scratch.path().c_str()), 0);
    scratch.make("a.b");
    EXPECT_EQ(Is_Tree(scratch.path().c_str()), 1);
    EXPECT_EQ(Is_Tree(scratch.path("a.b").c_str()), 0);
}

TEST(Folders, EitherSeparatorServesAndNoneIsNeededAtTheEnd) {
    const Scratch scratch;
    scratch.make("a/b");
    const std::wstring path = scratch.path("a");
    std::wstring other = path;
    std::replace(other.begin(), other.end(), L'\\', L'/');
    for (const std::wstring& form : {path, path + L"\\", path + L"/", other, other + L"\\"}) {
        EXPECT_EQ(scan(form), Names{L"b"});
        EXPECT_EQ(Is_Tree(form.c_str()), 1);
    }
}

TEST(Folders, ADriveIsAFolder) {
    const Scratch scratch;
    const std::wstring drive = scratch.path().substr(0, 3);
    EXPECT_FALSE(scan(drive).empty());
    EXPECT_EQ(scan(drive), scan(drive));
    EXPECT_EQ(Is_Tree(drive.c_str()), 1);
}

TEST(Folders, TheOrderIsTheSameAtEachCall) {
    const Scratch scratch;
    std::mt19937 random(11);
    for (int i = 0; i < 500; ++i)
        scratch.make((random() % 2 ? "N" : "n") + std::to_string(random() % 100000));
    const Names names = scan(scratch.path());
    EXPECT_GT(names.size(), 400u);
    EXPECT_EQ(scan(scratch.path()), names);
    const auto folded = [](std::wstring name) { return Str_To_Lower(&name[0]) + std::wstring(); };
    for (std::size_t i = 1; i < names.size(); ++i)
        EXPECT_LE(folded(names[i - 1]), folded(names[i]));
}

TEST(Folders, WhatCannotBeListedFailsWithItsReason) {
    const Scratch scratch;
    scratch.write("file");
    expect_failure(scratch.path("nothing"), ENOENT);
    expect_failure(scratch.path("nothing/below"), ENOENT);
    expect_failure(L"", ENOENT);
#ifndef _WIN32
    expect_failure(scratch.path("file"), ENOTDIR);
    expect_failure(L"\\\\server\\share\\", ENOENT);
    expect_failure(L"B:\\", ENOENT);
    expect_failure(std::wstring(5000, L'x'), ENAMETOOLONG);
#endif
    errno = 0;
    EXPECT_EQ(Scan_Dir(nullptr, nullptr), nullptr);
    EXPECT_EQ(errno, EINVAL);
    errno = 0;
    EXPECT_EQ(Is_Tree(nullptr), 0);
    EXPECT_EQ(errno, EINVAL);
    Scan_Free(nullptr);
}

TEST(Folders, TheCountIsNotNeeded) {
    const Scratch scratch;
    scratch.make("a");
    Dir_Ulmen* const list = Scan_Dir(scratch.path().c_str(), nullptr);
    ASSERT_NE(list, nullptr);
    EXPECT_STREQ(list[0].Name, L"a");
    EXPECT_EQ(list[0].No_Access, 0);
    EXPECT_EQ(list[1].Type, 0u);
    Scan_Free(list);
}

TEST(Folders, NamesOf255Characters) {
    const Scratch scratch;
    const std::string longest(255, 'x');
    scratch.make(longest + "/below");
    EXPECT_EQ(scan(scratch.path()), Names{std::wstring(255, L'x')});
    EXPECT_EQ(scan(scratch.path(longest)), Names{L"below"});
    EXPECT_EQ(Is_Tree(scratch.path(longest).c_str()), 1);
}

TEST(Folders, PathsOfMoreThan771Characters) {
    const Scratch scratch;
    std::string path;
    for (int i = 0; i < 6; ++i)
        path += std::string(150, static_cast<char>('a' + i)) + "/";
    scratch.make(path + "end/below");
    EXPECT_GT(scratch.path(path).size(), 900u);
    EXPECT_EQ(scan(scratch.path(path)), Names{L"end"});
    EXPECT_EQ(scan(scratch.path(path + "end")), Names{L"below"});
    EXPECT_EQ(Is_Tree(scratch.path(path + "end").c_str()), 1);
    EXPECT_EQ(Is_Tree(scratch.path(path + "end/below").c_str()), 0);
}

TEST(Folders, ThatComeAndGoWhileTheyAreRead) {
    const Scratch scratch;
    scratch.make("stays/below");
    std::atomic<bool> done{false};
    std::thread other([&] {
        for (int round = 0; !done; ++round) {
            const std::string name = "comes " + std::to_string(round % 40);
            std::error_code ignored;
            std::filesystem::create_directories(scratch.native(name + "/below"), ignored);
            std::filesystem::remove_all(scratch.native("comes " + std::to_string((round + 7) % 40)), ignored);
        }
    });
    for (int i = 0; i < 60; ++i) {
        const Names names = scan(scratch.path());
        EXPECT_TRUE(has(names, L"stays"));
        EXPECT_TRUE(std::is_sorted(names.begin(), names.end()));
        for (const std::wstring& name : names)
            Is_Tree((scratch.path() + L"\\" + name).c_str());
    }
    done = true;
    other.join();
}

TEST(Folders, OneThatIsGoneFails) {
    const Scratch scratch;
    scratch.make("a");
    EXPECT_EQ(scan(scratch.path("a")), Names{});
    std::filesystem::remove(scratch.native("a"));
    expect_failure(scratch.path("a"), ENOENT);
}

} // namespace
