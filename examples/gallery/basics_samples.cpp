#include "basics_samples.h"

// Marks inside a text: the low byte of a character, here the whole of it.
#define BLUE L"\x01"
#define BLACK L"\x02"
#define RED L"\x04"
#define GREEN L"\x06"
#define REGULAR L"\u00F0"
#define BOLD L"\u00F1"
#define OBLIQUE L"\u00F2"

namespace {

template <class Sample, int n>
Samples<Sample> all(const Sample (&table)[n]) {
    return {table, n};
}

const BoxSample boxes[] = {
    {L"Sunken", 0, 0, 0},
    {L"Raised", BOX_RAISED, 0, 0},
    {L"Inset", BOX_INSET, 0, 0},
    {L"Raised inset", BOX_RAISED | BOX_INSET, 0, 0},
    {L"No frame", OUTIL_NO_FRAME, 0, 0},
    {L"Outline", GRAPH_OUTLINE, 0, 0},
    {L"Empty", OUTIL_EMPTY, 0, 0},
    {L"Flat", OUTIL_FLAT, 0, 0xA8C8D8},
    {L"Disabled", OUTIL_DISABLE, 0, 0},
    {L"Wide border", BOX_RAISED, 8, 0},
    {L"Thin border", 0, 1, 0},
    {L"White title", OUTIL_FLAT | TEXT_WHITE, 0, 0x805030},
};

const BoxSample places[] = {
    {L"Top left", TEXT_LEFT, 0, 0},
    {L"Top", 0, 0, 0},
    {L"Top right", TEXT_RIGHT, 0, 0},
    {L"Left", TEXT_MIDDLE | TEXT_LEFT, 0, 0},
    {L"Middle", TEXT_MIDDLE, 0, 0},
    {L"Right", TEXT_MIDDLE | TEXT_RIGHT, 0, 0},
    {L"Bottom left", TEXT_BOTTOM | TEXT_LEFT, 0, 0},
    {L"Bottom", TEXT_BOTTOM, 0, 0},
    {L"Bottom right", TEXT_BOTTOM | TEXT_RIGHT, 0, 0},
};

// An alignment and nothing else: the caption is not shown.
constexpr LabelSample aligned(const wchar_t* text, DWORD flag) {
    return {nullptr, text, flag, 0, nullptr, nullptr, nullptr, 0};
}

const LabelSample aligns[] = {
    aligned(L"top left", TEXT_TOP | TEXT_LEFT),
    aligned(L"top", TEXT_TOP),
    aligned(L"top right", TEXT_TOP | TEXT_RIGHT),
    aligned(L"left", TEXT_LEFT),
    aligned(L"centre", 0),
    aligned(L"right", TEXT_RIGHT),
    aligned(L"bottom left", TEXT_BOTTOM | TEXT_LEFT),
    aligned(L"bottom", TEXT_BOTTOM),
    aligned(L"bottom right", TEXT_BOTTOM | TEXT_RIGHT),
};

const LabelSample stacks[] = {
    aligned(L"Top", OUTIL_VERTICAL | TEXT_TOP),
    aligned(L"Stack", OUTIL_VERTICAL),
    aligned(L"End", OUTIL_VERTICAL | TEXT_BOTTOM),
};

constexpr LabelSample script(const wchar_t* caption, const wchar_t* text) {
    return {caption, text, TEXT_LEFT, 0, nullptr, nullptr, nullptr, 0};
}

const LabelSample lines[] = {
    script(L"Colour marks", L"one " BLUE L"blue " RED L"red " GREEN L"green " BLACK L"black"),
    script(L"Font marks", L"one " BOLD L"bold " OBLIQUE L"oblique " REGULAR L"regular"),
    {L"Bold serif", L"Sphinx of black quartz", TEXT_LEFT, 0x803000, "times new roman", "bold", nullptr, 14},
    {L"Slanted mono", L"for (int i = 0; i < n; i++)", TEXT_LEFT, 0, "courier new", nullptr, "o", 11},
    {L"Outline", L"the blue of the outline look", TEXT_LEFT | GRAPH_OUTLINE, 0, nullptr, nullptr, nullptr, 0},
    {L"Large", L"Twenty points", TEXT_LEFT, 0x204080, nullptr, nullptr, nullptr, 20},
    script(L"Greek", L"Ξεσκεπάζω την ψυχοφθόρα"),
    script(L"Cyrillic", L"Съешь же ещё этих мягких булок"),
    script(L"Arabic", L"نص حكيم له سر قاطع"),
    script(L"Hebrew", L"דג סקרן שט בים מאוכזב"),
    script(L"Devanagari", L"देवनागरी लिपि सरल है"),
    script(L"Chinese", L"天地玄黄宇宙洪荒"),
    script(L"Japanese", L"いろはにほへと カタカナ 日本語"),
};

const ButtonSample buttons[] = {
    {L"Momentary", Click::momentary, 0, 0, 0, 0, 0, 0},
    {L"Toggle", Click::toggle, 0, 0, 0, 0, 0, 0},
    {L"Toggle, down", Click::toggle, 0, 0, 0, 0, 1, 0},
    {L"Disabled", Click::toggle, OUTIL_DISABLE, 0, 0, 0, 0, 0},
    {L"Lamp off", Click::lamp, BUTTON_LAMP | BUTTON_LAMP_COLOR, 0, 0, 0, 0, 0},
    {L"Green lamp", Click::lamp, BUTTON_LAMP | BUTTON_LAMP_COLOR, 1, 0, 0, 0, 0},
    {L"Blue lamp", Click::lamp, BUTTON_LAMP | BUTTON_LAMP_COLOR, 2, 0, 0, 0, 0},
    {L"Yellow lamp", Click::lamp, BUTTON_LAMP | BUTTON_LAMP_COLOR, 3, 0, 0, 0, 0},
    {L"Red lamp", Click::lamp, BUTTON_LAMP | BUTTON_LAMP_COLOR, 4, 0, 0, 0, 0},
    {L"Plain lamp", Click::lamp, BUTTON_LAMP, 1, 0, 0, 0, 0},
    {L"Picture", Click::toggle, TEXT_BOTTOM, 0, 0, 0, 0, 1},
    {L"Two pictures", Click::toggle, TEXT_BOTTOM, 0, 0, 0, 0, 2},
    {L"Open", Click::momentary, TEXT_LEFT | ICON_RIGHT, 0, 0, 0, 0, 0, L"open.rgb"},
    {L"Search", Click::momentary, TEXT_LEFT | ICON_RIGHT, 0, 0, 0, 0, 0, L"search.rgb"},
    {L"Frame only", Click::toggle, OUTIL_EMPTY, 0, 0, 0, 0, 0},
    {L"Outline", Click::toggle, GRAPH_OUTLINE, 0, 0, 0, 0, 0},
    {L"No frame", Click::momentary, OUTIL_NO_FRAME, 0, 0, 0, 0, 0},
    {L"Flat", Click::toggle, OUTIL_FLAT, 0, 0, 0, 0, 0},
    {L"Wide border", Click::toggle, 0, 0, 8, 0, 0, 0},
    {L"Coloured", Click::toggle, 0, 0, 0, 0x60B0E0, 0, 0},
    {L"Text left", Click::toggle, TEXT_LEFT, 0, 0, 0, 0, 0},
    {L"Disabled, down", Click::toggle, OUTIL_DISABLE, 0, 0, 0, 1, 0},
};

} // namespace

Samples<BoxSample> box_samples() { return all(boxes); }
Samples<BoxSample> place_samples() { return all(places); }
Samples<LabelSample> align_samples() { return all(aligns); }
Samples<LabelSample> stack_samples() { return all(stacks); }
Samples<LabelSample> line_samples() { return all(lines); }
Samples<ButtonSample> button_samples() { return all(buttons); }
