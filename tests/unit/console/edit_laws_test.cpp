#include "edit_fixture.h"
#include "laws/chance.h"

// Random keys: the editor is a string with a caret, the history a vector.

namespace {

struct Model {
    std::wstring line;
    std::size_t caret = 0;
    std::vector<std::wstring> history, log; // the newest first
    std::size_t walked = 0;
    bool reading = false, waits = false, changed = false;

    // --- The keys ---
    void end() { caret = line.size(); }
    void home() { caret = 0; }
    void left() { caret -= caret > 0; }
    void right() { caret += caret < line.size(); }
    void backspace() {
        changed = true;
        if (caret) line.erase(--caret, 1);
    }
    void del() {
        changed = true;
        line.erase(caret, 1);
    }
    void type(wchar_t c) {
        if (line.size() >= 1022) return;
        line.insert(caret++, 1, c);
        changed = true;
    }
    void up() {
        changed = true;
        if (walked >= history.size()) return;
        line = history[walked++]; // all that is typed here can be shown
        end();
    }
    void down() {
        changed = true;
        line.clear();
        if (walked) line = history[--walked];
        for (wchar_t& c : line)
            if ((c & 255) < 0x20 || (c & 255) > 0x7E) c = L' ';
        end();
    }
    void enter() {
        log.insert(log.begin(), line);
        history.insert(history.begin(), line);
        if (history.size() > 50) history.pop_back();
        waits = true;
    }
};

struct Editing : Editor {
    Model model;

    void expect_alike(const std::string& after) {
        ASSERT_EQ(console.Edit_Line, model.line) << after;
        ASSERT_EQ(console.Edit_Pos, static_cast<int>(model.caret)) << after;
        ASSERT_EQ(console.Hist_Pos, static_cast<int>(model.walked)) << after;
        const int state = model.reading * 1 + model.waits * 2 + model.changed * 4;
        ASSERT_EQ(console.flag_read, state) << after;
        ASSERT_EQ(history(), model.history) << after;
        ASSERT_EQ(lines(), model.log) << after;
    }
    void begin(const std::wstring& text) {
        console.Read(L"%ls", text.c_str());
        if (!model.reading) model.caret = text.size(); // every edit is reported here
        model.line = text;
        model.walked = 0;
        model.reading = true, model.waits = model.changed = false;
    }
    void pointed() {
        console.Select(0, 0, 0);
        model.caret = std::min(model.caret, model.line.size());
    }
    void collect() {
        const bool there = model.waits || model.changed;
        EXPECT_EQ(console.Update(1) != nullptr, there);
        if (model.waits) model.reading = false;
        if (there) model.waits = model.changed = false;
    }
    // One key in both.
    void press(Chance& chance) {
        const int movement[] = {0x823, 0x1061, 0x824, 0x1067, 0x825, 0x1064, 0x827, 0x1066};
        const unsigned which = chance.below(16);
        int code = 0;
        void (Model::*effect)() = nullptr;
        if (which < 4) {
            const unsigned way = chance.below(8);
            code = movement[way];
            void (Model::*const ways[])() = {&Model::end, &Model::home, &Model::left, &Model::right};
            effect = ways[way / 2];
        } else if (which == 4) {
            code = 8, effect = &Model::backspace;
        } else if (which == 5) {
            code = chance.of({0x82E, 0x102E}), effect = &Model::del;
        } else if (which == 6) {
            code = chance.of({0x826, 0x1068}), effect = &Model::up;
        } else if (which == 7) {
            code = chance.of({0x828, 0x1062}), effect = &Model::down;
        } else if (which == 8 && chance.one_in(3)) {
            code = chance.of({13, 0x100D}), effect = &Model::enter;
        } else {
            code =
                chance.of({int{'a'}, int{'Z'}, int{' '}, int{'~'}, 0xE9, 0x20AC, 0x4E2D, 0xF1, 0x101 + 0x40});
        }
        console.Input(code);
        if (!model.reading) return;
        if (effect)
            (model.*effect)();
        else
            model.type(static_cast<wchar_t>(code));
    }
};

TEST_F(Editing, IsAStringWithACaretAndAVectorOfLines) {
    for (int round = 0, rounds = law_rounds(6); round < rounds; round++) {
        const unsigned seed = law_seed() + static_cast<unsigned>(round);
        SCOPED_TRACE("seed " + std::to_string(seed));
        Chance chance(seed);
        console.Cleanup();
        model = Model();
        console.Edit_Pos = console.Hist_Pos = 0;
        std::fill_n(console.Edit_Line, 1024, L'\0');
        console.Flag = TEXTS_REPORT_KEYS;
        init();
        recorder::listen(0);
        for (int step = 0; step < 1500; step++) {
            const unsigned which = chance.below(30);
            if (which == 0) {
                begin(std::wstring(chance.below(20), L'r'));
                pointed(); // a caret that was left behind comes back
            } else if (which == 1)
                pointed();
            else if (which < 4)
                collect();
            else
                press(chance);
            expect_alike("step " + std::to_string(step));
            if (HasFatalFailure()) return;
        }
        recorder::listen(recorder::kEverything);
    }
}

// Whatever comes, the line has an end, the caret is in it, and no bracket is left open.
TEST_F(Editing, SurvivesEveryKey) {
    Chance chance(law_seed());
    read(TEXTS_CURSOR_V | TEXTS_CURSOR_H | TEXTS_REPORT_KEYS);
    recorder::listen(0);
    for (int step = 0; step < law_rounds(3000); step++) {
        const int code =
            chance.one_in(2) ? static_cast<int>(chance.word() & 0x3FFF) : static_cast<int>(chance.word());
        console.Input(code);
        if (!(console.flag_read & TEXTS_READING)) console.Read(nullptr);
        ASSERT_EQ(console.Edit_Line[1023], 0) << code;
        ASSERT_GE(console.Edit_Pos, 0) << code;
        ASSERT_LE(console.Edit_Pos, static_cast<int>(std::wcslen(console.Edit_Line))) << code;
        ASSERT_FALSE(recorder::open());
    }
    recorder::listen(recorder::kEverything);
}

} // namespace
