#include "text/format.h"

#include <climits>
#include <cstdint>
#include <type_traits>

#include "text/numbers.h"
#include "text/unicode.h"
#include "text/writer.h"

namespace text {
namespace {

// Where conversions take what they print from: the arguments of a call, passed on by reference since a
// va_list itself may be an array; one number; or nothing.
struct Args {
    std::va_list list;
    bool lost; // behind an unknown conversion nobody knows what the next argument is: none is read any more

    int amount() { return lost ? 0 : va_arg(list, int); }
};
struct One_Number {
    double value;
    bool printed;

    int amount() { return 0; }
};
struct Nothing {
    int amount() { return 0; }
};

bool is_high(wchar_t unit) { return (unit & ~0x3FF) == 0xD800; }

// --- Conversions as they stand in the format ---

template <typename Unit>
bool take(const Unit*& at, char c) {
    if (*at != static_cast<Unit>(c)) return false;
    ++at;
    return true;
}

template <typename Unit>
int take_number(const Unit*& at) {
    std::int64_t value = 0;
    for (; *at >= Unit('0') && *at <= Unit('9'); ++at) {
        value = value * 10 + (*at - Unit('0'));
        if (value > INT_MAX) value = INT_MAX;
    }
    return static_cast<int>(value);
}

// A width or precision; * takes it from the arguments.
template <typename Unit, typename Source>
int take_amount(const Unit*& at, Source& source) {
    return take(at, '*') ? source.amount() : take_number(at);
}

template <typename Unit>
Spec::Length take_length(const Unit*& at) {
    if (take(at, 'h')) return take(at, 'h') ? Spec::hh : Spec::h;
    if (take(at, 'l')) return take(at, 'l') ? Spec::ll : Spec::l;
    if (take(at, 'z')) return Spec::size;
    if (take(at, 'j')) return Spec::max;
    if (take(at, 't')) return Spec::difference;
    if (take(at, 'L')) return Spec::big;
    if (at[0] == Unit('I') && at[1] == Unit('6') && at[2] == Unit('4')) {
        at += 3;
        return Spec::ll;
    }
    return Spec::none;
}

// Reads what follows a percent sign. Without arguments a * counts as 0.
template <typename Unit, typename Source>
Spec parse(const Unit*& at, Source& source) {
    Spec spec{};
    for (bool more = true; more;) {
        if (take(at, '-'))
            spec.left = true;
        else if (take(at, '+'))
            spec.plus = true;
        else if (take(at, ' '))
            spec.space = true;
        else if (take(at, '#'))
            spec.alternate = true;
        else if (take(at, '0'))
            spec.zero = true;
        else
            more = false;
    }
    spec.width = take_amount(at, source);
    if (spec.width < 0) {
        spec.left = true;
        spec.width = spec.width == INT_MIN ? INT_MAX : -spec.width;
    }
    spec.precision = -1;
    if (take(at, '.')) {
        spec.precision = take_amount(at, source);
        if (spec.precision < 0) spec.precision = -1;
    }
    spec.length = take_length(at);
    if (*at == 0) return spec;
    spec.conversion = *at > 0 && *at < 0x7F ? static_cast<char>(*at) : '?';
    if (spec.conversion == '?') {
        next(at); // a whole character, however many units it has
    } else {
        ++at;
    }
    return spec;
}

// --- Text ---

// Copies the text without changing its units: a lone surrogate, as file names may hold, stays.
template <typename Unit>
void write_text(Writer<Unit>& writer, const Spec& spec, const Unit* text) {
    const std::size_t limit = spec.precision < 0 ? SIZE_MAX : static_cast<std::size_t>(spec.precision);
    std::size_t count = 0;
    while (count < limit && text[count] != 0)
        ++count;
    if constexpr (std::is_same_v<Unit, wchar_t>) {
        if (count == limit && count > 0 && is_high(text[count - 1])) --count;
    }
    const std::int64_t pad = spec.width - static_cast<std::int64_t>(count);
    if (!spec.left) writer.fill(' ', pad);
    writer.units(text, count);
    if (spec.left) writer.fill(' ', pad);
}

// Decodes the text and encodes it anew. Width and precision count units of the output.
template <typename Unit, typename From>
void convert_text(Writer<Unit>& writer, const Spec& spec, const From* text) {
    const std::int64_t limit = spec.precision < 0 ? INT64_MAX : spec.precision;
    std::int64_t pad = 0;
    if (spec.width > 0) {
        Spec bare = spec;
        bare.width = 0;
        Writer<Unit> counter{nullptr, 0, 0};
        convert_text(counter, bare, text);
        pad = spec.width - counter.total;
    }
    if (!spec.left) writer.fill(' ', pad);
    Unit form[4];
    std::int64_t used = 0;
    while (used < limit) {
        const char32_t code = next(text);
        if (code == 0) break;
        used += put(code, form);
        if (used > limit) break;
        writer.code(code);
    }
    if (spec.left) writer.fill(' ', pad);
}

template <typename Unit>
void write_wide(Writer<Unit>& writer, const Spec& spec, const wchar_t* text) {
    if (!text) text = L"(null)";
    if constexpr (std::is_same_v<Unit, wchar_t>)
        write_text(writer, spec, text);
    else
        convert_text(writer, spec, text);
}

// Narrow text is decoded in each case, so that a stray byte never reaches a UTF-8 result.
template <typename Unit>
void write_narrow(Writer<Unit>& writer, const Spec& spec, const char* text) {
    convert_text(writer, spec, text ? text : "(null)");
}

template <typename Unit>
void write_character(Writer<Unit>& writer, const Spec& spec, int value, bool wide) {
    const std::int64_t pad = spec.width - std::int64_t{1};
    if (!spec.left) writer.fill(' ', pad);
    if (!wide)
        writer.code(static_cast<unsigned char>(value));
    else if constexpr (std::is_same_v<Unit, wchar_t>)
        writer.unit(static_cast<wchar_t>(value));
    else
        writer.code(static_cast<char32_t>(value));
    if (spec.left) writer.fill(' ', pad);
}

// --- Numbers ---

std::int64_t take_signed(Args& args, Spec::Length length) {
    switch (length) {
    case Spec::hh: return static_cast<signed char>(va_arg(args.list, int));
    case Spec::h: return static_cast<short>(va_arg(args.list, int));
    case Spec::l: return va_arg(args.list, long);
    case Spec::ll: return va_arg(args.list, long long);
    case Spec::size: return static_cast<std::int64_t>(va_arg(args.list, std::size_t));
    case Spec::max: return va_arg(args.list, std::intmax_t);
    case Spec::difference: return va_arg(args.list, std::ptrdiff_t);
    default: return va_arg(args.list, int);
    }
}

std::uint64_t take_unsigned(Args& args, Spec::Length length) {
    const auto value = static_cast<std::uint64_t>(take_signed(args, length));
    switch (length) {
    case Spec::hh: return static_cast<unsigned char>(value);
    case Spec::h: return static_cast<unsigned short>(value);
    case Spec::l: return static_cast<unsigned long>(value);
    case Spec::none:
    case Spec::big: return static_cast<unsigned int>(value);
    default: return value;
    }
}

template <typename Unit>
void write_number(Writer<Unit>& writer, const Spec& spec, Number& number) {
    std::int64_t pad = spec.width - std::int64_t{number.prefix_size} - number.lead - number.head_size -
                       number.middle - number.tail_size;
    const bool zeros = spec.zero && !spec.left && number.pads_with_zeros;
    if (!spec.left && !zeros) writer.fill(' ', pad);
    writer.ascii(number.prefix, number.prefix_size);
    if (zeros) writer.fill('0', pad);
    writer.fill('0', number.lead);
    writer.ascii(number.head, number.head_size);
    writer.fill('0', number.middle);
    writer.ascii(number.tail, number.tail_size);
    if (spec.left) writer.fill(' ', pad);
}

template <typename Unit>
void write_integer(Writer<Unit>& writer, Spec spec, Args& args) {
    Number number;
    if (spec.conversion == 'p') {
        spec.conversion = 'x';
        spec.alternate = true;
        print_integer(number, spec, reinterpret_cast<std::uintptr_t>(va_arg(args.list, void*)), false);
    } else if (spec.conversion == 'd' || spec.conversion == 'i') {
        const std::int64_t value = take_signed(args, spec.length);
        const auto bits = static_cast<std::uint64_t>(value);
        print_integer(number, spec, value < 0 ? 0 - bits : bits, value < 0);
    } else {
        print_integer(number, spec, take_unsigned(args, spec.length), false);
    }
    write_number(writer, spec, number);
}

template <typename Unit>
void write_float(Writer<Unit>& writer, const Spec& spec, double value) {
    Number number;
    print_float(number, spec, value);
    write_number(writer, spec, number);
}

bool is_float(char conversion) {
    switch (conversion) {
    case 'e':
    case 'E':
    case 'f':
    case 'F':
    case 'g':
    case 'G':
    case 'a':
    case 'A': return true;
    default: return false;
    }
}

double take_float(Args& args, Spec::Length length) {
    return length == Spec::big ? static_cast<double>(va_arg(args.list, long double))
                               : va_arg(args.list, double);
}

// --- The whole ---

template <typename Unit>
void convert(Writer<Unit>& writer, const Spec& spec, Args& args, bool wide_format) {
    if (args.lost) return;
    if (is_float(spec.conversion)) return write_float(writer, spec, take_float(args, spec.length));
    const bool wide = spec.length == Spec::l || (wide_format && spec.length != Spec::h);
    switch (spec.conversion) {
    case 's':
        if (wide)
            write_wide(writer, spec, va_arg(args.list, const wchar_t*));
        else
            write_narrow(writer, spec, va_arg(args.list, const char*));
        break;
    case 'c': write_character(writer, spec, va_arg(args.list, int), wide); break;
    case 'd':
    case 'i':
    case 'o':
    case 'u':
    case 'x':
    case 'X':
    case 'p': write_integer(writer, spec, args); break;
    case 'n': va_arg(args.list, void*); break;
    default: args.lost = true;
    }
}

template <typename Unit>
void convert(Writer<Unit>& writer, const Spec& spec, One_Number& number, bool) {
    if (number.printed || !is_float(spec.conversion)) return;
    number.printed = true;
    write_float(writer, spec, number.value);
}

template <typename Unit>
void convert(Writer<Unit>&, const Spec&, Nothing&, bool) {}

// A literal stretch of the format, up to the next percent sign or the end.
template <typename Unit, typename From>
void write_literal(Writer<Unit>& writer, const From*& at) {
    if constexpr (std::is_same_v<Unit, wchar_t> && std::is_same_v<From, wchar_t>) {
        const From* const start = at;
        while (*at != 0 && *at != L'%')
            ++at;
        writer.units(start, static_cast<std::size_t>(at - start));
    } else {
        while (*at != 0 && *at != '%') {
            if (*at > 0)
                writer.unit(static_cast<Unit>(*at++));
            else
                writer.code(next(at));
        }
    }
}

// Ends the text and gives the length that the whole of it has.
template <typename Unit>
int finish(Writer<Unit>& writer, const Unit* start, std::size_t size) {
    if (size > 0) {
        if constexpr (std::is_same_v<Unit, wchar_t>) {
            const bool cut = writer.total > writer.out - start;
            if (cut && writer.out > start && is_high(writer.out[-1])) --writer.out;
        }
        *writer.out = 0;
    }
    return writer.total > INT_MAX ? INT_MAX : static_cast<int>(writer.total);
}

template <typename Unit, typename From, typename Source>
int run(Unit* out, std::size_t size, const From* format, Source& source) {
    Writer<Unit> writer{out, size > 0 ? size - 1 : 0, 0};
    for (const From* at = format; at && *at != 0;) {
        write_literal(writer, at);
        if (!take(at, '%')) break;
        if (take(at, '%')) {
            writer.unit(static_cast<Unit>('%'));
            continue;
        }
        const Spec spec = parse(at, source);
        convert(writer, spec, source, std::is_same_v<From, wchar_t>);
    }
    return finish(writer, out, size);
}

template <typename Unit, typename From>
int run_with(Unit* out, std::size_t size, const From* format, std::va_list list) {
    Args args;
    va_copy(args.list, list);
    args.lost = false;
    const int length = run(out, size, format, args);
    va_end(args.list);
    return length;
}

} // namespace

int format(wchar_t* out, std::size_t size, const wchar_t* format, std::va_list args) {
    return run_with(out, size, format, args);
}

int format(wchar_t* out, std::size_t size, const char* format, std::va_list args) {
    return run_with(out, size, format, args);
}

int format(char* out, std::size_t size, const char* format, std::va_list args) {
    return run_with(out, size, format, args);
}

int format_bare(wchar_t* out, std::size_t size, const wchar_t* format) {
    Nothing nothing;
    return run(out, size, format, nothing);
}

int format_number(wchar_t* out, std::size_t size, const wchar_t* format, double value) {
    One_Number number{value, false};
    return run(out, size, format, number);
}

} // namespace text
