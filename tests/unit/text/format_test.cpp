#include "text/format.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <clocale>
#include <cstring>
#include <cwchar>
#include <random>
#include <string>
#include <utility>
#include <vector>

namespace {

template <typename Unit, typename From>
struct Formatter {
    Unit out[256];
    int length;

    std::basic_string<Unit> operator()(const From* format, ...) {
        va_list args;
        va_start(args, format);
        length = text::format(out, 256, format, args);
        va_end(args);
        return out;
    }
};

Formatter<wchar_t, wchar_t> wide;
Formatter<wchar_t, char> mixed;
Formatter<char, char> narrow;

int sized(wchar_t* out, std::size_t size, const wchar_t* format, ...) {
    va_list args;
    va_start(args, format);
    const int length = text::format(out, size, format, args);
    va_end(args);
    return length;
}

int sized(char* out, std::size_t size, const char* format, ...) {
    va_list args;
    va_start(args, format);
    const int length = text::format(out, size, format, args);
    va_end(args);
    return length;
}

std::wstring bare(const wchar_t* format) {
    wchar_t out[64];
    text::format_bare(out, 64, format);
    return out;
}

std::wstring number(const wchar_t* format, double value) {
    wchar_t out[64];
    text::format_number(out, 64, format, value);
    return out;
}

const wchar_t pair[] = {wchar_t(0xD83D), wchar_t(0xDE00), 0};

TEST(Format, WideAndNarrowTextInEachForm) {
    EXPECT_EQ(wide(L"%hs(%ls)", "Boxs::Draw", L"n\u00E9"), L"Boxs::Draw(n\u00E9)");
    EXPECT_EQ(mixed("%hs(%ls)", "Boxs::Draw", L"n\u00E9"), L"Boxs::Draw(n\u00E9)");
    EXPECT_EQ(narrow("%hs(%ls)", "Boxs::Draw", L"n\u00E9"), "Boxs::Draw(n\xC3\xA9)");
    EXPECT_EQ(wide(L"%hs", "n\xC3\xA9"), L"n\u00E9");
}

TEST(Format, PlainTextTakesTheWidthOfTheFormat) {
    EXPECT_EQ(wide(L"<%s|%c>", L"w", L'\u20AC'), L"<w|\u20AC>");
    EXPECT_EQ(mixed("<%s|%c>", "n", 'x'), L"<n|x>");
    EXPECT_EQ(narrow("<%s|%c|%lc>", "n", 'x', L'\u20AC'), "<n|x|\xE2\x82\xAC>");
    EXPECT_EQ(wide(L"%hc", 'x'), L"x");
}

TEST(Format, TheFormatIsUtf8InTheNarrowForms) {
    EXPECT_EQ(mixed("\xE2\x82\xAC%d", 5), L"\u20AC"
                                          L"5");
    EXPECT_EQ(narrow("\xE2\x82\xAC%d", 5), "\xE2\x82\xAC"
                                           "5");
}

TEST(Format, StrayBytesBecomeCharactersOfTheirNumber) {
    EXPECT_EQ(wide(L"%hs", "a\xF1z"), L"a\u00F1z");
    EXPECT_EQ(mixed("\x81"), L"\u0081");
    EXPECT_EQ(narrow("%s", "a\xF1z"), "a\xC3\xB1z");
    EXPECT_EQ(narrow("%c", 0xF1), "\xC3\xB1");
}

TEST(Format, DoesNotDependOnTheLocale) {
    const std::string before = std::setlocale(LC_ALL, nullptr);
    std::setlocale(LC_ALL, "C");
    EXPECT_EQ(wide(L"%ls %.2f", L"\u0416\u4E2D", 1.5), L"\u0416\u4E2D 1.50");
    for (const char* name : {"de_DE.UTF-8", "fr_FR.UTF-8", "German_Germany"})
        if (std::setlocale(LC_ALL, name)) {
            EXPECT_EQ(narrow("%.2f", 1.5), "1.50");
        }
    std::setlocale(LC_ALL, before.c_str());
}

TEST(Format, NullTextsAndFormats) {
    EXPECT_EQ(wide(L"%ls|%hs", static_cast<wchar_t*>(nullptr), static_cast<char*>(nullptr)),
              L"(null)|(null)");
    EXPECT_EQ(narrow("%s|%ls", static_cast<char*>(nullptr), static_cast<wchar_t*>(nullptr)), "(null)|(null)");
    EXPECT_EQ(wide(nullptr), L"");
    EXPECT_EQ(wide.length, 0);
}

TEST(Format, PercentSignsAndBrokenEnds) {
    EXPECT_EQ(wide(L"100%%"), L"100%");
    EXPECT_EQ(wide(L"100%"), L"100");
    EXPECT_EQ(narrow("a%-08.3l"), "a");
    EXPECT_EQ(narrow("%I6"), "6");
}

TEST(Format, NStoresNothing) {
    int counter = 77;
    EXPECT_EQ(narrow("ab%ncd%d", &counter, 5), "abcd5");
    EXPECT_EQ(counter, 77);
}

TEST(Format, BehindAnUnknownConversionNoArgumentIsRead) {
    EXPECT_EQ(narrow("a%yb%sc", 1), "abc");
    EXPECT_EQ(wide(L"%\u20AC%d|", 5), L"|");
    EXPECT_EQ(mixed("%\xE2\x82\xAC%d|", 5), L"|");
}

TEST(Format, WidthAndPrecisionOfText) {
    EXPECT_EQ(wide(L"[%5ls][%-5ls]", L"ab", L"cd"), L"[   ab][cd   ]");
    EXPECT_EQ(wide(L"[%5hs][%-5hs]", "ab", "cd"), L"[   ab][cd   ]");
    EXPECT_EQ(wide(L"[%.2ls][%.2hs][%.0ls]", L"abc", "abc", L"abc"), L"[ab][ab][]");
    EXPECT_EQ(narrow("[%3c][%-3c]", 'x', 'y'), "[  x][y  ]");
    EXPECT_EQ(wide(L"[%5.1hs]", "\xE2\x82\xAC!"), L"[    \u20AC]");
}

TEST(Format, PrecisionReadsNoFurther) {
    const wchar_t open_wide[] = {L'a', L'b', L'c'};
    const char open_narrow[] = {'a', 'b', 'c'};
    EXPECT_EQ(wide(L"%.3ls", open_wide), L"abc");
    EXPECT_EQ(wide(L"%.3hs", open_narrow), L"abc");
    EXPECT_EQ(narrow("%.3s", open_narrow), "abc");
}

TEST(Format, PrecisionCutsNoCharacter) {
    // Four bytes have no room in three.
    EXPECT_EQ(narrow("[%.3ls]", L"\U0001F600"), "[]");
    EXPECT_EQ(narrow("[%.4ls]", L"\U0001F600"), "[\xF0\x9F\x98\x80]");
    EXPECT_EQ(wide(L"[%.1ls]", pair), L"[]");
    EXPECT_EQ(wide(L"[%.2ls]", pair), std::wstring(L"[") + pair + L"]");
}

TEST(Format, LoneSurrogatesStayInWideText) {
    const wchar_t lone[] = {L'a', wchar_t(0xD83D), L'b', 0};
    EXPECT_EQ(wide(L"%ls", lone), lone);
    EXPECT_EQ(narrow("%ls", lone), "a\xEF\xBF\xBD"
                                   "b");
}

// Whatever the size, the output is a prefix of the whole, ended within its size, and the length is the same.
TEST(Format, TruncatesAtEverySize) {
    const wchar_t* const format = L"<%hs|%ls|%05d|%8.3f|%ls>";
    wchar_t whole[128];
    const int length = sized(whole, 128, format, "na\xC3\xAF", L"w\u20AC", 42, 3.14159, pair);
    ASSERT_EQ(std::wcslen(whole), static_cast<std::size_t>(length));
    for (std::size_t size = 1; size <= static_cast<std::size_t>(length) + 2; ++size) {
        std::wstring out(size + 1, L'#');
        EXPECT_EQ(sized(&out[0], size, format, "na\xC3\xAF", L"w\u20AC", 42, 3.14159, pair), length);
        EXPECT_EQ(out[size], L'#') << "written past the size " << size;
        const std::size_t written = std::wcslen(out.c_str());
        std::size_t expected = std::min<std::size_t>(size - 1, static_cast<std::size_t>(length));
        if (expected > 0 && expected < static_cast<std::size_t>(length) &&
            (whole[expected - 1] & ~0x3FF) == 0xD800)
            --expected;
        EXPECT_EQ(written, expected);
        EXPECT_EQ(0, std::wmemcmp(whole, out.c_str(), written));
    }
}

TEST(Format, TruncatesUtf8BetweenCharacters) {
    const std::string whole = "a\xC3\xA9"
                              "b\xE2\x82\xAC"
                              "c\xF0\x9F\x98\x80"
                              "d";
    const std::size_t ends[] = {0, 1, 1, 3, 4, 4, 4, 7, 8, 8, 8, 8, 12, 13}; // for each room in bytes
    for (std::size_t room = 0; room <= whole.size(); ++room) {
        std::string out(room + 2, '#');
        EXPECT_EQ(sized(&out[0], room + 1, "a%ls%s",
                        L"\u00E9"
                        L"b\u20AC",
                        "c\xF0\x9F\x98\x80"
                        "d"),
                  static_cast<int>(whole.size()));
        EXPECT_EQ(out.c_str(), whole.substr(0, ends[room])) << "room " << room;
        EXPECT_EQ(out[room + 1], '#');
    }
}

TEST(Format, NothingFollowsACharacterThatDidNotFit) {
    char out[4];
    EXPECT_EQ(sized(out, 4, "ab%lcz", L'\u20AC'), 6);
    EXPECT_STREQ(out, "ab");
}

TEST(Format, SizeZeroWritesNothing) {
    wchar_t untouched = L'#';
    EXPECT_EQ(sized(&untouched, 0, L"%d", 12345), 5);
    EXPECT_EQ(untouched, L'#');
    EXPECT_EQ(sized(static_cast<char*>(nullptr), 0, "%s", "abc"), 3);
}

// More zeros, whole and floating, than a short format can take.
template <std::size_t... Each>
int with_zeros(std::vector<char>& out, const std::string& format, std::index_sequence<Each...>) {
    return sized(out.data(), out.size(), format.c_str(), 0.0, 0.0, 0.0, 0.0, 0.0, 0.0, 0.0, 0.0,
                 static_cast<long long>(Each * 0)...);
}

// Whatever stands in a format: at every size the output is a part of the whole, and nothing beyond is
// touched.
TEST(Format, SeededFormatsStayWithinTheirSize) {
    constexpr std::make_index_sequence<40> zeros{};
    std::mt19937 random(4711);
    const std::string pieces = "%%%%%%*.#0-+ 123hhlzjtI64ddsSfgaencpxXu\x01\xF1\xC3\xA9yz";
    for (int i = 0; i < 20000; ++i) {
        std::string format;
        std::wstring wide_format;
        for (std::size_t n = random() % 24; n > 0; --n) {
            format += pieces[random() % pieces.size()];
            wide_format += static_cast<wchar_t>(static_cast<unsigned char>(format.back()));
        }
        std::vector<char> whole(4096),
            out(random() % 20 + 1, '#'); // on the heap, where a step too far is found
        const int length = with_zeros(whole, format, zeros);
        EXPECT_EQ(with_zeros(out, format, zeros), length) << format;
        EXPECT_LT(std::strlen(out.data()), out.size());
        EXPECT_EQ(std::strncmp(whole.data(), out.data(), std::strlen(out.data())), 0) << format;
        std::vector<wchar_t> bare_out(random() % 20 + 1);
        const int bare_length = text::format_bare(bare_out.data(), bare_out.size(), wide_format.c_str());
        ASSERT_LE(bare_length, static_cast<int>(wide_format.size()));
        ASSERT_LE(std::wcslen(bare_out.data()), static_cast<std::size_t>(bare_length));
    }
}

TEST(Format, BareFormatsPrintNoConversion) {
    EXPECT_EQ(bare(L"plain \u20AC"), L"plain \u20AC");
    EXPECT_EQ(bare(L"100%%"), L"100%");
    EXPECT_EQ(bare(L"a%lsb%nc%*.*fd%"), L"abcd");
    EXPECT_EQ(bare(L"%"), L"");
    EXPECT_EQ(bare(L"50%!"), L"50");
    EXPECT_EQ(bare(nullptr), L"");
    wchar_t out[4];
    EXPECT_EQ(text::format_bare(out, 4, L"ab%%cd"), 5);
    EXPECT_STREQ(out, L"ab%");
}

TEST(Format, OneNumberIsPrintedByTheFirstFloatingConversion) {
    EXPECT_EQ(number(L"%.1f Hz", 12.34), L"12.3 Hz");
    EXPECT_EQ(number(L"<%8.2e|%f>", 12.34), L"<1.23e+01|>");
    EXPECT_EQ(number(L"%g%%", 50), L"50%");
    EXPECT_EQ(number(L"%Lg", 0.5), L"0.5");
    EXPECT_EQ(number(L"nothing to print", 1), L"nothing to print");
    EXPECT_EQ(number(nullptr, 1), L"");
}

TEST(Format, OtherConversionsBesideOneNumberReadNothing) {
    EXPECT_EQ(number(L"a%sb%dc%nd%pe%hsf%lsg%!h%G", 2), L"abcdefgh2");
    EXPECT_EQ(number(L"%*.*f", 2.7), L"3"); // each * is 0
    EXPECT_EQ(number(L"%s", 2), L"");
    wchar_t out[4];
    EXPECT_EQ(text::format_number(out, 4, L"%.3f", 1.5), 5);
    EXPECT_STREQ(out, L"1.5");
    EXPECT_EQ(text::format_number(out, 4, L"%300.0f", 1), 300);
    EXPECT_STREQ(out, L"   ");
}

} // namespace
