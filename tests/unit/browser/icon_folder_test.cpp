#include <brask/icons.h>

#include "support/recorded.h"

// Where the icons' folder is looked for. Each reader finds it once in the life of a process, and tells the
// first unreadable .rgb alone: so this is one story.

namespace {

using Icon_Story = Recorded;

std::string warning(const std::string& reader, const std::vector<std::string>& reports) {
    if (reports.size() != 1) return std::to_string(reports.size()) + " reports";
    int line = 0, used = 0;
    std::sscanf(reports[0].c_str(), (reader + "() File:icon Line:%d%n").c_str(), &line, &used);
    return line > 1 ? reports[0].substr(static_cast<std::size_t>(used)) : reports[0];
}

// What the drawing layer is asked for.
std::string asked_for(const wchar_t* name) {
    return recorded(recorder::kService, [&] { EXPECT_EQ(Icon_Read(nullptr, name), nullptr); });
}
// The file that is told to be unreadable.
std::string told_of(const wchar_t* name) {
    recorder::clear();
    EXPECT_EQ(Icon_Read(nullptr, name), nullptr);
    const auto reports = recorder::reports(2);
    const std::string start = "\xC3\xB1\\x05WARNING:\\x02 Unable to open \\x01";
    if (reports.size() != 2 || reports[0].compare(0, start.size(), start) != 0) return "(none)";
    return reports[0].substr(start.size());
}

TEST_F(Icon_Story, OfTheFolder) {
    recorder::reason(13);
    // There is none: the name alone is the path. The first unreadable file is told.
    W_Inst_Path = nullptr;
    EXPECT_EQ(Icon_Read(nullptr, L"a.rgb"), nullptr);
    EXPECT_EQ(recorder::reports(0x80000005), std::vector<std::string>{"Icon_Read_RGB(a.rgb)"});
    EXPECT_EQ(recorder::text(recorder::kService), "IGB_Read_Image(\"a.rgb\")\n");
    EXPECT_EQ(warning("Icon_Read_RGB", recorder::reports(0x90000021)), " ");
    EXPECT_EQ(recorder::reports(2),
              (std::vector<std::string>{"\xC3\xB1\\x05WARNING:\\x02 Unable to open \\x01"
                                        "a.rgb",
                                        "\xC3\xB1\\x09 error 13"}));
    EXPECT_EQ(std::wstring(Kelvar_Err_Str), L"error 13");
    EXPECT_EQ(told_of(L"a.tga"), "a.tga");

    // The next one is not, nor any other. The folder is tried for again.
    wchar_t empty[] = L"";
    W_Inst_Path = empty;
    EXPECT_EQ(everything([] { Icon_Read(nullptr, L"b.rgb"); }), "[80000005] Icon_Read_RGB(b.rgb)\n");
    EXPECT_EQ(told_of(L"b.tga"), "b.tga") << "every .tga is told";
    EXPECT_EQ(Icon_Read(nullptr, L"a.rgb"), nullptr);

    // One that leaves no room for a name is none.
    std::wstring longest(765, L'x');
    W_Inst_Path = longest.data();
    EXPECT_EQ(asked_for(L"c.rgb"), "IGB_Read_Image(\"c.rgb\")\n");

    // A folder without a separator gets none.
    wchar_t bare[] = L"C:\\Program";
    W_Inst_Path = bare;
    EXPECT_EQ(asked_for(L"d.rgb"), "IGB_Read_Image(\"C:\\ProgramIcons\\d.rgb\")\n");

    // From then on it stays. The other reader has still to find its own.
    wchar_t other[] = L"C:\\nowhere\\";
    W_Inst_Path = other;
    EXPECT_EQ(asked_for(L"e.rgb"), "IGB_Read_Image(\"C:\\ProgramIcons\\e.rgb\")\n");
    EXPECT_EQ(told_of(L"e.tga"), "C:\\nowhere\\Icons\\e.tga");
    W_Inst_Path = nullptr;
    EXPECT_EQ(asked_for(L"f.rgb"), "IGB_Read_Image(\"C:\\ProgramIcons\\f.rgb\")\n");
    EXPECT_EQ(told_of(L"f.tga"), "C:\\nowhere\\Icons\\f.tga");

    // A cleanup forgets the pictures, but neither the folders nor that a file was told.
    Icon_Cleanup();
    EXPECT_EQ(everything([] { Icon_Read(nullptr, L"a.rgb"); }),
              "[80000005] Icon_Read_RGB(C:\\ProgramIcons\\a.rgb)\n");

    // Paths have at most 770 characters.
    const std::wstring name(900, L'n');
    EXPECT_EQ(asked_for(name.c_str()),
              "IGB_Read_Image(\"C:\\ProgramIcons\\" + std::string(770 - 16, 'n') + "\")\n");
    Icon_Cleanup();
}

} // namespace
