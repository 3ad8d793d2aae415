#ifndef PLATFORM_PORTABLE_MOUNT_TABLE_H
#define PLATFORM_PORTABLE_MOUNT_TABLE_H

#include <array>
#include <string>
#include <vector>

// From the kernel's mount table to drives. Nothing here asks the system.
namespace platform {

struct Mount {
    std::string point;  // native, without a separator at its end: empty for the root
    std::string device; // "major:minor"
    std::string type;   // "ext4"
    std::string source; // "/dev/sdb1", "server:/share"
    bool remote;
};

// The file systems that hold a user's files, each once, the root first and then in the order of the table,
// which is a text as /proc/self/mountinfo has it. Without an entry for the root there is one all the same.
std::vector<Mount> real_mounts(const std::string& table);

// Drive letters. A mount that had one keeps it, a new one gets the first that is free; those beyond Z get
// none and are reached through drive C.
class DriveLetters {
  public:
    void assign(const std::vector<Mount>& mounts);
    const Mount* find(wchar_t letter) const; // of either case; null: no such drive
    // The letter whose mount holds the native path, and how long that mount's point is.
    wchar_t holder(const std::string& native, std::size_t& length) const;

  private:
    struct Place {
        bool taken;
        Mount mount;
    };
    std::array<Place, 26> places_{};
};

} // namespace platform

#endif
