#include <map>
#include <vector>

#include "recorder_state.h"

// Folders for Scan_Dir and Is_Tree. They stand in the order of their paths, the same at each call.

namespace recorder {

struct Folder {
    bool marked = false; // its entry says that it cannot be entered
    bool readable = true;
};
static std::map<std::wstring, Folder> folders; // by path, with a final backslash
static int lists = 0;

static bool is_child(const std::wstring& path, const std::wstring& folder) {
    if (path.size() <= folder.size() || path.compare(0, folder.size(), folder) != 0) return false;
    return path.find(L'\\', folder.size()) == path.size() - 1;
}
static std::wstring name_in(const std::wstring& path, const std::wstring& folder) {
    return path.substr(folder.size(), path.size() - folder.size() - 1);
}
static std::vector<std::wstring> children(const std::wstring& folder) {
    std::vector<std::wstring> found;
    for (const auto& entry : folders)
        if (is_child(entry.first, folder)) found.push_back(entry.first);
    return found;
}

void reset_folders() {
    folders.clear();
    lists = 0;
}

void add_folder(const std::wstring& path) {
    for (std::size_t end = path.find(L'\\'); end != std::wstring::npos; end = path.find(L'\\', end + 1))
        folders[path.substr(0, end + 1)];
}

void remove_folder(const std::wstring& path) {
    for (auto at = folders.lower_bound(path);
         at != folders.end() && !at->first.compare(0, path.size(), path);)
        at = folders.erase(at);
}

void lock_folder(const std::wstring& path, Lock lock) {
    Folder& folder = folders[path];
    folder.marked = lock == Lock::marked;
    folder.readable = lock == Lock::open;
}

int open_lists() { return lists; }

} // namespace recorder

using namespace recorder;

// The blocks come from plain new, which never fails on order.
Dir_Ulmen* Scan_Dir(const wchar_t* path, int* count) {
    note(kService, "Scan_Dir(" + quoted(path) + ")");
    if (count) *count = 0;
    const auto folder = folders.find(path ? path : L"");
    if (folder == folders.end() || !folder->second.readable) return nullptr;
    const std::vector<std::wstring> found = children(folder->first);
    auto* list = new Dir_Ulmen[found.size() + 1]();
    for (std::size_t i = 0; i < found.size(); ++i) {
        const std::wstring name = name_in(found[i], folder->first);
        auto* copy = new wchar_t[name.size() + 1]();
        name.copy(copy, name.size());
        list[i] = {1, folders[found[i]].marked, copy};
    }
    if (count) *count = static_cast<int>(found.size());
    ++lists;
    return list;
}

void Scan_Free(Dir_Ulmen* list) {
    note(kService, "Scan_Free()");
    if (!list) return;
    for (Dir_Ulmen* entry = list; entry->Type; ++entry)
        delete[] entry->Name;
    delete[] list;
    --lists;
}

int Is_Tree(const wchar_t* path) {
    note(kService, "Is_Tree(" + quoted(path) + ")");
    const std::wstring folder = path ? path : L"";
    for (const std::wstring& child : children(folder))
        if (name_in(child, folder)[0] != L'.') return 1;
    return 0;
}

// Absolute paths only: nothing but the final backslash is missing in them.
int Path_To_Abs(wchar_t* path) {
    if (!path || !*path) return 0;
    const std::size_t length = std::wcslen(path);
    if (path[length - 1] == L'\\') return 1;
    if (length + 1 >= 2048) return 0;
    path[length] = L'\\';
    path[length + 1] = 0;
    return 1;
}
