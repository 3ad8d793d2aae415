#include "laws/chance.h"
#include "tree_fixture.h"

// Any operation on a tree with any fields, in any order, while folders come and go.

namespace {

struct Wild_Tree : Tree {
    Chance chance{law_seed()};
    const wchar_t* paths[8] = {L"C:\\alpha\\",       L"C:\\alpha\\deep\\deeper\\",
                               L"C:\\alpha\\side\\", L"C:\\beta\\",
                               L"C:\\gamma\\one\\",  L"D:\\",
                               L"D:\\x\\y\\",        L"C:\\"};

    int wild() {
        const int values[] = {
            0, 1, -1, 300, 400, 32767, -32768, 2147483647, -2147483647 - 1, chance.between(-50, 600)};
        return values[chance.between(0, 9)];
    }
    // Most of the time a tree that can be operated.
    void change_fields() {
        tree.Dim_X = chance.between(0, 3) ? 300 : wild(), tree.Dim_Y = chance.between(0, 3) ? 400 : wild();
        tree.Pos_X = chance.between(0, 3) ? 100 : wild(), tree.Pos_Y = chance.between(0, 3) ? 100 : wild();
        tree.Border = chance.between(0, 5) ? 0 : wild();
        if (!chance.between(0, 5)) tree.Cursor_V.Cur_Value = static_cast<float>(wild());
        if (!chance.between(0, 5)) tree.Cursor_H.Cur_Value = static_cast<float>(wild());
        SPACE = chance.between(0, 8) ? 6 : wild();
        BUT_DIM = chance.between(0, 8) ? 25 : wild();
    }
    void change_disk() {
        const wchar_t* path = paths[chance.between(0, 7)];
        switch (chance.between(0, 3)) {
        case 0: return recorder::remove_folder(path);
        case 1: return recorder::lock_folder(path, static_cast<recorder::Lock>(chance.between(0, 2)));
        default: recorder::add_folder(path);
        }
    }
    void point_anywhere() {
        if (chance.between(0, 4))
            point(chance.between(-2, 20), chance.between(-2, 9));
        else
            recorder::pointer(chance.between(90, 410), chance.between(90, 510));
        if (!chance.between(0, 9)) recorder::pointer(wild(), wild());
    }
    void step() {
        switch (chance.between(0, 11)) {
        case 0: return tree.Init(chance.between(0, 3) ? recorder::window() : nullptr);
        case 1: tree.Set(chance.between(0, 3) ? paths[chance.between(0, 7)] : nullptr); return;
        case 2: return change_fields();
        case 3: return change_disk();
        case 4: tree.Read(); return;
        case 5: return tree.Scroll(wild());
        case 6: tree.Name_Set(L"name %d", chance.between(0, 9)); return;
        case 7: return tree.Draw();
        case 8: refresh(); return;
        default: point_anywhere(); tree.Select(chance.between(0, 9) ? 18 : wild());
        }
    }
    const Dir_Tree* found(const Dir_Tree* from, const Dir_Tree* node) {
        if (from == node) return from;
        for (const Dir_Tree* child = from->child; child && child->name; child++)
            if (const Dir_Tree* below = found(child, node)) return below;
        return nullptr;
    }
};

TEST_F(Wild_Tree, AnyFieldsAndAnyOrderAreSurvived) {
    recorder::listen(0);
    for (int i = 0; i < law_rounds(1000); i++) {
        step();
        ASSERT_EQ(recorder::open_lists(), 0) << "step " << i;
        if (tree.Current) {
            ASSERT_TRUE(found(tree.Tree, tree.Current)) << "step " << i;
        }
    }
}

} // namespace
