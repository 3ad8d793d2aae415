#ifndef FENN_FONT_FINDER_H
#define FENN_FONT_FINDER_H

#include <string>
#include <vector>

// Which file holds a face: asked of fontconfig. Files of the system with FreeType.
namespace fenn {

struct Wanted {
    std::string family; // UTF-8
    bool bold = false;
    bool italic = false;

    bool operator<(const Wanted& other) const;
};

struct FontFile {
    std::string path; // empty: none found
    int index = 0;
    bool embolden = false; // the face is lighter than wanted
    bool slant = false;    // the face is upright, and italic is wanted
};

// The face for a family, or what stands in for it: the same widths, if any such face is there.
FontFile find_font(const Wanted& wanted);
// The face of best fit that has all these characters.
FontFile find_fallback(const Wanted& wanted, const std::vector<char32_t>& codes);

} // namespace fenn

#endif
