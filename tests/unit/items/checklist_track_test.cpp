#include "checklist_fixture.h"

// How a check list follows the pointer, and what it reads.

namespace {

// --- Select ---

struct Tracked_Check_List : Check_List {
    std::string selected(int mode, int answer) {
        return everything([&] { EXPECT_EQ(control.Select(mode), answer); });
    }
    void begin() {
        trace_in("CheckLists::Select", "no name");
        read_pointer("CheckLists::Select");
    }
    void end(const char* tag) { trace_out("CheckLists::Select", tag); }
    void lit(int i) {
        bracketed_text(i, kHighlight, "CheckLists::Select");
        face(box(i), i, true);
    }
    void unlit(int i) {
        bracketed_text(i, kBlack, "CheckLists::Select");
        box(i).Cur_Value ? mark(box(i), i) : face(box(i), i, false);
    }
};

TEST_F(Tracked_Check_List, TheWholeCellIsHitAndOnlyChangesArePainted) {
    control.Cur_Value = 2;
    control.Clip_Dim_X = control.Clip_Dim_Y = 900;
    shown(3);
    for (const int event : {0, 1, 2, 3, 16 + 2}) {
        control.Box_State[0] = control.Box_State[1] = control.Box_State[2] = 0;
        recorder::pointer(label(0).Pos_X + label(0).Dim_X, label(0).Pos_Y + 11); // far from the box
        std::string lines = selected(event, 1);
        EXPECT_EQ(lines, everything([&] { begin(), lit(0), end("1"); }));
        EXPECT_EQ(control.Box_State[0], 1);
        EXPECT_EQ(control.Box_State[1], 0) << "one never entered stays as it is";
        lines = selected(event, 1);
        EXPECT_EQ(lines, everything([&] { begin(), end("1"); }));
        point_at(1);
        lines = selected(event, 1);
        EXPECT_EQ(lines, everything([&] { begin(), unlit(0), lit(1), end("1"); }));
        EXPECT_EQ(control.Box_State[0], 2);
        outside();
        lines = selected(event, 0);
        EXPECT_EQ(lines, everything([&] { begin(), unlit(1), end("0"); }));
        EXPECT_EQ(control.Box_State[1], 2);
        lines = selected(event, 0);
        EXPECT_EQ(lines, everything([&] { begin(), end("0"); }));
    }
}

TEST_F(Tracked_Check_List, InsideBetweenTheCellsTheAnswerIs0) {
    shown(2);
    point_at(0);
    control.Select(0);
    recorder::pointer(101, 201);
    const std::string lines = selected(0, 0);
    EXPECT_EQ(lines, everything([&] { begin(), unlit(0), end("0"); }));
}

TEST_F(Tracked_Check_List, WhereTwoCellsMeetBothLightUp) {
    shown(2);
    recorder::pointer(label(0).Pos_X + 2, label(0).Pos_Y); // the second one's top edge
    selected(0, 1);
    EXPECT_EQ(control.Box_State[0], 1);
    EXPECT_EQ(control.Box_State[1], 1);
    EXPECT_EQ(control.Read(), 1) << "the first one decides";
}

TEST_F(Tracked_Check_List, EntriesInOutlineAreTrackedButNotPainted) {
    const char enable[] = {0};
    control.Enable = enable;
    shown(1);
    point_at(0);
    EXPECT_EQ(selected(0, 1), everything([&] { begin(), end("1"); }));
    EXPECT_EQ(control.Box_State[0], 1);
    recorder::pointer(101, 201);
    EXPECT_EQ(selected(0, 0), everything([&] { begin(), end("0"); }));
    EXPECT_EQ(control.Box_State[0], 2);
    control.Box_State[0] = 1;
    outside();
    EXPECT_EQ(selected(0, 0), everything([&] { begin(), end("0"); }));
    EXPECT_EQ(control.Box_State[0], 2);
    EXPECT_EQ(painted([&] { control.Deselect(); }), painted([] {
                  Zeb_setup(recorder::window(), "CheckLists::Deselect");
                  Zeb_release();
              }));
}

TEST_F(Tracked_Check_List, AnInvisibleControlPaintsOnlyWhenThePointerHasLeft) {
    shown(2);
    control.Flag = OUTIL_INVISIBLE;
    point_at(0);
    EXPECT_EQ(selected(0, 1), everything([&] { begin(), end("1"); }));
    point_at(1);
    EXPECT_EQ(selected(0, 1), everything([&] { begin(), end("1"); }));
    EXPECT_EQ(control.Box_State[0], 2);
    outside();
    const std::string lines = selected(0, 0);
    EXPECT_EQ(lines, everything([&] { begin(), unlit(1), end("0"); }));
}

TEST_F(Tracked_Check_List, AQueryComesBeforeTheDisableTest) {
    shown(2);
    for (const DWORD flag : {DWORD(0), OUTIL_DISABLE, OUTIL_INVISIBLE | OUTIL_DISABLE}) {
        control.Flag = flag;
        recorder::pointer(250, 300); // the far corner
        EXPECT_EQ(selected(KEY_QUERY + 32, 1), everything([&] { begin(), end("KEY_QUERY:1"); }));
        recorder::pointer(251, 300);
        EXPECT_EQ(selected(KEY_QUERY, 0), everything([&] { begin(), end("KEY_QUERY:0"); }));
    }
    point_at(0);
    control.Flag = OUTIL_DISABLE;
    EXPECT_EQ(selected(0, 0), everything([&] { begin(), end("OUTIL_DISABLE:0"); }));
    EXPECT_EQ(control.Box_State[0], 0);
    control.Dim_X = 0;
    EXPECT_EQ(selected(KEY_QUERY, 0), everything([&] {
                  trace_in("CheckLists::Select", "no name");
                  trace_out("CheckLists::Select", "<0");
              }));
}

// --- Deselect ---

TEST_F(Tracked_Check_List, DeselectPaintsByWayOfTheControlAndForgetsNothing) {
    control.Cur_Value = 2;
    control.Clip_Dim_X = control.Clip_Dim_Y = 900;
    shown(4);
    control.Box_State[0] = 1;
    control.Box_State[1] = 7; // whatever it is
    control.Box_State[2] = 2;
    for (int again = 0; again < 2; again++) {
        const std::string lines = everything([&] { control.Deselect(); });
        EXPECT_EQ(lines, everything([&] {
                      trace_in("CheckLists::Deselect", "no name");
                      font_now = font();
                      Zeb_setup(recorder::window(), "CheckLists::Deselect");
                      text(0, kBlack);
                      text(1, kBlack);
                      Zeb_release();
                      face(control, 0, false);
                      mark(control, 1);
                      trace_out("CheckLists::Deselect", "");
                  }));
        EXPECT_EQ(control.Box_State[0], 1);
        EXPECT_NE(lines.find(", 150, 100, 0x0)"), std::string::npos) << "the control's size, not the box's";
    }
}

// The recorder reads every word that such a call may copy.
TEST_F(Tracked_Check_List, ABoxesFaceHasRoomForTheWholeControl) {
    const unsigned colours[] = {0xFF, 0xFF00, 0xFF};
    control.Colour = colours;
    shown(3);
    control.Box_State[0] = control.Box_State[1] = 1;
    control.Deselect();
    for (int i = 0; i < 2; i++) {
        const DWORD* face = box(i).Image_Normal;
        EXPECT_EQ(face, box(i).Own_Normal_Off);
        Buttons plain; // how it looks otherwise
        plain.Dim_X = plain.Dim_Y = 8, plain.Border = 2;
        plain.Color = box(i).Color;
        plain.Init(recorder::window());
        EXPECT_TRUE(same_face(plain, face, plain.Own_Normal_Off));
        const DWORD flat = static_cast<DWORD>(box(i).Color.get_invert());
        for (int at = 64; at < 150 * 100; at++)
            ASSERT_EQ(face[at], flat) << at;
    }
    control.Draw();                           // the box itself shows it as ever
    control.Dim_X = 400, control.Dim_Y = 300; // larger than there was room for
    control.Deselect();
    EXPECT_EQ(box(0).Image_Normal[400 * 300 - 1], static_cast<DWORD>(box(0).Color.get_invert()));
    CheckLists equal(control); // boxes with room share it
    equal.Check = equal.Label = nullptr, equal.Box_State = nullptr;
    equal.Init(nullptr);
    equal.Draw();
    equal.Box_State[0] = equal.Box_State[2] = 1;
    equal.Deselect();
    EXPECT_EQ(equal.Check[0].Image_Normal, equal.Check[2].Image_Normal);
}

TEST_F(Tracked_Check_List, WaysOutOfDeselect) {
    CheckLists fresh;
    fresh.Dim_X = fresh.Dim_Y = 50;
    fresh.Deselect();
    EXPECT_EQ(recorder::exit_tag("CheckLists::Deselect"), "! this->test");
    shown(2);
    control.Flag = OUTIL_INVISIBLE;
    EXPECT_EQ(everything([&] { control.Deselect(); }), everything([] {
                  trace_in("CheckLists::Deselect", "no name");
                  trace_out("CheckLists::Deselect", "OUTIL_INVISIBLE");
              }));
    control.Dim_X = 0;
    control.Deselect();
    EXPECT_EQ(recorder::exit_tag("CheckLists::Deselect"), "< 0");
}

// --- Read ---

TEST_F(Tracked_Check_List, ReadGivesTheMaskWithOneBitTurned) {
    laid(65);
    const auto read = [&](long long value, int entry, long long answer, const std::string& tag) {
        control.Cur_Value = value;
        point_at(entry);
        EXPECT_EQ(everything([&] { EXPECT_EQ(control.Read(), answer); }), everything([&] {
                      trace_in("CheckLists::Read", "no name");
                      read_pointer("CheckLists::Read");
                      trace_out("CheckLists::Read", tag);
                  }));
        EXPECT_EQ(control.Read(), answer) << "a second time the same";
        EXPECT_EQ(control.Cur_Value, value);
    };
    control.Flag = OUTIL_VERTICAL;
    laid(65);
    control.Pos_Y = -500, control.Dim_Y = 1200, control.Init(nullptr); // all cells in the region
    read(0, 0, 1, "00000001");
    read(1, 0, 0, "00000000");
    read(0, 5, 32, "00000020");
    read(32 + 2, 5, 2, "00000002");
    read(0, 31, 1LL << 31, "80000000");
    read(0xFFFF, 40, (1LL << 40) + 0xFFFF, "0000FFFF");
    read(0, 63, static_cast<long long>(1ULL << 63), "00000000");
    read(0, 64, 1, "00000001");
    read(-1, 1, -3, "FFFFFFFD");
    control.Flag |= CHECK_EXCLUSIVE;
    read(7, 0, 0, "0");
    read(7, 64, 64, "64");
}

TEST_F(Tracked_Check_List, ReadAnswersForEntriesInOutline) {
    const char enable[] = {0, 0};
    control.Enable = enable;
    laid(2);
    point_at(1);
    EXPECT_EQ(control.Read(), 2);
}

TEST_F(Tracked_Check_List, WhereThereIsNoEntryReadGivesMinusOne) {
    laid(2);
    const auto none = [&](bool pointer_read) {
        EXPECT_EQ(everything([&] { EXPECT_EQ(control.Read(), -1); }), everything([&] {
                      trace_in("CheckLists::Read", "no name");
                      if (pointer_read) read_pointer("CheckLists::Read");
                      trace_out("CheckLists::Read", "-1");
                  }));
    };
    outside();
    none(true);
    recorder::pointer(101, 201); // inside, on no cell
    none(true);
    point_at(0);
    control.Flag = OUTIL_DISABLE;
    none(false);
    control.Flag = 0;
    control.Dim_X = 0;
    none(false);
}

} // namespace
