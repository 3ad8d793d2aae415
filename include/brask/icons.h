#ifndef BRASK_ICONS_H
#define BRASK_ICONS_H

#include <brask/boxs.h>
#include <brask/export.h>

// Small pictures and glyphs drawn into the area of a box. Pictures come from files in the folder "Icons\" of
// the installation (W_Inst_Path) and stay in a process-wide cache; glyphs are drawn by hand from lines and
// need no file. What is missing or faulty leaves its place empty and never stops the host.
//
// Of the box each operation needs Pos_X, Pos_Y, Dim_X, Dim_Y, Wnd and Color; nothing is written to it. A null
// box draws nothing. Use them from the thread of the box's window.
//
// "Inside a bracket" says that the caller has opened Zeb_setup, and closes it.

// One picture of the cache. It belongs to the cache and stays until Icon_Cleanup.
struct Icon_Entry {
    wchar_t* Name;   // the file name as asked for
    int Dim_X;       // width, pixels
    int Dim_Y;       // height, pixels
    BYTE* Data;      // blue, green, red, alpha of each pixel, top row first; alpha 255 is opaque, 0 lets the
                     // background show. Null: the file could not be read, and is not tried again
    BYTE* Data_Swap; // the same pixels as red, green, blue, alpha; for the host, not drawn here
};

// The picture of that name, an Icon_Entry; null when it cannot be read, and beyond 255 names. Names are told
// apart exactly. A name with ".tga" in it anywhere is read as an uncompressed 24 bit .tga, in which pure blue
// is transparent; any other name as an .rgb file with four channels, whose fourth is transparency (0 opaque).
// May be called inside a bracket: for the time of a read it is closed, and opened again with the box as its
// clip rectangle. box may be null: then no bracket may be open.
BRASK_API void* Icon_Read(const Boxs* box, const wchar_t* name);
// Forgets all pictures and frees them. What Icon_Read gave before is no longer valid.
BRASK_API void Icon_Cleanup();

// Inside a bracket. The picture with its lower left corner at x, y, blended with the box's Color; nothing
// when all of it lies outside of the box. prog is not used.
BRASK_API void Icon_Draw_Image(const Boxs* box, int x, int y, const wchar_t* prog, const wchar_t* name);
// Inside a bracket. A thin bevel around such a picture: dark below and right, white above and left.
BRASK_API void Icon_Draw_Border(const Boxs* box, int x, int y, const wchar_t* prog, const wchar_t* name);

// Inside a bracket. A closed and an open folder, 16 by 13 pixels with the lower left corner at x, y; the flap
// of the open one reaches 2 pixels further left. select not 0: red instead of yellow.
BRASK_API void Icon_Dir_Close(const Boxs* box, int x, int y, char select);
BRASK_API void Icon_Dir_Open(const Boxs* box, int x, int y, char select);

// Inside a bracket. What stands in front of a row of a tree: x1, x2 are left and right of the cell, y1, y2
// bottom and top of the row. c counts for a leaf alone.
// A branch that is closed: a plus.
BRASK_API void Icon_Lead_Collapse(const Boxs* box, char c, int x1, int x2, int y1, int y2);
// A branch that is open: a minus.
BRASK_API void Icon_Lead_Expand(const Boxs* box, char c, int x1, int x2, int y1, int y2);
// Nothing to open. c not 0: the line goes on below.
BRASK_API void Icon_Lead_Leaf(const Boxs* box, char c, int x1, int x2, int y1, int y2);
// Cannot be opened: a forbidden sign.
BRASK_API void Icon_Lead_No_Access(const Boxs* box, char c, int x1, int x2, int y1, int y2);

// Symbols of `size` pixels with the lower left corner at x, y. Each opens its own bracket, with the box as
// its clip rectangle.
BRASK_API void Icon_Close(const Boxs* box, int size, int x, int y);     // a red cross
BRASK_API void Icon_Collapse(const Boxs* box, int size, int x, int y);  // a white box with a plus
BRASK_API void Icon_Expand(const Boxs* box, int size, int x, int y);    // a white box with a minus
BRASK_API void Icon_No_Access(const Boxs* box, int size, int x, int y); // a red circle with a slash

#endif
