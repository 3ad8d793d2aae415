#include <climits>
#include <functional>
#include <vector>

#include <brask/boxs.h>
#include <brask/buttons.h>
#include <brask/labels.h>

#include "expect.h"

// What all controls do alike: warnings, the size check, binding to a window, the hit test, names in traces.

namespace {

struct Protocol : Recorded {
    Boxs box;
    Labels label;
    Buttons button;

    std::vector<Tools*> all() { return {&box, &label, &button}; }
    void SetUp() override {
        Recorded::SetUp();
        for (Tools* tools : all()) {
            tools->Pos_X = 10, tools->Pos_Y = 20;
            tools->Dim_X = 50, tools->Dim_Y = 30;
            tools->Wnd = recorder::window();
        }
    }
};

// --- The first-use check ---

struct Operation {
    const char* trace; // name in the trace lines
    const char* type;  // name in the warning
    std::function<void()> run;
    Tools* on;
};

struct FirstUse : Protocol {
    Tools tools;
    void SetUp() override {
        Protocol::SetUp();
        tools.Dim_X = tools.Dim_Y = 5;
    }
    std::vector<Operation> operations() {
        using byte = unsigned char;
        return {{"Boxs::Draw", "Box::Draw", [this] { box.Draw(); }, &box},
                {"Boxs::Select", "Box::Select", [this] { box.Select(0); }, &box},
                {"Boxs::Read", "Box::Read", [this] { box.Read(); }, &box},
                {"Boxs::Adjust", "Box::Adjust", [this] { box.Adjust(); }, &box},
                {"Labels::Draw", "Labels::Draw", [this] { label.Draw(); }, &label},
                {"Buttons::Draw", "Button::Draw", [this] { button.Draw(); }, &button},
                {"Buttons::Select", "Button::Select", [this] { button.Select(0); }, &button},
                {"Buttons::Read", "Button::Read", [this] { button.Read(); }, &button},
                {"Buttons::Adjust", "Button::Adjust", [this] { button.Adjust(); }, &button},
                {"", "Tools::Clear", [this] { tools.Clear(); }, &tools},
                {"", "Tools::Clear", [this] { tools.Clear(byte(1), byte(2), byte(3)); }, &tools},
                {"", "Tools::Clear", [this] { tools.Clear(1u); }, &tools},
                {"", "Tools::Clear", [this] { tools.Clear(Colors()); }, &tools}};
    }
};

TEST_F(FirstUse, WithoutInitWarnsOnceAndWorksOn) {
    for (const Operation& operation : operations()) {
        SCOPED_TRACE(operation.type);
        operation.on->test = 0;
        recorder::clear();
        operation.run();
        EXPECT_EQ(recorder::warnings(), first_use_warning(operation.type));
        EXPECT_EQ(operation.on->test, 2);
        EXPECT_NE(recorder::text(recorder::kDraw | recorder::kReport), recorder::warnings()); // it went on
        recorder::clear();
        operation.run();
        EXPECT_EQ(recorder::warnings(), "");
    }
}

TEST_F(FirstUse, OfANamedObjectSpeaksOfBadData) {
    for (const Operation& operation : operations()) {
        SCOPED_TRACE(operation.type);
        operation.on->test = 0;
        operation.on->Name_Set(L"Title");
        EXPECT_EQ(operation.on->test, 4);
        recorder::clear();
        operation.run();
        EXPECT_EQ(recorder::warnings(),
                  first_use_warning(operation.type, "Title", "bad data in device's structure"));
        EXPECT_EQ(operation.on->test, 2);
    }
}

TEST_F(FirstUse, IsQuietAfterInit) {
    box.Init(nullptr);
    label.Init(nullptr);
    button.Init(nullptr);
    tools.test = 1;
    recorder::clear();
    for (const Operation& operation : operations())
        operation.run();
    EXPECT_EQ(recorder::warnings(), "");
    for (Tools* control : all())
        EXPECT_EQ(control->test, 1);
}

TEST_F(FirstUse, WarningStandsBetweenTheTracesOfItsOperation) {
    const std::string lines = recorded(recorder::kReport, [&] { box.Read(); });
    EXPECT_EQ(lines, "[90000029] >>> in  Lib_Brask: Boxs::Read(no name)\n" + first_use_warning("Box::Read") +
                         "[90000029] <<< out Lib_Brask: Boxs::Read()\n");
}

TEST_F(FirstUse, ComesBeforeTheSizeCheckInAllOperations) {
    for (const Operation& operation : operations()) {
        SCOPED_TRACE(operation.type);
        operation.on->test = 0;
        operation.on->Dim_X = 0;
        recorder::clear();
        operation.run();
        EXPECT_EQ(recorder::reports(0x80000001).size(), 3u);
    }
}

TEST_F(FirstUse, InvisibleControlsDoNotWarnFromDraw) {
    for (Tools* control : all())
        control->Flag = OUTIL_INVISIBLE;
    recorder::clear();
    box.Draw();
    label.Draw();
    button.Draw();
    EXPECT_EQ(recorder::warnings(), "");
    for (Tools* control : all())
        EXPECT_EQ(control->test, 0);
}

// --- Init without a window ---

struct NoWindow : Protocol {
    void SetUp() override {
        Protocol::SetUp();
        for (Tools* tools : all())
            tools->Wnd = nullptr;
    }
};

TEST_F(NoWindow, WarnsAtEveryInit) {
    for (int round = 0; round < 2; ++round) {
        box.Init(nullptr);
        EXPECT_EQ(recorder::warnings(), window_warning("Boxs::Init", round ? "Title" : "no name"));
        EXPECT_EQ(recorder::exit_tag("Boxs::Init"), "!wnd");
        recorder::clear();
        label.Init(nullptr);
        EXPECT_EQ(recorder::warnings(), window_warning("Labels::Init", round ? "Title" : "no name"));
        EXPECT_EQ(recorder::exit_tag("Labels::Init"), "!wnd");
        recorder::clear();
        button.Init(nullptr);
        EXPECT_EQ(recorder::warnings(), window_warning("Buttons::Init", round ? "Title" : "no name"));
        EXPECT_EQ(recorder::exit_tag("Buttons::Init"), "!wnd");
        recorder::clear();
        for (Tools* control : all())
            control->Name_Set(L"Title");
    }
}

TEST_F(NoWindow, LeavesEverythingElse) {
    box.select = button.select = 2;
    button.Cur_Value = 7;
    box.Init(nullptr);
    button.Init(nullptr);
    label.Init(nullptr);
    for (const Tools* control : all()) {
        EXPECT_EQ(control->test, 1);
        EXPECT_EQ(control->Color_Get(), 0u);
        EXPECT_EQ(control->Color_Alt.get(), 0u);
        EXPECT_EQ(control->Region.right, 0);
        EXPECT_EQ(control->Image_Normal, nullptr);
        EXPECT_EQ(control->Old_Dim_X, 0);
    }
    EXPECT_EQ(box.select, 2);
    EXPECT_EQ(button.select, 2);
    EXPECT_EQ(button.Old_Value, 0u);
}

// --- Init with one ---

TEST_F(Protocol, InitBindsAndKeepsTheWindow) {
    const HWND other = recorder::window(2);
    box.Init(other), label.Init(other), button.Init(other);
    for (const Tools* control : all()) {
        EXPECT_EQ(control->Wnd, other);
        EXPECT_EQ(control->test & 1, 1);
    }
    box.Init(nullptr), label.Init(nullptr), button.Init(nullptr);
    for (const Tools* control : all())
        EXPECT_EQ(control->Wnd, other);
    EXPECT_EQ(recorder::warnings(), "");
}

TEST_F(Protocol, RegionIsOnePixelLargerOnTheFarSides) {
    box.Init(nullptr), label.Init(nullptr), button.Init(nullptr);
    for (const Tools* control : all()) {
        EXPECT_EQ(control->Region.left, 10);
        EXPECT_EQ(control->Region.top, 20);
        EXPECT_EQ(control->Region.right, 61);
        EXPECT_EQ(control->Region.bottom, 51);
    }
}

TEST_F(Protocol, InitKeepsTheNamedBit) {
    for (Tools* control : all())
        control->Name_Set(L"n");
    box.Init(nullptr), label.Init(nullptr), button.Init(nullptr);
    for (const Tools* control : all())
        EXPECT_EQ(control->test, 5);
}

// A face that is black becomes grey; a label's colour is its text's and stays.
TEST_F(Protocol, BlackFacesBecomeGrey) {
    box.Color = button.Color = label.Color = Colors(0, 0, 0, 77);
    box.Init(nullptr), label.Init(nullptr), button.Init(nullptr);
    EXPECT_EQ(box.Color_Get(), 0x00AAAAAAu);
    EXPECT_EQ(button.Color_Get(), 0x00AAAAAAu);
    EXPECT_EQ(label.Color_Get(), 77u << 24);
    box.Color = button.Color = Colors(0, 0, 1, 77);
    box.Init(nullptr), button.Init(nullptr);
    EXPECT_EQ(box.Color_Get(), 0x4D010000u);
    EXPECT_EQ(button.Color_Get(), 0x4D010000u);
    // Out of range but shown as black: the channels are not 0.
    box.Color = button.Color = Colors(-1, 0, 0);
    box.Init(nullptr), button.Init(nullptr);
    EXPECT_EQ(box.Color.R, -1);
    EXPECT_EQ(button.Color.R, -1);
}

// --- The size check ---

struct Size : Protocol, testing::WithParamInterface<std::pair<int, int>> {
    void SetUp() override {
        Protocol::SetUp();
        box.Init(nullptr), label.Init(nullptr), button.Init(nullptr);
        for (Tools* control : all()) {
            control->Dim_X = GetParam().first;
            control->Dim_Y = GetParam().second;
            control->Name_Set(L"n");
        }
        box.select = button.select = 1;
        recorder::pointer(10, 20);
        recorder::clear();
    }
};

TEST_P(Size, TooSmallControlsAreInert) {
    box.Draw(), box.Adjust(), box.Deselect();
    EXPECT_EQ(box.Select(0), 0);
    EXPECT_EQ(box.Read(), 0);
    label.Draw();
    button.Draw(), button.Adjust(), button.Deselect();
    EXPECT_EQ(button.Select(0), 0);
    EXPECT_EQ(recorder::text(recorder::kDraw), "");
    for (const char* operation : {"Boxs::Draw", "Boxs::Adjust", "Boxs::Select", "Boxs::Read", "Labels::Draw",
                                  "Buttons::Draw", "Buttons::Adjust", "Buttons::Select"})
        EXPECT_EQ(recorder::exit_tag(operation), "<0") << operation;
    EXPECT_EQ(recorder::exit_tag("Boxs::Deselect"), "< 0");
    EXPECT_EQ(recorder::exit_tag("Buttons::Deselect"), "< 0");
    EXPECT_EQ(box.select, 1);
    EXPECT_EQ(button.select, 1);
}

TEST_P(Size, QueryAnswersZero) {
    EXPECT_EQ(box.Select(KEY_QUERY), 0);
    EXPECT_EQ(button.Select(KEY_QUERY), 0);
    EXPECT_EQ(recorder::exit_tag("Boxs::Select"), "<0");
    EXPECT_EQ(recorder::exit_tag("Buttons::Select"), "<0");
}

TEST_P(Size, AButtonStillReadsItsValue) {
    button.Cur_Value = 42;
    EXPECT_EQ(button.Read(), 42);
    EXPECT_EQ(recorder::exit_tag("Buttons::Read"), "");
}

TEST_P(Size, InitStops) {
    const HWND other = recorder::window(2);
    for (Tools* control : all())
        control->test = 0;
    box.Init(other), label.Init(other), button.Init(other);
    EXPECT_EQ(recorder::exit_tag("Boxs::Init"), "<0");
    EXPECT_EQ(recorder::exit_tag("Labels::Init"), "<0");
    EXPECT_EQ(recorder::exit_tag("Buttons::Init"), "<0");
    EXPECT_EQ(recorder::warnings(), "");
    for (const Tools* control : all())
        EXPECT_EQ(control->test, 1);
    // A box takes the window all the same; the two others check the size first.
    EXPECT_EQ(box.Wnd, other);
    EXPECT_EQ(label.Wnd, recorder::window());
    EXPECT_EQ(button.Wnd, recorder::window());
    EXPECT_EQ(box.select, 1);
    EXPECT_EQ(button.select, 1);
    EXPECT_EQ(box.Old_Dim_X, 50);
    EXPECT_EQ(button.Old_Dim_X, 50);
}

INSTANTIATE_TEST_SUITE_P(Below1, Size,
                         testing::Values(std::pair(0, 30), std::pair(50, 0), std::pair(-1, 30),
                                         std::pair(50, -1), std::pair(INT_MIN, INT_MIN), std::pair(0, 0),
                                         std::pair(INT_MAX, 0)));

// --- The hit test ---

struct Point {
    int x, y, hit;
};
TEST_F(Protocol, HitRectangleTakesInItsFarEdges) {
    box.Init(nullptr), button.Init(nullptr);
    const Point points[] = {{10, 20, 1}, {9, 20, 0},  {10, 19, 0}, {60, 50, 1},      {61, 50, 0},
                            {60, 51, 0}, {35, 35, 1}, {60, 20, 1}, {10, 50, 1},      {-10000, 30, 0},
                            {10, 51, 0}, {61, 20, 0}, {9, 50, 0},  {INT_MAX, 30, 0}, {30, INT_MIN, 0}};
    for (const Point& point : points) {
        SCOPED_TRACE(testing::Message() << point.x << ", " << point.y);
        recorder::pointer(point.x, point.y);
        for (const int mode :
             {KEY_QUERY, KEY_QUERY + 16, KEY_QUERY + 32, KEY_QUERY + 64, 52, 0, 1, 2, 3, 18}) {
            EXPECT_EQ(box.Select(mode), point.hit) << mode;
            EXPECT_EQ(button.Select(mode), point.hit) << mode;
        }
    }
}

// The low four bits alone are the event: 20 is a query, 8 and 12 and 0x7FFFFFF0 are not.
TEST_F(Protocol, QueryPaintsAndChangesNothing) {
    box.Init(nullptr), button.Init(nullptr);
    recorder::pointer(30, 30);
    for (const DWORD flag : {0u, 1u, 2u, 3u, 0x10u, 0x20u, 0x33u})
        for (const int mode : {4, 20, 36, 68, 116, 0x7FFFFFF4, INT_MIN + 4}) {
            SCOPED_TRACE(testing::Message() << flag << " " << mode);
            box.Flag = button.Flag = flag;
            box.select = button.select = 0;
            EXPECT_EQ(painted([&] { EXPECT_EQ(box.Select(mode), 1); }),
                      "Zeb_setup(WND, \"Boxs::Select\")\nread_curs()\nZeb_release()\n");
            EXPECT_EQ(painted([&] { EXPECT_EQ(button.Select(mode), 1); }),
                      "Zeb_setup(WND, \"Buttons::Select\")\nread_curs()\nZeb_release()\n");
            EXPECT_EQ(box.select, 0);
            EXPECT_EQ(button.select, 0);
        }
    for (const int mode : {3, 5, 8, 12, 15, 0x7FFFFFF0, INT_MIN}) { // everything else tracks
        box.Flag = button.Flag = 0;
        box.select = button.select = 0;
        box.Select(mode), button.Select(mode);
        EXPECT_EQ(box.select, 1) << mode;
        EXPECT_EQ(button.select, 1) << mode;
    }
}

} // namespace
