#ifndef TESTS_TEXT_FIXTURE_H
#define TESTS_TEXT_FIXTURE_H

#include <sstream>

#include <brask/fonts.h>
#include <brask/tools.h>

#include "font_cache.h"
#include "support/recorded.h"

// The current font is none of the three that marks choose, and all four differ in width, so that a run in
// the wrong one stands out.
struct Text : Recorded {
    Tools tools;
    void SetUp() override {
        Recorded::SetUp();
        tools.Wnd = recorder::window();
        tools.test = 1;
        tools.Font_Name = "times", tools.Font_Weight = "bold", tools.Font_Slant = "i", tools.Font_Size = 12;
        tools.Name_Set(L"it");
        fill_font_cache();
        font("medium", "r", "REGULAR", 11, 8);
        font("bold", "r", "BOLD", 12, 9);
        font("medium", "o", "OBLIQUE", 13, 7);
        font("bold", "i", "CURRENT", 14, 10);
        recorder::clear();
    }
    void font(const char* weight, const char* slant, const char* name, int height, int width) {
        const HFONT handle = Zeb_Create_Font(tools.Wnd, "times", weight, slant, 12);
        recorder::name(handle, name);
        recorder::metrics(handle, height, width);
    }
    // Text in the rectangle 100, 200, 100 wide and 50 high, with a bevel of 3. Empty runs may be written or
    // not, so they are left out.
    std::string written(const wchar_t* text, long flag = 0, unsigned color = 0) {
        return without_empty(painted([&] { tools.Text(text, flag, 100, 200, 100, 50, 3, color); }));
    }
    static std::string without_empty(const std::string& lines) {
        std::istringstream in(lines);
        std::string line, out;
        while (std::getline(in, line))
            if (line.find("\"\")") == std::string::npos) out += line + "\n";
        return out;
    }
    static std::string bracket(const std::string& inside, const std::string& clip = "103, 203, 95, 45") {
        return "Zeb_setup(WND, \"Tools::Text\")\nZeb_set_clip(" + clip + ")\n" + inside +
               "Zeb_reset_clip()\nZeb_release()\n";
    }
    static std::string color(const char* word) { return std::string("Zeb_Font_Color(") + word + ", 0)\n"; }
    static std::string run(const char* font, int x, int y, const std::string& text) {
        return std::string("Zeb_Font_Write(") + font + ", " + std::to_string(x) + ", " + std::to_string(y) +
               ", \"" + text + "\")\n";
    }
};

#endif
