#ifndef PLATFORM_PORTABLE_DRIVES_H
#define PLATFORM_PORTABLE_DRIVES_H

#include "types.h"

// Drives. The root file system is drive C, each further real mount has one of the letters behind it, in the
// order of the mount table. A mount keeps its letter as long as it is there. None of these asks the disk
// itself, so that a dead network drive stops nobody.

enum : DWORD {
    DRIVE_UNKNOWN = 0,
    DRIVE_NO_ROOT_DIR = 1, // no drive has this letter
    DRIVE_REMOVABLE = 2,
    DRIVE_FIXED = 3,
    DRIVE_REMOTE = 4,
    DRIVE_CDROM = 5,
    DRIVE_RAMDISK = 6,
};

extern "C" {
PLATFORM_API DWORD GetLogicalDrives(); // bit 0: drive A
// `root` is "X:\"; null means the drive of the current folder.
PLATFORM_API UINT GetDriveTypeW(LPCWSTR root);
// Each output may be null. The name is the file system's label; without one, the last folder of the place
// where it is mounted, for any drive but C. The serial number is 0. FALSE without such a drive, or when a
// text does not fit in its room.
PLATFORM_API BOOL GetVolumeInformationW(LPCWSTR root, LPWSTR name, DWORD name_size, LPDWORD serial,
                                        LPDWORD longest_name, LPDWORD flags, LPWSTR system,
                                        DWORD system_size);
}
#define GetDriveType GetDriveTypeW
#define GetVolumeInformation GetVolumeInformationW

#endif
