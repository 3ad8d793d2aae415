// The page "Console": a command line, and an entry field for each filter.
#include <iterator>
#include <memory>

#include <brask/boxs.h>
#include <brask/labels.h>
#include <brask/texts.h>

#include "command_line.h"
#include "page.h"
#include "panel.h"

namespace {

struct FieldSample {
    const wchar_t* caption;
    const char* kind; // in the list of controls, with what the field gave
    const char* value_kind;
    DWORD filter;
    const wchar_t* text; // at the start
};
const FieldSample samples[] = {
    {L"Any text", "entry-text", "value-text", 0, L"any text"},
    {L"Password", "entry-password", "value-password", TEXTS_PASSWORD, L"secret"},
    {L"Integer", "entry-integer", "value-integer", TEXTS_INTEGER, L"-42"},
    {L"Float", "entry-float", "value-float", TEXTS_FLOAT, L"6.02e23"},
    {L"Hexadecimal", "entry-hex", "value-hex", TEXTS_HEX, L"C0FFEE"},
};
constexpr int field_count = int(std::size(samples));

// Entry fields: each shows below it what the host has of it after every key.
class FieldSection {
  public:
    FieldSection() {
        for (int i = 0; i < field_count; i++) {
            caption[i].Flag = TEXT_LEFT;
            caption[i].Name_Set(L"%ls", samples[i].caption);
            field[i].Flag = TEXTS_FIELD | TEXTS_REPORT_KEYS | samples[i].filter;
            value[i].Flag = OUTIL_DISABLE | OUTIL_FLAT | TEXT_LEFT | TEXT_MIDDLE;
            value[i].Color.set(235, 235, 225, 0);
            value[i].Name_Set(L"%ls", samples[i].text);
        }
    }
    void layout(HWND wnd, const Area& area) {
        Area inner = panel.place(wnd, area);
        for (int i = 0; i < field_count; i++) {
            Area row = inner.cell(0, 1, i, field_count);
            row.cut_top(24).give(caption[i]);
            row.cut_top(24).give(field[i]); // a line of the usual font, and its frame
            row.cut_top(SPACE / 2);
            row.cut_top(26).give(value[i]);
            caption[i].Init(wnd);
            value[i].Init(wnd);
            bool first = !field[i].Wnd;
            field[i].Init(wnd);
            if (first) field[i].Read(L"%ls", samples[i].text);
        }
    }
    void draw() {
        panel.draw();
        for (int i = 0; i < field_count; i++) {
            caption[i].Draw();
            field[i].Draw();
            value[i].Draw();
        }
    }
    void pointer(int word) {
        for (Texts& one : field)
            one.Select(word);
    }
    // The field under the pointer takes the key; false: there is none.
    bool key(int key, CommandLine& console) {
        for (int i = 0; i < field_count; i++) {
            if (field[i].select != 1) continue;
            field[i].Input(key);
            bool entered = field[i].flag_read & TEXTS_ENTERED;
            const void* text = field[i].Update(1);
            if (!text) return true;
            std::wstring now = static_cast<const wchar_t*>(text);
            if (entered) console.note(samples[i].caption + (L": " + now));
            if (entered) field[i].Read(nullptr);
            value[i].Name_Set(L"%ls", entered ? L"" : now.c_str());
            value[i].Adjust();
            return true;
        }
        return false;
    }
    void each(const Visitor& visit) const {
        panel.each(visit);
        for (int i = 0; i < field_count; i++) {
            visit("label", caption[i]);
            visit(samples[i].kind, field[i]);
            visit(samples[i].value_kind, value[i]);
        }
    }

  private:
    Panel panel{L"Entry fields"};
    Labels caption[field_count];
    Texts field[field_count];
    Boxs value[field_count];
};

class Console : public Page {
  public:
    void layout(HWND wnd, const Area& area) override {
        Area inner = area.inset(SPACE);
        line.layout(wnd, panel.place(wnd, inner.cut_left(inner.width * 70 / 100)));
        inner.cut_left(SPACE);
        fields.layout(wnd, inner);
    }
    void draw() override {
        panel.draw();
        line.draw();
        fields.draw();
    }
    void pointer(int word) override {
        line.pointer(word);
        fields.pointer(word);
    }
    void wheel(int notches) override { line.wheel(notches); }
    void key(int key) override {
        if (!fields.key(key, line)) line.key(key);
    }
    void settle() override { line.show_traces(); }
    void each(const Visitor& visit) const override {
        panel.each(visit);
        line.each(visit);
        fields.each(visit);
    }

  private:
    Panel panel{L"Command line"};
    CommandLine line;
    FieldSection fields;
};

} // namespace

std::unique_ptr<Page> make_page_console() { return std::make_unique<Console>(); }
