// The page "Values": sliders and value bars, each in its kinds.
#include <memory>
#include <vector>

#include <brask/labels.h>
#include <brask/sliders.h>
#include <brask/valuators.h>

#include "page.h"
#include "panel.h"

namespace {

// What a host paints as a picture behind a thumb: dark to light along the longer side.
enum class Picture { none, ramp };

template <typename Control>
void paint_ramp(Control& control) {
    if (!control.Alloc_Graph_Normal(0) || !control.Alloc_Graph_Select(0) || !control.Graph_Select) return;
    for (int y = 0; y < control.Dim_Y; y++)
        for (int x = 0; x < control.Dim_X; x++) {
            DWORD level = DWORD(255 * x / control.Dim_X);
            std::size_t at = std::size_t(y) * std::size_t(control.Dim_X) + std::size_t(x);
            control.Graph_Normal[at] = level << 16 | 0x6000 | (255 - level);
            control.Graph_Select[at] = level << 16 | 0xA000 | (255 - level);
        }
}

// --- Samples --------------------------------------------------------------------------------------------

struct SliderSample {
    const wchar_t* caption;
    DWORD flag;
    float low, high, value, visible; // visible: the thumb's part of 100; 0 leaves it alone
    Picture picture;
};
const SliderSample lying_sliders[] = {
    {L"Follows inside only", 0, 0, 100, 30, 0, Picture::none},
    {L"Captures the pointer", OUTIL_CAPTURE, 0, 100, 50, 0, Picture::none},
    {L"Long thumb", OUTIL_CAPTURE, 0, 100, 20, 40, Picture::none},
    {L"High to low", OUTIL_CAPTURE | OUTIL_REVERSE, 100, 0, 30, 0, Picture::none},
    {L"Surfaces of the host", OUTIL_CAPTURE, 0, 100, 70, 0, Picture::ramp},
    {L"Disabled", OUTIL_DISABLE, 0, 100, 60, 0, Picture::none},
    {L"Outline", GRAPH_OUTLINE, 0, 100, 60, 0, Picture::none},
};
const SliderSample standing_sliders[] = {
    {L"Up", OUTIL_VERTICAL | OUTIL_CAPTURE, 0, 100, 25, 0, Picture::none},
    {L"List", OUTIL_VERTICAL | OUTIL_CAPTURE | OUTIL_REVERSE, 100, 0, 0, 30, Picture::none},
    {L"Off", OUTIL_VERTICAL | OUTIL_DISABLE, 0, 100, 75, 0, Picture::none},
};

struct BarSample {
    const wchar_t* name;
    DWORD flag;
    float low, high, value;
    const char* format;
    Picture picture;
};
const BarSample lying_bars[] = {
    {L"Linear", OUTIL_CAPTURE, 0, 100, 40, "%.1f", Picture::none},
    {L"Without number", OUTIL_CAPTURE, -1, 1, 0.5f, nullptr, Picture::none},
    {L"Decimal logarithm", OUTIL_CAPTURE | VALUATOR_LOG10, 1, 10000, 1000, "%.0f", Picture::none},
    {L"Natural logarithm", OUTIL_CAPTURE | VALUATOR_LN, 0.1f, 1000, 100, "%.2f", Picture::none},
    {L"High to low", OUTIL_CAPTURE | OUTIL_REVERSE, 100, 0, 25, "%.0f", Picture::none},
    {L"Locked", OUTIL_CAPTURE | VALUATOR_FREZE, 0, 1, 0.5f, "%.2f", Picture::none},
    {L"Surfaces of the host", OUTIL_CAPTURE, 0, 255, 204, "%.0f", Picture::ramp},
    {L"Disabled", OUTIL_DISABLE, 0, 100, 60, "%.0f", Picture::none},
    {L"Outline", GRAPH_OUTLINE, 0, 100, 60, nullptr, Picture::none},
};
const BarSample standing_bars[] = {
    {L"Up", OUTIL_VERTICAL | OUTIL_CAPTURE, 0, 100, 25, nullptr, Picture::none},
    {L"Log", OUTIL_VERTICAL | OUTIL_CAPTURE | VALUATOR_LOG10, 1, 1000, 30, nullptr, Picture::none},
    {L"Lock", OUTIL_VERTICAL | VALUATOR_FREZE, 0, 100, 50, nullptr, Picture::none},
};

// --- What sliders and bars have in common ----------------------------------------------------------------

// The three steps in which a host takes a value.
template <typename Control>
void take_value(Control& control, int word) {
    if (!control.Select(word)) return;
    control.Cur_Value = control.Read();
    control.Adjust();
}

// Away from the user means to the right and upward; the controls count toward the start of their track.
template <typename Control>
void turn_wheel(std::vector<Control>& controls, int notches) {
    for (Control& control : controls)
        if (control.Select(KEY_QUERY)) control.Scroll(-notches);
}

template <typename Control, typename Sample>
void set_range(Control& control, const Sample& sample) {
    control.Flag = sample.flag;
    control.Val_Min = sample.low;
    control.Val_Max = sample.high;
    control.Cur_Value = sample.value;
}

// A panel of controls of one kind, some lying and some standing.
template <typename Control>
class Ranges {
  public:
    Ranges(const wchar_t* title, const char* kind, std::size_t lying, std::size_t standing)
        : panel(title), lying(lying), standing(standing), kind(kind) {}
    void draw() {
        panel.draw();
        for (std::vector<Control>* controls : {&lying, &standing})
            for (Control& control : *controls)
                control.Draw();
    }
    void pointer(int word) {
        for (std::vector<Control>* controls : {&lying, &standing})
            for (Control& control : *controls)
                take_value(control, word);
    }
    void wheel(int notches) {
        turn_wheel(lying, notches);
        turn_wheel(standing, notches);
    }
    void each(const Visitor& visit) const {
        panel.each(visit);
        for (const std::vector<Control>* controls : {&lying, &standing})
            for (const Control& control : *controls)
                visit(kind, control);
    }

