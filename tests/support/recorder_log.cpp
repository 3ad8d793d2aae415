#include <cstdio>
#include <cstdlib>

#include "recorder_state.h"

// The log, the names and the rules of the bracket.

HWND hwnd = nullptr;
wchar_t* W_Inst_Path = nullptr;
wchar_t* W_Prog_Name = nullptr;
HDC Zeb_DC = nullptr;
DWORD Current_Color = 0;
wchar_t Kelvar_Err_Str[1024] = {};

namespace recorder {

static void abort_at_breach(const char* what) {
    std::fprintf(stderr, "drawing contract: %s\n", what);
    std::abort();
}

// Made at first use, since controls may report before main.
State& state() {
    static State the_state;
    return the_state;
}

static void (*breach_handler)(const char*) = abort_at_breach;
void on_breach(void (*handler)(const char*)) { breach_handler = handler; }
void breach(const std::string& what) { breach_handler(what.c_str()); }

bool open() { return state().open || state().stepped_out; }

static HWND handle(int number) {
    return reinterpret_cast<HWND>(static_cast<std::uintptr_t>(0x1000 * number));
}
HWND window(int number) {
    const HWND wnd = handle(number);
    name(wnd, number == 1 ? "WND" : "WND" + std::to_string(number));
    return wnd;
}

static int context_block;
HDC context() {
    name(&context_block, "DC");
    return reinterpret_cast<HDC>(&context_block);
}

void reset() {
    state() = State();
    reset_folders();
    hwnd = nullptr;
    Zeb_DC = nullptr;
    Current_Color = 0;
    W_Inst_Path = nullptr;
}

void listen(unsigned kinds) { state().heard = kinds; }
void note(Kind kind, const std::string& line, unsigned code) {
    if (state().heard & kind) state().lines.push_back({kind, code, line});
}
const std::vector<Line>& log() { return state().lines; }
void clear() { state().lines.clear(); }

static std::string shown(const Line& line) {
    if (line.kind != kReport) return line.text;
    char code[16];
    std::snprintf(code, sizeof code, "[%08X] ", line.code);
    return code + line.text;
}

std::string text(unsigned kinds) {
    std::string all;
    for (const Line& line : log())
        if (line.kind & kinds) all += shown(line) + "\n";
    return all;
}

std::vector<std::string> reports(unsigned code) {
    std::vector<std::string> found;
    for (const Line& line : log())
        if (line.kind == kReport && line.code == code) found.push_back(line.text);
    return found;
}

std::string warnings() {
    std::string all;
    for (const Line& line : log()) {
        const bool trace = line.code == 0x90000029 || line.code == 0x90000027 || line.code == 0x90004009;
        if (line.kind == kReport && !trace) all += shown(line) + "\n";
    }
    return all;
}

std::string exit_tag(const std::string& operation) {
    const std::string start = "<<< out Lib_Brask: " + operation + "(";
    for (auto line = log().rbegin(); line != log().rend(); ++line) {
        if (line->kind != kReport || line->text.compare(0, start.size(), start) != 0) continue;
        const std::string rest = line->text.substr(start.size());
        return rest.empty() || rest.back() != ')' ? "(malformed)" : rest.substr(0, rest.size() - 1);
    }
    return "(none)";
}

void name(const void* thing, const std::string& name) { state().names[thing] = name; }

std::string named(const void* thing) {
    if (!thing) return "null";
    const auto found = state().names.find(thing);
    if (found != state().names.end()) return found->second;
    char address[32];
    std::snprintf(address, sizeof address, "at-%llx",
                  static_cast<unsigned long long>(reinterpret_cast<std::uintptr_t>(thing)));
    return address;
}

std::string narrow(const wchar_t* text) {
    std::string out;
    for (; text && *text; ++text) {
        unsigned long c = static_cast<unsigned long>(*text) & (sizeof(wchar_t) == 2 ? 0xFFFF : 0x1FFFFF);
        if (c >= 0xD800 && c < 0xDC00 && text[1] >= 0xDC00 && text[1] < 0xE000)
            c = 0x10000 + ((c - 0xD800) << 10) + (static_cast<unsigned long>(*++text) - 0xDC00);
        if (c < 0x80) {
            out += static_cast<char>(c);
            continue;
        }
        const int more = c < 0x800 ? 1 : c < 0x10000 ? 2 : 3;
        static const int kLead[] = {0, 0xC0, 0xE0, 0xF0};
        out += static_cast<char>(kLead[more] | c >> (6 * more));
        for (int i = more - 1; i >= 0; --i)
            out += static_cast<char>(0x80 | (c >> (6 * i) & 0x3F));
    }
    return out;
}

std::string escaped(const std::string& text) {
    std::string out;
    for (const char c : text) {
        char code[8];
        std::snprintf(code, sizeof code, "\\x%02x", static_cast<unsigned char>(c));
        if (c == '\n')
            out += "\\n";
        else if (static_cast<unsigned char>(c) < 0x20)
            out += code;
        else
            out += c;
    }
    return out;
}

std::string quoted(const wchar_t* text) { return text ? "\"" + escaped(narrow(text)) + "\"" : "null"; }

void pointer(int x, int y) { state().pointer = {x, y}; }
void metrics(HFONT font, int height, int width) { state().metrics[font] = {height, width}; }
void paint_on(Picture* picture) { state().picture = picture; }

} // namespace recorder
