#include <cwchar>

#include <brask/fenn.h>
#include <brask/fenn_host.h>

#include "fenn/system.h"

// What the controls know of the program they run in. The host may put its own words in place.

namespace fenn {
namespace {

wchar_t inst_path[2048]; // the program's folder
wchar_t prog_name[2048]; // its name, without folder and ending

// Runs while the library loads, before anything asks.
bool find_program() {
    const char* const file = program_file();
    if (!file || !Fenn_Path_From_Native(file, inst_path, 2048)) return false;
    wchar_t* const separator = std::wcsrchr(inst_path, L'\\');
    if (!separator) return false;
    std::wcscpy(prog_name, separator + 1);
    separator[1] = 0;
    wchar_t* const ending = std::wcsrchr(prog_name, L'.');
    if (ending && ending != prog_name) *ending = 0;
    return true;
}

const bool found = find_program();

} // namespace
} // namespace fenn

FENN_API HWND hwnd = nullptr;
FENN_API wchar_t* W_Inst_Path = fenn::found ? fenn::inst_path : nullptr;
FENN_API wchar_t* W_Prog_Name = fenn::found ? fenn::prog_name : nullptr;
