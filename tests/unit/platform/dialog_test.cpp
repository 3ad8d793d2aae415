// Modal dialogs from a template in memory. What stands here holds on both systems.

#include "dialog_box.h"

// One owner for all: showing and hiding a window takes long on some desktops.
class Dialog : public testing::Test {
  protected:
    static void SetUpTestSuite() { shared = new Owner; }
    static void TearDownTestSuite() { delete shared; }
    void TearDown() override {
        owner.after = nullptr;
        Owner::settle();
        owner.heard.clear();
    }

    static inline Owner* shared = nullptr;
    Owner& owner = *shared;
};

TEST_F(Dialog, OpensAsItsTemplateSays) {
    Box box;
    box.memory = template_bytes(L"caption", 150, 75);
    RECT client{};
    wchar_t caption[32] = L"";
    DWORD style = 0;
    bool visible = true, enabled = true;
    HWND parent = nullptr;
    box.answer = [&](UINT message, WPARAM, LPARAM lparam) -> INT_PTR {
        if (message != WM_INITDIALOG) return FALSE;
        EXPECT_EQ(lparam, reinterpret_cast<LPARAM>(&box));
        GetClientRect(box.wnd, &client);
        GetWindowTextW(box.wnd, caption, 32);
        style = static_cast<DWORD>(GetWindowLongPtrW(box.wnd, GWL_STYLE));
        visible = IsWindowVisible(box.wnd);
        enabled = IsWindowEnabled(owner.wnd);
        parent = GetParent(box.wnd);
        return EndDialog(box.wnd, 7);
    };
    EXPECT_EQ(box.run(owner.wnd), 7);
    EXPECT_EQ(box.heard.front(), static_cast<UINT>(WM_INITDIALOG));
    EXPECT_EQ(client.right, (150 * LOWORD(GetDialogBaseUnits()) + 2) / 4); // to the nearest
    EXPECT_EQ(client.bottom, (75 * HIWORD(GetDialogBaseUnits()) + 4) / 8);
    EXPECT_STREQ(caption, L"caption");
    EXPECT_EQ(style & (WS_CAPTION | WS_THICKFRAME | WS_SYSMENU), WS_CAPTION | WS_THICKFRAME | WS_SYSMENU);
    EXPECT_FALSE(visible);
    EXPECT_FALSE(enabled);
    EXPECT_EQ(parent, owner.wnd);
    EXPECT_FALSE(IsWindow(box.wnd));
    EXPECT_TRUE(IsWindowEnabled(owner.wnd));
}

// The loop runs; the first timer tick of the dialog ends it.
static void tick_soon(const Box& box) { SetTimer(box.wnd, 1, 10, nullptr); }

TEST_F(Dialog, IsShownActiveAndGivesItsOwnerBack) {
    Box box;
    bool visible = false, active = false, focused = false;
    box.answer = [&](UINT message, WPARAM, LPARAM) -> INT_PTR {
        if (message == WM_INITDIALOG) tick_soon(box);
        if (message != WM_TIMER) return FALSE;
        visible = IsWindowVisible(box.wnd);
        active = GetActiveWindow() == box.wnd;
        focused = GetFocus() == box.wnd;
        return EndDialog(box.wnd, 3);
    };
    EXPECT_EQ(box.run(owner.wnd), 3);
    EXPECT_TRUE(visible);
    EXPECT_TRUE(active);
    EXPECT_TRUE(focused);
    EXPECT_TRUE(IsWindowEnabled(owner.wnd));
    EXPECT_EQ(GetActiveWindow(), owner.wnd);
}

TEST_F(Dialog, WithoutControlsTheAnswerToItsFirstMessageChangesNothing) {
    for (const INT_PTR answer : {FALSE, TRUE}) {
        Box box;
        bool focused = false;
        box.answer = [&](UINT message, WPARAM, LPARAM) -> INT_PTR {
            if (message == WM_INITDIALOG) tick_soon(box);
            if (message == WM_INITDIALOG) return answer;
            if (message != WM_TIMER) return FALSE;
            focused = GetFocus() == box.wnd;
            return EndDialog(box.wnd, 1);
        };
        EXPECT_EQ(box.run(owner.wnd), 1);
        EXPECT_TRUE(focused);
    }
}

