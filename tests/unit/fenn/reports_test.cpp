#include <gtest/gtest.h>

#include <atomic>
#include <cerrno>
#include <cstdio>
#include <string>
#include <thread>
#include <vector>

#include <brask/fenn.h>
#include <brask/fenn_host.h>

namespace {

constexpr unsigned int trace = 0x90000029;

// --- A report made while the program loads, by a static object ---

struct Early {
    int heard = 0;
    wchar_t text[64] = {};
    Early() {
        Fenn_Set_Report(
            [](void* user, HWND wnd, unsigned int code, const wchar_t* report) {
                auto& early = *static_cast<Early*>(user);
                if (wnd == nullptr && code == 0x80000001) ++early.heard;
                for (int i = 0; i < 63 && report[i]; ++i)
                    early.text[i] = report[i];
            },
            this);
        Error_Fct(nullptr, trace, ">>> in  %hs", "nobody listens");
        Error_Fct(hwnd, 0x80000001, L"early %ls %d", L"\u0416", 7);
        Fenn_Set_Report(nullptr, nullptr);
    }
};
const Early early;

TEST(ReportsEarly, WorkBeforeMain) {
    EXPECT_EQ(early.heard, 1);
    EXPECT_STREQ(early.text, L"early \u0416 7");
}

// --- A receiver that collects ---

struct Report {
    HWND wnd;
    unsigned int code;
    std::wstring text;
};

class Reports : public testing::Test {
  protected:
    Reports() {
        Fenn_Set_Report(
            [](void* user, HWND wnd, unsigned int code, const wchar_t* text) {
                static_cast<Reports*>(user)->all.push_back({wnd, code, text});
            },
            this);
    }
    ~Reports() override { Fenn_Set_Report(nullptr, nullptr); }

