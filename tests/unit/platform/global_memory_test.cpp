// Blocks of memory behind a handle, the same on both systems.

#include <algorithm>
#include <cstdint>
#include <cstring>

#include <brask/platform.h>

#include <gtest/gtest.h>

TEST(GlobalMemory, IsZeroedAndKeepsWhatIsWritten) {
    const HGLOBAL block = GlobalAlloc(GPTR, 1024);
    auto* bytes = static_cast<unsigned char*>(GlobalLock(block));
    ASSERT_NE(bytes, nullptr);
    EXPECT_TRUE(std::all_of(bytes, bytes + 1024, [](unsigned char byte) { return byte == 0; }));
    std::memset(bytes, 0x5A, 1024);
    EXPECT_TRUE(GlobalUnlock(block)); // a fixed block is never let go
    EXPECT_EQ(static_cast<unsigned char*>(GlobalLock(block))[1023], 0x5A);
    EXPECT_EQ(GlobalFree(block), nullptr);
}

TEST(GlobalMemory, AMoveableBlockCountsItsLocks) {
    const HGLOBAL block = GlobalAlloc(GHND, 10);
    ASSERT_NE(GlobalLock(block), nullptr);
    EXPECT_EQ(GlobalLock(block), GlobalLock(block));
    EXPECT_TRUE(GlobalUnlock(block));
    EXPECT_TRUE(GlobalUnlock(block));
    EXPECT_FALSE(GlobalUnlock(block));
    EXPECT_FALSE(GlobalUnlock(block));
    EXPECT_GE(GlobalSize(block), 10u); // the system may give a little more
    EXPECT_EQ(GlobalFree(block), nullptr);
}

TEST(GlobalMemory, ABlockOfNothingIsABlock) {
    const HGLOBAL block = GlobalAlloc(GPTR, 0);
    EXPECT_NE(block, nullptr);
    EXPECT_EQ(GlobalFree(block), nullptr);
}

TEST(GlobalMemory, WhatIsNoBlockIsRefused) {
    EXPECT_EQ(GlobalLock(nullptr), nullptr);
    EXPECT_FALSE(GlobalUnlock(nullptr));
    EXPECT_EQ(GlobalSize(nullptr), 0u);
    EXPECT_EQ(GlobalFree(nullptr), nullptr);
#ifndef _WIN32
    int none = 0;
    EXPECT_EQ(GlobalLock(&none), nullptr);
    EXPECT_FALSE(GlobalUnlock(&none));
    EXPECT_EQ(GlobalSize(&none), 0u);
    EXPECT_EQ(GlobalFree(&none), static_cast<HGLOBAL>(&none));
    const HGLOBAL block = GlobalAlloc(GPTR, 4);
    GlobalFree(block);
    EXPECT_EQ(GlobalFree(block), block);
#endif
}
