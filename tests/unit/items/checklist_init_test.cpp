#include <algorithm>
#include <climits>
#include <cstring>
#include <new>

#include "checklist_fixture.h"
#include "support/memory.h"

// A check list's life: its labels, its entries, and what it is without them.

namespace {

TEST_F(Check_List, BeginsWithAllFieldsZero) {
    alignas(CheckLists) static unsigned char place[sizeof(CheckLists)];
    std::fill(std::begin(place), std::end(place), 0xAA);
    CheckLists* made = nullptr;
    const std::string lines = everything([&] { made = new (place) CheckLists; });
    for (const unsigned char byte : place)
        ASSERT_EQ(byte, 0);
    EXPECT_EQ(lines, everything([] {
                  trace_in("Tools::Tools", "");
                  trace_out("Tools::Tools", "");
                  trace_in("Tools::Tools", "");
                  trace_out("Tools::Tools", "");
                  trace_in("Boxs::Boxs", "");
                  trace_out("Boxs::Boxs", "");
                  trace_in("CheckLists::CheckLists", "");
                  trace_out("CheckLists::CheckLists", "");
              }));
    made->~CheckLists();
}

TEST_F(Check_List, EndsWithItsEntriesThenTheFrame) {
    CheckLists* gone = new CheckLists(control);
    give(2);
    gone->List = control.List;
    gone->Init(recorder::window());
    const std::string lines = everything([&] { delete gone; });
    EXPECT_EQ(lines.find(">>> in  Lib_Brask: CheckLists::~CheckLists()"), std::strlen("[90000029] "));
    EXPECT_EQ(times(lines, ">>> in  Lib_Brask: Buttons::~Buttons()"), 4u);
    EXPECT_LT(lines.rfind("Buttons::~Buttons"), lines.find("<<< out Lib_Brask: CheckLists::~CheckLists()"));
    EXPECT_LT(lines.find("<<< out Lib_Brask: CheckLists::~CheckLists()"), lines.find("Boxs::~Boxs"));
}

// --- Ways out of Init ---

TEST_F(Check_List, InitOfAControlTooSmallEndsAtOnce) {
    shown(3);
    const Buttons* entries = control.Check;
    for (const auto& size : {std::pair(0, 50), std::pair(50, 0), std::pair(-1, -1)}) {
        control.Dim_X = size.first, control.Dim_Y = size.second;
        recorder::clear();
        control.Init(recorder::window());
        EXPECT_EQ(recorder::exit_tag("CheckLists::Init"), "<0");
        EXPECT_EQ(control.Check, entries);
    }
}

TEST_F(Check_List, InitWithoutAWindowWarnsEachTime) {
    for (int i = 0; i < 2; i++) {
        recorder::clear();
        control.Init(nullptr);
        EXPECT_EQ(recorder::reports(0x90000021),
                  (std::vector<std::string>{"Tools: WARNING ! ", "   you must provide a window",
                                            "   type: CheckLists::Init   name: no name"}));
        EXPECT_EQ(recorder::exit_tag("CheckLists::Init"), "!wnd");
    }
}

TEST_F(Check_List, WithoutAnyLabelListItReportsAndSwitchesItselfOff) {
    for (const bool named : {false, true}) {
        shown(4);
        if (named) control.Name_Set(L"named");
        control.List = nullptr;
        control.Flag = OUTIL_VERTICAL;
        recorder::clear();
        control.Init(nullptr);
        EXPECT_EQ(recorder::reports(0x90000021),
                  (std::vector<std::string>{"Problems in CheckLists::Init()", "device->List is empty",
                                            std::string("type: CheckLists\\n  name: ") +
                                                (named ? "named" : "no name")}));
        EXPECT_EQ(recorder::exit_tag("CheckLists::Init"), "!List");
        EXPECT_EQ(control.Flag, OUTIL_INVISIBLE | OUTIL_DISABLE);
        EXPECT_EQ(control.Check, nullptr);
        EXPECT_EQ(control.Label, nullptr);
        EXPECT_EQ(control.Box_State, nullptr);
        recorder::pointer(150, 250);
        EXPECT_EQ(control.Select(2), 0);
        EXPECT_EQ(control.Read(), -1);
        EXPECT_EQ(painted([&] { control.Draw(), control.Deselect(); }), "");
        control.Flag = 0; // the host switches it on again
        control.Draw();
        control.Select(2);
        control.Deselect();
        control.Cur_Value ^= 1;
        control.Adjust();
    }
}

TEST_F(Check_List, AnEmptyLabelListLeavesTheFrame) {
    const char* const nothing[] = {nullptr};
    const char* const blank[] = {"", "not reached", nullptr};
    const wchar_t* const blank_w[] = {L"", nullptr};
    for (int way = 0; way < 3; way++) {
        shown(4);
        control.List = way == 0 ? nothing : way == 1 ? blank : nullptr;
        control.List_W = way == 2 ? blank_w : nullptr;
        control.Cur_Value = 5;
        recorder::clear();
        control.Init(nullptr);
        EXPECT_EQ(recorder::exit_tag("CheckLists::Init"), "!NbCheckBox");
        EXPECT_EQ(control.NbCheckBox, 0);
        EXPECT_EQ(control.Check, nullptr);
        EXPECT_EQ(control.Old_Value, 5);
        recorder::pointer(150, 250);
        EXPECT_EQ(control.Read(), -1);
        EXPECT_EQ(control.Select(0), 0);
        const std::string lines = everything([&] { control.Draw(); });
        EXPECT_EQ(times(lines, "Buttons::"), 0u);
        EXPECT_EQ(times(lines, ">>> in  Lib_Brask: Boxs::Draw"), 1u);
    }
}

TEST_F(Check_List, InitLeavesWithATagOfFailureAlsoWhenAllIsWell) {
    laid(3);
    control.Cur_Value = 6;
    control.Init(nullptr);
    EXPECT_EQ(recorder::exit_tag("CheckLists::Init"), "!wnd");
    EXPECT_EQ(control.NbCheckBox, 3);
    EXPECT_EQ(control.Old_Value, 6);
    EXPECT_EQ(control.Old_Dim_X, 150);
    EXPECT_EQ(control.Old_Dim_Y, 100);
    EXPECT_EQ(control.Color_Get(), Colors(170, 170, 170).get());
    EXPECT_EQ(control.Region.right, 251);
    EXPECT_EQ(control.test, 1);
}

TEST_F(Check_List, WithoutMemoryItIsLeftEmpty) {
    if (!memory::can_fail()) GTEST_SKIP();
    give(3);
    control.Init(recorder::window());
    const char* const names[] = {"this->Box_State", "this->Check", "this->Label"};
    std::size_t reported = 0;
    for (int nth = 1; nth < 40; nth++) {
        CheckLists fresh(control);
        fresh.Check = fresh.Label = nullptr;
        fresh.Box_State = nullptr;
        fresh.Name_Set(nullptr);
        recorder::clear();
        {
            memory::Failing failing(nth);
            fresh.Init(nullptr);
        }
        const std::vector<std::string> reports = recorder::reports(1);
        if (!reports.empty() && reports[0].find("calloc") != std::string::npos) {
            ASSERT_LT(reported, 3u);
            EXPECT_NE(reports[0].find(std::string("of checklist \\nmemory error in calloc (var=") +
                                      names[reported++] + ", dim=3x"),
                      std::string::npos)
                << reports[0];
            EXPECT_EQ(recorder::exit_tag("CheckLists::Init"), "!NbCheckBox");
            EXPECT_EQ(fresh.NbCheckBox, 0);
            EXPECT_EQ(fresh.Check, nullptr);
            EXPECT_EQ(fresh.Label, nullptr);
            EXPECT_EQ(fresh.Box_State, nullptr);
        }
        recorder::pointer(120, 280);
        fresh.Draw();
        fresh.Select(2);
        fresh.Read();
        fresh.Deselect();
    }
    EXPECT_EQ(reported, 3u);
}

// --- The frame ---

TEST_F(Check_List, TheFrameTakesItsLookFromTheControl) {
    control.Name_Set(L"%ls", L"50 %d");
    control.Border = -2;
    control.Font_Name = "f", control.Font_Weight = "bold", control.Font_Slant = "i";
    control.Clip_X = 1, control.Clip_Y = 2, control.Clip_Dim_X = 400, control.Clip_Dim_Y = 500;
    control.Color = Colors(9, 8, 7);
    laid(2);
    const Boxs& frame = control.Box;
    EXPECT_STREQ(frame.W_Name, L"50 %d");
    EXPECT_EQ(frame.Pos_X, 100);
    EXPECT_EQ(frame.Pos_Y, 200);
    EXPECT_EQ(frame.Dim_X, 150);
    EXPECT_EQ(frame.Dim_Y, 100);
    EXPECT_EQ(frame.Border, -2);
    EXPECT_EQ(frame.Clip_X, 1);
    EXPECT_EQ(frame.Clip_Y, 2);
    EXPECT_EQ(frame.Clip_Dim_X, 400);
    EXPECT_EQ(frame.Clip_Dim_Y, 500);
    EXPECT_STREQ(frame.Font_Name, "f");
    EXPECT_STREQ(frame.Font_Weight, "bold");
    EXPECT_STREQ(frame.Font_Slant, "i");
    EXPECT_EQ(frame.Font_Size, 9);
    EXPECT_EQ(frame.Color_Get(), control.Color_Get());
    EXPECT_EQ(frame.Wnd, recorder::window());
    control.Name_Set(nullptr);
    control.Init(nullptr);
    EXPECT_EQ(frame.W_Name, nullptr);
}

TEST_F(Check_List, TheFrameTakesSomeFlagsAndNeverReacts) {
    give(1);
    for (const auto& row : {std::pair<DWORD, DWORD>{0, 0x2},
                            {0xFFFFFFFF, 0x47773},
                            {BOX_RAISED, 0x2},
                            {GRAPH_OUTLINE | TEXT_WHITE, 0x40022}}) {
        control.Flag = row.first;
        control.Init(recorder::window());
        EXPECT_EQ(control.Box.Flag, row.second);
    }
}

// --- Labels ---

TEST_F(Check_List, LabelsAreCountedToTheirEnd) {
    const char* const narrow[] = {"a", "b", "c", nullptr, nullptr};
    const char* const cut[] = {"a", "", "c", nullptr};
    const wchar_t* const wide[] = {L"A", L"B", nullptr};
    const wchar_t* const on[] = {nullptr, L"B", nullptr, L"D", L"E", nullptr};
    const wchar_t* const ended[] = {L"A", nullptr, L"C", nullptr};
    struct Row {
        const char* const* list;
        const wchar_t* const* list_w;
        std::vector<std::wstring> expected;
    };
    for (const Row& row : {Row{narrow, nullptr, {L"a", L"b", L"c"}}, Row{cut, nullptr, {L"a"}},
                           Row{nullptr, wide, {L"A", L"B"}}, Row{narrow, on, {L"a", L"B", L"c", L"D", L"E"}},
                           Row{narrow, ended, {L"A", L"b", L"C"}}}) {
        control.List = row.list;
        control.List_W = row.list_w;
        control.Init(recorder::window());
        ASSERT_EQ(control.NbCheckBox, static_cast<int>(row.expected.size()));
        for (std::size_t i = 0; i < row.expected.size(); i++)
            EXPECT_EQ(label(static_cast<int>(i)).W_Name, row.expected[i]);
    }
}

// Beyond its end a list of the host's may have no room: the sanitizer looks on.
TEST_F(Check_List, BeyondItsEndANarrowListIsNotRead) {
    const std::vector<const char*> narrow = {"a", nullptr};
    const std::vector<const wchar_t*> wide = {L"A", L"B", L"C", nullptr};
    control.List = narrow.data();
    control.List_W = wide.data();
    control.Init(recorder::window());
    EXPECT_EQ(control.NbCheckBox, 3);
    EXPECT_STREQ(label(2).W_Name, L"C");
}

TEST_F(Check_List, ALabelIsAFormatWithoutArguments) {
    const std::string long_text(2000, 'x');
    const std::wstring long_wide(1024, L'x'), longest(1023, L'y');
    const char* const narrow[] = {"50%%", "%s %n%ls!", "\xC3\xA9", long_text.c_str(), nullptr};
    const wchar_t* const wide[] = {L"50%%", L"%ls%n %d!", long_wide.c_str(), longest.c_str(), nullptr};
    control.List = narrow;
    control.Init(recorder::window());
    EXPECT_STREQ(label(0).W_Name, L"50%");
    EXPECT_STREQ(label(1).W_Name, L" !");
    EXPECT_STREQ(label(2).W_Name, L"\u00E9");
    EXPECT_EQ(label(3).W_Name, nullptr);
    control.Draw(); // without a text as well
    control.List = nullptr;
    control.List_W = wide;
    control.Init(recorder::window());
    EXPECT_STREQ(label(0).W_Name, L"50%");
    EXPECT_STREQ(label(1).W_Name, L" !");
    EXPECT_EQ(label(2).W_Name, nullptr);
    EXPECT_EQ(label(3).W_Name, longest);
}

// --- Metrics ---

TEST_F(Check_List, AFontIsMeasuredOnlyWhenItIsAnotherOne) {
    const auto asked = [&] {
        recorder::clear();
        control.Init(recorder::window());
        const std::string lines = recorder::text(recorder::kMeasure | recorder::kDraw);
        EXPECT_EQ(times(lines, "Zeb_setup("), 1u) << "one bracket for all that is measured";
        EXPECT_EQ(times(lines, "Zeb_setup(WND, \"CheckLists::Init\")"), 1u);
        return times(lines, "Zeb_Font_Size_Height");
    };
    give(2);
    control.Font_Size = 41;
    recorder::metrics(font(), 23, 17);
    EXPECT_EQ(asked(), 1u);
    EXPECT_EQ(control.Font_Dim, 23);
    EXPECT_EQ(control.Char_Dim, 17);
    EXPECT_EQ(asked(), 0u);
    CheckLists other;
    other.Font_Size = 41;
    other.Dim_X = other.Dim_Y = 60;
    other.List = control.List;
    recorder::clear();
    other.Init(recorder::window());
    EXPECT_EQ(times(recorder::text(recorder::kMeasure), "Zeb_Font_Size_Height"), 0u);
    EXPECT_EQ(other.Font_Dim, 23);
    control.Font_Size = 42;
    EXPECT_EQ(asked(), 1u);
    EXPECT_EQ(control.Font_Dim, 10);
    control.Font_Size = 0; // the default font, which has no handle
    EXPECT_EQ(asked(), 0u);
    EXPECT_EQ(control.Font_Dim, 10);
    EXPECT_EQ(control.Char_Dim, 8);
}

TEST_F(Check_List, NothingIsMeasuredForASingleLetter) {
    const auto widths = [&] {
        recorder::clear();
        control.Init(recorder::window());
        return times(recorder::text(recorder::kMeasure), "Zeb_Font_Size_String");
    };
    laid(1); // the font is known by now
    give(1);
    EXPECT_EQ(widths(), 1u);
    const char* const letter[] = {"A", nullptr};
    const char* const accent[] = {"\xC3\xA9", nullptr};
    const wchar_t* const wide[] = {L"Ab", nullptr};
    const wchar_t* const wide_letter[] = {L"W", nullptr};
    control.List = letter;
    EXPECT_EQ(widths(), 0u);
    control.List = accent;
    EXPECT_EQ(widths(), 0u);
    control.List_W = wide;
    EXPECT_EQ(widths(), 2u) << "its shown label has two";
    control.List = nullptr;
    control.List_W = wide_letter;
    EXPECT_EQ(widths(), 0u);
}

// --- Entries ---

TEST_F(Check_List, InitMakesTheEntriesAnew) {
    shown(3);
    control.Box_State[1] = 1;
    label(0).Flag = 0;
    const std::string lines = everything([&] { control.Init(nullptr); });
    EXPECT_EQ(times(lines, ">>> in  Lib_Brask: Buttons::~Buttons"), 6u);
    EXPECT_EQ(times(lines, ">>> in  Lib_Brask: Buttons::Buttons"), 6u);
    EXPECT_EQ(times(lines, ">>> in  Lib_Brask: Buttons::Init"), 6u);
    for (int i = 0; i < 3; i++) {
        EXPECT_EQ(control.Box_State[i], 0);
        EXPECT_EQ(label(i).Flag, OUTIL_INVISIBLE | OUTIL_EMPTY);
        EXPECT_EQ(label(i).Wnd, recorder::window());
        EXPECT_EQ(box(i).Wnd, recorder::window());
    }
}

TEST_F(Check_List, EntriesTakeTheFontApartFromItsSlant) {
    control.Font_Name = "f", control.Font_Weight = "bold", control.Font_Slant = "i";
    laid(1);
    for (const Buttons* part : {&box(0), &label(0)}) {
        EXPECT_STREQ(part->Font_Name, "f");
        EXPECT_STREQ(part->Font_Weight, "bold");
        EXPECT_EQ(part->Font_Slant, nullptr);
        EXPECT_EQ(part->Font_Size, 9);
    }
}

TEST_F(Check_List, ALabelsClipStaysInItsCell) {
    control.Clip_X = 110, control.Clip_Y = 20, control.Clip_Dim_X = 90, control.Clip_Dim_Y = 500;
    control.Flag = OUTIL_VERTICAL;
    laid(2); // cells of 140 from 105
    EXPECT_EQ(label(0).Clip_X, 110);
    EXPECT_EQ(label(0).Clip_Dim_X, 90);
    EXPECT_EQ(label(0).Clip_Y, 20);
    EXPECT_EQ(label(0).Clip_Dim_Y, 500);
    EXPECT_EQ(box(0).Clip_X, 110);
    EXPECT_EQ(box(0).Clip_Dim_X, 90);
    control.Clip_X = 20, control.Clip_Dim_X = 900;
    control.Init(nullptr);
    EXPECT_EQ(label(0).Clip_X, 105);
    EXPECT_EQ(label(0).Clip_Dim_X, 140);
    EXPECT_EQ(box(0).Clip_X, 20);
    control.Clip_X = 200;
    control.Init(nullptr);
    EXPECT_EQ(label(0).Clip_Dim_X, 140 - 200 + 105);
    control.Clip_Dim_X = 0;
    control.Clip_X = 0;
    control.Init(nullptr);
    EXPECT_EQ(label(0).Clip_Dim_X, 0) << "unclipped";
}

TEST_F(Check_List, EnableShowsAnEntryInOutline) {
    const char enable[] = {1, 0, -1};
    control.Enable = enable;
    laid(3);
    EXPECT_EQ(box(0).Flag, 0u);
    EXPECT_EQ(box(1).Flag, GRAPH_OUTLINE | OUTIL_DISABLE);
    EXPECT_EQ(box(2).Flag, 0u);
}

TEST_F(Check_List, AColourGivesAWideBevelToALargeBox) {
    const unsigned colours[] = {0x112233, 0x445566};
    for (const int row : {20, 21, -21, 30}) {
        control.Row_Dim = row;
        control.Colour = nullptr;
        laid(2);
        EXPECT_EQ(box(0).Border, 2);
        EXPECT_EQ(box(0).Color_Get(), Colors(170, 170, 170).get());
        control.Colour = colours;
        control.Init(nullptr);
        EXPECT_EQ(box(0).Border, row == 20 ? 2 : 4);
        EXPECT_EQ(box(0).Color_Get() & 0xFFFFFF, 0x112233u);
        EXPECT_EQ(box(1).Color_Get() & 0xFFFFFF, 0x445566u);
    }
}

// By all bits of the index, shifted by itself; not by the entry's bit.
TEST_F(Check_List, TheFirstStateOfAMaskIsNotThatOfItsBits) {
    give(65);
    struct Row {
        long long value;
        int entry, state;
    };
    for (const Row& row : {Row{1, 0, 0}, Row{2, 1, 1}, Row{1, 1, 0}, Row{8, 2, 1}, Row{4, 2, 0},
                           Row{24, 3, 1}, Row{8, 3, 1}, Row{-1, 0, 0}, Row{-1, 5, 1}, Row{1LL << 63, 31, 1},
                           Row{1LL << 40, 31, 1}, Row{1LL << 40, 5, 0}, Row{32, 32, 1}, Row{1LL << 63, 32, 0},
                           Row{66, 33, 1}, Row{-1, 64, 1}, Row{64, 64, 1}, Row{1, 64, 0}}) {
        control.Cur_Value = row.value;
        control.Init(recorder::window());
        EXPECT_EQ(box(row.entry).Cur_Value, row.state) << row.value << ' ' << row.entry;
    }
}

TEST_F(Check_List, TheFirstStateOfAnExclusiveListIsTheTrueOne) {
    control.Flag = CHECK_EXCLUSIVE;
    for (const long long value : {0LL, 2LL, 3LL, -1LL, 1LL << 32}) {
        control.Cur_Value = value;
        laid(3);
        for (int i = 0; i < 3; i++)
            EXPECT_EQ(box(i).Cur_Value, i == value);
    }
}

TEST_F(Check_List, ACopySharesTheEntriesAndWritesNoTrace) {
    laid(3);
    CheckLists* copy = nullptr;
    EXPECT_EQ(everything([&] { copy = new CheckLists(control); }), "");
    EXPECT_EQ(copy->Check, control.Check);
    EXPECT_EQ(copy->Box_State, control.Box_State);
    EXPECT_EQ(copy->NbCheckBox, 3);
    control.Cur_Value = 5;
    EXPECT_EQ(everything([&] { *copy = control; }), "");
    EXPECT_EQ(copy->Cur_Value, 5);
    copy->Check = copy->Label = nullptr; // the original's
    copy->Box_State = nullptr;
    delete copy;
    control.Draw();
}

// --- Bad input ---

TEST_F(Check_List, WildFieldsNeverHurt) {
    recorder::listen(0);
    const auto operate = [&] {
        control.Init(recorder::window());
        control.Draw();
        control.Select(2);
        control.Deselect();
        control.Read();
        control.Cur_Value ^= 3;
        control.Adjust();
        recorder::pointer(-5, -5);
        control.Select(0);
        control.Get_Y();
    };
    int Tools::*const fields[] = {&Tools::Pos_X,  &Tools::Pos_Y,  &Tools::Dim_X,      &Tools::Dim_Y,
                                  &Tools::Border, &Tools::Clip_X, &Tools::Clip_Dim_X, &Tools::Clip_Dim_Y};
    for (const DWORD flag : {DWORD(0), CHECK_HORIZONTAL, OUTIL_VERTICAL | CHECK_EXCLUSIVE})
        for (const int count : {0, 1, 7, 65})
            for (const int value : {0, 1, -40, INT_MAX, INT_MIN}) {
                give(count);
                const auto with = [&](int& field) {
                    const int old = field;
                    control.Flag = flag;
                    field = value;
                    recorder::pointer(110, 210);
                    operate();
                    field = old;
                };
                for (auto field : fields)
                    with(control.*field);
                with(control.Row_Dim);
                for (int* metric : {&BORDER, &SPACE})
                    with(*metric);
                recorder::metrics(font(), value % 1000000, value % 1000000);
                control.Flag = flag;
                operate();
            }
    EXPECT_FALSE(recorder::open());
}

TEST_F(Check_List, ManyEntriesWork) {
    recorder::listen(0);
    give(20000);
    control.Flag = OUTIL_VERTICAL;
    control.Dim_Y = 300000;
    control.Init(recorder::window());
    ASSERT_EQ(control.NbCheckBox, 20000);
    point_at(19999);
    EXPECT_EQ(control.Select(0), 1);
    EXPECT_EQ(control.Read(), 1LL << (19999 & 63));
    control.Draw();
}

TEST_F(Check_List, OperationsBeforeInitWarnOnceByTheirName) {
    const auto warned = [](void (*operation)(CheckLists&)) {
        CheckLists fresh;
        fresh.Dim_X = 50, fresh.Dim_Y = 50;
        fresh.Flag = OUTIL_EMPTY; // without the frame's own warning
        recorder::clear();
        operation(fresh);
        operation(fresh);
        return recorder::warnings();
    };
    const auto warning = [](const std::string& type) {
        return "[80000001] Tools: WARNING ! \n[80000001]    you must call *_Init() first\n[80000001]    "
               "type: " +
               type + "   name: no name\\n\n";
    };
    EXPECT_EQ(warned([](CheckLists& c) { c.Draw(); }), warning("CheckList::Draw"));
    EXPECT_EQ(warned([](CheckLists& c) { c.Adjust(); }), warning("CheckList::Adjust"));
    EXPECT_EQ(warned([](CheckLists& c) { c.Select(0); }), warning("CheckList::Select"));
    EXPECT_EQ(warned([](CheckLists& c) { c.Read(); }), warning("CheckList::Read"));
    EXPECT_EQ(warned([](CheckLists& c) { c.Deselect(); }), "");
    EXPECT_EQ(warned([](CheckLists& c) { c.Get_Y(); }), "");
}

} // namespace
