// The page "Pop-ups": each kind of question and message behind a button, and what was answered.
#include <array>
#include <memory>
#include <string>

#include <brask/boxs.h>
#include <brask/buttons.h>
#include <brask/labels.h>
#include <brask/popup.h>

#include "page.h"
#include "panel.h"

namespace {

struct Sample {
    const wchar_t* name;
    const wchar_t* level;
    const wchar_t* title;
    const wchar_t* text;
    const wchar_t* words[11]; // none: the library's own
    int repeat;               // the text so many times, each in a line of its own
    int dx, dy;
    const char* help;
};
const Sample samples[] = {
    {L"Message", L"Gallery", L"A message", L"The work is done.", {L"OK"}, 1, 0, 0, nullptr},
    {L"Warning",
     L"Warning",
     L"The disk is nearly full",
     L"Less than 1 %% of it is free.\nFree some space soon.",
     {L"OK"},
     1,
     0,
     0,
     nullptr},
    {L"Error",
     L"Error",
     L"The file was not saved",
     L"\u0004Nobody may write\u0002 to this folder.",
     {L"OK"},
     1,
     0,
     0,
     nullptr},
    {L"Question", L"Gallery", L"A question", L"Do you want to go on?", {}, 1, 0, 0, nullptr},
    {L"Save first",
     L"Warning",
     L"The picture was changed",
     L"Save it before it is closed?",
     {L"Save", L"Discard", L"Cancel"},
     1,
     360,
     150,
     nullptr},
    {L"Ten words",
     L"Gallery",
     L"How many?",
     L"At most ten words are offered.",
     {L"1", L"2", L"3", L"4", L"5", L"6", L"7", L"8", L"9", L"Abort"},
     1,
     480,
     0,
     nullptr},
    {L"Long text",
     L"Gallery",
     L"A text to scroll",
     L"This line comes again and again, so that the text is long.",
     {L"Agree", L"Cancel"},
     60,
     480,
     300,
     nullptr},
    {L"With help",
     L"Gallery",
     L"A question with help",
     L"The button beside it opens a document.",
     {L"Yes", L"No"},
     1,
     0,
     0,
     "https://localhost/help"},
    {L"Larger than the screen",
     L"Gallery",
     L"A wide question",
     L"The screen bounds it.",
     {L"OK"},
     1,
     20000,
     20000,
     nullptr},
};
constexpr std::size_t sample_count = std::size(samples);

// The pop-up may cut its text in place, so that each call gets a copy.
std::wstring text_of(const Sample& sample) {
    std::wstring text = sample.text;
    for (int i = 1; i < sample.repeat; i++)
        text += std::wstring(L"\n") + sample.text;
    return text;
}

int ask(const Sample& sample) {
    std::wstring text = text_of(sample);
    return PopUp_Query(sample.level, sample.title, text.data(), sample.words[0] ? sample.words : nullptr,
                       sample.dx, sample.dy, sample.help);
}

std::wstring answer_of(const Sample& sample, int index) {
    if (index < 0) return L"Closed without an answer";
    const wchar_t* const own[] = {L"No", L"Yes"};
    return std::to_wstring(index) + L": " + (sample.words[0] ? sample.words[index] : own[index]);
}

class PopUps : public Page {
  public:
    PopUps() {
        for (std::size_t i = 0; i < sample_count; i++)
            buttons[i].Name_Set(L"%ls", samples[i].name);
        answer.Flag = TEXT_MIDDLE;
        show(L"Nothing was asked yet");
    }
    void layout(HWND wnd, const Area& area) override {
        Area inner = area.inset(SPACE);
        Area told = panel_told.place(wnd, inner.cut_bottom(100));
        inner.cut_bottom(SPACE);
        Area asks = panel.place(wnd, inner);
        for (std::size_t i = 0; i < sample_count; i++) {
            asks.cell(int(i) % 3, 3, int(i) / 3, 3).inset(SPACE).give(buttons[i]);
            buttons[i].Init(wnd);
        }
        told.give(answer);
        answer.Init(wnd);
    }
    void draw() override {
        panel.draw();
        panel_told.draw();
        for (Buttons& button : buttons)
            button.Draw();
        answer.Draw();
    }
    void pointer(int word) override {
        for (std::size_t i = 0; i < sample_count; i++) {
            if (!buttons[i].Select(word) || (word & 15) != 2) continue;
            int index = ask(samples[i]); // the page goes on painting meanwhile
            show(answer_of(samples[i], index));
            answer.Draw();
            return;
        }
    }
    void each(const Visitor& visit) const override {
        panel.each(visit);
        panel_told.each(visit);
        for (const Buttons& button : buttons)
            visit("button", button);
        visit("box", answer);
    }

  private:
    void show(const std::wstring& text) { answer.Name_Set(L"%ls", text.c_str()); }

    Panel panel{L"Questions and messages"}, panel_told{L"The last answer"};
    std::array<Buttons, sample_count> buttons;
    Boxs answer;
};

} // namespace

std::unique_ptr<Page> make_page_popups() { return std::make_unique<PopUps>(); }
