#include <climits>
#include <functional>

#include <brask/boxs.h>
#include <brask/buttons.h>
#include <brask/fonts.h>
#include <brask/labels.h>
#include <brask/pointer.h>

#include "support/memory.h"
#include "support/recorded.h"

// Input that no host should give: a report or silence, never a crash. The sanitizers look on, the recorder
// minds its brackets.

namespace {

struct BadInput : Recorded {
    // Every operation of each control, in an order that no one would choose.
    template <typename Control>
    static void operate(Control& control) {
        control.Deselect();
        control.Select(2);
        control.Adjust();
        control.Draw();
        control.Read();
        control.Select(KEY_QUERY);
        control.Deselect();
        control.Clear();
        control.Clear(1u);
        control.Fill_Red(control.Pos_X, control.Dim_X, control.Pos_Y, control.Dim_Y);
    }
    static void operate(Labels& label) {
        label.Draw();
        label.Get_X();
        label.Clear();
    }
    template <typename Control>
    static void live(const std::function<void(Control&)>& prepare) {
        Control control;
        operate(control); // before anything
        prepare(control);
        operate(control); // before Init
        control.Init(nullptr);
        operate(control); // after an Init that found no window
        control.Init(recorder::window());
        operate(control);
        prepare(control);
        operate(control);
        control.Init(nullptr);
        operate(control);
        control.Wnd = nullptr; // the window is gone
        operate(control);
        EXPECT_FALSE(recorder::open());
    }
    static void live_all(const std::function<void(Tools&)>& prepare) {
        for (const POINT& at : {POINT{0, 0}, POINT{5, 5}, POINT{INT_MAX, INT_MIN}}) {
            recorder::pointer(at.x, at.y);
            live<Boxs>(prepare);
            live<Labels>(prepare);
            live<Buttons>(prepare);
            recorder::clear();
        }
    }
};

TEST_F(BadInput, Sizes) {
    for (const auto& size : {std::pair(0, 0), std::pair(-1, 5), std::pair(5, INT_MIN), std::pair(1, 1),
                             std::pair(2, 2), std::pair(INT_MAX, INT_MAX), std::pair(INT_MAX, 1),
                             std::pair(1, INT_MAX), std::pair(100000, 100000), std::pair(3, 1000)})
        for (const auto& place : {std::pair(0, 0), std::pair(-30, -30), std::pair(INT_MAX, INT_MAX),
                                  std::pair(INT_MIN, INT_MIN), std::pair(INT_MIN, INT_MAX)})
            live_all([&](Tools& tools) {
                tools.Dim_X = size.first, tools.Dim_Y = size.second;
                tools.Pos_X = place.first, tools.Pos_Y = place.second;
                tools.Flag = BOX_INSET | BUTTON_LAMP;
                tools.Name_Set(L"a\x01"
                               L"b\xF1"
                               L"c");
            });
}

TEST_F(BadInput, Names) {
    for (const std::size_t length : {0u, 1u, 1022u, 1023u, 1024u, 5000u}) {
        const std::wstring wide(length, L'n');
        const std::string narrow(length, '%');
        live_all([&](Tools& tools) {
            tools.Dim_X = 50, tools.Dim_Y = 30;
            tools.Name_Set(L"%ls", wide.c_str());
        });
        live_all([&](Tools& tools) {
            tools.Dim_X = 50, tools.Dim_Y = 30;
            tools.Name_Set(narrow.c_str());
        });
    }
    live_all([](Tools& tools) {
        tools.Dim_X = 50, tools.Dim_Y = 30;
        tools.Name_Set(nullptr);
        tools.Name_Set(static_cast<const char*>(nullptr));
        tools.Name_Set(3, 2, nullptr, nullptr);
        tools.Name_Set("%s%n%ls%hs%d%*d%99999d%");
    });
}

TEST_F(BadInput, EveryMarkInEveryPlace) {
    std::wstring text;
    for (int c = 1; c < 0x300; ++c)
        text += static_cast<wchar_t>(c);
    for (const DWORD flag : {DWORD(0), OUTIL_VERTICAL, TEXT_LEFT | TEXT_TOP, TEXT_RIGHT | TEXT_BOTTOM})
        live_all([&](Tools& tools) {
            tools.Dim_X = 50, tools.Dim_Y = 30;
            tools.Flag = flag;
            tools.Name_Set(L"%ls", text.c_str());
        });
}

TEST_F(BadInput, Fonts) {
    const std::string family(200, 'f');
    for (const char* name : {"no such font", "", "%s%n", "\xFF\xFE\x80", family.c_str()})
        for (const int size : {0, -1, 1, 32768, INT_MAX, INT_MIN})
            live_all([&](Tools& tools) {
                tools.Dim_X = 50, tools.Dim_Y = 30;
                tools.Font_Name = name, tools.Font_Weight = name, tools.Font_Slant = name;
                tools.Font_Size = size;
                tools.Name_Set(L"text");
            });
    desk::refuse_fonts(true);
    live_all([](Tools& tools) {
        tools.Dim_X = 50, tools.Dim_Y = 30;
        tools.Font_Name = "refused", tools.Font_Size = 77;
        tools.Name_Set(L"text");
    });
}

TEST_F(BadInput, BordersLargerThanTheControl) {
    for (const int border : {14, 15, 16, 25, 26, 300, -1, -26, -300, INT_MIN, INT_MIN + 1})
        live_all([&](Tools& tools) {
            tools.Dim_X = 50, tools.Dim_Y = 30;
            tools.Border = border;
            // A button paints its rings by the absolute width, so that a wide one would take its time.
            tools.Flag = border < -300 ? OUTIL_NO_FRAME | GRAPH_OUTLINE : BOX_INSET | BUTTON_LAMP;
            tools.Name_Set(L"text");
        });
}

TEST_F(BadInput, Clips) {
    for (const int x : {INT_MIN, -1, 0, 1, INT_MAX})
        for (const int dim : {INT_MIN, -1, 1, INT_MAX})
            live_all([&](Tools& tools) {
                tools.Dim_X = 50, tools.Dim_Y = 30;
                tools.Clip_X = x, tools.Clip_Y = dim, tools.Clip_Dim_X = dim, tools.Clip_Dim_Y = x;
                tools.Flag = BUTTON_LAMP;
                tools.Name_Set(L"text");
            });
}

TEST_F(BadInput, EveryFlag) {
    for (int bit = 0; bit < 32; ++bit)
        for (const DWORD with : {DWORD(0), BUTTON_LAMP | BOX_INSET, ~DWORD(0)})
            live_all([&](Tools& tools) {
                tools.Dim_X = 50, tools.Dim_Y = 30;
                tools.Flag = with ^ DWORD(1) << bit;
                tools.Name_Set(L"text");
            });
}

TEST_F(BadInput, Metrics) {
    for (const int metric : {0, -1, 1000, INT_MIN}) {
        BORDER = metric == INT_MIN ? -1 : metric;
        SPACE = BUT_DIM = metric;
        live_all([](Tools& tools) {
            tools.Dim_X = 50, tools.Dim_Y = 30;
            tools.Flag = BUTTON_LAMP | BOX_INSET;
            tools.Name_Set(L"text");
        });
    }
    BORDER = 3, SPACE = 6, BUT_DIM = 25;
}

// The library never asks its window anything itself: a handle that is no longer one goes to the layer as it
// is, and that is all.
TEST_F(BadInput, AWindowThatIsGone) {
    Boxs box;
    box.Dim_X = 50, box.Dim_Y = 30;
    const HWND gone = reinterpret_cast<HWND>(static_cast<std::uintptr_t>(0xDEADBEE0));
    recorder::name(gone, "GONE");
    box.Init(gone);
    operate(box);
    EXPECT_NE(recorder::text(recorder::kDraw).find("Zeb_setup(GONE, \"Boxs::Select\")"), std::string::npos);
    EXPECT_EQ(recorder::warnings(), "");
}

TEST_F(BadInput, ANullWindowIsHandedOn) {
    Boxs box;
    box.Dim_X = 50, box.Dim_Y = 30;
    box.test = 1;
    EXPECT_EQ(painted([&] { box.Select(KEY_QUERY); }),
              "Zeb_setup(null, \"Boxs::Select\")\nread_curs()\nZeb_release()\n");
}

TEST_F(BadInput, SurfacesOfAnySize) {
    for (const auto& size : {std::pair(0, 0), std::pair(-1, -1), std::pair(INT_MAX, INT_MAX),
                             std::pair(65536, 65536), std::pair(INT_MAX, 2), std::pair(1, 1)}) {
        Buttons button;
        button.Dim_X = size.first, button.Dim_Y = size.second;
        button.Alloc_Graph_Normal(0xFFFFFFFF);
        button.Alloc_Graph_Select(0);
        button.Init(recorder::window());
        operate(button);
    }
}

} // namespace
