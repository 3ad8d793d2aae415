#include "text/decimal.h"

#include <algorithm>
#include <cmath>
#include <cstdint>

// Not by std::to_chars: its tables would be the largest single part of a library that carries its runtime.
namespace text {
namespace {

constexpr std::uint32_t limb_base = 1000000000; // nine decimal digits

// A whole number, the lowest limb first. The largest is 2 to 53 times 5 to 1074: 86 limbs.
struct Whole {
    std::uint32_t limbs[90];
    int size;

    void multiply(std::uint32_t factor) {
        std::uint64_t carry = 0;
        for (int i = 0; i < size; ++i) {
            carry += std::uint64_t{limbs[i]} * factor;
            limbs[i] = static_cast<std::uint32_t>(carry % limb_base);
            carry /= limb_base;
        }
        if (carry > 0) limbs[size++] = static_cast<std::uint32_t>(carry);
    }
    void multiply(std::uint32_t factor, int times, std::uint32_t step_factor, int step) {
        for (; times >= step; times -= step)
            multiply(step_factor);
        for (; times > 0; --times)
            multiply(factor);
    }
};

} // namespace

void expand(Decimal& decimal, double value) {
    constexpr int mantissa_bits = 53;
    int exponent = 0;
    auto mantissa = static_cast<std::uint64_t>(std::ldexp(std::frexp(value, &exponent), mantissa_bits));
    exponent -= mantissa_bits;
    decimal.size = 0;
    decimal.point = 0;
    if (mantissa == 0) return;
    while (mantissa % 2 == 0)
        mantissa /= 2, ++exponent;

    Whole whole{};
    for (; mantissa > 0; mantissa /= limb_base)
        whole.limbs[whole.size++] = static_cast<std::uint32_t>(mantissa % limb_base);
    // A negative power of two is that power of five, with the point so many places to the left.
    if (exponent >= 0)
        whole.multiply(2, exponent, 1u << 29, 29);
    else
        whole.multiply(5, -exponent, 244140625, 12);

    for (int limb = whole.size - 1; limb >= 0; --limb) {
        std::uint32_t rest = whole.limbs[limb];
        for (std::uint32_t unit = limb_base / 10; unit > 0; rest %= unit, unit /= 10)
            if (const std::uint32_t digit = rest / unit; digit > 0 || decimal.size > 0)
                decimal.digits[decimal.size++] = static_cast<char>('0' + digit);
    }
    decimal.point = decimal.size - std::max(0, -exponent);
}

void round(Decimal& decimal, int keep) {
    if (keep >= decimal.size) return;
    bool up = false;
    if (keep >= 0) {
        const char* const digits = decimal.digits;
        const bool beyond_half =
            std::any_of(digits + keep + 1, digits + decimal.size, [](char c) { return c != '0'; });
        const bool odd = keep > 0 && (digits[keep - 1] & 1);
        up = digits[keep] > '5' || (digits[keep] == '5' && (beyond_half || odd));
    }
    decimal.size = std::max(keep, 0);
    if (!up) return;
    int at = keep - 1;
    while (at >= 0 && decimal.digits[at] == '9')
        decimal.digits[at--] = '0';
    if (at >= 0) {
        ++decimal.digits[at];
        return;
    }
    decimal.digits[0] = '1'; // all nines: the next power of ten
    decimal.size = std::max(keep, 1);
    ++decimal.point;
}

} // namespace text
