#include "mount_table.h"

#include <algorithm>
#include <new>
#include <sstream>

namespace platform {

// File systems of other machines, and those that stand for a device without naming one.
static const char* const kRemote[] = {
    "nfs",
    "nfs4",
    "cifs",
    "smb3",
    "smbfs",
    "ncpfs",
    "afs",
    "coda",
    "ceph",
    "lustre",
    "9p",
    "davfs",
    "virtiofs",
    "vboxsf",
    "fuse.sshfs",
    "fuse.davfs",
    "fuse.glusterfs",
    "prl_fs",
    "drvfs",
    "beegfs",
    "fuse.rclone",
    "fuse.s3fs",
    "fuse.cifs",
    "fuse.ceph",
    "smb2",
    "fuse.nfs",
    "fuse.vmhgfs-fuse",
};
static const char* const kLocal[] = {"zfs", "ubifs", "jffs2"};
// On a device, yet part of an installed program rather than a disk.
static const char* const kProgram[] = {"squashfs", "erofs"};

template <std::size_t size>
static bool is_among(const char* const (&list)[size], const std::string& type) {
    return std::find(std::begin(list), std::end(list), type) != std::end(list);
}

// The table writes a blank, a tab, a line end and a backslash as "\" and three octal digits.
static std::string unescaped(const std::string& field) {
    std::string text;
    for (std::size_t i = 0; i < field.size(); i++) {
        const auto digit = [&](std::size_t at) {
            return at < field.size() && field[at] >= '0' && field[at] <= '7';
        };
        if (field[i] != '\\' || !digit(i + 1) || !digit(i + 2) || !digit(i + 3)) {
            text += field[i];
            continue;
        }
        text +=
            static_cast<char>((field[i + 1] - '0') << 6 | (field[i + 2] - '0') << 3 | (field[i + 3] - '0'));
        i += 3;
    }
    return text;
}

// A stream keeps the failure of memory to itself.
static void need_memory(const std::istream& stream) {
    if (stream.bad()) throw std::bad_alloc();
}

// One line: number, parent, device, folder of the file system that is shown, point, options, more options,
// "-", type, source. False for what holds no user's files.
static bool read_line(const std::string& line, Mount& mount) {
    std::istringstream fields(line);
    std::string number, parent, shown, options, mark;
    fields >> number >> parent >> mount.device >> shown >> mount.point >> options;
    while (fields >> mark && mark != "-") {
    }
    fields >> mount.type >> mount.source;
    need_memory(fields);
    if (!fields) return false;
    mount.point = unescaped(mount.point);
    mount.source = unescaped(mount.source);
    mount.remote = is_among(kRemote, mount.type);
    if (mount.point.empty() || mount.point[0] != '/') return false;
    if (mount.point == "/") {
        mount.point.clear();
        return true;
    }
    if (mount.remote || is_among(kLocal, mount.type)) return true;
    if (mount.source.compare(0, 5, "/dev/") != 0 || is_among(kProgram, mount.type)) return false;
    // A part of a file system that is shown elsewhere belongs to that one; a subvolume is one of its own.
    return shown == "/" || mount.type == "btrfs";
}

// A file system that stands twice in the table is one drive.
static bool same_system(const Mount& a, const Mount& b) {
    return a.device == b.device && a.source == b.source;
}

static void add_mount(std::vector<Mount>& mounts, const Mount& mount) {
    // What is mounted over an older one hides it.
    const auto hidden = [&](const Mount& other) { return other.point == mount.point; };
    mounts.erase(std::remove_if(mounts.begin(), mounts.end(), hidden), mounts.end());
    mounts.push_back(mount);
}

std::vector<Mount> real_mounts(const std::string& table) {
    std::vector<Mount> all;
    std::istringstream lines(table);
    for (std::string line; std::getline(lines, line);) {
        Mount mount{};
        if (read_line(line, mount)) add_mount(all, mount);
    }
    need_memory(lines);
    const auto root = std::find_if(all.begin(), all.end(), [](const Mount& m) { return m.point.empty(); });
    if (root == all.end())
        all.insert(all.begin(),
                   Mount{"", "", "rootfs", "", false}); // a root of another's making, as in a jail
    else
        std::rotate(all.begin(), root, root + 1);
    std::vector<Mount> mounts;
    for (const Mount& mount : all) {
        const auto same = [&](const Mount& other) { return same_system(mount, other); };
        if (std::none_of(mounts.begin(), mounts.end(), same)) mounts.push_back(mount);
    }
    return mounts;
}

constexpr std::size_t kFirstLetter = 2; // C

void DriveLetters::assign(const std::vector<Mount>& mounts) {
    std::vector<const Mount*> added;
    std::array<bool, 26> kept{};
    for (const Mount& mount : mounts) {
        const auto had = std::find_if(places_.begin(), places_.end(), [&](const Place& place) {
            return place.taken && place.mount.point == mount.point && same_system(place.mount, mount);
        });
        if (had == places_.end())
            added.push_back(&mount);
        else
            kept[static_cast<std::size_t>(had - places_.begin())] = true;
    }
    for (std::size_t i = 0; i < places_.size(); i++)
        if (!kept[i]) places_[i] = {};
    for (const Mount* mount : added) {
        std::size_t i = kFirstLetter;
        // The root's letter is never another's.
        while (i < places_.size() && (places_[i].taken || (i == kFirstLetter && !mount->point.empty())))
            i++;
        if (i == places_.size()) return;
        places_[i] = {true, *mount};
    }
}

const Mount* DriveLetters::find(wchar_t letter) const {
    const wchar_t upper = letter >= L'a' && letter <= L'z' ? letter - L'a' + L'A' : letter;
    if (upper < L'A' || upper > L'Z') return nullptr;
    const Place& place = places_[static_cast<std::size_t>(upper - L'A')];
    return place.taken ? &place.mount : nullptr;
}

wchar_t DriveLetters::holder(const std::string& native, std::size_t& length) const {
    wchar_t letter = 0;
    length = 0;
    for (std::size_t i = 0; i < places_.size(); i++) {
        const std::string& point = places_[i].mount.point;
        if (!places_[i].taken || native.compare(0, point.size(), point) != 0) continue;
        const bool whole = native.size() == point.size() || native[point.size()] == '/';
        if (!whole || (letter && point.size() < length)) continue;
        letter = static_cast<wchar_t>(L'A' + i);
        length = point.size();
    }
    return letter;
}

} // namespace platform
