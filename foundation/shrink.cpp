#include "foundation/shrink.h"

#include <algorithm>
#include <cstdlib>

#include "foundation/picture_file.h"
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
    const int first = std::min(cut(from), size - 1);
    int last = cut(to);
    if (last < first) return {first, first, 0, 0, 0};
    const float first_weight = 1.0f - (from - static_cast<float>(first));
    float last_weight = to - static_cast<float>(last);
    if (last_weight == 0 && last > first) last_weight = --last > first ? 1 : first_weight;
    const double total =
        first == last ? last_weight : double{first_weight} + (last - first - 1) + last_weight;
    return {first, last, first_weight, last_weight, total};
}

// What is worked out once: the spans of all columns, and the rows of one span added up.
struct Desk {
    Block<Span> columns;
    Block<double> sums;

    Desk(const Pixels& from, float scale, const Pixels& to)
        : columns(block<Span>(to.width)), sums(block<double>(std::size_t(from.width) * from.channels)) {
        for (int i = 0; columns && i < to.width; i++)
            columns[i] = span_of(i, scale, from.width);
    }
    template <typename Unit>
    static Block<Unit> block(std::size_t count) {
        return Block<Unit>(static_cast<Unit*>(std::malloc(count * sizeof(Unit))));
    }
};

// The rows of a span, by their weights. Each sum is exact.
void sum_rows(const Pixels& from, const Span& span, double* sums) {
    const std::size_t count = std::size_t(from.width) * from.channels;
    std::fill_n(sums, count, 0.0);
    for (int row = span.first; row <= span.last; row++) {
        const double weight = span.weight(row);
        const unsigned char* const bytes = from.at(0, row);
        for (std::size_t i = 0; i < count; i++)
            sums[i] += weight * bytes[i];
    }
}

// What is summed is the difference to the corner pixel, which is nothing where all pixels are the same: their
// mean must not fall short of them.
template <int CHANNELS>
void cover(const double* sums, const unsigned char* corner, const Span& x, const Span& y, unsigned char* to) {
    double base[CHANNELS], beyond[CHANNELS] = {};
    for (int i = 0; i < CHANNELS; i++)
        base[i] = corner[i] * y.total;
    for (int column = x.first; column <= x.last; column++) {
        const double weight = x.weight(column);
        for (int i = 0; i < CHANNELS; i++)
            beyond[i] += weight * (sums[std::size_t(column) * CHANNELS + i] - base[i]);
    }
    const double area = x.total * y.total;
    for (int i = 0; i < CHANNELS; i++)
        to[i] = static_cast<unsigned char>(static_cast<int>(corner[i] + beyond[i] / area));
}

template <int CHANNELS>
void shrink_row(const Pixels& from, const Desk& desk, const Span& y, const Pixels& to, int row) {
    if (y.total != 0) sum_rows(from, y, desk.sums.get());
    for (int column = 0; column < to.width; column++) {
        const Span& x = desk.columns[column];
        const unsigned char* const corner = from.at(x.first, y.first);
        if (x.total == 0 || y.total == 0)
            std::copy_n(corner, CHANNELS, to.at(column, row));
        else
            cover<CHANNELS>(desk.sums.get(), corner, x, y, to.at(column, row));
    }
}

} // namespace

bool shrink(const Pixels& from, float scale_x, float scale_y, const Pixels& to) {
    const Desk desk(from, scale_x, to);
    if (!desk.columns || !desk.sums) return false;
    for (int row = 0; row < to.height; row++) {
        const Span y = span_of(row, scale_y, from.height);
        if (from.channels == 1)
            shrink_row<1>(from, desk, y, to, row);
        else
            shrink_row<4>(from, desk, y, to, row);
    }
    return true;
}

} // namespace brask
