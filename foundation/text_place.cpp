#include "foundation/text_place.h"

#include <algorithm>

namespace brask {

namespace {

// The gap at the left and right edges.
int side_gap(int b) { return std::max<int>(2 * Px(b), 6); }

// One axis of the clip: from `start` to the lesser of both ends, when the control has a clip on this axis.
int clip_size(int start, int clip, int clip_dim, Px at, int size, int border) {
    if (!clip_dim) return size - 2 * Px(border) + 1;
    return Px(std::min<int>(Px(clip) + clip_dim, at - border + size + 1)) - start;
}

} // namespace

bool text_hidden(const Tools& control, int x, int y, int dx, int dy, int border) {
    if (!control.Clip_Dim_X || !control.Clip_Dim_Y) return false;
    const Px left = control.Clip_X, bottom = control.Clip_Y;
    return Px(x) + border >= left + control.Clip_Dim_X || Px(y) + border >= bottom + control.Clip_Dim_Y ||
           Px(x) - border + dx < left || Px(y) - border + dy < bottom;
}

Text_Clip text_clip(const Tools& control, int x, int y, int dx, int dy, int border) {
    const int left = std::max<int>(Px(x) + border, control.Clip_X);
    const int bottom = std::max<int>(Px(y) + border, control.Clip_Y);
    return {left, bottom, clip_size(left, control.Clip_X, control.Clip_Dim_X, x, dx, border),
            clip_size(bottom, control.Clip_Y, control.Clip_Dim_Y, y, dy, border)};
}

int line_x(long flag, int x, int dx, int b, int width) {
    // A text wider than its room is pushed left, so that its end stays in view.
    if (flag & TEXT_LEFT) return Px(x) + side_gap(b) - std::max<int>(0, Px(width) - dx + 2);
    if (flag & TEXT_RIGHT) return Px(x) + dx - side_gap(b) - width;
    if (width < dx) return Px(x) + (Px(dx) - width) / 2;
    return Px(x) + dx - 2 - width;
}

int line_y(long flag, int y, int dy, int b, int height) {
    if (flag & TEXT_BOTTOM) return y + 2 * Px(b);
    if (flag & TEXT_TOP) return Px(y) + dy - 2 * Px(b) - height;
    return Px(y) + (Px(dy) - height) / 2;
}

int stack_x(long flag, int x, int dx, int b, int wide) {
    if (flag & TEXT_LEFT) return Px(x) + side_gap(b);
    if (flag & TEXT_RIGHT) return Px(x) + dx - side_gap(b) - wide;
    return Px(x) + dx / 2 + 1;
}

int stack_y(long flag, int y, int dy, int b, int count, int height) {
    if (flag & TEXT_BOTTOM) return Px(y) + (Px(count) - 1) * height + b;
    if (flag & TEXT_TOP) return Px(y) + dy - height - b;
    return Px(y) + (Px(count) * height) / 2 + dy / 2 - height;
}

} // namespace brask
