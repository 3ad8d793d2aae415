#ifndef PLATFORM_PORTABLE_GDI_H
#define PLATFORM_PORTABLE_GDI_H

#include "types.h"

// Drawing objects and the questions that may be put to a device context. A device context of a window draws
// on the window's back buffer; that of no window answers questions and draws nothing.

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

struct LOGPEN {
    UINT lopnStyle;
    POINT lopnWidth; // x alone counts
    COLORREF lopnColor;
};
struct LOGBRUSH {
    UINT lbStyle;
    COLORREF lbColor;
    ULONG_PTR lbHatch;
};

struct XFORM {
    FLOAT eM11, eM12, eM21, eM22, eDx, eDy;
};

enum : int { GM_COMPATIBLE = 1, GM_ADVANCED = 2 };
enum : DWORD { MWT_IDENTITY = 1, MWT_LEFTMULTIPLY = 2, MWT_RIGHTMULTIPLY = 3 };
enum : int { LOGPIXELSX = 88, LOGPIXELSY = 90 };
enum : int { PS_SOLID = 0, PS_NULL = 5 };
enum : UINT { BS_SOLID = 0, BS_NULL = 1 };
enum : int { FW_DONTCARE = 0, FW_NORMAL = 400, FW_BOLD = 700 };

// GetStockObject
enum : int {
    WHITE_BRUSH = 0,
    LTGRAY_BRUSH = 1,
    GRAY_BRUSH = 2,
    DKGRAY_BRUSH = 3,
    BLACK_BRUSH = 4,
    NULL_BRUSH = 5,
    WHITE_PEN = 6,
    BLACK_PEN = 7,
    NULL_PEN = 8,
    SYSTEM_FONT = 13,
    DEFAULT_GUI_FONT = 17,
};
// GetSysColor; with 1 added also in place of a brush
enum : int { COLOR_WINDOW = 5, COLOR_WINDOWTEXT = 8, COLOR_BTNFACE = 15, COLOR_3DFACE = 15 };

extern "C" {
// A handle is never given twice. Null for a null description.
PLATFORM_API HFONT CreateFontIndirectW(const LOGFONTW* font);
PLATFORM_API HPEN CreatePen(int style, int width, COLORREF color);
PLATFORM_API HBRUSH CreateSolidBrush(COLORREF color);
PLATFORM_API HGDIOBJ GetStockObject(int index); // deleting one does nothing
PLATFORM_API DWORD GetSysColor(int index);
// The description of a font, pen or brush; the bytes written, or those needed when `out` is null; 0: no
// object.
PLATFORM_API int GetObjectW(HANDLE object, int size, LPVOID out);
PLATFORM_API HGDIOBJ SelectObject(HDC dc, HGDIOBJ object); // gives the one before; null: no such object
PLATFORM_API BOOL DeleteObject(HGDIOBJ object);

PLATFORM_API HDC GetDC(HWND wnd); // null: the screen
PLATFORM_API int ReleaseDC(HWND wnd, HDC dc);
PLATFORM_API int GetDeviceCaps(HDC dc, int index);                             // resolution: 96 dots per inch
PLATFORM_API int SetGraphicsMode(HDC dc, int mode);                            // gives the one before
PLATFORM_API BOOL ModifyWorldTransform(HDC dc, const XFORM* form, DWORD mode); // needs GM_ADVANCED
PLATFORM_API BOOL SetWorldTransform(HDC dc, const XFORM* form);                // needs GM_ADVANCED
PLATFORM_API BOOL SetViewportOrgEx(HDC dc, int x, int y, POINT* old);
PLATFORM_API BOOL SetWindowOrgEx(HDC dc, int x, int y, POINT* old);
PLATFORM_API BOOL DPtoLP(HDC dc, POINT* points, int count);
PLATFORM_API BOOL LPtoDP(HDC dc, POINT* points, int count);

// Drawing, with the selected pen (one pixel wide whatever its width, or none).
PLATFORM_API BOOL MoveToEx(HDC dc, int x, int y, POINT* old);
PLATFORM_API BOOL LineTo(HDC dc, int x, int y); // the end point is not painted
PLATFORM_API BOOL AngleArc(HDC dc, int x, int y, DWORD radius, FLOAT start, FLOAT sweep);
PLATFORM_API int FillRect(HDC dc, const RECT* rect, HBRUSH brush); // a brush, or COLOR_ constant + 1
}
#define CreateFontIndirect CreateFontIndirectW
#define GetObject GetObjectW

#endif
