#ifndef TESTS_CONSOLE_FIXTURE_H
#define TESTS_CONSOLE_FIXTURE_H

#include <string>
#include <vector>

#include <brask/texts.h>

#include "unit/brask/expect.h"

// A console of 300 by 200 at (100, 200), with letters 8 by 10 in its fonts and a bevel of 3.
struct Console : Recorded {
    Texts console;
    void SetUp() override {
        Recorded::SetUp();
        BORDER = 3, SPACE = 6, CURSEUR = 16;
        console.Pos_X = 100, console.Pos_Y = 200;
        console.Dim_X = 300, console.Dim_Y = 200;
        console.Font_Size = 9; // a default font has no handle of its own
        forget_measures();
        recorder::clear();
    }

    // All consoles keep the last font's measures, which another test may have chosen.
    static void forget_measures() {
        Texts other;
        other.Dim_X = other.Dim_Y = 1, other.Font_Size = 8;
        other.Init(recorder::window());
    }

    void init(DWORD flag = 0) {
        console.Flag |= flag;
        console.Init(recorder::window());
        outside();
        recorder::clear();
    }
    void read(DWORD flag = 0, const wchar_t* text = nullptr) {
        init(flag);
        console.Read(L"%ls", text ? text : L"");
        recorder::clear();
    }
    // So many lines, written without a note.
    void fill(int count) {
        recorder::listen(recorder::kReport);
        for (int i = 0; i < count; i++)
            console.Write(L"line %d", i);
        recorder::listen(recorder::kEverything);
        recorder::clear();
    }
    std::string tag(const char* operation) const {
        return recorder::exit_tag(std::string("Texts::") + operation);
    }
    void outside() { recorder::pointer(0, 0); }
    void inside() { recorder::pointer(250, 300); }

    // The log from the newest line on, up to the first hole.
    std::vector<std::wstring> lines() const { return strings(console.Lines, 8192); }
    std::vector<std::wstring> history() const { return strings(console.History, 50); }
    static std::vector<std::wstring> strings(wchar_t* const* store, int room) {
        std::vector<std::wstring> list;
        for (int i = 0; store && i < room && store[i]; i++)
            list.push_back(store[i]);
        return list;
    }

    void keys(const std::wstring& text) {
        for (const wchar_t c : text)
            console.Input(static_cast<int>(c));
    }
    // The editor's line with the caret as "|".
    std::wstring edited() const {
        std::wstring line = console.Edit_Line;
        if (console.Edit_Pos >= 0 && static_cast<std::size_t>(console.Edit_Pos) <= line.size())
            line.insert(static_cast<std::size_t>(console.Edit_Pos), 1, L'|');
        return line;
    }
};

#endif
