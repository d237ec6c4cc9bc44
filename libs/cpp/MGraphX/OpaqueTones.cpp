#include "OpaqueTones.h"

#include "PixelRows.h"

#include <algorithm>
#include <QPainter>

namespace MGraphX
{
namespace
{

constexpr int kSlotBits = 12;
constexpr size_t kSlots = size_t(1) << kSlotBits;

void askPainter(uint32_t word, std::array<uint32_t, 256>& ofGray)
{
    QImage ramp(256, 1, QImage::Format_ARGB32);
    for (uint32_t gray = 0; gray < 256; ++gray) {
        targetRow(ramp, 0)[gray] = 0xff000000u | gray * 0x010101u;
    }
    QImage over(ramp.size(), QImage::Format_ARGB32);
    over.fill(word);
    QPainter painter(&ramp);
    painter.drawImage(ramp.rect(), over);
    painter.end();
    std::copy_n(sourceRow(ramp, 0), 256, ofGray.begin());
}

} // namespace

OpaqueTones::OpaqueTones()
    : m_slots(kSlots)
{
}

const OpaqueTones::Tones& OpaqueTones::tonesOf(uint32_t word)
{
    size_t slot = (word * 2654435761u) >> (32 - kSlotBits);
    while (m_slots[slot] && m_slots[slot]->word != word) {
        slot = (slot + 1) % kSlots;
    }
    if (!m_slots[slot]) {
        if (m_used == int(kSlots) / 2) {
            std::fill(m_slots.begin(), m_slots.end(), nullptr);
            m_used = 0;
        }
        ++m_used;
        m_slots[slot] = std::make_unique<Tones>();
        m_slots[slot]->word = word;
        askPainter(word, m_slots[slot]->ofGray);
    }
    return *m_slots[slot];
}

void OpaqueTones::layRow(const uint32_t* over, const uint32_t* under, uint32_t* target, int count)
{
    const Tones* tones = nullptr;
    for (int i = 0; i < count; ++i) {
        if (!tones || tones->word != over[i]) {
            tones = &tonesOf(over[i]);
        }
        const uint32_t p = under[i];
        target[i] = 0xff000000u | (tones->ofGray[(p >> 16) & 0xff] & 0x00ff0000u) |
                    (tones->ofGray[(p >> 8) & 0xff] & 0x0000ff00u) |
                    (tones->ofGray[p & 0xff] & 0x000000ffu);
    }
}

} // namespace MGraphX
