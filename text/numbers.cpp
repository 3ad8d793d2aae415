#include "text/numbers.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <cstdlib>
#include <cstring>

#include "text/decimal.h"

namespace text {
namespace {

// The longest expansion of a double has 1074 places after the point; what is asked beyond is zeros.
constexpr int most_places = 1100;

bool is_upper(char c) { return c >= 'A' && c <= 'Z'; }

void to_upper(char* text, int size) {
    for (int i = 0; i < size; ++i)
        if (text[i] >= 'a' && text[i] <= 'z') text[i] = static_cast<char>(text[i] - 'a' + 'A');
}

void add_prefix(Number& number, char c) { number.prefix[number.prefix_size++] = c; }

void add_sign(Number& number, const Spec& spec, bool negative) {
    if (negative)
        add_prefix(number, '-');
    else if (spec.plus)
        add_prefix(number, '+');
    else if (spec.space)
        add_prefix(number, ' ');
}

void clear(Number& number) {
    number.prefix_size = number.lead = number.head_size = number.middle = number.tail_size = 0;
    number.pads_with_zeros = true;
}

void add_head(Number& number, char c) { number.head[number.head_size++] = c; }

// The places behind the point, and the point if there are any or the form asks for it.
void add_places(Number& number, const Spec& spec, const Decimal& decimal, int from, int places) {
    const int real = std::min(places, most_places);
    if (places > 0 || spec.alternate) add_head(number, '.');
    for (int i = 0; i < real; ++i)
        add_head(number, decimal.at(from + i));
    number.middle = places - real;
}

void add_exponent(Number& number, char mark, int exponent, int least_digits) {
    char* const tail = number.tail;
    tail[0] = mark;
    tail[1] = exponent < 0 ? '-' : '+';
    number.tail_size = 2;
    exponent = std::abs(exponent);
    if (exponent < 10 && least_digits == 2) tail[number.tail_size++] = '0';
    number.tail_size = static_cast<int>(
        std::to_chars(tail + number.tail_size, tail + sizeof number.tail, exponent).ptr - tail);
}

int exponent_of(const Decimal& decimal) { return decimal.size > 0 ? decimal.point - 1 : 0; }

void print_fixed(Number& number, const Spec& spec, Decimal& decimal, int places) {
    round(decimal, decimal.point + std::min(places, most_places));
    if (decimal.point < 1) add_head(number, '0');
    for (int i = 0; i < decimal.point; ++i)
        add_head(number, decimal.at(i));
    add_places(number, spec, decimal, decimal.point, places);
}

void print_scientific(Number& number, const Spec& spec, Decimal& decimal, int places) {
    round(decimal, std::min(places, most_places) + 1);
    add_head(number, decimal.at(0));
    add_places(number, spec, decimal, 1, places);
    add_exponent(number, 'e', exponent_of(decimal), 2);
}

// The shorter of both forms, with `precision` significant digits.
void print_general(Number& number, const Spec& spec, Decimal& decimal, int precision) {
    const int digits = std::max(precision, 1);
    round(decimal, digits);
    const int exponent = exponent_of(decimal);
    if (exponent >= -4 && exponent < digits)
        print_fixed(number, spec, decimal, digits - 1 - exponent);
    else
        print_scientific(number, spec, decimal, digits - 1);
    if (spec.alternate) return;
    number.middle = 0;
    if (!std::memchr(number.head, '.', static_cast<std::size_t>(number.head_size))) return;
    while (number.head[number.head_size - 1] == '0')
        --number.head_size;
    if (number.head[number.head_size - 1] == '.') --number.head_size;
}

// The mantissa's own digits; as many as there are, unless a precision is given.
void print_hex(Number& number, const Spec& spec, double value) {
    constexpr int fraction_bits = 52, fraction_digits = fraction_bits / 4;
    std::uint64_t bits;
    std::memcpy(&bits, &value, sizeof bits);
    const int biased = static_cast<int>(bits >> fraction_bits);
    std::uint64_t mantissa = bits & ((std::uint64_t{1} << fraction_bits) - 1);
    if (biased > 0) mantissa |= std::uint64_t{1} << fraction_bits;
    const int exponent = value == 0 ? 0 : std::max(biased, 1) - 1023;
    int digits = fraction_digits;
    if (spec.precision >= 0 && spec.precision < digits) {
        digits = spec.precision;
        const std::uint64_t unit = std::uint64_t{1} << 4 * (fraction_digits - digits);
        const std::uint64_t rest = mantissa % unit;
        mantissa -= rest;
        if (rest > unit / 2 || (rest == unit / 2 && (mantissa & unit))) mantissa += unit;
    }
    if (spec.precision < 0)
        while (digits > 0 && (mantissa >> 4 * (fraction_digits - digits) & 15) == 0)
            --digits;

    add_prefix(number, '0');
    add_prefix(number, is_upper(spec.conversion) ? 'X' : 'x');
    add_head(number, static_cast<char>('0' + (mantissa >> fraction_bits)));
    if (digits > 0 || spec.alternate) add_head(number, '.');
    for (int i = 1; i <= digits; ++i)
        add_head(number, "0123456789abcdef"[mantissa >> 4 * (fraction_digits - i) & 15]);
    number.middle = std::max(0, spec.precision - digits);
    add_exponent(number, 'p', exponent, 1);
}

void print_finite(Number& number, const Spec& spec, double value) {
    const int precision = spec.precision < 0 ? 6 : spec.precision;
    if ((spec.conversion | 0x20) == 'a') return print_hex(number, spec, value);
    Decimal decimal;
    expand(decimal, value);
    switch (spec.conversion | 0x20) {
    case 'e': print_scientific(number, spec, decimal, precision); break;
    case 'f': print_fixed(number, spec, decimal, precision); break;
    default: print_general(number, spec, decimal, precision); break;
    }
}

} // namespace

void print_integer(Number& number, const Spec& spec, std::uint64_t value, bool negative) {
    clear(number);
    const char conversion = spec.conversion;
    const int base = conversion == 'o' ? 8 : conversion == 'x' || conversion == 'X' ? 16 : 10;
    if (value != 0 || spec.precision != 0) {
        const auto end = std::to_chars(number.head, number.head + sizeof number.head, value, base).ptr;
        number.head_size = static_cast<int>(end - number.head);
    }
    if (conversion == 'X') to_upper(number.head, number.head_size);
    number.lead = std::max(0, spec.precision - number.head_size);
    number.pads_with_zeros = spec.precision < 0;
    if (conversion == 'd' || conversion == 'i') add_sign(number, spec, negative);
    if (!spec.alternate) return;
    if (base == 8 && number.lead == 0 && (number.head_size == 0 || number.head[0] != '0')) number.lead = 1;
    if (base == 16 && value != 0) {
        add_prefix(number, '0');
        add_prefix(number, conversion);
    }
}

void print_float(Number& number, const Spec& spec, double value) {
    clear(number);
    add_sign(number, spec, std::signbit(value));
    value = std::fabs(value);
    if (std::isfinite(value)) {
        print_finite(number, spec, value);
    } else {
        std::memcpy(number.head, std::isnan(value) ? "nan" : "inf", 3);
        number.head_size = 3;
        number.pads_with_zeros = false;
    }
    if (is_upper(spec.conversion)) {
        to_upper(number.head, number.head_size);
        to_upper(number.tail, number.tail_size);
    }
}

} // namespace text
