#include "clipboard.h"

#include <cstring>
#include <string>
#include <vector>

#include "desktop.h"
#include "text/guarded.h"
#include "text/unicode.h"
#include "window.h"

namespace platform {

struct Clipboard {
    bool open = false;
    HWND opener = nullptr;
    std::vector<HANDLE> held; // blocks that were handed over since it was opened
    // What is kept without a desktop, and waits for one.
    std::string own;
    bool waits = false;
};

static Clipboard& board() {
    static auto& clipboard = *new Clipboard;
    return clipboard;
}

static bool is_text(UINT format) { return format == CF_TEXT || format == CF_UNICODETEXT; }

static void put_text(std::string text) {
    board().own = std::move(text);
    board().waits = !desktop_set_text(board().own.c_str());
}

static std::string current_text() {
    if (board().waits) put_text(board().own);
    std::string text;
    return desktop_get_text(text) ? text : board().own;
}

static void drop_blocks() {
    for (const HANDLE block : board().held)
        GlobalFree(block);
    board().held.clear();
}

// "\n" -> "\r\n"; a line that ends so already stays.
static std::string with_returns(const std::string& text) {
    std::string lines;
    for (const char c : text) {
        if (c == '\n' && (lines.empty() || lines.back() != '\r')) lines += '\r';
        lines += c;
    }
    return lines;
}

// "\r\n" -> "\n"
static std::string without_returns(const std::string& text) {
    std::string lines;
    for (const char c : text) {
        if (c == '\n' && !lines.empty() && lines.back() == '\r') lines.pop_back();
        lines += c;
    }
    return lines;
}

// Asked for before a block changes hands.
static void make_room() { board().held.reserve(board().held.size() + 1); }

static HANDLE make_block(const void* data, std::size_t bytes) {
    make_room();
    const HANDLE block = GlobalAlloc(GMEM_MOVEABLE, bytes);
    if (!block) return nullptr;
    std::memcpy(GlobalLock(block), data, bytes);
    GlobalUnlock(block);
    board().held.push_back(block);
    return block;
}

// The text of a block ends at its terminator, or where the block ends.
template <class Unit>
static std::basic_string<Unit> text_of(HANDLE block) {
    const auto* data = static_cast<const Unit*>(GlobalLock(block));
    const std::size_t room = GlobalSize(block) / sizeof(Unit);
    std::size_t length = 0;
    while (length < room && data[length])
        length++;
    GlobalUnlock(block); // its owner keeps it where it is meanwhile
    return {data, length};
}

static std::string text_in(UINT format, HANDLE block) {
    return format == CF_TEXT ? text_of<char>(block) : text::to_utf8(text_of<wchar_t>(block).c_str());
}

static HANDLE give_text(UINT format) {
    const std::string text = with_returns(current_text());
    if (text.empty()) return nullptr;
    if (format == CF_TEXT) return make_block(text.c_str(), text.size() + 1);
    const std::wstring wide = text::to_wide(text.c_str());
    return make_block(wide.c_str(), (wide.size() + 1) * sizeof(wchar_t));
}

static HANDLE take_text(UINT format, HANDLE block) {
    make_room();
    put_text(without_returns(text_in(format, block)));
    board().held.push_back(block);
    return block;
}

} // namespace platform

using namespace platform;

extern "C" {

BOOL OpenClipboard(HWND wnd) {
    if (board().open && board().opener != wnd && IsWindow(board().opener)) return FALSE;
    board().open = true;
    board().opener = wnd;
    return TRUE;
}

BOOL CloseClipboard() {
    if (!board().open) return FALSE;
    drop_blocks();
    board().open = false;
    return TRUE;
}

BOOL EmptyClipboard() {
    if (!board().open) return FALSE;
    drop_blocks();
    put_text("");
    return TRUE;
}

BOOL IsClipboardFormatAvailable(UINT format) {
    return text::guarded<BOOL>(FALSE, [=] { return is_text(format) && !current_text().empty(); });
}

HANDLE GetClipboardData(UINT format) {
    if (!board().open || !is_text(format)) return nullptr;
    return text::guarded<HANDLE>(nullptr, [=] { return give_text(format); });
}

HANDLE SetClipboardData(UINT format, HANDLE block) {
    if (!board().open || !is_text(format) || !GlobalLock(block)) return nullptr;
    GlobalUnlock(block);
    return text::guarded<HANDLE>(nullptr, [=] { return take_text(format, block); });
}
}
