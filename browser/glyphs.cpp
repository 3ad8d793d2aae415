#include "browser/glyphs.h"

#include <cstddef>

#include <brask/icons.h>

using namespace brask;

// Folders and the connectors of a tree, line by line.

namespace {

// Which end of a line counts from the far edges of a cell instead of from its lower left corner.
enum class Reach { NONE, UP, RIGHT };

struct Line {
    signed char x1, y1, x2, y2;
    Reach reach = Reach::NONE;
};

// The lines of one colour; an entry that is no line, but a filled rectangle or a frame, comes first.
enum class Block { NONE, FILLED, FRAME };

struct Layer {
    unsigned long word;
    Block block;
    signed char left, top, right, bottom; // of the block
    const Line* lines;
    std::size_t count;
};

template <std::size_t COUNT>
constexpr Layer lines(unsigned long word, const Line (&list)[COUNT]) {
    return {word, Block::NONE, 0, 0, 0, 0, list, COUNT};
}

// What the far edges of a cell are; glyphs that have their own size reach for none.
struct Cell {
    int x1, x2, y1, y2;
};

void paint(const Line& line, const Cell& cell) {
    const Px x2 = line.reach == Reach::RIGHT ? cell.x2 : cell.x1;
    const Px y2 = line.reach == Reach::UP ? cell.y2 : cell.y1;
    stroke(Px(cell.x1) + line.x1, Px(cell.y1) + line.y1, x2 + line.x2, y2 + line.y2);
}

void paint(const Layer& layer, const Cell& cell) {
    const Px x = cell.x1, y = cell.y1;
    Zeb_color(layer.word);
    if (layer.block == Block::FILLED)
        draw_fill_rectangle(x + layer.left, y + layer.top, x + layer.right, y + layer.bottom);
    if (layer.block == Block::FRAME)
        draw_rectangle(x + layer.left, y + layer.top, x + layer.right, y + layer.bottom);
    for (std::size_t i = 0; i < layer.count; i++)
        paint(layer.lines[i], cell);
}

template <std::size_t COUNT>
void paint(const Layer (&layers)[COUNT], const Cell& cell) {
    for (const Layer& layer : layers)
        paint(layer, cell);
}

// --- Folders ----------------------------------------------------------------------------------------------

constexpr unsigned long FOLDER = 0x388E8E;
constexpr unsigned long FOLDER_SELECTED = 0x4040FF;
constexpr unsigned long FOLDER_SHADE = 0x505050;

constexpr Line CLOSED_FACE[] = {{1, 10, 8, 10}, {2, 11, 7, 11}};
constexpr Line CLOSED_BLACK[] = {{1, 0, 15, 0}, {14, 0, 14, 10}};
constexpr Line CLOSED_SHADE[] = {{0, 1, 0, 11},  {0, 1, 14, 1},  {13, 1, 13, 11}, {8, 10, 14, 10},
                                 {1, 11, 2, 11}, {7, 11, 8, 11}, {2, 12, 7, 12}};
constexpr Line CLOSED_WHITE[] = {{1, 2, 1, 10}, {1, 9, 13, 9}};

constexpr Line OPEN_FACE[] = {{1, 10, 8, 10}, {2, 11, 7, 11}, {0, 5, 1, 5}};
constexpr Line OPEN_BLACK[] = {
    {1, 0, 15, 0}, {14, 0, 14, 10}, {13, 1, 13, 3}, {12, 3, 12, 5}, {11, 5, 11, 7}};
constexpr Line OPEN_SHADE[] = {{13, 3, 13, 11}, {8, 10, 14, 10}, {7, 11, 8, 11}, {2, 12, 7, 12},
                               {1, 11, 2, 11},  {0, 8, 0, 11},   {0, 1, 13, 1},  {12, 1, 12, 3},
                               {11, 3, 11, 5},  {10, 5, 10, 7},  {-2, 7, 11, 7}, {-2, 5, -2, 7},
                               {-1, 3, -1, 5},  {0, 1, 0, 3}};
constexpr Line OPEN_WHITE[] = {{1, 2, 1, 3},  {0, 3, 0, 5},   {-1, 5, -1, 7}, {-1, 6, 10, 6},
                               {1, 8, 1, 11}, {2, 11, 7, 11}, {7, 10, 8, 10}, {8, 9, 13, 9}};

template <std::size_t COUNT>
constexpr Layer face(char select, const Line (&list)[COUNT]) {
    return {select ? FOLDER_SELECTED : FOLDER, Block::FILLED, 1, 9, 13, 1, list, COUNT};
}

// --- Connectors -------------------------------------------------------------------------------------------

constexpr unsigned long TREE_LINE = 0xFF0000;

constexpr Line PLUS[] = {{5, 4, 10, 4}, {7, 2, 7, 7}};
constexpr Line MINUS[] = {{5, 4, 10, 4}};
constexpr Line FORBIDDEN[] = {{5, 0, 10, 0}, {4, 1, 6, 1},   {9, 1, 11, 1}, {3, 2, 7, 2},  {10, 2, 12, 2},
                              {3, 3, 3, 6},  {11, 3, 11, 6}, {5, 3, 8, 3},  {6, 4, 9, 4},  {7, 5, 10, 5},
                              {3, 6, 5, 6},  {8, 6, 12, 6},  {4, 7, 6, 7},  {9, 7, 11, 7}, {5, 8, 10, 8}};

constexpr Line BRANCH[] = {{7, 9, 7, 2, Reach::UP}, {12, 4, 1, 4, Reach::RIGHT}};
// One pixel shorter than the others, on purpose.
constexpr Line BRANCH_FORBIDDEN[] = {{7, 9, 7, 2, Reach::UP}, {12, 4, 0, 4, Reach::RIGHT}};
constexpr Line LEAF_BELOW = {7, 0, 7, 5};
constexpr Line LEAF[] = {{7, 4, 7, 0, Reach::UP}, {7, 4, 1, 4, Reach::RIGHT}};

template <std::size_t COUNT>
constexpr Layer framed(const Line (&list)[COUNT]) {
    return {WORD_BLACK, Block::FRAME, 3, 8, 11, 0, list, COUNT};
}

constexpr Layer COLLAPSE[] = {framed(PLUS), lines(TREE_LINE, BRANCH)};
constexpr Layer EXPAND[] = {framed(MINUS), lines(TREE_LINE, BRANCH)};
constexpr Layer NO_ACCESS[] = {lines(GLYPH_RED, FORBIDDEN), lines(TREE_LINE, BRANCH_FORBIDDEN)};

} // namespace

