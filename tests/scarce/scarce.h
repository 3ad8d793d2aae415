#ifndef TESTS_SCARCE_H
#define TESTS_SCARCE_H

#include <memory>
#include <string>
#include <type_traits>
#include <vector>

#include <gtest/gtest.h>

#include <brask/tools.h>

#include "support/memory.h"

#include "world.h"

// One law for every operation of every control: whichever allocations fail in it, it ends, what the control
// holds is as it was or as the operation makes it, and when memory is back the same operation and a Draw show
// what they would have shown without the failure.
namespace scarce {

template <typename Control>
struct Act {
    const char* name;
    void (*run)(Control&);
    enum Start { shown, placed } start = shown; // after the first Draw, or before the first Init
    enum Loss { keeps, loses } loss = keeps;    // may give up what it replaces, and then says so
};

template <typename Control>
struct Kind {
    void (*set_up)(Control&);            // fields and entries, before Init
    std::string (*held)(const Control&); // what must not get lost
    void (*part)(Control& copy);         // a copy lets go of what it shares
    std::vector<Act<Control>> acts;
};

template <typename Control>
class Trial {
  public:
    Trial(const Kind<Control>& kind, const Act<Control>& act) : kind(kind), act(act) {}

    void run() {
        SCOPED_TRACE(act.name);
        for (int times = 0; times < 3; times++) {
            begin();
            for (int i = 0; i < times; i++)
                act.run(*control);
            held[times] = kind.held(*control);
            if (times) picture[times] = drawn();
        }
        for (const bool from_then_on : {false, true})
            for (int nth = 1; fails(nth, from_then_on) && !testing::Test::HasFailure(); nth++)
                ASSERT_LT(nth, MOST) << "it asks for memory without end";
    }

  private:
    static constexpr int MOST = 3000;

    void begin() {
        world::fresh();
        control = std::make_unique<Control>();
        kind.set_up(*control);
        if (act.start == Act<Control>::placed) return;
        control->Init(world::window());
        control->Draw();
    }

    std::string drawn() {
        world::wipe();
        control->Draw();
        return world::shown();
    }

    // Whether any allocation failed.
    bool fails(int nth, bool from_then_on) {
        SCOPED_TRACE("allocation " + std::to_string(nth) + (from_then_on ? " and all later ones" : ""));
        begin();
        bool happened;
        {
            const memory::Failing failing(nth, from_then_on);
            act.run(*control);
            happened = failing.happened();
        }
        const std::string now = kind.held(*control);
        if (act.loss == Act<Control>::keeps || !happened) {
            EXPECT_TRUE(now == held[0] || now == held[1]) << "it holds\n"
                                                          << now << "and held before\n"
                                                          << held[0] << "afterwards\n"
                                                          << held[1];
        }
        world::renew_fonts();
        act.run(*control);
        const std::string then = kind.held(*control);
        EXPECT_TRUE(then == held[1] || then == held[2]) << "it holds\n" << then << "in the end";
        const std::string shown = drawn();
        EXPECT_TRUE(shown == picture[1] || shown == picture[2]) << "it is shown differently";
        {
            const memory::Failing failing(1, true);
            control.reset();
        }
        return happened;
    }

    const Kind<Control>& kind;
    const Act<Control>& act;
    std::unique_ptr<Control> control;
    std::string held[3]; // after so many times without a failure
    std::string picture[3];
};

inline std::string name_of(const Tools& control) {
    std::string name;
    for (const wchar_t* c = control.W_Name; c && *c; c++)
        name += static_cast<char>(*c);
    return "name " + name + "\n";
}

template <typename Control>
void place(Control& control) {
    control.Pos_X = control.Pos_Y = 10;
    control.Dim_X = 180, control.Dim_Y = 120;
    control.Name_Set(L"ab");
}
template <typename Control>
void grow(Control& control) {
    control.Dim_X += 20, control.Dim_Y += 10;
    control.Init(nullptr);
}
template <typename Control>
void change_font(Control& control) {
    control.Font_Size = 14;
    control.Init(nullptr);
}
// Goes over the control with the pointer, as a host tells it.
template <typename Control>
void follow(Control& control) {
    world::point(20, 20);
    control.Select(1);
    world::point(100, 70);
    control.Select(1);
    world::point(-100, -100);
    control.Select(0);
}
template <typename Control>
void press(Control& control) {
    world::point(100, 70);
    world::hold(true);
    control.Select(2 + 16);
    control.Select(1 + 16);
    world::hold(false);
    control.Deselect();
    world::point(-100, -100);
}

template <typename Control>
void step_value(Control& control) {
    control.Cur_Value = 1;
    control.Adjust();
}
template <typename Control>
void read_value(Control& control) {
    world::point(60, 60);
    control.Read();
}
template <typename Control>
void roll_value(Control& control) {
    world::point(60, 60);
    control.Scroll(-1);
    world::point(-100, -100);
}

template <typename Control, typename = void>
constexpr bool has_pointer = false;
template <typename Control>
constexpr bool has_pointer<Control, std::void_t<decltype(&Control::Deselect)>> = true;

// What all controls do alike, and then what one does beside it.
template <typename Control>
void obey(Kind<Control> kind) {
    if (!memory::can_fail()) GTEST_SKIP() << "memory cannot be made to fail here";
    static void (*part)(Control&);
    part = kind.part;
    using A = Act<Control>;
    const A common[] = {
        {"the first Init", [](Control& c) { c.Init(world::window()); }, A::placed},
        {"Init again", [](Control& c) { c.Init(nullptr); }},
        {"Init with another size", grow<Control>},
        {"Init with another font", change_font<Control>},
        {"Draw", [](Control& c) { c.Draw(); }},
        {"Name_Set", [](Control& c) { c.Name_Set(L"cd"), c.Init(nullptr); }, A::shown, A::loses},
        {"a copy",
         [](Control& c) {
             Control copy(c), other;
             other = copy;
             for (Control* each : {&copy, &other}) {
                 each->W_Name = nullptr;
                 part(*each);
                 each->Draw();
             }
         }},
    };
    for (const A& act : common)
        Trial<Control>(kind, act).run();
    if constexpr (has_pointer<Control>)
        for (const A& act : {A{"Select", follow<Control>}, A{"a press", press<Control>}})
            Trial<Control>(kind, act).run();
    for (const A& act : kind.acts)
        Trial<Control>(kind, act).run();
}

} // namespace scarce

#endif
