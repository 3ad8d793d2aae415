#ifndef ITEMS_CHECKLIST_LABELS_H
#define ITEMS_CHECKLIST_LABELS_H

#include <brask/checklists.h>

namespace brask {

// The labels of a check list, out of one or two lists of the host.
class Check_Labels {
  public:
    explicit Check_Labels(const CheckLists& control);

    int count() const { return total; }
    // The width of the widest one, before which comes a single letter's when there is only that.
    int widest(HFONT font) const;
    // Whether there is a single one of a single character, which takes the width of an "H".
    bool single_character() const;
    // Names the cell of an entry.
    void name(Buttons& cell, int index) const;

  private:
    // Null where the list has no entry. Beyond its end marker a list is not read.
    const char* narrow(int index) const { return index < narrow_count ? list[index] : nullptr; }
    const wchar_t* wide(int index) const { return list_w ? list_w[index] : nullptr; }

    const char* const* list;
    const wchar_t* const* list_w;
    int narrow_count, total;
};

} // namespace brask

#endif
