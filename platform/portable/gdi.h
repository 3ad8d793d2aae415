#ifndef PLATFORM_PORTABLE_GDI_H
#define PLATFORM_PORTABLE_GDI_H

#include "types.h"

// Drawing objects and the questions that may be put to a device context.

struct LOGFONTW {
    LONG lfHeight; // negative: height of the letters in pixels; positive: height of the line
    LONG lfWidth;
    LONG lfEscapement;
    LONG lfOrientation;
    LONG lfWeight; // 700 bold
    BYTE lfItalic;
    BYTE lfUnderline;
    BYTE lfStrikeOut;
    BYTE lfCharSet;
    BYTE lfOutPrecision;
    BYTE lfClipPrecision;
    BYTE lfQuality;
    BYTE lfPitchAndFamily;
    WCHAR lfFaceName[32];
};
typedef LOGFONTW LOGFONT;

struct XFORM {
    FLOAT eM11, eM12, eM21, eM22, eDx, eDy;
};

enum : int { GM_COMPATIBLE = 1, GM_ADVANCED = 2 };
enum : DWORD { MWT_IDENTITY = 1, MWT_LEFTMULTIPLY = 2, MWT_RIGHTMULTIPLY = 3 };
enum : int { LOGPIXELSX = 88, LOGPIXELSY = 90 };
enum : int { PS_SOLID = 0, PS_NULL = 5 };

extern "C" {
PLATFORM_API HFONT CreateFontIndirectW(const LOGFONTW* font);
PLATFORM_API HPEN CreatePen(int style, int width, COLORREF color);
PLATFORM_API HGDIOBJ SelectObject(HDC dc, HGDIOBJ object);
PLATFORM_API BOOL DeleteObject(HGDIOBJ object);
PLATFORM_API BOOL AngleArc(HDC dc, int x, int y, DWORD radius, FLOAT start, FLOAT sweep);
PLATFORM_API HDC GetDC(HWND wnd);
PLATFORM_API int ReleaseDC(HWND wnd, HDC dc);
PLATFORM_API int GetDeviceCaps(HDC dc, int index);
PLATFORM_API int SetGraphicsMode(HDC dc, int mode);
PLATFORM_API BOOL ModifyWorldTransform(HDC dc, const XFORM* form, DWORD mode);
PLATFORM_API BOOL SetViewportOrgEx(HDC dc, int x, int y, POINT* old);
PLATFORM_API BOOL SetWindowOrgEx(HDC dc, int x, int y, POINT* old);
PLATFORM_API BOOL DPtoLP(HDC dc, POINT* points, int count);
}
#define CreateFontIndirect CreateFontIndirectW

#endif
