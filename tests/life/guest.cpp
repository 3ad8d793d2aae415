#include "guest.h"

#include <cstring>

#include <brask/boxs.h>
#include <brask/buttons.h>
#include <brask/library.h>
#include <brask/lists.h>
#include <brask/popup.h>
#include <brask/texts.h>

#ifdef _WIN32
#define GUEST_API __declspec(dllexport)
#else
#define GUEST_API __attribute__((visibility("default")))
#endif

static void place(Tools& control, HWND, int x, int y, int width, int height) {
    control.Pos_X = x, control.Pos_Y = y, control.Dim_X = width, control.Dim_Y = height;
    control.Name_Set("Name");
}

template <typename Control>
static void show(Control& control, HWND wnd) {
    control.Init(wnd);
    control.Draw();
}

extern "C" GUEST_API void use(HWND wnd, Found* found) {
    const char* line = Get_Version_Tools(nullptr);
    found->same_buffer = line == Get_Version_Tools("27.0");
    std::strncpy(found->version, line, sizeof found->version - 1);
    found->other_version_refused = !Get_Version_Tools("27.1") && !Get_Version_Tools("27.0.1");
    found->list_height_before = BUT_LIST;
    BUT_DIM = 99;
    found->list_height_after = BUT_LIST;

    Boxs box;
    Buttons button;
    Lists list;
    Texts console;
    place(box, wnd, 0, 0, 100, 100);
    place(button, wnd, 10, 10, 50, 20);
    place(list, wnd, 100, 0, 100, 100);
    place(console, wnd, 200, 0, 100, 100);
    list.Flag = OUTIL_VERTICAL;
    list.Grow(20, 0);
    console.Flag = TEXTS_CURSOR_V;
    show(box, wnd);
    show(button, wnd);
    show(list, wnd);
    show(console, wnd);
    console.Write("one\ntwo\n%d", 3);
    found->pointer_on_button = button.Select(KEY_QUERY) != 0;

    const wchar_t* const none[] = {nullptr};
    wchar_t text[] = L"text";
    found->question = PopUp_Query(L"Error", L"Title", text, none, 0, 0, nullptr);
    Tools_Lib_Cleanup();
}
