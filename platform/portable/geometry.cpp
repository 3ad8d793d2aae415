#include <algorithm>

#include "types.h"

extern "C" {

BOOL SetRect(RECT* rect, int left, int top, int right, int bottom) {
    if (!rect) return FALSE;
    *rect = {left, top, right, bottom};
    return TRUE;
}

BOOL SetRectEmpty(RECT* rect) { return SetRect(rect, 0, 0, 0, 0); }

BOOL CopyRect(RECT* to, const RECT* from) {
    if (!to || !from) return FALSE;
    *to = *from;
    return TRUE;
}

BOOL PtInRect(const RECT* rect, POINT point) {
    return rect && point.x >= rect->left && point.x < rect->right && point.y >= rect->top &&
           point.y < rect->bottom;
}

// Sums wrap, as the system's do.
static LONG sum(LONG a, LONG b) { return static_cast<LONG>(static_cast<DWORD>(a) + static_cast<DWORD>(b)); }

BOOL OffsetRect(RECT* rect, int dx, int dy) {
    if (!rect) return FALSE;
    *rect = {sum(rect->left, dx), sum(rect->top, dy), sum(rect->right, dx), sum(rect->bottom, dy)};
    return TRUE;
}

BOOL InflateRect(RECT* rect, int dx, int dy) {
    if (!rect) return FALSE;
    const auto minus = [](LONG a, LONG b) {
        return static_cast<LONG>(static_cast<DWORD>(a) - static_cast<DWORD>(b));
    };
    *rect = {minus(rect->left, dx), minus(rect->top, dy), sum(rect->right, dx), sum(rect->bottom, dy)};
    return TRUE;
}

BOOL IsRectEmpty(const RECT* rect) { return !rect || rect->left >= rect->right || rect->top >= rect->bottom; }

BOOL EqualRect(const RECT* a, const RECT* b) {
    return a && b && a->left == b->left && a->top == b->top && a->right == b->right && a->bottom == b->bottom;
}

BOOL IntersectRect(RECT* to, const RECT* a, const RECT* b) {
    if (!to) return FALSE;
    if (IsRectEmpty(a) || IsRectEmpty(b)) {
        SetRectEmpty(to);
        return FALSE;
    }
    const RECT common = {std::max(a->left, b->left), std::max(a->top, b->top), std::min(a->right, b->right),
                         std::min(a->bottom, b->bottom)};
    *to = common;
    if (!IsRectEmpty(to)) return TRUE;
    SetRectEmpty(to);
    return FALSE;
}

BOOL UnionRect(RECT* to, const RECT* a, const RECT* b) {
    if (!to) return FALSE;
    if (IsRectEmpty(a) && IsRectEmpty(b)) {
        SetRectEmpty(to);
        return FALSE;
    }
    const RECT whole = IsRectEmpty(a)   ? *b
                       : IsRectEmpty(b) ? *a
                                        : RECT{std::min(a->left, b->left), std::min(a->top, b->top),
                                               std::max(a->right, b->right), std::max(a->bottom, b->bottom)};
    *to = whole;
    return TRUE;
}
}
