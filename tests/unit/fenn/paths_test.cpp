#include <gtest/gtest.h>

#include <cstring>
#include <cwchar>
#include <filesystem>
#include <string>

#include <brask/fenn.h>
#include <brask/fenn_host.h>

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

TEST(Paths, AbsoluteOnesAreTidied) {
    EXPECT_EQ(absolute(L"C:\\a\\b"), L"C:\\a\\b");
    EXPECT_EQ(absolute(L"C:\\a\\b\\"), L"C:\\a\\b\\");
    EXPECT_EQ(absolute(L"C:/a//b\\.\\c"), L"C:\\a\\b\\c");
    EXPECT_EQ(absolute(L"C:\\a\\b\\..\\c"), L"C:\\a\\c");
    EXPECT_EQ(absolute(L"C:\\a\\.."), L"C:\\");
    EXPECT_EQ(absolute(L"C:\\..\\..\\a"), L"C:\\a");
    EXPECT_EQ(absolute(L"d:"), L"d:\\");
    EXPECT_EQ(absolute(L"C:\\...\\a.b."), L"C:\\...\\a.b.");
}

TEST(Paths, SharesKeepTheirRoot) {
    EXPECT_EQ(absolute(L"\\\\server\\share\\a\\..\\..\\..\\b"), L"\\\\server\\share\\b");
    EXPECT_EQ(absolute(L"//server/share"), L"\\\\server\\share\\");
}

TEST(Paths, RelativeOnesStartInTheCurrentFolder) {
    const auto before = std::filesystem::current_path();
    const auto folder = std::filesystem::temp_directory_path() / "fenn paths";
    std::filesystem::create_directories(folder);
    std::filesystem::current_path(folder);
    wchar_t here[2048];
    ASSERT_EQ(Fenn_Path_From_Native(std::filesystem::current_path().u8string().c_str(), here, 2048), 1);
    const std::wstring start = here;
    EXPECT_EQ(absolute(L"a\\b"), start + L"\\a\\b");
    EXPECT_EQ(absolute(L"./a/../b"), start + L"\\b");
    EXPECT_EQ(absolute(L""), start);
    EXPECT_EQ(absolute(L".."), start.substr(0, start.rfind(L'\\')));
    EXPECT_EQ(absolute(L"\\a"), start.substr(0, 2) + L"\\a");
    std::filesystem::current_path(before);
    std::filesystem::remove(folder);
}

TEST(Paths, WhatDoesNotFitIsLeftAsItWas) {
    std::wstring path = L"C:\\" + std::wstring(2044, L'x'); // 2047 characters
    path.resize(2048);
    EXPECT_EQ(Path_To_Abs(&path[0]), 1);
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

TEST(Paths, WhatNoMountHoldsIsRefused) {
    char native[256];
    wchar_t path[256];
    EXPECT_EQ(Fenn_Path_To_Native(L"\\\\server\\share\\a", native, 256), 0);
    EXPECT_EQ(Fenn_Path_To_Native(L"!:\\a", native, 256), 1); // no drive letter: a name
    EXPECT_EQ(Fenn_Path_From_Native("/a\\b", path, 256), 0);  // its "\" would become a separator
}

#endif

} // namespace
