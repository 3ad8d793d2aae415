#ifndef BRASK_LIBRARY_H
#define BRASK_LIBRARY_H

#include <brask/export.h>

// The library as a whole. There is nothing to call at the start: it is ready once it is loaded.

// The line that names the library, such as "Lib_Brask.dll 27.0 (rev-a)": the module's own name, the number
// and the revision. ".dll" is part of the line on every system. `expected` is the number that the host was
// built against: any other than "27.0" gives null, and null asks for no check. The line stands in one buffer
// that the next call overwrites.
BRASK_API char* Get_Version_Tools(const char* expected);

// Frees what the library keeps for all controls together: the pictures of icons. The host calls it once, when
// it has finished with controls; no icon may be used afterwards.
BRASK_API void Tools_Lib_Cleanup();

#endif