void Icon_Dir_Close(const Boxs* box, int x, int y, char select) {
    if (!box) return;
    paint({face(select, CLOSED_FACE), lines(WORD_BLACK, CLOSED_BLACK), lines(FOLDER_SHADE, CLOSED_SHADE),
           lines(WORD_WHITE, CLOSED_WHITE)},
          {x, x, y, y});
}

void Icon_Dir_Open(const Boxs* box, int x, int y, char select) {
    if (!box) return;
    paint({face(select, OPEN_FACE), lines(WORD_BLACK, OPEN_BLACK), lines(FOLDER_SHADE, OPEN_SHADE),
           lines(WORD_WHITE, OPEN_WHITE)},
          {x, x, y, y});
}

void Icon_Lead_Collapse(const Boxs* box, char, int x1, int x2, int y1, int y2) {
    if (box) paint(COLLAPSE, {x1, x2, y1, y2});
}

void Icon_Lead_Expand(const Boxs* box, char, int x1, int x2, int y1, int y2) {
    if (box) paint(EXPAND, {x1, x2, y1, y2});
}

void Icon_Lead_Leaf(const Boxs* box, char c, int x1, int x2, int y1, int y2) {
    if (!box) return;
    const Cell cell = {x1, x2, y1, y2};
    Zeb_color(TREE_LINE);
    if (c) paint(LEAF_BELOW, cell);
    for (const Line& line : LEAF)
        paint(line, cell);
}

void Icon_Lead_No_Access(const Boxs* box, char, int x1, int x2, int y1, int y2) {
    if (box) paint(NO_ACCESS, {x1, x2, y1, y2});
}
