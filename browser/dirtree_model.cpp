#include <brask/dirtrees.h>

#include <cstdlib>

#include "browser/dir_tree.h"
#include "foundation/trace.h"

// What the control does with its tree, without anything of painting.

using namespace brask;

int DirTrees::Set(const wchar_t* path) {
    Trace trace("DirTrees::Set", *this);
    wchar_t target[TARGET_ROOM] = {}; // made before the old tree goes, which the path may be of
    for (int i = 0; path && path[i] && i < TARGET_ROOM - 1; i++)
        target[i] = path[i];
    if (path) {
        Str_To_Lower(target);
        Path_To_Abs(target);
    }
    Dir_Tree_Start(path ? target : nullptr);
    Current = Dir_Tree_Current(nullptr, target);
    if (Current) Current->flag |= DIR_SELECTED;
    return 1;
}

wchar_t* DirTrees::Read() {
    Trace trace("DirTrees::Read", *this);
    return Current ? Current->path : nullptr;
}

// In place of the tree that was there.
int DirTrees::Dir_Tree_Start(const wchar_t* target) {
    Drop_List();
    Dir_Tree_Free(Tree);
    std::free(Tree);
    Tree = Dir_Tree_Machine(target);
    return Tree != nullptr;
}

Dir_Tree* DirTrees::Dir_Tree_Current(Dir_Tree* from, const wchar_t* target) {
    return Dir_Tree_Find(from ? from : Tree, target);
}

// Only the box in front of the row reacts. The answer is 1 whatever the folder turns out to hold.
int DirTrees::Dir_Tree_Expand(int row, int column) {
    if (row < 0 || row >= NbList || column != List[row].Depth - 1) return 0;
    Dir_Tree& node = *List[row].Node;
    if (node.flag & DIR_CLOSED) {
        node.flag = (node.flag & ~DIR_CLOSED) | DIR_OPEN;
        if (!node.child) Dir_Tree_Scan(&node, L"");
        return 1;
    }
    if (!(node.flag & DIR_OPEN)) return 0;
    node.flag = (node.flag & ~DIR_OPEN) | DIR_CLOSED; // the children stay, for the next time
    return 1;
}

// The six cells from the row's picture on react, however long its name is.
Dir_Tree* DirTrees::Dir_Tree_Select(int row, int column, Dir_Tree* old) {
    if (row < 0 || row >= NbList) return nullptr;
    const Dir_List_Row& shown = List[row];
    if (shown.Node->flag & DIR_NO_ACCESS || column < shown.Depth || column >= shown.Depth + 6) return nullptr;
    if (old) old->flag &= ~DIR_SELECTED;
    shown.Node->flag |= DIR_SELECTED;
    return shown.Node;
}

// The choice goes to where it is afterwards, or nowhere: the nodes have moved, and the rows are void.
void DirTrees::Refresh() {
    Drop_List();
    Current = Dir_Tree_Refresh(Tree);
}

void DirTrees::Drop_List() {
    std::free(List);
    List = nullptr;
    NbList = 0;
}

bool DirTrees::Make_List() {
    const int count = Dir_Tree_List(0, Tree, nullptr);
    if (!count) return false;
    Drop_List();
    List = static_cast<Dir_List_Row*>(std::calloc(static_cast<std::size_t>(count), sizeof *List));
    if (!List) {
        Error_Fct(hwnd, REPORT_MEMORY, "line %-4d of %hs \nmemory error in calloc (var=%hs, dim=%dx%d)",
                  __LINE__, "dirtree", "List", count, static_cast<int>(sizeof *List));
        return false;
    }
    NbList = Dir_Tree_List(0, Tree, List);
    return true;
}
