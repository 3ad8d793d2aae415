#ifndef BRASK_TEXTS_H
#define BRASK_TEXTS_H

#include <cstddef>

#include <brask/sliders.h>
#include <brask/tools.h>

// --- Flags of a console, beside OUTIL_INVISIBLE, OUTIL_DISABLE, OUTIL_EMPTY and GRAPH_OUTLINE ------------
// Its sliders get all of its flags, whatever these mean to a slider: TEXTS_HEX is OUTIL_REVERSE there.
inline constexpr DWORD TEXTS_READ_STRIP = 0x00200000;  // the strip keeps its room while nothing is read
inline constexpr DWORD TEXTS_PASSWORD = 0x00400000;    // the editor shows # for every character
inline constexpr DWORD TEXTS_INTEGER = 0x01000000;     // takes digits, + and -
inline constexpr DWORD TEXTS_FLOAT = 0x02000000;       // takes digits, +, -, . and e
inline constexpr DWORD TEXTS_HEX = 0x04000000;         // takes hexadecimal digits
inline constexpr DWORD TEXTS_CURSOR_H = 0x10000000;    // has a horizontal slider, at the foot
inline constexpr DWORD TEXTS_CURSOR_V = 0x20000000;    // has a vertical slider, at the left
inline constexpr DWORD TEXTS_REPORT_KEYS = 0x40000000; // every edit can be collected with Update
inline constexpr DWORD TEXTS_FIELD = 0x80000000;       // an entry field: the strip is the whole control

// --- Bits of flag_read ---------------------------------------------------------------------------------
inline constexpr signed char TEXTS_READING = 1; // the editor is active
inline constexpr signed char TEXTS_ENTERED = 2; // a line was completed with Enter and waits for Update
inline constexpr signed char TEXTS_CHANGED = 4; // the text changed (TEXTS_REPORT_KEYS); waits for Update

// A console: a log of at most 8192 lines, the newest at the foot, and under it a line editor with a history
// of 50 lines, which is active between Read and the end of the line. Lines do not wrap.
//
// Characters of a line whose low byte is 1 to 6 are not shown but change the colour of what follows in it
// (blue, black, white, red, yellow, green), 240 to 242 the font (regular, bold, slanted).
//
// The editor is fed by the host: each code of Parse_Keyboard goes to Input, and Update is asked for a
// finished line afterwards. A wheel goes to Scroll, every mouse message to Select; the editor shows its
// caret while the pointer is on the console.
//
//   console.Flag = TEXTS_CURSOR_V | TEXTS_READ_STRIP;
//   console.Init(wnd);
//   console.Draw();
//   console.Write("%d files", count);
//   console.Read((const char*)0);
//   ...
//   console.Input(Parse_Keyboard(wnd, message, wParam, lParam));
//   if (char* line = console.Update()) run(line), console.Read((const char*)0);
//
// A text given as a format may come from anywhere only as the argument of a "%s" of its own.
class BRASK_API Texts : public Tools {
  public:
    int Cursor_Dim;          // thickness of the sliders, pixels; sign ignored; 0: CURSEUR
    signed char flag_read;   // reading state: the bits TEXTS_READING, TEXTS_ENTERED, TEXTS_CHANGED
    wchar_t Edit_Line[1024]; // the line under edit, ended by 0; at most 1022 characters are typed
    int select;        // 0 at first, 1 pointer inside (the caret is shown), 2 outside; kept by the console
    int Font_Dim_X;    // width of an "H" in the console's font, pixels; made by Init
    int Font_Dim_Y;    // height of a line, pixels; made by Init
    wchar_t** Lines;   // the log: 8192 strings, the newest first, null where there is none; owned, from
                       // malloc as its strings are; null until the first line
    wchar_t** History; // 50 entered lines, the newest first; otherwise as Lines
    int* Line_Width;   // 8192 widths of Lines, pixels; made by painting, 0 for what was never in view
    Sliders Cursor_V;  // scrolls by pixels, 0 is the newest line; laid out by Init and Write
    Sliders Cursor_H;
    int Hist_Pos;         // how far Up has walked: the entry behind the one shown
    int Edit_Pos;         // caret: index in Edit_Line
    int Read_X1, Read_X2; // the editor's strip: left, right,
    int Read_Y2, Read_Y1; // top and bottom, window pixels; made by Init

    Texts();
    // A copy shares log, history and widths with its source: only one of the two may be destroyed while it
    // has them, and the host sees to that.
    Texts(const Texts& other);
    Texts& operator=(const Texts& other);
    ~Texts();

