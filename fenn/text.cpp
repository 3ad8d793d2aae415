#include <cstdint>
#include <string>

#include <brask/fenn.h>
#include <brask/fenn_host.h>

#include "fenn/builtin_font.h"
#include "fenn/painter.h"
#include "fenn/system_text.h"
#include "fenn/text_run.h"
#include "text/guarded.h"
#include "text/unicode.h"

// The text calls of the contract: each goes to the system's fonts or to the built-in one.
namespace fenn {
namespace {

bool is_builtin = false;
std::uint32_t text_color = 0;

Font& builtin_for(HFONT font) { return builtin_font(describe_font(font)); }

// Text takes memory; where there is none left it stays away.
template <class Action>
int guarded(Action action) {
    return text::guarded(0, action);
}

} // namespace

LOGFONTW default_font() {
    LOGFONTW font{};
    font.lfHeight = -16;
    const wchar_t* const name = L"Arial";
    for (int i = 0; name[i]; ++i)
        font.lfFaceName[i] = static_cast<WCHAR>(name[i]);
    return font;
}

} // namespace fenn

using namespace fenn;

FENN_API void Zeb_Font_Color(unsigned long text, unsigned long) {
    text_color = static_cast<std::uint32_t>(text);
}

FENN_API int Zeb_Font_Size_Height(HFONT font) {
    return guarded([=] { return is_builtin ? builtin_for(font).height : system_text::height(font); });
}

FENN_API int Zeb_Font_Size_String(HFONT font, const wchar_t* text) {
    if (!text || !*text) return 0;
    return guarded(
        [=] { return is_builtin ? run_width(builtin_for(font), text) : system_text::width(font, text); });
}

FENN_API int Zeb_Font_Size_String(HFONT font, const char* text) {
    if (!text) return 0;
    return guarded([=] { return Zeb_Font_Size_String(font, text::to_wide(text).c_str()); });
}

FENN_API int Zeb_Font_Write(HFONT font, int x, int y, const wchar_t* text) {
    if (!text || !*text) return 0;
    return guarded([=] {
        return is_builtin ? run_write(builtin_for(font), x, y, text, pixel_of(text_color))
                          : system_text::write(font, x, y, text, text_color);
    });
}

FENN_API void Fenn_Builtin_Font(int on) { is_builtin = on != 0; }
