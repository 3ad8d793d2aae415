#include "command_line.h"

#include <cwchar>

#include <brask/fenn.h>
#include <brask/popup.h>

#include "traces.h"

// Marks: a character with this low byte is not shown, but changes what follows.
#define BLUE L"\x01"
#define BLACK L"\x02"
#define WHITE L"\x03"
#define RED L"\x04"
#define YELLOW L"\x05"
#define GREEN L"\x06"
#define REGULAR L"\u00F0"
#define BOLD L"\u00F1"
#define OBLIQUE L"\u00F2"

namespace {

const wchar_t prompt[] = L"> ";
constexpr int most_lines = 100000; // of `log`
constexpr int wheel_lines = 3;

bool is_mark(wchar_t c) {
    unsigned low = unsigned(c) & 255;
    return (low >= 1 && low <= 6) || (low >= 240 && low <= 242);
}

std::wstring plain(const std::wstring& line) {
    std::wstring text;
    for (wchar_t c : line)
        if (!is_mark(c)) text += c;
    return text;
}

std::wstring trimmed(const std::wstring& text) {
    std::size_t first = text.find_first_not_of(L' '), last = text.find_last_not_of(L' ');
    return first == std::wstring::npos ? L"" : text.substr(first, last - first + 1);
}

// A whole number, nothing else beside it; -1 when it is none.
int number_of(const std::wstring& text) {
    wchar_t* end = nullptr;
    long value = std::wcstol(text.c_str(), &end, 10);
    return text.empty() || *end || value < 0 || value > 1000000000 ? -1 : int(value);
}

std::wstring wrong(const std::wstring& what) { return RED + what; }

} // namespace

const CommandLine::Command CommandLine::commands[] = {
    {L"help", L"", L"this list", &CommandLine::help},
    {L"colors", L"", L"every mark of a line", &CommandLine::colors},
    {L"log", L"N", L"writes N lines and shows how far it is", &CommandLine::log},
    {L"dir", L"PATH", L"the folders of a folder, of C:\\ without a path", &CommandLine::dir},
    {L"font", L"NAME SIZE", L"another font; without a name the first one", &CommandLine::font},
    {L"read", L"password|integer|float|hex", L"asks for a value", &CommandLine::read},
    {L"trace", L"on|off", L"shows what the library reports", &CommandLine::trace},
    {L"popup", L"TEXT", L"asks whether the text is right", &CommandLine::popup},
    {L"echo", L"TEXT", L"writes the text", &CommandLine::echo},
    {L"clear", L"", L"empties log and history", &CommandLine::clear},
};

const CommandLine::Kind CommandLine::kinds[] = {
    {L"password", TEXTS_PASSWORD}, {L"integer", TEXTS_INTEGER}, {L"float", TEXTS_FLOAT}, {L"hex", TEXTS_HEX}};

CommandLine::CommandLine() {
    console.Flag = TEXTS_CURSOR_V | TEXTS_CURSOR_H | TEXTS_READ_STRIP | OUTIL_CAPTURE;
}

CommandLine::~CommandLine() { traces_collect(false); }

void CommandLine::layout(HWND wnd, const Area& area) {
    TracesHush hush;
    bool first = !console.Wnd;
    area.give(console);
    console.Init(wnd);
    if (!first) return;
    colors(L"");
    say(BOLD L"Good day." REGULAR L" Type a command and press Enter.");
    help(L"");
    console.Read(nullptr);
}

void CommandLine::draw() {
    TracesHush hush;
    console.Draw();
}

void CommandLine::pointer(int word) {
    TracesHush hush;
    if (console.Select(word) && (word & 15) == 2 && !on_slider()) pick();
}

bool CommandLine::on_slider() {
    return console.Cursor_V.Select(KEY_QUERY) || console.Cursor_H.Select(KEY_QUERY);
}

void CommandLine::pick() {
    const wchar_t* line = console.Read_Line();
    if (!line || asked) return;
    std::wstring text = plain(line);
    if (text.compare(0, std::wcslen(prompt), prompt) == 0) text.erase(0, std::wcslen(prompt));
    console.Read(L"%ls", text.c_str());
}

