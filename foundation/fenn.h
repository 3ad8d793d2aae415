#ifndef BRASK_FENN_H
#define BRASK_FENN_H

#include <brask/export.h>
#include <brask/platform.h>

// The drawing contract: everything that the controls ask of the layer under them. Lib_Fenn keeps it;
// another library that defines the same names can take its place at link time.
//
// Coordinates are window pixels, origin at the lower left, Y upward; rectangles are left, top, right,
// bottom. Colours are drawing words, 0xAABBGGRR, of which the low 32 bits count; 1 stands for black.
// Surfaces are arrays of words 0xAARRGGBB, top row first, as wide as the image.
//
// Everything here belongs to the thread of the window, apart from the reports and the strings' converters,
// which any thread may use.

// --- Data ---
extern FENN_API HWND hwnd;                    // the application's main window, for reports; may be null
extern FENN_API wchar_t* W_Inst_Path;         // installation folder, ends in a separator; may be null
extern FENN_API wchar_t* W_Prog_Name;         // the program's name; may be null
extern FENN_API HDC Zeb_DC;                   // inside a bracket: its device context, Y upward; else null
extern FENN_API DWORD Current_Color;          // the last colour given to Zeb_color
extern FENN_API wchar_t Kelvar_Err_Str[1024]; // text of the last error

// A picture read from a file. Data is malloc'ed, top row first; free it with IGB_Free.
struct IGB_data {
    unsigned char* Data;
    short Dim_X;
    short Dim_Y;
    short Channels; // 1: grey; 4: blue, green, red, alpha
};

// One sub-folder of a scanned folder; the list ends with Type 0.
struct Dir_Ulmen {
    DWORD Type;              // not 0
    unsigned char No_Access; // not 0: the folder cannot be entered
    wchar_t* Name;           // the list's, until Scan_Free
};

// --- Bracket: every drawing call lies between setup and release; brackets are never nested ---
// Makes the window the target, without a clip and with the pen at 0, 0. A null window paints nothing. `tag`
// is the caller's name, for diagnostics; may be null.
FENN_API void Zeb_setup(HWND wnd, const char* tag);
FENN_API void Zeb_release();
FENN_API int Zeb_test();                           // not 0 inside a bracket
FENN_API HDC Zeb_GetDC(HWND wnd, const char* tag); // for measuring, apart from the bracket; give it back
FENN_API void Zeb_ReleaseDC(HWND wnd, HDC dc);

// --- State ---
FENN_API void Zeb_color(unsigned long word);                     // of the lines and fills that follow
FENN_API void Zeb_set_clip(int x, int y, int width, int height); // lower left corner and size; a
                                                                 // negative size clips everything
FENN_API void Zeb_reset_clip();

// --- Shapes ---
FENN_API void move2s(unsigned int x, unsigned int y);           // a wrapped value means the negative one
FENN_API void draw2s(unsigned int x, unsigned int y, int mode); // a line from the pen, which ends there: its
                                                                // end point is not painted; mode is 0
FENN_API void draw_rectangle(int left, int top, int right, int bottom);      // outline on those coordinates
FENN_API void draw_fill_rectangle(int left, int top, int right, int bottom); // columns left to right - 1,
                                                                             // rows bottom + 1 to top
FENN_API void draw_polygon(int count, const int* xs, const int* ys); // through the points as given: the
                                                                     // caller repeats the first to close it
FENN_API void draw_fill_polygon(int count, const int* xs, const int* ys);
// Copies a window of a surface to the screen, its lower left corner at x, y; the source point counts from
// the upper left. Only the part inside the image is copied. background 0: a plain copy; else a drawing word
// for the blending of an icon, whose top byte is 255 where it is opaque and 0 where the background shows.
FENN_API void draw_image(const char* pixels, int x, int y, int source_x, int source_y, int width, int height,
                         int image_width, int image_height, unsigned int background);

// --- Text, inside a bracket; a null font means arial 12 ---
FENN_API void Zeb_Font_Color(unsigned long text, unsigned long back); // of the writes that follow; back is 0
FENN_API int Zeb_Font_Size_Height(HFONT font);                        // line height, pixels
FENN_API int Zeb_Font_Size_String(HFONT font, const wchar_t* text);   // width, pixels
FENN_API int Zeb_Font_Size_String(HFONT font, const char* text);
FENN_API int Zeb_Font_Write(HFONT font, int x, int y, const wchar_t* text); // lower left corner; gives the
                                                                            // width written

// --- Pointer ---
// Both inside a bracket, for its window. What set_curs last gave for it, or the platform's pointer until
// then; -1, -1 without a window. Each argument may be null.
FENN_API POINT read_curs(int* x, int* y);
FENN_API POINT read_curs(unsigned short* x, unsigned short* y);
// Client coordinates, Y downward, as a message gives them. Outside of a bracket it does nothing.
FENN_API void set_curs(int x, int y);

// --- Reports: printf style, %ls wide and %hs narrow in both. Work before main, and with a null window ---
// The result is not 0 when somebody heard it.
FENN_API int Error_Fct(HWND wnd, unsigned int code, const char* format, ...);
FENN_API int Error_Fct(HWND wnd, unsigned int code, const wchar_t* format, ...);
FENN_API wchar_t* Error_Perror(int number); // the system's text for an errno value

// --- Strings and paths. A converted string belongs to the layer until the next call ---
FENN_API wchar_t* Char_2_Wchar(const char* text); // UTF-8; a stray byte becomes U+0080 to U+00FF
FENN_API char* Wchar_2_Char(const wchar_t* text); // to UTF-8
FENN_API wchar_t* Str_To_Lower(wchar_t* text);    // in place; gives its argument
// Rewrites a path to an absolute one with a separator at its end, in place, in a buffer of 2048 characters.
// What it puts in front is in lower case, and the disk is not asked. 0, and the path as it was, when the
// result does not fit.
FENN_API int Path_To_Abs(wchar_t* path);
// Splits a path; each output may be null, else has room for 771 characters: folder with its separator, file
// name, file name without its ending.
FENN_API void Get_Generic_Name(char* path, char* folder, char* file, char* bare);

// --- Colour conversion ---
// Everything 0..1, the hue from red over green (1/3) and blue (2/3) back to red. Each output may be null.
FENN_API void RGB_to_HLS(float r, float g, float b, float* h, float* l, float* s);
FENN_API void HLS_to_RGB(float h, float l, float s, float* r, float* g, float* b);

// --- Files ---
// .rgb and .tga pictures into `image`; 0, an empty image and errno when it failed: EINVAL for content that is
// damaged, not served, or of more than 32,767 by 32,767 or 2^26 pixels. A .rgb has the channels of its file
// (2: grey, alpha; 3: blue, green, red), a .tga 1 or 4. `unused` is null.
FENN_API int IGB_Read_Image(const wchar_t* file, IGB_data* image, void* unused);
FENN_API int TGA_Read_Image(const wchar_t* file, IGB_data* image, void* unused);
FENN_API void IGB_Free(IGB_data* image);
// Lists the sub-folders of a folder, links to folders included, in the order of their lower-case names; "."
// and ".." are left out. `count`, which may be null, gets their number. Null, with errno set, when the folder
// cannot be listed; free the list with Scan_Free.
FENN_API Dir_Ulmen* Scan_Dir(const wchar_t* folder, int* count);
FENN_API void Scan_Free(Dir_Ulmen* list);
// Not 0: the folder has a sub-folder whose name does not begin with ".". 0, with errno set, when it cannot be
// listed.
FENN_API int Is_Tree(const wchar_t* path);

#endif