TEST_F(Dialog, TheHostsPaintRequestsTimersAndMessagesGoOn) {
    Box box;
    int ticks = 0;
    owner.after = [&](UINT message) {
        if (message == WM_TIMER) InvalidateRect(owner.wnd, nullptr, TRUE);
        if (message == WM_TIMER && ++ticks == 2) PostMessageW(owner.wnd, WM_APP, 0, 0);
        if (message == WM_PAINT && owner.count(WM_PAINT) >= 3 && owner.count(WM_APP)) EndDialog(box.wnd, 9);
    };
    SetTimer(owner.wnd, 5, 10, nullptr);
    EXPECT_EQ(box.run(owner.wnd), 9);
    KillTimer(owner.wnd, 5);
    EXPECT_GE(owner.count(WM_TIMER), 2);
    EXPECT_EQ(owner.count(WM_APP), 1);
}

static int calls;
static void CALLBACK call_back(HWND, UINT, UINT_PTR id, DWORD) {
    calls++;
    KillTimer(nullptr, id);
}

TEST_F(Dialog, ATimerWithAProcedureIsCalled) {
    Box box;
    calls = 0;
    SetTimer(nullptr, 0, 10, call_back);
    box.answer = [&](UINT message, WPARAM, LPARAM) -> INT_PTR {
        if (message == WM_INITDIALOG) SetTimer(box.wnd, 1, 15, nullptr);
        return message == WM_TIMER && calls > 0 && EndDialog(box.wnd, 2);
    };
    EXPECT_EQ(box.run(owner.wnd), 2);
    EXPECT_EQ(calls, 1);
}

TEST_F(Dialog, IsPaintedAndResizedLikeAnyWindow) {
    Box box;
    LPARAM size = 0;
    box.answer = [&](UINT message, WPARAM, LPARAM lparam) -> INT_PTR {
        if (message == WM_INITDIALOG) tick_soon(box);
        if (message == WM_SIZE) size = lparam;
        if (message == WM_PAINT) {
            PAINTSTRUCT paint;
            BeginPaint(box.wnd, &paint);
            EndPaint(box.wnd, &paint);
            if (size) EndDialog(box.wnd, 1);
            return TRUE;
        }
        if (message != WM_TIMER) return FALSE;
        KillTimer(box.wnd, 1);
        RECT frame = {0, 0, 400, 250};
        AdjustWindowRectEx(&frame, static_cast<DWORD>(GetWindowLongPtrW(box.wnd, GWL_STYLE)), FALSE,
                           static_cast<DWORD>(GetWindowLongPtrW(box.wnd, GWL_EXSTYLE)));
        SetWindowPos(box.wnd, nullptr, 0, 0, frame.right - frame.left, frame.bottom - frame.top,
                     SWP_NOMOVE | SWP_NOZORDER);
        return TRUE;
    };
    EXPECT_EQ(box.run(owner.wnd), 1);
    EXPECT_EQ(size, MAKELPARAM(400, 250));
}

TEST_F(Dialog, IsPutAboveAllOthersWithoutMoving) {
    Box box;
    RECT before{}, after{};
    LONG_PTR extended = 0;
    box.answer = [&](UINT message, WPARAM, LPARAM) -> INT_PTR {
        if (message != WM_INITDIALOG) return FALSE;
        GetWindowRect(box.wnd, &before);
        SetWindowPos(box.wnd, HWND_TOPMOST, 0, 0, 1, 1, SWP_NOSIZE | SWP_NOMOVE);
        GetWindowRect(box.wnd, &after);
        extended = GetWindowLongPtrW(box.wnd, GWL_EXSTYLE);
        return EndDialog(box.wnd, 0);
    };
    EXPECT_EQ(box.run(owner.wnd), 0);
    EXPECT_TRUE(EqualRect(&before, &after));
    EXPECT_TRUE(extended & WS_EX_TOPMOST);
}

TEST_F(Dialog, ItsCloseBoxIsACommandUnlessItAnswers) {
    Box box;
    box.answer = [&](UINT message, WPARAM wparam, LPARAM) -> INT_PTR {
        if (message == WM_INITDIALOG) PostMessageW(box.wnd, WM_SYSCOMMAND, SC_CLOSE, 0);
        return message == WM_COMMAND && EndDialog(box.wnd, 100 + LOWORD(wparam));
    };
    EXPECT_EQ(box.run(owner.wnd), 100 + IDCANCEL);
    EXPECT_TRUE(box.heard_of(WM_CLOSE));
    box.answer = [&](UINT message, WPARAM, LPARAM) -> INT_PTR {
        if (message == WM_INITDIALOG) PostMessageW(box.wnd, WM_SYSCOMMAND, SC_CLOSE, 0);
        if (message == WM_CLOSE) EndDialog(box.wnd, -1);
        return message == WM_CLOSE;
    };
    EXPECT_EQ(box.run(owner.wnd), -1);
}

