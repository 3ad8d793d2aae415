#ifndef TESTS_STRIP_FIXTURE_H
#define TESTS_STRIP_FIXTURE_H

#include <string>
#include <vector>

#include <brask/tabs.h>

#include "unit/brask/expect.h"

// A strip of 300 by 24 at (10, 100) with three tabs, drawn once, the pointer beside it.
struct Strip : Recorded {
    Tabs tabs;
    void SetUp() override {
        Recorded::SetUp();
        BORDER = 3, SPACE = 6;
        tabs.Pos_X = 10, tabs.Pos_Y = 100, tabs.Dim_X = 300, tabs.Dim_Y = 24;
        grow(3);
    }
    void TearDown() override {
        SPACE = 6;
        Recorded::TearDown();
    }
    void grow(int count) {
        ASSERT_EQ(tabs.Grow(count, 0), 1);
        for (int i = 0; i < count; ++i)
            tabs.Item[i]->Name_Set(L"tab %d", i);
        outside();
        tabs.Init(recorder::window());
        tabs.Draw();
        recorder::clear();
    }
    void outside() { recorder::pointer(-50, -50); }
    TabItems& item(int i) { return *tabs.Item[i]; }
    std::vector<int> shapes() {
        std::vector<int> all;
        for (int i = 0; i < tabs.NbItem; ++i)
            all.push_back(item(i).Shape);
        return all;
    }
    std::vector<int> values() {
        std::vector<int> all;
        for (int i = 0; i < tabs.NbItem; ++i)
            all.push_back(item(i).Cur_Value);
        return all;
    }
    std::string drawn(const std::vector<int>& order) {
        return everything([&] {
            for (const int i : order)
                item(i).Draw();
        });
    }
};
using List = std::vector<int>;

#endif
