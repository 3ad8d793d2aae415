#include <gtest/gtest.h>

#include "support/desk.h"
#include "support/recorder.h"

#include "world.h"

namespace world {

void fresh() {
    recorder::reset();
    desk::reset();
    recorder::on_breach([](const char* what) { ADD_FAILURE() << what; });
    recorder::listen(recorder::kDraw);
    renew_fonts();
    wipe();
}

HWND window() { return recorder::window(); }
void wipe() { recorder::clear(); }

// The calls. Fonts and faces are known by their addresses, which differ each time.
std::string shown() {
    static const std::string address = "at-";
    const std::string lines = recorder::text(recorder::kDraw);
    std::string all;
    for (std::size_t from = 0, at; from < lines.size(); from = at) {
        at = lines.find(address, from);
        all.append(lines, from, at == std::string::npos ? at : at - from);
        if (at == std::string::npos) break;
        at = lines.find_first_not_of("0123456789abcdef", at + address.size());
    }
    return all;
}

void point(int x, int y) { recorder::pointer(x, y); }
void hold(bool down) { down ? desk::hold(VK_LBUTTON) : desk::let_go(VK_LBUTTON); }
void copy(const wchar_t* text) { desk::copy(text); }

std::wstring folder() {
    desk::drive('C', DRIVE_FIXED, L"Data");
    for (const wchar_t* path : {L"C:\\home\\alpha\\deep\\", L"C:\\home\\beta\\"})
        recorder::add_folder(path);
    return L"C:\\home\\";
}

} // namespace world
