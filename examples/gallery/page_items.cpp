// The page "Items": lists, check lists and spinners.
#include <algorithm>
#include <iterator>
#include <memory>
#include <vector>

#include <brask/checklists.h>
#include <brask/lists.h>
#include <brask/selects.h>

#include "page.h"
#include "panel.h"

namespace {

constexpr int many = 10000;

// What a host does with a list: the item under the pointer becomes the current one at a press.
void take_item(Lists& list, int word) {
    if (!list.Select(word) || (word & 15) != 2) return;
    int item = list.Read();
    if (item < 0) return;
    list.Cur_Value = item;
    list.Adjust();
}

class ListSection {
  public:
    ListSection() {
        set(few, OUTIL_VERTICAL, L"All fit", 8, L"Item %d");
        set(rows, OUTIL_VERTICAL | OUTIL_CAPTURE, L"Ten thousand", many, L"Row %d");
        set(side, 0, L"Side by side", 5, L"Item %d");
        set(columns, OUTIL_CAPTURE, L"Forty", 40, L"Column %d");
        set(disabled, OUTIL_VERTICAL | OUTIL_DISABLE, L"Disabled", 5, L"Item %d");
        rows.Cur_Value = 3;
    }
    void layout(HWND wnd, const Area& area) {
        Area inner = panel.place(wnd, area);
        for (Lists* list : {&columns, &side}) {
            place(*list, wnd, inner.cut_bottom(90));
            inner.cut_bottom(SPACE);
        }
        place(few, wnd, inner.cell(0, 3, 0, 1));
        place(rows, wnd, inner.cell(1, 3, 0, 1));
        place(disabled, wnd, inner.cell(2, 3, 0, 1));
    }
    void draw() {
        panel.draw();
        for (Lists* list : lists)
            list->Draw();
    }
    void pointer(int word) {
        for (Lists* list : lists)
            take_item(*list, word);
    }
    void wheel(int notches) {
        for (Lists* list : lists)
            if (list->Select(KEY_QUERY)) list->Scroll(list->Flag & OUTIL_VERTICAL ? -notches : notches);
    }
    void each(const Visitor& visit) const {
        panel.each(visit);
        for (const Lists* list : lists)
            visit("list", *list);
    }

  private:
    static void set(Lists& list, DWORD flag, const wchar_t* name, int count, const wchar_t* item) {
        list.Flag = flag;
        list.Name_Set(L"%ls", name);
        if (!list.Grow(count, 0)) return;
        for (int i = 0; i < count; i++)
            list.Item[i]->Name_Set(item, i + 1);
    }
    // Where item 0 of a list stands that is not scrolled.
    static float origin(const Lists& list) {
        return list.Flag & OUTIL_VERTICAL ? list.Slider.Val_Max : list.Slider.Val_Min;
    }
    // Init keeps the place of item 0 in the window; a user expects the same items in a window of another
    // size.
    static void place(Lists& list, HWND wnd, const Area& area) {
        const float scrolled = list.Slider.Cur_Value - origin(list);
        area.give(list);
        list.Init(wnd);
        list.Slider.Cur_Value = origin(list) + scrolled;
    }

    Panel panel{L"Lists"};
    Lists few, rows, side, columns, disabled;
    Lists* const lists[5] = {&few, &rows, &side, &columns, &disabled};
};

const char* const toppings[] = {"Tomato", "Mushroom", "Onion", "Olives", "Basil", "Capers", nullptr};
const char* const sizes[] = {"Small", "Medium", "Large", "Family", nullptr};
const char enabled[] = {1, 1, 0, 1, 1, 0};
const unsigned int tones[] = {0x4040D0, 0x60A0D0, 0xE0E0E0, 0x408040, 0x40C040, 0x808040};

class CheckSection {
  public:
    CheckSection() {
        mask.List = colored.List = toppings;
        mask.Cur_Value = 5;
        mask.Name_Set(L"Mask");
        colored.Colour = tones;
        colored.Enable = enabled;
        colored.Name_Set(L"Colours");
        one.List = sizes;
        one.Flag = CHECK_EXCLUSIVE | CHECK_HORIZONTAL;
        one.Cur_Value = 1;
        one.Name_Set(L"Exclusive");
        for (CheckLists* list : lists)
            list->Font_Size = 12;
    }
    void layout(HWND wnd, const Area& area) {
        Area inner = panel.place(wnd, area);
        place(one, wnd, inner.cut_bottom(std::max(inner.height / 4, 70))); // two rows at least
        inner.cut_bottom(SPACE);
        place(mask, wnd, inner.cell(0, 2, 0, 1));
        place(colored, wnd, inner.cell(1, 2, 0, 1));
    }
    void draw() {
        panel.draw();
        for (CheckLists* list : lists)
            list->Draw();
    }
    void pointer(int word) {
        for (CheckLists* list : lists) {
            if (!list->Select(word) || (word & 15) != 2) continue;
            long long value = list->Read();
            if (value < 0) continue;
            list->Cur_Value = value;
            list->Adjust();
        }
    }
    void each(const Visitor& visit) const {
        panel.each(visit);
        for (const CheckLists* list : lists)
            visit("checks", *list);
    }

