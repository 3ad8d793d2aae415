// The tree control over the real drawing layer and real folders, beside a second writing of its rules: random
// changes on the disk and random clicks, and after each the same rows, the same flags, the same choice.

#include <cwchar>
#include <random>

#include <brask/dirtrees.h>

#include "browser/dirtree_geometry.h"
#include "disk_model.h"
#include "unit/fenn/nobody.h"
#include "unit/fenn/scratch.h"
#include "unit/fenn/screen.h"

namespace {

const std::string long_native(200, 'n');
const std::wstring long_wide(200, L'n');
constexpr std::size_t long_name = 6; // its place below

const std::vector<model::Name>& names() {
    static const std::vector<model::Name> list = {
        {"alpha", L"alpha", L"alpha"},
        {"beta", L"beta", L"beta"},
        {"beta 2", L"beta 2", L"beta 2"},
        {"Gamma", L"Gamma", L"gamma"},
        {"\xC3\x89t\xC3\xA9", L"\u00C9t\u00E9", L"\u00E9t\u00E9"},
        {".hidden", L".hidden", L".hidden"},
        {long_native.c_str(), long_wide.c_str(), long_wide.c_str()},
#ifndef _WIN32
        {"ALPHA", L"ALPHA", L"alpha"},
        {"back\\slash", L"back\xF05Cslash", L"back\xF05Cslash"},
        {"byte \xFF", L"byte \xDCFF", L"byte \xDCFF"},
#endif
    };
    return list;
}

class Compared {
  public:
    explicit Compared(unsigned seed)
        : random_(seed), disk_(scratch_.native(), names()), model_(disk_, prefix().size()) {
        tree_.Dim_X = 900;
        tree_.Dim_Y = 500;
        tree_.Init(screen_.wnd);
        const std::filesystem::path name = long_native;
        std::filesystem::create_directories(scratch_.native() / name / name / name / name / name);
        for (int i = 0; i < 12; ++i)
            create();
        set();
    }
    ~Compared() { unlock(scratch_.native()); }

    void step() {
        switch (random_() % 12) {
        case 0:
        case 1: create(); break;
        case 2: remove(); break;
        case 3: rename(); break;
        case 4: change_access(); break;
        case 5: set(); break;
        case 6:
        case 7: refresh(); break;
        case 8:
        case 9: choose(); break;
        default: toggle(); break;
        }
    }
    void compare() {
        const std::vector<model::Tree::Row> expected = model_.rows();
        const int root = row_of(prefix());
        ASSERT_GE(root, 0);
        int row = root + 1;
        const int depth = tree_.List[root].Depth;
        for (const model::Tree::Row& one : expected) {
            ASSERT_LT(row, tree_.NbList);
            const Dir_List_Row& shown = tree_.List[row++];
            ASSERT_EQ(shown.Depth, depth + 1 + one.depth);
            ASSERT_EQ(std::wstring(shown.Node->name), one.node->name);
            ASSERT_EQ(std::wstring(shown.Node->path), prefix() + one.node->path);
            ASSERT_EQ(shown.Node->flag, one.node->flag) << Wchar_2_Char(shown.Node->path);
        }
        ASSERT_TRUE(row == tree_.NbList || tree_.List[row].Depth <= depth);
        const wchar_t* const chosen = tree_.Read();
        ASSERT_EQ(chosen ? std::wstring(chosen) : L"none",
                  model_.current ? prefix() + model_.current->path : L"none");
    }

  private:
    std::wstring prefix() const { return scratch_.path() + L"\\"; }
    int below(int count) { return static_cast<int>(random_() % static_cast<unsigned>(count)); }
    const model::Name& name() { return names()[random_() % names().size()]; }

    // A folder that is there, from the outermost on, none of them locked; now and then that itself.
    std::filesystem::path any_folder(std::wstring* inside = nullptr) {
        std::filesystem::path path = scratch_.native();
        const bool long_way = random_() % 5 == 0; // to where paths become too long
        for (int depth = below(5); depth > 0; --depth) {
            const model::Name& next = long_way ? names()[long_name] : name();
            std::error_code error;
            if (!std::filesystem::is_directory(path / std::filesystem::u8path(next.native), error)) continue;
            path /= std::filesystem::u8path(next.native);
            if (inside) *inside += next.wide + std::wstring(L"\\");
        }
        return path;
    }

