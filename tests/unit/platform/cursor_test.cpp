// Cursors.

#include <set>

#include "host.h"

TEST(Cursor, StandardOnesAreToldApartAndStayTheSame) {
    std::set<HCURSOR> seen;
    for (const LPWSTR name :
         {IDC_ARROW, IDC_IBEAM, IDC_WAIT, IDC_CROSS, IDC_UPARROW, IDC_SIZENWSE, IDC_SIZENESW, IDC_SIZEWE,
          IDC_SIZENS, IDC_SIZEALL, IDC_NO, IDC_HAND, IDC_APPSTARTING}) {
        const HCURSOR cursor = LoadCursorW(nullptr, name);
        ASSERT_NE(cursor, nullptr);
        EXPECT_TRUE(seen.insert(cursor).second);
        EXPECT_EQ(LoadCursorW(nullptr, name), cursor);
    }
}

TEST(Cursor, OthersAreNotThere) {
    EXPECT_EQ(LoadCursorW(nullptr, MAKEINTRESOURCEW(5)), nullptr);
    EXPECT_EQ(LoadCursorW(nullptr, L"own"), nullptr);
    EXPECT_EQ(LoadCursorW(nullptr, nullptr), nullptr);
    EXPECT_EQ(LoadCursorW(GetModuleHandleW(nullptr), IDC_ARROW), nullptr);
}

TEST(Cursor, SettingGivesTheOneBefore) {
    const HCURSOR arrow = LoadCursorW(nullptr, IDC_ARROW), cross = LoadCursorW(nullptr, IDC_CROSS);
    SetCursor(arrow);
    EXPECT_EQ(SetCursor(cross), arrow);
    EXPECT_EQ(SetCursor(nullptr), cross);
    EXPECT_EQ(GetCursor(), nullptr);
    EXPECT_EQ(SetCursor(arrow), nullptr);
}

TEST(Cursor, AWrongHandleChangesNothing) {
    const HCURSOR arrow = LoadCursorW(nullptr, IDC_ARROW);
    SetCursor(arrow);
    int something = 0;
    SetCursor(reinterpret_cast<HCURSOR>(&something));
    EXPECT_EQ(GetCursor(), arrow);
}
