// Messages while the dialog is up.

#include "popup_fixture.h"

using brask::Popup;
using brask::Popup_Buttons;
using brask::Popup_Help;
using brask::Popup_Text;
using namespace recorder;

struct Pop_Up_Messages : Pop_Up {
    // Runs that with the pop-up laid out.
    void up(const std::function<void()>& action) {
        ask([&]() -> INT_PTR {
            begin();
            action();
            return 0;
        });
    }
    // What was asked of the platform, without the lock around the font cache.
    static std::string system(const std::function<void()>& action) {
        std::string lines = recorded(kSystem, action);
        for (const std::string lock : {"EnterCriticalSection()\n", "LeaveCriticalSection()\n"})
            for (std::size_t at = lines.find(lock); at != std::string::npos; at = lines.find(lock))
                lines.erase(at, lock.size());
        return lines;
    }
    static std::string bracket(int x, int y) {
        return "Zeb_setup(WND, \"PopUp_Query -> Dialog_Popup_Proc\")\nset_curs(" + std::to_string(x) + ", " +
               std::to_string(y) + ")\nZeb_release()\n";
    }
};

TEST_F(Pop_Up_Messages, PaintDrawsAllBetweenBeginAndEnd) {
    help = "topic";
    up([this] {
        const std::string all = recorded(kSystem | kReport, [this] { EXPECT_EQ(send(WM_PAINT), 0); });
        EXPECT_EQ(all.substr(0, 16), "BeginPaint(WND)\n");
        EXPECT_EQ(all.substr(all.size() - 14), "EndPaint(WND)\n");
        std::size_t from = 0;
        for (const char* step :
             {"in  Lib_Brask: Boxs::Draw", "in  Lib_Brask: Texts::Draw(Title)",
              "in  Lib_Brask: Buttons::Draw(Help)", "in  Lib_Brask: Buttons::Draw(Yes)",
              "in  Lib_Brask: Buttons::Draw(No)", "in  Lib_Brask: Buttons::Draw(Cancel)"}) {
            from = all.find(step, from);
            ASSERT_NE(from, std::string::npos) << step;
        }
    });
}

TEST_F(Pop_Up_Messages, TheCloseBoxEndsItWithoutAnAnswer) {
    up([this] { EXPECT_EQ(system([this] { EXPECT_EQ(send(WM_CLOSE), 0); }), "EndDialog(WND, -1)\n"); });
}

TEST_F(Pop_Up_Messages, APressOnAnAnswerEndsIt) {
    for (const UINT message : {WM_LBUTTONDOWN, WM_RBUTTONDOWN, WM_MBUTTONDOWN}) {
        for (int i = 0; i < 3; i++) {
            up([&] {
                EXPECT_EQ(system([&] { EXPECT_EQ(send(message, 0, on(Popup_Buttons[i])), 1); }),
                          "EndDialog(WND, " + std::to_string(i) + ")\n");
            });
        }
    }
}

TEST_F(Pop_Up_Messages, APressBesideTheAnswersDoesNotEndIt) {
    up([this] {
        EXPECT_EQ(system([this] { EXPECT_EQ(send(WM_LBUTTONDOWN, 0, nowhere()), 0); }), "");
        EXPECT_EQ(system([this] { EXPECT_EQ(send(WM_LBUTTONDOWN, 0, on(Popup_Text)), 0); }), "");
    });
}

TEST_F(Pop_Up_Messages, APressIsShownOnTheAnswersBeforeTheOnePressed) {
    up([this] {
        send(WM_MOUSEMOVE, 0, on(Popup_Buttons[1]));
        EXPECT_EQ(Popup_Buttons[1].select, 1);
        const std::string reports =
            recorded(kReport, [this] { send(WM_LBUTTONDOWN, 0, on(Popup_Buttons[0])); });
        EXPECT_NE(reports.find("Buttons::Select(Yes)"), std::string::npos);
        EXPECT_EQ(reports.find("Buttons::Select(No)"), std::string::npos); // the first hit ends it
    });
}

TEST_F(Pop_Up_Messages, HelpIsHandedToTheDesktopAndTheDialogStays) {
    help = "http://localhost/a b;c";
    up([this] {
        EXPECT_EQ(system([this] { EXPECT_EQ(send(WM_LBUTTONDOWN, 0, on(Popup_Help)), 0); }),
                  "ShellExecuteA(null, \"open\", \"http://localhost/a b;c\", null, null, 1)\n");
    });
}

TEST_F(Pop_Up_Messages, WithoutATopicThereIsNoHelp) {
    help = "topic";
    up([] {});
    help.clear();
    up([this] {
        EXPECT_EQ(system([this] { send(WM_LBUTTONDOWN, 0, on(Popup_Help)); }), "");
        EXPECT_EQ(recorded(kReport, [this] { send(WM_MOUSEMOVE, 0, on(Popup_Help)); }).find("(Help)"),
                  std::string::npos);
    });
}

TEST_F(Pop_Up_Messages, PositionsGoToTheDrawingLayerAsTheyCome) {
    up([this] {
        for (const UINT message : {WM_MOUSEMOVE, WM_LBUTTONDOWN, WM_LBUTTONUP, WM_RBUTTONDOWN, WM_RBUTTONUP,
                                   WM_MBUTTONDOWN, WM_MBUTTONUP}) {
            // Words, without a sign.
            const std::string lines =
                recorded(kDraw | kService, [&] { send(message, 0, MAKELPARAM(0xFFFE, 0x8001)); });
            EXPECT_EQ(lines.substr(0, bracket(65534, 32769).size()), bracket(65534, 32769)) << message;
        }
    });
}

