#ifndef GALLERY_COMMAND_LINE_H
#define GALLERY_COMMAND_LINE_H

#include <string>

#include <brask/texts.h>

#include "page.h"

// A console with a small command line.
class CommandLine {
  public:
    CommandLine();
    ~CommandLine();
    void layout(HWND wnd, const Area& area);
    void draw();
    // A press on a line of output puts it into the editor.
    void pointer(int word);
    void wheel(int notches);
    void key(int key);
    void note(const std::wstring& line); // writes a line of somebody else
    void show_traces();                  // those that were collected
    void each(const Visitor& visit) const { visit("command-line", console); }

  private:
    struct Command {
        const wchar_t* name;
        const wchar_t* arguments;
        const wchar_t* help;
        void (CommandLine::*run)(const std::wstring& arguments);
    };
    static const Command commands[];
    struct Kind { // of a value that `read` asks for
        const wchar_t* name;
        DWORD flag;
    };
    static const Kind kinds[];

    void say(const std::wstring& line);
    void write(const std::wstring& line);
    void run(const std::wstring& line);
    void take(const std::wstring& line);
    void pick();
    bool on_slider();

    void help(const std::wstring&);
    void colors(const std::wstring&);
    void log(const std::wstring& arguments);
    void dir(const std::wstring& arguments);
    void font(const std::wstring& arguments);
    void read(const std::wstring& arguments);
    void trace(const std::wstring& arguments);
    void popup(const std::wstring& arguments);
    void echo(const std::wstring& arguments);
    void clear(const std::wstring&);

    Texts console;
    std::string family;          // what console.Font_Name points at
    const Kind* asked = nullptr; // the value that is being read; null: a command
};

#endif
