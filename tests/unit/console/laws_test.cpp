// Random operations on any console: calls, reports and state are those of one that walks step by step.

#include "console_fixture.h"
#include "laws/chance.h"
#include "told.h"

namespace {

constexpr unsigned kSeen = recorder::kDraw | recorder::kReport | recorder::kSystem;

std::wstring some_text(Chance& chance) {
    static const wchar_t letters[] = L"abc def\x1\x2\x3\x4\x5\x6\xF0\xF1\xF2\x101\x100\x4E2D\n\r%";
    std::wstring text;
    for (unsigned left = chance.below(chance.one_in(4) ? 80 : 12); left > 0; left--)
        text += letters[chance.below(sizeof letters / sizeof *letters - 1)];
    return text;
}

void choose_fields(Chance& chance, Texts& console) {
    console.Pos_X = chance.between(-20, 50), console.Pos_Y = chance.between(-20, 50);
    console.Dim_X = chance.one_in(12) ? chance.between(-2, 20) : chance.between(30, 260);
    console.Dim_Y = chance.one_in(12) ? chance.between(-2, 20) : chance.between(30, 160);
    console.Border = chance.of({0, 0, 1, 2, 5, -2});
    console.Cursor_Dim = chance.of({0, 0, 10, -20});
    console.Font_Size = chance.of({9, 14});
    console.Clip_Dim_X = chance.one_in(3) ? chance.between(1, 200) : 0;
    console.Clip_X = chance.between(0, 60), console.Clip_Y = chance.between(0, 60);
    console.Clip_Dim_Y = chance.between(0, 200);
    console.Flag = 0;
    for (const DWORD flag : {TEXTS_CURSOR_V, TEXTS_CURSOR_H, TEXTS_READ_STRIP})
        if (chance.one_in(2)) console.Flag |= flag;
    for (const DWORD flag : {TEXTS_PASSWORD, TEXTS_HEX, TEXTS_FIELD, TEXTS_REPORT_KEYS, OUTIL_DISABLE,
                             OUTIL_INVISIBLE, OUTIL_EMPTY, GRAPH_OUTLINE})
        if (chance.one_in(8)) console.Flag |= flag;
}

void copy_fields(const Texts& from, Texts& to) {
    to.Pos_X = from.Pos_X, to.Pos_Y = from.Pos_Y, to.Dim_X = from.Dim_X, to.Dim_Y = from.Dim_Y;
    to.Border = from.Border, to.Cursor_Dim = from.Cursor_Dim, to.Font_Size = from.Font_Size;
    to.Clip_X = from.Clip_X, to.Clip_Y = from.Clip_Y;
    to.Clip_Dim_X = from.Clip_Dim_X, to.Clip_Dim_Y = from.Clip_Dim_Y;
    to.Flag = from.Flag;
}

// Everything that is kept, as text.
std::string slider_state(const Sliders& slider) {
    std::string state;
    for (const int value : {static_cast<int>(slider.Flag), slider.Pos_X, slider.Pos_Y, slider.Dim_X,
                            slider.Dim_Y, slider.Border, slider.Larg, slider.select, slider.Clip_Dim_X})
        state += std::to_string(value) + " ";
    for (const float value : {slider.Cur_Value, slider.Val_Min, slider.Val_Max, slider.Step})
        state += std::to_string(value) + " ";
    return state;
}
std::string state_of(const Texts& console) {
    std::string state;
    for (const int value :
         {static_cast<int>(console.test), static_cast<int>(console.flag_read), console.select,
          console.Font_Dim_X, console.Font_Dim_Y, console.Read_X1, console.Read_X2, console.Read_Y1,
          console.Read_Y2, console.Edit_Pos, console.Hist_Pos, static_cast<int>(console.Region.left),
          static_cast<int>(console.Region.bottom)})
        state += std::to_string(value) + " ";
    state += "\n" + slider_state(console.Cursor_V) + "\n" + slider_state(console.Cursor_H) + "\n";
    state += recorder::narrow(console.Edit_Line) + "\n";
    for (int i = 0; console.Lines && i < 8192; i++)
        if (console.Lines[i])
            state += std::to_string(i) + ":" + std::to_string(console.Line_Width[i]) + " " +
                     recorder::narrow(console.Lines[i]) + "\n";
    return state;
}

struct Pair {
    Texts real;
    Told told;
};

// One operation on both; what it answered, if it answers.
struct Operation {
    const char* name;
    std::string (*real)(Texts&, Chance&);
    std::string (*told)(Told&, Chance&);
};

void move_pointer(Chance& chance, const Texts& console) {
    recorder::pointer(console.Pos_X + chance.between(-10, std::max(console.Dim_X, 0) + 10),
                      console.Pos_Y + chance.between(-10, std::max(console.Dim_Y, 0) + 10));
    desk::let_go(VK_LBUTTON);
    if (chance.one_in(2)) desk::hold(VK_LBUTTON);
}

std::string found(const wchar_t* line) { return line ? recorder::narrow(line) : "(null)"; }

#define BOTH(name, body)                                                                                     \
    {                                                                                                        \
        name, [](Texts& c, Chance& chance) -> std::string { return (void)chance, body; },                    \
            [](Told& c, Chance& chance) -> std::string { return (void)chance, body; }                        \
    }
const Operation OPERATIONS[] = {
    BOTH("Init", (c.Init(chance.one_in(2) ? recorder::window() : nullptr), "")),
    BOTH("Draw", (c.Draw(), "")),
    {"Write",
     [](Texts& c, Chance& chance) -> std::string { return c.Write(L"%ls", some_text(chance).c_str()), ""; },
     [](Told& c, Chance& chance) -> std::string { return c.Write(some_text(chance)), ""; }},
    {"OverWrite",
     [](Texts& c, Chance& chance) -> std::string {
         return c.OverWrite(L"%ls", some_text(chance).c_str()), "";
     },
     [](Told& c, Chance& chance) -> std::string { return c.OverWrite(some_text(chance)), ""; }},
    BOTH("Center", (c.Center(chance.between(-2, 30)), "")),
    BOTH("Cleanup", (chance.one_in(4) ? c.Cleanup() : void(), "")),
    BOTH("Scroll", (move_pointer(chance, c), c.Scroll(chance.between(-4, 4)), "")),
    BOTH("Select",
         (move_pointer(chance, c), std::to_string(c.Select(chance.of({1, 2, 4, 8, 18, 17}),
                                                           chance.one_in(4) ? chance.between(-9, 9) : 0,
                                                           chance.one_in(4) ? chance.between(-9, 9) : 0)))),
    BOTH("Deselect", (c.Deselect(), "")),
    BOTH("Read_Line", (move_pointer(chance, c), found(c.Read_Line()))),
};

// The host's hand in the fields, equal for both.
void meddle(Chance& chance, Pair& pair) {
    const int what = chance.between(0, 7);
    const signed char reading = chance.of({0, 1, 3, 5});
    const std::wstring line = some_text(chance) + std::wstring(chance.below(60), L'w');
    const int caret = chance.between(-1, 70);
    if (what == 0) choose_fields(chance, pair.real), copy_fields(pair.real, pair.told);
    for (Texts* console : {&pair.real, static_cast<Texts*>(&pair.told)}) {
        if (what == 1) console->flag_read = reading;
        if (what == 2) std::wcscpy(console->Edit_Line, line.c_str()), console->Edit_Pos = caret;
        if (what == 3) console->Flag ^= TEXTS_READ_STRIP;
        if (what == 4) console->Name_Set(L"name");
        if (what == 5) console->Name_Set(nullptr);
    }
}

// All fonts are there, and both caches of font measures know the same one.
void level_caches() {
    int width = 5;
    for (const int size : {9, 14})
        for (const char* slant : {"r", "o"})
            for (const char* weight : {"medium", "bold"})
                recorder::metrics(Zeb_Create_Font(recorder::window(), nullptr, weight, slant, size), size,
                                  width++);
    Texts console;
    console.Dim_X = console.Dim_Y = 1, console.Font_Size = 77;
    console.Init(recorder::window());
    Told::measured() = {Zeb_Create_Font(recorder::window(), nullptr, "medium", "r", 77), console.Font_Dim_X,
                        console.Font_Dim_Y};
}

} // namespace

