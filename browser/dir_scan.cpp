#include <cstdlib>
#include <cwchar>

#include "browser/dir_tree.h"

// How the tree is read: the drives at once, a folder when it is opened.

namespace brask {

namespace {

constexpr int DRIVES = 26;
constexpr int FIRST_FIXED_LETTER = 2; // before it stand the floppy drives
constexpr int LABEL_ROOM = 80;
constexpr Record_Names DRIVE_NAMES = {"Tree->child[j].path", "Tree->child[j].name"};

DWORD kind_of_drive(const wchar_t* path) {
    switch (GetDriveTypeW(path)) {
    case DRIVE_REMOVABLE: return DIR_FLOPPY;
    case DRIVE_FIXED: return DIR_FIXED;
    case DRIVE_REMOTE: return DIR_REMOTE;
    case DRIVE_CDROM: return DIR_CDROM;
    default: return 0;
    }
}

// "Data (D:)". The letters of floppy drives stand alone, so that none of these is made to turn.
struct Drive_Name {
    Drive_Name(int letter, const wchar_t* path) {
        wchar_t system[LABEL_ROOM] = {};
        DWORD serial = 0, longest = 0, flags = 0;
        const bool labelled =
            letter >= FIRST_FIXED_LETTER &&
            GetVolumeInformationW(path, text, LABEL_ROOM, &serial, &longest, &flags, system, LABEL_ROOM);
        text[labelled ? LABEL_ROOM - 1 : 0] = 0;
        std::size_t end = std::wcslen(text);
        if (end) text[end++] = L' ';
        const wchar_t shown[] = {L'(', path[0], L':', L')', 0};
        std::wcscpy(text + end, shown);
    }
    wchar_t text[LABEL_ROOM + 8] = {};
};

// False when memory fails.
bool fill_drive(Dir_Tree& drive, int letter, const wchar_t* target) {
    const wchar_t path[] = {static_cast<wchar_t>(L'A' + letter), L':', L'\\', 0};
    drive.flag = DIR_DRIVE | DIR_CLOSED | kind_of_drive(path);
    if (!fill_record(drive, path, Drive_Name(letter, path).text, DRIVE_NAMES)) return false;
    if (target && leads_through(target, drive)) Dir_Tree_Scan(&drive, target);
    return true;
}

void fill_drives(Dir_Tree& machine, const wchar_t* target) {
    machine.child = make_records(DRIVES + 1, "Tree->child");
    if (!machine.child) return;
    const DWORD present = GetLogicalDrives();
    int count = 0;
    for (int letter = 0; letter < DRIVES; letter++) {
        if (!(present >> letter & 1)) continue;
        if (!fill_drive(machine.child[count], letter, target)) return;
        count++;
    }
    if (count) machine.child[count - 1].flag |= DIR_LAST;
}

DWORD state_of(const Dir_Ulmen& entry, const Child_Path& path, bool whole) {
    if (entry.No_Access || !whole) return DIR_NO_ACCESS;
    return Is_Tree(path.text()) ? DIR_CLOSED : DIR_LEAF;
}

// False when memory fails: the children up to there stay.
bool fill_children(Dir_Tree& node, const Folder& folder) {
    Child_Path path(node.path);
    Dir_Tree* child = node.child;
    for (const Dir_Ulmen* entry = folder.begin(); entry->Type; entry++) {
        if (!is_visible(*entry)) continue;
        const bool whole = path.set(entry->Name);
        if (!fill_record(*child, path.text(), entry->Name, CHILD_NAMES)) return false;
        child->flag = state_of(*entry, path, whole);
        child++;
    }
    child[-1].flag |= DIR_LAST;
    return true;
}

// DIR_CLOSED may stay beside DIR_OPEN: required so. The first click on such a folder changes nothing to see.
bool list_children(Dir_Tree& node) {
    const Folder folder(node.path);
    if (folder.unreadable()) {
        deny(node);
        return false;
    }
    const int count = folder.visible();
    if (!count) {
        node.flag = (node.flag & ~DIR_OPEN) | DIR_LEAF;
        return true;
    }
    node.flag |= DIR_OPEN;
    node.child = make_records(count + 1, "tree->child");
    return node.child && fill_children(node, folder);
}

} // namespace

int Dir_Tree_Scan(Dir_Tree* node, const wchar_t* target) {
    if (!node || !list_children(*node)) return 0;
    if (!target || !*target) return 1;
    for (Dir_Tree* child = node->child; child && child->name; child++)
        if (leads_through(target, *child)) Dir_Tree_Scan(child, target);
    return 1;
}

Dir_Tree* Dir_Tree_Machine(const wchar_t* target) {
    Dir_Tree* machine = make_records(1, "Tree");
    if (!machine) return nullptr;
    machine->flag = DIR_ROOT | DIR_OPEN;
    machine->name = copy_text(L"My Computer", "Tree->name");
    if (!machine->name) {
        std::free(machine);
        return nullptr;
    }
    fill_drives(*machine, target);
    return machine;
}

} // namespace brask
