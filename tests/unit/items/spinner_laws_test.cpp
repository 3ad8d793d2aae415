#include <climits>

#include "item_laws.h"
#include "spinner_fixture.h"

// Random operations on random fields, held against a small model of the protocol. LAWS_SEED repeats a run,
// LAWS_ROUNDS lengthens it.

namespace {

enum class Act { Init, Draw, Select, Read, Adjust, Deselect, Scroll, Grow, kCount };

// What an operation leaves behind.
struct Model {
    int value, old, select, test;
    int answer = 0;
    bool must_paint = false, may_paint = false;
    std::string tag = {};
};

// By the flags that the frame has since Init, a repaint covers the control.
bool fills(const Selects& s) { return !faceless(s) && !(s.Box.Flag & OUTIL_EMPTY); }
bool in_range(const Selects& s, int value) { return value >= 0 && value < s.NbItem; }
bool skipped(const Selects& s, int value) { return (s.Item[value]->Flag & OUTIL_INVISIBLE) != 0; }

int stepped(const Selects& s, int value, long long by) {
    int left = s.NbItem;
    while (left-- > 0) {
        const long long next = value + by;
        value = next >= s.NbItem ? 0 : next < 0 ? s.NbItem - 1 : static_cast<int>(next);
        if (!skipped(s, value)) break;
    }
    return value;
}
int off_a_skipped_one(const Selects& s, int value) {
    return in_range(s, value) && skipped(s, value) ? stepped(s, value, 1) : value;
}

int arrow_step(const Selects& s, POINT at) {
    const bool upright = (s.Flag & OUTIL_VERTICAL) != 0;
    const int distance = upright ? at.y - s.Zone.Pos_Y : at.x - s.Zone.Pos_X;
    const int length = upright ? s.Zone.Dim_Y : s.Zone.Dim_X;
    if (distance < s.Arrow_Dim) return upright ? 1 : -1;
    if (distance > length - s.Arrow_Dim) return upright ? -1 : 1;
    return 0;
}

Model after_select(const Selects& s, Model m, int mode, POINT pointer) {
    const int event = mode & 15;
    const bool in = hits(s, pointer);
    m.answer = in;
    if (event == KEY_QUERY) return m.tag = in ? "KEY_QUERY:1" : "KEY_QUERY:0", m;
    if (s.Flag & (OUTIL_DISABLE | GRAPH_OUTLINE)) return m.answer = 0, m.tag = "OUTIL_DISABLE:0", m;
    if (in && event == 2)
        if (const int by = arrow_step(s, pointer)) m.value = stepped(s, m.value, by);
    if (faceless(s)) return m.tag = "OUTIL_EMPTY|OUTIL_INVISIBLE|OUTIL_OUTLINE", m;
    const int next = in ? 1 : 2;
    if (m.select == next) return m.tag = in ? "select == 1" : "select == 2", m;
    m.select = next;
    m.may_paint = true, m.must_paint = fills(s);
    m.tag = in ? "1" : "0";
    return m;
}

Model after_draw(const Selects& s, Model m) {
    if (s.Flag & OUTIL_INVISIBLE) return m.test = s.test, m.tag = "OUTIL_INVISIBLE", m;
    if (s.Dim_X < 1 || s.Dim_Y < 1) return m.tag = "<0", m;
    if (!in_range(s, m.value)) m.value = 0;
    m.value = m.old = off_a_skipped_one(s, m.value);
    m.may_paint = true;
    m.must_paint = fills(s);
    if (s.Flag & GRAPH_OUTLINE) m.must_paint = true, m.tag = "GRAPH_OUTLINE";
    return m;
}

Model after_adjust(const Selects& s, Model m) {
    if (s.Dim_X < 1 || s.Dim_Y < 1) return m.tag = "<0", m;
    if (!in_range(s, m.value)) return m.tag = "outside range", m;
    m.value = off_a_skipped_one(s, m.value);
    if (m.value == m.old) return m.tag = "Cur_Value==old_value", m;
    if (s.Flag & OUTIL_DISABLE) return m.tag = "OUTIL_DISABLE", m;
    m.old = m.value;
    if (s.Flag & OUTIL_INVISIBLE) return m.tag = "OUTIL_INVISIBLE", m;
    m.may_paint = !faceless(s), m.must_paint = fills(s);
    return m;
}

Model after_deselect(const Selects& s, Model m) {
    m.test = s.test;
    if (!s.test) return m.tag = "! this->test", m;
    if (s.Dim_X < 1 || s.Dim_Y < 1) return m.tag = "< 0", m;
    if (faceless(s)) return m.tag = "OUTIL_EMPTY|OUTIL_INVISIBLE|OUTIL_OUTLINE", m;
    m.may_paint = m.select != 0 && m.select != 2;
    m.must_paint = m.may_paint && fills(s);
    m.select = 0;
    if (!m.may_paint) m.tag = "select == 0";
    return m;
}

Model after_init(const Selects& s, Model m) {
    m.test = s.test | 1;
    if (s.Dim_X < 1 || s.Dim_Y < 1) return m.tag = "<0", m;
    if (!in_range(s, m.value)) m.value = 0;
    m.old = m.value;
    if (!s.NbItem) m.tag = "!end";
    // Faces of choices are never painted at Init.
    return m;
}

Model expected_of(const Selects& s, Act act, int mode, POINT pointer) {
    Model m = {s.Cur_Value, s.Old_Value, s.select, s.test & 3 ? s.test : 2};
    const bool gone = s.Dim_X < 1 || s.Dim_Y < 1;
    switch (act) {
    case Act::Init: return after_init(s, m);
    case Act::Draw: return after_draw(s, m);
    case Act::Adjust: return after_adjust(s, m);
    case Act::Deselect: return after_deselect(s, m);
    case Act::Select:
        if (gone) return m.tag = "<0", m;
        return after_select(s, m, mode, pointer);
    case Act::Read:
        m.answer = gone || s.Flag & OUTIL_DISABLE ? -1 : m.value;
        m.tag = gone ? "<0" : s.Flag & OUTIL_DISABLE ? "OUTIL_DISABLE" : "";
        return m;
    case Act::Scroll:
        m.tag = "(none)";
        m.answer = m.value;
        if (gone || s.Flag & OUTIL_DISABLE) return m;
        if (!s.NbItem) return m.answer = 0, m;
        m.answer = m.value = stepped(s, m.value, -static_cast<long long>(mode));
        m.may_paint = !faceless(s), m.must_paint = fills(s);
        return m;
    default: // Grow
        m.test = s.test;
        m.tag = "(none)";
        m.answer = 1;
        return m;
    }
}

const char* const kNames[] = {"Init", "Draw", "Select", "Read", "Adjust", "Deselect", "Scroll", "Grow"};

int perform(Selects& s, Act act, int mode) {
    switch (act) {
    case Act::Init: s.Init(recorder::window()); return 0;
    case Act::Draw: s.Draw(); return 0;
    case Act::Select: return s.Select(mode);
    case Act::Read: return s.Read();
    case Act::Adjust: s.Adjust(); return 0;
    case Act::Deselect: s.Deselect(); return 0;
    case Act::Scroll: return s.Scroll(mode);
    default: return s.Grow(mode & 7, 0);
    }
}

struct Spinner_Laws : Recorded {
    static int any_int(Chance& chance) {
        if (chance.one_in(6)) return chance.of({INT_MIN, INT_MIN + 1, -65536, 1 << 30, INT_MAX});
        return chance.of({-3, -1, 0, 1, 2, 5, 16, 40, 60, 100, 200});
    }
    static void change(Selects& s, Chance& chance) {
        static const DWORD kFlags[] = {OUTIL_INVISIBLE, OUTIL_DISABLE, OUTIL_VERTICAL, OUTIL_EMPTY,
                                       GRAPH_OUTLINE,   OUTIL_FLAT,    OUTIL_NO_FRAME, TEXT_LEFT,
                                       TEXT_RIGHT,      TEXT_MIDDLE,   TEXT_BOTTOM};
        switch (chance.below(15)) {
        case 0:
        case 1: s.Flag ^= kFlags[chance.below(std::size(kFlags))]; break;
        case 2: s.Flag = 0; break;
        case 3: s.Dim_X = chance.between(-1, 300), s.Dim_Y = chance.between(-1, 100); break;
        case 4: s.Dim_X = 200, s.Dim_Y = 30; break;
        case 5: s.Pos_X = chance.between(-50, 50), s.Pos_Y = chance.between(-50, 50); break;
        case 6: s.Arrow_Dim = chance.of({0, 0, 10, 40, 300, -20}); break;
        case 7: s.Value_Dim = chance.of({0, 0, 80, 400, -5}); break;
        case 8: s.Border = chance.of({0, 0, 1, 2, 7, 100, -3, INT_MIN}); break;
        case 9: s.select = chance.of({0, 1, 2, 7, -1}); break;
        case 10: s.Cur_Value = any_int(chance); break;
        case 11: chance.one_in(2) ? s.Name_Set(L"a name") : s.Name_Set(nullptr); break;
        case 12: s.Old_Value = any_int(chance); break;
        case 13: s.Clip_Dim_X = any_int(chance), s.Clip_Dim_Y = any_int(chance); break;
        default:
            if (s.NbItem) s.Item[chance.below(s.NbItem)]->Flag ^= OUTIL_INVISIBLE;
        }
    }
};

TEST_F(Spinner_Laws, KeepsTheProtocolWithAnyFields) {
    for_seeds(250, [&](Chance& chance) {
        Selects spin;
        for (int step = 0; step < 60 && !HasFailure(); ++step) {
            for (unsigned changes = chance.below(4); changes > 0; --changes)
                change(spin, chance);
            const POINT pointer = {chance.between(-60, 260), chance.between(-60, 160)};
            recorder::pointer(pointer.x, pointer.y);
            const Act act = static_cast<Act>(chance.below(static_cast<unsigned>(Act::kCount)));
            const int mode = chance.one_in(2) ? chance.of({2, 18, 1, -1, 0}) : any_int(chance);
            const char* const name = kNames[static_cast<int>(act)];
            SCOPED_TRACE(testing::Message() << "step " << step << ' ' << name << ' ' << mode << " flag "
                                            << std::hex << spin.Flag);
            const Model expected = expected_of(spin, act, mode, pointer);
            recorder::clear();
            EXPECT_EQ(perform(spin, act, mode), expected.answer);
            EXPECT_EQ(spin.Cur_Value, expected.value);
            EXPECT_EQ(spin.Old_Value, expected.old);
            EXPECT_EQ(spin.select, expected.select);
            EXPECT_EQ(spin.test & 3, expected.test & 3);
            EXPECT_EQ(recorder::exit_tag(std::string("Selects::") + name), expected.tag);
            const bool painted = painted_something();
            EXPECT_GE(painted, expected.must_paint);
            EXPECT_LE(painted, expected.may_paint) << recorder::text();
        }
    });
}

// As many steps as there are choices to be seen lead back, each of them once.
TEST_F(Spinner_Laws, OneRoundVisitsEveryChoiceThatIsNotSkippedOnce) {
    for_seeds(100, [&](Chance& chance) {
        Selects spin;
        spin.Dim_X = 200, spin.Dim_Y = 30;
        const int count = chance.between(1, 9);
        spin.Grow(count, 0);
        int seen = 0;
        for (int i = 0; i < count; i++)
            chance.one_in(3) ? spin.Item[i]->Flag |= OUTIL_INVISIBLE : static_cast<DWORD>(seen++);
        if (!seen) return;
        spin.Init(recorder::window());
        spin.Draw();
        const int start = spin.Cur_Value, delta = chance.of({-1, 1});
        std::vector<int> visits(count);
        for (int step = 0; step < seen; step++)
            visits[spin.Scroll(delta)]++;
        EXPECT_EQ(spin.Cur_Value, start);
        for (int i = 0; i < count; i++)
            EXPECT_EQ(visits[i], spin.Item[i]->Flag & OUTIL_INVISIBLE ? 0 : 1);
        recorder::clear();
    });
}

// What a spinner shows is decided by its fields alone, by whatever way they came about.
TEST_F(Spinner_Laws, AFreshDrawShowsWhatTheWayLedTo) {
    for_seeds(60, [&](Chance& chance) {
        Picture picture(240, 240), fresh(240, 240);
        recorder::paint_on(&picture);
        Selects spin;
        spin.Flag = chance.one_in(2) ? OUTIL_VERTICAL : 0;
        spin.Pos_X = 10, spin.Pos_Y = 10;
        spin.Dim_X = spin.Flag ? 40 : 200, spin.Dim_Y = spin.Flag ? 200 : 40;
        if (chance.one_in(2)) spin.Name_Set(L"of");
        spin.Grow(4, 0);
        for (int i = 0; i < 4; i++)
            spin.Item[i]->Name_Set(L"n%d", i);
        spin.Init(recorder::window());
        spin.Draw();
        for (int step = 0; step < 12; step++) {
            recorder::pointer(chance.between(0, 239), chance.between(0, 239));
            const unsigned which = chance.below(4);
            if (which == 0) spin.Select(chance.of({0, 1, 2}));
            if (which == 1) spin.Scroll(chance.between(-2, 2));
            if (which == 2) spin.Cur_Value = chance.between(0, 3), spin.Adjust();
            if (which == 3) spin.Deselect();
        }
        recorder::pointer(0, 0);
        spin.select = 1; // so that the pointer's leaving repaints, with the last choice
        spin.Select(0);
        recorder::paint_on(&fresh);
        spin.Draw();
        EXPECT_TRUE(picture == fresh);
        recorder::paint_on(nullptr);
        recorder::clear();
    });
}

} // namespace
