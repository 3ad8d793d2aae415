#include "fenn/text_codes.h"

#include <algorithm>
#include <iterator>

namespace fenn {
namespace {

struct Range {
    char32_t first, last;
};

// Sorted, as is every table here.
constexpr Range invisible[] = {
    {0x034F, 0x034F}, {0x061C, 0x061C}, {0x115F, 0x1160},   {0x17B4, 0x17B5},   {0x180B, 0x180F},
    {0x200B, 0x200F}, {0x202A, 0x202E}, {0x2060, 0x206F},   {0x3164, 0x3164},   {0xFE00, 0xFE0F},
    {0xFEFF, 0xFEFF}, {0xFFA0, 0xFFA0}, {0x1BCA0, 0x1BCA3}, {0x1D173, 0x1D17A}, {0xE0000, 0xE0FFF},
};

constexpr Range simple[] = {
    {0x0001, 0x02FF},                       // Latin, controls among it
    {0x0370, 0x0482},                       // Greek, Cyrillic
    {0x048A, 0x058F},                       // Cyrillic, Armenian
    {0x10A0, 0x10FF},                       // Georgian
    {0x13A0, 0x13FF},                       // Cherokee
    {0x1E00, 0x1FFF},                       // Latin and Greek with accents of their own
    {0x2000, 0x200A},                       // spaces
    {0x2010, 0x2027},                       // dashes, quotes
    {0x202F, 0x205F},   {0x2070, 0x20CF},   // raised and lowered digits, currencies
    {0x2100, 0x23F9},                       // letterlike, arrows, mathematics, technical
    {0x2400, 0x25FF},                       // pictures of controls, boxes, shapes
    {0x2E80, 0x3029},                       // Chinese radicals and punctuation
    {0x3030, 0x3098},                       // Hiragana
    {0x309B, 0x3163},                       // Katakana, Bopomofo, single Hangul letters
    {0x3165, 0xA4CF},                       // ideographs, Yi
    {0xAC00, 0xD7A3},                       // Hangul syllables
    {0xE000, 0xFAFF},                       // private use, compatibility ideographs
    {0xFB00, 0xFB06},                       // Latin ligatures
    {0xFF01, 0xFF9D},                       // full and half width forms
    {0xFFFC, 0xFFFD},   {0x1D400, 0x1D7FF}, // mathematical letters
    {0x20000, 0x3FFFD},                     // further ideographs
};

constexpr Range combining[] = {
    {0x0300, 0x036F}, {0x0483, 0x0489}, {0x0591, 0x05C7}, {0x0610, 0x061A},   {0x064B, 0x065F},
    {0x0670, 0x0670}, {0x06D6, 0x06ED}, {0x0900, 0x0903}, {0x093A, 0x094F},   {0x0E31, 0x0E3A},
    {0x0E47, 0x0E4E}, {0x1AB0, 0x1AFF}, {0x1DC0, 0x1DFF}, {0x20D0, 0x20FF},   {0x302A, 0x302F},
    {0x3099, 0x309A}, {0xFE00, 0xFE0F}, {0xFE20, 0xFE2F}, {0x1F3FB, 0x1F3FF}, {0xE0100, 0xE01EF},
};

template <int N>
bool is_in(const Range (&table)[N], char32_t code) {
    const auto after =
        std::upper_bound(std::begin(table), std::end(table), code,
                         [](char32_t value, const Range& range) { return value < range.first; });
    return after != std::begin(table) && code <= std::prev(after)->last;
}

} // namespace

bool is_invisible(char32_t code) { return code > 0x2FF && is_in(invisible, code); }

bool is_simple(char32_t code) { return code <= 0x2FF || is_in(simple, code); }

bool is_combining(char32_t code) { return code > 0x2FF && is_in(combining, code); }

} // namespace fenn
