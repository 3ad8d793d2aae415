#ifndef BRASK_DIRTREES_H
#define BRASK_DIRTREES_H

#include <brask/boxs.h>
#include <brask/buttons.h>
#include <brask/sliders.h>
#include <brask/tools.h>

// --- Flags of a folder in the tree --------------------------------------------------------------------
inline constexpr DWORD DIR_CLOSED = 0x1;    // has, or may have, sub-folders, which are not shown
inline constexpr DWORD DIR_OPEN = 0x2;      // its sub-folders are shown
inline constexpr DWORD DIR_LEAF = 0x4;      // has no sub-folders
inline constexpr DWORD DIR_NO_ACCESS = 0x8; // cannot be listed; shown in grey, not to be selected
inline constexpr DWORD DIR_LAST = 0x10;     // last among its siblings: no line leads further down
inline constexpr DWORD DIR_DRIVE = 0x20;    // a drive
inline constexpr DWORD DIR_SELECTED = 0x80; // the chosen folder
inline constexpr DWORD DIR_FLOPPY = 0x100;  // kind of a drive: removable
inline constexpr DWORD DIR_FIXED = 0x200;   // fixed
inline constexpr DWORD DIR_REMOTE = 0x400;  // remote
inline constexpr DWORD DIR_CDROM = 0x800;   // optical
inline constexpr DWORD DIR_ROOT = 0x1000;   // the whole machine

// One folder. All blocks come from malloc and belong to the tree.
struct Dir_Tree {
    DWORD flag;    // DIR_*
    wchar_t* name; // what is shown; null ends an array of children
    wchar_t* path; // full path with a final backslash, at most 770 characters; null on the root. A longer
                   // one is cut there, and its folder cannot be entered
    Dir_Tree*
        child; // sub-folders, ended by a record of zeros; null while not scanned, and when there are none
};

// One row in sight or scrolled out of it.
struct Dir_List_Row {
    int Depth;      // 0: the root, 1: drives
    Dir_Tree* Node; // the tree's; valid until the next refresh
};

// A folder picker: a titled panel with a button "Refresh" and a tree of the machine's drives and folders,
// which two sliders scroll. A folder is listed when it is opened for the first time, and again by "Refresh";
// folders whose names begin with a dot are left out. Everything that reads a disk does so inside of Set or of
// a click, on the host's thread.
//
//   tree.Name_Set(L"Folder:");
//   tree.Init(wnd);
//   tree.Set(L"C:\\Data");
//   tree.Draw();
//   ...
//   if (tree.Select(word) == 2) take(tree.Read());
//
// No flag of the control's own Flag is read; its fonts are fixed, and its rows are 18 pixels high. It needs
// the pictures icon_mycomputer.rgb, icon_fixed.rgb, icon_floppy.rgb, icon_cdrom.rgb and icon_remote.rgb in
// the folder Icons of the installation; the place of a missing one stays empty.
class BRASK_API DirTrees : public Tools {
  public:
    // The parts, laid out by Init.
    Boxs Box_Frame;      // the whole control, with the title
    Boxs Box_Inner;      // the sunken panel
    Boxs Box_Tree;       // where the rows are painted
    Buttons But_Refresh; // reads the disk again
    Sliders Cursor_V;    // scrolls down, in pixels; an outline when all rows fit
    Sliders Cursor_H;    // scrolls sideways, in pixels; an outline when the widest row fits

    Dir_Tree* Current; // the chosen folder, a node of Tree; null: none; kept by the control
    Dir_Tree* Tree;    // the root, owned; null before Set
    Dir_List_Row*
        List;   // the rows, those of open folders only; owned; made by Draw and by each change of them
    int NbList; // rows in List

    DirTrees();
    // A copy shares the tree and the rows with its source: the host sees to the lifetimes.
    DirTrees(const DirTrees& other);
    DirTrees& operator=(const DirTrees& other);
    // Releases the tree.
    ~DirTrees();

    // Lays out the parts and binds them to the window; the control's own Wnd stays as it is. wnd null keeps
    // their window. Position, size, Border and Color go to them; a black Color becomes their grey
    // (170, 170, 170). Scrolls back to the first 100 pixels.
    void Init(HWND wnd);
    // Makes a new tree of the machine's drives, opens it down to `path` and chooses that. Capitals and small
    // letters are equal, the path may be relative and needs no final backslash; at most 2,047 characters
    // count. A folder that is not there leaves nothing chosen and the tree open as far as the path leads;
    // null opens nothing. Always 1. Call Draw afterwards.
    int Set(const wchar_t* path);
    // Paints the whole control; the title is the control's name, a blank and the chosen folder's name. Needs
    // Init.
    void Draw();
    // Follows the pointer for one event word (see Tools). Every word but 0 is a click, KEY_QUERY too: so hand
    // on presses, and moves only while a slider is Held. On the box in front of a folder it opens or closes
    // the folder, on the folder's picture and the five cells to the right of that it chooses it, on the
    // button it reads the disk again, on a slider it scrolls. 2: the choice or the tree has changed, take
    // Read(); 1 otherwise; 0 on a size below 1. Needs Init.
    int Select(int mode);
    // Wheel: n notches, up when positive; with the pointer on the lower slider sideways, right when positive.
    // Needs Init.
    void Scroll(int n);
    // Path of the chosen folder with a final backslash; null when none is, or the root. Stays the control's,
    // until the next Set or refresh.
    wchar_t* Read();

  private:
    int Dir_Tree_Start(const wchar_t* target);
    Dir_Tree* Dir_Tree_Current(Dir_Tree* from, const wchar_t* target);
    int Dir_Tree_Expand(int row, int column);
    Dir_Tree* Dir_Tree_Select(int row, int column, Dir_Tree* old);
    int Dir_Tree_Update2();
    void Dir_Tree_Draw2();
    bool Make_List();
    void Drop_List();
    void Refresh();
    bool Follow(Sliders& slider, int mode);
    int Click();
};

#endif
