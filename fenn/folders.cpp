#include "fenn/folders.h"

#include <algorithm>
#include <cerrno>
#include <climits>
#include <cstdlib>
#include <cstring>

#include <brask/fenn.h>

#include "fenn/system.h"
#include "text/guarded.h"

namespace fenn {
namespace {

constexpr DWORD folder_type = 0x10;

// By the folded name, then by the exact one, so that the order is the same at each call.
void sort(Folders& folders) {
    std::wstring folded = folders.names;
    fold(&folded[0], folded.size());
    const auto before = [&](const Folder& a, const Folder& b) {
        const int order = std::wcscmp(&folded[a.name], &folded[b.name]);
        return order != 0 ? order < 0 : std::wcscmp(&folders.names[a.name], &folders.names[b.name]) < 0;
    };
    std::sort(folders.entries.begin(), folders.entries.end(), before);
}

// One block: the entries, their end, and the names behind it.
Dir_Ulmen* make_list(const Folders& folders) {
    const std::size_t records = (folders.entries.size() + 1) * sizeof(Dir_Ulmen);
    void* const block = std::malloc(records + folders.names.size() * sizeof(wchar_t));
    if (!block) return nullptr;
    Dir_Ulmen* const list = static_cast<Dir_Ulmen*>(block);
    wchar_t* const names = reinterpret_cast<wchar_t*>(static_cast<char*>(block) + records);
    if (!folders.names.empty()) std::wmemcpy(names, folders.names.data(), folders.names.size());
    Dir_Ulmen* at = list;
    for (const Folder& folder : folders.entries)
        *at++ = {folder_type, folder.no_access, names + folder.name};
    *at = {};
    return list;
}

} // namespace
} // namespace fenn

FENN_API Dir_Ulmen* Scan_Dir(const wchar_t* folder, int* count) {
    if (count) *count = 0;
    return text::guarded<Dir_Ulmen*>(nullptr, [=]() -> Dir_Ulmen* {
        fenn::Folders folders;
        if (!fenn::list_folders(folder, folders)) return nullptr;
        fenn::sort(folders);
        Dir_Ulmen* const list = fenn::make_list(folders);
        if (list && count) *count = static_cast<int>(std::min<std::size_t>(folders.entries.size(), INT_MAX));
        return list;
    });
}

FENN_API void Scan_Free(Dir_Ulmen* list) { std::free(list); }

FENN_API int Is_Tree(const wchar_t* path) {
    return text::guarded(0, [=] { return static_cast<int>(fenn::has_folder(path)); });
}
