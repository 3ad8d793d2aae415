#include <algorithm>
#include <cstring>
#include <cwchar>
#include <string>

#include <brask/fenn.h>

#include "fenn/system.h"
#include "text/guarded.h"

// Paths in the library's form: drive letters and "\"; "/" is accepted wherever a path comes in.

namespace fenn {
namespace {

constexpr std::size_t path_size = 2048;
constexpr std::size_t name_size = 771;

bool is_separator(wchar_t c) { return c == L'\\' || c == L'/'; }
bool is_letter(wchar_t c) { return (c >= L'A' && c <= L'Z') || (c >= L'a' && c <= L'z'); }
bool has_drive(const wchar_t* path) { return is_letter(path[0]) && path[1] == L':'; }

std::size_t part_end(const std::wstring& path, std::size_t at) {
    while (at < path.size() && !is_separator(path[at]))
        ++at;
    return at;
}

// The part of an absolute path that ".." cannot leave: "C:", or "\\server\share", without a separator at its
// end.
std::size_t root_length(const std::wstring& path) {
    if (has_drive(path.c_str())) return 2;
    if (!is_separator(path[0]) || !is_separator(path[1])) return 0;
    const std::size_t server = part_end(path, 2);
    if (server == 2) return 0; // nothing but separators
    const std::size_t share = part_end(path, std::min(server + 1, path.size()));
    return share > server + 1 ? share : server;
}

// Puts the current folder, or its root alone, in front of a path that does not begin at a root.
bool complete(std::wstring& path) {
    if (root_length(path) > 0) return true;
    std::wstring start = is_separator(path[0]) ? current_root() : current_folder();
    if (start.empty()) return false;
    fold(&start[0], start.size());
    path = start + L'\\' + path;
    return true;
}

// Steps through the parts: none is empty, "." and ".." are carried out. The disk is not asked.
std::wstring resolve(const std::wstring& path) {
    const std::size_t root = root_length(path);
    std::wstring result = path.substr(0, root);
    std::replace(result.begin(), result.end(), L'/', L'\\');
    for (std::size_t at = root; at < path.size();) {
        const std::size_t end = part_end(path, at);
        const std::wstring part = path.substr(at, end - at);
        at = end + 1;
        if (part == L"..")
            result.resize(std::max(root, std::min(result.rfind(L'\\'), result.size())));
        else if (!part.empty() && part != L".")
            result += L'\\' + part;
    }
    return result + L'\\';
}

bool is_separator(char c) { return c == '\\' || c == '/'; }

// Copies at most what an output of Get_Generic_Name holds, without cutting a character. The output may be the
// path itself.
void copy_part(char* out, const char* from, const char* end) {
    if (!out) return;
    std::size_t size = static_cast<std::size_t>(end - from);
    if (size >= name_size) {
        size = name_size - 1;
        while (size > 0 && (from[size] & 0xC0) == 0x80)
            --size;
    }
    std::memmove(out, from, size);
    out[size] = 0;
}

// Where the ending starts; a name that is all dots, or has its one dot in front, has none.
const char* ending_of(const char* file, const char* end) {
    const char* const name = file + std::strspn(file, ".");
    for (const char* at = end; at > name; --at)
        if (at[-1] == '.') return at - 1;
    return end;
}

} // namespace
} // namespace fenn

FENN_API int Path_To_Abs(wchar_t* path) {
    if (!path) return 0;
    return text::guarded(0, [=] {
        std::wstring whole = *path ? path : L".";
        if (!fenn::complete(whole)) return 0;
        whole = fenn::resolve(whole);
        if (whole.size() >= fenn::path_size) return 0;
        std::wmemcpy(path, whole.c_str(), whole.size() + 1);
        return 1;
    });
}

FENN_API void Get_Generic_Name(char* path, char* folder, char* file, char* bare) {
    const char* const start = path ? path : "";
    const char* const end = start + std::strlen(start);
    const char* name = end;
    while (name > start && !fenn::is_separator(name[-1]))
        --name;
    if (name == start && start[0] != 0 && start[1] == ':') name = start + 2; // a drive without a folder
    const char* const ending = fenn::ending_of(name, end);
    fenn::copy_part(bare, name, ending);
    fenn::copy_part(file, name, end);
    fenn::copy_part(folder, start, name);
}
