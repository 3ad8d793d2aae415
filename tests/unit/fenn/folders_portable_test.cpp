// What only the file systems off Windows have: names that are no text, links, and rights that a test can take
// away.

#include "nobody.h"
#include "scratch.h"

#include <cerrno>
#include <sys/stat.h>
#include <vector>

namespace {

struct Listed {
    std::wstring name;
    bool no_access;
    bool operator==(const Listed& other) const { return name == other.name && no_access == other.no_access; }
};

std::vector<Listed> scan(const std::wstring& folder) {
    Dir_Ulmen* const list = Scan_Dir(folder.c_str(), nullptr);
    EXPECT_NE(list, nullptr) << Wchar_2_Char(folder.c_str());
    std::vector<Listed> found;
    for (const Dir_Ulmen* entry = list; entry && entry->Type; ++entry)
        found.push_back({entry->Name, entry->No_Access != 0});
    Scan_Free(list);
    return found;
}

// Names as bytes, with a folder "below" in each.
void make_native(const Scratch& scratch, const std::string& name) {
    const std::string path = scratch.native().string() + "/" + name;
    ASSERT_EQ(mkdir(path.c_str(), 0777), 0) << name;
    ASSERT_EQ(mkdir((path + "/below").c_str(), 0777), 0) << name;
}

TEST(FolderNames, AreTakenAsTheyAreAndLeadBack) {
    const Scratch scratch;
    const struct {
        std::string native;
        std::wstring name;
    } rows[] = {
        {"back\\slash", L"back\xF05Cslash"},
        {"byte \xFF end", std::wstring(L"byte ") + wchar_t(0xDCFF) + L" end"},
        {"cut \xE2\x82", std::wstring(L"cut ") + wchar_t(0xDCE2) + wchar_t(0xDC82)},
        {"latin \xE9", std::wstring(L"latin ") + wchar_t(0xDCE9)},
        {"own \xEF\x81\x9C", std::wstring(L"own ") + wchar_t(0xDCEF) + wchar_t(0xDC81) + wchar_t(0xDC9C)},
        {"text \xC3\xA9", L"text \u00E9"},
        {"wide \xF0\x9F\x98\x80", L"wide \U0001F600"},
    };
    std::vector<Listed> expected;
    for (const auto& row : rows) {
        make_native(scratch, row.native);
        expected.push_back({row.name, false});
    }
    EXPECT_EQ(scan(scratch.path()), expected);
    for (const auto& row : rows) {
        const std::wstring path = scratch.path() + L"\\" + row.name + L"\\";
        EXPECT_EQ(scan(path), (std::vector<Listed>{{L"below", false}})) << row.native;
        EXPECT_EQ(Is_Tree(path.c_str()), 1) << row.native;
    }
}

TEST(FolderNames, ThatDifferInCaseStandInAnOrder) {
    const Scratch scratch;
    for (const char* name : {"same", "SAME", "Same", "sama", "SAMZ"})
        make_native(scratch, name);
    EXPECT_EQ(scan(scratch.path()),
              (std::vector<Listed>{
                  {L"sama", false}, {L"SAME", false}, {L"Same", false}, {L"same", false}, {L"SAMZ", false}}));
}

TEST(FolderLinks, AreFollowed) {
    const Scratch scratch;
    scratch.make("folder/below");
    scratch.write("file");
    const auto link = [&](const char* target, const char* name) {
        std::filesystem::create_symlink(target, scratch.native(name));
    };
    link("folder", "to folder");
    link("file", "to file");
    link("nothing", "to nothing");
    link("loop 2", "loop 1");
    link("loop 1", "loop 2");
    link("self", "self");
    link("..", "up");
    EXPECT_EQ(scan(scratch.path()),
              (std::vector<Listed>{{L"folder", false}, {L"to folder", false}, {L"up", false}}));
    EXPECT_EQ(scan(scratch.path("to folder")), (std::vector<Listed>{{L"below", false}}));
    errno = 0;
    EXPECT_EQ(Scan_Dir(scratch.path("self").c_str(), nullptr), nullptr);
    EXPECT_EQ(errno, ELOOP);
}

TEST(FolderLinks, ALinkAloneMakesATree) {
    const Scratch scratch;
    scratch.make("a");
    scratch.make("b");
    std::filesystem::create_symlink("nothing", scratch.native("a/link"));
    EXPECT_EQ(Is_Tree(scratch.path("a").c_str()), 0);
    std::filesystem::create_symlink("..", scratch.native("b/link"));
    EXPECT_EQ(Is_Tree(scratch.path("b").c_str()), 1);
}

TEST(FolderLinks, ARingCanBeWalkedUntilTheSystemEndsIt) {
    const Scratch scratch;
    scratch.make("a");
    std::filesystem::create_symlink("..", scratch.native("a/up"));
    std::wstring path = scratch.path();
    int steps = 0;
    while (Is_Tree(path.c_str()) && steps < 1000) {
        path += steps % 2 ? L"\\up" : L"\\a";
        ++steps;
    }
    EXPECT_GT(steps, 20);
    EXPECT_LT(steps, 1000);
    EXPECT_EQ(errno, ELOOP);
}

TEST(FolderAccess, WhatCannotBeEnteredIsMarked) {
    const Scratch scratch;
    for (const char* name : {"all", "closed", "no entry", "no look"})
        scratch.make(std::string(name) + "/below");
    std::filesystem::create_symlink("closed", scratch.native("to closed"));
    const auto set_mode = [&](const char* name, mode_t mode) {
        ASSERT_EQ(chmod(scratch.native(name).c_str(), mode), 0);
    };
    set_mode("closed", 0);
    set_mode("no entry", 0444);
    set_mode("no look", 0111);
    {
        const AsNobody nobody;
        EXPECT_EQ(scan(scratch.path()), (std::vector<Listed>{{L"all", false},
                                                             {L"closed", true},
                                                             {L"no entry", true},
                                                             {L"no look", true},
                                                             {L"to closed", true}}));
        errno = 0;
        EXPECT_EQ(Scan_Dir(scratch.path("closed").c_str(), nullptr), nullptr);
        EXPECT_EQ(errno, EACCES);
        errno = 0;
        EXPECT_EQ(Is_Tree(scratch.path("no look").c_str()), 0);
        EXPECT_EQ(errno, EACCES);
    }
    for (const char* name : {"closed", "no entry", "no look"})
        set_mode(name, 0777);
    EXPECT_EQ(scan(scratch.path())[1], (Listed{L"closed", false}));
}

TEST(FolderAccess, OtherThingsThanFoldersAreNotListed) {
    const Scratch scratch;
    ASSERT_EQ(mkfifo(scratch.native("pipe").c_str(), 0666), 0);
    std::filesystem::create_symlink("pipe", scratch.native("to pipe"));
    EXPECT_EQ(scan(scratch.path()), std::vector<Listed>{});
    EXPECT_EQ(Is_Tree(scratch.path().c_str()), 0);
}

} // namespace
