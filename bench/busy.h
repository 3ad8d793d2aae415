#ifndef BENCH_BUSY_H
#define BENCH_BUSY_H

#include <benchmark/benchmark.h>

#include <cstdio>
#include <cstdlib>
#include <ctime>
#include <string>

// Processor time, so that other programs on the machine do not count: this program's own, and that of the
// display server that paints for it. On one processor with nothing else to do it is the time that passes.
namespace busy {

// Of another process: the first number of its schedstat is nanoseconds. 0 when there is none.
inline double other_seconds(const char* process) {
    if (!process) return 0;
    long long nanoseconds = 0;
    if (std::FILE* file = std::fopen(("/proc/" + std::string(process) + "/schedstat").c_str(), "r")) {
        if (std::fscanf(file, "%lld", &nanoseconds) != 1) nanoseconds = 0;
        std::fclose(file);
    }
    return static_cast<double>(nanoseconds) / 1e9;
}

inline double seconds() {
    std::timespec own;
    clock_gettime(CLOCK_PROCESS_CPUTIME_ID, &own);
    return static_cast<double>(own.tv_sec) + static_cast<double>(own.tv_nsec) / 1e9 +
           other_seconds(std::getenv("BENCH_DISPLAY_SERVER"));
}

// Does a batch of pieces of work again and again, for a benchmark with UseManualTime.
template <typename Work>
void measure(benchmark::State& state, int batch, Work work) {
    const double before = seconds();
    while (state.KeepRunningBatch(batch))
        work();
    state.SetIterationTime(seconds() - before);
    state.SetItemsProcessed(state.iterations());
}

} // namespace busy

#endif
