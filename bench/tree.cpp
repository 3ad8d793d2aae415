// The tree of folders: a folder with 10,000 sub-folders opened, beside find at the same work, and read again;
// and 100,000 rows scrolled at their middle.

#include <chrono>
#include <cstdlib>
#include <cwchar>
#include <filesystem>
#include <string>

#include <brask/dirtrees.h>
#include <brask/fenn.h>
#include <brask/fenn_host.h>

#include "busy.h"
#include "scene.h"

namespace {

namespace fs = std::filesystem;

constexpr int folders = 10000, rows = 100000, row_height = 18;
constexpr int cell = 18, press = 2 + 16;

double seconds() {
    return std::chrono::duration<double>(std::chrono::steady_clock::now().time_since_epoch()).count();
}

// A folder "many" with all the sub-folders, alone in a folder of its own; removed at the end.
class Many {
  public:
    Many() : base(fs::temp_directory_path() / ("brask_bench_" + std::to_string(std::rand()))) {
        for (int i = 0; i < folders; i++)
            fs::create_directories(base / "many" / ("folder " + std::to_string(i)));
        Fenn_Path_From_Native(base.c_str(), path, 2048);
    }
    ~Many() {
        std::error_code ignored;
        fs::remove_all(base, ignored);
    }

    const fs::path base;
    wchar_t path[2048];
};
const Many& many() {
    static const Many on_disk;
    return on_disk;
}

void prepare(DirTrees& tree, const wchar_t* path) {
    tree.Dim_X = 500, tree.Dim_Y = 700;
    tree.Init(scene::window());
    tree.Set(path);
    tree.Draw();
}

// The middle of the box in front of the row of that name, which is scrolled into view.
bool point_at_box(DirTrees& tree, const wchar_t* name) {
    for (int row = 0; row < tree.NbList; row++) {
        if (std::wcscmp(tree.List[row].Node->name, name) != 0) continue;
        tree.Cursor_V.Cur_Value = static_cast<float>(row * row_height);
        const Boxs& area = tree.Box_Tree;
        scene::point_at(area.Pos_X + 2 * SPACE + cell * (tree.List[row].Depth - 1) + cell / 2,
                        area.Pos_Y + area.Dim_Y - SPACE - cell / 2);
        return true;
    }
    return false;
}

void tree_expand(benchmark::State& state) {
    for (auto _ : state) {
        DirTrees tree;
        prepare(tree, many().path);
        if (!point_at_box(tree, L"many")) return state.SkipWithError("the folder is not shown");
        const int before = tree.NbList;
        const double start = seconds();
        tree.Select(press);
        state.SetIterationTime(seconds() - start);
        if (tree.NbList != before + folders) return state.SkipWithError("the folder was not opened");
    }
}

void find_folders(benchmark::State& state) {
    const std::string command =
        "find '" + (many().base / "many").string() + "' -maxdepth 2 -type d > /dev/null";
    for (auto _ : state) {
        const double start = seconds();
        if (std::system(command.c_str()) != 0) return state.SkipWithError("find fails");
        state.SetIterationTime(seconds() - start);
    }
}

void tree_refresh(benchmark::State& state) {
    DirTrees tree;
    prepare(tree, (std::wstring(many().path) + L"\\many").c_str());
    const Buttons& button = tree.But_Refresh;
    scene::point_at(button.Pos_X + button.Dim_X / 2, button.Pos_Y + button.Dim_Y / 2);
    for (auto _ : state) {
        const double start = seconds();
        if (tree.Select(press) != 2) return state.SkipWithError("the button was not pressed");
        state.SetIterationTime(seconds() - start);
    }
}

// Children as a scan would leave them.
void fill(Dir_Tree& node, int count, const wchar_t* name, DWORD flag) {
    node.flag = (node.flag & ~DIR_CLOSED) | DIR_OPEN;
    node.child = static_cast<Dir_Tree*>(std::calloc(static_cast<std::size_t>(count) + 1, sizeof(Dir_Tree)));
    for (int i = 0; i < count; i++) {
        const std::wstring own = name + std::to_wstring(i);
        node.child[i].flag = flag;
        node.child[i].name = ::wcsdup(own.c_str());
        node.child[i].path = ::wcsdup((node.path + own + L"\\").c_str());
    }
    node.child[count - 1].flag |= DIR_LAST;
}

void tree_scroll(benchmark::State& state) {
    DirTrees tree;
    prepare(tree, nullptr);
    Dir_Tree& drive = tree.Tree->child[0];
    fill(drive, 10, L"project ", DIR_OPEN);
    for (int i = 0; i < 10; i++) {
        fill(drive.child[i], 10, L"folder of things ", DIR_OPEN);
        for (int j = 0; j < 10; j++)
            fill(drive.child[i].child[j], rows / 100, L"name of a folder ", DIR_LEAF);
    }
    tree.Draw();
    tree.Cursor_V.Cur_Value = static_cast<float>(rows / 2 * row_height);
    scene::point_at(tree.Box_Tree.Pos_X + 100, tree.Box_Tree.Pos_Y + 100);
    if (tree.NbList < rows) return state.SkipWithError("rows are missing");
    const float before = tree.Cursor_V.Cur_Value;
    tree.Scroll(-1);
    if (tree.Cursor_V.Cur_Value != before + row_height) return state.SkipWithError("the rows do not scroll");
    int step = 0;
    busy::measure(state, 1, [&] { tree.Scroll(step++ & 1 ? -1 : 1); });
}

#define ON_DISK(work) BENCHMARK(work)->UseManualTime()->Iterations(5)->Unit(benchmark::kMillisecond)
ON_DISK(find_folders);
ON_DISK(tree_expand);
ON_DISK(tree_refresh);
BENCHMARK(tree_scroll)->UseManualTime();

} // namespace

BENCHMARK_MAIN();
