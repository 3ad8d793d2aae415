#include "drives.h"

#include <dirent.h>
#include <limits.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cstdio>
#include <cstdlib>
#include <cwchar>
#include <fstream>
#include <memory>

#include "drive_table.h"
#include "native_path.h"
#include "text/guarded.h"

namespace platform {

static bool current_drive(Mount& mount) {
    const std::unique_ptr<char, void (*)(void*)> folder(getcwd(nullptr, 0), std::free);
    std::size_t length = 0;
    return drive_mount(drive_holding(folder ? folder.get() : "/", length), mount);
}

// `ended`: the separator must be there.
static bool find_drive(LPCWSTR root, bool ended, Mount& mount) {
    if (!root) return current_drive(mount);
    if (root[0] == 0 || root[1] != L':') return false;
    const bool has_end = is_separator(root[2]) && root[3] == 0;
    if (!has_end && (ended || root[2] != 0)) return false;
    return drive_mount(root[0], mount);
}

// The kernel's word for a disk that can be taken out. A partition's disk is the folder above it.
static bool is_removable(const std::string& device) {
    for (const char* const place : {"/removable", "/../removable"}) {
        std::ifstream file("/sys/dev/block/" + device + place);
        int value = 0;
        if (file >> value) return value != 0;
    }
    return false;
}

static bool is_optical(const Mount& mount) {
    return mount.type == "iso9660" || mount.device.compare(0, 3, "11:") == 0;
}

static UINT drive_type(const Mount& mount) {
    if (mount.remote) return DRIVE_REMOTE;
    if (is_optical(mount)) return DRIVE_CDROM;
    return is_removable(mount.device) ? DRIVE_REMOVABLE : DRIVE_FIXED;
}

// Names in the folder of labels have odd characters as "\x20".
static std::string unescaped(const char* name) {
    std::string text;
    while (*name) {
        unsigned value = 0;
        int size = 0;
        if (std::sscanf(name, "\\x%2x%n", &value, &size) == 1 && size == 4 && value != 0) {
            text += static_cast<char>(value);
            name += size;
        } else {
            text += *name++;
        }
    }
    return text;
}

static std::string disk_label(const std::string& source) {
    struct stat disk, labelled;
    const std::unique_ptr<DIR, int (*)(DIR*)> labels(
        source[0] == '/' && stat(source.c_str(), &disk) == 0 ? opendir("/dev/disk/by-label") : nullptr,
        closedir);
    std::string label;
    while (const dirent* entry = labels ? readdir(labels.get()) : nullptr) {
        const bool same = fstatat(dirfd(labels.get()), entry->d_name, &labelled, 0) == 0 &&
                          S_ISBLK(labelled.st_mode) && labelled.st_rdev == disk.st_rdev;
        if (same) label = unescaped(entry->d_name);
    }
    return label;
}

static std::wstring drive_label(const Mount& mount) {
    std::string label = mount.remote ? std::string() : disk_label(mount.source);
    if (label.empty()) label = mount.point.substr(mount.point.rfind('/') + 1);
    std::wstring wide;
    append_name(wide, label.c_str());
    return wide;
}

static bool copy_text(const std::wstring& text, LPWSTR to, DWORD size) {
    if (!to) return true;
    if (text.size() >= size) return false;
    std::wmemcpy(to, text.c_str(), text.size() + 1);
    return true;
}

static void set(LPDWORD out, DWORD value) {
    if (out) *out = value;
}

constexpr DWORD kNameFlags = 0x1 | 0x2 | 0x4; // case is told apart and kept, names are Unicode

} // namespace platform

using namespace platform;

extern "C" {

DWORD GetLogicalDrives() { return text::guarded<DWORD>(0, drive_mask); }

UINT GetDriveTypeW(LPCWSTR root) {
    return text::guarded<UINT>(DRIVE_NO_ROOT_DIR, [=] {
        Mount mount;
        return find_drive(root, false, mount) ? drive_type(mount) : static_cast<UINT>(DRIVE_NO_ROOT_DIR);
    });
}

BOOL GetVolumeInformationW(LPCWSTR root, LPWSTR name, DWORD name_size, LPDWORD serial, LPDWORD longest_name,
                           LPDWORD flags, LPWSTR system, DWORD system_size) {
    return text::guarded<BOOL>(FALSE, [=]() -> BOOL {
        Mount mount;
        if (!find_drive(root, true, mount)) return FALSE;
        set(serial, 0);
        set(longest_name, NAME_MAX);
        set(flags, kNameFlags);
        std::wstring type;
        append_name(type, mount.type.c_str());
        return (!name || copy_text(drive_label(mount), name, name_size)) &&
               copy_text(type, system, system_size);
    });
}
}
