#ifndef FENN_FOLDERS_H
#define FENN_FOLDERS_H

#include <cstddef>
#include <cwchar>
#include <string>
#include <vector>

// What each system tells of the folders in a folder. Links are followed, "." and ".." left out.
namespace fenn {

struct Folder {
    std::size_t name; // where it starts in the names
    bool no_access;
};

struct Folders {
    std::wstring names; // each ended by a 0
    std::vector<Folder> entries;
};

// The dot in front: a folder that is there for programs.
inline bool is_dot_name(const wchar_t* name) { return name[0] == L'.'; }

// In the system's order. False, with errno set, when it cannot be listed.
bool list_folders(const wchar_t* path, Folders& folders);
// Whether there is one without a dot in front; stops at the first. False with errno set when it cannot be
// listed.
bool has_folder(const wchar_t* path);

} // namespace fenn

#endif
