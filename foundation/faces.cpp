#include "foundation/faces.h"

#include <algorithm>
#include <cstdint>
#include <cstdlib>
#include <initializer_list>
#include <limits>

#include "foundation/checks.h"
#include "foundation/trace.h"

namespace brask {

namespace {

// One face, in two chains: found by its pixels when it is shown, and by its look when one like it is wanted.
struct Face {
    Look look;
    DWORD* pixels;
    int owners;
    Face* next_pixels;
    Face* next_look;
};

// A power of two buckets for both ways of looking; doubled when there are more faces than that.
struct Bucket {
    Face* by_pixels;
    Face* by_look;
};
constexpr std::size_t FIRST_BUCKETS = 64;
Bucket first_buckets[FIRST_BUCKETS];
Bucket* buckets = first_buckets;
std::size_t bucket_count = FIRST_BUCKETS;
std::size_t face_count = 0;

std::size_t mix(std::uint64_t value) {
    return static_cast<std::size_t>((value * 0x9E3779B97F4A7C15u) >> 40) & (bucket_count - 1);
}

Face*& chain_of(const void* pixels) {
    return buckets[mix(reinterpret_cast<std::uintptr_t>(pixels))].by_pixels;
}

Face*& chain_of(const Look& look) {
    std::uint64_t sum = static_cast<unsigned>(look.width);
    for (unsigned part : {static_cast<unsigned>(look.height), static_cast<unsigned>(look.inset),
                          static_cast<unsigned>(look.color), static_cast<unsigned>(look.flat),
                          static_cast<unsigned>(look.room)})
        sum = sum * 1000003 + part;
    return buckets[mix(sum)].by_look;
}

bool equal(const Look& a, const Look& b) {
    return a.width == b.width && a.height == b.height && a.inset == b.inset && a.color == b.color &&
           a.flat == b.flat && a.room == b.room;
}

Face* find(const void* pixels) {
    Face* face = chain_of(pixels);
    while (face && face->pixels != pixels)
        face = face->next_pixels;
    return face;
}

Face* find(const Look& look) {
    Face* face = chain_of(look);
    while (face && !equal(face->look, look))
        face = face->next_look;
    return face;
}

void link(Face* face) {
    Face*& by_pixels = chain_of(face->pixels);
    face->next_pixels = by_pixels;
    by_pixels = face;
    Face*& by_look = chain_of(face->look);
    face->next_look = by_look;
    by_look = face;
}

void unlink(Face* face) {
    Face** at = &chain_of(face->pixels);
    while (*at != face)
        at = &(*at)->next_pixels;
    *at = face->next_pixels;
    at = &chain_of(face->look);
    while (*at != face)
        at = &(*at)->next_look;
    *at = face->next_look;
}

// When memory fails the chains just stay longer.
void grow() {
    Bucket* larger = static_cast<Bucket*>(std::calloc(bucket_count * 2, sizeof(Bucket)));
    if (!larger) return;
    Bucket* old = buckets;
    const std::size_t old_count = bucket_count;
    buckets = larger;
    bucket_count *= 2;
    for (std::size_t i = 0; i < old_count; i++)
        while (Face* face = old[i].by_pixels) {
            old[i].by_pixels = face->next_pixels;
            link(face);
        }
    if (old != first_buckets) std::free(old);
}

// A new face with one owner.
Face* make(const Look& look) {
    Face* face = static_cast<Face*>(std::malloc(sizeof(Face)));
    if (!face) return nullptr;
    *face = {look, paint_look(look), 1, nullptr, nullptr};
    if (!face->pixels) {
        std::free(face);
        return nullptr;
    }
    if (++face_count > bucket_count) grow();
    link(face);
    return face;
}

// One with an owner more, or a new one; null when memory fails.
Face* share_or_make(const Look& look) {
    Face* face = find(look);
    if (!face) return make(look);
    face->owners++;
    return face;
}

} // namespace

namespace faces {

DWORD* ask(const Tools& control, const Colors& color) {
    Trace trace("Tools::Inside_3D", control);
    const Look look = look_of(control, color);
    trace.out(look.flat ? "no 3D" : "");
    const Face* face = share_or_make(look);
    return face ? face->pixels : nullptr;
}

DWORD* with_room(DWORD* pixels, const Tools& control) {
    if (too_small(control) || !outgrown(pixels, control)) return pixels;
    const std::int64_t count = std::int64_t{control.Dim_X} * control.Dim_Y;
    Look look = find(pixels)->look;
    look.room = static_cast<int>(std::min<std::int64_t>(count, std::numeric_limits<int>::max()));
    const Face* face = share_or_make(look);
    if (!face) return pixels;
    drop(pixels);
    return face->pixels;
}

void share(const DWORD* pixels) {
    if (Face* face = find(pixels)) face->owners++;
}

DWORD* drop(DWORD* pixels) {
    Face* face = find(pixels);
    if (!face) { // no face, but a block that the host gave away
        std::free(pixels);
        return nullptr;
    }
    if (--face->owners) return nullptr;
    unlink(face);
    face_count--;
    std::free(face->pixels);
    std::free(face);
    return nullptr;
}

bool outgrown(const void* image, const Tools& control) {
    const Face* face = find(image);
    if (!face || (face->look.width == control.Dim_X && face->look.height == control.Dim_Y)) return false;
    return too_small(control) || std::int64_t{control.Dim_X} * control.Dim_Y > face->look.room;
}

} // namespace faces

} // namespace brask
