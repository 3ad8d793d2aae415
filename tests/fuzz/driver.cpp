// Runs a fuzz target on seeded inputs, for a while or for a number of them.
//
//   TARGET [--runs N] [--seconds S] [--seed N]
//
// Without --runs it stops after --seconds, 3 by default. Input n of seed s is input 0 of seed s + n; a
// finding prints the seed that shows it at once: TARGET --runs 1 --seed N.

#include <chrono>
#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <random>
#include <vector>

#include "input.h"

#ifdef __SANITIZE_ADDRESS__
// The sanitizer looks these up in the program.
#define ASKED_BY_SANITIZER extern "C" __attribute__((visibility("default")))
extern "C" void __sanitizer_set_death_callback(void (*)());
// A block that no control can need fails as it does on a machine that is full.
ASKED_BY_SANITIZER const char* __asan_default_options() {
    return "allocator_may_return_null=1:max_allocation_size_mb=4";
}
ASKED_BY_SANITIZER const char* __lsan_default_options() { return "print_suppressions=0"; }
// What fontconfig keeps for the process, and what this release of raqm forgets of each text's features.
ASKED_BY_SANITIZER const char* __lsan_default_suppressions() {
    return "leak:libfontconfig\nleak:raqm_add_font_feature\n";
}
#endif

namespace {

unsigned long long first_seed = 1;
unsigned long long current_seed = 0;

void tell_finding() {
    std::fprintf(stderr, "found with --runs 1 --seed %llu, or with --runs %llu --seed %llu\n", current_seed,
                 current_seed - first_seed + 1, first_seed);
    std::puts("0 passed, 1 failed");
    std::fflush(stdout);
}

void at_signal(int number) {
    std::signal(number, SIG_DFL);
    tell_finding();
    std::raise(number);
}

void watch() {
    std::signal(SIGABRT, at_signal);
#ifdef __SANITIZE_ADDRESS__
    __sanitizer_set_death_callback(tell_finding);
#else
    std::signal(SIGSEGV, at_signal);
#endif
}

std::vector<std::uint8_t> make_input(unsigned long long seed) {
    std::mt19937_64 random(seed);
    // Short ones find most, long ones the rest.
    const std::size_t size = random() % (random() % 4 ? 200 : 4000);
    std::vector<std::uint8_t> bytes(size);
    for (std::uint8_t& byte : bytes)
        byte = static_cast<std::uint8_t>(random());
    return bytes;
}

unsigned long long option(int argc, char** argv, const char* name, unsigned long long standard) {
    for (int i = 1; i + 1 < argc; i++)
        if (std::strcmp(argv[i], name) == 0) return std::strtoull(argv[i + 1], nullptr, 10);
    return standard;
}

} // namespace

int main(int argc, char** argv) {
    first_seed = option(argc, argv, "--seed", 1);
    const unsigned long long runs = option(argc, argv, "--runs", 0);
    const std::chrono::seconds limit(option(argc, argv, "--seconds", 3));
    std::printf("seed %llu\n", first_seed);
    std::fflush(stdout);
    watch();
    const auto start = std::chrono::steady_clock::now();
    unsigned long long done = 0;
    while (runs ? done < runs : std::chrono::steady_clock::now() - start < limit) {
        current_seed = first_seed + done++;
        const std::vector<std::uint8_t> input = make_input(current_seed);
        LLVMFuzzerTestOneInput(input.data(), input.size());
    }
    std::printf("%llu inputs\n1 passed, 0 failed\n", done);
}
