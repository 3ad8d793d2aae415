#ifndef ITEMS_ITEM_ARRAY_H
#define ITEMS_ITEM_ARRAY_H

#include <cstddef>
#include <cstdlib>
#include <new>

#include <brask/fenn.h>

#include "foundation/trace.h"

namespace brask {

// The entries of an item control: a malloc'ed array of pointers to items from new, ended by a null entry.

// The flags of a control that pass to its items.
inline constexpr DWORD LIST_ITEM_MASK = 0xF127750;

// Those of a new item that is a button, of what the host gives to Grow.
inline DWORD button_flags(const Tools& control, int given) {
    return (given ? static_cast<DWORD>(given) : control.Flag & LIST_ITEM_MASK) | CADRE_NO_LINE;
}

// Entries up to the null entry, and in the second form up to `limit`, whichever comes first.
template <typename Item>
int item_count(Item* const* items) {
    int count = 0;
    while (items && items[count])
        count++;
    return count;
}
template <typename Item>
int item_count(Item* const* items, int limit) {
    int count = 0;
    while (items && count < limit && items[count])
        count++;
    return count;
}

// Frees the items from the last one down to `first`.
template <typename Item>
void free_items_from(Item** items, int first) {
    for (int i = item_count(items) - 1; i >= first; i--) {
        delete items[i];
        items[i] = nullptr;
    }
}

// Frees items and array; null, for `Item = free_items(Item)`.
template <typename Item>
Item** free_items(Item** items) {
    free_items_from(items, 0);
    std::free(items);
    return nullptr;
}

// What a failure is reported with: the source and its lines for shrinking and growing.
struct Grow_Source {
    const char* name;
    int shrinking, growing;
};

// Makes the items from `count` up to `wanted` in an array that has room for them; 0 when memory fails.
template <typename Item, typename Set_Up>
int add_items(Item** items, int count, int wanted, Set_Up set_up) {
    for (int i = count; i <= wanted; i++)
        items[i] = nullptr;
    for (int i = count; i < wanted; i++) {
        items[i] = new (std::nothrow) Item;
        if (!items[i]) return 0;
        set_up(*items[i]);
    }
    return 1;
}

// Makes the array hold exactly n items; `set_up` gets each new one. 1; 0 with a report, no items and a null
// array when memory fails. Growing one by one counts the items anew each time.
template <typename Item, typename Set_Up>
int grow_items(Item**& items, int n, const Grow_Source& source, Set_Up set_up) {
    const int wanted = n < 0 ? 0 : n, count = item_count(items);
    if (count == wanted) return 1;
    if (wanted < count) free_items_from(items, wanted);
    const std::size_t room = static_cast<std::size_t>(wanted) + 1;
    if (Item** resized = static_cast<Item**>(std::realloc(items, room * sizeof *items))) {
        items = resized;
        items[wanted] = nullptr;
        if (add_items(items, count, wanted, set_up)) return 1;
    }
    items = free_items(items);
    Error_Fct(hwnd, REPORT_MEMORY, L"line %-4d of %hs \nmemory error in realloc (var=%hs, dim=%dx%d)",
              wanted < count ? source.shrinking : source.growing, source.name, "this->Item", wanted + 1, 8);
    return 0;
}

} // namespace brask

#endif
