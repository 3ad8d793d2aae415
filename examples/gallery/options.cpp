#include "options.h"

#include <cstdio>
#include <string>

namespace {

// Each takes its value (null for an option without one); false when the value makes no sense.
bool take_page(Options& options, const char* value) {
    options.page = value;
    return *value != 0;
}
bool take_snapshot(Options& options, const char* value) {
    options.snapshot = value;
    return *value != 0;
}
bool take_folder(Options& options, const char* value) {
    options.folder = value;
    return *value != 0;
}
bool take_size(Options& options, const char* value) {
    const int largest = 16384;
    char rest;
    return std::sscanf(value, "%5dx%5d%c", &options.width, &options.height, &rest) == 2 &&
           options.width > 0 && options.height > 0 && options.width <= largest && options.height <= largest;
}
bool take_trace(Options& options, const char*) { return options.trace = true; }
bool take_layout(Options& options, const char*) { return options.layout = true; }
bool take_builtin(Options& options, const char*) { return options.builtin = true; }
bool take_help(Options& options, const char*) { return options.help = true; }

struct Option {
    const char* name;
    const char* value; // what the value is called in the help; null: the option has none
    const char* help;
    bool (*take)(Options& options, const char* value);
};

const Option table[] = {
    {"--page", "NAME", "show this page first", take_page},
    {"--folder", "PATH", "start the page of files in this folder instead of the user's own", take_folder},
    {"--size", "WxH", "client area in pixels, 1x1 to 16384x16384; 1280x800 if not given", take_size},
    {"--snapshot", "FOLDER", "draw every page into FOLDER as a PNG file, without a display, and leave",
     take_snapshot},
    {"--builtin-font", nullptr, "write all text in the built-in bitmap font", take_builtin},
    {"--trace", nullptr, "print the trace lines of the library", take_trace},
    {"--layout", nullptr, "print where each control of each page stands, and leave", take_layout},
    {"--help", nullptr, "print this text and leave", take_help},
};

const Option* find(const std::string& name) {
    for (const Option& option : table)
        if (name == option.name) return &option;
    return nullptr;
}

} // namespace

std::string options_read(Options& options, int argc, char** argv) {
    for (int i = 1; i < argc; i++) {
        const Option* option = find(argv[i]);
        if (!option) return std::string("unknown option: ") + argv[i];
        const char* value = nullptr;
        if (option->value && ++i == argc)
            return std::string(option->name) + " needs a value: " + option->value;
        if (option->value) value = argv[i];
        if (!option->take(options, value))
            return std::string(option->name) + " does not take \"" + value + "\"; it takes " + option->value;
    }
    return {};
}

std::string options_help() {
    std::string text = "The gallery of Lib_Brask: every control in a window.\n\n";
    for (const Option& option : table) {
        std::string line =
            std::string("  ") + option.name + (option.value ? std::string(" ") + option.value : "");
        line.resize(line.size() < 22 ? 22 : line.size() + 1, ' ');
        text += line + option.help + "\n";
    }
    return text;
}
