#ifndef SUPPORT_RECORDER_STATE_H
#define SUPPORT_RECORDER_STATE_H

#include <cstdio>

#include "recorder.h"

// What the recorder's own files share.
namespace recorder {

struct Metrics {
    int height, width;
};

struct State {
    std::vector<Line> lines;
    unsigned heard = kEverything; // kinds of lines that are kept
    std::map<const void*, std::string> names;
    std::map<HFONT, Metrics> metrics;
    Picture* picture = nullptr;
    POINT pointer = {-10000, -10000};
    int client_height = 600;
    bool open = false;  // between Zeb_setup and Zeb_release
    bool blind = false; // the bracket's window is null: nothing is painted
    bool clipped = false;
    bool stepped_out = false; // released with the clip set: only the reading of icons may, which comes back
    bool measuring = false;   // between Zeb_GetDC and Zeb_ReleaseDC
    unsigned long text_color = 1;
    std::map<std::wstring, File> files;
    int reason = 2; // ENOENT
    int held = 0;
};

State& state();
void reset_folders();
void breach(const std::string& what);
std::string escaped(const std::string& text); // control characters written out

// One line of a call: numbers as they are, texts already in their form.
template <typename... Arguments>
void call(Kind kind, const char* format, Arguments... arguments) {
    if (!(state().heard & kind)) return;
    char line[512];
    std::snprintf(line, sizeof line, format, arguments...);
    note(kind, line);
}

// The picture to paint on, null when there is none or the bracket paints nothing.
Picture* picture();
// Tells a breach when the call is made outside of a bracket.
void inside(const char* operation);

} // namespace recorder

#endif
