// Work on controls that hold many others: lists, a value bar, a colour editor, a strip of tabs.

#include <cmath>
#include <map>
#include <memory>

#include <brask/color_edit.h>
#include <brask/fenn.h>
#include <brask/tabs.h>
#include <brask/valuators.h>

#include "busy.h"
#include "long_list.h"
#include "scene.h"

namespace {

// One notch of the wheel for each step, as a host hands it on; the rows in view are painted anew.
void list_scroll(benchmark::State& state) {
    static std::map<int, std::unique_ptr<Long_List>> lists;
    auto& work = lists[static_cast<int>(state.range(0))];
    if (!work) {
        work = std::make_unique<Long_List>();
        work->open(static_cast<int>(state.range(0)), scene::window());
    }
    Lists& list = work->list;
    scene::point_at(layout::list_width / 2, layout::list_height / 2);
    list.Draw();
    long step = 0;
    list.Scroll(layout::top_row(0) - work->top());
    busy::measure(state, 1, [&] {
        const int from = layout::top_row(step++);
        list.Scroll(layout::top_row(step) - from);
    });
    if (work->top() != layout::top_row(step))
        state.SkipWithError("the list has to scroll by one row each time");
}
BENCHMARK(list_scroll)->Arg(layout::list_rows)->Arg(100000)->UseManualTime();

// Without the names, which are the host's work.
void list_open(benchmark::State& state) {
    double time = 0;
    for (auto _ : state) {
        Long_List work;
        const double before = busy::seconds();
        work.list.Grow(100000, 0);
        const double grown = busy::seconds();
        work.name();
        const double named = busy::seconds();
        work.list.Init(scene::window());
        work.list.Draw();
        time = grown - before + busy::seconds() - named;
        state.SetIterationTime(time);
    }
}
BENCHMARK(list_open)->UseManualTime()->Unit(benchmark::kMillisecond);

// Every move of a drag over the whole bar, with the three steps that a host takes for it.
void bar_drag(benchmark::State& state) {
    static Valuators bar;
    bar.Flag = OUTIL_CAPTURE;
    bar.Dim_X = 400, bar.Dim_Y = 26;
    bar.Font_Size = 11;
    bar.Val_Max = 100;
    bar.Format = "%.1f", bar.Num_Width = 60;
    bar.Name_Set(L"Level");
    bar.Init(scene::window());
    bar.Draw();
    const auto to = [&](int x, int event) {
        scene::point_at(x, 13);
        if (!bar.Select(event)) state.SkipWithError("a press goes on until its end");
        bar.Cur_Value = bar.Read();
        bar.Adjust();
    };
    to(50, 16 + 2);
    long step = 0;
    float greatest = 0;
    busy::measure(state, 1, [&] {
        const int at = static_cast<int>(step++ * 3 % 500);
        to(at < 250 ? 40 + at : 539 - at, 16 + 1);
        greatest = std::fmax(greatest, bar.Cur_Value);
    });
    bar.Select(0);
    if (step > 100 && greatest < 50) state.SkipWithError("the thumb has to follow");
}
BENCHMARK(bar_drag)->UseManualTime();

// A press on the button that changes from red, green and blue to hue, light and saturation, or back.
void mode_switch(benchmark::State& state) {
    static Color_Edit editor;
    editor.Flag = COLOR_MODE_BUTTON;
    editor.Dim_X = 300, editor.Dim_Y = 110;
    editor.Font_Size = 11;
    editor.Border = 2;
    editor.Cur_Value = 0xFF2080F0;
    editor.Init(scene::window());
    editor.Draw();
    scene::point_at(editor.Button_Mode.Pos_X + 5, 55);
    busy::measure(state, 1, [&] {
        const DWORD before = editor.Flag;
        editor.Select(16 + 2);
        if (editor.Flag == before) state.SkipWithError("each press has to change the mode");
    });
}
BENCHMARK(mode_switch)->UseManualTime();

void strip_repaint(benchmark::State& state) {
    static Tabs strip;
    strip.Dim_X = 800, strip.Dim_Y = 24;
    strip.Font_Size = 11;
    strip.Cur_Value = 5;
    strip.Grow(12, 0);
    for (int i = 0; i < 12; i++)
        strip.Item[i]->Name_Set(L"Page %d", i);
    scene::point_at(-10, -10);
    strip.Init(scene::window());
    busy::measure(state, 1, [] { strip.Draw(); });
}
BENCHMARK(strip_repaint)->UseManualTime();

} // namespace

BENCHMARK_MAIN();
