#include "edit_fixture.h"
#include "support/memory.h"

// Memory that fails at each point in turn: what was there stays, and nothing crashes.

namespace {

struct Scarce : Editor {
    void SetUp() override {
        Editor::SetUp();
        if (!memory::can_fail()) GTEST_SKIP() << "this system's build cannot make memory run out";
    }
    // Lines from the newest on, holes left out.
    std::vector<std::wstring> standing(wchar_t* const* store, int room) const {
        std::vector<std::wstring> list;
        for (int i = 0; store && i < room; i++)
            if (store[i]) list.push_back(store[i]);
        return list;
    }
    // Is `part` the end of `all`?
    static bool ends_with(const std::vector<std::wstring>& all, const std::vector<std::wstring>& part) {
        return all.size() >= part.size() && std::equal(part.rbegin(), part.rend(), all.rbegin());
    }
};

struct Act {
    const char* name;
    void (*run)(Texts&);
};
const Act ACTS[] = {
    {"Write", [](Texts& t) { t.Write("new %d", 7); }},
    {"wide Write", [](Texts& t) { t.Write(L"new"); }},
    {"two lines", [](Texts& t) { t.Write("new\nnewer"); }},
    {"Init", [](Texts& t) { t.Init(nullptr); }},
    {"Draw", [](Texts& t) { t.Draw(); }},
    {"Read", [](Texts& t) { t.Read("text"); }},
    {"a key", [](Texts& t) { t.Input('x'); }},
    {"Up", [](Texts& t) { t.Input(0x826); }},
    {"Down", [](Texts& t) { t.Input(0x828); }},
    {"Enter", [](Texts& t) { t.Input(13); }},
    {"Escape", [](Texts& t) { t.Input(27); }},
    {"Update", [](Texts& t) { t.Update(); }},
    {"Scroll", [](Texts& t) { t.Scroll(-1); }},
    {"Select", [](Texts& t) { t.Select(2, 3, 3); }},
    {"Center", [](Texts& t) { t.Center(1); }},
    {"Read_Line", [](Texts& t) { t.Read_Line(); }},
};
constexpr int MOST_BLOCKS = 100; // no operation asks for as many

TEST_F(Scarce, NothingThatWasThereIsLost) {
    for (const Act& act : ACTS) {
        for (const bool for_good : {false, true}) {
            bool more = true;
            for (int nth = 1; more; nth++) {
                ASSERT_LT(nth, MOST_BLOCKS);
                SCOPED_TRACE(std::string(act.name) + ", block " + std::to_string(nth));
                console.Cleanup();
                console.Flag = TEXTS_CURSOR_V | TEXTS_CURSOR_H;
                init();
                enter(L"one");
                console.Write("two\nthree");
                console.Read("under edit");
                const auto log = lines(), past = history();
                {
                    memory::Failing failing(nth, for_good);
                    act.run(console);
                    more = failing.happened();
                }
                EXPECT_TRUE(ends_with(standing(console.Lines, 8192), log));
                EXPECT_TRUE(ends_with(standing(console.History, 50), past));
                console.Write("afterwards");
                EXPECT_EQ(lines().front(), L"afterwards");
            }
        }
    }
}

// The newest line is replaced only by what there is room for.
TEST_F(Scarce, OverWriteKeepsTheLineThatItCannotReplace) {
    init();
    console.Write("old");
    {
        memory::Failing failing(1);
        console.OverWrite("new");
        ASSERT_TRUE(failing.happened());
    }
    EXPECT_EQ(lines(), std::vector<std::wstring>{L"old"});
    console.OverWrite("new");
    EXPECT_EQ(lines(), std::vector<std::wstring>{L"new"});
}

TEST_F(Scarce, AConsoleThatGotNoStoreMakesItLater) {
    for (int nth = 1; nth < MOST_BLOCKS; nth++) {
        SCOPED_TRACE(nth);
        console.Cleanup();
        init(TEXTS_CURSOR_V);
        console.Read("entered");
        bool happened;
        {
            memory::Failing failing(nth, true);
            console.Write("written");
            console.OverWrite("over");
            console.Input(ENTER);
            console.Draw();
            console.Center(0);
            console.Read_Line();
            happened = failing.happened();
        }
        if (!happened) return;
        console.Write("later");
        EXPECT_EQ(lines().front(), L"later");
        console.Input(ENTER);
        EXPECT_EQ(history().front(), L"entered");
    }
    FAIL() << "it asks for memory without end";
}

// A line that the history has no room for is in the log all the same, and the host gets it.
TEST_F(Scarce, TheHostGetsALineThatCannotBeKept) {
    read(0, L"entered");
    {
        memory::Failing failing(1, true);
        console.Input(ENTER);
        EXPECT_TRUE(failing.happened());
    }
    EXPECT_EQ(console.flag_read, 3);
    EXPECT_STREQ(console.Update(), "entered");
}

} // namespace
