#include "drive_table.h"

#include <fcntl.h>
#include <poll.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <mutex>

namespace platform {

struct DriveTable {
    std::mutex lock;
    int file = -1;
    bool read = false;
    DriveLetters letters;
};

// Never destroyed: destructors of other statics may still ask.
static DriveTable& drive_table() {
    static auto& table = *new DriveTable;
    return table;
}

static bool has_changed(int file) {
    pollfd watch = {file, POLLPRI, 0};
    return poll(&watch, 1, 0) > 0 && (watch.revents & (POLLPRI | POLLERR)) != 0;
}

static std::string whole_text(int file) {
    std::string text;
    char part[4096];
    lseek(file, 0, SEEK_SET);
    while (true) {
        const ssize_t size = read(file, part, sizeof part);
        if (size < 0 && errno == EINTR) continue;
        if (size <= 0) return text;
        text.append(part, static_cast<std::size_t>(size));
    }
}

// A single file can be a mount too. Other machines are not asked: they may not answer.
static bool is_file(const Mount& mount) {
    struct stat status;
    return !mount.remote && !mount.point.empty() && stat(mount.point.c_str(), &status) == 0 &&
           !S_ISDIR(status.st_mode);
}

// Under the table's lock.
static const DriveLetters& current_letters(DriveTable& table) {
    const int before = errno;
    if (table.file < 0 && !table.read) table.file = open("/proc/self/mountinfo", O_RDONLY | O_CLOEXEC);
    if (table.file >= 0 && has_changed(table.file)) table.read = false; // until it is taken in whole
    if (!table.read) {
        std::vector<Mount> mounts = real_mounts(table.file >= 0 ? whole_text(table.file) : "");
        mounts.erase(std::remove_if(mounts.begin(), mounts.end(), is_file), mounts.end());
        table.letters.assign(mounts);
        table.read = true;
    }
    errno = before;
    return table.letters;
}

bool drive_mount(wchar_t letter, Mount& mount) {
    DriveTable& table = drive_table();
    const std::lock_guard<std::mutex> guard(table.lock);
    const Mount* const found = current_letters(table).find(letter);
    if (found) mount = *found;
    return found != nullptr;
}

bool drive_point(wchar_t letter, std::string& point) {
    point.clear();
    if (letter == L'C' || letter == L'c') return true; // always the root: the way of most paths
    Mount mount;
    if (!drive_mount(letter, mount)) return false;
    point = mount.point;
    return true;
}

wchar_t drive_holding(const std::string& native, std::size_t& length) {
    DriveTable& table = drive_table();
    const std::lock_guard<std::mutex> guard(table.lock);
    return current_letters(table).holder(native, length);
}

DWORD drive_mask() {
    DriveTable& table = drive_table();
    const std::lock_guard<std::mutex> guard(table.lock);
    const DriveLetters& letters = current_letters(table);
    DWORD mask = 0;
    for (int i = 0; i < 26; i++)
        if (letters.find(static_cast<wchar_t>(L'A' + i))) mask |= 1u << i;
    return mask;
}

} // namespace platform
