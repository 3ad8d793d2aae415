#ifndef PLATFORM_PORTABLE_TYPES_H
#define PLATFORM_PORTABLE_TYPES_H

#include <cstddef>
#include <cstdint>

// Scalar types, handles and plain structures, with Windows' sizes: DWORD and LONG are 32 bits everywhere.

#define PLATFORM_API __attribute__((visibility("default")))

#define CALLBACK
#define WINAPI
#define APIENTRY

typedef std::uint8_t BYTE;
typedef std::uint16_t WORD;
typedef std::uint32_t DWORD;
typedef std::uint32_t UINT;
typedef std::uint32_t ULONG;
typedef std::int32_t LONG;
typedef std::int32_t BOOL;
typedef int INT;
typedef std::int16_t SHORT;
typedef std::uint16_t USHORT;
typedef char CHAR;
typedef wchar_t WCHAR;
typedef float FLOAT;
typedef void VOID;
typedef void* LPVOID;
typedef void* PVOID;
typedef void* HANDLE;
typedef std::intptr_t INT_PTR;
typedef std::uintptr_t UINT_PTR;
typedef std::intptr_t LONG_PTR;
typedef std::uintptr_t ULONG_PTR;
typedef std::uintptr_t DWORD_PTR;
typedef std::uintptr_t SIZE_T;
typedef std::uintptr_t WPARAM;
typedef std::intptr_t LPARAM;
typedef std::intptr_t LRESULT;
typedef DWORD COLORREF;
typedef WORD ATOM;
typedef char* LPSTR;
typedef const char* LPCSTR;
typedef wchar_t* LPWSTR;
typedef const wchar_t* LPCWSTR;
typedef BYTE* LPBYTE;
typedef DWORD* LPDWORD;
typedef LPCWSTR LPCTSTR;
typedef LPWSTR LPTSTR;
typedef WCHAR TCHAR;

#ifndef TRUE
#define TRUE 1
#define FALSE 0
#endif
#define MAX_PATH 260

// Handles: pointers to types of their own, so that the compiler tells them apart.
#define PLATFORM_HANDLE(name)                                                                                \
    struct name##__;                                                                                         \
    typedef name##__* name
PLATFORM_HANDLE(HWND);
PLATFORM_HANDLE(HDC);
PLATFORM_HANDLE(HINSTANCE);
PLATFORM_HANDLE(HMENU);
PLATFORM_HANDLE(HICON);
typedef HINSTANCE HMODULE;
typedef HICON HCURSOR;
typedef HANDLE HGLOBAL;
// Drawing objects are void pointers underneath, so that SelectObject and DeleteObject take each of them.
typedef void* HGDIOBJ;
PLATFORM_HANDLE(HFONT);
PLATFORM_HANDLE(HPEN);
PLATFORM_HANDLE(HBRUSH);
#undef PLATFORM_HANDLE

struct POINT {
    LONG x, y;
};
typedef POINT* LPPOINT;
struct SIZE {
    LONG cx, cy;
};
struct RECT {
    LONG left, top, right, bottom;
};
typedef RECT* LPRECT;

// Packing and unpacking of message parameters.
#define LOWORD(v) ((WORD)((DWORD_PTR)(v)&0xFFFF))
#define HIWORD(v) ((WORD)((DWORD_PTR)(v) >> 16 & 0xFFFF))
#define LOBYTE(v) ((BYTE)((DWORD_PTR)(v)&0xFF))
#define HIBYTE(v) ((BYTE)((DWORD_PTR)(v) >> 8 & 0xFF))
#define MAKELONG(a, b) ((LONG)((DWORD)(WORD)(a) | (DWORD)(WORD)(b) << 16))
#define MAKELPARAM(a, b) ((LPARAM)(DWORD)MAKELONG(a, b))
#define MAKEWPARAM(a, b) ((WPARAM)(DWORD)MAKELONG(a, b))
#define MAKEINTRESOURCEW(i) ((LPWSTR)(ULONG_PTR)(WORD)(i))
#define MAKEINTRESOURCE MAKEINTRESOURCEW
#define RGB(r, g, b) ((COLORREF)((BYTE)(r) | (WORD)(BYTE)(g) << 8 | (DWORD)(BYTE)(b) << 16))

extern "C" {
PLATFORM_API BOOL SetRect(RECT* rect, int left, int top, int right, int bottom);
PLATFORM_API BOOL PtInRect(const RECT* rect, POINT point); // far edges are outside

struct CRITICAL_SECTION {
    void* state; // a recursive mutex; made by InitializeCriticalSection
};
PLATFORM_API void InitializeCriticalSection(CRITICAL_SECTION* section);
PLATFORM_API void EnterCriticalSection(CRITICAL_SECTION* section);
PLATFORM_API void LeaveCriticalSection(CRITICAL_SECTION* section);
PLATFORM_API void DeleteCriticalSection(CRITICAL_SECTION* section);

PLATFORM_API DWORD GetModuleFileNameW(HMODULE module, LPWSTR path, DWORD size);
PLATFORM_API HMODULE GetModuleHandleW(LPCWSTR name);
PLATFORM_API DWORD GetTickCount();
PLATFORM_API void Sleep(DWORD milliseconds);
}
#define GetModuleFileName GetModuleFileNameW
#define GetModuleHandle GetModuleHandleW

#endif