    // --- What happens on the disk; that it may fail is part of it ---
    void create() {
        std::error_code error;
        std::filesystem::create_directories(any_folder() / std::filesystem::u8path(name().native), error);
    }
    void remove() {
        const std::filesystem::path path = any_folder();
        std::error_code error;
        if (path != scratch_.native()) std::filesystem::remove_all(path, error);
    }
    void rename() {
        const std::filesystem::path path = any_folder();
        std::error_code error;
        if (path != scratch_.native())
            std::filesystem::rename(path, path.parent_path() / std::filesystem::u8path(name().native), error);
    }
    void change_access() {
        const std::filesystem::path path = any_folder();
        std::error_code error;
        if (path != scratch_.native())
            std::filesystem::permissions(
                path, random_() % 2 ? std::filesystem::perms::none : std::filesystem::perms::all, error);
    }
    static void unlock(const std::filesystem::path& path) {
        std::error_code error;
        std::filesystem::permissions(path, std::filesystem::perms::all, error);
        for (const auto& entry : std::filesystem::directory_iterator(path, error))
            if (entry.is_directory(error)) unlock(entry.path());
    }

    // --- What the user does ---
    void set() {
        std::wstring inside;
        any_folder(&inside);
        std::wstring path = prefix() + inside;
        if (random_() % 2)
            for (wchar_t& c : path)
                if (c >= L'a' && c <= L'z') c = c - L'a' + L'A';
        if (random_() % 2) path.pop_back();
        tree_.Set(path.c_str());
        model_.set(inside);
        tree_.Draw();
    }
    void refresh() {
        const Buttons& button = tree_.But_Refresh;
        EXPECT_EQ(click(button.Pos_X + button.Dim_X / 2, button.Pos_Y + button.Dim_Y / 2), 2);
        model_.refresh();
    }
    void toggle() {
        model::Node* node = nullptr;
        const int row = any_row(node);
        EXPECT_EQ(click_cell(row, tree_.List[row].Depth - 1), 1);
        model_.toggle(*node);
    }
    void choose() {
        model::Node* node = nullptr;
        const int row = any_row(node);
        const bool chosen = model_.choose(*node);
        EXPECT_EQ(click_cell(row, tree_.List[row].Depth + below(6)), chosen ? 2 : 1);
    }
    int any_row(model::Node*& node) {
        std::vector<model::Tree::Row> rows = model_.rows();
        rows.insert(rows.begin(), {-1, &model_.root});
        const int row = below(static_cast<int>(rows.size()));
        node = rows[static_cast<std::size_t>(row)].node;
        return row_of(prefix()) + row;
    }
    int row_of(const std::wstring& path) const {
        for (int row = 0; row < tree_.NbList; ++row)
            if (tree_.List[row].Node->path && tree_.List[row].Node->path == path) return row;
        return -1;
    }
    int click_cell(int row, int column) {
        tree_.Cursor_V.Cur_Value = static_cast<float>(row * brask::ROW_HEIGHT);
        const brask::Dir_View view = brask::dir_view(tree_);
        return click(brask::cell_x(view, column) + 9, brask::row_y(view, row) + 9);
    }
    int click(int x, int y) {
        Zeb_setup(screen_.wnd, "test");
        set_curs(x, height - 1 - y);
        Zeb_release();
        const int answer = tree_.Select(BUTTON_DOWN);
        tree_.Select(0);
        return answer;
    }

    static constexpr int height = 520;
    static constexpr int BUTTON_DOWN = 2 + 16;

    std::mt19937 random_;
    const Scratch scratch_;
    const Screen screen_{920, height};
    const model::Disk disk_;
    model::Tree model_;
    DirTrees tree_;
};

TEST(Disk, TheTreeIsWhatItsRulesSay) {
    const AsNobody nobody;
    Fenn_Set_Report([](void*, HWND, unsigned int, const wchar_t*) {}, nullptr);
    for (unsigned seed = 1; seed <= 12; ++seed) {
        Compared compared(seed);
        compared.compare();
        for (int step = 0; step < 60 && !testing::Test::HasFatalFailure(); ++step) {
            SCOPED_TRACE("seed " + std::to_string(seed) + ", step " + std::to_string(step));
            compared.step();
            compared.compare();
        }
        if (testing::Test::HasFailure()) break;
    }
    Fenn_Set_Report(nullptr, nullptr);
}

} // namespace