// Away from the user is toward the older lines.
void CommandLine::wheel(int notches) {
    TracesHush hush;
    if (console.select == 1 || on_slider()) console.Scroll(-notches * wheel_lines);
}

void CommandLine::key(int key) {
    TracesHush hush;
    console.Input(key);
    const void* entered = console.Update(1);
    if (!entered) return;
    std::wstring line = static_cast<const wchar_t*>(entered);
    if (asked)
        take(line);
    else
        run(line);
    console.Read(nullptr);
}

void CommandLine::note(const std::wstring& line) {
    TracesHush hush;
    say(line);
}

// One paint for all of them.
void CommandLine::show_traces() {
    std::vector<std::wstring> lines = traces_take();
    if (lines.empty()) return;
    TracesHush hush;
    console.Flag |= OUTIL_INVISIBLE;
    for (const std::wstring& line : lines)
        write((line.compare(0, 3, L">>>") == 0 ? BLUE : BLACK) + line);
    console.Flag &= ~OUTIL_INVISIBLE;
    console.Init(nullptr); // the sliders have the console's flags
    console.Draw();
}

void CommandLine::write(const std::wstring& line) { console.Write(L"%ls", line.c_str()); }

// The same, and in view: a log that is scrolled back stays so at a Write, though its sliders do not.
void CommandLine::say(const std::wstring& line) {
    console.Cursor_V.Cur_Value = console.Cursor_H.Cur_Value = 0;
    write(line);
}

// The line stands in the log already, as the editor left it there.
void CommandLine::run(const std::wstring& line) {
    console.OverWrite(BLUE L"%ls%ls", prompt, line.c_str());
    std::wstring text = trimmed(line);
    std::size_t end = text.find(L' ');
    std::wstring name = text.substr(0, end);
    if (name.empty()) return;
    for (const Command& command : commands)
        if (name == command.name)
            return (this->*command.run)(end == std::wstring::npos ? L"" : trimmed(text.substr(end)));
    say(wrong(L"There is no \"" + name + L"\"; help lists the commands."));
}

void CommandLine::help(const std::wstring&) {
    for (const Command& command : commands)
        say(std::wstring(L"  " BOLD) + command.name + L" " OBLIQUE + command.arguments + REGULAR L"   " +
            command.help);
    say(L"Up and Down walk the history, the wheel scrolls, a click picks a line.");
}

void CommandLine::colors(const std::wstring&) {
    const struct {
        const wchar_t* mark;
        const wchar_t* name;
    } marks[] = {{BLUE, L"1 blue"},         {BLACK, L"2 black"},   {WHITE, L"3 white"},
                 {RED, L"4 red"},           {YELLOW, L"5 yellow"}, {GREEN, L"6 green"},
                 {REGULAR, L"240 regular"}, {BOLD, L"241 bold"},   {OBLIQUE, L"242 oblique"}};
    for (const auto& row : marks)
        say(std::wstring(L"  ") + row.mark + row.name);
    say(L"  " RED L"all " BLUE BOLD L"of " GREEN OBLIQUE L"them " BLACK REGULAR L"in one line");
}

// Each line takes the place of the progress, which moves on below it.
void CommandLine::log(const std::wstring& arguments) {
    int count = number_of(arguments);
    if (count < 1 || count > most_lines)
        return say(wrong(L"log takes a number from 1 to " + std::to_wstring(most_lines) + L"."));
    DWORD start = GetTickCount();
    say(L"");
    for (int i = 1; i <= count; i++) {
        int part = int(20LL * i / count);
        console.OverWrite(L"Line %d of %d\n" GREEN L"%ls" BLACK L"%ls %d %%", i, count,
                          std::wstring(part, L'#').c_str(), std::wstring(20 - part, L'.').c_str(),
                          int(100LL * i / count));
    }
    console.OverWrite(GREEN L"%d lines" BLACK L" in %u ms", count, unsigned(GetTickCount() - start));
}

