// The smallest host: one window with one toggle button.
#include <brask/boxs.h>
#include <brask/buttons.h>
#include <brask/fenn.h>
#include <brask/pointer.h>

static Boxs ground;    // OUTIL_EMPTY: no face of its own, so that Clear paints it flat
static Buttons button; // its value is ours: we flip it at a click

// Writes the fields anew for the window's size, which is known only now.
static void place(HWND wnd) {
    RECT client;
    GetClientRect(wnd, &client);
    ground.Flag = OUTIL_EMPTY;
    ground.Dim_X = client.right;
    ground.Dim_Y = client.bottom;
    ground.Init(wnd);
    button.Dim_X = 160;
    button.Dim_Y = 40;
    button.Pos_X = (client.right - button.Dim_X) / 2;
    button.Pos_Y = (client.bottom - button.Dim_Y) / 2; // from the lower edge
    button.Init(wnd);
}

// One mouse message: the position goes to the drawing layer first, then the event word to the button.
static void mouse(HWND wnd, int event, LPARAM position) {
    Zeb_setup(wnd, "hello");
    set_curs(short(LOWORD(position)), short(HIWORD(position)));
    Zeb_release();
    if (button.Select(event + 16 * getbutton(VK_LBUTTON)) && event == 2) {
        button.Cur_Value = !button.Cur_Value;
        button.Adjust();
    }
}

static LRESULT CALLBACK procedure(HWND wnd, UINT message, WPARAM wparam, LPARAM lparam) {
    PAINTSTRUCT paint;
    TRACKMOUSEEVENT leaving = {sizeof leaving, TME_LEAVE, wnd, 0};
    switch (message) {
    case WM_SIZE:
        place(wnd);
        InvalidateRect(wnd, nullptr, FALSE);
        return 0;
    case WM_PAINT:
        BeginPaint(wnd, &paint);
        ground.Clear();
        button.Draw();
        EndPaint(wnd, &paint);
        return 0;
    case WM_MOUSEMOVE:
        TrackMouseEvent(&leaving);
        mouse(wnd, wparam & MK_LBUTTON ? 1 : 0, lparam);
        return 0;
    case WM_MOUSELEAVE: mouse(wnd, 0, MAKELPARAM(-1, -1)); return 0; // a button that is left is lit no more
    case WM_LBUTTONDOWN: mouse(wnd, 2, lparam); return 0;
    case WM_LBUTTONUP: mouse(wnd, 0, lparam); return 0;
    case WM_DESTROY: PostQuitMessage(0); return 0;
    }
    return DefWindowProcW(wnd, message, wparam, lparam);
}

int main() {
    WNDCLASSEXW kind = {};
    kind.cbSize = sizeof kind;
    kind.lpfnWndProc = procedure;
    kind.hInstance = GetModuleHandleW(nullptr);
    kind.hCursor = LoadCursorW(nullptr, IDC_ARROW);
    kind.lpszClassName = L"hello";
    RegisterClassExW(&kind);

    button.Name_Set("Hello");
    HWND wnd = CreateWindowExW(0, kind.lpszClassName, L"Hello", WS_OVERLAPPEDWINDOW, CW_USEDEFAULT,
                               CW_USEDEFAULT, 360, 200, nullptr, nullptr, kind.hInstance, nullptr);
    ShowWindow(wnd, SW_SHOW);
    MSG message;
    while (GetMessageW(&message, nullptr, 0, 0) > 0) {
        TranslateMessage(&message);
        DispatchMessageW(&message);
    }
    return 0;
}
