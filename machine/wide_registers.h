#ifndef MACHINE_WIDE_REGISTERS_H
#define MACHINE_WIDE_REGISTERS_H

// Whether eight pixels can be worked on at once. Asked of the processor itself: the compiler's own question
// brings the names of all processors with it, four kilobytes for each library.

#if defined(__x86_64__) && defined(__ELF__) // elsewhere the stack need not be aligned for such registers
#define MACHINE_WIDE __attribute__((target("avx2")))
#include <cpuid.h>
#include <immintrin.h>

namespace machine {

// Of the processor, and of the system, which has to keep their upper halves for each program.
inline bool ask_wide_registers() {
    constexpr unsigned BOTH_HALVES = 6;
    unsigned a, b, c, d;
    if (!__get_cpuid(1, &a, &b, &c, &d) || !(c & bit_OSXSAVE)) return false;
    unsigned kept, kept_high;
    __asm__("xgetbv" : "=a"(kept), "=d"(kept_high) : "c"(0));
    if ((kept & BOTH_HALVES) != BOTH_HALVES) return false;
    return __get_cpuid_count(7, 0, &a, &b, &c, &d) && (b & bit_AVX2);
}

inline bool wide_registers() {
    static const bool there = ask_wide_registers();
    return there;
}

} // namespace machine

#else

namespace machine {
inline constexpr bool wide_registers() { return false; }
} // namespace machine

#endif

#endif
