#ifndef BENCH_FIRST_FRAME_H
#define BENCH_FIRST_FRAME_H

#include <cstdio>

// Between a program that is measured from its start to its first frame and `launch`, which measures it.

// The frame is there: tells it, and stays until the measures are taken.
inline void first_frame_painted() {
    std::putchar('!');
    std::fflush(stdout);
    std::getchar();
}

#endif
