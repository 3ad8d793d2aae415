#include <cerrno>
#include <cstdlib>

#include <brask/fenn.h>

// Pictures and folders cannot be read yet: each request fails as one on a system without the service does.

FENN_API int IGB_Read_Image(const wchar_t*, IGB_data*, void*) {
    errno = ENOSYS;
    return 0;
}

FENN_API int TGA_Read_Image(const wchar_t*, IGB_data*, void*) {
    errno = ENOSYS;
    return 0;
}

FENN_API void IGB_Free(IGB_data* image) {
    if (!image) return;
    std::free(image->Data);
    *image = {};
}

FENN_API Dir_Ulmen* Scan_Dir(const wchar_t*, int* count) {
    if (count) *count = 0;
    errno = ENOSYS;
    return nullptr;
}

FENN_API void Scan_Free(Dir_Ulmen*) {}

FENN_API int Is_Tree(const wchar_t*) {
    errno = ENOSYS;
    return 0;
}
