// Drives as hosts ask for them. What is mounted is this machine's matter; the root is always there.

#include <cwchar>
#include <string>

#include <gtest/gtest.h>

#include <brask/platform.h>

#include "platform/portable/native_path.h"

namespace {

TEST(Drives, TheRootIsDriveC) {
    const DWORD drives = GetLogicalDrives();
    EXPECT_TRUE(drives & 1u << 2);
    EXPECT_EQ(drives & 3u, 0u);
    EXPECT_EQ(drives >> 26, 0u);
    std::string native;
    ASSERT_TRUE(platform::to_native(L"C:\\x", native));
    EXPECT_EQ(native, "/x");
}

TEST(Drives, EachHasATypeAndTheOthersHaveNoRoot) {
    const DWORD drives = GetLogicalDrives();
    for (int i = 0; i < 26; i++) {
        const wchar_t root[] = {static_cast<wchar_t>(L'A' + i), L':', L'\\', 0};
        const UINT type = GetDriveTypeW(root);
        if (drives & 1u << i)
            EXPECT_TRUE(type >= DRIVE_REMOVABLE && type <= DRIVE_CDROM) << i;
        else
            EXPECT_EQ(type, UINT{DRIVE_NO_ROOT_DIR}) << i;
    }
}

TEST(Drives, TheFormOfARoot) {
    const UINT type = GetDriveTypeW(L"C:\\");
    for (const wchar_t* root : {L"c:\\", L"C:/", L"C:"})
        EXPECT_EQ(GetDriveTypeW(root), type);
    for (const wchar_t* root : {L"", L"C", L"C:\\x", L"C:x", L"\\", L"\\\\server\\share\\", L"1:\\"})
        EXPECT_EQ(GetDriveTypeW(root), UINT{DRIVE_NO_ROOT_DIR});
    EXPECT_NE(GetDriveTypeW(nullptr), UINT{DRIVE_NO_ROOT_DIR}); // the current folder's
}

TEST(Volumes, TellLabelAndSystem) {
    wchar_t label[300], system[300];
    DWORD serial = 7, longest = 7, flags = 7;
    ASSERT_TRUE(GetVolumeInformationW(L"C:\\", label, 300, &serial, &longest, &flags, system, 300));
    EXPECT_LT(std::wcslen(label), 300u);
    EXPECT_GT(std::wcslen(system), 0u);
    EXPECT_EQ(serial, 0u);
    EXPECT_EQ(longest, 255u);
    EXPECT_EQ(flags & 3u, 3u);
    EXPECT_TRUE(GetVolumeInformationW(L"C:\\", nullptr, 0, nullptr, nullptr, nullptr, nullptr, 0));
    EXPECT_TRUE(GetVolumeInformationW(nullptr, label, 300, nullptr, nullptr, nullptr, nullptr, 0));
}

TEST(Volumes, FailWithoutADriveOrRoom) {
    wchar_t text[300];
    for (const wchar_t* root : {L"B:\\", L"C:", L"C:\\x\\", L""})
        EXPECT_FALSE(GetVolumeInformationW(root, text, 300, nullptr, nullptr, nullptr, nullptr, 0));
    EXPECT_FALSE(GetVolumeInformationW(L"C:\\", text, 0, nullptr, nullptr, nullptr, nullptr, 0));
    std::wmemset(text, L'#', 300);
    EXPECT_FALSE(GetVolumeInformationW(L"C:\\", nullptr, 0, nullptr, nullptr, nullptr, text, 1));
    EXPECT_EQ(text[1], L'#');
}

} // namespace