TEST_F(Dialog, ReturnAndEscapeAreCommands) {
    for (const WPARAM key : {VK_RETURN, VK_ESCAPE}) {
        Box box;
        box.answer = [&](UINT message, WPARAM wparam, LPARAM) -> INT_PTR {
            if (message == WM_INITDIALOG) PostMessageW(box.wnd, WM_KEYDOWN, key, 1);
            return message == WM_COMMAND && EndDialog(box.wnd, LOWORD(wparam));
        };
        EXPECT_EQ(box.run(owner.wnd), key == VK_RETURN ? IDOK : IDCANCEL);
        EXPECT_FALSE(box.heard_of(WM_KEYDOWN));
    }
}

TEST_F(Dialog, AnswersMessagesWithItsResultWord) {
    Box box;
    LRESULT with = 0, without = 0;
    box.answer = [&](UINT message, WPARAM wparam, LPARAM) -> INT_PTR {
        if (message == WM_APP && wparam) {
            SetWindowLongPtrW(box.wnd, DWLP_MSGRESULT, 55);
            return TRUE;
        }
        if (message != WM_INITDIALOG) return FALSE;
        with = SendMessageW(box.wnd, WM_APP, 1, 0);
        without = SendMessageW(box.wnd, WM_APP, 0, 0);
        return EndDialog(box.wnd, 0);
    };
    box.run(owner.wnd);
    EXPECT_EQ(with, 55);
    EXPECT_EQ(without, 0);
}

TEST_F(Dialog, OneMayOpenWithinAnother) {
    Box outer, inner;
    bool outer_enabled = true, owner_enabled = true;
    INT_PTR inner_result = 0;
    inner.answer = [&](UINT message, WPARAM, LPARAM) -> INT_PTR {
        if (message == WM_INITDIALOG) tick_soon(inner);
        if (message != WM_TIMER) return FALSE;
        outer_enabled = IsWindowEnabled(outer.wnd);
        owner_enabled = IsWindowEnabled(owner.wnd);
        return EndDialog(inner.wnd, 21);
    };
    outer.answer = [&](UINT message, WPARAM, LPARAM) -> INT_PTR {
        if (message == WM_INITDIALOG) tick_soon(outer);
        if (message != WM_TIMER) return FALSE;
        KillTimer(outer.wnd, 1);
        inner_result = inner.run(GetActiveWindow());
        EXPECT_TRUE(IsWindowEnabled(outer.wnd));
        EXPECT_FALSE(IsWindowEnabled(owner.wnd));
        return EndDialog(outer.wnd, 22);
    };
    EXPECT_EQ(outer.run(owner.wnd), 22);
    EXPECT_EQ(inner_result, 21);
    EXPECT_FALSE(outer_enabled);
    EXPECT_FALSE(owner_enabled);
    EXPECT_TRUE(IsWindowEnabled(owner.wnd));
}

TEST_F(Dialog, MayStandAlone) {
    Box box;
    box.answer = [&](UINT message, WPARAM, LPARAM) -> INT_PTR {
        if (message == WM_INITDIALOG) tick_soon(box);
        return message == WM_TIMER && EndDialog(box.wnd, 6);
    };
    EXPECT_EQ(box.run(nullptr), 6);
}

TEST_F(Dialog, TheLastResultCounts) {
    Box box;
    box.answer = [&](UINT message, WPARAM, LPARAM) -> INT_PTR {
        if (message != WM_INITDIALOG) return FALSE;
        EndDialog(box.wnd, 1);
        return EndDialog(box.wnd, 2);
    };
    EXPECT_EQ(box.run(owner.wnd), 2);
    EXPECT_FALSE(EndDialog(box.wnd, 3));
    EXPECT_FALSE(EndDialog(owner.wnd, 3));
    EXPECT_FALSE(EndDialog(nullptr, 3));
}
