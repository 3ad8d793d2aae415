// Layout and the message: where the controls go, what they are called, what they look like.

#include "popup_fixture.h"

using brask::Popup;
using brask::Popup_Box;
using brask::Popup_Buttons;
using brask::Popup_Help;
using brask::Popup_Text;
using namespace recorder;

using Place = std::vector<int>;

TEST_F(Pop_Up, BeginsWithLayoutThenTextThenToTheTop) {
    ask([this]() -> INT_PTR {
        const std::string lines = recorded(kSystem | kReport, [this] { EXPECT_EQ(send(WM_INITDIALOG), 0); });
        const char* const steps[] = {"GetClientRect(WND)",
                                     "Boxs::Init",
                                     "Buttons::Init(Yes)",
                                     "Buttons::Init(No)",
                                     "Buttons::Init(Cancel)",
                                     "Texts::Init(Title)",
                                     "Boxs::Draw",
                                     "Texts::Draw(Title)",
                                     "Buttons::Draw(Yes)",
                                     "Buttons::Draw(No)",
                                     "Buttons::Draw(Cancel)",
                                     "Texts::Cleanup(Title)",
                                     "Texts::Write(Title)",
                                     "Texts::Write(Title)",
                                     "SetWindowPos(WND, TOPMOST, 0, 0, 1, 1, 3)"};
        std::size_t from = 0;
        for (const char* step : steps) {
            const std::size_t found = lines.find(step, from);
            EXPECT_NE(found, std::string::npos) << step;
            if (found != std::string::npos) from = found + 1;
        }
        EXPECT_EQ(lines.find("Help"), std::string::npos);
        return 0;
    });
}

TEST_F(Pop_Up, EachControlHasItsPlace) {
    ask([this]() -> INT_PTR {
        begin();
        EXPECT_EQ(place(Popup_Box), (Place{0, 0, 299, 149}));
        EXPECT_EQ(Popup.count, 3);
        const int width = (300 - 3 * 6) / 3;
        for (int i = 0; i < 3; i++)
            EXPECT_EQ(place(Popup_Buttons[i]), (Place{6 + i * (width + 3), 6, width, 26}));
        EXPECT_EQ(place(Popup_Text), (Place{6, 38, 288, 105}));
        return 0;
    });
}

TEST_F(Pop_Up, WithHelpTheMessageKeepsItsWidth) {
    help = "topic";
    desk::dialogs().client = {406, 150};
    ask([this]() -> INT_PTR {
        begin();
        EXPECT_EQ(place(Popup_Text), (Place{6, 38, 288, 105}));
        EXPECT_EQ(place(Popup_Help), (Place{300, 38, 100, 105}));
        EXPECT_STREQ(Popup_Help.W_Name, L"Help");
        EXPECT_EQ(Popup_Help.Color.get(), Colors(200, 200, 100).get());
        return 0;
    });
}

TEST_F(Pop_Up, ControlsLookAsTold) {
    level = L"error";
    ask([this]() -> INT_PTR {
        begin();
        EXPECT_EQ(Popup_Box.Flag, 0x42u);
        EXPECT_EQ(Popup_Box.Color.get(), 0xFFu);
        EXPECT_EQ(Popup_Text.Flag, TEXTS_CURSOR_V);
        EXPECT_STREQ(Popup_Text.W_Name, L"Title");
        for (const Tools* control :
             {static_cast<Tools*>(&Popup_Buttons[0]), static_cast<Tools*>(&Popup_Text)}) {
            EXPECT_EQ(control->Border, 1);
            EXPECT_STREQ(control->Font_Name, "Arial");
            EXPECT_STREQ(control->Font_Weight, "bold");
            EXPECT_EQ(control->Font_Size, 11);
            EXPECT_EQ(control->Wnd, window());
        }
        EXPECT_EQ(Popup_Box.Border, 1);
        EXPECT_EQ(Popup_Buttons[0].Flag, 0u);
        return 0;
    });
}

TEST_F(Pop_Up, WordsThatDeclineAreYellowish) {
    words = {L"Cancel", L"CANCELLED", L"cance", L"Abort it", L"aBORT", L"canc",
             L"Yes",    L"",          L"abor",  L"able",     nullptr};
    ask([this]() -> INT_PTR {
        begin();
        EXPECT_EQ(Popup.count, 10);
        for (int i = 0; i < 10; i++)
            EXPECT_EQ(Popup_Buttons[i].Color.get(),
                      (i < 5 ? Colors(200, 200, 100) : Colors(170, 170, 170)).get())
                << i;
        return 0;
    });
}

TEST_F(Pop_Up, TitlesAndWordsAreNoFormats) {
    words = {L"100 %", L"%s %n %d", nullptr};
    title = L"50 %ls";
    ask([this]() -> INT_PTR {
        begin();
        EXPECT_STREQ(Popup_Buttons[0].W_Name, L"100 %");
        EXPECT_STREQ(Popup_Buttons[1].W_Name, L"%s %n %d");
        EXPECT_STREQ(Popup_Text.W_Name, L"50 %ls");
        return 0;
    });
}