  protected:
    Panel panel;
    std::vector<Control> lying, standing;

  private:
    const char* kind;
};

// --- Sliders ----------------------------------------------------------------------------------------------

class SliderSection : public Ranges<Sliders> {
  public:
    SliderSection()
        : Ranges(L"Sliders", "slider", std::size(lying_sliders), std::size(standing_sliders)),
          captions(lying.size()) {
        for (std::size_t i = 0; i < lying.size(); i++) {
            set_range(lying[i], lying_sliders[i]);
            lying[i].Step = 5;
            lying[i].Name_Set(L"%ls",
                              lying_sliders[i].caption); // a slider does not write it: the caption does
            captions[i].Flag = TEXT_LEFT;
            captions[i].Name_Set(L"%ls", lying_sliders[i].caption);
        }
        for (std::size_t i = 0; i < standing.size(); i++) {
            set_range(standing[i], standing_sliders[i]);
            standing[i].Name_Set(L"%ls", standing_sliders[i].caption);
        }
    }
    void layout(HWND wnd, const Area& area) {
        Area inner = panel.place(wnd, area);
        int count = int(standing.size());
        Area column = inner.cut_left(inner.width - count * (CURSEUR + 3 * SPACE));
        for (std::size_t i = 0; i < standing.size(); i++) {
            inner.cut_left(2 * SPACE);
            place(standing[i], standing_sliders[i], wnd, inner.cut_left(CURSEUR + SPACE));
        }
        for (std::size_t i = 0; i < lying.size(); i++) {
            Area row = column.cell(0, 1, int(i), int(lying.size()));
            row.cut_top(row.height / 2).give(captions[i]);
            captions[i].Init(wnd);
            place(lying[i], lying_sliders[i], wnd, row.cut_top(CURSEUR + SPACE));
        }
    }
    void draw() {
        Ranges::draw();
        for (Labels& caption : captions)
            caption.Draw();
    }

  private:
    static void place(Sliders& slider, const SliderSample& sample, HWND wnd, const Area& area) {
        area.give(slider);
        if (sample.picture == Picture::ramp) paint_ramp(slider);
        if (sample.visible > 0) slider.Larg_Adjust(sample.visible, 100);
        slider.Init(wnd);
    }

    std::vector<Labels> captions;
};

// --- Value bars -------------------------------------------------------------------------------------------

class BarSection : public Ranges<Valuators> {
  public:
    BarSection() : Ranges(L"Value bars", "bar", std::size(lying_bars), std::size(standing_bars)) {
        fill(lying, lying_bars, TEXT_LEFT);
        fill(standing, standing_bars, TEXT_TOP);
    }
    void layout(HWND wnd, const Area& area) {
        Area inner = panel.place(wnd, area);
        int count = int(standing.size());
        Area column = inner.cut_left(inner.width - count * (BUT_DIM + 3 * SPACE));
        for (std::size_t i = 0; i < standing.size(); i++) {
            inner.cut_left(2 * SPACE);
            place(standing[i], standing_bars[i], wnd, inner.cut_left(BUT_DIM + SPACE));
        }
        for (std::size_t i = 0; i < lying.size(); i++) {
            Area row = column.cell(0, 1, int(i), int(lying.size()));
            place(lying[i], lying_bars[i], wnd, row.cut_top(row.height < 36 ? row.height : 36));
        }
    }

  private:
    // The names stand at one end, where the thumb seldom hides them.
    template <std::size_t COUNT>
    static void fill(std::vector<Valuators>& bars, const BarSample (&samples)[COUNT], DWORD name_place) {
        for (std::size_t i = 0; i < COUNT; i++) {
            set_range(bars[i], samples[i]);
            bars[i].Flag |= name_place;
            if (!samples[i].format) bars[i].Border = BORDER; // given, it wipes a dragged thumb's edges
            bars[i].Format = samples[i].format;
            bars[i].Num_Width = samples[i].format ? 2 * NUM_DIM : 0;
            bars[i].Name_Set(L"%ls", samples[i].name);
        }
    }
    static void place(Valuators& bar, const BarSample& sample, HWND wnd, const Area& area) {
        area.give(bar);
        if (sample.picture == Picture::ramp) paint_ramp(bar);
        bar.Init(wnd);
    }
};

// --- The page ---------------------------------------------------------------------------------------------

class Values : public Page {
  public:
    void layout(HWND wnd, const Area& area) override {
        Area inner = area.inset(SPACE);
        sliders.layout(wnd, inner.cut_left(inner.width / 2 - SPACE));
        inner.cut_left(SPACE);
        bars.layout(wnd, inner);
    }
    void draw() override {
        sliders.draw();
        bars.draw();
    }
    void pointer(int word) override {
        sliders.pointer(word);
        bars.pointer(word);
    }
    void wheel(int notches) override {
        sliders.wheel(notches);
        bars.wheel(notches);
    }
    void each(const Visitor& visit) const override {
        sliders.each(visit);
        bars.each(visit);
    }

  private:
    SliderSection sliders;
    BarSection bars;
};

} // namespace

std::unique_ptr<Page> make_page_values() { return std::make_unique<Values>(); }
