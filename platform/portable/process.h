#ifndef PLATFORM_PORTABLE_PROCESS_H
#define PLATFORM_PORTABLE_PROCESS_H

#include "types.h"

// Locks, modules, time.

struct CRITICAL_SECTION {
    void* state;                       // null: it does not lock
    alignas(8) unsigned char room[48]; // a recursive lock, in place: one that is never deleted leaks nothing
};
typedef CRITICAL_SECTION* LPCRITICAL_SECTION;

enum : DWORD {
    GET_MODULE_HANDLE_EX_FLAG_UNCHANGED_REFCOUNT = 2,
    GET_MODULE_HANDLE_EX_FLAG_FROM_ADDRESS = 4,
};

extern "C" {
// The same thread may enter again. A section that was never initialised, or was deleted, does not lock.
PLATFORM_API void InitializeCriticalSection(CRITICAL_SECTION* section);
PLATFORM_API void EnterCriticalSection(CRITICAL_SECTION* section);
PLATFORM_API BOOL TryEnterCriticalSection(CRITICAL_SECTION* section);
PLATFORM_API void LeaveCriticalSection(CRITICAL_SECTION* section);
PLATFORM_API void DeleteCriticalSection(CRITICAL_SECTION* section);

// The path of a module in the system's own form; null means the program. Cut to `size` characters, of which
// the last is then the terminator, and the result is `size`.
PLATFORM_API DWORD GetModuleFileNameW(HMODULE module, LPWSTR path, DWORD size);
// The module of a name, with or without folder and ending, among those that are loaded; null means the
// program.
PLATFORM_API HMODULE GetModuleHandleW(LPCWSTR name);
PLATFORM_API BOOL GetModuleHandleExW(DWORD flags, LPCWSTR name_or_address, HMODULE* module);

PLATFORM_API DWORD GetTickCount(); // milliseconds; starts again at 0 after 49.7 days
PLATFORM_API ULONGLONG GetTickCount64();
PLATFORM_API void Sleep(DWORD milliseconds);
PLATFORM_API DWORD GetCurrentThreadId();
}
#define GetModuleFileName GetModuleFileNameW
#define GetModuleHandle GetModuleHandleW
#define GetModuleHandleEx GetModuleHandleExW

#endif
