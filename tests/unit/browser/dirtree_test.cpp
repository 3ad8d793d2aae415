#include "tree_fixture.h"

// The tree control as its host drives it: the folders that it shows, clicks, wheel and button.

namespace {

// --- The rows ---

TEST_F(Tree, SetOpensTheTreeDownToTheFolderAndChoosesIt) {
    shown(L"c:\\ALPHA\\Deep");
    EXPECT_EQ(rows(), "My Computer-\n"
                      " Data (C:)+-\n"
                      "  alpha+-\n"
                      "   deep+-*\n"
                      "    deeper./\n"
                      "   side./\n"
                      "  beta.\n"
                      "  gamma+\n"
                      "  locked!/\n"
                      " (D:)+/\n");
    EXPECT_EQ(chosen(), "C:\\alpha\\deep\\");
}

TEST_F(Tree, AFolderThatIsNotThereLeavesNothingChosen) {
    shown(L"C:\\gamma\\two");
    EXPECT_EQ(chosen(), "none");
    EXPECT_NE(rows().find("  gamma+-\n   one./\n"), std::string::npos);
}

TEST_F(Tree, ANullPathListsTheDrivesAlone) {
    shown(nullptr);
    EXPECT_EQ(rows(), "My Computer-\n Data (C:)+\n (D:)+/\n");
}

TEST_F(Tree, SetAgainTakesThePathOfTheOldTree) {
    shown(L"C:\\gamma\\one");
    tree.Set(tree.Read());
    EXPECT_EQ(tree.NbList, 0);
    tree.Draw();
    EXPECT_EQ(chosen(), "C:\\gamma\\one\\");
}

TEST_F(Tree, DrivesTellTheirKindAndFloppyDrivesAreNotTouched) {
    desk::drive('A', DRIVE_REMOVABLE, L"never read");
    desk::drive('E', DRIVE_REMOTE, L"");
    desk::drive('F', DRIVE_RAMDISK, L"Fast");
    shown(nullptr);
    EXPECT_EQ(rows(), "My Computer-\n (A:)+\n Data (C:)+\n (D:)+\n (E:)+\n Fast (F:)+/\n");
    const DWORD kinds[] = {DIR_FLOPPY, DIR_FIXED, DIR_CDROM, DIR_REMOTE, 0};
    for (int i = 0; i < 5; i++)
        EXPECT_EQ(tree.Tree->child[i].flag & ~DIR_LAST, DIR_DRIVE | DIR_CLOSED | kinds[i]);
}

TEST_F(Tree, TwentySixDrivesHaveRoom) {
    for (char letter = 'A'; letter <= 'Z'; letter++)
        desk::drive(letter, DRIVE_FIXED, L"");
    shown(nullptr);
    EXPECT_EQ(tree.NbList, 27);
    EXPECT_EQ(tree.Tree->child[26].name, nullptr);
}

TEST_F(Tree, APathThatIsTooLongIsNoAccess) {
    const std::wstring name(250, L'n');
    std::wstring path = L"C:\\";
    for (int i = 0; i < 4; i++)
        path += name + L'\\';
    recorder::add_folder(path);
    shown(path.c_str());
    EXPECT_EQ(chosen(), "none");
    const Dir_Tree* node = tree.Tree->child;
    while (node->child)
        for (node = node->child; *node->name != L'n';)
            node++;
    EXPECT_EQ(node->flag, DIR_NO_ACCESS | DIR_LAST);
    EXPECT_EQ(std::wcslen(node->path), 770u);
}

// --- Clicks ---

TEST_F(Tree, TheBoxOpensAndClosesAFolder) {
    shown(nullptr);
    EXPECT_EQ(toggle(L"Data (C:)"), 1);
    EXPECT_EQ(toggle(L"gamma"), 1);
    EXPECT_NE(rows().find("  gamma-\n   one./\n"), std::string::npos);
    EXPECT_EQ(toggle(L"gamma"), 1);
    EXPECT_NE(rows().find("  gamma+\n  locked!/\n"), std::string::npos);
    recorder::clear();
    toggle(L"gamma"); // known already: the disk is not asked
    EXPECT_EQ(recorder::text(recorder::kService), "");
}

TEST_F(Tree, AFolderThatProvesEmptyBecomesALeaf) {
    shown(nullptr);
    recorder::add_folder(L"D:\\");
    EXPECT_EQ(toggle(L"(D:)"), 1);
    EXPECT_EQ(rows(), "My Computer-\n Data (C:)+\n (D:)./\n");
}

TEST_F(Tree, AFolderThatCannotBeReadShowsSo) {
    shown(nullptr);
    EXPECT_EQ(toggle(L"(D:)"), 1);
    EXPECT_EQ(rows(), "My Computer-\n Data (C:)+\n (D:)-!/\n");
    EXPECT_EQ(recorder::warnings(), "[90000021] Scan_Dir(D:\\) -> NULL\n");
    EXPECT_EQ(choose(L"(D:)"), 1);
    EXPECT_EQ(chosen(), "none");
}

TEST_F(Tree, SixCellsFromThePictureOnChoose) {
    shown(L"C:\\");
    const int row = row_of(L"beta");
    EXPECT_EQ(click(row, 0), 1);
    EXPECT_EQ(chosen(), "C:\\");
    EXPECT_EQ(click(row, 2), 2);
    EXPECT_EQ(chosen(), "C:\\beta\\");
    choose(L"gamma");
    EXPECT_EQ(click(row, 7), 2);
    EXPECT_EQ(chosen(), "C:\\beta\\");
    choose(L"gamma");
    EXPECT_EQ(click(row, 8), 1);
    EXPECT_EQ(chosen(), "C:\\gamma\\");
    EXPECT_EQ(rows().find('*'), rows().rfind('*'));
}

TEST_F(Tree, TheRootCanBeChosenAndHasNoPath) {
    shown(L"C:\\");
    EXPECT_EQ(click(0, 0), 2);
    EXPECT_EQ(chosen(), "none");
    EXPECT_EQ(tree.Current, tree.Tree);
}

TEST_F(Tree, ALockedFolderCannotBeChosen) {
    shown(L"C:\\beta");
    EXPECT_EQ(choose(L"locked"), 1);
    EXPECT_EQ(toggle(L"locked"), 1);
    EXPECT_EQ(chosen(), "C:\\beta\\");
}

TEST_F(Tree, AClickBesideTheRowsDoesNothing) {
    shown(L"C:\\beta");
    const std::string before = rows();
    EXPECT_EQ(click(14, 1), 1);
    recorder::pointer(90, 300);
    EXPECT_EQ(tree.Select(2), 1);
    recorder::pointer(250, 300);
    EXPECT_EQ(tree.Select(0), 1);
    EXPECT_EQ(rows(), before);
}

TEST_F(Tree, TheTitleIsTheNameAndTheFolder) {
    tree.Name_Set(L"Folder:");
    shown(L"C:\\beta");
    EXPECT_EQ(name_of(tree.Box_Frame), "Folder: beta");
    tree.Name_Set(nullptr);
    tree.Draw();
    EXPECT_EQ(name_of(tree.Box_Frame), "beta");
}

// --- Refresh ---

TEST_F(Tree, RefreshKeepsWhatIsOpenAndChosen) {
    shown(L"C:\\alpha\\deep");
    recorder::add_folder(L"C:\\aaa\\");
    recorder::add_folder(L"C:\\zzz\\");
    recorder::remove_folder(L"C:\\gamma\\");
    EXPECT_EQ(refresh(), 2);
    EXPECT_EQ(chosen(), "C:\\alpha\\deep\\");
    EXPECT_EQ(rows(), "My Computer-\n"
                      " Data (C:)+-\n"
                      "  aaa.\n"
                      "  alpha+-/\n"
                      "   deep+-*/\n"
                      "    deeper.\n"
                      "   side.\n"
                      "  beta.\n"
                      "  locked!\n"
                      "  zzz.\n"
                      " (D:)+/\n");
}

TEST_F(Tree, AVanishedChoiceGoesToTheNearestParent) {
    tree.Name_Set(L"Folder:");
    shown(L"C:\\alpha\\deep\\deeper");
    recorder::remove_folder(L"C:\\alpha\\deep\\deeper\\");
    refresh();
    EXPECT_EQ(chosen(), "C:\\alpha\\deep\\");
    EXPECT_EQ(name_of(tree.Box_Frame), "Folder: deep");
    recorder::remove_folder(L"C:\\alpha\\");
    refresh();
    EXPECT_EQ(chosen(), "C:\\");
    EXPECT_EQ(rows().find('*'), rows().rfind('*'));
}

TEST_F(Tree, AFolderWithoutSubFoldersAnyMoreLosesItsChildren) {
    shown(L"C:\\gamma\\one");
    recorder::remove_folder(L"C:\\gamma\\one\\");
    refresh();
    EXPECT_NE(rows().find("  gamma.*\n"), std::string::npos);
    EXPECT_EQ(chosen(), "C:\\gamma\\");
}

TEST_F(Tree, ADriveThatIsGoneTurnsUnreadable) {
    shown(L"C:\\beta");
    recorder::remove_folder(L"C:\\");
    refresh();
    EXPECT_EQ(chosen(), "none");
    EXPECT_TRUE(tree.Tree->child[0].flag & DIR_NO_ACCESS);
}

TEST_F(Tree, TheLastMarkGoesByTheLastListOfTheRefresh) {
    shown(L"C:\\");
    refresh();
    // Four visible folders; the counters of their lists are 2, 0, 1 and, the locked one having none, 1 still.
    EXPECT_NE(rows().find("  alpha+\n  beta.\n  gamma+\n  locked!\n"), std::string::npos);
    recorder::remove_folder(L"C:\\alpha\\side\\");
    refresh();
    EXPECT_NE(rows().find("  alpha+/\n"), std::string::npos);
}

// --- Scrolling ---

struct Long_Tree : Tree {
    void SetUp() override {
        Tree::SetUp();
        for (int i = 0; i < 100; i++)
            recorder::add_folder(L"D:\\" + std::to_wstring(1000 + i) +
                                 L" with quite a long name behind it\\");
        shown(L"D:\\");
    }
};

TEST_F(Long_Tree, TheSlidersSpanTheRows) {
    EXPECT_EQ(tree.NbList, 103);
    EXPECT_EQ(tree.Cursor_V.Flag, OUTIL_CAPTURE | OUTIL_REVERSE | OUTIL_VERTICAL);
    EXPECT_EQ(tree.Cursor_V.Val_Min, 12.0f - 299 + 103 * 18);
    EXPECT_EQ(tree.Cursor_H.Flag, OUTIL_CAPTURE);
    const int widest = 112 + 2 * (9 * 3 + 6) + 8 * 37;
    EXPECT_EQ(tree.Cursor_H.Val_Max, 12.0f - 254 + widest);
}

TEST_F(Long_Tree, TheWheelScrollsDownAndSidewaysOnTheLowerSlider) {
    recorder::pointer(200, 300);
    tree.Scroll(-3);
    EXPECT_EQ(tree.Cursor_V.Cur_Value, 54.0f);
    EXPECT_NE(recorder::text(recorder::kDraw).find("DirTrees::Dir_Tree_Draw2"), std::string::npos);
    tree.Scroll(1);
    EXPECT_EQ(tree.Cursor_V.Cur_Value, 36.0f);
    recorder::pointer(200, 145);
    tree.Scroll(2); // away from oneself goes right
    EXPECT_EQ(tree.Cursor_H.Cur_Value, 36.0f);
    recorder::clear();
    tree.Scroll(0);
    EXPECT_EQ(recorder::text(recorder::kDraw).find("DirTrees::Dir_Tree_Draw2"), std::string::npos);
}

TEST_F(Long_Tree, AClickFindsTheScrolledRow) {
    recorder::pointer(200, 300);
    tree.Scroll(-10);
    EXPECT_EQ(choose(L"1020 with quite a long name behind it"), 2);
    EXPECT_EQ(chosen(), "D:\\1020 with quite a long name behind it\\");
}

TEST_F(Long_Tree, ADragOnASliderScrolls) {
    recorder::pointer(380, 300);
    EXPECT_EQ(tree.Select(2 + 16), 1);
    EXPECT_GT(tree.Cursor_V.Cur_Value, 0.0f);
    recorder::pointer(380, 250);
    const float before = tree.Cursor_V.Cur_Value;
    EXPECT_EQ(tree.Select(1 + 16), 1);
    EXPECT_GT(tree.Cursor_V.Cur_Value, before);
}

TEST_F(Long_Tree, OnlyRowsInSightAreWritten) {
    recorder::pointer(200, 300);
    tree.Scroll(-50);
    const std::string lines = painted([&] { tree.Scroll(-1); });
    EXPECT_EQ(lines.find("\"1047 "), std::string::npos);
    EXPECT_NE(lines.find("\"1048 "), std::string::npos);
    EXPECT_NE(lines.find("\"1064 "), std::string::npos);
    EXPECT_EQ(lines.find("\"1065 "), std::string::npos);
}

} // namespace
