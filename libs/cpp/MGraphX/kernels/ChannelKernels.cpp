#include "ChannelKernels.h"

#include "Multiversion.h"

// Every loop body is a chain of word operations without branch or table, so a vector register takes
// a pixel in each lane, and memory is the limit.
namespace
{

constexpr uint32_t kAlpha = 0xff000000u;
constexpr uint32_t kRed = 0x00ff0000u;
constexpr uint32_t kGreen = 0x0000ff00u;
constexpr uint32_t kBlue = 0x000000ffu;

MGRAPHX_MULTIVERSION
void swapRedBlue(const uint32_t* source, uint32_t* target, int count)
{
    for (int i = 0; i < count; ++i) {
        const uint32_t p = source[i];
        target[i] = (p & (kAlpha | kGreen)) | ((p >> 16) & kBlue) | ((p << 16) & kRed);
    }
}

MGRAPHX_MULTIVERSION
void swapRedGreen(const uint32_t* source, uint32_t* target, int count)
{
    for (int i = 0; i < count; ++i) {
        const uint32_t p = source[i];
        target[i] = (p & (kAlpha | kBlue)) | ((p >> 8) & kGreen) | ((p << 8) & kRed);
    }
}

MGRAPHX_MULTIVERSION
void swapGreenBlue(const uint32_t* source, uint32_t* target, int count)
{
    for (int i = 0; i < count; ++i) {
        const uint32_t p = source[i];
        target[i] = (p & (kAlpha | kRed)) | ((p >> 8) & kBlue) | ((p << 8) & kGreen);
    }
}

// The channels are compared where they stand, against the threshold shifted to the same place.
MGRAPHX_MULTIVERSION
void binarize(const uint32_t* source, uint32_t* target, int count, int32_t threshold)
{
    const int32_t red = threshold * 0x10000;
    const int32_t green = threshold * 0x100;
    for (int i = 0; i < count; ++i) {
        const uint32_t p = source[i];
        const uint32_t r = int32_t(p & kRed) >= red ? kRed : 0;
        const uint32_t g = int32_t(p & kGreen) >= green ? kGreen : 0;
        const uint32_t b = int32_t(p & kBlue) >= threshold ? kBlue : 0;
        target[i] = (p & kAlpha) | r | g | b;
    }
}

// 21846 / 65536 lies above a third by less than a third of the largest sum, 765, can carry over
// into the next whole number, so the product shifted down is the quotient of every sum.
MGRAPHX_MULTIVERSION
void grayscale(const uint32_t* source, uint32_t* target, int count)
{
    for (int i = 0; i < count; ++i) {
        const uint32_t p = source[i];
        const uint32_t sum = ((p >> 16) & 0xff) + ((p >> 8) & 0xff) + (p & 0xff);
        const uint32_t gray = (sum * 21846u) >> 16;
        target[i] = (p & kAlpha) | (gray << 16) | (gray << 8) | gray;
    }
}

MGRAPHX_MULTIVERSION
void invert(const uint32_t* source, uint32_t* target, int count)
{
    for (int i = 0; i < count; ++i) {
        target[i] = source[i] ^ (kRed | kGreen | kBlue);
    }
}

} // namespace

namespace MGraphX::kernels
{

void swapRedBlueRow(const uint32_t* source, uint32_t* target, int count)
{
    swapRedBlue(source, target, count);
}

void swapRedGreenRow(const uint32_t* source, uint32_t* target, int count)
{
    swapRedGreen(source, target, count);
}

void swapGreenBlueRow(const uint32_t* source, uint32_t* target, int count)
{
    swapGreenBlue(source, target, count);
}

void binarizeRow(const uint32_t* source, uint32_t* target, int count, int threshold)
{
    binarize(source, target, count, threshold);
}

void grayscaleRow(const uint32_t* source, uint32_t* target, int count)
{
    grayscale(source, target, count);
}

void invertRow(const uint32_t* source, uint32_t* target, int count)
{
    invert(source, target, count);
}

} // namespace MGraphX::kernels
