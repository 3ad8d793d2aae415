// Loading, use and unloading of the library, a thousand times over; LIFE_ROUNDS chooses another number.

#include <cstdlib>
#include <string>
#include <vector>

#include <brask/fenn.h>
#include <brask/fenn_host.h>

#include <gtest/gtest.h>

#include "guest.h"

#ifndef _WIN32
#include <dlfcn.h>
#endif

namespace {

// --- Modules ---
#ifdef _WIN32
typedef HMODULE Module;
Module load(const std::string& name) { return LoadLibraryA((name + ".dll").c_str()); }
void unload(Module module) { FreeLibrary(module); }
bool is_loaded(const std::string& name) { return GetModuleHandleA((name + ".dll").c_str()) != nullptr; }
Use use_of(Module module) {
    return reinterpret_cast<Use>(reinterpret_cast<void*>(GetProcAddress(module, "use")));
}
#else
typedef void* Module;
std::string file_of(const std::string& name) { return LIBRARY_FOLDER + name + ".so"; }
Module load(const std::string& name) { return dlopen(file_of(name).c_str(), RTLD_NOW | RTLD_LOCAL); }
void unload(Module module) { dlclose(module); }
bool is_loaded(const std::string& name) {
    Module module = dlopen(file_of(name).c_str(), RTLD_NOW | RTLD_NOLOAD);
    if (module) dlclose(module);
    return module != nullptr;
}
Use use_of(Module module) { return reinterpret_cast<Use>(dlsym(module, "use")); }
#endif

// --- Reports ---
std::vector<std::wstring> heard;
bool all_without_window = true;

void listen(void*, HWND wnd, unsigned int code, const wchar_t* text) {
    all_without_window = all_without_window && !wnd && code == 0x90000029;
    heard.push_back(text);
}

// The controls that were made or ended on their own, not as parts of others, in short.
std::vector<std::wstring> steps() {
    std::vector<std::wstring> list;
    for (const std::wstring& line : heard) {
        const std::wstring in = L">>> in  Lib_Brask: ";
        if (line.compare(0, in.size(), in) != 0) continue;
        const std::wstring name = line.substr(in.size());
        for (const wchar_t* whole : {L"Boxs::", L"Buttons::", L"Texts::"})
            if (name.compare(0, std::wcslen(whole), whole) == 0) list.push_back(name);
    }
    heard.clear();
    return list;
}

std::vector<std::wstring> row(const wchar_t* first, const wchar_t* eleven, const wchar_t* last) {
    std::vector<std::wstring> list(13, eleven);
    list.front() = first;
    list.back() = last;
    return list;
}

HWND make_window() {
    WNDCLASSW type{};
    type.lpfnWndProc = DefWindowProcW;
    type.lpszClassName = L"Life";
    RegisterClassW(&type);
    return CreateWindowExW(0, L"Life", L"", WS_POPUP, 0, 0, 300, 100, nullptr, nullptr, nullptr, nullptr);
}

int rounds() {
    const char* wish = std::getenv("LIFE_ROUNDS");
    return wish ? std::atoi(wish) : 1000;
}

} // namespace

TEST(Life, TheTraceShowsTheOrderOfMakingAndEnding) {
    Fenn_Set_Report(listen, nullptr);
    Fenn_Listen(0x90000029, 1);
    const Module library = load("Lib_Brask");
    ASSERT_TRUE(library);
    EXPECT_EQ(steps(), row(L"Boxs::Boxs()", L"Buttons::Buttons()", L"Texts::Texts()"));
    unload(library);
    EXPECT_EQ(steps(), row(L"Texts::~Texts()", L"Buttons::~Buttons()", L"Boxs::~Boxs()"));
    EXPECT_TRUE(all_without_window);
    EXPECT_FALSE(is_loaded("Lib_Brask"));
    Fenn_Listen(0x90000029, 0);
}

TEST(Life, AThousandTimesLoadedUsedAndUnloaded) {
    Fenn_Set_Report([](void*, HWND, unsigned int, const wchar_t*) {}, nullptr);
    const HWND wnd = make_window();
    for (int round = 0; round < rounds(); round++) {
        const Module library = load("Lib_Brask");
        const Module guest = load("life_guest");
        ASSERT_TRUE(library && guest) << round;
        Zeb_setup(wnd, "life");
        set_curs(15, 100 - 1 - 15);
        Zeb_release();
        Found found{};
        use_of(guest)(wnd, &found);
        ASSERT_STREQ(found.version, "Lib_Brask.dll 27.0 (rev-a)");
        ASSERT_TRUE(found.other_version_refused && found.same_buffer);
        ASSERT_EQ(found.list_height_before, 25);
        ASSERT_EQ(found.list_height_after, 25);
        ASSERT_TRUE(found.pointer_on_button);
        ASSERT_EQ(found.question, -1);
        unload(guest);
        unload(library);
        ASSERT_FALSE(is_loaded("life_guest") || is_loaded("Lib_Brask")) << round;
    }
    DestroyWindow(wnd);
    Fenn_Set_Report(nullptr, nullptr);
}