TEST_F(Pop_Up, LongTitlesAndWordsAreCut) {
    const std::wstring name(3000, L'n');
    words = {name.c_str(), nullptr};
    title = name.c_str();
    ask([this]() -> INT_PTR {
        begin();
        EXPECT_EQ(std::wcslen(Popup_Buttons[0].W_Name), 1023u);
        EXPECT_EQ(std::wcslen(Popup_Text.W_Name), 1023u);
        return 0;
    });
}

TEST_F(Pop_Up, WithoutATitleTheMessageHasNone) {
    ask([this]() -> INT_PTR {
        begin();
        return 0;
    });
    title = nullptr;
    ask([this]() -> INT_PTR {
        begin();
        EXPECT_EQ(Popup_Text.W_Name, nullptr);
        return 0;
    });
}

TEST_F(Pop_Up, TheTextIsAFormatWithoutArguments) {
    text = L"100%% of %s, %d, %n";
    ask([this]() -> INT_PTR {
        begin();
        EXPECT_EQ(lines(), (std::vector<std::wstring>{L"100% of , , ", L""}));
        return 0;
    });
}

TEST_F(Pop_Up, LineFeedsBeginLines) {
    text = L"one\n\ntwo\n";
    ask([this]() -> INT_PTR {
        begin();
        EXPECT_EQ(lines(), (std::vector<std::wstring>{L"one", L"", L"two", L"", L""}));
        return 0;
    });
    EXPECT_EQ(text, L"one\n\ntwo\n");
}

TEST_F(Pop_Up, ALongTextIsCutInPlaceAndItsEmptyLinesVanish) {
    const std::wstring first(600, L'a'), second(600, L'b'), third = L"50 %%";
    text = L"\n" + first + L"\n\n\n" + second + L"\n" + third + L"\n";
    ask([&]() -> INT_PTR {
        begin();
        EXPECT_EQ(lines(), (std::vector<std::wstring>{first, second, L"50 %", L""}));
        return 0;
    });
    EXPECT_EQ(std::wstring(text.c_str() + 1), first);
}

TEST_F(Pop_Up, TheLengthsBetweenTheTwoWays) {
    const auto told = [this](std::size_t length) {
        text.assign(length, L't');
        std::size_t kept = 0;
        ask([&]() -> INT_PTR {
            begin();
            kept = lines().front().size();
            return 0;
        });
        return kept;
    };
    EXPECT_EQ(told(1022), 1022u);
    EXPECT_EQ(told(1023), 1023u);
    EXPECT_EQ(told(1024), 1023u);
    EXPECT_EQ(told(1025), 1023u);
    EXPECT_EQ(told(1 << 20), 1023u);
}

TEST_F(Pop_Up, NoTextAndAnEmptyTextAreEmpty) {
    text.clear();
    ask([this]() -> INT_PTR {
        begin();
        EXPECT_EQ(lines(), (std::vector<std::wstring>{L"", L""}));
        return 0;
    });
    desk::dialogs().script = [this] {
        begin();
        EXPECT_EQ(lines(), (std::vector<std::wstring>{L"", L""}));
        return 0;
    };
    PopUp_Query(level, title, nullptr, words.data(), 0, 0, nullptr);
}

TEST_F(Pop_Up, EachPopUpStartsWithItsOwnText) {
    ask([this]() -> INT_PTR {
        begin();
        return 0;
    });
    text = L"next";
    ask([this]() -> INT_PTR {
        begin();
        EXPECT_EQ(lines(), (std::vector<std::wstring>{L"next", L""}));
        return 0;
    });
}

TEST_F(Pop_Up, AResizeLaysOutAnewAndKeepsTheText) {
    help = "topic";
    ask([this]() -> INT_PTR {
        begin();
        const std::string reports =
            recorded(kReport, [this] { EXPECT_EQ(send(WM_SIZE, SIZE_RESTORED, MAKELPARAM(500, 400)), 0); });
        EXPECT_EQ(place(Popup_Box), (Place{0, 0, 499, 399}));
        EXPECT_EQ(place(Popup_Text), (Place{6, 38, 382, 355}));
        EXPECT_EQ(place(Popup_Help), (Place{394, 38, 100, 355}));
        EXPECT_EQ(place(Popup_Buttons[2]), (Place{6 + 2 * 163, 6, 160, 26}));
        EXPECT_EQ(lines().front(), L"Is it so?");
        EXPECT_EQ(reports.find("Write"), std::string::npos);
        EXPECT_NE(reports.find("Texts::Draw"), std::string::npos);
        EXPECT_NE(reports.find("Buttons::Draw(Help)"), std::string::npos);
        EXPECT_GT(Popup_Text.Cursor_V.Dim_Y, 200);
        return 0;
    });
}

TEST_F(Pop_Up, AnySizeIsSurvived) {
    words.assign(10, L"w");
    words.push_back(nullptr);
    help = "topic";
    recorder::listen(0); // of large sizes the log would be what takes the time
    ask([this]() -> INT_PTR {
        begin();
        for (const int w : {0, 1, 5, 40, 119, 200, 2000})
            for (const int h : {0, 1, 38, 45, 60, 1000})
                send(WM_SIZE, SIZE_RESTORED, MAKELPARAM(w, h));
        // Beyond 32767 the room of the message wraps to none.
        send(WM_SIZE, SIZE_RESTORED, MAKELPARAM(40000, 45));
        EXPECT_LT(Popup_Text.Dim_X, 0);
        return 0;
    });
}