// What is held decides about a release and a move; a slider tells which event word it got.
TEST_F(Pop_Up_Messages, AReleaseWithNothingHeldIsNoEvent) {
    up([this] {
        const std::string reports =
            recorded(kReport, [this] { EXPECT_EQ(send(WM_LBUTTONUP, 0, on(Popup_Buttons[0])), 0); });
        EXPECT_EQ(reports, "");
    });
}

TEST_F(Pop_Up_Messages, AReleaseWithAnotherButtonHeldIsAPress) {
    desk::hold(VK_RBUTTON);
    up([this] {
        EXPECT_EQ(system([this] { EXPECT_EQ(send(WM_LBUTTONUP, 0, on(Popup_Buttons[2])), 0); }),
                  "EndDialog(WND, 2)\n");
    });
}

TEST_F(Pop_Up_Messages, AMoveIsFollowedByEachControlInOrder) {
    help = "topic";
    up([this] {
        const std::string reports =
            recorded(kReport, [this] { EXPECT_EQ(send(WM_MOUSEMOVE, 0, nowhere()), 0); });
        std::size_t from = 0;
        for (const char* step :
             {">>> in  Lib_Brask: Texts::Select(Title)", ">>> in  Lib_Brask: Buttons::Select(Yes)",
              ">>> in  Lib_Brask: Buttons::Select(No)", ">>> in  Lib_Brask: Buttons::Select(Cancel)",
              ">>> in  Lib_Brask: Buttons::Select(Help)"}) {
            from = reports.find(step, from);
            ASSERT_NE(from, std::string::npos) << step;
        }
        EXPECT_EQ(system([this] { send(WM_MOUSEMOVE, 0, on(Popup_Buttons[0])); }), "");
        EXPECT_EQ(Popup_Buttons[0].select, 1);
        send(WM_MOUSEMOVE, 0, on(Popup_Help));
        EXPECT_EQ(Popup_Help.select, 1);
        EXPECT_EQ(Popup_Buttons[0].select, 2);
    });
}

struct Pop_Up_Scroll : Pop_Up_Messages {
    void SetUp() override {
        Pop_Up_Messages::SetUp();
        text.clear();
        for (int i = 0; i < 60; i++)
            text += L"line " + std::to_wstring(i) + L"\n";
    }
    float value() const { return Popup_Text.Cursor_V.Cur_Value; }
    LPARAM on_thumb() const {
        const Sliders& slider = Popup_Text.Cursor_V;
        return at(slider.Pos_X + slider.Dim_X / 2, slider.Pos_Y + slider.Dim_Y / 2);
    }
    void wheel(int amount) { send(WM_MOUSEWHEEL, MAKEWPARAM(0, amount), 0); }
};

TEST_F(Pop_Up_Scroll, ADragOnTheSliderScrollsTheMessage) {
    up([this] {
        ASSERT_GT(Popup_Text.Cursor_V.Val_Max, 0);
        desk::hold(VK_LBUTTON);
        const float before = value();
        send(WM_LBUTTONDOWN, 0, on_thumb());
        send(WM_MOUSEMOVE, 0, on_thumb() - MAKELPARAM(0, 10));
        EXPECT_NE(value(), before);
        desk::let_go(VK_LBUTTON);
    });
}

TEST_F(Pop_Up_Scroll, TheWheelScrollsByWholeNotches) {
    up([this] {
        recorder::pointer(Popup_Text.Pos_X + 150, Popup_Text.Pos_Y + 50);
        const float step = Popup_Text.Cursor_V.Step;
        wheel(60);
        EXPECT_EQ(value(), 0);
        EXPECT_EQ(Popup.wheel, 60);
        wheel(60);
        const float once = value();
        EXPECT_NE(once, 0);
        EXPECT_EQ(Popup.wheel, 0);
        wheel(120);
        EXPECT_EQ(value(), 2 * once);
        wheel(-300);
        EXPECT_EQ(Popup.wheel, -60);
        EXPECT_EQ(value(), 0);
        wheel(60);
        EXPECT_EQ(Popup.wheel, 0);
        wheel(480);
        EXPECT_EQ(value(), 4 * once);
        EXPECT_GT(step, 0);
    });
}

TEST_F(Pop_Up_Scroll, OffTheMessageNotchesAreUsedUpWithoutEffect) {
    up([this] {
        recorder::pointer(2, 2);
        wheel(250);
        EXPECT_EQ(value(), 0);
        EXPECT_EQ(Popup.wheel, 10);
    });
}

TEST_F(Pop_Up_Scroll, TheWheelAsksForThePointerOncePerNotch) {
    up([this] {
        const std::string few = recorded(kDraw | kReport, [this] { wheel(119); });
        EXPECT_EQ(few, "");
        const std::string first =
            "Zeb_setup(WND, \"PopUp_Query -> Dialog_Popup_Proc\")\nread_curs()\nZeb_release()\n";
        EXPECT_EQ(recorded(kDraw, [this] { wheel(1); }).substr(0, first.size()), first);
    });
}

TEST_F(Pop_Up_Messages, OtherMessagesAreLeftAlone) {
    up([this] {
        for (const UINT message : {WM_KEYDOWN, WM_CHAR, WM_COMMAND, WM_TIMER, WM_LBUTTONDBLCLK, WM_DESTROY,
                                   WM_SETCURSOR, WM_ERASEBKGND})
            EXPECT_EQ(recorded(kEverything, [&] { EXPECT_EQ(send(message, VK_RETURN, 0), 0); }), "")
                << message;
    });
}
