#ifndef FOUNDATION_MARKS_H
#define FOUNDATION_MARKS_H

#include <brask/tools.h>

namespace brask {

// Marks: characters that are not shown but act on the text after them.

enum class Face { current, regular, bold, oblique };
struct Mark {
    int byte;
    unsigned long color; // 0: changes the font
    Face face;
};

// Null for what is text. Only the low byte is looked at, so that some letters act as marks and cannot be
// shown: required so.
const Mark* find_mark(int byte);
// Nearly every letter is; neither a mark nor the text's end.
inline bool is_plain(wchar_t c) {
    const int byte = static_cast<int>(c) & 255;
    return byte > 6 && byte < 240;
}

// The fonts that the marks choose among, and the one that text begins in.
struct Mark_Fonts {
    HFONT regular, bold, oblique, current;

    HFONT of(Face face) const;
};
// Those of a control; `current` is the regular one. To be asked for before a bracket: the font cache measures
// in a context of its own.
Mark_Fonts mark_fonts(const Tools& control);

// What lies between marks. `by_font_only`: colour marks do not end a run, for measuring.
class Runs {
  public:
    explicit Runs(const wchar_t* text, bool by_font_only = false) : at(text), skip_colors(by_font_only) {}

    static constexpr int ROOM = 1024; // of the text written at once; longer runs come in pieces
    const wchar_t* text = nullptr;
    int length = 0;
    const Mark* mark = nullptr; // the one that ended the run; null at the end, and between pieces

    // Collects the next run; false when the text is at its end.
    bool next();

  private:
    bool rest_is_plain();
    bool full() const;

    const wchar_t* at;
    bool skip_colors;
    wchar_t piece[ROOM];
};

} // namespace brask

#endif
