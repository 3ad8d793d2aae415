#include "browser/dir_tree.h"

#include <cstdlib>
#include <cstring>
#include <cwchar>

#include "foundation/trace.h"

namespace brask {

wchar_t* copy_text(const wchar_t* text, const char* variable) {
    const std::size_t size = (std::wcslen(text) + 1) * sizeof *text;
    auto* copy = static_cast<wchar_t*>(std::malloc(size));
    if (!copy) {
        Error_Fct(hwnd, REPORT_MEMORY, "line %-4d of %hs \nmemory error in _wcsdup (var=%hs)", __LINE__,
                  "dirtree", variable);
        return nullptr;
    }
    std::memcpy(copy, text, size);
    return copy;
}

namespace {

// A node's path in small letters, for comparing.
struct Folded {
    explicit Folded(const wchar_t* path) {
        std::memcpy(text, path, (std::wcslen(path) + 1) * sizeof *text);
        Str_To_Lower(text);
    }
    wchar_t text[PATH_ROOM];
};

// Rows are numbered in the order of the tree, each folder before its sub-folders.
void list_rows(int depth, Dir_Tree* node, Dir_List_Row* list, int& count) {
    if (list) list[count] = {depth, node};
    count++;
    if (!(node->flag & DIR_OPEN) || !node->child) return;
    for (Dir_Tree* child = node->child; child->name; child++)
        list_rows(depth + 1, child, list, count);
}

} // namespace

int child_count(const Dir_Tree& node) {
    int count = 0;
    while (node.child && node.child[count].name)
        count++;
    return count;
}

// A path that was cut ends in no separator, and leads nowhere.
bool leads_through(const wchar_t* target, const Dir_Tree& node) {
    const Folded folder(node.path);
    const std::size_t length = std::wcslen(folder.text);
    return length && folder.text[length - 1] == L'\\' && !std::wcsncmp(target, folder.text, length);
}

bool fill_record(Dir_Tree& record, const wchar_t* path, const wchar_t* name, const Record_Names& names) {
    record.path = copy_text(path, names.path);
    if (!record.path) return false;
    record.name = copy_text(name, names.name);
    if (record.name) return true;
    std::free(record.path);
    record = {};
    return false;
}

Dir_Tree* make_records(int count, const char* variable) {
    auto* records = static_cast<Dir_Tree*>(std::calloc(static_cast<std::size_t>(count), sizeof(Dir_Tree)));
    if (!records)
        Error_Fct(hwnd, REPORT_MEMORY, "line %-4d of %hs \nmemory error in calloc (var=%hs, dim=%dx%d)",
                  __LINE__, "dirtree", variable, count, static_cast<int>(sizeof(Dir_Tree)));
    return records;
}

Child_Path::Child_Path(const wchar_t* folder) : start(0) {
    while (folder && folder[start] && start < PATH_ROOM - 1) {
        buffer[start] = folder[start];
        start++;
    }
    buffer[start] = 0;
}

bool Child_Path::set(const wchar_t* name) {
    int end = start;
    while (*name && end < PATH_ROOM - 1)
        buffer[end++] = *name++;
    const bool whole = !*name && end < PATH_ROOM - 1;
    if (whole) buffer[end++] = L'\\';
    buffer[end] = 0;
    return whole;
}

bool is_visible(const Dir_Ulmen& entry) { return entry.Name && *entry.Name != L'.'; }

int Folder::visible() const {
    int count = 0;
    for (const Dir_Ulmen* entry = list; entry && entry->Type; entry++)
        count += is_visible(*entry);
    return count;
}

void deny(Dir_Tree& node) {
    Error_Fct(hwnd, REPORT_WARNING, "Scan_Dir(%ls) -> NULL", node.path);
    node.flag |= DIR_NO_ACCESS;
}

void Dir_Tree_Free(Dir_Tree* node) {
    if (!node) return;
    for (Dir_Tree* child = node->child; child && child->name; child++)
        Dir_Tree_Free(child);
    std::free(node->child);
    std::free(node->name);
    std::free(node->path);
    node->child = nullptr;
    node->name = node->path = nullptr;
}

int Dir_Tree_List(int depth, Dir_Tree* node, Dir_List_Row* list) {
    int count = 0;
    if (node) list_rows(depth, node, list, count);
    return count;
}

Dir_Tree* Dir_Tree_Find(Dir_Tree* node, const wchar_t* target) {
    if (!node) return nullptr;
    if (node->path && !std::wcscmp(Folded(node->path).text, target)) return node;
    for (Dir_Tree* child = node->child; child && child->name; child++)
        if (Dir_Tree* found = Dir_Tree_Find(child, target)) return found;
    return nullptr;
}

} // namespace brask