    // Binds the console to its window, measures the font, lays out strip and sliders. wnd null keeps the
    // window; a black Color becomes the grey (170, 170, 170). Log, history and reading stay. Call it after
    // any change of size, font, Border or of the sliders' flags.
    void Init(HWND wnd);
    // Paints the whole console. Needs Init.
    void Draw();

    // --- The log ---
    // Adds a line (printf style, %ls wide and %hs narrow; %s is of the format's kind; narrow text is UTF-8)
    // and repaints; a line feed begins a further one. At most 1023 characters, the rest is cut. The sliders
    // go back to the newest line, though the log shows this only at its next repaint. Before Init, and with a
    // null format, nothing happens; with OUTIL_DISABLE the text is dropped. A line for which there is no
    // memory is lost.
    void Write(const char* format, ...);
    void Write(const wchar_t* format, ...);
    // The same, but the text takes the place of the newest line: for a progress message. No trace.
    void OverWrite(const char* format, ...);
    void OverWrite(const wchar_t* format, ...);
    // Scrolls: 0 is the oldest end, the number of lines the newest. Only with TEXTS_CURSOR_V.
    void Center(int line);
    // Frees log and history and ends reading. Paints no log: call Draw.
    void Cleanup();
    // The line under the pointer with its marks, or null; one buffer of 1024 characters serves all consoles,
    // until the next call.
    wchar_t* Read_Line();

    // --- The editor ---
    // Begins to read a line; the formatted text, at most 1023 characters, is there at first; null for none.
    // The caret goes behind it, but stays where it is when TEXTS_REPORT_KEYS is set and the console was
    // reading. What waited for Update is dropped. Repaints.
    void Read(const char* format, ...);
    void Read(const wchar_t* format, ...);
    void Read(std::nullptr_t);
    // Takes one key code of Parse_Keyboard while reading; any value is harmless. Enter completes the line,
    // which goes into the log (unless TEXTS_FIELD) and the history; Escape ends reading without one; Up and
    // Down walk the history; Ctrl+V types what the clipboard holds, in which a line break is Enter.
    void Input(int key);
    // The line that waits, and null if none does. A completed line ends reading; a reported edit goes on.
    // The narrow form is UTF-8 and good until the next conversion; a `wide` other than 0 gives Edit_Line
    // itself.
    char* Update();
    void* Update(char wide);

    // --- The pointer ---
    // Follows the pointer for one event word (see Tools); 1 when it is on the console. On a slider it
    // scrolls. dx and dy, not 0, move the sliders by so many pixels while the pointer is on the console.
    // KEY_QUERY is an event like others here.
    int Select(int mode, int dx = 0, int dy = 0);
    // Takes the caret away and ends a press on the vertical slider.
    void Deselect();
    // A wheel's step of `n` notches: the horizontal slider if the pointer is on it, else the vertical one.
    void Scroll(int n);

  private:
    // The stores: n 0 empties the newest place of the log, n above 0 makes room for n new entries; both make
    // the store if there is none, and without memory there is none afterwards either.
    void Scroll_1(int n); // the log
    void Scroll_2(int n); // the history
    void Free_Stores();
    // Puts a line in front of a store, in which scroll(n) makes room; false without memory.
    bool Put_Line(wchar_t** Texts::*store, void (Texts::*scroll)(int), int n, const wchar_t* text,
                  std::size_t length);
    // Puts the lines of a text into the log, the first of them by Scroll_1(n).
    void Store(const wchar_t* text, int n);
    // The same with the repaint; gives the way out.
    const char* Put(const wchar_t* text, int n);
    // Repaints the log where it is in view and measures its lines.
    void Re_Write();
    // The log, and while reading the strip with its frame.
    void Paint_Inside();
    // Hands the pointer to a slider; whether that has it. While it is dragged, the log follows.
    bool Scrolls(Sliders& slider, int event);
    // Moves a slider by so many pixels, and the log with it.
    void Shift(Sliders& slider, int way);
    // Fits both sliders to the lines and their widths; paints one with nothing to scroll.
    void Rescale_Cursor();
    // Paints the strip with `text` and the caret before its character `pos`.
    void Read_Echo(const wchar_t* text, int pos);
    // The same for the line under edit; and after a change, which is reported to the host.
    void Echo();
    void Echo_Change();
    // What a key does that is not refused; these two give the way out.
    const char* Take(int key);
    const char* Type(wchar_t character);
    void Enter();
    void Give_Up();
    void Paste();
};

#endif
