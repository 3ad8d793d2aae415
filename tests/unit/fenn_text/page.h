#ifndef TESTS_UNIT_FENN_TEXT_PAGE_H
#define TESTS_UNIT_FENN_TEXT_PAGE_H

#include <algorithm>
#include <cwchar>
#include <string>
#include <vector>

#include "../fenn/screen.h"

// Pictures of written text, for comparison.
using Picture = std::vector<std::string>;

class Face {
  public:
    explicit Face(int height, int weight = 0, int italic = 0, const wchar_t* family = L"Arial") {
        LOGFONTW description{};
        description.lfHeight = height;
        description.lfWeight = weight;
        description.lfItalic = static_cast<BYTE>(italic);
        for (int i = 0; family[i] && i < 31; ++i)
            description.lfFaceName[i] = family[i];
        font = CreateFontIndirectW(&description);
    }
    ~Face() { DeleteObject(font); }
    Face(const Face&) = delete;
    Face& operator=(const Face&) = delete;
    operator HFONT() const { return font; }

  private:
    HFONT font;
};

struct At {
    int x;
    const wchar_t* text;
};

// White text on a fresh black window, each piece with its lower left corner at x, y.
inline Picture written(HFONT font, const std::vector<At>& pieces, int y = 8, int width = 160,
                       int height = 48) {
    const Screen screen(width, height);
    Painting painting(screen);
    Zeb_Font_Color(white, 0);
    for (const At& piece : pieces)
        Zeb_Font_Write(font, piece.x, y, piece.text);
    return screen.picture();
}

inline Picture written(HFONT font, const wchar_t* text) { return written(font, {{8, text}}); }

inline int ink(const Picture& picture) {
    int count = 0;
    for (const std::string& row : picture)
        count += static_cast<int>(row.size() - std::count(row.begin(), row.end(), '.'));
    return count;
}

// Without the empty rows and columns around it.
inline Picture trimmed(const Picture& picture) {
    std::size_t left = std::string::npos, right = 0;
    Picture rows;
    for (const std::string& row : picture) {
        const std::size_t first = row.find_first_not_of('.');
        if (first == std::string::npos) continue;
        left = std::min(left, first);
        right = std::max(right, row.find_last_not_of('.') + 1);
    }
    for (const std::string& row : picture)
        rows.push_back(left < right ? row.substr(left, right - left) : "");
    const auto is_empty = [](const std::string& row) {
        return row.find_first_not_of('.') == std::string::npos;
    };
    while (!rows.empty() && is_empty(rows.front()))
        rows.erase(rows.begin());
    while (!rows.empty() && is_empty(rows.back()))
        rows.pop_back();
    return rows;
}

// A closed frame around everything: the sign for a character without a glyph.
inline bool is_box(const Picture& picture) {
    const Picture shape = trimmed(picture);
    if (shape.size() < 5) return false;
    const std::string full(shape[0].size(), 'W');
    if (shape.front() != full || shape.back() != full) return false;
    return std::all_of(shape.begin(), shape.end(),
                       [](const std::string& row) { return row.front() == 'W' && row.back() == 'W'; });
}

class Builtin {
  public:
    Builtin() { Fenn_Builtin_Font(1); }
    ~Builtin() { Fenn_Builtin_Font(0); }
    Builtin(const Builtin&) = delete;
    Builtin& operator=(const Builtin&) = delete;
};

#endif
