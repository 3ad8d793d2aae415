#include <brask/labels.h>

#include "scenes.h"

namespace {

void line(Stage& stage, int row, const wchar_t* text, DWORD flags = TEXT_LEFT,
          const Colors& color = Colors()) {
    Labels label;
    label.Color = color;
    stage.show(label, 5, 5 + 22 * row, 290, 20, flags, text);
}

void places(Stage& stage) {
    const DWORD columns[] = {TEXT_LEFT, 0, TEXT_RIGHT}, rows[] = {TEXT_BOTTOM, 0, TEXT_TOP};
    for (int row = 0; row < 3; row++)
        for (int column = 0; column < 3; column++) {
            Labels label;
            stage.show(label, 5 + 80 * column, 5 + 60 * row, 75, 55, columns[column] | rows[row], L"Place");
        }
}

void colors(Stage& stage) {
    line(stage, 0, L"black by default");
    line(stage, 1, L"white by its flag", TEXT_LEFT | TEXT_WHITE);
    line(stage, 2, L"blue of the outline look", TEXT_LEFT | GRAPH_OUTLINE);
    line(stage, 3, L"a colour of its own", TEXT_LEFT, Colors(160, 60, 20));
}

void marks(Stage& stage) {
    line(stage, 0, L"one \001blue \004red \006green \005yellow \003white \002black");
    line(stage, 1, L"one \x00F1 bold\x00F2 oblique\x00F0 regular \004\x00F1 bold and red");
}

void overlong(Stage& stage) {
    const DWORD columns[] = {TEXT_LEFT, 0, TEXT_RIGHT};
    for (int row = 0; row < 3; row++) {
        Labels label;
        stage.show(label, 40, 5 + 22 * row, 80, 20, columns[row], L"The end stays in view");
    }
}

void stacked(Stage& stage) {
    const DWORD rows[] = {TEXT_BOTTOM, 0, TEXT_TOP, TEXT_LEFT, TEXT_RIGHT};
    for (int i = 0; i < 5; i++) {
        Labels label;
        stage.show(label, 5 + 40 * i, 5, 35, 150, rows[i] | OUTIL_VERTICAL, L"Stack\001ed");
    }
}

void sizes(Stage& stage) {
    const int points[] = {6, 9, 12, 18, 24, 36};
    int y = 5;
    for (int size : points) {
        Labels label;
        label.Font_Size = size;
        stage.show(label, 5, y, 290, 2 * size + 4, TEXT_LEFT, L"Size 0123");
        y += 2 * size + 4;
    }
}

void letters(Stage& stage) {
    const wchar_t* const rows[] = {L"ABCDEFGHIJKLMNOPQRSTUVWXYZ",       L"abcdefghijklmnopqrstuvwxyz",
                                   L"0123456789 !\"#$%&'()*+,-./",      L":;<=>?@[\\]^_`{|}~",
                                   L"ÀÁÂÃÄÅÆÇÈÉÊËÌÍÎÏÐÑÒÓÔÕÖ×ØÙÚÛÜÝÞß", L"àáâãäåæçèéêëìíîï÷øùúûüýþÿ",
                                   L"ΑΒΓΔΕΖΗΘΙΚΛΜΝΞΟΠΡΣΤΥΦΧΨΩ",         L"αβγδεζηθικλμνξοπρστυφχψω",
                                   L"АБВГДЕЖЗИЙКЛМНОПРСТУФХЦЧШЩЪЫЬЭЮЯ", L"абвгдежзийклмнопрстуфхцчшщъыьэюя",
                                   L"no glyph: \x4E2D \x0627"};
    int row = 0;
    for (const wchar_t* text : rows)
        line(stage, 10 - row++, text);
}

} // namespace

const std::vector<Scene> LABEL_SCENES = {
    {"label_places", 250, 190, places},   {"label_colors", 300, 100, colors},
    {"label_marks", 300, 55, marks},      {"label_overlong", 160, 75, overlong},
    {"label_stacked", 210, 160, stacked}, {"label_sizes", 300, 250, sizes},
    {"label_letters", 400, 255, letters},
};
