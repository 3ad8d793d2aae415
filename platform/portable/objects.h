#ifndef PLATFORM_PORTABLE_OBJECTS_H
#define PLATFORM_PORTABLE_OBJECTS_H

#include <cstdint>

#include "gdi.h"

namespace platform {

enum class ObjectKind { none, font, pen, brush };
ObjectKind object_kind(const void* handle);

// Null for a handle that is none of the kind.
const LOGPEN* pen_description(const void* pen);
const LOGBRUSH* brush_description(const void* brush);

// What a background or FillRect takes: a brush, or a COLOR_ constant + 1. False: nothing is to be painted.
bool brush_color(HBRUSH brush, COLORREF* color);

// 0x00BBGGRR to the canvas' 0x00RRGGBB.
constexpr std::uint32_t canvas_color(COLORREF color) {
    return (color & 0xFF) << 16 | (color & 0xFF00) | (color >> 16 & 0xFF);
}

} // namespace platform

#endif
