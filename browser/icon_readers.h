#ifndef BROWSER_ICON_READERS_H
#define BROWSER_ICON_READERS_H

#include <brask/icons.h>

namespace brask {

// Fill size and pixels of an empty entry from a file in the folder of icons. False, with a report, when that
// fails; the entry has no pixels then.
bool read_rgb(Icon_Entry& entry, const wchar_t* name);
bool read_tga(Icon_Entry& entry, const wchar_t* name);

} // namespace brask

#endif
