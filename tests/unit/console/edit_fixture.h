#ifndef TESTS_EDIT_FIXTURE_H
#define TESTS_EDIT_FIXTURE_H

#include <algorithm>
#include <string>

#include "console_fixture.h"

// A console that reads, and what is asked of its editor.
struct Editor : Console {
    static constexpr int UP = 0x826, DOWN = 0x828, ENTER = 13, ESCAPE = 27, PASTE = 0x256, HOME = 0x824;

    // How many times the strip is painted by the action, which paints nothing else of the console.
    template <typename Action>
    int echoes(Action action) {
        const std::string lines = painted(action);
        int count = 0;
        for (std::size_t at = 0; (at = lines.find("\"Texts::Read_Echo\"", at)) != std::string::npos; at++)
            count++;
        EXPECT_EQ(lines.find("\"Texts::Re_Write\""), std::string::npos) << "the log was painted";
        return count;
    }
    // What the strip shows now.
    static std::string shown() {
        const std::string mark = "Zeb_Font_Write(";
        std::string found = "(nothing)";
        for (const recorder::Line& line : recorder::log()) {
            if (line.text.compare(0, mark.size(), mark)) continue;
            const std::size_t open = line.text.find('"'), close = line.text.rfind('"');
            found = line.text.substr(open + 1, close - open - 1);
        }
        return found;
    }
    // One key, and how the operation ended.
    std::string key(int code) {
        recorder::clear();
        console.Input(code);
        return recorder::exit_tag("Texts::Input");
    }
    void enter(const std::wstring& text) {
        console.Read(L"%ls", text.c_str());
        console.Input(ENTER);
        console.Update();
    }
    bool changed() {
        const bool is = (console.flag_read & TEXTS_CHANGED) != 0;
        console.flag_read &= ~TEXTS_CHANGED;
        return is;
    }
};

#endif
