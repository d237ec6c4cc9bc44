#include "StraightOverKernel.h"

#include "Multiversion.h"

#include <algorithm>
#include <cstring>
#include <vector>
#ifdef __SSE__
#include <xmmintrin.h>
#endif

namespace
{

constexpr int kGroup = MGraphX::kernels::kStraightGroup;
constexpr int kPiece = 256;
constexpr uint32_t kFull = 0xffff;

/// 255 / alpha for each alpha of 16 bits; 0 for 0. Not the quotient but what one Newton step makes
/// of the processor's estimate, since that is what the painter multiplies with: a product that
/// lies at a half is rounded by the last bit.
std::vector<float> factorsBack()
{
    std::vector<float> factors(kFull + 1);
    for (uint32_t alpha = 1; alpha <= kFull; ++alpha) {
        const auto value = float(alpha);
#ifdef __SSE__
        const float estimate = _mm_cvtss_f32(_mm_rcp_ss(_mm_set_ss(value)));
#else
        const float estimate = 1.0f / value;
#endif
        const float better = (estimate + estimate) - estimate * (estimate * value);
        factors[alpha] = better * 255.0f;
    }
    return factors;
}

/// A colour of 8 bits as a premultiplied one of 16, given its product with an alpha of 8 bits.
/// `full` is 0xffff where no multiplication takes place. Deliberate: rounded as the painter's
/// product of high halves is, 257 * 257 * x / 65536 being x + 513 * x / 65536.
MGRAPHX_INLINE uint32_t wide(uint32_t colour, uint32_t x, uint32_t full)
{
    const uint32_t product = x + (((x << 9) + x) >> 16);
    const uint32_t premultiplied = product + (product >> 15);
    return premultiplied ^ ((premultiplied ^ (colour | colour << 8)) & full);
}

/// The nearest whole number to value * share / 65535.
MGRAPHX_INLINE uint32_t part(uint32_t value, uint32_t share)
{
    const uint32_t product = value * share;
    return (product + (product >> 16) + 0x8000u) >> 16;
}

/// The nearest whole number, at a half the even one, for 0 up to 2^22: the addition leaves no bits
/// for a fraction.
MGRAPHX_INLINE uint32_t nearest(float value)
{
    const float shifted = value + 8388608.0f;
    uint32_t bits = 0;
    std::memcpy(&bits, &shifted, sizeof(bits));
    return bits & 0xffu;
}

/// The nearest whole number to value / 257, for 16 bits.
MGRAPHX_INLINE uint32_t narrow(uint32_t value)
{
    const uint32_t rounded = value + 128;
    return (rounded - (rounded >> 8)) >> 8;
}

/// For each word all bits of 16 if its whole group is opaque, else none.
MGRAPHX_INLINE void findOpaque(const uint32_t* words, int count, uint32_t* full)
{
    for (int first = 0; first < count; first += kGroup) {
        uint32_t common = 0xffffffffu;
        for (int i = first; i < first + kGroup; ++i) {
            common &= words[i];
        }
        for (int i = first; i < first + kGroup; ++i) {
            full[i] = common >> 24 == 0xff ? kFull : 0;
        }
    }
}

/// What a piece consists of.
struct Piece {
    bool overIsClear;
    bool underIsOpaque;
    bool underHasLeastAlpha; ///< such words do not come back from their way as they went
};

MGRAPHX_MULTIVERSION
Piece lookAt(const uint32_t* over, const uint32_t* under, int count)
{
    uint32_t any = 0;
    uint32_t common = 0xffffffffu;
    uint32_t least = 0;
    for (int i = 0; i < count; ++i) {
        any |= over[i];
        common &= under[i];
        least |= under[i] >> 24 == 1 ? 1u : 0u;
    }
    return {any >> 24 == 0, common >> 24 == 0xff, least != 0};
}

/// Keeps the words, but what is clear loses its colour.
MGRAPHX_MULTIVERSION
void keepVisible(const uint32_t* under, uint32_t* target, int count)
{
    for (int i = 0; i < count; ++i) {
        target[i] = under[i] >> 24 == 0 ? 0 : under[i];
    }
}

// All groups below are opaque, and so are the results: the way back is a division by 257. Whether a
// group above is opaque changes its premultiplied colours by less than that division rounds.
MGRAPHX_MULTIVERSION
void overOpaque(const uint32_t* over, const uint32_t* under, uint32_t* target, int count)
{
    for (int i = 0; i < count; ++i) {
        const uint32_t alpha = over[i] >> 24;
        const uint32_t through = kFull - alpha * 257;
        uint32_t word = 0xff000000u;
        for (int shift = 0; shift < 24; shift += 8) {
            const uint32_t o = (over[i] >> shift) & 0xffu;
            const uint32_t u = (under[i] >> shift) & 0xffu;
            word |= narrow(wide(o, o * alpha, 0) + part(u * 257, through)) << shift;
        }
        target[i] = word;
    }
}

// Each loop does one thing to a piece that stays in the cache, so that all but the look-up become
// vectors; no word depends on another but through its group's opacity.
MGRAPHX_MULTIVERSION
void straightOver(const uint32_t* over, const uint32_t* under, uint32_t* target, int count,
                  const float* factors)
{
    constexpr uint32_t kOuter = 0x00ff00ffu;
    uint32_t overFull[kPiece];
    uint32_t underFull[kPiece];
    uint32_t alphas[kPiece];
    float back[kPiece];
    findOpaque(over, count, overFull);
    findOpaque(under, count, underFull);
    for (int i = 0; i < count; ++i) {
        const uint32_t overAlpha = (over[i] >> 24) * 257;
        alphas[i] = overAlpha + part((under[i] >> 24) * 257, kFull - overAlpha);
    }
    for (int i = 0; i < count; ++i) {
        back[i] = factors[alphas[i]];
    }
    for (int i = 0; i < count; ++i) {
        const uint32_t o = over[i];
        const uint32_t u = under[i];
        const uint32_t through = kFull - (o >> 24) * 257;
        // Two products of two bytes share a word.
        const uint32_t overOuter = (o & kOuter) * (o >> 24);
        const uint32_t underOuter = (u & kOuter) * (u >> 24);
        const uint32_t overs[] = {overOuter & 0xffffu, ((o >> 8) & 0xffu) * (o >> 24),
                                  overOuter >> 16};
        const uint32_t unders[] = {underOuter & 0xffffu, ((u >> 8) & 0xffu) * (u >> 24),
                                   underOuter >> 16};
        uint32_t word = narrow(alphas[i]) << 24;
        for (int k = 0; k < 3; ++k) {
            const uint32_t colour =
                wide((o >> (8 * k)) & 0xffu, overs[k], overFull[i]) +
                part(wide((u >> (8 * k)) & 0xffu, unders[k], underFull[i]), through);
            word |= nearest(float(int32_t(colour)) * back[i]) << (8 * k);
        }
        target[i] = word;
    }
}

} // namespace

namespace MGraphX::kernels
{

void straightOverRow(const uint32_t* over, const uint32_t* under, uint32_t* target, int count)
{
    static const std::vector<float> factors = factorsBack();
    for (int i = 0; i < count; i += kPiece) {
        const int piece = std::min(kPiece, count - i);
        const Piece kind = lookAt(over + i, under + i, piece);
        if (kind.overIsClear && !kind.underHasLeastAlpha) {
            keepVisible(under + i, target + i, piece);
        } else if (kind.underIsOpaque) {
            overOpaque(over + i, under + i, target + i, piece);
        } else {
            straightOver(over + i, under + i, target + i, piece, factors.data());
        }
    }
}

} // namespace MGraphX::kernels
