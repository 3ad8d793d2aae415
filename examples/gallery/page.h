#ifndef GALLERY_PAGE_H
#define GALLERY_PAGE_H

#include <cstddef>
#include <functional>
#include <memory>
#include <string>

#include <brask/tools.h>

// A rectangle in the library's coordinates: x, y is the lower left corner, Y runs upward.
struct Area {
    int x, y, width, height;

    Area inset(int by) const { return {x + by, y + by, width - 2 * by, height - 2 * by}; }
    // Takes a strip off an edge: the strip is returned, the area keeps the rest.
    Area cut_top(int h) {
        height -= h;
        return {x, y + height, width, h};
    }
    Area cut_bottom(int h) {
        y += h;
        height -= h;
        return {x, y - h, width, h};
    }
    Area cut_left(int w) {
        x += w;
        width -= w;
        return {x - w, y, w, height};
    }
    // One cell of a grid over the area, counted from the upper left, SPACE pixels between two cells.
    Area cell(int column, int columns, int row, int rows) const {
        int left = (width + SPACE) * column / columns, right = (width + SPACE) * (column + 1) / columns;
        int top = (height + SPACE) * row / rows, bottom = (height + SPACE) * (row + 1) / rows;
        return {x + left, y + height - bottom + SPACE, right - left - SPACE, bottom - top - SPACE};
    }
    void give(Tools& control) const {
        control.Pos_X = x;
        control.Pos_Y = y;
        control.Dim_X = width;
        control.Dim_Y = height;
    }
};

// Called for one control after the other: its class, and the control.
typedef std::function<void(const char* kind, const Tools& control)> Visitor;

// One page: a set of controls and what the host does with them.
class Page {
  public:
    virtual ~Page() = default;
    // Writes the fields for this area and prepares the controls. Called again at every change of size.
    virtual void layout(HWND wnd, const Area& area) = 0;
    // Paints everything on the cleared ground.
    virtual void draw() = 0;
    // Follows one mouse message. The drawing layer knows its position already.
    virtual void pointer(int word) = 0;
    // The wheel was turned, positive away from the user.
    virtual void wheel(int notches) { (void)notches; }
    // A key for an editor, see editor_keys.h.
    virtual void key(int key) { (void)key; }
    // Called when a message was dealt with.
    virtual void settle() {}
    virtual void each(const Visitor& visit) const = 0;
};

// The pages in their order; a further family adds its line to the table in pages.cpp.
struct PageEntry {
    const char* name;
    std::unique_ptr<Page> (*make)();
};
extern const PageEntry pages[];
extern const std::size_t page_count;
// The entry of that name, null when there is none.
const PageEntry* page_find(const char* name);

// The folder that the page "Files" starts with, a native path; empty: the user's own.
void files_start(const std::string& folder);

#endif
