#ifndef TESTS_POPUP_FIXTURE_H
#define TESTS_POPUP_FIXTURE_H

#include <string>
#include <vector>

#include <brask/popup.h>

#include "foundation/popup_controls.h"
#include "popup/popup_window.h"
#include "support/desk_dialog.h"
#include "unit/brask/expect.h"

// A pop-up whose dialog is the desk's. Letters are 8 by 10 in the fonts of the recorder.
struct Pop_Up : Recorded {
    std::wstring text = L"Is it so?";
    std::vector<const wchar_t*> words = {L"Yes", L"No", L"Cancel", nullptr};
    std::string help;
    const wchar_t* level = L"Question";
    const wchar_t* title = L"Title";

    void SetUp() override {
        Recorded::SetUp();
        desk::reset_dialogs();
        BORDER = 3, SPACE = 6, CURSEUR = 16;
        brask::Popup.wheel = 0;
    }
    void TearDown() override {
        EXPECT_EQ(desk::dialogs().live_blocks, 0) << "the template's memory is kept";
        brask::Popup_Text.Cleanup();
        Recorded::TearDown();
    }

    // Asks; the script stands for what happens while the dialog is up.
    int ask(std::function<INT_PTR()> script = nullptr, int dx = 0, int dy = 0) {
        desk::dialogs().script = std::move(script);
        return PopUp_Query(level, title, text.data(), words.data(), dx, dy, help.c_str());
    }
    INT_PTR send(UINT message, WPARAM wparam = 0, LPARAM lparam = 0) {
        return desk::dialogs().procedure(recorder::window(), message, wparam, lparam);
    }
    void begin() {
        send(WM_INITDIALOG);
        recorder::clear();
    }
    // A position in the window, as a message gives it for a place in the controls' coordinates.
    static LPARAM at(int x, int y) { return MAKELPARAM(x, 599 - y); }
    LPARAM on(const Tools& control) { return at(control.Pos_X + 5, control.Pos_Y + 5); }
    static LPARAM nowhere() { return at(2, 2); }

    // The message's lines, the oldest first.
    static std::vector<std::wstring> lines() {
        std::vector<std::wstring> list;
        for (int i = 0; brask::Popup_Text.Lines && i < 8192 && brask::Popup_Text.Lines[i]; i++)
            list.insert(list.begin(), brask::Popup_Text.Lines[i]);
        return list;
    }
    static std::vector<int> place(const Tools& c) { return {c.Pos_X, c.Pos_Y, c.Dim_X, c.Dim_Y}; }
};

#endif
