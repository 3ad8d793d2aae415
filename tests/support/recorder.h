#ifndef SUPPORT_RECORDER_H
#define SUPPORT_RECORDER_H

#include <map>
#include <string>
#include <vector>

#include <brask/fenn.h>

#include "picture.h"

// The drawing contract kept a second time, for tests. Every call becomes one line of text, such as
//
//   Zeb_setup(WND, "Tools::Cadre")
//   draw_fill_rectangle(10, 40, 61, 9)
//   Zeb_Font_Write(font3, 12, 20, "OK")
//
// and every report one line "[90000029] >>> in  Lib_Brask: ...". Fonts have fixed metrics, the pointer is
// where the test puts it. A caller that breaks the rules of the bracket is told so at once.
namespace recorder {

// What a line is about; kinds may be added to choose several.
enum Kind : unsigned {
    kDraw = 1,    // bracket, colour, clip, shapes, pictures, writing, pointer
    kMeasure = 2, // sizes of texts and fonts
    kReport = 4,  // Error_Fct
    kSystem = 8,  // the platform's functions, as the double of them notes
    kService = 16 // device contexts for measuring, strings, files
};
constexpr unsigned kEverything = 31;

struct Line {
    Kind kind;
    unsigned code; // of a report, else 0
    std::string text;
};

// Forgets the log, names, metrics, pointer and picture; the layer's data is as at the start.
void reset();
// --- The log ---
// Lines of other kinds are not kept from now on: for work so large that its log would be what takes the time.
void listen(unsigned kinds);
void note(Kind kind, const std::string& line, unsigned code = 0);
const std::vector<Line>& log();
void clear();
// The lines of these kinds, one under the other, each with a line end.
std::string text(unsigned kinds = kEverything);
// Reports of this code, without the code in front.
std::vector<std::string> reports(unsigned code);
// Reports other than traces and the font cache's banner, with their codes.
std::string warnings();
// What stands between the parentheses of the last "<<< out Lib_Brask: operation(...)"; "(none)" without one.
std::string exit_tag(const std::string& operation);

// --- Names, so that lines can be read ---
HWND window(int number = 1);                           // WND, WND2, ...
HDC context();                                         // the device context that Zeb_GetDC gives: DC
void name(const void* thing, const std::string& name); // a surface or a font; else told by its address
std::string named(const void* thing);
std::string quoted(const wchar_t* text); // UTF-8 in quotes, with control characters written out
std::string narrow(const wchar_t* text); // UTF-8

// --- What the layer answers ---
void pointer(int x, int y); // window pixels, Y upward
void metrics(HFONT font, int height, int width);

// --- Files: what the readers of pictures deliver; any other path gives none, with this as the reason ---
struct File {
    int width, height, channels;
    std::vector<unsigned char> bytes; // top row first
};
void file(const std::wstring& path, const File& file);
void reason(int number);
int held(); // pictures that were delivered and not given back yet

// --- Folders for Scan_Dir and Is_Tree; full paths with a final backslash, told apart exactly ---
void add_folder(const std::wstring& path);    // and all above it
void remove_folder(const std::wstring& path); // and all under it
// unreadable: Scan_Dir gives null; marked: the folder's entry says so too.
enum class Lock { open, unreadable, marked };
void lock_folder(const std::wstring& path, Lock lock);
int open_lists(); // lists of Scan_Dir that were not given back

// --- The rules of the bracket ---
// Called at each breach; the start prints and aborts.
void on_breach(void (*handler)(const char* what));
bool open(); // inside a bracket now, or stepped out of one

// --- A picture behind the lines; null for none ---
void paint_on(Picture* picture);

} // namespace recorder

#endif
