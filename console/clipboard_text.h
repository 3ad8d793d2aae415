#ifndef CONSOLE_CLIPBOARD_TEXT_H
#define CONSOLE_CLIPBOARD_TEXT_H

#include <cstddef>

#include <brask/platform.h>

namespace brask {

// The clipboard's text, for as long as this object holds the clipboard open.
class Clipboard_Text {
  public:
    explicit Clipboard_Text(HWND wnd) : opened(OpenClipboard(wnd) != 0) {
        if (!opened) return;
        block = GetClipboardData(CF_UNICODETEXT);
        if (!block) return;
        text = static_cast<const wchar_t*>(GlobalLock(block));
        room = GlobalSize(block) / sizeof *text;
    }
    Clipboard_Text(const Clipboard_Text&) = delete;
    Clipboard_Text& operator=(const Clipboard_Text&) = delete;
    ~Clipboard_Text() {
        if (text) GlobalUnlock(block);
        if (opened) CloseClipboard();
    }

    bool readable() const { return text != nullptr; }

    // Calls `take` with each 16-bit unit, up to the terminator or to the end of the block, whatever comes
    // first. Where characters have 32 bits those beyond 16 come as a pair, as the keyboard types them.
    template <typename Take>
    void each_unit(Take take) const {
        for (std::size_t i = 0; i < room && text[i]; i++) {
            const auto code = static_cast<unsigned long>(text[i]);
            if (code > 0xFFFF) take(static_cast<int>(0xD800 + ((code - 0x10000) >> 10 & 0x3FF)));
            take(static_cast<int>(code > 0xFFFF ? 0xDC00 + (code & 0x3FF) : code));
        }
    }

  private:
    bool opened;
    HANDLE block = nullptr;
    const wchar_t* text = nullptr;
    std::size_t room = 0;
};

} // namespace brask

#endif
