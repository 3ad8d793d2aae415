#include "traces.h"

#include <cstdio>
#include <deque>

#include <brask/fenn.h>
#include <brask/fenn_host.h>

namespace {

const unsigned int trace_codes[] = {0x90000029, 0x90000027, 0x90004009};
constexpr std::size_t most = 1000;

bool printing, collecting;
int hushed;
std::deque<std::wstring> collected;

bool is_trace(unsigned int code) {
    for (unsigned int trace : trace_codes)
        if (code == trace) return true;
    return false;
}

void collect(const wchar_t* text) {
    collected.emplace_back(text);
    if (collected.size() > most) collected.pop_front();
}

// Traces go to the standard output, so that they can be piped; what is wrong goes to the other stream.
void report(void*, HWND, unsigned int code, const wchar_t* text) {
    bool trace = is_trace(code);
    if (trace && collecting && !hushed) collect(text);
    if (trace && !printing) return;
    FILE* out = trace ? stdout : stderr;
    std::fprintf(out, "%s\n", Wchar_2_Char(text));
    std::fflush(out);
}

void listen() {
    Fenn_Set_Report(printing || collecting ? report : nullptr, nullptr);
    for (unsigned int code : trace_codes)
        Fenn_Listen(code, printing || (collecting && !hushed));
}

} // namespace

void traces_print(bool on) {
    printing = on;
    listen();
}

void traces_collect(bool on) {
    collecting = on;
    collected.clear();
    listen();
}

bool traces_collected() { return collecting; }

std::vector<std::wstring> traces_take() {
    std::vector<std::wstring> lines(collected.begin(), collected.end());
    collected.clear();
    return lines;
}

TracesHush::TracesHush() {
    hushed++;
    if (collecting) listen();
}

TracesHush::~TracesHush() {
    hushed--;
    if (collecting) listen();
}
