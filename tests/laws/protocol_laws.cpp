#include <climits>

#include "support/recorded.h"

#include "laws.h"
#include "model.h"

// Random operations in random order on random fields, each held against the model of the protocol.

namespace {

const char* const kActs[] = {"Init", "Init", "Draw", "Select", "Read", "Adjust", "Deselect"};

template <typename Control>
struct Name;
template <>
struct Name<Boxs> {
    static constexpr const char* value = "Boxs";
};
template <>
struct Name<Buttons> {
    static constexpr const char* value = "Buttons";
};
template <>
struct Name<Labels> {
    static constexpr const char* value = "Labels";
};

// --- Doing one act ---

template <typename Control>
int perform(Control& control, Act act, int mode) {
    switch (act) {
    case Act::Init: control.Init(nullptr); return 0;
    case Act::InitWindow: control.Init(recorder::window()); return 0;
    case Act::Draw: control.Draw(); return 0;
    case Act::Select: return control.Select(mode);
    case Act::Read: return control.Read();
    case Act::Adjust: control.Adjust(); return 0;
    default: control.Deselect(); return 0;
    }
}
int perform(Labels& label, Act act, int) {
    if (act == Act::Init || act == Act::InitWindow)
        label.Init(act == Act::Init ? nullptr : recorder::window());
    else
        label.Draw();
    return 0;
}
Act choose(Chance& chance, const Labels&) { return chance.of({Act::Init, Act::InitWindow, Act::Draw}); }
template <typename Control>
Act choose(Chance& chance, const Control&) {
    return static_cast<Act>(chance.below(static_cast<unsigned>(Act::kCount)));
}

// --- Changing fields ---

const wchar_t* const kNames[] = {L"",
                                 L"name",
                                 L"a longer name than the control is wide",
                                 L"r\x04p \xF1 bold",
                                 L"\x01\x02",
                                 L"\x645\x631\x62D\x628\x627"};

// Freed surfaces are still named by the looks until an Init that comes as far as choosing them.
template <typename Control>
void change_surfaces(Control& control, Chance& chance) {
    if (chance.one_in(2)) {
        control.Alloc_Graph_Normal(chance.word());
        if (chance.one_in(2)) control.Alloc_Graph_Select(chance.word());
        return;
    }
    if (control.Dim_X < 1 || control.Dim_Y < 1) return;
    control.Graph_Normal = static_cast<DWORD*>(control.Free(control.Graph_Normal));
    control.Graph_Select = static_cast<DWORD*>(control.Free(control.Graph_Select));
    const DWORD flag = control.Flag;
    control.Flag = 0;
    control.Init(recorder::window());
    control.Flag = flag;
}

void change_value(Labels&, Chance&) {}
void change_value(Boxs& box, Chance& chance) { box.select = chance.between(0, 2); }
void change_value(Buttons& button, Chance& chance) {
    button.Cur_Value = chance.of({0, 1, -1, INT_MAX});
    button.Lamp_Color = chance.below(6);
}

// A change of what a host may write at any time. `any` draws a number.
template <typename Control, typename Any>
void change(Control& control, Chance& chance, Any any) {
    static const DWORD kFlags[] = {
        OUTIL_INVISIBLE, OUTIL_DISABLE, OUTIL_VERTICAL, OUTIL_EMPTY, GRAPH_OUTLINE,     OUTIL_FLAT,
        OUTIL_NO_FRAME,  TEXT_MIDDLE,   TEXT_TOP,       TEXT_BOTTOM, TEXT_LEFT,         TEXT_RIGHT,
        BOX_INSET,       TEXT_WHITE,    BOX_RAISED,     BUTTON_LAMP, BUTTON_LAMP_COLOR, CADRE_NO_LINE};
    switch (chance.below(14)) {
    case 0: control.Flag ^= kFlags[chance.below(std::size(kFlags))]; break;
    case 1: control.Flag = 0; break;
    case 2: control.Dim_X = any(), control.Dim_Y = any(); break;
    case 3: control.Pos_X = any(), control.Pos_Y = any(); break;
    case 4:
        control.Clip_X = any(), control.Clip_Y = any(), control.Clip_Dim_X = any(),
        control.Clip_Dim_Y = any();
        break;
    case 5: control.Clip_Dim_X = control.Clip_Dim_Y = 0; break;
    case 6: control.Color = Colors(any(), any(), any(), any()); break;
    case 7: control.Border = chance.of({0, 0, 1, 3, 5, 40, -1, -7}); break;
    case 8: control.Name_Set(L"%ls", kNames[chance.below(std::size(kNames))]); break;
    case 9: control.Font_Weight = chance.of<const char*>({nullptr, "bold"}), control.Font_Size = any(); break;
    case 10: change_value(control, chance); break;
    default: change_surfaces(control, chance); break; // more often: several blocks that several fields name
    }
}

// --- The laws ---

int select_of(const Labels&) { return 0; }
template <typename Control>
int select_of(const Control& control) {
    return control.select;
}

// Holds what was done against what was expected. The log has the lines of this one act.
template <typename Control>
void hold(const Control& control, Act act, const Expected& e, int answer) {
    const std::string operation = std::string(Name<Control>::value) + "::" + kActs[static_cast<int>(act)];
    EXPECT_EQ(recorder::exit_tag(operation), e.tag);
    EXPECT_EQ(recorder::log().front().text.rfind(">>> in  Lib_Brask: " + operation + "(", 0), 0u);
    EXPECT_EQ(recorder::log().back().text, "<<< out Lib_Brask: " + operation + "(" + e.tag + ")");
    EXPECT_EQ(answer, e.answer);
    EXPECT_EQ(select_of(control), e.select);
    EXPECT_EQ(control.test, e.test);
    EXPECT_EQ(!recorder::warnings().empty(), e.warns) << recorder::warnings();
    if (!e.may_paint && !e.must_paint) {
        EXPECT_FALSE(painted_something());
    }
    if (e.must_paint) {
        EXPECT_TRUE(painted_something());
    }
}

struct Laws : Recorded {
    // Acts, pointers and changes at random until something differs from the model.
    template <typename Control, typename Any>
    void run(Any any) {
        for_seeds(150, [&](Chance& chance) {
            Control control;
            for (int step = 0; step < 60 && !HasFailure(); ++step) {
                for (unsigned changes = chance.below(3); changes > 0; --changes)
                    change(control, chance, [&] { return any(chance); });
                const POINT pointer = {any(chance), any(chance)};
                recorder::pointer(pointer.x, pointer.y);
                const Act act = choose(chance, control);
                const int mode = chance.of({0, 1, 2, 3, 4, 18, 20, 33, 52, -1, INT_MAX});
                SCOPED_TRACE(testing::Message() << "step " << step << " " << kActs[static_cast<int>(act)]
                                                << " mode " << mode << " flag " << std::hex << control.Flag);
                const Expected e = expected_of(control, act, mode, pointer);
                recorder::clear();
                hold(control, act, e, perform(control, act, mode));
            }
        });
    }
    static int sensible(Chance& chance) { return chance.of({-1, 0, 1, 5, 12, 24, 25, 26, 30, 60, 100}); }
    static int extreme(Chance& chance) {
        return chance.of(
            {INT_MIN, INT_MIN + 1, -65536, -32768, -1, 0, 1, 7, 25, 32767, 65536, INT_MAX - 1, INT_MAX});
    }
};

TEST_F(Laws, ABoxKeepsTheProtocol) { run<Boxs>(sensible); }
TEST_F(Laws, AButtonKeepsTheProtocol) { run<Buttons>(sensible); }
TEST_F(Laws, ALabelKeepsTheProtocol) { run<Labels>(sensible); }
TEST_F(Laws, ABoxKeepsTheProtocolWithExtremeFields) { run<Boxs>(extreme); }
TEST_F(Laws, AButtonKeepsTheProtocolWithExtremeFields) { run<Buttons>(extreme); }
TEST_F(Laws, ALabelKeepsTheProtocolWithExtremeFields) { run<Labels>(extreme); }

} // namespace
