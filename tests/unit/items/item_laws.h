#ifndef TESTS_ITEM_LAWS_H
#define TESTS_ITEM_LAWS_H

#include <climits>

#include "laws/laws.h"
#include "unit/brask/expect.h"

// What laws about lists, check lists and tabs stand on. LAWS_SEED repeats a run, LAWS_ROUNDS lengthens it.

inline bool gone(const Tools& control) { return control.Dim_X < 1 || control.Dim_Y < 1; }
inline bool faceless(const Tools& control) {
    return (control.Flag & (OUTIL_EMPTY | OUTIL_INVISIBLE | GRAPH_OUTLINE)) != 0;
}
inline bool covers(const Tools& part, POINT at) {
    return at.x >= part.Pos_X && at.x <= part.Pos_X + part.Dim_X && at.y >= part.Pos_Y &&
           at.y <= part.Pos_Y + part.Dim_Y;
}

struct Item_Laws : Recorded {
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

#endif
