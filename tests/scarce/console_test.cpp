#include <brask/texts.h>

#include "scarce.h"

// A console when memory runs out: its lines, its history and the line under edit are what they were.

namespace {

using namespace scarce;

constexpr int ENTER = 13, ESCAPE = 27, UP = 0x826, DOWN = 0x828, PASTE = 0x256;

void enter(Texts& console, const wchar_t* text) {
    console.Read(L"%ls", text);
    console.Input(ENTER);
    console.Update();
}

void set_up(Texts& console) {
    place(console);
    console.Flag = TEXTS_CURSOR_V | TEXTS_CURSOR_H;
    console.Init(world::window());
    enter(console, L"one");
    enter(console, L"two");
    for (int i = 0; i < 12; i++)
        console.Write(L"a line of %d \x4"
                      L"marks, long enough to scroll",
                      i);
    console.Read(L"typed");
    world::copy(L"pasted");
}

std::string told(const wchar_t* text) {
    std::string narrow;
    for (; *text; text++)
        narrow += static_cast<char>(*text & 0x7F);
    return narrow + "\n";
}

std::string held(const Texts& console) {
    std::string all = name_of(console) + told(console.Edit_Line) + std::to_string(console.Edit_Pos) + "\n";
    for (int i = 0; console.Lines && i < 8192; i++)
        if (console.Lines[i]) all += told(console.Lines[i]);
    all += "history\n";
    for (int i = 0; console.History && i < 50; i++)
        if (console.History[i]) all += told(console.History[i]);
    return all;
}

void part(Texts& copy) {
    copy.Lines = copy.History = nullptr;
    copy.Line_Width = nullptr;
}

// Takes the thumb and draws it along.
void drag(Texts& console) {
    world::point(25, 90);
    world::hold(true);
    console.Select(2 + 16);
    world::point(25, 60);
    console.Select(1 + 16);
    world::hold(false);
    console.Select(0);
}

const std::vector<Act<Texts>> ACTS = {
    {"Init without its sliders",
     [](Texts& t) { t.Flag &= ~(TEXTS_CURSOR_V | TEXTS_CURSOR_H), t.Init(nullptr); }},
    {"wide Write", [](Texts& t) { t.Write(L"new"); }},
    {"narrow Write", [](Texts& t) { t.Write("new %d", 7); }},
    {"wide OverWrite", [](Texts& t) { t.OverWrite(L"new"); }},
    {"narrow OverWrite", [](Texts& t) { t.OverWrite("new %d", 7); }},
    {"the wheel", [](Texts& t) { t.Scroll(-2); }},
    {"a drag", drag},
    {"a way of the pointer", [](Texts& t) { world::point(100, 70), t.Select(1, 3, 5); }},
    {"Center", [](Texts& t) { t.Center(4); }},
    {"Read_Line", [](Texts& t) { world::point(100, 90), t.Read_Line(); }},
    {"Read", [](Texts& t) { t.Read(L"anew"); }},
    {"narrow Read", [](Texts& t) { t.Read("anew"); }},
    {"Update", [](Texts& t) { t.flag_read |= TEXTS_ENTERED, t.Update(); }},
    {"a key", [](Texts& t) { t.Input('x'); }},
    {"Up", [](Texts& t) { t.Input(UP); }},
    {"Down", [](Texts& t) { t.Input(DOWN); }},
    {"Escape", [](Texts& t) { t.Input(ESCAPE); }},
    {"Paste", [](Texts& t) { t.Input(PASTE); }},
    {"Cleanup", [](Texts& t) { t.Cleanup(); }},
    {"Cleanup, and anew", [](Texts& t) { t.Cleanup(), t.Write(L"new"); }, Act<Texts>::shown,
     Act<Texts>::loses},
};

TEST(Each_Failure, Texts) { obey<Texts>({set_up, held, part, ACTS}); }

} // namespace
