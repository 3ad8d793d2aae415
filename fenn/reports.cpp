#include <atomic>
#include <cerrno>
#include <cstdarg>
#include <cstdio>
#include <cstring>
#include <mutex>

#include <brask/fenn.h>
#include <brask/fenn_host.h>

#include "text/format.h"
#include "text/unicode.h"

// Everything here is constant-initialised: objects report from their constructors while the program loads.

FENN_API wchar_t Kelvar_Err_Str[1024];

namespace fenn {
namespace {

constexpr unsigned int control_trace = 0x90000029;
constexpr unsigned int keyboard_trace = 0x90000027;
constexpr unsigned int font_cache_trace = 0x90004009;
constexpr unsigned int icon_trace = 0x80000005;

// The codes that nobody listens to, the most frequent one first: it is asked for at the entry and the exit of
// every operation of every control.
constexpr int most_silent = 64;
std::atomic<unsigned int> silent[most_silent] = {
    {control_trace}, {keyboard_trace}, {font_cache_trace}, {icon_trace}};
std::atomic<int> silent_count{4};

std::mutex receiver_lock; // guards the pair below and changes of the silent codes
Fenn_Report receiver = nullptr;
void* receiver_user = nullptr;

// A report from inside the receiver is dropped, or it would go round for ever.
thread_local bool receiving = false;

bool is_heard(unsigned int code) {
    const int count = silent_count.load(std::memory_order_acquire);
    for (int i = 0; i < count; ++i)
        if (silent[i].load(std::memory_order_relaxed) == code) return false;
    return true;
}

constexpr int longest = 2048;

// Prints a line for the terminal: the marks for colours and fonts and all other control characters left out,
// so that a name cannot steer the terminal; line ends inside become blanks. The marks for fonts are letters
// as well: they are left out only where a report puts them, at its beginning. No allocation, since the report
// may be about memory; in one piece, so that lines of several threads do not mix.
void print_report(const wchar_t* text) {
    char line[longest * 4];
    int size = 0;
    if (*text >= 240 && *text <= 242) ++text;
    while (const char32_t code = text::next(text)) {
        if (code == '\n' || code == '\t')
            line[size++] = ' ';
        else if (code >= 0x20 && (code < 0x7F || code > 0x9F))
            size += text::put(code, line + size);
    }
    while (size > 0 && line[size - 1] == ' ')
        --size;
    line[size++] = '\n';
    std::fwrite(line, 1, static_cast<std::size_t>(size), stderr);
}

void deliver(HWND wnd, unsigned int code, const wchar_t* text) {
    Fenn_Report report;
    void* user;
    {
        const std::lock_guard<std::mutex> guard(receiver_lock);
        report = receiver;
        user = receiver_user;
    }
    // Called without the lock, as the receiver may wait for locks of its own.
    if (report)
        report(user, wnd, code, text);
    else
        print_report(text);
}

template <typename Unit>
int report(HWND wnd, unsigned int code, const Unit* format, std::va_list args) {
    if (receiving) return 0;
    receiving = true;
    const int saved = errno; // a report between a failure and the look at its reason changes nothing
    wchar_t text[longest];
    text::format(text, longest, format, args);
    deliver(wnd, code, text);
    errno = saved;
    receiving = false;
    return 1;
}

} // namespace
} // namespace fenn

FENN_API int Error_Fct(HWND wnd, unsigned int code, const char* format, ...) {
    if (!fenn::is_heard(code)) return 0;
    std::va_list args;
    va_start(args, format);
    const int result = fenn::report(wnd, code, format, args);
    va_end(args);
    return result;
}

FENN_API int Error_Fct(HWND wnd, unsigned int code, const wchar_t* format, ...) {
    if (!fenn::is_heard(code)) return 0;
    std::va_list args;
    va_start(args, format);
    const int result = fenn::report(wnd, code, format, args);
    va_end(args);
    return result;
}

FENN_API wchar_t* Error_Perror(int number) { return Char_2_Wchar(std::strerror(number)); }

FENN_API void Fenn_Set_Report(Fenn_Report report, void* user) {
    const std::lock_guard<std::mutex> guard(fenn::receiver_lock);
    fenn::receiver = report;
    fenn::receiver_user = user;
}

FENN_API void Fenn_Listen(unsigned int code, int on) {
    using namespace fenn;
    const std::lock_guard<std::mutex> guard(receiver_lock);
    const int count = silent_count.load(std::memory_order_relaxed);
    int at = 0;
    while (at < count && silent[at].load(std::memory_order_relaxed) != code)
        ++at;
    if (on && at < count) {
        silent[at].store(silent[count - 1].load(std::memory_order_relaxed), std::memory_order_relaxed);
        silent_count.store(count - 1, std::memory_order_release);
    } else if (!on && at == count && count < most_silent) {
        silent[count].store(code, std::memory_order_relaxed);
        silent_count.store(count + 1, std::memory_order_release);
    }
}
