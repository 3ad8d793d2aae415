#include <climits>
#include <type_traits>

#include <brask/lists.h>
#include <brask/selects.h>

#include "unit/brask/expect.h"

// The array of buttons that lists and spinners grow alike.

namespace {

template <typename Control>
struct Growing : Recorded {
    Control control;
    static std::string name() { return std::is_same_v<Control, Lists> ? "Lists::" : "Selects::"; }
};
using Controls = testing::Types<Lists, Selects>;
TYPED_TEST_SUITE(Growing, Controls);

TYPED_TEST(Growing, MakesExactlySoManyItemsAndANullEntry) {
    auto& control = this->control;
    for (const int count : {3, 7, 1, 4, 0, 2}) {
        EXPECT_EQ(control.Grow(count, 0), 1);
        EXPECT_EQ(control.NbItem, count);
        ASSERT_NE(control.Item, nullptr);
        for (int i = 0; i < count; i++)
            EXPECT_NE(control.Item[i], nullptr);
        EXPECT_EQ(control.Item[count], nullptr);
    }
    for (const int negative : {-5, INT_MIN}) {
        control.Grow(4, 0);
        EXPECT_EQ(control.Grow(negative, 0), 1);
        EXPECT_EQ(control.NbItem, 0);
        EXPECT_EQ(control.Item[0], nullptr);
    }
}

TYPED_TEST(Growing, KeepsTheItemsThatStay) {
    auto& control = this->control;
    control.Grow(3, 0);
    Buttons* const kept[] = {control.Item[0], control.Item[1]};
    for (const int count : {5, 2}) {
        control.Grow(count, 0);
        EXPECT_EQ(control.Item[0], kept[0]);
        EXPECT_EQ(control.Item[1], kept[1]);
    }
}

TYPED_TEST(Growing, WritesNoTraceOfItsOwn) {
    auto& control = this->control;
    EXPECT_EQ(everything([&] { control.Grow(3, 0); }).find(this->name()), std::string::npos);
    const std::string shrunk = everything([&] { control.Grow(1, 0); });
    EXPECT_EQ(shrunk.find(this->name()), std::string::npos);
    const std::string ended = "<<< out Lib_Brask: Buttons::~Buttons()";
    const std::size_t first = shrunk.find(ended);
    ASSERT_NE(first, std::string::npos);
    EXPECT_NE(shrunk.rfind(ended), first) << "two of them are gone";
    EXPECT_EQ(everything([&] { control.Grow(1, 0); }), "");
}

TYPED_TEST(Growing, ANewItemHasTheGivenFlagsOrThoseThatPassOn) {
    struct Row {
        DWORD control;
        int given;
        DWORD item;
    };
    for (const Row& row :
         {Row{0, 0, CADRE_NO_LINE}, Row{0, 0x21, 0x21 | CADRE_NO_LINE},
          Row{0xFFFFFFFF, 0, 0xF127750 | CADRE_NO_LINE}, Row{0xFFFFFFFF, 0x2, 0x2 | CADRE_NO_LINE},
          Row{0xF127750 ^ 0xFFFFFFFFu, 0, CADRE_NO_LINE}}) {
        TypeParam fresh;
        fresh.Flag = row.control;
        fresh.Grow(1, row.given);
        EXPECT_EQ(fresh.Item[0]->Flag, row.item) << std::hex << row.control << ' ' << row.given;
    }
}

TYPED_TEST(Growing, ToThePresentCountOnlyCounts) {
    auto& control = this->control;
    control.Grow(3, 0);
    Buttons** const array = control.Item;
    control.NbItem = 77;
    EXPECT_EQ(control.Grow(3, 0x20), 1);
    EXPECT_EQ(control.NbItem, 3);
    EXPECT_EQ(control.Item, array);
    EXPECT_EQ(control.Item[0]->Flag, CADRE_NO_LINE);
}

} // namespace
