// Memory that runs out while text comes into the log: nothing is lost that was there, and what is there is
// whole.

#include "console_fixture.h"
#include "support/memory.h"

using Strings = std::vector<std::wstring>;

struct Memory : Console {
    void SetUp() override {
        Console::SetUp();
        if (!memory::can_fail()) GTEST_SKIP() << "memory cannot be made to fail here";
    }
    // Each string of the log that there is, holes passed over.
    Strings whole_log() const {
        Strings all;
        for (int i = 0; console.Lines && i < 8192; i++)
            if (console.Lines[i]) all.push_back(console.Lines[i]);
        return all;
    }
    // Runs the action with each of its allocations failing in turn, alone or with all later ones.
    template <typename Begin, typename Action, typename Check>
    void each_failure(Begin begin, Action action, Check check) {
        for (const bool from_then_on : {false, true})
            for (int nth = 1, more = 1; more; nth++) {
                console.Cleanup();
                begin();
                {
                    const memory::Failing failing(nth, from_then_on);
                    action();
                    more = failing.happened();
                }
                SCOPED_TRACE("allocation " + std::to_string(nth));
                check(more == 0);
                ASSERT_LT(nth, 100);
            }
    }
};

TEST_F(Memory, OfTheFirstLine) {
    init(TEXTS_CURSOR_V);
    each_failure([] {}, [&] { console.Write(L"new"); },
                 [&](bool all_went_well) {
                     const Strings log = whole_log();
                     EXPECT_TRUE(log.empty() || log == Strings{L"new"});
                     if (all_went_well) {
                         EXPECT_EQ(log, Strings{L"new"});
                     }
                     console.Write(L"later");
                     EXPECT_STREQ(console.Lines[0], L"later");
                 });
}

TEST_F(Memory, OfFurtherLines) {
    init(TEXTS_CURSOR_V);
    each_failure([&] { console.Write(L"old"); }, [&] { console.Write("a\nb\nc"); },
                 [&](bool all_went_well) {
                     const Strings log = whole_log();
                     ASSERT_FALSE(log.empty());
                     EXPECT_EQ(log.back(), L"old");
                     if (all_went_well) {
                         EXPECT_EQ(log, (Strings{L"c", L"b", L"a", L"old"}));
                     }
                     console.Draw();
                 });
}

TEST_F(Memory, OfALineThatIsWrittenOver) {
    init();
    each_failure([&] { console.Write(L"first\nold"); }, [&] { console.OverWrite(L"new"); },
                 [&](bool all_went_well) {
                     EXPECT_EQ(whole_log(), (Strings{all_went_well ? L"new" : L"old", L"first"}));
                 });
}

TEST_F(Memory, OfAFullLog) {
    init(OUTIL_INVISIBLE);
    recorder::listen(recorder::kReport);
    for (int i = 0; i < 8192; i++)
        console.Write(L"%d", i);
    const memory::Failing failing(1, true);
    console.Write(L"new");
    EXPECT_STREQ(console.Lines[8191], L"0");
    EXPECT_STREQ(console.Lines[0], L"8191");
}
