// Names and formats: whatever stands in a format, the text is the same for every size of the buffer up to its
// end, the same in the wide and the narrow form, and a control and a report get just that text.

#include <algorithm>
#include <cstdarg>
#include <cwchar>
#include <vector>

#include <brask/fenn.h>
#include <brask/fenn_host.h>
#include <brask/tools.h>

#include "text/format.h"
#include "text/unicode.h"
#include "wide_text.h"

namespace {

constexpr int name_room = 1024, report_room = 2048;
constexpr unsigned heard_code = 0x90000021;

template <typename Unit, typename Format>
int format_into(std::vector<Unit>& out, const Format* format, ...) {
    std::va_list args;
    va_start(args, format);
    const int length = text::format(out.data(), out.size(), format, args);
    va_end(args);
    return length;
}

// What every format below takes, in this order.
struct Arguments {
    int number;
    std::wstring wide;
    std::string narrow;
    unsigned word;
    double real;
    long long large;
};

void add_literal(Input& input, std::wstring& format) {
    for (const wchar_t unit : wide_text(input, input.one_in(16) ? 1500 : 12, false))
        format += unit == L'%' ? std::wstring(L"%%") : std::wstring(1, unit);
}

// One conversion, with flags, width and precision as they come.
void add_conversion(Input& input, std::wstring& format, const wchar_t* conversion) {
    static constexpr wchar_t flags[] = {L'-', L'0', L'+', L' ', L'#'};
    format += L'%';
    while (input.one_in(3))
        format += input.among(flags);
    if (input.one_in(3)) format += std::to_wstring(input.below(input.one_in(8) ? 3000 : 20));
    if (input.one_in(3)) format += L'.' + std::to_wstring(input.below(input.one_in(8) ? 3000 : 12));
    format += conversion;
}

std::wstring make_format(Input& input) {
    std::wstring format;
    for (const wchar_t* conversion : {L"d", L"ls", L"hs", L"X", L"g", L"lld"}) {
        add_literal(input, format);
        add_conversion(input, format, conversion);
    }
    add_literal(input, format);
    return format;
}

template <typename Unit, typename Format>
int put(std::vector<Unit>& out, const Format* format, const Arguments& a) {
    return format_into(out, format, a.number, a.wide.c_str(), a.narrow.c_str(), a.word, a.real, a.large);
}

// The whole text, asked for with a buffer that is sure to hold it.
template <typename Unit, typename Format>
std::basic_string<Unit> whole_text(const Format* format, const Arguments& a) {
    std::vector<Unit> out(1);
    const int length = put(out, format, a);
    expect(length >= 0, "a format that can be followed has a length");
    out.assign(static_cast<std::size_t>(length) + 1, Unit(1));
    expect(put(out, format, a) == length, "the length does not depend on the room");
    const std::basic_string<Unit> text(out.data());
    expect(text.size() == static_cast<std::size_t>(length), "the length told is the length of the text");
    return text;
}

template <typename Unit, typename Format>
void check_cut(Input& input, const Format* format, const Arguments& a, const std::basic_string<Unit>& whole) {
    const std::size_t size = 1 + input.below(static_cast<unsigned>(whole.size()) + 2);
    std::vector<Unit> out(size, Unit(1));
    put(out, format, a);
    const std::basic_string<Unit> text(out.data());
    expect(text.size() < size, "the text ends inside its room");
    expect(whole.compare(0, text.size(), text) == 0, "a cut text is the start of the whole one");
    // A character of several units is left out rather than cut.
    expect(text.size() + 4 >= std::min(size, whole.size()), "no more is cut off than there is no room for");
}

std::wstring heard;
void receive(void*, HWND, unsigned, const wchar_t* text) { heard = text; }

void check_formats(Input& input) {
    Arguments a;
    a.number = input.number();
    a.word = input.word();
    a.real = static_cast<double>(input.number()) / (1 + input.below(1000));
    a.large = static_cast<long long>(input.word()) << input.below(32);
    a.wide = wide_text(input, 40);
    a.narrow = text::to_utf8(wide_text(input, 40, false).c_str());
    while (input.one_in(4))
        a.narrow += static_cast<char>(1 + input.below(255));
    const std::wstring format = make_format(input);
    const std::string narrow_format = text::to_utf8(format.c_str());

    const std::wstring whole = whole_text<wchar_t>(format.c_str(), a);
    expect(whole == whole_text<wchar_t>(narrow_format.c_str(), a), "wide and narrow format give one text");
    check_cut(input, format.c_str(), a, whole);
    check_cut(input, narrow_format.c_str(), a, whole_text<char>(narrow_format.c_str(), a));

    Tools control;
    const int named =
        control.Name_Set(format.c_str(), a.number, a.wide.c_str(), a.narrow.c_str(), a.word, a.real, a.large);
    const bool fits = whole.size() < name_room;
    expect(named == fits, "a name fits or is refused");
    const std::wstring name = control.Name_Get() ? control.Name_Get() : L"";
    expect(name == (fits ? whole : L""), "a control has just its name");

    heard.clear();
    Error_Fct(nullptr, heard_code, format.c_str(), a.number, a.wide.c_str(), a.narrow.c_str(), a.word, a.real,
              a.large);
    expect(whole.compare(0, heard.size(), heard) == 0, "a report is the start of its text");
    expect(heard.size() + 4 >= std::min<std::size_t>(report_room, whole.size()), "a report is whole");
}

// Any bytes as a name: it is its own format, with nothing to take for a conversion.
void check_bare(Input& input) {
    std::string narrow;
    for (unsigned left = input.below(input.one_in(8) ? 5000 : 60); left > 0; left--)
        narrow += static_cast<char>(input.one_in(4) ? '%' : 1 + input.below(255));
    const std::wstring wide = text::to_wide(narrow.c_str());
    std::vector<wchar_t> out(wide.size() + 1, 1);
    const int length = text::format_bare(out.data(), out.size(), wide.c_str());
    const std::wstring bare(out.data());
    expect(length == static_cast<int>(bare.size()), "a bare format never grows");
    if (narrow.find('%') == std::string::npos) expect(bare == wide, "a text without conversions is itself");

    Tools control;
    control.Name_Set(L"before");
    const bool fits = length < name_room;
    expect(control.Name_Set(narrow.c_str()) == fits, "a narrow name fits or is refused");
    const std::wstring name = control.Name_Get() ? control.Name_Get() : L"";
    expect(name == (fits ? bare : L""), "a control has just its narrow name");
    if (fits && control.Name_Get()) {
        expect(control.Name_Set(L"%ls", control.Name_Get()) == 1, "a name can be made of the name before");
        expect(control.Name_Get() == name, "and is the same");
    }
}

void check_table(Input& input) {
    std::wstring entries[3];
    wchar_t* table[4] = {};
    for (int i = 0; i < 3; i++) {
        entries[i] = wide_text(input, input.one_in(8) ? 3000 : 12);
        if (input.one_in(2))
            entries[i].insert(input.below(static_cast<unsigned>(entries[i].size()) + 1), L":");
        if (!input.one_in(4)) table[i] = entries[i].data();
    }
    const int which = input.one_in(2) ? static_cast<int>(input.below(5)) : input.number();
    const int count = static_cast<int>(input.below(5));
    Tools control;
    const int made = control.Name_Set(which, count, table, "fallback");
    expect(made == 1, "there is a name or its fallback");
    const std::wstring name = control.Name_Get() ? control.Name_Get() : L"";
    if (which < 1 || which > count || !table[which - 1]) {
        expect(name == L"fallback", "no entry: the fallback");
        return;
    }
    const std::wstring entry = entries[which - 1].substr(0, 2047);
    const std::size_t colon = entry.find(L':');
    expect(name == (colon == std::wstring::npos ? entry : entry.substr(0, colon + 1)),
           "an entry up to its colon");
    if (!name.empty()) {
        const int found = control.Name_Get(3, table);
        expect(!found || name == table[found - 1], "the place found holds the name");
    }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    Fenn_Set_Report(receive, nullptr);
    Input input(data, size);
    while (!input.empty())
        switch (input.below(3)) {
        case 0: check_formats(input); break;
        case 1: check_bare(input); break;
        default: check_table(input); break;
        }
    return 0;
}
