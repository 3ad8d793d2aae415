#ifndef TESTS_TRACK_FIXTURE_H
#define TESTS_TRACK_FIXTURE_H

#include <brask/sliders.h>

#include "unit/controls/range_bench.h"

// Along the X axis a track of 161 by 20, with 101 places for the thumb; along the Y axis the same one
// upright.
struct Track : Range_Bench<Sliders> {
    Sliders& slider = bar;
    void SetUp() override {
        Range_Bench::SetUp();
        slider.Larg = 10;
        lay(0);
    }
    void lay(DWORD flag) {
        place(flag, 161, 20, slider.Larg, slider.Border);
        init();
        slider.select = 0;
    }
};

#endif
