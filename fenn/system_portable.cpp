#include <climits>
#include <cstdlib>
#include <cstring>
#include <cwctype>
#include <locale.h>
#include <memory>
#include <string>
#include <unistd.h>
#include <wctype.h>

#include <brask/fenn_host.h>

#include "fenn/system.h"
#include "platform/portable/native_path.h"
#include "text/guarded.h"
#include "text/unicode.h"

namespace fenn {
namespace {

bool has_room(std::size_t length, int size) { return size > 0 && length < static_cast<std::size_t>(size); }

} // namespace

const char* program_file() {
    static char file[PATH_MAX];
    const ssize_t size = readlink("/proc/self/exe", file, sizeof file - 1);
    if (size < 1) return nullptr;
    file[size] = 0;
    return file;
}

std::wstring current_folder() {
    char* const native = getcwd(nullptr, 0);
    if (!native) return {};
    const std::unique_ptr<char, void (*)(void*)> owner(native, std::free);
    std::wstring folder = platform::from_native(native);
    if (folder.back() == L'\\') folder.pop_back();
    return folder;
}

std::wstring current_root() { return L"C:"; } // as in the system's own paths, wherever the current folder is

void fold(wchar_t* text, std::size_t size) {
    // The locale of the process must not matter, and may know no letter beyond ASCII.
    static const locale_t unicode = newlocale(LC_CTYPE_MASK, "C.UTF-8", nullptr);
    for (wchar_t* const end = text + size; text < end; ++text) {
        if (*text >= L'A' && *text <= L'Z')
            *text += L'a' - L'A';
        else if (*text >= 0x80 && unicode)
            *text = static_cast<wchar_t>(towlower_l(static_cast<wint_t>(*text), unicode));
    }
}

std::FILE* open_file(const wchar_t* path, const char* mode) {
    return _wfopen(path, text::to_wide(mode).c_str());
}

} // namespace fenn

FENN_API int Fenn_Path_To_Native(const wchar_t* path, char* native, int size) {
    return text::guarded(0, [=] {
        std::string result;
        if (!native || !platform::to_native(path, result) || !fenn::has_room(result.size(), size)) return 0;
        std::memcpy(native, result.c_str(), result.size() + 1);
        return 1;
    });
}

FENN_API int Fenn_Path_From_Native(const char* native, wchar_t* path, int size) {
    if (!native || !path) return 0;
    return text::guarded(0, [=] {
        const std::wstring result = platform::from_native(native);
        if (!fenn::has_room(result.size(), size)) return 0;
        std::wmemcpy(path, result.c_str(), result.size() + 1);
        return 1;
    });
}
