#include "foundation/shrink.h"

#include <algorithm>

#include "foundation/pixels.h"

namespace brask {

namespace {

// The source pixels along one axis that a pixel covers: those in the middle whole, the outer two in part.
struct Span {
    int first, last;
    float first_weight, last_weight;
    double total; // of all weights; 0: nothing is covered

    float weight(int at) const { return at == last ? last_weight : at == first ? first_weight : 1.0f; }
};

// A span ends at the last pixel's near edge at the latest: only as much as reaches into a pixel counts, and
// of the last one that is nothing.
Span span_of(int number, float scale, int size) {
    const float from = static_cast<float>(number) * scale;
    const float to = std::min(static_cast<float>(number + 1) * scale, static_cast<float>(size - 1));
    const int first = std::min(cut(from), size - 1), last = cut(to);
    if (last < first) return {first, first, 0, 0, 0};
    const float first_weight = 1.0f - (from - static_cast<float>(first));
    const float last_weight = to - static_cast<float>(last);
    const double total =
        first == last ? last_weight : double{first_weight} + (last - first - 1) + last_weight;
    return {first, last, first_weight, last_weight, total};
}

// The weighted sums of a row's channels over a span.
template <int CHANNELS>
void sum_row(const unsigned char* row, const Span& span, double (&sums)[CHANNELS]) {
    const unsigned char* const first = row + std::size_t(span.first) * CHANNELS;
    const unsigned char* const last = row + std::size_t(span.last) * CHANNELS;
    unsigned whole[CHANNELS] = {};
    for (const unsigned char* at = first + CHANNELS; at < last; at += CHANNELS)
        for (int i = 0; i < CHANNELS; i++)
            whole[i] += at[i];
    const double first_weight = first == last ? 0 : span.first_weight;
    for (int i = 0; i < CHANNELS; i++)
        sums[i] = first_weight * first[i] + whole[i] + double{span.last_weight} * last[i];
}

// What is summed is the difference to the corner pixel, which rounds to nothing where all pixels are the
// same: their mean must not fall short of them.
template <int CHANNELS>
void cover(const Pixels& from, const Span& x, const Span& y, unsigned char* to) {
    const unsigned char* const corner = from.at(x.first, y.first);
    const double area = x.total * y.total;
    if (area == 0) {
        std::copy_n(corner, CHANNELS, to);
        return;
    }
    double base[CHANNELS], beyond[CHANNELS] = {};
    for (int i = 0; i < CHANNELS; i++)
        base[i] = corner[i] * x.total;
    for (int row = y.first; row <= y.last; row++) {
        double sums[CHANNELS];
        sum_row(from.at(0, row), x, sums);
        const double weight = y.weight(row);
        for (int i = 0; i < CHANNELS; i++)
            beyond[i] += weight * (sums[i] - base[i]);
    }
    for (int i = 0; i < CHANNELS; i++)
        to[i] = static_cast<unsigned char>(cut(corner[i] + beyond[i] / area));
}

template <int CHANNELS>
void shrink_all(const Pixels& from, float scale_x, float scale_y, const Pixels& to) {
    for (int row = 0; row < to.height; row++) {
        const Span y = span_of(row, scale_y, from.height);
        for (int column = 0; column < to.width; column++)
            cover<CHANNELS>(from, span_of(column, scale_x, from.width), y, to.at(column, row));
    }
}

} // namespace

void shrink(const Pixels& from, float scale_x, float scale_y, const Pixels& to) {
    if (from.channels == 1)
        shrink_all<1>(from, scale_x, scale_y, to);
    else
        shrink_all<4>(from, scale_x, scale_y, to);
}

} // namespace brask
