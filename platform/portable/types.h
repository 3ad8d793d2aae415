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
typedef std::uint64_t ULONGLONG;
typedef std::int64_t LONGLONG;
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
typedef BYTE* PBYTE;
typedef DWORD* LPDWORD;
typedef LPCWSTR LPCTSTR;
typedef LPWSTR LPTSTR;
typedef WCHAR TCHAR;

#ifndef TRUE
#define TRUE 1
#define FALSE 0
#endif
#define MAX_PATH 260
#define TEXT(text) L##text
#define UNREFERENCED_PARAMETER(name) ((void)(name))

// Handles: pointers to types of their own, so that the compiler tells them apart.
#define PLATFORM_HANDLE(name)                                                                                \
    struct name##__;                                                                                         \
    typedef name##__* name
PLATFORM_HANDLE(HWND);
PLATFORM_HANDLE(HDC);
PLATFORM_HANDLE(HINSTANCE);
PLATFORM_HANDLE(HMENU);
PLATFORM_HANDLE(HICON);
PLATFORM_HANDLE(HRGN);
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
PLATFORM_API BOOL SetRectEmpty(RECT* rect);
PLATFORM_API BOOL CopyRect(RECT* to, const RECT* from);
PLATFORM_API BOOL OffsetRect(RECT* rect, int dx, int dy);
PLATFORM_API BOOL InflateRect(RECT* rect, int dx, int dy);
PLATFORM_API BOOL IsRectEmpty(const RECT* rect);
PLATFORM_API BOOL EqualRect(const RECT* a, const RECT* b);
PLATFORM_API BOOL IntersectRect(RECT* to, const RECT* a, const RECT* b); // FALSE and empty: nothing in common
PLATFORM_API BOOL UnionRect(RECT* to, const RECT* a, const RECT* b);     // an empty one does not count
}

#endif
