#include <cwchar>

#include "fenn/folders.h"
#include "support/desk_function.h"

#include <brask/platform.h>

// The machine of the pictures with a tree of folders: what each system tells of its drives and folders, told
// here instead, so that the tree stands over the same disk everywhere.

namespace {

struct Drive {
    unsigned kind;
    const wchar_t* label; // null: the volume does not answer
};
// From drive C on.
const Drive DRIVES[] = {{DRIVE_FIXED, L"System"},
                        {DRIVE_REMOVABLE, nullptr},
                        {DRIVE_CDROM, L"Music"},
                        {DRIVE_REMOTE, L"Projects"}};

const Drive* drive_of(const wchar_t* root) {
    const std::size_t number = static_cast<std::size_t>(root[0] - L'C');
    return number < std::size(DRIVES) ? &DRIVES[number] : nullptr;
}

// By their paths; each stands behind the one that it lies in.
const wchar_t* const FOLDERS[] = {
    L"C:\\Archive\\",
    L"C:\\Documents\\",
    L"C:\\Documents\\Letters\\",
    L"C:\\Documents\\Notes\\",
    L"C:\\Pictures\\",
    L"C:\\Pictures\\Drawings\\",
    L"C:\\Pictures\\Travel\\",
    L"C:\\Pictures\\Travel\\North\\",
    L"C:\\Pictures\\Travel\\South\\",
    L"C:\\Pictures\\Travel\\South\\Once around the lake and over the hills\\",
    L"C:\\Pictures\\Zoo\\",
    L"C:\\Private\\",
    L"C:\\Work\\",
    L"C:\\Work\\Plans\\",
    L"E:\\Side A\\",
    L"E:\\Side B\\",
};
const wchar_t LOCKED[] = L"C:\\Private\\";

// The name of a folder that lies in another one; null for every other path.
const wchar_t* name_in(const wchar_t* path, const wchar_t* folder) {
    const std::size_t length = std::wcslen(folder);
    if (std::wcsncmp(path, folder, length) != 0 || !path[length]) return nullptr;
    const wchar_t* const end = std::wcschr(path + length, L'\\');
    return end[1] ? nullptr : path + length;
}

} // namespace

bool fenn::list_folders(const wchar_t* path, Folders& folders) {
    if (std::wcscmp(path, LOCKED) == 0) return false;
    for (const wchar_t* each : FOLDERS)
        if (const wchar_t* const name = name_in(each, path)) {
            folders.entries.push_back({folders.names.size(), std::wcscmp(each, LOCKED) == 0});
            folders.names.append(name, std::wcslen(name) - 1);
            folders.names += L'\0';
        }
    return true;
}

bool fenn::has_folder(const wchar_t* path) {
    Folders folders;
    return list_folders(path, folders) && !folders.entries.empty();
}

DESK_FUNCTION(DWORD, GetLogicalDrives) { return ((1u << std::size(DRIVES)) - 1) << 2; }

DESK_FUNCTION(UINT, GetDriveTypeW, LPCWSTR root) {
    const Drive* const drive = drive_of(root);
    return drive ? drive->kind : DRIVE_NO_ROOT_DIR;
}

DESK_FUNCTION(BOOL, GetVolumeInformationW, LPCWSTR root, LPWSTR name, DWORD room, LPDWORD, LPDWORD, LPDWORD,
              LPWSTR, DWORD) {
    const Drive* const drive = drive_of(root);
    if (!drive || !drive->label || std::wcslen(drive->label) >= room) return FALSE;
    std::wcscpy(name, drive->label);
    return TRUE;
}
