#ifndef BROWSER_DIR_TREE_H
#define BROWSER_DIR_TREE_H

#include <brask/dirtrees.h>
#include <brask/fenn.h>

namespace brask {

// The tree of folders behind the control: one node after the other, without anything of painting.

// Lists one folder into the node, and on the way down the path `target`, in small letters, every folder that
// leads there; null and the empty text lead nowhere. 1; 0 for a null node, when the folder cannot be listed
// (it then has DIR_NO_ACCESS), and when memory fails.
int Dir_Tree_Scan(Dir_Tree* node, const wchar_t* target);
// Reconciles the open part of a subtree with the disk: what is open stays so. The chosen node afterwards, or
// null. Nodes move: no pointer to one holds over this, the result apart.
Dir_Tree* Dir_Tree_Refresh(Dir_Tree* node);
// Number of rows of the tree from a node of this depth, which `list`, when not null, receives.
int Dir_Tree_List(int depth, Dir_Tree* node, Dir_List_Row* list);
// Releases what the node owns.
void Dir_Tree_Free(Dir_Tree* node);
// The root with all drives, opened down to `target`, in small letters or null. Null when memory fails at
// once; later failures leave it as far as it was built.
Dir_Tree* Dir_Tree_Machine(const wchar_t* target);
// The first node with this path, in small letters, from `node` down; null when there is none.
Dir_Tree* Dir_Tree_Find(Dir_Tree* node, const wchar_t* target);

// --- What these are made of ---

inline constexpr int PATH_ROOM = 771;    // of a folder's path
inline constexpr int TARGET_ROOM = 2048; // of a path from outside

// The number of children, whose array a null name ends.
int child_count(const Dir_Tree& node);
// A copy on the heap; null, with a report, when memory fails.
wchar_t* copy_text(const wchar_t* text, const char* variable);
// Does the path `target`, in small letters, lie in or under the node's folder?
bool leads_through(const wchar_t* target, const Dir_Tree& node);

// What a record's texts are called in reports.
struct Record_Names {
    const char* path;
    const char* name;
};
// Gives an empty record copies of its texts; false, with a report and the record empty, when memory fails.
bool fill_record(Dir_Tree& record, const wchar_t* path, const wchar_t* name, const Record_Names& names);
inline constexpr Record_Names CHILD_NAMES = {"tree->child[j].path", "tree->child[j].name"};
// Zeroed records; null, with a report, when memory fails.
Dir_Tree* make_records(int count, const char* variable);

// The paths of a folder's children, one after the other.
class Child_Path {
  public:
    explicit Child_Path(const wchar_t* folder);
    // False: the path was too long and is cut.
    bool set(const wchar_t* name);
    const wchar_t* text() const { return buffer; }

  private:
    wchar_t buffer[PATH_ROOM];
    int start;
};

// A folder's entries. Those that begin with a dot are never shown.
class Folder {
  public:
    explicit Folder(const wchar_t* path) : list(Scan_Dir(path, nullptr)) {}
    Folder(const Folder&) = delete;
    Folder& operator=(const Folder&) = delete;
    ~Folder() {
        if (list) Scan_Free(list);
    }
    bool unreadable() const { return !list; }
    const Dir_Ulmen* begin() const { return list; }
    int visible() const; // entries that are shown

  private:
    Dir_Ulmen* list;
};
bool is_visible(const Dir_Ulmen& entry);
// Reports that the node's folder cannot be listed, and marks it.
void deny(Dir_Tree& node);

} // namespace brask

#endif
