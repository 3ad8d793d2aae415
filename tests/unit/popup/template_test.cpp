// The template's bytes.

#include <cstring>

#include "popup/dialog_template.h"
#include "popup_fixture.h"

using brask::fill_template;
using brask::TEMPLATE_SIZE;

static constexpr LONG kBase = 8 | 16 << 16;

struct Bytes {
    std::vector<BYTE> block = std::vector<BYTE>(TEMPLATE_SIZE);
    explicit Bytes(const brask::Template_Wish& wish) { fill_template(block.data(), wish); }
    template <typename Value>
    Value at(std::size_t byte) const {
        Value value;
        std::memcpy(&value, &block[byte], sizeof value);
        return value;
    }
    int cx() const { return at<short>(14); }
    int cy() const { return at<short>(16); }
    std::wstring caption() const {
        std::wstring text;
        for (std::size_t byte = 22; at<wchar_t>(byte); byte += sizeof(wchar_t))
            text += at<wchar_t>(byte);
        return text;
    }
};

TEST(Template, HoldsEachFieldInItsPlace) {
    const Bytes bytes({L"Caption", 300, 150, false, kBase});
    EXPECT_EQ(bytes.at<DWORD>(0), 0x80CC0080u);
    EXPECT_EQ(bytes.at<DWORD>(4), 0u);
    EXPECT_EQ(bytes.at<WORD>(8), 0);
    EXPECT_EQ(bytes.at<short>(10), 10);
    EXPECT_EQ(bytes.at<short>(12), 10);
    EXPECT_EQ(bytes.cx(), 150);
    EXPECT_EQ(bytes.cy(), 75);
    EXPECT_EQ(bytes.at<WORD>(18), 0);
    EXPECT_EQ(bytes.at<WORD>(20), 0);
    EXPECT_EQ(bytes.caption(), L"Caption");
}

TEST(Template, ReachesTheManagerInItsBlock) {
    recorder::reset();
    desk::reset_dialogs();
    wchar_t text[] = L"text";
    PopUp_Message(L"Error here", nullptr, text, 500, 400, "topic");
    Bytes expected({L"Error here", 500, 400, true, kBase});
    EXPECT_EQ(desk::dialogs().memory, expected.block);
    EXPECT_EQ(expected.cx(), 250 + 53);
    EXPECT_EQ(expected.cy(), 200);
}

TEST(Template, SizesHaveADefaultAndALeastValue) {
    struct Row {
        int dx, dy, width, height;
    };
    for (const Row& row :
         {Row{0, 0, 300, 150}, Row{100, 100, 200, 120}, Row{199, 119, 200, 120}, Row{201, 121, 201, 121},
          Row{-1, -1, 200, 120}, Row{-2147483647 - 1, -2147483647 - 1, 200, 120}}) {
        const Bytes bytes({L"", row.dx, row.dy, false, kBase});
        EXPECT_EQ(bytes.cx(), row.width * 4 / 8) << row.dx;
        EXPECT_EQ(bytes.cy(), row.height * 8 / 16) << row.dy;
    }
}

TEST(Template, DivisionsTruncate) {
    const Bytes bytes({L"", 301, 151, true, 7 | 13 << 16});
    EXPECT_EQ(bytes.cx(), 301 * 4 / 7 + 424 / 7); // 172 + 60
    EXPECT_EQ(bytes.cy(), 151 * 8 / 13);
}

TEST(Template, HelpMakesItWiderBy106Pixels) {
    EXPECT_EQ(Bytes({L"", 0, 0, true, kBase}).cx() - Bytes({L"", 0, 0, false, kBase}).cx(), 106 * 4 / 8);
}

TEST(Template, SizesAreLimitedInDialogUnits) {
    EXPECT_EQ(Bytes({L"", 1500, 1100, false, kBase}).cx(), 750);
    EXPECT_EQ(Bytes({L"", 1500, 1100, false, kBase}).cy(), 550);
    EXPECT_EQ(Bytes({L"", 1502, 1102, false, kBase}).cx(), 750);
    EXPECT_EQ(Bytes({L"", 1502, 1102, false, kBase}).cy(), 550);
    EXPECT_EQ(Bytes({L"", 1498, 1098, true, kBase}).cx(), 750);
    EXPECT_EQ(Bytes({L"", 65534, 65534, false, kBase}).cx(), 750);
}

// The words of a template have 16 bits and a sign.
TEST(Template, WilderSizesWrap) {
    EXPECT_EQ(Bytes({L"", 65536, 65536, false, kBase}).cx(), -32768);
    EXPECT_EQ(Bytes({L"", 65536, 65536, false, kBase}).cy(), -32768);
    EXPECT_EQ(Bytes({L"", 131072 + 400, 0, false, kBase}).cx(), 200);
    Bytes({L"", 2147483647, 2147483647, true, kBase});
}

TEST(Template, ALongCaptionIsCutToTheBlock) {
    const std::wstring caption(3000, L'c');
    const Bytes bytes({caption.c_str(), 0, 0, false, kBase});
    EXPECT_EQ(bytes.caption(), caption.substr(0, 1002 / sizeof(wchar_t) - 1));
    EXPECT_EQ(Bytes({nullptr, 0, 0, false, kBase}).caption(), L"");
    const std::wstring fits(1002 / sizeof(wchar_t) - 1, L'f');
    EXPECT_EQ(Bytes({fits.c_str(), 0, 0, false, kBase}).caption(), fits);
}
