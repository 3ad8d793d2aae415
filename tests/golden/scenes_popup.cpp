#include "popup/popup_window.h"

#include <cstring>
#include <string>

#include "foundation/popup_controls.h"
#include "scenes.h"

// The window of a pop-up as its procedure lays and paints it, without the dialog manager around it.

namespace {

constexpr DWORD GREY = 0xAAAAAA, RED = 0xFF, YELLOW = 0xFFFF;
constexpr int WIDTH = 300, HEIGHT = 150;

struct Question {
    const wchar_t* title;
    std::wstring text;
    std::vector<const wchar_t*> words; // ended by null
    DWORD color;
    const char* help = "";
};

LPARAM client_size(int width, int height) { return MAKELPARAM(width, height); }

// The wheel turns by so many notches over the message.
void show(Stage& stage, Question question, int width, int height, int notches = 0) {
    using namespace brask;
    Popup.title = question.title;
    Popup.body = question.text.data();
    Popup.labels = question.words.data();
    Popup.color = question.color;
    Popup.wheel = 0;
    std::strcpy(Popup.help_topic, question.help);
    Dialog_Popup_Proc(stage.window(), WM_INITDIALOG, 0, 0);
    if (notches) {
        stage.point(width / 3, height / 2);
        Dialog_Popup_Proc(stage.window(), WM_MOUSEWHEEL, static_cast<WPARAM>(MAKELONG(0, notches * 120)), 0);
    }
    Dialog_Popup_Proc(stage.window(), WM_SIZE, 0, client_size(width, height));
    Popup_Text.Cleanup();
    Popup.labels = nullptr;
    Popup.count = 0;
}

const Question QUESTION = {L"Question", L"Is it so?", {L"Yes", L"No", L"Cancel", nullptr}, GREY};
const Question FAILURE = {L"Error", L"\x4The file\x2 was not written.", {L"OK", nullptr}, RED};
const Question WARNING = {L"Warning", L"Save it first?", {L"Save", L"Abort", nullptr}, YELLOW};
const Question HELP = {L"Question", L"Read of it?", {L"Yes", L"No", nullptr}, GREY, "help.html"};

Question with_lines(int count) {
    Question question = QUESTION;
    question.text.clear();
    for (int i = 1; i <= count; i++)
        question.text += L"line " + std::to_wstring(i) + L" of the message\n";
    return question;
}

void one(Stage& stage) { show(stage, FAILURE, WIDTH, HEIGHT); }
void two(Stage& stage) { show(stage, WARNING, WIDTH, HEIGHT); }
void three(Stage& stage) { show(stage, QUESTION, WIDTH, HEIGHT); }
void ten(Stage& stage) {
    Question question = QUESTION;
    question.words = {L"a", L"b", L"c", L"d", L"e", L"f", L"g", L"h", L"i", L"cancel", nullptr};
    show(stage, question, WIDTH, HEIGHT);
}
void help(Stage& stage) { show(stage, HELP, WIDTH + 106, HEIGHT); }
void long_text(Stage& stage) { show(stage, with_lines(60), WIDTH, HEIGHT); }
void scrolled(Stage& stage) { show(stage, with_lines(60), WIDTH, HEIGHT, 3); }
void no_title(Stage& stage) {
    Question question = QUESTION;
    question.title = nullptr;
    show(stage, question, WIDTH, HEIGHT);
}
void tiny(Stage& stage) { show(stage, QUESTION, 60, 60); }

} // namespace

const std::vector<Scene> POPUP_SCENES = {
    {"popup_error", WIDTH, HEIGHT, one},
    {"popup_warning", WIDTH, HEIGHT, two},
    {"popup_question", WIDTH, HEIGHT, three},
    {"popup_ten_words", WIDTH, HEIGHT, ten},
    {"popup_help", WIDTH + 106, HEIGHT, help},
    {"popup_long_text", WIDTH, HEIGHT, long_text},
    {"popup_scrolled", WIDTH, HEIGHT, scrolled},
    {"popup_without_title", WIDTH, HEIGHT, no_title},
    {"popup_small", 60, 60, tiny},
};
