#include "text/numbers.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <cstring>

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

int write(Number& number, double value, std::chars_format format, int places) {
    const auto end = std::to_chars(number.head, number.head + sizeof number.head, value, format, places).ptr;
    return static_cast<int>(end - number.head);
}

// Moves the exponent, if any, from the head to the tail.
void split_exponent(Number& number, char mark) {
    char* const end = number.head + number.head_size;
    char* const exponent = std::find(number.head, end, mark);
    number.tail_size = static_cast<int>(end - exponent);
    std::memcpy(number.tail, exponent, number.tail_size);
    number.head_size -= number.tail_size;
}

bool has_point(const Number& number) { return std::memchr(number.head, '.', number.head_size) != nullptr; }

void print_places(Number& number, const Spec& spec, double value, std::chars_format format, int places) {
    const int real = std::min(places, most_places);
    number.head_size = write(number, value, format, real);
    number.middle = places - real;
    split_exponent(number, 'e');
    if (spec.alternate && places == 0) number.head[number.head_size++] = '.';
}

// The shorter of both forms, with `precision` significant digits.
void print_general(Number& number, const Spec& spec, double value, int precision) {
    const int digits = std::max(precision, 1);
    const int real = std::min(digits, most_places);
    number.head_size = write(number, value, std::chars_format::scientific, real - 1);
    split_exponent(number, 'e');
    int exponent = 0;
    std::from_chars(number.tail + (number.tail[1] == '+' ? 2 : 1), number.tail + number.tail_size, exponent);
    const bool fixed = exponent >= -4 && exponent < digits;
    if (fixed)
        print_places(number, spec, value, std::chars_format::fixed, digits - 1 - exponent);
    else
        print_places(number, spec, value, std::chars_format::scientific, digits - 1);
    if (spec.alternate) return;
    number.middle = 0;
    if (!has_point(number)) return;
    while (number.head[number.head_size - 1] == '0')
        --number.head_size;
    if (number.head[number.head_size - 1] == '.') --number.head_size;
}

void print_hex(Number& number, const Spec& spec, double value) {
    add_prefix(number, '0');
    add_prefix(number, is_upper(spec.conversion) ? 'X' : 'x');
    if (spec.precision < 0) {
        const auto end =
            std::to_chars(number.head, number.head + sizeof number.head, value, std::chars_format::hex).ptr;
        number.head_size = static_cast<int>(end - number.head);
    } else {
        const int real = std::min(spec.precision, most_places);
        number.head_size = write(number, value, std::chars_format::hex, real);
        number.middle = spec.precision - real;
    }
    split_exponent(number, 'p');
    if (spec.alternate && !has_point(number)) number.head[number.head_size++] = '.';
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
    const int precision = spec.precision < 0 ? 6 : spec.precision;
    if (!std::isfinite(value)) {
        std::memcpy(number.head, std::isnan(value) ? "nan" : "inf", 3);
        number.head_size = 3;
        number.pads_with_zeros = false;
    } else {
        switch (spec.conversion | 0x20) {
        case 'e': print_places(number, spec, value, std::chars_format::scientific, precision); break;
        case 'f': print_places(number, spec, value, std::chars_format::fixed, precision); break;
        case 'g': print_general(number, spec, value, precision); break;
        default: print_hex(number, spec, value); break;
        }
    }
    if (is_upper(spec.conversion)) {
        to_upper(number.head, number.head_size);
        to_upper(number.tail, number.tail_size);
    }
}

} // namespace text
