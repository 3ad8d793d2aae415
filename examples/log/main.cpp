// A log window with a command line: a timer writes a line each second, commands are typed at the foot.
#include <cstring>

#include <brask/fenn.h>
#include <brask/pointer.h>
#include <brask/texts.h>

#include "../editor_keys.h"

static Texts console;
static int seconds;
static bool paused;

// Tells what comes; the line itself was put into the log by Enter.
static void run(HWND wnd, const char* line) {
    if (std::strcmp(line, "pause") == 0) {
        paused = !paused;
        console.Write(paused ? "The log rests." : "The log goes on.");
    } else if (std::strcmp(line, "quit") == 0) {
        PostMessageW(wnd, WM_CLOSE, 0, 0);
    } else if (*line) {
        console.Write("\x04\"%s\" is no command.\x02 There are: pause, quit.", line);
    }
}

static void key(HWND wnd, UINT message, WPARAM wparam, LPARAM lparam) {
    int code = Parse_Keyboard(wnd, message, wparam, lparam); // Esc closes the window here
    console.Input(editor_key(message, wparam, code));
    if (char* line = console.Update()) {
        run(wnd, line);
        console.Read(nullptr); // the next line
    }
}

// One mouse message: the position goes to the drawing layer first, then the event word to the console.
static void mouse(HWND wnd, int event, LPARAM position) {
    Zeb_setup(wnd, "log");
    set_curs(short(LOWORD(position)), short(HIWORD(position)));
    Zeb_release();
    console.Select(event + 16 * getbutton(VK_LBUTTON));
}

static void place(HWND wnd) {
    RECT client;
    GetClientRect(wnd, &client);
    console.Dim_X = client.right - 1; // a frame reaches one pixel beyond its size
    console.Dim_Y = client.bottom - 1;
    console.Pos_Y = 0;
    console.Init(wnd);
    InvalidateRect(wnd, nullptr, FALSE);
}

static LRESULT CALLBACK procedure(HWND wnd, UINT message, WPARAM wparam, LPARAM lparam) {
    PAINTSTRUCT paint;
    switch (message) {
    case WM_SIZE: place(wnd); return 0;
    case WM_PAINT:
        BeginPaint(wnd, &paint);
        console.Draw();
        EndPaint(wnd, &paint);
        return 0;
    case WM_TIMER:
        if (!paused) console.Write("\xC3\xB1%d s:\xC3\xB0 all is well", ++seconds); // bold and back
        return 0;
    case WM_MOUSEMOVE: mouse(wnd, wparam & MK_LBUTTON ? 1 : 0, lparam); return 0;
    case WM_LBUTTONDOWN: mouse(wnd, 2, lparam); return 0;
    case WM_LBUTTONUP: mouse(wnd, 0, lparam); return 0;
    case WM_MOUSEWHEEL: console.Scroll(-GET_WHEEL_DELTA_WPARAM(wparam) / WHEEL_DELTA); return 0;
    case WM_KEYDOWN:
    case WM_KEYUP:
    case WM_CHAR: key(wnd, message, wparam, lparam); return 0;
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
    kind.lpszClassName = L"log";
    RegisterClassExW(&kind);

    console.Flag = TEXTS_CURSOR_V | TEXTS_READ_STRIP | OUTIL_CAPTURE;
    HWND wnd = CreateWindowExW(0, kind.lpszClassName, L"Log", WS_OVERLAPPEDWINDOW, CW_USEDEFAULT,
                               CW_USEDEFAULT, 600, 360, nullptr, nullptr, kind.hInstance, nullptr);
    ShowWindow(wnd, SW_SHOW); // WM_SIZE comes first, and with it Init
    console.Read(nullptr);
    SetTimer(wnd, 1, 1000, nullptr);
    MSG message;
    while (GetMessageW(&message, nullptr, 0, 0) > 0) {
        TranslateMessage(&message);
        DispatchMessageW(&message);
    }
    return 0;
}
