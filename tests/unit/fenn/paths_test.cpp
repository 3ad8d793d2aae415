#include "scratch.h"

#include <cstring>
#include <cwchar>

namespace {

std::wstring absolute(const wchar_t* path) {
    wchar_t buffer[2048] = {};
    std::wcscpy(buffer, path);
    EXPECT_EQ(Path_To_Abs(buffer), 1) << Wchar_2_Char(path);
    return buffer;
}

struct Parts {
    char folder[771], file[771], bare[771];
};

Parts split(const std::string& path) {
    Parts parts;
    std::memset(&parts, '#', sizeof parts);
    std::string copy = path;
    Get_Generic_Name(&copy[0], parts.folder, parts.file, parts.bare);
    EXPECT_EQ(copy, path);
    return parts;
}

void expect_parts(const char* path, const char* folder, const char* file, const char* bare) {
    const Parts parts = split(path);
    EXPECT_STREQ(parts.folder, folder) << path;
    EXPECT_STREQ(parts.file, file) << path;
    EXPECT_STREQ(parts.bare, bare) << path;
}

TEST(Paths, AbsoluteOnesAreTidiedAndEndInASeparator) {
    EXPECT_EQ(absolute(L"C:\\a\\b"), L"C:\\a\\b\\");
    EXPECT_EQ(absolute(L"C:\\a\\b\\"), L"C:\\a\\b\\");
    EXPECT_EQ(absolute(L"C:/a//b\\.\\c"), L"C:\\a\\b\\c\\");
    EXPECT_EQ(absolute(L"C:\\a\\b\\..\\c"), L"C:\\a\\c\\");
    EXPECT_EQ(absolute(L"C:\\a\\.."), L"C:\\");
    EXPECT_EQ(absolute(L"C:\\..\\..\\a"), L"C:\\a\\");
    EXPECT_EQ(absolute(L"C:\\"), L"C:\\");
    EXPECT_EQ(absolute(L"d:"), L"d:\\");
    EXPECT_EQ(absolute(L"C:\\...\\a.b."), L"C:\\...\\a.b.\\");
}

TEST(Paths, SharesKeepTheirRoot) {
    EXPECT_EQ(absolute(L"\\\\server\\share\\a\\..\\..\\..\\b"), L"\\\\server\\share\\b\\");
    EXPECT_EQ(absolute(L"//server/share"), L"\\\\server\\share\\");
    EXPECT_EQ(absolute(L"\\\\server"), L"\\\\server\\");
    EXPECT_EQ(absolute(L"\\\\server\\"), L"\\\\server\\");
    EXPECT_EQ(absolute(L"\\\\server\\..\\a"), L"\\\\server\\..\\a\\"); // no more than a name there
    EXPECT_EQ(absolute(L"///a"), absolute(L"\\a"));
}

TEST(Paths, RelativeOnesStartInTheCurrentFolderWhichIsPutInLowerCase) {
    const auto before = std::filesystem::current_path();
    const Scratch scratch;
    scratch.make("Folder");
    char folder[4096];
    ASSERT_EQ(Fenn_Path_To_Native(scratch.path("Folder").c_str(), folder, sizeof folder), 1);
    std::filesystem::current_path(std::filesystem::u8path(folder));
    std::wstring start = scratch.path("Folder");
    Str_To_Lower(&start[0]);
    EXPECT_EQ(absolute(L"A\\b"), start + L"\\A\\b\\");
    EXPECT_EQ(absolute(L"./a/../b"), start + L"\\b\\");
    EXPECT_EQ(absolute(L""), start + L"\\");
    EXPECT_EQ(absolute(L"."), start + L"\\");
    EXPECT_EQ(absolute(L".."), start.substr(0, start.rfind(L'\\') + 1));
    EXPECT_EQ(absolute(L"\\A"), start.substr(0, 2) + L"\\A\\");
    std::filesystem::current_path(before);
}

TEST(Paths, WhatDoesNotFitIsLeftAsItWas) {
    std::wstring path = L"C:\\" + std::wstring(2043, L'x'); // 2047 characters with the separator
    path.resize(2048);
    EXPECT_EQ(Path_To_Abs(&path[0]), 1);
    path = L"C:\\" + std::wstring(2044, L'x');
    path.resize(2048);
    const std::wstring longer = path;
    EXPECT_EQ(Path_To_Abs(&path[0]), 0);
    EXPECT_EQ(path, longer);
    std::wstring relative(2040, L'x');
    relative.resize(2048);
    const std::wstring before = relative;
    EXPECT_EQ(Path_To_Abs(&relative[0]), 0);
    EXPECT_EQ(relative, before);
    EXPECT_EQ(Path_To_Abs(nullptr), 0);
}

TEST(Paths, NamesAreTakenApart) {
    expect_parts("C:\\a\\b.txt", "C:\\a\\", "b.txt", "b");
    expect_parts("/usr/src/tools.cpp", "/usr/src/", "tools.cpp", "tools");
    expect_parts("C:\\a/b\\c.tar.gz", "C:\\a/b\\", "c.tar.gz", "c.tar");
    expect_parts("plain", "", "plain", "plain");
    expect_parts("C:plain.x", "C:", "plain.x", "plain");
    expect_parts("folder.d/", "folder.d/", "", "");
    expect_parts("a.b\\c", "a.b\\", "c", "c");
    expect_parts(".hidden", "", ".hidden", ".hidden");
    expect_parts("end.", "", "end.", "end");
    expect_parts("..", "", "..", "..");
    expect_parts("", "", "", "");
}

TEST(Paths, EachPartMayBeLeftOut) {
    char path[] = "C:\\a\\b.txt";
    char bare[771];
    Get_Generic_Name(path, nullptr, nullptr, bare);
    EXPECT_STREQ(bare, "b");
    Get_Generic_Name(path, nullptr, nullptr, nullptr);
    Get_Generic_Name(nullptr, bare, nullptr, nullptr);
    EXPECT_STREQ(bare, "");
    Get_Generic_Name(path, nullptr, nullptr, path); // into the path itself
    EXPECT_STREQ(path, "b");
}

TEST(Paths, PartsStayWithinTheirRoom) {
    const std::string folder(5000, 'd'), file(5000, 'f');
    const Parts parts = split(folder + "/" + file + ".txt");
    EXPECT_EQ(parts.folder, folder.substr(0, 770));
    EXPECT_EQ(parts.file, file.substr(0, 770));
    EXPECT_EQ(parts.bare, file.substr(0, 770));
}

TEST(Paths, LongNamesAreNotCutInsideACharacter) {
    const Parts parts = split(std::string(769, 'x') + "\xE2\x82\xAC tail");
    EXPECT_EQ(parts.file, std::string(769, 'x'));
}

TEST(Paths, TheProgramIsKnown) {
    ASSERT_NE(W_Inst_Path, nullptr);
    ASSERT_NE(W_Prog_Name, nullptr);
    EXPECT_STREQ(W_Prog_Name, L"fenn_test");
    const std::wstring folder = W_Inst_Path;
    EXPECT_EQ(folder[1], L':');
    EXPECT_EQ(folder.back(), L'\\');
    char native[4096];
    ASSERT_EQ(Fenn_Path_To_Native(W_Inst_Path, native, sizeof native), 1);
    EXPECT_TRUE(std::filesystem::is_directory(std::filesystem::u8path(native)));
}

TEST(Paths, NativeFormsStayWithinTheirRoom) {
    char native[8];
    std::memset(native, '#', sizeof native);
    EXPECT_EQ(Fenn_Path_To_Native(L"abcdefg", native, 8), 1);
    EXPECT_EQ(Fenn_Path_To_Native(L"abcdefgh", native, 8), 0);
    EXPECT_EQ(Fenn_Path_To_Native(L"abc", native, 0), 0);
    EXPECT_EQ(Fenn_Path_To_Native(L"abc", native, -1), 0);
    EXPECT_EQ(Fenn_Path_To_Native(nullptr, native, 8), 0);
    EXPECT_EQ(Fenn_Path_To_Native(L"abc", nullptr, 8), 0);
    EXPECT_STREQ(native, "abcdefg");
    wchar_t path[4];
    EXPECT_EQ(Fenn_Path_From_Native("abc", path, 4), 1);
    EXPECT_STREQ(path, L"abc");
    EXPECT_EQ(Fenn_Path_From_Native("abcd", path, 4), 0);
    EXPECT_EQ(Fenn_Path_From_Native(nullptr, path, 4), 0);
}

#ifndef _WIN32

TEST(Paths, DriveCIsTheRootFileSystem) {
    char native[256];
    EXPECT_EQ(Fenn_Path_To_Native(L"C:\\usr\\\u00E9t\u00E9/x", native, 256), 1);
    EXPECT_STREQ(native, "/usr/\xC3\xA9t\xC3\xA9/x");
    EXPECT_EQ(Fenn_Path_To_Native(L"c:", native, 256), 1);
    EXPECT_STREQ(native, "/");
    EXPECT_EQ(Fenn_Path_To_Native(L"a\\b", native, 256), 1);
    EXPECT_STREQ(native, "a/b");
    wchar_t path[256];
    EXPECT_EQ(Fenn_Path_From_Native("/usr/\xC3\xA9t\xC3\xA9", path, 256), 1);
    EXPECT_STREQ(path, L"C:\\usr\\\u00E9t\u00E9");
    EXPECT_EQ(Fenn_Path_From_Native("/", path, 256), 1);
    EXPECT_STREQ(path, L"C:\\");
    EXPECT_EQ(Fenn_Path_From_Native("a/b", path, 256), 1);
    EXPECT_STREQ(path, L"a\\b");
}

TEST(Paths, EveryNativeNameComesBackWhole) {
    const struct {
        const char* native;
        std::wstring path;
    } rows[] = {
        {"/a\\b", L"C:\\a\xF05C"
                  L"b"},
        {"/\xFF/x", std::wstring(L"C:\\") + wchar_t(0xDCFF) + L"\\x"},
        {"/\xC3\xA9\xE9", std::wstring(L"C:\\\u00E9") + wchar_t(0xDCE9)},
        {"/\xEF\x81\x9C", std::wstring(L"C:\\") + wchar_t(0xDCEF) + wchar_t(0xDC81) + wchar_t(0xDC9C)},
        {"c:x", L".\\c:x"},
    };
    for (const auto& row : rows) {
        wchar_t path[64];
        EXPECT_EQ(Fenn_Path_From_Native(row.native, path, 64), 1);
        EXPECT_EQ(path, row.path);
        char native[64];
        EXPECT_EQ(Fenn_Path_To_Native(path, native, 64), 1);
        EXPECT_EQ(std::string(native), (row.native[0] == '/' ? "" : "./") + std::string(row.native));
    }
}

TEST(Paths, WhatNoMountHoldsIsRefused) {
    char native[256];
    EXPECT_EQ(Fenn_Path_To_Native(L"\\\\server\\share\\a", native, 256), 0);
    EXPECT_EQ(Fenn_Path_To_Native(L"B:\\a", native, 256), 0);
    EXPECT_EQ(Fenn_Path_To_Native(L"!:\\a", native, 256), 1); // no drive letter: a name
    const wchar_t lone[] = {L'a', 0xD800, 0};
    EXPECT_EQ(Fenn_Path_To_Native(lone, native, 256), 0); // no name can hold it
}

#endif

} // namespace
