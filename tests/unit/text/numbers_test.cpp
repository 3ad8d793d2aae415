// The numbers beside the C library's own.
#include "text/format.h"

#include <gtest/gtest.h>

#include <cfloat>
#include <climits>
#include <cmath>
#include <cstdint>
#include <cstdio>
#include <cstring>
#include <limits>
#include <random>
#include <string>

namespace {

std::string ours(const char* format, ...) {
    char out[4096];
    va_list args;
    va_start(args, format);
    const int length = text::format(out, sizeof out, format, args);
    va_end(args);
    EXPECT_EQ(std::string(out).size(), static_cast<std::size_t>(length));
    return out;
}

template <typename Value>
std::string theirs(const std::string& format, Value value) {
    char out[4096];
    std::snprintf(out, sizeof out, format.c_str(), value);
    return out;
}

// Every combination of flags, widths and precisions in front of a conversion.
template <typename Check>
void each_form(const std::string& conversion, Check check) {
    for (int flags = 0; flags < 32; ++flags) {
        std::string text = "%";
        for (int i = 0; i < 5; ++i)
            if (flags & 1 << i) text += "-+ #0"[i];
        for (const char* width : {"", "1", "7", "20"})
            for (const char* precision : {"", ".", ".0", ".1", ".5", ".17"})
                check(text + width + precision + conversion);
    }
}

template <typename Value>
void compare(const std::string& conversion, std::initializer_list<Value> values) {
    each_form(conversion, [&](const std::string& format) {
        for (const Value value : values)
            ASSERT_EQ(ours(format.c_str(), value), theirs(format, value)) << format;
    });
}

// The C library of Windows has other forms in places; the other system's are taken as the measure.
#ifndef _WIN32

TEST(Numbers, SignedAsTheCLibrary) {
    compare<int>("d", {0, 1, -1, 42, -12345, INT_MAX, INT_MIN});
    compare<int>("i", {0, -7});
    compare<int>("hd", {0, -1, 32767, 32768, 70000});
    compare<int>("hhd", {0, -1, 127, 128, 300});
    compare<long>("ld", {0, -1, LONG_MAX, LONG_MIN});
    compare<long long>("lld", {0, -1, LLONG_MAX, LLONG_MIN});
    compare<std::intmax_t>("jd", {0, INTMAX_MAX, INTMAX_MIN});
    compare<std::ptrdiff_t>("td", {0, PTRDIFF_MAX, PTRDIFF_MIN});
}

TEST(Numbers, UnsignedAsTheCLibrary) {
    for (const char* base : {"u", "o", "x", "X"}) {
        compare<unsigned>(base, {0u, 1u, 8u, 255u, 0xABCDEFu, UINT_MAX});
        compare<int>(std::string("h") + base, {0, -1, 70000});
        compare<int>(std::string("hh") + base, {0, -1, 300});
        compare<unsigned long>(std::string("l") + base, {0ul, ULONG_MAX});
        compare<unsigned long long>(std::string("ll") + base, {0ull, ULLONG_MAX});
        compare<std::size_t>(std::string("z") + base, {std::size_t(0), SIZE_MAX});
    }
}

TEST(Numbers, FloatsAsTheCLibrary) {
    const auto infinity = std::numeric_limits<double>::infinity();
    const auto nan = std::numeric_limits<double>::quiet_NaN();
    for (const char* conversion : {"f", "F", "e", "E", "g", "G"})
        compare<double>(conversion, {0.0,
                                     -0.0,
                                     1.0,
                                     -1.5,
                                     0.5,
                                     2.5,
                                     9.995,
                                     0.0001,
                                     0.00001,
                                     123456.0,
                                     1234567.0,
                                     1e15,
                                     1e-15,
                                     3.14159265358979,
                                     DBL_MAX,
                                     DBL_MIN,
                                     std::numeric_limits<double>::denorm_min(),
                                     infinity,
                                     -infinity,
                                     nan});
}

TEST(Numbers, HexadecimalFloatsAsTheCLibrary) {
    for (const char* conversion : {"a", "A"})
        compare<double>(conversion, {1.0, -1.5, 0.1, 3.14159265358979, DBL_MAX, DBL_MIN, 0.0, 1.96875,
                                     1.03125, std::numeric_limits<double>::denorm_min(), DBL_MIN / 3});
}

TEST(Numbers, SeededFloatsAsTheCLibrary) {
    std::mt19937_64 random(20240601);
    for (int i = 0; i < 20000; ++i) {
        const std::uint64_t bits = random();
        double value;
        std::memcpy(&value, &bits, sizeof value);
        if (!std::isfinite(value)) continue;
        const int precision = static_cast<int>(random() % 30);
        for (const char* conversion : {"e", "f", "g"}) {
            const std::string format = "%." + std::to_string(precision) + conversion;
            ASSERT_EQ(ours(format.c_str(), value), theirs(format, value)) << format << " seed value " << bits;
        }
    }
}

TEST(Numbers, ManyPlacesAsTheCLibrary) {
    const double smallest = std::numeric_limits<double>::denorm_min();
    for (const char* format : {"%.1500f", "%.1500e", "%.1500g", "%#.1500g"}) {
        EXPECT_EQ(ours(format, smallest), theirs(format, smallest)) << format;
        EXPECT_EQ(ours(format, 0.1), theirs(format, 0.1)) << format;
    }
}

#endif

TEST(Numbers, I64IsSixtyFourBits) {
    EXPECT_EQ(ours("%I64d|%I64u|%I64X", LLONG_MIN, ULLONG_MAX, 0xFEDCBA9876543210ull),
              "-9223372036854775808|18446744073709551615|FEDCBA9876543210");
}

TEST(Numbers, LongsHaveTheSystemsSize) {
    EXPECT_EQ(ours("%ld|%lu|%zu|%zd", LONG_MIN, ULONG_MAX, SIZE_MAX, PTRDIFF_MIN),
              std::to_string(LONG_MIN) + "|" + std::to_string(ULONG_MAX) + "|" + std::to_string(SIZE_MAX) +
                  "|" + std::to_string(PTRDIFF_MIN));
}

TEST(Numbers, FormsThatEverySystemPrints) {
    EXPECT_EQ(ours("[%+d % d %05d %-5d]", 7, 7, -42, 3), "[+7  7 -0042 3    ]");
    EXPECT_EQ(ours("[%08X %#x %#o %.3u]", 0xABCu, 255u, 8u, 7u), "[00000ABC 0xff 010 007]");
    EXPECT_EQ(ours("[%.3f %8.2f %-8.1f %08.3f %e %g %G]", 3.14159, 2.5, 0.25, -1.5, 12345.678, 0.0001, 1e-10),
              "[3.142     2.50 0.2      -001.500 1.234568e+04 0.0001 1E-10]");
}

TEST(Numbers, LongDoublesAreTaken) { EXPECT_EQ(ours("%Lf %d", 1.25L, 7), "1.250000 7"); }

TEST(Numbers, WidthAndPrecisionComeFromTheArguments) {
    EXPECT_EQ(ours("[%*d]", 5, 42), "[   42]");
    EXPECT_EQ(ours("[%*d]", -5, 42), "[42   ]");
    EXPECT_EQ(ours("[%.*d]", 4, 42), "[0042]");
    EXPECT_EQ(ours("[%.*d]", -4, 42), "[42]"); // a negative precision is none
    EXPECT_EQ(ours("[%*.*f]", 8, 2, 3.14159), "[    3.14]");
}

TEST(Numbers, PointersAreTheSameOnEverySystem) {
    EXPECT_EQ(ours("%p", reinterpret_cast<void*>(0xABC)), "0xabc");
    EXPECT_EQ(ours("%8p|", reinterpret_cast<void*>(0xABC)), "   0xabc|");
}

TEST(Numbers, HugeWidthsCostNothing) {
    char out[8];
    const auto length = [&](const char* format, auto... values) {
        const auto call = [&](const char* f, ...) {
            va_list args;
            va_start(args, f);
            const int result = text::format(out, sizeof out, f, args);
            va_end(args);
            return result;
        };
        return call(format, values...);
    };
    EXPECT_EQ(length("%2000000000d", 1), 2000000000);
    EXPECT_STREQ(out, "       ");
    EXPECT_EQ(length("%2000000000d%2000000000d", 1, 2), INT_MAX);
    EXPECT_EQ(length("%.2000000000d", 1), 2000000000);
    EXPECT_EQ(length("%.2000000000f", 1.0), 2000000002);
    EXPECT_EQ(length("%99999999999999999999d", 1), INT_MAX);
    EXPECT_EQ(length("%*d", INT_MIN, 1), INT_MAX);
    EXPECT_STREQ(out, "1      ");
}

} // namespace
