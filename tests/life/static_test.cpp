// The controls that are there before main, in a program that the library is linked into.

#include <brask/tools.h>

#include <gtest/gtest.h>

#include "support/recorder.h"

// The library may be made before this file's own objects or after them, but always before the tests.
TEST(LifeStatic, ThePopUpsControlsAreMadeInTheirOrderBeforeMain) {
    std::vector<std::string> made;
    for (const std::string& line : recorder::reports(0x90000029)) {
        for (const char* name : {"Boxs", "Buttons", "Texts"})
            if (line == ">>> in  Lib_Brask: " + std::string(name) + "::" + name + "()") made.push_back(name);
    }
    std::vector<std::string> expected(13, "Buttons");
    expected.front() = "Boxs";
    expected.back() = "Texts";
    EXPECT_EQ(made, expected);
    EXPECT_EQ(recorder::warnings(), "");
}

TEST(LifeStatic, TheHeightOfListItemsIsFixedByThen) {
    EXPECT_EQ(BUT_LIST, 25);
    BUT_DIM = 40;
    EXPECT_EQ(BUT_LIST, 25);
    BUT_DIM = 25;
}
