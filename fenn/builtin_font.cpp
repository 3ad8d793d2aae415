#include "fenn/builtin_font.h"

#include <algorithm>
#include <cstring>
#include <map>

// The letters: read from their drawings at the first text.
namespace fenn::builtin {
namespace {

using Letters = std::map<char32_t, Letter>;

void read_sheet(const Sheet& sheet, Letters& letters) {
    int row = sheet.top;
    const char* at = sheet.art;
    while (*at) {
        for (const char32_t* code = sheet.codes; *code; ++code) {
            Letter& letter = letters[*code];
            const int width = static_cast<int>(std::strcspn(at, " \n"));
            for (int column = 0; column < width; ++column)
                if (at[column] == '#') letter.rows[row] |= 1u << column;
            letter.width = width;
            at += width + 1;
        }
        ++row;
    }
}

std::uint32_t ink(const Letter& letter) {
    std::uint32_t all = 0;
    for (std::uint32_t row : letter.rows)
        all |= row;
    return all;
}

int first_column(std::uint32_t row) {
    int column = 0;
    while (column < 31 && !(row >> column & 1))
        ++column;
    return column;
}

int last_column(std::uint32_t row) {
    int column = 31;
    while (column > 0 && !(row >> column & 1))
        --column;
    return column;
}

int first_row(const Letter& letter) {
    int row = 0;
    while (row < LINE - 1 && !letter.rows[row])
        ++row;
    return row;
}

int last_row(const Letter& letter) {
    int row = LINE - 1;
    while (row > 0 && !letter.rows[row])
        --row;
    return row;
}

// An accent above the base leaves one row free; one below stays where it is drawn.
int lift(const Letter& base, const Letter& accent) {
    const int foot = last_row(accent);
    return foot < BASELINE ? std::max(foot - (first_row(base) - 2), -(LINE - 1)) : 0;
}

Letters read_all() {
    Letters letters;
    for (const Table<Sheet>& table : {latin_sheets, symbol_sheets, world_sheets})
        for (int i = 0; i < table.count; ++i)
            read_sheet(table.rows[i], letters);
    for (const char32_t* pair = alike_pairs; *pair; pair += 2)
        letters[pair[0]] = letters.at(pair[1]);
    for (int i = 0; i < composed_letters.count; ++i) {
        const Composed& row = composed_letters.rows[i];
        letters[row.code] = compose(letters.at(row.base), letters.at(row.accent));
    }
    return letters;
}

} // namespace

Letter compose(const Letter& base, const Letter& accent) {
    const std::uint32_t body = ink(base);
    const std::uint32_t mark = ink(accent);
    if (!body || !mark) return base;
    // Centred on the base's ink; a mark that is wider pushes the base to the right.
    const int middle = first_column(body) + last_column(body);
    const int shift = (middle - (last_column(mark) - first_column(mark))) / 2 - first_column(mark);
    const int left = first_column(mark) + shift;
    const int push = left < 0 ? -left : 0;
    const int up = lift(base, accent);
    Letter result = base;
    for (int row = 0; row < LINE; ++row)
        result.rows[row] <<= push;
    for (int row = 0; row < LINE; ++row) {
        const int to = row - up;
        if (to < 0 || to >= LINE) continue;
        const int move = shift + push;
        result.rows[to] |= move >= 0 ? accent.rows[row] << move : accent.rows[row] >> -move;
    }
    result.width = std::max(base.width + push, last_column(ink(result)) + 2);
    return result;
}

const Letter* find_letter(char32_t code) {
    // Never destroyed: text may still be written while a host's own statics go.
    static const Letters& letters = *new Letters(read_all());
    const auto at = letters.find(code);
    return at == letters.end() ? nullptr : &at->second;
}

bool is_accent(char32_t code) { return code >= 0x300 && code <= 0x36F && find_letter(code); }

} // namespace fenn::builtin
