#include "browser/dir_tree.h"

#include <cstdlib>
#include <cwchar>

// How the tree is reconciled with the disk.

namespace brask {

namespace {

// What the chosen folder's fate is, while a folder's children are gone through.
struct Choice {
    Dir_Tree* node; // the chosen one as far as it was met; null: not met
    bool among;     // one of the old children was chosen, or held the chosen one and is gone
};

bool holds_choice(const Dir_Tree& node) {
    if (node.flag & DIR_SELECTED) return true;
    for (const Dir_Tree* child = node.child; child && child->name; child++)
        if (holds_choice(*child)) return true;
    return false;
}

void remove_record(Dir_Tree& record, Choice& choice) {
    if (holds_choice(record)) choice = {nullptr, true};
    Dir_Tree_Free(&record);
}

Dir_Tree* chosen_child(const Dir_Tree& node) {
    for (Dir_Tree* child = node.child; child && child->name; child++)
        if (child->flag & DIR_SELECTED) return child;
    return nullptr;
}

// The deepest branches come before their parents. Closed ones are left alone, and with them a choice that is
// hidden there: required so.
Choice refresh_open_children(Dir_Tree& node) {
    Choice choice = {nullptr, false};
    for (Dir_Tree* child = node.child; child && child->name; child++) {
        if (!(child->flag & DIR_OPEN)) continue;
        if (Dir_Tree* chosen = Dir_Tree_Refresh(child)) choice.node = chosen;
    }
    choice.among = chosen_child(node) != nullptr;
    return choice;
}

// The old children, taken over one by one in the order of the disk. What is passed over is gone from the disk
// and is released, at the latest with the whole.
class Old_Children {
  public:
    Old_Children(Dir_Tree* records, Choice& fate) : array(records), at(records), choice(fate) {}
    Old_Children(const Old_Children&) = delete;
    Old_Children& operator=(const Old_Children&) = delete;
    ~Old_Children() {
        while (at && at->name)
            remove_record(*at++, choice);
        std::free(array);
    }
    // Moves the record of that folder over; false when it is a new one.
    bool take(const wchar_t* name, const wchar_t* path, Dir_Tree& record) {
        Dir_Tree* found = at;
        while (found && found->name && !is(*found, name, path))
            found++;
        if (!found || !found->name) return false;
        while (at != found)
            remove_record(*at++, choice);
        record = *at++;
        return true;
    }

  private:
    // All have the same parent, so that the names tell most of them apart.
    static bool is(const Dir_Tree& record, const wchar_t* name, const wchar_t* path) {
        return !std::wcscmp(record.name, name) && !std::wcscmp(record.path, path);
    }

    Dir_Tree* array;
    Dir_Tree* at;
    Choice& choice;
};

// The state of a folder as the disk has it. `count` receives the number of its sub-folders.
void renew_state(Dir_Tree& record, bool closed_to_us, int& count) {
    if (closed_to_us) return void(record.flag = DIR_NO_ACCESS);
    const Folder folder(record.path);
    if (folder.unreadable()) return void(record.flag = DIR_NO_ACCESS);
    count = folder.visible();
    if (!count)
        record.flag = (record.flag & ~(DIR_OPEN | DIR_CLOSED)) | DIR_LEAF;
    else if (!(record.flag & (DIR_OPEN | DIR_CLOSED)))
        record.flag = (record.flag & ~DIR_LEAF) | DIR_CLOSED;
}

// False when memory fails: the children up to there stay.
bool merge_children(Dir_Tree& node, const Folder& folder, Old_Children& old, Choice& choice) {
    Child_Path path(node.path);
    int count = folder.visible(), index = 0;
    Dir_Tree* record = node.child;
    for (const Dir_Ulmen* entry = folder.begin(); entry->Type; entry++, index++) {
        if (!is_visible(*entry)) continue;
        const bool whole = path.set(entry->Name);
        if (!old.take(entry->Name, path.text(), *record) &&
            !fill_record(*record, path.text(), entry->Name, CHILD_NAMES))
            return false;
        renew_state(*record, entry->No_Access || !whole, count);
        // The counter is that of the last sub-folder listed, and dot names count in the index: required so.
        record->flag = index == count - 1 ? record->flag | DIR_LAST : record->flag & ~DIR_LAST;
        if (record->flag & DIR_SELECTED) choice.node = record;
        record++;
    }
    return true;
}

// Puts the children as the disk has them in place of the old ones. False when memory fails.
bool renew_children(Dir_Tree& node, const Folder& folder, Choice& choice) {
    const int count = folder.visible();
    Dir_Tree* records = nullptr;
    if (count && !(records = make_records(count + 1, "tree->child"))) return false;
    Old_Children old(node.child, choice);
    node.child = records;
    return !count || merge_children(node, folder, old, choice);
}

} // namespace

Dir_Tree* Dir_Tree_Refresh(Dir_Tree* node) {
    if (!node) return nullptr;
    Choice choice = refresh_open_children(*node);
    if (node->flag & DIR_ROOT) return choice.node; // the drives are never listed anew
    {
        const Folder folder(node->path);
        if (folder.unreadable()) {
            deny(*node);
            return nullptr;
        }
        if (!renew_children(*node, folder, choice)) return nullptr;
    }
    if (Dir_Tree* chosen = chosen_child(*node)) return chosen;
    if (!choice.among) return choice.node;
    node->flag |= DIR_SELECTED; // the chosen folder is gone: its parent takes its place
    return node;
}

} // namespace brask
