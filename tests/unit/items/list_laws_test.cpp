#include <algorithm>
#include <cmath>
#include <cstdlib>

#include <brask/lists.h>

#include "item_laws.h"

// Random operations on lists, held against a small model of what they do.

namespace {

int list_read(const Lists& l, POINT at) {
    if (gone(l) || l.Flag & OUTIL_DISABLE || !hits(l, at)) return -1;
    for (int i = 0; i < l.NbItem; i++) {
        const Buttons& item = *l.Item[i];
        const int x = l.First_X + i * l.Step_X, y = l.First_Y + i * l.Step_Y;
        if (!(item.Flag & OUTIL_DISABLE) && at.x >= x && at.x <= x + item.Dim_X && at.y >= y &&
            at.y <= y + item.Dim_Y)
            return i;
    }
    return -1;
}

// Which items a repaint shows, by the rule for each of them.
bool in_view(const Lists& l, int index) {
    const int b = l.Border ? std::abs(l.Border) : BORDER;
    int left = l.Pos_X + 2 + b, right = l.Pos_X + l.Dim_X - 1 - b;
    int bottom = l.Pos_Y + 2 + b, top = l.Pos_Y + l.Dim_Y - 1 - b - (l.W_Name ? 10 : 0);
    if (l.Slider.Dim_X && l.Flag & OUTIL_VERTICAL) left += 2 + l.Slider.Dim_X + b;
    if (l.Slider.Dim_X && !(l.Flag & OUTIL_VERTICAL)) bottom += 2 + l.Slider.Dim_Y + b;
    const Buttons& item = *l.Item[index];
    const int x = l.First_X + index * l.Step_X, y = l.First_Y + index * l.Step_Y;
    return left <= x && bottom <= y && x + item.Dim_X <= right && y + item.Dim_Y <= top;
}

struct Laid_List {
    Lists list;
    bool upright;

    explicit Laid_List(Chance& chance) : upright(chance.one_in(2)) {
        list.Flag = (upright ? OUTIL_VERTICAL : 0) | chance.of({DWORD(0), OUTIL_FLAT, BOX_INSET});
        list.Dim_X = 200, list.Dim_Y = 120;
        list.Pos_X = chance.between(-20, 20), list.Pos_Y = chance.between(-20, 20);
        list.Item_Dim = chance.of({0, 12, 20, 40});
        list.Border = chance.of({0, 1, 4, -4});
        list.Font_Size = 9;
        if (chance.one_in(3)) list.Name_Set(L"name");
        list.Grow(chance.of({1, 2, 3, 8, 30}), 0);
        for (int i = 0; i < list.NbItem; i++) {
            list.Item[i]->Name_Set(L"n%d", i);
            if (chance.one_in(6)) list.Item[i]->Flag |= OUTIL_DISABLE;
        }
        list.Init(recorder::window());
        list.Draw();
    }
    void expect_shown() const {
        for (int i = 0; i < list.NbItem; i++)
            EXPECT_EQ(list.Item[i]->Shown != 0, in_view(list, i)) << "item " << i;
    }
    void expect_one_current() const {
        for (int i = 0; i < list.NbItem; i++)
            EXPECT_EQ(list.Item[i]->Cur_Value, i == list.Old_Value) << "item " << i;
    }
};

void adjust_as_told(Lists& l, int value) {
    const int before = l.Old_Value, count = l.NbItem;
    l.Cur_Value = value;
    recorder::clear();
    l.Adjust();
    if (value == before || l.Flag & OUTIL_DISABLE) {
        EXPECT_EQ(l.Cur_Value, value);
        EXPECT_EQ(l.Old_Value, before);
        EXPECT_FALSE(painted_something());
        return;
    }
    EXPECT_EQ(l.Cur_Value, std::min(value, count - 1));
    EXPECT_EQ(l.Old_Value, l.Cur_Value);
}

void scroll_as_told(Lists& l, int delta, POINT at) {
    const float before = l.Slider.Cur_Value;
    l.Scroll(delta);
    if (!hits(l, at) || l.Flag & OUTIL_DISABLE) {
        EXPECT_EQ(l.Slider.Cur_Value, before);
        return;
    }
    if (!l.Slider.Dim_X) return;
    const float low = std::fmin(l.Slider.Val_Min, l.Slider.Val_Max);
    const float high = std::fmax(l.Slider.Val_Min, l.Slider.Val_Max);
    EXPECT_GE(l.Slider.Cur_Value, low);
    EXPECT_LE(l.Slider.Cur_Value, high);
    EXPECT_EQ(l.Step_X ? l.First_X : l.First_Y, static_cast<int>(l.Slider.Cur_Value));
}

TEST_F(Item_Laws, ListsKeepTheProtocol) {
    for_seeds(100, [&](Chance& chance) {
        Laid_List laid(chance);
        Lists& l = laid.list;
        for (int step = 0; step < 25 && !HasFailure(); ++step) {
            if (chance.one_in(8)) l.Flag ^= OUTIL_DISABLE;
            const POINT at = any_pointer(chance);
            const int act = chance.below(6);
            SCOPED_TRACE(testing::Message() << "step " << step << " act " << act << " at " << at.x << ", "
                                            << at.y << " flag " << std::hex << l.Flag);
            const int current = l.Cur_Value;
            recorder::clear();
            switch (act) {
            case 0: l.Draw(); break;
            case 1: adjust_as_told(l, any_index(chance)); break;
            case 2: {
                const int mode = chance.of({0, 4, 16 + 4}), read = list_read(l, at);
                const int answer = l.Select(mode);
                if ((mode & 15) == KEY_QUERY) {
                    EXPECT_EQ(answer, hits(l, at) && !(l.Flag & OUTIL_DISABLE));
                } else if (answer) {
                    EXPECT_GE(read, 0) << "only on an item";
                }
                break;
            }
            case 3: EXPECT_EQ(l.Read(), list_read(l, at)); break;
            case 4: scroll_as_told(l, chance.between(-3, 3), at); break;
            default: l.Deselect();
            }
            if (act != 1) {
                EXPECT_EQ(l.Cur_Value, current) << "the value is the host's";
            }
            if (act == 0) laid.expect_one_current();
            laid.expect_shown();
        }
    });
}

// What a list shows is decided by where it is scrolled to, not by the way there.
TEST_F(Item_Laws, AScrolledListEqualsAFreshDraw) {
    for_seeds(40, [&](Chance& chance) {
        Picture picture(260, 180), fresh(260, 180);
        recorder::paint_on(&picture);
        recorder::pointer(-100, -100);
        Laid_List laid(chance);
        for (int step = 0; step < 8; ++step) {
            recorder::pointer(100, 60);
            if (chance.one_in(2))
                laid.list.Scroll(chance.between(-4, 4));
            else
                adjust_as_told(laid.list, chance.between(0, laid.list.NbItem - 1));
        }
        recorder::pointer(-100, -100);
        laid.list.Select(0);
        laid.list.Deselect();
        laid.list.Slider.select = 1; // so that the pointer's leaving repaints its face
        laid.list.Slider.Select(0);
        laid.list.Draw();
        recorder::paint_on(&fresh);
        laid.list.Draw();
        EXPECT_TRUE(picture == fresh);
        recorder::paint_on(nullptr);
    });
}

} // namespace
