#include <algorithm>
#include <cerrno>
#include <cwchar>
#include <cwctype>

#include "recorder_state.h"

// Text, strings, and the services that no control asks for yet.

namespace recorder {

static Metrics metrics_of(HFONT font) {
    const auto found = state().metrics.find(font);
    return found == state().metrics.end() ? Metrics{10, 8} : found->second;
}

static void measured(const char* operation, HFONT font, const std::string& text) {
    inside(operation);
    note(kMeasure, std::string(operation) + "(" + named(font) + (text.empty() ? "" : ", " + text) + ")");
}

// UTF-8 to wide characters; a byte that begins or ends nothing stands for itself.
static std::wstring widened(const char* text) {
    std::wstring out;
    const auto* s = reinterpret_cast<const unsigned char*>(text);
    while (*s) {
        const int more = *s >= 0xF0 && *s < 0xF8 ? 3 : *s >= 0xE0 ? (*s < 0xF0 ? 2 : 0) : *s >= 0xC2 ? 1 : 0;
        unsigned long c = more ? *s & (0x3F >> more) : *s;
        int taken = 0;
        while (taken < more && (s[taken + 1] & 0xC0) == 0x80)
            c = c << 6 | (s[++taken] & 0x3F);
        if (taken < more) {
            c = *s;
            taken = 0;
        }
        s += taken + 1;
        if (sizeof(wchar_t) == 2 && c > 0xFFFF) {
            out += static_cast<wchar_t>(0xD800 + ((c - 0x10000) >> 10));
            c = 0xDC00 + (c & 0x3FF);
        }
        out += static_cast<wchar_t>(c);
    }
    return out;
}

} // namespace recorder

using namespace recorder;

void Zeb_Font_Color(unsigned long text, unsigned long back) {
    inside("Zeb_Font_Color");
    state().text_color = text;
    call(kDraw, "Zeb_Font_Color(0x%X, %u)", static_cast<unsigned>(text), static_cast<unsigned>(back));
}

int Zeb_Font_Size_Height(HFONT font) {
    measured("Zeb_Font_Size_Height", font, "");
    return metrics_of(font).height;
}

int Zeb_Font_Size_String(HFONT font, const wchar_t* text) {
    measured("Zeb_Font_Size_String", font, quoted(text));
    return text ? static_cast<int>(std::wcslen(text)) * metrics_of(font).width : 0;
}

int Zeb_Font_Size_String(HFONT font, const char* text) {
    return Zeb_Font_Size_String(font, text ? widened(text).c_str() : nullptr);
}

int Zeb_Font_Write(HFONT font, int x, int y, const wchar_t* text) {
    inside("Zeb_Font_Write");
    note(kDraw, "Zeb_Font_Write(" + named(font) + ", " + std::to_string(x) + ", " + std::to_string(y) + ", " +
                    quoted(text) + ")");
    if (!text) return 0;
    const Metrics size = metrics_of(font);
    if (picture())
        picture()->write(x, y, text, size.height, size.width, static_cast<DWORD>(state().text_color));
    return static_cast<int>(std::wcslen(text)) * size.width;
}

wchar_t* Error_Perror(int number) {
    static wchar_t text[32];
    std::swprintf(text, 32, L"error %d", number);
    return text;
}

// The result is a block of exactly its size, freed at the next call, so that a late reader is found out.
wchar_t* Char_2_Wchar(const char* text) {
    static std::wstring held;
    note(kService, std::string("Char_2_Wchar(") + (text ? escaped(text) : "null") + ")");
    std::wstring(text ? widened(text) : std::wstring()).swap(held);
    return held.data();
}

char* Wchar_2_Char(const wchar_t* text) {
    static std::string held;
    note(kService, "Wchar_2_Char(" + quoted(text) + ")");
    narrow(text).swap(held);
    return held.data();
}

wchar_t* Str_To_Lower(wchar_t* text) {
    for (wchar_t* c = text; c && *c; ++c)
        *c = static_cast<wchar_t>(std::towlower(static_cast<wint_t>(*c)));
    return text;
}

void Get_Generic_Name(char* path, char* folder, char* file, char* bare) {
    const std::string whole = path ? path : "";
    const std::size_t edge = whole.find_last_of("/\\");
    const std::string name = edge == std::string::npos ? whole : whole.substr(edge + 1);
    const auto copy = [](char* out, const std::string& text) {
        if (out) std::snprintf(out, 771, "%s", text.c_str());
    };
    copy(folder, edge == std::string::npos ? "" : whole.substr(0, edge + 1));
    copy(file, name);
    copy(bare, name.substr(0, name.rfind('.')));
}

namespace recorder {

void file(const std::wstring& path, const File& file) { state().files[path] = file; }
void reason(int number) { state().reason = number; }
int held() { return state().held; }

static int deliver(const char* operation, const wchar_t* path, IGB_data* image) {
    note(kService, std::string(operation) + "(" + quoted(path) + ")");
    const auto found = state().files.find(path);
    errno = state().reason;
    if (found == state().files.end()) return 0;
    const File& file = found->second;
    // A block of exactly its size, so that a reader past its end is found out.
    auto* const data = new unsigned char[file.bytes.size()];
    std::copy(file.bytes.begin(), file.bytes.end(), data);
    *image = {data, static_cast<short>(file.width), static_cast<short>(file.height),
              static_cast<short>(file.channels)};
    state().held++;
    return 1;
}

} // namespace recorder

int IGB_Read_Image(const wchar_t* file, IGB_data* image, void*) {
    return deliver("IGB_Read_Image", file, image);
}
int TGA_Read_Image(const wchar_t* file, IGB_data* image, void*) {
    return deliver("TGA_Read_Image", file, image);
}
void IGB_Free(IGB_data* image) {
    note(kService, "IGB_Free()");
    if (image->Data) state().held--;
    delete[] image->Data;
    image->Data = nullptr;
}
