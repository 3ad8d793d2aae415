#include <atomic>
#include <set>
#include <thread>
#include <vector>

#include <gtest/gtest.h>

#include <brask/fonts.h>

// The font cache is the one thing of the controls that several threads may ask at once; here it stands on the
// real drawing layer.

namespace {

constexpr int kThreads = 4, kRounds = 400, kFonts = 12; // fewer than the cache holds: each is made once

TEST(FontThreads, AllGetTheSameFonts) {
    Zeb_Create_Font(nullptr, nullptr, nullptr, nullptr, 0); // makes the lock ready
    std::vector<std::set<HFONT>> got[kThreads];
    std::vector<std::thread> threads;
    for (auto& fonts : got) {
        fonts.resize(kFonts);
        threads.emplace_back([&fonts] {
            for (int i = 0; i < kRounds; i++)
                fonts[i % kFonts].insert(Zeb_Create_Font(nullptr, "arial", "bold", nullptr, 20 + i % kFonts));
        });
    }
    for (std::thread& thread : threads)
        thread.join();
    std::set<HFONT> all;
    for (int size = 0; size < kFonts; size++) {
        const HFONT font = Zeb_Create_Font(nullptr, "arial", "bold", nullptr, 20 + size);
        EXPECT_NE(font, nullptr);
        all.insert(font);
        for (const auto& fonts : got)
            EXPECT_EQ(fonts[size], std::set<HFONT>{font});
    }
    EXPECT_EQ(all.size(), std::size_t{kFonts});
}

TEST(FontThreads, ManyFontsComeAndGo) {
    std::atomic<int> missing = 0;
    std::vector<std::thread> threads;
    for (int number = 0; number < kThreads; number++)
        threads.emplace_back([&missing, number] {
            for (int i = 0; i < kRounds; i++)
                if (!Zeb_Create_Font(nullptr, "times", nullptr, "i", 1 + (i * 7 + number) % 60)) missing++;
        });
    for (std::thread& thread : threads)
        thread.join();
    EXPECT_EQ(missing, 0);
}

} // namespace
