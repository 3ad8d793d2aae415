#ifndef BRASK_TABS_H
#define BRASK_TABS_H

#include <brask/boxs.h>
#include <brask/tools.h>

// One slanted tab of a strip: the header of a page, with its title. It is no container and knows nothing of
// what the page shows. A strip sets it up and drives it; only its title, Color, Flag and, if wanted, surfaces
// come from the host. Its face is always flat.
class BRASK_API TabItems : public Tools {
  public:
    int Cur_Value;       // not 0: this tab is the one on top
    int select;          // tracking: 0 none, 1 pointer inside, 2 pointer outside; kept by the tab
    int Slant;           // how far each end leans, pixels; set by the strip
    unsigned char Shape; // how the ends are cut, set by the strip. Low four bits not 0: the right end is
                         // full, else cut at half height; 16 and more: the left end is full
    // Views on the host's surfaces, for each look and value; null without one.
    DWORD* Image_Normal_Off;
    DWORD* Image_Normal_On;
    DWORD* Image_Select_Off;
    DWORD* Image_Select_On;
    // Freed with the tab; never made by it.
    DWORD* Own_Normal_Off;
    DWORD* Own_Normal_On;
    DWORD* Own_Select_Off;
    DWORD* Own_Select_On;
    unsigned int Old_Value; // Cur_Value at the last Init, Draw or effective Adjust; kept by the tab

    TabItems();
    TabItems(const TabItems& other);
    TabItems& operator=(const TabItems& other);
    ~TabItems();

    // Binds the tab to its window. wnd null keeps the window; a black Color becomes the grey (170, 170, 170).
    void Init(HWND wnd);
    // Paints outline, face and title. Needs Init.
    void Draw();
    // Repaints after a change of Cur_Value; with BUTTON_LAMP in Flag always.
    void Adjust();
    // Follows the pointer, whatever the event; 1 when it is on the tab's rectangle, else 0. There is no query
    // here.
    int Select(int mode);
    // Paints the normal look, whether or not the other one is shown.
    void Deselect();
    // Cur_Value, whatever the size.
    int Read();

    // The tab's own forms of the painting operations; `value` not 0 leaves the base open. flags and inset of
    // Cadre are not used.
    void Cadre(long flags, int value, int inset, int x0, int x1, int y0, int y1);
    void Cadre_Outline(int x0, int x1, int y0, int y1);
    // x0 and x1 are the ends of the straight middle. Without a surface the whole face with its edges is
    // drawn.
    void Fill_Select(int selected, const char* surface, long flags, int inset, int x0, int x1, int y0,
                     int y1);
};

// A row of overlapping tabs along the top of a page, one of them on top. The rectangle of the control is the
// strip alone; the page lies below Pos_Y. It holds no pages: the host shows the controls of the page that
// Cur_Value names. To switch: if Select answers not 0, n = Read(), and where that is not negative Cur_Value =
// n, Adjust(), Page(h) and the page's controls.
class BRASK_API Tabs : public Tools {
  public:
    int Cur_Value;   // index of the tab on top; out of range no tab is
    int Reserved;    // copied with the object, never read
    int Page_Dim;    // height for Page(0), pixels, from the top of the tabs
    TabItems** Item; // NbItem tabs, then a null entry; owned. Tabs come from new, the array from malloc
    int Old_Value;   // Cur_Value at the last repaint; kept by the strip
    int NbItem;      // tabs in Item, counted by Init
    int First_X;     // left of tab 0, pixels; made by Init
    int Tab_Width;   // width of each tab but the last, pixels; made by Init
    int Tab_Overlap; // how far neighbours overlap, pixels, which is each tab's slant; made by Init
    Boxs Box;        // built by Init, never painted

    Tabs();
    // A copy shares Item with its source, as all pointers: the host sees to the lifetimes.
    Tabs(const Tabs& other);
    Tabs& operator=(const Tabs& other);
    ~Tabs();

    // Makes the array hold exactly n tabs; new ones get `flag`. Grow once, then name each. 1, or 0 with a
    // report and a null Item when memory fails. A negative n counts as 0.
    int Grow(int n, int flag);
    // Lays the tabs out. wnd null keeps the window. Call it again after a Grow or a change of geometry.
    void Init(HWND wnd);
    // Paints the strip. Needs Init.
    void Draw();
    // Repaints the strip after a change of Cur_Value.
    void Adjust();
    // Follows the pointer over all tabs; 1 when one of them has it.
    int Select(int mode);
    // Paints all tabs in their normal look.
    void Deselect();
    // Index of the tab under the pointer, the lower one where two overlap; -1 for none.
    int Read();
    // Paints the page's background in the colour of the tab on top, `height` pixels from the top of the tabs
    // down; 0 means Page_Dim. Needs at least one tab.
    void Page(int height);

  private:
    void Update();
    void Repaint();
};

#endif