    std::vector<Report> all;
};

TEST_F(Reports, ArriveWithWindowCodeAndText) {
    const auto wnd = reinterpret_cast<HWND>(&all);
    EXPECT_NE(Error_Fct(wnd, 1, "line %-4d of %hs \nmemory error", 12, "tools"), 0);
    EXPECT_NE(Error_Fct(nullptr, 0x90000021, L"%hs(%ls) 100%%", "Boxs::Init", L"\u00E9\u4E2D"), 0);
    ASSERT_EQ(all.size(), 2u);
    EXPECT_EQ(all[0].wnd, wnd);
    EXPECT_EQ(all[0].code, 1u);
    EXPECT_EQ(all[0].text, L"line 12   of tools \nmemory error");
    EXPECT_EQ(all[1].wnd, nullptr);
    EXPECT_EQ(all[1].code, 0x90000021u);
    EXPECT_EQ(all[1].text, L"Boxs::Init(\u00E9\u4E2D) 100%");
}

TEST_F(Reports, MarksArriveUntouched) {
    Error_Fct(nullptr, 2,
              L"a\x01"
              L"b\u00F1");
    EXPECT_EQ(all.at(0).text, L"a\x01"
                              L"b\u00F1");
}

TEST_F(Reports, TracesAreOffAtTheStart) {
    for (const unsigned int code : {0x90000029u, 0x90000027u, 0x90004009u, 0x80000005u})
        EXPECT_EQ(Error_Fct(nullptr, code, "trace"), 0) << std::hex << code;
    EXPECT_TRUE(all.empty());
    for (const unsigned int code : {0x90000021u, 0x80000001u, 2u, 1u, 0u, 12345u})
        Error_Fct(nullptr, code, "x");
    EXPECT_EQ(all.size(), 6u);
}

TEST_F(Reports, ListeningTurnsOneCodeOnAndOff) {
    Fenn_Listen(trace, 1);
    Error_Fct(nullptr, trace, ">>> in");
    Error_Fct(nullptr, 0x90000027, "still off");
    Error_Fct(nullptr, 0x90004009, "still off");
    Fenn_Listen(trace, 1); // once more changes nothing
    Fenn_Listen(trace, 0);
    Error_Fct(nullptr, trace, "<<< out");
    Fenn_Listen(77, 0);
    Fenn_Listen(77, 0);
    Error_Fct(nullptr, 77, "off");
    Fenn_Listen(77, 1);
    Error_Fct(nullptr, 77, "on");
    ASSERT_EQ(all.size(), 2u);
    EXPECT_EQ(all[0].text, L">>> in");
    EXPECT_EQ(all[1].text, L"on");
}

TEST_F(Reports, ManyCodesCanBeOff) {
    for (unsigned int code = 1000; code < 1100; ++code)
        Fenn_Listen(code, 0);
    Error_Fct(nullptr, 1000, "off");
    EXPECT_TRUE(all.empty());
    for (unsigned int code = 1000; code < 1100; ++code)
        Fenn_Listen(code, 1);
    for (unsigned int code = 1000; code < 1100; ++code)
        Error_Fct(nullptr, code, "on");
    EXPECT_EQ(all.size(), 100u);
    EXPECT_EQ(Error_Fct(nullptr, trace, "the traces stayed off"), 0);
}

TEST_F(Reports, LongTextsAreCutAndNullFormatsEmpty) {
    const std::wstring name(5000, L'n');
    Error_Fct(nullptr, 1, L"%ls", name.c_str());
    Error_Fct(nullptr, 1, static_cast<const wchar_t*>(nullptr));
    Error_Fct(nullptr, 1, static_cast<const char*>(nullptr));
    ASSERT_EQ(all.size(), 3u);
    EXPECT_GE(all[0].text.size(), 1100u); // a full name and its sentence fit
    EXPECT_EQ(all[0].text, name.substr(0, all[0].text.size()));
    EXPECT_EQ(all[1].text, L"");
    EXPECT_EQ(all[2].text, L"");
}

TEST_F(Reports, TheErrorNumberSurvives) {
    errno = ENOENT;
    Error_Fct(nullptr, 1, "%f", 1.5);
    EXPECT_EQ(errno, ENOENT);
}

TEST(ReportsInside, TheReceiverMayReportWithoutEnd) {
    int calls = 0;
    Fenn_Set_Report(
        [](void* user, HWND, unsigned int, const wchar_t*) {
            ++*static_cast<int*>(user);
            EXPECT_EQ(Error_Fct(nullptr, 1, "again"), 0);
        },
        &calls);
    Error_Fct(nullptr, 1, "first");
    Error_Fct(nullptr, 1, "second");
    Fenn_Set_Report(nullptr, nullptr);
    EXPECT_EQ(calls, 2);
}

TEST(ReportsThreads, NoneIsLostOrMixed) {
    struct Count {
        std::atomic<int> whole{0}, broken{0};
    } count;
    Fenn_Set_Report(
        [](void* user, HWND, unsigned int code, const wchar_t* text) {
            auto& counts = *static_cast<Count*>(user);
            const std::wstring expected =
                L"thread " + std::to_wstring(code) + L" says " + std::wstring(50, L'a' + wchar_t(code - 10));
            ++(text == expected ? counts.whole : counts.broken);
        },
        &count);
    std::vector<std::thread> threads;
    for (unsigned int code = 10; code < 14; ++code)
        threads.emplace_back([code] {
            const std::string letters(50, static_cast<char>('a' + code - 10));
            for (int i = 0; i < 500; ++i) {
                Error_Fct(nullptr, code, "thread %u says %hs", code, letters.c_str());
                Fenn_Listen(5000 + code, i & 1);
                Error_Fct(nullptr, trace, "never heard");
            }
        });
    for (std::thread& thread : threads)
        thread.join();
    Fenn_Set_Report(nullptr, nullptr);
    for (unsigned int code = 10; code < 14; ++code)
        Fenn_Listen(5000 + code, 1);
    EXPECT_EQ(count.whole, 2000);
    EXPECT_EQ(count.broken, 0);
}

std::string printed(const wchar_t* text) {
    testing::internal::CaptureStderr();
    Error_Fct(nullptr, 1, L"%ls", text);
    std::fflush(stderr);
    return testing::internal::GetCapturedStderr();
}

TEST(ReportsOnStderr, OneLineOfUtf8EachWithoutMarks) {
    EXPECT_EQ(printed(L"plain"), "plain\n");
    EXPECT_EQ(printed(L"   type: Box   name: none\n"), "   type: Box   name: none\n");
    EXPECT_EQ(printed(L"line 1 \nmemory error"), "line 1  memory error\n");
    EXPECT_EQ(printed(L"\x01"
                      L"b\x06"
                      L"e\u20AC"),
              "be\xE2\x82\xAC\n");
    EXPECT_EQ(printed(L"\x1B[31mred\x7F\u009B"), "[31mred\n");
    EXPECT_EQ(printed(L"\u00F1WARNING: \u00F1"), "WARNING: \xC3\xB1\n"); // bold, and a letter
    EXPECT_EQ(printed(L""), "\n");
    EXPECT_EQ(printed(std::wstring(5000, L'\u20AC').c_str()).size() % 3, 1u);
}

TEST(ReportsOnStderr, UnheardOnesPrintNothing) {
    testing::internal::CaptureStderr();
    Error_Fct(nullptr, trace, "silence");
    std::fflush(stderr);
    EXPECT_EQ(testing::internal::GetCapturedStderr(), "");
}

} // namespace
