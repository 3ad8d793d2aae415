#include <algorithm>
#include <random>

#include "checklist_fixture.h"

// Where a check list puts its entries.

namespace {

struct Grid {
    int rows, columns;
};

struct Laid_Out : Check_List {
    // Rows and columns as the cells show them.
    Grid grid() {
        int rows = 1;
        while (rows < control.NbCheckBox && label(rows).Pos_X == label(0).Pos_X)
            rows++;
        return {rows, (control.NbCheckBox - 1) / rows + 1};
    }
};

TEST_F(Laid_Out, RowsAndColumnsByTheFlags) {
    struct Row {
        DWORD flag;
        int count, width, height;
        Grid expected;
    };
    // A column takes 44, a row 12.
    const Row rows[] = {
        {0, 5, 150, 100, {5, 1}},
        {0, 7, 150, 100, {7, 1}},
        {0, 8, 150, 100, {7, 2}}, // 90 / 12 rows
        {0, 14, 150, 100, {7, 2}},
        {0, 15, 150, 100, {7, 3}},
        {0, 5, 150, 20, {1, 5}}, // no room for a whole row: one
        {0, 5, 150, 5, {1, 5}},
        {OUTIL_VERTICAL, 15, 150, 100, {15, 1}},
        {CHECK_HORIZONTAL, 3, 150, 100, {1, 3}}, // 140 / 44 columns
        {CHECK_HORIZONTAL, 4, 150, 100, {2, 2}},
        {CHECK_HORIZONTAL, 5, 186, 100, {2, 3}}, // room for four, evened to 2, 2 and 1
        {CHECK_HORIZONTAL, 5, 300, 100, {1, 5}},
        {CHECK_HORIZONTAL, 5, 20, 100, {5, 1}},
        {CHECK_HORIZONTAL | OUTIL_VERTICAL, 5, 186, 100, {2, 3}},
        {CHECK_HORIZONTAL, 1, 150, 100, {1, 1}},
    };
    for (const Row& row : rows) {
        control.Flag = row.flag;
        control.Dim_X = row.width, control.Dim_Y = row.height;
        laid(row.count);
        EXPECT_EQ(grid().rows, row.expected.rows) << row.count << ' ' << row.width << ' ' << row.flag;
        EXPECT_EQ(grid().columns, row.expected.columns) << row.count << ' ' << row.width;
        EXPECT_EQ(label(0).Dim_X, (row.width - 10) / row.expected.columns);
        EXPECT_EQ(control.Get_Y(), 12 + row.expected.rows * 12);
    }
}

TEST_F(Laid_Out, AColumnIsFilledBeforeTheNext) {
    control.Flag = CHECK_HORIZONTAL;
    control.Dim_X = 186;
    laid(5);
    for (const auto& row :
         {std::pair(0, std::pair(0, 0)), std::pair(1, std::pair(0, 1)), std::pair(2, std::pair(1, 0)),
          std::pair(3, std::pair(1, 1)), std::pair(4, std::pair(2, 0))}) {
        EXPECT_EQ(label(row.first).Pos_X, label(0).Pos_X + row.second.first * 58);
        EXPECT_EQ(label(row.first).Pos_Y, label(0).Pos_Y - row.second.second * 12);
    }
}

TEST_F(Laid_Out, TheBlockStandsInTheMiddleOrAtTheBottom) {
    laid(2); // 90 - 24 are left over
    EXPECT_EQ(label(0).Pos_X, 105);
    EXPECT_EQ(label(0).Pos_Y, 200 + 2 + 33 + 12 + 3);
    EXPECT_EQ(label(1).Pos_Y, 200 + 2 + 33 + 3);
    control.Flag = CHECK_NO_CENTER;
    for (const int height : {100, 300}) {
        control.Dim_Y = height;
        laid(2);
        EXPECT_EQ(label(0).Pos_Y, 200 + 2 + 12 + 3);
        EXPECT_EQ(label(1).Pos_Y, 200 + 2 + 3);
    }
    control.Flag = OUTIL_VERTICAL;
    control.Dim_Y = 25; // 15 - 24: the half of what is missing is cut toward zero
    laid(2);
    EXPECT_EQ(label(1).Pos_Y, 200 + 2 - 4 + 3);
}

TEST_F(Laid_Out, ANameTakesARowUnlessItStandsInTheMiddle) {
    control.Name_Set(L"name");
    laid(9); // 90 - 16 of room: 6 rows
    EXPECT_EQ(grid().rows, 6);
    EXPECT_EQ(label(0).Pos_Y, 200 + 2 + 1 + 60 + 3);
    EXPECT_EQ(control.Get_Y(), 12 + 16 + 72);
    EXPECT_EQ(label(0).Pos_X, 105);
    control.Flag = TEXT_MIDDLE;
    laid(9);
    EXPECT_EQ(grid().rows, 7);
    EXPECT_EQ(control.Get_Y(), 12 + 84);
}

TEST_F(Laid_Out, ANameAtTheLeftShiftsTheBlockButNarrowsNothing) {
    control.Name_Set(L"name");
    control.Flag = TEXT_LEFT | TEXT_MIDDLE;
    laid(9);
    EXPECT_EQ(label(0).Pos_X, 105 + 32 + 6);
    EXPECT_EQ(label(8).Pos_X, 105 + 32 + 6 + 70);
    EXPECT_EQ(label(0).Dim_X, 70);
    control.Name_Set(nullptr);
    laid(9);
    EXPECT_EQ(label(0).Pos_X, 105);
}

TEST_F(Laid_Out, TheBoxStandsAtTheLeftOfItsCell) {
    control.Row_Dim = -30;
    laid(2);
    for (int i = 0; i < 2; i++) {
        EXPECT_EQ(label(i).Dim_Y, 30);
        EXPECT_EQ(box(i).Pos_X, label(i).Pos_X + 1);
        EXPECT_EQ(box(i).Pos_Y, label(i).Pos_Y + 1);
        EXPECT_EQ(box(i).Dim_X, 26);
        EXPECT_EQ(box(i).Dim_Y, 26);
        EXPECT_EQ(label(i).Region.left, label(i).Pos_X);
        EXPECT_EQ(label(i).Region.right, label(i).Pos_X + label(i).Dim_X + 1);
    }
}

TEST_F(Laid_Out, TheWidestLabelDecidesTheColumns) {
    control.Flag = CHECK_HORIZONTAL;
    const auto columns_with = [&](std::vector<const char*> narrow, std::vector<const wchar_t*> wide) {
        narrow.push_back(nullptr);
        wide.push_back(nullptr);
        control.List = narrow.data();
        control.List_W = wide.size() > 1 ? wide.data() : nullptr;
        control.Init(recorder::window());
        return grid().columns;
    };
    control.Dim_X = 10 + 4 * 28; // four columns of a letter
    EXPECT_EQ(columns_with({"A", "B", "C", "D"}, {}), 4);
    EXPECT_EQ(columns_with({"A", "B", "Cc", "D"}, {}), 2) << "three, evened";
    EXPECT_EQ(columns_with({"A", "B", "Cccccccccccc", "D"}, {}), 1);
    EXPECT_EQ(columns_with({"A", "B", "Cccccccccccc", "D"}, {L"A", L"B", L"C", L"D"}), 1)
        << "a label that is not shown counts too";
    EXPECT_EQ(columns_with({"A", "B", "C", "D"}, {nullptr, L"Bbbbbbbbbbbb", nullptr, nullptr}), 1);
}

// The rule told a second time, against many sizes.
TEST_F(Laid_Out, AsTheRuleSays) {
    std::mt19937 random(20);
    const auto upto = [&](int least, int most) {
        return least + static_cast<int>(random() % static_cast<unsigned>(most - least + 1));
    };
    for (int round = 0; round < 400; round++) {
        const int n = upto(1, 30), letters = upto(2, 9);
        control.Dim_X = upto(1, 400), control.Dim_Y = upto(1, 300);
        control.Border = upto(-6, 6), control.Row_Dim = upto(-30, 30);
        control.Flag = 0;
        for (const DWORD flag : {OUTIL_VERTICAL, CHECK_HORIZONTAL, CHECK_NO_CENTER, TEXT_LEFT, TEXT_MIDDLE})
            if (upto(0, 2) == 0) control.Flag |= flag;
        const bool named = upto(0, 1) != 0;
        control.Name_Set(named ? L"title" : L"");
        give(n, letters);
        control.Init(recorder::window());
        ASSERT_EQ(control.NbCheckBox, n);

        const int b = control.Border ? std::abs(control.Border) : 3;
        const int h = control.Row_Dim ? std::abs(control.Row_Dim) : 12;
        const int column = letters * 8 + 8 + h;
        const int across = control.Dim_X - (2 * b + 4);
        int up = control.Dim_Y - (2 * b + 4), need = 2 * b + 6;
        if (named && !(control.Flag & TEXT_MIDDLE)) up -= 2 * b + 10, need += 2 * b + 10;
        int rows, columns;
        if (control.Flag & CHECK_HORIZONTAL) {
            const int fit = std::min(std::max(across / column, 1), n);
            rows = std::min(std::max((n - 1) / fit + 1, 1), n);
            columns = std::max((n - 1) / rows + 1, 1);
        } else if (control.Flag & OUTIL_VERTICAL) {
            rows = n, columns = 1;
        } else {
            rows = std::min(std::max(up / h, 1), n);
            columns = std::max((n - 1) / rows + 1, 1);
        }
        const int width = across / columns;
        const int rest = control.Flag & CHECK_NO_CENTER ? 0 : up - rows * h;
        const int left = 100 + 2 + b + (named && control.Flag & TEXT_LEFT ? 5 * 8 + 6 : 0);
        const int top = 200 + 2 + rest / 2 + (rows - 1) * h + b;
        EXPECT_EQ(control.Get_Y(), need + rows * h);
        for (int i = 0; i < n; i++) {
            EXPECT_EQ(label(i).Pos_X, left + i / rows * width);
            EXPECT_EQ(label(i).Pos_Y, top - i % rows * h);
            EXPECT_EQ(label(i).Dim_X, width);
            EXPECT_EQ(label(i).Dim_Y, h);
            EXPECT_EQ(box(i).Dim_X, h - 4);
        }
        recorder::clear();
        if (HasFailure()) return;
    }
}

TEST_F(Laid_Out, GetYIsTraced) {
    laid(2);
    EXPECT_EQ(everything([&] { EXPECT_EQ(control.Get_Y(), 36); }), everything([] {
                  trace_in("CheckLists::Get_Y", "no name");
                  trace_out("CheckLists::Get_Y", "");
              }));
}

} // namespace
