#include <brask/dirtrees.h>

#include "scarce.h"

// The folder picker when memory runs out.

namespace {

using namespace scarce;

constexpr int PANEL_X = 60, PANEL_Y = 100; // a place among the rows

void set_up(DirTrees& tree) {
    place(tree);
    tree.Dim_X = 220, tree.Dim_Y = 180;
    tree.Init(world::window());
    tree.Set(world::folder().c_str());
}

std::string held(const DirTrees& tree) {
    std::string all = name_of(tree);
    for (const wchar_t* c = tree.Current ? tree.Current->path : nullptr; c && *c; c++)
        all += static_cast<char>(*c);
    return all;
}

void drop(Tools& part) { part.W_Name = nullptr; }
void part(DirTrees& copy) {
    copy.Tree = copy.Current = nullptr;
    copy.List = nullptr;
    copy.NbList = 0;
    for (Tools* each : {static_cast<Tools*>(&copy.Box_Frame), static_cast<Tools*>(&copy.Box_Inner),
                        static_cast<Tools*>(&copy.Box_Tree), static_cast<Tools*>(&copy.But_Refresh)})
        drop(*each);
}

void over(DirTrees& tree) {
    world::point(PANEL_X, PANEL_Y);
    tree.Select(1);
    world::point(-100, -100);
    tree.Select(0);
}
void read(DirTrees& tree) { tree.Read(); }
void roll(DirTrees& tree) {
    world::point(PANEL_X, PANEL_Y);
    tree.Scroll(-1);
    world::point(-100, -100);
}
// Opens and shuts, chooses, and reads the disk again: what it comes to depends on what there was memory for.
void click(DirTrees& tree) {
    for (int y = 60; y < 170; y += 9) {
        world::point(PANEL_X, y);
        tree.Select(2 + 16);
    }
    world::point(100, 182);
    tree.Select(2 + 16);
    world::point(-100, -100);
    tree.Set(world::folder().c_str());
}
void set(DirTrees& tree) { tree.Set((world::folder() + L"alpha\\").c_str()); }

TEST(Each_Failure, DirTrees) {
    using A = Act<DirTrees>;
    obey<DirTrees>({set_up,
                    held,
                    part,
                    {{"Select", over},
                     {"Read", read},
                     {"Scroll", roll},
                     {"clicks", click, A::shown, A::loses},
                     {"Set", set, A::shown, A::loses}}});
}

} // namespace
