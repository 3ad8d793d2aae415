#include <algorithm>
#include <random>

#include <brask/fonts.h>
#include <brask/icons.h>

#include "tree_fixture.h"

// Where the parts of the tree stand, and what is painted of its rows: beside a plain painter that follows the
// rules row by row.

namespace {

struct Tree_Parts : Tree {
    static std::string spot(const Tools& part) {
        return std::to_string(part.Pos_X) + " " + std::to_string(part.Pos_Y) + " " +
               std::to_string(part.Dim_X) + " " + std::to_string(part.Dim_Y);
    }
    void expect_parts() {
        const int x = tree.Pos_X, y = tree.Pos_Y, w = tree.Dim_X, h = tree.Dim_Y;
        const auto told = [](int a, int b, int c, int d) {
            return std::to_string(a) + " " + std::to_string(b) + " " + std::to_string(c) + " " +
                   std::to_string(d);
        };
        EXPECT_EQ(spot(tree.Box_Frame), told(x + 1, y + 1, w - 2, h - 2));
        const int ix = x + 1 + SPACE, iy = y + 1 + BUT_DIM + SPACE, iw = w - 2 * SPACE,
                  ih = h - 2 - 2 * SPACE - BUT_DIM;
        EXPECT_EQ(spot(tree.Box_Inner), told(ix, iy, iw, ih));
        EXPECT_EQ(spot(tree.Cursor_V), told(ix + iw - CURSEUR - SPACE, iy + CURSEUR + 2 * SPACE, CURSEUR,
                                            ih - 3 * SPACE - BORDER - CURSEUR - BUT_DIM));
        EXPECT_EQ(spot(tree.Cursor_H), told(ix + SPACE, iy + SPACE, iw - 3 * SPACE - CURSEUR, CURSEUR));
        const int ty = iy + BORDER + CURSEUR + SPACE, th = ih - 3 * BORDER - CURSEUR - BUT_DIM - SPACE - 2;
        EXPECT_EQ(spot(tree.Box_Tree), told(ix + BORDER + 2, ty, iw - 2 * BORDER - 2 - CURSEUR - SPACE, th));
        EXPECT_EQ(spot(tree.But_Refresh), told(ix + SPACE, ty + th + BORDER, iw - 2 * SPACE, BUT_DIM - 3));
    }
};

TEST_F(Tree_Parts, StandByTheMetrics) {
    const int metrics[][4] = {{3, 6, 16, 25}, {1, 2, 11, 31}, {5, 9, 20, 18}};
    for (const auto& m : metrics) {
        BORDER = m[0], SPACE = m[1], CURSEUR = m[2], BUT_DIM = m[3];
        tree.Init(recorder::window());
        expect_parts();
        tree.Dim_X += 37, tree.Dim_Y += 51, tree.Pos_X -= 13;
        tree.Init(nullptr);
        expect_parts();
    }
    BORDER = 3, SPACE = 6, CURSEUR = 16, BUT_DIM = 25;
}

TEST_F(Tree_Parts, HaveTheirFlagsAndLooks) {
    tree.Border = 2;
    tree.Color = Colors(10, 20, 30);
    tree.Init(recorder::window());
    EXPECT_EQ(tree.Wnd, nullptr) << "the control keeps no window of its own";
    EXPECT_EQ(tree.Box_Frame.Flag, 0x442u);
    EXPECT_EQ(tree.Box_Inner.Flag, 16u);
    EXPECT_EQ(tree.Box_Tree.Flag, 16u);
    EXPECT_EQ(tree.Cursor_V.Flag, 0xC000026u);
    EXPECT_EQ(tree.Cursor_H.Flag, 0x8000022u);
    EXPECT_EQ(tree.But_Refresh.Flag, 0u);
    EXPECT_EQ(tree.Box_Frame.Border, 2);
    EXPECT_EQ(tree.Box_Inner.Border, 2);
    EXPECT_EQ(tree.But_Refresh.Border, 2);
    EXPECT_EQ(tree.Cursor_V.Border, 1);
    EXPECT_EQ(tree.Cursor_H.Border, 1);
    EXPECT_EQ(tree.Cursor_V.Val_Min, 100.0f);
    EXPECT_EQ(tree.Cursor_V.Val_Max, 0.0f);
    EXPECT_EQ(tree.Cursor_H.Val_Min, 0.0f);
    EXPECT_EQ(tree.Cursor_V.Step, 18.0f);
    EXPECT_EQ(tree.Cursor_H.Step, 18.0f);
    EXPECT_EQ(name_of(tree.But_Refresh), "Refresh");
    EXPECT_STREQ(tree.Box_Frame.Font_Name, "Arial");
    EXPECT_STREQ(tree.Box_Frame.Font_Weight, "bold");
    EXPECT_EQ(tree.Box_Frame.Font_Size, 14);
    for (const Tools* part :
         std::initializer_list<const Tools*>{&tree.Box_Frame, &tree.Box_Inner, &tree.Box_Tree, &tree.Cursor_V,
                                             &tree.Cursor_H, &tree.But_Refresh}) {
        EXPECT_TRUE(part->Color == tree.Color);
        EXPECT_EQ(part->Wnd, recorder::window());
    }
}

TEST_F(Tree_Parts, ThatAreTooSmallDoNothing) {
    for (const auto& size : {std::pair<int, int>{0, 400}, {300, 0}, {-1, -1}}) {
        tree.Dim_X = size.first, tree.Dim_Y = size.second;
        tree.Init(recorder::window());
        EXPECT_EQ(recorder::exit_tag("DirTrees::Init"), "<0");
        EXPECT_EQ(painted([&] { tree.Draw(); }), "");
        EXPECT_EQ(painted([&] { EXPECT_EQ(tree.Select(2), 0); }), "");
        EXPECT_EQ(painted([&] { tree.Scroll(1); }), "");
    }
}

TEST_F(Tree_Parts, WarnOfAMissingInitOnce) {
    recorder::clear();
    tree.Draw();
    const auto warnings = recorder::reports(0x80000001);
    ASSERT_GE(warnings.size(), 3u);
    EXPECT_EQ(warnings[1], "   you must call *_Init() first");
    EXPECT_EQ(warnings[2], "   type: DirTrees::Draw   name: no name\\n");
    for (const auto& [type, action] :
         {std::pair<const char*, void (*)(DirTrees&)>{"DirTrees::Select", [](DirTrees& t) { t.Select(0); }},
          {"DirTrees::Scroll", [](DirTrees& t) { t.Scroll(1); }}}) {
        DirTrees fresh;
        fresh.Dim_X = 300, fresh.Dim_Y = 400;
        recorder::clear();
        action(fresh);
        const auto first = recorder::reports(0x80000001);
        ASSERT_GE(first.size(), 3u);
        EXPECT_EQ(first[2], std::string("   type: ") + type + "   name: no name\\n");
        recorder::clear();
        action(fresh);
        EXPECT_TRUE(recorder::reports(0x80000001).empty()) << type;
    }
}

// --- Rows ---

struct Tree_Rows : Tree {
    void SetUp() override {
        Tree::SetUp();
        for (int i = 0; i < 30; i++)
            for (int j = 0; j < 4; j++)
                recorder::add_folder(L"C:\\f" + std::to_wstring(100 + i) + L"\\s" + std::to_wstring(j) +
                                     L"\\t\\u\\");
        tree.Color = Colors(170, 160, 150);
    }

