#include "color/parts.h"

#include <algorithm>
#include <cstdint>
#include <cstdlib>

#include "foundation/checks.h"
#include "foundation/layout.h"
#include "foundation/surfaces.h"
#include "foundation/track.h"

namespace brask {

namespace {

constexpr DWORD BLANK = 0xAAAAAA; // of a bar's surface before its ramp

// Lets go of a selected look that is a surface of its own, so that nothing names it any more.
void drop_select(Tools& part) {
    DWORD* old = part.Graph_Select;
    part.Graph_Select = nullptr;
    if (!old || old == part.Graph_Normal) return;
    if (part.Image_Select == old) part.Image_Select = nullptr;
    std::free(old);
}

} // namespace

bool ready_surface(Tools& part, bool anew, DWORD word) {
    if (part.Graph_Normal && !anew && !Host_Surfaces::outgrown(part.Graph_Normal, part)) return true;
    if (part.Graph_Select == part.Graph_Normal) part.Graph_Select = nullptr;
    part.Alloc_Graph_Normal(word);
    if (part.Graph_Normal) return true;
    drop_select(part);
    part.Image_Normal = part.Image_Select = nullptr;
    return false;
}

DWORD hue_ramp(float column, float step) { return surface_word(word_of_hls({column * step, 0.5f, 1.0f})); }

void lay_ramp(Valuators& bar, bool anew, Ramp ramp) {
    if (!ready_surface(bar, anew, BLANK)) return;
    const float step = 1.0f / static_cast<float>(bar.Dim_X);
    DWORD* first_row = bar.Graph_Normal;
    for (int i = 0; i < bar.Dim_X; i++)
        first_row[i] = ramp(static_cast<float>(i), step);
    for (int row = 1; row < bar.Dim_Y; row++)
        std::copy_n(first_row, bar.Dim_X, first_row + std::int64_t{row} * bar.Dim_X);
    drop_select(bar);
    bar.Graph_Select = bar.Graph_Normal;
}

void set_range(Valuators& bar) {
    bar.Val_Min = 0.0f;
    bar.Val_Max = 0.99f;
}

void show_swatch(Boxs& swatch, DWORD color) {
    DWORD* surface = swatch.Graph_Normal;
    if (too_small(swatch) || !surface || Host_Surfaces::outgrown(surface, swatch)) return;
    // The word of the other form stands here on purpose: it keeps a colour whose red and blue are equal from
    // being painted twice, and also one that follows the same with red and blue exchanged, which is then not
    // shown.
    if (surface[0] == color) return;
    std::fill_n(surface, std::int64_t{swatch.Dim_X} * swatch.Dim_Y, surface_word(color));
    swatch.select = TRACK_NONE;
    swatch.Select(1);
}

} // namespace brask
