// The page "Files": the tree of folders, and beside it a console that lists the chosen one.
#include <algorithm>
#include <cstdlib>
#include <filesystem>
#include <string>
#include <vector>

#include <brask/dirtrees.h>
#include <brask/fenn.h>
#include <brask/fenn_host.h>
#include <brask/texts.h>

#include "page.h"

namespace fs = std::filesystem;

namespace {

constexpr int path_room = 2048, native_room = 4 * path_room;
constexpr int rows_above = 4;      // of the folder to start with
constexpr std::size_t most = 2000; // entries that are listed
const wchar_t blue[] = L"\x01", black[] = L"\x02", red[] = L"\x04";

std::string asked; // by files_start

// The folder to start with, in the library's form; the root of drive C without one.
std::wstring start() {
    wchar_t path[path_room];
    const char* const places[] = {asked.c_str(), std::getenv("USERPROFILE"), std::getenv("HOME")};
    for (const char* native : places) {
        if (native && *native && Fenn_Path_From_Native(native, path, path_room)) return path;
    }
    return L"C:\\";
}

// The last part of a path in the library's form; empty when it has none there.
std::wstring name_of(const fs::path& native) {
    wchar_t path[path_room];
    if (!Fenn_Path_From_Native(native.u8string().c_str(), path, path_room)) return {};
    const std::wstring whole = path;
    return whole.substr(whole.rfind(L'\\') + 1);
}

// The names in a folder, sub-folders first and with a separator; `wrong` tells that it could not be read.
struct Content {
    std::vector<std::wstring> folders, files;
    bool wrong = false;

    explicit Content(const wchar_t* path) {
        char native[native_room];
        std::error_code error;
        fs::directory_iterator entry;
        if (Fenn_Path_To_Native(path, native, native_room))
            entry = fs::directory_iterator(fs::u8path(native), error);
        else
            wrong = true;
        while (!error && entry != fs::directory_iterator() && folders.size() + files.size() < most) {
            std::error_code unknown;
            const std::wstring name = name_of(entry->path());
            if (!name.empty()) (entry->is_directory(unknown) ? folders : files).push_back(name);
            entry.increment(error);
        }
        wrong = wrong || error;
        std::sort(folders.begin(), folders.end());
        std::sort(files.begin(), files.end());
    }
};

// A slider's range and place, which outlive a new layout of the tree.
class Kept {
  public:
    explicit Kept(Sliders& place)
        : slider(place), low(place.Val_Min), high(place.Val_Max), at(place.Cur_Value) {}
    ~Kept() {
        slider.Val_Min = low;
        slider.Val_Max = high;
        slider.Cur_Value = at;
    }

  private:
    Sliders& slider;
    float low, high, at;
};

class Files : public Page {
  public:
    Files() {
        tree.Name_Set(L"Folder:");
        console.Flag = TEXTS_CURSOR_V;
        console.Color.set(235, 235, 225, 0);
        tree.Set(start().c_str());
    }
    void layout(HWND wnd, const Area& area) override {
        Area inner = area.inset(SPACE);
        inner.cut_left(inner.width * 45 / 100).give(tree);
        inner.cut_left(SPACE);
        inner.give(console);
        {
            Kept down(tree.Cursor_V), sideways(tree.Cursor_H);
            tree.Init(wnd);
        }
        console.Init(wnd);
        if (!listed) list();
    }
    void draw() override {
        tree.Draw();
        if (!shown) bring_into_view();
        console.Draw();
    }
    // To the tree every word but 0 is a click: so it gets presses, and moves only while a slider is held.
    void pointer(int word) override {
        const int event = word & 15;
        const bool held = tree.Cursor_V.Held || tree.Cursor_H.Held;
        if (event == 0)
            tree.Select(0);
        else if ((event == 2 || held) && tree.Select(word) == 2)
            show();
        console.Select(word);
    }
    void wheel(int notches) override {
        if (over_console())
            console.Scroll(notches);
        else
            tree.Scroll(notches);
    }
    void each(const Visitor& visit) const override {
        visit("tree", tree);
        visit("rows", tree.Box_Tree);
        visit("button", tree.But_Refresh);
        visit("down", tree.Cursor_V);
        visit("sideways", tree.Cursor_H);
        visit("console", console);
    }

  private:
    bool over_console() const {
        Zeb_setup(console.Wnd, "Files");
        POINT pointer = read_curs(static_cast<int*>(nullptr), static_cast<int*>(nullptr));
        Zeb_release();
        return PtInRect(&console.Region, pointer);
    }
    // Scrolls to the folder that the page starts with, some rows from the top.
    void bring_into_view() {
        shown = true;
        for (int row = 0; row < tree.NbList; row++)
            if (tree.List[row].Node == tree.Current) tree.Scroll(rows_above - row);
    }
    // Each line would be painted at once: the console is drawn as a whole afterwards.
    void list() {
        listed = true;
        console.Cleanup();
        console.Flag |= OUTIL_INVISIBLE;
        write();
        console.Flag &= ~OUTIL_INVISIBLE;
        console.Center(0);
    }
    void show() {
        list();
        console.Draw();
    }
    void write() {
        const wchar_t* path = tree.Read();
        if (!path) return console.Write(L"%lsNo folder is chosen.", red);
        console.Write(L"%ls", path);
        const Content content(path);
        for (const std::wstring& name : content.folders)
            console.Write(L"  %ls%ls\\", blue, name.c_str());
        for (const std::wstring& name : content.files)
            console.Write(L"  %ls%ls", black, name.c_str());
        if (content.wrong) console.Write(L"%lsThe folder could not be read to its end.", red);
    }

    DirTrees tree;
    Texts console;
    bool listed = false, shown = false;
};

} // namespace

void files_start(const std::string& folder) { asked = folder; }
std::unique_ptr<Page> make_page_files() { return std::make_unique<Files>(); }