  private:
    static void place(CheckLists& list, HWND wnd, const Area& area) {
        area.give(list);
        list.Init(wnd);
    }

    Panel panel{L"Check lists"};
    CheckLists mask, colored, one;
    CheckLists* const lists[3] = {&mask, &colored, &one};
};

struct SpinnerSample {
    const wchar_t* name;
    DWORD flag;
    int width;   // of the value zone; 0: what the name leaves
    int skipped; // of the choices this one is out of the cycle; -1: none
};
const SpinnerSample spinners[] = {
    {L"Weekday", TEXT_LEFT, 0, -1},
    {L"No Wednesday", TEXT_LEFT, 200, 2},
    {L"Name above", 0, 0, -1},
    {L"Disabled", TEXT_LEFT | OUTIL_DISABLE, 200, -1},
};
constexpr std::size_t name_above = 2;
const wchar_t* const choices[] = {L"Monday", L"Tuesday",  L"Wednesday", L"Thursday",
                                  L"Friday", L"Saturday", L"Sunday"};

class SpinnerSection {
  public:
    SpinnerSection() : lying(std::size(spinners)) {
        for (std::size_t i = 0; i < lying.size(); i++) {
            lying[i].Flag = spinners[i].flag;
            lying[i].Value_Dim = spinners[i].width;
            lying[i].Arrow_Dim = BUT_DIM;
            lying[i].Name_Set(L"%ls", spinners[i].name);
            fill(lying[i], spinners[i].skipped);
        }
        standing.Flag = OUTIL_VERTICAL;
        standing.Arrow_Dim = BUT_DIM;
        fill(standing, -1);
    }
    void layout(HWND wnd, const Area& area) {
        Area inner = panel.place(wnd, area);
        Area upper = inner.cut_left(inner.width * 3 / 4);
        for (std::size_t i = 0; i < lying.size(); i++) {
            Area row = upper.cell(0, 1, int(i), int(lying.size()));
            int height = i == name_above ? 60 : 36;
            row.cut_top(row.height < height ? row.height : height).give(lying[i]);
            lying[i].Init(wnd);
        }
        inner.cut_left(SPACE);
        inner.cut_top(inner.height < 130 ? inner.height : 130).give(standing);
        standing.Init(wnd);
    }
    void draw() {
        panel.draw();
        for (Selects& spinner : lying)
            spinner.Draw();
        standing.Draw();
    }
    void pointer(int word) {
        for (Selects& spinner : lying)
            follow(spinner, word);
        follow(standing, word);
    }
    void wheel(int notches) {
        for (Selects& spinner : lying)
            if (spinner.Select(KEY_QUERY)) spinner.Scroll(notches);
        if (standing.Select(KEY_QUERY)) standing.Scroll(notches);
    }
    void each(const Visitor& visit) const {
        panel.each(visit);
        for (const Selects& spinner : lying)
            visit("spinner", spinner);
        visit("spinner", standing);
    }

  private:
    static void fill(Selects& spinner, int skipped) {
        if (!spinner.Grow(int(std::size(choices)), 0)) return;
        for (std::size_t i = 0; i < std::size(choices); i++)
            spinner.Item[i]->Name_Set(L"%ls", choices[i]);
        if (skipped >= 0) spinner.Item[skipped]->Flag |= OUTIL_INVISIBLE;
    }
    // The spinner steps by itself; a draw after the press shows the new choice at once.
    static void follow(Selects& spinner, int word) {
        if (spinner.Select(word) && (word & 15) == 2) spinner.Adjust();
    }

    Panel panel{L"Spinners"};
    std::vector<Selects> lying;
    Selects standing;
};

class Items : public Page {
  public:
    void layout(HWND wnd, const Area& area) override {
        Area inner = area.inset(SPACE);
        lists.layout(wnd, inner.cut_left(inner.width * 62 / 100));
        inner.cut_left(SPACE);
        checks.layout(wnd, inner.cut_top(inner.height * 45 / 100));
        inner.cut_top(SPACE);
        spinner.layout(wnd, inner);
    }
    void draw() override {
        lists.draw();
        checks.draw();
        spinner.draw();
    }
    void pointer(int word) override {
        lists.pointer(word);
        checks.pointer(word);
        spinner.pointer(word);
    }
    void wheel(int notches) override {
        lists.wheel(notches);
        spinner.wheel(notches);
    }
    void each(const Visitor& visit) const override {
        lists.each(visit);
        checks.each(visit);
        spinner.each(visit);
    }

  private:
    ListSection lists;
    CheckSection checks;
    SpinnerSection spinner;
};

} // namespace

std::unique_ptr<Page> make_page_items() { return std::make_unique<Items>(); }
