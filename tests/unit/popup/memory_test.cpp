#include "popup_fixture.h"
#include "support/memory.h"

// Memory that runs out while a pop-up is made, painted, clicked and ended: it ends, gives back what it took,
// and the next one is whole.

namespace {

struct Poor_Pop_Up : Pop_Up {
    void SetUp() override {
        Pop_Up::SetUp();
        if (!memory::can_fail()) GTEST_SKIP() << "memory cannot be made to fail here";
    }
    static std::wstring name_of(const Tools& control) { return control.W_Name ? control.W_Name : L"none"; }
    // What one shows: its buttons and its lines.
    std::vector<std::wstring> shown() {
        text = L"Is it so?\nOr not?";
        std::vector<std::wstring> all;
        ask([&]() -> INT_PTR {
            begin();
            for (int i = 0; i < 3; i++)
                all.push_back(name_of(brask::Popup_Buttons[i]));
            for (const std::wstring& line : lines())
                all.push_back(line);
            return -1;
        });
        return all;
    }
    // All that a user may do with it, and then a press on the second word.
    void use() {
        send(WM_INITDIALOG);
        send(WM_PAINT);
        send(WM_SIZE, SIZE_RESTORED, MAKELPARAM(400, 300));
        send(WM_MOUSEMOVE, 0, at(60, 60));
        send(WM_MOUSEWHEEL, MAKEWPARAM(0, WHEEL_DELTA));
        send(WM_LBUTTONDOWN, MK_LBUTTON, on(brask::Popup_Buttons[1]));
        send(WM_LBUTTONUP, 0, on(brask::Popup_Buttons[1]));
        send(WM_CLOSE);
    }
};

TEST_F(Poor_Pop_Up, EndsAndTheNextOneIsWhole) {
    const std::vector<std::wstring> whole = shown();
    for (const bool from_then_on : {false, true})
        for (int nth = 1; !HasFailure(); nth++) {
            SCOPED_TRACE("allocation " + std::to_string(nth) + (from_then_on ? " and all later ones" : ""));
            ASSERT_LT(nth, 1000);
            text = L"Is it so?\nOr not?";
            bool happened;
            desk::dialogs().script = [this]() -> INT_PTR { return use(), -1; };
            {
                const memory::Failing failing(nth, from_then_on);
                PopUp_Query(level, title, text.data(), words.data(), 0, 0, "");
                happened = failing.happened();
            }
            EXPECT_EQ(desk::dialogs().live_blocks, 0);
            EXPECT_EQ(shown(), whole);
            if (!happened) break;
        }
}

} // namespace
