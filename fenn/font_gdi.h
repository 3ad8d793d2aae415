#ifndef FENN_FONT_GDI_H
#define FENN_FONT_GDI_H

#include <map>
#include <string>
#include <vector>

#include <brask/platform.h>

#include "fenn/text_run.h"

// GDI's fonts, and which of them shows a character. Files of the system with GDI.
namespace fenn {

// What is known of a text in a font.
struct Measured {
    std::wstring clean; // as it is written: with plain blanks for those that the font lacks
    int width = 0;
    bool is_plain = true; // one call of GDI writes it
    bool right_to_left = false;
    std::vector<int> steps; // of a plain text: how far the pen moves at each character; may be empty
};

// What is known of a font. Handles come again for other fonts, so it goes by the description.
class GdiFont {
  public:
    explicit GdiFont(const LOGFONTW& description);
    ~GdiFont();
    GdiFont(const GdiFont&) = delete;
    GdiFont& operator=(const GdiFont&) = delete;

    // The font that shows a character: this one, another, or null when none does.
    HFONT font_for(char32_t code, const wchar_t* units, int length);

    HFONT own;
    Font boxes; // its sizes, and the boxes that stand for characters without a glyph
    std::map<std::wstring, Measured> texts;

  private:
    HFONT family_font(const std::wstring& family);
    HFONT find_other(char32_t code, const wchar_t* units, int length);

    LOGFONTW description;
    std::map<std::wstring, HFONT> families;
    std::map<char32_t, HFONT> others;
};

GdiFont& known_font(HFONT font);

// A context for measuring; the fonts select themselves into it.
HDC measuring_context();
// The font's own table of characters has it.
bool font_has(HFONT font, const wchar_t* units, int length);

} // namespace fenn

#endif
