#include "support/memory.h"
#include "tree_fixture.h"

// Memory that fails at any point of a tree's work: a report, and a tree as far as it was built.

namespace {

struct Poor_Tree : Tree {
    void SetUp() override {
        Tree::SetUp();
        if (!memory::can_fail()) GTEST_SKIP() << "memory cannot fail on order here";
    }
    // The work once for each of its calls for memory, which fails; then whatever is left can be used.
    template <typename Work>
    void fail_everywhere(Work work) {
        for (int nth = 1; nth < 1000; nth++) {
            shown(L"C:\\alpha\\deep");
            recorder::add_folder(L"C:\\aaa\\");
            bool happened;
            {
                const memory::Failing failing(nth);
                work();
                happened = failing.happened();
            }
            recorder::remove_folder(L"C:\\aaa\\");
            tree.Draw();
            refresh();
            if (!happened) return;
        }
        ADD_FAILURE() << "the work has no end";
    }
};

TEST_F(Poor_Tree, SetSurvives) {
    std::string reports;
    fail_everywhere([&] {
        tree.Set(L"C:\\gamma\\one");
        for (const std::string& line : recorder::reports(1))
            reports += line;
    });
    for (const char* report : {"calloc (var=Tree, dim=1x", "_wcsdup (var=Tree->name)",
                               "calloc (var=Tree->child, dim=27x", "_wcsdup (var=Tree->child[j].path)",
                               "_wcsdup (var=Tree->child[j].name)", "calloc (var=tree->child, dim=6x",
                               "_wcsdup (var=tree->child[j].path)", "_wcsdup (var=tree->child[j].name)"})
        EXPECT_NE(reports.find(report), std::string::npos) << report;
}

TEST_F(Poor_Tree, RefreshSurvives) {
    std::string reports;
    fail_everywhere([&] {
        refresh();
        for (const std::string& line : recorder::reports(1))
            reports += line;
    });
    for (const char* report : {"calloc (var=tree->child, dim=6x", "_wcsdup (var=tree->child[j].path)",
                               "_wcsdup (var=tree->child[j].name)", "calloc (var=List, dim="})
        EXPECT_NE(reports.find(report), std::string::npos) << report;
}

TEST_F(Poor_Tree, ClicksSurvive) {
    fail_everywhere([&] {
        for (const wchar_t* name : {L"gamma", L"Data (C:)", L"Data (C:)"})
            if (row_of(name) >= 0) toggle(name);
    });
}

TEST_F(Poor_Tree, WithoutRowsThereIsNothingToClick) {
    shown(L"C:\\alpha");
    {
        const memory::Failing failing(1, true);
        tree.Draw();
    }
    EXPECT_EQ(tree.NbList, 0);
    EXPECT_EQ(click(1, 0), 1);
    EXPECT_EQ(chosen(), "C:\\alpha\\");
}

} // namespace
