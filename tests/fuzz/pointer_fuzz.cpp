// Streams of pointer events and of the host's doings over a box and a button in a real window: every answer
// is what the position says, a control that may not paint does not, and nothing is read or written that is
// not there.

#include <memory>

#include <brask/boxs.h>
#include <brask/buttons.h>

#include "real_window.h"
#include "wide_text.h"

namespace {

constexpr DWORD faceless = OUTIL_EMPTY | OUTIL_INVISIBLE | GRAPH_OUTLINE;

DWORD some_flags(Input& input) {
    static constexpr DWORD flags[] = {0,           OUTIL_INVISIBLE, OUTIL_DISABLE,     OUTIL_EMPTY,
                                      OUTIL_FLAT,  GRAPH_OUTLINE,   OUTIL_NO_FRAME,    BOX_INSET,
                                      BOX_RAISED,  BUTTON_LAMP,     BUTTON_LAMP_COLOR, OUTIL_VERTICAL,
                                      TEXT_MIDDLE, CADRE_NO_LINE};
    return input.one_in(16) ? input.word() : input.among(flags) | (input.one_in(4) ? input.among(flags) : 0);
}

// The host's pointer, in the window's messages.
struct Mouse {
    int x = -1, y = -1;
};

template <typename Control>
class Subject {
  public:
    Subject(RealWindow& window, Mouse& mouse) : window(window), mouse(mouse), control(new Control) {}

    void act(Input& input) {
        switch (input.below(16)) {
        case 0: shape(input); break;
        case 1: control->Flag = some_flags(input); break;
        case 2: control->Init(input.one_in(2) ? window.wnd : nullptr); break;
        case 3: paint([&] { control->Draw(); }); break;
        case 4: paint([&] { control->Adjust(); }); break;
        case 5: paint([&] { control->Deselect(); }); break;
        case 6: control->Name_Set(L"%ls", wide_text(input, input.one_in(8) ? 1200 : 20).c_str()); break;
        case 7: surfaces(input); break;
        case 8: through_a_copy(input); break;
        case 9: value(input, *control); break;
        case 10: control->Color_Set(input.one_in(2) ? input.word() : 0xAAAAAA); break;
        default: select(input); break;
        }
    }

  private:
    void shape(Input& input) {
        control->Pos_X = input.number();
        control->Pos_Y = input.number();
        control->Dim_X = input.number();
        control->Dim_Y = input.number();
        control->Border = input.one_in(2) ? input.number() : 0;
        if (!input.one_in(4)) return;
        control->Clip_X = input.number();
        control->Clip_Y = input.number();
        control->Clip_Dim_X = input.number();
        control->Clip_Dim_Y = input.number();
    }

    static void value(Input& input, Buttons& button) {
        button.Cur_Value = static_cast<int>(input.below(3));
        button.Lamp_Color = input.below(7);
        expect(button.Read() == button.Cur_Value, "a button reads its value");
    }
    static void value(Input&, Boxs& box) { expect(box.Read() == 0, "a box holds no value"); }

    // What the host may do with surfaces of its own.
    void surfaces(Input& input) {
        switch (input.below(4)) {
        case 0: control->Alloc_Graph_Normal(input.word()); break;
        case 1: control->Alloc_Graph_Select(input.word()); break;
        case 2:
            if (control->Graph_Normal != control->Graph_Select) control->Free(control->Graph_Normal);
            control->Graph_Normal = nullptr;
            control->Init(nullptr);
            break;
        default:
            if (control->Graph_Normal != control->Graph_Select) control->Free(control->Graph_Select);
            control->Graph_Select = nullptr;
            control->Init(nullptr);
            break;
        }
    }

    // Name and the host's surfaces are shared by a copy, so only one of the two may keep them; faces are
    // counted.
    void through_a_copy(Input& input) {
        std::unique_ptr<Control> copy(new Control(*control));
        if (input.one_in(2)) *copy = *control;
        Control& gone = *control;
        gone.W_Name = nullptr;
        gone.Graph_Normal = gone.Graph_Select = nullptr;
        control = std::move(copy);
    }

    template <typename Action>
    void paint(Action action) {
        const bool hidden = control->Flag & OUTIL_INVISIBLE;
        const std::vector<DWORD> before = hidden ? window.pixels() : std::vector<DWORD>();
        action();
        if (hidden) expect(window.pixels() == before, "a hidden control paints nothing");
    }

    void select(Input& input) {
        const int mode = static_cast<int>(input.below(input.one_in(4) ? 128 : 5));
        if (!window.wnd || control->Wnd != window.wnd) {
            paint([&] { control->Select(mode); });
            return;
        }
        window.pixels(); // for its height
        const POINT pointer = {mouse.x, window.height - 1 - mouse.y};
        const bool there = control->Dim_X >= 1 && control->Dim_Y >= 1;
        const bool inside = there && PtInRect(&control->Region, pointer);
        const bool query = (mode & 15) == KEY_QUERY;
        const bool disabled = control->Flag & OUTIL_DISABLE;
        const int before = control->select;
        int answer = 0;
        paint([&] { answer = control->Select(mode); });
        expect(answer == (inside && (query || !disabled)), "the answer of Select");
        const bool tracks = there && !query && !disabled && !(control->Flag & faceless);
        expect(control->select == (tracks ? inside ? 1 : 2 : before), "the tracking of Select");
    }

    RealWindow& window;
    Mouse& mouse;
    std::unique_ptr<Control> control;
};

void move_mouse(Input& input, const RealWindow& window, Mouse& mouse) {
    Zeb_setup(window.wnd, "fuzz");
    mouse = {static_cast<int>(input.below(300)) - 40, static_cast<int>(input.below(200)) - 40};
    set_curs(mouse.x, mouse.y);
    Zeb_release();
}

void ignore(void*, HWND, unsigned, const wchar_t*) {}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    Fenn_Set_Report(ignore, nullptr); // of controls used before Init there are many here
    RealWindow window(240, 160);
    Mouse mouse;
    Input input(data, size);
    move_mouse(input, window, mouse);
    Fenn_Builtin_Font(1);
    Subject<Boxs> box(window, mouse);
    Subject<Buttons> button(window, mouse);
    while (!input.empty())
        switch (input.below(32)) {
        case 0:
            window.resize(1 + static_cast<int>(input.below(300)), 1 + static_cast<int>(input.below(200)));
            break;
        case 1:
            if (input.one_in(16)) window.close(); // the controls still point to it
            break;
        case 2:
        case 3:
        case 4:
        case 5:
        case 6: move_mouse(input, window, mouse); break;
        default:
            if (input.one_in(2))
                box.act(input);
            else
                button.act(input);
        }
    return 0;
}
