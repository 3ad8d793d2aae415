#include <brask/tools.h>

#include <cstdarg>
#include <cstdlib>
#include <cstring>
#include <cwchar>

#include "foundation/checks.h"
#include "foundation/compound.h"
#include "foundation/trace.h"
#include "text/format.h"

using namespace brask;

namespace {

constexpr int NAME_ROOM = 1024;  // of a formatted name
constexpr int ENTRY_ROOM = 2048; // of a name taken from a table as it is

void drop_name(Tools& control) { control.W_Name = static_cast<wchar_t*>(control.Free(control.W_Name)); }

// Makes `text` the name; an empty one leaves none.
int keep_name(Tools& control, const wchar_t* text) {
    drop_name(control);
    if (*text) {
        const std::size_t size = (std::wcslen(text) + 1) * sizeof(wchar_t);
        control.W_Name = static_cast<wchar_t*>(std::malloc(size));
        if (!control.W_Name) {
            Error_Fct(hwnd, REPORT_MEMORY, "line %-4d of %hs \nmemory error in new  wchar_t (var=%hs)",
                      __LINE__, "tools", "this->W_Name");
            return 0;
        }
        std::memcpy(control.W_Name, text, size);
    }
    control.test |= TEST_NAMED;
    return 1;
}

// Takes a formatted text of `length` characters; one that did not fit counts as not formatted at all.
int keep_formatted(Tools& control, const wchar_t* text, int length) {
    if (length >= 0 && length < NAME_ROOM) return keep_name(control, text);
    drop_name(control);
    return 0;
}

int clear_name(Tools& control) {
    if (!control.test) return 0;
    drop_name(control);
    control.test &= static_cast<unsigned char>(~TEST_NAMED);
    return 0;
}

// The entry counted from 1; null when there is none.
const wchar_t* entry_of(int which, int count, wchar_t* const* table) {
    return which >= 1 && which <= count && table ? table[which - 1] : nullptr;
}

// An entry up to and with its first colon: what follows that is for the host.
int keep_entry(Tools& control, const wchar_t* entry) {
    wchar_t text[ENTRY_ROOM];
    int length = 0;
    while (entry[length] && length < ENTRY_ROOM - 1) {
        text[length] = entry[length];
        if (entry[length++] == L':') break;
    }
    text[length] = 0;
    return keep_name(control, text);
}

} // namespace

int brask::set_plain_name(Tools& control, const wchar_t* text) {
    wchar_t plain[NAME_ROOM];
    const int length = text::format_bare(plain, NAME_ROOM, text);
    return keep_formatted(control, plain, length);
}

// Everywhere below the new text is made before the old name goes, since it may be made of the old one.

int Tools::Name_Set(const wchar_t* format, ...) {
    if (!format) return clear_name(*this);
    wchar_t text[NAME_ROOM];
    std::va_list args;
    va_start(args, format);
    const int length = text::format(text, NAME_ROOM, format, args);
    va_end(args);
    return keep_formatted(*this, text, length);
}

int Tools::Name_Set(std::nullptr_t) { return clear_name(*this); }

int Tools::Name_Set(const char* text) { return text ? set_plain_name(*this, Char_2_Wchar(text)) : 1; }

int Tools::Name_Set(int which, int count, wchar_t* const* table, const char* fallback) {
    if (const wchar_t* entry = entry_of(which, count, table)) return keep_entry(*this, entry);
    if (fallback) return Name_Set(fallback);
    drop_name(*this);
    return 0;
}

int Tools::Name_Set(int which, int count, wchar_t* const* table, std::nullptr_t) {
    return Name_Set(which, count, table, static_cast<const char*>(nullptr));
}

int Tools::Name_Set(int which, int count, wchar_t* const* table, const wchar_t* format, ...) {
    const wchar_t* entry = entry_of(which, count, table);
    const wchar_t* chosen = entry ? entry : format;
    if (!chosen) {
        drop_name(*this);
        return clear_name(*this);
    }
    wchar_t text[NAME_ROOM];
    std::va_list args;
    va_start(args, format);
    const int length = text::format(text, NAME_ROOM, chosen, args);
    va_end(args);
    return keep_formatted(*this, text, length);
}

wchar_t* Tools::Name_Get() { return W_Name; }

int Tools::Name_Get(int count, wchar_t* const* table) {
    if (!W_Name || !table) return 0;
    for (int i = 0; i < count; i++)
        if (table[i] && !std::wcscmp(table[i], W_Name)) return i + 1;
    return 0;
}
