#ifndef BRASK_TOOLS_H
#define BRASK_TOOLS_H

#include <cstddef>

#include <brask/colors.h>
#include <brask/export.h>
#include <brask/platform.h>

// The base of every control, the flags that controls share, and the metrics of the whole library.

// --- Flags shared by several controls -----------------------------------------------------------------
// A control's own flags stand in its header. One word holds them all, so a bit may mean different things
// to different classes.
inline constexpr DWORD OUTIL_INVISIBLE = 0x1;     // nothing is painted; Select still reports hits
inline constexpr DWORD OUTIL_DISABLE = 0x2;       // cannot be operated; shows the normal look
inline constexpr DWORD OUTIL_VERTICAL = 0x4;      // runs along the Y axis; Tools::Text stacks its letters
inline constexpr DWORD OUTIL_EMPTY = 0x10;        // no face: no surface is built, nothing fills the inside
inline constexpr DWORD GRAPH_OUTLINE = 0x20;      // one blue rectangle instead of bevel and face
inline constexpr DWORD OUTIL_FLAT = 0x40;         // generated faces are flat
inline constexpr DWORD OUTIL_NO_FRAME = 0x80;     // no bevel at Draw (boxes and buttons)
inline constexpr DWORD TEXT_MIDDLE = 0x100;       // vertical middle; keeps a box's title from the top
inline constexpr DWORD TEXT_TOP = 0x200;          // against the top edge
inline constexpr DWORD TEXT_BOTTOM = 0x400;       // against the bottom edge
inline constexpr DWORD TEXT_LEFT = 0x2000;        // against the left edge
inline constexpr DWORD TEXT_RIGHT = 0x4000;       // against the right edge
inline constexpr DWORD BOX_INSET = 0x10000;       // boxes: a second, inner frame
inline constexpr DWORD ICON_KEEP_RATIO = 0x20000; // Icon: one scale for both axes
inline constexpr DWORD TEXT_WHITE = 0x40000;      // the default text colour is white
inline constexpr DWORD BOX_RAISED = 0x80000;      // boxes: the bevel stands out instead of sinking
inline constexpr DWORD CADRE_NO_LINE = 0x400000;  // Cadre leaves out its dark outer rectangle
// Icon: of these, each keeps the ratio, and those of an axis leave no margin along it.
inline constexpr DWORD ICON_TOP = 0x1000000;      // no margin above and below; the picture is centred
inline constexpr DWORD ICON_BOTTOM = 0x2000000;   // the same, and the picture stands at the lower edge
inline constexpr DWORD ICON_LEFT = 0x4000000;     // no margin left and right; the picture is centred
inline constexpr DWORD ICON_RIGHT = 0x8000000;    // the same, and the picture stands at the right edge
inline constexpr DWORD OUTIL_REVERSE = 0x4000000; // sliders, valuators: the range is given high to low
inline constexpr DWORD OUTIL_CAPTURE = 0x8000000; // sliders, valuators: a press latches the tracking

// --- The event word of Select --------------------------------------------------------------------------
// The low four bits are the event, above them stand the buttons held: 16 left, 32 middle, 64 right.
//   0  no button is pressed: a release, a move with none held, a repaint
//   1  the pointer moved during a press
//   2  a button has just gone down
//   4  KEY_QUERY: a pure hit test that paints and changes nothing and looks at no flag
// The host hands the message's position to the drawing layer with set_curs first.
inline constexpr int KEY_QUERY = 4;

// --- Metrics, pixels ------------------------------------------------------------------------------------
// The host may overwrite them before it lays out its controls; they are read at every use.
extern BRASK_API int BORDER;               // default bevel width, 3
extern BRASK_API int SPACE;                // the usual gap, 6
extern BRASK_API int CURSEUR;              // thickness of a slider, 16
extern BRASK_API int BUT_DIM;              // size of a button, 25
extern BRASK_API int BUT_LIST;             // copy of BUT_DIM taken when the library loads
extern BRASK_API int NUM_DIM;              // for the host's own layouts, 48
extern BRASK_API int VAL_DIM;              // for the host's own layouts, 26
extern BRASK_API int VAL_SMALL;            // for the host's own layouts, 18
extern BRASK_API unsigned char Tool_Looks; // bit 0: every generated face is flat; 0 at load

namespace brask {
struct Host_Surfaces; // inside the library
}

