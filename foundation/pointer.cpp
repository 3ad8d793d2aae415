#include <brask/pointer.h>

#include <brask/fenn.h>

#include "foundation/button_mask.h"
#include "foundation/trace.h"

using namespace brask;

// --- The recorded button mask -----------------------------------------------------------------------------

int brask::Button_Mask = 0;

namespace {

// The mask's bits are those of the virtual keys, and so middle and right change places.
int bit_of(int button) {
    switch (button) {
    case 1: return VK_LBUTTON;
    case 2: return VK_MBUTTON;
    case 3: return VK_RBUTTON;
    default: return 0;
    }
}

} // namespace

void BUTTON_PRESS(int button) { Button_Mask |= bit_of(button); }
void BUTTON_RELEASE(int button) { Button_Mask &= ~bit_of(button); }
void STATE_MASK(int mask) { Button_Mask = mask; }

// --- What is held now ----------------------------------------------------------------------------------

int getbutton(int vk) {
    if (vk != VK_LBUTTON && vk != VK_RBUTTON && vk != VK_MBUTTON) return 0;
    return GetAsyncKeyState(vk) < 0;
}

namespace {

// The many names of one modifier.
struct Modifier {
    int key, left, right;
    int nickname; // 0: none
};
constexpr Modifier MODIFIERS[] = {
    {VK_SHIFT, VK_LSHIFT, VK_RSHIFT, 64},
    {VK_CONTROL, VK_LCONTROL, VK_RCONTROL, 32},
    {VK_MENU, VK_LMENU, VK_RMENU, 0},
};
constexpr int TOGGLED = 1; // the bit of a key's state that tells nothing of its being held

} // namespace

int getkey(int key) {
    if (!key) return 0;
    for (const Modifier& m : MODIFIERS)
        if (key == m.key || key == m.left || key == m.right || key == m.nickname)
            return GetKeyState(m.key) & ~TOGGLED;
    return 0;
}

// --- Shape ---------------------------------------------------------------------------------------------
//
//   from                  operation          to
//   Wait 0, Shape s       Set_Curs*          Wait 0, Shape s'     the new shape is shown
//   Wait 0, Shape s       Set_Curs_Wait      Wait 1, Shape 0      the shape is taken down first
//   Wait n, any           Set_Curs*          same                 the busy shape is shown again
//   Wait n, any           Set_Curs_Wait      Wait n + 1           the busy shape is shown again
//   Wait n, Shape 0       Reset_Curs         Wait 0               Saved_Wait is shown
//   Wait n, Shape s       Reset_Curs         Wait n, Shape 0      Saved_Shape is shown
//   Wait n                Reset_Curs_Wait    Wait n - 1           Saved_Wait is shown at 0

namespace {

unsigned char Wait = 0; // levels of the busy state
unsigned char Shape = 0;
HCURSOR Saved_Shape = nullptr; // what the last shape replaced
HCURSOR Saved_Wait = nullptr;  // what the busy shape replaced

// Values of Shape. The drag looks like the arrow and yet counts as its own.
constexpr unsigned char SHAPE_NONE = 0, SHAPE_GIVEN = 1, SHAPE_DRAG = 3, SHAPE_CROSS = 4, SHAPE_ARROW = 5;

HCURSOR show_busy() { return SetCursor(LoadCursorW(nullptr, IDC_WAIT)); }

// A shape asked for while busy is dropped, not queued.
bool dropped() {
    if (Wait) show_busy();
    return Wait != 0;
}

void show_shape(HCURSOR cursor, unsigned char shape) {
    Saved_Shape = SetCursor(cursor);
    Shape = shape;
}

void show_standard(LPCWSTR name, unsigned char shape) {
    if (!dropped()) show_shape(LoadCursorW(nullptr, name), shape);
}

} // namespace

void Set_Curs(HWND, void* cursor) {
    if (!dropped()) show_shape(static_cast<HCURSOR>(cursor), SHAPE_GIVEN);
}

void Set_Curs_Arrow(HWND) { show_standard(IDC_ARROW, SHAPE_ARROW); }
void Set_Curs_Cross(HWND) { show_standard(IDC_CROSS, SHAPE_CROSS); }
void Set_Curs_Drag(HWND) { show_standard(IDC_ARROW, SHAPE_DRAG); }

void Set_Curs_Wait(HWND wnd) {
    if (Wait) {
        show_busy();
    } else {
        if (Shape) Reset_Curs(wnd);
        Saved_Wait = show_busy();
    }
    Wait++;
}

void Reset_Curs(HWND) {
    if (Saved_Shape && Shape) {
        SetCursor(Saved_Shape);
        Shape = SHAPE_NONE;
    } else if (Wait) {
        if (Saved_Wait) SetCursor(Saved_Wait);
        Wait = 0;
    }
}

void Reset_Curs_Wait(HWND) {
    if (Wait) Wait--;
    if (Saved_Wait && !Wait) SetCursor(Saved_Wait);
}

void Set_Wait_Flag() {
    Error_Fct(hwnd, REPORT_WARNING, "Set_Wait_Flag Wait=%d Shape=%d", Wait, Shape);
    Wait++;
}
