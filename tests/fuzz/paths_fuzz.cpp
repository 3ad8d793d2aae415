// Paths: every native name comes back whole, an absolute path stays as it is, and nothing leaves its room.

#include <cstring>
#include <cwchar>
#include <vector>

#include <brask/fenn.h>
#include <brask/fenn_host.h>

#include "input.h"
#include "text/unicode.h"

namespace {

constexpr int path_room = 2048;
constexpr std::size_t part_room = 771;

// Characters that mean something in a path come often.
std::wstring path_text(Input& input) {
    static constexpr wchar_t special[] = {L'\\', L'/', L'.', L':', L'C', L'c', L'D', L'~', L' ', L'\xF05C'};
    std::wstring path;
    for (unsigned left = input.below(input.one_in(16) ? 3000 : 40); left > 0; left--) {
        if (input.one_in(2))
            path += input.among(special);
        else
            path +=
                static_cast<wchar_t>(input.one_in(4) ? 0xD700 + input.below(0x900) : 1 + input.below(0x2FF));
    }
    return path;
}

// Bytes for a name: text of the system where names are text, any bytes where they are bytes.
std::string native_bytes(Input& input) {
    static constexpr char special[] = {'/', '\\', '.', ':', 'C', '\xEF', '\x81', '\x9C', '\xFF', '\xE9'};
    std::string path = input.one_in(3) ? "" : "/";
    for (unsigned left = input.below(60); left > 0; left--)
        path += input.one_in(2) ? input.among(special) : static_cast<char>(1 + input.below(255));
    return path;
}

void check_native(Input& input) {
    const std::string native = native_bytes(input);
    std::vector<wchar_t> path(4 * native.size() + 8);
    const int size = static_cast<int>(path.size());
    expect(Fenn_Path_From_Native(native.c_str(), path.data(), size) == 1, "every native path has a form");
    std::vector<char> back(8 * native.size() + 16);
    expect(Fenn_Path_To_Native(path.data(), back.data(), static_cast<int>(back.size())) == 1,
           "which leads back");
    std::vector<wchar_t> again(path.size());
    expect(Fenn_Path_From_Native(back.data(), again.data(), size) == 1, "and so does the way back");
    expect(std::wcscmp(path.data(), again.data()) == 0, "to the same form");
#ifndef _WIN32
    const std::string found = back.data();
    expect(found == native || found == "./" + native, "the name has come back whole");
#endif
    const int short_room = static_cast<int>(input.below(20));
    const int fits = static_cast<int>(std::wcslen(path.data())) < short_room;
    std::vector<wchar_t> narrow_room(static_cast<std::size_t>(short_room));
    expect(Fenn_Path_From_Native(native.c_str(), narrow_room.data(), short_room) == fits,
           "a form fits or is refused");
}

void check_absolute(Input& input) {
    std::wstring path = path_text(input).substr(0, path_room - 1);
    const std::wstring before = path;
    std::vector<wchar_t> room(path_room);
    std::wmemcpy(room.data(), path.c_str(), path.size() + 1);
    if (!Path_To_Abs(room.data())) {
        expect(before == room.data(), "a path that does not fit is left as it was");
        return;
    }
    const std::wstring absolute = room.data();
    expect(absolute.size() > 2 && absolute.back() == L'\\', "an absolute path ends in a separator");
    expect(absolute[1] == L':' || absolute[1] == L'\\', "and begins at a drive or a share");
    expect(absolute.find(L'/') == std::wstring::npos, "with separators of one kind");
    expect(Path_To_Abs(room.data()) == 1 && absolute == room.data(), "and stays as it is");
}

void check_parts(Input& input) {
    std::string path = text::to_utf8(path_text(input).c_str());
    std::vector<char> folder(part_room), file(part_room), bare(part_room);
    Get_Generic_Name(&path[0], folder.data(), file.data(), bare.data());
    const std::string name = file.data();
    expect(name.compare(0, std::strlen(bare.data()), bare.data()) == 0, "the bare name begins the file's");
    expect(name.find_first_of("/\\") == std::string::npos, "a file's name has no separator");
    if (path.size() < part_room) expect(folder.data() + name == path, "folder and name make the path");
}

void check_services(Input& input) {
    const std::wstring path = path_text(input) + L"\\no such place\\";
    IGB_data image;
    expect(IGB_Read_Image(path.c_str(), &image, nullptr) == 0 && !image.Data, "nothing is read from nowhere");
    int count = 1;
    expect(!Scan_Dir(path.c_str(), &count) && count == 0, "nothing is listed there");
    expect(Is_Tree(path.c_str()) == 0, "and no tree stands there");
    std::wstring folded = path;
    Str_To_Lower(&folded[0]);
    std::wstring again = folded;
    expect(Str_To_Lower(&again[0]) == again.c_str() && again == folded, "lower case stays lower case");
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    Input input(data, size);
    while (!input.empty())
        switch (input.below(4)) {
        case 0: check_native(input); break;
        case 1: check_absolute(input); break;
        case 2: check_parts(input); break;
        default: check_services(input); break;
        }
    return 0;
}
