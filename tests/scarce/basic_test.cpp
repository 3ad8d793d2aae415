#include <brask/boxs.h>
#include <brask/buttons.h>
#include <brask/labels.h>
#include <brask/sliders.h>
#include <brask/valuators.h>

#include "scarce.h"

// The basic controls when memory runs out.

namespace {

using namespace scarce;

template <typename Control>
std::string held(const Control& control) {
    return name_of(control) + std::to_string(control.Cur_Value);
}
template <typename Control>
std::string named(const Control& control) {
    return name_of(control);
}

template <typename Control>
void part(Control& copy) {
    copy.Graph_Normal = copy.Graph_Select = nullptr;
}

// A surface in place of the face; one that could not be had leaves the face.
template <typename Control>
void dress(Control& control) {
    control.Alloc_Graph_Normal(0xFF8040);
    control.Alloc_Graph_Select(0xFF80C0);
    control.Init(nullptr);
}
template <typename Control>
const Act<Control> DRESS = {"surfaces of the host", dress<Control>};

template <typename Control>
void set_up_range(Control& control) {
    place(control);
    control.Val_Max = 9;
}
void set_up_bar(Valuators& bar) {
    set_up_range(bar);
    bar.Format = "%.1f", bar.Num_Width = 40;
}

TEST(Each_Failure, Boxs) { obey<Boxs>({place, named, part, {DRESS<Boxs>}}); }

TEST(Each_Failure, Labels) { obey<Labels>({place, named, part, {}}); }

TEST(Each_Failure, Buttons) {
    obey<Buttons>({place, held, part, {{"Adjust", step_value<Buttons>}, DRESS<Buttons>}});
}

TEST(Each_Failure, Sliders) {
    obey<Sliders>({set_up_range,
                   held,
                   part,
                   {{"Adjust", step_value<Sliders>},
                    {"Read", read_value<Sliders>},
                    {"Scroll", roll_value<Sliders>},
                    DRESS<Sliders>}});
}

TEST(Each_Failure, Valuators) {
    obey<Valuators>({set_up_bar,
                     held,
                     part,
                     {{"Adjust", step_value<Valuators>},
                      {"Read", read_value<Valuators>},
                      {"Scroll", roll_value<Valuators>},
                      {"Lock", [](Valuators& v) { v.Lock(1); }},
                      DRESS<Valuators>}});
}

} // namespace
