#include <vector>

#include <brask/buttons.h>
#include <brask/tabs.h>

#include "item_laws.h"

// Random operations on tabs and their strip, held against small models of what they do.

namespace {

std::vector<int> shapes_told(int count, int on_top) {
    std::vector<int> shapes(static_cast<std::size_t>(count), 0x01);
    shapes[0] = 0x11;
    if (on_top < 0 || on_top >= count) return shapes;
    shapes[static_cast<std::size_t>(on_top)] = 0x11;
    if (on_top > 0) shapes[static_cast<std::size_t>(on_top) - 1] &= ~0x01;
    if (on_top + 1 < count) shapes[static_cast<std::size_t>(on_top) + 1] &= ~0x10;
    return shapes;
}
int strip_read(const Tabs& t, POINT at) {
    if (gone(t) || t.Flag & OUTIL_DISABLE || !hits(t, at)) return -1;
    for (int i = 0; i < t.NbItem; i++)
        if (!(t.Item[i]->Flag & OUTIL_DISABLE) && covers(*t.Item[i], at)) return i;
    return -1;
}
int strip_select(const Tabs& t, POINT at) {
    if (gone(t) || t.Flag & OUTIL_DISABLE || !hits(t, at)) return 0;
    for (int i = 0; i < t.NbItem; i++)
        if (!(t.Item[i]->Flag & OUTIL_DISABLE) && t.Item[i]->Dim_X > 0 && hits(*t.Item[i], at)) return 1;
    return 0;
}

TEST_F(Item_Laws, TabsKeepTheProtocol) {
    for_seeds(120, [&](Chance& chance) {
        Tabs t;
        t.Dim_X = 200, t.Dim_Y = 24;
        const int count = chance.between(1, 6);
        t.Grow(count, 0);
        for (int i = 0; i < count; i++)
            if (chance.one_in(5)) t.Item[i]->Flag |= OUTIL_DISABLE;
        t.Init(recorder::window());
        for (int step = 0; step < 40 && !HasFailure(); ++step) {
            if (chance.one_in(4)) t.Flag ^= chance.of({OUTIL_DISABLE, OUTIL_INVISIBLE, GRAPH_OUTLINE});
            if (chance.one_in(3)) t.Cur_Value = any_index(chance);
            const POINT at = any_pointer(chance);
            const int act = chance.below(7);
            SCOPED_TRACE(testing::Message() << "step " << step << " act " << act << " value " << t.Cur_Value
                                            << " flag " << std::hex << t.Flag);
            const int value = t.Cur_Value, old = t.Old_Value;
            bool shaped = false;
            recorder::clear();
            switch (act) {
            case 0:
                t.Draw();
                shaped = !(t.Flag & OUTIL_INVISIBLE);
                EXPECT_EQ(t.Old_Value, shaped ? value : old);
                break;
            case 1:
                t.Adjust();
                EXPECT_EQ(t.Old_Value, t.Flag & OUTIL_DISABLE ? old : value);
                shaped = value != old && !(t.Flag & (OUTIL_DISABLE | OUTIL_INVISIBLE));
                break;
            case 2: {
                const int expected = strip_select(t, at);
                EXPECT_EQ(t.Select(any_event(chance)), expected);
                break;
            }
            case 3: EXPECT_EQ(t.Read(), strip_read(t, at)); break;
            case 4:
                t.Deselect();
                if (faceless(t)) {
                    EXPECT_FALSE(painted_something());
                }
                break;
            case 5: t.Page(chance.of({0, 10, 200, INT_MAX, INT_MIN})); break;
            default:
                t.Init(nullptr);
                EXPECT_EQ(t.Old_Value, value);
                EXPECT_EQ(t.NbItem, count);
            }
            EXPECT_EQ(t.Cur_Value, value) << "the value is the host's";
            if (!shaped) continue;
            EXPECT_EQ(painted_something(), !(t.Flag & GRAPH_OUTLINE));
            for (int i = 0; i < count; i++) {
                EXPECT_EQ(t.Item[i]->Shape, shapes_told(count, value)[static_cast<std::size_t>(i)]);
                if (act == 0) {
                    EXPECT_EQ(t.Item[i]->Cur_Value, i == value);
                }
            }
        }
    });
}

TEST_F(Item_Laws, TabItemsKeepTheProtocol) {
    for_seeds(120, [&](Chance& chance) {
        TabItems t;
        t.Dim_X = 200, t.Dim_Y = 120;
        t.Init(recorder::window());
        for (int step = 0; step < 40 && !HasFailure(); ++step) {
            place(t, chance);
            if (chance.one_in(3)) t.Cur_Value = any_index(chance);
            if (chance.one_in(6)) t.Flag ^= BUTTON_LAMP;
            t.Shape = static_cast<unsigned char>(chance.below(256)), t.Slant = chance.between(-5, 30);
            const POINT at = any_pointer(chance);
            const int act = chance.below(6), mode = any_event(chance);
            SCOPED_TRACE(testing::Message()
                         << "step " << step << " act " << act << " flag " << std::hex << t.Flag);
            const int value = t.Cur_Value, select = t.select;
            const bool there = !gone(t), seen = there && !(t.Flag & OUTIL_INVISIBLE);
            const unsigned old = t.Old_Value;
            recorder::clear();
            if (act == 0) {
                t.Init(nullptr);
                EXPECT_EQ(t.Old_Value, there ? static_cast<unsigned>(value) : old);
                EXPECT_EQ(t.select, there ? 0 : select);
            } else if (act == 1) {
                t.Draw();
                EXPECT_EQ(t.Old_Value, seen ? static_cast<unsigned>(value) : old);
                EXPECT_EQ(painted_something(), seen);
                EXPECT_EQ(recorder::exit_tag("TabItems::Draw"),
                          seen && t.Flag & GRAPH_OUTLINE ? "GRAPH_OUTLINE" : "(none)");
            } else if (act == 2) {
                t.Adjust();
                const bool changed = seen && (t.Flag & BUTTON_LAMP || static_cast<unsigned>(value) != old);
                EXPECT_EQ(t.Old_Value, changed ? static_cast<unsigned>(value) : old);
                EXPECT_EQ(painted_something(), changed);
            } else if (act == 3) {
                const bool in = there && !(t.Flag & OUTIL_DISABLE) && hits(t, at);
                EXPECT_EQ(t.Select(mode), in);
                const bool follows = there && !faceless(t) && !(t.Flag & OUTIL_DISABLE);
                EXPECT_EQ(t.select, !follows ? select : in ? 1 : 2);
            } else if (act == 4) {
                t.Deselect();
                EXPECT_EQ(painted_something(), there && !faceless(t));
                EXPECT_EQ(t.select, select);
            } else {
                EXPECT_EQ(t.Read(), value) << "whatever the size";
            }
            EXPECT_EQ(t.Cur_Value, value);
        }
    });
}

} // namespace
