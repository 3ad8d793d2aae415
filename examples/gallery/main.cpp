// The gallery: shows every control of the library in a window, or draws them into pictures.
#include <cctype>
#include <cstdio>
#include <filesystem>
#include <string>

#include <brask/fenn.h>
#include <brask/fenn_host.h>

#include "options.h"
#include "page.h"
#include "traces.h"
#include "window.h"

namespace {

constexpr int exit_usage = 2;

int complain(const std::string& text, int code) {
    std::fprintf(stderr, "gallery: %s\n", text.c_str());
    return code;
}

std::string file_name(const PageEntry& entry) {
    std::string name;
    for (const char* c = entry.name; *c; c++)
        name += char(std::tolower(static_cast<unsigned char>(*c)));
    return name + ".png";
}

// Writes a picture of one page; empty, or what went wrong.
std::string snapshot(const PageEntry& entry, const Options& options) {
    std::string file = options.snapshot + "/" + file_name(entry);
    wchar_t path[1024];
    Gallery gallery(entry, options.width, options.height, false);
    if (!gallery.window()) return "cannot make a window of this size";
    gallery.draw();
    if (!Fenn_Path_From_Native(file.c_str(), path, 1024) || !Fenn_Snapshot(gallery.window(), path))
        return "cannot write " + file;
    return {};
}

int snapshots(const Options& options) {
    std::error_code error;
    std::filesystem::create_directories(options.snapshot, error);
    for (std::size_t i = 0; i < page_count; i++) {
        std::string wrong = snapshot(pages[i], options);
        if (!wrong.empty()) return complain(wrong, EXIT_FAILURE);
    }
    return EXIT_SUCCESS;
}

// One line for each control: class, position and size in the library's coordinates, name.
void print_control(const char* kind, const Tools& control) {
    std::printf("%s %d %d %d %d %s\n", kind, control.Pos_X, control.Pos_Y, control.Dim_X, control.Dim_Y,
                control.W_Name ? Wchar_2_Char(control.W_Name) : "");
}

int layouts(const Options& options) {
    for (std::size_t i = 0; i < page_count; i++) {
        std::printf("page %d %d %d %d %s\n", 0, 0, options.width, options.height, pages[i].name);
        Gallery gallery(pages[i], options.width, options.height, false);
        gallery.each(print_control);
    }
    return EXIT_SUCCESS;
}

int open_window(const Options& options, const PageEntry& entry) {
    if (!GetSystemMetrics(SM_CMONITORS))
        return complain("there is no display; --snapshot FOLDER needs none", EXIT_FAILURE);
    Gallery gallery(entry, options.width, options.height, true);
    if (!gallery.window())
        return complain("cannot open a window; --snapshot FOLDER needs none", EXIT_FAILURE);
    Gallery::run();
    return EXIT_SUCCESS;
}

} // namespace

int main(int argc, char** argv) {
    Options options;
    std::string wrong = options_read(options, argc, argv);
    if (!wrong.empty()) return complain(wrong + "\nTry --help.", exit_usage);
    if (options.help) {
        std::printf("%s", options_help().c_str());
        return EXIT_SUCCESS;
    }
    const PageEntry* entry = options.page.empty() ? &pages[0] : page_find(options.page.c_str());
    if (!entry) {
        std::string names;
        for (std::size_t i = 0; i < page_count; i++)
            names += std::string(" ") + pages[i].name;
        return complain("there is no page \"" + options.page + "\"; the pages are:" + names, exit_usage);
    }
    if (options.trace) traces_print(true);
    Fenn_Builtin_Font(options.builtin);
    files_start(options.folder);
    if (options.layout) return layouts(options);
    if (!options.snapshot.empty()) return snapshots(options);
    return open_window(options, *entry);
}
