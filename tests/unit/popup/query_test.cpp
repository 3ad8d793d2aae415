// The call: what it asks of the platform, what it stores, what it answers.

#include <cstring>

#include "popup_fixture.h"

using brask::Popup;
using namespace recorder;

TEST_F(Pop_Up, TakesMemoryOpensTheDialogAndGivesTheMemoryBack) {
    desk::dialogs().active = window(2);
    EXPECT_EQ(recorded(kSystem, [&] { EXPECT_EQ(ask([] { return 2; }), 2); }),
              "GetDialogBaseUnits()\n"
              "GlobalAlloc(64, 1024)\n"
              "GlobalLock(BLOCK)\n"
              "GlobalUnlock(BLOCK)\n"
              "GetActiveWindow()\n"
              "GetWindowLongPtrA(WND2, -6)\n"
              "GetActiveWindow()\n"
              "DialogBoxIndirectParamA(BLOCK, WND2)\n"
              "GlobalFree(BLOCK)\n");
    EXPECT_EQ(desk::dialogs().instance, reinterpret_cast<HINSTANCE>(0x77));
    EXPECT_EQ(desk::dialogs().procedure, &brask::Dialog_Popup_Proc);
    EXPECT_EQ(desk::dialogs().parameter, 0);
}

TEST_F(Pop_Up, AnswersWhatTheDialogGives) {
    for (const int result : {0, 1, 9, -1})
        EXPECT_EQ(ask([=] { return result; }), result);
}

TEST_F(Pop_Up, WithoutMemoryThereIsNoAnswer) {
    desk::dialogs().grants_memory = false;
    EXPECT_EQ(ask([] { return 1; }), -1);
    desk::dialogs().grants_memory = true;
    desk::dialogs().locks_memory = false;
    EXPECT_EQ(ask([] { return 1; }), -1);
    EXPECT_EQ(desk::dialogs().opened, 0);
}

TEST_F(Pop_Up, TheLevelChoosesTheColour) {
    const std::pair<const wchar_t*, DWORD> levels[] = {
        {L"warning", 0xFFFF}, {L"WARNING", 0xFFFF}, {L"Warnings to all", 0xFFFF}, {L"warn", 0xAAAAAA},
        {L"error", 0xFF},     {L"Errors", 0xFF},    {L"eRROrless", 0xFF},         {L"erro", 0xAAAAAA},
        {L"info", 0xAAAAAA},  {L"", 0xAAAAAA},      {nullptr, 0xAAAAAA},          {L" error", 0xAAAAAA}};
    for (const auto& [name, color] : levels) {
        level = name;
        ask([&, expected = color] {
            EXPECT_EQ(Popup.color, expected) << narrow(level ? level : L"null");
            return 0;
        });
    }
}

TEST_F(Pop_Up, NoListMeansNoAndYes) {
    desk::dialogs().script = [this] {
        begin();
        EXPECT_EQ(Popup.count, 2);
        EXPECT_STREQ(brask::Popup_Buttons[0].W_Name, L"No");
        EXPECT_STREQ(brask::Popup_Buttons[1].W_Name, L"Yes");
        return 1;
    };
    EXPECT_EQ(PopUp_Query(level, title, text.data(), nullptr, 0, 0, nullptr), 1);
}

TEST_F(Pop_Up, AMessageHasTheOneWordOk) {
    desk::dialogs().script = [this] {
        begin();
        EXPECT_EQ(Popup.count, 1);
        EXPECT_STREQ(brask::Popup_Buttons[0].W_Name, L"OK");
        return -1;
    };
    EXPECT_EQ(PopUp_Message(level, title, text.data(), 0, 0, nullptr), -1);
    EXPECT_EQ(desk::dialogs().opened, 1);
}

TEST_F(Pop_Up, TheHelpTargetIsCutAt1023Bytes) {
    help = std::string(5000, 'h');
    ask([] {
        EXPECT_EQ(std::strlen(Popup.help_topic), 1023u);
        return 0;
    });
    desk::dialogs().script = nullptr;
    PopUp_Query(level, title, text.data(), words.data(), 0, 0, nullptr);
    EXPECT_EQ(Popup.help_topic[0], 0);
}

static const std::string kRefused = "[90000021] Tools: WARNING ! \n";

TEST_F(Pop_Up, AListOfNoneOrOfElevenWordsIsRefused) {
    for (const int count : {0, 11, 30}) {
        words.assign(static_cast<std::size_t>(count), L"w");
        words.push_back(nullptr);
        EXPECT_EQ(recorded(kReport | kSystem, [&] { EXPECT_EQ(ask([] { return 0; }), -1); }),
                  kRefused + "[90000021]    you must provide 1 to 10 words\n"
                             "[90000021]    type: PopUp_Query   name: Title\n");
    }
    title = nullptr;
    EXPECT_NE(recorded(kReport, [&] { ask(); }).find("name: no name"), std::string::npos);
    words.assign(10, L"w");
    words.push_back(nullptr);
    EXPECT_EQ(ask([] { return 9; }), 9);
}

TEST_F(Pop_Up, ASecondOneWithinTheFirstIsRefused) {
    std::wstring other = L"other";
    const int result = ask([&]() -> INT_PTR {
        begin();
        const std::string told = recorded(kReport | kSystem, [&] {
            EXPECT_EQ(PopUp_Message(L"Error", L"Second", other.data(), 0, 0, "topic"), -1);
        });
        EXPECT_EQ(told, kRefused + "[90000021]    a pop-up is up already\n"
                                   "[90000021]    type: PopUp_Query   name: Second\n");
        EXPECT_EQ(Popup.count, 3);
        EXPECT_EQ(Popup.title, title);
        EXPECT_EQ(Popup.color, 0xAAAAAAu);
        EXPECT_EQ(lines().front(), L"Is it so?");
        return 2;
    });
    EXPECT_EQ(result, 2);
    EXPECT_EQ(ask([] { return 1; }), 1); // and then it is free again
}

TEST_F(Pop_Up, TakesAHostsOwnFormOfList) {
    wchar_t yes[] = L"Yes";
    wchar_t* const list[] = {yes, nullptr};
    desk::dialogs().script = [] { return 0; };
    EXPECT_EQ(PopUp_Query(level, title, text.data(), list, 0, 0, nullptr), 0);
}
