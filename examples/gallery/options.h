#ifndef GALLERY_OPTIONS_H
#define GALLERY_OPTIONS_H

#include <string>

// What the command line asks for.
struct Options {
    std::string page;     // name of the page to show; empty: the first
    std::string snapshot; // folder for pictures of every page; empty: open a window
    std::string folder;   // what the page of files starts with; empty: the user's own
    int width = 1280;     // client area, pixels
    int height = 800;
    bool trace = false;   // print the trace lines
    bool layout = false;  // print where every control stands, and leave
    bool builtin = false; // write all text in the built-in font
    bool help = false;
};

// Reads the command line. Empty, or what is wrong with it.
std::string options_read(Options& options, int argc, char** argv);
// The help text.
std::string options_help();

#endif