    // The painting of the rows alone.
    std::string rows_of(const std::string& log) {
        const std::string start = "Zeb_setup(WND, \"DirTrees::Dir_Tree_Draw2\")\n", stop = "Zeb_release()\n";
        const auto from = log.rfind(start);
        if (from == std::string::npos) return "(none)";
        return log.substr(from, log.find(stop, from) + stop.size() - from);
    }

    void line(int x1, int y1, int x2, int y2) {
        move2s(static_cast<unsigned>(x1), static_cast<unsigned>(y1));
        draw2s(static_cast<unsigned>(x2), static_cast<unsigned>(y2), 0);
    }
    void lead(const Dir_Tree& node, int x, int y) {
        const Boxs* box = &tree.Box_Tree;
        const char c = node.flag & DIR_LAST ? 0 : 1;
        if (node.flag & DIR_LEAF)
            Icon_Lead_Leaf(box, c, x, x + 18, y, y + 18);
        else if (node.flag & DIR_NO_ACCESS)
            Icon_Lead_No_Access(box, c, x, x + 18, y, y + 18);
        else if (node.flag & DIR_OPEN)
            Icon_Lead_Expand(box, 1, x, x + 18, y, y + 18);
        else if (node.flag & DIR_CLOSED)
            Icon_Lead_Collapse(box, 1, x, x + 18, y, y + 18);
    }
    void picture(const Dir_Tree& node, int x, int y) {
        const Boxs* box = &tree.Box_Tree;
        const DWORD drives = DIR_ROOT | DIR_FLOPPY | DIR_FIXED | DIR_CDROM | DIR_REMOTE;
        if (node.flag & drives) return; // no file of theirs is there
        if (node.flag & DIR_SELECTED)
            Icon_Dir_Open(box, x, y, 1);
        else if (node.flag & DIR_OPEN)
            Icon_Dir_Open(box, x, y, 0);
        else
            Icon_Dir_Close(box, x, y, 0);
    }
    void paint_plainly() {
        const Boxs& t = tree.Box_Tree;
        const float cv = tree.Cursor_V.Cur_Value, ch = tree.Cursor_H.Cur_Value;
        const HFONT font = Zeb_Create_Font(t.Wnd, "Arial", "regular", nullptr, 10);
        bool done[100] = {};
        Zeb_setup(t.Wnd, "DirTrees::Dir_Tree_Draw2");
        Zeb_set_clip(t.Pos_X, t.Pos_Y, t.Dim_X, t.Dim_Y);
        Zeb_color(t.Color.get());
        draw_fill_rectangle(t.Pos_X - 1, t.Pos_Y + t.Dim_Y + 1, t.Pos_X + t.Dim_X + 1, t.Pos_Y - 1);
        const int y0 = t.Pos_Y + t.Dim_Y - 18 + static_cast<int>(cv) - SPACE;
        const int first = std::max(0, static_cast<int>(cv / 18));
        const int end = std::min(tree.NbList, 1 - static_cast<int>((static_cast<float>(t.Dim_Y) + cv) / -18));
        for (int r = 0; r < end; r++) {
            const Dir_Tree& node = *tree.List[r].Node;
            const int depth = tree.List[r].Depth, y = y0 - 18 * r;
            int x = t.Pos_X + 2 * SPACE - static_cast<int>(ch);
            if (r >= first - 1) {
                Zeb_color(0xFF0000);
                for (int i = 0; i <= depth - 2; i++, x += 18)
                    if (!done[i]) line(x + 7, y, x + 7, y + 19);
            }
            if (!depth) continue;
            done[depth - 1] = node.flag & DIR_LAST;
            if (r >= first - 1) lead(node, x, y);
        }
        for (int r = first; r < end; r++) {
            const Dir_Tree& node = *tree.List[r].Node;
            const int y = y0 - 18 * r - 1;
            const int x = t.Pos_X + 2 * (9 * tree.List[r].Depth + SPACE) - static_cast<int>(ch);
            picture(node, x, y);
            Zeb_Font_Color(node.flag & DIR_NO_ACCESS ? 0x6E6E6E : node.flag & DIR_SELECTED ? 0xFF0000 : 1, 0);
            Zeb_Font_Write(font, x + 28, y - 3, node.name);
        }
        Zeb_reset_clip();
        Zeb_release();
    }
    void expect_rows() {
        const std::string drawn = painted([&] { tree.Draw(); });
        const std::string expected = painted([&] { paint_plainly(); });
        EXPECT_TRUE(rows_of(drawn) == expected) << rows_of(drawn) << "\n--- expected ---\n" << expected;
    }
};

TEST_F(Tree_Rows, OfAShortTree) {
    shown(L"D:\\");
    expect_rows();
    EXPECT_EQ(tree.Cursor_V.Cur_Value, 0.0f);
    EXPECT_EQ(tree.Cursor_V.Flag, 0xC000026u) << "all fits: a disabled outline";
    EXPECT_EQ(tree.Cursor_H.Flag, 0x8000022u);
}

TEST_F(Tree_Rows, OfAllFlags) {
    shown(L"C:\\alpha\\deep\\deeper\\");
    expect_rows();
    EXPECT_EQ(toggle(L"beta"), 1); // proves to be a leaf
    EXPECT_EQ(toggle(L"f101"), 1);
    expect_rows();
    EXPECT_EQ(choose(L"f100"), 2);
    expect_rows();
    EXPECT_NE(rows().find('!'), std::string::npos);
    EXPECT_NE(rows().find('.'), std::string::npos);
}

TEST_F(Tree_Rows, WhereverTheyAreScrolled) {
    for (const wchar_t* path : {L"C:\\f129\\s3\\t\\u\\", L"C:\\f100\\s0\\t\\", L"C:\\f115\\s3\\t\\u\\"}) {
        shown(path);
        ASSERT_EQ(tree.Cursor_V.Flag, 0xC000004u);
        std::mt19937 chance(6);
        const float most = tree.Cursor_V.Val_Min;
        for (int round = 0; round < 60; round++) {
            tree.Cursor_V.Cur_Value = most * static_cast<float>(chance() % 1001) / 1000.0f;
            tree.Cursor_H.Cur_Value = static_cast<float>(chance() % 90) / 3.0f;
            recorder::clear();
            const float before = tree.Cursor_V.Cur_Value;
            tree.Scroll(round % 2 ? 1 : -1);
            if (tree.Cursor_V.Cur_Value == before) continue;
            const std::string drawn = rows_of(recorder::text(recorder::kDraw));
            const std::string expected = painted([&] { paint_plainly(); });
            ASSERT_TRUE(drawn == expected) << drawn << "\n--- expected ---\n" << expected;
        }
    }
}

TEST_F(Tree_Rows, MakeTheSlidersAsLongAsTheyAre) {
    shown(L"C:\\f100\\s0\\t\\u\\");
    EXPECT_EQ(tree.Cursor_V.Val_Min, static_cast<float>(4 * BORDER - tree.Cursor_V.Dim_Y + 18 * tree.NbList));
    EXPECT_EQ(tree.Cursor_H.Flag, 0x8000022u) << "short names fit";

    recorder::add_folder(L"C:\\" + std::wstring(60, L'w') + L"\\x\\");
    EXPECT_EQ(refresh(), 2);
    int widest = 0;
    for (int r = 0; r < tree.NbList; r++)
        widest = std::max(widest, tree.Box_Tree.Pos_X + 2 * (9 * (tree.List[r].Depth + 1) + SPACE) +
                                      8 * static_cast<int>(std::wcslen(tree.List[r].Node->name)));
    EXPECT_EQ(tree.Cursor_H.Flag, 0x8000000u);
    EXPECT_EQ(tree.Cursor_H.Val_Max, static_cast<float>(4 * BORDER - tree.Cursor_H.Dim_X + widest));
}

TEST_F(Tree_Rows, ClearTheFootForASliderThatAppears) {
    recorder::add_folder(L"C:\\" + std::wstring(60, L'w') + L"\\x\\");
    shown(L"C:\\");
    const Boxs& t = tree.Box_Tree;
    const std::string band = "Zeb_color(0x96A0AA)\ndraw_fill_rectangle(" + std::to_string(t.Pos_X) + ", " +
                             std::to_string(t.Pos_Y + 2 * SPACE + CURSEUR) + ", " +
                             std::to_string(t.Pos_X + t.Dim_X) + ", " + std::to_string(t.Pos_Y) +
                             ")\nZeb_release()\n";
    EXPECT_NE(painted([&] { tree.Draw(); }).find(band), std::string::npos);
    shown(L"D:\\");
    EXPECT_EQ(painted([&] { tree.Draw(); }).find(band), std::string::npos);
}

TEST_F(Tree_Rows, AreNoneBeforeATreeIsSet) {
    tree.Init(recorder::window());
    const std::string log = painted([&] { tree.Draw(); });
    EXPECT_EQ(log.find("Dir_Tree_Update2"), std::string::npos);
    EXPECT_EQ(log.find("Zeb_Font_Write(font"), std::string::npos);
    EXPECT_EQ(tree.Read(), nullptr);
    EXPECT_EQ(tree.NbList, 0);
}

} // namespace
