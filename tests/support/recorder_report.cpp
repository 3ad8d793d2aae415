#include <cstdarg>

#include "recorder_state.h"

// Error_Fct: the texts are rendered here by a small formatter of the recorder's own, so that a fault of the
// library's formatting cannot hide in both.

namespace recorder {

// One conversion: flags, width and length, such as "%-4d" or "%ls".
struct Conversion {
    std::string flags; // between the percent sign and the length
    int longs = 0, shorts = 0;
    char kind = 0;
};

static Conversion parse(const std::string& format, std::size_t& at) {
    Conversion c;
    while (at < format.size() && std::string("-+ #0123456789.").find(format[at]) != std::string::npos)
        c.flags += format[at++];
    for (; at < format.size() && (format[at] == 'l' || format[at] == 'h'); ++at)
        ++(format[at] == 'l' ? c.longs : c.shorts);
    if (at < format.size()) c.kind = format[at];
    return c;
}

static std::string number(const Conversion& c, std::va_list& args) {
    char out[64];
    const bool is_signed = c.kind == 'd' || c.kind == 'i';
    const long long value = c.longs >= 2 ? va_arg(args, long long)
                            : c.longs == 1
                                ? (is_signed ? va_arg(args, long) : (long long)va_arg(args, unsigned long))
                                : (is_signed ? va_arg(args, int) : (long long)va_arg(args, unsigned));
    std::snprintf(out, sizeof out, ("%" + c.flags + "ll" + c.kind).c_str(), value);
    return out;
}

static std::string rendered(const std::string& format, std::va_list& args) {
    std::string out;
    for (std::size_t at = 0; at < format.size(); ++at) {
        if (format[at] != '%') {
            out += format[at];
            continue;
        }
        const Conversion c = parse(format, ++at);
        if (c.kind == '%')
            out += '%';
        else if (c.kind == 's' && c.longs == 1)
            out += narrow(va_arg(args, const wchar_t*));
        else if (c.kind == 's' && c.shorts == 1)
            out += va_arg(args, const char*);
        else if (std::string("diuxX").find(c.kind) != std::string::npos)
            out += number(c, args);
        else
            breach("a report with a conversion that the two forms read differently: " + format);
    }
    return out;
}

static int report(HWND wnd, unsigned code, const std::string& text) {
    if (wnd != hwnd) breach("a report that is not made to the main window: " + text);
    note(kReport, escaped(text), code);
    return 0;
}

} // namespace recorder

int Error_Fct(HWND wnd, unsigned int code, const char* format, ...) {
    if (!(recorder::state().heard & recorder::kReport)) return 0;
    std::va_list args;
    va_start(args, format);
    const std::string text = recorder::rendered(format, args);
    va_end(args);
    return recorder::report(wnd, code, text);
}

int Error_Fct(HWND wnd, unsigned int code, const wchar_t* format, ...) {
    if (!(recorder::state().heard & recorder::kReport)) return 0;
    std::va_list args;
    va_start(args, format);
    const std::string text = recorder::rendered(recorder::narrow(format), args);
    va_end(args);
    return recorder::report(wnd, code, text);
}
