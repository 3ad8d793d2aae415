#include <cstdarg>
#include <cstring>

#include <brask/fenn.h>
#include <brask/icons.h>
#include <brask/library.h>

#include "text/format.h"

namespace {

constexpr char NUMBER[] = "27.0";
constexpr char REVISION[] = "a";
constexpr char BRANCH[] = ""; // of a build off the main line
constexpr int PATH_SIZE = 771;

HMODULE own_module() {
    HMODULE module = nullptr;
    GetModuleHandleExW(GET_MODULE_HANDLE_EX_FLAG_FROM_ADDRESS | GET_MODULE_HANDLE_EX_FLAG_UNCHANGED_REFCOUNT,
                       reinterpret_cast<LPCWSTR>(&Get_Version_Tools), &module);
    return module;
}

// The module's name without folder, up to the first dot: further ones belong to the system's endings.
const char* own_name() {
    static wchar_t path[PATH_SIZE];
    static char bare[PATH_SIZE];
    path[0] = 0;
    GetModuleFileNameW(own_module(), path, PATH_SIZE);
    Get_Generic_Name(Wchar_2_Char(path), nullptr, nullptr, bare);
    bare[std::strcspn(bare, ".")] = 0;
    return bare;
}

void print(char* out, std::size_t size, const char* format, ...) {
    std::va_list args;
    va_start(args, format);
    text::format(out, size, format, args);
    va_end(args);
}

} // namespace

char* Get_Version_Tools(const char* expected) {
    static char line[PATH_SIZE + 64];
    if (expected && std::strcmp(expected, NUMBER) != 0) return nullptr;
    print(line, sizeof line, "%hs.dll%hs %hs (rev-%hs)", own_name(), BRANCH, NUMBER, REVISION);
    return line;
}

// The font handles stay: they live as long as the process.
void Tools_Lib_Cleanup() { Icon_Cleanup(); }
