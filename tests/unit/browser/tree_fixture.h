#ifndef TESTS_TREE_FIXTURE_H
#define TESTS_TREE_FIXTURE_H

#include <cstdlib>
#include <string>
#include <vector>

#include <brask/dirtrees.h>

#include "browser/dir_tree.h"
#include "browser/dirtree_geometry.h"
#include "unit/brask/expect.h"

// A tree of 300 by 400 at (100, 100) over two drives, C: with folders and D: without:
//
//   C: alpha { deep { deeper }, side }, beta { .git }, gamma { one }, locked
//
// With the metrics below the parts stand at: frame (101, 101, 298, 398), panel (107, 132, 288, 361), slider
// down (373, 160, 16, 299), slider sideways (113, 138, 254, 16), rows (112, 157, 258, 303), button
// (113, 463, 276, 22). Row r has its bottom at 436 - 18 r, and cell c its left at 124 + 18 c.
struct Tree : Recorded {
    DirTrees tree;
    void SetUp() override {
        Recorded::SetUp();
        BORDER = 3, SPACE = 6, CURSEUR = 16, BUT_DIM = 25;
        desk::drive('C', DRIVE_FIXED, L"Data");
        desk::drive('D', DRIVE_CDROM, nullptr);
        for (const wchar_t* path :
             {L"alpha\\deep\\deeper\\", L"alpha\\side\\", L"beta\\.git\\", L"gamma\\one\\"})
            recorder::add_folder(std::wstring(L"C:\\") + path);
        recorder::add_folder(L"C:\\locked\\");
        recorder::lock_folder(L"C:\\locked\\", recorder::Lock::marked);
        tree.Pos_X = tree.Pos_Y = 100;
        tree.Dim_X = 300, tree.Dim_Y = 400;
        recorder::pointer(0, 0);
    }
    void TearDown() override {
        EXPECT_EQ(recorder::open_lists(), 0) << "a list of folders was not given back";
        Recorded::TearDown();
    }
    void shown(const wchar_t* path) {
        tree.Init(recorder::window());
        tree.Set(path);
        tree.Draw();
        recorder::clear();
    }
    // The rows, each behind as many blanks as it is deep, with its state: + closed, - open, . leaf, ! no
    // access; * selected; / last.
    std::string rows() {
        std::string text;
        for (int r = 0; r < tree.NbList; r++) {
            const Dir_Tree& node = *tree.List[r].Node;
            text +=
                std::string(static_cast<std::size_t>(tree.List[r].Depth), ' ') + recorder::narrow(node.name);
            for (const auto& [flag, sign] : {std::pair<DWORD, char>{DIR_CLOSED, '+'},
                                             {DIR_OPEN, '-'},
                                             {DIR_LEAF, '.'},
                                             {DIR_NO_ACCESS, '!'},
                                             {DIR_SELECTED, '*'},
                                             {DIR_LAST, '/'}})
                if (node.flag & flag) text += sign;
            text += '\n';
        }
        return text;
    }
    void point(int row, int column) {
        const int scrolled = static_cast<int>(tree.Cursor_V.Cur_Value);
        recorder::pointer(124 + 18 * column + 9, 441 - 18 * row + scrolled);
    }
    int click(int row, int column) {
        point(row, column);
        return tree.Select(2 + 16);
    }
    int refresh() {
        recorder::pointer(200, 470);
        return tree.Select(2 + 16);
    }
    int row_of(const wchar_t* name) {
        for (int r = 0; r < tree.NbList; r++)
            if (!std::wcscmp(tree.List[r].Node->name, name)) return r;
        return -1;
    }
    int toggle(const wchar_t* name) {
        const int row = row_of(name);
        return click(row, tree.List[row].Depth - 1);
    }
    int choose(const wchar_t* name) {
        const int row = row_of(name);
        return click(row, tree.List[row].Depth);
    }
    std::string chosen() { return tree.Read() ? recorder::narrow(tree.Read()) : "none"; }
};

#endif