// A control is a plain object with public fields. It has no window, no message handler and no timer: the
// host writes the fields, calls Init(wnd) and Draw(), routes each mouse message to Select, and reads
// values back. Coordinates are window pixels, origin at the lower left, Y upward; rectangles are given
// left, top, right, bottom. An object starts with every field zero. Not thread-safe: use it from the
// thread of its window.
class BRASK_API Tools {
  public:
    DWORD Flag;              // control flags, read at every operation; default 0
    int Pos_X;               // left edge, pixels
    int Pos_Y;               // bottom edge, pixels
    int Dim_X;               // width, pixels; below 1 the control is inert
    int Dim_Y;               // height, pixels; below 1 the control is inert
    const char* Font_Name;   // family; null means "arial"; borrowed
    const char* Font_Weight; // "medium" or "bold"; null means medium; borrowed
    const char* Font_Slant;  // "r", "i" or "o"; null means upright; borrowed
    int Font_Size;           // points at 96 dots per inch; 0 or negative means 12
    int User_Int;            // the host's own; copied, never read
    Colors Color;            // face colour (of Labels: text colour)
    Colors Color_Alt;        // second colour; Labels::Init makes it white when black, nothing reads it
    int Clip_X;              // left edge of the clip rectangle
    int Clip_Y;              // bottom edge of the clip rectangle
    int Clip_Dim_Y;          // height of the clip rectangle
    int Clip_Dim_X;          // width of the clip rectangle; 0: unclipped (this field alone decides)
    DWORD* Graph_Select;     // the host's surface of the selected look, Dim_X by Dim_Y words, top row first;
                             // from malloc, owned by the object; null: a face is generated
    DWORD* Graph_Normal;     // the same for the normal look; may be the same block as Graph_Select
    int Border;              // bevel width, pixels; 0 means BORDER; negative: outer line, no bevel
    void* User_Ptr;          // the host's own; copied, never read
    HWND Wnd;                // the window painted in; set by Init
    DWORD* Image_Select;     // the surface shown while selected; an alias, never freed through this field
    DWORD* Image_Normal;     // the surface shown while not selected; an alias
    RECT Region;             // hit rectangle, made by Init; one pixel wider and higher than the control
    wchar_t* W_Name;         // title text and name in reports; owned; set it with Name_Set
    unsigned char test;      // 1: Init was called; 2: warned of a missing Init; 4: named by Name_Set
    DWORD Old_Color;         // what the last Init saw, so that Init(0) rebuilds only what changed
    int Old_Dim_X;
    int Old_Dim_Y;
    int Old_Border;
    DWORD* Old_Graph_Select;
    DWORD* Old_Graph_Normal;

    Tools();
    // A copy shares every pointer with its source: name, surfaces and font words are not duplicated. The
    // host sees to it that neither is destroyed while the other is in use. Generated faces alone are
    // counted, and safe.
    Tools(const Tools& other);
    Tools& operator=(const Tools& other);
    // Frees the name and the host's surfaces.
    ~Tools();

    // --- Name ---
    // Sets W_Name to the formatted text (printf style, %ls wide, %hs narrow); an empty result leaves it
    // null. 1 on success. 0 for a null format (the name is freed), for more than 1023 characters, and when
    // memory fails.
    int Name_Set(const wchar_t* format, ...);
    // The same from UTF-8; null changes nothing and gives 1. The text itself is the format, without
    // arguments: a conversion in it prints nothing.
    int Name_Set(const char* text);
    // Frees the name; 0.
    int Name_Set(std::nullptr_t);
    // Takes entry `which`, counted from 1, of `table`, and keeps it up to and with its first ":". Out of
    // range, or a null entry: the fallback, through the form above; a null fallback gives 0 and no name.
    int Name_Set(int which, int count, wchar_t* const* table, const char* fallback);
    int Name_Set(int which, int count, wchar_t* const* table, std::nullptr_t);
    // The same with the entry as the format for the arguments, and `format` when there is no entry. No
    // colon rule.
    int Name_Set(int which, int count, wchar_t* const* table, const wchar_t* format, ...);
    // W_Name; may be null; stays the object's.
    wchar_t* Name_Get();
    // The place, counted from 1, of the first entry equal to the name; 0 when there is none.
    int Name_Get(int count, wchar_t* const* table);
    // Frees p and gives null, for `p = Free(p)`.
    void* Free(void* p);

