#include <climits>
#include <cmath>
#include <cstdint>
#include <vector>

#include <brask/checklists.h>
#include <brask/lists.h>
#include <brask/tabs.h>

#include "laws/chance.h"
#include "unit/brask/expect.h"

// Random operations on lists, check lists and tabs, held against small models of what they do. LAWS_SEED
// repeats a run, LAWS_ROUNDS lengthens it.

namespace {

bool hits(const Tools& control, POINT at) {
    return at.x >= control.Region.left && at.x < control.Region.right && at.y >= control.Region.top &&
           at.y < control.Region.bottom;
}
bool gone(const Tools& control) { return control.Dim_X < 1 || control.Dim_Y < 1; }
bool faceless(const Tools& control) {
    return (control.Flag & (OUTIL_EMPTY | OUTIL_INVISIBLE | GRAPH_OUTLINE)) != 0;
}
bool covers(const Tools& part, POINT at) {
    return at.x >= part.Pos_X && at.x <= part.Pos_X + part.Dim_X && at.y >= part.Pos_Y &&
           at.y <= part.Pos_Y + part.Dim_Y;
}
bool painted_something() {
    for (const recorder::Line& line : recorder::log())
        if (line.kind == recorder::kDraw && line.text.rfind("draw", 0) == 0) return true;
    return false;
}

struct Item_Laws : Recorded {
    int step = 0;
    template <typename Run>
    void for_seeds(int usual, Run run) {
        const unsigned seed = law_seed();
        for (int round = 0; round < law_rounds(usual) && !HasFailure(); ++round) {
            SCOPED_TRACE(testing::Message() << "LAWS_SEED=" << seed << " round " << round);
            Chance chance(seed + static_cast<unsigned>(round));
            run(chance);
            recorder::clear();
        }
    }
    static void place(Tools& control, Chance& chance) {
        static const DWORD kFlags[] = {OUTIL_INVISIBLE, OUTIL_DISABLE, OUTIL_EMPTY, GRAPH_OUTLINE,
                                       OUTIL_FLAT,      TEXT_LEFT,     BOX_INSET};
        switch (chance.below(8)) {
        case 0:
        case 1: control.Flag ^= kFlags[chance.below(std::size(kFlags))]; break;
        case 2: control.Flag = 0; break;
        case 3: control.Flag ^= OUTIL_VERTICAL; break;
        case 4:
            control.Dim_X = chance.of({200, 200, 90, 1, 0, -5});
            control.Dim_Y = chance.of({120, 120, 60, 1, 0, -5});
            break;
        case 5: control.Border = chance.of({0, 0, 1, 4, 9, -4}); break;
        case 6: chance.one_in(2) ? control.Name_Set(L"name") : control.Name_Set(nullptr); break;
        default: control.Pos_X = chance.between(-30, 30), control.Pos_Y = chance.between(-30, 30);
        }
    }
    static POINT any_pointer(Chance& chance) {
        const POINT at = {chance.between(-40, 240), chance.between(-40, 180)};
        recorder::pointer(at.x, at.y);
        return at;
    }
    static int any_index(Chance& chance) {
        return chance.of({0, 1, 2, 3, 5, 9, 63, 64, -1, 1000, INT_MAX, INT_MIN});
    }
    static int any_event(Chance& chance) { return chance.of({0, 1, 2, 3, 4, 16 + 1, 16 + 2, 32 + 4}); }
};

// --- Check lists ---

struct Checks_Model {
    long long value, old;
    std::vector<int> states;
    long long answer = 0;
    std::string tag = {};
};

bool exclusive(const CheckLists& c) { return (c.Flag & CHECK_EXCLUSIVE) != 0; }
long long turned(const CheckLists& c, int index) {
    if (exclusive(c)) return index;
    return static_cast<long long>(static_cast<std::uint64_t>(c.Cur_Value) ^ std::uint64_t{1} << (index % 64));
}
Checks_Model model_of(const CheckLists& c) {
    return {c.Cur_Value, c.Old_Value, std::vector<int>(c.Box_State, c.Box_State + c.NbCheckBox)};
}

Checks_Model checks_select(const CheckLists& c, int mode, POINT at) {
    Checks_Model m = model_of(c);
    if (gone(c)) return m.tag = "<0", m;
    const bool inside = hits(c, at);
    if ((mode & 15) == KEY_QUERY) return m.answer = inside, m.tag = inside ? "KEY_QUERY:1" : "KEY_QUERY:0", m;
    if (c.Flag & OUTIL_DISABLE) return m.tag = "OUTIL_DISABLE:0", m;
    for (int i = 0; i < c.NbCheckBox; i++) {
        const bool on = inside && hits(c.Label[i], at);
        if (on) m.states[i] = 1, m.answer = 1;
        if (!on && m.states[i] == 1) m.states[i] = 2;
    }
    m.tag = m.answer ? "1" : "0";
    return m;
}
Checks_Model checks_read(const CheckLists& c, POINT at) {
    Checks_Model m = model_of(c);
    m.answer = -1, m.tag = "-1";
    if (gone(c) || c.Flag & OUTIL_DISABLE || !hits(c, at)) return m;
    for (int i = 0; i < c.NbCheckBox; i++) {
        if (!hits(c.Label[i], at)) continue;
        m.answer = turned(c, i);
        char tag[24];
        std::snprintf(tag, sizeof tag, exclusive(c) ? "%d" : "%08X", static_cast<unsigned>(m.answer));
        m.tag = tag;
        break;
    }
    return m;
}
Checks_Model checks_adjust(const CheckLists& c) {
    Checks_Model m = model_of(c);
    if (gone(c)) return m.tag = "<0", m;
    if (m.value == m.old) return m.tag = "Cur_Value==old_value", m;
    if (c.Flag & OUTIL_DISABLE) return m.tag = "OUTIL_DISABLE", m;
    if (exclusive(c) && (m.value < 0 || m.value >= c.NbCheckBox)) return m.tag = "Cur_Value outside range", m;
    m.old = m.value;
    if (c.Flag & OUTIL_INVISIBLE) m.tag = "OUTIL_INVISIBLE";
    return m;
}

TEST_F(Item_Laws, CheckListsKeepTheProtocol) {
    static const char* const kLabels[] = {"ab", "cd", "longer", "e", "fg", nullptr};
    for_seeds(150, [&](Chance& chance) {
        CheckLists c;
        c.Dim_X = 200, c.Dim_Y = 120, c.List = kLabels, c.Font_Size = 9;
        for (int step = 0; step < 50 && !HasFailure(); ++step) {
            place(c, chance);
            if (chance.one_in(4)) c.Flag ^= chance.of({CHECK_EXCLUSIVE, CHECK_HORIZONTAL, CHECK_NO_CENTER});
            if (chance.one_in(3)) c.Cur_Value = any_index(chance);
            const POINT at = any_pointer(chance);
            const int act = chance.below(6), mode = any_event(chance);
            SCOPED_TRACE(testing::Message() << "step " << step << " act " << act << " mode " << mode
                                            << " flag " << std::hex << c.Flag);
            recorder::clear();
            Checks_Model m = model_of(c);
            std::string operation;
            switch (act) {
            case 0:
                c.Init(recorder::window());
                if (gone(c)) break;
                EXPECT_EQ(c.NbCheckBox, 5);
                EXPECT_EQ(c.Old_Value, c.Cur_Value);
                continue;
            case 1:
                operation = "Draw";
                m.tag = c.Flag & OUTIL_INVISIBLE ? "OUTIL_INVISIBLE"
                        : gone(c)                ? "<0"
                        : c.Flag & GRAPH_OUTLINE ? "GRAPH_OUTLINE"
                                                 : "";
                c.Draw();
                break;
            case 2:
                operation = "Adjust";
                m = checks_adjust(c);
                c.Adjust();
                if (!m.tag.empty()) {
                    EXPECT_FALSE(painted_something());
                }
                break;
            case 3:
                operation = "Select";
                m = checks_select(c, mode, at);
                EXPECT_EQ(c.Select(mode), m.answer);
                break;
            case 4:
                operation = "Read";
                m = checks_read(c, at);
                EXPECT_EQ(c.Read(), m.answer);
                EXPECT_FALSE(painted_something());
                break;
            default: c.Deselect();
            }
            if (!operation.empty()) {
                EXPECT_EQ(recorder::exit_tag("CheckLists::" + operation), m.tag);
            }
            EXPECT_EQ(c.Cur_Value, m.value) << "the value is the host's";
            EXPECT_EQ(c.Old_Value, m.old);
            EXPECT_EQ(model_of(c).states, m.states);
        }
    });
}

// Two clicks on one entry of a mask give back what was there; of one exclusive entry they choose it.
TEST_F(Item_Laws, TwoClicksOnAnEntryUndoEachOther) {
    static const char* const kLabels[] = {"ab", "cd", "ef", "gh", nullptr};
    for_seeds(60, [&](Chance& chance) {
        CheckLists c;
        c.Dim_X = 200, c.Dim_Y = 120, c.List = kLabels;
        c.Flag = chance.of({DWORD(0), CHECK_HORIZONTAL, OUTIL_VERTICAL});
        if (chance.one_in(3)) c.Flag |= CHECK_EXCLUSIVE;
        c.Cur_Value = chance.word();
        c.Init(recorder::window());
        c.Draw();
        const long long before = c.Cur_Value;
        const int index = chance.between(0, 3);
        recorder::pointer(c.Label[index].Pos_X + 2, c.Label[index].Pos_Y + 2);
        for (int click = 0; click < 2; click++) {
            ASSERT_EQ(c.Select(16 + 2), 1);
            c.Cur_Value = c.Read();
            c.Adjust();
            c.Deselect();
            EXPECT_EQ(c.Check[index].Cur_Value != 0, exclusive(c) || (c.Cur_Value >> index & 1));
        }
        EXPECT_EQ(c.Cur_Value, exclusive(c) ? index : before);
    });
}

// --- Lists ---

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

// --- Tabs ---

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
