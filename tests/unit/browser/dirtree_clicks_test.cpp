#include <algorithm>

#include <brask/icons.h>

#include "tree_fixture.h"

// The tree control at the edges of its rules: which place is which cell, what each event does, and what is
// left of folders that fail.

namespace {

using Tree_Clicks = Tree;

// --- Cells: row r from 433 - 18 r up, cell c from 124 + 18 c on, both cut toward zero ---

TEST_F(Tree_Clicks, FindTheCellsByTheirEdges) {
    shown(L"C:\\");
    const int row = row_of(L"beta");
    const auto chosen_at = [&](int x, int y) {
        choose(L"gamma");
        recorder::pointer(x, y);
        tree.Select(2 + 16);
        return chosen();
    };
    const int bottom = 433 - 18 * row, left = 124 + 18 * 2;
    EXPECT_EQ(chosen_at(left, bottom), "C:\\beta\\");
    EXPECT_EQ(chosen_at(left, bottom + 17), "C:\\beta\\");
    EXPECT_EQ(chosen_at(left + 6 * 18 - 1, bottom), "C:\\beta\\");
    EXPECT_EQ(chosen_at(left + 6 * 18, bottom), "C:\\gamma\\");
    EXPECT_EQ(chosen_at(left - 1, bottom), "C:\\gamma\\");
    EXPECT_EQ(chosen_at(left, bottom + 18), "C:\\alpha\\");
    // The row and the cell at the corner reach a whole one further.
    EXPECT_EQ(chosen_at(110, 450), "none");
    EXPECT_EQ(tree.Current, tree.Tree);
    EXPECT_EQ(chosen_at(124, 460), "none");
    EXPECT_EQ(tree.Current, tree.Tree);
}

TEST_F(Tree_Clicks, GoByTheRowsThatAreMovedSideways) {
    recorder::add_folder(L"C:\\" + std::wstring(60, L'w') + L"\\x\\");
    shown(L"C:\\");
    tree.Cursor_H.Cur_Value = 36.0f;
    const int row = row_of(L"gamma");
    recorder::pointer(124 + 18 * 2 - 36, 441 - 18 * row); // the picture stands two cells further left
    EXPECT_EQ(tree.Select(2 + 16), 2);
    EXPECT_EQ(chosen(), "C:\\gamma\\");
    recorder::pointer(124 + 18 * 1 - 36 + 9, 441 - 18 * row_of(L"alpha"));
    EXPECT_EQ(tree.Select(2 + 16), 1);
    EXPECT_NE(row_of(L"deep"), -1) << "opened by its box";
}

// --- Events ---

TEST_F(Tree_Clicks, EveryEventOverABoxTogglesItAgain) {
    shown(nullptr);
    const int row = row_of(L"Data (C:)");
    bool open = false;
    for (const int mode : {2 + 16, 1 + 16, 1 + 16, 1 + 32, 2 + 64, 1}) {
        point(row, 0);
        EXPECT_EQ(tree.Select(mode), 1);
        open = !open;
        EXPECT_EQ(row_of(L"alpha") != -1, open) << mode;
    }
}

TEST_F(Tree_Clicks, AHeldButtonOverTheButtonRefreshesAtEachCall) {
    shown(L"C:\\");
    recorder::pointer(200, 470);
    for (const int mode : {2 + 16, 1 + 16, 1 + 16}) {
        recorder::clear();
        EXPECT_EQ(tree.Select(mode), 2) << mode;
        EXPECT_NE(recorder::text(recorder::kService).find("Scan_Dir(\"C:\\\")"), std::string::npos) << mode;
    }
    EXPECT_EQ(tree.Select(0), 1);
}

TEST_F(Tree_Clicks, TheButtonIsShownPressedWhileTheDiskIsRead) {
    shown(L"C:\\");
    recorder::pointer(200, 470);
    recorder::clear();
    EXPECT_EQ(tree.Select(2 + 16), 2);
    const std::string log = recorder::text();
    const std::size_t pressed = log.find("Buttons::Adjust"), read = log.find("Scan_Dir("),
                      drawn = log.rfind("DirTrees::Dir_Tree_Draw2"), up = log.rfind("Buttons::Adjust");
    ASSERT_NE(pressed, std::string::npos);
    EXPECT_LT(pressed, read);
    EXPECT_LT(read, drawn);
    EXPECT_LT(drawn, up);
    EXPECT_EQ(tree.But_Refresh.Cur_Value, 0);
}

// --- Folders that fail or are empty ---

TEST_F(Tree_Clicks, ALockedFoldersBoxDoesNotOpenIt) {
    shown(L"C:\\beta");
    const std::string before = rows();
    recorder::clear();
    EXPECT_EQ(toggle(L"locked"), 1);
    EXPECT_EQ(rows(), before);
    EXPECT_EQ(recorder::text(recorder::kService), "");
}

TEST_F(Tree_Clicks, WhatCouldNotBeOpenedIsTriedAgain) {
    shown(nullptr);
    toggle(L"(D:)");
    toggle(L"(D:)");
    EXPECT_EQ(rows(), "My Computer-\n Data (C:)+\n (D:)+!/\n");
    recorder::add_folder(L"D:\\x\\");
    toggle(L"(D:)");
    EXPECT_EQ(rows(), "My Computer-\n Data (C:)+\n (D:)-!/\n  x./\n");
}

TEST_F(Tree_Clicks, OnlyDotNamesAreAnEmptyFolder) {
    recorder::add_folder(L"D:\\.git\\objects\\");
    recorder::add_folder(L"D:\\...\\");
    shown(nullptr);
    EXPECT_EQ(toggle(L"(D:)"), 1);
    EXPECT_EQ(rows(), "My Computer-\n Data (C:)+\n (D:)./\n");
    EXPECT_EQ(recorder::warnings(), "");
}

TEST_F(Tree_Clicks, ADriveStaysOpenWhenAllOfItsFoldersAreGone) {
    recorder::add_folder(L"D:\\x\\");
    shown(L"D:\\");
    toggle(L"(D:)"); // told open and closed at first, open alone now
    ASSERT_NE(row_of(L"x"), -1);
    recorder::remove_folder(L"D:\\x\\");
    EXPECT_EQ(refresh(), 2);
    const Dir_Tree& drive = tree.Tree->child[1];
    EXPECT_EQ(drive.child, nullptr);
    EXPECT_TRUE(drive.flag & DIR_OPEN);
    EXPECT_EQ(row_of(L"x"), -1);
}

TEST_F(Tree_Clicks, AClosedBranchShowsChangesOnlyAfterARefresh) {
    shown(L"C:\\gamma\\one");
    recorder::add_folder(L"C:\\gamma\\two\\");
    toggle(L"gamma"), toggle(L"gamma"), toggle(L"gamma");
    ASSERT_NE(row_of(L"one"), -1);
    EXPECT_EQ(row_of(L"two"), -1);
    refresh();
    EXPECT_NE(row_of(L"two"), -1);
}

// A drive is nobody's child that is listed anew: required so, though its row stays blue.
TEST_F(Tree_Clicks, AChosenDriveIsNoLongerGivenAfterARefresh) {
    shown(L"C:\\");
    EXPECT_EQ(chosen(), "C:\\");
    refresh();
    EXPECT_EQ(chosen(), "none");
}

// --- Sliders ---

TEST_F(Tree_Clicks, WhenAllFitsAgainBothSlidersGoBack) {
    for (int i = 0; i < 40; i++)
        recorder::add_folder(L"D:\\" + std::to_wstring(1000 + i) + L" with quite a long name behind it\\");
    shown(L"D:\\");
    toggle(L"(D:)"); // told open and closed at first, open alone now
    recorder::pointer(200, 300);
    tree.Scroll(-1);
    tree.Cursor_H.Cur_Value = 0.5f;
    ASSERT_EQ(tree.Cursor_V.Cur_Value, 18.0f);
    EXPECT_EQ(toggle(L"(D:)"), 1);
    EXPECT_EQ(tree.NbList, 3);
    EXPECT_EQ(tree.Cursor_V.Flag, 0xC000026u);
    EXPECT_EQ(tree.Cursor_H.Flag, 0x8000022u);
    EXPECT_EQ(tree.Cursor_V.Cur_Value, 0.0f);
    EXPECT_EQ(tree.Cursor_H.Cur_Value, 0.0f);
}

// --- Pictures of drives ---

TEST_F(Tree_Clicks, EachKindOfDriveHasItsPictureAndKeepsItWhenChosen) {
    Icon_Cleanup();
    desk::drive('A', DRIVE_REMOVABLE, L"");
    desk::drive('E', DRIVE_REMOTE, L"");
    desk::drive('F', DRIVE_RAMDISK, L"");
    tree.Init(recorder::window());
    tree.Set(nullptr);
    recorder::clear();
    tree.Draw();
    std::string asked;
    for (const recorder::Line& line : recorder::log())
        if (!line.text.compare(0, 15, "IGB_Read_Image(")) {
            const std::size_t at = line.text.find("icon_");
            asked += line.text.substr(at, line.text.rfind('"') - at) + " ";
        }
    EXPECT_EQ(asked, "icon_mycomputer.rgb icon_floppy.rgb icon_fixed.rgb icon_cdrom.rgb icon_remote.rgb ");
    const auto folder_of = [&](const std::string& name) { // the folder's yellow or red before its name
        const std::string log = painted([&] { tree.Draw(); });
        const std::size_t end = log.rfind("\"" + name + "\""), start = log.rfind("Zeb_Font_Write", end - 60);
        const std::string piece = log.substr(start, end - start);
        return piece.find("0x388E8E") != std::string::npos || piece.find("0x4040FF") != std::string::npos;
    };
    EXPECT_EQ(choose(L"(D:)"), 2);
    EXPECT_FALSE(folder_of("(D:)"));
    EXPECT_FALSE(folder_of("(E:)"));
    EXPECT_TRUE(folder_of("(F:)")) << "a kind without a picture looks like a folder";
    Icon_Cleanup();
}

// --- Copies ---

TEST_F(Tree_Clicks, ACopySharesTreeAndRows) {
    tree.Set(L"C:\\beta"); // without the parts' names, which copies share too
    tree.List = static_cast<Dir_List_Row*>(std::calloc(1, sizeof *tree.List));
    tree.NbList = 1;
    DirTrees copy(tree), assigned;
    assigned = tree;
    for (DirTrees* one : {&copy, &assigned}) {
        EXPECT_EQ(one->Tree, tree.Tree);
        EXPECT_EQ(one->Current, tree.Current);
        EXPECT_EQ(one->List, tree.List);
        EXPECT_EQ(one->NbList, 1);
        one->Tree = nullptr, one->List = nullptr; // only one of them may end with these
    }
}

} // namespace
