#include "text/printable.h"

#include <algorithm>

namespace text {

bool printable(char32_t code) {
    const Range* end = PRINTABLE_RANGES + PRINTABLE_COUNT;
    const Range* at = std::lower_bound(PRINTABLE_RANGES, end, code,
                                       [](const Range& range, char32_t c) { return range.last < c; });
    return at != end && at->first <= code;
}

} // namespace text
