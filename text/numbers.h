#ifndef TEXT_NUMBERS_H
#define TEXT_NUMBERS_H

#include <cstdint>

// Numbers as printf writes them, in parts, so that each width of character can print them.
namespace text {

struct Spec {
    bool left, plus, space, alternate, zero;
    int width;
    int precision; // -1: none given
    enum Length { none, hh, h, l, ll, size, max, difference, big } length;
    char conversion; // 0: the format ends inside
};

// A number is its prefix (sign, 0x), `lead` zeros, head, `middle` zeros and tail.
struct Number {
    char prefix[4];
    int prefix_size;
    int lead;
    char head[1536];
    int head_size;
    int middle;
    char tail[8];
    int tail_size;
    bool pads_with_zeros; // false where the 0 flag has no say
};

// `negative` applies to the signed conversions only; `value` is the magnitude.
void print_integer(Number& number, const Spec& spec, std::uint64_t value, bool negative);
void print_float(Number& number, const Spec& spec, double value);

} // namespace text

#endif
