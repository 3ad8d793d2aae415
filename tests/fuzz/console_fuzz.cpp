// A console in a real window: text with marks into its log, keys of any value into its editor, any clipboard,
// any fields. What is kept is whole, and what is hidden paints nothing.

#include <algorithm>
#include <cstring>

#include <brask/texts.h>

#include "real_window.h"
#include "wide_text.h"

namespace {

void ignore(void*, HWND, unsigned, const wchar_t*) {}

DWORD some_flags(Input& input) {
    static constexpr DWORD flags[] = {0,
                                      TEXTS_READ_STRIP,
                                      TEXTS_PASSWORD,
                                      TEXTS_INTEGER,
                                      TEXTS_FLOAT,
                                      TEXTS_HEX,
                                      TEXTS_CURSOR_H,
                                      TEXTS_CURSOR_V,
                                      TEXTS_CURSOR_H | TEXTS_CURSOR_V,
                                      TEXTS_REPORT_KEYS,
                                      TEXTS_FIELD,
                                      OUTIL_INVISIBLE,
                                      OUTIL_DISABLE,
                                      OUTIL_EMPTY,
                                      GRAPH_OUTLINE};
    return input.one_in(16) ? input.word() : input.among(flags) | input.among(flags);
}

void shape(Input& input, Texts& console) {
    const bool usual = !input.one_in(4);
    console.Pos_X = usual ? 5 : input.number();
    console.Pos_Y = usual ? 5 : input.number();
    console.Dim_X = usual ? 200 : input.number();
    console.Dim_Y = usual ? 120 : input.number();
    console.Border = input.one_in(4) ? input.number() : 0;
    console.Cursor_Dim = input.one_in(4) ? input.number() : 0;
    if (!input.one_in(4)) return;
    console.Clip_X = input.number();
    console.Clip_Y = input.number();
    console.Clip_Dim_X = input.number();
    console.Clip_Dim_Y = input.number();
}

// What a host may leave behind in the public fields.
void meddle(Input& input, Texts& console) {
    switch (input.below(8)) {
    case 0: console.Edit_Pos = input.number(); break;
    case 1: console.Hist_Pos = input.number(); break;
    case 2: console.flag_read = static_cast<signed char>(input.byte()); break;
    case 3: console.select = input.number(); break;
    case 4: std::fill_n(console.Edit_Line, 1024, L'x'); break;
    case 5: console.Font_Dim_Y = input.number(); break;
    case 6: std::memcpy(&console.Cursor_V.Cur_Value, "\0\0\xC0\x7F", 4); break; // no number
    default: console.Cursor_H.Cur_Value = static_cast<float>(input.number()); break;
    }
}

void copy(Input& input) {
    const std::wstring text = wide_text(input, input.one_in(8) ? 1500 : 30);
    const std::size_t units = text.size() + (input.one_in(4) ? 0 : 1);
    const HGLOBAL block = GlobalAlloc(GMEM_MOVEABLE, units * sizeof(wchar_t));
    if (!block || !OpenClipboard(nullptr)) return;
    if (void* room = GlobalLock(block)) std::memcpy(room, text.c_str(), units * sizeof(wchar_t));
    GlobalUnlock(block);
    if (!SetClipboardData(CF_UNICODETEXT, block)) GlobalFree(block);
    CloseClipboard();
}

int some_key(Input& input) {
    static constexpr int keys[] = {0x823, 0x824,  0x825,  0x827,  0x826,  0x828, 8,  0x82E,
                                   13,    0x1061, 0x1068, 0x1062, 0x106E, 0x256, 27, 0x102E};
    if (input.one_in(8)) return static_cast<int>(input.word());
    return input.one_in(2) ? input.among(keys) : static_cast<int>(' ' + input.below(95));
}

void write(Input& input, Texts& console) {
    const std::wstring text = wide_text(input, input.one_in(8) ? 1200 : 40);
    const bool lands =
        console.test && console.Dim_X >= 1 && console.Dim_Y >= 1 && !(console.Flag & OUTIL_DISABLE);
    if (input.one_in(4))
        console.OverWrite(L"%ls", text.c_str());
    else
        console.Write(L"%ls", text.c_str());
    if (!lands) return;
    const std::wstring shown = text.substr(0, 1023);
    const std::size_t feed = shown.find_last_of(L'\n');
    const std::wstring last = feed == std::wstring::npos ? shown : shown.substr(feed + 1);
    // A surrogate pair is not cut in two.
    expect(last.compare(0, std::wcslen(console.Lines[0]), console.Lines[0]) == 0, "the newest line");
    expect(last.size() - std::wcslen(console.Lines[0]) <= 1, "all of the newest line");
}

void act(Input& input, Texts& console, const RealWindow& window) {
    switch (input.below(24)) {
    case 0: shape(input, console); break;
    case 1: console.Flag = some_flags(input); break;
    case 2: console.Init(input.one_in(2) ? window.wnd : nullptr); break;
    case 3: console.Draw(); break;
    case 4: meddle(input, console); break;
    case 5: console.Center(input.number()); break;
    case 6:
        if (input.one_in(8)) console.Cleanup();
        break;
    case 7: console.Read(L"%ls", wide_text(input, input.one_in(8) ? 1200 : 40).c_str()); break;
    case 8: console.Read(nullptr); break;
    case 9: console.Update(static_cast<char>(input.below(2))); break;
    case 10: console.Scroll(input.number()); break;
    case 11: console.Deselect(); break;
    case 12: console.Read_Line(); break;
    case 13: console.Name_Set(L"%ls", wide_text(input, 20).c_str()); break;
    case 14: copy(input); break;
    case 15:
        console.Select(static_cast<int>(input.below(64)), input.one_in(4) ? input.number() : 0,
                       input.one_in(4) ? input.number() : 0);
        break;
    case 16:
    case 17:
    case 18: write(input, console); break;
    default:
        for (unsigned left = input.below(12); left > 0; left--)
            console.Input(some_key(input));
    }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    Fenn_Set_Report(ignore, nullptr);
    Fenn_Builtin_Font(1);
    RealWindow window(240, 160);
    Input input(data, size);
    Texts console;
    shape(input, console);
    console.Flag = some_flags(input) & ~OUTIL_INVISIBLE;
    console.Init(window.wnd);
    while (!input.empty()) {
        if (input.one_in(4)) {
            Zeb_setup(window.wnd, "fuzz");
            set_curs(static_cast<int>(input.below(300)) - 40, static_cast<int>(input.below(200)) - 40);
            Zeb_release();
        }
        // A slider has flags of its own, and learns of the console's at the next Init.
        const auto hidden = [&] {
            return console.Flag & OUTIL_INVISIBLE && !(console.Flag & (TEXTS_CURSOR_V | TEXTS_CURSOR_H));
        };
        const bool was_hidden = hidden();
        const std::vector<DWORD> before = was_hidden ? window.pixels() : std::vector<DWORD>();
        act(input, console, window);
        if (was_hidden && hidden()) expect(window.pixels() == before, "a hidden console paints nothing");
    }
    return 0;
}
