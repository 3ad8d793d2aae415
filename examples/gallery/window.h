#ifndef GALLERY_WINDOW_H
#define GALLERY_WINDOW_H

#include <memory>
#include <vector>

#include <brask/boxs.h>
#include <brask/tabs.h>

#include "page.h"
#include "strip.h"

// The gallery's window: it owns the pages behind their tabs and the strip, and routes the messages to them.
class Gallery {
  public:
    // `shown` opens a window on the desktop; without it the window is memory and needs no display.
    Gallery(const PageEntry& entry, int width, int height, bool shown);
    ~Gallery();
    Gallery(const Gallery&) = delete;
    Gallery& operator=(const Gallery&) = delete;

    HWND window() const { return wnd; } // null when there could be none
    void layout();
    void draw();
    void each(const Visitor& visit) const;
    // Runs the message loop until the window is closed.
    static void run();

  private:
    static LRESULT CALLBACK procedure(HWND wnd, UINT message, WPARAM wparam, LPARAM lparam);
    LRESULT handle(UINT message, WPARAM wparam, LPARAM lparam);
    void paint();
    void mouse(UINT message, LPARAM position);
    void leave();
    void wheel(WPARAM amount);
    void choose_page(int word);
    void show_page(const Area& area);
    void key(UINT message, WPARAM wparam, LPARAM lparam);

    HWND wnd = nullptr;
    Boxs ground; // clears what no control covers
    Tabs tabs;
    std::vector<std::unique_ptr<Page>> made; // a page is made when it is first shown
    Page* page = nullptr;                    // the one on top
    Strip strip;
    int turned = 0;       // what the wheel was turned short of a whole notch
    bool watched = false; // the system was asked to tell when the pointer leaves
};

#endif