    // --- Colour and surfaces ---
    unsigned int Color_Get() const;                                    // Color as a drawing word
    void Color_Set(unsigned char r, unsigned char g, unsigned char b); // A becomes 0
    void Color_Set(unsigned int word);                                 // drawing word; A stays
    void Color_Set(Colors color);                                      // A stays
    // Gives the control a surface of its own, Dim_X by Dim_Y, filled with a surface word. 1, or 0 with a
    // report when memory fails or the size is beyond any screen (more than 64 million pixels). A size below
    // 1 gives 1 and nothing to paint on. A surface made here is not shown at another size than it was made
    // for: the control looks flat then.
    int Alloc_Graph_Normal(unsigned long word);
    int Alloc_Graph_Select(unsigned long word);
    // A new shaded surface of the control's size, darkest at the upper left; flat with OUTIL_FLAT or
    // Tool_Looks. From malloc, the caller's to free; null when memory fails or the size is beyond any screen.
    DWORD* Inside_3D(Colors color);

    // A new face with a picture on it: a surface of the control's size as Inside_3D(color) makes it, and over
    // it the picture of a file, centred, or placed by the ICON_ flags. One that does not fit into the
    // control, less its bevel or at least 9 pixels along each axis, is shrunk; none is enlarged. `folder`
    // ends in its separator, and may be of 770 characters together with the name. A name with ".tga" in it
    // anywhere is read as a .tga file, any other as an .rgb file. Grey pictures (one channel) leave out their
    // first pixel's value if that is 250 or more, else black; coloured ones (four) mix by their fourth
    // channel, 255 being opaque. From malloc, the caller's: a Graph_Normal or Graph_Select to be set before
    // Init, or an image for Fill_Select. Null for a width or height of 0, when the file cannot be read, and
    // when memory fails.
    DWORD* Icon(const wchar_t* folder, const wchar_t* name, Colors color);
    DWORD* Icon(const char* folder, const char* name, Colors color);
    DWORD* Icon(const wchar_t* folder, const char* name, Colors color);

    // --- Painting; each opens and closes its own bracket on Wnd ---
    // x1, x2 are left and right, y1, y2 bottom and top.
    void Clear();                                                  // the whole control in Color
    void Clear(unsigned char r, unsigned char g, unsigned char b); // one row higher than Clear()
    void Clear(unsigned int word);                                 // drawing word; one row higher
    void Clear(Colors color); // ignores its argument and paints in Color; one row higher
    // The bevel: a dark outer line (unless flag has CADRE_NO_LINE) and `width` rings; dir 0 stands out,
    // else it is sunken. A width below 1 paints the line alone. The rings shade Color.
    void Cadre(long flag, int dir, int width, int x1, int x2, int y1, int y2);
    // The outline look: one blue rectangle, a pixel inside.
    void Cadre_Outline(int x1, int x2, int y1, int y2);
    // Fills in Color, unless flag has OUTIL_EMPTY; nothing on an invisible control.
    void Fill(long flag, int x1, int x2, int y1, int y2);
    void Fill_Blue(int x1, int x2, int y1, int y2);
    void Fill_Green(int x1, int x2, int y1, int y2);
    void Fill_Grey(int x1, int x2, int y1, int y2);
    void Fill_Red(int x1, int x2, int y1, int y2);
    void Fill_Yellow(int x1, int x2, int y1, int y2);
    // Copies the inner window of a surface of the control's size; without one (or with one that is known to
    // be of another size) fills, with the highlight colour when `on` is not 0, else with Color. `inset` is
    // the bevel width plus 1.
    void Fill_Select(int on, const char* image, long flag, int inset, int x1, int x2, int y1, int y2);
    // A small bevelled triangle in the middle of the rectangle: dir 0 left, 1 right, 2 down, 3 up; others
    // paint nothing, and neither does a `larg` (its length and width) that is not above `border` (its inset).
    void Arrow(int dir, int border, int larg, int x, int dx, int y, int dy);
    // Writes text inside a rectangle, clipped to it. `flag` places it (TEXT_*); color 0 is the default
    // colour. Characters whose low byte is 1 to 6 change the colour of what follows (blue, black, white,
    // red, yellow, green), 240 to 242 the font (regular, bold, oblique).
    void Text(const wchar_t* text, long flag, int x, int y, int dx, int dy, int border, unsigned int color);

  private:
    friend struct brask::Host_Surfaces;
    // Addresses that are only compared, never followed.
    struct Made {
        const DWORD* Block;
        int Dim_X, Dim_Y;
    };
    Made Made_Select; // what Alloc_Graph_Select made last: it must not be read at another size
    Made Made_Normal;
    const DWORD* Gone_Select; // a block that the last Init saw and Alloc_Graph_* freed: a view on it shows
    const DWORD* Gone_Normal; // what took its place
};

#endif