void CommandLine::dir(const std::wstring& arguments) {
    std::wstring path = arguments.empty() ? L"C:\\" : arguments;
    int count = 0;
    Dir_Ulmen* list = Scan_Dir(path.c_str(), &count);
    if (!list) return say(wrong(L"\"" + path + L"\" cannot be listed."));
    console.Flag |= OUTIL_INVISIBLE; // there may be thousands
    for (const Dir_Ulmen* entry = list; entry->Type; entry++)
        write(entry->No_Access ? L"  " RED + std::wstring(entry->Name) + L" (no access)"
                               : L"  " BOLD + std::wstring(entry->Name));
    console.Flag &= ~OUTIL_INVISIBLE;
    console.Init(nullptr); // the sliders have the console's flags
    say(std::to_wstring(count) + L" folders in " + path);
    Scan_Free(list);
}

void CommandLine::font(const std::wstring& arguments) {
    std::size_t space = arguments.find_last_of(L' ');
    std::wstring name = space == std::wstring::npos ? L"" : trimmed(arguments.substr(0, space));
    int size = number_of(space == std::wstring::npos ? arguments : arguments.substr(space + 1));
    if (!arguments.empty() && (size < 6 || size > 72))
        return say(wrong(L"font takes a name and a size from 6 to 72, as in: font courier new 12"));
    family = Wchar_2_Char(name.c_str());
    console.Font_Name = family.empty() ? nullptr : const_cast<char*>(family.c_str());
    console.Font_Size = arguments.empty() ? 0 : size;
    console.Init(nullptr);
    console.Draw();
    say(L"Sphinx of black quartz, judge my vow.");
}

void CommandLine::read(const std::wstring& arguments) {
    for (const Kind& kind : kinds)
        if (arguments == kind.name) asked = &kind;
    if (!asked) return say(wrong(L"read takes one of: password, integer, float, hex"));
    say(L"Type it, and press Enter. Only what belongs to it is taken.");
    console.Flag |= asked->flag;
}

// What was asked for. A password stays neither in the log nor in the history.
void CommandLine::take(const std::wstring& line) {
    const Kind& kind = *asked;
    asked = nullptr;
    console.Flag &= ~kind.flag;
    if (kind.flag == TEXTS_PASSWORD) {
        console.OverWrite(L"%ls", std::wstring(line.size(), L'#').c_str());
        std::wmemset(console.History[0], L'#', line.size());
        return say(L"A password of " + std::to_wstring(line.size()) + L" characters.");
    }
    wchar_t result[80];
    if (kind.flag == TEXTS_FLOAT)
        std::swprintf(result, 80, L"%g, and squared %g", std::wcstod(line.c_str(), nullptr),
                      std::wcstod(line.c_str(), nullptr) * std::wcstod(line.c_str(), nullptr));
    else
        std::swprintf(result, 80, L"%lld, in hexadecimal 0x%llX",
                      std::wcstoll(line.c_str(), nullptr, kind.flag == TEXTS_HEX ? 16 : 10),
                      std::wcstoll(line.c_str(), nullptr, kind.flag == TEXTS_HEX ? 16 : 10));
    say(result);
}

void CommandLine::trace(const std::wstring& arguments) {
    if (arguments != L"on" && arguments != L"off") return say(wrong(L"trace takes on or off."));
    traces_collect(arguments == L"on");
    say(L"Traces are " + arguments + (traces_collected() ? L": move the pointer over a field." : L"."));
}

// A window of its own, with a loop of its own, until it is answered.
void CommandLine::popup(const std::wstring& arguments) {
    std::wstring text = arguments.empty() ? L"Is this right?" : arguments;
    int answer = PopUp_Query(L"question", L"Console", text.data(), nullptr, 0, 0, nullptr);
    say(answer == 1 ? L"Yes." : answer == 0 ? L"No." : L"No answer.");
}

void CommandLine::echo(const std::wstring& arguments) { say(arguments); }

void CommandLine::clear(const std::wstring&) { console.Cleanup(); }
