#ifndef FENN_SYSTEM_TEXT_H
#define FENN_SYSTEM_TEXT_H

#include <cstdint>

#include <brask/platform.h>

// Text in the system's fonts, as each system keeps it. A null or dead handle means arial 12.
namespace fenn {

// What a font was made from; that of arial 12 for a null or dead handle.
LOGFONTW describe_font(HFONT font);
// What a null font stands for: arial 12, which is 16 pixels.
LOGFONTW default_font();

namespace system_text {

int height(HFONT font);
int width(HFONT font, const wchar_t* text);
// Into the open bracket: lower left corner in contract coordinates, colour 0xAABBGGRR. Gives the width.
int write(HFONT font, int x, int y, const wchar_t* text, std::uint32_t color);

} // namespace system_text
} // namespace fenn

#endif
