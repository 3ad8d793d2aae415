#ifndef BRASK_PLATFORM_H
#define BRASK_PLATFORM_H

// The desktop's services under the names that Windows gives them. On Windows the system itself is behind
// them; elsewhere the portable platform keeps the same types, values and functions.

#ifdef _WIN32
#include <windows.h>

#include <shellapi.h>
#else
#include "portable/types.h"

#include "portable/messages.h"

#include "portable/keys.h"

#include "portable/gdi.h"

#include "portable/window.h"

#include "portable/input.h"

#include "portable/process.h"

#include "portable/files.h"

#include "portable/global_memory.h"

#include "portable/clipboard.h"

#include "portable/dialog.h"

#include "portable/drives.h"
#endif

#endif
