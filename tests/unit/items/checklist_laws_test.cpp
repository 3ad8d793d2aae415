#include <cstdint>
#include <cstdio>
#include <vector>

#include <brask/checklists.h>

#include "item_laws.h"

// Random operations on check lists, held against a small model of what they do.

namespace {

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

} // namespace
