// The page "Basics": boxes, labels and buttons in each of their looks.
#include <memory>
#include <string>
#include <vector>

#include <brask/boxs.h>
#include <brask/buttons.h>
#include <brask/fenn.h>
#include <brask/labels.h>

#include "basics_samples.h"
#include "page.h"
#include "panel.h"

namespace {

// --- Boxes ---------------------------------------------------------------------------------------------

class BoxSection {
  public:
    BoxSection() : looks(box_samples().count), places(place_samples().count) {
        fill(looks, box_samples());
        fill(places, place_samples());
    }
    void layout(HWND wnd, const Area& area) {
        Area inner = panel.place(wnd, area);
        Area upper = inner.cut_top(inner.height * 55 / 100);
        inner.cut_top(SPACE);
        grid(looks, wnd, upper);
        grid(places, wnd, inner);
    }
    void draw() {
        panel.draw();
        for (Boxs& box : looks)
            box.Draw();
        for (Boxs& box : places)
            box.Draw();
    }
    void pointer(int word) {
        follow(looks, word);
        follow(places, word);
    }
    void each(const Visitor& visit) const {
        panel.each(visit);
        for (const Boxs& box : looks)
            visit("box", box);
        for (const Boxs& box : places)
            visit("box", box);
    }

  private:
    static constexpr int columns = 3;

    static void fill(std::vector<Boxs>& boxes, const Samples<BoxSample>& samples) {
        for (int i = 0; i < samples.count; i++) {
            boxes[i].Flag = samples[i].flag;
            boxes[i].Border = samples[i].border;
            boxes[i].Color_Set(samples[i].color);
            boxes[i].Name_Set(L"%ls", samples[i].title);
        }
    }
    static void grid(std::vector<Boxs>& boxes, HWND wnd, const Area& area) {
        int count = int(boxes.size()), rows = (count + columns - 1) / columns;
        for (int i = 0; i < count; i++) {
            area.cell(i % columns, columns, i / columns, rows).give(boxes[i]);
            boxes[i].Init(wnd);
        }
    }
    static void follow(std::vector<Boxs>& boxes, int word) {
        for (Boxs& box : boxes)
            box.Select(word);
    }

    Panel panel{L"Boxes"};
    std::vector<Boxs> looks, places;
};

// --- Labels --------------------------------------------------------------------------------------------

class LabelSection {
  public:
    LabelSection()
        : aligned(align_samples().count), stacked(stack_samples().count), captions(line_samples().count),
          lines(line_samples().count), frames(aligned.size() + stacked.size()) {
        for (Boxs& frame : frames)
            frame.Flag = OUTIL_EMPTY;
        fill(aligned, align_samples());
        fill(stacked, stack_samples());
        fill(lines, line_samples());
        for (std::size_t i = 0; i < captions.size(); i++) {
            captions[i].Flag = TEXT_LEFT;
            captions[i].Font_Size = 10;
            captions[i].Color.set(80, 80, 80, 0);
            captions[i].Name_Set(L"%ls", line_samples()[int(i)].caption);
        }
    }
    void layout(HWND wnd, const Area& area) {
        Area inner = panel.place(wnd, area);
        Area upper = inner.cut_top(inner.height / 4);
        inner.cut_top(SPACE);
        Area left = upper.cut_left(upper.width * 3 / 4);
        upper.cut_left(SPACE);
        for (int i = 0; i < int(aligned.size()); i++)
            place(aligned[i], frames[i], wnd, left.cell(i % 3, 3, i / 3, 3));
        for (int i = 0, n = int(stacked.size()); i < n; i++)
            place(stacked[i], frames[aligned.size() + i], wnd, upper.cell(i, n, 0, 1));
        for (int i = 0, n = int(lines.size()); i < n; i++) {
            Area row = inner.cell(0, 1, i, n);
            row.cut_left(row.width / 4).give(captions[i]);
            row.give(lines[i]);
            captions[i].Init(wnd);
            lines[i].Init(wnd);
        }
    }
    void draw() {
        panel.draw();
        for (Boxs& frame : frames)
            frame.Draw();
        for (std::vector<Labels>* labels : {&aligned, &stacked, &captions, &lines})
            for (Labels& label : *labels)
                label.Draw();
    }
    void each(const Visitor& visit) const {
        panel.each(visit);
        for (const std::vector<Labels>* labels : {&aligned, &stacked, &captions, &lines})
            for (const Labels& label : *labels)
                visit("label", label);
    }

  private:
    static void fill(std::vector<Labels>& labels, const Samples<LabelSample>& samples) {
        for (int i = 0; i < samples.count; i++) {
            const LabelSample& sample = samples[i];
            labels[i].Flag = sample.flag;
            labels[i].Color_Set(sample.color);
            labels[i].Font_Name = sample.font;
            labels[i].Font_Weight = sample.weight;
            labels[i].Font_Slant = sample.slant;
            labels[i].Font_Size = sample.size;
            labels[i].Name_Set(L"%ls", sample.text);
        }
    }
    // The frame shows how large the label is.
    static void place(Labels& label, Boxs& frame, HWND wnd, const Area& area) {
        area.give(frame);
        area.give(label);
        frame.Init(wnd);
        label.Init(wnd);
    }

