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

template <typename Control>
void step(Control& control) {
    control.Cur_Value = 1;
    control.Adjust();
}
template <typename Control>
void roll(Control& control) {
    control.Scroll(-1);
}
template <typename Control>
void read(Control& control) {
    world::point(100, 70);
    control.Read();
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
    obey<Buttons>({place, held, part, {{"Adjust", step<Buttons>}, DRESS<Buttons>}});
}

TEST(Each_Failure, Sliders) {
    obey<Sliders>(
        {set_up_range,
         held,
         part,
         {{"Adjust", step<Sliders>}, {"Read", read<Sliders>}, {"Scroll", roll<Sliders>}, DRESS<Sliders>}});
}

TEST(Each_Failure, Valuators) {
    obey<Valuators>({set_up_bar,
                     held,
                     part,
                     {{"Adjust", step<Valuators>},
                      {"Read", read<Valuators>},
                      {"Scroll", roll<Valuators>},
                      {"Lock", [](Valuators& v) { v.Lock(1); }},
                      DRESS<Valuators>}});
}

} // namespace
