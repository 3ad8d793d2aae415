#ifndef FENN_TEST_SCRATCH_H
#define FENN_TEST_SCRATCH_H

#include <gtest/gtest.h>

#include <atomic>
#include <filesystem>
#include <fstream>
#include <random>
#include <string>

#include <brask/fenn.h>
#include <brask/fenn_host.h>

// A real folder of the test's own, gone with it.
class Scratch {
  public:
    Scratch() {
        static std::atomic<unsigned> number{std::random_device()()};
        const auto name = "fenn scratch " + std::to_string(number++);
        root_ = std::filesystem::temp_directory_path() / name;
#ifdef _WIN32
        // Else the test itself could make no long path.
        root_ = L"\\\\?\\" + root_.wstring();
#endif
        std::filesystem::create_directories(root_);
    }
    ~Scratch() {
        std::error_code ignored;
        std::filesystem::remove_all(root_, ignored);
    }
    Scratch(const Scratch&) = delete;
    Scratch& operator=(const Scratch&) = delete;

    std::filesystem::path native(const std::string& inside = "") const {
        return inside.empty() ? root_ : (root_ / std::filesystem::u8path(inside)).make_preferred();
    }
    void make(const std::string& folder) const { std::filesystem::create_directories(native(folder)); }
    void write(const std::string& file, const std::string& bytes = "") const {
        std::ofstream(native(file), std::ios::binary) << bytes;
    }
    // A path inside in the library's form, for names that are text.
    std::wstring path(const std::string& inside = "") const {
        std::string native_path = root_.u8string();
#ifdef _WIN32
        native_path.erase(0, 4);
#endif
        if (!inside.empty()) native_path += "/" + inside;
        wchar_t buffer[4096] = {};
        EXPECT_EQ(Fenn_Path_From_Native(native_path.c_str(), buffer, 4096), 1) << native_path;
        return buffer;
    }

  private:
    std::filesystem::path root_;
};

#endif
