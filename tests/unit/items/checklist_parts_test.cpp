#include "checklist_fixture.h"

// What Init makes of a check list's frame, labels and entries.

namespace {

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
    EXPECT_EQ(rect_of(frame), (Rect{100, 200, 150, 100}));
    EXPECT_EQ(frame.Border, -2);
    EXPECT_EQ(clip_of(frame), (Rect{1, 2, 400, 500}));
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
    EXPECT_EQ(clip_of(label(0)), (Rect{110, 20, 90, 500}));
    EXPECT_EQ(clip_of(box(0)), clip_of(control));
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

} // namespace
