// Locks, modules, time.

#include <dlfcn.h>

#include <atomic>
#include <cwchar>
#include <string>
#include <thread>

#include <brask/platform.h>

#include <gtest/gtest.h>

TEST(CriticalSection, TheSameThreadMayEnterAgain) {
    CRITICAL_SECTION section;
    InitializeCriticalSection(&section);
    EnterCriticalSection(&section);
    EnterCriticalSection(&section);
    EXPECT_TRUE(TryEnterCriticalSection(&section));
    for (int i = 0; i < 3; i++)
        LeaveCriticalSection(&section);
    DeleteCriticalSection(&section);
}

TEST(CriticalSection, AnotherThreadWaits) {
    CRITICAL_SECTION section;
    InitializeCriticalSection(&section);
    EnterCriticalSection(&section);
    bool could_enter = true;
    std::thread([&] { could_enter = TryEnterCriticalSection(&section); }).join();
    EXPECT_FALSE(could_enter);
    LeaveCriticalSection(&section);
    std::thread([&] {
        could_enter = TryEnterCriticalSection(&section);
        LeaveCriticalSection(&section);
    }).join();
    EXPECT_TRUE(could_enter);
    DeleteCriticalSection(&section);
}

TEST(CriticalSection, KeepsCountsWhole) {
    CRITICAL_SECTION section;
    InitializeCriticalSection(&section);
    int count = 0;
    const auto work = [&] {
        for (int i = 0; i < 10000; i++) {
            EnterCriticalSection(&section);
            count++;
            LeaveCriticalSection(&section);
        }
    };
    std::thread first(work), second(work);
    first.join();
    second.join();
    EXPECT_EQ(count, 20000);
    DeleteCriticalSection(&section);
}

TEST(CriticalSection, OneThatIsNotThereDoesNotLock) {
    CRITICAL_SECTION section{};
    EnterCriticalSection(&section);
    LeaveCriticalSection(&section);
    EXPECT_FALSE(TryEnterCriticalSection(&section));
    DeleteCriticalSection(&section);
    EnterCriticalSection(nullptr);
    LeaveCriticalSection(nullptr);
    DeleteCriticalSection(nullptr);
    InitializeCriticalSection(nullptr);
}

static std::wstring path_of(HMODULE module) {
    wchar_t path[4096];
    return std::wstring(path, GetModuleFileNameW(module, path, 4096));
}

TEST(Modules, TheProgramKnowsItsFile) {
    const std::wstring path = path_of(nullptr);
    EXPECT_EQ(path.substr(path.rfind(L'/') + 1), L"platform_test");
    EXPECT_EQ(path_of(GetModuleHandleW(nullptr)), path);
    EXPECT_EQ(GetModuleHandleW(L"platform_test"), GetModuleHandleW(nullptr));
}

TEST(Modules, ALongPathIsCutAndEnded) {
    wchar_t path[8];
    std::wmemset(path, L'#', 8);
    EXPECT_EQ(GetModuleFileNameW(nullptr, path, 5), 5u);
    EXPECT_EQ(std::wcslen(path), 4u);
    EXPECT_EQ(path[5], L'#');
    EXPECT_EQ(GetModuleFileNameW(nullptr, path, 1), 1u);
    EXPECT_EQ(path[0], 0);
    EXPECT_EQ(GetModuleFileNameW(nullptr, path, 0), 0u);
    EXPECT_EQ(GetModuleFileNameW(nullptr, nullptr, 8), 0u);
}

TEST(Modules, ALibraryIsFoundByNameAndAddress) {
    const HMODULE by_name = GetModuleHandleW(L"libc");
    ASSERT_NE(by_name, nullptr);
    EXPECT_EQ(GetModuleHandleW(L"libc.so.6"), by_name);
    EXPECT_NE(path_of(by_name).find(L"libc.so"), std::wstring::npos);
    HMODULE by_address = nullptr;
    const auto address = reinterpret_cast<LPCWSTR>(dlsym(RTLD_NEXT, "getpid"));
    EXPECT_TRUE(GetModuleHandleExW(GET_MODULE_HANDLE_EX_FLAG_FROM_ADDRESS, address, &by_address));
    EXPECT_EQ(by_address, by_name);
}

TEST(Modules, WhatIsNotLoadedIsNotFound) {
    EXPECT_EQ(GetModuleHandleW(L"libnothing"), nullptr);
    EXPECT_EQ(GetModuleHandleW(L""), nullptr);
    HMODULE module = nullptr;
    int local = 0;
    EXPECT_FALSE(GetModuleHandleExW(GET_MODULE_HANDLE_EX_FLAG_FROM_ADDRESS, reinterpret_cast<LPCWSTR>(&local),
                                    &module));
    EXPECT_FALSE(GetModuleHandleExW(0, nullptr, nullptr));
    wchar_t path[16];
    EXPECT_EQ(GetModuleFileNameW(reinterpret_cast<HMODULE>(&local), path, 16), 0u);
}

TEST(Time, SleepTakesAtLeastItsTime) {
    const ULONGLONG start = GetTickCount64();
    Sleep(30);
    EXPECT_GE(GetTickCount64() - start, 29u);
}

TEST(Time, TicksAreTheLowHalfOfTheLongOnes) {
    const auto low = static_cast<DWORD>(GetTickCount64());
    EXPECT_LE(GetTickCount() - low, 1000u);
}

TEST(Threads, HaveNumbersOfTheirOwn) {
    DWORD other = 0;
    std::thread([&] { other = GetCurrentThreadId(); }).join();
    EXPECT_NE(other, GetCurrentThreadId());
    EXPECT_EQ(GetCurrentThreadId(), GetCurrentThreadId());
}
