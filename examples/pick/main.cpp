// Picks a folder: prints its path, in the system's own form, and ends with 0; with 1 when none was taken.
//   pick [FOLDER]
#include <cstdio>

#include <brask/buttons.h>
#include <brask/dirtrees.h>
#include <brask/fenn.h>
#include <brask/fenn_host.h>
#include <brask/pointer.h>

static constexpr int margin = 4, foot = 40;
static Boxs ground; // OUTIL_EMPTY: Clear paints it flat
static DirTrees tree;
static Buttons take; // disabled while no folder is chosen
static bool taken;

static void place(HWND wnd) {
    RECT client;
    GetClientRect(wnd, &client);
    ground.Flag = OUTIL_EMPTY;
    ground.Dim_X = client.right;
    ground.Dim_Y = client.bottom;
    ground.Init(wnd);
    tree.Pos_X = margin;
    tree.Pos_Y = foot;
    tree.Dim_X = client.right - 2 * margin;
    tree.Dim_Y = client.bottom - foot - margin;
    tree.Init(wnd);
    take.Pos_X = take.Pos_Y = margin;
    take.Dim_X = client.right - 2 * margin;
    take.Dim_Y = foot - 2 * margin;
    take.Init(wnd);
}

static void draw() {
    ground.Clear();
    tree.Draw();
    take.Draw();
}

// A drive's root and every folder have a path; the machine itself has none.
static void allow() {
    take.Flag = tree.Read() ? 0 : OUTIL_DISABLE;
    take.Name_Set(tree.Read() ? L"Take this folder" : L"No folder is chosen");
}

// One mouse message: the position goes to the drawing layer first, then the event word to the controls. To
// the tree every word but 0 is a click, so moves are for it only while one of its sliders is held.
static void mouse(HWND wnd, int event, LPARAM position) {
    Zeb_setup(wnd, "pick");
    set_curs(short(LOWORD(position)), short(HIWORD(position)));
    Zeb_release();
    const bool held = tree.Cursor_V.Held || tree.Cursor_H.Held;
    if (event != 1 || held) {
        if (tree.Select(event ? event + 16 : 0) == 2) {
            allow();
            take.Draw();
        }
    }
    if (take.Select(event) && event == 2) {
        taken = true;
        DestroyWindow(wnd);
    }
}

static LRESULT CALLBACK procedure(HWND wnd, UINT message, WPARAM wparam, LPARAM lparam) {
    PAINTSTRUCT paint;
    switch (message) {
    case WM_SIZE:
        place(wnd);
        InvalidateRect(wnd, nullptr, FALSE);
        return 0;
    case WM_PAINT:
        BeginPaint(wnd, &paint);
        draw();
        EndPaint(wnd, &paint);
        return 0;
    case WM_MOUSEMOVE: mouse(wnd, wparam & MK_LBUTTON ? 1 : 0, lparam); return 0;
    case WM_LBUTTONDOWN: mouse(wnd, 2, lparam); return 0;
    case WM_LBUTTONUP: mouse(wnd, 0, lparam); return 0;
    case WM_MOUSEWHEEL: tree.Scroll(short(HIWORD(wparam)) > 0 ? 3 : -3); return 0;
    case WM_DESTROY: PostQuitMessage(0); return 0;
    }
    return DefWindowProcW(wnd, message, wparam, lparam);
}

// The folder to start with, or the current one.
static void start(const char* native) {
    wchar_t path[2048] = L".";
    if (native && !Fenn_Path_From_Native(native, path, 2048))
        std::fprintf(stderr, "pick: cannot start in %s\n", native);
    tree.Name_Set(L"Folder:");
    tree.Set(path);
    allow();
}

// Prints what was chosen.
static int answer() {
    char native[8192];
    if (!taken || !tree.Read() || !Fenn_Path_To_Native(tree.Read(), native, sizeof native)) return 1;
    std::printf("%s\n", native);
    return 0;
}

int main(int argc, char** argv) {
    WNDCLASSEXW kind = {};
    kind.cbSize = sizeof kind;
    kind.lpfnWndProc = procedure;
    kind.hInstance = GetModuleHandleW(nullptr);
    kind.hCursor = LoadCursorW(nullptr, IDC_ARROW);
    kind.lpszClassName = L"pick";
    RegisterClassExW(&kind);

    start(argc > 1 ? argv[1] : nullptr);
    HWND wnd = CreateWindowExW(0, kind.lpszClassName, L"Pick a folder", WS_OVERLAPPEDWINDOW, CW_USEDEFAULT,
                               CW_USEDEFAULT, 420, 560, nullptr, nullptr, kind.hInstance, nullptr);
    if (!wnd) return 1;
    ShowWindow(wnd, SW_SHOW);
    MSG message;
    while (GetMessageW(&message, nullptr, 0, 0) > 0) {
        TranslateMessage(&message);
        DispatchMessageW(&message);
    }
    return answer();
}