    Panel panel{L"Labels"};
    std::vector<Labels> aligned, stacked, captions, lines;
    std::vector<Boxs> frames;
};

// --- Buttons -------------------------------------------------------------------------------------------

struct Scene {
    DWORD sky, sun, hill; // surface words
};
const Scene day = {0x90C0F0, 0xFFF0A0, 0x50A050}, evening = {0xE08060, 0xFF4030, 0x305030};

// A sun over a hill, as a host would paint a surface of its own: rows from the top, blue in the low byte.
void paint_scene(DWORD* pixels, int width, int height, const Scene& scene) {
    for (int y = 0; y < height; y++)
        for (int x = 0; x < width; x++) {
            float across = 2 * (x + 0.5f) / width - 1, down = (y + 0.5f) / height;
            float sun_x = (across - 0.5f) * width / 2 / height, sun_y = down - 0.35f;
            DWORD word = sun_x * sun_x + sun_y * sun_y < 0.04f ? scene.sun : scene.sky;
            pixels[std::size_t(y) * width + x] = down > 0.55f + across * across / 3 ? scene.hill : word;
        }
}

class ButtonSection {
  public:
    ButtonSection() : buttons(button_samples().count) {
        for (int i = 0; i < int(buttons.size()); i++) {
            const ButtonSample& sample = button_samples()[i];
            buttons[i].Flag = sample.flag;
            buttons[i].Lamp_Color = sample.lamp;
            buttons[i].Border = sample.border;
            buttons[i].Color_Set(sample.color);
            buttons[i].Cur_Value = sample.value;
            buttons[i].Name_Set(L"%ls", sample.name);
        }
    }
    void layout(HWND wnd, const Area& area) {
        Area inner = panel.place(wnd, area);
        int count = int(buttons.size()), rows = (count + columns - 1) / columns;
        for (int i = 0; i < count; i++) {
            inner.cell(i % columns, columns, i / columns, rows).give(buttons[i]);
            give_pictures(buttons[i], button_samples()[i].picture);
            if (button_samples()[i].icon) give_icon(buttons[i], button_samples()[i].icon);
            buttons[i].Init(wnd);
        }
    }
    void draw() {
        panel.draw();
        for (Buttons& button : buttons)
            button.Draw();
    }
    void pointer(int word) {
        int event = word & 15;
        for (int i = 0; i < int(buttons.size()); i++)
            if (buttons[i].Select(word) && event == 2) press(i);
        if (event == 0 && held >= 0) {
            buttons[held].Cur_Value = 0;
            buttons[held].Adjust();
            held = -1;
        }
    }
    void each(const Visitor& visit) const {
        panel.each(visit);
        for (const Buttons& button : buttons)
            visit("button", button);
    }

  private:
    static constexpr int columns = 2;

    // What a click means is the host's business.
    void press(int i) {
        Buttons& button = buttons[i];
        const ButtonSample& sample = button_samples()[i];
        switch (sample.click) {
        case Click::momentary:
            button.Cur_Value = 1;
            held = i; // goes up again at the release
            break;
        case Click::toggle: button.Cur_Value = !button.Cur_Value; break;
        case Click::lamp: button.Lamp_Color = (button.Lamp_Color + 1) % 5; break;
        }
        if (button.Flag & (OUTIL_EMPTY | GRAPH_OUTLINE)) button.Clear(); // no face covers the old label
        button.Adjust();
    }
    static void give_pictures(Buttons& button, int pictures) {
        if (pictures > 0 && button.Alloc_Graph_Normal(0) && button.Graph_Normal)
            paint_scene(button.Graph_Normal, button.Dim_X, button.Dim_Y, day);
        if (pictures > 1 && button.Alloc_Graph_Select(0) && button.Graph_Select)
            paint_scene(button.Graph_Select, button.Dim_X, button.Dim_Y, evening);
    }

    // The faces with a file's picture on them; without the file the button has the usual ones.
    static void give_icon(Buttons& button, const wchar_t* file) {
        const std::wstring folder = std::wstring(W_Inst_Path ? W_Inst_Path : L"") + L"Icons\\";
        button.Graph_Normal = static_cast<DWORD*>(button.Free(button.Graph_Normal));
        button.Graph_Select = static_cast<DWORD*>(button.Free(button.Graph_Select));
        button.Graph_Normal = button.Icon(folder.c_str(), file, Colors(170, 170, 170));
        button.Graph_Select = button.Icon(folder.c_str(), file, Colors(230, 100, 100));
    }

    Panel panel{L"Buttons"};
    std::vector<Buttons> buttons;
    int held = -1; // the momentary button that is down
};

// --- The page ------------------------------------------------------------------------------------------

class Basics : public Page {
  public:
    void layout(HWND wnd, const Area& area) override {
        Area inner = area.inset(SPACE), whole = inner;
        boxes.layout(wnd, inner.cut_left(whole.width * 33 / 100));
        inner.cut_left(SPACE);
        labels.layout(wnd, inner.cut_left(whole.width * 38 / 100));
        inner.cut_left(SPACE);
        buttons.layout(wnd, inner);
    }
    void draw() override {
        boxes.draw();
        labels.draw();
        buttons.draw();
    }
    void pointer(int word) override {
        boxes.pointer(word);
        buttons.pointer(word);
    }
    void each(const Visitor& visit) const override {
        boxes.each(visit);
        labels.each(visit);
        buttons.each(visit);
    }

  private:
    BoxSection boxes;
    LabelSection labels;
    ButtonSection buttons;
};

} // namespace

std::unique_ptr<Page> make_page_basics() { return std::make_unique<Basics>(); }
