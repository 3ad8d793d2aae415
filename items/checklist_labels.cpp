#include "items/checklist_labels.h"

#include <algorithm>

#include <brask/fenn.h>

#include "foundation/compound.h"

namespace brask {

namespace {

// The first entry at or after `from` that ends the list.
template <typename Char>
int end_of(const Char* const* list, int from) {
    int end = from;
    while (list && list[end] && *list[end])
        end++;
    return end;
}

} // namespace

// The wide list goes on where the narrow one ends.
Check_Labels::Check_Labels(const CheckLists& control)
    : list(control.List), list_w(control.List_W), narrow_count(end_of(list, 0)),
      total(end_of(list_w, narrow_count)) {}

bool Check_Labels::single_character() const {
    if (total != 1) return false;
    const wchar_t* label = wide(0) ? wide(0) : Char_2_Wchar(narrow(0));
    return label[0] && !label[1];
}

int Check_Labels::widest(HFONT font) const {
    int width = 0;
    for (int i = 0; i < total; i++) {
        if (const char* label = narrow(i)) width = std::max(width, Zeb_Font_Size_String(font, label));
        if (const wchar_t* label = wide(i)) width = std::max(width, Zeb_Font_Size_String(font, label));
    }
    return width;
}

void Check_Labels::name(Buttons& cell, int index) const {
    if (const char* label = narrow(index)) cell.Name_Set(label);
    if (const wchar_t* label = wide(index)) set_plain_name(cell, label);
}

} // namespace brask
