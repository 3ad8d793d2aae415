#ifndef BENCH_CONSOLE_LAYOUT_H
#define BENCH_CONSOLE_LAYOUT_H

#include <cstdio>

// The log that every toolkit of the comparison keeps: so many lines in a window, the newest in view, the
// oldest given up beyond what a console holds.
namespace console_layout {

inline constexpr int width = 800;
inline constexpr int height = 600;
inline constexpr int text_pixels = 16;
inline constexpr int lines = 20000;
inline constexpr int kept = 8192;

// About 60 characters, each line another one.
struct Line {
    char text[80];
};
inline Line line(long number) {
    Line line;
    std::snprintf(line.text, sizeof line.text, "%6ld: the quick brown fox jumps over the lazy dog, %9ld",
                  number % 1000000, number * 7919 % 1000000000);
    return line;
}

// Up and down again, so that every step of the wheel moves.
inline bool goes_up(long step) { return step % 2000 < 1000; }

// Sixty characters are typed, then they are taken away again; 0 stands for that.
inline char typed(long step) { return step % 120 < 60 ? static_cast<char>('a' + step % 26) : '\0'; }

} // namespace console_layout

#endif
