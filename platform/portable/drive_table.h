#ifndef PLATFORM_PORTABLE_DRIVE_TABLE_H
#define PLATFORM_PORTABLE_DRIVE_TABLE_H

#include <string>

#include "drives.h"
#include "mount_table.h"

// The drives of this moment: the mount table is read again when the kernel tells that it has changed. Any
// thread may ask.
namespace platform {

// Where a drive is mounted, without a separator at its end; false without such a drive.
bool drive_point(wchar_t letter, std::string& point);
// The drive that holds an absolute native path, and the length of that drive's point.
wchar_t drive_holding(const std::string& native, std::size_t& length);
bool drive_mount(wchar_t letter, Mount& mount);
DWORD drive_mask();

} // namespace platform

#endif
