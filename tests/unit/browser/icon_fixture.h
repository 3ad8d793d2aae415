#ifndef TESTS_ICON_FIXTURE_H
#define TESTS_ICON_FIXTURE_H

#include <atomic>
#include <filesystem>
#include <fstream>
#include <string>
#include <vector>

#include <brask/icons.h>

#include "support/recorded.h"

// An installation folder of the test's own, with a folder of icons in it. The library takes it in at the
// first read of each kind and keeps it as long as the process lives.
class Icon_Folder {
  public:
    Icon_Folder() {
        const auto number = reinterpret_cast<std::uintptr_t>(this) ^
                            static_cast<std::uintptr_t>(
                                std::filesystem::file_time_type::clock::now().time_since_epoch().count());
        root = std::filesystem::temp_directory_path() / ("icons" + std::to_string(number));
        std::filesystem::create_directories(root / "Icons");
        path = root.wstring() + L"\\";
    }
    ~Icon_Folder() {
        std::error_code ignored;
        std::filesystem::remove_all(root, ignored);
    }

    std::filesystem::path root;
    std::wstring path;
};

struct Icons : Recorded {
    Boxs box;

    void SetUp() override {
        Recorded::SetUp();
        static Icon_Folder the_folder;
        folder = &the_folder;
        W_Inst_Path = folder->path.data();
        Icon_Cleanup();
        box.Wnd = recorder::window();
        box.Pos_X = 10, box.Pos_Y = 20, box.Dim_X = 100, box.Dim_Y = 50;
        box.Color = Colors(1, 2, 3);
        recorder::clear();
    }
    void TearDown() override {
        Icon_Cleanup();
        Recorded::TearDown();
    }

    std::wstring path_of(const std::wstring& name) const { return folder->path + L"Icons\\" + name; }
    // The path as the logs have it.
    std::string told(const std::wstring& name) const { return recorder::narrow(path_of(name).c_str()); }

    // A picture of one kind of pixel that the drawing layer delivers.
    void rgb(const std::wstring& name, int width, int height,
             std::vector<unsigned char> pixel = {1, 2, 3, 4}) {
        recorder::File file = {width, height, static_cast<int>(pixel.size()), {}};
        for (int i = 0; i < width * height; i++)
            for (const unsigned char byte : pixel)
                file.bytes.push_back(byte);
        recorder::file(path_of(name), file);
    }
    // A file of these bytes.
    void write(const std::wstring& name, const std::vector<unsigned char>& bytes) const {
        std::ofstream out(folder->root / "Icons" / name, std::ios::binary);
        out.write(reinterpret_cast<const char*>(bytes.data()), static_cast<std::streamsize>(bytes.size()));
    }
    void make_folder(const std::wstring& name) const {
        std::filesystem::create_directory(folder->root / "Icons" / name);
    }
    void remove(const std::wstring& name) const {
        std::filesystem::remove_all(folder->root / "Icons" / name);
    }

    Icon_Entry* read(const std::wstring& name) {
        return static_cast<Icon_Entry*>(Icon_Read(&box, name.c_str()));
    }
    // The one picture of this name, called DATA in the log.
    Icon_Entry* named(const std::wstring& name) {
        Icon_Entry* entry = read(name);
        if (entry) recorder::name(entry->Data, "DATA");
        recorder::clear();
        return entry;
    }

  private:
    Icon_Folder* folder = nullptr;
};

inline std::vector<int> bytes(const BYTE* from, int count) { return std::vector<int>(from, from + count); }

#endif
