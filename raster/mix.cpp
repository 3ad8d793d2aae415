#include "mix.h"

#include <cstddef>
#include <cstring>

#if defined(__x86_64__)
#include <immintrin.h>
#endif

#include "machine/wide_registers.h"

namespace raster {
namespace {

constexpr int EIGHT = 8;
// The upper half of this product is (x + (x >> 8)) >> 8, the last steps of `divided`, at once.
[[maybe_unused]] constexpr short SHIFTED_SUM = 257;

#ifdef __SSE2__
// Four pixels, as two in lanes of 16 bits; the same rounding as mix.
__m128i mix_lanes(__m128i over, __m128i under, __m128i cover) {
    const __m128i rest = _mm_sub_epi16(_mm_set1_epi16(255), cover);
    const __m128i sum = _mm_add_epi16(_mm_mullo_epi16(over, cover), _mm_mullo_epi16(under, rest));
    return _mm_mulhi_epu16(_mm_add_epi16(sum, _mm_set1_epi16(128)), _mm_set1_epi16(SHIFTED_SUM));
}

void mix_four(std::uint32_t* to, std::uint32_t coverage, __m128i color) {
    const __m128i zero = _mm_setzero_si128();
    const __m128i under = _mm_loadu_si128(reinterpret_cast<const __m128i*>(to));
    const __m128i pairs = _mm_cvtsi32_si128(static_cast<int>(coverage));
    const __m128i cover =
        _mm_unpacklo_epi16(_mm_unpacklo_epi8(pairs, pairs), _mm_unpacklo_epi8(pairs, pairs));
    const __m128i low = mix_lanes(color, _mm_unpacklo_epi8(under, zero), _mm_unpacklo_epi8(cover, zero));
    const __m128i high = mix_lanes(color, _mm_unpackhi_epi8(under, zero), _mm_unpackhi_epi8(cover, zero));
    _mm_storeu_si128(reinterpret_cast<__m128i*>(to), _mm_packus_epi16(low, high));
}

// Text is mostly ground: four pixels without coverage are passed over together. Gives how far it came.
int mix_fours(std::uint32_t* to, const std::uint8_t* coverage, int count, std::uint32_t color) {
    const __m128i lanes = _mm_unpacklo_epi8(_mm_set1_epi32(static_cast<int>(color)), _mm_setzero_si128());
    int i = 0;
    for (; i + 4 <= count; i += 4) {
        std::uint32_t four;
        std::memcpy(&four, coverage + i, sizeof four);
        if (four) mix_four(to + i, four, lanes);
    }
    return i;
}
#else
int mix_fours(std::uint32_t*, const std::uint8_t*, int, std::uint32_t) { return 0; }
#endif

#ifdef MACHINE_WIDE
// One color and how much of it and of the ground there is, both bytes of a pair for each channel. The sum of
// the two products is one operation when the colours are signed; turning them by 128 takes 128 * 255 from it.
MACHINE_WIDE inline __m256i mix_pairs(__m256i colors, __m256i covers) {
    const __m256i sum = _mm256_maddubs_epi16(covers, colors);
    const __m256i raised = _mm256_add_epi16(sum, _mm256_set1_epi16(static_cast<short>(128 * 255 + 128)));
    return _mm256_mulhi_epu16(raised, _mm256_set1_epi16(SHIFTED_SUM));
}

// `turned` is the color in all eight pixels, each byte turned by 128.
MACHINE_WIDE inline void mix_eight(std::uint32_t* to, std::uint64_t coverage, __m256i turned) {
    // Each coverage byte goes beside all four channels of its pixel.
    const __m256i channels = _mm256_set_epi8(12, 12, 12, 12, 8, 8, 8, 8, 4, 4, 4, 4, 0, 0, 0, 0, //
                                             12, 12, 12, 12, 8, 8, 8, 8, 4, 4, 4, 4, 0, 0, 0, 0);
    const __m256i bytes = _mm256_cvtepu8_epi32(_mm_cvtsi64_si128(static_cast<long long>(coverage)));
    const __m256i cover = _mm256_shuffle_epi8(bytes, channels);
    const __m256i rest = _mm256_xor_si256(cover, _mm256_set1_epi8(-1));
    const __m256i pixels = _mm256_loadu_si256(reinterpret_cast<const __m256i*>(to));
    const __m256i under = _mm256_xor_si256(pixels, _mm256_set1_epi8(-128));
    const __m256i low = mix_pairs(_mm256_unpacklo_epi8(turned, under), _mm256_unpacklo_epi8(cover, rest));
    const __m256i high = mix_pairs(_mm256_unpackhi_epi8(turned, under), _mm256_unpackhi_epi8(cover, rest));
    _mm256_storeu_si256(reinterpret_cast<__m256i*>(to), _mm256_packus_epi16(low, high));
}

MACHINE_WIDE void mix_wide(std::uint32_t* to, int pitch, const Eight* eights, std::size_t count,
                           std::uint32_t color) {
    const __m256i turned = _mm256_set1_epi32(static_cast<int>(color ^ 0x80808080));
    for (const Eight* eight = eights; eight != eights + count; ++eight) {
        std::uint64_t coverage;
        std::memcpy(&coverage, eight->coverage, sizeof coverage);
        mix_eight(to + static_cast<std::ptrdiff_t>(eight->y) * pitch + eight->x, coverage, turned);
    }
}
#else
void mix_wide(std::uint32_t*, int, const Eight*, std::size_t, std::uint32_t) {}
#endif

} // namespace

void mix_row(std::uint32_t* to, const std::uint8_t* coverage, int count, std::uint32_t color) {
    for (int i = mix_fours(to, coverage, count, color); i < count; ++i)
        to[i] = mix(color, to[i], coverage[i]);
}

void mix_eights(std::uint32_t* to, int pitch, const Eight* eights, std::size_t count, std::uint32_t color) {
    if (machine::wide_registers()) return mix_wide(to, pitch, eights, count, color);
    for (const Eight* eight = eights; eight != eights + count; ++eight)
        mix_row(to + static_cast<std::ptrdiff_t>(eight->y) * pitch + eight->x, eight->coverage, EIGHT, color);
}

} // namespace raster
