// A host that asks before it closes: the window counts on meanwhile, since a question lets timers and paint
// requests go on.
#include <brask/boxs.h>
#include <brask/popup.h>

static Boxs counter; // shows how many tenths of a second the window is open
static int tenths;

static bool may_close() {
    static const wchar_t* const words[] = {L"Close", L"Cancel", nullptr};
    wchar_t text[] = L"The count will be lost.";
    return PopUp_Query(L"Warning", L"Close the window?", text, words, 320, 0, nullptr) == 0;
}

static void place(HWND wnd) {
    RECT client;
    GetClientRect(wnd, &client);
    counter.Flag = TEXT_MIDDLE;
    counter.Font_Size = 30;
    counter.Dim_X = client.right - 1;
    counter.Dim_Y = client.bottom - 1;
    counter.Init(wnd);
}

static void count() {
    counter.Name_Set(L"%d.%d s", tenths / 10, tenths % 10);
    tenths++;
    counter.Draw();
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
        counter.Draw();
        EndPaint(wnd, &paint);
        return 0;
    case WM_TIMER: count(); return 0;
    case WM_CLOSE:
        if (may_close()) DestroyWindow(wnd);
        return 0;
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
    kind.lpszClassName = L"question";
    RegisterClassExW(&kind);

    HWND wnd = CreateWindowExW(0, kind.lpszClassName, L"Question", WS_OVERLAPPEDWINDOW, CW_USEDEFAULT,
                               CW_USEDEFAULT, 360, 160, nullptr, nullptr, kind.hInstance, nullptr);
    SetTimer(wnd, 1, 100, nullptr);
    ShowWindow(wnd, SW_SHOW);
    MSG message;
    while (GetMessageW(&message, nullptr, 0, 0) > 0) {
        TranslateMessage(&message);
        DispatchMessageW(&message);
    }
    return 0;
}