struct Laws : Console {};

TEST_F(Laws, ARandomConsoleDoesWhatIsTold) {
    BORDER = 3, SPACE = 6, CURSEUR = 16;
    level_caches();
    for (int round = 0; round < law_rounds(60); round++) {
        const unsigned seed = law_seed() + static_cast<unsigned>(round);
        SCOPED_TRACE("LAWS_SEED=" + std::to_string(seed) + " LAWS_ROUNDS=1");
        Chance chance(seed);
        Pair pair;
        choose_fields(chance, pair.real), copy_fields(pair.real, pair.told);
        for (int step = 0; step < 30; step++) {
            if (chance.one_in(3)) meddle(chance, pair);
            const Operation& operation = OPERATIONS[step == 0 ? 0 : chance.below(std::size(OPERATIONS))];
            const unsigned dice = chance.word();
            Chance first(dice), second(dice);
            std::string answer, wanted;
            const std::string did = recorded(kSeen, [&] { answer = operation.real(pair.real, first); });
            const std::string told = recorded(kSeen, [&] { wanted = operation.told(pair.told, second); });
            ASSERT_EQ(did, told) << operation.name << " at step " << step;
            ASSERT_EQ(answer, wanted) << operation.name << " at step " << step;
            ASSERT_EQ(state_of(pair.real), state_of(pair.told)) << operation.name << " at step " << step;
        }
    }
}
