// Texts with marks, as the drawing layer gets them: every character that is no mark is written once, in
// order, in the colour and the face in force, each run to the right of the last; brackets are kept.

#include <map>
#include <vector>

#include <brask/tools.h>

#include "support/desk.h"
#include "support/recorder.h"
#include "wide_text.h"

namespace {

constexpr unsigned longest = 1000; // longer runs are written in pieces, which look the same here
constexpr std::size_t stacked_rows = 128;
constexpr int letter_width = 8; // as the recorder measures

// What stands in one colour and one face.
struct Stretch {
    std::string color, face, text;
    int x;
    bool same_look(const Stretch& other) const { return color == other.color && face == other.face; }
};

std::string color_word(unsigned long word) {
    char text[16];
    std::snprintf(text, sizeof text, "0x%lX", word);
    return text;
}

std::string face_name(bool bold, bool slanted) {
    return std::string(bold ? "bold" : "plain") + (slanted ? "-slanted" : "");
}

std::string start_face(const Tools& control) {
    const char *weight = control.Font_Weight, *slant = control.Font_Slant;
    return face_name(weight && weight[0] == 'b', slant && slant[0] != 'r');
}

unsigned long start_color(const Writing& to) {
    if (to.color) return to.color;
    if (to.flag & GRAPH_OUTLINE) return 0xE64040;
    return to.flag & TEXT_WHITE ? 0xFFFFFF : 1;
}

void add(std::vector<Stretch>& all, const Stretch& more) {
    if (more.text.empty()) return;
    if (!all.empty() && all.back().same_look(more))
        all.back().text += more.text;
    else
        all.push_back(more);
}

std::string bare(const std::wstring& text) {
    const std::string quoted = recorder::quoted(text.c_str());
    return quoted.substr(1, quoted.size() - 2);
}

// The text by the rules of marks; x counts from the start of the line.
std::vector<Stretch> by_the_rules(const std::wstring& text, unsigned long color, std::string face) {
    static constexpr unsigned long colors[] = {0xFF0000, 1, 0xFFFFFF, 0xFF, 0xFFFF, 0xA000};
    std::vector<Stretch> all;
    std::wstring run;
    int x = 0;
    const auto end_run = [&] {
        add(all, {color_word(color), face, bare(run), x});
        x += letter_width * static_cast<int>(run.size());
        run.clear();
    };
    for (const wchar_t unit : text) {
        const unsigned low = static_cast<unsigned>(unit) & 0xFF;
        const bool colors_it = low >= 1 && low <= 6, turns_it = low >= 240 && low <= 242;
        if (!colors_it && !turns_it) {
            run += unit;
            continue;
        }
        end_run();
        if (colors_it)
            color = colors[low - 1];
        else
            face = face_name(low == 241, low == 242);
    }
    end_run();
    return all;
}

// Marks are letters where these stand one above the other.
std::vector<Stretch> stacked(const std::wstring& text, unsigned long color, const std::string& face) {
    std::vector<Stretch> all;
    add(all, {color_word(color), face, bare(text.substr(0, stacked_rows)), 0});
    return all;
}

// The recorder's lines put together again.
std::vector<Stretch> as_written() {
    std::vector<Stretch> all;
    std::string color;
    for (const recorder::Line& line : recorder::log()) {
        int x = 0, y = 0, text_at = 0;
        char word[16] = "", font[64] = "";
        if (std::sscanf(line.text.c_str(), "Zeb_Font_Color(%15[^,], 0)", word) == 1) color = word;
        if (std::sscanf(line.text.c_str(), "Zeb_Font_Write(%63[^,], %d, %d, \"%n", font, &x, &y, &text_at) ==
            3)
            add(all, {color, font, line.text.substr(text_at, line.text.size() - text_at - 2), x});
    }
    return all;
}

// The library's cache holds fonts for longer than one input, so their names are kept.
void name_fonts() {
    static std::map<HFONT, std::string> names;
    for (const desk::Made& font : desk::fonts())
        names[font.handle] = face_name(font.description.lfWeight == 700, font.description.lfItalic != 0);
    for (const auto& [font, name] : names)
        recorder::name(font, name);
}

void compare(const std::vector<Stretch>& wanted, const std::vector<Stretch>& written, bool in_a_line) {
    expect(wanted.size() == written.size(), "as many changes of look as the marks make");
    for (std::size_t i = 0; i < wanted.size(); i++) {
        expect(wanted[i].same_look(written[i]), "colour and face of a stretch");
        expect(wanted[i].text == written[i].text, "the characters of a stretch");
        const unsigned from_start = static_cast<unsigned>(written[i].x) - static_cast<unsigned>(written[0].x);
        expect(!in_a_line || static_cast<int>(from_start) == wanted[i].x - wanted[0].x,
               "the place of a stretch");
    }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    Input input(data, size);
    desk::reset();
    Tools control;
    control.Wnd = recorder::window();
    const bool in_a_line = input.one_in(2);
    // The recorder writes a surrogate pair out as one character, which rows of single letters part.
    Writing to = writing(input, control, longest, in_a_line);
    control.Flag = in_a_line ? 0 : OUTIL_VERTICAL;
    // Asks for all four fonts, so that they have names in the record of the text itself. Twice: the cache may
    // find one in its oldest place and recycle that for the next.
    Tools unclipped = control;
    unclipped.Clip_Dim_X = 0;
    for (int i = 0; i < 2; i++)
        unclipped.Text(L"W", 0, 0, 0, 100, 100, 0, 0);
    recorder::reset();
    name_fonts();

    control.Text(to.text.c_str(), to.flag, to.x, to.y, to.dx, to.dy, to.border, to.color);
    expect(!recorder::open(), "the bracket is closed");
    const std::string tag = recorder::exit_tag("Tools::Text");
    const bool may_hide = control.Clip_Dim_X && control.Clip_Dim_Y;
    expect(tag == (to.text.empty() ? "no text" : "") || (tag == "clip" && may_hide), "the way out");
    if (!tag.empty()) {
        expect(as_written().empty(), "nothing is written");
        return 0;
    }
    const unsigned long color = start_color(to);
    compare(in_a_line ? by_the_rules(to.text, color, start_face(control))
                      : stacked(to.text, color, start_face(control)),
            as_written(), in_a_line);
    return 0;
}
