#include <climits>
#include <set>

#include <brask/fonts.h>

#include "font_cache.h"
#include "support/recorded.h"

// The ring cache of 16 fonts.

namespace {

struct Fonts : Recorded {
    HWND wnd = nullptr;
    void SetUp() override {
        Recorded::SetUp();
        fill_font_cache();
        desk::reset();
        wnd = recorder::window();
        recorder::clear();
    }
    std::string tag() { return recorder::exit_tag("Zeb_Create_Font"); }
    int slot() { return std::stoi(tag().substr(tag().find_first_of("=:") + 1)); }
    // Asks once; tells whether a font was made.
    bool made(const char* name, const char* weight, const char* slant, int size) {
        const std::size_t before = desk::fonts().size();
        last = Zeb_Create_Font(wnd, name, weight, slant, size);
        return desk::fonts().size() > before;
    }
    const LOGFONTW& description() { return desk::fonts().back().description; }
    HFONT last = nullptr;
};

std::string banner(const std::string& triangle) {
    std::string line = triangle + "2";
    for (int i = 0; i < 4; ++i)
        line += triangle;
    line += " Fonts ";
    for (int i = 0; i < 43; ++i)
        line += triangle;
    return "[90004009] " + line + "\n";
}
const std::string kOpening = banner("\xE2\x96\xBC"), kClosing = banner("\xE2\x96\xB2");
#ifdef _WIN32
const std::string kEnter, kLeave; // the system's own there, and silent
#else
const std::string kEnter = "EnterCriticalSection()\n", kLeave = "LeaveCriticalSection()\n";
#endif
const std::string kIn = "[90000029] >>> in  Lib_Brask: Zeb_Create_Font()\n";
std::string out(const std::string& tag) {
    return "[90000029] <<< out Lib_Brask: Zeb_Create_Font(" + tag + ")\n";
}

TEST_F(Fonts, AllNullAnswersNullAndCreatesNothing) {
    Zeb_Create_Font(nullptr, nullptr, nullptr, nullptr, 0); // the lock is ready from here on
    EXPECT_EQ(recorded(recorder::kEverything,
                       [&] { EXPECT_EQ(Zeb_Create_Font(wnd, nullptr, nullptr, nullptr, 0), nullptr); }),
              kIn + out("default"));
    EXPECT_TRUE(desk::fonts().empty());
}

TEST_F(Fonts, OneArgumentIsEnoughForAFont) {
    EXPECT_TRUE(made("arial", nullptr, nullptr, 0));
    EXPECT_NE(last, nullptr);
    EXPECT_TRUE(made(nullptr, "bold", nullptr, 0));
    EXPECT_TRUE(made(nullptr, nullptr, "i", 0));
    EXPECT_TRUE(made(nullptr, nullptr, nullptr, -1));
}

TEST_F(Fonts, NewFontCallsInOrder) {
    const auto lines = recorded(recorder::kEverything, [&] { made("times", "bold", "r", 12); });
    made("times", "bold", "r", 12); // leaves the slot's number in its trace
    const std::string number = std::to_string(slot());
    const std::string deleted =
        lines.substr(lines.find("DeleteObject"),
                     lines.find('\n', lines.find("DeleteObject")) - lines.find("DeleteObject") + 1);
    EXPECT_EQ(lines, kIn + kEnter + kOpening + deleted +
                         "Zeb_GetDC(WND, \"Zeb_Create_Font\")\nSetGraphicsMode(DC, 2)\n"
                         "ModifyWorldTransform(DC, 1)\nSetViewportOrgEx(DC, 0, 0)\nSetWindowOrgEx(DC, 0, 0)\n"
                         "GetDeviceCaps(DC, 88)\nGetDeviceCaps(DC, 90)\nDPtoLP(DC, 16, 16)\n"
                         "Zeb_ReleaseDC(WND, DC)\nCreateFontIndirectW(-16, 700, 0, \"times\")\n" +
                         kClosing + kLeave + out("new=" + number));
}

TEST_F(Fonts, OldFontCallsInOrder) {
    made("times", "bold", "r", 12);
    const HFONT font = last;
    const std::string number = std::to_string(slot());
    EXPECT_EQ(recorded(recorder::kEverything, [&] { EXPECT_FALSE(made("times", "bold", "r", 12)); }),
              kIn + kEnter + kOpening + kClosing + kLeave + out("old font:" + number));
    EXPECT_EQ(last, font);
}

TEST_F(Fonts, SlotsAreTakenInTurn) {
    made("times", nullptr, nullptr, 5);
    EXPECT_EQ(tag().substr(0, 4), "new=");
    int before = slot();
    for (int i = 0; i < 20; ++i) {
        made("times", nullptr, nullptr, never_asked_size());
        EXPECT_EQ(slot(), (before + 1) % 16);
        before = slot();
    }
}

TEST_F(Fonts, SeventeenthDeletesTheFirst) {
    std::vector<HFONT> made_fonts;
    for (int i = 0; i < 16; ++i) {
        made("times", nullptr, nullptr, 100 + i);
        made_fonts.push_back(last);
    }
    EXPECT_EQ(std::set<HFONT>(made_fonts.begin(), made_fonts.end()).size(), 16u);
    for (int i = 0; i < 16; ++i) {
        EXPECT_FALSE(made("times", nullptr, nullptr, 100 + i)); // a hit does not make a font younger
        EXPECT_EQ(last, made_fonts[i]);
    }
    for (const desk::Made& font : desk::fonts())
        EXPECT_FALSE(font.deleted);
    made("times", nullptr, nullptr, 116);
    for (int i = 0; i < 16; ++i)
        EXPECT_EQ(desk::fonts()[i].deleted, i == 0) << i;
    EXPECT_TRUE(made("times", nullptr, nullptr, 100)); // it is gone
    EXPECT_TRUE(desk::fonts()[1].deleted);
}

struct Same {
    const char *name, *weight, *slant;
    int size;
    bool same; // as "arial", "medium", "r", 12
};
TEST_F(Fonts, AreToldApartByNameSizeAndFirstLetters) {
    const Same rows[] = {
        {"arial", "medium", "r", 12, true},  {nullptr, "medium", "r", 12, true},
        {"arial", nullptr, "r", 12, true},   {"arial", "medium", nullptr, 12, true},
        {"arial", "", "", 12, true},         {"arial", "m", "roman", 12, true},
        {"Arial", "medium", "r", 12, false}, {"aria", "medium", "r", 12, false},
        {"arial", "bold", "r", 12, false},   {"arial", "medium", "i", 12, false},
        {"arial", "medium", "o", 12, false}, {"arial", "medium", "r", 13, false},
        {"arial", "Medium", "r", 12, false}, {"", "medium", "r", 12, false},
    };
    for (const Same& row : rows) {
        SCOPED_TRACE(testing::Message()
                     << (row.name ? row.name : "null") << " " << (row.weight ? row.weight : "null") << " "
                     << (row.slant ? row.slant : "null") << " " << row.size);
        fill_font_cache();
        ASSERT_TRUE(made("arial", "medium", "r", 12));
        EXPECT_EQ(!made(row.name, row.weight, row.slant, row.size), row.same);
    }
}

// One entry, but the word that the system is asked for differs.
TEST_F(Fonts, NullNameAsksForArialWithACapital) {
    made(nullptr, nullptr, nullptr, 12);
    EXPECT_EQ(recorder::narrow(description().lfFaceName), "Arial");
    EXPECT_FALSE(made("arial", nullptr, nullptr, 12));
    fill_font_cache();
    made("arial", nullptr, nullptr, 12);
    EXPECT_EQ(recorder::narrow(description().lfFaceName), "arial");
}

struct Words {
    const char *weight, *slant;
    int bold, italic;
};
TEST_F(Fonts, WeightAndSlantAreWholeWords) {
    const Words rows[] = {{"bold", "r", 700, 0},      {"b", "r", 0, 0},         {"bolder", "r", 0, 0},
                          {"Bold", "r", 0, 0},        {"medium", "i", 0, 1},    {"medium", "o", 0, 1},
                          {"bold", "o", 700, 1},      {nullptr, nullptr, 0, 0}, {"medium", "I", 0, 0},
                          {"medium", "italic", 0, 0}, {"", "", 0, 0},           {"medium", "oblique", 0, 0}};
    for (const Words& row : rows) {
        fill_font_cache();
        ASSERT_TRUE(made("times", row.weight, row.slant, 12));
        EXPECT_EQ(description().lfWeight, row.bold) << (row.weight ? row.weight : "null");
        EXPECT_EQ(description().lfItalic, row.italic) << (row.slant ? row.slant : "null");
    }
}

TEST_F(Fonts, FirstLettersShareWhatTheWordsWouldTellApart) {
    ASSERT_TRUE(made("times", "b", "i", 12));
    EXPECT_EQ(description().lfWeight, 0);
    EXPECT_FALSE(made("times", "bold", "italic", 12)); // the thin one is handed out
}

TEST_F(Fonts, OtherMembersOfTheDescriptionAreZero) {
    made("times", "bold", "i", 12);
    const LOGFONTW& d = description();
    EXPECT_EQ(d.lfWidth, 0);
    EXPECT_EQ(d.lfEscapement, 0);
    EXPECT_EQ(d.lfOrientation, 0);
    EXPECT_EQ(d.lfUnderline, 0);
    EXPECT_EQ(d.lfStrikeOut, 0);
    EXPECT_EQ(d.lfCharSet, 0);
    EXPECT_EQ(d.lfOutPrecision, 0);
    EXPECT_EQ(d.lfClipPrecision, 0);
    EXPECT_EQ(d.lfQuality, 0);
    EXPECT_EQ(d.lfPitchAndFamily, 0);
}

struct Height {
    int size, dpi_x, dpi_y, height;
};
TEST_F(Fonts, SizeIsAtNinetySixDotsWhateverTheScreen) {
    const Height rows[] = {{12, 96, 96, -16},   {0, 96, 96, -16},    {-5, 96, 96, -16}, {7, 96, 96, -9},
                           {10, 96, 96, -13},   {9, 96, 96, -12},    {1, 96, 96, -1},   {72, 96, 96, -96},
                           {12, 144, 144, -16}, {12, 192, 192, -16}, {7, 120, 120, -9}, {12, 96, 192, -32},
                           {12, 192, 96, -8}};
    for (const Height& row : rows) {
        fill_font_cache();
        desk::resolution(row.dpi_x, row.dpi_y);
        ASSERT_TRUE(made("times", nullptr, nullptr, row.size));
        EXPECT_EQ(description().lfHeight, row.height)
            << row.size << " at " << row.dpi_x << " by " << row.dpi_y;
    }
}

TEST_F(Fonts, DefaultSizesAreTheirOwnRequests) {
    made("times", nullptr, nullptr, 12);
    EXPECT_TRUE(made("times", nullptr, nullptr, 0));
    EXPECT_TRUE(made("times", nullptr, nullptr, -1));
    EXPECT_FALSE(made("times", nullptr, nullptr, 0));
}

TEST_F(Fonts, RefusalIsReportedBeforeTheExitAndKept) {
    desk::refuse_fonts(true);
    EXPECT_FALSE(made(nullptr, "bold", nullptr, 7));
    EXPECT_EQ(last, nullptr);
    const auto& log = recorder::log();
    ASSERT_GE(log.size(), 2u);
    EXPECT_EQ(log[log.size() - 2].code, 0x90000021u);
    EXPECT_EQ(log[log.size() - 2].text,
              "WARNING: in Zeb_Create_Font(), Unable to allocate font:(name:Arial height:-9 weight:700 )");
    EXPECT_EQ(log.back().text.rfind("<<< out Lib_Brask: Zeb_Create_Font(new=", 0), 0u);
    const int slot_of_null = slot();
    // The same again is a hit, without another warning, until the slot comes round.
    desk::refuse_fonts(false);
    recorder::clear();
    EXPECT_FALSE(made(nullptr, "bold", nullptr, 7));
    EXPECT_EQ(last, nullptr);
    EXPECT_EQ(tag(), "old font:" + std::to_string(slot_of_null));
    EXPECT_EQ(recorder::warnings(), "");
    for (int i = 0; i < 15; ++i)
        made("times", nullptr, nullptr, never_asked_size());
    const std::string lines =
        recorded(recorder::kSystem, [&] { made("times", nullptr, nullptr, never_asked_size()); });
    EXPECT_EQ(lines.find("DeleteObject"), std::string::npos); // there is nothing to delete
    EXPECT_TRUE(made(nullptr, "bold", nullptr, 7));
}

TEST_F(Fonts, LongFamilyNamesAreCutNotOverrun) {
    for (const std::size_t length : {30u, 31u, 32u, 79u, 80u, 81u, 200u, 5000u}) {
        const std::string name(length, 'f');
        ASSERT_TRUE(made(name.c_str(), nullptr, nullptr, never_asked_size())) << length;
        const std::string face = recorder::narrow(description().lfFaceName);
        EXPECT_EQ(face, std::string(length < 31 ? length : 31, 'f')) << length;
    }
}

TEST_F(Fonts, AnyArgumentsAreHarmless) {
    for (const int size : {INT_MAX, INT_MIN, 32767, 32768, 65536, 65548, -32769})
        for (const char* word : {"", "x", "\xFF\xFE", "\xC3", "%s%n"})
            Zeb_Create_Font(nullptr, word, word, word, size);
    desk::resolution(0, 0);
    Zeb_Create_Font(wnd, "times", nullptr, nullptr, never_asked_size());
    desk::resolution(-1, INT_MAX);
    Zeb_Create_Font(wnd, "times", nullptr, nullptr, never_asked_size());
    EXPECT_EQ(tag().substr(0, 4), "new=");
}

} // namespace
